#!/usr/bin/env python3
"""What xbrhost makes of songs before they go: rendering, words of the user's, release files, dry runs."""

import json
import os
import shutil
import signal
import unittest
import wave

from stage import Stage, interrupt, sign_in_page, wait_for

INGESTION = "/api/frontstage/release_ingestion"


class ReleaseTest(unittest.TestCase):
    def setUp(self):
        self.stage = Stage()
        self.addCleanup(self.stage.close)
        self.mp3, self.flac, self.wav = self.stage.make_songs()
        self.aiff, self.ogg = self.stage.make_foreign_songs()

    def publish(self, *arguments, code=0):
        result = self.stage.run("publish", *arguments)
        self.assertEqual(result.returncode, code, result.stderr_text)
        self.assertEqual(self.stage.leftovers(), [], "temporary files")
        return result

    def drafts(self, *arguments, code=0):
        result = self.publish("--dry-run", "--json", *arguments, code=code)
        events = [json.loads(line) for line in result.stdout_text.splitlines()]
        self.assertEqual((events[-1]["event"], events[-1]["exitCode"]), ("finished", code))
        return [event for event in events if event["event"] == "draft"], result.stderr_text

    def test_aiff_and_mp3_arrive_as_one_album(self):
        other = self.stage.folder / "other.mp3"
        shutil.copy(self.mp3, other)
        self.publish("--album", self.aiff, self.mp3, other, "--title", "Other", "--track-number", "7")
        [(document, audio)] = self.stage.releases()
        self.assertEqual(document["title"], "Night Drive")
        self.assertEqual(document["main_artists"], [{"name": "The Lamps"}])
        self.assertEqual(document["primary_genre"], "Electronica", "the first song's")
        self.assertEqual([(song["title"], song["audio_filename"], song["track_number"])
                          for song in document["songs"]],
                         [("Harbour", "Harbour.wav", 4), ("Café del Último", self.mp3.name, 3),
                          ("Other", "other.mp3", 7)])
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
        twin = self.stage.folder / "Harbour.wav"
        shutil.copy(self.wav, twin)
        self.publish("--album", "--album-title", "Twins", self.aiff, twin)
        [(document, audio)] = self.stage.releases()
        self.assertEqual([path.name for path in audio], ["Harbour (2).wav", "Harbour.wav"])
        self.assertEqual(document["songs"][0]["audio_filename"], "Harbour (2).wav")
        copy = self.stage.folder / "more" / self.wav.name
        copy.parent.mkdir()
        shutil.copy(self.wav, copy)
        self.assertIn("the same file name", self.publish("--album", self.wav, copy, code=3).stderr_text)
        self.publish("--again", self.wav, copy)  # as singles they do not meet

    def test_dry_run_shows_what_the_module_would_send(self):
        [first, second], _ = self.drafts(self.aiff, self.mp3, "--title", "Über", "--genre", "house")
        self.assertEqual((first["title"], first["genre"], first["missing"]), ("Harbour", "House", []))
        self.assertEqual(first["songs"][0]["fileName"], "Harbour.wav")
        self.assertTrue(first["songs"][0]["rendered"])
        self.assertEqual(second["songs"][0]["title"], "Über")
        self.assertEqual(second["songs"][0]["trackNumber"], 1, "a single is always track 1")
        [album], _ = self.drafts("--album", self.flac, self.mp3, "--album-artist", "Various Artists")
        self.assertEqual((album["title"], album["artist"], album["genre"]),
                         ("Night Drive", "Various Artists", "Electronica"))
        self.assertEqual([song["trackNumber"] for song in album["songs"]], [2, 3])
        self.assertEqual(json.loads(self.stage.control("GET", "log")), [], "without the service")
        self.assertIn("Harbour.wav, rendered from", self.publish("--dry-run", self.aiff).stdout_text)

    def test_dry_run_tells_what_is_missing(self):
        bare = self.stage.folder / "bare.wav"
        with wave.open(str(bare), "wb") as file:
            file.setparams((1, 2, 8000, 0, "NONE", ""))
            file.writeframes(bytes(1000))
        [_, single], errors = self.drafts(self.wav, bare, code=7)
        self.assertEqual((single["title"], single["missing"]), ("bare", ["albumArtist", "primaryGenre"]))
        self.assertEqual(single["songs"][0]["missing"], ["songArtist"])
        self.assertIn("“bare” lacks: song artist, genre.", errors)
        [album], _ = self.drafts("--album", bare, "--album-title", "T", "--title", "S", code=7)
        self.assertEqual((album["title"], album["missing"]), ("T", ["albumArtist", "primaryGenre"]))
        _, errors = self.drafts(self.wav, "--genre", "Electronca", code=2)
        self.assertIn("Nearest: Electronica", errors)

    def test_release_file(self):
        release = self.stage.folder / "release.json"
        release.write_text(json.dumps({
            "album": {"title": "From File", "artist": "Mara"}, "genre": "pop",
            "songs": [{"file": "foreign/Tide.ogg", "trackNumber": 2}, {"file": str(self.wav), "title": "First"}]}))
        self.publish("--release", release)
        [(document, _)] = self.stage.releases()
        self.assertEqual((document["title"], document["primary_genre"]), ("From File", "Pop"))
        self.assertEqual([song["title"] for song in document["songs"]], ["Tide", "First"])
        release.write_text('{"songs": [{"file": "a.wav", "name": "x"}]}')
        self.assertIn("unknown key 'name'", self.publish("--release", release, code=2).stderr_text)

    def test_what_cannot_be_rendered_is_told(self):
        cut = self.stage.folder / "cut.aiff"
        cut.write_bytes(self.aiff.read_bytes()[:100000])
        for song, words in ((cut, "is cut off"), (self.stage.folder / "services.ini", "holds no audio")):
            self.assertIn(words, self.publish(self.wav, song, code=3).stderr_text)
        self.assertEqual(self.stage.log("/oauth/token"), [], "nobody signs in for that")

    def test_interrupted_while_rendering(self):
        long = self.stage.folder / "long.aiff"
        data = bytearray(self.aiff.read_bytes())
        start = data.index(b"SSND")
        size = int.from_bytes(data[start + 4:start + 8], "big") - 8
        frames = 60_000_000  # a sparse file of silence, some seconds of work
        common = data.index(b"COMM")
        data[common + 10:common + 14] = frames.to_bytes(4, "big")
        data[start + 4:start + 8] = (frames * 6 + 8).to_bytes(4, "big")
        data[4:8] = (start + 8 + frames * 6).to_bytes(4, "big")
        long.write_bytes(data[:start + 16 + size])
        os.truncate(long, start + 16 + frames * 6)
        process = self.stage.start("publish", "--json", long, "--artist", "Ann", "--genre", "Pop")
        wait_for(lambda: "Rendering" in process.stdout.readline(), "the rendering")
        _, errors = interrupt(process)
        self.assertEqual(process.returncode, 130, errors)
        self.assertEqual(self.stage.leftovers(), [])


