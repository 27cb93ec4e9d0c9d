"""Runs clang-tidy on the sources of the named folders, with the compile commands of a build directory.

    tools/tidy.py BUILD FOLDER ... -- [CHANGED ...]

Sources that are compiled together are read together, which saves reading their headers again. With changed files only those commands run that
read one of them. The commands are those of another compiler: its precompiled headers and warning options are taken out. Prints what is found, each
finding once, and ends with 1 where there is one.
"""

import concurrent.futures
import json
import os
import re
import shlex
import subprocess
import sys


def sources_of(file):
    """The sources that a file of the build directory combines, without what tools made there, or the file itself."""
    if not re.search(r"/Unity/unity_\d+_cxx\.cxx$", file):
        return [file]
    with open(file, encoding="utf-8") as text:
        return re.findall(r'^#include "((?!.*/(?:moc|qrc)_)[^"]+\.cpp)"', text.read(), re.MULTILINE)


OF_ANOTHER_COMPILER = ("-Winvalid-pch", "-Wno-restrict", "-Wno-stringop-overflow", "-Wno-subobject-linkage")


def plain(command):
    words, kept, skip = shlex.split(command), [], False
    for word in words:
        if skip:
            skip = False
        elif word == "-include":
            skip = True
        elif word not in OF_ANOTHER_COMPILER and not word.startswith("--param="):
            kept.append(word)
    return shlex.join(kept)


def reads(entry, changed):
    """Whether the sources of a command, or headers that they include, are among the changed files."""
    for source in sources_of(entry["file"]):
        if os.path.relpath(source) in changed:
            return True
        with open(source, encoding="utf-8") as text:
            if changed.intersection(re.findall(r'^#include "([^"]+)"', text.read(), re.MULTILINE)):
                return True
    return False


def main():
    divide = sys.argv.index("--")
    build, folders, changed = sys.argv[1], sys.argv[2:divide], set(sys.argv[divide + 1:])
    with open(os.path.join(build, "compile_commands.json"), encoding="utf-8") as text:
        entries = json.load(text)
    wanted = []
    for entry in entries:
        sources = [os.path.relpath(source) for source in sources_of(entry["file"])]
        if sources and all(source.split(os.sep)[0] in folders for source in sources) and (not changed or reads(entry, changed)):
            wanted.append({**entry, "command": plain(entry["command"])})

    place = os.path.join(build, "tidy")
    os.makedirs(place, exist_ok=True)
    with open(os.path.join(place, "compile_commands.json"), "w", encoding="utf-8") as text:
        json.dump(wanted, text)

    def run(entry):
        # A file that combines sources may include them.
        return subprocess.run(["clang-tidy-14", "-quiet", "-p", place, "--checks=-bugprone-suspicious-include",
                               "--header-filter=^(?!.*(/moc_|/qrc_|/usr/)).*\\.(h|cpp)$", entry["file"]],
                              capture_output=True, text=True, check=False)

    found, failed = set(), False
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for entry, result in zip(wanted, pool.map(run, wanted)):
            lines = [line for line in result.stdout.splitlines() if re.search(r": (warning|error): ", line)]
            found.update(lines)
            if result.returncode != 0 and not lines:
                failed = True
                print(f"{entry['file']}: clang-tidy ended with {result.returncode}\n{result.stderr}", file=sys.stderr)
    for line in sorted(found):
        print(line)
    print(f"{sum(len(sources_of(entry['file'])) for entry in wanted)} sources, {len(found)} findings")
    sys.exit(1 if found or failed else 0)


main()
