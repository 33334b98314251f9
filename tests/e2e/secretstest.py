#!/usr/bin/env python3
"""A whole sign-in and upload with marked secrets, which may show up on the wire and nowhere else."""

import pathlib
import subprocess
import threading
import unittest

from stage import ACCOUNT, BIN, CLIENT_SECRET, INGESTION, StageTest

TOKENS = {"access_token": "marked-access-0815", "refresh_token": "marked-refresh-0815", "id_token": "marked-id-0815"}
CODE = "marked%2Bcode/0815%3D"


class Watcher(threading.Thread):
    """Looks again and again at the arguments of every process and at every file that the host could write."""

    def __init__(self, folder):
        super().__init__(daemon=True)
        self.places = [(pathlib.Path("/proc"), "[0-9]*/cmdline"),
                       *((folder / name, "**/*") for name in ("tmp", "run", "home"))]
        self.ended = threading.Event()
        self.seen = {}  # what was found, by where
        self.start()

    def run(self):
        while not self.ended.is_set():
            for path in (path for place, pattern in self.places for path in place.glob(pattern)):
                try:
                    content = path.read_bytes()[:65536]
                except OSError:
                    continue  # gone in the meantime, or no file
                # The service's stand-in is told its secret as an argument.
                if not content.partition(b"\0")[0].endswith(b"/brindlex-sandbox"):
                    self.seen.setdefault(str(path), set()).add(content)


class SecretsTest(StageTest):
    def check_kept_secret(self, expected):
        """Signs in with a marked code, as if handed over by the browser, and publishes."""
        process, page = self.start_sign_in("publish", *self.stage.make_songs(), XBR_DEBUG="1")
        # The desktop hands the callback over as an argument: nothing that the host could hide.
        subprocess.run([BIN / "xbrhost", "open-url", f"brindlex://authorize?code={CODE}"], env=self.stage.environment,
                       timeout=20, check=True)
        watcher = Watcher(self.stage.folder)
        output, errors = process.communicate(timeout=30)
        self.assertEqual(process.returncode, expected, errors)
        watcher.ended.set()
        watcher.join()
        seen = {"the terminal": {(page + output + errors).encode()}, **watcher.seen}
        for place, contents in seen.items():
            for secret in (CLIENT_SECRET, "marked"):
                self.assertFalse(any(secret.encode() in content for content in contents), place)
        self.assertTrue(any("metadata.json" in place for place in seen), "the payload was looked at")

    def test_successful_run(self):
        self.stage.fault("/oauth/token", status=200, body={**TOKENS, "expires_in": 60})
        self.stage.fault(ACCOUNT, status=200, body={"user": {"name": "Mara"}})
        self.stage.fault(INGESTION, status=201, body={}, delay_ms=300, times=3)
        self.check_kept_secret(0)

    def test_run_where_everything_is_refused(self):
        self.stage.fault("/oauth/token", status=200, body=TOKENS)
        self.stage.fault(ACCOUNT, status=500, body={"error": TOKENS["access_token"]})
        self.stage.fault(INGESTION, status=401, body={"errors": f"no {TOKENS['access_token']}"}, delay_ms=300, times=3)
        self.check_kept_secret(10)


if __name__ == "__main__":
    unittest.main()
