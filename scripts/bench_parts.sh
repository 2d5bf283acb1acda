#!/usr/bin/env bash
# Measures the parts beside what they stand on, in one run, and prints Markdown tables: scripts/bench_parts.sh [ROUNDS]
# Rounds take turns in a random order; each number is the fastest of them.
set -eu
cd "$(dirname "$0")/.."
. scripts/common.sh
rounds=${1:-5}

install_packages test bench >&2
build bench --target bench_map bench_cities bench_search bench_sun bench_convert bench_feed bench_image -- --quiet >&2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
for part in map cities search sun convert feed image; do
    "build/bench/bin/bench_$part" --benchmark_repetitions="$rounds" --benchmark_enable_random_interleaving=true \
        --benchmark_min_time=0.05 --benchmark_format=json >"$work/$part" 2>/dev/null
done
python3 scripts/bench_parts.py "$work"
