#!/usr/bin/env bash
# Fetches the inputs of make_map.py into DIR, pinned by version and checksum:
#   countries-50m.json   npm world-atlas 2.0.2 (ISC; geometry Natural Earth, public domain)
#   natural-earth.png    Debian python-cartopy-data 0.21.1 (Natural Earth I raster, 720x360, public domain)
# Usage: fetch.sh DIR
set -euo pipefail
dir=${1:?usage: fetch.sh DIR}
mkdir -p "$dir"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
chmod 755 "$work"  # apt downloads as its own user

(cd "$work" && npm pack --silent world-atlas@2.0.2 >/dev/null && tar -xzf world-atlas-2.0.2.tgz)
cp "$work/package/countries-50m.json" "$dir/countries-50m.json"

(cd "$work" && apt-get download -q python-cartopy-data=0.21.1+dfsg-1 >/dev/null 2>&1 && dpkg -x python-cartopy-data_*.deb deb)
cp "$work/deb/usr/share/cartopy/data/raster/natural_earth/50-natural-earth-1-downsampled.png" "$dir/natural-earth.png"

cd "$dir"
sha256sum --check --quiet <<'SUMS'
04342cdc1e3016bcd7db1630de95684d67b79fe3c8c460321e87aef469502394  countries-50m.json
7234e0a8336b3ea113c06ad45d0ae182a2fbd1b5cb128c4cede22dc6fe3cfb35  natural-earth.png
SUMS
