"""What the checks of whole runs share: starting the processor, small inputs, and what a failed run must leave behind."""
import re
import resource
import shutil
import subprocess
import sys
from pathlib import Path

import make_inputs
from check_roses import ONE
from control_files import write_control

ROOT = Path(__file__).resolve().parent.parent.parent
OLD = b"an older result"
HEADER = "   41.3N 74.0W UA_ID: 1 SF_ID: 2 OS_ID: 3 VERSION: 24142"
SKIPPED = 77


def run(processor, directory, *arguments, **named):
    return subprocess.run([processor, *arguments], cwd=directory, capture_output=True, text=True, errors="replace", **named)


def names(directory):
    return sorted(path.name for path in directory.iterdir())


def surface_line(year, month, day, hour, speed="3.4", direction="200.0"):
    return "%d %d %d 1 %d -0.1 0.011 -9.0 -9.0 -999. 3. 2.1 0.001 0.1 1.0 %s %s 10.0 273.8 10.0 99 -9.0 70." % (
        year, month, day, hour, speed, direction)


def surface(directory, lines, name="a.sfc"):
    make_inputs.write(directory / name, [HEADER] + lines)


def day_control(directory, **named):
    write_control(directory / "c.inp", "aermsfc.inp", ["a.sfc"], ONE, named.pop("period", [2004, 1, 1, 0, 0, 2004, 1, 2, 0, 0]), **named)


def good_day():
    return [surface_line(2004, 1, 1, hour) for hour in range(1, 25)]


def old_results(directory):
    for end in ("frq", "tab", "tsf"):
        (directory / ("out." + end)).write_bytes(OLD)
        (directory / ("out.previous." + end)).unlink(missing_ok=True)


def temporaries(directory):
    return [name for name in names(directory) if name.startswith(".tempoline")]


def needs_aside(directory, ends=("frq", "tab", "tsf")):
    """The old results are complete, and none of them can be mistaken for one of the failed run."""
    for end in ends:
        assert not (directory / ("out." + end)).exists(), "out.%s looks like a result of the failed run" % end
        assert (directory / ("out.previous." + end)).read_bytes() == OLD, "out.previous.%s has been touched" % end


KEPT = "tempoline: the results of an earlier run are kept as out.previous.frq, out.previous.tab, out.previous.tsf"


def needs_failure(processor, directory, pattern, status=1, aside=True):
    """The run fails with that last line on standard error and in the listing; old results are kept aside, complete."""
    old_results(directory)
    done = run(processor, directory, "c.inp")
    assert done.returncode == status, "status %d: %s" % (done.returncode, done.stderr)
    lines = done.stderr.splitlines()
    assert lines[:-1] == ([KEPT] if aside else []), done.stderr
    assert re.search(pattern, lines[-1]), "%s does not say %s" % (lines[-1], pattern)
    if aside:
        needs_aside(directory)
    else:
        assert all((directory / ("out." + end)).read_bytes() == OLD for end in ("frq", "tab", "tsf"))
    assert not temporaries(directory), names(directory)
    listings = [name for name in names(directory) if name.lower().endswith("lst")]
    assert len(listings) == 1, names(directory)
    told = (directory / listings[0]).read_text(encoding="latin-1").rstrip().splitlines()
    assert told[-1] == "ERROR: " + lines[-1][len("tempoline: "):], told[-1]
    assert ("  out.previous.frq" in told) == aside, told
    (directory / listings[0]).unlink()


def limited(megabytes):
    def limit():
        resource.setrlimit(resource.RLIMIT_AS, (megabytes << 20, megabytes << 20))
    return limit


def main(found):
    """Runs the cases that the command line names, or all: the case_NAME functions among `found`."""
    cases = {name[5:]: function for name, function in found.items() if name.startswith("case_")}
    processor, work = str(Path(sys.argv[1]).resolve()), Path(sys.argv[2]).resolve()
    status = 0
    for name in sys.argv[3:] or cases:
        directory = work / name
        shutil.rmtree(directory, ignore_errors=True)
        directory.mkdir(parents=True)
        status = cases[name](processor, directory) or status
        print("%s: as it should be" % name)
        shutil.rmtree(directory)
    return status
