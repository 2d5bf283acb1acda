#!/usr/bin/env python3
"""`roamlytix-feedd` under load: many clients at once, then hostile ones beside them. Everything stays on loopback.

Each client has a loopback address of its own and a connection for each question, as the application does. The weather
comes from a slow source of ours, so that connections also sleep. Exit status 1: a wrong answer, memory that grows, a
hostile client that is not dropped, or connections and threads that are left over.
"""

import argparse
import asyncio
import collections
import datetime
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import time
import urllib.parse

PROJECT = pathlib.Path(__file__).resolve().parents[2]
TAIL = "&os=wince6.1&gid=1234567&appver=1.0&home=Oslo&scrsize=480x640&wasize=480x588"
HEAD = "POST /feed HTTP/1.1\r\nHost: a\r\nUser-Agent: Roamlytix\r\nContent-Type: application/x-www-form-urlencoded\r\n"


def post(body, length=None):
    return (HEAD + f"Content-Length: {len(body) if length is None else length}\r\n\r\n{body}").encode("latin-1")


def question(job, closing="&'0'"):
    return post(f"inet=My ISP:My ISP&did=Zoe&jc={job}{TAIL}{closing}")


class Feedd:
    """The server, its process as the system sees it, and a source of weather that takes its time."""

    def __init__(self, program, folder):
        self.program, self.folder = program, folder

    async def start(self):
        self.source = await asyncio.start_server(self.forecast, "127.0.0.1", 0)
        port = self.source.sockets[0].getsockname()[1]
        config = pathlib.Path(self.folder, "feeds.json")
        where = f"http://127.0.0.1:{port}/?a={{latitude}}&o={{longitude}}"
        config.write_text(json.dumps({"weather": {"kind": "open-meteo", "from": where, "sample": True}}))
        words = [self.program, "--listen", "127.0.0.1:0", "--data", PROJECT / "data", "--config", config]
        self.log = open(pathlib.Path(self.folder, "log"), "w+")
        self.process = subprocess.Popen(words, stderr=self.log, env={**os.environ, "http_proxy": ""})
        while not (said := re.search(r"listening on port (\d+)", pathlib.Path(self.log.name).read_text())):
            if self.process.poll() is not None:
                sys.exit("the server did not start: " + pathlib.Path(self.log.name).read_text())
            await asyncio.sleep(0.02)
        self.port = int(said[1])

    async def stop(self):
        self.process.terminate()
        if self.process.wait(30) != 0:
            sys.exit("the server ended badly:\n" + pathlib.Path(self.log.name).read_text()[-3000:])
        self.source.close()

    async def forecast(self, reader, writer):
        asked = urllib.parse.parse_qs((await reader.readuntil(b"\r\n\r\n")).split()[1].decode()[2:])
        await asyncio.sleep(0.05)
        days = [str(datetime.date.today() + datetime.timedelta(i)) for i in range(7)]
        units = {"temperature_2m_max": "°C", "temperature_2m_min": "°C"}
        page = json.dumps({"latitude": float(asked["a"][0]), "longitude": float(asked["o"][0]), "daily_units": units,
                           "daily": {"time": days, "weather_code": [3] * 7, "temperature_2m_max": [9.5] * 7,
                                     "temperature_2m_min": [1.5] * 7}}).encode()
        writer.write(b"HTTP/1.1 200 OK\r\nContent-Type: application/json\r\nConnection: close\r\n"
                     b"Content-Length: %d\r\n\r\n" % len(page) + page)
        await writer.drain()
        writer.close()

    def resident(self):
        """KiB."""
        return int(re.search(r"VmRSS:\s+(\d+)", pathlib.Path(f"/proc/{self.process.pid}/status").read_text())[1])

    def holdings(self):
        folder = pathlib.Path(f"/proc/{self.process.pid}")
        return len(list((folder / "fd").iterdir())), len(list((folder / "task").iterdir()))

    async def connect(self, client):
        address = f"127.{1 + client // 200}.0.{1 + client % 200}"
        return await asyncio.open_connection("127.0.0.1", self.port, local_addr=(address, 0))

    async def ask(self, client, request):
        """Head and body of the answer."""
        reader, writer = await self.connect(client)
        try:
            writer.write(request)
            head = (await asyncio.wait_for(reader.readuntil(b"\r\n\r\n"), 30)).decode("latin-1")
            body = await asyncio.wait_for(reader.readexactly(int(re.search(r"Content-Length: (\d+)", head)[1])), 30)
            return head, body
        finally:
            writer.close()


