#!/usr/bin/env python3
"""Makes an icon for Windows of an SVG picture:  tools/make_icon.py PICTURE.svg ICON.ico   Needs rsvg-convert."""
import struct
import subprocess
import sys

SIZES = (16, 20, 24, 32, 40, 48, 64, 256)


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    pictures = [subprocess.run(["rsvg-convert", "-w", str(size), "-h", str(size), sys.argv[1]], check=True, capture_output=True).stdout
                for size in SIZES]
    place = 6 + 16 * len(SIZES)
    index = struct.pack("<HHH", 0, 1, len(SIZES))
    for size, picture in zip(SIZES, pictures):
        side = size % 256  # 0 means 256
        index += struct.pack("<BBBBHHII", side, side, 0, 0, 1, 32, len(picture), place)
        place += len(picture)
    with open(sys.argv[2], "wb") as icon:
        icon.write(index + b"".join(pictures))


main()
