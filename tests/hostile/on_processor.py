"""Attacks on the processor."""
import os
import pathlib
import random
import re
import subprocess
import sys
import time

from attack import ODD_NAMES, kill_within, launch, mutated, names

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent / "tempoline"))

import make_inputs  # noqa: E402
from check_roses import LISTING, roses_of_frq, roses_of_tab  # noqa: E402
from control_files import control_text, set_key  # noqa: E402
from run_support import good_day, surface_line  # noqa: E402

CORPUS = HERE.parent / "fuzz" / "corpus"
DAYS = [2004, 1, 1, 0, 0, 2004, 1, 3, 0, 0]
POINT = [(1, "out", "1001", 0, 0, 10)]
TWO = POINT + [(2, "two", "1001", 0, 0, 60)]
CELLS = [(1, "out", "", 3.25, 2.5, 10), (2, "two", "", 3, 2, 60)]
PLACES = [(1, "out", "", -75, 40, 10), (2, "two", "", -75, 40, 60)]
# control file, data, outputs, more keys
KINDS = [("aermsfc.inp", "tempoline_sfc/hours", POINT, {}), ("aermpfl.inp", "tempoline_pfl/hours", TWO, {}),
         ("surf.inp", "tempoline_surf/v20", POINT, {}), ("surf.inp", "tempoline_surf/v21", POINT, {}),
         ("up.inp", "tempoline_up/v20", TWO, {}), ("up.inp", "tempoline_up/v21", TWO, {}),
         ("monitorw.inp", "tempoline_monitor/hours", POINT, {}), ("monitorw.inp", "tempoline_monitor/quarters", POINT, {}),
         ("tsf.inp", "tempoline_tsf/hours", [], {}), ("csv.inp", "windtable/hours", POINT, {}),
         ("m3d_cell.inp", "tempoline_m3d/a", CELLS, {"METSIM": 1, "MPROF": 3}),
         ("ventos_ll.inp", "tempoline_ventos/a", PLACES, {"METSIM": 1, "PMAP": "LL", "DATUM": "WGS-84"})]
ROOM = ["--fsize=200000000"]


def control(kind, inputs=("in.dat",), outputs=None, **keys):
    template, _, usual, more = kind
    gridded = bool(usual) and usual[0][2] == ""
    return control_text(template, list(inputs), usual if outputs is None else outputs, DAYS, gridded=gridded,
                        keys={**more, **keys}).encode("latin-1")


def clean(directory):
    left = [name for name in names(directory) if name.startswith(b".tempoline")]
    assert not left, "temporaries are left: %s" % left


def needs_told(done, directory, listing=LISTING):
    """The error is the last line on standard error and in the listing."""
    lines = done.stderr.decode(errors="replace").splitlines()
    assert done.returncode == 0 or lines and lines[-1].startswith("tempoline: "), done.stderr
    path = directory / listing
    if path.exists():
        last = path.read_text(encoding="utf-8", errors="replace").rstrip().split("\n")[-1]
        wanted = "RUN COMPLETED" if done.returncode == 0 else "ERROR: " + lines[-1][len("tempoline: "):]
        assert last.rstrip() == wanted.rstrip(), "the listing ends %r" % last
    clean(directory)


def needs_sums(directory, name):
    """Counts and shares of a result add up."""
    for title, (rows, calm, _, valid) in roses_of_tab(directory / (name + ".tab")).items():
        assert sum(map(sum, rows)) + calm == valid, title
    for title, (rows, calm, total, valid, _) in roses_of_frq(directory / (name + ".frq")).items():
        share = sum(float(text) for row in rows for text in row) + float(calm)
        assert valid <= total and (valid == 0 or abs(share - 100) < 0.05), "%s: %s percent" % (title, share)


