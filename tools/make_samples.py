#!/usr/bin/env python3
"""Makes the invented FRQ samples: the same bytes on every machine.

Each climate is a mixture of winds, given for a month and an hour of the day: a share, a mean direction,
a spread of directions (von Mises) and a speed (Weibull). A rose sums them over its months and hours. Its
percentages and its calm figure add up to exactly 100.

    tools/make_samples.py           writes the files
    tools/make_samples.py --check   tells the files that differ from what it makes; exit status 1 if any
"""

import math
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
DIRECTIONS = "N NNE NE ENE E ESE SE SSE S SSW SW WSW W WNW NW NNW".split()
MONTHS = ("January February March April May June July August September October November "
          "December").split()
DAYS = (31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31)
SEASONS = {"Winter": (12, 1, 2), "Spring": (3, 4, 5), "Summer": (6, 7, 8), "Autumn": (9, 10, 11)}
ALL_MONTHS = tuple(range(1, 13))
ALL_HOURS = tuple(range(24))
USUAL_LIMITS = ("0.5", "0.5", "1.8", "3.3", "5.4", "8.5", "10.8")


def season_wave(month, warmest=7):
    """1 in the middle of the warmest month, -1 half a year later."""
    return math.cos(2 * math.pi * (month - warmest) / 12)


def day_wave(hour, warmest=15):
    """1 at the warmest hour of the day, -1 twelve hours later."""
    return math.cos(2 * math.pi * (hour - warmest) / 24)


# Climates: for a month and an hour, winds as (share, mean direction, concentration, mean speed, shape).


def trade_wind_coast(month, hour):
    warm, day = season_wave(month), day_wave(hour)
    return [(0.80, 75 + 12 * warm, 9.0, 6.3 + 0.9 * warm + 0.8 * day, 2.9),
            (0.12, 340, 2.0, 4.0 - 0.8 * warm, 1.9),
            (0.08, 200, 0.7, 2.2, 1.5)]


def mountain_valley(month, hour):
    warm, day = season_wave(month), day_wave(hour, 14)
    up = 0.46 + 0.36 * day
    return [(up, 215, 14.0, 2.9 + 1.3 * max(day, 0) + 0.5 * warm, 2.0),
            (0.92 - up, 38, 10.0, 1.7 - 0.3 * warm, 1.7),
            (0.08, 300, 0.5, 4.1, 1.6)]


def continental_plain(month, hour):
    warm, day = season_wave(month), day_wave(hour)
    return [(0.42 + 0.14 * warm, 175 + 10 * warm, 2.6, 4.4 + 0.9 * day, 2.0),
            (0.40 - 0.14 * warm, 325, 2.2, 5.1 - 0.8 * warm + 0.4 * day, 1.9),
            (0.18, 90, 0.4, 2.6, 1.6)]


def north_sea(month, hour):
    warm = season_wave(month)
    return [(0.58 - 0.05 * warm, 232 + 14 * warm, 1.7, 9.1 - 2.3 * warm, 2.2),
            (0.24 + 0.06 * warm, 330, 1.3, 7.6 - 1.5 * warm + 0.2 * day_wave(hour), 2.1),
            (0.18 - 0.01 * warm, 95, 1.5, 6.9 - 1.2 * warm, 2.1)]


def island_station(month, hour):
    return [(0.70, 268, 1.2, 7.4 - 1.4 * season_wave(month, 1), 2.1),
            (0.30, 120, 0.6, 4.2 + 0.5 * day_wave(hour), 1.8)]


def sector_shares(mean, concentration):
    """Share of each of the 16 sectors, north first and clockwise."""
    shares = [0.0] * 16
    for half_degree in range(720):
        degrees = half_degree / 2 + 0.25
        weight = math.exp(concentration * (math.cos(math.radians(degrees - mean)) - 1))
        shares[int((degrees + 11.25) / 22.5) % 16] += weight
    total = sum(shares)
    return [share / total for share in shares]


