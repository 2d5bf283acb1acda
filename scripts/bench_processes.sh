#!/usr/bin/env bash
# Measures whole programs beside the least programs of their kind, in one run, and prints Markdown tables:
#   scripts/bench_processes.sh [ROUNDS] [SECONDS]
# ROUNDS of starts (200), SECONDS over which an idle window is watched (20). Needs no display: it brings up its own.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/common.sh

install_packages test bench >&2
build bench --target rlx roamlytix data_files empty_program empty_window first_frame bench_image -- --quiet >&2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export PYTHONDONTWRITEBYTECODE=1
# A session bus, as every desktop has one: without it a toolkit would start its own on the way to the first frame.
dbus-run-session -- python3 scripts/bench_processes.py "${1:-200}" "${2:-20}" "$work" 2>"$work/errors" |
    grep -E '^(\||$)' || { cat "$work/errors" >&2; exit 1; }  # what the bus starts speaks too
