"""Findings as rows, and one case as one line: the file, and the findings that the whole protocol must hold.

f(code, L, F) is a finding; fall() runs the program on a file of kind "01S", "E1S" or both, and compares all Error
elements, the counts in the head of the protocol, and that the protocol is well-formed.
"""
import re
import xml.etree.ElementTree as ET

from rahmen import elemente, erwarte, fehler, lauf
from sortierung import sortieren
from texte_a import TEXTE

OHNE_ZEILE = None


def f(code, L=OHNE_ZEILE, F=None, I=None):
    """A finding. Without F its field reference is that of the error table; I is the position as "111.000.000"."""
    return code, L, F or TEXTE[code][1] or None, I


def element(befund):
    code, L, F, I = befund
    schwere, _, text = TEXTE[code]
    return fehler(code, schwere, text, L=L, I=I, F=F)


def geordnet(befunde):
    """Findings in the order of their report -> in the order of the protocol: line, position, code."""
    def schluessel(code, L, F, I):
        zeile = 99999 if L is None else L - 1
        platz = 999999999 if I is None else int(I.replace(".", "")) if L is None else 0
        return f"{zeile:5}{platz:9}{code:4}"

    folge = list(befunde)
    sortieren([schluessel(*b) for b in folge], folge)
    return folge


def fall(name, art, saetze, soll, **mehr):
    """One case, for both kinds of file when `art` is "beide". `soll` stands in the order of the protocol.

    The head counts errors and warnings apart in a 01S file, together in an E1S file, and errors only in mode I.
    """
    for eine in ("01S", "E1S") if art == "beide" else (art,):
        protokoll = lauf(eine, saetze, **mehr)
        erwarte(f"{name} [{eine}]", elemente(protokoll), [element(b) for b in soll])
        try:
            kopf = ET.fromstring(protokoll.encode("latin-1")).find("Test")
        except ET.ParseError as grund:
            erwarte(f"{name} [{eine}] well-formed", str(grund), "")
            continue
        warnungen = sum(TEXTE[b[0]][0] == "B" for b in soll)
        if "mode=I" in mehr.get("mehr", ()):
            zahlen = len(soll), None
        else:
            zahlen = (len(soll) - warnungen, warnungen) if eine == "01S" else (len(soll), None)
        erwarte(f"{name} [{eine}] counts",
                tuple(None if kopf.find(n) is None else int(kopf.find(n).text) for n in ("Errors", "Warnings")), zahlen)


def nie(codes, protokoll_elemente):
    """The codes of `codes` that stand in the elements."""
    gefunden = {int(n) for e in protokoll_elemente for n in re.findall(r'N="(\d+)"', e)}
    return sorted(gefunden & set(codes))
