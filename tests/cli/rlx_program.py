"""Runs the real `rlx` in a temporary home and store. RLX_BIN names the program."""

import http.server
import json
import os
import pathlib
import shutil
import subprocess
import tempfile
import threading
import unittest

PROJECT = pathlib.Path(__file__).resolve().parents[2]
RLX = os.environ.get("RLX_BIN", str(PROJECT / "build/dev/bin/rlx"))
NOW = "2026-07-10T23:30:07"


class RlxTest(unittest.TestCase):
    maxDiff = None
    environment = {}  # more of it for the program

    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder, ignore_errors=True)
        self.home, self.store = self.folder / "home", self.folder / "device.db"
        self.home.mkdir()

    def cities(self, text, encoding="latin-1"):
        """Writes "cities.lst" and forgets the database that was built from another one."""
        (self.home / "cities.lst").write_bytes(text if isinstance(text, bytes) else text.encode(encoding))
        for suffix in ("", "-wal", "-shm"):
            pathlib.Path(f"{self.store}{suffix}").unlink(missing_ok=True)

    def words(self, *words, now=NOW, bias=0):
        return [RLX, "--home", self.home, "--store", self.store, "--now", now, "--bias", str(bias), *words]

    def run_rlx(self, *words, **settings):
        return subprocess.run(self.words(*words, **settings), capture_output=True, stdin=subprocess.DEVNULL, timeout=60,
                              env={**os.environ, **self.environment})

    def answer(self, *words, status=0, messages=(), **settings):
        """The JSON members of a command whose exit status and message texts are as expected."""
        done = self.run_rlx("--json", *words, **settings)
        self.assertEqual((done.returncode, done.stderr), (status, b""), (words, done.stdout))
        members = json.loads(done.stdout.decode("utf-8"))
        for box in members["messages"]:
            self.assertEqual(list(box), ["title", "text", "icon", "buttons", "answer"])
        self.assertEqual([box["text"] for box in members.pop("messages")], list(messages))
        return members


class FeedHandler(http.server.BaseHTTPRequestHandler):
    """Gives the server's `answer`: code, page and status."""
    protocol_version = "HTTP/1.1"

    def do_POST(self):
        body = self.rfile.read(int(self.headers["Content-Length"]))
        self.server.requests.append((body.decode("latin-1"), self.headers.get("Cookie")))
        code, page, status = self.server.answer
        self.send_response_only(status)
        for name, value in (("sessionId", "s1."), ("ServerMSG", code), ("Content-Type", "text/plain"), ("newsid", "n7"),
                            ("Content-Length", str(len(page)))):
            self.send_header(name, value)
        self.end_headers()
        self.wfile.write(page)

    def log_message(self, *_):
        pass


class FeedTest(RlxTest):
    """With a feed server that answers what a test tells it to."""

    def setUp(self):
        super().setUp()
        self.server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), FeedHandler)
        self.server.requests = []
        thread = threading.Thread(target=self.server.serve_forever, args=(0.01,))
        thread.start()
        self.addCleanup(thread.join)
        self.addCleanup(self.server.server_close)
        self.addCleanup(self.server.shutdown)
        self.url = f"http://127.0.0.1:{self.server.server_port}/feed"
        (self.home / "adrs.cfg").write_text(self.url + "*ignored")

    def serve(self, page, code="1005", status=200):
        self.server.answer = (code, page, status)
