"""The roses of a data file directly from their definition, without any of the processor's own code.

Everything is read whole and kept in lists; a step looks at all records that touch it. Times are Python's own.
"""
import functools
import math
import re
from datetime import datetime, timedelta

HOUR = timedelta(hours=1)
LABELS = ["N", "NNE", "NE", "ENE", "E", "ESE", "SE", "SSE", "S", "SSW", "SW", "WSW", "W", "WNW", "NW", "NNW"]


# ---- the control file -------------------------------------------------------------------------------------

def control_of(path):
    """The assignments as a list of (key, value), and the single ones as a dictionary."""
    with open(path, encoding="latin-1", newline="") as file:
        lines = file.read().split("\n")[2:]
    pairs = []
    for line in lines:
        for key, value in re.findall(r"! *([A-Z0-9]+) *= *(.*?) *!", line):
            pairs.append((key, value))
    return pairs, dict(pairs)


def zone_of(text):
    sign = -1 if text[3] == "-" else 1
    return sign * timedelta(hours=int(text[4:6]), minutes=int(text[6:8]))


@functools.lru_cache(maxsize=1)  # the records of one hour come together
def day_and_hour(text):
    """YYYYMMDDHH, where HH may be 24."""
    return datetime.strptime(text[:8], "%Y%m%d") + timedelta(hours=int(text[8:]))


class Request:
    def __init__(self, name, station, x, y, height):
        self.name, self.station, self.x, self.y, self.height = name, station, x, y, height


def requests_of(pairs, single):
    if single["MDATA"] == "TSF":
        return [Request(single["ROSEPLT"], "", 0, 0, None)]
    names, result, number = {}, {}, None
    for key, value in pairs:
        if key == "TSFID":
            number = value
        elif key == "TSFOUT":
            names[number] = value
        elif key == "MET":
            items = [item.strip() for item in value.split(",")]
            if len(items) == 6:
                items.insert(0, "")
            result[number] = Request(names[number], items[0], float(items[1]), float(items[2]), float(items[3]))
    return [result[number] for number in names]


# ---- winds ------------------------------------------------------------------------------------------------

def value_of(text):
    number = float(text)
    return number if math.isfinite(number) else None


def good_speed(speed):
    return speed is not None and 0 <= speed <= 90


def good_direction(direction):
    return direction is not None and 0 <= direction <= 360


def components(speed, direction):
    if speed == 0:
        return 0.0, 0.0
    angle = math.radians(direction)
    return -speed * math.sin(angle), -speed * math.cos(angle)


def usable(speed, direction):
    return good_speed(speed) and (speed == 0 or good_direction(direction))


def wind_of(u, v):
    """Computed values are rounded to a millionth."""
    speed = round(math.sqrt(u * u + v * v), 6)
    if speed == 0:
        return 0.0, None
    return speed, round(math.degrees(math.atan2(-u, -v)) % 360, 6)


def between_levels(levels, height):
    """Levels (height, speed, direction) that rise; missing outside them."""
    for level in levels:
        if level[0] == height:
            return level[1], level[2]
    for low, high in zip(levels, levels[1:]):
        if low[0] < height < high[0]:
            if not usable(*low[1:]) or not usable(*high[1:]):
                return None, None
            share = (height - low[0]) / (high[0] - low[0])
            a, b = components(*low[1:]), components(*high[1:])
            return wind_of(a[0] + share * (b[0] - a[0]), a[1] + share * (b[1] - a[1]))
    return None, None


# ---- data files: each gives, for every request, a list of (begin, end, speed, direction) in the zone of the run ---

def full_year(year):
    return year if year > 99 else 1900 + year if year >= 30 else 2000 + year


def lines_of(path):
    with open(path, encoding="latin-1", newline="") as file:
        return [line.rstrip("\r") for line in file.read().split("\n")]


def hour_stamp(year, month, day, hour, second=0):
    return datetime(full_year(int(year)), int(month), int(day)) + timedelta(hours=int(hour), seconds=int(second))


