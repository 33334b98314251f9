#!/usr/bin/env python3
"""xbrhost publish, from the command line to the service's inbox, and what happens when something is wrong."""

import filecmp
import json
import shutil
import unittest

from stage import Stage, interrupt, sign_in_page

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

    def test_json_tells_what_became_of_each_song(self):
        for fault in ({"delay_ms": 1}, {"status": 422, "body": {"errors": "This title already exists"}}, {"status": 413}):
            self.stage.control("POST", "fault", {"path": INGESTION, **fault})
        result = self.publish("--json", "--skip-unreadable", *self.songs, self.stage.folder / "none.wav")
        self.assertEqual(result.returncode, 1, result.stderr_text)
        events = [json.loads(line) for line in result.stdout_text.splitlines()]
        songs = [event for event in events if event["event"] == "song"]
        self.assertEqual([(song.get("index"), song["title"], song["result"], song.get("cause"), song.get("status")) for song in songs],
                         [(0, "Café del Último", "published", None, 201), (1, "Night Drive", "refused", "refused", 422),
                          (2, "Opening", "refused", "too-large", 413), (None, "none.wav", "left-out", "unreadable", None)])
        self.assertEqual(songs[1]["text"], "The service refused “Night Drive” (422): This title already exists")
        self.assertEqual([(event["level"], event["cause"]) for event in events if event["event"] == "problem"],
                         [("warning", "unreadable"), ("error", "partly")])
        end = events[-1]
        self.assertEqual((end["event"], end["exitCode"], end["verdict"], end["published"], end["notPublished"], end["unsure"]),
                         ("finished", 1, "partly", 1, 3, 0))
        self.assertEqual(end["bytes"], sum(entry["body_bytes"] for entry in self.stage.log(INGESTION)))
        moving = [event for event in events if event["event"] == "track" and event.get("totalBytes")]
        self.assertTrue(all(0 <= event["bytes"] <= event["totalBytes"] for event in moving), moving)

    def test_what_was_published_goes_again_only_when_asked_for(self):
        first = self.songs[0]
        self.assertEqual(self.publish(first).returncode, 0)
        for arguments, code, arrived in (((first,), 11, 1), (("--album", *self.songs), 11, 1), (self.songs, 0, 3),
                                         (("--again", first), 0, 4)):
            with self.subTest(arguments=arguments):
                self.assertEqual(self.publish("-n", *arguments).returncode, code)
                self.assertEqual(self.publish(*arguments).returncode, code)
                self.assertEqual(len(self.stage.releases()), arrived)

    def test_folders_stand_for_their_songs(self):
        folder = self.songs[0].parent
        (folder / "notes.txt").touch()
        inner = folder / "inner" / "deep"
        inner.mkdir(parents=True)
        shutil.move(self.songs[2], inner / "Opening.WAV")
        result = self.publish("--album", "--album-title=Night", folder, "--artist=Various")
        self.assertEqual(result.returncode, 0, result.stderr_text)
        result = self.publish("-rn", "--json", "--again", folder)
        drafts = [event["songs"][0]["fileName"] for event in map(json.loads, result.stdout_text.splitlines())
                  if event["event"] == "draft"]
        self.assertEqual(drafts, ["Café del Último.mp3", "Night Drive.flac", "Opening.WAV"])
        [(document, _)] = self.stage.releases()
        self.assertEqual((document["title"], [song["title"] for song in document["songs"]]),
                         ("Night", ["Café del Último", "Night Drive"]))
        for arguments, code, words in (([folder, self.songs[0]], 2, "is there twice"),
                                       ([folder / "inner"], 3, "--recursive looks into"),
                                       ([folder, "--title", "x"], 2, "is a folder")):
            result = self.publish(*arguments)
            self.assertEqual(result.returncode, code, result.stderr_text)
            self.assertIn(words, result.stderr_text)

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
            ([], 2, "song"),
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
        result = self.publish("--again", self.songs[0], song, "--genre", "world", "--title", "New", "--artist", "Ann")
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
        sign_in_page(process)
        _, errors = interrupt(process)
        self.assertEqual(process.returncode, 130, errors)
        self.assertEqual(self.stage.leftovers(), [])

    def test_pasted_callback_completes_the_sign_in(self):
        process = self.stage.start("sign-in", BROWSER="/bin/true")
        self.stage.visit(sign_in_page(process))
        process.communicate(timeout=20)
        self.assertEqual(process.returncode, 0)


if __name__ == "__main__":
    unittest.main()
