"""Findings as rows, their order in the protocol, and one case as one line: a file and the findings of its run.

f(code, L, F, I) is a finding. A case names its findings in the order in which the run comes upon them: first the
characters of all lines, then the records one by one, then the finished tree, then the catalogue. fall() puts them in the
order of the protocol by the protocol's own rule: a key of line, position and code, sorted by the one fixed quicksort,
which does not keep the order of equal keys. So two findings of one code on one line stand where that procedure leaves
them.
"""
import re
import xml.etree.ElementTree as ET
from functools import partial
from typing import NamedTuple

from rahmen import ABBRUCH, anmelden, elemente, lauf, maskiert, zeilen_der_datei
from texte import TEXTE


class Befund(NamedTuple):
    code: int
    L: int = None  # line of the file, from 1
    F: str = None  # field reference, where it isn't that of the table
    I: str = None  # position "111.001.002", where it isn't that of the line


def f(code, L=None, F=None, I=None):
    return Befund(code, L, F, I)


def ohne_zeile(code, kapitel, position=0):
    """A finding that belongs to a position and to no line."""
    return f(code, I=punkte(kapitel * 1000000 + position))


def punkte(nummer):
    return re.sub(r"(...)(...)(...)", r"\1.\2.\3", f"{nummer:09}")


def zahl_vorn(text):
    return int(re.match(r" *(\d*)", text)[1] or 0)


def position(befund, zeilen):
    """The position that stands beside a finding, by its own word or out of its line; empty where there is none."""
    if befund.I is not None or befund.L is None:
        return befund.I or ""
    satz = zeilen[befund.L - 1] if befund.L <= len(zeilen) else ""
    return punkte(zahl_vorn(satz[1:4]) * 1000000 + zahl_vorn(satz[7:13])) if satz.startswith("G") else ""


def sortieren(liste, begleitliste):
    """The protocol's quicksort, to the letter: equal elements are exchanged too."""
    bereiche = [(0, len(liste) - 1)]
    while bereiche:
        links, rechts = bereiche.pop()
        if rechts <= links:
            continue
        i, j = links, rechts
        mitte = liste[(links + rechts) // 2]
        while i <= j:
            while liste[i] < mitte:
                i += 1
            while mitte < liste[j]:
                j -= 1
            if i > j:
                break
            for l in (liste, begleitliste):
                l[i], l[j] = l[j], l[i]
            i += 1
            j -= 1
        bereiche += [(links, j), (i, rechts)]


def geordnet(befunde, zeilen=()):
    """Findings in the order of their report -> in the order of the protocol."""
    def schluessel(befund):
        ort = position(befund, zeilen).replace(".", "")
        nummer = int(ort) if ort and befund.L is None else 0 if ort else 999999999
        return f"{99999 if befund.L is None else befund.L - 1:5}{nummer:9}{befund.code:4}"

    folge = list(befunde)
    sortieren([schluessel(b) for b in folge], folge)
    return folge


def element(befund, zeilen=(), sprache=0):
    """The Error element of a finding; `sprache` 0 is German, 1 French, 2 Italian."""
    schwere, feld, *texte = TEXTE[befund.code]
    ort = "" if befund.code in (3001, 3002, 3003) else position(befund, zeilen)
    attribute = (("L", befund.L), ("I", ort or None), ("N", befund.code), ("E", schwere), ("F", befund.F or feld or None),
                 ("T", texte[sprache]))
    return "<Error " + " ".join(f'{n}="{maskiert(str(w))}"' for n, w in attribute if w is not None) + "/>"


def anzahlen(neu, befunde, modus_i):
    """What the head of the protocol counts: warnings apart in the old interface, both in one sum in the new one; errors only
    in mode I."""
    warnungen = sum(TEXTE[b.code][0] == "B" for b in befunde)
    if modus_i:
        return [("Errors", len(befunde) - warnungen)]
    if neu:
        return [("Errors", len(befunde))]
    return [("Errors", len(befunde) - warnungen), ("Warnings", warnungen)]


def gezaehlt(protokoll):
    kopf = ET.fromstring(protokoll.encode("latin-1")).find("Test")
    return [(e.tag, int(e.text)) for e in kopf if e.tag in ("Errors", "Warnings")]


def pruefe(art, saetze, soll, teile=(), wie_im_protokoll=False, neu=None, kopf=None, schluss=None, katalog="leer", mehr=()):
    """One run: all Error elements, the counts, a well-formed protocol; `teile` are other pieces that it must hold.

    `wie_im_protokoll`: `soll` stands in the order of the protocol. `neu` tells the interface by which a file is counted
    whose revision doesn't tell it.
    """
    protokoll = lauf(art, saetze, kopf, schluss, katalog, mehr=mehr)
    if soll == ABBRUCH:
        assert protokoll == ABBRUCH
        return protokoll
    zeilen = zeilen_der_datei(art, saetze, kopf, schluss)
    folge = soll if wie_im_protokoll else geordnet(soll, zeilen)
    assert elemente(protokoll) == [element(b, zeilen) for b in folge]
    assert gezaehlt(protokoll) == anzahlen(art == "E1S" if neu is None else neu, soll, "mode=I" in mehr)
    for teil in teile:
        assert teil in protokoll
    return protokoll


def fall(name, arten, saetze, soll, **mehr):
    """One case in each of the kinds of file in `arten`, one or several."""
    for art in [arten] if isinstance(arten, str) else arten:
        anmelden(f"{name} [{art}]", partial(pruefe, art, saetze, soll, **mehr))
