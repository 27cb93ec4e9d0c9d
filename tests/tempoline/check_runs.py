#!/usr/bin/env python3
"""The processor as other programs start it: bad input, interrupts, a full disk, joined runs.

check_runs.py PROCESSOR WORK_DIRECTORY [CASE ...]
"""
import os
import re
import resource
import shutil
import signal
import subprocess
import sys
import time
from pathlib import Path

import make_inputs
from check_roses import LISTING, ONE, YEAR, roses_of_frq, roses_of_tab
from control_files import control_text, set_key, write_control

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


def needs_failure(processor, directory, pattern, status=1):
    """The run fails with that one line on standard error and in the listing; old results stay whole."""
    old_results(directory)
    done = run(processor, directory, "c.inp")
    assert done.returncode == status, "status %d: %s" % (done.returncode, done.stderr)
    lines = done.stderr.splitlines()
    assert len(lines) == 1, done.stderr
    assert re.search(pattern, lines[0]), "%s does not say %s" % (lines[0], pattern)
    for end in ("frq", "tab", "tsf"):
        assert (directory / ("out." + end)).read_bytes() == OLD, "out.%s has been touched" % end
    assert not [name for name in names(directory) if name.endswith(".tmp")], names(directory)
    listings = [name for name in names(directory) if name.lower().endswith("lst")]
    assert len(listings) == 1, names(directory)
    last = (directory / listings[0]).read_text(encoding="latin-1").rstrip().splitlines()[-1]
    assert last == "ERROR: " + lines[0][len("tempoline: "):], last
    (directory / listings[0]).unlink()


# ---- the control file -------------------------------------------------------------------------------------

def case_cut_control(processor, directory):
    """Cut at every line: refused with status 2, until nothing that is needed is missing."""
    surface(directory, good_day())
    day_control(directory)
    whole = (directory / "c.inp").read_bytes()
    lines = whole.split(b"\r\n")
    last_needed = max(i for i, line in enumerate(lines) if b"! HR =" in line)
    refused = 0
    for count in range(len(lines)):
        (directory / "c.inp").write_bytes(b"\r\n".join(lines[:count]))
        if count <= last_needed:
            needs_failure(processor, directory, r"^tempoline: c\.inp:", status=2)
            refused += 1
        else:
            done = run(processor, directory, "c.inp")
            assert done.returncode == 0, "cut behind line %d: %s" % (count, done.stderr)
            (directory / LISTING).unlink()
    assert refused == last_needed + 1
    # within a line
    (directory / "c.inp").write_bytes(whole[:whole.index(b"! WSBIN") + 12])
    needs_failure(processor, directory, r"c\.inp:\d+: WSBIN: the value has no \"!\" at its end", status=2)


