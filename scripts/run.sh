#!/usr/bin/env bash
# The main job from nothing: installs what is needed, builds, fetches real traces, fills a lab, analyzes, and tells
# where everything is. Works on a bare Debian 12, from any folder. A second run is quick and keeps what is there.
set -euo pipefail

usage() {
    cat <<'TEXT'
Usage: scripts/run.sh [--help]

Builds the workbench, makes a lab under your data folder, brings in five real traces and a simulated plate, walks the
wizard over both, and leaves a picture of a trace and one of a plate. Without a network it goes on with the simulated
plate alone.
TEXT
}

case "${1:-}" in
    '') ;;
    --help) usage; exit 0 ;;
    *) echo "run.sh: unknown option '$1'" >&2; usage >&2; exit 2 ;;
esac

cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/packages.sh
home=${XDG_DATA_HOME:-$HOME/.local/share}/gleaner-workbench
lab=$home/lab.sqlite
traces=$home/traces

heading() { printf '\n== %s (%d s)\n' "$1" "$SECONDS"; }

heading 'Packages'
install_packages "${build_packages[@]}"

heading 'Build'
cmake --preset run >/dev/null
cmake --build --preset run
workbench() {
    local command=$1
    shift
    build/run/workbench/gleaner-workbench "$command" --lab "$lab" "$@"
}

# What a study of that name needs is done once: the second run finds its results.
has_study() { workbench results --study "$1" --json 2>/dev/null | grep '"result"' >/dev/null; }

heading 'Real traces'
if bash scripts/traces.sh "$traces"; then
    workbench import --project 'Real traces' --kit NGM --panels "$traces/NGM_Pa.txt" --bins "$traces/NGM_Bins.txt" \
        --skip-known "$traces"/*.fsa
    has_study 'Real traces' || workbench analyze --project 'Real traces' --study 'Real traces'
    workbench results --study 'Real traces'
    # The first result that passed with the most to see: a sample, not a ladder.
    result=$(workbench results --study 'Real traces' --json |
             python3 -c 'import json, sys
print(next((r["result"] for r in json.load(sys.stdin) if r["sample"].startswith("FAC321")), ""))')
    table=$home/real-traces.csv
    workbench export --study 'Real traces' --file "$table"
else
    echo 'The real traces are left out; the job goes on with simulated ones.'
    result=
    table=
fi

heading 'A simulated plate'
workbench simulate --project 'Simulated plates' --plate P1
has_study 'Simulated plate' ||
    workbench analyze --project 'Simulated plates' --plate P1 --study 'Simulated plate' --picture "$home/plate.png"
workbench results --study 'Simulated plate' --json |
    python3 -c 'import collections, json, sys
for status, count in collections.Counter(r["status"] for r in json.load(sys.stdin)).most_common():
    print(f"{count:4} {status}")'
[ -n "$result" ] || result=$(workbench results --study 'Simulated plate' --json |
    python3 -c 'import json, sys
print(next(r["result"] for r in json.load(sys.stdin) if r["status"] == "PASS"))')
workbench show "$result" --picture "$home/trace.png"

heading 'Done'
cat <<TEXT
The lab            $lab
A plate            $home/plate.png
A trace            $home/trace.png${table:+
The real traces    $table}
The program        $PWD/build/run/workbench/gleaner-workbench --help
TEXT

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    heading 'The window'
    build/run/workbench/gleaner-workbench --lab "$lab" || echo 'The window did not open; all the rest is done.'
fi
