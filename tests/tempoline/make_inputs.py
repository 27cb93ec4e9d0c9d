"""Invented data for every kind of input: more than a year with all the difficult cases."""
import random
from datetime import datetime, timedelta

HOUR = timedelta(hours=1)
SPEEDS = [0.0, 0.0, 0.49, 0.499999, 0.5, 1.79, 1.8, 3.29, 3.3, 5.39, 5.4, 8.49, 8.5, 10.79, 10.8, 90.0, 90.01, -1.0]
DIRECTIONS = [0.0, 360.0, 11.24, 11.25, 33.74, 33.75, 101.25, 191.25, 348.74, 348.75, 359.99, 360.01, -0.5]
FIRST = datetime(2003, 12, 30, 0)
HOURS = 24 * 370  # across the leap day and past the end of 2004
HOURS_OF_A_QUARTER = 24 * 95  # past the end of March


class Winds:
    def __init__(self, seed, missing_speed, missing_direction):
        self.random = random.Random(seed)
        self.missing = missing_speed, missing_direction

    def next(self):
        """Speed and direction with at most six decimals."""
        draw = self.random.random()
        speed = self.random.choice(SPEEDS) if draw < 0.35 else round(self.random.gammavariate(2, 2), 2)
        draw = self.random.random()
        direction = self.random.choice(DIRECTIONS) if draw < 0.3 else round(self.random.uniform(0, 360), 1)
        draw = self.random.random()
        if draw < 0.02:
            speed = self.missing[0]
        if 0.01 < draw < 0.04:
            direction = self.missing[1]
        return speed, direction

    def absent(self):
        return self.random.random() < 0.01


def hours(count=HOURS):
    """Begins of hours."""
    return [FIRST + i * HOUR for i in range(count)]


