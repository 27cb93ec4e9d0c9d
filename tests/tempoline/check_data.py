#!/usr/bin/env python3
"""The processor and its data: bad data, interrupts, a full disk, little memory.

check_data.py PROCESSOR WORK_DIRECTORY [CASE ...]
"""
import os
import re
import resource
import signal
import socket
import subprocess
import sys
import time

import make_inputs
from check_roses import LISTING, ONE, YEAR, roses_of_frq
from control_files import write_control
from run_support import (HEADER, SKIPPED, day_control, good_day, limited, main, names, needs_aside, needs_failure, old_results, run, surface,
                         surface_line, temporaries)


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
    needs_failure(processor, directory, r"a\.sfc:1: the file ends where the header should be")
    # missing or repeated values are counted, not refused
    surface(directory, day[:5] + [day[4]] + [surface_line(2004, 1, 1, 6, "NaN", "nan")] + [surface_line(2004, 1, 1, 7, "*****")] + day[7:])
    assert run(processor, directory, "c.inp").returncode == 0
    listing = (directory / LISTING).read_text()
    assert re.search(r"Records read +25\n", listing) and re.search(r"Records missing +2\n", listing), listing
    assert re.search(r"Records repeated +1\n", listing) and "the first repetition is a.sfc:7" in listing, listing
    assert roses_of_frq(directory / "out.frq")["All Periods"][2:] == (24, 22, 0)


def case_long_line(processor, directory):
    """A line of 1 GB (a hole in the file) is an error, although there is no memory for it."""
    day_control(directory)
    for at in (0, 1):
        with open(directory / "a.sfc", "wb") as file:
            file.write(b"" if at == 0 else HEADER.encode() + b"\n")
            file.seek(1 << 30)
            file.write(b"\n")
        old_results(directory)
        done = run(processor, directory, "c.inp", preexec_fn=limited(64))
        assert done.returncode == 1 and "a.sfc:%d: the line is longer than 1048576 bytes" % (at + 1) in done.stderr, done.stderr
        needs_aside(directory)
    (directory / "a.sfc").unlink()


