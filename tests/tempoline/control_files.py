"""Control files of the tests, made from those that the desktop program writes (tests/processing/control)."""
import re
from pathlib import Path

WRITTEN = Path(__file__).resolve().parent.parent / "processing" / "control"
PERIOD_KEYS = ["IBYR", "IBMO", "IBDY", "IBHR", "IBSEC", "IEYR", "IEMO", "IEDY", "IEHR", "IESEC"]
SEASONS = ["Winter", "Spring", "Summer", "Fall"]


def set_key(text, key, value):
    """Sets the value of an active or disabled key."""
    pattern = re.compile(r"[!*] %s( *)=[^!*\r\n]*[!*]" % key)
    if not pattern.search(text):
        raise KeyError(key)
    return pattern.sub(lambda match: "! %s%s= %s !" % (key, match.group(1), value), text, count=1)


def replace_between(text, begin, end, lines):
    """Inserts the lines between two lines of commentary."""
    head, rest = text.split(begin, 1)
    tail = rest.split(end, 1)[1]
    return head + begin + "\r\n" + "".join(line + "\r\n" for line in lines) + end + tail


def control_text(template, inputs, outputs, period, zone="UTC-0500", step=3600, keys=None, gridded=False):
    """outputs: (id, name, station, x, y, height). The period: ten numbers."""
    text = (WRITTEN / template).read_bytes().decode("latin-1")
    for key, value in zip(PERIOD_KEYS, period):
        text = set_key(text, key, value)
    text = set_key(set_key(text, "ABTZ", zone), "NSECDT", step)
    text = set_key(text, "NMETINP", len(inputs))
    text = replace_between(text, "may be processed\r\n     in sequence  (provide NMETINP lines)\r\n",
                           "\r\n-------------\r\nSubgroup (0c)", ["     ! METINP = %s !   !END!" % path for path in inputs])
    text = set_key(text, "NSEASN", 4)
    seasons = ["\r\n     ! IDSEAS   = %d !\r\n     ! SEASNAME = %s !  !END!" % (i + 1, name) for i, name in enumerate(SEASONS)]
    text = replace_between(text, "(Default is 4 seasons: 1 Winter, 2 Spring, 3 Summer, 4 Fall)",
                           "\r\n     Assign season IDs", seasons)
    if outputs:
        text = set_key(text, "NTSFOUT", len(outputs))
        text = replace_between(text, "the TSFOUT filenames should be provided without extensions.",
                               "INPUT GROUP: 1 --",
                               ["     ! TSFID  = %d !\r\n     ! TSFOUT = %s !   !END!" % (o[0], o[1]) for o in outputs])
        met = []
        for number, _, station, x, y, height in outputs:
            first = "" if gridded else station + ", "
            met.append("     ! TSFID = %d !\r\n     * LOCMET = *\r\n     ! MET = %s%s, %s, %s, -1., -1., -1. !  !END!" %
                       (number, first, x, y, height))
        text = replace_between(text, "-----   -----     -----     -----  -----  -----  -----",
                               "     Air Quality data - provide NTSFOUT", met)
    for key, value in (keys or {}).items():
        text = set_key(text, key, value)
    return text


def write_control(path, *arguments, **named):
    Path(path).write_bytes(control_text(*arguments, **named).encode("latin-1"))
