#!/usr/bin/env python3
"""What `rlx` does when its feed server fails, for each kind of fault and each kind of data; prints the table.

The fault stands in the path of the address, so that one server on loopback shows them all. After each command what was
fetched before must still be there, and a following good reply must be taken. `--quick` leaves out the faults that end
with a time-out. `--serve FAULT` only runs the server, for trying the window. RLX_BIN names the program.
"""

import argparse
import concurrent.futures
import contextlib
import json
import os
import pathlib
import shutil
import socket
import struct
import subprocess
import sys
import tempfile
import threading
import time

PROJECT = pathlib.Path(__file__).resolve().parents[2]
RLX = os.environ.get("RLX_BIN", str(PROJECT / "build/release/bin/rlx"))
FORECAST = ("weather_1#\nplace_oslo_no#\nsource_Test#\nissued_2026-07-10T18:00Z#\n"
            "2026-07-10_61;{};4.0;4.2;75;14.5;230;81;04:14;22:01#\nend_1#\n")
GOOD = {"110": ["EUR_0.9#JPY_150#", "EUR_0.7#JPY_120#"], "111": [FORECAST.format(21), FORECAST.format(29)],
        "115": ["<html>one</html>", "<html>two</html>"]}
COMMANDS = {"rates": ["rates", "update"], "weather": ["weather", "update", "Oslo"], "news": ["news", "fetch"]}
CANNOT = "Cannot update."
LINE = "Cannot connect to Server({})."


def reply(body, code="1005", status="200 OK", news="n1", length=None):
    """A reply in the form of the protocol."""
    body = body if isinstance(body, bytes) else body.encode("latin-1")
    head = f"HTTP/1.1 {status}\r\nsessionId: s1.\r\nServerMSG: {code}\r\nContent-Type: text/html\r\nnewsid: {news}\r\n"
    return (head + f"Content-Length: {len(body) if length is None else length}\r\n\r\n").encode() + body


def plain(status, body="<html>Somebody else's page", more=""):
    return f"HTTP/1.1 {status}\r\n{more}Content-Type: text/html\r\nContent-Length: {len(body)}\r\n\r\n{body}".encode()


class Request:
    """One request, and the ways to fail it."""

    def __init__(self, client, here, good):
        self.client, self.here, self.good = client, here, good
        self.send = client.sendall
        self.new = reply(good[1], news="n2")
        self.half = reply(good[1][:8], news="n2", length=len(good[1]))

    def hold(self):
        """Until the client gives up."""
        while self.client.recv(1000):
            pass

    def drip(self, data, pause):
        for byte in data:
            self.send(bytes([byte]))
            time.sleep(pause)

    def reset(self, first=b""):
        self.send(first)
        time.sleep(0.2 if first else 0)
        self.client.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, struct.pack("ii", 1, 0))

    def move(self, to):
        self.send(plain("302 Found", more=f"Location: {to}\r\n"))


def unused_port():
    with socket.socket() as free:
        free.bind(("127.0.0.1", 0))
        return free.getsockname()[1]


def full_listener():
    """A port whose queue of connections is full, so that none is answered; with what fills it."""
    listener = socket.create_server(("127.0.0.1", 0), backlog=0)
    waiting = [socket.socket() for _ in range(3)]
    for each in waiting:
        each.setblocking(False)
        each.connect_ex(listener.getsockname())
    return listener, waiting


REFUSED, FULL = unused_port(), full_listener()
ELSEWHERE = {"refused": f"http://127.0.0.1:{REFUSED}/", "dns": "http://nowhere.invalid/",
             "unanswered": f"http://127.0.0.1:{FULL[0].getsockname()[1]}/"}
SYNC = "Syncronisation failed"
BROKEN = "The forecast received for Oslo cannot be read."
RESET, CUT, LATE = (LINE.format(code) for code in (12031, 12030, 12002))
FAIL, TAKEN, PAGE = range(3)  # how it ends: told and left, all is well, a body that is no data and yet a news page
GOOD_REPLIES = {"good": lambda r: r.send(reply(r.good[0])), "newer": lambda r: r.send(r.new)}