def julian_stamp(year, day, hour, second=0):
    return datetime(full_year(int(year)), 1, 1) + timedelta(days=int(day) - 1, hours=int(hour), seconds=int(second))


def aermet_surface(paths, requests, zone, single):
    records = []
    for line in lines_of(paths[0])[1:]:
        fields = line.split()
        if fields:
            end = hour_stamp(fields[0], fields[1], fields[2], fields[4])
            records.append((end - HOUR, end, value_of(fields[15]), value_of(fields[16])))
    return [records]


def aermet_profile(paths, requests, zone, single):
    hours = {}
    for line in lines_of(paths[0]):
        fields = line.split()
        if fields:
            end = hour_stamp(*fields[0:4])
            hours.setdefault(end, []).append((float(fields[4]), value_of(fields[7]), value_of(fields[6])))
    result = []
    for request in requests:
        nearest = lambda level: (abs(level[0] - request.height), level[0])
        records = []
        for end, levels in hours.items():
            level = sorted(levels, key=nearest)[0]
            records.append((end - HOUR, end, level[1], level[2]))
        result.append(records)
    return result


def header_end(lines, comments_line):
    return comments_line + 1 + int(lines[comments_line].split("-")[0])


def surf(paths, requests, zone, single):
    lines = lines_of(paths[0])
    version = lines[0].split()[1]
    at = header_end(lines, 1) + 1
    if version == "2.1":
        shift = zone - zone_of(lines[at].strip())
        count = int(lines[at + 1].split()[8])
        at += 2
    else:
        fields = lines[at].split()
        shift = zone + timedelta(hours=float(fields[6]))
        count = int(fields[7])
        at += 1
    stations = [line.strip() for line in lines[at:at + count]]
    at += count
    result = [[] for _ in requests]
    while at < len(lines) and lines[at].strip():
        fields = lines[at].split()
        if version == "2.1":
            begin, end = julian_stamp(*fields[0:4]), julian_stamp(*fields[4:8])
        else:
            end = julian_stamp(*fields[0:3])
            begin = end - HOUR
        for request, records in zip(requests, result):
            values = lines[at + 1 + stations.index(request.station)].split()
            records.append((begin + shift, end + shift, value_of(values[0]), value_of(values[1])))
        at += 1 + count
    return result


def up(paths, requests, zone, single):
    lines = lines_of(paths[0])
    version = lines[0].split()[1]
    at = header_end(lines, 1) + 1
    shift = zone
    if version == "2.1":
        shift = zone - zone_of(lines[at].strip())
        at += 1
    at += 3
    result = [[] for _ in requests]
    while at < len(lines) and lines[at].strip():
        fields = lines[at].split()
        if version == "2.1":
            begin, end = hour_stamp(*fields[2:7]), hour_stamp(*fields[7:12])
        else:
            end = hour_stamp(*fields[2:6])
            begin = end - HOUR
        count = int(fields[-1])
        at += 1
        levels = []
        while len(levels) < count:
            for level in lines[at].split():
                parts = re.split("[,/]", level)
                levels.append((float(parts[1]), value_of(parts[4]), value_of(parts[3])))
            at += 1
        known = [level for level in levels if level[0] != 9999]
        ground = known[0][0] if known else None
        rising = [level for level in known if usable(level[1], level[2])]
        for request, records in zip(requests, result):
            wind = between_levels(rising, ground + request.height) if known else (None, None)
            records.append((begin + shift, end + shift, *wind))
    return result


