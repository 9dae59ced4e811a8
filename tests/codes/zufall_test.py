"""Random documents of structure, condition and attachment records, against the rules written down once more.

Fields come from few values, so that codes repeat, levels collide and jokers meet; numbers are now and then no numbers.
The seed is fixed. Modell is the plain form of the rules: lists, scans from the first entry, findings in the order of
their report.
"""
import random

from befunde import f, fall
from rahmen import BEIDE, faelle, satz

DOKUMENTE = 150  # of each kind of file
FELDNAME = {}  # (record, column) -> field reference
for record, felder in {
        "B0": "2a:2 2c:6 10:36 19:63 20:75", "B1": "2a:2 21:82 23:93 24e:138 24h:208",
        "B2": "2a:2 6:18 7:24 20:75 23:93 24e:138", "B3": "2a:2 16:59 22:87 23:93 24e:138 24h:208",
        "B4": "2a:2 20:75 23:93 24b:129 24e:138", "B5": "2a:2 8:30 20:75 23:93 24c-d:135 24e:138",
        "B6": "2a:2 8:30 9:33 20:75 23:93 24e:138", "B7": "2a:2 23:93 24e:138 24f:168",
        "B8": "2a:2 23:93 24e:138 24g:188", "C0": "2a:2 14:45 15-16:46",
        "C1": "2a:2 2b:5 2c:6 5:16 10:36 13:44 14:45 15-16:46 17:61 18:62 19:63 20a:75 20b:76",
        "C5": "2a:2 3a:8 6:18 7:24 8:30 9:33 21:82 22:87 24b:129 24d:136", "X4": "2a:2 3:8 4:14 5:16 23:93",
        "X5": "2a:2 3:8 4:14 5:16 23:93", "P1": "2a:2 3:8 4:14 12:43 23:93", "P2": "2a:2 3:8 4:14 23:93",
        "P3": "2a:2 3:8 4:14 5:16 23:93", "P4": "2a:2 3:8 4:14 5:16 23:93", "P5": "2a:2 3:8 4:14 5:16 23:93"}.items():
    for feld in felder.split():
        nummer, spalte = feld.split(":")
        FELDNAME[record, int(spalte)] = f"{record}:{nummer}"


