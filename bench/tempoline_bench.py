#!/usr/bin/env python3
"""How fast the processor reads, compared with `wc -lw` on the same file in the same run, and how much memory it takes.

tempoline_bench.py PROCESSOR [MEGABYTES]     the best of three; run it on a quiet machine
The surface file is read on one core, the gridded file on one and on two.
"""
import os
import subprocess
import sys
import tempfile
import time
from datetime import datetime, timedelta
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "tests" / "tempoline"))
from control_files import write_control  # noqa: E402

SAMPLE = Path(__file__).resolve().parent.parent / "data" / "samples" / "LOVETT.SFC"
REPEATS = 3


def make_surface(path, size):
    """The hours of the sample with other dates, year after year; returns the number of years."""
    lines = SAMPLE.read_bytes().decode("ascii").split("\r\n")
    header, hours = lines[0], [line for line in lines[1:] if line]
    hours = [line for line in hours if line.split()[1:3] != ["2", "29"]]
    tails = [line[2:] for line in hours]
    year = 1000
    with open(path, "w", newline="") as file:
        file.write(header + "\r\n")
        while file.tell() < size:
            file.write("".join("%d%s\r\n" % (year, tail) for tail in tails))
            year += 1
    return year


def make_winds(path, size):
    """Fields of 60 x 60 cells on four levels."""
    moment = datetime(2004, 1, 1)
    row = " ".join("%.2f" % (0.1 * i - 3) for i in range(60)) + "\n"
    fields = row * (60 * 4 * 2)
    steps = size // len(fields) + 1
    end = moment + steps * timedelta(hours=1)
    with open(path, "w", newline="") as file:
        file.write("VENTOS.DAT 2.1 x\n0\n2004 1 1 0 0 %d %d %d %d 0 UTC+0000 3600\n" % (end.year, end.month, end.day, end.hour))
        file.write("UTM NAR-C S 18 0 0 0 0 0 0\n60 60 4 500 4500 1\n0 20 60 120 240\n")
        for _ in range(steps):
            file.write("%d %d %d %d 0\n" % (moment.year, moment.month, moment.day, moment.hour) + fields)
            moment += timedelta(hours=1)
    return end


def measured(command, directory, cores):
    """Best wall-clock seconds, processor seconds, and peak memory in MB."""
    best, cpu, memory = None, 0, 0
    for _ in range(REPEATS):
        begin = time.perf_counter()
        process = subprocess.Popen(command, cwd=directory, stdout=subprocess.DEVNULL,
                                   preexec_fn=lambda: os.sched_setaffinity(0, cores))
        _, status, usage = os.wait4(process.pid, 0)
        seconds = time.perf_counter() - begin
        if status != 0:
            sys.exit("%s failed" % command)
        if best is None or seconds < best:
            best, cpu = seconds, usage.ru_utime + usage.ru_stime
        memory = max(memory, usage.ru_maxrss / 1024)
    return best, cpu, memory


def report(what, size, numbers):
    print("%-34s %7.0f MB/s   %6.2f s   %6.2f s of processor   %5.1f MB of memory" %
          (what, size / 1e6 / numbers[0], numbers[0], numbers[1], numbers[2]))


def main():
    processor = str(Path(sys.argv[1]).resolve())
    size = int(float(sys.argv[2]) * 1e6) if len(sys.argv) > 2 else 400_000_000
    cores = sorted(os.sched_getaffinity(0))
    one, two = set(cores[:1]), set(cores[:2])
    with tempfile.TemporaryDirectory() as name:
        directory = Path(name)
        year = make_surface(directory / "a.sfc", size)
        write_control(directory / "a.inp", "aermsfc.inp", ["a.sfc"], [(1, "out", "1", 0, 0, 10)],
                      [1000, 1, 1, 0, 0, year, 1, 1, 0, 0])
        real = (directory / "a.sfc").stat().st_size
        print("surface data, %.0f MB" % (real / 1e6))
        report("wc -lw, one core", real, measured(["wc", "-lw", "a.sfc"], directory, one))
        report("tempoline.exe, one core", real, measured([processor, "a.inp"], directory, one))
        (directory / "a.sfc").unlink()
        end = make_winds(directory / "a.dat", size)
        write_control(directory / "b.inp", "ventos_utm.inp", ["a.dat"],
                      [(i + 1, "g%d" % i, "", 510.3 + i, 4520.7 + i, 30) for i in range(30)],
                      [2004, 1, 1, 0, 0, end.year, end.month, end.day, end.hour, 0], zone="UTC+0000", gridded=True, keys={"METSIM": 1})
        real = (directory / "a.dat").stat().st_size
        print("gridded data, 30 places, %.0f MB" % (real / 1e6))
        report("wc -lw, one core", real, measured(["wc", "-lw", "a.dat"], directory, one))
        report("tempoline.exe, one core", real, measured([processor, "b.inp"], directory, one))
        if len(two) > 1:
            report("tempoline.exe, two cores", real, measured([processor, "b.inp"], directory, two))


if __name__ == "__main__":
    main()
