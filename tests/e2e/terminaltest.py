#!/usr/bin/env python3
"""xbrhost on a terminal, as a person sees it: what moves, Ctrl-C, questions, languages, and what the shells complete."""

import fcntl
import os
import pathlib
import pty
import select
import shutil
import struct
import subprocess
import termios
import time
import unicodedata
import unittest

from stage import BIN, Stage, sign_in_page, wait_for

INGESTION = "/api/frontstage/release_ingestion"
COMPLETIONS = pathlib.Path(__file__).resolve().parents[2] / "packaging" / "completions"


class Terminal:
    """A program on a terminal of its own. Knows what the screen shows, and which lines did not fit."""

    def __init__(self, environment, *command, columns=80):
        self.lines, self.column, self.overlong, self.rest = [""], 0, [], b""
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
        while text:
            if text.startswith("\x1b[K"):
                self.lines[-1] = self.lines[-1][:self.column]
                text = text[3:]
            else:
                self.put(text[0])
                text = text[1:]
        return True

    def put(self, letter):
        if letter == "\n":
            self.lines.append("")
            self.column = 0
        elif letter == "\r":
            self.column = 0
        else:
            self.lines[-1] = self.lines[-1][:self.column] + letter
            self.column += 1
            width = sum(1 + (unicodedata.east_asian_width(each) in "WF") for each in self.lines[-1])
            if width > self.columns and self.lines[-1].find(" %") > 0:
                self.overlong.append(self.lines[-1])

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
        return os.waitstatus_to_exitcode(os.waitpid(self.pid, 0)[1]), [line.rstrip("\r") for line in self.lines]


class TerminalTest(unittest.TestCase):
    def setUp(self):
        self.stage = Stage()
        self.addCleanup(self.stage.close)

    def run_on_terminal(self, *arguments, columns=80, **environment):
        return Terminal({**self.stage.environment, **environment}, str(BIN / "xbrhost"), *map(str, arguments),
                        columns=columns)

    def test_what_moves_fits_and_one_ctrl_c_tells_what_arrived(self):
        subprocess.run([BIN / "brindlex-songs", self.stage.folder / "long", "30"], check=True)
        first, second, _ = self.stage.make_songs()
        long = self.stage.folder / "long" / "Opening.wav"
        self.stage.control("POST", "fault", {"path": INGESTION, "delay_ms": 1})
        self.stage.control("POST", "fault", {"path": INGESTION, "read_rate": 500_000})
        host = self.run_on_terminal("publish", first, long, "--title", "夜のドライブ", second, columns=100)
        host.wait_for_line("2/3 夜のドライブ", "[#", " %  ", "MB", "left, all ")
        host.resize(60)
        host.wait_for(lambda: "2/3" in host.lines[-1] and "[" not in host.lines[-1] and "MB/s" in host.lines[-1],
                      "a line without its bar")
        host.resize(30)
        host.wait_for(lambda: host.lines[-1].startswith("2/3") and "MB" not in host.lines[-1], "a short line")
        host.resize(9)
        host.wait_for(lambda: host.lines[-1].startswith("2/3 ") and host.lines[-1].endswith(" %"), "the percent alone")
        host.resize(100)
        host.type("\x03")
        code, lines = host.end()
        self.assertEqual(code, 130, lines)
        self.assertEqual(host.overlong, [])
        end = lines[lines.index("Stopped."):]
        self.assertEqual(end[1], "Published 1 of 3 songs as singles, as Mara Lindqvist.")
        self.assertRegex(end[2], r"^Not published: Opening.wav: “夜のドライブ” was stopped at .* of [0-9.]+ MB and did not arrive.$")
        self.assertEqual(end[3], "Not published: Night Drive.flac: “Night Drive” was not sent.")
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
        self.assertEqual(self.stage.run("publish", song, missing).returncode, 3, "nobody there to ask")

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
        for variables, sentence in (
                ({"LC_ALL": "de_DE.UTF-8", "LC_MESSAGES": "fr_FR.UTF-8"}, "„Café del Último“ wurde veröffentlicht."),
                ({"LC_ALL": "", "LC_MESSAGES": "fr_FR.UTF-8", "LANG": "de_DE.UTF-8"}, "« Café del Último » "),
                ({"LC_ALL": "", "LC_MESSAGES": "", "LANG": "C"}, "There is no option"),
        ):
            with self.subTest(variables):
                told = self.stage.run("publish", song, *(["--albun"] if "C" in variables.values() else []), **variables)
                self.assertIn(sentence, told.stdout_text + told.stderr_text)


class CompletionTest(unittest.TestCase):
    """What the shells offer, with the built program in the PATH."""

    def setUp(self):
        self.stage = Stage()
        self.addCleanup(self.stage.close)
        self.folder = self.stage.folder / "music"
        (self.folder / "Night Drive").mkdir(parents=True)
        for name in ("a.WAV", "b c.flac", "notes.txt", "release.json", "module.so"):
            (self.folder / name).touch()
        self.environment = {**self.stage.environment, "PATH": f"{BIN}:{os.environ['PATH']}"}

    def offered(self, shell, line):
        run = subprocess.run([*shell, line], cwd=self.folder, env=self.environment, timeout=30, check=True,
                             capture_output=True, text=True)
        self.assertEqual(run.stderr, "")
        return {entry.split("\t")[0].rstrip("/").replace("\\", "") for entry in run.stdout.splitlines()}

    def check(self, *shell):
        for line, offered in (("xbrhost sig", {"sign-in", "sign-out"}),
                              ("xbrhost help gen", {"genres"}),
                              ("xbrhost publish --album-", {"--album-artist", "--album-title"}),
                              ("xbrhost status --qu", {"--quiet"}),
                              ("xbrhost publish --json ", {"Night Drive", "a.WAV", "b c.flac"}),
                              ("xbrhost window ", {"Night Drive", "a.WAV", "b c.flac"}),
                              ("xbrhost publish --release rel", {"release.json"}),
                              ("xbrhost publish --genre drum", {"Drum & Bass"})):
            with self.subTest(line):
                self.assertLessEqual(offered, self.offered(shell, line))
                self.assertNotIn("notes.txt", self.offered(shell, line))
        self.assertEqual(self.stage.log("/oauth/authorize"), [])

    def test_bash(self):
        self.check("bash", "-c", f"""
            . {COMPLETIONS}/xbrhost.bash
            read -ra COMP_WORDS <<<"$0"; [[ $0 == *' ' ]] && COMP_WORDS+=("")
            COMP_CWORD=$((${{#COMP_WORDS[@]}} - 1))
            compopt() {{ :; }}
            _xbrhost; printf '%s\\n' "${{COMPREPLY[@]}}" """)

    @unittest.skipUnless(shutil.which("fish"), "no fish here")
    def test_fish(self):
        self.check("fish", "--no-config", "-c", f"source {COMPLETIONS}/xbrhost.fish; complete -C $argv[1]")


if __name__ == "__main__":
    unittest.main()
