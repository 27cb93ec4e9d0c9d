#!/usr/bin/env python3
"""What results and listing mean: north, place, hour and height are what a user takes them for.

check_meaning.py PROCESSOR WORK_DIRECTORY [CASE ...]
"""
import math
import re
import sys
from datetime import datetime, timedelta

import make_inputs
from check_roses import LISTING, ONE, roses_of_frq, roses_of_tab
from control_files import control_text, write_control
from run_support import day_control, good_day, main, needs_failure, run, surface

DAY = [2004, 1, 1, 0, 0, 2004, 1, 2, 0, 0]
HOUR = timedelta(hours=1)


def completes(processor, directory):
    """Standard error and the listing of a run that succeeds."""
    done = run(processor, directory, "c.inp")
    assert done.returncode == 0, done.stderr
    return done.stderr, (directory / LISTING).read_text(encoding="latin-1")


def ventos(path, projection, grid, rows, hours=24, promised=24):
    """One level at 10 m; rows: the lines of u and of v for every hour."""
    last = datetime(2004, 1, 1) + promised * HOUR
    lines = ["VENTOS.DAT 2.1", "0", "2004 1 1 0 0 %d %d %d %d 0 UTC+0000 3600" % (last.year, last.month, last.day, last.hour),
             projection, grid, "0 20"]
    for hour in range(hours):
        lines += ["2004 1 1 %d 0" % hour] + rows
    make_inputs.write(path, lines)


def ventos_control(directory, x, y, height=10, **keys):
    write_control(directory / "c.inp", "ventos_utm.inp", ["a.dat"], [(1, "out", "", x, y, height)], DAY, zone="UTC+0000",
                  gridded=True, keys={"METSIM": 2, **keys})


def sectors(directory, name="out"):
    """The sectors with winds, and their number of steps."""
    rows = roses_of_tab(directory / (name + ".tab"))["All Periods"][0]
    labels = ["N", "NNE", "NE", "ENE", "E", "ESE", "SE", "SSE", "S", "SSW", "SW", "WSW", "W", "WNW", "NW", "NNW"]
    return {label: sum(row) for label, row in zip(labels, rows) if sum(row) > 0}


def case_true_north(processor, directory):
    """Twenty-one degrees east of its meridian a conical grid is rotated by more than half a sector."""
    half = lambda latitude: math.tan(math.radians(45 + latitude / 2))
    n = math.log(math.cos(math.radians(33)) / math.cos(math.radians(47))) / math.log(half(47) / half(33))
    rho = lambda latitude: 6370 * math.cos(math.radians(33)) * (half(33) / half(latitude)) ** n / n
    turn = 21 * n
    x, y = rho(40) * math.sin(math.radians(turn)), rho(40) * (1 - math.cos(math.radians(turn)))
    keys = {"PMAP": "LCC", "DATUM": "NWS-84", "FEAST": 0, "FNORTH": 0, "RLAT0": "40.0N", "RLON0": "97.0W", "XLAT1": "33.0N",
            "XLAT2": "47.0N"}
    assert 13 < turn < 14, turn
    ventos_control(directory, round(x, 6), round(y, 6), **keys)
    grid = "1 1 1 %.6f %.6f 12" % (x - 6, y - 6)
    for wind, sector in (((0, 5), "SSW"), ((5, 0), "WNW"), ((0, -5), "NNE"), ((-5, 0), "ESE")):
        ventos(directory / "a.dat", "LCC NWS-84 N NONE 0 0 40.0N 97.0W 33.0N 47.0N", grid, ["%s" % part for part in wind])
        _, listing = completes(processor, directory)
        assert sectors(directory) == {sector: 24}, (wind, sectors(directory))
        told = float(re.search(r"Grid north +([\d.-]+) degrees clockwise of true north", listing).group(1))
        assert abs(told - turn) < 2e-6, (told, turn)
    # the same winds on a grid in degrees are not rotated
    ventos_control(directory, -76, 40, PMAP="LL", DATUM="NWS-84")
    ventos(directory / "a.dat", "LL NWS-84 N NONE 0 0 NONE NONE NONE NONE", "1 1 1 -76.5 39.5 1", ["0", "5"])
    _, listing = completes(processor, directory)
    assert sectors(directory) == {"S": 24} and "0.000000 degrees clockwise" in listing, sectors(directory)


