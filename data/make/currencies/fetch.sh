#!/usr/bin/env bash
# Fetches the rates that make_currs.py reads, pinned to their day, into the folder named on the command line.
set -euo pipefail

rates=@fawazahmed0/currency-api@2026.9.29

[ $# -eq 1 ] || { echo "usage: fetch.sh FOLDER" >&2; exit 2; }
mkdir -p "$1"
cd "$1"
npm pack --silent "$rates" >/dev/null
tar -xzf fawazahmed0-currency-api-*.tgz package/v1/currencies.json package/v1/currencies/usd.json
echo "fetched into $PWD: package/v1"
