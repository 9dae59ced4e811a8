"""Random chapters against random documents, with a fixed seed: the whole list of findings, compared with a plain scan
written here. Everything is searched from the front, nothing is indexed; chapters are taken as the scanner reads them,
torn and damaged ones too.
SEED=7 RUNS=5000 in the environment make other runs and more of them.
"""
import os
import random
import re
from decimal import Decimal
from functools import partial

from befunde import f, fall
from katalogbau import (G1, G2, G3, G4, G5, G6, H, U, V, dateiname, eintrag, geordnet, kapitel, ordner, sammeldatei)
from rahmen import ABBRUCH, befehl, erwarte, faelle, parameter


class Abgebrochen(Exception):
    pass


# The scanner: positions count from 1 and 0 is not found, as in the rules it follows.

def finde(text, was, ab=1):
    if ab < 1:
        raise Abgebrochen
    return text.find(was, ab - 1) + 1


def stueck(text, ab, laenge):
    if ab < 1 or laenge < 0:
        raise Abgebrochen
    return text[ab - 1:ab - 1 + laenge]


def name_von(text):
    try:
        auf = finde(text, "<")
        zu, leer = finde(text, ">", auf + 1), finde(text, " ", auf + 1)
        return stueck(text, auf + 1, min(leer, zu) - auf - 1) if auf else ""
    except Abgebrochen:
        return ""


def suche(name, text):
    treffer = []

    def merke(von, bis, tiefe):
        if tiefe == 1 and name_von(text[von - 1:bis]) == name:
            treffer.append(text[von - 1:bis])

    def lies(start, tiefe):
        try:
            auf = finde(text, "<", start)
            zu = auf and finde(text, ">", auf + 1)
            if not zu:
                return 0
            if text[zu - 2] == "/":
                merke(auf, zu, tiefe)
                return zu
            leer = finde(text, " ", auf + 1)
            zu = min(zu, leer)
            element = stueck(text, auf + 1, zu - auf - 1)
            while stueck(text, zu + 1, 2) != "</":
                zu = lies(zu + 1, tiefe + 1)
                if zu == 0:
                    return 0
            auf2 = finde(text, "<", zu + 1)
            zu2 = finde(text, ">", auf2 + 1)
            if stueck(text, auf2 + 1, zu2 - auf2 - 1) != "/" + element:
                return 0
            merke(auf, zu2, tiefe)
            return zu2
        except Abgebrochen:
            return 0

    stelle = lies(1, 0)
    while stelle:
        stelle = lies(stelle + 1, 0)
    return treffer


def attribut(name, text):
    stelle = finde(text, name + "=")
    if stelle == 0 or stelle > finde(text, ">"):
        return ""
    q1 = finde(text, '"', stelle + len(name) + 1)
    q2 = finde(text, '"', q1 + 1)
    return text[q1:q2 - 1] if 0 < q1 < q2 else ""


BREITE = {"N": (-32768, 32767), "E": (-32768, 32767), "X": (0, 255), "Y": (0, 255), "W": (-2 ** 31, 2 ** 31 - 1)}


def vorn(name, text):
    """The number in front of an attribute's value; out of its width it fails."""
    zahl = re.match(r" *([+-]?[0-9]*(\.[0-9]*)?)", attribut(name, text))[1]
    wert = round(Decimal(zahl)) if re.search("[0-9]", zahl) else 0
    if not BREITE[name][0] <= wert <= BREITE[name][1]:
        raise Abgebrochen
    return wert


def geparst(text):
    """The chapter as lists, or None where it counts as absent."""
    text = text[text.find("<"):] if "<" in text else ""
    if name_von(text) != "Kapitel":
        return None
    for name, soll in (("N", 241), ("S", 1), ("V", 2013), ("A", None)):
        try:
            wert = streng(attribut(name, text), 32767)
        except Abgebrochen:
            return None
        if soll is not None and wert != soll:
            return None
    try:
        return [(vorn("N", h), [uposition(u) for u in suche("U", h)]) for h in suche("H", text) if vorn("X", h) >= 0]
    except Abgebrochen:
        return None


