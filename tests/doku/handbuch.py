#!/usr/bin/env python3
"""The man pages are clean, and say the same of the programs in each language as the programs' own help does.

handbuch.py BUILD-FOLDER
"""
import os
import pathlib
import re
import subprocess
import sys

from doku import QUELLE

BAU = pathlib.Path(sys.argv[1]).resolve()
SEITEN = QUELLE / "packaging/man"
UMGEBUNG = {**os.environ, "LC_ALL": "C.UTF-8", "MANWIDTH": "200"}
GEPRUEFT = 0
FALSCH = 0


def erwarte(name, ist, soll):
    global GEPRUEFT, FALSCH
    GEPRUEFT += 1
    if ist != soll:
        FALSCH += 1
        print(f"FALSE {name}: {ist} instead of {soll}")


def klagen(befehl, *worte):
    """What a tool finds. mandoc counts eight bytes for a letter beyond ASCII, so that it takes lines for too long."""
    lauf = subprocess.run([befehl, *worte], capture_output=True, env=UMGEBUNG, check=False)
    zeilen = (lauf.stdout if befehl == "mandoc" else b"") + lauf.stderr
    return [z for z in zeilen.decode("utf-8").split("\n") if z and "line longer than 80 bytes" not in z]


def gelesen(pfad):
    lauf = subprocess.run(["man", "-E", "UTF-8", "-l", pfad], capture_output=True, env=UMGEBUNG, check=True)
    return re.sub(r".\x08", "", lauf.stdout.decode("utf-8"))


def woerter(text):
    """What the program knows by these names: options, parameters, statuses, codes."""
    return sorted(set(re.findall(r"--[a-z]+|(?<![\w-])-[a-zA-Z]\b|\b[a-z]+=|\b\d{4}\b|\*\d|^ +\d+ ", text, re.M)))


def main():
    for name in sorted({pfad.name for pfad in SEITEN.glob("*/*.1")}):
        seiten = {sprache: SEITEN / sprache / name for sprache in ("de", "fr", "it")}
        for pfad in seiten.values():
            erwarte(f"{pfad}: mandoc", klagen("mandoc", "-T", "lint", pfad), [])
            erwarte(f"{pfad}: man", klagen("man", "--warnings", "-E", "UTF-8", "-l", pfad), [])
        texte = {sprache: gelesen(pfad) for sprache, pfad in seiten.items()}
        for sprache in ("fr", "it"):
            erwarte(f"{name} {sprache}", woerter(texte[sprache]), woerter(texte["de"]))
        if name == "zepholt-bericht.1":
            for sprache, text in texte.items():
                hilfe = subprocess.run([BAU / "zepholt-bericht", "--help", "-l", sprache], capture_output=True, check=True).stdout.decode()
                for zeile in re.findall(r"^  (?:zepholt-bericht \w+|-\w, --\w+)", hilfe, re.M):
                    wort = re.sub(r"^ +(zepholt-bericht )?", "", zeile)
                    erwarte(f"{name} {sprache} tells '{wort}'", bool(re.search(rf"^ +{re.escape(wort)}\b", text, re.M)), True)
    print(f"{GEPRUEFT - FALSCH} right, {FALSCH} false")
    return 1 if FALSCH else 0


if __name__ == "__main__":
    sys.exit(main())
