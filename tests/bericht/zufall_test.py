#!/usr/bin/env python3
"""Random exchange files against their pages: zufall_test.py [--anzahl N] [--saat S] zepholt zepholt-bericht

Half of the files are E1S. Their records are filled from short lists of good and bad values, so that positions, codes and
numbers meet often; some files are samples with bytes changed. For each file an independent XML parser reads the protocol:
the page's data must hold exactly its findings, and its plain part must mark, in the record of each finding with a line and
a field, a box of that field. What can't be marked is listed in OHNE_MARKE with the reason.
"""
import argparse
import collections
import html
import json
import pathlib
import random
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ET

QUELLE = pathlib.Path(__file__).resolve().parents[2]
KATALOG = QUELLE / "samples/katalog"

# (record type of the line, field reference): a finding whose record has no such field.
OHNE_MARKE = {
    # 451-92 has no records B7 and B8. Their numbers are looked at all the same; the page shows the line as undefined.
    ("B7", "B7:2a"), ("B8", "B8:2a"),
    # Nor has its G6 the fields of usage and room, whose columns are judged all the same.
    ("G6", "G6:24f"), ("G6", "G6:24g"),
}

ZAHL = ["0", "1", "01", "2", "99", "000001", "000030", "x", " 1"]
CODE = ["A", "AB", "A*", "*", " A", "ä", "V1", "ZZZ"]
TEXT = ["Text", "Beton, Ortbeton", "x" * 30, "\t", "<b>", "é", "  ein", "0"]
BETRAG = ["0000000012500", "000000000000", "12", "-1", "x"]
# Values by column: most columns hold the same kind of thing in all records.
WERTE = {5: ["1", "2", "3", "7"], 6: ["01", "02", "20", "19", "x"], 8: ["111", "1*", "999"], 14: ["00", "01", "02"], 16: ["00", "01", "02", "03"],
         43: ["E", "e", "0", "1", "x"], 44: list("ABCJKLMQRSUWXx%"), 45: ["+", "-", "x"], 46: BETRAG, 59: ["m2", "St", "zz", "Pr"],
         61: list("AFINRZ+x"), 62: ["+", "-", "x"], 63: BETRAG, 75: ["+", "0000017", "0000024", "24", "x", "0000001"], 76: ["000200"],
         93: TEXT, 123: ["000100", "111001", "x"], 135: ["A", "*", "x"], 136: ["05", "31", "01", "x"], 138: TEXT, 208: TEXT}
FELDWERTE = {"B": CODE + ZAHL, "C": CODE + ZAHL, "G": CODE + ZAHL, "X": ZAHL, "P": ZAHL}
KAPITEL = ["241", "622"]
POSITIONEN = ["000000", "100000", "110000", "111000", "111001", "111010", "211000", "211001", "xxxxxx"]
FOLGE = ["B0", "B1", "B2", "B3", "B4", "B5", "B6", "B7", "B8", "C0", "C1", "C5", "G1", "G2", "G3", "G4", "G5", "G6", "X4", "X5", "P1", "P2", "P3",
         "P4", "P5", "G7"]


def felder_lesen(bericht):
    """Record type -> (column, length) of its fields, out of the program's own list."""
    felder = collections.defaultdict(list)
    for typ, von, bis in re.findall(r"^\| (\w+):\S+ \| (\d+)(?:-(\d+))? \|", subprocess.run([*bericht, "fields"], capture_output=True, text=True,
                                                                                          check=True).stdout, re.M):
        felder[typ].append((int(von), int(bis or von) - int(von) + 1))
    return felder


def satz(*felder):
    zeichen = [" "] * 256
    for spalte, text in felder:
        zeichen[spalte - 1:spalte - 1 + len(text)] = text
    return "".join(zeichen[:256]).rstrip(" ")