def questions():
    """Each kind that the application asks: the bytes, the code that must come, how the body must begin."""
    lines = (PROJECT / "data/cities.wet").read_text("latin-1").splitlines()[1:]
    cities = [line.split(";")[2] for line in lines if line.count(";") >= 2][::6]
    return cities, [
        lambda i: (question("110", ""), "1005", b"AED_"),
        lambda i: (question(f"111&c='{cities[i % len(cities)]}'"), "1005", b"weather_1#"),
        lambda i: (question("115&cnid="), "1005", b"<"),
        lambda i: (question("110", ""), "1005", b"AED_"),
        lambda i: (question(f"111&c='{cities[i % 5]}'"), "1005", b"weather_1#"),
        lambda i: (question("111&c='atlantis'"), "1006", b"weather_1#"),
        lambda i: (question("112"), "1001", b""),
    ]


async def crowd(feedd, clients, requests):
    """Asks with all clients at once; prints the table and returns what went wrong."""
    kinds = questions()[1]
    numbers, faults, resident, begun = iter(range(requests)), [], {}, time.monotonic()
    latencies = {"rates and news": [], "weather, fetched first": []}

    async def client(which):
        for i in numbers:
            request, code, beginning = kinds[i % len(kinds)](i)
            started = time.monotonic()
            try:
                head, body = await feedd.ask(which, request)
                if f"ServerMSG: {code}\r\n" not in head or not body.startswith(beginning):
                    faults.append(f"request {i}: {head} {body[:60]}")
            except Exception as error:
                faults.append(f"request {i}: {error!r}")
            latencies["weather, fetched first" if b"jc=111" in request else "rates and news"].append(
                1000 * (time.monotonic() - started))
            done = sum(map(len, latencies.values()))
            if done in (1000, 2000, 5000) or done % 10_000 == 0:
                resident[done] = feedd.resident()

    await asyncio.gather(*(client(i) for i in range(clients)))
    print(f"{clients} clients, {requests} requests, {len(faults)} failed, {requests / (time.monotonic() - begun):.0f} "
          "requests/s\n\n| questions | requests | p50 ms | p99 ms | longest ms |\n|---|--:|--:|--:|--:|")
    for name, times in latencies.items():
        times.sort()
        at = [times[min(len(times) - 1, int(len(times) * part))] for part in (0.5, 0.99, 1)]
        print(f"| {name} | {len(times)} | " + " | ".join(f"{each:.1f}" for each in at) + " |")
    if resident:
        print("\n| after requests |" + "".join(f" {count} |" for count in resident) + "\n|---|" + "--:|" * len(resident))
        print("| resident KiB |" + "".join(f" {size} |" for size in resident.values()) + "\n")
        if max(resident.values()) > resident.get(1000, 0) + 3072:
            faults.append("the memory grows")
    return faults


async def trickle(writer, piece, pause):
    while True:
        writer.write(piece)
        await writer.drain()
        await asyncio.sleep(pause)


async def hostile(feedd, client, first, piece=b"", pause=1.0, close_half=False, unread=False, patience=400):
    """Seconds until the server drops the client, and the first line that it said, unless all of it is left unread."""
    started = time.monotonic()
    said, sender = b"", None
    try:
        reader, writer = await feedd.connect(client)
    except OSError:
        return time.monotonic() - started, "not let in"
    try:
        writer.write(first)
        if close_half:
            writer.write_eof()
        if unread:
            reader._transport.pause_reading()
        if piece:
            sender = asyncio.create_task(trickle(writer, piece, pause))
        async with asyncio.timeout(patience):
            if unread:
                await sender
            while block := await reader.read(65536):
                said = (said + block)[:100]
        end = said.split(b"\r\n")[0].decode("latin-1")
    except TimeoutError:
        end = "STILL CONNECTED"
    except OSError:
        end = said.split(b"\r\n")[0].decode("latin-1")
    finally:
        if sender:
            sender.cancel()
            await asyncio.gather(sender, return_exceptions=True)
        writer.close()
    return time.monotonic() - started, end or "nothing"


