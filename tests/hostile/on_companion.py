"""Attacks on the companion without a window."""
import os
import pathlib
import random
import shutil
import struct
import subprocess
import time
import zlib

from attack import ODD_NAMES, kill_within, launch, mutated, names

HERE = pathlib.Path(__file__).resolve().parent
SAMPLE = HERE.parent.parent / "data" / "samples" / "north_sea.frq"
CORPUS = HERE.parent / "fuzz" / "corpus" / "frq"


def needs_whole(path):
    """A picture under its own name is complete."""
    with open(path, "rb") as file:
        data = file.read()
    end = os.path.splitext(path)[1].lower()
    if end == b".png":
        assert data.startswith(b"\x89PNG\r\n\x1a\n"), path
        at = 8
        while at < len(data):
            size, kind = struct.unpack(">I4s", data[at:at + 8])
            assert data[at + 8 + size:at + 12 + size] == struct.pack(">I", zlib.crc32(data[at + 4:at + 8 + size])), "%s is half" % path
            at += size + 12
        assert kind == b"IEND", "%s is half" % path
    elif end == b".bmp":
        assert data.startswith(b"BM") and struct.unpack("<I", data[2:6])[0] == len(data), "%s is half" % path
    elif end == b".svg":
        assert data.rstrip().endswith(b"</svg>"), "%s is half" % path
    elif end == b".pdf":
        assert data.rstrip().endswith(b"%%EOF"), "%s is half" % path


def pictures(directory):
    found = [name for name in names(directory) if os.path.splitext(name)[1] in (b".png", b".bmp", b".svg", b".pdf")]
    for name in found:
        needs_whole(os.path.join(os.fsencode(directory), name))
    return found