class Modell:
    def __init__(self, neu):
        self.neu, self.befunde = neu, []
        self.zeilen, self.L, self.satz = [], None, ""
        self.da, self.reihenfolgen = set(), []
        self.kag, self.ogl, self.ekg, self.typen, self.gruppen, self.nutzungen, self.raeume = ([] for _ in range(7))
        self.brutto, self.konditionen = False, []

    # Fields
    def melde(self, code, spalte=None):
        if code == 3003 and not self.neu:
            return
        feld = None
        if spalte:
            undefiniert = not self.neu and self.satz[0] + self.satz[41] in ("B7", "B8")
            feld = str(spalte) if undefiniert else FELDNAME[self.satz[0] + self.satz[41], spalte]
        self.befunde.append(f(code, self.L, feld))

    def text(self, spalte, laenge, pflicht=0):
        wert = self.satz[spalte - 1:spalte - 1 + laenge].rstrip(" ")
        if not wert and pflicht:
            self.melde({1: 3002, 2: 3003}[pflicht], spalte)
        return wert

    def schluessel(self, spalte, laenge):
        wert = self.text(spalte, laenge)
        stern = wert.find("*") + 1
        if 1 <= stern < len(wert):
            self.melde(3001, spalte)
        if wert.startswith(" "):
            self.melde(3001, spalte)
        return wert

    def zahl(self, spalte, laenge, pflicht=0):
        wert = self.satz[spalte - 1:spalte - 1 + laenge]
        if not wert.rstrip(" "):
            self.text(spalte, laenge, pflicht)
            return 0
        if len(wert) < laenge or any(z not in "0123456789" for z in wert):
            self.melde(3001, spalte)
            return 0
        return int(wert)

    def betrag(self, vorzeichen, spalte, laenge, codes):
        """The amount is read where its turn comes; the rule of its sign is judged later."""
        zeichen = self.text(vorzeichen, 1)
        leer = not self.text(spalte, laenge)
        self.zahl(spalte, laenge)
        falsch, kein_betrag, kein_vorzeichen = codes

        def urteil():
            if zeichen:
                if zeichen not in "+-":
                    self.melde(falsch)
                if leer:
                    self.melde(kein_betrag)
            elif not leer:
                self.melde(kein_vorzeichen)
        return urteil

    def folge(self, spalte, laenge, wert):
        if self.neu:
            if self.text(spalte, laenge):
                self.melde(3208)
            return 0
        return wert

    # Structures
    def b0(self):
        nummer, _, name = self.zahl(2, 3, 1), self.zahl(6, 2), self.text(36, 6)
        jahr, folge = self.text(6, 2), self.zahl(75, 7)
        if nummer < 1 or nummer > 8 or nummer == 6:
            return self.melde(3201)
        if nummer in (1, 3):
            if self.neu and bool(name) != bool(jahr):
                self.melde(3203)
        elif name or jahr:
            self.melde(3202)
        self.da.add(nummer)
        self.reihenfolgen.append(folge)

    def kosten(self, nummer, spalte, laenge, codes, tabelle):  # B1, B3
        gelesen, code = self.zahl(2, 3, 1), self.text(spalte, laenge, 1)
        self.text(93, 30, 2)
        ecode = self.text(208, 16)
        if gelesen != nummer:
            return self.melde(codes[0])
        if nummer not in self.da:
            return self.melde(codes[1])
        if any(e[0] == code for e in tabelle):
            return self.melde(codes[2])
        if self.neu and ecode and any(e[1] == ecode for e in tabelle):
            return self.melde(codes[3])
        tabelle.append((code, ecode))

    def suche_und_fuege_an(self, tabelle, eintrag, folge, doppelt, gleiche_folge):
        """An entry is a list whose first two elements are code and order."""
        for e in tabelle:
            if e[0] == eintrag[0]:
                return self.melde(doppelt)
            if folge and e[1] == folge:
                self.melde(gleiche_folge)
        tabelle.append(eintrag)

    def b2(self):
        nummer, ogl, psl = self.zahl(2, 3, 1), self.text(18, 6, 1), self.text(24, 6)
        self.text(93, 30, 2)
        folge = self.folge(75, 7, self.zahl(75, 7))
        if nummer != 2:
            return self.melde(3211)
        if 2 not in self.da:
            return self.melde(3212)
        if not psl:
            return self.suche_und_fuege_an(self.ogl, [ogl, folge, []], folge, 3213, 3219)
        oben = next((e for e in self.ogl if e[0] == ogl), None)
        if oben is None:
            return self.melde(3214)
        self.suche_und_fuege_an(oben[2], [psl, folge], folge, 3215, 3219)

    def familie(self, nummer, spalte, laenge, codes, tabelle, mit_folge=False, primaer=False):  # B4, B5, B7, B8
        gelesen, code = self.zahl(2, 3, 1), self.text(spalte, laenge, 1)
        self.text(93, 30, 2)
        variante = self.text(135, 3, 1) if primaer else ""
        folge = self.folge(75, 7, self.zahl(75, 7)) if mit_folge else 0
        if gelesen != nummer:
            return self.melde(codes[0])
        if nummer not in self.da:
            return self.melde(codes[1])
        self.suche_und_fuege_an(tabelle, [code, folge, [], variante], folge, codes[2], codes[-1])

    def b6(self):
        nummer, gruppe, code = self.zahl(2, 3, 1), self.text(30, 3, 1), self.text(33, 3, 1)
        self.text(93, 30, 2)
        folge = self.folge(75, 7, self.zahl(75, 7))
        if nummer != 5:
            return self.melde(3251)
        oben = next((e for e in self.gruppen if e[0] == gruppe), None)
        if oben is None:
            return self.melde(3252)
        self.suche_und_fuege_an(oben[2], [code, folge], folge, 3253, 3259)

    def b_ende(self):
        for _, _, varianten, primaer in self.gruppen:
            if all(v[0] != primaer for v in varianten):
                self.L = next(i + 2 for i, z in enumerate(self.zeilen)
                              if z[0] == "B" and z[41:42] == "5" and z[134:137].rstrip(" ") == primaer)
                self.melde(3291)
        gezaehlt = [w for w in self.reihenfolgen if w]
        if self.neu and len(set(gezaehlt)) < len(gezaehlt):
            self.L = None
            self.melde(3205)

    # Conditions
    def gefunden(self, codes, gesucht, nummer):
        if nummer not in self.da:
            return False
        if "*" in gesucht:
            anfang = gesucht[:gesucht.index("*")]
            return not anfang or any(c.startswith(anfang) for c in codes)
        return gesucht in codes

    def unter(self, tabelle, oben, gesucht, nummer):
        eintrag = next((e for e in tabelle if e[0] == oben), None)
        return nummer in self.da and eintrag is not None and self.gefunden([u[0] for u in eintrag[2]], gesucht, nummer)

    def c0(self):
        nummer = self.zahl(2, 3, 1)
        urteil = self.betrag(45, 46, 13, (5102, 5103, 5104))
        if nummer:
            self.melde(5101)
        urteil()
        self.brutto = True

    def c1(self):
        nummer, stufe, bezug, art = self.zahl(2, 3, 1), self.zahl(6, 2, 1), self.zahl(16, 2), self.zahl(5, 1, 1)
        berechnung, zaehlt, frist = self.text(44, 1, 1), self.text(61, 1), self.text(36, 6)
        self.zahl(36, 6)
        urteile = [self.betrag(45, 46, 15, (5231, 5232, 5233)), self.betrag(75, 76, 6, (5241, 5242, 5243)),
                   self.betrag(62, 63, 12, (5251, 5252, 5253))]
        t = self.konditionen
        for code, fehler in (
                (5201, not self.brutto), (5202, not 1 <= nummer <= 999), (5203, any(k[0] == nummer for k in t)),
                (5211, not 1 <= stufe <= 99), (5212, any(k[1] == stufe for k in t)), (5213, bezug >= stufe),
                (5221, not 1 <= art <= 5), (5222, not berechnung), (5223, zaehlt and zaehlt not in "+-"),
                (5224, art == 3 and not frist), (5225, art != 3 and frist)):
            if fehler:
                self.melde(code)
        for urteil in urteile:
            urteil()
        if self.neu and art == 2:
            steuern = [i for i, k in enumerate(t) if k[2] == 2]
            soll = 0 if not t else t[steuern[0] - 1][1] if steuern and steuern[0] else t[-1][1]
            for code, fehler in ((5261, berechnung != "%"), (5262, zaehlt != "+"), (5263, bezug != soll),
                                 (5264, len(t) > 1 and steuern and t[-1][2] != 2)):
                if fehler:
                    self.melde(code)
        t.append((nummer, stufe, art, []))

    def c5(self):
        nummer = self.zahl(2, 3, 1)
        ogl, psl, kag, element, typ, gruppe, variante = (self.schluessel(*s) for s in (
            (18, 6), (24, 6), (82, 5), (87, 6), (129, 6), (30, 3), (33, 3)))
        kapitel = self.text(8, 3)
        folge = self.folge(136, 2, self.zahl(136, 2))
        kondition = next((k for k in self.konditionen if k[0] == nummer), None)
        if kondition is None:
            return self.melde(5301)

        def einfach(wert, codes, nummer, code):
            if wert and not self.gefunden(codes, wert, nummer):
                self.melde(code)

        def zweistufig(oben, wert, tabelle, nummer, ohne, joker, fehlt):
            if wert and not oben:
                self.melde(ohne)
            elif wert and "*" in oben:
                self.melde(joker)
            elif wert and not self.unter(tabelle, oben, wert, nummer):
                self.melde(fehlt)

        einfach(ogl, [e[0] for e in self.ogl], 2, 5311)
        zweistufig(ogl, psl, self.ogl, 2, 5312, 5313, 5314)
        einfach(kag, [e[0] for e in self.kag], 1, 5321)
        einfach(element, [e[0] for e in self.ekg], 3, 5331)
        einfach(gruppe, [e[0] for e in self.gruppen], 5, 5341)
        zweistufig(gruppe, variante, self.gruppen, 5, 5342, 5343, 5344)
        einfach(typ, [e[0] for e in self.typen], 4, 5351)
        if kapitel and not kapitel.startswith("*"):  # no chapter is there
            self.melde(5361)
        if folge and folge in kondition[3]:
            self.melde(5371)
        if self.neu:
            if psl or element or typ or gruppe or variante or kapitel:
                self.melde(5381)
            elif "*" in ogl + kag:
                self.melde(5382)
        kondition[3].append(folge)

    def anhang(self, mit_zeile):
        self.zahl(2, 3, 1)
        self.zahl(8, 6, 1)
        variable = self.zahl(14, 2)
        if mit_zeile:
            self.zahl(16, 2, 1)
        self.text(93, 164, 1)
        if self.text(14, 2) and not variable:
            self.melde(4252)

    def p1(self):
        self.anhang(False)
        if self.text(43, 1) not in ("", "0", "1"):
            self.melde(4282)

    def pruefe(self, zeilen):
        self.zeilen = zeilen
        undefiniert = ("B7", "B8", "X4", "X5", "P1", "P2", "P3", "P4", "P5")
        for self.L, self.satz in enumerate(zeilen, 2):
            art = self.satz[0] + self.satz[41]
            if self.satz[13] != " " and self.satz[0] in "BC" and (self.neu or art not in undefiniert):
                self.befunde.append(f(2032, self.L, "14"))
        if not self.neu and any(z[0] + z[41] in undefiniert for z in zeilen):
            self.befunde.append(f(2041))
        tests = {
            "B0": self.b0, "B2": self.b2, "B6": self.b6, "C0": self.c0, "C1": self.c1, "C5": self.c5,
            "B1": lambda: self.kosten(1, 82, 5, (3221, 3222, 3223, 3226), self.kag),
            "B3": lambda: self.kosten(3, 87, 6, (3231, 3232, 3233, 3236), self.ekg),
            "B4": lambda: self.familie(4, 129, 6, (3261, 3262, 3263, 3269), self.typen, True),
            "B5": lambda: self.familie(5, 30, 3, (3241, 3242, 3243, 3249), self.gruppen, True, True),
            "B7": lambda: self.familie(7, 168, 16, (3292, 3293, 3294), self.nutzungen),
            "B8": lambda: self.familie(8, 188, 16, (3296, 3297, 3298), self.raeume)}
        if self.neu:
            tests |= {a: lambda: self.anhang(True) for a in ("X4", "X5", "P3", "P4", "P5")}
            tests |= {"P1": self.p1, "P2": lambda: self.anhang(False)}
        for buchstabe in "BCXP":
            for self.L, self.satz in enumerate(zeilen, 2):
                if self.satz[0] == buchstabe and self.satz[0] + self.satz[41] in tests:
                    tests[self.satz[0] + self.satz[41]]()
            if buchstabe == "B":
                self.b_ende()
        return self.befunde


