#!/usr/bin/env python3
"""Checks that the README shows each example as it is built, and that the files it names exist. The folder of the
project is given."""

import pathlib
import re
import sys

root = pathlib.Path(sys.argv[1])
readme = (root / "README.md").read_text()
examples = sorted((root / "examples").glob("*.cpp"))
wrong = []
for example in examples:
    indented = "\n".join("    " + line if line else "" for line in example.read_text().splitlines())
    if indented not in readme:
        wrong.append(f"README.md does not show {example.name} as it is")
for name in re.findall(r"`((?:scripts|models|pagebind|examples|docs|workbench)/[\w./-]+)`|\]\((docs/[^)]+)\)", readme):
    if not (root / (name[0] or name[1])).exists():
        wrong.append(f"README.md names {name[0] or name[1]}, which is not there")
print("\n".join(wrong) or f"README.md shows {len(examples)} examples as they are")
sys.exit(1 if wrong or not examples else 0)
