#!/usr/bin/env python3
"""Makes a translation of twice the length out of a real one: pseudo.py FROM TO

Letters get accents and marks above and below, so that what is cut off at the edges is seen in pictures, too."""

import re
import sys

TEXT = re.compile(r"<source>(.*?)</source>\s*<translation>.*?</translation>", re.DOTALL)


def lengthen(match):
    source = match.group(1)
    plain = source.replace("&amp;", "")
    return f"<source>{source}</source><translation>{source} Ǻ{plain}ģ</translation>"


with open(sys.argv[1], encoding="utf-8") as original:
    text = original.read()
with open(sys.argv[2], "w", encoding="utf-8") as pseudo:
    pseudo.write(re.sub(r'language="\w+"', 'language="xx"', TEXT.sub(lengthen, text), count=1))
