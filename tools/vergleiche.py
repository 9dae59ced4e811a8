#!/usr/bin/env python3
"""Compares the protocols of programs on random exchange files, byte for byte but for date and time.

    tools/vergleiche.py OLD NEW... N [--saat S] [--katalog FOLDER] [--viele PROGRAM]...

A program is a path, or what a shell would split into an emulator and a path. That of --viele (repeatable) is the
viele_laeufe of a build, which tests all files in one process; its protocols are compared with those of the others. Of
the N files each second is an E1S file. Their records are filled from short lists of good and bad values, so that numbers, codes and running numbers
meet often; then some are spoiled: bytes changed, cut or put in, lines doubled, swapped or made longer, characters of
every kind put into fields, line ends broken. The first file that makes a difference is kept and named; the exit status
is then 1.
"""
import argparse
import hashlib
import pathlib
import random
import re
import shlex
import shutil
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor

# Column and length of the fields of each type, with the values that they get.
ZAHL = ["", "0", "01", "1", "12", "123", "99", "9", "x", " 1", "000001"]
CODE = ["", "A", "B", "AB", "A*", "*", "A B", " A", "ab", "\u00e4", "\u00c4", "ZZZZZZ", "V1", "V2"]
TEXT = ["", "Text", "  eingerückt", "Beton, Ortbeton", "\u00e9\u00e8\u00e0", "x" * 30, "\t", "\u2122", "\u0159", "\u4e2d"]
BETRAG = ["", "0", "00000000012500", "000000001250", "0000000000000", "-1", "12a"]
FELDER = {
    "B0": [(2, 3, "G"), (6, 2, ZAHL), (36, 6, CODE), (63, 12, TEXT), (75, 7, ZAHL)],
    "B1": [(2, 3, ["001"]), (82, 5, CODE), (93, 30, TEXT), (138, 30, TEXT), (208, 16, CODE)],
    "B2": [(2, 3, ["002"]), (18, 6, CODE), (24, 6, CODE), (75, 7, ZAHL), (93, 30, TEXT)],
    "B3": [(2, 3, ["003"]), (59, 2, ["m2", ""]), (87, 6, CODE), (93, 30, TEXT), (208, 16, CODE)],
    "B4": [(2, 3, ["004"]), (75, 7, ZAHL), (93, 30, TEXT), (129, 6, CODE)],
    "B5": [(2, 3, ["005"]), (30, 3, CODE), (75, 7, ZAHL), (93, 30, TEXT), (135, 3, CODE)],
    "B6": [(2, 3, ["005"]), (30, 3, CODE), (33, 3, CODE), (75, 7, ZAHL), (93, 30, TEXT)],
    "B7": [(2, 3, ["007"]), (93, 30, TEXT), (168, 16, CODE)],
    "B8": [(2, 3, ["008"]), (93, 30, TEXT), (188, 16, CODE)],
    "C0": [(2, 3, ["000", "001"]), (45, 1, ["+", "-", "", "x"]), (46, 15, BETRAG)],
    "C1": [(2, 3, ["001", "002", "003"]), (5, 1, ["1", "2", "3", "7"]), (6, 2, ["01", "02", "03"]), (16, 2, ["00", "01"]),
           (36, 6, ["", "000030"]), (44, 1, ["%", "", "A"]), (45, 1, ["+", "-", ""]), (46, 15, BETRAG),
           (61, 1, ["", "+", "x"]), (62, 1, ["+", ""]), (63, 12, BETRAG), (75, 1, ["+", ""]), (76, 6, ["000200", ""])],
    "C5": [(2, 3, ["001", "002", "004"]), (8, 3, ["", "111", "1*", "999"]), (18, 6, CODE), (24, 6, CODE), (30, 3, CODE),
           (33, 3, CODE), (82, 5, CODE), (87, 6, CODE), (129, 6, CODE), (136, 2, ["", "01", "02"])],
    "G1": [(2, 3, "K"), (6, 2, ["13", "99", "20", "x"]), (93, 30, TEXT), (138, 30, TEXT)],
    "G2": [(2, 3, "K"), (8, 6, "P"), (43, 1, ["", "E", "x"]), (93, 30, TEXT)],
    "G3": [(2, 3, "K"), (8, 6, "P"), (14, 2, ["00", "01", "02"]), (16, 2, ["01", "02", "03"]), (43, 1, ["", "e"]),
           (93, 30, TEXT), (135, 1, ["", "A"]), (136, 2, ["", "05", "31"])],
    "G4": [(2, 3, "K"), (8, 6, "P"), (18, 6, CODE), (24, 6, CODE), (30, 3, CODE), (33, 3, CODE), (82, 5, CODE),
           (87, 6, CODE), (129, 6, CODE), (135, 1, ["", "*", "x"]), (136, 2, ["", "01", "02"]), (168, 16, CODE),
           (188, 16, CODE)],
    "G5": [(2, 3, "K"), (8, 6, "P"), (59, 2, ["m2", "St", "zz", "", "Pr"]), (61, 1, ["", "A", "F", "Z"]),
           (62, 1, ["", "+", "-", "x"]), (63, 12, BETRAG)],
    "G6": [(2, 3, "K"), (8, 6, "P"), (14, 2, ["", "", "", "01"]), (16, 2, ["", "", "", "01"]), (18, 6, CODE), (24, 6, CODE),
           (30, 3, CODE), (33, 3, CODE), (36, 6, ["", "ABC"]), (44, 1, list("ABCJKLMQRSUWX")), (45, 1, ["+", "-", ""]),
           (46, 13, ["0000000012500", "", "0000000000000", "12"]), (61, 1, ["", "A", "Z"]), (62, 1, ["", "+"]),
           (63, 12, BETRAG), (75, 7, ["", "", "0000000", "0000017", "0000024", "24", "x"]), (82, 5, CODE), (87, 6, CODE),
           (93, 30, ["", "", "Text"]), (123, 6, ["", "", "000100", "111001"]), (129, 6, CODE),
           (136, 2, ["", "01", "02"]), (138, 30, ["", "", "Text"]), (168, 16, CODE), (188, 16, CODE),
           (208, 30, ["", "", "Text"])],
    "X4": [(2, 3, "K"), (8, 6, "P"), (14, 2, ["", "01", "00"]), (16, 2, ["01", ""]), (93, 164, TEXT)],
    "P1": [(2, 3, "K"), (8, 6, "P"), (14, 2, ["", "01", "00"]), (43, 1, ["", "0", "1", "2"]), (93, 164, TEXT)],
    "P3": [(2, 3, "K"), (8, 6, "P"), (14, 2, ["", "01"]), (16, 2, ["01", ""]), (93, 164, TEXT)],
    "E1": [(2, 3, ZAHL), (93, 30, TEXT)],
    "U1": [(2, 3, ZAHL), (93, 30, TEXT)],
    "G7": [(2, 3, "K")],
}
KAPITEL = ["111", "112", "119", "241", "990", "000"]
POSITIONEN = ["000000", "000100", "100000", "110000", "111000", "111001", "111002", "111100", "119000", "119001", "200000",
              "211000", "211111", "xxxxxx", ""]
