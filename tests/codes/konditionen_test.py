"""Condition records C0, C1 and C5: codes 5101 to 5382."""
from befunde import f, fall
from rahmen import BEIDE, faelle, satz

C0 = satz("C0", {2: "000"})


def c0(**mehr):
    spalten = {"nummer": 2, "vorzeichen": 45, "betrag": 46}
    return satz("C0", {2: "000", **{spalten[n]: w for n, w in mehr.items()}})


SPALTEN_C1 = {"nummer": 2, "art": 5, "stufe": 6, "bezug": 16, "frist": 36, "berechnung": 44, "v_bezug": 45,
              "bezugsbetrag": 46, "zaehlt": 61, "v_betrag": 62, "betrag": 63, "v_prozent": 75, "prozent": 76,
              "bezeichnung": 93, "text": 138}


def c1(nummer="001", stufe="01", bezug="", **mehr):
    """A condition of kind 1, by percentage; a blank text takes its field away."""
    felder = {"art": "1", "berechnung": "%", "nummer": nummer, "stufe": stufe, "bezug": bezug, **mehr}
    return satz("C1", {SPALTEN_C1[n]: w for n, w in felder.items()})


def c5(nummer="001", **mehr):
    spalten = {"kapitel": 8, "ogl": 18, "psl": 24, "gruppe": 30, "variante": 33, "kag": 82, "element": 87, "typ": 129,
               "folge": 136}
    return satz("C5", {2: nummer, **{spalten[n]: w for n, w in mehr.items()}})


# --- C0 ---------------------------------------------------------------------------------------------------------------
BETRAG = "0000000001500"
fall("C0", BEIDE, [C0], [])
fall("C0 with another number", BEIDE, [c0(nummer="001")], [f(5101, 2)])
fall("C0 with another number counts", BEIDE, [c0(nummer="001"), c1("002")], [f(5101, 2)])
fall("C0 without number", BEIDE, [c0(nummer="   ")], [f(3002, 2, "C0:2a")])  # it reads 0, which is right
fall("C0 with a bad number", BEIDE, [c0(nummer="00x")], [f(3001, 2, "C0:2a")])  # reads 0 as well
fall("C0 twice", BEIDE, [C0, c0(nummer="000", betrag="").ljust(81) + "x"], [f(2032, 3, "82")])
for zeichen in "+-":
    fall(f"C0 {zeichen} and amount", BEIDE, [c0(vorzeichen=zeichen, betrag=BETRAG)], [])
    fall(f"C0 {zeichen} without amount", BEIDE, [c0(vorzeichen=zeichen)], [f(5103, 2)])
for zeichen in "x*0":
    fall(f"C0 {zeichen} and amount", BEIDE, [c0(vorzeichen=zeichen, betrag=BETRAG)], [f(5102, 2)])
    fall(f"C0 {zeichen} without amount", BEIDE, [c0(vorzeichen=zeichen)], [f(5102, 2), f(5103, 2)])
fall("C0 amount without sign", BEIDE, [c0(betrag=BETRAG)], [f(5104, 2)])
fall("C0 amount of zeros is an amount", BEIDE, [c0(betrag="0" * 13)], [f(5104, 2)])
fall("C0 bad amount", BEIDE, [c0(vorzeichen="+", betrag="1500")], [f(3001, 2, "C0:15-16")])
fall("C0 bad amount without sign", BEIDE, [c0(betrag="x")], [f(3001, 2, "C0:15-16"), f(5104, 2)])
fall("C0 amount reads 13 columns of 15", BEIDE, [c0(vorzeichen="+", betrag=BETRAG + "xy")], [])
fall("C0 amount in the last two only", BEIDE, [c0(vorzeichen="+", betrag=" " * 13 + "12")], [f(5103, 2)])
fall("C0 everything wrong", BEIDE, [c0(nummer="002", vorzeichen="x", betrag="y")],
     [f(3001, 2, "C0:15-16"), f(5101, 2), f(5102, 2)])

test_c0_number_and_gross_amount = faelle()