def class_shares(speed, shape, limits):
    """Share of calm, then of the six speed classes, of a Weibull distribution with that mean speed."""
    scale = speed / math.gamma(1 + 1 / shape)
    below = [1 - math.exp(-((float(limit) / scale) ** shape)) for limit in limits[1:]]
    upper = below[1:] + [1.0]
    return [below[0]] + [high - low for low, high in zip(below, upper)]


def whole_parts(shares, total):
    """Whole numbers in proportion to the shares that add up to the total (largest remainders)."""
    scale = total / sum(shares)
    parts = [math.floor(share * scale) for share in shares]
    by_remainder = sorted(range(len(shares)), key=lambda i: (parts[i] - round(shares[i] * scale, 6), i))
    for i in by_remainder[:total - sum(parts)]:
        parts[i] += 1
    return parts


class Station:
    """Counts of an invented station by month and hour of the day."""

    def __init__(self, climate, limits, years, missing):
        self.limits = limits
        self.total, self.valid, self.cells = {}, {}, {}
        for month in ALL_MONTHS:
            days = sum(DAYS[month - 1] + (month == 2 and year % 4 == 0) for year in years)
            for hour in ALL_HOURS:
                key = (month, hour)
                self.total[key] = days
                self.valid[key] = days - (days * missing + 7 * month + 3 * hour) // 100
                self.cells[key] = self.mixture(climate(month, hour))

    def mixture(self, winds):
        """Share of calm, then of the classes by direction."""
        calm, cells = 0.0, [0.0] * 96
        for share, mean, concentration, speed, shape in winds:
            classes = class_shares(speed, shape, self.limits)
            calm += share * classes[0]
            for direction, part in enumerate(sector_shares(mean, concentration)):
                for i in range(6):
                    cells[6 * direction + i] += share * part * classes[i + 1]
        return [calm] + cells

    def rose(self, months, hours):
        """Total and valid periods, then the whole counts: calm, and the classes by direction."""
        keys = [(month, hour) for month in months for hour in hours]
        valid = sum(self.valid[key] for key in keys)
        shares = [sum(self.valid[key] * self.cells[key][i] for key in keys) for i in range(97)]
        return sum(self.total[key] for key in keys), valid, whole_parts(shares, valid)


