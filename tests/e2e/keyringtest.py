#!/usr/bin/env python3
"""Each state of the keyring against everything that needs it: what the user is told, the exit code, and how long it takes."""

import concurrent.futures
import contextlib
import os
import pathlib
import signal
import socket
import struct
import subprocess
import time
import unittest

from stage import Stage, StageTest, interrupt

WITH_KEYRING = pathlib.Path(__file__).resolve().parents[1] / "host" / "security" / "with-keyring.sh"
SECRETS = "org.freedesktop.secrets"
SIGNED_IN = "Signed in as Mara Lindqvist"
UNREAD = "the stored sign-in cannot be read."
KEPT = "the stored sign-in may still be there."
NONE = "this computer has no keyring."
NOT_UNLOCKED = "The keyring was not unlocked: "
SILENT = "The keyring does not answer: "

# What is told and the exit code, by command; a sign-in is in the keyring before.
STORED = {"status": (SIGNED_IN + ".", 0), "sign-in": (SIGNED_IN + ".", 0), "publish": ("Published", 0),
          "sign-out": ("Signed out.", 0)}
NO_STORE = {"status": ("Not signed in: " + NONE, 5), "sign-in": (SIGNED_IN + ", until the program ends: " + NONE, 0),
            "publish": (SIGNED_IN + ", until the program ends: " + NONE, 0),
            "sign-out": ("No keyring can be reached from here: nothing was removed.", 12)}


def refusing(why, kept):
    return {"status": (why + UNREAD, 12), "sign-in": (SIGNED_IN + ", until the program ends: the " + kept, 0),
            "publish": (why + UNREAD + " Nothing was sent.", 12), "sign-out": (why + KEPT, 12)}


LOCKED = refusing(NOT_UNLOCKED, "keyring was not unlocked.")
HELD_BACK = refusing(SILENT, "keyring does not answer.")
LIMIT = 12  # seconds: five for the first question, one for each that follows, and a start of the program


