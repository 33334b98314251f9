#!/usr/bin/env python3
"""Brings the translation files into line with the texts of the forms and of the module's code.

    update.py [FOLDER]    FOLDER holds the .ts files; without one they are those beside this script

Texts of the code are those of translate("..."), of translatable("...") for texts that are translated later, and of the
class names that hosts list (the class table). All texts of the module have one context, "brindlex": that of its table
of translations, and the class that its forms name. Needs lupdate (qt6-l10n-tools)."""

import pathlib
import re
import subprocess
import sys
import tempfile

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parents[2]
ROOMS = ["module", "client", "auth", "release", "ui"]
CONTEXT = "brindlex"
LUPDATE = "/usr/lib/qt6/bin/lupdate"

TEXT = r'"((?:[^"\\]|\\.)*)"'
CALL = re.compile(r"\btranslat(?:e|able)\(\s*" + TEXT)
COLUMN = re.compile(r"\{\s*" + TEXT + r",\s*\d+\}")
PUBLISHER = re.compile(r'"(?:Publisher|Gadget)",\s*' + TEXT)


def texts_of_code():
    texts = []
    for room in ROOMS:
        for path in sorted((ROOT / room).rglob("*.cpp")):
            code = path.read_text(encoding="utf-8")
            texts += CALL.findall(code) + PUBLISHER.findall(code)
            if path.name == "trackcells.cpp":
                texts += COLUMN.findall(code)
    return sorted(set(texts))


def main():
    folder = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else HERE
    files = [str(path) for path in sorted(folder.glob("*.ts"))]
    forms = [str(path) for path in sorted((HERE.parent / "forms").glob("*.ui"))]
    with tempfile.TemporaryDirectory() as temporary:
        # lupdate knows neither our function nor our context: it reads a list in a form that it does know.
        listed = pathlib.Path(temporary) / "module.cpp"
        listed.write_text("".join(f'QT_TRANSLATE_NOOP("{CONTEXT}", "{text}")\n' for text in texts_of_code()),
                          encoding="utf-8")
        command = [LUPDATE, "-silent", "-locations", "none", "-no-obsolete", *forms, str(listed), "-ts", *files]
        return subprocess.run(command, check=False).returncode


if __name__ == "__main__":
    sys.exit(main())
