#!/usr/bin/env python3
"""Every text of the forms and of the module's code has a finished translation in every language, and every file is as
the update script would leave it: translationstest.py ROOT"""

import pathlib
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

LANGUAGES = {"de", "es", "fr", "ja", "pt"}


def faults_of(path):
    sources = 0
    for message in ElementTree.parse(path).iter("message"):
        source, translation = message.findtext("source"), message.find("translation")
        sources += 1
        if translation is None or translation.get("type") or not (translation.text or "").strip():
            yield f"{path.name}: no finished translation of '{source}'"
        elif ("&" in source) != ("&" in translation.text):
            yield f"{path.name}: one of '{source}' and '{translation.text}' has a key to reach it and the other has none"
    if sources < 40:
        yield f"{path.name}: only {sources} texts: this looks at the wrong files"


def main():
    folder = pathlib.Path(sys.argv[1]) / "resources/skin/translations"
    with tempfile.TemporaryDirectory() as temporary:
        copies = pathlib.Path(temporary)
        for path in folder.glob("*.ts"):
            shutil.copy(path, copies)
        subprocess.run([sys.executable, folder / "update.py", copies], check=True)
        faults = [f"{language}.ts is missing" for language in LANGUAGES if not (copies / f"{language}.ts").exists()]
        for path in sorted(copies.glob("*.ts")):
            faults += faults_of(path)
            if path.read_bytes() != (folder / path.name).read_bytes():
                faults.append(f"{path.name}: run update.py, texts came or went")
    print("\n".join(faults) if faults else "all texts are translated")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