# --- C1: gross amount, number, level ----------------------------------------------------------------------------------
fall("C1", BEIDE, [C0, c1()], [])
fall("C1 without C0", BEIDE, [c1()], [f(5201, 2)])
fall("each C1 without C0", BEIDE, [c1(), c1("002", "02")], [f(5201, 2), f(5201, 3)])
fall("C1 before C0", BEIDE, [c1(), c0(nummer="002"), c1("003", "03")], [f(5201, 2), f(5101, 3)])
fall("C1 without C0 is kept", BEIDE, [c1(), c5()], [f(5201, 2)])
fall("C1 number 999", BEIDE, [C0, c1("999")], [])
fall("C1 number 000", BEIDE, [C0, c1("000")], [f(5202, 3)])
fall("C1 without number", BEIDE, [c1("   "), C0], [f(3002, 2, "C1:2a"), f(5201, 2), f(5202, 2)])
fall("C1 with a bad number", BEIDE, [C0, c1("00x")], [f(3001, 3, "C1:2a"), f(5202, 3)])
fall("C1 number 000 is kept", BEIDE, [C0, c1("000"), c5("000")], [f(5202, 3)])
fall("C1 number twice", BEIDE, [C0, c1(), c1(stufe="02", bezug="01")], [f(5203, 4)])
fall("C1 two numbers", BEIDE, [C0, c1(), c1("002", "02", "01")], [])
fall("C1 number three times: once a record", BEIDE,
     [C0, c1(), c1(stufe="02", bezug="01"), c1(stufe="03", bezug="02")], [f(5203, 4), f(5203, 5)])
fall("C1 of a number twice is kept: its level", BEIDE,
     [C0, c1(), c1(stufe="02", bezug="01"), c1("002", "02", "01")], [f(5203, 4), f(5212, 5)])
fall("two bad numbers are one number", BEIDE, [C0, c1("00x", "01"), c1("00y", "02")],
     [f(3001, 3, "C1:2a"), f(5202, 3), f(3001, 4, "C1:2a"), f(5202, 4), f(5203, 4)])
fall("C1 level 99", BEIDE, [C0, c1(stufe="99", bezug="98")], [])
fall("C1 level 00", BEIDE, [C0, c1(stufe="00")], [f(5211, 3), f(5213, 3)])
fall("C1 without level", BEIDE, [C0, c1(stufe="  ")], [f(3002, 3, "C1:2c"), f(5211, 3), f(5213, 3)])
fall("C1 with a bad level", BEIDE, [C0, c1(stufe="1 ")], [f(3001, 3, "C1:2c"), f(5211, 3), f(5213, 3)])
fall("C1 level twice", BEIDE, [C0, c1(), c1("002", "01")], [f(5212, 4)])
fall("C1 two levels", BEIDE, [C0, c1(), c1("002", "02")], [])
fall("C1 level three times: once a record", BEIDE, [C0, c1(), c1("002"), c1("003")], [f(5212, 4), f(5212, 5)])
fall("C1 number and level twice", BEIDE, [C0, c1(), c1(bezug="00")], [f(5203, 4), f(5212, 4)])
fall("C1 base level below", BEIDE, [C0, c1(stufe="10", bezug="09")], [])
fall("C1 base level the same", BEIDE, [C0, c1(stufe="10", bezug="10")], [f(5213, 3)])
fall("C1 base level above", BEIDE, [C0, c1(stufe="10", bezug="11")], [f(5213, 3)])
fall("C1 base level need not exist", BEIDE, [C0, c1(stufe="10", bezug="05")], [])
fall("C1 bad base level", BEIDE, [C0, c1(stufe="10", bezug="x9")], [f(3001, 3, "C1:5")])

test_c1_needs_c0_number_and_level = faelle()


# --- C1: kinds --------------------------------------------------------------------------------------------------------
for art in "145":
    fall(f"C1 kind {art}", BEIDE, [C0, c1(art=art)], [])
fall("C1 kind 3", BEIDE, [C0, c1(art="3", frist="000030")], [])
for art in "06789":
    fall(f"C1 kind {art}", BEIDE, [C0, c1(art=art)], [f(5221, 3)])