def rose_lines(station, title, months, hours, version, decimals):
    total, valid, counts = station.rose(months, hours)
    calm = math.floor(10000 * counts[0] / valid + 0.5)  # hundredths of a percent
    units = 10 ** decimals
    percents = whole_parts(counts[1:], 100 * units - calm * units // 100)
    lines = [] if version == "2.0" else [""]
    lines += [title, "Direction: six wind speed classes"]
    for i, direction in enumerate(DIRECTIONS):
        cells = "".join(f"{percents[6 * i + c] / units:10.{decimals}f}%" for c in range(6))
        lines.append(f"{direction:>3} :{cells}")
    lines += ["-" * 70, f"Calm Winds: {calm / 100:.2f}%"]
    if version == "2.0":
        return lines + [""]
    return lines + [f"Total Periods = {total}; Valid Periods = {valid}; Calm Wind Periods = {counts[0]}"]


def header_lines(version, titles, height, limits, period, notes):
    fields = [*titles, f"Height: {height} m", "Wind Speed Classes (m/s): " + ",".join(limits), period]
    first = f"WIND.FRQ        {version}             Zephyrgraph FRQ File Format"
    if version in ("2.0", "2.1"):
        return [first, str(6 + len(notes)), "Frequencies of an invented station", *fields, *notes]
    return [first, f"{len(notes)} - Comment lines", *notes, "5 - Header lines", *fields]


def sample(version, station, roses, header, decimals=4):
    lines = list(header)
    for title, months, hours in roses:
        lines += rose_lines(station, title, months, hours, version, decimals)
    return "".join(line + "\r\n" for line in lines).encode("ascii")


def seasons():
    return [(title, months, ALL_HOURS) for title, months in SEASONS.items()]


def months():
    return [(name, (number,), ALL_HOURS) for number, name in enumerate(MONTHS, 1)]


def hour_ranges(length):
    """Ranges of hours named by the end of their hours: 01 is the hour from 0 to 1."""
    for first in range(0, 24, length):
        last = (first + length) % 24
        yield (f"Hours {first + 1:02}-{last:02}", ALL_MONTHS, tuple(range(first, first + length)))


ALL_PERIODS = ("All Periods", ALL_MONTHS, ALL_HOURS)


def make_trade_wind_coast():
    station = Station(trade_wind_coast, USUAL_LIMITS, (2001,), 2)
    header = header_lines("2.0", ("Trade Wind Coast", "Invented station, northern tropics"), "10.0",
                          USUAL_LIMITS, "2001 1 1 0 2001 12 31 23", [])
    return sample("2.0", station, [ALL_PERIODS, *seasons()], header, decimals=2)


def make_mountain_valley():
    station = Station(mountain_valley, USUAL_LIMITS, (2003, 2004), 4)
    header = header_lines("2.1", ("Mountain Valley", "Invented station, valley and mountain breezes"), "15.0",
                          USUAL_LIMITS, "2003 1 1 0 2004 12 31 24",
                          ["The valley runs from northeast to southwest", "Day is from 8 to 20 hours"])
    day = tuple(range(8, 20))
    night = tuple(hour for hour in ALL_HOURS if hour not in day)
    return sample("2.1", station, [ALL_PERIODS, ("Day", ALL_MONTHS, day), ("Night", ALL_MONTHS, night)],
                  header, decimals=3)


def make_continental_plain():
    limits = ("0.5", "0.5", "2.1", "3.6", "5.7", "8.8", "11.1")
    station = Station(continental_plain, limits, range(2001, 2006), 1)
    header = header_lines("2.2", ("Continental Plain", "Invented station, five years"), "10.0", limits,
                          "2001 1 1 0 0 2005 12 31 24 0",
                          ["Made by tools/make_samples.py", "No station of the real world"])
    return sample("2.2", station, [ALL_PERIODS, *seasons()], header)


def make_island_station():
    station = Station(island_station, USUAL_LIMITS, (2004,), 3)
    header = header_lines("2.2", ("", "Island station without a first title"), "12.5", USUAL_LIMITS,
                          "2004 1 1 0 1800 2004 12 31 23 1800", ["Made by tools/make_samples.py"])
    return sample("2.2", station, [("Year 2004", ALL_MONTHS, ALL_HOURS)], header)


def make_north_sea():
    limits = ("0.5", "0.5", "2.0", "4.0", "6.0", "8.0", "12.0")
    station = Station(north_sea, limits, range(2001, 2011), 2)
    header = header_lines("2.3", ("North Sea", "Invented platform, ten years"), "70.0", limits,
                          "2001 1 1 0 0 2010 12 31 24 0 UTC+0000", ["Made by tools/make_samples.py"])
    return sample("2.3", station, [ALL_PERIODS, *months(), *seasons(), *hour_ranges(3)], header)


def make_header_only():
    header = header_lines("2.3", ("Silent Station", "All data are missing"), "10.0", USUAL_LIMITS,
                          "2001 1 1 0 0 2001 12 31 24 0 UTC+0000", ["Made by tools/make_samples.py"])
    return sample("2.3", None, [], header)


FILES = {
    "data/samples/trade_wind_coast.frq": make_trade_wind_coast,
    "data/samples/mountain_valley.frq": make_mountain_valley,
    "data/samples/continental_plain.frq": make_continental_plain,
    "data/samples/island_station.frq": make_island_station,
    "data/samples/north_sea.frq": make_north_sea,
    "tests/graph/frq/data/header_only.frq": make_header_only,
}


def check():
    differing = [name for name, make in FILES.items()
                 if not (ROOT / name).is_file() or (ROOT / name).read_bytes() != make()]
    for name in differing:
        print(f"{name} is not what tools/make_samples.py makes", file=sys.stderr)
    return 1 if differing else 0


def main(arguments):
    if arguments == ["--check"]:
        return check()
    if arguments:
        print("usage: make_samples.py [--check]", file=sys.stderr)
        return 2
    for name, make in FILES.items():
        path = ROOT / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(make())
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
