#!/usr/bin/env python3
"""Hostile use of the programs: kills, damaged files, odd names, full disks, little memory. About two minutes on two cores.

attack_all.py BIN_DIRECTORY [--sanitized BIN_DIRECTORY] [--seed TEXT] [--only processor|companion|desktop] [--keep DIRECTORY]

No attack may crash or hang a program, lose a result, leave half a one, let an older one pass for that of a failed run, or make a file that
nobody asked for. The same seed makes the same attacks; each fault is named with the number of its case. The processor of --sanitized reads
the damaged files.
"""
import argparse
import os
import pathlib
import shutil
import sys
import tempfile
import time

from attack import Book, Place
from on_companion import Companion
from on_desktop import Desktop
from on_processor import Processor

KILLS = 60
MUTATIONS = 500
STARTS = 14


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("programs", type=pathlib.Path)
    parser.add_argument("--sanitized", type=pathlib.Path)
    parser.add_argument("--seed", default="1")
    parser.add_argument("--only", choices=["processor", "companion", "desktop"])
    parser.add_argument("--keep", type=pathlib.Path)
    options = parser.parse_args()
    programs = options.programs.resolve()
    root = options.keep or pathlib.Path(tempfile.mkdtemp(prefix="hostile-"))
    begin = time.monotonic()
    book = Book()
    try:
        if options.only in (None, "processor"):
            damaged = (options.sanitized or programs).resolve() / "tempoline.exe"
            Processor(programs / "tempoline.exe", damaged, Place(root / "processor"), options.seed).carry_out(book, KILLS, MUTATIONS * 7 // 10)
        if options.only in (None, "companion"):
            Companion(programs / "zephyrgraph-export", Place(root / "companion"), options.seed).carry_out(book, KILLS, MUTATIONS * 3 // 10)
        if options.only in (None, "desktop"):
            Desktop(programs, Place(root / "desktop"), options.seed).carry_out(book, STARTS)
    finally:
        if not options.keep:
            shutil.rmtree(os.fsencode(root), ignore_errors=True)
    status = book.report()
    print("%.0f seconds" % (time.monotonic() - begin))
    return status


if __name__ == "__main__":
    sys.exit(main())
