#!/usr/bin/env python3
"""A new user's walk through the whole program: a real window, keys and mouse only, judged by what is visible and by the files.

python3 tests/e2e/walk.py BIN SHOTS
python3 tests/e2e/walk.py --wine BIN SHOTS

BIN is the directory of the built programs with their data, with --wine the unpacked portable folder for Windows; the walk works in a copy of
it. SHOTS gets a screenshot of each step.
"""
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import time

from desk import Desk, Failed, needed
from places import Debian, Wine

FILE_MENU = ["open", "m3d", "surface", "profile", "monitor", "ventos", "surf", "up", "series", "save", "batch", "report", "print", "exit"]
PAGE = "640x560+60+70"  # of the main window: the page without its surroundings


class Walk:
    def __init__(self, place, programs, shots):
        if "ZG_WALK_DIR" in os.environ:  # for pictures that are always the same
            self.scratch = pathlib.Path(os.environ["ZG_WALK_DIR"])
            self.scratch.mkdir()
        else:
            self.scratch = pathlib.Path(tempfile.mkdtemp(prefix="zephyrgraph walk "))
        self.out = self.scratch / "my results"
        self.out.mkdir()
        self.place = place(programs, self.scratch)
        self.samples = self.place.home / "samples"
        self.desk = Desk(shots)
        self.main = None

    def close(self):
        self.place.close()
        self.desk.close()
        shutil.rmtree(self.scratch, ignore_errors=True)

    # What a user does.

    def menu(self, key, downs):
        self.desk.window(r"Zephyrgraph.*")
        self.desk.keys("alt+" + key)
        self.desk.keys(*["Down"] * downs, "Return")

    def file_menu(self, entry):
        self.menu("f", FILE_MENU.index(entry))

    def pick(self, title, path, shot=None):
        """Types a path into a dialog for files or folders, with a picture of it if it gets a name."""
        self.desk.window(title)
        self.desk.keys("ctrl+a")
        self.desk.type(path if isinstance(path, str) else self.place.name(path))
        if shot:
            self.desk.shot(shot)
        self.desk.keys("Return")
        self.desk.gone(title)

    def fill(self, key, text):
        """Moves to a field by its key and replaces its text."""
        self.desk.keys("alt+" + key)
        self.desk.keys("ctrl+a")
        self.desk.type(str(text))

    # What a user sees.

    def page(self, name, still=True):
        return self.desk.shot(name, self.main, still)

    def changed(self, before, after, what):
        """Whether the page differs in more than a few pixels."""
        done = subprocess.run(["compare", "-metric", "AE", "-extract", PAGE, before, after, "null:"], capture_output=True, text=True)
        different = float(re.match(r"[\d.e+]+", done.stderr.strip() or "0").group(0))
        if different < 30:
            raise Failed(f"{what} was expected to change the page; {different:.0f} pixels differ between {before} and {after}")

    def count(self, shot, colour):
        return self.desk.colours(shot, PAGE).get(colour, 0)

    def plotted(self, name):
        self.desk.wait(f"the main window titled with {name}",
                       lambda: any(re.fullmatch("Zephyrgraph - " + name, title) for title in self.desk.windows().values()), 40)

    def file(self, path, least, what):
        path = pathlib.Path(path)
        self.desk.wait(f"{what}: {path.name} of at least {least} bytes", lambda: path.is_file() and path.stat().st_size >= least, 60)
        return path

    # The steps.

    def first_start(self):
        self.program = self.place.start(self.desk, self.scratch, self.out)
        self.desk.window("Zephyrgraph")
        # The splash has the same title; the main window is the one with a page to draw on.
        self.main = self.desk.wait("the main window", lambda: next(
            (number for number, title in self.desk.windows().items() if title == "Zephyrgraph" and self.size(number)[0] > 650), None))
        self.empty = self.page("first_start")

    def size(self, window):
        text = self.desk.tool("xdotool", "getwindowgeometry", "--shell", window)
        found = dict(line.split("=") for line in text.splitlines() if "=" in line)
        return int(found.get("WIDTH", 0)), int(found.get("HEIGHT", 0))

    def open_a_file(self):
        self.file_menu("open")
        self.pick("Open", self.samples / "LOVETT_1988.frq", "open")
        self.plotted("LOVETT_1988.frq")
        self.rose = self.page("rose")
        self.changed(self.empty, self.rose, "an opened file")
        for colour in ("FF0000", "00FF00", "0000FF", "FFFF00"):
            if self.count(self.rose, colour) < 20:
                raise Failed(f"the rose has no wind class in #{colour}")
        self.place.show_text(self)

    def choose_a_rose(self):
        self.menu("v", 0)
        self.desk.window("Select Wind Rose to Plot")
        self.desk.shot("choose")
        self.desk.keys("Down", "Down", "Return")
        self.desk.gone("Select Wind Rose to Plot")
        spring = self.page("spring")
        self.changed(self.rose, spring, "another rose")

    def restyle(self):
        before = self.page("before_restyling")
        self.menu("o", 5)
        self.desk.window("Edit Grid Fonts and Colors")
        self.desk.keys("alt+g", "Return")
        self.place.pick_colour(self)
        self.desk.shot("grid_dialog")
        self.desk.keys("alt+a", "alt+c")
        self.desk.gone("Edit Grid Fonts and Colors")
        after = self.page("red_grid")
        if self.count(after, "C00000") < self.count(before, "C00000") + 100:
            raise Failed("a dark red grid was expected")

    def fonts(self):
        before = self.page("before_fonts")

        def change(*keys, choose=lambda: None):
            self.menu("o", 5)
            self.desk.window("Edit Grid Fonts and Colors")
            self.desk.keys(*keys)
            choose()
            self.desk.window("Edit Grid Fonts and Colors")
            self.desk.keys("alt+a", "alt+c")
            self.desk.gone("Edit Grid Fonts and Colors")

        def choose():
            number = self.desk.window(self.place.font_title)
            self.place.choose_font(self)
            self.desk.shot("font", number)
            self.desk.keys("Return")
            self.desk.gone(self.place.font_title)
            self.desk.shot("chosen_font", self.desk.window("Edit Grid Fonts and Colors"))
        change("alt+f", choose=choose)
        self.changed(before, self.page("large_font"), "another font")
        change("alt+d")
        if not self.same(before, self.page("default_font")):
            raise Failed("the page of before was expected with the default font")

    def radius(self):
        before = self.page("before_radius")
        self.menu("o", 2)
        self.desk.window("Change Radius")
        self.desk.keys("alt+r", "Up", "Up")
        self.desk.shot("radius")
        self.desk.keys("Return")
        self.desk.gone("Change Radius")
        self.changed(before, self.page("smaller_radius"), "another radius")

    def measure(self):
        before = self.page("before_measuring")
        width, height = self.size(self.main)
        self.desk.click(self.main, 24, 174)  # the circle of the tool box
        self.desk.tool("xdotool", "mousemove", "--window", self.main, width // 2 + 5, 390, "mousedown", 1)
        for x in range(10, 120, 10):
            self.desk.tool("xdotool", "mousemove", "--window", self.main, width // 2 + x, 390)
        during = self.page("measuring")
        self.desk.tool("xdotool", "mouseup", 1)
        self.changed(before, during, "a circle that is being drawn")
        self.desk.keys("Escape")
        self.desk.click(self.main, 24, 79)  # the pointer

    def annotate(self):
        before = self.page("before_label")
        self.menu("o", 3)
        self.desk.window("Edit Label")
        self.fill("u", "Lovett, checked by hand")
        self.desk.shot("label_dialog")
        self.desk.keys("Return")
        self.desk.settle()
        if any(title == "Edit Label" for title in self.desk.windows().values()):
            self.desk.keys("Return")
        self.desk.gone("Edit Label")
        self.changed(before, self.page("label"), "a label")

    def equation(self):
        before = self.page("before_curve")
        self.fill("t", "4*abs(sin(2*t))")
        self.desk.keys("alt+p")
        after = self.page("curve")
        self.changed(before, after, "a curve")

    def pop_up(self, *keys):
        """Opens the context menu of the first row of the list of curves and presses keys in it."""
        _, height = self.size(self.main)
        self.desk.click(self.main, 100, height - 78)
        self.desk.click(self.main, 100, height - 78, 3)
        self.desk.shot("pop_up")
        self.desk.keys(*keys)

    def animate(self):
        self.pop_up("Up", "Return")
        self.desk.window("Properties")
        self.desk.keys("ctrl+shift+Tab")
        self.fill("d", "5")
        self.desk.shot("properties")
        self.desk.keys("Return")
        self.desk.gone("Properties")
        before = self.page("before_play")
        self.pop_up(*self.place.to_play, "Return")
        early = self.page("playing", still=False)
        self.changed(before, early, "a curve that is being drawn anew")
        shot = self.desk.shots / "played.png"

        def played():
            self.desk.tool("import", "-window", self.main, shot)
            return self.same(before, shot)
        self.desk.wait("the curve again after it was played", played, 40)

    def same(self, a, b):
        done = subprocess.run(["compare", "-metric", "AE", "-extract", PAGE, a, b, "null:"], capture_output=True, text=True)
        return float(re.match(r"[\d.e+]+", done.stderr.strip() or "1e9").group(0)) < 30

    def save(self):
        self.desk.keys("ctrl+s")
        self.pick("Copy To.*|Save.*", self.out / "page.bmp")
        path = self.file(self.out / "page.bmp", 100_000, "the saved page")
        if path.read_bytes()[:2] != b"BM":
            raise Failed("page.bmp was expected to be a bitmap")

    def printed(self):
        path = self.place.print_page(self)
        begin = self.file(path, 10_000, "the printed page").read_bytes()[:4]
        if begin not in (b"%PDF", b"%!PS"):
            raise Failed(f"{path.name} was expected to be a printed page; it begins with {begin}")

    def batch(self):
        pictures = self.out / "pictures"
        pictures.mkdir()
        self.file_menu("batch")
        self.desk.window("Batch Mode")
        self.desk.keys("alt+b")
        self.pick("Open", self.samples / "north_sea.frq")
        self.desk.window("Batch Mode")
        self.fill("f", "sea_")
        self.desk.keys("alt+o")
        self.pick(self.place.folder_title, pictures, "folder")
        self.desk.window("Batch Mode")
        self.desk.keys("alt+w")
        self.desk.shot("batch", self.desk.window("Batch Mode"))
        self.desk.keys("Tab", "Tab", "Tab", "Tab", "Return")
        self.desk.wait("25 bitmaps", lambda: len(list(pictures.glob("sea_*.bmp"))) == 25, 120)
        self.desk.shot("batch_finished")
        self.desk.window("Batch Mode")
        self.desk.keys("Escape")
        self.desk.gone("Batch Mode")

    def report(self):
        pictures = self.out / "few"
        pictures.mkdir()
        for path in sorted((self.out / "pictures").glob("*.bmp"))[:2]:
            shutil.copy(path, pictures)
        self.file_menu("report")
        self.desk.window("Create Report")
        self.fill("d", self.place.name(pictures))
        self.desk.keys("alt+p")
        self.fill("y", self.place.directory(self.out))
        self.fill("f", "roses")
        self.desk.shot("report", self.desk.window("Create Report"))
        self.desk.keys("Tab", "Return")
        self.file(self.out / "roses.ppt", 10_000, "the slide show")
        self.desk.window("Create Report")
        self.desk.keys("Escape")
        self.desk.gone("Create Report")

    def point(self, entry, title, sample, result, before_run=()):
        """One dialog for point data, from its menu entry to the rose."""
        out = self.out / entry
        out.mkdir()
        self.file_menu(entry)
        self.desk.window(title)
        self.desk.keys("alt+b")
        self.pick("Open", self.samples / sample)
        self.desk.window(title)
        for keys, text in before_run:
            if text is None:
                self.desk.keys(*keys)
            else:
                self.fill(keys, text)
        self.fill("q", "rose")
        self.fill("o", self.place.directory(out))
        self.desk.shot(entry, self.desk.window(title))
        self.desk.keys("Return")
        self.plotted(result)
        self.desk.wait("the rose's file", lambda: any(re.fullmatch(result, path.name) for path in out.iterdir()))
        self.place.console(self, entry)
        self.desk.shot(entry + "_rose")
        self.desk.window(title)
        self.desk.keys("Escape")
        self.desk.gone(title)
        self.page(entry + "_window")

    def surface(self):
        self.point("surface", "Generate Wind Rose Plots from AERMET Surface Data", "LOVETT.SFC", r".*AERMETSFC.*\.frq")

    def profile(self):
        self.point("profile", "Generate Wind Rose Plots from AERMET Profile Data", "AERMET2.PFL", r".*AERMETPFL.*\.frq",
                   [("i", "14735")])

    def monitor(self):
        self.point("monitor", "Generate Wind Rose Plots from .*", "valley_monitor.csv", r".*AMMNETW.*\.frq", [(["alt+i", "Down"], None)])

    def surf(self):
        self.point("surf", r"Generate Wind Rose Plots from a SURF.DAT File:", "valley_surf.dat", r".*SURF.*\.frq")

    def up(self):
        self.point("up", r"Generate Wind Rose Plots from an UP.DAT File:", "valley_up.dat", r".*UP.*\.frq")

    def series(self):
        self.point("series", r"Generate Wind Rose Plots from .*", "valley_series.tsf", r".*\.frq")

    def wizard(self, entry, title, sample, result, locations):
        out = self.out / entry
        out.mkdir()
        self.file_menu(entry)
        self.desk.window(title)
        self.desk.keys("alt+b")
        self.pick("Select Files", self.place.quoted(self.samples / sample))
        self.desk.window(title)
        self.desk.keys("alt+n")
        self.desk.keys("alt+i", "Down")
        locations()
        self.fill("a", result)
        self.desk.shot(entry + "_location")
        self.desk.keys("alt+n")
        self.fill("o", self.place.directory(out))
        self.desk.shot(entry + "_directory")
        self.desk.keys("alt+r")
        self.plotted(result + ".frq")
        self.file(out / (result + ".frq"), 1000, "the rose's file")
        self.place.console(self, entry)
        self.desk.shot(entry + "_rose")
        self.desk.window(title)
        self.desk.keys("Escape")
        self.desk.gone(title)

    def m3d(self):
        def cells():
            self.desk.keys("alt+v", "Down", "alt+n")
            self.desk.wait("the question about grid cells", lambda: "Zephyrgraph" in self.desk.windows().values())
            self.desk.shot("cells_question")
            self.desk.keys("alt+y")
            self.fill("i", "1.5")
            self.fill("j", "2.25")
        self.wizard("m3d", "Generate Wind Rose Plots from MM5 or WRF 3D.DAT Data", "valley_model.m3d", "cell", cells)

    def ventos(self):
        def coordinates():
            self.desk.keys("alt+n")
            self.desk.window("Map Projection Information for Extraction Site Coordinates")
            self.desk.shot("projection")
            self.desk.keys("Return")
            self.desk.gone("Map Projection Information for Extraction Site Coordinates")
            self.fill("x", "584.0")
            self.fill("y", "4514.5")
        self.wizard("ventos", "Generate Wind Rose Plots from VENTOS Data", "valley_ventos.dat", "field", coordinates)

    def leave(self):
        self.file_menu("exit")
        self.desk.wait("the end of the program", lambda: self.program.poll() is not None)
        if self.program.returncode != 0:
            raise Failed(f"the program was expected to end with 0, not {self.program.returncode}")
        self.file(self.place.home / "Zephyrgraph.cfg", 100, "the settings")


STEPS = ["first_start", "open_a_file", "choose_a_rose", "restyle", "fonts", "radius", "measure", "annotate", "equation", "animate", "save",
         "printed", "batch", "report", "surface", "profile", "monitor", "surf", "up", "series", "m3d", "ventos", "leave"]


def main():
    words = sys.argv[1:]
    place = Wine if words[:1] == ["--wine"] else Debian
    words = words[1:] if place is Wine else words
    if len(words) != 2:
        sys.exit(__doc__)
    missing = needed(place.needs)
    if missing:
        sys.exit("walk.py needs " + ", ".join(missing))
    walk = Walk(place, *words)
    begin = time.monotonic()
    try:
        for name in STEPS:
            if name in place.left_out:
                print(f"{name}: left out, {place.left_out[name]}", flush=True)
                continue
            start = time.monotonic()
            try:
                getattr(walk, name)()
            except Failed as failed:
                shot = walk.desk.shot("FAILED_" + name)
                sys.exit(f"step {name} failed: {failed}\nscreenshot: {shot}")
            print(f"{name}: as expected ({time.monotonic() - start:.1f} s)", flush=True)
    finally:
        walk.close()
    print(f"all {len(STEPS) - len(place.left_out)} steps as expected in {time.monotonic() - begin:.0f} s; screenshots in {words[1]}")


main()
