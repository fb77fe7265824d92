#!/usr/bin/env python3
"""Runs clang-tidy over the project's own sources, as many at a time as there are cores. The folder of a build is given,
for its list of compile commands. A file that passed is looked at again when it, a header or a setting has changed."""

import concurrent.futures
import hashlib
import json
import os
import pathlib
import subprocess
import sys

root = pathlib.Path(__file__).resolve().parent.parent


def own_sources(build):
    """The sources, each with its compile command."""
    entries = json.loads((build / "compile_commands.json").read_text())
    commands = {pathlib.Path(entry["file"]).resolve(): entry["command"] for entry in entries}
    return {file: commands[file] for file in sorted(commands) if root in file.parents and build not in file.parents}


def common_digest():
    digest = hashlib.sha256()
    for file in sorted([*root.rglob(".clang-tidy"), *root.rglob("*.h")]):
        if "build" not in file.relative_to(root).parts:
            digest.update(file.read_bytes())
    return digest


def lint(build, file):
    run = subprocess.run(["clang-tidy", "--quiet", "-p", str(build), str(file)], capture_output=True, text=True)
    return file, run.returncode, run.stdout + (run.stderr if run.returncode else "")


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    passed_file = build / "lint-passed.txt"
    passed = set(passed_file.read_text().split()) if passed_file.exists() else set()
    common = common_digest()
    keys = {}
    for file, command in own_sources(build).items():
        digest = common.copy()
        digest.update(command.encode() + file.read_bytes())
        keys[file] = digest.hexdigest()
    if not keys:
        sys.exit(f"lint.py: {build} compiles no source of {root}")
    waiting = [file for file in keys if keys[file] not in passed]
    # The longest first, so that no core is left with a long one at the end.
    waiting.sort(key=lambda file: -file.stat().st_size)
    failed = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for file, code, text in pool.map(lambda file: lint(build, file), waiting):
            if code:
                failed += 1
                print(text.strip(), flush=True)
            else:
                passed.add(keys[file])
    passed_file.write_text("\n".join(sorted(passed & set(keys.values()))))
    print(f"{len(keys)} sources, {len(waiting)} linted, {failed} with findings")
    return 1 if failed else 0


sys.exit(main())