def case_right_place(processor, directory):
    """Cells of 10 km whose winds identify them; the map of the data is true at 20 degrees."""
    east = " ".join("0" for _ in range(20))
    north = " ".join(str(-1 - column) for column in range(20))
    ventos(directory / "a.dat", "EM NWS-84 N NONE 0 0 0.0N 97.0W 20.0N NONE", "20 1 1 495 1995 10", [east, north])
    keys = {"PMAP": "EM", "DATUM": "NWS-84", "RLAT0": "0.0N", "RLON0": "97.0W"}
    ventos_control(directory, 600, 2000, **keys)
    _, listing = completes(processor, directory)
    series = (directory / "out.tsf").read_text().splitlines()
    assert series[-1].split()[-1] == "11", series[-1]  # cell 11, whose centre is at 600 km
    assert re.search(r"X and Y are +on the map of the data", listing), listing
    assert re.search(r"On the map of the data +600\.0000, 2000\.0000 km", listing), listing
    assert re.search(r"In cells of the data +11\.0000, 1\.0000", listing), listing
    assert re.search(r"Cells and weights +11, 1 by 1\.000000", listing), listing
    # another meridian is another map, true at the equator
    ventos_control(directory, 600, 2128.4, **{**keys, "RLON0": "96.999W"})
    _, listing = completes(processor, directory)
    assert re.search(r"X and Y are +on EM, RLON0 = 96.999W, XLAT1 = 0N, DATUM = NWS-84", listing), listing
    # damaged headers
    for parallel in ("0", "0.0N", "NONE"):
        ventos(directory / "a.dat", "PS NWS-84 N NONE 0 0 90.0N 97.0W %s NONE" % parallel, "20 1 1 495 1995 10", [east, north])
        needs_failure(processor, directory, r"a\.dat:4: XLAT1: a polar map needs the parallel that it is true at")
    for field in ("500W", "500E", "5N"):
        ventos(directory / "a.dat", "TTM NWS-84 N NONE %s 0 0.0N 97.0W NONE NONE" % field, "20 1 1 495 1995 10", [east, north])
        needs_failure(processor, directory, r"a\.dat:4: FEAST: \"%s\" is no number" % field)
        ventos(directory / "a.dat", "TTM NWS-84 N NONE NONE %s 0.0N 97.0W NONE NONE" % field, "20 1 1 495 1995 10", [east, north])
        needs_failure(processor, directory, r"a\.dat:4: FNORTH: \"%s\" is no number" % field)
    ventos_control(directory, 600, 2000, PMAP="PS", DATUM="NWS-84", RLAT0="90.0N", RLON0="97.0W", XLAT1="0N")
    needs_failure(processor, directory, r"c\.inp:\d+: XLAT1: a polar map needs the parallel that it is true at", status=2)