def case_memory(processor, directory):
    """200 MB in less address space than that, also with the gridded reader's thread."""
    line = surface_line(2004, 1, 1, 1).encode()
    with open(directory / "a.sfc", "wb") as file:
        file.write(HEADER.encode() + b"\n")
        file.write((line + b" " * 199 + b"\n") * (200_000_000 // (len(line) + 200)))
    day_control(directory)
    done = run(processor, directory, "c.inp", preexec_fn=limited(64))
    assert done.returncode == 0, done.stderr
    (directory / "a.sfc").unlink()
    with open(directory / "a.dat", "wb") as file:  # stations that are not requested
        file.write(b"SURF.DAT 2.1\n0\nx\nUTC-0500\n2004 1 0 0 2004 2 0 0 2001\n00072\n")
        for _ in range(2000):
            file.write(b"x" * 100_000 + b"\n")
    write_control(directory / "c.inp", "surf.inp", ["a.dat"], ONE, [2004, 1, 1, 0, 0, 2004, 1, 2, 0, 0])
    done = run(processor, directory, "c.inp", preexec_fn=limited(64))
    assert done.returncode == 0, done.stderr
    paths = [directory / "a.dat", directory / "b.dat"]
    make_inputs.ventos(paths)
    write_control(directory / "c.inp", "ventos_utm.inp", ["a.dat", "b.dat"], [(1, "out", "", 503, 4503, 10)], YEAR, gridded=True)
    done = run(processor, directory, "c.inp", preexec_fn=limited(256))  # each thread has its own arena
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
    signal.signal(signal.SIGHUP, signal.SIG_DFL)  # nohup ignores it, and this process may have inherited that


def has_begun(directory):
    found = names(directory)
    return LISTING in found and any(name.endswith(".tmp") for name in found)


def fifo_run(processor, directory, name, text):
    """A run in the middle of its input: its listing and its results have been started."""
    (directory / LISTING).unlink(missing_ok=True)
    os.mkfifo(directory / name)
    process = subprocess.Popen([processor, "c.inp"], cwd=directory, stderr=subprocess.PIPE, text=True, preexec_fn=with_hangup)
    pipe = open(directory / name, "w")
    pipe.write(text)
    pipe.flush()
    deadline = time.time() + 60
    while not has_begun(directory) and time.time() < deadline:
        time.sleep(0.01)
    return process, pipe


def interrupt(processor, directory, number, name, text):
    old_results(directory)
    process, pipe = fifo_run(processor, directory, name, text)
    assert has_begun(directory), "nothing had begun"
    process.send_signal(number)
    error = process.communicate(timeout=60)[1]
    pipe.close()
    assert process.returncode == 130 and "interrupted" in error, (process.returncode, error)
    needs_aside(directory)
    assert not temporaries(directory), names(directory)
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
    # an error ends the run although the pipe stays open
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
        assert not temporaries(directory), names(directory)


def case_killed(processor, directory):
    """The next run removes what killed runs left, but not the files of live runs or other machines."""
    day_control(directory)
    text = "\n".join([HEADER] + good_day()[:5]) + "\n"
    for _ in range(3):
        process, pipe = fifo_run(processor, directory, "a.sfc", text)
        process.kill()
        process.wait(timeout=60)
        pipe.close()
        (directory / "a.sfc").unlink()
    assert temporaries(directory), "nothing was left to remove"
    last = (directory / LISTING).read_text().rstrip().splitlines()[-1]
    assert last == "ERROR: the run goes on, or was ended from outside", last
    strangers = [".tempoline-elsewhere-12-1.lock", ".tempoline-elsewhere-12-1-1.tmp"]
    for name in strangers:
        (directory / name).write_bytes(b"")
    living, pipe = fifo_run(processor, directory, "a.sfc", text)
    own = strangers + [".tempoline-%s-%d-1%s" % (socket.gethostname(), living.pid, end)
                                          for end in (".lock", "-2.tmp", "-3.tmp", "-4.tmp")]
    deadline = time.time() + 60
    while temporaries(directory) != sorted(own) and time.time() < deadline:
        time.sleep(0.01)
    assert temporaries(directory) == sorted(own), names(directory)
    surface(directory, good_day(), "b.sfc")
    other = (directory / "c.inp").read_bytes().replace(b"a.sfc", b"b.sfc").replace(b"= out !", b"= other !")
    (directory / "d.inp").write_bytes(other.replace(LISTING.encode(), b"d.lst"))
    done = run(processor, directory, "d.inp")
    assert done.returncode == 0 and temporaries(directory) == sorted(own), (done.stderr, names(directory))
    listing = (directory / "d.lst").read_text()
    assert "WARNING: of runs that may go on elsewhere there are .tempoline-elsewhere-12-1* (2 files)\n" in listing, listing
    pipe.close()
    assert living.wait(timeout=60) == 0 and temporaries(directory) == sorted(strangers), names(directory)


def case_failed_counts(processor, directory):
    """The listing of a failed run reports what was counted until then."""
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
    """Truncated while it is read: stopped in the middle, truncated, and continued."""
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
        needs_aside(directory)
        assert not temporaries(directory), names(directory)
    return 0


def read_position(pid, path):
    """How far a process has read a file; 0 if it has not opened it."""
    try:
        for entry in os.scandir("/proc/%d/fd" % pid):
            if os.readlink(entry.path) == str(path):
                with open("/proc/%d/fdinfo/%s" % (pid, entry.name)) as file:
                    return int(file.readline().split()[1])
    except FileNotFoundError:
        pass
    return 0


def case_full_disk(processor, directory):
    """A file size limit: exceeding it is an error, wherever it happens."""
    surface(directory, [surface_line(2004, 1 + day // 29, 1 + day % 29, hour) for day in range(58) for hour in range(1, 25)])
    for limit in (1000, 40_000):
        day_control(directory, period=[2004, 1, 1, 0, 0, 2004, 2, 29, 0, 0])
        old_results(directory)
        done = run(processor, directory, "c.inp", preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (limit, limit)))
        assert done.returncode == 1 and re.search(r"out\.tsf: cannot be written: File too large", done.stderr), done.stderr
        needs_aside(directory)
        assert not temporaries(directory), names(directory)
    assert run(processor, directory, "c.inp").returncode == 0  # and with enough room it succeeds
    assert roses_of_frq(directory / "out.frq")["All Periods"][2] == 59 * 24


if __name__ == "__main__":
    sys.exit(main(globals()))
