"""Albums to publish: tracks of music-like sound, which is neither silence nor noise."""

import os
import struct
import subprocess

TRACKS = 12


def render(programs, folder, seconds):
    """One song as WAV, FLAC and MP3 of that length."""
    subprocess.run([programs + "/brindlex-songs", folder, str(seconds)], check=True)
    return {os.path.splitext(name)[1]: os.path.join(folder, name) for name in os.listdir(folder)}


def samples_of(song):
    """The sound of a WAV file: the contents of its chunk "data"."""
    with open(song, "rb") as file:
        wave = file.read()
    position = 12
    while wave[position:position + 4] != b"data":
        position += 8 + struct.unpack_from("<I", wave, position + 4)[0]
    size = struct.unpack_from("<I", wave, position + 4)[0]
    return wave[:position], memoryview(wave)[position + 8:position + 8 + size]


def write_wave_album(folder, song, mebibytes):
    """Tracks that make up so many MiB, each of which begins at another place of the song."""
    os.makedirs(folder)
    head, samples = samples_of(song)
    size = mebibytes * 2**20 // TRACKS // 6 * 6
    for track in range(TRACKS):
        with open("%s/%02d.wav" % (folder, track + 1), "wb") as file:
            file.write(head + b"data" + struct.pack("<I", size))
            start = len(samples) * track // TRACKS // 6 * 6
            left = size
            while left > 0:
                piece = samples[start:start + left]
                file.write(piece)
                left -= len(piece)
                start = 0
    return folder


def write_copies(folder, song):
    """The same song as each track: entries of an archive know nothing of each other."""
    os.makedirs(folder)
    with open(song, "rb") as file:
        content = file.read()
    for track in range(TRACKS):
        with open("%s/%02d%s" % (folder, track + 1, os.path.splitext(song)[1]), "wb") as file:
            file.write(content)
    return folder


def files_of(folder):
    return sorted(os.path.abspath(os.path.join(folder, name)) for name in os.listdir(folder))


def size_of(folder):
    return sum(os.path.getsize(file) for file in files_of(folder))
