#!/usr/bin/env python3
"""Each state of the keyring against everything that needs it: what the user is told, the exit code, and how long it takes.

Runs in a D-Bus session of its own with an unlocked keyring (tests/host/security/with-keyring.sh)."""

import contextlib
import os
import signal
import socket
import subprocess
import time
import unittest

from stage import Stage, wait_for

SECRETS = "org.freedesktop.secrets"
SIGNED_IN = "Signed in as Mara Lindqvist"
UNREAD = "the stored sign-in cannot be read."
KEPT = "the stored sign-in may still be there."
NONE = "this computer has no keyring."
NOT_UNLOCKED = "The keyring was not unlocked: "
SILENT = "The keyring does not answer: "

# What is told and the exit code, by command; "held": a sign-in is in the keyring before and afterwards.
STORED = {"status": (SIGNED_IN + ".", 0), "sign-in": (SIGNED_IN + ".", 0), "publish": ("Published", 0)}
NO_STORE = {"status": ("Not signed in: " + NONE, 5), "sign-in": (SIGNED_IN + ", until the program ends: " + NONE, 0),
            "publish": (SIGNED_IN + ", until the program ends: " + NONE, 0),
            "sign-out": ("No keyring can be reached from here: nothing was removed.", 12)}


def refusing(why, kept):
    return {"status": (why + UNREAD, 12), "sign-in": (SIGNED_IN + ", until the program ends: the " + kept, 0),
            "publish": (why + UNREAD + " Nothing was sent.", 12), "sign-out": (why + KEPT, 12)}


LOCKED = refusing(NOT_UNLOCKED, "keyring was not unlocked.")
HELD_BACK = refusing(SILENT, "keyring does not answer.")
LIMIT = 20  # seconds, with a start of the program under the sanitizers; a bus that is silent once took 40


def call(*arguments, method="call"):
    result = subprocess.run(["gdbus", method, "--session", *arguments], capture_output=True, text=True, timeout=20, check=True)
    return result.stdout


@contextlib.contextmanager
def locked(_):
    call("--dest", SECRETS, "--object-path", "/org/freedesktop/secrets", "--method",
         "org.freedesktop.Secret.Service.Lock", "['/org/freedesktop/secrets/aliases/default']")
    yield {}


@contextlib.contextmanager
def stopped(_):
    told = call("--dest", "org.freedesktop.DBus", "--object-path", "/org/freedesktop/DBus", "--method",
                "org.freedesktop.DBus.GetConnectionUnixProcessID", SECRETS)
    process = int(told.split()[1].rstrip(",)"))
    os.kill(process, signal.SIGSTOP)
    try:
        yield {}
    finally:
        os.kill(process, signal.SIGCONT)


@contextlib.contextmanager
def no_bus(_):
    yield {"DBUS_SESSION_BUS_ADDRESS": ""}


@contextlib.contextmanager
def silent_bus(folder):
    with socket.socket(socket.AF_UNIX) as bus:
        bus.bind(str(folder / "silent"))
        bus.listen(16)
        yield {"DBUS_SESSION_BUS_ADDRESS": f"unix:path={folder}/silent"}


@contextlib.contextmanager
def other_bus(folder, service=""):
    """A bus without a keyring, or with one that is started and never says a word."""
    (folder / "services").mkdir(exist_ok=True)
    if service:
        (folder / "services" / f"{SECRETS}.service").write_text(f"[D-BUS Service]\nName={SECRETS}\nExec={service}\n")
    config = folder / "bus.conf"
    config.write_text(f'<busconfig><type>session</type><listen>unix:dir={folder}/run</listen>'
                      f'<servicedir>{folder}/services</servicedir><policy context="default">'
                      '<allow send_destination="*"/><allow receive_sender="*"/><allow own="*"/></policy></busconfig>')
    with subprocess.Popen(["dbus-daemon", f"--config-file={config}", "--nofork", "--print-address"],
                          stdout=subprocess.PIPE, text=True) as bus:
        try:
            yield {"DBUS_SESSION_BUS_ADDRESS": bus.stdout.readline().strip()}
        finally:
            bus.terminate()


def deaf_service(folder):
    return other_bus(folder, "/bin/sleep 60")


