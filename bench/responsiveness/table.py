"""Plays scenes in the program's window and prints how long it was deaf to the user, and how much memory they took.

usage: table.py FOLDER_OF_PROGRAMS [--quick]
"""

import http.server
import json
import os
import pathlib
import shutil
import struct
import subprocess
import sys
import tempfile
import threading

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "publish"))
import albums  # noqa: E402

GOAL = 50         # milliseconds: what takes longer is felt
QUICK_GOAL = 16   # for what follows the hand: one picture of a screen with 60 a second
MEMORY_GOAL = 64  # MiB
FIRST = "<feed xmlns='http://www.w3.org/2005/Atom'><title>News</title>"
ENTRY = ("<entry><title>Entry {0}</title><updated>2025-06-02T09:30:00Z</updated><link href='https://news.example/{0}'/>"
         "<link rel='enclosure' type='image/jpeg' href='/picture/{0}'/><summary>What happened, in one or two sentences "
         "that fit beside a picture.</summary><content type='html'>&lt;p>One paragraph&lt;/p>&lt;p>and &lt;b>another"
         "&lt;/b>, long enough for a few lines in a panel.&lt;/p></content></entry>")


class News(http.server.ThreadingHTTPServer):
    """Serves a feed with so many pictures; counts how many go out whole."""

    daemon_threads = True

    def __init__(self, entries, pictures):
        super().__init__(("127.0.0.1", 0), Visit)
        self.feed = (FIRST + "".join(ENTRY.format(i) for i in range(entries)) + "</feed>").encode()
        self.pictures = [path.read_bytes() for path in sorted(pictures.iterdir())]
        self.whole = 0
        threading.Thread(target=self.serve_forever, daemon=True).start()
        self.url = "http://127.0.0.1:%d/feed" % self.server_port

    def handle_error(self, *_):
        pass  # whoever scrolls on hangs up


class Visit(http.server.BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"

    def do_GET(self):
        number = self.path.rpartition("/")[2]
        is_picture = number.isdigit()
        known = is_picture and self.headers["If-None-Match"] == '"1"'
        body = b"" if known else self.server.pictures[int(number) % 8] if is_picture else self.server.feed
        self.server.whole += is_picture and not known
        self.send_response(304 if known else 200)
        self.send_header("ETag", '"1"')
        self.send_header("Content-Type", "image/jpeg" if is_picture else "application/atom+xml")
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)

    def log_message(self, *_):
        pass