def attacks(many):
    """Name, how many connections, seconds that they may last, and what each sends."""
    endless = "POST /feed HTTP/1.1\r\nHost: a\r\nTransfer-Encoding: chunked\r\n\r\n".encode()
    return [
        ("one header byte a second", many, 40, dict(first=HEAD.encode(), piece=b"x")),
        ("one header line a second", 8, 40, dict(first=HEAD.encode(), piece=b"X: y\r\n")),
        ("one body byte a second", 8, 40, dict(first=post("", 9000), piece=b"x")),
        ("says nothing", 8, 15, dict(first=b"")),
        ("half a header, then silence", 8, 15, dict(first=HEAD.encode())),
        ("headers without end", 8, 5, dict(first=HEAD.encode(), piece=b"X: " + b"y" * 8000, pause=0)),
        ("a header of 1 MB", 8, 5, dict(first=HEAD.encode() + b"X: " + b"y" * 1_000_000)),
        ("a body of 1 MB", 8, 15, dict(first=post("x" * 1_000_000))),
        ("a body without end, announced", 8, 5, dict(first=post("", 10**15), piece=b"x" * 8000, pause=0)),
        ("a body without end, in chunks", 8, 5, dict(first=endless, piece=b"1000\r\n" + b"x" * 4096 + b"\r\n", pause=0)),
        ("questions without end, answers unread", 8, 400,
         dict(first=b"", piece=question("115&cnid=") * 20, pause=0, unread=True)),
        ("no HTTP", 8, 15, dict(first=bytes(range(256)) * 8 + b"\r\n\r\n")),
        ("closes its half within a header", 8, 15, dict(first=HEAD.encode(), close_half=True)),
        ("closes its half after a whole question", 8, 15, dict(first=question("110", ""), close_half=True)),
        ("closes its half within a body", 8, 15, dict(first=post("", 900), close_half=True)),
    ]


async def siege(feedd, many):
    """All hostile clients at once while an ordinary one asks on; returns what went wrong."""
    faults, pulse, base = [], [], 1000

    async def ordinary():
        while True:
            started = time.monotonic()
            head, _ = await feedd.ask(0, question("110", ""))
            pulse.append(time.monotonic() - started)
            if "ServerMSG: 1005" not in head:
                faults.append("an ordinary request failed: " + head)
            await asyncio.sleep(0.05)

    heart, rows = asyncio.create_task(ordinary()), []
    for name, count, limit, attack in attacks(many):
        rows.append((name, count, limit, asyncio.gather(*(hostile(feedd, base + i, **attack) for i in range(count)))))
        base += count
    rows.append(("64 silent ones from one address", 64, 15,
                 asyncio.gather(*(hostile(feedd, 50, b"") for _ in range(64)))))
    print("| hostile client | connections | dropped after s | what it was told |\n|---|--:|--:|---|")
    for name, count, limit, attack in rows:
        ends = await attack
        times, told = [end[0] for end in ends], collections.Counter(end[1] for end in ends)
        print(f"| {name} | {count} | {min(times):.1f} to {max(times):.1f} |",
              ", ".join(f"{what} ({n})" for what, n in told.most_common()), "|", flush=True)
        if max(times) > limit or "STILL CONNECTED" in told:
            faults.append(f"{name}: held for {max(times):.0f} s")
    heart.cancel()
    pulse.sort()
    print(f"\nMeanwhile {len(pulse)} ordinary requests: p50 {1000 * pulse[len(pulse) // 2]:.1f} ms, "
          f"longest {1000 * pulse[-1]:.1f} ms.")
    if pulse[-1] > 2:
        faults.append("ordinary requests had to wait")
    return faults


async def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--requests", type=int, default=10_000)
    parser.add_argument("--clients", type=int, default=64)
    parser.add_argument("--no-siege", action="store_true", help="only the ordinary clients")
    arguments = parser.parse_args()
    program = os.environ.get("FEEDD_BIN", PROJECT / "build/release/bin/roamlytix-feedd")
    with tempfile.TemporaryDirectory() as folder:
        feedd = Feedd(program, folder)
        await feedd.start()
        await feedd.ask(0, question("110", ""))
        await asyncio.sleep(0.2)
        before = feedd.holdings()
        faults = await crowd(feedd, arguments.clients, arguments.requests)
        if not arguments.no_siege:
            faults += await siege(feedd, 64)
            print(f"Resident afterwards: {feedd.resident()} KiB.")
        for _ in range(50):
            if (after := feedd.holdings()) == before:
                break
            await asyncio.sleep(0.1)
        print(f"Descriptors and threads before: {before}, after: {after}.")
        if after != before:
            faults.append("descriptors or threads are left over")
        await feedd.stop()
    sys.exit("\n".join(faults[:20]) if faults else 0)


if __name__ == "__main__":
    asyncio.run(main())