def case_bad_control(processor, directory):
    surface(directory, good_day())
    day_control(directory)
    good = (directory / "c.inp").read_bytes().decode("latin-1")

    def refuse(text, pattern):
        (directory / "c.inp").write_bytes(text.encode("latin-1"))
        needs_failure(processor, directory, pattern, status=2)

    single = [key for key in re.findall(r"! ([A-Z0-9]+) *=", good)
              if key not in ("METINP", "TSFID", "TSFOUT", "MET", "IDSEAS", "SEASNAME", "HR")]
    assert len(single) > 20
    for key in single:
        line = next(line for line in good.split("\r\n") if re.search(r"! %s *=" % key, line))
        refuse(good.replace(line, line + "\r\n" + line), r"%s: the key is given twice; first in line \d+" % key)
    for key in ("METINP", "TSFID", "TSFOUT", "MET", "IDSEAS", "SEASNAME", "HR"):
        line = next(line for line in good.split("\r\n") if re.search(r"! %s *=" % key, line))
        refuse(good.replace(line, line + "\r\n" + line), r"c\.inp:\d+: [A-Z]+: ")
    for key, value, pattern in [
            ("MDATA", "SURFACE", "MDATA: \"SURFACE\" is no known type of input"),
            ("MDATA", "M2D", "MDATA: M2D input is not supported"),
            ("MDATA", "POSTIME", "MDATA: POSTIME is air quality input, which is not supported"),
            ("MROSE", 2, "MROSE: pollutant roses \\(2\\) are not supported"),
            ("NAQINP", 1, "NAQINP: air quality input is not supported"),
            ("IBMO", 13, "IBMO: 13 is not between 1 and 12"), ("IBDY", "31st", "IBDY: \"31st\" is no whole number"),
            ("IEYR", 2003, "IEYR: the period ends before it begins"), ("ABTZ", "EST", "ABTZ: \"EST\" is no zone"),
            ("NSECDT", 0, "NSECDT: 0 is not between 1 and 86400"), ("NSECDT", "nan", "NSECDT: \"nan\" is no whole"),
            ("WSBIN", "0.5,1.8,1.7,5.4,8.5,10.8", "WSBIN: the speeds must not fall: \"1.7\""),
            ("WSBIN", "0.5,nan,1.8,5.4,8.5,10.8", "WSBIN: \"nan\" is no number"),
            ("WSBIN", "0.5,1.8,3.3", "WSBIN: 3 speeds stand where 6"), ("MSN", "1,1,2", "MSN: 3 seasons stand where 12"),
            ("TSFLST", "../x.lst", "TSFLST: \"../x.lst\" is no plain file name"),
            ("TSFOUT", "sub/out", "TSFOUT: \"sub/out\" is no plain file name"),
            ("NTSFOUT", 2, "NTSFOUT"), ("NMETINP", 2, "NMETINP: AERMSFC takes one file"),
            ("NTPD", 3, "HR: NTPD says 3, and 4 are given"), ("NWSP", 1, "NWSP: roses of single speed ranges"),
            ("HR", "01,25", "HR: 25 is not between 0 and 24")]:
        refuse(set_key(good, key, value), pattern)
    refuse(good.replace("MROSE = 1", "MROSES = 1"), "MROSES: there is no such key")
    refuse(good.replace("TEMPOLINE.INP", "TEMPOLINE.TXT"), "the first line does not begin with TEMPOLINE.INP")
    refuse("", "c.inp")
    (directory / "c.inp").unlink()
    needs_failure(processor, directory, "c.inp: No such file", status=2)
    assert run(processor, directory).returncode == 2
    assert run(processor, directory, "a", "b").returncode == 2


def case_listing_over_others(processor, directory):
    """A listing with the name of an input, a result or the control file: refused, and nothing is written."""
    surface(directory, good_day())
    (directory / "linked.sfc").symlink_to("a.sfc")
    old_results(directory)
    day_control(directory)
    good = (directory / "c.inp").read_bytes().decode("latin-1")
    broken = good.replace("MROSE = 1", "MROSES = 1")
    for text, name, what in [(good, "a.sfc", "an input of the run"), (broken, "a.sfc", "an input of the run"),
                             (good, "linked.sfc", "an input of the run"), (good, "out.tab", "a result of the run"),
                             (broken, "out.frq", "a result of the run"), (good, "out.tsf", "a result of the run"),
                             (good, "c.inp", "the control file"), (broken, "c.inp", "the control file")]:
        (directory / "c.inp").write_bytes(set_key(text, "TSFLST", name).encode("latin-1"))
        before = {path.name: path.read_bytes() for path in directory.iterdir()}
        done = run(processor, directory, "c.inp")
        pattern = r'^tempoline: c\.inp:\d+: TSFLST: the listing cannot be "%s", which is %s\n$' % (name, what)
        assert done.returncode == 2 and re.search(pattern, done.stderr), (done.returncode, done.stderr)
        assert before == {path.name: path.read_bytes() for path in directory.iterdir()}, names(directory)
    (directory / "TEMPOLINE.LST").write_bytes(b"broken")
    done = run(processor, directory, "TEMPOLINE.LST")
    assert done.returncode == 2 and (directory / "TEMPOLINE.LST").read_bytes() == b"broken", done.stderr