def monitor(paths, requests, zone, single):
    rows = [line.replace('"', "").split(",") for line in lines_of(paths[0]) if line.strip()]
    names = [name.strip() for name in rows[0]]
    upper = [name.upper() for name in names]
    first = lambda wanted: next(i for i, name in enumerate(upper) if name in wanted)
    direction = first({"WDIR", "WD", "WIND_DIR", "WINDDIRECTION"})
    speed = first({"WSPD", "WSPEED", "WS", "WIND_SPEED", "WINDSPEED"})
    time, station, average = (names.index(name) for name in ("DATETIME", "STNCODE", "DATAAVID"))
    number = lambda text: None if text.strip() in ("", "-999") else value_of(text)
    records = []
    for row in rows[1:]:
        if row[station].strip() != requests[0].station:
            continue
        date, clock = row[time].split()[:2]
        month, day, year = date.split("/")
        hour, minute = clock.split(":")[:2]
        end = datetime(int(year), int(month), int(day)) + timedelta(hours=int(hour), minutes=int(minute))
        records.append((end - timedelta(minutes=int(row[average])), end, number(row[speed]), number(row[direction])))
    return [records]


def csv(paths, requests, zone, single):
    """Of the tables of the tests: day first, date and time in two columns, kilometres an hour with decimal commas."""
    number = lambda text: None if text in ("", "M", "NaN", "VRB", "-999", "9999,0") else float(text.replace(",", "."))
    times, winds = [], []
    for line in lines_of(paths[0])[int(single["CSVHEAD"]):]:
        row = [text.strip().strip('"') for text in line.split(";")]
        if not any(row):
            continue
        day, month, year = (int(text) for text in row[1].split("/"))
        hour, minute = (int(text) for text in row[2].split(":"))
        times.append(datetime(full_year(year), month, day, hour, minute))
        speed = number(row[3])
        winds.append((None if speed is None else round(speed / 3.6, 6), number(row[4])))
    ends = [min(time + HOUR, after) for time, after in zip(times, times[1:] + [times[-1] + HOUR])]
    return [[(begin, end, *wind) for begin, end, wind in zip(times, ends, winds)]]


def tsf(paths, requests, zone, single):
    lines = lines_of(paths[0])
    at = header_end(lines, 1)
    while not lines[at].upper().startswith("UTC"):
        at += 1
    shift = zone - zone_of(lines[at].strip())
    count = int(lines[at + 3].split("-")[0])
    names = [line.split()[0] for line in lines[at + 4:at + 4 + count]]
    known = lambda text: None if float(text) == 9999 else value_of(text)
    records = []
    for line in lines[at + 4 + count:]:
        fields = line.split()
        if fields:
            records.append((hour_stamp(*fields[0:5]) + shift, hour_stamp(*fields[5:10]) + shift,
                            known(fields[10 + names.index("WSPEED")]), known(fields[10 + names.index("WDIR")])))
    return [records]


def neutral(speed, lowest, height):
    return round(speed * math.log(height / 0.1) / math.log(lowest / 0.1), 6) if height > 0.1 else 0.0


def corners(x, y, first, last, nearest):
    """Cells and weights around a place in cells, by the four products of bilinear interpolation."""
    if nearest:
        return [((math.floor(x + 0.5), math.floor(y + 0.5)), 1.0)]
    i, j = min(math.floor(x), last[0] - 1), min(math.floor(y), last[1] - 1)
    a, b = x - i, y - j
    all_four = [((i, j), (1 - a) * (1 - b)), ((i + 1, j), a * (1 - b)), ((i, j + 1), (1 - a) * b), ((i + 1, j + 1), a * b)]
    return [(cell, weight) for cell, weight in all_four if weight > 0]


def joined(shares, winds):
    if len(shares) == 1:
        return winds[0]
    if not all(usable(*wind) for wind in winds):
        return None, None
    parts = [(weight, components(*wind)) for (_, weight), wind in zip(shares, winds)]
    return wind_of(sum(w * p[0] for w, p in parts), sum(w * p[1] for w, p in parts))


def cone(projection, longitude, latitude):
    """Kilometres of the Lambert conformal projection of a sphere, by its closed formula."""
    latitude0, longitude0, latitude1, latitude2 = (math.radians(float(text)) for text in projection[1:5])
    half = lambda angle: math.tan(math.pi / 4 + angle / 2)
    n = math.log(math.cos(latitude1) / math.cos(latitude2)) / math.log(half(latitude2) / half(latitude1))
    rho = lambda angle: 6370 * math.cos(latitude1) * half(latitude1) ** n / n / half(angle) ** n
    turn = n * (math.radians(longitude) - longitude0)
    there = rho(math.radians(latitude))
    return there * math.sin(turn), rho(latitude0) - there * math.cos(turn)


