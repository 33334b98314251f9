"""What users have without the program, and what the work takes at least. Each answers its seconds."""

import os
import shutil
import subprocess
import tempfile
import time

from albums import files_of


def run(*command, **options):
    subprocess.run(command, check=True, stdout=subprocess.DEVNULL, **options)


def timed(work, *arguments):
    """Runs work in a folder of its own, with nothing left to be written by whoever was before."""
    os.sync()
    folder = tempfile.mkdtemp(dir=os.getcwd())
    start = time.monotonic()
    work(folder, *arguments)
    seconds = time.monotonic() - start
    shutil.rmtree(folder)
    return seconds


def copy_and_zip(folder, album):
    run("cp", "-r", album, folder + "/payload")
    run("zip", "-6", "-q", "-r", folder + "/payload.zip", ".", cwd=folder + "/payload")


def copy_and_7z(folder, album):
    run("cp", "-r", album, folder + "/payload")
    run("7z", "a", "-tzip", "-mx=1", "-bd", folder + "/payload.zip", ".", cwd=folder + "/payload")


def least_work(folder, album):
    """Copies the files, deflates them on both cores, writes that many bytes and reads them back."""
    run("cp", "-r", album, folder + "/payload")
    deflate_all(files_of(folder + "/payload"))
    mebibytes = sum(os.path.getsize(file) for file in files_of(album)) // 2**20
    run("dd", "if=/dev/zero", "of=" + folder + "/written", "bs=1M", "count=%d" % mebibytes, "status=none")
    run("dd", "if=" + folder + "/written", "of=/dev/null", "bs=1M", "status=none")


def copy_twice(folder, album):
    """Writes as many bytes as a preparation does."""
    run("cp", "-r", album, folder + "/first")
    run("cp", "-r", album, folder + "/second")


def deflate_all(files):
    halves = [files[core::2] for core in range(2)]
    running = [subprocess.Popen(["igzip", "-1", "-c", *half], stdout=subprocess.DEVNULL)
               for half in halves if half]
    if any([process.wait() for process in running]):
        raise RuntimeError("igzip failed")


def curl_upload(file, url):
    """Seconds of the transfer alone; curl has read the whole file before."""
    output = subprocess.run(["curl", "-sS", "-H", "Expect:", "--data-binary", "@" + file, "-o", "/dev/null",
                             "-w", "%{time_total}", url], check=True, stdout=subprocess.PIPE).stdout
    return float(output)