def case_names_taken(processor, directory):
    """A result that cannot take its name ends the run before the data are read, and the others stay as they are."""
    day_control(directory)  # of data that are not there
    good = (directory / "c.inp").read_bytes().decode("latin-1")
    for end in ("frq", "tab", "tsf"):
        old_results(directory)
        (directory / ("out." + end)).unlink()
        (directory / ("out." + end)).mkdir()
        done = run(processor, directory, "c.inp")
        assert done.returncode == 1, done.stderr
        assert done.stderr == "tempoline: out.%s: cannot be written: Is a directory\n" % end, done.stderr
        assert all((directory / ("out." + other)).read_bytes() == OLD for other in ("frq", "tab", "tsf") if other != end)
        (directory / ("out." + end)).rmdir()
    for key, name in (("TSFOUT", "x" * 252), ("TSFLST", "x" * 256), ("TSFLST", "sub")):
        (directory / "sub").mkdir(exist_ok=True)
        (directory / "c.inp").write_bytes(set_key(good, key, name).encode("latin-1"))
        done = run(processor, directory, "c.inp")
        pattern = r"^tempoline: \w+(\.\w+)?: cannot be written: (File name too long|Is a directory)\n$"
        assert done.returncode == 1 and re.search(pattern, done.stderr), done.stderr
    # a run that was killed, with the same number of its process, left a file
    (directory / "c.inp").write_bytes(good.encode("latin-1"))
    surface(directory, good_day())
    old_results(directory)
    command = 'for i in 1 2 3 4 5; do : >.tempoline-$$-$i.tmp; done; exec "$0" c.inp'
    done = subprocess.run(["sh", "-c", command, processor], cwd=directory, capture_output=True, text=True)
    assert done.returncode == 0 and (directory / "out.frq").read_bytes() != OLD, done.stderr
    assert len([name for name in names(directory) if name.endswith(".tmp")]) == 5, names(directory)


# ---- the data ---------------------------------------------------------------------------------------------

def case_bad_data(processor, directory):
    day_control(directory)
    day = good_day()

    def refuse(lines, pattern):
        surface(directory, lines)
        needs_failure(processor, directory, pattern)

    refuse(day[:5] + day[6:8] + day[5:6], r"a\.sfc:9: time: records are out of order")
    refuse(day[:3] + [surface_line(2004, 1, 1, 4, "fast")] + day[4:], r"a\.sfc:5: wind speed: \"fast\" is no number")
    refuse(day[:3] + ["2004 1 1 1 4 -0.1"], r"a\.sfc:5: the line has 6 of at least 18 fields")
    refuse(day[:3] + [surface_line(2004, 13, 1, 4)], r"a\.sfc:5: date: month 13 is not between 1 and 12")
    refuse(day[:3] + [surface_line(2005, 2, 29, 4)], r"a\.sfc:5: date: day 29 is not in month 2 of 2005")
    refuse(day[:3] + [surface_line(2004, 1, 1, 25)], r"a\.sfc:5: hour: hour 25 is not between 0 and 24")
    make_inputs.write(directory / "a.sfc", day)
    needs_failure(processor, directory, r"a\.sfc:1: the header is missing")
    (directory / "a.sfc").unlink()
    needs_failure(processor, directory, r"a\.sfc: No such file")
    (directory / "a.sfc").mkdir()
    needs_failure(processor, directory, r"a\.sfc: Is a directory")
    (directory / "a.sfc").rmdir()
    (directory / "a.sfc").write_bytes(b"")
    needs_failure(processor, directory, r"a\.sfc:1: the file ends where the header should stand")
    # what is missing or stands twice is counted, not refused
    surface(directory, day[:5] + [day[4]] + [surface_line(2004, 1, 1, 6, "NaN", "nan")] + [surface_line(2004, 1, 1, 7, "*****")] + day[7:])
    assert run(processor, directory, "c.inp").returncode == 0
    listing = (directory / LISTING).read_text()
    assert re.search(r"Records read +25\n", listing) and re.search(r"Records missing +2\n", listing), listing
    assert re.search(r"Records repeated +1\n", listing) and "the first repetition is a.sfc:7" in listing, listing
    assert roses_of_frq(directory / "out.frq")["All Periods"][2:] == (24, 22, 0)


def limited(megabytes):
    def limit():
        resource.setrlimit(resource.RLIMIT_AS, (megabytes << 20, megabytes << 20))
    return limit


def case_long_line(processor, directory):
    """A line of 1 GB (a hole in the file) is an error, and the memory for it is not there."""
    day_control(directory)
    for at in (0, 1):
        with open(directory / "a.sfc", "wb") as file:
            file.write(b"" if at == 0 else HEADER.encode() + b"\n")
            file.seek(1 << 30)
            file.write(b"\n")
        old_results(directory)
        done = run(processor, directory, "c.inp", preexec_fn=limited(64))
        assert done.returncode == 1 and "a.sfc:%d: the line is longer than 1048576 bytes" % (at + 1) in done.stderr, done.stderr
        assert (directory / "out.frq").read_bytes() == OLD
    (directory / "a.sfc").unlink()


