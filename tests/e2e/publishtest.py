#!/usr/bin/env python3
"""xbrhost publish, from the command line to the service's inbox, and what happens when something is wrong."""

import filecmp
import json
import shutil
import subprocess
import unittest

from stage import BIN, Stage, interrupt, wait_for

INGESTION = "/api/frontstage/release_ingestion"


class PublishTest(unittest.TestCase):
    def setUp(self):
        self.stage = Stage()
        self.addCleanup(self.stage.close)
        self.songs = self.stage.make_songs()

    def publish(self, *arguments):
        result = self.stage.run("publish", *arguments)
        self.assertEqual(self.stage.leftovers(), [], "temporary files")
        return result

    def test_three_formats_arrive_as_singles_byte_for_byte(self):
        result = self.publish(*self.songs)
        self.assertEqual(result.returncode, 0, result.stderr_text)
        releases = self.stage.releases()
        self.assertEqual(len(releases), 3)
        for song, (document, audio) in zip(self.songs, releases):
            self.assertEqual([path.name for path in audio], [song.name])
            self.assertTrue(filecmp.cmp(song, audio[0], shallow=False), song.name)
            self.assertEqual(document["songs"][0]["audio_filename"], song.name)
            self.assertEqual(document["title"], document["songs"][0]["title"])
        document = releases[0][0]
        self.assertEqual(document["songs"][0]["title"], "Café del Último")
        self.assertEqual(document["main_artists"], [{"name": "The Lamps feat. Axé"}])
        self.assertEqual(document["primary_genre"], "Ambient")
        self.assertEqual(document["client_id"], "brindlex-demo")

    def test_album_arrives_as_one_release(self):
        result = self.publish("--album", *self.songs)
        self.assertEqual(result.returncode, 0, result.stderr_text)
        [(document, audio)] = self.stage.releases()
        self.assertEqual(document["title"], "Night Drive")
        self.assertEqual([song["track_number"] for song in document["songs"]], [3, 2, 1])
        self.assertEqual([path.name for path in audio], sorted(song.name for song in self.songs))
        self.assertEqual(len(self.stage.log(INGESTION)), 1)

    def test_json_lines_tell_the_same_as_the_text(self):
        result = self.publish("--json", *self.songs)
        events = [json.loads(line) for line in result.stdout_text.splitlines()]
        self.assertEqual(events[-1]["event"], "finished")
        done = {event["title"] for event in events if event["event"] == "track" and event["state"] == 1}
        self.assertEqual(done, {"Café del Último", "Night Drive", "Opening"})

    def test_nothing_that_cannot_be_published_is_sent(self):
        folder = self.stage.folder
        (folder / "notes.txt").write_text("no song")
        (folder / "renamed.wav").write_text("no song either")
        (folder / "folder.wav").mkdir()
        cases = [
            ([folder / "missing.wav"], 3, "missing.wav"),
            ([folder / "folder.wav"], 3, "folder.wav"),
            ([folder / "notes.txt"], 3, "notes.txt"),
            ([folder / "renamed.wav"], 3, "renamed.wav"),
            ([self.songs[0], folder / "missing.wav"], 3, "missing.wav"),
            (["--module", folder / "none.so", self.songs[0]], 4, "none.so"),
            (["--module", folder / "notes.txt", self.songs[0]], 4, "notes.txt"),
            ([], 2, "file"),
            (["--unknown", self.songs[0]], 2, "--unknown"),
        ]
        for arguments, code, word in cases:
            with self.subTest(arguments=arguments):
                result = self.publish(*arguments)
                self.assertEqual(result.returncode, code, result.stderr_text)
                self.assertIn(word, result.stderr_text)
                self.assertTrue(result.stderr_text.startswith("xbrhost: "), result.stderr_text)
        self.assertEqual(self.stage.log("/oauth/token"), [])

    def test_service_that_is_not_there_is_told_in_one_line(self):
        self.stage.configure("http://127.0.0.1:9")
        result = self.publish(self.songs[0])
        self.assertEqual(result.returncode, 6, result.stderr_text)
        self.assertIn("127.0.0.1:9", result.stderr_text)
        (self.stage.folder / "services.ini").unlink()
        result = self.publish(self.songs[0])
        self.assertEqual(result.returncode, 9, result.stderr_text)
        self.assertIn("services.ini", result.stderr_text)

    def test_refusals_of_the_service_decide_each_track(self):
        missing = {"errors": "Release metadata did not contain a required property: 'title'"}
        faults = [
            ({"status": 500}, 1, "failed"),
            ({"status": 422, "body": missing}, 7, "missing"),
            ({"status": 401, "early": True}, 10, "does not accept the stored sign-in any more"),
            ({"reset_after": 1000}, 1, "failed"),
            ({"truncate": True}, 1, "failed"),
            ({"redirect": "http://127.0.0.1:9/"}, 1, "failed"),
        ]
        for fault, code, word in faults:
            with self.subTest(fault=fault):
                self.stage.control("DELETE", "log")
                self.stage.control("POST", "fault", {"path": INGESTION, **fault})
                result = self.publish(self.songs[0])
                self.assertEqual(result.returncode, code, result.stderr_text)
                self.assertIn(word, (result.stdout_text + result.stderr_text).lower())
                self.assertEqual(len(self.stage.log(INGESTION)), 1)
        self.assertEqual(self.publish(self.songs[0]).returncode, 0, "the next upload works")

    def test_one_refused_track_does_not_stop_the_others(self):
        self.stage.control("POST", "fault", {"path": INGESTION, "status": 500})
        result = self.publish(*self.songs)
        self.assertEqual(result.returncode, 1, result.stderr_text)
        self.assertEqual(len(self.stage.releases()), 2)

    def test_song_that_lacks_information_is_named(self):
        song = self.stage.folder / "untagged.wav"
        shutil.copy(self.songs[2], song)
        data = song.read_bytes()
        end = data.index(b"data") + 8 + int.from_bytes(data[data.index(b"data") + 4:][:4], "little")
        song.write_bytes(data[:4] + (end - 8).to_bytes(4, "little") + data[8:end])  # without its tags
        result = self.publish(song)
        self.assertEqual(result.returncode, 7, result.stderr_text)
        self.assertIn("“untagged” lacks: song artist, genre. Nothing was sent.", result.stderr_text)
        incomplete = [*self.songs, song, "--title", "New", "--artist", "Ann"]
        result = self.publish(*incomplete)
        self.assertEqual(result.returncode, 7, result.stderr_text)
        self.assertIn("“New” lacks: genre. Nothing was sent.", result.stderr_text)
        self.assertFalse(self.stage.inbox.exists() and self.stage.releases())
        result = self.publish("--skip-incomplete", *incomplete)
        self.assertEqual(result.returncode, 0, result.stderr_text)
        self.assertIn("“New” lacks: genre.", result.stderr_text)
        self.assertEqual(len(self.stage.releases()), 3, "nothing goes out with another song's genre")
        result = self.publish(self.songs[0], song, "--genre", "world", "--title", "New", "--artist", "Ann")
        self.assertEqual(result.returncode, 0, result.stderr_text)
        documents = [document for document, _ in self.stage.releases()]
        self.assertEqual([(each["title"], each["primary_genre"]) for each in documents[-2:]],
                         [("Café del Último", "World"), ("New", "World")])

    def test_expired_sign_in_is_told_and_renewed(self):
        account = {"path": "/api/frontstage/account", "status": 401, "body": ""}
        self.stage.control("POST", "fault", account)
        result = self.publish(self.songs[0])
        self.assertEqual(result.returncode, 10, result.stderr_text)
        self.assertIn("does not accept the stored sign-in any more", result.stderr_text)
        self.assertEqual(self.stage.log(INGESTION), [], "nothing is sent in vain")
        self.stage.control("POST", "fault", account)
        result = self.stage.run("sign-in")
        self.assertEqual(result.returncode, 0, result.stderr_text)
        self.assertEqual(len(self.stage.log("/oauth/token")), 3, "the browser was asked again")

    def test_interrupted_while_waiting_for_the_browser(self):
        process = self.stage.start("publish", self.songs[0], BROWSER="/bin/true")
        wait_for(lambda: "oauth/authorize" in (process.stdout.readline()), "the address of the sign-in page")
        _, errors = interrupt(process)
        self.assertEqual(process.returncode, 130, errors)
        self.assertEqual(self.stage.leftovers(), [])

    def test_pasted_callback_completes_the_sign_in(self):
        process = self.stage.start("sign-in", BROWSER="/bin/true")
        page = wait_for(lambda: (lambda line: line.strip() if "oauth/authorize" in line else None)(
            process.stdout.readline()), "the address of the sign-in page")
        opened = subprocess.run([BIN / "brindlex-browser", page], env=self.stage.environment, timeout=20, check=False)
        self.assertEqual(opened.returncode, 0)
        process.communicate(timeout=20)
        self.assertEqual(process.returncode, 0)

    def test_interrupted_in_the_middle_of_the_upload(self):
        self.stage.control("POST", "fault", {"path": INGESTION, "stall_ms": 20000, "stall_after": 1000})
        process = self.stage.start("publish", "--json", self.songs[2])
        wait_for(lambda: '"uploading":true' in process.stdout.readline().replace(" ", ""), "the upload")
        _, errors = interrupt(process)
        self.assertEqual(process.returncode, 130, errors)
        self.assertEqual(self.stage.leftovers(), [])


if __name__ == "__main__":
    unittest.main()