def m3d(paths, requests, zone, single):
    """Places in cells, degrees on a cone, or as the grid has them."""
    result = [[] for _ in requests]
    for path in paths:
        lines = lines_of(path)
        at = header_end(lines, 1) + 1
        projection = lines[at].split()
        x1, y1, size = (float(text) for text in projection[5:8])
        i1, j1, i2, j2, k1, k2 = (int(text) for text in lines[at + 3].split()[:6])
        levels, cells = k2 - k1 + 1, (i2 - i1 + 1) * (j2 - j1 + 1)
        at += 4 + levels + cells
        in_cells = single["MCELL"] == "1"
        on_cone = projection[0] == "LCC" and single["PMAP"] == "LL"
        on_map = lambda r: cone(projection, r.x, r.y) if on_cone else (r.x, r.y)
        in_grid = lambda x, y: (1 + (x - x1) / size, 1 + (y - y1) / size)
        places = [(r.x, r.y) if in_cells else in_grid(*on_map(r)) for r in requests]
        shares = [corners(x, y, (i1, j1), (i2, j2), single["METSIM"] == "2") for x, y in places]
        while at < len(lines) and lines[at].strip():
            hour = {}
            for _ in range(cells):
                fields = lines[at].split()
                stamp = day_and_hour(fields[0])
                column = [[value_of(text) for text in line.split()] for line in lines[at + 1:at + 1 + levels]]
                hour[int(fields[1]), int(fields[2])] = ((value_of(fields[11]), value_of(fields[10])),
                                                        [(c[1], c[4], c[3]) for c in column])
                at += 1 + levels
            for request, share, records in zip(requests, shares, result):
                winds = []
                for cell, _ in share:
                    surface, column = hour[cell]
                    if request.height >= column[0][0]:
                        winds.append(between_levels(column, request.height))
                    elif single["MPROF"] == "4":
                        winds.append(surface)
                    elif good_speed(column[0][1]):
                        winds.append((neutral(column[0][1], column[0][0], request.height), column[0][2]))
                    else:
                        winds.append((None, None))
                records.append((stamp + zone, stamp + zone + HOUR, *joined(share, winds)))
    return result


def half_tangent(angle):
    return math.tan(math.pi / 4 + angle / 2)


def turn_of_cone(projection, x, y):
    """Degrees from the meridian of a cone over a sphere: on its flat map, the angle between the meridians."""
    latitude0, _, latitude1, latitude2 = (math.radians(float(text)) for text in projection[6:10])
    n = math.log(math.cos(latitude1) / math.cos(latitude2)) / math.log(half_tangent(latitude2) / half_tangent(latitude1))
    to_origin = 6370 * math.cos(latitude1) * (half_tangent(latitude1) / half_tangent(latitude0)) ** n / n
    return math.degrees(math.atan2(x - float(projection[4]), to_origin - (y - float(projection[5]))))


def turn_of_zone(projection, x, y):
    """Degrees of a transverse Mercator zone, by the series in the distance from its meridian (GRS 1980)."""
    a, e2 = 6378.137, (2 - 1 / 298.257222101) / 298.257222101
    north = (y - (10000 if projection[2] == "S" else 0)) / 0.9996
    rho = lambda angle: a * (1 - e2) / (1 - e2 * math.sin(angle) ** 2) ** 1.5
    foot = north / a
    for _ in range(20):  # the latitude with this meridian arc, by Simpson's rule
        parts, width = 200, foot / 200
        arc = sum((1 if i in (0, parts) else 4 if i % 2 else 2) * rho(i * width) for i in range(parts + 1)) * width / 3
        foot += (north - arc) / rho(foot)
    nu = a / math.sqrt(1 - e2 * math.sin(foot) ** 2)
    t, psi, x = math.tan(foot), nu / rho(foot), (x - 500) / 0.9996 / nu
    return math.degrees(t * x - t * x ** 3 / 3 * (t * t + 3 * psi - 2 * psi * psi))


