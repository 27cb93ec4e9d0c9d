#!/usr/bin/env python3
"""Runs the processor on a year of every kind of input (a quarter on other maps) and compares every cell of every rose with plain_roses.py.

check_roses.py PROCESSOR WORK_DIRECTORY [CASE ...]
"""
import re
import shutil
import subprocess
import sys
from pathlib import Path

import make_inputs
import plain_roses
from control_files import write_control

SAMPLES = Path(__file__).resolve().parent.parent.parent / "data" / "samples"
YEAR = [2004, 1, 1, 0, 0, 2005, 1, 1, 0, 0]
QUARTER = [2004, 1, 1, 0, 0, 2004, 4, 1, 0, 0]  # for other maps of the same data


def roses_of_frq(path):
    """Title -> (16 rows of six texts, calm text, total, valid, calm)."""
    lines = path.read_bytes().decode("latin-1").split("\r\n")
    assert lines[0] == "WIND.FRQ        2.3             Zephyrgraph FRQ File Format", lines[0]
    assert lines.pop() == "" and (len(lines) - 9) % 22 == 0, "%s has %d lines" % (path, len(lines))
    result = {}
    for at in range(9, len(lines), 22):
        block = lines[at:at + 22]
        rows = []
        for label, row in zip(plain_roses.LABELS, block[3:19]):
            name, values = row.split(":")
            assert name.strip() == label, row
            rows.append([text.strip() for text in values.split("%")[:6]])
        calm = block[20].split(":")[1].split("%")[0].strip()
        counts = [int(part.split("=")[1]) for part in block[21].split(";")]
        assert block[1] not in result, "two roses " + block[1]
        result[block[1]] = (rows, calm, *counts)
    return result


def roses_of_tab(path):
    """Title -> (16 rows of six counts, calm, total, valid)."""
    result = {}
    for block in path.read_bytes().decode("latin-1").split("\r\nRose: ")[1:]:
        lines = block.split("\r\n")
        values = dict(line.split(": ") for line in lines[1:5])
        rows = [[int(text) for text in line.split()[1:7]] for line in lines[6:22]]
        result[values["Name"]] = (rows, int(values["Calm"]), int(values["Total"]), int(values["Valid"]))
    return result


def compare(name, roses, directory):
    """Returns the number of cells compared; raises if anything differs."""
    frq, tab = roses_of_frq(directory / (name + ".frq")), roses_of_tab(directory / (name + ".tab"))
    kept = [rose for rose in roses if rose.total > 0]
    assert [rose.title for rose in kept] == list(frq), "%s: other roses: %s" % (name, list(frq))
    cells = 0
    for rose in kept:
        rows, calm, total, valid, calm_count = frq[rose.title]
        found = (total, valid, calm_count)
        assert found == (rose.total, rose.valid, rose.calm), "%s, %s: %s and not %s" % (
            name, rose.title, found, (rose.total, rose.valid, rose.calm))
        percent = lambda count: 100 * count / rose.valid if rose.valid else 0
        assert calm == "%.2f" % percent(rose.calm), "%s, %s: calm %s" % (name, rose.title, calm)
        assert tab[rose.title][1:] == (rose.calm, rose.total, rose.valid), "%s, %s: TAB" % (name, rose.title)
        for sector in range(16):
            for speed_class in range(6):
                count = rose.cells[sector][speed_class]
                place = "%s, %s, %s, class %d" % (name, rose.title, plain_roses.LABELS[sector], speed_class + 1)
                assert tab[rose.title][0][sector][speed_class] == count, "%s: TAB differs from %d" % (place, count)
                assert rows[sector][speed_class] == "%.4f" % percent(count), "%s: FRQ differs" % place
                cells += 1
    return cells


def check_listing(path):
    """The counts in the listing add up, for each output."""
    text = path.read_text(encoding="latin-1")
    assert text.rstrip().endswith("RUN COMPLETED"), text
    numbers = lambda key: [int(found) for found in re.findall(r"Records %s +(\d+)" % key, text)]
    for parts in zip(*(numbers(key) for key in ("read", "used", "missing", "outside", "repeated"))):
        assert parts[0] == sum(parts[1:]), "the listing does not add up: %s" % (parts,)
    assert numbers("read"), text
    counts = lambda name: [int(found) for found in re.findall(r"\n  %s +(\d+)\r?(?=\n)" % name, text)]
    for whole, parts in [
            ("Records missing", ["  no level there", "  no speed", "  speed out of range", "  no direction", "  direction wrong"]),
            ("Records outside", ["  before the period", "  after the period"]),
            ("Steps missing", ["  without a record", "  without a wind", "  covered less than half", "  no mean direction"]),
            ("Steps", ["Steps valid", "Steps missing"])]:
        sums = [sum(values) for values in zip(*(counts(part) for part in parts))]
        assert sums and counts(whole) == sums, "%s: %s and not %s" % (whole, counts(whole), sums)