# The fault, its name for people, how it ends, the message that comes first, what the server does.
FAULTS = [
    ("refused", "nobody listens", FAIL, CANNOT, None),
    ("dns", "no such name", FAIL, LINE.format(12007), None),
    ("reset", "breaks off", FAIL, RESET, lambda r: r.reset()),
    ("closed", "closes without a word", FAIL, CUT, lambda r: None),
    ("no-http", "no HTTP", FAIL, LINE.format(12152), lambda r: r.send(b"\x07" * 300)),
    ("cut-headers", "ends within the headers", FAIL, CUT, lambda r: r.send(r.new[:50])),
    ("cut-body", "ends within the body", FAIL, CUT, lambda r: r.send(r.half)),
    ("reset-body", "breaks off within the body", FAIL, RESET, lambda r: r.reset(r.half)),
    ("slow", "good, but byte by byte", TAKEN, None, lambda r: r.drip(r.new, 0.002)),
    ("no-code", "200 without the headers of the protocol", FAIL, None, lambda r: r.send(plain("200 OK"))),
    ("small-letters", "`servermsg` in small letters", FAIL, None,
     lambda r: r.send(r.new.replace(b"ServerMSG", b"servermsg"))),
    ("code-1001", "code 1001", FAIL, "Invalid request(1001).", lambda r: r.send(reply("", "1001"))),
    ("code-1004", "code 1004", FAIL, "Server error(1004).", lambda r: r.send(reply("", "1004"))),
    ("code-1006", "code 1006", FAIL, "Requested city not available(1006).", lambda r: r.send(reply("", "1006"))),
    ("code-1007", "code 1007", FAIL, "There are no Updates available(1007).", lambda r: r.send(reply("", "1007"))),
    ("code-9999", "a code that nobody knows, good body", FAIL, None, lambda r: r.send(reply(r.good[1], "9999"))),
    ("empty", "code 1005, no body", FAIL, None, lambda r: r.send(reply(""))),
    ("401", "status 401", FAIL, "Access to the secured http site is denied!", lambda r: r.send(plain("401 No"))),
    ("404", "status 404, a page", FAIL, None, lambda r: r.send(plain("404 Not Found"))),
    ("500", "status 500, no body", FAIL, "Server error().", lambda r: r.send(plain("500 Oh", ""))),
    ("500-page", "status 500, a page", PAGE, "Server error().", lambda r: r.send(plain("500 Oh"))),
    ("no-location", "redirect to nowhere", FAIL, "Redirection with no new location",
     lambda r: r.send(plain("302 Found"))),
    ("loop", "redirect to itself", FAIL, None, lambda r: r.move(f"{r.here}/loop")),
    ("to-https", "redirect to https", FAIL, "Error with redirected url", lambda r: r.move("https://127.0.0.1/")),
    ("to-nobody", "redirect to a host that refuses", FAIL, CANNOT, lambda r: r.move(ELSEWHERE["refused"])),
    ("to-good", "redirect to a good reply", TAKEN, None, lambda r: r.move(f"{r.here}/newer")),
    ("garbage", "code 1005, binary body", PAGE, None, lambda r: r.send(reply(bytes(range(256)) * 40))),
    ("heavy", "code 1005, a body of 3 MB", PAGE, None, lambda r: r.send(reply(b"x" * 3_000_000))),
]
SLOW = [
    ("unanswered", "does not answer the connection", FAIL, LATE, None),
    ("stall", "silent before the headers", FAIL, LATE, lambda r: r.hold()),
    ("stall-body", "silent within the body", FAIL, LATE, lambda r: (r.send(r.half), r.hold())),
    ("drip-headers", "headers without end, a byte each half second", FAIL, LATE,
     lambda r: r.drip(b"HTTP/1.1 200 OK\r\n" + b"X: y\r\n" * 10**4, 0.5)),
    ("drip-body", "body without end, a byte each half second", FAIL, LATE,
     lambda r: r.drip(reply(r.good[1], length=10**6) + b"x" * 10**4, 0.5)),
]
LIMITS = {"dns": 20, "unanswered": 20, "stall": 35, "stall-body": 35, "drip-headers": 305, "drip-body": 305}  # seconds
ACTIONS = {row[0]: row[4] for row in FAULTS + SLOW} | GOOD_REPLIES


class Faulty:
    """Answers each request as its path says."""

    def __init__(self, port=0):
        self.listener = socket.create_server(("127.0.0.1", port), backlog=64)
        self.here = f"http://127.0.0.1:{self.listener.getsockname()[1]}"
        threading.Thread(target=self.accept, daemon=True).start()

    def accept(self):
        while True:
            threading.Thread(target=self.serve, args=self.listener.accept()[:1], daemon=True).start()

    def serve(self, client):
        with client, contextlib.suppress(OSError):
            request = b""
            while b"&wasize=" not in request:
                block = client.recv(65536)
                if not block:
                    return
                request += block
            if b"&cnid=n2&" in request:  # as a server does that knows what the client has
                client.sendall(reply("", "1007", news="n2"))
                return
            good = GOOD[request.split(b"jc=")[1][:3].decode()]
            ACTIONS[request.split()[1].decode()[1:]](Request(client, self.here, good))


def expected(kind, ending, first):
    """Exit status and messages."""
    then = {FAIL: {"rates": (1, SYNC), "weather": (1, SYNC), "news": (1, None)},
            TAKEN: {"rates": (0, None), "weather": (0, None), "news": (0, "You have News")},
            PAGE: {"rates": (0, None), "weather": (1, BROKEN), "news": (0, "You have News")}}
    status, last = then[ending][kind]
    return status, [message for message in (first, last) if message]