fall("C1 without kind", BEIDE, [C0, c1(art="")], [f(3002, 3, "C1:2b"), f(5221, 3)])
fall("C1 bad kind", BEIDE, [C0, c1(art="x")], [f(3001, 3, "C1:2b"), f(5221, 3)])
for berechnung in "%xB1*":
    fall(f"C1 calculation {berechnung}", BEIDE, [C0, c1(berechnung=berechnung)], [])
fall("C1 without calculation", BEIDE, [C0, c1(berechnung=" ")], [f(3002, 3, "C1:13"), f(5222, 3)])
for zaehlt in "+- ":
    fall(f"C1 counts {zaehlt!r}", BEIDE, [C0, c1(zaehlt=zaehlt)], [])
for zaehlt in "x0*":
    fall(f"C1 counts {zaehlt!r}", BEIDE, [C0, c1(zaehlt=zaehlt)], [f(5223, 3)])
fall("C1 discount without term", BEIDE, [C0, c1(art="3")], [f(5224, 3)])
fall("C1 discount with a bad term", BEIDE, [C0, c1(art="3", frist="30")], [f(3001, 3, "C1:10")])
for art in "145":
    fall(f"C1 kind {art} with a term", BEIDE, [C0, c1(art=art, frist="000030")], [f(5225, 3)])
    fall(f"C1 kind {art} with a term of zeros", BEIDE, [C0, c1(art=art, frist="000000")], [f(5225, 3)])
    fall(f"C1 kind {art} with a bad term", BEIDE, [C0, c1(art=art, frist="x")], [f(3001, 3, "C1:10"), f(5225, 3)])
fall("C1 of no kind with a term", BEIDE, [C0, c1(art="9", frist="000030")], [f(5221, 3), f(5225, 3)])

test_c1_kind_calculation_and_term = faelle()


# --- C1: three amounts and their signs --------------------------------------------------------------------------------
for vorzeichen, betrag, breite, feld, codes in (
        ("v_bezug", "bezugsbetrag", 15, "C1:15-16", (5231, 5232, 5233)),
        ("v_prozent", "prozent", 6, "C1:20b", (5241, 5242, 5243)),
        ("v_betrag", "betrag", 12, "C1:19", (5251, 5252, 5253))):
    falsch, kein_betrag, kein_vorzeichen = codes
    zahl = "0" * (breite - 2) + "77"
    for zeichen in "+-":
        fall(f"{feld} {zeichen} and amount", BEIDE, [C0, c1(**{vorzeichen: zeichen, betrag: zahl})], [])
        fall(f"{feld} {zeichen} without amount", BEIDE, [C0, c1(**{vorzeichen: zeichen})], [f(kein_betrag, 3)])
    for zeichen in "x0*":
        fall(f"{feld} {zeichen} and amount", BEIDE, [C0, c1(**{vorzeichen: zeichen, betrag: zahl})], [f(falsch, 3)])
        fall(f"{feld} {zeichen} without amount", BEIDE, [C0, c1(**{vorzeichen: zeichen})],
             [f(falsch, 3), f(kein_betrag, 3)])
    fall(f"{feld} without sign", BEIDE, [C0, c1(**{betrag: zahl})], [f(kein_vorzeichen, 3)])
    fall(f"{feld} zeros without sign", BEIDE, [C0, c1(**{betrag: "0" * breite})], [f(kein_vorzeichen, 3)])
    fall(f"{feld} zeros with sign", BEIDE, [C0, c1(**{vorzeichen: "+", betrag: "0" * breite})], [])
    for schlecht in ("77".ljust(breite), "77".rjust(breite), "1.50".rjust(breite, "0"), zahl[:-1] + "x", zahl[:-1]):
        fall(f"{feld} bad amount {schlecht!r}", BEIDE, [C0, c1(**{vorzeichen: "-", betrag: schlecht.ljust(breite)})],
             [f(3001, 3, feld)])
        fall(f"{feld} bad amount {schlecht!r} without sign", BEIDE, [C0, c1(**{betrag: schlecht.ljust(breite)})],
             [f(3001, 3, feld), f(kein_vorzeichen, 3)])
fall("C1 everything blank", BEIDE, [satz("C1"), C0],
     [*[f(3002, 2, x) for x in ("C1:2a", "C1:2c", "C1:2b", "C1:13")],
      f(5201, 2), f(5202, 2), f(5211, 2), f(5213, 2), f(5221, 2), f(5222, 2)])