def control_from_listing(path):
    """A control file made only from the listing."""
    lines = path.read_bytes().decode("latin-1").split("\r\n")
    title = next(line for line in lines if line.startswith("  Title"))[26:]
    return "\r\n".join(["TEMPOLINE.INP", title] + [line for line in lines if line.startswith("  ! ")]) + "\r\n"


def repeat_from_listing(processor, directory, listing):
    """A run from the listing alone gives the same results and the same listing."""
    made = {path.name: path.read_bytes() for path in directory.iterdir() if path.suffix in (".frq", ".tab", ".tsf")}
    before = (directory / listing).read_bytes()
    text = control_from_listing(directory / listing)
    for name in made:
        if not name.endswith(".tsf") or "TSFOUT = " + name[:-4] in text:
            (directory / name).unlink()
    (directory / "c.inp").write_bytes(text.encode("latin-1"))
    run(processor, directory, "c.inp")
    for name, content in made.items():
        assert (directory / name).read_bytes() == content, "%s is another one by the control file of the listing" % name
    parts = lambda content: content.split(b"\r\nSo the run is")[1]
    assert parts((directory / listing).read_bytes()) == parts(before), "the listing differs"


def run(processor, directory, control):
    done = subprocess.run([processor, control], cwd=directory, capture_output=True, text=True)
    assert done.returncode == 0, done.stderr
    assert not [line for line in done.stderr.splitlines() if not re.match("tempoline: (WARNING|NOTE): ", line)], done.stderr


def check(processor, directory, control, listing):
    run(processor, directory, control)
    check_listing(directory / listing)
    cells = 0
    results = plain_roses.plain_run(directory / control, directory)
    for name, roses in results:
        assert roses[0].valid > 0, name + ": nothing is valid"
        cells += compare(name, roses, directory)
    repeat_from_listing(processor, directory, listing)
    left = [path.name for path in directory.iterdir() if path.name.endswith(".tmp")]
    assert not left, left
    return len(results), cells


LISTING = "base_20050307-20051231_tempoline.lst"
ONE = [(1, "out", "00072", 0, 0, 10)]
HEIGHTS = [(1, "ten", "4417", 0, 0, 10), (2, "fifty", "4417", 0, 0, 50), (3, "top", "4417", 0, 0, 1500),
           (4, "ground", "4417", 0, 0, 0), (5, "sky", "4417", 0, 0, 350.5)]


def case_aermsfc(d):
    make_inputs.aermet_surface(d / "a.sfc")
    write_control(d / "c.inp", "aermsfc.inp", ["a.sfc"], ONE, YEAR)


def case_aermsfc_long_steps(d):
    """Averages of three hours, a period that begins within an hour of the first day."""
    make_inputs.aermet_surface(d / "a.sfc")
    write_control(d / "c.inp", "aermsfc.inp", ["a.sfc"], ONE, [2003, 12, 31, 22, 1800, 2005, 1, 2, 5, 0], step=10800)


def case_aermpfl(d):
    make_inputs.aermet_profile(d / "a.pfl")
    outputs = [(1, "ten", "0", 0, 0, 10), (2, "twenty", "0", 0, 0, 20), (3, "forty_one", "0", 0, 0, 41), (4, "high", "0", 0, 0, 400)]
    write_control(d / "c.inp", "aermpfl.inp", ["a.pfl"], outputs, YEAR)


def case_surf_21(d):
    make_inputs.surf(d / "surf.dat", "2.1")
    outputs = [(2, "two", "1002", 0, 0, 10), (5, "five", "1005", 0, 0, 10), (1, "one", "1001", 0, 0, 10)]
    write_control(d / "c.inp", "surf.inp", ["surf.dat"], outputs, YEAR)


def case_surf_20(d):
    make_inputs.surf(d / "surf.dat", "2.0")
    write_control(d / "c.inp", "surf.inp", ["surf.dat"], [(3, "three", "1003", 0, 0, 10)], YEAR, zone="UTC-0330")


def case_up_21(d):
    make_inputs.up(d / "up.dat", "2.1")
    write_control(d / "c.inp", "up.inp", ["up.dat"], HEIGHTS, YEAR)