def turn_of_grid(projection, x, y):
    """Degrees by which grid north is clockwise of true north."""
    return {"LL": lambda *_: 0.0, "LCC": turn_of_cone, "UTM": turn_of_zone}[projection[0]](projection, x, y)


def ventos(paths, requests, zone, single):
    """Places in the projection of the grid."""
    result = [[] for _ in requests]
    for path in paths:
        lines = lines_of(path)
        at = header_end(lines, 1)
        period = lines[at].split()
        shift, step = zone - zone_of(period[10]), timedelta(seconds=int(period[11]))
        turns = [turn_of_grid(lines[at + 1].split(), r.x, r.y) for r in requests]
        nx, ny, nz = (int(text) for text in lines[at + 2].split()[:3])
        x0, y0, size = (float(text) for text in lines[at + 2].split()[3:])
        faces = [float(text) for text in lines[at + 3].split()]
        heights = [(low + high) / 2 for low, high in zip(faces, faces[1:])]
        at += 4
        places = [((r.x - x0) / size + 0.5, (r.y - y0) / size + 0.5) for r in requests]
        shares = [corners(x, y, (1, 1), (nx, ny), single["METSIM"] == "2") for x, y in places]
        while at < len(lines) and lines[at].strip():
            begin = hour_stamp(*lines[at].split()) + shift
            at += 1
            field = []
            for _ in "uv":
                rows = [[float(text) for text in line.split()] for line in lines[at:at + nz * ny]]
                field.append([rows[k * ny:(k + 1) * ny] for k in range(nz)])
                at += nz * ny
            for request, share, turn, records in zip(requests, shares, turns, result):
                def level(k):
                    return [sum(w * f[k][j - 1][i - 1] for (i, j), w in share) for f in field]

                def bad(k):
                    return any(abs(f[k][j - 1][i - 1]) > 90 for (i, j), _ in share for f in field)

                z = request.height
                if z <= heights[0]:
                    used = [0]
                    wind = wind_of(*level(0))
                    if z < heights[0] and good_speed(wind[0]):
                        wind = (neutral(wind[0], heights[0], z), wind[1])
                elif z > heights[-1]:
                    used, wind = [], (None, None)
                else:
                    high = next(k for k in range(nz) if heights[k] >= z)
                    used = [high - 1, high] if heights[high] != z else [high]
                    share_up = (z - heights[high - 1]) / (heights[high] - heights[high - 1])
                    low_uv, high_uv = level(high - 1), level(high)
                    wind = wind_of(*(a + share_up * (b - a) for a, b in zip(low_uv, high_uv)))
                    if used == [high]:
                        wind = wind_of(*high_uv)
                if any(bad(k) for k in used):
                    wind = (None, None)
                if wind[1] is not None:
                    wind = (wind[0], round((wind[1] + turn) % 360, 6))
                records.append((begin, begin + step, *wind))
    return result


READERS = {"AERMSFC": aermet_surface, "AERMPFL": aermet_profile, "SURF": surf, "UP": up, "MONITORW": monitor,
           "TSF": tsf, "M3D": m3d, "VENTOS": ventos, "CSV": csv}


# ---- steps and roses --------------------------------------------------------------------------------------

def average(parts, step, calm_limit):
    """parts: (seconds, speed, direction) of the valid records of one step."""
    covered = sum(part[0] for part in parts)
    if not parts or 2 * covered < step:
        return None, None
    if len(parts) == 1:
        return parts[0][1:]
    speed = round(sum(part[0] * part[1] for part in parts) / covered, 6)
    east = north = 0.0
    for seconds, part_speed, direction in parts:
        if part_speed > 0 and good_direction(direction):
            east += seconds * math.sin(math.radians(direction))
            north += seconds * math.cos(math.radians(direction))
    if math.sqrt(east * east + north * north) <= 1e-9 * covered:
        return speed, None
    return speed, round(math.degrees(math.atan2(east, north)) % 360, 6)


