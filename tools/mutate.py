#!/usr/bin/env python3
"""Lets the tests of a folder be judged: makes one change at a time to its code, builds and runs its tests, and prints
the changes that no test noticed.

    tools/mutate.py graph/frq                    40 changes
    tools/mutate.py processing --count 100 --seed 7
    tools/mutate.py headers --files '*Header*.cpp'
    tools/mutate.py tempoline --ctest TempolineRoses
    tools/mutate.py graph/frq --survivors        the survivors of its last run once more, after tests were written
    tools/mutate.py graph/frq --list             tells the changes and builds nothing

Works in a copy of the checkout under build/mutate, which is brought up to date at each start; the checkout is never touched. The same
seed makes the same changes as long as the code is the same. Exit status: 0 no survivor, 1 some, 2 it could not run.
"""
import argparse
import fcntl
import fnmatch
import json
import os
import random
import re
import resource
import shutil
import signal
import subprocess
import sys
import time
from contextlib import contextmanager
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))
from code_changes import KINDS, changes_of  # noqa: E402

ROOT = Path(__file__).resolve().parent.parent
OPTIONS = ["-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O0 -D_GLIBCXX_ASSERTIONS", "-DZG_BENCH=OFF",
           "-DZG_UNITY=OFF"]
MOST_MEMORY = 4 << 30  # bytes, for a loop that a change made endless
MOST_FILE = 4 << 30


class CannotRun(Exception):
    pass


class Outcome:
    KILLED, SURVIVED, NOT_COMPILED = "killed", "survived", "not compiled"


# ---- the copy of the checkout


def bring_up_to_date(copy):
    """Makes the copy equal to the checkout. Unchanged files keep their time."""
    listed = subprocess.run(["git", "ls-files", "-z", "-co", "--exclude-standard"], cwd=ROOT, check=True, capture_output=True)
    wanted = {name for name in os.fsdecode(listed.stdout).split("\0") if name and (ROOT / name).is_file()}
    for path in list(copy.rglob("*")) if copy.exists() else []:
        if path.is_file() and str(path.relative_to(copy)) not in wanted:
            path.unlink()
    for name in sorted(wanted):
        source, target = ROOT / name, copy / name
        if not target.exists() or target.read_bytes() != source.read_bytes():
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copyfile(source, target)
        if target.stat().st_mode != source.stat().st_mode:
            shutil.copymode(source, target)


@contextmanager
def changed(path, change):
    """The file with the change made, while the block runs, however it ends."""
    before = path.read_bytes()
    text = before.decode("utf-8")
    try:
        path.write_bytes((text[:change["start"]] + change["new"] + text[change["end"]:]).encode("utf-8"))
        yield
    finally:
        path.write_bytes(before)


# ---- running programs


def limits():
    resource.setrlimit(resource.RLIMIT_AS, (MOST_MEMORY, MOST_MEMORY))
    resource.setrlimit(resource.RLIMIT_FSIZE, (MOST_FILE, MOST_FILE))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


def end_session(session):
    """Ends all descendants of this process, including the compilers of a build, which have process groups of their own."""
    for entry in Path("/proc").glob("[0-9]*/stat"):
        try:
            if int(entry.read_text("utf-8", "replace").rpartition(")")[2].split()[3]) == session:
                os.kill(int(entry.parent.name), signal.SIGKILL)
        except (OSError, IndexError, ValueError):
            pass  # it has ended meanwhile


def run(command, cwd, seconds=None, env=None, limited=False):
    """Exit status and output; no status (None) after a time-out. No child outlives the call."""
    child = subprocess.Popen(command, cwd=cwd, env=env, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                             stderr=subprocess.STDOUT, start_new_session=True, preexec_fn=limits if limited else None)
    try:
        output = child.communicate(timeout=seconds)[0]
        return child.returncode, output.decode("utf-8", "replace")
    except subprocess.TimeoutExpired:
        return None, ""
    finally:
        if child.returncode is None:
            end_session(child.pid)
        child.stdout.close()
        child.wait()


class TestProgram:
    """One test program; its cases of the folder run first, then all of them."""

    def __init__(self, path, suites, seconds=120):
        self.path, self.suites, self.seconds = path, suites, seconds

    def failure(self, work):
        own = ":".join("*%s.*:*%s/*" % (suite, suite) for suite in sorted(self.suites))
        for chosen in ([own, "-" + own] if own else ["*"]):
            command = [str(self.path), "--gtest_fail_fast", "--gtest_brief=1", "--gtest_filter=" + chosen]
            status, output = run(command, work.copy, self.seconds, work.environment(), True)
            if status != 0:
                failed = re.search(r"\[  FAILED  \] (\S+)", output)
                return failed.group(1).rstrip(",") if failed else ended(status)
        return None