def case_memory(processor, directory):
    """200 MB through less address space than that, with the gridded reader's thread too."""
    line = surface_line(2004, 1, 1, 1).encode()
    with open(directory / "a.sfc", "wb") as file:
        file.write(HEADER.encode() + b"\n")
        file.write((line + b" " * 199 + b"\n") * (200_000_000 // (len(line) + 200)))
    day_control(directory)
    done = run(processor, directory, "c.inp", preexec_fn=limited(64))
    assert done.returncode == 0, done.stderr
    (directory / "a.sfc").unlink()
    with open(directory / "a.dat", "wb") as file:  # names of stations that nobody asks for
        file.write(b"SURF.DAT 2.1\n0\nx\nUTC-0500\n2004 1 0 0 2004 2 0 0 2001\n00072\n")
        for _ in range(2000):
            file.write(b"x" * 100_000 + b"\n")
    write_control(directory / "c.inp", "surf.inp", ["a.dat"], ONE, [2004, 1, 1, 0, 0, 2004, 1, 2, 0, 0])
    done = run(processor, directory, "c.inp", preexec_fn=limited(64))
    assert done.returncode == 0, done.stderr
    paths = [directory / "a.dat", directory / "b.dat"]
    make_inputs.ventos(paths)
    write_control(directory / "c.inp", "ventos_utm.inp", ["a.dat", "b.dat"], [(1, "out", "", 503, 4503, 10)], YEAR, gridded=True)
    done = run(processor, directory, "c.inp", preexec_fn=limited(256))  # a thread has an arena of its own
    assert done.returncode == 0, done.stderr


def case_outside_period(processor, directory):
    surface(directory, good_day())
    day_control(directory, period=[2010, 1, 1, 0, 0, 2010, 2, 1, 0, 0])
    assert run(processor, directory, "c.inp").returncode == 0
    assert roses_of_frq(directory / "out.frq") == {}
    listing = (directory / LISTING).read_text()
    assert "ALL DATA ARE MISSING" in listing and re.search(r"Records outside +24\n", listing), listing
    # a season without any step of the period is left out; one without valid ones is not
    surface(directory, [surface_line(2004, 2, 29, hour, "999.0") for hour in range(1, 25)])
    day_control(directory, period=[2004, 2, 29, 0, 0, 2004, 3, 1, 0, 0])
    assert run(processor, directory, "c.inp").returncode == 0
    roses = roses_of_frq(directory / "out.frq")
    assert list(roses)[:2] == ["All Periods", "Winter"] and "Spring" not in roses, list(roses)
    assert roses["Winter"][2:] == (24, 0, 0) and roses["Winter"][0][0][0] == "0.0000", roses["Winter"]


def with_hangup():
    signal.signal(signal.SIGHUP, signal.SIG_DFL)  # under nohup it is off, and inherited so


def fifo_run(processor, directory, name, text):
    """A run in the middle of its input."""
    os.mkfifo(directory / name)
    process = subprocess.Popen([processor, "c.inp"], cwd=directory, stderr=subprocess.PIPE, text=True, preexec_fn=with_hangup)
    pipe = open(directory / name, "w")
    pipe.write(text)
    pipe.flush()
    deadline = time.time() + 60
    while not [found for found in names(directory) if found.endswith(".tmp")] and time.time() < deadline:
        time.sleep(0.01)
    return process, pipe


def interrupt(processor, directory, number, name, text):
    old_results(directory)
    process, pipe = fifo_run(processor, directory, name, text)
    assert [found for found in names(directory) if found.endswith(".tmp")], "nothing had begun"
    process.send_signal(number)
    error = process.communicate(timeout=60)[1]
    pipe.close()
    assert process.returncode == 130 and "interrupted" in error, (process.returncode, error)
    for end in ("frq", "tab", "tsf"):
        assert (directory / ("out." + end)).read_bytes() == OLD
    assert not [found for found in names(directory) if found.endswith(".tmp")], names(directory)
    assert (directory / LISTING).read_text().rstrip().endswith("ERROR: interrupted")
    (directory / name).unlink()


def case_interrupted(processor, directory):
    day_control(directory)
    for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
        interrupt(processor, directory, number, "a.sfc", "\n".join([HEADER] + good_day()[:5]) + "\n")
    make_inputs.ventos([directory / "whole.dat", directory / "b.dat"])
    text = (directory / "whole.dat").read_text()[:30_000]
    write_control(directory / "c.inp", "ventos_utm.inp", ["a.dat"], [(1, "out", "", 503, 4503, 10)], YEAR, gridded=True)
    interrupt(processor, directory, signal.SIGINT, "a.dat", text)
    # a fault ends the run although the pipe stays open
    process, pipe = fifo_run(processor, directory, "a.dat", "VENTOS.DAT 2.0\n")
    assert 'version: "2.0" is not 2.1' in process.communicate(timeout=60)[1] and process.returncode == 1
    pipe.close()


def case_interrupted_opening(processor, directory):
    """A pipe that nobody opens for writing, as data and as control file."""
    day_control(directory)
    for name in ("a.sfc", "c.inp"):
        os.mkfifo(directory / (name + ".pipe"))
        os.replace(directory / (name + ".pipe"), directory / name)
        process = subprocess.Popen([processor, "c.inp"], cwd=directory, stderr=subprocess.PIPE, text=True)
        time.sleep(0.5)
        assert process.poll() is None
        process.send_signal(signal.SIGINT)
        error = process.communicate(timeout=60)[1]
        assert process.returncode == 130 and error == "tempoline: interrupted\n", (process.returncode, error)
        assert not [found for found in names(directory) if found.endswith(".tmp")], names(directory)


def case_failed_counts(processor, directory):
    """The listing of a run that failed says what was counted until then."""
    day_control(directory)
    day = good_day()
    surface(directory, day[:5] + [day[4], surface_line(2004, 1, 1, 6, "0.3"), surface_line(2004, 1, 1, 7, "999.0")] +
            [surface_line(2004, 1, 1, 8).replace("10.0 273.8", "20.0 273.8")] + [surface_line(2004, 1, 1, 2)])
    done = run(processor, directory, "c.inp")
    assert done.returncode == 1 and "records are out of order" in done.stderr, done.stderr
    listing = (directory / LISTING).read_text()
    for name, count in (("read", 9), ("used", 7), ("missing", 1), ("outside", 0), ("repeated", 1)):
        assert re.search(r"\n  Records %s +%d\n" % (name, count), listing), listing
    assert re.search(r"of them calm +1\n", listing) and "WARNING: the winds of the file are of 20.0 m" in listing, listing


def case_shrinking_file(processor, directory):
    """Cut while it is read: stopped in the middle, cut, and let go on."""
    day_control(directory)
    line = surface_line(2004, 1, 1, 1)
    count = 400_000
    for cut in (len(HEADER) + 2 + 1000 * (len(line) + 2), len(HEADER) + 2 + 1000 * (len(line) + 2) + 7):
        surface(directory, [line] * count)
        old_results(directory)
        process = subprocess.Popen([processor, "c.inp"], cwd=directory, stderr=subprocess.PIPE, text=True)
        deadline = time.time() + 60
        position = 0
        while position == 0 and time.time() < deadline and process.poll() is None:
            position = read_position(process.pid, directory / "a.sfc")
        process.send_signal(signal.SIGSTOP)
        position = read_position(process.pid, directory / "a.sfc")
        with open(directory / "a.sfc", "r+b") as file:
            file.truncate(cut)
        process.send_signal(signal.SIGCONT)
        error = process.communicate(timeout=60)[1]
        if process.returncode == 0:
            print("the file had been read whole before it was cut")
            return SKIPPED
        assert 0 < position and process.returncode == 1, (position, process.returncode, error)
        assert re.search(r"a\.sfc: the file became shorter while it was read|a\.sfc:\d+: ", error), error
        assert (directory / "out.frq").read_bytes() == OLD
        assert not [name for name in names(directory) if name.endswith(".tmp")]
    return 0


def read_position(pid, path):
    """How far a process has read a file; 0 where it has not opened it."""
    try:
        for entry in os.scandir("/proc/%d/fd" % pid):
            if os.readlink(entry.path) == str(path):
                with open("/proc/%d/fdinfo/%s" % (pid, entry.name)) as file:
                    return int(file.readline().split()[1])
    except FileNotFoundError:
        pass
    return 0


def case_full_disk(processor, directory):
    """No more than so many bytes go into a file: what does not fit is an error, at whatever point it comes."""
    surface(directory, [surface_line(2004, 1 + day // 29, 1 + day % 29, hour) for day in range(58) for hour in range(1, 25)])
    for limit in (1000, 40_000):
        day_control(directory, period=[2004, 1, 1, 0, 0, 2004, 2, 29, 0, 0])
        old_results(directory)
        done = run(processor, directory, "c.inp", preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (limit, limit)))
        assert done.returncode == 1 and re.search(r"out\.tsf: cannot be written: File too large", done.stderr), done.stderr
        for end in ("frq", "tab", "tsf"):
            assert (directory / ("out." + end)).read_bytes() == OLD
        assert not [name for name in names(directory) if name.endswith(".tmp")]
    assert run(processor, directory, "c.inp").returncode == 0  # and with room it is made
    assert roses_of_frq(directory / "out.frq")["All Periods"][2] == 59 * 24


# ---- joined runs ------------------------------------------------------------------------------------------

def parts_of_year(directory, bounds):
    """A control file for each part of the year; their names."""
    make_inputs.aermet_surface(directory / "a.sfc")
    controls = []
    for number, (begin, end) in enumerate(zip(bounds, bounds[1:])):
        text = control_text("aermsfc.inp", ["a.sfc"], [(1, "part%d" % number, "00072", 0, 0, 10)], begin + end,
                            keys={"TSFLST": "part%d.lst" % number})
        (directory / ("part%d.inp" % number)).write_bytes(text.encode("latin-1"))
        controls.append("part%d.inp" % number)
    write_control(directory / "whole.inp", "aermsfc.inp", ["a.sfc"], [(1, "whole", "00072", 0, 0, 10)], YEAR)
    return controls


BOUNDS = [[2004, 1, 1, 0, 0], [2004, 2, 29, 7, 0], [2004, 7, 1, 0, 0], [2005, 1, 1, 0, 0]]


def same_results(directory, joined, whole):
    assert roses_of_frq(directory / (joined + ".frq")) == roses_of_frq(directory / (whole + ".frq"))
    assert roses_of_tab(directory / (joined + ".tab")) == roses_of_tab(directory / (whole + ".tab"))
    period = lambda name: (directory / (name + ".frq")).read_text().splitlines()[8]
    assert period(joined) == period(whole)


def case_merged(processor, directory):
    for control in parts_of_year(directory, BOUNDS) + ["whole.inp"]:
        assert run(processor, directory, control).returncode == 0
    done = run(processor, directory, "--merge", "part2.tab", "part0.tab", "part1.tab")
    assert done.returncode == 0, done.stderr
    same_results(directory, "merged", "whole")
    # joined results can be joined again
    assert run(processor, directory, "--merge", "--out", "two", "part0.tab", "part1.tab").returncode == 0
    assert run(processor, directory, "--merge", "--out", "three", "two.tab", "part2.tab").returncode == 0
    same_results(directory, "three", "whole")
    for arguments, pattern in [
            (["part0.tab", "whole.tab"], "the same winds would be counted twice"), (["part0.tab", "part0.tab"], "counted twice"),
            (["part0.tab", "part0.frq"], r"part0\.frq:1: the first line is not that of a TAB file"),
            (["part0.tab", "none.tab"], r"none\.tab: No such file")]:
        done = run(processor, directory, "--merge", "--out", "none", *arguments)
        assert done.returncode == 1 and re.search(pattern, done.stderr), done.stderr
        assert not (directory / "none.frq").exists() and not (directory / "none.tab").exists()
    assert run(processor, directory, "--merge").returncode == 2


def case_huge_tab(processor, directory):
    """3 GB (a hole) where a TAB file should be: told, and the memory for it is not there."""
    for head in (b"", b"WIND.TAB        1.0             Zephyrgraph counts of winds\r\n"):
        with open(directory / "big.tab", "wb") as file:
            file.write(head)
            file.truncate(3 << 30)
        done = run(processor, directory, "--merge", "big.tab", preexec_fn=limited(250))
        assert done.returncode == 1 and done.stderr == "tempoline: big.tab: this is too long for a TAB file\n", done.stderr
    assert names(directory) == ["big.tab"], names(directory)
    # with less memory than that it is still told
    done = run(processor, directory, "--merge", "big.tab", preexec_fn=limited(40))
    assert done.returncode == 1 and done.stderr == "tempoline: there is not enough memory\n", (done.returncode, done.stderr)
    (directory / "big.tab").unlink()


def example_environment(processor):
    return {**os.environ, "TEMPOLINE": processor}


def parallel_script(directory, processor, *controls, path=None):
    environment = example_environment(processor)
    if path is not None:
        environment["PATH"] = str(path)
    return subprocess.run(["bash", ROOT / "data" / "cluster" / "parallel.sh", "joined", *controls],
                          cwd=directory, capture_output=True, text=True, env=environment)


def path_without_parallel(directory):
    """A directory with the programs that the fallback needs."""
    programs = directory / "programs"
    programs.mkdir()
    for name in ("bash", "sh", "sed", "xargs", "nproc"):
        (programs / name).symlink_to(shutil.which(name))
    return programs


def check_parallel(processor, directory, path):
    controls = parts_of_year(directory, BOUNDS)
    assert run(processor, directory, "whole.inp").returncode == 0
    done = parallel_script(directory, processor, *controls, path=path)
    assert done.returncode == 0, done.stderr
    same_results(directory, "joined", "whole")
    # roses of a series have another key
    text = control_text("tsf.inp", ["whole.tsf"], [], YEAR, keys={"ROSEPLT": "again", "TSFLST": "again.lst"})
    (directory / "again.inp").write_bytes(text.encode("latin-1"))
    done = parallel_script(directory, processor, "again.inp", path=path)
    assert done.returncode == 0, done.stderr
    assert roses_of_tab(directory / "joined.tab") == roses_of_tab(directory / "again.tab")
    # a run that fails ends all, and those that have not begun never do
    (directory / "joined.frq").unlink()
    last = ["last%d.inp" % number for number in range(40)]
    for control in last:
        text = (directory / "part0.inp").read_bytes().decode("latin-1")
        (directory / control).write_bytes(set_key(text, "TSFLST", control[:-4] + ".lst").encode("latin-1"))
    (directory / "broken.inp").write_bytes(b"broken\n\n! TSFOUT = broken !\n")
    done = parallel_script(directory, processor, "broken.inp", *last, path=path)
    assert done.returncode != 0 and not (directory / "joined.frq").exists(), done.stderr
    assert len(list(directory.glob("last*.lst"))) < 20, names(directory)
    (directory / "broken.inp").write_bytes(b"broken")
    done = parallel_script(directory, processor, "part0.inp", "broken.inp", path=path)
    assert done.returncode == 1 and done.stderr.startswith("broken.inp: there is no TSFOUT"), done.stderr


def case_parallel(processor, directory):
    """The documented example: data/cluster/parallel.sh."""
    if shutil.which("parallel") is None:
        print("GNU parallel is not installed")
        return SKIPPED
    return check_parallel(processor, directory, None)


def case_parallel_xargs(processor, directory):
    """The same where there is no GNU parallel."""
    check_parallel(processor, directory, path_without_parallel(directory))


def case_slurm(processor, directory):
    """The array file of the documentation, its tasks started as the scheduler would start them."""
    controls = parts_of_year(directory, BOUNDS)
    (directory / "controls.txt").write_text("".join(name + "\n" for name in controls))
    assert run(processor, directory, "whole.inp").returncode == 0
    script = ROOT / "data" / "cluster" / "array.sbatch"
    tasks = [subprocess.Popen(["bash", script], cwd=directory, env={**example_environment(processor), "SLURM_ARRAY_TASK_ID": str(number)})
             for number in range(1, len(controls) + 1)]
    assert [task.wait(60) for task in tasks] == [0] * len(tasks)
    assert run(processor, directory, "--merge", "--out", "joined", "part0.tab", "part1.tab", "part2.tab").returncode == 0
    same_results(directory, "joined", "whole")


CASES = {name[5:]: function for name, function in list(globals().items()) if name.startswith("case_")}


def main():
    processor, work = str(Path(sys.argv[1]).resolve()), Path(sys.argv[2]).resolve()
    status = 0
    for name in sys.argv[3:] or CASES:
        directory = work / name
        shutil.rmtree(directory, ignore_errors=True)
        directory.mkdir(parents=True)
        status = CASES[name](processor, directory) or status
        print("%s: as it should be" % name)
        shutil.rmtree(directory)
    return status


if __name__ == "__main__":
    sys.exit(main())