class Companion:
    def __init__(self, program, place, seed):
        self.program = str(program)
        self.place = place
        self.seed = seed
        self.environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", LC_ALL="C.UTF-8")

    def carry_out(self, book, kills, mutations):
        book.run("companion, killed while it draws", self.killed, [(lane, kills // 2) for lane in range(2)])
        book.counts["companion, killed while it draws"] = kills
        book.run("companion, damaged FRQ file", self.damaged, range(mutations))
        book.run("companion, odd name of an FRQ file", self.name_of_file, ODD_NAMES)
        book.run("companion, odd name of a directory of files", self.name_of_files, ODD_NAMES)
        book.run("companion, odd name of the directory of pictures", self.name_of_pictures, ODD_NAMES)
        book.run("companion, little room, memory or handles", self.within_limits, LIMITS)
        book.run("companion, a full disk", self.full_disk, [(size, kind) for size in (4, 16, 64) for kind in ("png", "bmp", "svg", "pdf")])
        book.run("companion, nowhere to tell", self.closed_streams, ["full", "tables full"])

    def export(self, directory, *arguments, **named):
        return launch([self.program, *arguments], directory, environment=self.environment, **named)

    @staticmethod
    def needs_lines(done):
        """A failure is reported in readable lines."""
        lines = done.stderr.decode(errors="replace").splitlines()
        assert bool(lines) == (done.returncode != 0), done.stderr
        assert len(lines) <= 12 and all(line.strip() for line in lines), done.stderr

    def killed(self, lane):
        number, kills = lane
        chance = random.Random("%s pictures %d" % (self.seed, number))
        directory = self.place.new()
        shutil.copy(SAMPLE, directory / "a.frq")
        kinds = ["png", "bmp", "svg", "pdf"]
        length = {}
        done = attempts = 0
        while done < kills:
            attempts += 1
            assert attempts < 20 * kills, "the run is over before it can be killed"
            kind = kinds[attempts % 4]
            command = [self.program, "a.frq", "--format", kind, "--size", "300", "--jobs", "2"]
            if kind not in length:
                begin = time.monotonic()
                self.export(directory, *command[1:], status=(0,))
                length[kind] = time.monotonic() - begin
            done += kill_within(command, directory, length[kind] * chance.random(), self.environment)
            assert len([name for name in pictures(directory) if name.endswith(kind.encode())]) > 0, names(directory)

    def damaged(self, number):
        chance = random.Random("%s frq %d" % (self.seed, number))
        seeds = sorted(CORPUS.iterdir()) + [SAMPLE]
        directory = self.place.new()
        (directory / "a.frq").write_bytes(mutated(chance, seeds[number % len(seeds)].read_bytes()))
        more = ["--tables"] if number % 3 else ["--size", "64"]
        done = self.export(directory, "a.frq", *more, status=(0, 1))
        self.needs_lines(done)
        assert done.returncode == 0 or not pictures(directory) or not number % 3, names(directory)

    def needs_pictures(self, directory, done, made, before, wanted):
        assert done.returncode == 0, done.stderr
        new = [name for name in pictures(made) if name not in before]
        assert len(new) == wanted, "made %s" % new

    def name_of_file(self, name):
        directory = self.place.new()
        with open(os.path.join(os.fsencode(directory), name + b".frq"), "wb") as file:
            file.write(SAMPLE.read_bytes())
        before = names(directory)
        done = self.export(directory, "--rose", "1", "--size", "32", "--", name + b".frq")
        self.needs_pictures(directory, done, directory, before, 1)
        assert [found for found in names(directory) if found not in before] == [name + b"_01.png"], names(directory)

    def name_of_files(self, name):
        directory = self.place.new()
        inside = os.path.join(os.fsencode(directory), name)
        os.mkdir(inside)
        shutil.copy(SAMPLE, os.path.join(inside, b"a.frq"))
        done = self.export(directory, "--rose", "1", "--size", "32", "--", name)
        self.needs_pictures(directory, done, directory, [], 1)
        assert names(directory) == sorted([name, b"a_01.png"]), names(directory)

    def name_of_pictures(self, name):
        directory = self.place.new()
        shutil.copy(SAMPLE, directory / "a.frq")
        done = self.export(directory, "a.frq", "--rose", "1", "--size", "32", b"--out=" + name)
        assert done.returncode == 0, done.stderr
        assert names(directory) == sorted([name, b"a.frq"]), names(directory)
        assert names(os.path.join(os.fsencode(directory), name)) == [b"a_01.png"]

    def within_limits(self, limit):
        directory = self.place.new()
        shutil.copy(SAMPLE, directory / "a.frq")
        # With the least memory the system cannot load it (127), or its toolkit gives up before it can report anything.
        done = self.export(directory, "a.frq", "--size", "200", limits=[limit], status=(0, 1, 127))
        if done.returncode == 127:
            return
        self.needs_lines(done)
        pictures(directory)
        assert done.returncode == 1 or len(pictures(directory)) > 0

    def full_disk(self, case):
        size, kind = case
        directory = self.place.new()
        shutil.copy(SAMPLE, directory / "a.frq")
        script = """set -e; mkdir small; mount -t tmpfs -o size=%dk none small
            status=0; "$0" a.frq --size 400 --format %s --out small 2>errors || status=$?
            [ $status = 0 ] || [ -s errors ]; cp small/* . 2>/dev/null || true; exit $status""" % (size, kind)
        if subprocess.run(["unshare", "-rm", "mount", "-t", "tmpfs", "none", "/mnt"], stderr=subprocess.DEVNULL).returncode != 0:
            print("no file systems of one's own: no full disk is tried")
            return
        launch(["unshare", "-rm", "sh", "-c", script, self.program], directory, environment=self.environment, status=(0, 1))
        pictures(directory)
        errors = (directory / "errors").read_text(errors="replace")
        assert "Unknown error" not in errors and "libpng" not in errors, errors

    def closed_streams(self, which):
        directory = self.place.new()
        shutil.copy(SAMPLE, directory / "a.frq")
        with open("/dev/full", "wb") as full:
            more = ["--tables"] if which.startswith("tables") else ["--rose", "1", "--size", "32"]
            self.export(directory, "a.frq", *more, status=(1,), stdout=full)


LIMITS = ["--fsize=%d" % size for size in (0, 1, 100, 1000, 3000)] + [
    "--as=%d" % (megabytes << 20) for megabytes in (8, 64, 150, 250, 400)] + ["--nofile=%d" % handles for handles in (4, 8, 16)]
