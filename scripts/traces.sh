#!/usr/bin/env bash
# Fetches five real traces and the tables of four kits, one of them theirs, into the folder that is named: they come in a package of
# Debian's (GPL-2+), of which nothing is installed. Ends with 1 where they cannot be had, for want of a network.
set -euo pipefail

folder=${1:?traces.sh: name the folder that the traces go to}
package=r-cran-seqinr
version=4.2-23-1
sha256=62aca5d68b8b41182ed2300fee62d62a190b41356723fab5d4506293877d4d9d
inside=usr/lib/R/site-library/seqinr/abif

mkdir -p "$folder"
folder=$(cd "$folder" && pwd)
[ -f "$folder/complete" ] && exit 0
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
chmod 755 "$work"
cd "$work"
if ! apt-get download "$package=$version" >log 2>&1; then
    echo "traces.sh: Debian's package $package $version cannot be had: $(tail -n 1 log)" >&2
    exit 1
fi
file=$(echo "$package"_*.deb)
echo "$sha256  $file" | sha256sum --check --quiet >&2 || { echo "traces.sh: $file is not the expected file" >&2; exit 1; }
dpkg-deb -x "$file" unpacked
cp unpacked/"$inside"/*.fsa unpacked/"$inside"/*.txt "$folder"
touch "$folder/complete"
