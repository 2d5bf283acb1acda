"""Starts programs in turns and prints Markdown tables. Called by bench_processes.sh with rounds, seconds, a scratch folder."""

import json
import os
import pathlib
import shutil
import statistics
import subprocess
import sys
import time

ROUNDS, SECONDS, WORK = int(sys.argv[1]), float(sys.argv[2]), pathlib.Path(sys.argv[3])
BIN = pathlib.Path(__file__).resolve().parents[1] / "build/bench/bin"
STORE = WORK / "device.db"
RLX = [str(BIN / "rlx"), "--store", str(STORE)]
WINDOW = [str(BIN / "roamlytix"), "--store", str(STORE)]
EMPTY_WINDOW = [str(BIN / "empty_window")]
QUIET = [(os.POSIX_SPAWN_OPEN, 1, "/dev/null", os.O_WRONLY, 0), (os.POSIX_SPAWN_OPEN, 2, "/dev/null", os.O_WRONLY, 0)]


def table(head, rows):
    print("| " + " | ".join(head) + " |\n|---|" + "---:|" * (len(head) - 1))
    for row in rows:
        print("| " + " | ".join(row) + " |")
    print()


def run_once(command):
    """Milliseconds of a whole run and of its processor time."""
    begin = time.perf_counter()
    _, status, used = os.wait4(os.posix_spawn(shutil.which(command[0]), command, os.environ, file_actions=QUIET), 0)
    taken = (time.perf_counter() - begin) * 1000
    assert status == 0, command
    return taken, (used.ru_utime + used.ru_stime) * 1000


def memory_of(command):
    """The most memory of a run in MiB, as a small program sees it: what this one starts inherits its own size."""
    answer = subprocess.run(["/usr/bin/time", "-f", "%M", *command], stdout=subprocess.DEVNULL, stderr=subprocess.PIPE,
                            text=True, check=True).stderr
    return int(answer.split()[-1]) / 1024


def short_answers():
    subjects = {"empty C++ program": [str(BIN / "empty_program")], "GNU units": ["units", "-t", "mile", "feet"]}
    for words in ("convert 1 mile feet", "time 684", "sun 684", "sky --ut 2026-11-22T12:00:00", "dial intl france",
                  "lang text 40000", "clocks"):
        subjects["rlx " + words] = RLX + words.split()
    runs = {name: [] for name in subjects}
    for _ in range(ROUNDS):
        for name, command in subjects.items():
            runs[name].append(run_once(command))
    floor = min(r[0] for r in runs["empty C++ program"])
    middle = statistics.median(r[0] for r in runs["empty C++ program"])
    rows = []
    for name, results in runs.items():
        taken = [r[0] for r in results]
        rows.append((name, f"{min(taken):.2f}", f"{min(taken) - floor:.2f}", f"{statistics.median(taken):.2f}",
                     f"{statistics.median(taken) / middle:.2f}", f"{statistics.median(r[1] for r in results):.2f}",
                     f"{memory_of(subjects[name]):.1f}"))
    table((f"{ROUNDS} starts in turns", "fastest, ms", "over the empty one, ms", "median, ms", "ratio of medians",
           "processor, ms", "memory, MiB"), rows)


def status(pid, name, file="status"):
    for line in pathlib.Path(f"/proc/{pid}/{file}").read_text().splitlines():
        if line.startswith(name + ":"):
            return int(line.split()[1])
    return 0


class Screen:
    """An X server of its own, bare or with a window manager."""

    def __init__(self, manager=False):
        read, write = os.pipe()
        self.programs = [subprocess.Popen(["Xvfb", "-displayfd", str(write), "-screen", "0", "1280x1024x24", "-nolisten",
                                           "tcp"], pass_fds=[write])]
        self.environment = dict(os.environ, DISPLAY=":" + os.read(read, 16).decode().strip())
        if manager:
            self.programs.append(subprocess.Popen(["openbox"], env=self.environment,
                                                  stderr=subprocess.DEVNULL))
            time.sleep(1)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        for program in reversed(self.programs):
            program.terminate()
            program.wait()


def end(pid):
    os.kill(pid, 15)
    while pathlib.Path(f"/proc/{pid}").exists():
        time.sleep(0.01)


def first_frame(screen, command):
    """Milliseconds to the first frame, and the process, which goes on."""
    # The program outlives the one that started it and keeps the pipe open: no reading to its end.
    with subprocess.Popen([str(BIN / "first_frame"), *command], env=screen.environment, stdout=subprocess.PIPE,
                          text=True) as watcher:
        taken, pid = watcher.stdout.readline().split()
    return float(taken), int(pid)


def first_frames(subjects, rounds):
    """Times of first frames, the first subject as the measure of the others."""
    frames = {name: [] for name in subjects}
    memory = {}
    with Screen() as screen:
        for turn in range(rounds):
            for name, command in subjects.items():
                taken, pid = first_frame(screen, command)
                frames[name].append(taken)
                if turn == 0:
                    time.sleep(1.5)
                    memory[name] = (status(pid, "VmHWM") / 1024, status(pid, "Pss", "smaps_rollup") / 1024)
                end(pid)
    measure = next(iter(frames.values()))
    rows = [(name, f"{min(taken):.1f}", f"{min(taken) / min(measure):.2f}", f"{statistics.median(taken):.1f}",
             f"{statistics.median(taken) / statistics.median(measure):.2f}", f"{memory[name][0]:.1f}",
             f"{memory[name][1]:.1f}") for name, taken in frames.items()]
    table((f"{rounds} starts in turns", "first frame, fastest, ms", "ratio", "median, ms", "ratio", "most memory, MiB",
           "its share (PSS), MiB"), rows)