fall("C1 all signs bad and all amounts missing", BEIDE, [C0, c1(v_bezug="x", v_prozent="x", v_betrag="x")],
     [f(c, 3) for c in (5231, 5232, 5241, 5242, 5251, 5252)])
fall("C1 all numbers bad", BEIDE,
     [C0, satz("C1", {s: "x" for s in (2, 5, 6, 16, 36, 44, 46, 63, 76)})],
     [*[f(3001, 3, x) for x in
                 ("C1:2a", "C1:2c", "C1:5", "C1:2b", "C1:10", "C1:15-16", "C1:20b", "C1:19")],
      *(f(c, 3) for c in (5202, 5211, 5213, 5221, 5225, 5233, 5243, 5253))])

test_c1_amounts_and_their_signs_go_together = faelle()


# --- C1: value added tax, E1S only ------------------------------------------------------------------------------------
def mwst(nummer, stufe, bezug, **mehr):
    return c1(nummer, stufe, bezug, **{"art": "2", "zaehlt": "+", **mehr})


def skonto(nummer, stufe, bezug=""):
    return c1(nummer, stufe, bezug, art="3", frist="000030")


def neu(name, saetze, soll):
    """The findings in an E1S file; a 01S file has none of 5261 to 5264."""
    fall(name, "E1S", saetze, soll)
    fall(name, "01S", saetze, [b for b in soll if not 5261 <= b[0] <= 5264])


neu("tax", [C0, mwst("001", "10", "00")], [])
neu("tax by amount", [C0, mwst("001", "10", "", berechnung="B")], [f(5261, 3)])
neu("tax without calculation", [C0, mwst("001", "10", "", berechnung=" ")],
    [f(3002, 3, "C1:13"), f(5222, 3), f(5261, 3)])
neu("tax that doesn't count", [C0, mwst("001", "10", "", zaehlt="-")], [f(5262, 3)])
neu("tax that doesn't say that it counts", [C0, mwst("001", "10", "", zaehlt=" ")], [f(5262, 3)])
neu("tax with a bad mark", [C0, mwst("001", "10", "", zaehlt="x")], [f(5223, 3), f(5262, 3)])
neu("tax with a term", [C0, mwst("001", "10", "", frist="000030")], [f(5225, 3)])
neu("the only tax refers to 0", [C0, mwst("001", "10", "05")], [f(5263, 3)])
ZWEI = [C0, c1("001", "10"), c1("002", "20")]
neu("tax behind two", [*ZWEI, mwst("003", "30", "20")], [])
neu("tax behind two refers to the first", [*ZWEI, mwst("003", "30", "10")], [f(5263, 5)])
neu("tax behind two refers to none", [*ZWEI, mwst("003", "30", "")], [f(5263, 5)])
neu("tax behind two refers to itself", [*ZWEI, mwst("003", "30", "30")], [f(5213, 5), f(5263, 5)])
neu("the last in the file, not the highest", [C0, c1("001", "20"), c1("002", "10"), mwst("003", "30", "10")], [])
neu("the highest is not the last", [C0, c1("001", "20"), c1("002", "10"), mwst("003", "30", "20")], [f(5263, 5)])
ERSTE = [*ZWEI, mwst("003", "30", "20")]
neu("a second tax refers before the first", [*ERSTE, mwst("004", "40", "20")], [])
neu("a second tax refers to the first", [*ERSTE, mwst("004", "40", "30")], [f(5263, 6)])
neu("a third tax refers before the first", [*ERSTE, mwst("004", "40", "20"), mwst("005", "50", "20")], [])
neu("tax, discount, tax", [*ERSTE, skonto("004", "40", "30"), mwst("005", "50", "20")], [f(5264, 7)])
neu("tax, discount, tax: it refers to the discount", [*ERSTE, skonto("004", "40", "30"), mwst("005", "50", "40")],
    [f(5263, 7), f(5264, 7)])
neu("two taxes, discount, tax: one 5264",
    [*ERSTE, mwst("004", "40", "20"), skonto("005", "50", "40"), mwst("006", "60", "20")], [f(5264, 8)])
