"""Prints the results of the benchmarks in a folder as a Markdown table. Called by bench_parts.sh."""

import json
import pathlib
import sys

NANOSECONDS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}


def fastest(folder):
    """Name of a benchmark -> nanoseconds."""
    times = {}
    for file in pathlib.Path(folder).iterdir():
        for run in json.loads(file.read_text())["benchmarks"]:
            if run["run_type"] == "iteration":
                time = run["real_time"] * NANOSECONDS[run["time_unit"]]
                times[run["name"]] = min(time, times.get(run["name"], time))
    return times


def shown(nanoseconds):
    for unit, size in (("s", 1e9), ("ms", 1e6), ("µs", 1e3)):
        if nanoseconds >= size:
            return f"{nanoseconds / size:.3g} {unit}"
    return f"{nanoseconds:.3g} ns"


def rows():
    """(what, our benchmark, what stands beside it, its benchmark)"""
    for width in (240, 1024, 4096):
        for season, name in enumerate(("June", "equinox")):
            tail = f"/width:{width}/season:{season}"
            yield (f"night shadow, {width}x{width // 2}, {name}", "BM_ShadeNight" + tail,
                   "ANDing the same pixels", "BM_AndNightPixels" + tail)
    yield "sunrise and sunset of a day", "OurRiseSet", "libnova", "LibnovaRiseSet"
    yield "apparent place of the Sun", "OurPosition", "libnova", "LibnovaPosition"
    for count in (1200, 150000):
        yield (f"build of {count:,} cities, list included", f"BuildCities/{count}/manual_time",
               "SQLite's insert alone", f"PlainBuild/floor/{count}/manual_time")
        yield (f"build of {count:,} cities, list included", f"BuildCities/{count}/manual_time",
               "SQLite with four indexes", f"PlainBuild/four_indexes/{count}/manual_time")
        yield f"reading the list of {count:,} alone", f"ReadCityList/{count}", "", ""
        yield f"first city of an opened handle, of {count:,}", f"FirstCity/{count}", "", ""
        yield (f"city by index, of {count:,}", f"CityByIndex/{count}",
               "SQLite by row number", f"PlainCity/floor/{count}")
        yield (f"city by index, of {count:,}", f"CityByIndex/{count}",
               "SQLite by offset", f"PlainCity/by_offset/{count}")
        yield f"seek by position, of {count:,}", f"SeekPosition/{count}", "", ""
        yield f"first search of {count:,} cities", f"FirstFind/{count}", "", ""
        yield f"next search of {count:,} cities", f"NextFind/{count}", "", ""
    yield "conversion and its text", "ConvertAndShow", "strtod and printf", "PlainConvertAndShow"
    real = "/iterations:2000/real_time"
    yield "feed request on loopback, new connection", "PostFeedRequest" + real, "libcurl alone", "PlainCurl" + real
    yield "decoding the map picture, 480x240", "LoadMap", "", ""
    yield "scaling it to 4096x2048", "ScaleMap", "copying 4096x2048", "CopyMap"
    yield "PNG of 4096x2048", "SavePng", "zlib alone, quickest level, no filter", "DeflateAlone"


def main():
    times = fastest(sys.argv[1])
    print("| part | time | beside it | time | ratio |\n|---|---:|---|---:|---:|")
    for what, ours, beside, theirs in rows():
        if theirs:
            print(f"| {what} | {shown(times[ours])} | {beside} | {shown(times[theirs])} "
                  f"| {times[ours] / times[theirs]:.2g} |")
        else:
            print(f"| {what} | {shown(times[ours])} | | | |")


main()
