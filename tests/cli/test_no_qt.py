#!/usr/bin/env python3
"""`rlx` must start in milliseconds and on machines without a screen: it loads no Qt, directly or through another library."""

import os
import pathlib
import subprocess
import unittest

PROJECT = pathlib.Path(__file__).resolve().parents[2]
RLX = os.environ.get("RLX_BIN", str(PROJECT / "build/dev/bin/rlx"))


class Libraries(unittest.TestCase):
    def test_no_qt(self):
        # ldd follows the libraries of the libraries.
        listed = subprocess.run(["ldd", RLX], capture_output=True, text=True, check=True).stdout
        names = [line.split()[0] for line in listed.splitlines()]
        self.assertTrue(any(name.startswith("libc.so") for name in names), listed)
        self.assertEqual([name for name in names if "qt" in name.lower() or "libx11" in name.lower()], [])
        self.assertNotIn("not found", listed)


if __name__ == "__main__":
    unittest.main()
