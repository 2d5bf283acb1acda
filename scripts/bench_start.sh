#!/usr/bin/env bash
# Measures how quickly rlx answers beside a C program that prints one line, in one run: scripts/bench_start.sh [ROUNDS]
set -eu
cd "$(dirname "$0")/.."
rounds=${1:-200}

cmake --preset release >/dev/null
cmake --build --preset release --target rlx data_files -- --quiet
rlx=$PWD/build/release/bin/rlx

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
printf '#include <stdio.h>\nint main(void) { puts("07:05:09  10/07/2026    Fri"); return 0; }\n' >"$work/line.c"
cc -O2 -o "$work/line" "$work/line.c"
"$rlx" --store "$work/device.db" clocks >/dev/null # builds the store once

# The programs take turns, so that whatever else the machine does falls on all of them alike.
python3 - "$rounds" "$work/line" "$rlx" "$work/device.db" <<'PYTHON'
import os, statistics, sys, time

rounds, line, rlx, store = int(sys.argv[1]), *sys.argv[2:]
subjects = {"C program": [line]}
for words in ("lang text 40000", "time 684", "clocks"):
    subjects["rlx " + words] = [rlx, "--store", store, *words.split()]
quiet = [(os.POSIX_SPAWN_OPEN, 1, "/dev/null", os.O_WRONLY, 0)]
times = {name: [] for name in subjects}
processor = {name: [] for name in subjects}
for _ in range(rounds):
    for name, command in subjects.items():
        begin = time.perf_counter()
        _, status, used = os.wait4(os.posix_spawn(command[0], command, os.environ, file_actions=quiet), 0)
        times[name].append((time.perf_counter() - begin) * 1000)
        processor[name].append((used.ru_utime + used.ru_stime) * 1000)
        assert status == 0, f"{name}: status {status}"
base = statistics.median(times["C program"])
fastest = min(times["C program"])
print(f"{rounds} rounds, ms       {'median':>10}{'over C':>8}{'ratio':>7}{'fastest':>10}{'over C':>8}{'processor':>11}")
for name, values in times.items():
    median, least, used = statistics.median(values), min(values), statistics.median(processor[name])
    print(f"{name:22}{median:10.2f}{median - base:8.2f}{median / base:7.2f}{least:10.2f}{least - fastest:8.2f}{used:11.2f}")
PYTHON