ZEICHEN = [chr(c) for c in (*range(0x20, 0x7F), *range(0xA0, 0x180), *range(0x400, 0x460), 0x4E2D, 0x20AC, 0x7F, 0x85, 0, 9)]


def satz(zufall, art):
    zeile = [art[0]] + [" "] * 40 + [art[1]]
    for spalte, laenge, werte in FELDER[art]:
        if werte == "K":
            werte = KAPITEL if zufall.random() < 0.1 else KAPITEL[:2]
        elif werte == "P":
            werte = POSITIONEN if zufall.random() < 0.2 else POSITIONEN[4:7]
        elif werte == "G":
            werte = ["001", "002", "003", "004", "005", "007", "008"] if zufall.random() < 0.9 else ["000", "006", "x"]
        wert = zufall.choice(werte)[:laenge]
        zeile += [" "] * (spalte - 1 + len(wert) - len(zeile))
        zeile[spalte - 1:spalte - 1 + len(wert)] = wert
    return "".join(zeile).rstrip() if zufall.random() < 0.9 else "".join(zeile).ljust(256)


def ordnung(zeile):
    zeile = zeile.ljust(50)
    return zeile[0:4] + zeile[7:13] + zeile[41] + zeile[13:17]


def dokument(zufall, neu):
    arten = list(FELDER) if neu or zufall.random() < 0.1 else [a for a in FELDER if a[0] not in "XP" and a not in ("B7", "B8")]
    gewichte = [8 if a in ("G2", "G5", "G6") else 5 if a == "B0" else 1 if a[0] in "EUG" and a in ("E1", "U1", "G7") else 3
                for a in arten]
    zeilen = [satz(zufall, a) for a in zufall.choices(arten, gewichte, k=zufall.choice((3, 20, 60, 150)))]
    if zufall.random() < 0.95:
        zeilen.sort(key=ordnung)
    if zufall.random() < 0.9:  # what stands first of a key stays
        schluessel, rest = set(), []
        for z in zeilen:
            k = z.ljust(256)
            k = (ordnung(z), *(k[a - 1:b].upper() for a, b in ((82, 86), (18, 35), (87, 92), (129, 134), (123, 128))),
                 k[167:203].upper() if neu else "", z if z[0] in "EDU" else "")
            if k not in schluessel:
                schluessel.add(k)
                rest.append(z)
        zeilen = rest
    a = f"A211126{'QVMX1721' if neu else '451-9211'}".ljust(29) + "Bauherr"
    a = a.ljust(41) + "1 AA".ljust(21) + "000000000001"
    a = a.ljust(81) + "P-1".ljust(11) + "Schulhaus \u00fc".ljust(30) + "D-1".ljust(15) + "Baumeister".ljust(30) + "Muster AG"
    a = a.ljust(187) + "Bern".ljust(20) + "Ausmass"
    z = "Z211126".ljust(17) + "Ersteller".ljust(28) + f"{len(zeilen) + 2:013}".ljust(16) + "-000000000001"
    z = z.ljust(137) + "Baumeister".ljust(30) + "Muster AG".ljust(20) + "Bern"
    return [a, *zeilen, z]


