#!/usr/bin/env python3
"""scripts/demo as a person runs it: in a window on a desktop with a browser, and from the command line."""

import json
import os
import pathlib
import re
import signal
import subprocess
import tempfile
import time
import unittest
import urllib.request

from stage import BIN, SESSION, wait_for

DEMO = pathlib.Path(__file__).resolve().parents[2] / "scripts" / "demo"


class Screen:
    """A display of its own, with a window manager."""

    def __init__(self, test, folder):
        reading, writing = os.pipe()
        self.start(test, ["Xvfb", "-displayfd", str(writing), "-screen", "0", "1280x900x24", "-fbdir", folder,
                          "-nolisten", "tcp"], pass_fds=[writing])
        os.close(writing)
        with os.fdopen(reading) as number:
            self.environment = {**os.environ, "DISPLAY": ":" + number.readline().strip()}
        self.memory = folder / "Xvfb_screen0"
        self.start(test, ["openbox"], env=self.environment)

    @staticmethod
    def start(test, command, **options):
        process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, **options)
        test.addCleanup(process.wait, 10)
        test.addCleanup(process.terminate)

    def settled(self):
        """The picture, when nothing has moved for a moment."""
        def still():
            before = self.memory.read_bytes()
            time.sleep(0.3)
            return before if before == self.memory.read_bytes() else None
        return wait_for(still, "a picture that stays")

    def press(self, keys):
        subprocess.run(["xdotool", "key", keys], env=self.environment, timeout=10, check=True)

    def press_and_see(self, keys):
        """Presses until something moves: what the keys mean may not be ready for them yet."""
        before = self.settled()

        def moves():
            self.press(keys)
            time.sleep(1)
            return self.settled() != before
        wait_for(moves, f"what {keys} does")


class DemoTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="brindlex-demo-")
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        (self.folder / "tmp folder").mkdir()
        self.environment = {key: value for key, value in os.environ.items()
                            if key not in SESSION and not key.startswith("XDG_")}
        # A proxy that is not there: nothing on this computer is asked through it.
        self.environment.update({"HOME": str(self.folder), "TMPDIR": str(self.folder / "tmp folder"), "LC_ALL": "C.UTF-8",
                                 "http_proxy": "http://127.0.0.1:9"})

    def run_and_expect(self, command, code, *told):
        run = subprocess.run(command, env=self.environment, cwd=self.folder, timeout=60, check=False, stdout=subprocess.PIPE,
                             stderr=subprocess.STDOUT, text=True)
        self.assertEqual(run.returncode, code, run.stdout)
        for part in told:
            self.assertIn(part, run.stdout)

    def belongings(self):
        return sorted(path for path in self.folder.rglob("*") if path.is_file())

    def test_songs_are_published_by_keyboard_beside_a_registered_browser(self):
        # A browser for web pages, which notes that it was opened.
        for name, text in ((".local/share/applications/own-browser.desktop",
                            f"[Desktop Entry]\nType=Application\nName=Own\nExec=touch {self.folder}/opened %u\n"
                            "MimeType=x-scheme-handler/http;\n"),
                           (".config/mimeapps.list", "[Default Applications]\nx-scheme-handler/http=own-browser.desktop\n")):
            (self.folder / name).parent.mkdir(parents=True)
            (self.folder / name).write_text(text)
        with tempfile.TemporaryDirectory() as memory:
            screen = Screen(self, pathlib.Path(memory))
            before = self.belongings()
            empty = screen.settled()
            demo = subprocess.Popen([DEMO], env={**self.environment, "DISPLAY": screen.environment["DISPLAY"]},
                                    stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, start_new_session=True)
            self.addCleanup(demo.communicate, timeout=30)
            self.addCleanup(lambda: demo.poll() is None and os.killpg(demo.pid, signal.SIGTERM))
            service = re.search(r"http://\S+", demo.stdout.readline()).group()

            def has_succeeded(path):
                with urllib.request.build_opener(urllib.request.ProxyHandler({})).open(service + "control/log") as log:
                    return any(entry["path"] == path and entry["status"] < 300 for entry in json.load(log))

            wait_for(lambda: screen.settled() != empty, "the window")
            screen.press_and_see("ctrl+u")
            signed_out = screen.settled()
            screen.press("alt+c")
            wait_for(lambda: has_succeeded("/api/frontstage/account"), "the sign-in")
            wait_for(lambda: screen.settled() != signed_out, "the panel of who is signed in")
            screen.press_and_see("alt+u")
            wait_for(lambda: has_succeeded("/api/frontstage/release_ingestion"), "the upload")
            screen.settled()
            screen.press("ctrl+q")
            told, _ = demo.communicate(timeout=30)
        self.assertIn("\n3 songs arrived.\n", told)
        self.assertEqual(told.count("byte for byte"), 3, told)
        self.assertEqual(demo.returncode, 0, told)
        self.assertEqual(self.belongings(), before, "neither the browser was opened nor anything left or changed")

    def test_own_songs_from_the_command_line(self):
        subprocess.run([BIN / "brindlex-songs", self.folder / "my songs", "1", "foreign"], check=True)
        rendered, details, nothing = "my songs/Harbour.aiff", ["--title", "High Tide"], "my songs/Low Tide.wav"
        for words, code, told in (
                ([rendered, "my songs/Tide.ogg", *details], 0, ['"High Tide"', "2 of 2 songs arrived."]),
                ([rendered, nothing, "my songs"], 2, [f'"{nothing}" cannot be published: it is not there',
                                                      '"my songs" cannot be published: it is a folder']),
                (["--genre", "Ambient"], 2, ["--genre needs a song"]),
                (["--loud", rendered], 2, ["there is no option '--loud'"])):
            with self.subTest(words):
                self.run_and_expect([DEMO, *words], code, *told)
                self.assertEqual(list((self.folder / "tmp folder").iterdir()), [])

    def test_nothing_is_written_where_it_was_not_asked_for(self):
        settings = self.folder / "services.ini"
        settings.write_text("[brindlex]\nServerURL=https://service.example\n")
        before = settings.read_text()
        self.run_and_expect([BIN / "brindlex-songs", "--help"], 0)
        self.run_and_expect([BIN / "brindlex-songs", "--length=5"], 2)
        self.run_and_expect([BIN / "brindlex-sandbox", "--inbox", "inbox", "--write-settings", settings], 1, "holds other settings")
        self.assertEqual((self.belongings(), settings.read_text()), ([settings], before))


if __name__ == "__main__":
    unittest.main()
