#!/usr/bin/env bash
# Where the time of a build was spent, from ninja's log.
#     tools/build_times.sh [DIRECTORY]             seconds by target and the twenty slowest files (of build/test, or of the given directory)
#     tools/build_times.sh [DIRECTORY] --headers   and the slowest headers of those files, as clang reads them (some minutes)
# Seconds are those of the jobs; parallel jobs count separately.
set -euo pipefail
cd "$(dirname "$0")/.."

directory=build/test
headers=
for word in "$@"; do
    case "$word" in
        --headers) headers=1 ;;
        -*) echo "tools/build_times.sh: unknown option $word" >&2; exit 2 ;;
        *) directory=$word ;;
    esac
done
[ -f "$directory/.ninja_log" ] || { echo "tools/build_times.sh: $directory has no log of ninja" >&2; exit 1; }

python3 -B - "$directory" <<'PYTHON'
import os, re, sys
from collections import defaultdict

jobs = {}
for line in open(os.path.join(sys.argv[1], ".ninja_log"), encoding="utf-8"):
    if line.startswith("#"):
        continue
    begin, end, _, output, command = line.rstrip("\n").split("\t")
    # A job with several outputs has a line for each; the last line of an output is its last build.
    jobs[output] = (command, int(begin) / 1000, int(end) / 1000)
by_command = {command: (begin, end, output) for output, (command, begin, end) in jobs.items()}

targets = defaultdict(float)
files = []
for begin, end, output in by_command.values():
    found = re.search(r"CMakeFiles/([^/]+)\.dir/", output)
    targets[found.group(1) if found else os.path.basename(output) + " (link or other step)"] += end - begin
    if output.endswith((".o", ".gch")):
        files.append((end - begin, output))

print(f"{sum(end - begin for begin, end, _ in by_command.values()):8.1f} s in {len(by_command)} jobs")
print("\nseconds by target")
for name, seconds in sorted(targets.items(), key=lambda item: -item[1])[:40]:
    print(f"{seconds:8.1f}  {name}")
print("\nthe twenty dearest files")
for seconds, output in sorted(files, reverse=True)[:20]:
    print(f"{seconds:8.1f}  {output}")
PYTHON

[ -n "$headers" ] || exit 0
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
python3 -B - "$directory" "$scratch" <<'PYTHON'
import json, os, shlex, subprocess, sys
from collections import defaultdict

directory, scratch = sys.argv[1:]
seconds = {}
for line in open(os.path.join(directory, ".ninja_log"), encoding="utf-8"):
    if not line.startswith("#"):
        begin, end, _, output, _ = line.rstrip("\n").split("\t")
        seconds[output] = int(end) - int(begin)
commands = json.load(open(os.path.join(directory, "compile_commands.json"), encoding="utf-8"))
commands = [c for c in commands if c.get("output") in seconds or c["command"]]
commands.sort(key=lambda c: -seconds.get(c.get("output", ""), 0))

total = defaultdict(float)
used = defaultdict(int)
for number, entry in enumerate(commands[:20]):
    words = shlex.split(entry["command"])
    kept, skip = [], False
    for word in words[1:]:
        if skip:
            skip = False
        elif word in ("-o", "-include"):
            skip = True
        elif word not in ("-c", "-Winvalid-pch", "-Wno-restrict"):
            kept.append(word)
    result = os.path.join(scratch, f"{number}.o")
    subprocess.run(["clang++-14", *kept, "-w", "-ftime-trace", "-c", "-o", result], cwd=entry["directory"], check=False,
                   stderr=subprocess.DEVNULL)
    trace = os.path.join(scratch, f"{number}.json")
    if not os.path.exists(trace):
        continue
    for event in json.load(open(trace, encoding="utf-8"))["traceEvents"]:
        if event.get("name") == "Source":
            total[event["args"]["detail"]] += event["dur"] / 1e6
            used[event["args"]["detail"]] += 1
print("\nthe dearest headers of those files, with what they include (seconds, files)")
for header, time in sorted(total.items(), key=lambda item: -item[1])[:30]:
    print(f"{time:8.1f} {used[header]:4}  {os.path.relpath(header) if header.startswith(os.getcwd()) else header}")
PYTHON
