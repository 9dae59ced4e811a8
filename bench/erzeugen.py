#!/usr/bin/env python3
"""Writes large exchange files of known shapes, to measure how a run grows with its file.

    bench/erzeugen.py FORM DATEI N [--falsch]

DATEI ends in .01S or .E1S, which decides the interface. N is the size in the unit of FORM, one of

    dokument          a clean document of all record types, N megabytes
    zeichen           N lines full of characters that are not permitted
    undefiniert       N lines of an undefined record type
    leer              N empty lines
    kapitel           N positions spread over all chapters that there are
    positionen        one chapter with N positions (at most 531441)
    mengen            one position with N quantities, each with other references, and a detail line for each
    laufnummern       N running numbers (at most 999999)
    gliederung        N structure codes, each referred to once
    einschraenkungen  one condition with N restrictions
    konditionen       N conditions
    umlaute           a document of N positions with umlauts in every text
    schriften         the same with more characters than one byte can tell apart (E1S)
    nur_g2 nur_g3 nur_p nur_u
                      N lines of one record type (but for their positions)
    mengen_allein     one position with N quantities, without detail lines
    objekte           N object structures with four position locations each
    objekte_gemischt  N object structures in random order
    gleiche_ordnung   N object structures with the same order number: each two of them are a finding
    doppelte          N lines whose keys differ in one text only, in random order
    dokument_katalog  the document with its catalogue, DATEI.katalog
    katalog           N chapters with a few positions each; DATEI.katalog becomes a folder with their chapter files of
                      about a megabyte

With --falsch every record of the shape is wrong in some way that its test reports.
"""
import argparse
import itertools
import pathlib
import random
import string


def satz(art, felder):
    """A record: fields (column from 1, text) in ascending order; the digit goes to column 42."""
    zeile = art[0]
    for spalte, text in sorted([*felder, (42, art[1:])] if len(art) > 1 else felder):
        zeile = zeile.ljust(spalte - 1) + text
    return zeile


def code(i, breite):
    """The i-th code of letters and digits, `breite` characters wide."""
    zeichen = string.digits + string.ascii_uppercase
    text = ""
    for _ in range(breite):
        i, rest = divmod(i, len(zeichen))
        text = zeichen[rest] + text
    return text


def laufnummer(i):
    """Six digits and their check digit, weights 3, 1, 3, 1, 3, 1 from the right."""
    ziffern = f"{i:06}"
    summe = sum(int(z) * (3 if k % 2 else 1) for k, z in enumerate(ziffern))
    return ziffern + str(-summe % 10)


# Numbers without a 9, so that nothing is a reserve; service positions end in another digit than 0.
KAPITEL = [k for k in range(111, 789) if "9" not in str(k) and str(k)[1] != "0" and str(k)[2] != "0"]
ZIFFERN = "12345678"


class Datei:
    def __init__(self, pfad, falsch):
        self.neu = pfad.endswith(".E1S")
        self.falsch = falsch
        self.pfad = pfad
        self.zeilen = []

    def __call__(self, art, *felder):
        self.zeilen.append(satz(art, list(felder)))

    # --- Records. A wrong one keeps its key, so that the order of the file stays good.

    def kapitel(self, nummer):
        self("G1", (2, f"{nummer:03}"), (6, "17"), (93, "Kapitel"), (138, "\u00fc" if self.falsch else "Text"))

    def titel(self, kapitel, position):
        self.position(kapitel, position)
        self("G3", (2, kapitel), (8, position), (14, "00"), (16, "01"), (93, "Fester Text"))

    def position(self, kapitel, position):
        self("G2", (2, kapitel), (8, position), (43, "x" if self.falsch else " "), (93, "Position in Worten"))

    def preis(self, kapitel, position):
        self("G5", (2, kapitel), (8, position), (59, "zz" if self.falsch else "m2"))

    def menge(self, kapitel, position, *felder, art="A"):
        self("G6", (2, kapitel), (8, position), (44, "x" if self.falsch else art), (45, "+"), (46, "0000000012500"),
             *felder)

    def schreiben(self):
        a = satz("A", [(2, "211126"), (8, "QVMX1721" if self.neu else "451-9211"), (30, "Bauherr"), (42, "1"), (44, "A"),
                       (45, "A"), (63, "000000000001"), (82, "P-1"), (93, "Schulhaus"), (123, "D-1"),
                       (138, "Baumeister"), (168, "Muster AG"), (188, "Bern"), (208, "Ausmass")])
        z = satz("Z", [(2, "211126"), (18, "Ersteller"), (46, f"{len(self.zeilen) + 2:013}"), (62, "-"),
                       (63, "000000000001"), (138, "Baumeister"), (168, "Muster AG"), (188, "Bern")])
        with open(self.pfad, "w", encoding="utf-8" if self.neu else "cp850", newline="") as ziel:
            ziel.writelines(zeile + "\r\n" for zeile in itertools.chain([a], self.zeilen, [z]))


