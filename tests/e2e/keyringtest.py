#!/usr/bin/env python3
"""What the user is told when the keyring cannot be had, and with which exit code; and sign-ins side by side."""

import pathlib
import signal
import subprocess
import unittest

from stage import Stage, StageTest, interrupt

SESSION = pathlib.Path(__file__).resolve().parents[1] / "host" / "security" / "session.sh"
SIGNED_IN = "Signed in as Mara Lindqvist"


class Desktop(Stage):
    """A stage in a D-Bus session of its own, with an unlocked keyring."""

    def __init__(self):
        super().__init__()
        self.session = subprocess.Popen([SESSION, "keyring", "sh", "-c", 'echo "$DBUS_SESSION_BUS_ADDRESS"; exec cat >/dev/null'],
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self.session.stdout.readline().strip()

    def close(self):
        self.session.communicate(timeout=20)
        super().close()


class KeyringTest(StageTest):
    make_stage = Desktop

    def check_all(self, answers, **environment):
        """Each command, with what it tells and its exit code, and a sign-in in the keyring."""
        song = self.stage.make_songs()[0]
        for (command, *arguments), told, code in zip((["status"], ["sign-in"], ["publish", "--again", song], ["sign-out"]), *answers):
            with self.subTest(command):
                self.check(command, *arguments, told=told, code=code, **environment)

    def test_without_a_keyring(self):
        here = f"{SIGNED_IN}, until the program ends: this computer has no keyring."
        self.check_all((("Not signed in: this computer has no keyring.", here, here,
                         "No keyring can be reached from here: nothing was removed."), (5, 0, 0, 12)),
                       DBUS_SESSION_BUS_ADDRESS=f"unix:path={self.stage.folder}/gone")

    def test_locked_with_nobody_there_to_unlock_it(self):
        self.check("sign-in", told=SIGNED_IN)
        subprocess.run(["gdbus", "call", "--session", "--dest", "org.freedesktop.secrets", "--object-path", "/org/freedesktop/secrets",
                        "--method", "org.freedesktop.Secret.Service.Lock", "['/org/freedesktop/secrets/aliases/default']"],
                       env=self.stage.environment, stdout=subprocess.DEVNULL, timeout=20, check=True)
        unread = "The keyring was not unlocked: the stored sign-in cannot be read."
        self.check_all(((unread, f"{SIGNED_IN}, until the program ends: the keyring was not unlocked.", f"{unread} Nothing was sent.",
                         "The keyring was not unlocked: the stored sign-in may still be there."), (12, 0, 12, 12)))

    def test_one_of_several_hosts_gets_the_code(self):
        hosts = [self.start_sign_in("sign-in") for _ in range(4)]
        stopped, _ = hosts.pop(1)
        stopped.send_signal(signal.SIGSTOP)
        while hosts:
            last, address = hosts.pop()
            self.stage.visit(address)
            self.assertIn(SIGNED_IN, last.communicate(timeout=10)[0])
            self.assertEqual(last.returncode, 0)
            self.assertTrue(all(host.poll() is None for host, _ in hosts), "they wait on")
        stopped.send_signal(signal.SIGCONT)
        self.assertIsNone(stopped.poll())
        interrupt(stopped)
        self.assertEqual(stopped.returncode, 130, "it waited on until the user gave it up")
        self.check("status", told=SIGNED_IN)

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
