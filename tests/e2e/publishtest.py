#!/usr/bin/env python3
"""xbrhost publish, from the command line to the service's inbox, and what happens when something is wrong."""

import filecmp
import shutil
import unittest

from stage import INGESTION, StageTest, interrupt


class PublishTest(StageTest):
    def setUp(self):
        super().setUp()
        self.songs = self.stage.make_songs()

    def test_three_formats_arrive_as_singles_byte_for_byte(self):
        self.publish(*self.songs)
        releases = self.stage.releases()
        self.assertEqual(len(releases), 3)
        for song, (document, [audio]) in zip(self.songs, releases):
            self.assertTrue(filecmp.cmp(song, audio, shallow=False), song.name)
            self.assertEqual((audio.name, document["songs"][0]["audio_filename"]), (song.name, song.name))
            self.assertEqual(document["title"], document["songs"][0]["title"])
        document = releases[0][0]
        self.assertEqual((document["title"], document["main_artists"], document["primary_genre"], document["client_id"]),
                         ("Café del Último", [{"name": "The Lamps feat. Axé"}], "Ambient", "brindlex-demo"))

    def test_album_arrives_as_one_release(self):
        self.publish("--album", *self.songs)
        [(document, audio)] = self.stage.releases()
        self.assertEqual(document["title"], "Night Drive")
        self.assertEqual([song["track_number"] for song in document["songs"]], [3, 2, 1])
        self.assertEqual([path.name for path in audio], sorted(song.name for song in self.songs))
        self.assertEqual(len(self.stage.log(INGESTION)), 1)

    def test_json_tells_what_became_of_each_song(self):
        for fault in ({"delay_ms": 1}, {"status": 422, "body": {"errors": "This title already exists"}}, {"status": 413}):
            self.stage.fault(INGESTION, **fault)
        events = self.events("--skip-unreadable", *self.songs, self.stage.folder / "none.wav", code=1)
        songs = [event for event in events if event["event"] == "song"]
        self.assertEqual([(song.get("index"), song["title"], song["result"], song.get("cause"), song.get("status")) for song in songs],
                         [(0, "Café del Último", "published", None, 201), (1, "Night Drive", "refused", "refused", 422),
                          (2, "Opening", "refused", "too-large", 413), (None, "none.wav", "left-out", "unreadable", None)])
        self.assertEqual(songs[1]["text"], "The service refused “Night Drive” (422): This title already exists")
        self.assertEqual([(event["level"], event["cause"]) for event in events if event["event"] == "problem"],
                         [("warning", "unreadable"), ("error", "partly")])
        end = events[-1]
        self.assertEqual((end["verdict"], end["published"], end["notPublished"], end["unsure"]), ("partly", 1, 3, 0))
        self.assertEqual(end["bytes"], sum(entry["body_bytes"] for entry in self.stage.log(INGESTION)))
        moving = [event for event in events if event["event"] == "track" and event.get("totalBytes")]
        self.assertTrue(all(0 <= event["bytes"] <= event["totalBytes"] for event in moving), moving)

    def test_what_was_published_goes_again_only_when_asked_for(self):
        first = self.songs[0]
        for arguments, code, arrived in (([first], 0, 1), ([first], 11, 1), (["--album", *self.songs], 11, 1),
                                         (self.songs, 0, 3), (["--again", first], 0, 4)):
            with self.subTest(arguments=arguments):
                self.publish("-n", *arguments, code=code)
                self.publish(*arguments, code=code)
                self.assertEqual(len(self.stage.releases()), arrived)

    def test_folders_stand_for_their_songs(self):
        folder = self.songs[0].parent
        (folder / "notes.txt").touch()
        inner = folder / "inner" / "deep"
        inner.mkdir(parents=True)
        shutil.move(self.songs[2], inner / "Opening.WAV")
        self.publish("--album", "--album-title=Night", folder, "--artist=Various")
        [(document, _)] = self.stage.releases()
        self.assertEqual((document["title"], [song["title"] for song in document["songs"]]),
                         ("Night", ["Café del Último", "Night Drive"]))
        drafts = [event["songs"][0]["fileName"] for event in self.events("-rn", "--again", folder) if event["event"] == "draft"]
        self.assertEqual(drafts, ["Café del Último.mp3", "Night Drive.flac", "Opening.WAV"])
        self.publish(folder, self.songs[0], code=2, told="is there twice")
        self.publish(folder / "inner", code=3, told="--recursive looks into")
        self.publish(folder, "--title", "x", code=2, told="is a folder")

    def test_nothing_that_cannot_be_published_is_sent(self):
        folder = self.stage.folder
        (folder / "notes.txt").write_text("no song")
        (folder / "folder.wav").mkdir()
        for name, code, arguments in (("folder.wav", 3, []), ("notes.txt", 3, []), ("missing.wav", 3, self.songs[:1]),
                                      ("notes.txt", 4, [self.songs[0], "--module"])):
            with self.subTest(name):
                errors = self.publish(*arguments, folder / name, code=code, told=name).errors
                self.assertTrue(errors.startswith("xbrhost: "), errors)
        self.assertEqual(self.stage.log("/oauth/token"), [])

    def test_service_that_is_not_there_is_told(self):
        self.stage.configure("http://127.0.0.1:9")
        self.publish(self.songs[0], code=6, told="127.0.0.1:9")
        self.stage.settings.unlink()
        self.publish(self.songs[0], code=9, told="services.ini")

    def test_song_that_lacks_information_is_named(self):
        song = self.stage.folder / "untagged.wav"
        data = self.songs[2].read_bytes()
        end = data.index(b"data") + 8 + int.from_bytes(data[data.index(b"data") + 4:][:4], "little")
        song.write_bytes(data[:4] + (end - 8).to_bytes(4, "little") + data[8:end])  # without its tags
        self.publish(song, code=7, told="“untagged” lacks: song artist, genre. Nothing was sent.")
        incomplete = [*self.songs, song, "--title", "New", "--artist", "Ann"]
        self.publish(*incomplete, code=7, told="“New” lacks: genre. Nothing was sent.")
        self.assertEqual(self.stage.releases(), [])
        self.publish("--skip-incomplete", *incomplete, told="“New” lacks: genre.")
        self.assertEqual(len(self.stage.releases()), 3, "nothing goes out with another song's genre")
        self.publish("--again", self.songs[0], song, "--genre", "world", "--title", "New", "--artist", "Ann")
        self.assertEqual([(each["title"], each["primary_genre"]) for each, _ in self.stage.releases()[-2:]],
                         [("Café del Último", "World"), ("New", "World")])

    def test_expired_sign_in_is_told_before_anything_is_sent(self):
        self.stage.fault("/api/frontstage/account", status=401, body="")
        self.publish(self.songs[0], code=10, told="does not accept the stored sign-in any more")
        self.assertEqual(self.stage.log(INGESTION), [], "nothing is sent in vain")

    def test_interrupted_while_waiting_for_the_browser(self):
        process, _ = self.start_sign_in("publish", self.songs[0])
        _, errors = interrupt(process)
        self.assertEqual(process.returncode, 130, errors)
        self.assertEqual(self.stage.leftovers(), [])


if __name__ == "__main__":
    unittest.main()