# --- random documents -------------------------------------------------------------------------------------------------
ZUFALL = random.Random(451)


def selten(wert, ersatz, jede=8):
    return ZUFALL.choice(ersatz) if ZUFALL.randrange(jede) == 0 else wert


CODES = ("A", "B", "AB", "ABC", "a", "", " A")
VERWEISE = ("", "", "", "A", "B", "AB", "A*", "*", "C", "C*", "A*B", " A", "**")


def struktur(art):
    nummer = {1: 1, 2: 2, 3: 3, 4: 4, 5: 5, 6: 5, 7: 7, 8: 8}[art]
    felder = {2: selten(f"00{nummer}", ("00x", "   ", "006", "1"), 15), 93: selten("Name", ("    ",)),
              14: selten(" ", "xy", 3)}
    wahl = ZUFALL.choice
    if art in (1, 3):
        felder[82 if art == 1 else 87] = wahl(CODES)
        felder[208] = wahl(("", "", "e1", "e2", "E1"))
    elif art == 2:
        felder[18], felder[24] = wahl(("A", "A", *CODES)), wahl(("", "", "p", "q", "pq"))
    elif art == 4:
        felder[129] = wahl(CODES)
    elif art == 5:
        felder[30], felder[135] = wahl(CODES), wahl(("V", "W", "VW", ""))
    elif art == 6:
        felder[30], felder[33] = wahl(CODES), wahl(("V", "W", "VW", "v", ""))
    else:
        felder[168 if art == 7 else 188] = wahl(CODES)
    if art in (2, 4, 5, 6):
        felder[75] = wahl(("", "", "0000001", "0000002", "0000000", "1", "x"))
    return satz(f"B{art}", felder)


