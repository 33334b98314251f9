#!/usr/bin/env python3
"""A whole sign-in and upload with marked secrets, which may show up on the wire and nowhere else."""

import pathlib
import subprocess
import threading
import unittest

from stage import BIN, CLIENT_SECRET, Stage, sign_in_page

TOKENS = {"access_token": "marked-access-0815", "refresh_token": "marked-refresh-0815", "id_token": "marked-id-0815"}
CODE = "marked+code/0815="
SECRETS = [CLIENT_SECRET, *TOKENS.values(), "marked"]


class Watcher(threading.Thread):
    """Looks again and again at the arguments of every process and at every file that the host could write."""

    def __init__(self, stage):
        super().__init__(daemon=True)
        self.stage = stage
        self.ended = threading.Event()
        self.seen = {}  # what was found, by where

    def run(self):
        while not self.ended.is_set():
            self.look()

    def look(self):
        for process in pathlib.Path("/proc").glob("[0-9]*"):
            self.keep(process / "cmdline", "arguments of ")
        for folder in ("tmp", "run", "home"):
            for path in (self.stage.folder / folder).rglob("*"):
                self.keep(path, "file ")

    def keep(self, path, kind):
        try:
            content = path.read_bytes()[:65536]
            # The service's stand-in is told its secret as an argument.
            if not content.startswith(bytes(BIN / "brindlex-sandbox")):
                self.seen.setdefault(kind + str(path), set()).add(content)
        except OSError:
            pass  # gone in the meantime, or no file


class SecretsTest(unittest.TestCase):
    def setUp(self):
        self.stage = Stage()
        self.addCleanup(self.stage.close)
        self.watcher = Watcher(self.stage)

    def serve(self, path, **answer):
        self.stage.control("POST", "fault", {"path": path, **answer})

    def publish(self, *songs):
        """Signs in with a marked code, as if pasted from the browser, and publishes."""
        process = self.stage.start("publish", *songs, XBR_DEBUG="1", BROWSER="/bin/true")
        page = sign_in_page(process)
        callback = f"brindlex://authorize?code={CODE.replace('+', '%2B').replace('=', '%3D')}"
        # The desktop hands the callback over as an argument: nothing that the host could hide.
        subprocess.run([BIN / "xbrhost", "open-url", callback], env=self.stage.environment, timeout=20, check=True)
        self.watcher.start()
        output, errors = process.communicate(timeout=30)
        self.watcher.ended.set()
        self.watcher.join()
        return process.returncode, page + output + errors

    def assert_kept_secret(self, told):
        for secret in SECRETS:
            self.assertNotIn(secret, told)
            for place, contents in self.watcher.seen.items():
                for content in contents:
                    self.assertNotIn(secret.encode(), content, place)
        self.assertTrue(any("metadata.json" in place for place in self.watcher.seen), "the payload was looked at")

    def test_successful_run(self):
        songs = self.stage.make_songs()
        self.serve("/oauth/token", status=200, body={**TOKENS, "expires_in": 60})
        self.serve("/api/frontstage/account", status=200, body={"user": {"name": "Mara"}})
        self.serve("/api/frontstage/release_ingestion", status=201, body={}, delay_ms=300, times=len(songs))
        code, told = self.publish(*songs)
        self.assertEqual(code, 0, told)
        self.assert_kept_secret(told)

    def test_run_where_everything_is_refused(self):
        songs = self.stage.make_songs()
        self.serve("/oauth/token", status=200, body=TOKENS)
        self.serve("/api/frontstage/account", status=500, body={"error": TOKENS["access_token"]})
        self.serve("/api/frontstage/release_ingestion", status=401, delay_ms=300, times=len(songs),
                   body={"errors": f"the token {TOKENS['access_token']} is not known"})
        code, told = self.publish(*songs)
        self.assertEqual(code, 10, told)
        self.assert_kept_secret(told)


if __name__ == "__main__":
    unittest.main()