class Traveller:
    """A home and a store in which one good answer of each kind lies."""

    def __init__(self, folder, server):
        self.folder, self.server = pathlib.Path(folder), server
        if not self.folder.exists():
            (self.folder / "home").mkdir(parents=True)
            home = self.folder / "home"
            (home / "currs.lst").write_text("3\nEUR_Euro_0.8#JPY_Japanese Yen_160#USD_US Dollar_1#")
            (home / "currs.date").write_text("2026-07-01\n")
            (home / "cities.lst").write_text("1\nz;Oslo;Norway;10.7;59.9;1;1;88;2;298;3\n")
            (home / "cities.wet").write_text("1\nOslo;Norway;oslo_no\n")
            self.ask("good")
            for kind in COMMANDS:
                self.update(kind)

    def copy(self, name):
        shutil.copytree(self.folder, self.folder.parent / name)
        return Traveller(self.folder.parent / name, self.server)

    def run(self, *words):
        words = [RLX, "--home", self.folder / "home", "--store", self.folder / "device.db", "--now",
                 "2026-07-10T23:30:07", "--bias", "0", "--json", "--yes", *words]
        begun = time.monotonic()
        done = subprocess.run(words, capture_output=True, timeout=400)
        if done.returncode not in (0, 1) or done.stderr:
            sys.exit(f"{words}: {done.returncode} {done.stderr.decode()}")
        return done.returncode, json.loads(done.stdout), time.monotonic() - begun

    def ask(self, fault):
        """Whom, from now on."""
        (self.folder / "home/adrs.cfg").write_text(ELSEWHERE.get(fault, f"{self.server.here}/{fault}") + "*")

    def update(self, kind):
        """Exit status, what was said, seconds."""
        status, answer, seconds = self.run(*COMMANDS[kind])
        said = [box["text"].split("\n")[0] for box in answer["messages"] if box["buttons"] == "ok"]
        return status, said, seconds

    def holds(self):
        rates, weather = self.run("rates")[1], self.run("weather", "Oslo")[1]
        return rates, weather, (self.folder / "home/news.htm").read_bytes()


def try_fault(good, before, fault, ending, first):
    """The longest time, and what was not as it should be."""
    traveller, wrong, longest = good.copy(fault), [], 0
    traveller.ask(fault)
    with concurrent.futures.ThreadPoolExecutor(3) as pool:
        results = list(pool.map(traveller.update, COMMANDS))
    for kind, (status, said, seconds) in zip(COMMANDS, results):
        longest = max(longest, seconds)
        wanted = expected(kind, ending, first)
        if (status, len(said)) != (wanted[0], len(wanted[1])) or seconds > LIMITS.get(fault, 25) or any(
                not message.startswith(want) for message, want in zip(said, wanted[1])):
            wrong.append(f"{fault}: {kind}: {status} {said} after {seconds:.1f} s")
    after = traveller.holds()
    if ending != TAKEN and (after[:2] != before[:2] or ending != PAGE and after[2] != before[2]):
        wrong.append(f"{fault}: what was there has changed")
    traveller.run("news", "show")
    traveller.ask("newer")
    for kind in COMMANDS if ending != TAKEN else []:
        status, said, _ = traveller.update(kind)
        if status != 0:
            wrong.append(f"{fault}: {kind} are not taken afterwards: {said}")
    return longest, wrong


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--quick", action="store_true")
    parser.add_argument("--serve", metavar="PORT", type=int)
    arguments = parser.parse_args()
    server, failures = Faulty(arguments.serve or 0), []
    if arguments.serve:
        threading.Event().wait()
    print("| the server | rates and weather: the traveller reads | news | exit status: rates, weather, news | longest |")
    print("|---|---|---|---|--:|")
    with tempfile.TemporaryDirectory() as folder, concurrent.futures.ThreadPoolExecutor(8) as pool:
        good = Traveller(pathlib.Path(folder, "good"), server)
        before = good.holds()
        rows = FAULTS if arguments.quick else FAULTS + SLOW
        tried = [(row, pool.submit(try_fault, good, before, row[0], *row[2:4])) for row in rows]
        for (_, name, ending, first, _), future in tried:
            longest, wrong = future.result()
            failures += wrong
            ends = {kind: expected(kind, ending, first) for kind in COMMANDS}
            told = [" / ".join(ends[kind][1]) or "–" for kind in ("rates", "weather", "news")]
            both = told[0] if told[0] == told[1] else f"rates: {told[0]}; weather: {told[1]}"
            statuses = ", ".join(str(end[0]) for end in ends.values())
            print(f"| {name} | {both} | {told[2]} | {statuses} | {longest:.1f} s |")
    sys.exit("\n".join(failures) if failures else 0)


if __name__ == "__main__":
    main()
