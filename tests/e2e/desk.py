"""A separate display with a window manager, and what a user does there: keys, mouse, screenshots."""
import os
import pathlib
import re
import shutil
import signal
import subprocess
import time


class Failed(Exception):
    """A step did not have the expected result."""


class Desk:
    def __init__(self, shots):
        self.shots = pathlib.Path(shots)
        self.shots.mkdir(parents=True, exist_ok=True)
        self.children = []
        read, write = os.pipe()
        self.children.append(subprocess.Popen(["Xvfb", "-displayfd", str(write), "-screen", "0", "1366x980x24", "-nolisten", "tcp"],
                                              pass_fds=[write], stderr=subprocess.DEVNULL))
        os.close(write)
        with os.fdopen(read) as pipe:
            number = pipe.readline().strip()
        if not number:
            raise Failed("Xvfb did not start")
        self.env = dict(os.environ, DISPLAY=":" + number)
        self.env.pop("QT_QPA_PLATFORM", None)
        self.env.pop("WAYLAND_DISPLAY", None)
        self.helpers = list  # numbers of more processes that work for the program
        self.delay = 60  # milliseconds between keys
        self.idle = 0  # share of one processor that all of them use although there is nothing to do
        self.start(["openbox"])
        self.count = 0

    def start(self, command, **more):
        child = subprocess.Popen(command, env={**self.env, **more.pop("env", {})}, stdout=subprocess.DEVNULL,
                                 stderr=subprocess.DEVNULL, start_new_session=True, **more)
        self.children.append(child)
        return child

    def close(self):
        for child in reversed(self.children):
            if child.poll() is None:
                try:
                    os.killpg(child.pid, signal.SIGTERM)
                except (ProcessLookupError, PermissionError):
                    child.terminate()
                try:
                    child.wait(timeout=5)
                except subprocess.TimeoutExpired:
                    child.kill()

    def tool(self, *words):
        return self.output(*words).strip()

    def output(self, *words):
        try:
            return subprocess.run([*map(str, words)], env=self.env, capture_output=True, text=True, timeout=10).stdout
        except subprocess.TimeoutExpired:
            return ""

    def work(self):
        """Nanoseconds of the processor used so far by the display, the window manager and the program; None while one of them is busy."""
        total = 0
        for number in {*(child.pid for child in self.children), *self.helpers()}:
            for task in pathlib.Path(f"/proc/{number}/task").glob("*"):
                try:
                    if (task / "stat").read_text().rpartition(")")[2].split()[0] in "RD":
                        return None
                    total += int((task / "schedstat").read_text().split()[0])
                except (FileNotFoundError, ProcessLookupError):
                    continue  # it has ended meanwhile
        return total

    def settle(self, seconds=10):
        """Waits until earlier input has been processed completely, however slow the machine is. A blinking caret does not count."""
        end = time.monotonic() + seconds
        before = since = None
        while time.monotonic() < end:
            look = time.monotonic_ns()
            now = self.work()
            if now is not None and before is not None and now - before <= self.idle * (look - since):
                return
            before, since = now, look
            time.sleep(0.06)

    def windows(self):
        """Titles of the visible windows, by number."""
        search = ("xdotool", "search", "--onlyvisible", "--name", "")
        before = self.tool(*search).split()
        known = {}
        for _ in range(20):
            # One call for all titles, between two lists: windows come and go.
            titles = self.output(*search, "getwindowname", "%@").splitlines()
            after = self.tool(*search).split()
            known = {number: title.strip() for number, title in zip(after, titles) if title.strip()}
            if before == after and len(titles) == len(after):
                break
            before = after
        return known

    def wait(self, what, test, seconds=20):
        """Polls until the test returns something; otherwise reports what was expected and what is displayed."""
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            seen = test()
            if seen:
                return seen
            time.sleep(0.1)
        raise Failed(f"expected within {seconds} s: {what}; windows on show: {sorted(set(self.windows().values()))}")

    def window(self, title, seconds=20):
        """The number of the window whose title matches, once it exists and has the focus."""
        def look():
            for number, name in self.windows().items():
                if re.fullmatch(title, name):
                    return number
            return None
        number = self.wait(f"a window titled {title}", look, seconds)
        self.tool("xdotool", "windowactivate", "--sync", number)
        return number

    def gone(self, title, seconds=20):
        self.wait(f"no window titled {title}", lambda: not any(re.fullmatch(title, name) for name in self.windows().values()), seconds)

    def keys(self, *names):
        self.settle()
        self.tool("xdotool", "key", "--delay", self.delay, *names)
        time.sleep(self.delay / 1000)

    def type(self, text):
        self.settle()
        self.tool("xdotool", "type", "--delay", "8", text)

    def click(self, window, x, y, button=1):
        self.settle()
        self.tool("xdotool", "mousemove", "--window", window, x, y, "click", button)

    def drag(self, window, x, y, to_x, to_y):
        self.tool("xdotool", "mousemove", "--window", window, x, y, "mousedown", 1)
        for i in range(1, 9):
            self.tool("xdotool", "mousemove", "--window", window, x + (to_x - x) * i // 8, y + (to_y - y) * i // 8)
        self.tool("xdotool", "mouseup", 1)

    def shot(self, name, window="root", still=True):
        """A picture of a window, once it is painted. Does not wait while something is animated."""
        if still:
            self.settle()
        self.count += 1
        path = self.shots / f"{self.count:02d}_{name}.png"
        self.tool("import", "-window", window, path)
        return path

    def colours(self, path, box=None):
        """Number of pixels of each colour in a picture, or in a part of it given as WxH+X+Y."""
        crop = ["-crop", box, "+repage"] if box else []
        text = self.tool("convert", path, *crop, "-depth", "8", "-format", "%c", "histogram:info:-")
        found = {}
        for line in text.splitlines():
            match = re.search(r"^\s*(\d+):.*#([0-9A-F]{6})", line)
            if match:
                found[match.group(2)] = found.get(match.group(2), 0) + int(match.group(1))
        return found


def needed(more=()):
    """Required programs that are missing."""
    return [name for name in ("Xvfb", "openbox", "xdotool", "import", "convert", *more) if shutil.which(name) is None]
