"""What all attacks share: starting a program within limits, what no program may ever do, and the list of findings."""
import collections
import concurrent.futures
import itertools
import os
import subprocess
import traceback

WORKERS = 2
MOST_TOLD = 5
PATIENCE = 60  # seconds after which a program counts as hanging; none of these runs takes one
ODD_NAMES = [
    b'roses\n"touch" PWNED.frq', b"roses\r\ntouch PWNED", b"a b", b"-dash", b"--out", b"--", b'a"b', b"a'b", b"a%PATH%b", b"a&touch PWNED&b",
    b"a^b", b"a!b", b"a!!b!END!", b"$(touch PWNED)", b"`touch PWNED`", b"a;touch PWNED", b"a|touch PWNED", b"a>PWNED", b"*", b"?", b"[a]", b"~",
    b".hidden", b"tab\there", "W\u00e4sser \u98a8".encode(), b"\xff\xfe", b"x" * 200, b"y" * 242, b"CON", b"back\\slash", b" before", b"after ",
    b"a,b", b"a=b", b"%s%n%d", b"o.frq", b"a.previous", b"a!  ! MROSE = 2 !b", b"{0}", b"dup", b"\x7f\x1b[31m"]


class Book:
    """Counts attacks and collects the faults that they found."""

    def __init__(self):
        self.counts = collections.Counter()
        self.faults = collections.defaultdict(list)

    def run(self, kind, attack, cases):
        """Runs the attack on each case, some of them in parallel."""
        with concurrent.futures.ThreadPoolExecutor(WORKERS) as pool:
            for case, fault in pool.map(lambda case: (case, self.fault_of(attack, case)), cases):
                self.counts[kind] += 1
                if fault:
                    self.faults[kind].append("%r: %s" % (case, fault))

    @staticmethod
    def fault_of(attack, case):
        try:
            attack(case)
        except AssertionError as error:
            return str(error) or traceback.format_exc(limit=-2)
        except Exception:
            return traceback.format_exc(limit=-4)
        return None

    def report(self):
        for kind, count in self.counts.items():
            print("%5d  %s" % (count, kind))
        for kind, faults in self.faults.items():
            for fault in faults[:MOST_TOLD]:
                print("FAULT  %s, %s" % (kind, "\n       ".join(fault.splitlines()[:4])))
            if len(faults) > MOST_TOLD:
                print("       and %d more of this kind" % (len(faults) - MOST_TOLD))
        print("%d attacks, %d faults" % (sum(self.counts.values()), sum(map(len, self.faults.values()))))
        return 1 if self.faults else 0


class Place:
    """Separate directories for attacks; files beside one show whether an attack wrote outside it."""

    def __init__(self, root):
        self.root = root
        self.number = itertools.count(1)

    def new(self):
        directory = self.root / ("%05d" % next(self.number)) / "here"
        directory.mkdir(parents=True)
        return directory


def names(directory):
    return sorted(os.listdir(os.fsencode(directory)))


def launch(command, directory, limits=(), environment=None, status=(0, 1, 2), **named):
    """Runs it to its end. It must not crash or hang, must exit with one of those statuses, and must leave its directory alone."""
    command = [os.fsencode(word) for word in command]
    if limits:
        command = [b"prlimit"] + [os.fsencode(limit) for limit in limits] + [b"--"] + command
    named.setdefault("stdout", subprocess.PIPE)
    named.setdefault("stderr", subprocess.PIPE)
    try:
        done = subprocess.run(command, cwd=directory, env=environment, timeout=PATIENCE, stdin=subprocess.DEVNULL, **named)
    except subprocess.TimeoutExpired:
        raise AssertionError("hangs") from None
    judge(done.returncode, done.stderr or b"", status)
    assert names(directory.parent) == [b"here"], "something lies beside the directory: %s" % names(directory.parent)
    assert not {b"PWNED", b"PWNED.frq"} & set(names(directory)), names(directory)
    return done


def judge(status, errors, wanted):
    text = errors.decode(errors="replace")
    assert "Sanitizer" not in text and "runtime error" not in text, text[:3000]
    assert "terminate called" not in text and "Assertion" not in text, text[:1000]
    assert status in wanted, "ends with status %d: %s" % (status, text[:1000])


def kill_within(command, directory, seconds, environment=None):
    """Whether it was killed after that many seconds, and had not ended before."""
    process = subprocess.Popen(command, cwd=directory, env=environment, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                               stderr=subprocess.PIPE)
    try:
        errors = process.communicate(timeout=seconds)[1]
    except subprocess.TimeoutExpired:
        process.kill()
        process.communicate()
        return process.returncode == -9
    judge(process.returncode, errors, (0, 1, 2))
    return False


NUMBERS = [b"nan", b"inf", b"-1", b"0", b"1e308", b"-1e-320", b"99999999999999999999", b"2147483648", b"", b"1e", b"0x10", b"1,5", b"*****", b"9999.",
           b"-2147483649", b"4294967297", b"32768"]


def mutated(random, data):
    """The bytes with one to four faults."""
    for _ in range(random.choice([1, 1, 2, 4])):
        data = random.choice(MUTATIONS)(random, data)
    return data


def change_bytes(random, data):
    data = bytearray(data)
    for _ in range(random.choice([1, 3, 30])):
        if data:
            data[random.randrange(len(data))] = random.choice([0, 10, 13, 32, 33, 34, 37, 44, 58, 127, 255, random.randrange(256)])
    return bytes(data)


def cut_end(random, data):
    return data[:random.randrange(len(data) + 1)]


def cut_out(random, data):
    begin = random.randrange(len(data) + 1)
    return data[:begin] + data[begin + random.choice([1, 10, 200]):]


def put_in(random, data):
    at = random.randrange(len(data) + 1)
    return data[:at] + random.choice([b"\n", b"\r\n\r\n", b"\0" * 5, b" " * 300, b"x" * 5000, b"!END!", b": : :", b"%", b"\xef\xbb\xbf"]) + data[at:]


def other_number(random, data):
    words = data.split(b" ")
    found = [i for i, word in enumerate(words) if any(48 <= c < 58 for c in word)]
    if found:
        words[random.choice(found)] = random.choice(NUMBERS)
    return b" ".join(words)


def lines_changed(random, data):
    lines = data.split(b"\n")
    a, b = random.randrange(len(lines)), random.randrange(len(lines))
    choice = random.randrange(4)
    if choice == 0:
        lines[a], lines[b] = lines[b], lines[a]
    elif choice == 1:
        lines.insert(a, lines[b])
    elif choice == 2:
        del lines[a]
    else:
        lines = lines[:a] + lines[min(a, b):]
    return b"\n".join(lines)


def long_line(random, data):
    at = random.randrange(len(data) + 1)
    return data[:at] + b"7" * (3 << 19) + data[at:]


MUTATIONS = [change_bytes, cut_end, cut_out, put_in, other_number, other_number, lines_changed, long_line]