class Processor:
    def __init__(self, program, for_damage, place, seed):
        self.program = str(program)
        self.for_damage = str(for_damage)
        self.place = place
        self.seed = seed

    def carry_out(self, book, kills, mutations):
        book.run("processor, whole input of each kind", self.whole_input, KINDS)
        book.run("processor, killed in a run of many results", self.killed, [(lane, kills // 2) for lane in range(2)])
        book.counts["processor, killed in a run of many results"] = kills
        book.run("processor, killed while it joins runs", self.killed_joining, range(10))
        book.run("processor, damaged data", self.damaged_data, range(mutations * 6 // 10))
        book.run("processor, damaged control file", self.damaged_control, range(mutations * 3 // 10))
        book.run("processor, damaged counts to join", self.damaged_counts, range(mutations // 10))
        for place in (self.name_of_control, self.name_of_input, self.name_of_result, self.name_of_listing, self.name_of_rose, self.name_in_texts,
                      self.name_of_joined, self.name_of_counts):
            book.run("processor, odd " + place.__name__.replace("_", " "), place, ODD_NAMES)
        book.run("processor, little room, memory or handles", self.within_limits, LIMITS)
        book.run("processor, a full disk", self.full_disk, [8, 16, 24, 32, 48, 64, 96])
        book.run("processor, nowhere to tell", self.closed_streams, ["1", "2", "full"])

    def sandbox(self, kind, data=None, **named):
        directory = self.place.new()
        (directory / "in.dat").write_bytes((CORPUS / kind[1]).read_bytes() if data is None else data)
        (directory / "c.inp").write_bytes(control(kind, **named))
        return directory

    def whole_input(self, kind):
        directory = self.sandbox(kind)
        done = launch([self.program, "c.inp"], directory, status=(0,))
        needs_told(done, directory)
        for _, name, *_ in kind[2] or [(1, "rose_out")]:
            needs_sums(directory, name)

    # Kills

    def killed(self, lane):
        """Of each output one complete result always exists, under its name or aside, and the next run cleans up."""
        number, kills = lane
        chance = random.Random("%s kills %d" % (self.seed, number))
        directory = self.place.new()
        outputs = [(i, "out%d" % i, "4417", 0, 0, 10 * i) for i in range(1, 31)]
        make_inputs.up(directory / "up.dat", "2.1")
        data = (directory / "up.dat").read_bytes()
        (directory / "bad.dat").write_bytes(data + b"2004 oh no\n")
        half = ([2004, 1, 1, 0, 0, 2004, 7, 1, 0, 0], [2004, 7, 1, 0, 0, 2005, 1, 1, 0, 0])
        for name, period, file in (("a.inp", half[0], "up.dat"), ("b.inp", half[1], "up.dat"), ("bad.inp", half[1], "bad.dat")):
            text = control_text("up.inp", [file], outputs, period)
            (directory / name).write_bytes(text.encode("latin-1"))
        generations = []
        for name in ("b.inp", "a.inp"):
            begin = time.monotonic()
            launch([self.program, name], directory, status=(0,))
            length = time.monotonic() - begin
            generations.append(self.results(directory, outputs, ""))
        done = attempts = 0
        while done < kills:
            attempts += 1
            assert attempts < 20 * kills, "the run is over before it can be killed"
            name = chance.choice(["a.inp", "b.inp", "bad.inp"])
            delay = length * (chance.random() if chance.random() < 0.5 else 1 - 0.3 * chance.random())
            done += kill_within([self.program, name], directory, delay)
            self.needs_whole(directory, outputs, generations, name)
        launch([self.program, "b.inp"], directory, status=(0,))
        assert self.results(directory, outputs, "") == generations[0], "after the kills a run makes something else"
        clean(directory)
        assert not [name for name in names(directory) if b".previous." in name], names(directory)

    @staticmethod
    def results(directory, outputs, aside):
        found = {}
        for _, name, *_ in outputs:
            for end in ("tsf", "tab", "frq"):
                path = directory / (name + aside + "." + end)
                found[name, end] = path.read_bytes() if path.exists() else None
        return found

    def needs_whole(self, directory, outputs, generations, name):
        here, aside = self.results(directory, outputs, ""), self.results(directory, outputs, ".previous")
        for found in (here, aside):
            for key, content in found.items():
                assert content is None or content in [one[key] for one in generations], "half a result: %s" % (key,)
        for _, output, *_ in outputs:
            rose = here[output, "frq"] or aside[output, "frq"]
            assert rose is not None, "%s is lost after a kill of %s: %s" % (output, name, names(directory))
            one = next(one for one in generations if one[output, "frq"] == rose)
            for end in ("tsf", "tab"):
                assert one[output, end] in (here[output, end], aside[output, end]), "%s.%s is lost" % (output, end)

    def killed_joining(self, number):
        chance = random.Random("%s joins %d" % (self.seed, number))
        directory = self.place.new()
        (directory / "a.tab").write_bytes((CORPUS / "tempoline_tab" / "year").read_bytes())
        command = [self.program, "--merge", "--out", "sum", "a.tab"]
        begin = time.monotonic()
        launch(command, directory, status=(0,))
        length = time.monotonic() - begin
        good = (directory / "sum.frq").read_bytes()
        for _ in range(3):
            kill_within(command, directory, length * chance.random())
            found = [(directory / name).read_bytes() for name in ("sum.frq", "sum.previous.frq") if (directory / name).exists()]
            assert found and all(content == good for content in found), names(directory)
        launch(command, directory, status=(0,))
        assert names(directory) == [b"a.tab", b"sum.frq", b"sum.tab"], names(directory)

    # Damage

    def damaged_data(self, number):
        chance = random.Random("%s data %d" % (self.seed, number))
        kind = KINDS[number % len(KINDS)]
        directory = self.sandbox(kind, mutated(chance, (CORPUS / kind[1]).read_bytes()))
        outputs = [name for _, name, *_ in kind[2]] or ["rose_out"]
        for name in outputs:
            (directory / (name + ".frq")).write_bytes(b"old")
        done = launch([self.for_damage, "c.inp"], directory, ROOM, status=(0, 1))
        needs_told(done, directory)
        for name in outputs:
            if done.returncode == 0:
                needs_sums(directory, name)
            else:
                assert not (directory / (name + ".frq")).exists(), "an older rose passes for that of a failed run"
                assert (directory / (name + ".previous.frq")).read_bytes() == b"old"

    def damaged_control(self, number):
        chance = random.Random("%s control %d" % (self.seed, number))
        kind = KINDS[number % len(KINDS)]
        directory = self.sandbox(kind)
        text = (directory / "c.inp").read_bytes()
        # Most of the file is commentary: damage its assignments.
        begin = [match.start() for match in re.finditer(rb"(?m)^.*! [A-Z0-9]+ *=.*$", text)]
        at = chance.choice(begin)
        text = text[:at] + mutated(chance, text[at:at + 150]) + text[at + 150:]
        (directory / "c.inp").write_bytes(text)
        done = launch([self.for_damage, "c.inp"], directory, ROOM)
        clean(directory)
        found = names(directory)
        roses = [name for name in found if name.endswith(b".frq")]
        assert done.returncode == 0 or not roses, "a failed run left %s" % roses
        assert all(name[:-4] + b".tab" in found for name in roses), found
        assert done.returncode == 0 or done.stderr.splitlines()[-1].startswith(b"tempoline: "), done.stderr

    def damaged_counts(self, number):
        chance = random.Random("%s counts %d" % (self.seed, number))
        directory = self.place.new()
        (directory / "a.tab").write_bytes(mutated(chance, (CORPUS / "tempoline_tab" / "year").read_bytes()))
        done = launch([self.for_damage, "--merge", "--out", "sum", "a.tab"], directory, ROOM, status=(0, 1))
        assert names(directory) == ([b"a.tab", b"sum.frq", b"sum.tab"] if done.returncode == 0 else [b"a.tab"]), names(directory)
        assert len(done.stderr.splitlines()) == (0 if done.returncode == 0 else 1), done.stderr

    # Names

    def named_run(self, directory, expected, arguments=("c.inp",), status=(0, 1, 2)):
        """It leaves exactly those files; a failed run leaves none of them."""
        before = set(names(directory))
        done = launch([self.program, *arguments], directory, status=status)
        made = set(names(directory)) - before
        listings = {LISTING.encode(), b"TEMPOLINE.LST"}
        if done.returncode == 0:
            assert made - listings == set(expected), "made %s" % sorted(made)
        else:
            assert made <= listings, "a failed run made %s" % sorted(made)
            assert done.stderr.startswith((b"tempoline: ", b"usage: ")), done.stderr
        return done

    def with_value(self, key, name, kind=KINDS[0]):
        directory = self.sandbox(kind)
        text = (directory / "c.inp").read_bytes()
        mark = b"MARK-OF-THE-VALUE"
        text = set_key(text.decode("latin-1"), key, mark.decode()).encode("latin-1").replace(mark, name)
        (directory / "c.inp").write_bytes(text)
        return directory

    @staticmethod
    def can_stand(name):
        """A value is a trimmed part of a line; a "!" ends it only where it looks like an end."""
        return name == name.strip() and not any(c < 32 or c == 127 for c in name) and b"!  !" not in name and b"!END!" not in name

    def name_of_control(self, name):
        directory = self.sandbox(KINDS[0])
        os.rename(os.fsencode(directory / "c.inp"), os.path.join(os.fsencode(directory), name))
        for arguments in [[name], [b"--", name]][name == b"--":]:
            self.named_run(directory, [b"out.frq", b"out.tab", b"out.tsf"], arguments, status=(0,))
            for end in ("frq", "tab", "tsf"):
                (directory / ("out." + end)).unlink()

    def name_of_input(self, name):
        directory = self.with_value("METINP", name)
        os.rename(os.fsencode(directory / "in.dat"), os.path.join(os.fsencode(directory), name))
        self.named_run(directory, [b"out.frq", b"out.tab", b"out.tsf"], status=(0,) if self.can_stand(name) else (0, 1, 2))

    def name_of_result(self, name):
        directory = self.with_value("TSFOUT", name)
        kept = name.endswith(b".previous")
        ends = [b".frq", b".tab", b".tsf"]
        if self.can_stand(name) and not kept:
            self.named_run(directory, [name + end for end in ends], status=(0,))
        else:
            done = launch([self.program, "c.inp"], directory)
            assert done.returncode == 2 or all(name.strip() + end in names(directory) for end in ends), names(directory)

    def name_of_listing(self, name):
        directory = self.with_value("TSFLST", name)
        if self.can_stand(name):
            self.named_run(directory, [name, b"out.frq", b"out.tab", b"out.tsf"], status=(0,))
        else:
            launch([self.program, "c.inp"], directory)
        clean(directory)

    def name_of_rose(self, name):
        kind = next(kind for kind in KINDS if kind[0] == "tsf.inp")
        directory = self.with_value("ROSEPLT", name, kind)
        if self.can_stand(name) and not name.endswith(b".previous"):
            self.named_run(directory, [name + b".frq", name + b".tab"], status=(0,))
        else:
            launch([self.program, "c.inp"], directory)
        clean(directory)

    def name_in_texts(self, name):
        directory = self.with_value("LOCMET", name)
        text = (directory / "c.inp").read_bytes()
        lines = text.split(b"\r\n")
        lines[1] = name.replace(b"\n", b" ").replace(b"\r", b" ")
        (directory / "c.inp").write_bytes(b"\r\n".join(lines).replace(b"MET = 1001,", b"MET = " + name.replace(b",", b" ") + b","))
        done = launch([self.program, "c.inp"], directory)
        if done.returncode == 0:
            needs_sums(directory, "out")
        clean(directory)

    def name_of_joined(self, name):
        directory = self.place.new()
        (directory / "a.tab").write_bytes((CORPUS / "tempoline_tab" / "year").read_bytes())
        refused = name.endswith(b".previous")
        self.named_run(directory, [name + b".frq", name + b".tab"], ["--merge", "--out", name, "a.tab"], status=(2,) if refused else (0,))

    def name_of_counts(self, name):
        directory = self.place.new()
        with open(os.path.join(os.fsencode(directory), name + b".tab"), "wb") as file:
            file.write((CORPUS / "tempoline_tab" / "year").read_bytes())
        self.named_run(directory, [b"merged.frq", b"merged.tab"], ["--merge", name + b".tab"], status=(0,))

    # Scarcity

    def within_limits(self, limit):
        directory = self.sandbox(KINDS[0], b"header\n" + "\n".join(
            surface_line(2004, 1, 1 + hour // 24, hour % 24 + 1) for hour in range(48)).encode() + b"\n")
        for end in ("frq", "tab", "tsf"):
            (directory / ("out." + end)).write_bytes(b"old")
        # With the least memory the system cannot even load it.
        done = launch([self.program, "c.inp"], directory, [limit], status=(0, 1, 127))
        if done.returncode == 127:
            return
        clean(directory)
        for end in ("frq", "tab", "tsf"):
            content = [(directory / name).read_bytes() for name in ("out." + end, "out.previous." + end) if (directory / name).exists()]
            assert len(content) == 1 and (content[0] == b"old") == (done.returncode != 0), names(directory)

    def full_disk(self, kilobytes):
        """In a separate file system of that size; reports if the system does not provide one."""
        directory = self.place.new()
        (directory / "in.dat").write_bytes(b"header\n" + "\n".join(good_day()).encode() + b"\n")
        (directory / "c.inp").write_bytes(control(KINDS[0], ["../in.dat"]))
        script = """set -e; mkdir small; mount -t tmpfs -o size=%dk none small; cp c.inp small; cd small
            for end in frq tab tsf; do echo old >out.$end; done
            status=0; "$0" c.inp 2>errors || status=$?
            for end in frq tab tsf; do [ -s out.$end ] || [ "$(cat out.previous.$end)" = old ]; done
            [ $status = 0 ] || [ ! -e out.frq ]
            [ -z "$(ls -A | grep '^.tempoline' || true)" ]; exit $status""" % kilobytes
        if subprocess.run(["unshare", "-rm", "mount", "-t", "tmpfs", "none", "/mnt"], stderr=subprocess.DEVNULL).returncode != 0:
            print("no file systems of one's own: no full disk is tried")
            return
        launch(["unshare", "-rm", "sh", "-c", script, self.program], directory, status=(0, 1))

    def closed_streams(self, which):
        directory = self.sandbox(KINDS[0], b"nothing\n")
        with open("/dev/full", "wb") as full:
            if which == "full":
                launch([self.program, "c.inp"], directory, status=(0,), stdout=full, stderr=full)
            else:
                launch(["sh", "-c", 'exec "$0" c.inp %s>&-' % which, self.program], directory, status=(0,))
        assert b"out.frq" in names(directory), names(directory)


LIMITS = ["--fsize=%d" % size for size in (0, 1, 100, 1000, 2000, 3000, 4000, 5000, 10000, 100000)] + [
    "--as=%d" % (megabytes << 20) for megabytes in (4, 8, 12, 16, 20, 24, 28, 32, 40, 48, 64)] + [
    "--nofile=%d" % handles for handles in (3, 4, 5, 6, 8, 16)]
