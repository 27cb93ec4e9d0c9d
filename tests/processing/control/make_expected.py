#!/usr/bin/env python3
"""Makes the expected control files of the tests from the listing of a control file. It shares no code with the
writer: blocks are repeated by hand, and every changed line is named."""
import pathlib
import re

here = pathlib.Path(__file__).parent
listing = (here / "listing.txt").read_text().split("\n")[:-1]

COMMON = dict(TITLE="A title", BASE="base_20050307-20051231", MDATA="", IBYR="2005", IBMO="3", IBDY="7", IBHR="6",
              IBSEC="1815", IEYR="2005", IEMO="12", IEDY="31", IEHR="23", IESEC="0", ABTZ="UTC-0500", NSECDT="3600",
              WSBIN="0.5,1.8,3.3,5.4,8.5,10.8", MSN="1,1,2,2,2,3,3,3,4,4,4,1")
SEASONS = ["Winter", "Spring", "Summer", "Fall"]


def make(name, mdata, outputs, files, seasons=SEASONS, title=None, two_blanks=False, changes=None, rose=None,
         station_zeros=True, **other):
    values = dict(COMMON, **other)
    values.update(MDATA=mdata, NTSFOUT=str(len(outputs)), NSEASN=str(len(seasons)))
    if title is not None:
        values["TITLE"] = title
    out, block, kind = [], None, None
    group = 0
    for line in listing:
        if line.startswith("[per "):
            block, kind = [], line
            group += 1
            continue
        if line.startswith("[end"):
            if kind == "[per season]":
                for i, season in enumerate(seasons, 1):
                    out += ["", f"     ! IDSEAS   = {i} !", f"     ! SEASNAME = {season} !  !END!"]
            elif group == 1:
                for o in outputs:
                    out += [f"     ! TSFID  = {o['id']} !", f"     ! TSFOUT = {o['name']} !   !END!", ""]
            else:
                for o in outputs:
                    equals = "  =" if two_blanks else " ="
                    out.append(f"     ! TSFID{equals} {o['id']} !")
                    out.append(f"     ! LOCMET = {o['loc']} !" if o["loc"] else "     * LOCMET = *")
                    zeros = ", 0, 0" if station_zeros else ""
                    out.append(f"     ! MET = {o['place']}{zeros}, {o['height']}, -1., -1., -1. !  !END!")
                    out.append("")
            block = None
            continue
        if block is not None:
            continue
        if "{INPUTFILE}" in line:
            out += [f"     ! METINP = {f} !   !END!" for f in files]
            continue
        if changes and line in changes:
            out.append(changes.pop(line))
            continue
        out.append(re.sub(r"\{(\w+)\}", lambda m: values[m.group(1)], line))
    assert not changes, changes
    (here / name).write_bytes("".join(l + "\r\n" for l in out).encode("latin-1"))


def output(i, name, loc, place, height="10"):
    return dict(id=str(i), name=name, loc=loc, place=place, height=height)


make("surf.inp", "SURF", [output(2, "Two_SURF", "A titleTwo", "1002"), output(5, "base-1005_SURF", "A title", "1005")],
     ["/data/my surf.dat "], two_blanks=True)
make("surf_untitled.inp", "SURF", [output(1, "One", "One", "1001"), output(3, "base-3", "", "3")], ["s.dat"], title="",
     two_blanks=True, seasons=["All"])
make("up.inp", "UP", [output(i, f"UP_{h}m", "A title", "4417", h) for i, h in ((1, "10"), (2, "50"), (3, "100.5"))],
     ["u.dat"], seasons=["S%d" % i for i in range(1, 13)])
for kind in ("MONITORW", "AERMSFC", "AERMPFL"):
    changes = {"     Profile Method near surface": "     Profile Method near Surface"} if kind == "AERMPFL" else None
    make(kind.lower() + ".inp", kind, [output(1, "out", "", "00072")], ["m.csv"], title="", changes=changes,
         seasons=["Wet", "Dry"])
make("tsf.inp", "TSF", [], ["t.tsf"], changes={
    "ROSEPLOT         output      * ROSEPLT = *": "ROSEPLOT         output      ! ROSEPLT = rose_out !"})
METSIM = {"     (METSIM)                        Default: 1          * METSIM = *":
          "     (METSIM)                        Default: 1          ! METSIM = 2 !"}