def verderben(zufall, zeilen):
    """Changes lines here and there, characters of any kind among them."""
    for _ in range(zufall.choice((0, 0, 1, 3, 30))):
        i = zufall.randrange(len(zeilen))
        zeile = zeilen[i]
        stelle = zufall.choice((0, 13, 41, 42, 63, 64, 65, 92, 100, 150, 199, 254, 255, 256, 257, 300))
        art = zufall.randrange(5)
        if art == 0:
            zeilen[i] = zeile[:stelle]
        elif art == 1:
            zeilen[i] = zeile.ljust(stelle) + "x"
        elif art == 2:
            zeilen[i] = zeile.ljust(stelle + 1)[:stelle] + zufall.choice(ZEICHEN) + zeile[stelle + 1:]
        elif art == 3:
            zeilen[i] = zeile[:92].ljust(92) + "".join(zufall.choices(ZEICHEN, k=30)) + zeile[122:]
        else:
            zeilen[i] = zeile.ljust(zufall.choice((255, 256, 257, 300)))


def als_bytes(zufall, zeilen, neu):
    text = "".join(zeile + "\r\n" for zeile in zeilen)
    inhalt = text.encode("utf-8") if neu else text.encode("cp850", "replace")
    if neu and zufall.random() < 0.2:
        inhalt = b"\xef\xbb\xbf" + inhalt
    for _ in range(zufall.choice((0, 0, 0, 0, 0, 1, 5))):  # hostile bytes
        i = zufall.randrange(len(inhalt))
        stueck = zufall.choice((b"", b"\0", b"\xff", b"\r", b"\n", b"\r\n", b"\xc3", b"\xe4\xb8\xad", b"\xf0\x9f\x98\x80",
                                b"\xc2\x80", b"\xb0", b"*", b" "))
        inhalt = inhalt[:i] + stueck + inhalt[i + zufall.randrange(2):]
    return inhalt


VIELE = "viele.xml"  # the protocol of a program that tests all files in one process


def befehl(programm):
    """The words of a program's command line, files among them by their whole paths."""
    worte = shlex.split(programm)
    return [str(pathlib.Path(wort).resolve()) if pathlib.Path(wort).is_file() else wort for wort in worte]


def argumente(datei, ziel, katalog, modus):
    return [f"file={datei}", f"dialog={modus[0]}", f"errorfile={ziel}", f"catalog={katalog}", *modus[1:]]


