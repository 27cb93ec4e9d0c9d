"""Where the walk takes place: what differs between the desk of Debian and Windows under Wine."""
import os
import pathlib
import shutil
import subprocess

from desk import Failed

TREE = pathlib.Path(__file__).resolve().parents[2]


class Debian:
    """BIN is a build directory's."""
    needs = ()
    to_play = ["Down"] * 4  # in the context menu of a curve
    left_out = {}

    def __init__(self, programs, scratch):
        self.home = scratch / "program"
        self.home.mkdir()
        for name in ("zephyrgraph", "tempoline.exe", "TimeZones.txt", "Station_Data.csv", "datums.csv"):
            shutil.copy2(pathlib.Path(programs) / name, self.home / name)
        shutil.copytree(pathlib.Path(programs) / "samples", self.home / "samples")

    def start(self, desk, scratch, out):
        return desk.start([str(self.home / "zephyrgraph")], cwd=out, env={"HOME": str(scratch)})

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

    def look_at_fonts(self, walk):
        """The toolkit's dialog, which tests open without a display."""

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
    left_out = {"report": "needs an office suite for Windows; tests/batch has one that records what it is asked"}

    def __init__(self, programs, scratch):
        self.home = scratch / "program"
        shutil.copytree(programs, self.home)
        self.env = {"ZG_WINE_PREFIX": str(scratch / "wine"), "WINEPREFIX": str(scratch / "wine")}
        self.run("cmd", "/c", "ver")

    def run(self, *words):
        done = subprocess.run([str(TREE / "tools/wine.sh"), *words], env={**os.environ, **self.env}, capture_output=True)
        if done.returncode != 0:
            raise Failed(f"{' '.join(words)} under Wine ended with {done.returncode}")

    def start(self, desk, scratch, out):
        program = desk.start([str(TREE / "tools/wine.sh"), str(self.home / "zephyrgraph.exe")], cwd=out, env=self.env)
        desk.helpers = self.servers
        desk.pause = 0.15  # on a busy machine it loses keys that come faster
        desk.idle = 2_000_000  # the server looks after itself now and then
        return program

    def servers(self):
        """What works for the program in other processes."""
        mark = ("WINEPREFIX=" + self.env["WINEPREFIX"]).encode()
        found = []
        for process in pathlib.Path("/proc").glob("[0-9]*"):
            try:
                if mark in (process / "environ").read_bytes().split(b"\0"):
                    found.append(int(process.name))
            except OSError:
                continue  # it has ended meanwhile, or is another user's
        return found

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

    def look_at_fonts(self, walk):
        walk.desk.window("Edit Grid Fonts and Colors")
        walk.desk.keys("alt+f")
        number = walk.desk.window("Font")
        walk.desk.shot("font", number)
        walk.desk.keys("Escape")
        walk.desk.gone("Font")

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