class Stage:
    """Folders in the place of the user's, and the service's stand-in."""

    def __init__(self, programs):
        self.programs = pathlib.Path(programs).resolve()
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="brindlex-bench-", dir=os.environ.get("TMPDIR", "/var/tmp")))
        for name in ("home", "run", "tmp", "pictures", "songs"):
            (self.folder / name).mkdir(mode=0o700)
        self.program("responsiveness_bench", "pictures", self.folder / "pictures")
        self.service = subprocess.Popen(
            [self.programs / "brindlex-sandbox", "--inbox", self.folder / "inbox", "--port-file", self.folder / "port"],
            stdout=subprocess.DEVNULL)

    def close(self):
        self.service.terminate()
        self.service.wait()
        shutil.rmtree(self.folder)

    def program(self, name, *arguments, before=()):
        environment = {key: value for key, value in os.environ.items() if key != "DBUS_SESSION_BUS_ADDRESS"}
        environment.update(HOME=str(self.folder / "home"), XDG_RUNTIME_DIR=str(self.folder / "run"),
                           XDG_CACHE_HOME=str(self.folder / "home/cache"), TMPDIR=str(self.folder / "tmp"),
                           XDG_CONFIG_HOME=str(self.folder / "home/config"), QT_QPA_PLATFORM="offscreen",
                           XBRHOST_CONFIG=str(self.folder / "services.ini"), LC_ALL="C.UTF-8",
                           BROWSER=str(self.programs / "brindlex-browser"),
                           BRINDLEX_CALLBACK_PROGRAM=str(self.programs / "xbrhost"))
        run = subprocess.run([*before, self.programs / name, *arguments], env=environment, text=True,
                             stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        if run.returncode != 0:
            sys.exit("%s %s: %s" % (name, " ".join(map(str, arguments)), run.stderr))
        return run.stdout

    def configure(self, feed):
        while not (self.folder / "port").exists():
            pass
        server = "http://127.0.0.1:" + (self.folder / "port").read_text().strip()
        (self.folder / "services.ini").write_text(
            "[brindlex]\nServerURL=%s\nUserURL=%s/\nConsumerKey=brindlex-demo\nConsumerSecret=brindlex-demo-secret\n"
            "CallbackURL=brindlex://authorize\nFeedURL=%s\n" % (server, server, feed))

    def play(self, scene, *arguments, before=()):
        for kept in ("config/xbrhost/songs.json", ".local/share/xbrhost/published.json"):
            (self.folder / "home" / kept).unlink(missing_ok=True)  # each scene begins with an empty list
        lines = self.program("responsiveness_bench", scene, *arguments, before=before)
        return [json.loads(line) for line in lines.splitlines()]

    def write_songs(self, count):
        """Songs of silence that are as good as nothing: it is their number that counts."""
        length = 9600
        head = b"RIFF" + struct.pack("<I", length + 36) + b"WAVEfmt " + struct.pack(
            "<IHHIIHH", 16, 1, 1, 48000, 96000, 2, 16) + b"data" + struct.pack("<I", length)
        for i in range(count):
            path = self.folder / "songs" / ("Take %05d.wav" % i)
            path.write_bytes(head)
            os.truncate(path, len(head) + length)
        return self.folder / "songs"

    def write_album(self, mebibytes):
        """Twelve times the same song, which is not silent; and a third of them."""
        song = albums.render(str(self.programs), str(self.folder / "song"), mebibytes * 2**20 // 12 // 288000)
        album = pathlib.Path(albums.write_copies(str(self.folder / "album"), song[".wav"]))
        third = self.folder / "third"
        third.mkdir()
        for path in sorted(album.iterdir())[::3]:
            os.link(path, third / path.name)
        return album, third


def main(programs, quick):
    entries, songs, mebibytes = (200, 1000, 100) if quick else (1000, 10000, 3072)
    stage = Stage(programs)
    try:
        news = News(entries, stage.folder / "pictures")
        stage.configure(news.url)
        rows = []
        fetched = []
        for scene in ("empty", "full"):
            before = news.whole
            rows += stage.play(scene)
            fetched.append(news.whole - before)
        folder = stage.write_songs(songs)
        rows += stage.play("songs", folder)
        album, third = stage.write_album(mebibytes)
        rows += stage.play("prepare", album)
        rows += stage.play("upload", third)
        rows += stage.play("keyring", before=(
            "dbus-run-session", "--", "sh", "-c", '"$1" silence & sleep 1; "$@"; kill $!', "sh"))
        alone = stage.play("nothing")[-1]["peak"]
        everything = stage.play("all", folder)[-1]["peak"]
    finally:
        stage.close()
    print("| with %d entries, %d songs, albums of %d and %d MiB | deaf for ms | goal | seconds |"
          % (entries, songs, mebibytes, mebibytes // 3))
    print("|---|---:|---:|---:|")
    worst = {}
    for row in rows:
        if row["gap"] > worst.get(row["what"], {"gap": -1})["gap"]:
            worst[row["what"]] = row
    for row in worst.values():
        follows_hand = "scrolled" in row["what"] or "typed" in row["what"]
        print("| %s | %.0f | %d | %.1f |"
              % (row["what"], row["gap"], QUICK_GOAL if follows_hand else GOAL, row["seconds"]))
    print()
    print("Pictures that were fetched whole: %d with an empty cache, %d with a full one." % tuple(fetched))
    print("The most memory of the process: %.0f MiB with nothing, %.0f MiB with all entries and songs: %.0f MiB more (goal %d)."
          % (alone, everything, everything - alone, MEMORY_GOAL))


main(sys.argv[1], "--quick" in sys.argv[2:])
