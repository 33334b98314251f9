"""A stage for end-to-end tests: the service's stand-in, songs, and xbrhost with folders of its own."""

import json
import os
import pathlib
import re
import shutil
import signal
import subprocess
import tempfile
import time
import unittest
import urllib.request

BIN = pathlib.Path(os.environ["BRINDLEX_BIN"])

ACCOUNT = "/api/frontstage/account"
INGESTION = "/api/frontstage/release_ingestion"

# A marked value, which may not show up where it does not belong.
CLIENT_SECRET = "marked+client/secret=0815"

# A desktop session of whoever runs the tests stays out of them.
SESSION = ["DISPLAY", "WAYLAND_DISPLAY", "XDG_CURRENT_DESKTOP", "DESKTOP_SESSION", "DBUS_SESSION_BUS_ADDRESS"]


def wait_for(condition, what, seconds=20):
    """Waits until `condition` answers something true, and answers that."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        result = condition()
        if result:
            return result
        time.sleep(0.02)
    raise AssertionError(f"waited {seconds} s in vain for {what}")


class Stage:
    """Starts the service; everything lies below one folder that `close` removes."""

    def __init__(self, keyring=False):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="brindlex-e2e-"))
        for name in ("home", "run", "tmp"):
            (self.folder / name).mkdir(mode=0o700)
        self.inbox = self.folder / "inbox"
        self.settings = self.folder / "services.ini"
        port = self.folder / "port"
        self.service = subprocess.Popen(
            [BIN / "brindlex-sandbox", "--inbox", self.inbox, "--port-file", port, "--client-secret", CLIENT_SECRET,
             "--write-settings", self.settings], stdout=subprocess.DEVNULL)
        self.server = "http://127.0.0.1:" + wait_for(lambda: port.exists() and port.read_text().strip(), "the service")
        kept = ["DBUS_SESSION_BUS_ADDRESS"] if keyring else []
        self.environment = {key: value for key, value in os.environ.items() if key in kept or key not in SESSION}
        self.environment.update({
            "HOME": str(self.folder / "home"),
            "XDG_RUNTIME_DIR": str(self.folder / "run"),
            "TMPDIR": str(self.folder / "tmp"),
            "XBRHOST_CONFIG": str(self.settings),
            "BROWSER": str(BIN / "brindlex-browser"),
            "LC_ALL": "C.UTF-8",
        })
        for name in ("CONFIG", "DATA", "CACHE"):
            self.environment[f"XDG_{name}_HOME"] = str(self.folder / "home" / name.lower())

    def close(self):
        self.service.terminate()
        self.service.wait(10)
        shutil.rmtree(self.folder)

    def configure(self, server):
        """Another address of the service."""
        self.settings.write_text(re.sub("(?m)^ServerURL=.*", f"ServerURL={server}", self.settings.read_text()))

    def make_songs(self, length=1, *kind):
        """Three tagged songs, MP3, FLAC and WAV, in the order of their names; "foreign" are AIFF and OGG."""
        songs = self.folder / "-".join(["songs", str(length), *kind])
        subprocess.run([BIN / "brindlex-songs", songs, str(length), *kind], check=True)
        return sorted(songs.iterdir())

    def start(self, *arguments, **environment):
        return subprocess.Popen([BIN / "xbrhost", *arguments], env={**self.environment, **environment},
                                stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)

    def run(self, *arguments, **environment):
        """Runs xbrhost to its end."""
        process = self.start(*arguments, **environment)
        try:
            process.out, process.errors = process.communicate(timeout=60)
        except subprocess.TimeoutExpired:
            process.kill()
            raise AssertionError(f"xbrhost {arguments} hangs: {process.communicate()}") from None
        process.told = process.out + process.errors
        return process

    def visit(self, page):
        """Signs in on a page, as a person with a browser."""
        subprocess.run([BIN / "brindlex-browser", page], env=self.environment, timeout=20, check=True)

    def releases(self):
        """What was accepted: document and audio of each release, in order."""
        return [(json.loads(path.read_text()), sorted((path.parent / "assets").iterdir()))
                for path in sorted(self.inbox.glob("*/metadata.json"))]

    def control(self, method, path, body=None):
        request = urllib.request.Request(self.server + "/control/" + path, method=method,
                                         data=json.dumps(body).encode() if body is not None else None)
        with urllib.request.urlopen(request, timeout=10) as reply:
            return reply.read().decode()

    def fault(self, path, **what):
        """What comes of the next request to a path."""
        self.control("POST", "fault", {"path": path, **what})

    def log(self, path):
        """The requests to a path that the service saw."""
        return [entry for entry in json.loads(self.control("GET", "log")) if entry["path"] == path]

    def leftovers(self):
        return [str(path.relative_to(self.folder)) for path in (self.folder / "tmp").rglob("*")]


class StageTest(unittest.TestCase):
    """Tests with a stage for each."""

    make_stage = Stage

    def setUp(self):
        self.stage = self.make_stage()
        self.addCleanup(self.stage.close)

    def check(self, *arguments, code=0, told="", **environment):
        """Runs xbrhost, which ends with a code, has told something, and leaves no temporary files."""
        result = self.stage.run(*arguments, **environment)
        self.assertEqual(result.returncode, code, result.told)
        self.assertIn(told, result.told)
        self.assertEqual(self.stage.leftovers(), [], "temporary files")
        return result

    def publish(self, *arguments, **expected):
        return self.check("publish", *arguments, **expected)

    def events(self, *arguments, code=0):
        """What `publish --json` tells."""
        events = [json.loads(line) for line in self.publish("--json", *arguments, code=code).out.splitlines()]
        self.assertEqual((events[-1]["event"], events[-1]["exitCode"]), ("finished", code))
        return events

    def start(self, *arguments, **environment):
        process = self.stage.start(*arguments, **environment)
        self.addCleanup(process.communicate)
        self.addCleanup(process.kill)
        return process

    def start_sign_in(self, *arguments, **environment):
        """A host that waits for the browser, and the address that it asks for."""
        process = self.start(*arguments, BROWSER="/bin/true", **environment)
        page = ""
        while "/oauth/authorize" not in page:
            page = process.stderr.readline()
            self.assertNotEqual(page, "", "it ended without the address of the sign-in page")
        process.stderr.readline()  # how to hand the link over by hand
        return process, page.strip()


def interrupt(process):
    process.send_signal(signal.SIGINT)
    return process.communicate(timeout=20)
