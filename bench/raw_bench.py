#!/usr/bin/env python3
"""Station-years of AERMET to pictures: files per second with one and two jobs, memory, and one file with a cold start.

raw_bench.py COMPANION [FILES]     the sample's year with other years, 100 files by default
"""
import os
import resource
import subprocess
import sys
import tempfile
import time
from pathlib import Path

SAMPLE = Path(__file__).resolve().parent.parent / "data" / "samples" / "LOVETT.SFC"


def make_years(directory, count):
    """The sample's hours under other years; leap days go where the year has none."""
    lines = SAMPLE.read_text(encoding="latin-1").splitlines()
    paths = []
    for number in range(count):
        year = 1950 + number % 70
        leap = year % 4 == 0
        hours = [lines[0]]
        for line in lines[1:]:
            fields = line.split()
            if leap or fields[1:3] != ["2", "29"]:
                hours.append("%02d" % (year % 100) + line[2:] if line[:2].strip() == fields[0] else
                             line.replace(fields[0], "%02d" % (year % 100), 1))
        path = Path(directory) / ("station%03d.sfc" % number)
        path.write_text("\n".join(hours) + "\n", encoding="latin-1")
        paths.append(str(path))
    return paths


def run(words, out):
    """Seconds of the clock and largest memory of the program and of its processors (MB)."""
    begin = time.monotonic()
    process = subprocess.Popen([*words, "--out", out, "--quiet"], stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
    _, status, usage = os.wait4(process.pid, 0)
    seconds = time.monotonic() - begin
    assert status == 0, process.stderr.read().decode()
    return seconds, usage.ru_maxrss / 1024


def main():
    companion = sys.argv[1]
    count = int(sys.argv[2]) if len(sys.argv) > 2 else 100
    with tempfile.TemporaryDirectory() as directory:
        paths = make_years(directory, count)
        rates = {}
        for jobs in (1, 2):
            best = min(run([companion, *paths, "--rose", "1", "--jobs", str(jobs)], directory + "/out") for _ in range(3))
            rates[jobs] = count / best[0]
            print("%d jobs: %.1f files a second, %.0f MB" % (jobs, rates[jobs], best[1]))
        print("two jobs are %.2f times one" % (rates[2] / rates[1]))
        cold = sorted(run([companion, paths[0], "--rose", "1"], directory + "/one")[0] for _ in range(10))
        print("one file with a start of its own: %.3f s (median of 10), best %.3f s" % (cold[5], cold[0]))
        print("largest memory of any of them: %.0f MB" % (resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss / 1024))


if __name__ == "__main__":
    main()
