#!/usr/bin/env python3
"""What `rlx` answers, seen from outside: members, messages, exit statuses, files."""

import json
import subprocess
import unittest

from rlx_program import NOW, RLX, RlxTest

NO_FILE = "Cities file not found\nDatabase not created!"
KATHMANDU = ";Kathmandu;Nepal;85.32;27.71;545;0;0;0;0;0\n"
LONDON = ";London;United Kingdom;-0.1257;51.5085;0;1;88;1;298;2\n"
WORLD_CLOCK = "Roamlytix\\wrldclk"
DEFAULTS = {"clock": 0, "clock1": 684, "clock2": 756, "clock3": 565, "clock4": 988, "syncltz": 0}


def listed(*lines):
    return f"{len(lines)}\n" + "".join(lines)


class Clocks(RlxTest):
    def test_new_device(self):
        self.cities(listed("x" + LONDON, "x" + KATHMANDU))
        answer = self.answer("clocks")
        self.assertEqual(list(answer), ["syncltz", "reference", "clocks"])
        self.assertEqual([answer["syncltz"], answer["reference"]], [0, {"hours": 5, "minutes": 45}])
        self.assertEqual([(c["slot"], c["cityIndex"]) for c in answer["clocks"]],
                         [("home", 0), ("1", 684), ("2", 756), ("3", 565), ("4", 988)])
        home = {"slot": "home", "cityIndex": 0, "name": "Kathmandu", "country": "Nepal", "gmt": 545, "effectiveGmt": 545,
                "dst": False, "time": "23:30:07", "date": "10/07/2026    Fri"}
        self.assertEqual(answer["clocks"][0], home)
        self.assertEqual(list(answer["clocks"][4].values()), ["4", 988, "", "", 0, 0, False, "17:45:07", "10/07 Fri"])
        values = self.answer("settings", "list")["values"]
        self.assertEqual(values, [{"key": WORLD_CLOCK, "name": name, "type": "dword", "value": value}
                                  for name, value in DEFAULTS.items()])

    def test_missing_file_is_told(self):
        done = self.run_rlx("city", "list")
        self.assertEqual((done.returncode, done.stdout, done.stderr.decode()), (0, b"", f"[Error!] {NO_FILE}\n"))
        self.answer("city", "rebuild", status=1, messages=[NO_FILE])


class Times(RlxTest):
    def test_members(self):
        self.cities(listed("x" + KATHMANDU, "x" + LONDON))
        self.answer("settings", "set", WORLD_CLOCK, "syncltz", "--dword", "1")  # the zone, whatever the home city
        answer = self.answer("time", "London", now="2026-07-10T12:00:00", bias=-330)
        self.assertEqual(answer, {"time": "08:30:00", "date": "10/07 Fri", "dateLong": "10/07/2026    Fri", "day": 10,
                                  "month": 7, "year": 2026, "effectiveGmt": 1, "dst": True,
                                  "reference": {"hours": 5, "minutes": -30}})


class Cities(RlxTest):
    def test_members_and_information(self):
        self.cities(listed("x" + LONDON, "x;A:b;C;1;2;5;0;0;0;0;0\n"))
        self.assertEqual(self.answer("city", "show", "london", now="2026-07-10T12:00:00"), {
            "cityIndex": 1, "place": "London:United Kingdom", "name": "London", "country": "United Kingdom",
            "longitude": "-0.1257", "latitude": "51.5085", "gmt": "0", "dstRule": "1:88:1:298:2",
            "info": "City: London\nCountry: United Kingdom\nLong: -0.1257 Lat: 51.5085\nDaylight saving: Observing now\n"
                    "DST start/end: 29/3/2026 - 25/10/2026\nGmt: 0h + 1h (DST)"})
        self.assertEqual(self.answer("city", "show", "0")["country"], "b:C")

    def test_choosing_a_city(self):
        names = ["San A", "san B", "SAN C"] + [f"San {i:02}" for i in range(9)] + ["Zürich", "42nd Street"]
        self.cities(listed(*(f"x;{name};L;1;2;0;0;0;0;0;0\n" for name in names)))
        order = sorted(names)
        first_ten = "".join(f"\n{order.index(n)} {n}:L" for n in sorted(n for n in names if n[:3].lower() == "san")[:10])
        rows = (("zÜRICH", "Zürich", None), ("zü", "Zürich", None), ("0", order[0], None), ("+3", order[3], None),
                ("san b", "san B", None), ("42nd", "42nd Street", None),
                ("San", None, '12 cities begin with "San". Name one by its number:' + first_ten),
                ("42", None, 'There is no city "42".'), ("4294967296", None, 'There is no city "4294967296".'),
                (b"\xff\xfeX", None, 'There is no city "\ufffd\ufffdX".'))
        for word, name, message in rows:
            with self.subTest(word[:20]):
                if name is None:
                    self.assertEqual(self.answer("time", word, status=1, messages=[message]), {})
                else:
                    self.assertEqual(self.answer("city", "show", word)["name"], name)
        found = [{"cityIndex": order.index("san B"), "place": "san B:L"}]
        self.assertEqual(self.answer("city", "find", "SAN b"), {"cities": found})
        self.assertEqual(self.answer("city", "find", "time"), {"cities": []})
        (self.home / "cities.lst").write_text(listed("x" + LONDON))
        self.assertEqual(self.answer("city", "rebuild"), {"count": 1})