neu("tax, discount, tax, tax: the last stands behind a tax",
    [*ERSTE, skonto("004", "40", "30"), mwst("005", "50", "20"), mwst("006", "60", "20")], [f(5264, 7)])
neu("tax, two discounts, tax", [*ERSTE, skonto("004", "40"), skonto("005", "50"), mwst("006", "60", "20")],
    [f(5264, 8)])
neu("discount behind the taxes", [*ERSTE, skonto("004", "40", "30")], [])
neu("no tax before", [*ZWEI, skonto("003", "30"), mwst("004", "40", "30")], [])
neu("tax first, then a second", [C0, mwst("001", "10", "00"), mwst("002", "20", "10")], [])
neu("tax first, the second refers to 0", [C0, mwst("001", "10", "00"), mwst("002", "20", "00")], [f(5263, 4)])
neu("tax first, then two", [C0, mwst("001", "10", ""), mwst("002", "20", "10"), mwst("003", "30", "20")], [])
neu("tax first, the third refers to the first",
    [C0, mwst("001", "10", ""), mwst("002", "20", "10"), mwst("003", "30", "10")], [f(5263, 5)])
neu("tax first, discount, tax refers to the discount",
    [C0, mwst("001", "10", ""), skonto("002", "20"), mwst("003", "30", "20")], [f(5264, 5)])
neu("a faulty tax is kept",
    [*ZWEI, mwst("003", "30", "10", berechnung="B", zaehlt="-"), skonto("004", "40"), mwst("005", "50", "20")],
    [f(5261, 5), f(5262, 5), f(5263, 5), f(5264, 7)])
neu("without C0, all of them", [c1("001", "10"), mwst("002", "20", "", berechnung="B", zaehlt="x")],
    [f(5201, 2), f(5201, 3), f(5223, 3), f(5261, 3), f(5262, 3), f(5263, 3)])

test_c1_value_added_tax_in_an_e1s_file = faelle()


# --- C5 ---------------------------------------------------------------------------------------------------------------
EINSTUFIG = [C0, c1()]
fall("C5 of its condition", BEIDE, [*EINSTUFIG, c5()], [])
fall("C5 of no condition", BEIDE, [*EINSTUFIG, c5("002")], [f(5301, 4)])
fall("C5 before its condition", BEIDE, [C0, c5("001"), c1("002")], [f(5301, 3)])
fall("C5 without number", BEIDE, [satz("C5"), C0], [f(3002, 2, "C5:2a"), f(5301, 2)])
fall("C5 with a bad number", BEIDE, [*EINSTUFIG, c5("00x")], [f(3001, 4, "C5:2a"), f(5301, 4)])
fall("C5 with a bad number finds the condition 0", BEIDE, [C0, c1("000"), c5("00x")],
     [f(5202, 3), f(3001, 4, "C5:2a")])
fall("C5 of no condition ends there", BEIDE,
     [C0, c5("001", ogl="A", psl="p", kag="K", element="E", gruppe="G", variante="V", typ="T", kapitel="999")],
     [f(5301, 3)])
fall("C5 of no condition: form and order field come first", "E1S", [C0, c5("001", ogl="A*B", folge="01")],
     [f(3001, 3, "C5:6"), f(3208, 3), f(5301, 3)])
fall("C5 goes to the first of two", BEIDE, [C0, c1(), c1(stufe="02", bezug="01"), c5()], [f(5203, 4)])

STRUKTUR = [
    satz("B0", {2: "001"}), satz("B1", {2: "001", 82: "123", 93: "x"}), satz("B1", {2: "001", 82: "2", 93: "x"}),
    satz("B0", {2: "002"}), satz("B2", {2: "002", 18: "A1", 93: "x"}),
    satz("B2", {2: "002", 18: "A1", 24: "p1", 93: "x"}),
    satz("B2", {2: "002", 18: "B1", 93: "x"}),
    satz("B0", {2: "003"}), satz("B3", {2: "003", 87: "E1", 93: "x"}),
    satz("B0", {2: "004"}), satz("B4", {2: "004", 129: "T1", 93: "x"}),
    satz("B0", {2: "005"}), satz("B5", {2: "005", 30: "G1", 93: "x", 135: "V1"}),
    satz("B5", {2: "005", 30: "H1", 93: "x", 135: "W1"}),
    satz("B6", {2: "005", 30: "G1", 33: "V1", 93: "x"}), satz("B6", {2: "005", 30: "H1", 33: "W1", 93: "x"})]