def record(zufall, felder, typ):
    teile = [(1, typ[0]), (42, typ[1])]
    dichte = zufall.choice([0.05, 0.3, 0.7])
    teile += [(s, zufall.choice(WERTE.get(s, FELDWERTE[typ[0]]))[:n]) for s, n in felder[typ] if s not in (1, 42) and zufall.random() < dichte]
    if typ[0] in "GXP":
        teile += [(2, zufall.choice(KAPITEL)), (8, zufall.choice(POSITIONEN) if typ != "G1" else "      ")]
    elif typ[0] in "BC" and zufall.random() < 0.8:
        teile += [(2, "00" + (typ[1] if typ[0] == "B" and typ != "B0" else zufall.choice("1235")))]
    return satz(*teile)


def schluessel(zeile):
    """What orders the records, and what makes them one and the same."""
    z = zeile.ljust(256)
    ordnung = z[0:4] + z[7:13] + z[41] + z[13:17]
    return ordnung, tuple(z[von - 1:bis].upper() for von, bis in ((82, 86), (18, 35), (87, 92), (129, 134), (123, 128), (168, 203)))


def dokument(zufall, felder, e1s):
    kopf = satz((1, "A211126"), (8, "QVMX1721" if e1s else "451-9211"), (30, "Bauherr"), (42, "1"), (44, "A"), (45, "A"), (63, "000000000001"),
                (82, "P-1"), (93, "Schulhaus"), (123, "D-1"), (138, "Baumeister"), (168, "Muster AG"), (188, "Bern"), (208, "Ausmass"))
    arten = [a for a in FOLGE if e1s or a[0] not in "XP" or zufall.random() < 0.1]
    saetze = [record(zufall, felder, typ) for typ in zufall.choices(arten, [6 if a[0] == "G" else 2 for a in arten], k=zufall.choice([3, 20, 60]))]
    saetze = list({schluessel(z): z for z in saetze}.values())
    if zufall.random() < 0.95:
        saetze.sort(key=schluessel)
    schluss = satz((1, "Z211126"), (18, "X"), (46, f"{len(saetze) + 2:013}"), (62, "-"), (63, "000000000001"), (138, "M"), (168, "M"), (188, "B"))
    return "".join(z + "\r\n" for z in (kopf, *saetze, schluss)).encode("utf-8" if e1s else "cp850", "replace")


def verdorben(zufall, e1s):
    """A sample with some bytes changed: 1 or 2 of its findings become many of other codes."""
    bytes_ = bytearray((QUELLE / "samples" / zufall.choice(["sauber", "fehlerhaft"])).with_suffix(".E1S" if e1s else ".01S").read_bytes())
    stellen = [i for i in range(260, len(bytes_)) if bytes_[i] >= 0x20 and bytes_[i] < 0x7F]
    for _ in range(zufall.randint(1, 40)):
        bytes_[zufall.choice(stellen)] = ord(zufall.choice(" *0123456789ABGXx+-"))
    return bytes(bytes_)


def befunde_der_seite(daten):
    """(line, code, severity, field, marked) of every finding in the page's data."""
    for abschnitt in daten["a"]:
        eintraege = [(None, "", abschnitt[5])] + [tuple(abschnitt[6][i:i + 3]) for i in range(0, len(abschnitt[6]), 3)]
        for zeile, roh, paare in eintraege:
            text = re.sub(r"`(`|..)", lambda m: "`" if m[1] == "`" else " " * int(m[1], 36), roh)
            typ = text[:1] + ("" if text[:1] in ("A", "Z") else text[41:42])
            for code, feld in zip(paare[::2], paare[1::2]):
                bezug = daten["f"][feld][0] if feld >= 0 else None
                yield zeile, daten["c"][code][0], daten["c"][code][1], bezug, typ, daten["o"].get(f"{typ} {bezug}", "")


def marken(seite):
    """Line -> number of marked boxes, in the plain part."""
    ergebnis = {}
    for zeile, inhalt in re.findall(r'<article class="e"><h4>Zeile ([\d’]+)<span>(.*?)</article>', seite, re.S):
        if '<ul class="m">' in inhalt:
            ergebnis[int(zeile.replace("’", ""))] = len(re.findall(r'<div class="(?:A|B|ganz|ganzB)">', inhalt))
    return ergebnis


