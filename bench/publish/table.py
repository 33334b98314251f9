"""Measures how quickly albums get ready and away, beside what else does such work, and prints the tables.

usage: table.py FOLDER_OF_PROGRAMS [--quick]     works below TMPDIR, with up to 30 GB; --quick with 1 GB
"""

import json
import os
import shutil
import statistics
import subprocess
import sys
import tempfile

import albums
import peers
from receiver import Receiver

MEBIBYTE = 2**20


class Bench:
    def __init__(self, programs, quick):
        self.programs = os.path.abspath(programs)
        self.quick = quick
        self.repetitions = 1 if quick else 3
        self.songs = albums.render(self.programs, "songs", 30 if quick else 300)

    def program(self, *arguments):
        """Runs one step of the program in a temporary folder that must be empty afterwards."""
        folder = tempfile.mkdtemp(dir=os.getcwd())
        os.sync()
        output = subprocess.run([self.programs + "/publish_bench", *map(str, arguments)], check=True,
                                stdout=subprocess.PIPE, env={**os.environ, "TMPDIR": folder}).stdout
        os.rmdir(folder)
        return json.loads(output)

    def prepare(self, album):
        return self.program("prepare", *albums.files_of(album))

    def wave_album(self, mebibytes):
        name = os.path.abspath("wave%d" % mebibytes)
        return name if os.path.exists(name) else albums.write_wave_album(name, self.songs[".wav"], mebibytes)

    # Tables

    def preparation(self):
        print("| album of 12 tracks | MiB | seconds | faster than `cp`, `zip -6` | than `cp`, `7z -mx=1` "
              "| least work : ours | memory beyond the archive |")
        print("|---|---:|---:|---:|---:|---:|---:|")
        size = 100 if self.quick else 1024
        for name, album in (("WAV, 24 bits", self.wave_album(size)),
                            ("FLAC", albums.write_copies("flac", self.songs[".flac"])),
                            ("MP3", albums.write_copies("mp3", self.songs[".mp3"]))):
            self.preparation_row(name, album)

    def preparation_row(self, name, album):
        works = (peers.copy_and_zip, peers.copy_and_7z, peers.least_work)
        times = {work: [] for work in works}
        ours = []
        for _ in range(self.repetitions):
            warm(3 * albums.size_of(album) // MEBIBYTE)
            ours.append(self.prepare(album))
            for work in works:
                times[work].append(peers.timed(work, album))
        seconds = median_of(ours, "seconds")
        ratios = [statistics.median(times[work]) / seconds for work in works]
        ratios[2] = 1 / ratios[2]
        memory = max(run["peak"] - run["body"] for run in ours) / MEBIBYTE
        print("| %s | %d | %.2f | %.1f times | %.1f times | 1 : %.2f | %.0f MiB |"
              % (name, albums.size_of(album) // MEBIBYTE, seconds, *ratios, memory), flush=True)

    def latencies(self):
        album = self.wave_album(100 if self.quick else 1024)
        warm(3 * albums.size_of(album) // MEBIBYTE)
        watched = [self.prepare(album) for _ in range(3 if self.quick else 9)]
        cancelled = self.program("cancel", 4 if self.quick else 20, *albums.files_of(album))
        print("| while packing | |")
        print("|---|---:|")
        print("| reports a second | %.0f |"
              % statistics.median(run["reports"] / run["packing"] for run in watched))
        print("| longest time without a report, median and worst of %d runs | %.0f, %.0f ms |"
              % (len(watched), median_of(watched, "silence"), max(run["silence"] for run in watched)))
        print("| longest time until a cancel is noticed, of %d | %.0f ms |"
              % (cancelled["cancelled"], cancelled["noticed"]))
        print("| longest time until the preparation has ended, with all files removed | %.0f ms |"
              % cancelled["returned"], flush=True)

    def sizes(self):
        print("| MiB of WAV | seconds | ms for each MiB | `cp` twice, ms for each MiB "
              "| memory beyond the archive |")
        print("|---:|---:|---:|---:|---:|")
        for size in (10, 40, 160) if self.quick else (10, 100, 1024, 3072, 6144):
            album = self.wave_album(size)
            runs, copies = [], []
            for _ in range(self.repetitions):
                warm(3 * size)
                runs.append(self.prepare(album))
                copies.append(peers.timed(peers.copy_twice, album))
            seconds = median_of(runs, "seconds")
            print("| %d | %.2f | %.2f | %.2f | %.0f MiB |"
                  % (size, seconds, 1000 * seconds / size, 1000 * statistics.median(copies) / size,
                     max(run["peak"] - run["body"] for run in runs) / MEBIBYTE), flush=True)
            shutil.rmtree(album)

    def upload(self):
        size = 128 if self.quick else 1000  # curl takes less than 1 GiB
        receiver = Receiver()
        with open("body", "wb") as file:
            for _ in range(size):
                file.write(os.urandom(MEBIBYTE))
        ours, curls = [], []
        for _ in range(3 if self.quick else 9):
            ours.append(self.program("upload", os.path.abspath("body"), receiver.url)["seconds"])
            curls.append(peers.curl_upload("body", receiver.url))
        print("| upload of %d MiB over loopback | MB/s |" % size)
        print("|---|---:|")
        for name, times in (("the program", ours), ("`curl --data-binary @file`", curls)):
            print("| %s | %.0f |" % (name, size * MEBIBYTE / 1e6 / statistics.median(times)))
        print("| ratio | %.2f |" % (statistics.median(curls) / statistics.median(ours)), flush=True)


def warm(mebibytes):
    """Uses memory once: what a virtual machine did not use for a while, its host has to find first, and whoever is
    measured then would pay for that."""
    with open("/proc/meminfo") as file:
        free = next(int(line.split()[1]) // 1024 for line in file if line.startswith("MemFree"))
    b"x" * (min(mebibytes, free * 9 // 10) * MEBIBYTE)


def median_of(runs, key):
    return statistics.median(run[key] for run in runs)


def main(programs, quick):
    programs = os.path.abspath(programs)
    with tempfile.TemporaryDirectory() as folder:
        os.chdir(folder)
        bench = Bench(programs, quick)
        for table in (bench.preparation, bench.latencies, bench.upload, bench.sizes):
            table()
            print()
        os.chdir("/")


main(sys.argv[1], "--quick" in sys.argv[2:])