class KilledTest(unittest.TestCase):
    """kill -9 leaves things behind; nothing of it is in the way of the next run."""

    def setUp(self):
        self.stage = Stage()
        self.addCleanup(self.stage.close)
        self.song = self.stage.make_songs()[2]

    def start_and_stall(self):
        self.stage.control("POST", "fault", {"path": INGESTION, "stall_ms": 20000, "stall_after": 1000})
        process = self.stage.start("publish", "--json", self.song)
        self.addCleanup(lambda: (process.kill(), process.communicate()))
        wait_for(lambda: '"uploading":true' in process.stdout.readline(), "the upload")
        return process

    def test_next_run_works_and_cleans_up(self):
        process = self.start_and_stall()
        process.send_signal(signal.SIGKILL)
        process.communicate(timeout=10)
        self.assertTrue(any("payload" in path for path in self.stage.leftovers()))
        self.assertTrue(list((self.stage.folder / "run").rglob("*.sock")))
        result = self.stage.run("publish", self.song)
        self.assertEqual(result.returncode, 0, result.stderr_text)
        self.assertEqual(self.stage.leftovers(), [])
        self.assertEqual(list((self.stage.folder / "run").rglob("*.sock")), [])

    def test_running_host_keeps_its_files(self):
        self.start_and_stall()
        before = self.stage.leftovers()
        self.assertTrue(any("payload" in path for path in before))
        result = self.stage.run("publish", self.song)
        self.assertEqual(result.returncode, 0, result.stderr_text)
        self.assertEqual(self.stage.leftovers(), before)


class SilentFailureTest(unittest.TestCase):
    """The module says nothing when it cannot prepare an upload; the host does."""

    def setUp(self):
        self.stage = Stage()
        self.addCleanup(self.stage.close)
        self.song = self.stage.make_songs()[2]

    def publish_and(self, meanwhile):
        """Publishes; `meanwhile` happens when the songs are taken and the sign-in is awaited."""
        process = self.stage.start("publish", self.song, BROWSER="/bin/true")
        page = sign_in_page(process)
        meanwhile()
        self.stage.visit(page)
        _, errors = process.communicate(timeout=30)
        self.assertEqual(process.returncode, 1, errors)
        self.assertEqual(self.stage.releases() if self.stage.inbox.exists() else [], [])
        return errors

    def test_song_that_vanished(self):
        self.assertIn("“Opening.wav” is no longer there.", self.publish_and(self.song.unlink))

    def test_temporary_folder_that_is_gone(self):
        def remove():
            [folder] = (self.stage.folder / "tmp").iterdir()
            shutil.rmtree(folder)
            folder.write_text("in its place")
        self.assertIn("The folder for copies", self.publish_and(remove))


if __name__ == "__main__":
    unittest.main()