def case_up_20(d):
    make_inputs.up(d / "up.dat", "2.0")
    write_control(d / "c.inp", "up.inp", ["up.dat"], HEIGHTS[:2], YEAR, zone="UTC+0900")


def case_monitor(d):
    make_inputs.monitor(d / "m.csv", 60)
    write_control(d / "c.inp", "monitorw.inp", ["m.csv"], ONE, YEAR)


def case_monitor_averaged(d):
    """Quarters of an hour become hours."""
    make_inputs.monitor(d / "m.csv", 15)
    write_control(d / "c.inp", "monitorw.inp", ["m.csv"], ONE, YEAR)


def case_monitor_half_hours(d):
    """Ten minutes become half hours, in a zone where records begin within one of them."""
    make_inputs.monitor(d / "m.csv", 10)
    write_control(d / "c.inp", "monitorw.inp", ["m.csv"], ONE, [2004, 2, 1, 6, 315, 2004, 9, 1, 0, 0], step=1800)


def case_csv(d):
    make_inputs.csv(d / "t.csv")
    write_control(d / "c.inp", "aermsfc.inp", ["t.csv"], ONE, YEAR, keys={"MDATA": "CSV"})
    layout = {"CSVSEP": "SEMICOLON", "CSVDEC": "COMMA", "CSVHEAD": 3, "CSVNAME": 2, "CSVTIME": "2,3", "CSVFORM": "DMY", "CSVSPD": 4,
              "CSVUNIT": "KM/H", "CSVDIR": 5}
    with open(d / "c.inp", "a", newline="") as file:
        file.write("".join("! %s = %s !\r\n" % entry for entry in layout.items()))


def case_tsf(d):
    make_inputs.tsf(d / "t.tsf")
    write_control(d / "c.inp", "tsf.inp", ["t.tsf"], [], YEAR)


def case_m3d_cells(d):
    make_inputs.m3d([d / "a.dat", d / "b.dat"])
    outputs = [(1, "corner", "", 3, 2, 10), (2, "between", "", 4.25, 2.5, 40), (3, "edge", "", 6, 3.75, 60), (4, "level", "", 5, 4, 84)]
    write_control(d / "c.inp", "m3d_cell.inp", ["a.dat", "b.dat"], outputs, YEAR, gridded=True, keys={"METSIM": 1, "MPROF": 3})


def case_m3d_direct(d):
    """Degrees on the models' own sphere, the nearest cell, 10 m winds."""
    make_inputs.m3d([d / "a.dat", d / "b.dat"], count=make_inputs.HOURS_OF_A_QUARTER)
    outputs = [(1, "near", "", -74.3, 40.4, 10), (2, "above", "", -74.49, 40.74, 50)]
    keys = {"METSIM": 2, "MPROF": 4, "MCELL": 0, "PMAP": "LL", "DATUM": "NWS-84"}
    write_control(d / "c.inp", "m3d_cell.inp", ["a.dat", "b.dat"], outputs, QUARTER, gridded=True, keys=keys)


def case_m3d_cone(d):
    """Degrees of the usual datum on a conical grid of the models' sphere."""
    make_inputs.m3d([d / "a.dat", d / "b.dat"], make_inputs.CONE, count=make_inputs.HOURS_OF_A_QUARTER)
    outputs = [(1, "one", "", -97.25, 39.7, 10), (2, "two", "", -96.8, 39.9, 60)]
    keys = {"METSIM": 1, "MPROF": 2, "MCELL": 0, "PMAP": "LL", "DATUM": "WGS-84"}
    write_control(d / "c.inp", "m3d_cell.inp", ["a.dat", "b.dat"], outputs, QUARTER, gridded=True, keys=keys)


def case_m3d_mercator(d):
    """X and Y on the map of the data, whose true parallel a control file cannot state."""
    make_inputs.m3d([d / "a.dat", d / "b.dat"], make_inputs.MERCATOR, count=make_inputs.HOURS_OF_A_QUARTER)
    outputs = [(1, "centre", "", 630, 2010, 10), (2, "between", "", 607.5, 1995, 60)]
    keys = {"METSIM": 1, "MPROF": 3, "MCELL": 0, "PMAP": "EM", "RLAT0": "0.0N", "RLON0": "97.0W", "DATUM": "NWS-84"}
    write_control(d / "c.inp", "m3d_cell.inp", ["a.dat", "b.dat"], outputs, QUARTER, gridded=True, keys=keys)