TWO = {"     (NMETINP)                       No Default       ! NMETINP = 1 !":
       "     (NMETINP)                       No Default       ! NMETINP = 2 !"}
LL = {"     (PMAP)                     Default: UTM    ! PMAP = NONE !":
      "     (PMAP)                     Default: UTM    ! PMAP = LL !",
      "     (DATUM)                    Default: WGS-84    * DATUM = *":
      "     (DATUM)                    Default: WGS-84    ! DATUM = WGS-84 !"}
make("ventos_ll.inp", "VENTOS", [output(1, "St_VENTOS", "ST1", "-74.5, 41.25", "10")], ["a.dat", "b.dat"],
     changes={**METSIM, **TWO, **LL}, station_zeros=False)
LCC = {"     (PMAP)                     Default: UTM    ! PMAP = NONE !":
       "     (PMAP)                     Default: UTM    ! PMAP = LCC !",
       "     (FEAST)                    Default=0.0     * FEAST  = 0.0 *":
       "     (FEAST)                    Default=0.0     ! FEAST  = 0.0 !",
       "     (FNORTH)                   Default=0.0     * FNORTH = 0.0 *":
       "     (FNORTH)                   Default=0.0     ! FNORTH = 12.5 !",
       "     (RLAT0)                    No Default      * RLAT0 = *":
       "     (RLAT0)                    No Default      ! RLAT0 = 40N !",
       "     (RLON0)                    No Default      * RLON0 = *":
       "     (RLON0)                    No Default      ! RLON0 = 97W !",
       "     (XLAT1)                    No Default      * XLAT1 = *":
       "     (XLAT1)                    No Default      ! XLAT1 = 33N !",
       "     (XLAT2)                    No Default      * XLAT2 = *":
       "     (XLAT2)                    No Default      ! XLAT2 = 45N !",
       "     (DATUM)                    Default: WGS-84    * DATUM = *":
       "     (DATUM)                    Default: WGS-84    ! DATUM = NWS-84 !"}
GROUP5 = {"     (MPROF)                         No Default          * MPROF = *":
          "     (MPROF)                         No Default          ! MPROF = 2 !",
          "     (NLU3D)                         Default: 25         * NLU3D = 25 *":
          "     (NLU3D)                         Default: 25         ! NLU3D = 25 !",
          "     (XYCELL1)                       Default: 0.,0.      * XYCELL1 = 0.,0. *":
          "     (XYCELL1)                       Default: 0.,0.      ! XYCELL1 = 0.,0. !",
          "     (DXYCELL)                       Default: 0.,0.      * DXYCELL = 0.,0. *":
          "     (DXYCELL)                       Default: 0.,0.      ! DXYCELL = 0.,0. !"}
CELL = "     (MCELL)                         Default: 0          * MCELL = 0 *"
make("m3d_lcc.inp", "M3D", [output(1, "x", "A title", "3.2, 15.88", "10"), output(2, "y", "A title", "4, 5", "20")],
     ["3d.dat"], changes={**METSIM, **LCC, **GROUP5, CELL: CELL.replace("* MCELL = 0 *", "! MCELL = 0 !")},
     station_zeros=False)
make("m3d_cell.inp", "M3D", [output(1, "x", "", "3.2, 15.88", "10")], ["3d.dat"], title="",
     changes={**METSIM, **GROUP5, CELL: CELL.replace("* MCELL = 0 *", "! MCELL = 1 !")}, station_zeros=False)
UTM = {"     (PMAP)                     Default: UTM    ! PMAP = NONE !":
       "     (PMAP)                     Default: UTM    ! PMAP = UTM !",
       "     (IUTMZN)                   No Default      * IUTMZN = *":
       "     (IUTMZN)                   No Default      ! IUTMZN = 18 !",
       "     (UTMHEM)                   Default: N      * UTMHEM = N *":
       "     (UTMHEM)                   Default: N      ! UTMHEM = S !",
       "     (DATUM)                    Default: WGS-84    * DATUM = *":
       "     (DATUM)                    Default: WGS-84    ! DATUM = NAR-C !"}
make("ventos_utm.inp", "VENTOS", [], ["a.dat"], changes={**METSIM, **UTM})

