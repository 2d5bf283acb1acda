#!/usr/bin/env python3
"""`roamlytix-feedd` as a service manager and an administrator run it: given sockets, sources on the web, --check."""

import datetime
import http.server
import json
import os
import pathlib
import signal
import socket
import ssl
import subprocess
import tempfile
import threading
import unittest
import urllib.request

SERVER = os.environ["FEEDD_BIN"]
QUESTION = b"inet=a:b&did=x&jc=110&os=wince6.1&gid=1&appver=1&home=Oslo&scrsize=240x320&wasize=240x268"
CODES = "EUR GBP JPY CHF CAD AUD CNY INR MXN BRL TRY THB SEK NOK DKK PLN".split()


def daily_rates():
    today = datetime.date.today().isoformat()
    return json.dumps({"date": today, "usd": {code.lower(): 2.5 for code in CODES}}).encode()


class Source(http.server.BaseHTTPRequestHandler):
    """Answers with the status, content type and bytes that stand under the path."""

    def do_GET(self):
        status, kind, page = self.server.pages[self.path]
        self.send_response(status)
        self.send_header("Content-Type", kind)
        self.send_header("Content-Length", str(len(page)))
        self.end_headers()
        self.wfile.write(page)

    def log_message(self, *_):
        pass


class FeedServer(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        (self.folder / "data" / "news").mkdir(parents=True)
        (self.folder / "data" / "currs.lst").write_text("1\nEUR_Euro_0.5#")
        (self.folder / "data" / "news" / "a.html").write_text("<p>news")

    def serve_sources(self, certificate=None):
        server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Source)
        server.pages = {
            "/good": (200, "application/json", daily_rates()),
            "/error": (500, "application/json", daily_rates()),
            "/login": (200, "text/html", b"<html>Please log in"),
            "/cut": (200, "application/json", daily_rates()[:-9]),
        }
        if certificate:
            context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
            context.load_cert_chain(certificate)
            server.socket = context.wrap_socket(server.socket, server_side=True)
        thread = threading.Thread(target=server.serve_forever, args=(0.01,))
        thread.start()
        self.addCleanup(thread.join)
        self.addCleanup(server.server_close)
        self.addCleanup(server.shutdown)
        return f"{'https' if certificate else 'http'}://127.0.0.1:{server.server_port}"

    def config(self, text):
        file = self.folder / "feeds.json"
        file.write_text(json.dumps(text))
        return str(file)

    def check(self, config, **environment):
        words = [SERVER, "--check", "--data", str(self.folder / "data"), "--config", self.config(config)]
        done = subprocess.run(words, capture_output=True, text=True, timeout=60, env=os.environ | environment)
        return done.returncode, done.stderr

    def check_source(self, url, **environment):
        return self.check({"rates": [{"kind": "daily", "from": url}], "weather": {"kind": "none"}}, **environment)

    def start(self, words, **options):
        """Returns when the server says its port."""
        server = subprocess.Popen(words, stderr=subprocess.PIPE, text=True, **options)
        self.addCleanup(server.stderr.close)
        self.addCleanup(server.wait)
        self.addCleanup(server.send_signal, signal.SIGTERM)
        for line in server.stderr:
            if line.startswith("listening on port "):
                return int(line.split()[-1])
        self.fail("it did not listen")

    def rates_at(self, port):
        question = urllib.request.Request(f"http://127.0.0.1:{port}/feed", QUESTION)
        with urllib.request.urlopen(question, timeout=20) as answer:
            return answer.read().decode()

    def test_takes_the_socket_of_the_service_manager(self):
        given = socket.create_server(("127.0.0.1", 0))
        self.addCleanup(given.close)
        config = self.config({"weather": {"kind": "none"}})
        # The shell becomes the server, so that the process number is right.
        words = ["sh", "-c", 'LISTEN_FDS=1 LISTEN_PID=$$ exec "$0" "$@"', SERVER, "--listen", "127.0.0.1:1", "--data",
                 str(self.folder / "data"), "--config", config]
        port = self.start(words, pass_fds=(3,), preexec_fn=lambda: os.dup2(given.fileno(), 3))
        self.assertEqual(port, given.getsockname()[1])
        self.assertEqual(self.rates_at(port), "EUR_0.5#")

    def test_a_socket_for_another_process_is_not_taken(self):
        config = self.config({"weather": {"kind": "none"}})
        words = [SERVER, "--listen", "127.0.0.1:0", "--data", str(self.folder / "data"), "--config", config]
        port = self.start(words, env=os.environ | {"LISTEN_FDS": "1", "LISTEN_PID": "1"})
        self.assertEqual(self.rates_at(port), "EUR_0.5#")

    def test_check_names_the_source_that_cannot_be_used(self):
        web = self.serve_sources()
        rows = [
            ("/good", 0, ""),
            ("/error", 1, "status 500"),
            ("/login", 1, "content type text/html"),
            ("/cut", 1, "JSON"),
        ]
        for path, status, said in rows:
            with self.subTest(path):
                code, words = self.check_source(web + path)
                self.assertEqual((code, said in words), (status, True), words)
                self.assertEqual(web + path in words, status == 1, words)

    def test_https_only_with_a_trusted_certificate(self):
        certificate = self.folder / "certificate.pem"
        subprocess.run(["openssl", "req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1",
                        "-nodes", "-days", "2", "-subj", "/CN=localhost", "-addext", "subjectAltName=IP:127.0.0.1",
                        "-keyout", self.folder / "key.pem", "-out", certificate], check=True, capture_output=True)
        both = self.folder / "both.pem"
        both.write_text((self.folder / "key.pem").read_text() + certificate.read_text())
        web = self.serve_sources(both)
        code, words = self.check_source(web + "/good")
        self.assertEqual((code, "certificate" in words), (1, True), words)
        code, words = self.check_source(web + "/good", SSL_CERT_FILE=str(certificate))
        self.assertEqual(code, 0, words)

    def test_a_broken_configuration_is_refused_with_its_place(self):
        code, words = self.check({"rates": [{"kind": "daily"}]})
        self.assertEqual((code, "rates[0].from is missing" in words), (2, True), words)


if __name__ == "__main__":
    unittest.main()
