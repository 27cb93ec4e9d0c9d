#!/usr/bin/env python3
"""Compares every shift in data/datums.csv with the transformations in the database that comes with PROJ.

check_datums.py

A row is right when the database has a transformation to WGS 84 of the same three numbers, from an ellipsoid of the same axis and
flattening, for an area with a word of the region.
"""
import csv
import os
import re
import sqlite3
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
SKIPPED = 77

# By their names in the table.
ELLIPSOIDS = {
    "Airy 1830": (6377563.396, 299.3249646),
    "Australian National": (6378160, 298.25),
    "Bessel 1841": (6377397.155, 299.1528128),
    "Bessel 1841 (Namibia)": (6377483.865, 299.1528128),
    "Clarke 1866": (6378206.4, 294.9786982),
    "Clarke 1880": (6378249.145, 293.465),
    "Everest 1830": (6377276.345, 300.8017),
    "Everest 1948": (6377304.063, 300.8017),
    "Everest 1956": (6377301.243, 300.8017),
    "Everest (Pakistan)": (6377309.613, 300.8017),
    "Everest (Sabah, Sarawak)": (6377298.556, 300.8017),
    "GRS 80": (6378137, 298.257222101),
    "Helmert 1906": (6378200, 298.3),
    "Hough 1960": (6378270, 297),
    "Indonesian 1974": (6378160, 298.247),
    "International 1924": (6378388, 297),
    "Krassovsky 1940": (6378245, 298.3),
    "Modified Airy": (6377340.189, 299.3249646),
    "Modified Fischer 1960": (6378155, 298.3),
    "South American 1969": (6378160, 298.25),
    "WGS 84": (6378137, 298.257223563),
}

# The database gives these numbers for the Everest ellipsoids that the national surveys use today, and itself warns that they are not the
# ones for which the numbers were determined.
OTHER_ELLIPSOID = {"IND-I", "IND-P"}

# The database uses another word for the area than the dialog's region.
OTHER_AREA = {"EUS": "europe", "KUS": "kosrae", "REU": "reunion", "SAN-M": "america", "SGM": "selvagens"}

QUERY = """
SELECT h.auth_name || ':' || h.code, h.name, h.tx, h.ty, h.tz, ellipsoid.name, ellipsoid.semi_major_axis,
       ellipsoid.inv_flattening, ellipsoid.semi_minor_axis, length_unit.conv_factor, extent.name || ' ' || extent.description
FROM helmert_transformation_table h
JOIN geodetic_crs crs ON crs.auth_name = h.source_crs_auth_name AND crs.code = h.source_crs_code
JOIN geodetic_datum datum ON datum.auth_name = crs.datum_auth_name AND datum.code = crs.datum_code
JOIN ellipsoid ON ellipsoid.auth_name = datum.ellipsoid_auth_name AND ellipsoid.code = datum.ellipsoid_code
JOIN unit_of_measure length_unit ON length_unit.auth_name = ellipsoid.uom_auth_name AND length_unit.code = ellipsoid.uom_code
JOIN usage ON usage.object_table_name = 'helmert_transformation' AND usage.object_auth_name = h.auth_name
     AND usage.object_code = h.code
JOIN extent ON extent.auth_name = usage.extent_auth_name AND extent.code = usage.extent_code
WHERE h.target_crs_auth_name = 'EPSG' AND h.target_crs_code = '4326' AND h.rx IS NULL AND h.translation_uom_code = '9001'
"""


class Transformation:
    def __init__(self, row):
        self.code, self.name = row[0:2]
        self.shift = tuple(row[2:5])
        self.ellipsoid, axis, inverse, minor, metre, self.area = row[5:]
        self.inverse = inverse or (axis / (axis - minor) if axis > minor else 0)
        self.axis = axis * metre

    def has_ellipsoid(self, axis, inverse):
        # Agencies round the axis of Clarke 1880 and the flattening of the Everests differently.
        return abs(self.axis - axis) < 0.2 and abs(self.inverse - inverse) < 0.002

    def __str__(self):
        return "%s %s (%s; %s)" % (self.code, self.name, self.ellipsoid, self.area)


def database():
    folders = [folder for name in ("PROJ_DATA", "PROJ_LIB") for folder in os.environ.get(name, "").split(":") if folder]
    for folder in [*folders, "/usr/share/proj", "/usr/local/share/proj"]:
        path = Path(folder) / "proj.db"
        if path.exists():
            return sqlite3.connect("file:%s?mode=ro" % path, uri=True)
    return None


def table_rows():
    """Code -> (ellipsoid, region, shift), of the datums that have one."""
    with open(ROOT / "data" / "datums.csv", newline="") as file:
        rows = list(csv.reader(file))[2:]
    return {code: (text.rsplit(" - ", 1)[1], region, tuple(map(int, shift))) for _, text, region, code, *shift in rows if shift[0]}


def words(text):
    """Only the words that distinguish one place from another."""
    common = {"mean", "for", "island", "islands", "excluding", "near", "east", "west", "north", "south", "eastern", "western",
              "northern", "southern", "and", "the", "saint", "onshore", "offshore"}
    return {word for word in re.findall(r"[a-z]{3,}", text.lower()) if word not in common}


def problem(code, ellipsoid, region, shift, transformations):
    """What is wrong with the row, "" if nothing."""
    same = [t for t in transformations if t.shift == shift]
    if not same:
        return "no transformation has these numbers"
    names = words(OTHER_AREA.get(code, region))
    same = [t for t in same if names & words(t.area)]
    if not same:
        return "no transformation of these numbers is for " + region
    if code not in OTHER_ELLIPSOID and not any(t.has_ellipsoid(*ELLIPSOIDS[ellipsoid]) for t in same):
        return "another ellipsoid than " + ", ".join(map(str, same))
    return ""


def main():
    db = database()
    if db is None:
        print("no database of PROJ")
        return SKIPPED
    transformations = [Transformation(row) for row in db.execute(QUERY)]
    rows = table_rows()
    wrong = 0
    for code, (ellipsoid, region, shift) in rows.items():
        text = problem(code, ellipsoid, region, shift, transformations)
        if text:
            wrong += 1
            print("%s %s: %s" % (code, shift, text))
    print("%d rows, %d wrong" % (len(rows), wrong))
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
