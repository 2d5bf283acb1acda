#!/usr/bin/env python3
"""`rlx feed`, `rates` and `news` against a feed server that answers what a test tells it to."""

import http.server
import socket
import threading
import unittest

from rlx_program import RlxTest

CURRENCIES = "3\nEUR_Euro_0.8#JPY_Japanese Yen_160#USD_US Dollar_1#"
CANNOT_UPDATE = "Cannot update.\n\nPlease check your Internet connection."
SYNC_FAILED = "Syncronisation failed"
CONFIRMATION = "The connection <Loopback: Loopback> will be used."


class Handler(http.server.BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"

    def do_POST(self):
        body = self.rfile.read(int(self.headers["Content-Length"]))
        self.server.requests.append((body.decode("latin-1"), self.headers.get("Cookie")))
        code, page, status = self.server.answer
        self.send_response_only(status)
        self.send_header("sessionId", "s1.")
        self.send_header("ServerMSG", code)
        self.send_header("Content-Type", "text/plain")
        self.send_header("newsid", "n7")
        self.send_header("Content-Length", str(len(page)))
        self.end_headers()
        self.wfile.write(page)

    def log_message(self, *_):
        pass


class Feeds(RlxTest):
    def setUp(self):
        super().setUp()
        self.server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
        self.server.requests, self.server.answer = [], ("1005", b"", 200)
        thread = threading.Thread(target=self.server.serve_forever, args=(0.01,))
        thread.start()
        self.addCleanup(thread.join)
        self.addCleanup(self.server.server_close)
        self.addCleanup(self.server.shutdown)
        self.url = f"http://127.0.0.1:{self.server.server_port}/feed"
        (self.home / "adrs.cfg").write_text(self.url + "*ignored")
        (self.home / "currs.lst").write_text(CURRENCIES)
        (self.home / "currs.date").write_text("2026-07-01\n")

    def serve(self, page, code="1005", status=200):
        self.server.answer = (code, page, status)

    def rates(self, answer):
        return {rate["code"]: rate["rate"] for rate in answer["rates"]}

    def setting(self, name, key="Roamlytix"):
        return self.answer("settings", "get", key, name)["value"]

    def test_rates_before_any_update(self):
        answer = self.answer("rates")
        self.assertEqual(self.rates(answer), {"EUR": "0.8", "JPY": "160", "USD": "1"})
        self.assertEqual((answer["updated"], answer["source"]), ("1/7/2026", ""))
        self.assertIn("supplied with the program. out of date", self.run_rlx("rates").stdout.decode())

    def test_update(self):
        self.serve(b"EUR_0.9#XYZ_5#JPY_150#USD_1")
        answer = self.answer("--yes", "rates", "update", messages=[CONFIRMATION])
        self.assertEqual(self.rates(answer), {"EUR": "0.9", "JPY": "150", "USD": "1"})
        self.assertEqual((answer["updated"], answer["source"]), ("10/7/2026", "127.0.0.1"))
        self.assertTrue(self.server.requests[0][0].startswith("inet=Loopback:Loopback&did=&jc=110&os=wince"))
        self.assertEqual((self.setting("RXSI"), self.setting("newnews")), ("s1", 1))
        self.answer("--yes", "rates", "update", messages=[CONFIRMATION])
        self.assertEqual([cookie for _, cookie in self.server.requests], [None, "JSESSIONID=s1"])

    def test_update_that_fails_keeps_the_rates(self):
        rows = [
            ("offline", "1005", b"EUR_9#", ["--yes", "--offline"], [CANNOT_UPDATE, SYNC_FAILED], 0),
            ("refused by the user", "1005", b"EUR_9#", ["--no"], [CONFIRMATION, CANNOT_UPDATE, SYNC_FAILED], 0),
            ("unknown code", "1234", b"EUR_9#", ["--yes"], [CONFIRMATION, SYNC_FAILED], 1),
            ("nothing newer", "1007", b"", ["--yes"],
             [CONFIRMATION, "There are no Updates available(1007).", SYNC_FAILED], 1),
        ]
        for name, code, page, options, messages, requests in rows:
            with self.subTest(name):
                self.server.requests.clear()
                self.serve(page, code)
                answer = self.answer(*options, "rates", "update", status=1, messages=messages)
                self.assertEqual(self.rates(answer)["EUR"], "0.8")
                self.assertEqual(answer["updated"], "1/7/2026")
                self.assertEqual(len(self.server.requests), requests)

    def test_nobody_listens(self):
        with socket.socket() as free:
            free.bind(("127.0.0.1", 0))
            url = f"http://127.0.0.1:{free.getsockname()[1]}/"
        self.answer("feed", "post", "--url", url, "--parameters", "a=b", "--quiet-request",
                    status=1, messages=[CANNOT_UPDATE])

    def test_no_address(self):
        (self.home / "adrs.cfg").unlink()
        self.answer("rates", "update", status=1,
                    messages=['The address of the feed server is missing in "adrs.cfg".'])

    def test_convert(self):
        rows = [("100", "usd", "EUR", 80, "80.00"), ("8", "Euro", "japanese yen", 1600, "1600.00"),
                ("-1", "JPY", "JPY", -1, "-1.00"), ("0.01", "jpy", "usd", 0.0000625, "0.00006250")]
        for amount, source, target, result, text in rows:
            with self.subTest(amount):
                answer = self.answer("rates", "convert", amount, source, target)
                self.assertAlmostEqual(answer["result"], result)
                self.assertEqual(answer["text"], text)
        self.answer("rates", "convert", "1", "usd", "abc", status=1,
                    messages=['No currency has the code or name "abc".'])
        wrong = self.run_rlx("rates", "convert", "many", "usd", "eur")
        self.assertEqual(wrong.returncode, 2)
        self.assertIn(b'"many" is not an amount', wrong.stderr)

    def test_unknown_rate(self):
        (self.home / "currs.lst").write_text("2\nXXX_Coin_n/a#USD_US Dollar_1#")
        self.answer("rates", "convert", "1", "usd", "xxx", status=1, messages=["XXX: rate unknown"])

    def test_post(self):
        self.serve(b"caf\xe9\nline")
        answer = self.answer("feed", "post", "--url", self.url, "--parameters", "did=x&jc=115", "--quiet-request")
        self.assertEqual(answer["body"], "café\nline")
        self.assertEqual(self.server.requests[0][0], "inet=Loopback:Loopback&did=x&jc=115")
        self.assertEqual(self.setting("newsid"), "n7")

    def test_parameter_strings(self):
        self.cities("2\nz;Paris;France;2.3;48.9;1;1;88;2;298;3\nz;Parma;Italy;10.3;44.8;1;1;88;2;298;3\n")
        (self.home / "cities.wet").write_text("1\nParis:France;paris_fr;\n")
        self.answer("settings", "set", "ControlPanel\\Owner", "Owner", "--text", "Ann")
        self.answer("settings", "set", "Roamlytix", "hlname", "--text", "Parma")
        rows = [("currency", "did=Ann&jc=110&os=wince", "0x0"), ("news", "did=Ann&jc=115&cnid=&os=wince", "&'0'"),
                ("weather:Pari", "did=Ann&jc=111&c='", "&'0'")]
        for kind, begin, end in rows:
            with self.subTest(kind):
                parameters = self.answer("feed", "string", kind)["parameters"]
                self.assertTrue(parameters.startswith(begin), parameters)
                self.assertTrue(parameters.endswith(end), parameters)
                self.assertIn("&home=Parma&scrsize=", parameters)
        self.assertEqual(self.run_rlx("feed", "string", "tides").returncode, 2)
        self.assertEqual(self.run_rlx("feed", "string", "weather:").returncode, 2)

    def test_news(self):
        empty = self.answer("news", "show")
        self.assertEqual(empty["html"], "<HTML><TITLE></TITLE><BODY><P>No news...<BR></BODY></HTML>")
        self.serve(b"<html>one\r\n</html>")
        fetched = self.answer("news", "fetch", messages=["You have News"])
        self.assertEqual(fetched, {"bytes": 18, "newsid": "n7", "newnews": 0, "newsread": 0})
        self.assertEqual((self.home / "news.htm").read_bytes(), b"<html>one\r\n</html>")
        self.assertEqual((self.setting("newsdate"), self.setting("newsfrom")), ("2026-07-10", "127.0.0.1"))
        shown = self.answer("news", "show")
        self.assertEqual(shown, {"html": "<html>one\r\n</html>", "newsid": "n7", "newnews": 0, "newsread": 1})
        self.answer("--offline", "news", "fetch", status=1, messages=[CANNOT_UPDATE])
        self.assertEqual((self.home / "news.htm").read_bytes(), b"<html>one\r\n</html>")


if __name__ == "__main__":
    unittest.main()
