#!/usr/bin/env python3
"""Draws the rooms of src/ and who looks at whom, from the includes: docs/raeume.svg. The rooms stand on a diagonal in
the order of src/CMakeLists.txt, the ground at its end; a dot says that the room in whose row it stands includes from
the room in whose column it stands. What runs up is red, below the diagonal."""
import argparse
import pathlib
import sys

import raeume_pruefen

BREITE, HOEHE = 104, 34  # of a box
SCHRITT_X, SCHRITT_Y = 112, 50  # from one box to the next
RAND = 14
BLAU, ROT = "#1f3a5f", "#c0392b"
WURZEL = pathlib.Path(__file__).parent.parent


def pfeile(quelle, folge):
    """room -> the other rooms that it includes from, those just below first."""
    gesehen = {}
    for raum in folge:
        ziele = {pfad.split("/")[0] for _, _, pfad in raeume_pruefen.includes(quelle, raum)}
        gesehen[raum] = [z for z in reversed(folge) if z in ziele and z != raum]
    return gesehen


def linie(x1, y1, x2, y2, farbe):
    return f'<line x1="{x1}" y1="{y1}" x2="{x2}" y2="{y2}" stroke="{farbe}" stroke-width="1.5"/>'


def pfeil(i, j, farbe):
    """From the box at place i along its row to the column of place j, and there down, or up, into its box."""
    seite = 1 if j > i else -1
    zeile = RAND + i * SCHRITT_Y + HOEHE // 2
    spalte = RAND + j * SCHRITT_X + BREITE // 2
    anfang = RAND + i * SCHRITT_X + (BREITE if seite > 0 else 0)
    ende = RAND + j * SCHRITT_Y + (0 if seite > 0 else HOEHE)
    spitze = f"{spalte - 5},{ende - 8 * seite} {spalte + 5},{ende - 8 * seite} {spalte},{ende}"
    return [linie(anfang, zeile, spalte, zeile, farbe), linie(spalte, zeile, spalte, ende - 8 * seite, farbe),
            f'<polygon points="{spitze}" fill="{farbe}"/>', f'<circle cx="{spalte}" cy="{zeile}" r="4" fill="{farbe}"/>']


def kasten(i, raum):
    x, y = RAND + i * SCHRITT_X, RAND + i * SCHRITT_Y
    return [f'<rect x="{x}" y="{y}" width="{BREITE}" height="{HOEHE}" rx="5" fill="#eef3f8" stroke="{BLAU}" '
            'stroke-width="1.5"/>',
            f'<text x="{x + BREITE // 2}" y="{y + HOEHE // 2 + 5}" text-anchor="middle">{raum}</text>']


def zeichnung(quelle, folge):
    """The drawing as SVG; the same includes give the same bytes."""
    oben = list(reversed(folge))
    breite = 2 * RAND + (len(oben) - 1) * SCHRITT_X + BREITE
    hoehe = 2 * RAND + (len(oben) - 1) * SCHRITT_Y + HOEHE
    teile = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {breite} {hoehe}" width="{breite}" height="{hoehe}" '
             f'font-family="sans-serif" font-size="15" fill="{BLAU}">', "<title>The rooms of src/</title>",
             f'<rect width="{breite}" height="{hoehe}" fill="white"/>']
    for raum, ziele in pfeile(quelle, folge).items():
        i = oben.index(raum)
        for ziel in ziele:
            j = oben.index(ziel)
            teile += pfeil(i, j, BLAU if j > i else ROT)
    for i, raum in enumerate(oben):
        teile += kasten(i, raum)
    return "\n".join([*teile, "</svg>"]) + "\n"


def liste(quelle, folge):
    """One line for each room, the highest first: what it looks down at, and what it looks up at."""
    zeilen = []
    for raum in reversed(folge):
        ziele = pfeile(quelle, folge)[raum]
        unten = [z for z in ziele if folge.index(z) < folge.index(raum)]
        oben = [z for z in ziele if z not in unten]
        zeilen.append(f"{raum:10} -> {', '.join(unten) or '-'}" + (f"   UP: {', '.join(oben)}" if oben else ""))
    return "\n".join(zeilen) + "\n"


def main():
    eingabe = argparse.ArgumentParser(description=__doc__)
    eingabe.add_argument("--quelle", type=pathlib.Path, default=WURZEL / "src", help="the folder of the rooms")
    eingabe.add_argument("--folge", help="the rooms, ground first, joined by commas, instead of those in CMakeLists.txt")
    eingabe.add_argument("--ausgabe", type=pathlib.Path, default=WURZEL / "docs" / "raeume.svg")
    eingabe.add_argument("--liste", action="store_true", help="print the arrows instead of drawing them")
    eingabe.add_argument("--pruefen", action="store_true", help="only tell whether the drawing is up to date")
    wahl = eingabe.parse_args()
    folge = wahl.folge.split(",") if wahl.folge else raeume_pruefen.raeume(wahl.quelle)
    if wahl.liste:
        print(liste(wahl.quelle, folge), end="")
        return
    neu = zeichnung(wahl.quelle, folge)
    if not wahl.pruefen:
        wahl.ausgabe.write_text(neu, encoding="utf-8")
    elif not wahl.ausgabe.exists() or wahl.ausgabe.read_text(encoding="utf-8") != neu:
        sys.exit(f"{wahl.ausgabe} is not what src/ includes: tools/raeume_zeichnen.py draws it anew")


if __name__ == "__main__":
    main()