VOR = [*STRUKTUR, *EINSTUFIG]
L5 = len(VOR) + 2  # the line of a C5 behind it
KAPITEL = [satz("G1", {2: "191", 6: "20", 93: "Reserve"}), satz("G1", {2: "291", 6: "20", 93: "Reserve"})]


def einschraenkung(name, felder, codes, nur_neu=(), kapitel=False):
    """A C5 with `felder`: `codes` in both kinds of file (a pair is a code and its field), `nur_neu` in an E1S file."""
    ende = KAPITEL if kapitel else []
    for art, weitere in (("01S", ()), ("E1S", nur_neu)):
        fall(f"C5 {name}", art, [*VOR, c5(**felder), *ende], [f(c[0], L5, c[1]) if isinstance(c, tuple) else f(c, L5) for c in (*codes, *weitere)])


ALT = (5381,)  # what the new interface has no place for
JOKER = (5382,)
for name, felder, codes, nur_neu in (
        ("OGL", {"ogl": "A1"}, (), ()),
        ("OGL unknown", {"ogl": "A2"}, (5311,), ()),
        ("OGL in another case", {"ogl": "a1"}, (5311,), ()),
        ("OGL the start of one", {"ogl": "A"}, (5311,), ()),
        ("OGL joker", {"ogl": "A*"}, (), JOKER),
        ("OGL joker behind a whole code", {"ogl": "A1*"}, (), JOKER),
        ("OGL joker unknown", {"ogl": "C*"}, (5311,), JOKER),
        ("OGL lone joker", {"ogl": "*"}, (), JOKER),
        ("OGL joker in the middle", {"ogl": "A*9"}, ((3001, "C5:6"),), JOKER),
        ("OGL two jokers", {"ogl": "A**"}, ((3001, "C5:6"),), JOKER),
        ("OGL leading blank", {"ogl": " A1"}, ((3001, "C5:6"), 5311), ()),
        ("OGL leading blank and joker in the middle", {"ogl": " *1"}, ((3001, "C5:6"), (3001, "C5:6"), 5311), JOKER),
        ("PSL", {"ogl": "A1", "psl": "p1"}, (), ALT),
        ("PSL unknown", {"ogl": "A1", "psl": "p2"}, (5314,), ALT),
        ("PSL of another OGL", {"ogl": "B1", "psl": "p1"}, (5314,), ALT),
        ("PSL of an unknown OGL", {"ogl": "C1", "psl": "p1"}, (5311, 5314), ALT),
        ("PSL alone", {"psl": "p1"}, (5312,), ALT),
        ("PSL of a joker", {"ogl": "A*", "psl": "p1"}, (5313,), ALT),
        ("PSL of a lone joker", {"ogl": "*", "psl": "p1"}, (5313,), ALT),
        ("PSL of an unknown joker", {"ogl": "C*", "psl": "p1"}, (5311, 5313), ALT),
        ("PSL joker", {"ogl": "A1", "psl": "p*"}, (), ALT),
        ("PSL lone joker", {"ogl": "A1", "psl": "*"}, (), ALT),
        ("PSL lone joker below an OGL without any", {"ogl": "B1", "psl": "*"}, (), ALT),
        ("PSL joker unknown", {"ogl": "A1", "psl": "q*"}, (5314,), ALT),
        ("PSL lone joker of an unknown OGL", {"ogl": "C1", "psl": "*"}, (5311, 5314), ALT),
        ("PSL joker in the middle", {"ogl": "A1", "psl": "p*x"}, ((3001, "C5:7"),), ALT),
        ("KAG", {"kag": "123"}, (), ()),
        ("KAG unknown", {"kag": "12"}, (5321,), ()),
        ("KAG joker", {"kag": "12*"}, (), JOKER),
        ("KAG joker of a whole code", {"kag": "123*"}, (), JOKER),
        ("KAG joker longer than the code", {"kag": "1234*"}, (5321,), JOKER),
        ("KAG joker of the second", {"kag": "2*"}, (), JOKER),
        ("KAG lone joker", {"kag": "*"}, (), JOKER),
        ("KAG joker in the middle", {"kag": "1*9"}, ((3001, "C5:21"),), JOKER),
        ("OGL and KAG", {"ogl": "A1", "kag": "2"}, (), ()),
        ("OGL and KAG with jokers: one 5382", {"ogl": "A*", "kag": "2*"}, (), JOKER),
        ("element", {"element": "E1"}, (), ALT),
        ("element unknown", {"element": "E2"}, (5331,), ALT),
        ("element joker", {"element": "E*"}, (), ALT),
        ("element joker unknown", {"element": "F*"}, (5331,), ALT),
        ("element joker in the middle", {"element": "E*2"}, ((3001, "C5:22"),), ALT),
        ("group", {"gruppe": "G1"}, (), ALT),
        ("group unknown", {"gruppe": "K1"}, (5341,), ALT),
        ("group joker", {"gruppe": "G*"}, (), ALT),
        ("group joker in the middle", {"gruppe": "G*1"}, ((3001, "C5:8"),), ALT),
        ("variant", {"gruppe": "G1", "variante": "V1"}, (), ALT),
        ("variant unknown", {"gruppe": "G1", "variante": "V2"}, (5344,), ALT),
        ("variant of another group", {"gruppe": "H1", "variante": "V1"}, (5344,), ALT),
        ("variant of an unknown group", {"gruppe": "K1", "variante": "V1"}, (5341, 5344), ALT),
        ("variant alone", {"variante": "V1"}, (5342,), ALT),
        ("variant of a joker", {"gruppe": "G*", "variante": "V1"}, (5343,), ALT),
        ("variant of an unknown joker", {"gruppe": "K*", "variante": "V1"}, (5341, 5343), ALT),
        ("variant joker", {"gruppe": "G1", "variante": "V*"}, (), ALT),
        ("variant joker unknown", {"gruppe": "G1", "variante": "W*"}, (5344,), ALT),
        ("variant lone joker", {"gruppe": "G1", "variante": "*"}, (), ALT),
        ("variant joker in the middle", {"gruppe": "G1", "variante": "V*1"}, ((3001, "C5:9"),), ALT),
        ("type", {"typ": "T1"}, (), ALT),
        ("type unknown", {"typ": "T2"}, (5351,), ALT),
        ("type joker", {"typ": "T*"}, (), ALT),
        ("type joker in the middle", {"typ": "T*1"}, ((3001, "C5:24b"),), ALT),
        ("nothing fits", {"ogl": "X", "psl": "X", "kag": "X", "element": "X", "gruppe": "X", "variante": "X",
                          "typ": "X", "kapitel": "X"}, (5311, 5314, 5321, 5331, 5341, 5344, 5351, 5361), ALT),
        ("all fields with a joker in the middle",
         {n: "?*?" for n in ("ogl", "psl", "kag", "element", "typ", "gruppe", "variante")},
         (*((3001, f"C5:{x}") for x in ("6", "7", "21", "22", "24b", "8", "9")),
          5311, 5313, 5321, 5331, 5341, 5343, 5351), ALT)):
    einschraenkung(name, felder, codes, nur_neu)

