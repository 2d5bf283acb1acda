#!/usr/bin/env python3
"""Checks every #include under src/ against docs/layers.txt.

usage: check_layers.py PROJECT_ROOT
Exit status 0 when all includes run in an allowed direction, 1 with one line for each that does not.
"""
import pathlib
import re
import sys

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^">]+)[">]')

# Headers that only some rooms may use: tag in layers.txt -> pattern of the header's name.
RESTRICTED = {
    "qt": re.compile(r"^(Q[A-Z]\w*|Qt\w+/.*)$"),
    "sqlite3": re.compile(r"^sqlite3"),
    "curl": re.compile(r"^curl/"),
    "cctz": re.compile(r"^cctz/"),
    "png": re.compile(r"^(png|zlib)\.h$"),
    "jpeg": re.compile(r"^jpeglib\.h$"),
    "json": re.compile(r"^nlohmann/"),
    "xml": re.compile(r"^pugixml"),
    "cli11": re.compile(r"^CLI/"),
    "microhttpd": re.compile(r"^microhttpd"),
    "posix": re.compile(r"^(unistd\.h|fcntl\.h|sys/.*|dirent\.h|ifaddrs\.h|net/.*|netdb\.h|arpa/.*|netinet/.*|dlfcn\.h|time\.h|signal\.h|poll\.h|termios\.h|pwd\.h)$"),
}


def read_rules(path):
    rules = {}
    for line in path.read_text().splitlines():
        line = line.split("#")[0].strip()
        if line:
            folder, allowed = line.split(":")
            rules[folder.strip()] = allowed.split()
    return rules


def may_include(rules, folder, target):
    if folder == target or "*" in rules[folder]:
        return True
    return any(target == a or (a.endswith("/") and target.startswith(a)) for a in rules[folder])


def faults_of(file, folder, rules):
    for number, line in enumerate(file.read_text().splitlines(), 1):
        match = INCLUDE.match(line)
        if not match:
            continue
        quote, header = match.groups()
        if quote == '"' and "/" in header:
            target = str(pathlib.PurePosixPath(header).parent)
            if target in rules and not may_include(rules, folder, target):
                yield f"{file}:{number}: {folder} must not include {header}"
            elif target not in rules:
                yield f"{file}:{number}: {header} lies in a folder that docs/layers.txt does not name"
            continue
        for tag, pattern in RESTRICTED.items():
            if pattern.match(header) and "!" + tag not in rules[folder]:
                yield f"{file}:{number}: {folder} must not use {header}"


def main(root):
    rules = read_rules(root / "docs" / "layers.txt")
    faults, files = [], 0
    for file in sorted((root / "src").rglob("*")):
        if file.suffix not in (".h", ".cpp"):
            continue
        files += 1
        folder = str(file.parent.relative_to(root / "src"))
        if folder not in rules:
            faults.append(f"{file}: docs/layers.txt does not name the folder {folder}")
            continue
        faults += faults_of(file, folder, rules)
    for fault in faults:
        print(fault)
    print(f"{files} files, {len(faults)} includes against the direction")
    return 1 if faults or files == 0 else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1]).resolve()))
