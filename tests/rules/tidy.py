#!/usr/bin/env python3
"""clang-tidy has nothing to say about the sources that are shipped. Usage: tidy.py SOURCE_DIR BUILD_DIR

A check walks through all headers of a source, and Qt's are most of the time. So what is looked at is what is compiled:
where the build puts the files of a room together, they are looked at together.
"""

import concurrent.futures
import json
import os
import pathlib
import subprocess
import sys

ROOMS = ("framework", "auth", "release", "ui", "client", "module", "host", "sandbox")


def sources(root, build):
    """Every file that the build compiles for one of the rooms, the largest first."""
    found = {}
    for entry in json.loads((build / "compile_commands.json").read_text(encoding="utf-8")):
        path = pathlib.Path(entry["directory"], entry["file"])
        base = build if build in path.parents else root
        is_made = base == build and "Unity" not in path.parts  # by Qt's tools
        if path.relative_to(base).parts[0] in ROOMS and not is_made and path.suffix in (".cpp", ".cxx"):
            found[path] = path.read_text(encoding="utf-8").count("\n#include \"/") if base == build else 0
    return sorted(found, key=found.get, reverse=True)


def look(build, path):
    # That a file includes sources is how it puts them together; and some warnings are g++'s alone. Other tests wait for
    # clocks, and go first.
    command = ["nice", "-n", "3", "clang-tidy", "--quiet", "-p", build, "--checks=-bugprone-suspicious-include",
               "--extra-arg=-Wno-unknown-warning-option", path]
    ran = subprocess.run(command, capture_output=True, text=True, check=False)
    return ran.stdout + (ran.stderr if ran.returncode != 0 and not ran.stdout else "") if ran.returncode != 0 else ran.stdout


def main():
    root, build = (pathlib.Path(each).resolve() for each in sys.argv[1:3])
    paths = sources(root, build)
    if len(paths) < 10:
        sys.exit(f"only {len(paths)} files to look at below {build}: is it built?")
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        said = [text for text in pool.map(lambda path: look(build, path), paths) if text.strip()]
    print("\n".join(said) if said else f"nothing to say about {len(paths)} files")
    return 1 if said else 0


if __name__ == "__main__":
    sys.exit(main())