# The chapters come from G1 records, which the sort puts behind the conditions; the pass over them runs before.
for kapitel, codes in (("191", ()), ("291", ()), ("391", (5361,)), ("19", (5361,)), ("19*", ()), ("1*", ()),
                       ("3*", (5361,)), ("*", ()), ("*91", ()), ("2*9", ())):
    einschraenkung(f"chapter {kapitel}", {"kapitel": kapitel}, codes, ALT, kapitel=True)
einschraenkung("chapter, none there", {"kapitel": "191"}, (5361,), ALT)
einschraenkung("lone joker for the chapter, none there", {"kapitel": "*"}, (), ALT)

# Without the announcement a table counts as empty, for a lone joker too; with it, the lone joker fits an empty one.
for feld, code, nummer in (("ogl", 5311, "002"), ("kag", 5321, "001"), ("element", 5331, "003"),
                           ("gruppe", 5341, "005"), ("typ", 5351, "004")):
    spaeter = [f(5382, 4)] if feld in ("ogl", "kag") else [f(5381, 4)]
    danach = [f(b[0], 5) for b in spaeter]
    fall(f"{feld}: lone joker, not announced", "01S", [*EINSTUFIG, c5(**{feld: "*"})], [f(code, 4)])
    fall(f"{feld}: lone joker, not announced", "E1S", [*EINSTUFIG, c5(**{feld: "*"})], [f(code, 4), *spaeter])
    fall(f"{feld}: lone joker, nothing there", "01S", [satz("B0", {2: nummer}), *EINSTUFIG, c5(**{feld: "*"})], [])
    fall(f"{feld}: lone joker, nothing there", "E1S", [satz("B0", {2: nummer}), *EINSTUFIG, c5(**{feld: "*"})], danach)