# The control files of the two wizards for one file, by projection. The input's path is the test's own.
INERT = {"FEAST": "     (FEAST)                    Default=0.0     * FEAST  = 0.0 *",
         "FNORTH": "     (FNORTH)                   Default=0.0     * FNORTH = 0.0 *",
         "IUTMZN": "     (IUTMZN)                   No Default      * IUTMZN = *",
         "UTMHEM": "     (UTMHEM)                   Default: N      * UTMHEM = N *",
         "RLAT0": "     (RLAT0)                    No Default      * RLAT0 = *",
         "RLON0": "     (RLON0)                    No Default      * RLON0 = *",
         "XLAT1": "     (XLAT1)                    No Default      * XLAT1 = *",
         "XLAT2": "     (XLAT2)                    No Default      * XLAT2 = *",
         "DATUM": "     (DATUM)                    Default: WGS-84    * DATUM = *"}


def projected(pmap, **keys):
    first = "     (PMAP)                     Default: UTM    ! PMAP = NONE !"
    changes = {first: first.replace("NONE", pmap)}
    for key, value in keys.items():
        start = INERT[key][:INERT[key].index("*")]
        name = INERT[key][INERT[key].index("*") + 2:INERT[key].index("=", INERT[key].index("*"))]
        changes[INERT[key]] = f"{start}! {name}= {value} !"
    return changes


ORIGIN = dict(RLAT0="40.5N", RLON0="97.25W")
SHIFT = dict(FEAST="100.5", FNORTH="-20")
MAPS = {"ll": projected("LL", DATUM="WGS-84"),
        "utm": projected("UTM", IUTMZN="18", UTMHEM="N", DATUM="NAR-C"),
        "lcc": projected("LCC", **SHIFT, **ORIGIN, XLAT1="33N", XLAT2="45N", DATUM="NWS-84"),
        "ttm": projected("TTM", **SHIFT, **ORIGIN, DATUM="WGS-84"),
        "ps": projected("PS", **ORIGIN, XLAT1="60N", DATUM="WGS-84"),
        "em": projected("EM", **ORIGIN, DATUM="WGS-84"),
        "laza": projected("LAZA", **SHIFT, **ORIGIN, DATUM="WGS-84")}
for name, changes in MAPS.items():
    place = "-74.5, 41.25" if name == "ll" else "-3.5, 1204.25"
    make(f"wizard_ventos_{name}.inp", "VENTOS", [output(1, "My rose", "A title", place, "10")], ["@FILE@"],
         changes={**METSIM, **changes}, station_zeros=False, BASE="VENTOS_wind20050307-20051231")
PERIOD = "20050307-20051231"
STATIONS = [output(1, f"Albany_VENTOS_{PERIOD}_12.5m", "Albany", "-73.8, 42.75", "12.5"),
            output(2, f"Burlington_VENTOS_{PERIOD}_12.5m", "Burlington", "-73.15, 44.47", "12.5")]
make("wizard_ventos_stations.inp", "VENTOS", STATIONS, ["@FILE@"], title="", station_zeros=False,
     changes={**METSIM, **projected("LL", DATUM="NAR-B")}, BASE="VENTOS_wind" + PERIOD)
UTC = dict(ABTZ="UTC+0000", IBHR="6", IBSEC="0", IEMO="3", IEDY="9", IEHR="6", BASE="3DDAT_wind20050307-20050309",
           station_zeros=False)
NOCELL = {CELL: CELL.replace("* MCELL = 0 *", "! MCELL = 0 !")}
make("wizard_m3d_ll.inp", "M3D",
     [output(1, "one", "A title", "-100, -40", "10"), output(2, "two", "A title", "7.5, 41.0", "80")], ["@FILE@"],
     changes={**METSIM, **GROUP5, **NOCELL, **projected("LL", DATUM="WGS-84")}, **UTC)
make("wizard_m3d_cells.inp", "M3D",
     [output(1, "one", "", "3.2, 15.88", "10"), output(2, "two", "", "1, 1", "10")], ["@FILE@"], title="",
     changes={**METSIM, **GROUP5, CELL: CELL.replace("* MCELL = 0 *", "! MCELL = 1 !")}, **UTC)
make("wizard_m3d_stations.inp", "M3D",
     [dict(o, name=o["name"].replace("VENTOS", "3DDAT").replace("1231", "0309").replace("20051231", "20050309"))
      for o in STATIONS], ["@FILE@"], title="", changes={**METSIM, **GROUP5, **NOCELL, **projected("LL", DATUM="NAR-B")},
     **UTC)
