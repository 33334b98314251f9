#!/usr/bin/env python3
"""xbrhost on a terminal, as a person sees it: what moves, Ctrl-C, questions, languages, and what the shells complete."""

import fcntl
import os
import pathlib
import pty
import re
import select
import shutil
import struct
import subprocess
import termios
import time
import unicodedata
import unittest

from stage import BIN, INGESTION, StageTest, wait_for

COMPLETIONS = pathlib.Path(__file__).resolve().parents[2] / "packaging" / "completions"


class Terminal:
    """A program on a terminal of its own. Knows what the screen shows, and which moving lines did not fit."""

    def __init__(self, environment, *command, columns=80):
        self.text, self.overlong, self.rest = "", [], b""
        self.pid, self.file = pty.fork()
        if self.pid == 0:
            os.execve(command[0], command, environment)
        self.resize(columns)

    def resize(self, columns):
        self.columns = columns
        fcntl.ioctl(self.file, termios.TIOCSWINSZ, struct.pack("HHHH", 24, columns, 0, 0))

    def type(self, text):
        os.write(self.file, text.encode())

    def read(self):
        """Takes what came; false at the end."""
        if not select.select([self.file], [], [], 0.05)[0]:
            return True
        try:
            data = self.rest + os.read(self.file, 65536)
        except OSError:  # the program has closed its side
            return False
        text = data.decode(errors="ignore")
        self.rest = data[len(text.encode()):]
        self.text += text
        for shown in re.split("\r|\n|\x1b", text):
            width = sum(1 + (unicodedata.east_asian_width(each) in "WF") for each in shown)
            if width > self.columns and " %" in shown:
                self.overlong.append(shown)
        return True

    @property
    def lines(self):
        """What the screen shows; each time a line is begun again, its rest is cleared."""
        return [line.rstrip("\r").split("\r")[-1].replace("\x1b[K", "") for line in self.text.split("\n")]

    def wait_for(self, condition, what):
        def holds():
            self.read()
            return condition()
        try:
            return wait_for(holds, what)
        except AssertionError as error:
            raise AssertionError(f"{error}; the screen: {self.lines}") from None

    def wait_for_line(self, *parts):
        """The first line that holds all parts."""
        return self.wait_for(lambda: next((line for line in self.lines if all(part in line for part in parts)), None),
                             f"a line with {parts}")

    def end(self):
        """The exit code, and all lines."""
        deadline = time.monotonic() + 20
        while self.read() and time.monotonic() < deadline:
            pass
        os.close(self.file)
        return os.waitstatus_to_exitcode(os.waitpid(self.pid, 0)[1]), self.lines


def has_terminals():
    """False in a folder that was entered as a system of its own, where nobody has mounted them."""
    try:
        for file in pty.openpty():
            os.close(file)
    except OSError:
        return False
    return True