def uposition(u):
    vorn("X", u)
    return (vorn("N", u), vorn("W", u), vorn("Y", u),
            [(vorn("N", v), attribut("A", v), vorn("E", v)) for v in suche("V", u)])


# The files. A chapter is None when it counts as absent; Abgebrochen where the run ends.

def streng(text, hoechstens=2 ** 31 - 1):
    text = text.strip(" ")
    if not re.fullmatch(r"[+-]?[0-9]+(\.[0-9]+)?", text) or not -hoechstens - 1 <= round(Decimal(text)) <= hoechstens:
        raise Abgebrochen
    return round(Decimal(text))


def kuerzeltabelle(roh):
    """The table of a raw chapter and where its body begins; None for a bad code."""
    tabelle, i = {}, 30
    while True:
        if i >= len(roh):
            raise Abgebrochen
        code, ende = ord(roh[i]), roh.find("\n", i + 1)
        if code == 32:
            return tabelle, i + 1
        if ende < 0:
            raise Abgebrochen
        if not 1 <= code <= 31:
            return None, 0
        tabelle[code], i = roh[i + 1:ende], ende + 1


def ausgeschrieben(text, tabelle):
    return "".join(z if ord(z) > 31 else tabelle.get(ord(z), "") for z in text)


def entpackt(roh):
    if roh[:4] != "CF11":
        return None
    for von, bis in ((4, 8), (8, 9), (9, 12), (12, 21), (21, 30)):
        streng(roh[von:bis])
    tabelle, rumpf = kuerzeltabelle(roh)
    return None if tabelle is None else ausgeschrieben(roh[rumpf:], tabelle)


def gesammelt(roh):
    """The entries of a collected file; ends with None where the walk fails."""
    stelle = 0
    while stelle + 1 < len(roh):
        kopf = roh[stelle:stelle + 30]
        try:
            laenge = streng(kopf[12:21])
        except Abgebrochen:
            laenge = 0
        if laenge < 30:
            yield None
            return
        yield kopf, roh[stelle:stelle + laenge], roh[stelle:stelle + 1000]
        stelle += laenge


def geholt(roh, sammlung):
    """The raw chapter 241 of 2013 in German."""
    if not sammlung:
        return roh
    for teil in gesammelt(roh):
        if teil is None:
            return ""
        if teil[0][4:12] == "20131241":
            return teil[1]
    return ""


def verzeichnis(roh, sammlung):
    """The chapter list of one file: the elements, none where it fails."""
    text = ""
    try:
        for teil in gesammelt(roh) if sammlung else [("    20131241", "", roh[:1000])]:
            if teil is None:
                raise Abgebrochen
            kopf, _, gelesen = teil
            if kopf[8:9] != "1":
                continue
            nummer, jahr = streng(kopf[9:12]), streng(kopf[4:8])
            if text:
                text += "\n"
            anfang = gelesen.find("<Kapitel")
            if anfang < 0:
                raise Abgebrochen
            ende = gelesen.find("><", anfang)
            if ende < 0:
                text += f"{nummer}\t{jahr}\t\t\t"
                continue
            tabelle, _ = kuerzeltabelle(gelesen)
            if tabelle is None:
                continue
            wurzel = ausgeschrieben(gelesen[anfang:ende + 1], tabelle)
            text += "\t".join(attribut(n, wurzel) for n in "NVATZ")
    except Abgebrochen:
        text = ""
    ergebnis = []
    for zeile in text.split("\n") if text else []:
        werte = (zeile.split("\t") + [""] * 5)[:5]
        for i, wert in enumerate(werte):
            wert = re.sub("[\0-\x1f\x80-\x90\x93-\x9f]", "", re.sub("[\x91\x92]", "'", wert))
            for zeichen, ersatz in (("&", "amp"), ("<", "lt"), (">", "gt"), ("'", "apos"), ('"', "quot")):
                wert = wert.replace(zeichen, f"\1{ersatz};")
            werte[i] = wert.replace("\1", "&")
        mit_z = zeile.split("\t")[4:5] not in ([], [""])
        paare = list(zip("NVATZ", werte))[:5 if mit_z else 4]
        ergebnis.append("<Worksection" + "".join(f' {n}="{w}"' for n, w in paare) + "/>")
    return ergebnis


