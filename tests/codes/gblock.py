"""What the tests of the records G1 to G6 share: builders of records, and fall(), which runs one case.

A case names its findings in the order in which the run comes upon them: first the characters of all lines, then the
records one by one, then the finished tree, then the catalogue. fall() puts them in the order of the protocol by the
rule of the protocol itself: a key of line, position and code, sorted by the one fixed quicksort, which does not keep
the order of equal keys. So two findings of one code on one line stand where that procedure leaves them.
"""
import re

from rahmen import elemente, erwarte, fehler, lauf, satz
from sortierung import sortieren
from texte_b import TEXTE

BEIDE = ("01S", "E1S")


def g1(kapitel="111", felder=None):
    return satz("G1", {2: kapitel, 6: "14", 93: "Titel", **(felder or {})})


def g2(position="111001", felder=None, kapitel="111"):
    return satz("G2", {2: kapitel, 8: position, **(felder or {})})


def g3(position="111001", variable="01", zeile="01", felder=None, kapitel="111"):
    return satz("G3", {2: kapitel, 8: position, 14: variable, 16: zeile, 93: "Text", **(felder or {})})


def g4(position="111100", felder=None, kapitel="111"):
    return satz("G4", {2: kapitel, 8: position, **(felder or {})})


def g5(position="111001", felder=None, kapitel="111"):
    return satz("G5", {2: kapitel, 8: position, 59: "m2", **(felder or {})})


def g6(felder=None, position="111001", kapitel="111"):
    """A plain quantity of kind A without anything else; a field of None is left out."""
    alle = {2: kapitel, 8: position, 44: "A", **(felder or {})}
    return satz("G6", {spalte: text for spalte, text in alle.items() if text is not None})


def eg6(felder=None, position="111001", kapitel="111"):
    return g6({14: "01", 16: "01", **(felder or {})}, position, kapitel)


def b(art, nummer, felder=None):
    return satz(art, {2: nummer, 93: "Bezeichnung", **(felder or {})} if art != "B0" else {2: nummer, **(felder or {})})


# One or two codes of each structure. Uses and rooms are no records of a 01S file: the line counts as an undefined type
# there, and its code is known all the same.
KAG = [b("B0", "001"), b("B1", "001", {82: "12"}), b("B1", "001", {82: "123"})]
OGL = [b("B0", "002"), b("B2", "002", {18: "H1"}), b("B2", "002", {18: "H1", 24: "P1"}),
       b("B2", "002", {18: "H2"}), b("B2", "002", {18: "H2", 24: "Q1"})]
EKG = [b("B0", "003"), b("B3", "003", {87: "E1"})]
EINRICHTUNG = [b("B0", "004"), b("B4", "004", {129: "T1"})]
VARIANTEN = [b("B0", "005"), b("B5", "005", {30: "G1", 135: "V1"}), b("B5", "005", {30: "G2", 135: "W1"}),
             b("B6", "005", {30: "G1", 33: "V1"}), b("B6", "005", {30: "G1", 33: "V2"}),
             b("B6", "005", {30: "G2", 33: "W1"})]
NUTZUNG = [b("B0", "007"), b("B7", "007", {168: "N1"})]
RAUM = [b("B0", "008"), b("B8", "008", {188: "R1"})]
STRUKTUR = KAG + OGL + EKG + EINRICHTUNG + VARIANTEN
STRUKTUR_E1S = STRUKTUR + NUTZUNG + RAUM


def bei(code, zeile, feld=None):
    """A finding at a line, counted from 1 behind the records of `davor`; `feld` where it was reported with a column."""
    return code, zeile, None, None, feld


def ohne(code, kapitel=0, position=0):
    """A finding that belongs to no line, but to a position where one is given."""
    return code, None, kapitel, position, None


def zahl_am_anfang(text):
    ziffern = re.match(r" *(\d*)", text)[1]
    return int(ziffern) if ziffern else 0


def position_der_zeile(record):
    if not record.startswith("G"):
        return None
    nummer = zahl_am_anfang(record[1:4]) * 1000000 + zahl_am_anfang(record[7:13])
    return punkte(nummer)


def punkte(nummer):
    ziffern = f"{nummer:09}"
    return f"{ziffern[:3]}.{ziffern[3:6]}.{ziffern[6:]}"


def element(meldung, saetze, vorlauf):
    """Key and Error element of a finding; `vorlauf` is the number of lines before the line counted as 1, less 1."""
    code, zeile, kapitel, position, feld = meldung
    schwere, feld_des_codes, text = TEXTE[code]
    if zeile is None:
        ort = punkte(kapitel * 1000000 + position) if kapitel else None
        schluessel = f"99999{kapitel * 1000000 + position if kapitel else 999999999:>9}{code}"
        return schluessel, fehler(code, schwere, text, I=ort, F=feld_des_codes)
    ort = position_der_zeile(saetze[vorlauf + zeile - 1])
    schluessel = f"{vorlauf + zeile:>5}{0 if ort else 999999999:>9}{code}"
    ort = None if code in (3001, 3002, 3003) else ort
    return schluessel, fehler(code, schwere, text, L=vorlauf + zeile + 1, I=ort, F=feld or feld_des_codes)


def anzahlen(art, meldungen):
    """What the head of the protocol counts: warnings apart in a 01S file, both in one sum in an E1S file."""
    warnungen = sum(TEXTE[meldung[0]][0] == "B" for meldung in meldungen)
    if art == "E1S":
        return [str(len(meldungen))]
    return [str(len(meldungen) - warnungen), str(warnungen)]


def fall(name, arten, saetze, meldungen, davor=(), kapitel=(111,), kopf=None):
    """One case, in each of the kinds of file in `arten`, one or a list.

    `meldungen` are bei() and ohne() in the order of their adding. `kapitel` are the chapters that the run stores and
    that are no reserve chapters: the catalogue is empty, so each ends in a 6101, and these come last of all.
    """
    for art in [arten] if isinstance(arten, str) else arten:
        alle = [*davor, *saetze]
        soll = [*meldungen, *(ohne(6101, nummer) for nummer in kapitel)]
        paare = [element(meldung, alle, len(davor)) for meldung in soll]
        schluessel, ergebnis = [paar[0] for paar in paare], [paar[1] for paar in paare]
        sortieren(schluessel, ergebnis)
        protokoll = lauf(art, alle, kopf=kopf)
        gezaehlt = re.findall(r"<(?:Errors|Warnings)>(\d+)</", protokoll)
        erwarte(f"{name} ({art})", elemente(protokoll) + gezaehlt, ergebnis + anzahlen(art, soll))