def pruefe(bericht, xml, datei):
    """What is wrong with the page of this file."""
    lauf = subprocess.run([*bericht, "html", xml, datei], capture_output=True, check=False)
    if lauf.returncode not in (0, 1):
        return [f"status {lauf.returncode}: {lauf.stderr.decode()}"], 0
    seite = lauf.stdout.decode("utf-8")
    daten = json.loads(seite.split('id="daten">')[1].split("</script>")[0])
    fehler = ET.parse(xml).getroot().findall("Errors/Error")
    soll = sorted((int(e.get("L") or 0), int(e.get("N")), e.get("E"), e.get("F") or "") for e in fehler)
    befunde = list(befunde_der_seite(daten))
    klagen = []
    if sorted((z or 0, c, s, f or "") for z, c, s, f, _, _ in befunde) != soll or daten["n"] != len(soll):
        klagen.append("other findings than the protocol")
    erwartet = collections.Counter()
    for zeile, code, _, feld, typ, ort in befunde:
        if zeile and feld and not ort and (typ, feld) not in OHNE_MARKE:
            klagen.append(f"no mark: {typ!r} {feld} {code}")
        erwartet[zeile] += bool(zeile and feld and ort)
    im_bild = marken(seite)
    klagen += [f"no marked box on line {zeile}" for zeile, n in erwartet.items() if n and zeile in im_bild and not im_bild[zeile]]
    if len(soll) <= 50 and {z for z, *_ in befunde if z} != set(im_bild):
        klagen.append("lines that the plain part doesn't show")
    return klagen, len(soll)


def ungueltig(protokolle):
    """The number of schemas of docs/schema by which one of the protocols is wrong."""
    wege = (("--relaxng", "protokoll.rng"), ("--schema", "protokoll.xsd"))
    laeufe = [subprocess.run(["xmllint", "--noout", weg, QUELLE / "docs/schema" / schema, *protokolle], capture_output=True, check=False)
              for weg, schema in wege]
    for lauf in laeufe:
        if lauf.returncode:
            print("FALSE schema: " + next(z for z in lauf.stderr.decode().splitlines() if not z.endswith(" validates")))
    return sum(lauf.returncode != 0 for lauf in laeufe)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--anzahl", type=int, default=60)
    parser.add_argument("--saat", type=int, default=1)
    parser.add_argument("programme", nargs="+")
    wahl = parser.parse_args()
    zepholt, bericht = [wahl.programme[0]], [wahl.programme[1]]
    felder = felder_lesen(bericht)
    falsch = alle = 0
    codes = collections.Counter()
    with tempfile.TemporaryDirectory() as name:
        for nummer in range(wahl.anzahl):
            zufall = random.Random(f"{wahl.saat}/{nummer}")
            e1s = nummer % 2 == 1
            datei = pathlib.Path(name) / ("e.E1S" if e1s else "e.01S")
            datei.write_bytes(verdorben(zufall, e1s) if nummer % 3 == 0 else dokument(zufall, felder, e1s))
            xml = datei.with_suffix(".xml")
            xml.unlink(missing_ok=True)
            subprocess.run([*zepholt, f"file={datei}", "dialog=de-", f"errorfile={xml}", f"catalog={KATALOG}"], check=True)
            klagen, anzahl = pruefe(bericht, xml, datei)
            shutil.copy(xml, pathlib.Path(name) / f"{nummer}.protokoll")
            codes.update(e.get("N") for e in ET.parse(xml).getroot().iter("Error"))
            alle += anzahl
            falsch += bool(klagen)
            for klage in klagen[:5]:
                print(f"FALSE seed {wahl.saat}, file {nummer}: {klage}")
        falsch += ungueltig(sorted(pathlib.Path(name).glob("*.protokoll")))
    print(f"{wahl.anzahl} files, {alle} findings of {len(codes)} codes, {falsch} files false")
    return 1 if falsch else 0


if __name__ == "__main__":
    sys.exit(main())