def halves(count):
    moments = hours(count)
    return moments[:count // 2], moments[count // 2:]


def ending(moment):
    """The parts of an hour's end, midnight as hour 24 of the day before."""
    end = moment + HOUR
    if end.hour == 0:
        day = end - timedelta(days=1)
        return day.year, day.month, day.day, 24, day.timetuple().tm_yday
    return end.year, end.month, end.day, end.hour, end.timetuple().tm_yday


def write(path, lines, line_end="\r\n"):
    with open(path, "w", encoding="ascii", newline="") as file:
        file.write(line_end.join(lines) + line_end)


def aermet_surface(path):
    winds = Winds(1, 999.0, 999.0)
    lines = ["   41.300N   74.000W          UA_ID: 14735     SF_ID: 14735     OS_ID: TEST        VERSION: 24142"]
    for moment in hours():
        speed, direction = winds.next()
        year, month, day, hour, julian = ending(moment)
        if speed == 0.0:
            direction = 0.0
        if winds.absent():
            continue
        lines.append("%02d %2d %2d %3d %2d   -0.1  0.011 -9.000 -9.000 -999.    3.      2.1  0.0010   0.10   1.00 %s %s "
                     "  10.0  273.8   10.0    99  -9.00    70.  1007.    10 NAD-OS  NoSubs" %
                     (year % 100, month, day, julian, hour, speed, direction))
    write(path, lines)


def aermet_profile(path):
    winds = Winds(2, 99.00, 999.0)
    lines = []
    for moment in hours():
        year, month, day, hour, _ = ending(moment)
        if winds.absent():
            continue
        for height, top in ((10.0, 0), (30.0, 0), (50.0, 1)):
            speed, direction = winds.next()
            lines.append("%4d %2d %2d %2d %6.1f %d %s %s 0.64 48.70 0.11" % (year, month, day, hour, height, top, direction, speed))
    write(path, lines, "\n")


def surf(path, version):
    winds = Winds(3, 9999.0, 9999.0)
    stations = ["1001", "1002", "1003", "1004", "1005"]
    lines = ["SURF.DAT        %s             Header" % version, "2", "a comment", "another", "NONE"]
    if version == "2.1":
        lines += ["UTC+0530", "2003 364 0 0 2005 1 24 0 5"]
    else:
        lines += ["2003 364 1 2005 1 24 5.5 5"]
    lines += stations
    for moment in hours():
        if winds.absent():
            continue
        end = moment + HOUR
        if version == "2.1":
            first = "%d %d %d 0" % (moment.year, moment.timetuple().tm_yday, moment.hour)
            lines.append(first + " %d %d %d 0" % (end.year, end.timetuple().tm_yday, end.hour))
        else:
            year, _, _, hour, julian = ending(moment)
            lines.append("%d %d %d" % (year, julian, hour))
        for _ in stations:
            lines.append("  %s %s 10 5 280.15 80 1010.0 0" % winds.next())
    write(path, lines)


def up(path, version):
    winds = Winds(4, 999.9, 9999.0)
    lines = ["UP.DAT          %s             Header" % version, "1", "a comment", "NONE"]
    if version == "2.1":
        lines += ["UTC+0000", "2003 364 0 0 2005 1 23 0"]
    else:
        lines += ["2003 364 0 2005 1 23"]
    lines += ["500. 2 2", "6201 00004417"]
    for moment in [FIRST + i * 6 * HOUR for i in range(HOURS // 6)]:
        if winds.absent():
            continue
        base = winds.random.choice([5.0, 120.0])
        levels = [0, 10, 45, 100, 400, 1500][:winds.random.choice([1, 3, 5, 6, 6, 6])]
        if version == "2.1":
            end = moment + HOUR
            times = "%d %d %d %d 0 %d %d %d %d 0" % (moment.year, moment.month, moment.day, moment.hour,
                                                    end.year, end.month, end.day, end.hour)
        else:
            times = "%d %d %d %d" % ending(moment)[:4]
        lines.append("6201 4417 %s %d %d" % (times, 50, len(levels)))
        texts = []
        for height in levels:
            speed, direction = winds.next()
            known = "9999" if winds.random.random() < 0.01 else "%.1f" % (base + height)
            texts.append(("%.1f,%s,%.1f,%s,%s" if version == "2.1" else "%.1f/%s/%.1f/%s/%s") %
                         (1000 - height / 9, known, 288.0, direction, speed))
        for at in range(0, len(texts), 4):
            lines.append("   " + "  ".join(texts[at:at + 4]))
    write(path, lines)


def monitor(path, minutes):
    winds = Winds(5, -999, -999)
    lines = ['"DATETIME","STNCODE","DATAAVID","TEMP","wspd","WINDDIRECTION","WS"']
    for moment in [FIRST + i * timedelta(minutes=minutes) for i in range(HOURS * 60 // minutes)]:
        end = moment + timedelta(minutes=minutes)
        for station in ("00072", "72"):
            speed, direction = winds.next()
            if winds.absent():
                continue
            texts = ["" if value == -999 and winds.random.random() < 0.5 else str(value) for value in (speed, direction)]
            lines.append('"%d/%d/%d %d:%02d","%s",%d,12.5,%s,%s,7' %
                         (end.month, end.day, end.year, end.hour, end.minute, station, minutes, *texts))
    write(path, lines)


def csv(path):
    """A logger's table: a byte order mark, units, decimal commas, day first, words for what is missing, reports between the hours."""
    winds = Winds(9, -999, -999)
    lines = ["\ufefflogger 12", "Nr;Datum;Zeit;Speed;\"Dir; true\";T", ";;;km/h;deg;C"]
    for number, moment in enumerate(hours()):
        for minute in [0] + ([winds.random.choice([15, 40, 53])] if winds.random.random() < 0.1 else []):
            speed, direction = winds.next()
            if winds.absent():
                continue
            texts = [winds.random.choice(["", "M", "NaN", "-999", "9999,0"]) if value == -999 else ("%.6f" % value).replace(".", ",")
                     for value in (3.6 * speed if speed != -999 else -999, direction)]
            if direction == 0.0 and winds.random.random() < 0.5:
                texts[1] = "VRB"
            lines.append("%d;%s;%s;%s;\"%s\";1,5" % (number, moment.strftime("%d/%m/%y"), "%d:%02d" % (moment.hour, minute), *texts))
        if winds.random.random() < 0.01:
            lines.append(winds.random.choice(["", ";;;;;", "   "]))
    with open(path, "w", encoding="utf-8", newline="") as file:
        file.write("\r\n".join(lines) + "\r\n")


def tsf(path):
    winds = Winds(6, 9999.0, 9999.0)
    lines = ["TIMESERIES.TSF  1.3             Series", "1 - Comment lines", "made by hand", "a title", "MET",
             "Station: STATION ID = 14735", "UTC+0100", "GREGORIAN_YMD", "2003 12 30 0 0 2005 1 3 0 0 3600",
             "3 - Variables", "TEMP  K", "WDIR  DEG", "WSPEED  M/S"]
    for moment in hours():
        speed, direction = winds.next()
        if winds.absent():
            continue
        end = moment + HOUR
        lines.append("%d %d %d %d 0 %d %d %d %d 0 280.0 %s %s" % (moment.year, moment.month, moment.day, moment.hour,
                                                                end.year, end.month, end.day, end.hour, direction, speed))
    write(path, lines)


MERCATOR = "EM 0.0 -97.0 20.0 NONE 540.0 1950.0 30.0 20 20 30"
DEGREES = "LL 40.0 -97.0 30.0 60.0 -75.0 40.0 0.25 20 20 30"
CONE = "LCC 40.0 -97.0 30.0 60.0 -120.0 -90.0 30.0 20 20 30"


def m3d(paths, projection=DEGREES, count=HOURS):
    """Two consecutive files."""
    winds = Winds(7, 9999.0, 9999.0)
    cells = [(i, j) for j in range(2, 5) for i in range(3, 7)]
    for path, moments in zip(paths, halves(count)):
        lines = ["3D.DAT          2.1             Header", "1", "a comment", "1 1 1 1 0 1",
                 projection, "1 2 3",
                 "%s %d 4 3 2" % (moments[0].strftime("%Y%m%d%H"), len(moments)), "3 2 6 4 1 2 -75 -73 40 41", "0.99", "0.95"]
        lines += ["%d %d %.3f %.3f 100 5" % (i, j, 40 + 0.25 * (j - 1), -75 + 0.25 * (i - 1)) for i, j in cells]
        for moment in moments:
            stamp = moment.strftime("%Y%m%d%H")
            for i, j in cells:
                ten = winds.next()
                lines.append("%s %d %d 1010.0 0.0 0 0.0 0.0 280.0 4.0 %s %s 280.0" % (stamp, i, j, ten[1], ten[0]))
                for height in (20.0 + i, 80.0 + j):
                    speed, direction = winds.next()
                    lines.append("  1000.0 %.1f 280.0 %s %s 0.0 80 4.0" % (height, direction, speed))
        write(path, lines)


ZONE = "UTM NAR-C S 18 0 0 NONE NONE NONE NONE", "4 3 2 500.0 4500.0 2.0"
LAMBERT = "LCC NWS-84 N NONE 12.5 -7.5 40.0 -97.0 30.0 60.0", "4 3 2 1700.0 100.0 12.0"


def ventos(paths, grid=ZONE, count=HOURS):
    """Two consecutive files; some components give speeds exactly on class limits."""
    winds = Winds(8, 0, 0)
    pairs = [(0.0, 0.0), (0.3, 0.4), (-0.3, -0.4), (3.24, 4.32), (-1.08, 1.44), (0.0, -8.5), (10.8, 0.0), (99.0, 99.0)]
    for path, moments in zip(paths, halves(count)):
        last = moments[-1] + HOUR
        stamp = lambda m: "%d %d %d %d 0" % (m.year, m.month, m.day, m.hour)
        lines = ["VENTOS.DAT      2.1             Header", "1", "a comment",
                 "%s %s UTC+0000 3600" % (stamp(moments[0]), stamp(last)),
                 *grid, "0. 20. 100."]
        for moment in moments:
            lines.append(stamp(moment))
            drawn = []
            for _ in range(2 * 3 * 4):
                if winds.random.random() < 0.3:
                    drawn.append(winds.random.choice(pairs))
                else:
                    drawn.append((round(winds.random.gauss(0, 3), 2), round(winds.random.gauss(0, 3), 2)))
            for part in (0, 1):
                for at in range(0, len(drawn), 4):
                    lines.append(" ".join(str(pair[part]) for pair in drawn[at:at + 4]))
        write(path, lines)
