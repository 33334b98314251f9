#!/usr/bin/env python3
"""scripts/setup with the real package manager on a system of its own, whose only source knows only g++."""

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
        self.root.chmod(0o755)  # the package manager reads it as a user of its own
        (self.root / "var/lib/dpkg/status").touch()
        (self.root / "Packages").write_text(
            f"Package: g++\nVersion: 1\nArchitecture: all\nFilename: ./g++.deb\nSize: 1\nSHA256: {64 * '0'}\n")
        (self.root / "etc/apt/sources.list").write_text(f"deb [trusted=yes] file:{self.root} ./\n")
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
        self.assertRegex(errors, r"^setup: this machine's package sources do not have: cmake ninja-build .*\n$")
        self.assertEqual(setup.returncode, 1)


if __name__ == "__main__":
    unittest.main()
