#!/usr/bin/python3
"""Exchange files of known verdict, any number: dateien.py FOLDER NUMBER [SEED]

Both kinds, most of 3 to 70 KB, a third faulty. Each is the clean sample of its kind, grown by elements (records B3), with
one fault or none; what its protocol must hold is worked out from the fault. File I of a seed is always the same, so that
a check knows what to expect without a list.
"""
import os
import pathlib
import random
import sys
from collections import namedtuple

QUELLE = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(QUELLE / "tests/codes"))
from rahmen import satz  # noqa: E402

ZEICHENSATZ = {"01S": "cp850", "E1S": "utf-8"}
JE_ORDNER = 500
MEISTE = 12000  # elements of the largest file

# Name of the fault, how often of a hundred, then what the protocol says: its findings by code.
FEHLER = [
    ("sauber", 62, {}),
    ("ausserhalb", 5, {2032: 1}),  # a warning: no error
    ("tab", 10, {2031: 1}),
    ("drei tabs", 4, {2031: 3}),
    ("kapitel", 9, {6101: 1}),  # chapter 188 stands in no catalogue and is nobody's own
    ("doppelt", 6, {2021: 1}),  # two elements of one key: the content is not tested
    ("ordnung", 4, {2022: 1}),  # an element behind the furnishing types: likewise
]
WARNUNGEN = {2032}

# What a name can hold; the number of the file goes into the braces.
NAMEN = [b"Los %d", b"zwei\nZeilen %d", b'"%d"', b'in"mitten %d', b'a b"c d %d', b"*%d", b"%d?", b"- %d", b"-%d",
         b"\xff\xfe %d", "Türen %d".encode(), b"$(%d)", b"'%d", b"\\%d", b" %d ", b"a=b %d", b"\t%d", b".%d"]

Plan = namedtuple("Plan", "name art fehler codes elemente")


def element(art, i):
    zeichen = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ"
    code = "Q" + "".join(zeichen[i // 36**k % 36] for k in (3, 2, 1, 0))
    return (satz("B3", {2: "003", 87: code, 93: "Wand für Übungen"}) + "\r\n").encode(ZEICHENSATZ[art])


class Vorrat:
    """The parts that the files of one kind are made of, as bytes."""

    def __init__(self, art):
        zeilen = (QUELLE / f"samples/sauber.{art}").read_bytes().split(b"\r\n")[:-1]
        schnitt = next(i for i, z in enumerate(zeilen) if z.startswith(b"B004"))
        self.art = art
        self.vorne, self.hinten, self.schluss = zeilen[:schnitt], zeilen[schnitt:-1], zeilen[-1]
        self.elemente = b"".join(element(art, i) for i in range(MEISTE))
        self.laenge = len(element(art, 0))

    def datei(self, fehler, elemente):
        vorne, hinten = [*self.vorne], [*self.hinten]
        weiteres = element(self.art, MEISTE + 1)[:-2]
        mitten = self.elemente[:elemente * self.laenge]
        g = next(i for i, z in enumerate(hinten) if z.startswith(b"G241"))
        if fehler == "ausserhalb":
            stelle = next(i for i, z in enumerate(vorne) if z.startswith(b"B002"))
            vorne[stelle] = vorne[stelle].ljust(199) + b"xx"
        elif fehler in ("tab", "drei tabs"):
            hinten.insert(0, weiteres.replace(b"Wand", b"\t" if fehler == "tab" else b"\t\t\t"))
        elif fehler == "kapitel":
            hinten.insert(g, satz("G1", {2: "188", 6: "20", 93: "Titel"}).encode())
        elif fehler == "doppelt":
            hinten[:0] = [weiteres, weiteres]
        elif fehler == "ordnung":
            hinten.insert(1, weiteres)
        anzahl = len(vorne) + elemente + len(hinten) + 1
        schluss = self.schluss[:45] + b"%013d" % anzahl + self.schluss[58:]
        return b"".join(z + b"\r\n" for z in vorne) + mitten + b"".join(z + b"\r\n" for z in [*hinten, schluss])


def plan(i, seed=451):
    zufall = random.Random(seed * 1000003 + i)
    art = zufall.choice(("01S", "E1S"))
    fehler, _, codes = zufall.choices(FEHLER, [f[1] for f in FEHLER])[0]
    # Most files up to 70 KB, one of a hundred larger; an element has some 110 bytes.
    elemente = int(10 ** zufall.uniform(3.3, 4.0) - 1995) // 13 if zufall.random() < 0.99 else zufall.randrange(1000, 5000)
    vorlage = zufall.choice(NAMEN) if i % 20 == 0 else b"Offerte %d" if i % 3 == 0 else b"Offerte_%d"
    name = b"%03d/" % (i // JE_ORDNER) + vorlage % i + b"." + art.encode()
    return Plan(name, art, fehler, codes, elemente)


def erwartet(p):
    """Verdict, errors, warnings as the table must have them."""
    warnungen = sum(n for code, n in p.codes.items() if code in WARNUNGEN)
    fehler = sum(p.codes.values()) - warnungen
    verdict = "refused" if p.fehler in ("doppelt", "ordnung") else "faulty" if fehler else "clean"
    return verdict, fehler, warnungen


def erzeuge(ordner, anzahl, seed=451):
    """Writes the files, those of one folder after the other; gives their size in bytes."""
    ordner = os.fsencode(ordner)
    vorraete = {art: Vorrat(art) for art in ZEICHENSATZ}
    bytes_ = 0
    for i in range(anzahl):
        p = plan(i, seed)
        pfad = os.path.join(ordner, p.name)
        if i % JE_ORDNER == 0:
            os.makedirs(os.path.dirname(pfad), exist_ok=True)
        inhalt = vorraete[p.art].datei(p.fehler, p.elemente)
        bytes_ += len(inhalt)
        with open(pfad, "wb") as datei:
            datei.write(inhalt)
    return bytes_


if __name__ == "__main__":
    if len(sys.argv) < 3 or "--help" in sys.argv:
        sys.exit(__doc__)
    groesse = erzeuge(sys.argv[1], int(sys.argv[2]), int(sys.argv[3]) if len(sys.argv) > 3 else 451)
    print(f"{sys.argv[2]} files, {groesse / 1e6:.1f} MB")