def kopf():
    felder = {2: selten(f"00{ZUFALL.randrange(1, 9)}", ("000", "009", "x01", "   ")), 14: selten(" ", "xy")}
    felder[6] = ZUFALL.choice(("", "", "", "95", "x1"))
    felder[36] = ZUFALL.choice(("", "", "SN"))
    felder[75] = ZUFALL.choice(("", "", "0000001", "0000002", "0000003", "0000000", "1"))
    return satz("B0", felder)


def kondition():
    wahl = ZUFALL.choice
    felder = {2: selten(f"00{ZUFALL.randrange(1, 6)}", ("000", "00x", "   ", "999")), 5: wahl("111223345x60 "),
              6: selten(f"{ZUFALL.randrange(1, 6) * 10:02}", ("00", "  ", "1", "99")),
              16: wahl(("", "", "00", "10", "20", "30", "40", "x")), 44: selten("%", "B "), 61: wahl("+++-x "),
              36: selten("", ("000030", "30", "000000"), 3), 14: selten(" ", "xy")}
    for vorzeichen, spalte, laenge in ((45, 46, 15), (75, 76, 6), (62, 63, 12)):
        felder[vorzeichen] = wahl("   +-x")
        felder[spalte] = wahl(("", "", "1".rjust(laenge, "0"), "0" * laenge, "1".rjust(laenge)))
    return satz("C1", felder)