def case_ventos(d):
    make_inputs.ventos([d / "a.dat", d / "b.dat"])
    outputs = [(1, "centre", "", 503, 4503, 10), (2, "between", "", 502.5, 4503.25, 35), (3, "low", "", 505.0, 4502.0, 2),
               (4, "upper", "", 505.9, 4503, 60)]
    write_control(d / "c.inp", "ventos_utm.inp", ["a.dat", "b.dat"], outputs, YEAR, gridded=True, keys={"METSIM": 1})


def case_ventos_nearest(d):
    make_inputs.ventos([d / "a.dat", d / "b.dat"], count=make_inputs.HOURS_OF_A_QUARTER)
    outputs = [(1, "centre", "", 503.9, 4503.9, 10), (2, "border", "", 507.99, 4505.99, 60)]
    write_control(d / "c.inp", "ventos_ll.inp", ["a.dat", "b.dat"], outputs, QUARTER, gridded=True,
                  keys={"METSIM": 2, "PMAP": "UTM", "IUTMZN": 18, "UTMHEM": "S", "DATUM": "NAR-C"})


def case_ventos_cone(d):
    """Far east of the meridian of a conical grid, where grid north differs from true north."""
    make_inputs.ventos([d / "a.dat", d / "b.dat"], make_inputs.LAMBERT, count=make_inputs.HOURS_OF_A_QUARTER)
    outputs = [(1, "centre", "", 1718, 118, 10), (2, "between", "", 1727.5, 113, 35), (3, "low", "", 1740, 130, 2)]
    keys = {"METSIM": 1, "PMAP": "LCC", "DATUM": "NWS-84", "FEAST": 12.5, "FNORTH": -7.5, "RLAT0": "40.0N",
            "RLON0": "97.0W", "XLAT1": "30.0N", "XLAT2": "60.0N"}
    write_control(d / "c.inp", "ventos_utm.inp", ["a.dat", "b.dat"], outputs, QUARTER, gridded=True, keys=keys)


def case_monitor_ten_minutes(d):
    """Steps of ten minutes: the range of an hour includes the six that it contains."""
    make_inputs.monitor(d / "m.csv", 10)
    write_control(d / "c.inp", "monitorw.inp", ["m.csv"], ONE, [2004, 2, 1, 0, 0, 2004, 6, 1, 0, 0], step=600)


def case_real_profile(d):
    shutil.copy(SAMPLES / "AERMET2.PFL", d)
    write_control(d / "c.inp", "aermpfl.inp", ["AERMET2.PFL"], ONE, [1988, 3, 1, 0, 0, 1988, 3, 5, 0, 0])


def case_real_surface(d):
    shutil.copy(SAMPLES / "LOVETT.SFC", d)
    write_control(d / "c.inp", "aermsfc.inp", ["LOVETT.SFC"], ONE, [1988, 1, 1, 0, 0, 1989, 1, 1, 0, 0])


def same_as_independent_file(directory):
    """The roses of the real surface file equal those that another program computed."""
    theirs = roses_of_frq(Path(__file__).resolve().parent / "data" / "LOVETT_1988.frq")
    assert roses_of_frq(directory / "out.frq") == theirs, "the roses differ from LOVETT_1988.frq"


def same_from_series(processor, directory):
    """A rose made from the series that a run wrote equals the rose of that run."""
    before = roses_of_frq(directory / "out.frq")
    write_control(directory / "again.inp", "tsf.inp", ["out.tsf"], [], YEAR)
    run(processor, directory, "again.inp")
    assert roses_of_frq(directory / "rose_out.frq") == before, "the series makes another rose"
    assert "Height: 10.0 m" in (directory / "rose_out.frq").read_text(encoding="latin-1")


CASES = {name[5:]: function for name, function in list(globals().items()) if name.startswith("case_")}


def main():
    processor, work = str(Path(sys.argv[1]).resolve()), Path(sys.argv[2]).resolve()
    for name in sys.argv[3:] or CASES:
        directory = work / name
        shutil.rmtree(directory, ignore_errors=True)
        directory.mkdir(parents=True)
        CASES[name](directory)
        outputs, cells = check(processor, directory, "c.inp", LISTING)
        if name == "real_surface":
            same_as_independent_file(directory)
        if name == "aermsfc":
            same_from_series(processor, directory)
        print("%s: %d outputs, %d cells agree" % (name, outputs, cells))
        shutil.rmtree(directory)


if __name__ == "__main__":
    main()