class CtestCases:
    """Tests of ctest by a regular expression, such as those that are scripts."""

    def __init__(self, pattern, seconds=600):
        self.pattern, self.seconds, self.path = pattern, seconds, "ctest -R " + pattern

    def failure(self, work):
        status, output = run(["ctest", "--test-dir", str(work.build), "-R", self.pattern, "--stop-on-failure", "--no-tests=error"],
                             work.copy, self.seconds, work.environment(), True)
        if status == 0:
            return None
        failed = re.search(r": (\S+) \.*\**(Failed|Timeout|Exception|Not Run)", output)
        return failed.group(1) if failed else ended(status)


def ended(status):
    return "does not end" if status is None else "signal %d" % -status if status < 0 else "exit status %d" % status


class Work:
    """The copy, its build and the tests to run."""

    def __init__(self, base, folder):
        self.folder, self.copy, self.build = folder, base / "tree", base / "cmake"
        self.scratch = base / "scratch"
        self.tests = []

    def environment(self):
        shutil.rmtree(self.scratch, ignore_errors=True)
        self.scratch.mkdir(parents=True)
        return dict(os.environ, HOME=str(self.scratch), TMPDIR=str(self.scratch), QT_QPA_PLATFORM="offscreen", LC_ALL="C.UTF-8")

    def configure(self):
        linker = ["-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=lld"] if shutil.which("ld.lld") else []
        status, output = run(["cmake", "-S", str(self.copy), "-B", str(self.build)] + OPTIONS + linker, self.copy)
        if status != 0:
            raise CannotRun(output)

    def find_tests(self, wanted, also, ctest):
        """The test programs built from sources in tests/FOLDER, then the named ones, then those of ctest."""
        suites = {}
        for command in json.loads((self.build / "compile_commands.json").read_text()):
            source = Path(command["file"])
            program = re.search(r"/CMakeFiles/([^/]+)\.dir/", "/" + command["command"].split(" -o ")[-1])
            if not program or self.copy / "tests" / self.folder not in source.parents:
                continue
            names = re.findall(r"^TEST(?:_F|_P)?\((\w+),", source.read_text("utf-8"), re.M)
            if names and re.search(wanted, program.group(1)):
                suites.setdefault(program.group(1), set()).update(names)
        for program in also:
            suites.setdefault(program, set())
        if not suites and not ctest:
            raise CannotRun("No test program is built of sources in tests/%s; name one with --also." % self.folder)
        self.targets = list(suites)
        self.tests = [TestProgram(self.build / "bin" / program, names) for program, names in suites.items()]
        self.tests += [CtestCases(pattern) for pattern in ctest]

    def make(self):
        return run(["ninja", "-C", str(self.build), "-j1"] + self.targets, self.copy)

    def prove(self):
        """The tests pass on the unchanged code; their time determines how long a changed program may take."""
        status, output = self.make()
        if status != 0:
            raise CannotRun(output)
        for test in self.tests:
            before = time.monotonic()
            failure = test.failure(self)
            if failure:
                raise CannotRun("%s fails on the code as it is: %s" % (test.path, failure))
            test.seconds = 10 + 5 * (time.monotonic() - before)

    def judge(self, change):
        """The outcome for the program with the change, and which test noticed it."""
        with changed(self.copy / change["file"], change):
            status, _ = self.make()
            if status != 0:
                return Outcome.NOT_COMPILED, ""
            for test in self.tests:
                failure = test.failure(self)
                if failure:
                    return Outcome.KILLED, failure
        return Outcome.SURVIVED, ""


# ---- choosing


def text_of(path):
    """With its own line ends, so that positions in the file are right."""
    return path.read_bytes().decode("utf-8")


def sources_of(copy, folder, patterns, headers):
    kinds = (".cpp", ".h") if headers else (".cpp",)
    found = sorted(path for path in (copy / folder).rglob("*") if path.suffix in kinds)
    return [path for path in found if any(fnmatch.fnmatch(path.name, pattern) for pattern in patterns)]


def described(copy, path, text, change):
    line = text.count("\n", 0, change.start)
    return {"file": str(path.relative_to(copy)), "line": line + 1, "column": change.start - (text.rfind("\n", 0, change.start) + 1),
            "kind": change.kind, "start": change.start, "end": change.end, "old": text[change.start:change.end], "new": change.new,
            "code": text.split("\n")[line].strip()}


def chosen_changes(copy, paths, seed):
    """All changes in random order: the kinds in turn, each place once."""
    chance = random.Random(seed)
    by_kind = {kind: [] for kind in KINDS}
    for path in paths:
        text = text_of(path)
        for kind, choices in changes_of(text):
            by_kind[kind].append(described(copy, path, text, chance.choice(choices)))
    for places in by_kind.values():
        chance.shuffle(places)
    while any(by_kind.values()):
        for kind in KINDS:
            if by_kind[kind]:
                yield by_kind[kind].pop()