class KeyringTest(unittest.TestCase):
    def setUp(self):
        self.stage = Stage(keyring=True)
        self.addCleanup(self.stage.close)
        self.addCleanup(self.stage.run, "sign-out")
        self.song = self.stage.make_songs()[0]

    def check(self, command, expected, environment):
        arguments = [command, self.song] if command == "publish" else [command]
        start = time.monotonic()
        result = self.stage.run(*arguments, **environment)
        took = time.monotonic() - start
        told = result.stdout_text + result.stderr_text
        self.assertIn(expected[0], told)
        self.assertEqual(result.returncode, expected[1], told)
        self.assertLess(took, LIMIT, told)
        return f"{command}: {expected[1]}, {took:.1f} s, {expected[0]}"

    def test_each_store_and_each_command(self):
        rows = []
        for store, expected in ((locked, LOCKED), (stopped, HELD_BACK), (no_bus, NO_STORE), (silent_bus, HELD_BACK),
                                (other_bus, NO_STORE), (deaf_service, HELD_BACK)):
            with self.subTest(store=store.__name__):
                self.check("sign-in", STORED["sign-in"], {})
                with store(self.stage.folder) as environment:
                    rows += [f"{store.__name__}: {self.check(each, expected[each], environment)}" for each in expected]
                if store is locked:
                    self.unlock()
                for command, held in STORED.items():  # nothing of it is lost
                    rows.append(f"unlocked: {self.check(command, held, {})}")
        self.check("sign-out", ("Signed out.", 0), {})
        self.check("sign-out", ("Nobody was signed in.", 0), {})
        self.check("status", ("Not signed in.", 5), {})
        if os.environ.get("KEYRING_TABLE"):
            print("\n".join(rows))

    def unlock(self):
        """As a login does."""
        subprocess.run(["gnome-keyring-daemon", "--unlock"], input=b"test", stdout=subprocess.DEVNULL, check=True, timeout=20)

    def wait_for_browser(self):
        """A host that waits, and the address that it asks for."""
        host = self.stage.start("sign-in", BROWSER="/bin/true")
        self.addCleanup(host.communicate)
        self.addCleanup(host.kill)
        address = wait_for(lambda: next((line.strip() for line in [host.stdout.readline()] if "/oauth/authorize" in line),
                                        None), "the address of the sign-in page")
        return host, address

    def test_one_of_several_hosts_gets_the_code(self):
        for count, stopped_hosts in ((2, ()), (3, (2,)), (5, (1, 4))):
            with self.subTest(hosts=count, stopped=stopped_hosts):
                hosts = [self.wait_for_browser() for _ in range(count)]
                for index in stopped_hosts:
                    hosts[index][0].send_signal(signal.SIGSTOP)
                left = [host for index, host in enumerate(hosts) if index not in stopped_hosts]
                while left:
                    last, address = left.pop()
                    start = time.monotonic()
                    self.stage.visit(address)
                    took = time.monotonic() - start
                    self.assertIn(SIGNED_IN, last.communicate(timeout=10)[0])
                    self.assertEqual(last.returncode, 0)
                    self.assertLess(took, 8)  # with the visit and a start of the program under the sanitizers
                    self.assertTrue(all(host.poll() is None for host, _ in left), "they wait on")
                for index in stopped_hosts:
                    hosts[index][0].kill()
                self.check("status", STORED["status"], {})
                self.check("sign-out", ("Signed out.", 0), {})

    def test_two_first_publishes_at_once(self):
        runs = [self.stage.start("publish", self.song) for _ in range(2)]
        told = [run.communicate(timeout=60) for run in runs]
        self.assertEqual([run.returncode for run in runs], [0, 0], told)
        self.check("sign-out", ("Signed out.", 0), {})

    def test_the_service_cannot_be_asked(self):
        self.check("sign-in", STORED["sign-in"], {})
        self.stage.configure("http://127.0.0.1:9")
        self.check("status", ("A sign-in is stored, but the service could not be asked: ", 6), {})
        self.stage.configure("http://service.example")
        self.check("status", ("is not encrypted, and only this computer may be reached that way.", 9), {})

    def test_an_answer_that_cannot_be_used_is_no_sign_in(self):
        self.stage.control("POST", "fault", {"path": "/oauth/token", "status": 200, "body": {"access_token": "a\r\nX: y"}})
        self.check("publish", ("Not signed in: the service sent an answer that cannot be used. Nothing was sent.", 5), {})
        self.check("status", ("Not signed in.", 5), {})


if __name__ == "__main__":
    unittest.main()
