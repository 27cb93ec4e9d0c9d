"""Where the walk takes place: what differs between the desk of Debian and Windows under Wine."""
import os
import pathlib
import shutil
import subprocess

import printer
from desk import Failed

TREE = pathlib.Path(__file__).resolve().parents[2]


class Debian:
    """BIN is a build directory's."""
    needs = ()
    to_play = ["Down"] * 4  # in the context menu of a curve
    font_title = "Select Font"
    folder_title = "Select a Working Directory:"
    left_out = {}

    def __init__(self, programs, scratch):
        self.home = scratch / "program"
        self.printed = scratch / "printed.pdf"
        self.home.mkdir()
        for name in ("zephyrgraph", "tempoline.exe", "TimeZones.txt", "Station_Data.csv", "datums.csv"):
            shutil.copy2(pathlib.Path(programs) / name, self.home / name)
        shutil.copytree(pathlib.Path(programs) / "samples", self.home / "samples")

    def start(self, desk, scratch, out):
        # No printer of this machine gets a page.
        return desk.start([str(self.home / "zephyrgraph")], cwd=out, env={"HOME": str(scratch), "CUPS_SERVER": "localhost:1"})

    def name(self, path):
        """The path as this system's users type it."""
        return str(path)

    def directory(self, path):
        return str(path) + "/"

    def pick_colour(self, walk):
        walk.desk.window("Select Color")
        walk.desk.shot("colour")
        walk.fill("h", "#C00000")
        walk.desk.keys("Return")
        walk.desk.gone("Select Color")

    def choose_font(self, walk):
        walk.fill("f", "DejaVu Sans")
        walk.fill("s", "20")

    def print_page(self, walk):
        """Into a file: there is no printer."""
        walk.desk.window(r"Zephyrgraph - .*")
        walk.desk.keys("ctrl+p")
        number = walk.desk.window("Print")
        walk.fill("f", self.name(self.printed))
        walk.desk.shot("print", number)
        walk.desk.keys("Return")
        walk.desk.gone("Print")
        return self.printed

    def show_text(self, walk):
        """The desktop decides which program shows texts; this one has none."""

    def quoted(self, path):
        """In a dialog for several files."""
        return self.name(path)

    def console(self, walk, entry):
        """The batch file runs in no window of its own."""

    def close(self):
        pass


class Wine:
    """BIN is the unpacked portable folder. This Windows is a new one, in the scratch directory."""
    needs = ("wine", "wineserver")
    to_play = ["Down"] * 5  # disabled entries are on the way
    font_title = "Font"
    folder_title = "Select Folder"  # Wine puts it in place of the title as soon as folders are asked for
    left_out = {"report": "needs an office suite for Windows; tests/batch has one that records what it is asked"}

    def __init__(self, programs, scratch):
        self.home = scratch / "program"
        self.printed = scratch / "printed.ps"
        self.known = {}  # whether a process belongs to this Windows, by its number
        shutil.copytree(programs, self.home)
        self.env = {"ZG_WINE_PREFIX": str(scratch / "wine"), "WINEPREFIX": str(scratch / "wine")}
        self.run("cmd", "/c", "ver")

    def run(self, *words):
        # No pipe: what Wine starts beside the program would keep it open for a minute.
        done = subprocess.run([str(TREE / "tools/wine.sh"), *words], env={**os.environ, **self.env}, stdin=subprocess.DEVNULL,
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        if done.returncode != 0:
            raise Failed(f"{' '.join(words)} under Wine ended with {done.returncode}")

    def start(self, desk, scratch, out):
        program = desk.start([str(TREE / "tools/wine.sh"), str(self.home / "zephyrgraph.exe")], cwd=out, env=self.env)
        desk.helpers = self.servers
        desk.delay = 150  # on a busy machine it loses keys that come faster
        desk.idle = 0.08  # timers make threads of their own there, and the server looks after itself
        return program

    def servers(self):
        """What works for the program in other processes."""
        mark = ("WINEPREFIX=" + self.env["WINEPREFIX"]).encode()
        known = self.known
        self.known = {}
        for name in filter(str.isdigit, os.listdir("/proc")):
            self.known[name] = known[name] if name in known else self.belongs(name, mark)
        return [int(name) for name, belongs in self.known.items() if belongs]

    @staticmethod
    def belongs(name, mark):
        try:
            return mark in pathlib.Path("/proc", name, "environ").read_bytes().split(b"\0")
        except OSError:
            return False  # it has ended meanwhile, or is another user's

    def name(self, path):
        return "Z:" + str(path).replace("/", "\\")

    def directory(self, path):
        return self.name(path) + "\\"

    def quoted(self, path):
        return f'"{self.name(path)}"'

    def pick_colour(self, walk):
        walk.desk.window("Color")
        walk.desk.keys("alt+d")
        walk.fill("r", "192")
        for _ in ("green", "blue"):
            walk.desk.keys("Tab")
            walk.desk.type("0")
        walk.desk.shot("colour")
        walk.desk.keys("Return")
        walk.desk.gone("Color")

    def choose_font(self, walk):
        walk.fill("f", "DejaVu Sans")
        walk.fill("s", "20")

    def print_page(self, walk):
        """First without a printer; then one is installed, which prints into a file."""
        walk.desk.window(r"Zephyrgraph - .*")
        walk.desk.keys("ctrl+p")
        walk.desk.wait("the message that there is no printer", lambda: "Zephyrgraph" in walk.desk.windows().values())
        walk.desk.shot("no_printer")
        walk.desk.keys("Return")
        walk.desk.gone("Zephyrgraph")
        printer.install(self, self.printed)
        walk.desk.window(r"Zephyrgraph - .*")
        walk.desk.keys("ctrl+p")
        number = walk.desk.window("Print")
        walk.desk.shot("print", number)
        walk.desk.keys("Return")
        walk.desk.gone("Print")
        return self.printed

    def show_text(self, walk):
        walk.menu("v", 1)
        number = walk.desk.window(r"LOVETT_1988\.frq - Notepad")
        walk.desk.shot("notepad", number)
        walk.desk.keys("alt+F4")
        walk.desk.gone(r".*Notepad")

    def console(self, walk, entry):
        """The batch file waits in its console for any key, and the rose is already there."""
        number = walk.desk.window(r".*cmd\.exe.*")
        walk.desk.shot(entry + "_console", number)
        walk.desk.keys("space")
        walk.desk.gone(r".*cmd\.exe.*")

    def close(self):
        subprocess.run(["wineserver", "-k"], env={**os.environ, **self.env}, capture_output=True)
        subprocess.run(["wineserver", "-w"], env={**os.environ, **self.env}, capture_output=True)
