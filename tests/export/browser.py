# One Chromium without a window for all pages, driven through its own protocol over two pipes (no package is needed for it).
import base64
import fcntl
import json
import os
import select
import shutil
import signal
import time

LONGEST_ANSWER = 120  # seconds


def found():
    """The path of a browser, or None."""
    return next((path for path in map(shutil.which, ("chromium-headless-shell", "chromium")) if path), None)


class BrowserFault(Exception):
    pass


def _high(descriptor):
    """The same pipe at a number that is in nobody's way."""
    high = fcntl.fcntl(descriptor, fcntl.F_DUPFD_CLOEXEC, 10)
    os.close(descriptor)
    return high


class Browser:
    """A browser with one page, whose files are in a directory that the caller removes."""

    def __init__(self, program, scratch):
        its_input, self._to = map(_high, os.pipe())
        os.set_blocking(self._to, False)
        self._from, its_output = map(_high, os.pipe())
        words = [program, "--headless", "--no-sandbox", "--disable-gpu", "--hide-scrollbars", "--remote-debugging-pipe",
                 "--user-data-dir=" + os.path.join(scratch, "browser"), "about:blank"]
        silent = [(os.POSIX_SPAWN_OPEN, stream, os.devnull, os.O_RDWR, 0) for stream in (0, 1, 2)]
        pipes = [(os.POSIX_SPAWN_DUP2, its_input, 3), (os.POSIX_SPAWN_DUP2, its_output, 4)]
        self._process = os.posix_spawn(program, words, os.environ, file_actions=silent + pipes, setpgroup=0)
        os.close(its_input)
        os.close(its_output)
        self._bytes, self._events, self._count, self._session = b"", [], 0, None
        try:
            target = self.call("Target.createTarget", url="about:blank")["targetId"]
            self._session = self.call("Target.attachToTarget", targetId=target, flatten=True)["sessionId"]
            self.call("Page.enable")
            self.window(1000, 800)
        except BaseException:
            self.__exit__()
            raise

    def __enter__(self):
        return self

    def __exit__(self, *_):
        try:
            os.killpg(self._process, signal.SIGKILL)
        except ProcessLookupError:
            pass
        os.waitpid(self._process, 0)
        os.close(self._to)
        os.close(self._from)

    def _send(self, rest, deadline):
        while rest:
            if not select.select([], [self._to], [], max(0, deadline - time.monotonic()))[1]:
                raise BrowserFault("the browser does not listen")
            try:
                rest = rest[os.write(self._to, rest):]
            except BrokenPipeError as gone:
                raise BrowserFault("the browser has ended") from gone

    def _message(self, deadline):
        while b"\0" not in self._bytes:
            if not select.select([self._from], [], [], max(0, deadline - time.monotonic()))[0]:
                raise BrowserFault("the browser does not answer")
            part = os.read(self._from, 1 << 16)
            if not part:
                raise BrowserFault("the browser has ended")
            self._bytes += part
        whole, self._bytes = self._bytes.split(b"\0", 1)
        return json.loads(whole)

    def call(self, method, **parameters):
        """The result of a command of the protocol."""
        self._count += 1
        message = {"id": self._count, "method": method, "params": parameters}
        if self._session:
            message["sessionId"] = self._session
        deadline = time.monotonic() + LONGEST_ANSWER
        self._send(json.dumps(message).encode() + b"\0", deadline)
        while True:
            answer = self._message(deadline)
            if answer.get("id") == self._count:
                if "error" in answer:
                    raise BrowserFault("%s: %s" % (method, answer["error"].get("message")))
                return answer["result"]
            self._events.append(answer.get("method"))

    def open(self, path):
        """Shows a file, to the end of its loading."""
        self._events.clear()
        fault = self.call("Page.navigate", url="file://" + path).get("errorText")
        if fault:
            raise BrowserFault("%s: %s" % (path, fault))
        deadline = time.monotonic() + LONGEST_ANSWER
        while "Page.loadEventFired" not in self._events:
            self._events.append(self._message(deadline).get("method"))

    def ask(self, expression):
        """The value of an expression of the page's script; waits for a promise."""
        done = self.call("Runtime.evaluate", expression=expression, awaitPromise=True, returnByValue=True)
        if "exceptionDetails" in done:
            raise BrowserFault("%s: %s" % (expression[:80], json.dumps(done["exceptionDetails"])[:400]))
        return done["result"].get("value")

    def window(self, width, height):
        self.call("Emulation.setDeviceMetricsOverride", width=width, height=height, deviceScaleFactor=1, mobile=False)

    def media(self, kind="", scheme="light"):
        """"print" or "" for the screen; light or dark colours."""
        self.call("Emulation.setEmulatedMedia", media=kind, features=[{"name": "prefers-color-scheme", "value": scheme}])

    def scripts(self, run):
        self.call("Emulation.setScriptExecutionDisabled", value=not run)

    def press(self, key):
        """"Tab", "Enter" or "ArrowDown" goes down and up."""
        number, text = {"Tab": (9, ""), "Enter": (13, "\r"), "ArrowDown": (40, "")}[key]
        for kind in ("keyDown", "keyUp"):
            self.call("Input.dispatchKeyEvent", type=kind, key=key, code=key, windowsVirtualKeyCode=number,
                      text=text if kind == "keyDown" else "")

    def screenshot(self, path, whole_page=False):
        self._keep(path, self.call("Page.captureScreenshot", captureBeyondViewport=whole_page))

    def print(self, path, width, height):
        """A PDF file on paper of that size in inches, with the page's own margins."""
        self._keep(path, self.call("Page.printToPDF", paperWidth=width, paperHeight=height, preferCSSPageSize=False,
                                   printBackground=False))

    @staticmethod
    def _keep(path, result):
        with open(path, "wb") as file:
            file.write(base64.b64decode(result["data"]))