def zufallsdatei(zufall, rumpf):
    """Bytes of a chapter file with abbreviations, in a collected file or alone, torn at some places."""
    rumpf = rumpf.replace('T="Titel"', f'T="{zufall.choice(["A &amp; B", chr(0xe4), chr(0x91) + chr(0x80), "", "Titel"])}"')
    if zufall.random() < 0.3:
        rumpf = rumpf.replace('Z=""', 'Z="z"')
    roh, kuerzel = rumpf.encode("latin-1"), {}
    for code in zufall.sample(range(1, 32), zufall.randint(0, 5)):
        if len(roh) > 40:
            von = zufall.randrange(len(roh) - 12)
            text = roh[von:von + zufall.randint(2, 12)]
            if min(text) > 31:
                kuerzel[code] = text
                roh = roh.replace(text, bytes([code]))
    datei = eintrag(roh, kuerzel=kuerzel)
    sammlung = zufall.random() < 0.5
    if sammlung:
        andere = [eintrag(kapitel(H(111, U(1)), n=242), nummer=242), eintrag(kapitel(s=2), sprache=2), eintrag("", nummer=243)]
        teile = [datei, *zufall.sample(andere, zufall.randint(0, 2))]
        zufall.shuffle(teile)
        datei = b"".join(teile)
    while zufall.random() < 0.5:
        i = min(zufall.randrange(len(datei) + 1), zufall.choice((len(datei), 40, 90)))
        art = zufall.randrange(4)
        if art == 0:
            datei = datei[:i] + datei[i + 1:]
        elif art == 1:
            datei = datei[:i] + bytes([zufall.choice((0, 1, 9, 10, 13, 32, 33, 48, 49, 255, zufall.randrange(256)))]) + datei[i:]
        elif art == 2:
            datei = datei[:zufall.randrange(len(datei) + 1)] if zufall.random() < 0.3 else datei
        else:
            datei = datei[:i] + bytes([zufall.choice(b"0123456789 <>.+-")]) + datei[i + 1:]
    return datei, sammlung


# The chapter

