"""Holds the border to what was released: the order and the signatures of the methods of each interface, its UID, the
fields of what crosses by value, the numbers of enumerations, the accessors. A line of released.txt never changes; what
is new is added to it by

    border.py ROOT --release
"""

import pathlib
import re
import sys


def without_name(parameter):
    """Drops a parameter's name, which nobody but a reader sees."""
    return re.sub(r"(?<=[\s*&])\w+$", "", parameter.strip()).strip()


def declaration(text):
    """One line for a member or a function: with the types of its parameters, without their names."""
    text = " ".join(text.split()).removesuffix(" = 0")
    method = re.fullmatch(r"(.*?)\((.*)\)( const)?( noexcept)?", text)
    if not method or "uid(" in text:
        return text
    parameters = ", ".join(without_name(one) for one in method[2].split(",")) if method[2] else ""
    return f"{method[1]}({parameters}){method[3] or ''}{method[4] or ''}".removeprefix("virtual ")


def declarations(header):
    """What a header declares that two separately built sides have to agree on, as name and line."""
    text = re.sub(r"//[^\n]*", "", header.read_text())
    for name, body in re.findall(r"enum class (\w+ : [\w:]+) \{(.*?)\}", text, re.S):
        yield f"enum {name}", ", ".join(" ".join(one.split()) for one in body.split(",") if one.strip())
    text = re.sub(r"enum class .*?\};", "", text, flags=re.S)
    text = re.sub(r"protected:.*?;", "", text, flags=re.S)
    text = re.sub(r"friend .*?\n    \}", "", text, flags=re.S)
    for name, body in re.findall(r"^struct ([^;{]+) \{(.*?)^\};", text, re.S | re.M):
        yield name, "; ".join(declaration(one) for one in body.split(";") if one.strip())
    for function in re.findall(r"^XBR_API ([^;]+);", text, re.M):
        yield declaration(function), ""
    for constant, value in re.findall(r"^constexpr (\w+ \w+)\s+=\s+([^;]+);", text, re.M):
        yield constant, value


def main():
    root = pathlib.Path(sys.argv[1])
    released_file = root / "tests/rules/released.txt"
    headers = sorted((root / "framework/abi").glob("*.h"))
    present = [f"{name}: {line}".rstrip(": ") for header in headers for name, line in declarations(header)]
    released = released_file.read_text().splitlines() if released_file.exists() else []
    broken = [line for line in released if line not in present]
    new = [line for line in present if line not in released]
    for line in broken:
        print(f"released, and not there any more:\n  {line}")
    if sys.argv[2:] == ["--release"] and not broken:
        released_file.write_text("\n".join(released + new) + "\n")
        return 0
    for line in new:
        print(f"not released (border.py --release does it once it is final):\n  {line}")
    return 1 if broken or new else 0


sys.exit(main())
