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

from stage import ACCOUNT, BIN, INGESTION, SESSION, wait_for

DEMO = pathlib.Path(__file__).resolve().parents[2] / "scripts" / "demo"


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

    def start(self, command, **options):
        process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, **options)
        self.addCleanup(process.wait, 10)
        self.addCleanup(process.terminate)

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
        before = self.belongings()
        reading, writing = os.pipe()
        self.start(["Xvfb", "-displayfd", str(writing), "-nolisten", "tcp"], pass_fds=[writing])
        os.close(writing)
        with os.fdopen(reading) as number:
            display = {**self.environment, "DISPLAY": ":" + number.readline().strip()}
        self.start(["openbox"], env={**os.environ, "DISPLAY": display["DISPLAY"]})
        demo = subprocess.Popen([DEMO], env=display, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, start_new_session=True)
        self.addCleanup(demo.communicate, timeout=30)
        self.addCleanup(lambda: demo.poll() is None and os.killpg(demo.pid, signal.SIGTERM))
        service = re.search(r"http://\S+", demo.stdout.readline()).group()

        def press_until(condition, *keys):
            """Presses again after a while: there may not have been a window yet."""
            def holds():
                subprocess.run(["xdotool", "key", "--delay", "500", *keys], env=display, timeout=10, check=True)
                end = time.monotonic() + 8
                while not condition() and time.monotonic() < end:
                    time.sleep(0.1)
                return condition()
            wait_for(holds, f"what {keys} does", 60)

        def has_succeeded(path):
            with urllib.request.build_opener(urllib.request.ProxyHandler({})).open(service + "control/log") as log:
                return any(entry["path"] == path and entry["status"] < 300 for entry in json.load(log))

        subprocess.run(["xdotool", "search", "--sync", "--onlyvisible", "--class", "xbrhost"], env=display, timeout=60, check=True,
                       stdout=subprocess.DEVNULL)
        press_until(lambda: has_succeeded(ACCOUNT), "ctrl+u", "alt+c")
        press_until(lambda: has_succeeded(INGESTION), "alt+u")
        time.sleep(1)  # for the last answer to be seen
        press_until(lambda: demo.poll() is not None, "ctrl+q")
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
