#!/usr/bin/env python3
"""scripts/setup with the real package manager on a system of its own, which has no packages and no sources."""

import fcntl
import os
import pathlib
import subprocess
import tempfile
import unittest

SETUP = pathlib.Path(__file__).resolve().parents[2] / "scripts" / "setup"


class SetupTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="setup-test-")
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)
        for name in ("etc/apt/apt.conf.d", "etc/apt/preferences.d", "etc/apt/sources.list.d", "var/log/apt",
                     "var/lib/apt/lists/partial", "var/cache/apt/archives/partial", "var/lib/dpkg", "bin"):
            (self.root / name).mkdir(parents=True)
        (self.root / "var/lib/dpkg/status").touch()
        (self.root / "apt.conf").write_text(
            f'Dir "{self.root}";\nDir::State::status "{self.root}/var/lib/dpkg/status";\n')
        # The packages are those of this folder's owner: nobody's password is asked for.
        (self.root / "bin/sudo").write_text('#!/bin/sh\nexec "$@"\n')
        (self.root / "bin/sudo").chmod(0o755)
        self.environment = {**os.environ, "APT_CONFIG": str(self.root / "apt.conf"),
                            "DPKG_ADMINDIR": str(self.root / "var/lib/dpkg"),
                            "PATH": f"{self.root}/bin:{os.environ['PATH']}"}

    def test_waits_for_each_lock_and_says_in_one_line_what_cannot_be_had(self):
        locks = [open(self.root / path, "w") for path in ("var/lib/apt/lists/lock", "var/lib/dpkg/lock-frontend")]
        for lock in locks:
            self.addCleanup(lock.close)
            fcntl.lockf(lock, fcntl.LOCK_EX)
        setup = subprocess.Popen([SETUP], env=self.environment, stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                                 text=True)
        self.addCleanup(setup.kill)
        self.assertIn("About to install", setup.stdout.readline())
        for lock in locks:
            self.assertIn("Another program is installing packages: waiting", setup.stdout.readline())
            fcntl.lockf(lock, fcntl.LOCK_UN)
        told, errors = setup.communicate(timeout=60)
        self.assertEqual(told, "")
        self.assertRegex(errors, r"^setup: this machine's package sources do not have: g\+\+ cmake .*\n$")
        self.assertEqual(setup.returncode, 1)


if __name__ == "__main__":
    unittest.main()
