"""A browser without a window, driven over its own pipe, so that nothing but Python is needed."""

import fcntl
import json
import os
import shutil
import subprocess
import tempfile

FLAGS = [
    "--headless=new", "--no-sandbox", "--disable-gpu", "--hide-scrollbars", "--no-first-run",
    "--disable-extensions", "--disable-background-networking", "--disable-component-update",
    "--disable-sync", "--remote-debugging-pipe", "--proxy-server=127.0.0.1:9",
    "--host-resolver-rules=MAP * ~NOTFOUND",
]


class Browser:
    """A running browser with one page. Every event since the last visit is kept."""

    def __init__(self):
        program = shutil.which("chromium")
        if not program:
            raise SystemExit("chromium is not installed (see packages.txt)")
        self._folder = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        to_browser, self._to = os.pipe()
        self._from, from_browser = os.pipe()
        # The browser reads from 3 and writes to 4, whatever numbers the pipes got here.
        ends = [fcntl.fcntl(end, fcntl.F_DUPFD, 20) for end in (to_browser, from_browser)]
        os.close(to_browser)
        os.close(from_browser)

        def take_ends():
            os.dup2(ends[0], 3)
            os.dup2(ends[1], 4)

        self._process = subprocess.Popen(
            [program, *FLAGS, "--user-data-dir=" + self._folder.name, "about:blank"],
            close_fds=False, preexec_fn=take_ends, stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        for end in ends:
            os.close(end)
        self._buffer = b""
        self._last = 0
        self.events = []
        target = self._call("Target.createTarget", {"url": "about:blank"})["targetId"]
        self._session = self._call(
            "Target.attachToTarget", {"targetId": target, "flatten": True})["sessionId"]
        for domain in ("Page", "Runtime", "Log", "Network"):
            self.call(domain + ".enable")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._process.kill()
        self._process.wait()
        os.close(self._to)
        os.close(self._from)
        self._folder.cleanup()

    def call(self, method, **parameters):
        """Calls a method of the page and returns its result."""
        return self._call(method, parameters, self._session)

    def visit(self, path, width, is_dark):
        """Opens a file as a screen of this width shows it, and waits until it is loaded."""
        self.call("Emulation.setDeviceMetricsOverride", width=width, height=800,
                  deviceScaleFactor=1, mobile=width < 700)
        scheme = "dark" if is_dark else "light"
        self.call("Emulation.setEmulatedMedia",
                  features=[{"name": "prefers-color-scheme", "value": scheme}])
        self.events.clear()
        self.call("Page.navigate", url="file://" + os.path.abspath(path))
        while not any(event["method"] == "Page.loadEventFired" for event in self.events):
            self._take()

    def ask(self, script):
        """The value of a script in the page, which its own rules do not hold back."""
        answer = self.call("Runtime.evaluate", expression=script, returnByValue=True)
        if "exceptionDetails" in answer:
            raise AssertionError(answer["exceptionDetails"])
        return answer["result"].get("value")

    def _call(self, method, parameters, session=None):
        self._last += 1
        number = self._last
        message = {"id": number, "method": method, "params": parameters}
        if session:
            message["sessionId"] = session
        os.write(self._to, json.dumps(message).encode() + b"\0")
        while True:
            answer = self._take()
            if answer.get("id") == number:
                if "error" in answer:
                    raise AssertionError(f"{method}: {answer['error']}")
                return answer["result"]

    def _take(self):
        while b"\0" not in self._buffer:
            read = os.read(self._from, 1 << 16)
            if not read:
                raise AssertionError("the browser has gone")
            self._buffer += read
        text, self._buffer = self._buffer.split(b"\0", 1)
        message = json.loads(text)
        if "method" in message:
            self.events.append(message)
        return message