def found_again(copy, changes):
    """The changes of an earlier run, at their current lines; those whose code no longer exists are left out."""
    for change in changes:
        path = copy / change["file"]
        text = text_of(path) if path.exists() else ""
        places = [described(copy, path, text, choice) for _, choices in changes_of(text) for choice in choices]
        same = [place for place in places if all(place[key] == change[key] for key in ("kind", "old", "new", "column", "code"))]
        if same:
            yield min(same, key=lambda place: abs(place["line"] - change["line"]))
        else:
            print("no longer there: " + told(change))


def told(change):
    old, new = (" ".join(change[key].split()) for key in ("old", "new"))
    what = "removed: " + old if change["kind"] == "statement" else "%s -> %s" % (old, new or "nothing")
    return "%s:%d: %s: %s" % (change["file"], change["line"], change["kind"], what)


# ---- the run


def judge_all(work, drawn, count, results):
    """Judges changes until that many have compiled. Those of one file come together, to save recompiling it."""
    while True:
        missing = count - sum(result["outcome"] != Outcome.NOT_COMPILED for result in results)
        batch = [change for _, change in zip(range(missing), drawn)]
        if not batch:
            return
        for change in sorted(batch, key=lambda change: (change["file"], change["start"])):
            outcome, test = work.judge(change)
            results.append(dict(change, outcome=outcome, test=test))
            print("%-12s %s%s" % (outcome, told(change), "  [%s]" % test if test else ""), flush=True)


def summary(folder, seed, results):
    count = {outcome: sum(result["outcome"] == outcome for result in results)
             for outcome in (Outcome.KILLED, Outcome.SURVIVED, Outcome.NOT_COMPILED)}
    judged = count[Outcome.KILLED] + count[Outcome.SURVIVED]
    share = "%.1f %% killed" % (100 * count[Outcome.KILLED] / judged) if judged else "nothing judged"
    print("\n%s, seed %s: %d changes compiled, %d did not, %d killed, %d survived, %s"
          % (folder, seed, judged, count[Outcome.NOT_COMPILED], count[Outcome.KILLED], count[Outcome.SURVIVED], share))
    for result in results:
        if result["outcome"] == Outcome.SURVIVED:
            print("  " + told(result) + "\n      " + result["code"])


def arguments():
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    parser.add_argument("folder", help="a folder of the code, such as graph/frq")
    parser.add_argument("--count", type=int, default=40, help="changes that compile (40)")
    parser.add_argument("--seed", type=int, default=1, help="which changes are drawn (1)")
    parser.add_argument("--files", action="append", help="only sources with such names, such as '*Header*.cpp'")
    parser.add_argument("--headers", action="store_true", help="change headers too; each builds all that includes it")
    parser.add_argument("--tests", default="", help="only test programs whose name matches this regular expression")
    parser.add_argument("--also", action="append", default=[], help="another test program that judges")
    parser.add_argument("--ctest", action="append", default=[], help="tests of ctest, by a regular expression, that judge last")
    parser.add_argument("--target", action="append", default=[], help="something else to build, for --ctest")
    parser.add_argument("--survivors", action="store_true", help="only the survivors of the folder's last run")
    parser.add_argument("--list", action="store_true", help="tell the changes, build nothing")
    parser.add_argument("--build", type=Path, default=ROOT / "build" / "mutate", help="where to work (build/mutate)")
    return parser.parse_args()


def main():
    options = arguments()
    folder = options.folder.rstrip("/")
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(2))
    os.nice(10)
    base = options.build.resolve()
    base.mkdir(parents=True, exist_ok=True)
    notes = base / (folder.replace("/", "-") + ".json")
    results = []
    with open(base / "lock", "w") as lock:
        try:
            fcntl.flock(lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
        except BlockingIOError:
            raise CannotRun("Another run is at work in %s; choose another place with --build." % base) from None
        work = Work(base, folder)
        bring_up_to_date(work.copy)
        paths = sources_of(work.copy, folder, options.files or ["*"], options.headers)
        if not paths:
            raise CannotRun("%s holds no such source." % folder)
        drawn, count = chosen_changes(work.copy, paths, options.seed), options.count
        if options.survivors:
            last = json.loads(notes.read_text()) if notes.exists() else []
            drawn = found_again(work.copy, [change for change in last if change["outcome"] == Outcome.SURVIVED])
            count = len(last)
        if options.list:
            for _, change in zip(range(count), drawn):
                print(told(change))
            return 0
        work.configure()
        work.find_tests(options.tests, options.also, options.ctest)
        work.targets += options.target
        work.prove()
        try:
            judge_all(work, drawn, count, results)
        except KeyboardInterrupt:
            print("interrupted")
        finally:
            notes.write_text(json.dumps(results, indent=1))
            summary(folder, options.seed, results)
    return 1 if any(result["outcome"] == Outcome.SURVIVED for result in results) else 0


if __name__ == "__main__":
    try:
        sys.exit(main())
    except CannotRun as error:
        print(error, file=sys.stderr)
        sys.exit(2)
    except KeyboardInterrupt:
        sys.exit(2)
