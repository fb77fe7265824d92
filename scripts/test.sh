#!/usr/bin/env bash
# Installs what the project needs, builds it, checks format and lint, and runs every test, plain and under the
# sanitizers. Works on a bare Debian 12, from any folder.
set -euo pipefail

usage() {
    cat <<'TEXT'
Usage: scripts/test.sh [--quick] [--help]

  --quick   build and run the plain tests only
  --help    show this text

Without an option: install packages, build, check format, lint, test, build and test under AddressSanitizer and
UndefinedBehaviorSanitizer. Ends with the closing lines of ctest.
TEXT
}

quick=no
for argument in "$@"; do
    case "$argument" in
        --quick) quick=yes ;;
        --help) usage; exit 0 ;;
        *) echo "test.sh: unknown option '$argument'" >&2; usage >&2; exit 2 ;;
    esac
done

cd "$(dirname "${BASH_SOURCE[0]}")/.."

. scripts/packages.sh

heading() { printf '\n== %s (%d s)\n' "$1" "$SECONDS"; }

# Every source and header, tracked or new; an unpacked archive has no list of its own.
sources() {
    if git rev-parse --is-inside-work-tree >/dev/null 2>&1; then
        git ls-files --cached --others --exclude-standard -- "$@" | while read -r file; do
            if [ -f "$file" ]; then echo "$file"; fi
        done
    else
        local pattern
        for pattern in "$@"; do
            find . -path ./build -prune -o -name "$pattern" -type f -print
        done
    fi
}

heading 'Packages'
install_packages "${test_packages[@]}"

heading 'Real traces'
# The tests that need them are passed over where they cannot be had.
if bash scripts/traces.sh "$PWD/build/traces"; then export GLEANER_REAL_TRACES=$PWD/build/traces; fi

heading 'Build'
cmake --preset dev >/dev/null
cmake --build --preset dev

if [ "$quick" = no ]; then
    heading 'Format'
    files=$(sources '*.cpp' '*.h')
    [ -n "$files" ] || { echo 'test.sh: found no sources to check' >&2; exit 1; }
    xargs clang-format --dry-run --Werror <<<"$files"
    echo "$(wc -l <<<"$files") files are well formatted"

    heading 'Lint'
    cmake --fresh --preset lint >/dev/null
    python3 scripts/lint.py build/lint

    heading 'Build with the sanitizers'
    cmake --preset asan >/dev/null
    cmake --build --preset asan

    heading 'Tests with the sanitizers'
    ctest --preset asan
fi

heading 'Tests'
ctest --preset dev