class Desktop(Stage):
    """A stage in a D-Bus session of its own, with an unlocked keyring."""

    def __init__(self):
        super().__init__()
        self.session = subprocess.Popen(
            [WITH_KEYRING, "sh", "-c", 'echo "$DBUS_SESSION_BUS_ADDRESS"; echo "$XDG_RUNTIME_DIR"; exec cat >/dev/null'],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self.session.stdout.readline().strip()
        self.keyring_folder = self.session.stdout.readline().strip()
        opener = self.folder / "home" / "xdg-open"  # the real one waits for a bus that is silent
        opener.write_text('#!/bin/sh\nexec "$BROWSER" "$1"\n')
        opener.chmod(0o700)
        self.environment["PATH"] = f"{opener.parent}:{os.environ['PATH']}"

    def close(self):
        self.session.communicate(timeout=20)
        super().close()

    def unlock(self):
        """As a login does, which has the daemon's control socket: size, operation, password."""
        with socket.socket(socket.AF_UNIX) as control:
            control.connect(self.keyring_folder + "/keyring/control")
            control.sendall(b"\0" + struct.pack(">III", 16, 1, 4) + b"test")
            if control.recv(8) != struct.pack(">II", 8, 0):
                raise AssertionError("the keyring cannot be unlocked")

    def call(self, destination, path, method, argument):
        """Calls a method on the session's bus."""
        told = subprocess.run(["gdbus", "call", "--session", "--dest", destination, "--object-path", path, "--method",
                               method, argument], env=self.environment, capture_output=True, text=True, timeout=20, check=True)
        return told.stdout


@contextlib.contextmanager
def unlocked(_):
    yield {}


@contextlib.contextmanager
def locked(desktop):
    """And nobody there to unlock it."""
    desktop.call(SECRETS, "/org/freedesktop/secrets", "org.freedesktop.Secret.Service.Lock",
                 "['/org/freedesktop/secrets/aliases/default']")
    yield {}


@contextlib.contextmanager
def stopped(desktop):
    told = desktop.call("org.freedesktop.DBus", "/org/freedesktop/DBus",
                        "org.freedesktop.DBus.GetConnectionUnixProcessID", SECRETS)
    process = int(told.split()[1].rstrip(",)"))
    os.kill(process, signal.SIGSTOP)
    try:
        yield {}
    finally:
        os.kill(process, signal.SIGCONT)


@contextlib.contextmanager
def bus_gone(desktop):
    yield {"DBUS_SESSION_BUS_ADDRESS": f"unix:path={desktop.folder}/gone"}


@contextlib.contextmanager
def silent_bus(desktop):
    with socket.socket(socket.AF_UNIX) as bus:
        bus.bind(str(desktop.folder / "silent"))
        bus.listen(16)
        yield {"DBUS_SESSION_BUS_ADDRESS": f"unix:path={desktop.folder}/silent"}


# Of the unlocked keyring the order counts.
ROWS = ((unlocked, STORED), (locked, LOCKED), (stopped, HELD_BACK), (bus_gone, NO_STORE), (silent_bus, HELD_BACK))


def play(store, expected):
    """A row of the table: each command, with what it did; then whether the sign-in is there still."""
    desktop = Desktop()

    def run(command, **environment):
        start = time.monotonic()
        result = desktop.run(command, *(["--again", song] if command == "publish" else []), **environment)
        return result.told, result.returncode, time.monotonic() - start
    try:
        song = desktop.make_songs()[0]
        told = [("sign-in at first", (SIGNED_IN + ".", 0), run("sign-in"))]
        with store(desktop) as environment:
            told += [(each, expected[each], run(each, **environment)) for each in expected]
        if store is locked:
            desktop.unlock()
        last = "Nobody was signed in." if store is unlocked else "Signed out."
        return [*told, ("sign-out in the end", (last, 0), run("sign-out"))]
    finally:
        desktop.close()


class StoresTest(unittest.TestCase):
    def test_each_store_and_each_command(self):
        with concurrent.futures.ThreadPoolExecutor(len(ROWS)) as pool:
            rows = [(store.__name__, pool.submit(play, store, expected)) for store, expected in ROWS]
        for store, row in rows:
            for command, (sentence, code), (told, ended, took) in row.result():
                with self.subTest(store=store, command=command):
                    self.assertIn(sentence, told)
                    self.assertEqual(ended, code, told)
                    self.assertLess(took, LIMIT, told)


class SignInTest(StageTest):
    make_stage = Desktop

    def test_one_of_several_hosts_gets_the_code(self):
        hosts = [self.start_sign_in("sign-in") for _ in range(4)]
        stopped_host, _ = hosts.pop(1)
        stopped_host.send_signal(signal.SIGSTOP)
        while hosts:
            last, address = hosts.pop()
            self.stage.visit(address)
            self.assertIn(SIGNED_IN, last.communicate(timeout=10)[0])
            self.assertEqual(last.returncode, 0)
            self.assertTrue(all(host.poll() is None for host, _ in hosts), "they wait on")
        stopped_host.send_signal(signal.SIGCONT)
        self.assertIsNone(stopped_host.poll())
        interrupt(stopped_host)
        self.assertEqual(stopped_host.returncode, 130, "it waited on until the user gave it up")
        self.check("status", told=SIGNED_IN)
        self.check("sign-out", told="Signed out.")

    def test_two_first_publishes_at_once(self):
        song = self.stage.make_songs()[0]
        hosts = [self.start("publish", song) for _ in range(2)]
        told = [host.communicate(timeout=60) for host in hosts]
        self.assertEqual([host.returncode for host in hosts], [0, 0], told)
        self.check("sign-out", told="Signed out.")

    def test_the_service_cannot_be_asked(self):
        self.check("sign-in", told=SIGNED_IN)
        self.stage.configure("http://127.0.0.1:9")
        self.check("status", code=6, told="A sign-in is stored, but the service could not be asked: ")
        self.stage.configure("http://service.example")
        self.check("status", code=9, told="is not encrypted, and only this computer may be reached that way.")

    def test_an_answer_that_cannot_be_used_is_no_sign_in(self):
        self.stage.fault("/oauth/token", status=200, body={"access_token": "a\r\nX: y"})
        self.check("publish", self.stage.make_songs()[0], code=5,
                   told="Not signed in: the service sent an answer that cannot be used. Nothing was sent.")
        self.check("status", code=5, told="Not signed in.")


if __name__ == "__main__":
    unittest.main()