class Kapitel:
    def __init__(self, haupt):
        self.haupt, self.u = haupt, None
        self.knoten = []
        for n, us in haupt:
            for u in us:
                nr = n * 1000 + u[0]
                if self.knoten and self.verfeinert(self.knoten[-1], nr):
                    self.knoten[-1] = nr
                else:
                    self.knoten.append(nr)
        if len(self.knoten) > len(haupt) * 729 + 1:
            self.knoten = []
        self.aeste()

    @staticmethod
    def verfeinert(letzter, nr):
        stufe = 10
        while letzter // stufe:
            if nr % stufe:
                if letzter % stufe:
                    return False
                if letzter // stufe == nr // stufe:
                    return True
            stufe *= 10
        return False

    def aeste(self):
        stufen = [[], [], []]
        for p in self.knoten:
            m = p // 1000 % 1000
            schluessel = (p // 100000 * 100, p // 10000 * 10, m)
            for stufe, ziffer in enumerate((m // 100, m // 10 % 10, m % 10)):
                if ziffer == 0:
                    break
                liste = stufen[stufe]
                if not liste or liste[-1][0] != schluessel[stufe]:
                    liste.append([schluessel[stufe], 0])
                liste[-1][1] += p % 10 != 0
        self.ast = []
        for liste, schritt in zip(stufen, (100, 10, 1)):
            for e in liste:
                if e[1] == 0 and any(a[0] <= e[0] <= a[1] for a in self.ast):
                    e[1] = -1
            i = 0
            while i < len(liste):
                if liste[i][1] == 0:
                    von, bis = liste[i][0], liste[i][0] + schritt - 1
                    while i + 1 < len(liste) and liste[i + 1] == [liste[i][0] + schritt, 0]:
                        i, bis = i + 1, bis + schritt
                    ende = 999 if schritt == 100 else von // (schritt * 10) * schritt * 10 + schritt * 10 - 1
                    self.ast.append((von, bis, bis + 1, ende))
                i += 1

    def im_ast(self, p):
        for von, bis, g1, g2 in self.ast:
            if von <= p // 1000 <= bis:
                return g1 * 1000, g2 * 1000 + 999
        return None

    def finde(self, n, liste):
        return next((e for e in liste if e[0] == n), None)

    def kennt(self, p, grenze, melde, neu):
        """Sets self.u; true, false, or "range"."""
        self.u = None
        h, unter = self.finde(p // 1000, self.haupt), p % 1000
        if h is None:
            return False
        if unter == 0:
            return True
        self.u = self.finde(unter, h[1])
        if self.u is None:
            i = next((i for i, k in enumerate(self.knoten) if k > p), len(self.knoten))
            if i == 0:
                return False
            self.u = self.finde(self.knoten[i - 1] % 1000, h[1])
            if self.u is None or self.u[1] == 0:
                return False
        elif self.u[1] == 0:
            return True
        von, bis = self.u[1] // 1000, self.u[1] % 1000
        if not von < unter <= bis or grenze and not von < grenze % 1000 <= bis:
            return False
        if neu and p % 10 == 0 and (von % 10 or von % 100 and p % 100 == 0):
            melde(6213)
        self.u = self.finde(von, h[1])
        return self.u is not None

    def endknoten(self, p):
        if p < 1 or p % 10:
            return True
        ende, stufe = p, 10
        while True:
            ende, stufe = ende + stufe * 9 // 10, stufe * 10
            if p % stufe:
                break
        return next((k > ende for k in self.knoten if k > p), True)

    def im_bereich(self, p):
        h = self.finde(p // 1000 % 1000, self.haupt)
        return p % 1000 != 0 and h is not None and any(
            u[1] and u[1] // 1000 <= p % 1000 <= u[1] % 1000 for u in h[1])


# The findings. A document is a map from positions to (variables, assigned, remarks); a variable has lines and, on its
# last line, an insertion point.

def reserve(p):
    return "9" in f"{p:06}"[1:5]


def befunde(doc, kap, neu):
    ergebnis = []
    liste = sorted(doc)

    def melde(code, p):
        ergebnis.append((p, code))

    danach = 0
    for p in reversed(liste):
        if p % 10 == 0:
            spanne = next(s for s in (99999, 9999, 999, 99, 9) if p % (s + 1) == 0)
            if p < danach < p + spanne:
                if not doc[p][0] and not reserve(p):
                    melde(4711, p)
                if doc[p][1]:
                    melde(4731, p)
        danach = p
    for p in liste:
        variablen, zugeordnet, bemerkungen = doc[p]
        if reserve(p) and not any(e or any(z.strip() for z in zeilen) for zeilen, e in variablen.values()):
            melde(4721, p)
        for r in bemerkungen:
            if r and r not in doc:
                melde(4741, p)
            if r and neu:
                nah = any(a <= r <= a + w for a, w in ((p // 1000 * 1000, 99), (p // 10000 * 10000, 999),
                                                      (p // 100000 * 100000, 999), (0, 999)))
                ast = kap and r <= p and kap.im_ast(r)
                if not nah and not (ast and ast[0] <= p <= ast[1]):
                    melde(4742, p)
    if kap is None:
        melde(6101, 0)
        return sorted(ergebnis)
    for p in liste:
        variablen, zugeordnet, _ = doc[p]
        hier = lambda code: melde(code, p)
        if reserve(p):
            if p % 10 and kap.im_ast(p):
                hier(6221)
            bezug = p // 1000 * 1000 if p % 1000 else p // 10000 * 10000 if p % 10000 else p // 100000 * 100000
            if neu and p % 10 == 0 and p // 10 % 10:
                bezug = p // 100 * 100
            if bezug in doc:
                continue
            if not kap.kennt(bezug, p, hier, neu) and bezug:
                hier(6211)
            if not neu:
                continue
            if kap.im_bereich(p):
                hier(6212)
            if p % 1000 == 90 and kap.kennt(p // 1000 * 1000 + 1, 0, hier, neu):
                hier(6231)
            if 91 <= p % 1000 <= 99 and not kap.kennt(p // 1000 * 1000 + 1, 0, hier, neu):
                hier(6232)
            continue
        if not kap.kennt(p, 0, hier, neu):
            hier(6201)
            continue
        u = kap.u
        if not variablen and u and u[2] == 1:
            hier(6202)
        gruppen = []
        for n, (zeilen, punkt) in sorted(variablen.items()):
            v = kap.finde(n, u[3]) if u else None
            if v is None:
                hier(6301)
                continue
            e = v[2]
            if e > 0:
                for z, text in enumerate(zeilen, 1):
                    vor = text if z < (e - 1) // 30 + 1 else text[:(e - 1) % 30] if z == (e - 1) // 30 + 1 else ""
                    if vor.strip():
                        hier(6303)
            elif e == 0 and any(z.strip() for z in zeilen):
                hier(6302)
            if punkt and (e == 0 or (len(zeilen) - 1) * 30 + punkt < e):
                hier(6304)
            if v[1]:
                for g in gruppen:
                    if g == v[1]:
                        hier(6305)
            gruppen.append(v[1])
        if zugeordnet and not kap.endknoten(p):
            hier(6401)
    return sorted(ergebnis)


# The generator

def ziffern(zufall, auswahl=((0, 4), (1, 4), (2, 2), (9, 1))):
    werte, gewichte = zip(*auswahl)
    return zufall.choices(werte, gewichte)[0]


def nummer(zufall):
    return zufall.choice((100, 110, 111, 111, 111, 112, 112, 119, 120, 121, 190, 211, 11))


def unter(zufall):
    return zufall.choice((1, 2, 10, 11, 50, 90, 91, 100, 101, 110, 111, 120, 121, 190, 191, 200, 900, ziffern(zufall) * 100
                          + ziffern(zufall) * 10 + ziffern(zufall)))


def zufallskapitel(zufall):
    haupt = []
    for n in sorted({nummer(zufall) for _ in range(zufall.randint(0, 5))}):
        us = []
        nur_text = zufall.random() < 0.4
        for m in sorted({unter(zufall) // (10 if nur_text else 1) * (10 if nur_text else 1) for _ in range(zufall.randint(0, 5))}):
            vs = [V(i, a=zufall.choice((None, "", "x", "y")), e=zufall.choice((None, 0, 1, 5, 31, 35, -7)))
                  for i in range(4) if zufall.random() < 0.3]
            von = zufall.choice((m, unter(zufall)))
            w = von * 1000 + zufall.choice((199, 299, 999, unter(zufall))) if zufall.random() < 0.3 else None
            us.append(U(m, *vs, w=w, y=zufall.choice((None, None, 0, 1))))
        if zufall.random() < 0.1:
            zufall.shuffle(us)
        haupt.append(H(n, *us))
    if zufall.random() < 0.1:
        zufall.shuffle(haupt)
    text = kapitel(*haupt)
    while zufall.random() < 0.3:
        i = zufall.randrange(len(text))
        art = zufall.randrange(4)
        if art == 0:
            text = text[:i] + text[i + 1:]
        elif art == 1:
            text = text[:i] + zufall.choice('<>/" =NUHV0x') + text[i:]
        elif art == 2:
            text = text[:i]
        else:
            j = zufall.randrange(len(text))
            text = text[:i] + text[j:j + zufall.randint(1, 30)] + text[i:]
        if not text:
            break
    return text


def zufallsdokument(zufall):
    doc = {}
    for _ in range(zufall.randint(1, 8)):
        p = nummer(zufall) * 1000 + (unter(zufall) if zufall.random() < 0.8 else 0)
        # The structure that the records themselves ask for.
        d = [int(z) for z in f"{p:06}"]
        if d[2] and not d[1] or d[5] and (p < 100000 or not d[2]):
            continue
        variablen = {}
        if zufall.random() < 0.5:
            for v in range(4):
                if (v == 0 or p % 1000) and zufall.random() < 0.4:
                    zeilen = [zufall.choice(("", "", "x", "    x", " " * 29 + "x")) for _ in range(zufall.randint(1, 3))]
                    punkt = zufall.choice((0, 0, 1, 5, 30)) if v else 0
                    variablen[v] = (zeilen, punkt)
        doc[p] = (variablen, p % 10 == 0 and zufall.random() < 0.4,
                  [nummer(zufall) * 1000 + unter(zufall)] if p % 10 and zufall.random() < 0.5 else [])
    # The newer interface wants the superior position of a reserve position in the document.
    for p in sorted(doc, reverse=True):
        while p % 100000:
            q = p // 1000 * 1000 if p % 1000 else p // 10000 * 10000 if p % 10000 else p // 100000 * 100000
            q2 = p // 100 * 100
            for bezug in ([q] if reserve(q) else []) + ([q2] if p % 10 == 0 and p // 10 % 10 and reserve(p) and
                                                       p // 100 % 10 and reserve(q2) else []):
                doc.setdefault(bezug, ({}, False, []))
            p = q
    return doc


def saetze(doc):
    z = [G1()]
    for p, (variablen, zugeordnet, bemerkungen) in doc.items():
        z.append(G2(p))
        z += [G3(p, v, *zeilen, e={len(zeilen): punkt} if punkt else None) for v, (zeilen, punkt) in variablen.items()]
        z += [G4(p)] if zugeordnet else []
        z += [G5(p), *[G6(p, r) for r in bemerkungen]] if bemerkungen else []
    return geordnet(z)


def gelesen(text):
    """The chapter of a text; None where it counts as absent."""
    haupt = None if text is None else geparst(text)
    return None if haupt is None else Kapitel(haupt)


def soll_befunde(doc, kap, neu):
    return [f(c, I=f"241.{p // 1000:03}.{p % 1000:03}") for p, c in befunde(doc, kap, neu)]


def liste(katalog):
    """The chapters that the program lists of a catalogue."""
    return re.findall("<Worksection [^>]*/>", befehl(parameter("*1", katalog=katalog)))


def laeufe():
    zufall = random.Random(int(os.environ.get("SEED", "451")))
    for lauf in range(int(os.environ.get("RUNS", "500"))):
        text, doc = zufallskapitel(zufall), zufallsdokument(zufall)
        art = zufall.choice(("01S", "E1S"))
        datei = eintrag(text)
        fall(f"run {lauf}", art, saetze(doc), soll_befunde(doc, gelesen(text), art == "E1S"),
             katalog=ordner({dateiname(): datei}) if lauf % 2 else sammeldatei([eintrag("", nummer=242), datei]))

        # The same as bytes, damaged now and then: the findings and the list of chapters.
        datei, sammlung = zufallsdatei(zufall, text)
        roh = datei.decode("latin-1")
        try:
            inhalt = entpackt(geholt(roh, sammlung))
            soll = soll_befunde(doc, gelesen(inhalt), art == "E1S")
        except Abgebrochen:
            soll = ABBRUCH
        katalog = sammeldatei([datei]) if sammlung else ordner({dateiname(): datei})
        fall(f"bytes of run {lauf}", art, saetze(doc), soll, katalog=katalog)
        erwarte(f"list of run {lauf}", partial(liste, katalog), verzeichnis(roh, sammlung))


laeufe()
test_random_chapters_against_random_documents = faelle()
