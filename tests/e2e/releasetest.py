#!/usr/bin/env python3
"""What xbrhost makes of songs before they go: rendering, words of the user's, release files, dry runs."""

import json
import os
import shutil
import signal
import unittest
import wave

from stage import INGESTION, StageTest, interrupt, wait_for


class ReleaseTest(StageTest):
    def setUp(self):
        super().setUp()
        self.mp3, self.flac, self.wav = self.stage.make_songs()
        self.aiff, self.ogg = self.stage.make_songs(1, "foreign")

    def drafts(self, *arguments, code=0):
        return [event for event in self.events("--dry-run", *arguments, code=code) if event["event"] == "draft"]

    def copy(self, song, name):
        (self.stage.folder / name).parent.mkdir(exist_ok=True)
        return shutil.copy(song, self.stage.folder / name)

    def test_aiff_and_mp3_arrive_as_one_album(self):
        events = self.events("--album", self.aiff, self.mp3, self.copy(self.mp3, "other.mp3"), "--title", "Other",
                             "--track-number", "7")
        for kind, file in (("track", self.aiff.as_uri()), ("song", str(self.aiff))):
            self.assertIn(file, [event["file"] for event in events if event["event"] == kind], "not the rendered one")
        self.publish("--dry-run", self.aiff, code=11)  # which is known to have gone
        [(document, audio)] = self.stage.releases()
        self.assertEqual((document["title"], document["main_artists"], document["primary_genre"]),
                         ("Night Drive", [{"name": "The Lamps"}], "Electronica"), "the first song's")
        self.assertEqual([(song["title"], song["audio_filename"], song["track_number"]) for song in document["songs"]],
                         [("Harbour", "Harbour.wav", 4), ("Café del Último", self.mp3.name, 3), ("Other", "other.mp3", 7)])
        by_name = {path.name: path for path in audio}
        self.assertEqual(by_name[self.mp3.name].read_bytes(), self.mp3.read_bytes())
        with wave.open(str(by_name["Harbour.wav"])) as rendered:
            self.assertEqual(rendered.getparams()[:4], (2, 3, 48000, 48000))
            frames = rendered.readframes(48000)
        data = self.aiff.read_bytes()
        start = data.index(b"SSND") + 16
        samples = data[start:start + len(frames)]
        self.assertEqual(frames[0::3] + frames[1::3] + frames[2::3], samples[2::3] + samples[1::3] + samples[0::3])

    def test_songs_of_one_name_do_not_replace_each_other(self):
        self.publish("--album", "--album-title", "Twins", self.aiff, self.copy(self.wav, "Harbour.wav"))
        [(document, audio)] = self.stage.releases()
        self.assertEqual([path.name for path in audio], ["Harbour (2).wav", "Harbour.wav"])
        self.assertEqual(document["songs"][0]["audio_filename"], "Harbour (2).wav")
        self.publish("--again", self.wav, self.copy(self.wav, f"more/{self.wav.name}"))  # as singles they do not meet

    def test_dry_run_shows_what_the_module_would_send(self):
        [first, second] = self.drafts(self.aiff, self.mp3, "--title", "Über", "--genre", "house")
        self.assertEqual((first["title"], first["genre"], first["missing"]), ("Harbour", "House", []))
        self.assertEqual((first["songs"][0]["fileName"], first["songs"][0]["rendered"]), ("Harbour.wav", True))
        self.assertEqual((second["songs"][0]["title"], second["songs"][0]["trackNumber"]), ("Über", 1), "a single is track 1")
        [album] = self.drafts("--album", self.flac, self.mp3, "--album-artist", "Various Artists")
        self.assertEqual((album["title"], album["artist"], album["genre"]), ("Night Drive", "Various Artists", "Electronica"))
        self.assertEqual([song["trackNumber"] for song in album["songs"]], [2, 3])
        self.publish("--dry-run", self.aiff, told="Harbour.wav, rendered from")
        self.assertEqual(json.loads(self.stage.control("GET", "log")), [], "without the service")

    def test_release_file(self):
        release = self.stage.folder / "release.json"
        release.write_text(json.dumps({
            "album": {"title": "From File", "artist": "Mara"}, "genre": "pop",
            "songs": [{"file": str(self.ogg.relative_to(self.stage.folder)), "trackNumber": 2},
                      {"file": str(self.wav), "title": "First"}]}))
        self.publish("--release", release)
        [(document, _)] = self.stage.releases()
        self.assertEqual((document["title"], document["primary_genre"], [song["title"] for song in document["songs"]]),
                         ("From File", "Pop", ["Tide", "First"]))
        release.write_text('{"songs": [{"file": "a.wav", "name": "x"}]}')
        self.publish("--release", release, code=2, told="unknown key 'name'")

    def test_song_that_is_cut_off_is_told(self):
        cut = self.stage.folder / "cut.aiff"
        cut.write_bytes(self.aiff.read_bytes()[:100000])
        self.publish(self.wav, cut, code=3, told="is cut off")
        self.assertEqual(self.stage.log("/oauth/token"), [], "nobody signs in for that")

    def test_interrupted_while_rendering(self):
        long = self.stage.folder / "long.aiff"
        data = bytearray(self.aiff.read_bytes())
        start, common = data.index(b"SSND"), data.index(b"COMM")
        frames = 60_000_000  # a sparse file of silence, some seconds of work
        data[common + 10:common + 14] = frames.to_bytes(4, "big")
        data[start + 4:start + 8] = (frames * 6 + 8).to_bytes(4, "big")
        data[4:8] = (start + 8 + frames * 6).to_bytes(4, "big")
        long.write_bytes(data)
        os.truncate(long, start + 16 + frames * 6)
        process = self.start("publish", "--json", long, "--artist", "Ann", "--genre", "Pop")
        wait_for(lambda: "Rendering" in process.stdout.readline(), "the rendering")
        _, errors = interrupt(process)
        self.assertEqual(process.returncode, 130, errors)
        self.assertEqual(self.stage.leftovers(), [])

    def test_temporary_folder_that_is_gone(self):
        process, page = self.start_sign_in("publish", self.wav)
        [folder] = (self.stage.folder / "tmp").iterdir()
        shutil.rmtree(folder)
        folder.write_text("in its place")
        self.stage.visit(page)
        _, errors = process.communicate(timeout=30)
        self.assertEqual(process.returncode, 1, errors)
        self.assertIn("The folder for copies", errors)  # the module says nothing when it cannot prepare an upload
        self.assertEqual(self.stage.releases(), [])

    def test_other_hosts_files_are_kept_until_it_is_killed(self):
        self.stage.fault(INGESTION, stall_ms=20000, stall_after=1000)
        process = self.start("publish", "--json", self.wav)
        wait_for(lambda: '"uploading":true' in process.stdout.readline(), "the upload")
        before = self.stage.leftovers()
        self.assertTrue(any("payload" in path for path in before))
        self.assertEqual(self.stage.run("publish", self.wav).returncode, 0)
        self.assertEqual(self.stage.leftovers(), before)
        process.send_signal(signal.SIGKILL)
        process.communicate(timeout=10)
        self.assertTrue(list((self.stage.folder / "run").rglob("*.sock")))
        self.publish("--again", self.wav)
        self.assertEqual(list((self.stage.folder / "run").rglob("*.sock")), [])


if __name__ == "__main__":
    unittest.main()
