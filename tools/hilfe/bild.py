"""How the records of an example stand on a page: with their columns, and what the right file changes, field by field."""
from difflib import SequenceMatcher

from woerter import WOERTER

LUECKE = 10  # a gap of at least so many columns that are blank in all lines is left out
TRENNER = " ~ "
RAND = 9  # columns for the mark and the number of a line


def lineal(laenge):
    """---------1---------2: the last digit of a number stands in its column."""
    zeichen = ["-"] * laenge
    for zehner in range(10, laenge + 1, 10):
        zahl = str(zehner // 10)
        zeichen[zehner - len(zahl):zehner] = zahl
    return "".join(zeichen)


def stuecke(zeilen):
    """The stretches of columns, from 0, that some line uses; gaps that are shorter than LUECKE count as used."""
    benutzt = sorted({i for zeile in zeilen for i, z in enumerate(zeile) if z != " "})
    bereiche = []
    for spalte in benutzt:
        if bereiche and spalte - bereiche[-1][1] < LUECKE:
            bereiche[-1][1] = spalte + 1
        else:
            bereiche.append([spalte, spalte + 1])
    # The ruler names a stretch only where it reaches a number.
    return [(von // 10 * 10, max(bis, von // 10 * 10 + 10)) if von else (0, bis) for von, bis in bereiche]


def sichtbar(satz):
    """Characters that a page can't show, as their pictures."""
    return "".join(chr(0x2400 + ord(z)) if ord(z) < 32 else "\u2421" if ord(z) == 127 else
                   "\ufffd" if 128 <= ord(z) < 160 else z for z in satz)


def block(datei, plaetze, titel):
    """Lines of a file behind their numbers, the marked ones behind '>', below a ruler with a title in front of it."""
    saetze = {i: sichtbar(datei.saetze[i]).rstrip() for i in plaetze if i < len(datei.saetze)}
    teile = _vereint(stuecke(list(saetze.values()))) or [(0, 10)]
    zeilen = [titel.ljust(RAND) + TRENNER.join(lineal(bis)[von:bis] for von, bis in teile)]
    for i, satz in saetze.items():
        inhalt = TRENNER.join(satz[von:bis].ljust(bis - von) for von, bis in teile)
        zeilen.append(f"{'>' if i in datei.markiert else ' '}{i + 1:>{RAND - 3}}  {inhalt}".rstrip())
    return zeilen


def _vereint(bereiche):
    """Stretches that touch become one."""
    ergebnis = []
    for von, bis in bereiche:
        if ergebnis and von <= ergebnis[-1][1]:
            ergebnis[-1] = (ergebnis[-1][0], max(bis, ergebnis[-1][1]))
        else:
            ergebnis.append((von, bis))
    return ergebnis


def aenderungen(lauf, tabellen, sprache):
    """["G2:3, Spalten 8-13: `011001` wird `211001`"]: where the marked lines of both files are a pair, else nothing."""
    falsch, richtig = lauf.falsch, lauf.richtig
    if len(falsch.markiert) != len(richtig.markiert):
        return []
    texte = []
    for i, j in zip(falsch.markiert, richtig.markiert):
        if max(i, j) >= min(len(falsch.saetze), len(richtig.saetze)):
            return []
        alt, neu = falsch.saetze[i], richtig.saetze[j]
        if SequenceMatcher(None, alt.rstrip(), neu.rstrip()).ratio() < 0.5:
            return []
        felder = tabellen.felder_des_records(neu, lauf.art)
        if _ohne_felder(alt, felder) != _ohne_felder(neu, felder):
            return []
        for feld in felder:
            von, bis = feld["spalte"] - 1, feld["spalte"] - 1 + feld["laenge"]
            werte = [satz[von:bis].rstrip() for satz in (alt, neu)]
            if werte[0] != werte[1]:
                texte.append(_aenderung(feld, *werte, sprache))
    return texte


def _ohne_felder(satz, felder):
    """What stands outside of the fields."""
    zeichen = list(satz)
    for feld in felder:
        von = feld["spalte"] - 1
        zeichen[von:von + feld["laenge"]] = [" "] * len(zeichen[von:von + feld["laenge"]])
    return "".join(zeichen).rstrip()


def _aenderung(feld, alt, neu, sprache):
    w = WOERTER[sprache]
    text = w["statt"].format(alt=sichtbar(alt), neu=sichtbar(neu)).replace("``", w["leer"])
    return f"{feld['feld']}, {spalten(feld['spalte'], feld['laenge'], sprache)}{w['doppelpunkt']} {text}"


def spalten(spalte, laenge, sprache):
    w = WOERTER[sprache]
    return f"{w['spalte']} {spalte}" if laenge == 1 else f"{w['spalten']} {spalte}–{spalte + laenge - 1}"
