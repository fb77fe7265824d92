#!/usr/bin/env python3
"""Checks that each folder includes only the folders below it and the standard library, and that every include of the
project names an existing file. The folder of the project is given."""

import pathlib
import re
import sys

below = {
    "pagebind": [],
    "selectionlist": ["pagebind"],
    "analysispage": ["pagebind"],
    "locuspage": ["pagebind"],
    "platepages": ["pagebind", "selectionlist"],
    "models": ["pagebind"],
    "workbench/traces": ["pagebind"],
    "workbench/calling": ["pagebind", "workbench/traces"],
    "workbench/simulation": ["pagebind", "workbench/traces"],
    "workbench/store": ["pagebind", "models", "workbench/traces", "workbench/calling"],
    "workbench/lab": [
        "pagebind", "models", "selectionlist", "analysispage", "locuspage", "platepages",
        "workbench/traces", "workbench/calling", "workbench/simulation", "workbench/store",
    ],
    "workbench/pictures": ["pagebind", "platepages", "workbench/traces", "workbench/calling"],
    "workbench/window": [
        "pagebind", "models", "selectionlist", "analysispage", "locuspage", "platepages",
        "workbench/traces", "workbench/calling", "workbench/simulation", "workbench/store", "workbench/lab",
        "workbench/pictures",
    ],
    "workbench/program": [
        "pagebind", "models", "platepages", "workbench/traces", "workbench/calling",
        "workbench/store", "workbench/lab", "workbench/pictures", "workbench/window",
    ],
}

# Besides the standard library, these folders use Qt; the headers of the system are the program's alone.
foreign = {
    "workbench/store": "^Q",
    "workbench/lab": "^Q",
    "workbench/pictures": "^(Q|qcustomplot)",
    "workbench/window": "^(Q|qcustomplot)",
    "workbench/program": "^(Q|unistd|sys/ioctl)",
}


def trouble(root, folder, bracket, included):
    if bracket == "<":
        if re.match(foreign.get(folder, "$^"), included):
            return None
        return "not of the standard library" if re.search("[./]|^Q", included) else None
    target = str(pathlib.PurePath(included).parent)
    target = target if target in below else target.split("/")[0]
    if target != folder and target not in below[folder]:
        return f"{target} does not stand below {folder}"
    return None if (root / included).is_file() else "there is no such file"


def check_file(root, folder, file):
    for number, line in enumerate(file.read_text().splitlines(), 1):
        match = re.match(r'\s*#\s*include\s*([<"])([^">]+)', line)
        found = match and trouble(root, folder, *match.groups())
        if found:
            yield f"{file.relative_to(root)}:{number}: {match.group(2)}: {found}"


def main():
    root = pathlib.Path(sys.argv[1]).resolve()
    listed = "".join((root / place / "CMakeLists.txt").read_text() for place in (".", "workbench"))
    built = re.findall(r"^gleaner_(?:folder|target)\(([\w/]+)", listed, re.MULTILINE)
    wrong = [f"CMakeLists.txt: {folder} has no place in layers.py" for folder in built if folder not in below]
    checked = 0
    for folder in below:
        for file in sorted((root / folder).rglob("*")):
            if file.suffix in (".h", ".cpp"):
                wrong += check_file(root, folder, file)
                checked += 1
    print("\n".join(wrong) or f"the arrows of {checked} files in {len(built)} folders point down")
    return 1 if wrong or not checked else 0


sys.exit(main())
