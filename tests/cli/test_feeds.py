#!/usr/bin/env python3
"""`rlx feed`, `rates` and `news` against a feed server that answers what a test tells it to."""

import unittest

from rlx_program import FeedTest

CURRENCIES = "3\nEUR_Euro_0.8#JPY_Japanese Yen_160#USD_US Dollar_1#"
CANNOT_UPDATE = "Cannot update.\n\nPlease check your Internet connection."
SYNC_FAILED = "Syncronisation failed"
CONFIRMATION = "The connection <Loopback: Loopback> will be used."


class Feeds(FeedTest):
    def setUp(self):
        super().setUp()
        (self.home / "currs.lst").write_text(CURRENCIES)
        (self.home / "currs.date").write_text("2026-07-01\n")

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
        self.serve(b"EUR_9#")
        rows = [(["--yes", "--offline"], [CANNOT_UPDATE, SYNC_FAILED]),
                (["--no"], [CONFIRMATION, CANNOT_UPDATE, SYNC_FAILED])]
        for options, messages in rows:
            answer = self.answer(*options, "rates", "update", status=1, messages=messages)
            self.assertEqual((self.rates(answer)["EUR"], answer["updated"]), ("0.8", "1/7/2026"))
            self.assertEqual(self.server.requests, [])

    def test_no_address(self):
        (self.home / "adrs.cfg").unlink()
        self.answer("rates", "update", status=1,
                    messages=['The address of the feed server is missing in "adrs.cfg".'])

    def test_convert(self):
        (self.home / "currs.lst").write_text("3\nJPY_Japanese Yen_160#USD_US Dollar_1#XXX_Coin_n/a#")
        answer = self.answer("rates", "convert", "0.01", "japanese yen", "usd")
        self.assertAlmostEqual(answer["result"], 0.0000625)
        self.assertEqual(answer["text"], "0.00006250")
        self.answer("rates", "convert", "1", "usd", "abc", status=1,
                    messages=['No currency has the code or name "abc".'])
        self.assertEqual(self.run_rlx("rates", "convert", "many", "usd", "eur").returncode, 2)
        self.answer("rates", "convert", "1", "usd", "xxx", status=1, messages=["XXX: rate unknown"])

    def test_post(self):
        self.serve(b"caf\xe9\nline")
        answer = self.answer("feed", "post", "--url", self.url, "--parameters", "did=x&jc=115", "--quiet-request")
        self.assertEqual(answer["body"], "café\nline")
        self.assertEqual(self.server.requests[0][0], "inet=Loopback:Loopback&did=x&jc=115")
        self.assertEqual(self.setting("newsid"), "n7")

    def test_parameter_strings(self):
        self.cities("2\nz;Paris;France;2.3;48.9;1;1;88;2;298;3\nz;Parma;Italy;10.3;44.8;1;1;88;2;298;3\n")
        self.answer("settings", "set", "ControlPanel\\Owner", "Owner", "--text", "Ann")
        self.answer("settings", "set", "Roamlytix", "hlname", "--text", "Parma")
        parameters = self.answer("feed", "string", "weather:Pari")["parameters"]
        self.assertTrue(parameters.startswith("did=Ann&jc=111&c='Paris'"), parameters)
        self.assertIn("&home=Parma&scrsize=", parameters)
        self.assertEqual(self.run_rlx("feed", "string", "tides").returncode, 2)

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
