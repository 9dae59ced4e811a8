#!/usr/bin/python3
"""Reads sources with clang-tidy: tidy.py BUILD-FOLDER [PATTERN...]. Without patterns the sources of src, tools and fuzz.

A source that was found right is not read again until it, a header of it, its flags, the checks or clang-tidy itself have
changed; what was right is remembered in ~/.cache/zepholt-tidy (or XDG_CACHE_HOME). The headers are those that the last
build noted, so that the build folder must be up to date.
"""
import concurrent.futures
import functools
import hashlib
import json
import os
import pathlib
import re
import subprocess
import sys

WURZEL = pathlib.Path(__file__).resolve().parents[1]
MUSTER = ("src/*.cpp", "tools/*.cpp", "fuzz/*.cpp")
ANDERE_PLATTFORM = re.compile(r"_windows|_browser|windows/|win32|qt")
# Reserved names are told by clang itself when it builds; here they would cost a fifth of the time.
ZUSATZ = ("--checks=-bugprone-reserved-identifier", "--extra-arg=-Wno-unknown-warning-option")


@functools.cache
def streuwert(pfad):
    return hashlib.sha256(pathlib.Path(pfad).read_bytes()).hexdigest()


def kopfdateien(bau):
    """Of each object file, named as the build names it, all files that it was made from."""
    ausgabe = subprocess.run(["ninja", "-C", bau, "-t", "deps"], check=True, capture_output=True, text=True).stdout
    dateien = {}
    for zeile in ausgabe.splitlines():
        if zeile.startswith(" "):
            dateien[objekt].append(os.path.join(bau, zeile.strip()))
        elif zeile:
            objekt = zeile.split(":")[0]
            dateien[objekt] = []
    return dateien


def merkmal(eintrag, dateien, fassung):
    """Names all that the verdict on a source depends on; nothing when its headers are not known."""
    if not dateien:
        return None
    pruefung = hashlib.sha256(fassung)
    pruefung.update(eintrag["command"].replace(str(WURZEL), "").encode())
    for ordner in pathlib.Path(eintrag["file"]).parents:
        if (ordner / ".clang-tidy").exists():
            pruefung.update(streuwert(ordner / ".clang-tidy").encode())
    for datei in dateien:
        pruefung.update(streuwert(datei).encode())
    return pruefung.hexdigest()


def lies(bau, quelle):
    lauf = subprocess.run(["clang-tidy", "-p", bau, "--quiet", *ZUSATZ, quelle], stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL, text=True)
    print(lauf.stdout, end="", flush=True)
    return lauf.returncode == 0 and not lauf.stdout.strip()


def main():
    if len(sys.argv) < 2 or "--help" in sys.argv:
        sys.exit(__doc__)
    bau = os.path.abspath(sys.argv[1])
    namen = subprocess.run(["git", "ls-files", *(sys.argv[2:] or MUSTER)], cwd=WURZEL, check=True, capture_output=True,
                           text=True).stdout.split()
    quellen = {str(WURZEL / name) for name in namen if not ANDERE_PLATTFORM.search(name)}
    fassung = subprocess.run(["clang-tidy", "--version"], check=True, capture_output=True).stdout + repr(ZUSATZ).encode()
    ablage = pathlib.Path(os.environ.get("XDG_CACHE_HOME", pathlib.Path.home() / ".cache")) / "zepholt-tidy"
    ablage.mkdir(parents=True, exist_ok=True)
    dateien = kopfdateien(bau)
    with open(os.path.join(bau, "compile_commands.json"), encoding="utf-8") as datei:
        befehle = {e["file"]: e for e in json.load(datei)}
    offen = {}
    for quelle in sorted(quellen):
        objekt = re.search(r" -o (\S+)", befehle[quelle]["command"])[1] if quelle in befehle else ""
        schluessel = merkmal(befehle[quelle], dateien.get(objekt), fassung) if objekt else None
        if schluessel is None or not (ablage / schluessel).exists():
            offen[quelle] = schluessel
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        urteile = dict(zip(offen, pool.map(lambda quelle: lies(bau, quelle), offen)))
    for quelle, gut in urteile.items():
        if gut and offen[quelle]:
            (ablage / offen[quelle]).touch()
    schlecht = sum(not gut for gut in urteile.values())
    print(f"{len(quellen)} sources, {len(offen)} of them read now, {schlecht} with findings")
    return 1 if schlecht else 0


if __name__ == "__main__":
    sys.exit(main())