def gelesen(protokoll):
    """A protocol without its date and time."""
    return re.sub(rb"<(Date|Time)>[^<]*", rb"<\1>", protokoll.read_bytes()) if protokoll.exists() else b"no protocol"


def protokoll_von(programm, ordner, ziel, worte):
    """What a program writes; a run that ends otherwise than by itself shows as its status."""
    lauf = subprocess.run([*programm, *worte], cwd=ordner, stdin=subprocess.DEVNULL, check=False, capture_output=True)
    return gelesen(ordner / ziel) if lauf.returncode == 0 else f"status {lauf.returncode}".encode()


def streuwert(protokoll):
    return hashlib.sha256(protokoll).digest()


def vergleiche(nummer, wahl, grund):
    """Of one file the hash value of its protocol, the codes in it and the line of a list that asks for it again; None when
    the programs differ: then the file stays."""
    zufall = random.Random(f"{wahl.saat}-{nummer}")
    neu = nummer % 2 == 1
    zeilen = dokument(zufall, neu)
    verderben(zufall, zeilen)
    ordner = grund / str(nummer)
    (ordner / "leer").mkdir(parents=True)
    datei = "a.E1S" if neu else "a.01S"
    (ordner / datei).write_bytes(als_bytes(zufall, zeilen, neu))
    modus = [zufall.choice(("de-", "fr-", "it-"))] + zufall.choice(([], [], ["mode=I"]))
    katalog = pathlib.Path(wahl.katalog).resolve() if wahl.katalog else "leer"
    protokolle = {protokoll_von(programm, ordner, f"{i}.xml", argumente(datei, f"{i}.xml", katalog, modus))
                  for i, programm in enumerate(wahl.programme)}
    if len(protokolle) > 1:
        return None
    if not wahl.viele:
        shutil.rmtree(ordner)
    eines = protokolle.pop()
    codes = set(re.findall(rb' N="(\d{4})"', eines))
    return streuwert(eines), codes, f"{ordner}\t{' '.join(argumente(datei, VIELE, katalog, modus))}\n"


def vergleiche_viele(programm, grund, ergebnisse):
    """Tests all files again in one process; the number of the first file with another protocol, or None."""
    (grund / "liste").write_text("".join(zeile for _, _, zeile in ergebnisse))
    subprocess.run([*programm, str(grund / "liste")], stdin=subprocess.DEVNULL, check=True, stdout=subprocess.DEVNULL)
    for nummer, (eines, _, _) in enumerate(ergebnisse):
        protokoll = grund / str(nummer) / VIELE
        if eines != streuwert(gelesen(protokoll)):
            return nummer
        protokoll.unlink(missing_ok=True)
    return None


def main():
    eingabe = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    eingabe.add_argument("programme", nargs="+", type=befehl, metavar="PROGRAM")
    eingabe.add_argument("n", type=int)
    eingabe.add_argument("--saat", default="1")
    eingabe.add_argument("--katalog")
    eingabe.add_argument("--viele", type=befehl, metavar="PROGRAM", action="append", default=[])
    wahl = eingabe.parse_args()
    grund = pathlib.Path(tempfile.mkdtemp())
    ergebnisse = []
    with ThreadPoolExecutor(2) as arbeiter:
        for nummer, ergebnis in enumerate(arbeiter.map(lambda nummer: vergleiche(nummer, wahl, grund), range(wahl.n))):
            if ergebnis is None:
                print(f"different: {grund / str(nummer)}")
                arbeiter.shutdown(cancel_futures=True)
                sys.exit(1)
            ergebnisse.append(ergebnis)
    for programm in wahl.viele:
        anders = vergleiche_viele(programm, grund, ergebnisse)
        if anders is not None:
            print(f"different: {grund / str(anders)}")
            sys.exit(1)
    shutil.rmtree(grund)
    ohne = sum(eines == streuwert(b"no protocol") for eines, _, _ in ergebnisse)
    codes = set().union(*(codes for _, codes, _ in ergebnisse))
    print(f"{wahl.n} files, {len(wahl.programme) + len(wahl.viele)} programs, no difference; codes met: {len(codes)}, "
          f"files without protocol: {ohne}")
    if ohne == wahl.n:
        sys.exit(1)


main()