def windows():
    rounds = max(10, ROUNDS // 5)
    first_frames({"empty Qt window": EMPTY_WINDOW, "Qt window with one word": [*EMPTY_WINDOW, "word"],
                  "roamlytix": WINDOW}, rounds)
    first_frames({"roamlytix": WINDOW, "gnome-clocks": ["/usr/bin/gnome-clocks"], "sunclock": ["/usr/bin/sunclock"]},
                 rounds // 2)


def wakeups(pid):
    """Voluntary switches of each thread, the processor time in ms, over SECONDS."""
    def look():
        tasks = pathlib.Path(f"/proc/{pid}/task").iterdir()
        switches = sum(status(pid, "voluntary_ctxt_switches", f"task/{task.name}/status") for task in tasks)
        fields = pathlib.Path(f"/proc/{pid}/stat").read_text().rsplit(")", 1)[1].split()
        return switches, (int(fields[11]) + int(fields[12])) * 1000 / os.sysconf("SC_CLK_TCK")
    before = look()
    time.sleep(SECONDS)
    after = look()
    return (after[0] - before[0]) / SECONDS, (after[1] - before[1]) / SECONDS


def idle():
    rows = []
    with Screen(manager=True) as screen:
        for name, command in (("empty Qt window", EMPTY_WINDOW), ("roamlytix, clocks", WINDOW),
                              ("roamlytix, map", WINDOW)):
            tab = "1" if name.endswith("map") else "0"
            subprocess.run([*RLX, "settings", "set", "Roamlytix", "CurTab", "--dword", tab], check=True,
                           stdout=subprocess.DEVNULL)
            program = subprocess.Popen(command, env=screen.environment)
            time.sleep(3)
            seen = wakeups(program.pid)
            window = subprocess.run(["xdotool", "search", "--onlyvisible", "--pid", str(program.pid)], text=True,
                                    env=screen.environment, capture_output=True).stdout.split()
            for each in window:
                subprocess.run(["xdotool", "windowminimize", each], env=screen.environment, stderr=subprocess.DEVNULL)
            time.sleep(1)
            hidden = wakeups(program.pid)
            rows.append((name, *(f"{value:.2f}" for value in (*seen, *hidden))))
            end_program(program)
    table((f"idle for {SECONDS:.0f} s", "seen: wake-ups a second", "processor, ms a second",
           "minimised: wake-ups a second", "processor, ms a second"), rows)


def end_program(program):
    program.terminate()
    program.wait()


def large_map():
    picture = WORK / "map.png"
    command = [*RLX, "map", "--size", "4096x2048", "--ut", "2026-06-21T12:00:00", "-o", str(picture)]
    other_picture = WORK / "other.png"
    other = ["/usr/bin/xplanet", "-num_times", "1", "-geometry", "4096x2048", "-projection", "rectangular", "-date",
             "20260621.120000", "-output", str(other_picture)]
    runs, others = zip(*((run_once(command)[0], run_once(other)[0]) for _ in range(5)))
    parts = subprocess.run([str(BIN / "bench_image"), "--benchmark_filter=ScaleMap|SavePng", "--benchmark_format=json",
                            "--benchmark_repetitions=3"], text=True, capture_output=True, check=True).stdout
    times = {}
    for part in json.loads(parts)["benchmarks"]:
        times[part["name"]] = min(part["real_time"], times.get(part["name"], 1e9))
    taken = min(runs)
    table(("rlx map --size 4096x2048 -o map.png", "ms", "share"),
          [("whole run, fastest of 5", f"{taken:.0f}", "1"),
           ("of it PNG", f"{times['SavePng']:.0f}", f"{times['SavePng'] / taken:.2f}"),
           ("of it scaling", f"{times['ScaleMap']:.0f}", f"{times['ScaleMap'] / taken:.2f}"),
           ("file, kB", f"{picture.stat().st_size / 1000:.0f}", ""),
           ("most memory, MiB", f"{memory_of(command):.0f}", ""),
           ("xplanet, the same size, fastest of 5 in turns", f"{min(others):.0f}", f"{min(others) / taken:.2f}"),
           ("its file, kB", f"{other_picture.stat().st_size / 1000:.0f}", ""),
           ("its most memory, MiB", f"{memory_of(other):.0f}", "")])


def prepare():
    """A device that was started before: its cities are there and its first questions are answered."""
    for words in ("clocks", "convert 1 mile feet", "rates", "lang use 0"):
        subprocess.run([*RLX, *words.split()], check=True, stdout=subprocess.DEVNULL)
    with Screen() as screen:
        for tab in ("1", "0"):
            subprocess.run([*RLX, "settings", "set", "Roamlytix", "CurTab", "--dword", tab], check=True,
                           stdout=subprocess.DEVNULL)
            _, pid = first_frame(screen, WINDOW)
            for _ in range(4):
                time.sleep(0.5)
                subprocess.run(["xdotool", "key", "Return"], env=screen.environment)
            end(pid)


prepare()
short_answers()
windows()
idle()
large_map()
