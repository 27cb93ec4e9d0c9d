#!/usr/bin/env python3
"""Makes the invented raw samples: the same two months of a valley wind in every format that the processor reads.

python3 tools/make_raw_samples.py [data/samples]
"""
import math
import pathlib
import random
import sys
from datetime import datetime, timedelta

FIRST = datetime(2023, 12, 1)
HOURS = 24 * 62
HOUR = timedelta(hours=1)


def valley(generator, moment, height=10.0):
    """Up the valley by day, down it by night, stronger aloft: speed in m/s and direction in degrees."""
    day = math.sin((moment.hour - 9) / 24 * 2 * math.pi)
    axis = 200 if day > 0 else 20
    direction = (generator.gauss(axis, 25)) % 360
    speed = generator.weibullvariate(2.2 + 1.5 * abs(day), 1.9) * (height / 10) ** 0.2
    return min(speed, 30.0), round(direction, 0) % 360


def write(path, lines):
    path.write_bytes("".join(line + "\r\n" for line in lines).encode("ascii"))


def hours(count=HOURS):
    return [FIRST + i * HOUR for i in range(count)]


def surf(path):
    generator = random.Random(1)
    lines = ["SURF.DAT        2.1             Hour Start and End Times with Seconds", "1", "Made-up valley winds", "NONE",
             "UTC-0500", "2023 335 0 0 2024 32 0 0 2", "10011", "10012"]
    for moment in hours():
        end = moment + HOUR
        stamps = [f"{m.year} {m.timetuple().tm_yday:3d} {m.hour:2d} 0" for m in (moment, end)]
        lines.append("  ".join(stamps))
        for _ in range(2):
            speed, direction = valley(generator, moment)
            if generator.random() < 0.01:
                speed = direction = 9999.0
            lines.append(f"  {speed:8.3f} {direction:8.1f}   99  5 280.150  70 1010.000  0")
    write(path, lines)


def up(path):
    generator = random.Random(2)
    lines = ["UP.DAT          2.1             Hour Start and End Times with Seconds", "1", "Made-up valley winds", "NONE",
             "UTC+0000", "2023 335 0 0 2024 32 0 0", " 500. 2 2", "6201 00004417"]
    for moment in hours()[::12]:
        end = moment + HOUR
        stamps = [f"{m.year} {m.month:2d} {m.day:2d} {m.hour:2d} 0" for m in (moment, end)]
        lines.append(f"   6201      4417  {'  '.join(stamps)}   40    6")
        levels = []
        for height in (0, 50, 150, 400, 900, 1800):
            speed, direction = valley(generator, moment, 10.0 + height)
            levels.append(f"{1000 - height / 9:.1f},{200 + height:.0f}.,{288 - height / 150:.1f},{direction:.0f},{speed:.1f}")
        lines += ["   " + "   ".join(levels[:4]), "   " + "   ".join(levels[4:])]
    write(path, lines)


def monitor(path):
    """One station after the other, the code in the third column: the dialog lists a station each time its code changes."""
    generator = random.Random(3)
    lines = ["DATETIME,DATAAVID,STNCODE,WDIR,WSPD,TEMP"]
    for station, height in (("valley", 10.0), ("ridge", 60.0)):
        for moment in hours():
            end = moment + HOUR
            speed, direction = valley(generator, moment, height)
            values = f"{direction:.0f},{speed:.1f}" if generator.random() > 0.01 else ","
            lines.append(f"{end.month}/{end.day}/{end.year} {end.hour}:{end.minute:02d},60,{station},{values},7.5")
    write(path, lines)


def series(path):
    generator = random.Random(4)
    lines = ["TIMESERIES.TSF  1.3             Made-up valley winds", "1 - Comment lines", "made up", "Valley",
             "MET - meteorological data", "Station: STATION ID = 10011", "UTC-0500", "GREGORIAN_YMD",
             "2023 12 1 0 0 2024 2 1 0 0 3600", "2 - Variables", "WDIR  DEG  10.0", "WSPEED  M/S  10.0"]
    for moment in hours():
        end = moment + HOUR
        speed, direction = valley(generator, moment)
        stamps = [f"{m.year} {m.month} {m.day} {m.hour} 0" for m in (moment, end)]
        lines.append(f"{' '.join(stamps)} {direction:.0f} {speed:.2f}")
    write(path, lines)


def model(path, days=7):
    generator = random.Random(5)
    count = 24 * days
    cells = [(i, j) for j in range(1, 4) for i in range(1, 4)]
    lines = ["3D.DAT          2.1             Made-up valley winds", "1", "made up", "1 1 1 0 0 0",
             "LCC 40.0 -97.0 30.0 60.0 -18.0 -18.0 12.0 3 3 3", "0 0 0 0", f"2023120100 {count} 3 3 3",
             "1 1 3 3 1 3 -97.3 -96.7 39.8 40.2", "0.998", "0.990", "0.970"]
    lines += [f"{i} {j} {40 + 0.108 * (j - 2):.4f} {-97 + 0.141 * (i - 2):.4f} {200 + 20 * i} 7" for i, j in cells]
    for moment in hours(count):
        for i, j in cells:
            speed, direction = valley(generator, moment)
            lines.append(f"{moment:%Y%m%d%H} {i} {j} 1010.0 0.00 0 0.0 250.0 280.1 4.2 {direction:.0f} {speed:.2f} 280.0")
            for height in (15.0, 80.0, 250.0):
                speed, direction = valley(generator, moment, height)
                lines.append(f"  {1010 - height / 9:.1f} {height:.1f} 280.0 {direction:.0f} {speed:.2f} 0.0 70 4.0")
    write(path, lines)


def field(path, days=7):
    generator = random.Random(6)
    count = 24 * days
    stamp = "{0.year} {0.month} {0.day} {0.hour} 0".format
    lines = ["VENTOS.DAT      2.1             Made-up valley winds", "1", "made up",
             f"{stamp(FIRST)}  {stamp(FIRST + count * HOUR)}  UTC-0500  3600",
             "UTM WGS-84 N 18 0.0 0.0 NONE NONE NONE NONE", "5 4 3 580.0 4510.0 2.0", "0. 20. 80. 200."]
    for moment in hours(count):
        lines.append(stamp(moment))
        for height in (10.0, 50.0, 140.0):
            winds = [valley(generator, moment, height) for _ in range(20)]
            parts = [[-speed * f(math.radians(direction)) for speed, direction in winds] for f in (math.sin, math.cos)]
            for part in parts:
                lines += [" ".join(f"{value:.2f}" for value in part[at:at + 5]) for at in range(0, 20, 5)]
    write(path, lines)


def main():
    target = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).parent.parent / "data/samples")
    surf(target / "valley_surf.dat")
    up(target / "valley_up.dat")
    monitor(target / "valley_monitor.csv")
    series(target / "valley_series.tsf")
    model(target / "valley_model.m3d")
    field(target / "valley_ventos.dat")


main()