def gliederungen(d, je):
    """`je` codes of cost types and of the object structure, and some of each other kind."""
    d("B0", (2, "001"))
    for i in range(je):
        d("B1", (2, "001"), (82, code(i, 4)), (93, "Kostenart"))
    d("B0", (2, "002"))
    for i in range(je):
        d("B2", (2, "002"), (18, code(i, 4)), (93, "Objekt"))
    d("B0", (2, "003"))
    for i in range(je):
        d("B3", (2, "003"), (59, "m2"), (87, code(i, 4)), (93, "Element"))
    d("B0", (2, "004"))
    for i in range(9):
        d("B4", (2, "004"), (93, "Einrichtung"), (129, code(i, 3)))
    d("B0", (2, "005"))
    for i in range(9):
        d("B5", (2, "005"), (30, code(i, 2)), (93, "Gruppe"), (135, "A"))
    for i in range(9):
        d("B6", (2, "005"), (30, code(i, 2)), (33, "A"), (93, "Variante"))
    if d.neu:
        d("B0", (2, "007"))
        for i in range(9):
            d("B7", (2, "007"), (93, "Nutzung"), (168, code(i, 3)))
        d("B0", (2, "008"))
        for i in range(9):
            d("B8", (2, "008"), (93, "Raum"), (188, code(i, 3)))


def drei_konditionen(d):
    d("C0", (2, "000"), (45, "+"), (46, "0000000100000"))
    for i in range(1, 4):
        d("C1", (2, f"{i:03}"), (5, "1"), (6, f"{i:02}"), (16, "00"), (44, "%"), (75, "+"), (76, "000200"),
          (93, "Rabatt"))
        d("C5", (2, f"{i:03}"), (18, code(i, 4)), (82, code(i, 4)))


def dokument(d, megabytes):
    gliederungen(d, 60)
    drei_konditionen(d)
    nummer = itertools.count(1)
    umfang = 0
    anfang = len(d.zeilen)
    anhang = []
    for kapitel in KAPITEL:
        k = str(kapitel)
        d.kapitel(kapitel)
        for haupt in map("".join, itertools.product(ZIFFERN, repeat=3)):
            if haupt[1:] == "11":
                d.titel(k, haupt[0] + "00000")
            if haupt[2] == "1":
                d.titel(k, haupt[:2] + "0000")
            d.titel(k, haupt + "000")
            for unter in ("101", "102", "103", "111", "112"):
                p = haupt + unter
                d.position(k, p)
                for zeile in ("01", "02", "03"):
                    d("G3", (2, k), (8, p), (14, "00"), (16, zeile), (93, "Liefern und versetzen, gerade"))
                d("G3", (2, k), (8, p), (14, "01"), (16, "01"), (93, "Marke, Typ"))
                d.preis(k, p)
                for _ in range(3):
                    i = next(nummer) % 900000
                    felder = [(18, code(i % 60, 4)), (75, laufnummer(i)), (82, code(i % 59, 4)), (87, code(i % 53, 4))]
                    if d.neu:
                        felder.append((168, code(i % 9, 3)))
                    d.menge(k, p, *felder)
                if d.neu:
                    # Attachments stand behind all items.
                    anhang.append(satz("X4", [(2, k), (8, p), (16, "01"), (93, "bild.png")]))
            umfang += sum(len(zeile) + 2 for zeile in d.zeilen[anfang:])
            anfang = len(d.zeilen)
            if umfang + 110 * len(anhang) >= megabytes * 1_000_000:
                d.zeilen += anhang
                return
    raise SystemExit("more than all chapters hold")


