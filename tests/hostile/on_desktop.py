"""Attacks on the start of the desktop program: the files that it reads from its own directory are damaged."""
import os
import pathlib
import random
import shutil
import signal
import subprocess
import time

from attack import PATIENCE, mutated

PARTS = ["TimeZones.txt", "Station_Data.csv", "datums.csv"]
READ = ["Zephyrgraph.cfg", "orbita.cfg", "expr.dat", "TimeZones.txt", "Station_Data.csv"]


def computed(process):
    """Processor seconds used so far, and whether it is waiting."""
    fields = pathlib.Path("/proc/%d/stat" % process.pid).read_text().rpartition(")")[2].split()
    return int(fields[11]) + int(fields[12]), fields[0] == "S"


class Desktop:
    def __init__(self, programs, place, seed):
        self.programs = pathlib.Path(programs)
        self.place = place
        self.seed = seed

    def carry_out(self, book, starts):
        self.whole = self.sandbox()
        self.start(self.whole)
        assert (self.whole / "Zephyrgraph.cfg").exists(), "it has not come to its settings"
        (self.whole / "orbita.cfg").write_bytes(b"WorkDir=/tmp\r\n")
        (self.whole / "expr.dat").write_bytes(b'"Polar Graph 1.0"\r\n"sin(t)"\r\n"2*cos(3*t)"\r\n')
        book.run("desktop, started with damaged settings", self.damaged, range(starts))

    def sandbox(self):
        directory = self.place.new()
        try:
            os.link(self.programs / "zephyrgraph", directory / "zephyrgraph")
        except OSError:
            shutil.copy2(self.programs / "zephyrgraph", directory / "zephyrgraph")
        for name in PARTS:
            shutil.copy(self.programs / name, directory / name)
        return directory

    def start(self, directory):
        """It reaches its main window, or a box that waits for an answer, and ends when told to."""
        environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", HOME=str(directory.parent), XDG_CONFIG_HOME=str(directory.parent / "config"))
        process = subprocess.Popen([directory / "zephyrgraph"], cwd=directory, env=environment, stdin=subprocess.DEVNULL,
                                   stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
        begin = time.monotonic()
        before = None
        while process.poll() is None and time.monotonic() - begin < PATIENCE:
            time.sleep(0.4)
            now = computed(process) if process.poll() is None else None
            if now and now[1] and now == before and time.monotonic() - begin > 2.4:  # longer than the splash
                break
            before = now
        ended = process.poll()
        process.send_signal(signal.SIGTERM)
        try:
            errors = process.communicate(timeout=PATIENCE)[1].decode(errors="replace")
        except subprocess.TimeoutExpired:
            process.kill()
            raise AssertionError("does not end") from None
        assert ended is None, "ended by itself with status %d: %s" % (ended, errors[:2000])
        assert process.returncode in (0, -signal.SIGTERM), (process.returncode, errors[:2000])
        assert "Sanitizer" not in errors and "runtime error" not in errors and "terminate called" not in errors, errors[:2000]

    def damaged(self, number):
        chance = random.Random("%s settings %d" % (self.seed, number))
        directory = self.sandbox()
        for name in READ:
            if (self.whole / name).exists():
                shutil.copy(self.whole / name, directory / name)
        name = READ[number % len(READ)] if number % 3 else READ[0]
        path = directory / name
        choice = number % 7
        if choice == 0 and path.exists():
            path.unlink()
            path.mkdir()
        elif choice == 1:
            path.write_bytes(b"")
        elif choice == 2:
            path.write_bytes(chance.randbytes(5000))
        else:
            path.write_bytes(mutated(chance, path.read_bytes() if path.exists() else b""))
        self.start(directory)