test_c5_restrictions_are_looked_up = faelle()


# --- C5: order --------------------------------------------------------------------------------------------------------
fall("C5 one order twice", "01S", [*VOR, c5(ogl="A1", folge="01"), c5(ogl="B1", folge="01")], [f(5371, L5 + 1)])
fall("C5 one order twice", "E1S", [*VOR, c5(ogl="A1", folge="01"), c5(ogl="B1", folge="01")],
     [f(3208, L5), f(3208, L5 + 1)])
fall("C5 two orders", "01S", [*VOR, c5(ogl="A1", folge="01"), c5(ogl="B1", folge="02")], [])
fall("C5 order 0 twice", "01S", [*VOR, c5(ogl="A1", folge="00"), c5(ogl="B1", folge="00")], [])
fall("C5 order 0 is given", "E1S", [*VOR, c5(ogl="A1", folge="00")], [f(3208, L5)])
fall("C5 one order three times: once a record", "01S",
     [*VOR, c5(folge="01"), c5(ogl="A1", folge="01"), c5(ogl="B1", folge="01")], [f(5371, L5 + 1), f(5371, L5 + 2)])
fall("C5 after findings is kept: its order", "01S", [*VOR, c5(ogl="X", folge="01"), c5(ogl="Y", folge="01")],
     [f(5311, L5), f(5311, L5 + 1), f(5371, L5 + 1)])
fall("C5 one order in two conditions", "01S", [C0, c1(), c5(folge="01"), c1("002", "02"), c5("002", folge="01")], [])
fall("C5 of two conditions of one number share their orders", "01S",
     [C0, c1(), c1(stufe="02", bezug="01"), c5(folge="01"), satz("C5", {2: "001", 16: "02", 136: "01"})],
     [f(5203, 4), f(2032, 6, "16"), f(5371, 6)])
fall("C5 refused leaves no order", "01S", [C0, c5("001", folge="01"), c5("001", folge="01", ogl="A"), c1("002")],
     [f(5301, 3), f(5301, 4)])
fall("C5 bad order", "01S", [*EINSTUFIG, c5(folge="1")], [f(3001, 4, "C5:24d")])
fall("C5 bad order", "E1S", [*EINSTUFIG, c5(folge="1")], [f(3001, 4, "C5:24d"), f(3208, 4)])
fall("C5 bad orders read 0", "01S", [*VOR, c5(ogl="A1", folge="x"), c5(ogl="B1", folge="x")],
     [f(3001, L5, "C5:24d"), f(3001, L5 + 1, "C5:24d")])

test_c5_order_is_unique = faelle()


# --- the block as a whole ---------------------------------------------------------------------------------------------
for ziffer in "23467 ":
    fall(f"C with digit {ziffer!r}", BEIDE, [satz("C", {2: "xxx", 42: ziffer, 45: "?"})], [f(2041)])
# The pass over the finished items leaves its last position behind; a line that is no item shows none.
fall("a finding in C has no position", BEIDE,
     [satz("C0", {2: "001"}), satz("G1", {2: "191", 6: "20", 93: "Reserve"}), satz("G2", {2: "191", 8: "100000"})],
     [f(5101, 2), f(4721, I="191.100.000")])

test_the_block_of_conditions_as_a_whole = faelle()