def monitor(path, minutes, hours):
    """The wind of an hour is that of its number, in records of this many minutes."""
    lines = ["DATETIME,STNCODE,DATAAVID,WDIR,WSPD"]
    for i in range(hours * 60 // minutes):
        end = datetime(2004, 1, 1) + (i + 1) * timedelta(minutes=minutes)
        hour = i * minutes // 60
        lines.append("%d/%d/%d %d:%02d,00072,%d,%d,%s" % (end.month, end.day, end.year, end.hour, end.minute, minutes,
                                                      hour * 47 % 360, 0.4 + hour % 11))
    make_inputs.write(path, lines)


def case_right_hour(processor, directory):
    """Roses of the same wind in steps of an hour and of ten minutes are equal."""
    period = [2004, 1, 1, 0, 0, 2004, 1, 5, 0, 0]
    for step, minutes in ((3600, 60), (600, 10), (1800, 10), (600, 5)):
        monitor(directory / "m.csv", minutes, 96)
        write_control(directory / "c.inp", "monitorw.inp", ["m.csv"], ONE, period, step=step)
        completes(processor, directory)
        frq, tab = roses_of_frq(directory / "out.frq"), roses_of_tab(directory / "out.tab")
        if step == 3600:
            hourly = frq, tab
        assert list(frq) == list(hourly[0])
        for title, (rows, calm, total, valid, calms) in hourly[0].items():
            assert frq[title][:2] == (rows, calm), "%s in steps of %d seconds" % (title, step)
            many = 3600 // step
            assert frq[title][2:] == (many * total, many * valid, many * calms), title
            assert tab[title][0] == [[many * count for count in row] for row in hourly[1][title][0]], title
    assert "Hours 01-06" in hourly[0] and hourly[0]["Hours 01-06"][2] == 24
    # that range includes what begins at midnight, and not what begins at six
    write_control(directory / "c.inp", "monitorw.inp", ["m.csv"], ONE, [2004, 1, 1, 0, 0, 2004, 1, 1, 0, 600], step=600)
    completes(processor, directory)
    assert "Hours 01-06" in roses_of_frq(directory / "out.frq")
    write_control(directory / "c.inp", "monitorw.inp", ["m.csv"], ONE, [2004, 1, 1, 6, 0, 2004, 1, 1, 6, 600], step=600)
    completes(processor, directory)
    assert "Hours 07-12" in roses_of_frq(directory / "out.frq") and "Hours 01-06" not in roses_of_frq(directory / "out.frq")


def case_heights(processor, directory):
    """The results state the requested height; listing and standard error state the level."""
    lines = ["2004 1 1 %d %s 0 %d 5.0 1 2 3" % (hour, height, direction)
             for hour in range(1, 25) for height, direction in ((10, 90), (41 if hour < 24 else 45, 180))]
    make_inputs.write(directory / "a.pfl", lines)
    outputs = [(1, "exact", "0", 0, 0, 10), (2, "near", "0", 0, 0, 40), (3, "far", "0", 0, 0, 400), (4, "tie", "0", 0, 0, 25.5)]
    write_control(directory / "c.inp", "aermpfl.inp", ["a.pfl"], outputs, DAY)
    errors, listing = completes(processor, directory)
    near = "NOTE: near: the wind of 40.0 m is that of the nearest level, 41.0 m to 45.0 m, up to 5.0 m away"
    far = "WARNING: far: the wind of 400.0 m is that of the nearest level, 41.0 m to 45.0 m, up to 359.0 m away"
    tie = "WARNING: tie: the wind of 25.5 m is that of the nearest level, 10.0 m, up to 15.5 m away"
    assert errors.splitlines() == ["tempoline: " + line for line in (near, far, tie)], errors
    for line in (near, far, tie):
        assert line in listing, listing
    assert re.search(r"exact\n  Level used +10\.0 m, in 24 hours\n", listing), listing
    assert re.search(r"near\n  Level used +41\.0 m, 1\.0 m above the asked height, in 23 hours\n"
                     r"  Level used +45\.0 m, 5\.0 m above the asked height, in 1 hours\n", listing), listing
    for name, height in (("exact", "10.0"), ("near", "40.0"), ("far", "400.0"), ("tie", "25.5")):
        assert "Height: %s m" % height in (directory / (name + ".frq")).read_text()
        assert "Height: %s m" % height in (directory / (name + ".tab")).read_text()
        assert "WSPEED  M/S  %s\n" % height in (directory / (name + ".tsf")).read_text()
    assert sectors(directory, "tie") == {"E": 24}, sectors(directory, "tie")  # the lower of two at the same distance


def case_early_end(processor, directory):
    """A header states a day, and the file holds ten hours of it."""
    promise = r"WARNING: a\.dat: the header promises data until 2004-01-02 00:00:00, and the last record ends 2004-01-01 10:00:00"
    hours = range(10)
    surf_head = ["SURF.DAT 2.1", "0", "x", "UTC-0500", "2004 1 0 0 2004 1 24 0 1", "00072"]
    surf = surf_head + [line for h in hours for line in ("2004 1 %d 0 2004 1 %d 0" % (h, h + 1), "5 90 0 0 0 0 0 0")]
    surf_20 = ["SURF.DAT 2.0", "0", "x", "2004 1 1 2004 1 24 5 1", "00072"]
    surf_20 += [line for h in hours for line in ("2004 1 %d" % (h + 1), "5 90 0 0 0 0 0 0")]
    series = ["TIMESERIES.TSF 1.3", "0", "x", "MET", "x", "UTC-0500", "GREGORIAN_YMD", "2004 1 1 0 0 2004 1 1 24 0 3600", "2 - v",
              "WDIR DEG", "WSPEED M/S"] + ["2004 1 1 %d 0 2004 1 1 %d 0 90 5" % (h, h + 1) for h in hours]
    up = ["UP.DAT 2.1", "0", "x", "UTC-0500", "2004 1 0 0 2004 1 24 0", "x", "6201 00072"]
    up += [line for h in hours for line in ("6201 00072 2004 1 1 %d 0 2004 1 1 %d 0 9 2" % (h, h + 1), "1000,0,280,90,5 990,20,280,90,5")]
    model = ["3D.DAT 2.1", "0", "1 1 1 1 0 1", "LL 0 0 0 0 -75 40 1 1 1 1", "1 2 3", "2004010105 24 1 1 1", "1 1 1 1 1 1", "0.9", "1 1"]
    model += [line for h in hours for line in ("20040101%02d 1 1 1 2 3 4 5 6 7 90 5 9" % (h + 5), "1000 10 280 90 5")]
    cells = {"METSIM": 1, "MPROF": 3, "MCELL": 1}
    for lines, template, outputs, named in [
            (surf, "surf.inp", ONE, {}), (surf_20, "surf.inp", ONE, {}), (series, "tsf.inp", [], {}), (up, "up.inp", ONE, {}),
            (model, "m3d_cell.inp", [(1, "out", "", 1, 1, 10)], {"gridded": True, "keys": cells})]:
        make_inputs.write(directory / "a.dat", lines)
        write_control(directory / "c.inp", template, ["a.dat"], outputs, DAY, **named)
        errors, listing = completes(processor, directory)
        assert re.search(promise, listing) and re.search(promise, errors), (lines[0], errors, listing)
        assert re.search(r"Steps valid +10\n", listing) and re.search(r"  without a record +14\n", listing), listing
    ventos(directory / "a.dat", "LL NWS-84 N NONE 0 0 NONE NONE NONE NONE", "1 1 1 -76.5 39.5 1", ["0", "5"], hours=10)
    ventos_control(directory, -76, 40, PMAP="LL", DATUM="NWS-84")
    errors, listing = completes(processor, directory)
    assert re.search(promise, listing) and re.search(promise, errors), errors
    # no warning for a complete file, or for one with a damaged header
    for period in ("2004 1 0 0 2004 1 10 0 1", "2004 1 0 0 2004 x 24 0 1", "2004 1 0 0 2004 367 0 0 1"):
        make_inputs.write(directory / "a.dat", [*surf_head[:4], period, *surf[5:]])
        write_control(directory / "c.inp", "surf.inp", ["a.dat"], ONE, DAY)
        errors, listing = completes(processor, directory)
        assert "promises" not in listing and errors == "", errors
    # no data after the header
    make_inputs.write(directory / "a.dat", surf_head)
    errors, listing = completes(processor, directory)
    assert "promises data until 2004-01-02 00:00:00, and there is no record" in errors, errors


def case_half_hour_zones(processor, directory):
    """Hours of UTC in Indian time: the warning says what to choose, and following it helps."""
    lines = ["SURF.DAT 2.1", "0", "x", "UTC+0000", "2004 1 0 0 2004 3 0 0 1", "00072"]
    for h in range(48):
        lines += ["2004 %d %d 0 2004 %d %d 0" % (1 + h // 24, h % 24, 1 + (h + 1) // 24, (h + 1) % 24), "5 90 0 0 0 0 0 0"]
    make_inputs.write(directory / "a.dat", lines)
    write_control(directory / "c.inp", "surf.inp", ["a.dat"], ONE, [2004, 1, 2, 0, 0, 2004, 1, 3, 0, 0], zone="UTC+0530")
    errors, listing = completes(processor, directory)
    warning = ("WARNING: out: 24 records of a whole step begin within one, the first of them 1800 seconds after its begin, and each "
               "counts for the step in which it begins. Choose a period that begins with a record, as at 00:30:00, or a time zone "
               "that is whole steps away from that of the data")
    assert errors == "tempoline: " + warning + "\n" and warning in listing, errors
    assert re.search(r"Time shift +\+19800 seconds, from UTC\+0000 of the data to UTC\+0530", listing), listing
    for period, zone in (([2004, 1, 2, 0, 1800, 2004, 1, 2, 23, 1800], "UTC+0530"), ([2004, 1, 2, 0, 0, 2004, 1, 3, 0, 0], "UTC+0500")):
        write_control(directory / "c.inp", "surf.inp", ["a.dat"], ONE, period, zone=zone)
        errors, listing = completes(processor, directory)
        assert errors == "", errors


def soundings(path, length):
    lines = ["UP.DAT 2.1", "0", "x", "UTC+0000", "2004 1 0 0 2004 31 0 0", "x", "6201 00072"]
    for i in range(60):
        begin = datetime(2004, 1, 1) + i * 12 * HOUR
        end = begin + length
        stamps = ["%d %d %d %d %d" % (m.year, m.month, m.day, m.hour, 60 * m.minute) for m in (begin, end)]
        lines += ["6201 00072 %s %s 9 2" % tuple(stamps), "1000,0,280,90,5 990,20,280,90,5"]
    make_inputs.write(path, lines)


def case_soundings(processor, directory):
    """Twice a day: the warning names the best step."""
    for length, first, best, share in ((0 * HOUR, "are of a moment", 43200, "100.0"), (HOUR, "last 3600 seconds", 7200, "16.7")):
        soundings(directory / "a.dat", length)
        period = [2004, 1, 1, 0, 0, 2004, 1, 31, 0, 0]
        write_control(directory / "c.inp", "up.inp", ["a.dat"], ONE, period, zone="UTC+0000")
        errors, _ = completes(processor, directory)
        assert errors == ("tempoline: WARNING: out: the records begin 43200 seconds apart and %s: at most 8.3 percent of the steps of 3600 "
                          "seconds can be valid. Choose a step of %d seconds (NSECDT = %d): %s percent\n" % (first, best, best, share)), errors
        write_control(directory / "c.inp", "up.inp", ["a.dat"], ONE, period, zone="UTC+0000", step=best)
        errors, listing = completes(processor, directory)
        assert errors == "", errors
        valid, total = int(re.search(r"Steps valid +(\d+)", listing).group(1)), int(re.search(r"\n  Steps +(\d+)\n +Steps valid", listing).group(1))
        assert "%.1f" % (100 * valid / total) == share, (valid, total)
    write_control(directory / "c.inp", "up.inp", ["a.dat"], ONE, period, zone="UTC+0000", step=43200)
    errors, listing = completes(processor, directory)
    assert "at most 0.0 percent of the steps of 43200 seconds can be valid. Choose a step of 7200 seconds" in errors, errors
    assert re.search(r"covered less than half +60\n", listing), listing


def case_listing(processor, directory):
    """Reasons, first and last records, defaults used."""
    day = good_day()
    for number, speed, direction in ((1, "3.4", "999.0"), (2, "999.0", "10.0"), (3, "NaN", "10.0"), (4, "3.4", "nan"), (5, "-1", "10"),
                                     (6, "3.4", "361"), (22, "NaN", "nan")):
        day[number] = day[number].replace(" 3.4 200.0 ", " %s %s " % (speed, direction))
    surface(directory, day)
    day_control(directory, period=[2004, 1, 1, 1, 0, 2004, 1, 1, 23, 0])
    text = (directory / "c.inp").read_text(encoding="latin-1")
    (directory / "c.inp").write_text(re.sub(r"! NSECDT *= *3600 *!", "", text), encoding="latin-1", newline="")
    _, listing = completes(processor, directory)
    for name, count in (("Records read", 24), ("Records used", 15), ("Records missing", 7), ("  no level there", 0), ("  no speed", 2),
                        ("  speed out of range", 2), ("  no direction", 1), ("  direction wrong", 2), ("Records outside", 2),
                        ("  before the period", 1), ("  after the period", 1), ("Steps", 22), ("Steps valid", 15),
                        ("  without a wind", 7)):
        assert re.search(r"\n  %s +%d\n" % (name, count), listing), (name, listing)
    assert re.search(r"First record used +2004-01-01 07:00:00 to 2004-01-01 08:00:00, a\.sfc:9\n", listing), listing
    assert re.search(r"Last record used +2004-01-01 21:00:00 to 2004-01-01 22:00:00, a\.sfc:23\n", listing), listing
    assert re.search(r"these are assumed\n(  ! .*\n)*  ! NSECDT = 3600 !\n", listing), listing
    assert re.search(r"Time shift +none: the data tell no zone, and are taken to be in UTC-0500\n", listing), listing
    assert re.search(r"Input file +a\.sfc, %d bytes\n" % (directory / "a.sfc").stat().st_size, listing), listing


def case_words(processor, directory):
    """Help, version, no output, a name with blanks."""
    done = run(processor, directory, "--help")
    assert done.returncode == 0 and done.stderr == "" and done.stdout.startswith("usage: tempoline.exe "), done
    done = run(processor, directory, "--version")
    assert (done.returncode, done.stdout, done.stderr) == (0, "tempoline 4.9\n", ""), done
    surface(directory, good_day())
    for name in ("out ", "out   ", " out"):
        day_control(directory)
        text = (directory / "c.inp").read_text(encoding="latin-1").replace("! TSFOUT = out !", "! TSFOUT = %s !" % name)
        (directory / "c.inp").write_text(text, encoding="latin-1", newline="")
        completes(processor, directory)
        (directory / "out.frq").unlink()
    make_inputs.m3d([directory / "a.dat", directory / "b.dat"])
    text = control_text("m3d_cell.inp", ["a.dat"], [(1, "out", "", 3, 2, 10)], DAY, gridded=True, keys={"METSIM": 1, "NTSFOUT": 0})
    text = re.sub(r"! (TSFID|TSFOUT|MET) *= *[^!]*!", "", text)
    (directory / "c.inp").write_bytes(text.encode("latin-1"))
    needs_failure(processor, directory, r"c\.inp:\d+: NTSFOUT: 0 outputs are asked for, and at least one is needed$", status=2, aside=False)


if __name__ == "__main__":
    sys.exit(main(globals()))