def einschraenkung():
    felder = {2: selten(f"00{ZUFALL.randrange(1, 6)}", ("000", "00x", "   ", "999")), 14: selten(" ", "xy"),
              8: selten("", ("191", "1*", "*")), 136: ZUFALL.choice(("", "", "01", "02", "00", "1"))}
    dicht = ZUFALL.randrange(2)
    for spalte in (18, 24, 82, 87, 129, 30, 33):
        if dicht or spalte in (18, 82):
            felder[spalte] = ZUFALL.choice(VERWEISE if spalte not in (24, 33) else
                                           ("", "p", "V", "p*", "V*", "*", "q", "W", "z", "p*q"))
    return satz("C5", felder)


def beilage():
    art = ZUFALL.choice(("X4", "X5", "P1", "P2", "P3", "P4", "P5"))
    felder = {2: selten("191", ("x", "   ")), 8: selten(f"{ZUFALL.randrange(1000):06}", ("1", "      ")),
              14: ZUFALL.choice(("", "01", "00", "0a", "99")), 93: selten("text", ("", " *"))}
    if art in ("X4", "X5", "P3", "P4", "P5"):
        felder[16] = selten("01", ("  ", "1", "00"))
    if art == "P1":
        felder[43] = ZUFALL.choice("01 2x")
    return satz(art, felder)


KEY = ((1, 1), (2, 3), (8, 6), (82, 5), (18, 6), (24, 6), (87, 6), (129, 6), (30, 3), (33, 3), (42, 1), (14, 2),
       (16, 2), (123, 6), (168, 16), (188, 16))


def schluessel(zeile, neu):
    teile = [zeile[s - 1:s - 1 + n].ljust(n) for s, n in (KEY if neu else KEY[:-2])]
    return tuple(t.upper() for t in teile)


def reihenfolge(zeile):
    return tuple(zeile[s - 1:s - 1 + n].ljust(n) for s, n in ((1, 1), (2, 3), (8, 6), (42, 1), (14, 2), (16, 2)))


def dokument(neu):
    zeilen = [kopf() for _ in range(ZUFALL.randrange(5))]
    zeilen += [satz("B0", {2: f"00{n}"}) for n in (1, 2, 3, 4, 5, 7, 8) if ZUFALL.randrange(8)]
    zeilen += [struktur(art) for art in range(1, 9) for _ in range(ZUFALL.randrange(7))]
    if ZUFALL.randrange(8):
        zeilen.append(satz("C0", {2: selten("000", ("001", "x", "   ")), 45: ZUFALL.choice(" +-x"),
                                  46: ZUFALL.choice(("", "0000000000001", "1"))}))
    zeilen += [kondition() for _ in range(ZUFALL.randrange(7))]
    zeilen += [einschraenkung() for _ in range(ZUFALL.randrange(9))]
    zeilen += [beilage() for _ in range(ZUFALL.randrange(4))]
    einmal = {}
    for zeile in zeilen:
        einmal.setdefault(schluessel(zeile, neu), zeile)
    return sorted(einmal.values(), key=reihenfolge)


for i in range(DOKUMENTE):
    for art in BEIDE:
        zeilen = dokument(art == "E1S")
        fall(f"document {i}", art, zeilen, Modell(art == "E1S").pruefe(zeilen))

test_random_documents_against_the_rules_written_once_more = faelle()
