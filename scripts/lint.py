#!/usr/bin/env python3
"""Runs clang-tidy over the project's own sources, as many runs at a time as there are cores. The folder of a build is
given, for its list of compile commands. Most of a run goes into the headers, so sources of a folder share one: they are
included into one batch. A batch with findings is taken apart and each source is run by itself, which names the source
and clears those that merely do not get along. What passed is looked at again when it, a header or a setting changed."""

import concurrent.futures
import hashlib
import itertools
import json
import os
import pathlib
import shlex
import subprocess
import sys

root = pathlib.Path(__file__).resolve().parent.parent
batch_size = 10


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


def flags(command):
    """The compiler and what it is told, without the source and the object."""
    words = shlex.split(command)
    return words[: words.index("-o")]


def batches(sources):
    """Sources that are compiled alike, some at a time. A folder's settings for the linter hold for all of it."""
    alike = sorted(sources, key=lambda file: (flags(sources[file]), file.parent, file))
    for _, group in itertools.groupby(alike, key=lambda file: (flags(sources[file]), settings_of(file))):
        files = list(group)
        yield from (files[first : first + batch_size] for first in range(0, len(files), batch_size))


def settings_of(file):
    return next(folder for folder in file.parents if (folder / ".clang-tidy").exists())


def tidy(settings, words, file):
    run = subprocess.run(
        # That a batch includes sources is its nature.
        ["clang-tidy", "--quiet", f"--config-file={settings / '.clang-tidy'}", "--checks=-bugprone-suspicious-include",
         str(file), "--", *words[1:]],
        capture_output=True, text=True)
    return run.stdout + run.stderr if run.returncode else ""


def lint(folder, sources, files):
    """The findings of each source of a batch."""
    words = flags(sources[files[0]])
    settings = settings_of(files[0])
    batch = folder / (hashlib.sha256("".join(map(str, files)).encode()).hexdigest()[:16] + ".cpp")
    batch.write_text("".join(f'#include "{file}"\n' for file in files))
    if not tidy(settings, words, batch):
        return {file: "" for file in files}
    return {file: tidy(settings, words, file) for file in files}


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    passed_file = build / "lint-passed.txt"
    passed = set(passed_file.read_text().split()) if passed_file.exists() else set()
    common = common_digest()
    sources = own_sources(build)
    keys = {}
    for file, command in sources.items():
        digest = common.copy()
        digest.update(command.encode() + file.read_bytes())
        keys[file] = digest.hexdigest()
    if not keys:
        sys.exit(f"lint.py: {build} compiles no source of {root}")
    waiting = {file: sources[file] for file in keys if keys[file] not in passed}
    folder = build / "batches"
    folder.mkdir(exist_ok=True)
    # The longest first, so that no core is left with a long one at the end.
    work = sorted(batches(waiting), key=lambda files: -sum(file.stat().st_size for file in files))
    failed = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for findings in pool.map(lambda files: lint(folder, sources, files), work):
            for file, text in findings.items():
                if text:
                    failed += 1
                    print(text.strip(), flush=True)
                else:
                    passed.add(keys[file])
    passed_file.write_text("\n".join(sorted(passed & set(keys.values()))))
    print(f"{len(keys)} sources, {len(waiting)} linted, {failed} with findings")
    return 1 if failed else 0


sys.exit(main())