@unittest.skipUnless(has_terminals(), "there are no terminals here")
class TerminalTest(StageTest):
    def run_on_terminal(self, *arguments, columns=80, **environment):
        return Terminal({**self.stage.environment, **environment}, str(BIN / "xbrhost"), *map(str, arguments),
                        columns=columns)

    def test_what_moves_fits_and_one_ctrl_c_tells_what_arrived(self):
        first, second, _ = self.stage.make_songs()
        long = self.stage.make_songs(30)[-1]
        self.stage.fault(INGESTION, delay_ms=1)
        self.stage.fault(INGESTION, read_rate=500_000)
        host = self.run_on_terminal("publish", first, long, "--title", "夜のドライブ", second, columns=100)
        host.wait_for_line("2/3 夜のドライブ", "[#", " %  ", "MB", "left, all ")
        for columns, pattern in ((60, r"2/3[^\[]*MB/s[^\[]*"), (30, "2/3((?!MB).)*"), (9, "2/3 .* %"), (100, r"2/3.*\[#.*")):
            host.resize(columns)
            host.wait_for(lambda: re.fullmatch(pattern, host.lines[-1]), f"a line for {columns} columns")
        host.type("\x03")
        code, lines = host.end()
        self.assertEqual((code, host.overlong), (130, []), lines)
        self.assertRegex("\n".join(lines), "(?m)" + "\n".join((
            r"^Stopped\.$", r"^Published 1 of 3 songs as singles, as Mara Lindqvist\.$",
            r"^Not published: Opening.wav: “夜のドライブ” was stopped at .* of [0-9.]+ MB and did not arrive\.$",
            r"^Not published: Night Drive.flac: “Night Drive” was not sent\.$")))
        self.assertEqual(len(self.stage.releases()), 1)
        self.assertEqual(self.stage.leftovers(), [])

    def test_questions_are_asked_where_somebody_can_answer(self):
        song, missing = self.stage.make_songs()[0], self.stage.folder / "missing.wav"
        for answer, expected in (("n", 3), ("y", 0)):
            host = self.run_on_terminal("publish", song, missing)
            host.wait_for_line("Publish the other songs? [y/N]")
            host.type(answer + "\n")
            code, lines = host.end()
            self.assertEqual(code, expected, lines)
        self.assertEqual(len(self.stage.releases()), 1)
        self.publish(song, missing, code=3)  # nobody there to ask

    def test_the_browsers_link_can_be_pasted(self):
        for command in (["sign-in"], ["publish", self.stage.make_songs()[0]]):
            host = self.run_on_terminal(*command, BROWSER="/bin/true")
            page = host.wait_for_line("/oauth/authorize").strip()
            host.wait_for_line("Link back (paste it here if the browser does not return by itself):")
            told = subprocess.run([BIN / "brindlex-browser", page], timeout=20, check=True, capture_output=True, text=True,
                                  env={**self.stage.environment, "BRINDLEX_CALLBACK_PROGRAM": "/bin/echo"})
            for pasted, answer in (("https://service.example/", "This is not a link back: it begins with “https:”."),
                                   ("brindlex://elsewhere?code=1", "This link back belongs to another sign-in."),
                                   ("brindlex://authorize?error=x", "The browser came back without a permission."),
                                   (told.stdout.split()[-1], "Signed in as Mara Lindqvist")):
                host.type(pasted + "\n")
                host.wait_for_line(answer)
            code, lines = host.end()
            self.assertEqual(code, 0, lines)

    def test_one_language_for_all_that_is_told(self):
        song = self.stage.make_songs()[0]
        for code, sentence, variables in (
                (0, "„Café del Último“ wurde veröffentlicht.", {"LC_ALL": "de_DE.UTF-8", "LC_MESSAGES": "fr_FR.UTF-8"}),
                (11, "« Café del Último » ", {"LC_ALL": "", "LC_MESSAGES": "fr_FR.UTF-8", "LANG": "de_DE.UTF-8"}),
                (11, "was published from this computer", {"LC_ALL": "", "LC_MESSAGES": "", "LANG": "C"})):
            self.publish(song, code=code, told=sentence, **variables)


class CompletionTest(StageTest):
    def test_what_the_shells_offer(self):
        folder = self.stage.folder / "music"
        (folder / "Night Drive").mkdir(parents=True)
        for name in ("a.WAV", "b c.flac", "notes.txt", "release.json", "module.so"):
            (folder / name).touch()
        shells = [("bash", "-c", f"""
            . {COMPLETIONS}/xbrhost.bash
            read -ra COMP_WORDS <<<"$0"; [[ $0 == *' ' ]] && COMP_WORDS+=("")
            COMP_CWORD=$((${{#COMP_WORDS[@]}} - 1))
            compopt() {{ :; }}
            _xbrhost; printf '%s\\n' "${{COMPREPLY[@]}}" """)]
        if shutil.which("fish"):
            shells.append(("fish", "--no-config", "-c", f"source {COMPLETIONS}/xbrhost.fish; complete -C $argv[1]"))
        for line, expected in (("xbrhost sig", {"sign-in", "sign-out"}), ("xbrhost help gen", {"genres"}),
                               ("xbrhost publish --album-", {"--album-artist", "--album-title"}),
                               ("xbrhost publish --json ", {"Night Drive", "a.WAV", "b c.flac"}),
                               ("xbrhost publish --release rel", {"release.json"}),
                               ("xbrhost publish --genre drum", {"Drum & Bass"})):
            for shell in shells:
                with self.subTest(line, shell=shell[0]):
                    run = subprocess.run([*shell, line], cwd=folder, timeout=30, check=True, capture_output=True, text=True,
                                         env={**self.stage.environment, "PATH": f"{BIN}:{os.environ['PATH']}"})
                    offered = {each.split("\t")[0].rstrip("/").replace("\\", "") for each in run.stdout.splitlines()}
                    self.assertEqual((run.stderr, expected - offered, offered & {"notes.txt"}), ("", set(), set()))


if __name__ == "__main__":
    unittest.main()
