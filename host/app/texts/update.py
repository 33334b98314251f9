#!/usr/bin/env python3
"""Brings the translation files into line with the texts of both front ends.

    update.py [FOLDER]    FOLDER holds the .ts files; without one they are those beside this script

English has plural forms only. Needs lupdate (qt6-l10n-tools)."""

import pathlib
import subprocess
import sys

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parents[2]
LUPDATE = "/usr/lib/qt6/bin/lupdate"


def main():
    folder = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else HERE
    rooms = [HERE.parent / room for room in ("window", "publishing", "headless")] + [ROOT / "host" / "gui"]
    sources = [str(path) for room in rooms for suffix in ("h", "cpp") for path in sorted(room.rglob("*." + suffix))]
    for path in sorted(folder.glob("*.ts")):
        plurals = ["-pluralonly"] if path.stem == "en" else []
        command = [LUPDATE, "-silent", "-locations", "none", "-no-obsolete", "-I", str(ROOT), *plurals, *sources, "-ts", str(path)]
        result = subprocess.run(command, capture_output=True, text=True, check=False)
        if result.returncode != 0:  # what it says otherwise are doubts about the standard library's names
            sys.stderr.write(result.stderr)
            return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