def zeichen(d, n):
    for i in range(n):
        d("G3", (2, "111"), (8, f"{i % 1000000:06}"), (14, code(i // 1000000, 2)), (93, "\t\t\t\t\t\t\t\t"))


def undefiniert(d, n):
    for i in range(n):
        d("G7", (2, "111"), (8, f"{i % 1000000:06}"), (14, code(i // 1000000, 2)))


def leer(d, n):
    d.zeilen += [""] * n


def kapitel(d, n):
    je = max(1, n // len(KAPITEL))
    for nummer in KAPITEL[:n]:
        d.kapitel(nummer)
        for p in positionsnummern(je):
            d.position(str(nummer), p)
            d.preis(str(nummer), p)


def positionsnummern(n):
    """Service positions in ascending order; no titles above them, which only the new interface's reserves ask for."""
    return itertools.islice(map("".join, itertools.product("12345678", "12345678", "12345678", "012345678",
                                                           "012345678", "123456789")), n)


def positionen(d, n):
    d.kapitel(111)
    for p in positionsnummern(n):
        d.position("111", p)
        d.preis("111", p)


def mengen(d, n):
    d("B0", (2, "001"))
    for i in range(n):
        d("B1", (2, "001"), (82, code(i, 5)), (93, "Kostenart"))
    d.kapitel(111)
    d.position("111", "111101")
    d.preis("111", "111101")
    for i in range(n):
        d.menge("111", "111101", (82, code(i, 5)))
    if d.neu:
        for i in range(n):
            d("G6", (2, "111"), (8, "111101"), (14, "01"), (16, "01"), (44, "x" if d.falsch else "A"), (45, "+"),
              (46, "0000000012500"), (82, code(n - 1 - i, 5)))


def laufnummern(d, n):
    d("B0", (2, "001"))
    d.kapitel(111)
    je = 10
    for k, p in enumerate(positionsnummern((n + je - 1) // je)):
        d.position("111", p)
        d.preis("111", p)
        for i in range(je):
            d.menge("111", p, (36, ""), (75, laufnummer(k * je + i + 1)), (82, f"{i:05}"))


def gliederung(d, n):
    d("B0", (2, "001"))
    for i in range(n):
        d("B1", (2, "001"), (82, code(i, 5)), (93, "Kostenart"))
    d.kapitel(111)
    je = 10
    for k, p in enumerate(positionsnummern((n + je - 1) // je)):
        d.position("111", p)
        d.preis("111", p)
        for i in range(je):
            d.menge("111", p, (82, code(k * je + i, 4) + "*" if d.falsch else code(k * je + i, 5)))


def einschraenkungen(d, n):
    d("B0", (2, "001"))
    for i in range(n):
        d("B1", (2, "001"), (82, code(i, 5)), (93, "Kostenart"))
    d("C0", (2, "000"), (45, "+"), (46, "0000000100000"))
    d("C1", (2, "001"), (5, "1"), (6, "01"), (16, "00"), (44, "%"), (93, "Rabatt"))
    for i in range(n):
        d("C5", (2, "001"), (82, code(i + n if d.falsch else i, 5)))


def konditionen(d, n):
    d("C0", (2, "000"), (45, "+"), (46, "0000000100000"))
    for i in range(n):
        d("C1", (2, f"{i * 999 // n + 1:03}"), (5, "1"), (6, f"{i % 99 + 1:02}"), (16, "00"), (44, "%"), (75, "+"),
          (76, "000200"), (82, code(i, 5)), (93, "Rabatt"))


def texte(d, n, text):
    """Positions with a text of their own each, `text(i)`."""
    je = 1 + n // len(KAPITEL)
    nummern = list(positionsnummern(je))
    for i in range(n):
        k = KAPITEL[i // je]
        if i % je == 0:
            d.kapitel(k)
        d("G2", (2, str(k)), (8, nummern[i % je]), (93, text(i)))
        d("G3", (2, str(k)), (8, nummern[i % je]), (14, "00"), (16, "01"), (93, text(i + 7)))


def umlaute(d, n):
    texte(d, n, lambda i: ("Tür süß öffnen", "Gewände größer", "Fläche über Hülle")[i % 3])


def schriften(d, n):
    texte(d, n, lambda i: "".join(chr(0x3B1 + (i * 7 + k) % 500) for k in range(20)))


def nur_g2(d, n):
    d.kapitel(111)
    for p in positionsnummern(n):
        d.position("111", p)


def nur_g3(d, n):
    d.kapitel(111)
    for p in positionsnummern((n + 98) // 99):
        d.position("111", p)
        for i in range(1, 100):
            d("G3", (2, "111"), (8, p), (14, "00"), (16, f"{i:02}"), (93, "Liefern und versetzen, gerade"))


def nur_p(d, n):
    for i in range(n):
        d("P2", (2, "111"), (8, f"{i:06}"), (14, "01"), (93, "Produkt"))


def nur_u(d, n):
    d.zeilen += [satz("U1", [(2, "111"), (93, "Freier Text einer Bemerkung")])] * n


def mengen_allein(d, n):
    d("B0", (2, "001"))
    for i in range(n):
        d("B1", (2, "001"), (82, code(i, 5)), (93, "Kostenart"))
    d.kapitel(111)
    d.position("111", "111101")
    d.preis("111", "111101")
    for i in range(n):
        d.menge("111", "111101", (82, code(i, 5)))


def objekte(d, n):
    d("B0", (2, "002"))
    for i in range(n):
        d("B2", (2, "002"), (18, code(i, 5)), (93, "Objekt"))
        for ort in ("Nord", "Ost", "Sued", "West"):
            d("B2", (2, "002"), (18, code(i, 5)), (24, ort), (93, "Standort"))


def objekte_gemischt(d, n):
    d("B0", (2, "002"))
    for i in random.Random(1).sample(range(n), n):
        d("B2", (2, "002"), (18, code(i, 5)), (75, f"{i % 9999999 + 1:07}"), (93, "Objekt"))


def gleiche_ordnung(d, n):
    d("B0", (2, "002"))
    for i in range(n):
        d("B2", (2, "002"), (18, code(i, 5)), (75, "0000001"), (93, "Objekt"))


def doppelte(d, n):
    d("B0", (2, "001"))
    for i in random.Random(2).sample(range(n), n):
        d("B1", (2, "001"), (87, code(i, 6)))


def kapiteldatei(ordner, nummer, rumpf):
    rumpf = f'<Kapitel N="{nummer}" S="1" V="2017" A="1" T="Kapitel" Z="">{rumpf}<Texte></Texte></Kapitel>'
    (ordner / f"N171{nummer}.qvm").write_text(f"CF1120171{nummer}{len(rumpf) + 31:09}{len(rumpf) + 44:09} {rumpf}")


def katalogordner(d):
    ordner = pathlib.Path(d.pfad + ".katalog")
    ordner.mkdir()
    return ordner


def dokument_katalog(d, megabytes):
    dokument(d, megabytes)
    # The catalogue has the texts: there are no titles, and positions have blank lines where they have chosen one.
    d.zeilen = [zeile[:92].ljust(len(zeile)) if zeile[:1] == "G" and zeile[41] == "3" and zeile[13:15] == "00" else zeile
                for zeile in d.zeilen if zeile[:1] != "G" or zeile[10:13] != "000"]
    ordner = katalogordner(d)
    unter = "".join(f'<U N="{u}"><V N="0"/><V N="1" E="1"/></U>' for u in range(100, 130))
    haupt = "".join(f'<H N="{h}"><U N="0"/>{"" if h % 10 == 0 else unter}</H>' for h in range(100, 900))
    for nummer in sorted({zeile[1:4] for zeile in d.zeilen if zeile[0] == "G"}):
        kapiteldatei(ordner, nummer, haupt)


def katalog(d, n):
    ordner = katalogordner(d)
    unter = "".join(f'<U N="{u}"><V N="0" E="0"/><V N="1" E="31"/></U>' for u in range(1, 75))
    haupt = "".join(f'<H N="{h}">{unter}</H>' for h in range(100, 400))
    for nummer in KAPITEL[:n]:
        kapiteldatei(ordner, nummer, haupt)
        d.kapitel(nummer)
        for p in positionsnummern(9):
            d.position(str(nummer), p)


def main():
    formen = {f.__name__: f for f in (dokument, zeichen, undefiniert, leer, kapitel, positionen, mengen, laufnummern,
                                      gliederung, einschraenkungen, konditionen, umlaute, schriften, nur_g2, nur_g3, nur_p,
                                      nur_u, mengen_allein, objekte, objekte_gemischt, gleiche_ordnung, doppelte, katalog,
                                      dokument_katalog)}
    eingabe = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    eingabe.add_argument("form", metavar="FORM", choices=formen)
    eingabe.add_argument("datei", metavar="DATEI")
    eingabe.add_argument("n", metavar="N", type=int)
    eingabe.add_argument("--falsch", action="store_true", help="every record wrong")
    wahl = eingabe.parse_args()
    d = Datei(wahl.datei, wahl.falsch)
    formen[wahl.form](d, wahl.n)
    d.schreiben()


main()