class Settings(RlxTest):
    def test_values(self):
        key = "Roamlytix\\it"
        self.assertEqual(self.answer("settings", "get", key, "n"), {"status": -2, "type": None, "value": None})
        rows = (  # name, option, value given, type, value read
            ("a", "--dword", "4294967295", "dword", 4294967295), ("a", "--dword", "010", "dword", 10),
            ("a", "--text", "Zoë 😀\n", "string", "Zoë 😀\n"), ("a", "--text", "", "string", ""),
            ("a", "--text", "--json", "string", "--json"), ("a", "--text", b"\xff", "string", "\ufffd"),
            ("lang", "--binary", "00fF", "binary", "00FF"), ("n" * 20, "--dword", "7", None, None))
        for name, option, given, kind, value in rows:
            with self.subTest(name=name, given=given):
                self.assertEqual(self.answer("settings", "set", key, name, option, given), {})
                self.assertEqual(self.answer("settings", "get", key, name),
                                 {"status": 0 if kind else -1, "type": kind, "value": value})
        self.assertEqual(self.answer("settings", "get", key, "none")["status"], -1)
        self.assertEqual(self.answer("settings", "get", "ControlPanel\\Owner", "Owner")["status"], -2)


class Usage(RlxTest):
    def test_wrong_words(self):
        rows = (("bogus", "bogus"), ("clocks --nosuch", "--nosuch"), ("time", "CITY"), ("city bogus", "bogus"),
                ("settings set K n --dword 0x10", "0x10"), ("settings set K n --binary 0", "0"),
                ("settings set K n", "--dword"), ("clocks --now 2026-02-30T00:00:00", "2026-02-30T00:00:00"),
                ("clocks --bias 1.5", "1.5"), ("--yes --no clocks", "--no"))
        for line, wrong in rows:
            with self.subTest(line):
                done = self.run_rlx(*line.split())
                lines = done.stderr.decode().splitlines()
                self.assertEqual((done.returncode, done.stdout, len(lines)), (2, b"", 2))
                self.assertIn(wrong, lines[0])
                self.assertTrue(lines[1].startswith("usage: rlx"), lines[1])
        for line, use in (("sky", "--ut TIME"), ("sun", "CITY [--date DATE]"), ("weather -x", "[CITY] [COMMAND]"),
                          ("today options --rates x", "[--cities NUMBER] [--rates on|off]")):
            self.assertIn(f"{use} (rlx", self.run_rlx(*line.split()).stderr.decode())
        done = self.run_rlx("clocks", "--now", b"\xff", "--json")
        self.assertEqual((done.returncode, json.loads(done.stdout)["messages"]), (2, []))
        self.assertEqual(list(self.folder.iterdir()), [self.home])

    def test_places_of_options(self):
        self.cities(listed("x" + LONDON))
        self.home.rename(self.folder / "city")  # named like a command
        words = "--home city time 0 --store=device.db --now 2020-01-01T00:00:00 --json --now".split()
        done = subprocess.run([RLX, *words, NOW], cwd=self.folder, capture_output=True, timeout=60)
        self.assertEqual(json.loads(done.stdout)["time"], "23:30:07")


class Surroundings(RlxTest):
    def test_starts_without_a_screen(self):
        listed = subprocess.run(["ldd", RLX], capture_output=True, text=True, check=True).stdout  # of libraries too
        self.assertIn("libc.so", listed)
        self.assertNotRegex(listed.lower(), "qt|libx11|not found")

    def test_two_processes_build_one_database(self):
        self.cities(listed(*(f"x;City {i:04};Land;1;2;0;0;0;0;0;0\n" for i in range(2000))))
        running = [subprocess.Popen(self.words("city", "list", "--json"), stdout=subprocess.PIPE) for _ in range(3)]
        answers = [json.loads(process.communicate(timeout=60)[0]) for process in running]
        self.assertEqual([(len(a["cities"]), a["messages"]) for a in answers], [(2000, [])] * 3)

    def test_damaged_store_is_kept_aside_and_told_once(self):
        self.cities(listed("x" + LONDON))
        self.store.write_bytes(b"not a store")
        aside = self.folder / "device-2026-07-10-233007.db.damaged"
        told = f'Your settings could not be read. They were kept as "{aside}" and new settings were made.'
        self.answer("clocks", messages=[told])
        self.assertEqual(aside.read_bytes(), b"not a store")
        self.answer("clocks")

    def test_folders(self):
        self.store = self.folder / "new" / "folder" / "device.db"
        self.home = self.folder / "nowhere"
        no_folder = f'The folder "{self.home}" cannot be used for the data files.'
        self.assertEqual(self.answer("city", "list", messages=[no_folder, NO_FILE]), {"cities": []})
        self.assertTrue(self.store.is_file())

    def test_closed_and_full_streams(self):
        self.cities(listed("x" + LONDON))
        for streams, status in (("<&-", 0), (">&-", 1), ("2>&-", 0), ("<&- 2>&-", 0), (">/dev/full", 1)):
            with self.subTest(streams):
                done = subprocess.run(["sh", "-c", f'"$@" {streams}', "sh", *self.words("clocks")], capture_output=True)
                self.assertEqual((done.returncode, done.stdout == b""), (status, status == 1))


if __name__ == "__main__":
    unittest.main()
