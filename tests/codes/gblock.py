"""What the tests of the records G1 to G6 share: builders of records, structures, and fall() with the lines counted from 1
behind the structures that stand in front."""
from befunde import fall as fall_der_datei, ohne_zeile
from rahmen import satz


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


def fall(name, arten, saetze, soll, davor=(), kapitel=(111,), kopf=None):
    """One case. The lines of `soll` count from 1 behind the records of `davor`; `kapitel` are the chapters that the run
    stores and that are no reserve chapters: the catalogue is empty, so each ends in a 6101, and these come last of all.
    """
    versetzt = [b if b.L is None else b._replace(L=len(davor) + b.L + 1) for b in soll]
    fall_der_datei(name, arten, [*davor, *saetze], [*versetzt, *(ohne_zeile(6101, nummer) for nummer in kapitel)], kopf=kopf)
