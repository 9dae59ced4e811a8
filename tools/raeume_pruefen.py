#!/usr/bin/env python3
"""Checks that the rooms of src/ only look down: a room includes nothing of a room below it in src/CMakeLists.txt, which
names them ground first. Prints each include that runs up; exit status 1 when there is one."""
import argparse
import pathlib
import re
import sys


def raeume(quelle):
    """The rooms in their order, ground first."""
    text = (quelle / "CMakeLists.txt").read_text(encoding="utf-8")
    return re.findall(r"^add_subdirectory\((\w+)\)", text, re.MULTILINE)


def includes(quelle, raum):
    """(file, line, included path) of each include of the program's own in a room."""
    for datei in sorted((quelle / raum).rglob("*")):
        if datei.suffix not in (".h", ".cpp", ".in"):
            continue
        for nummer, zeile in enumerate(datei.read_text(encoding="utf-8").splitlines(), 1):
            treffer = re.match(r'\s*#\s*include\s+"([^"]+)"', zeile)
            if treffer:
                yield datei, nummer, treffer[1]


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("quelle", nargs="?", type=pathlib.Path, default=pathlib.Path(__file__).parent.parent / "src")
    quelle = parser.parse_args().quelle
    folge = raeume(quelle)
    if not folge:
        sys.exit(f"{quelle}/CMakeLists.txt names no rooms")
    fremde = sorted(p.name for p in quelle.iterdir() if p.is_dir() and p.name not in folge)
    aufwaerts = 0
    gesehen = 0
    for hoehe, raum in enumerate(folge):
        for datei, nummer, pfad in includes(quelle, raum):
            ziel = pfad.split("/")[0]
            gesehen += 1
            if ziel in folge[hoehe + 1 :]:
                print(f"{datei}:{nummer}: {raum} looks up to {pfad}")
                aufwaerts += 1
    for raum in fremde:
        print(f"{quelle / raum}: a folder that src/CMakeLists.txt does not name")
    print(f"{len(folge)} rooms, {gesehen} includes, {aufwaerts} of them up")
    sys.exit(1 if aufwaerts or fremde else 0)


if __name__ == "__main__":
    main()