def steps_of(records, begin, count, step, calm_limit):
    """The wind of every step of the period."""
    parts = [[] for _ in range(count)]
    length = timedelta(seconds=step)
    end_of_period = begin + count * length
    seen = set()
    for record_begin, record_end, speed, direction in records:
        if record_begin in seen:
            continue
        seen.add(record_begin)
        valid = good_speed(speed) and (speed < calm_limit or good_direction(direction))
        if not valid:
            continue
        if record_end == record_begin or record_end - record_begin == length:
            if begin <= record_begin < end_of_period:
                parts[(record_begin - begin) // length].append((step, speed, direction))
            continue
        at = max(record_begin, begin)
        while at < min(record_end, end_of_period):
            index = (at - begin) // length
            to = min(record_end, begin + (index + 1) * length)
            parts[index].append(((to - at).total_seconds(), speed, direction))
            at = to
    return [average(part, step, calm_limit) for part in parts]


class Rose:
    def __init__(self, title):
        self.title, self.total, self.valid, self.calm = title, 0, 0, 0
        self.cells = [[0] * 6 for _ in range(16)]


def roses_of(winds, begin, step, limits, seasons, months, ranges):
    roses = [Rose("All Periods")] + [Rose(name) for _, name in seasons]
    roses += [Rose("Hours %02d-%02d" % pair) for pair in ranges]
    for index, (speed, direction) in enumerate(winds):
        moment = begin + timedelta(seconds=index * step)
        hour = (moment + timedelta(seconds=step)).hour
        if step < 3600:  # the hour in which it ends, by the number of that hour's end
            hour = (moment + timedelta(seconds=step) - timedelta(microseconds=1)).hour + 1
            hour %= 24
        mine = [roses[0]]
        mine += [rose for rose, (number, _) in zip(roses[1:], seasons) if months[moment.month - 1] == number]
        for rose, (first, last) in zip(roses[1 + len(seasons):], ranges):
            if (first <= hour <= last) if first <= last else (hour >= first or hour <= last):
                mine.append(rose)
        for rose in mine:
            rose.total += 1
            if not good_speed(speed) or (speed >= limits[0] and not good_direction(direction)):
                continue
            rose.valid += 1
            if speed < limits[0]:
                rose.calm += 1
                continue
            sector = math.floor((direction + 11.25) / 22.5) % 16
            rose.cells[sector][max(i for i in range(6) if speed >= limits[i])] += 1
    return roses


def plain_run(control_path, directory):
    """For each output its name and its roses."""
    pairs, single = control_of(control_path)
    zone = zone_of(single["ABTZ"])
    moment = lambda prefix: hour_stamp(*(single[prefix + key] for key in ("YR", "MO", "DY", "HR", "SEC")))
    begin, end, step = moment("IB"), moment("IE"), int(single["NSECDT"])
    count = int((end - begin).total_seconds()) // step
    limits = [float(text) for text in single["WSBIN"].split(",")]
    names = [value for key, value in pairs if key == "SEASNAME"]
    seasons = list(zip([int(value) for key, value in pairs if key == "IDSEAS"], names))
    months = [int(text) for text in single["MSN"].split(",")]
    ranges = [tuple(int(text) % 24 for text in value.split(",")) for key, value in pairs if key == "HR"]
    requests = requests_of(pairs, single)
    paths = [str(directory / value) for key, value in pairs if key == "METINP"]
    found = READERS[single["MDATA"]](paths, requests, zone, single)
    result = []
    for request, records in zip(requests, found):
        winds = steps_of(records, begin, count, step, limits[0])
        result.append((request.name, roses_of(winds, begin, step, limits, seasons, months, ranges)))
    return result
