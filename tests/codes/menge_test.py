"""Codes 4601 to 4683: quantities (G6), and 2032 for the fields that only a detail line may fill."""
from befunde import f
from gblock import EINRICHTUNG, EKG, KAG, NUTZUNG, OGL, RAUM, STRUKTUR, STRUKTUR_E1S, VARIANTEN, fall, g1, g2, g5, g6
from rahmen import BEIDE, faelle, satz

VIEL = "0000000001000"  # one unit, three decimals
NULL = "0000000000000"
PREIS = "000000001250"
VORNE = [g1(), g2(), g5()]


def codes_bei(codes, zeile):
    return [f(code[0], zeile, code[1]) if isinstance(code, tuple) else f(code, zeile) for code in codes]


def menge(name, arten, felder, codes, davor=(), preis=None, undefiniert=False):
    """One G6 on line 4; `codes` are its codes, or a code with its field. `preis` are fields of the G5. `undefiniert`:
    `davor` holds a line of an undefined type, which is told behind the first code, the one of the line's characters.
    """
    meldungen = codes_bei(codes, 4)
    if undefiniert:
        meldungen.insert(1, f(2041))
    fall(name, arten, [g1(), g2(), g5(felder=preis), g6(felder)], meldungen, davor=davor)


# Chapter, position, G5.
SCHLECHT = {18: "XX", 24: "XX", 30: "XX", 33: "XX", 44: "x", 45: "x", 62: "x", 75: "1", 82: "XX", 87: "XX", 129: "XX"}
for felder in ({}, SCHLECHT):
    fall("4601", BEIDE, [*VORNE, g6(felder, kapitel="112")], [f(4601, 4)])
    fall("4602 no position", BEIDE, [*VORNE, g6(felder, "111002")], [f(4602, 4)])
    fall("4602 no G5", BEIDE, [g1(), g2(), g6(felder)], [f(4602, 3)])
    fall("4602 G5 refused", BEIDE, [g1(), g2("111000"), g5("111000"), g6(felder, "111000")],
         [f(4503, 3), f(4602, 4)])
    fall("4602 G5 of another position", BEIDE, [*VORNE, g2("111002"), g6(felder, "111002")], [f(4602, 5)])
fall("no 4601, no 4602", BEIDE, [*VORNE, g6()], [])
fall("4602 stores nothing", BEIDE, [g1(), g2(), g6({75: "1234565"}), g2("111002"), g5("111002"),
                                    g6({75: "1234565"}, "111002")], [f(4602, 3)])
fall("4601 form errors come first", BEIDE, [*VORNE, g6({45: "x", 46: "x", 44: None}, kapitel="112")],
     [f(3002, 4, "G6:13"), f(3001, 4, "G6:15"), f(4601, 4)])
fall("the outdated order is told first", "E1S", [g1(), g6({136: "05"})], [f(3208, 2), f(4602, 2)])
fall("no outdated order", "01S", [g1(), g6({136: "05"})], [f(4602, 2)])
# A partial quantity without a reference: 4603 is never reported.
fall("no 4603", BEIDE, [*VORNE, g6(), g6({123: "000000"})], [])

test_a_quantity_needs_chapter_position_and_unit = faelle()


# Kinds, each on a position of its own.
ZEICHEN = "ABCDEFGHIJKLMNOPQRSTUVWXYZabjqw019*+"
NUMMERN = [f"111{n:03}" for n in range(1, 80) if n % 10]
for art, erlaubt, veraltet in (("01S", "ABCJKLQRSW", ""), ("E1S", "ABCDJKLMQRSUW", "CLS")):
    saetze, meldungen = [g1()], []
    for nummer, zeichen in zip(NUMMERN, ZEICHEN, strict=False):
        saetze += [g2(nummer), g5(nummer), g6({44: zeichen}, nummer)]
        if zeichen not in erlaubt:
            meldungen.append(f(4611, len(saetze)))
        if zeichen in veraltet:
            meldungen.append(f(4617, len(saetze)))
    fall("4611 and 4617, all kinds", art, saetze, meldungen)
menge("4611 D", "01S", {44: "D"}, [4611])
menge("no 4611 D", "E1S", {44: "D"}, [])
menge("4617 C", "E1S", {44: "C"}, [4617])
menge("no 4617 C", "01S", {44: "C"}, [])
menge("no 4617 B", "E1S", {44: "B"}, [])
menge("kind blank", BEIDE, {44: None}, [(3002, "G6:13")])
menge("kind blank on a variant", BEIDE, {44: None, 30: "G1", 33: "V2"}, [(3002, "G6:13")], VARIANTEN)

# Primary variant: JKLM on it, QRSU on the others.
for zeichen in "JKLMQRSU":
    for art, fremd, veraltet in (("01S", "MU", ""), ("E1S", "", "LS")):
        vorn = ([4611] if zeichen in fremd else []) + ([4617] if zeichen in veraltet else [])
        menge(f"{zeichen} on the primary variant", art, {44: zeichen, 30: "G1", 33: "V1"},
              vorn + ([] if zeichen in "JKLM" else [4612]), VARIANTEN)
        menge(f"{zeichen} on another variant", art, {44: zeichen, 30: "G1", 33: "V2"},
              vorn + ([] if zeichen in "QRSU" else [4612]), VARIANTEN)
        menge(f"{zeichen} on the primary variant of the second group", art, {44: zeichen, 30: "G2", 33: "W1"},
              vorn + ([] if zeichen in "JKLM" else [4612]), VARIANTEN)
        menge(f"{zeichen} on the primary variant of another group", art, {44: zeichen, 30: "G1", 33: "W1"},
              vorn + ([] if zeichen in "QRSU" else [4612]) + [4663], VARIANTEN)
        menge(f"{zeichen} with a group and no variant", art, {44: zeichen, 30: "G1"}, vorn, VARIANTEN)
        menge(f"{zeichen} with a variant and no group", art, {44: zeichen, 33: "V1"},
              vorn + ([] if zeichen in "QRSU" else [4612]) + [4662], VARIANTEN)
for zeichen in "ABW":
    for variante in ("V1", "V2"):
        menge(f"{zeichen} on {variante}", BEIDE, {44: zeichen, 30: "G1", 33: variante}, [], VARIANTEN)
menge("no 4612 of an unknown kind", BEIDE, {44: "x", 30: "G1", 33: "V2"}, [4611], VARIANTEN)
menge("4612 compares letters exactly", BEIDE, {44: "J", 30: "g1", 33: "V1"}, [4612, 4661, 4663], VARIANTEN)

test_kind_of_a_quantity = faelle()


# Sign and quantity.
for zeichen in ("x", "0", "*"):
    menge(f"4613 {zeichen}", BEIDE, {45: zeichen, 46: VIEL}, [4613])
    menge(f"4613 and 4614 {zeichen}", BEIDE, {45: zeichen}, [4613, 4614])
for zeichen in ("+", "-"):
    menge(f"no 4613 {zeichen}", BEIDE, {45: zeichen, 46: VIEL}, [])
    menge(f"4614 {zeichen}", BEIDE, {45: zeichen}, [4614])
menge("4615", BEIDE, {46: VIEL}, [4615])
menge("4615 of zero", BEIDE, {46: NULL}, [4615])
menge("neither sign nor quantity", BEIDE, {}, [])
menge("quantity no number, sign", BEIDE, {45: "+", 46: "        1.000"}, [(3001, "G6:15")])
menge("quantity no number, no sign", BEIDE, {46: "        1.000"}, [(3001, "G6:15"), 4615])

# A quantity for the whole position.
for text, gemeldet in ((NULL, False), (VIEL, True), ("0000000000001", True), ("9999999999999", True)):
    for zeichen in ("+", "-"):
        menge(f"4616 {zeichen} {text}", BEIDE, {44: "W", 45: zeichen, 46: text}, [4616] if gemeldet else [])
        menge(f"no 4616 {zeichen} {text}", BEIDE, {44: "A", 45: zeichen, 46: text}, [])
menge("no 4616 without a quantity", BEIDE, {44: "W"}, [])
menge("4616 without a sign", BEIDE, {44: "W", 46: VIEL}, [4615, 4616])
menge("4616 with a wrong sign", BEIDE, {44: "W", 45: "x", 46: VIEL}, [4613, 4616])
menge("no 4616 of a quantity that is no number", BEIDE, {44: "W", 45: "+", 46: "x"}, [(3001, "G6:15")])

test_sign_and_quantity_go_together = faelle()


# Price of the quantity, none at the position.
for zeichen in ("x", "0"):
    menge(f"4622 {zeichen}", BEIDE, {62: zeichen, 63: PREIS}, [4622])
    menge(f"4622 {zeichen} without a price", BEIDE, {62: zeichen}, [4622])
for zeichen in ("+", "-"):
    menge(f"no 4622 {zeichen}", BEIDE, {62: zeichen, 63: PREIS}, [])
    menge(f"no 4622 {zeichen} without a price", BEIDE, {62: zeichen}, [])
menge("4623", BEIDE, {63: PREIS}, [4623])
menge("4623 of zero", BEIDE, {63: "000000000000"}, [4623])
menge("price no number", BEIDE, {63: "x"}, [(3001, "G6:19"), 4623])
for zeichen in "AFINR":
    menge(f"no 4521 {zeichen}", BEIDE, {61: zeichen}, [])
for zeichen in "Qa*":
    menge(f"4521 {zeichen}", "E1S", {61: zeichen}, [4521])
    menge(f"no 4521 {zeichen}", "01S", {61: zeichen}, [])

# A price at the position bars one at the quantity; then neither its sign nor its kind is judged.
for name, an_position in (("kind", {61: "A"}), ("sign", {62: "+"}), ("price", {62: "-", 63: PREIS})):
    menge(f"nothing at the quantity, {name}", BEIDE, {}, [], preis=an_position)
    for felder in ({62: "+"}, {62: "x"}, {63: PREIS}, {62: "+", 63: PREIS}, {62: "x", 63: PREIS, 61: "Q"}):
        menge(f"4621 {name} {felder}", "01S", felder, [4621], preis=an_position)
        menge(f"4624 {name} {felder}", "E1S", felder, [4624], preis=an_position)
    for zeichen in "AQ":
        menge(f"no 4621 {name}, kind alone {zeichen}", "01S", {61: zeichen}, [], preis=an_position)
        menge(f"4624 {name}, kind alone {zeichen}", "E1S", {61: zeichen}, [4624], preis=an_position)
fall("no 4621, no 4624 below a price without a sign", BEIDE,
     [g1(), g2(), g5(felder={63: PREIS}), g6({61: "A", 62: "-", 63: PREIS})], [f(4507, 3)])
fall("4622 below a price without a sign", BEIDE, [g1(), g2(), g5(felder={63: PREIS}), g6({62: "x", 63: PREIS})],
     [f(4507, 3), f(4622, 4)])

test_price_of_a_quantity = faelle()


# Each reference. A joker is a form error; the look-up follows it all the same.
for spalte, feld, code, gut, falsch, struktur in (
        (18, "G6:6", 4631, "H1", "H3", OGL), (82, "G6:21", 4641, "12", "13", KAG), (87, "G6:22", 4651, "E1", "E2", EKG),
        (30, "G6:8", 4661, "G1", "G3", VARIANTEN), (129, "G6:24b", 4671, "T1", "T2", EINRICHTUNG)):
    menge(f"{code}", BEIDE, {spalte: falsch}, [code], struktur)
    menge(f"no {code}", BEIDE, {spalte: gut}, [], struktur)
    menge(f"{code} without the structure", BEIDE, {spalte: gut}, [code])
    menge(f"{code} shorter", BEIDE, {spalte: gut[0]}, [code], struktur)
    menge(f"{code} leading blank", BEIDE, {spalte: " " + gut}, [(3001, feld), code], struktur)
    for joker in (gut[0] + "*", "*", gut[0] + "*x", "**"):
        menge(f"joker {feld} {joker}", BEIDE, {spalte: joker}, [(3001, feld)], struktur)
        menge(f"joker {feld} {joker} without the structure", BEIDE, {spalte: joker}, [(3001, feld), code])
    menge(f"joker {feld} without a match", BEIDE, {spalte: "Q*"}, [(3001, feld), code], struktur)
    menge(f"two form errors {feld}", BEIDE, {spalte: " *"}, [(3001, feld), (3001, feld), code], struktur)

# Uses and rooms: fields of the new interface; in a 01S file data outside the fields, and looked up all the same.
for spalte, feld, code, gut, struktur in ((168, "G6:24f", 4674, "N1", NUTZUNG), (188, "G6:24g", 4677, "R1", RAUM)):
    aussen = (2032, str(spalte))
    menge(f"{code}", "E1S", {spalte: "X1"}, [code], struktur)
    menge(f"no {code}", "E1S", {spalte: gut}, [], struktur)
    menge(f"{code} without the structure", "E1S", {spalte: gut}, [code])
    menge(f"{code}", "01S", {spalte: "X1"}, [aussen, code], struktur, undefiniert=True)
    menge(f"no {code}", "01S", {spalte: gut}, [aussen], struktur, undefiniert=True)
    menge(f"{code} without the structure", "01S", {spalte: gut}, [aussen, code])
    for joker in (gut + "*", "*"):
        menge(f"{code} joker {joker}", "E1S", {spalte: joker}, [code], struktur)
        menge(f"{code} joker {joker}", "01S", {spalte: joker}, [aussen, code], struktur, undefiniert=True)
    menge(f"{code} joker not last", "E1S", {spalte: "*x"}, [(3001, feld), code], struktur)
    menge(f"{code} joker not last", "01S", {spalte: "*x"}, [aussen, (3001, str(spalte)), code])
    menge(f"{code} two form errors", "E1S", {spalte: " *x"}, [(3001, feld), (3001, feld), code])
    menge(f"{code} two form errors", "01S", {spalte: " *x"},
          [(2032, str(spalte + 1)), (3001, str(spalte)), (3001, str(spalte)), code])

# Locations below an object, variants below a group.
for oben, unten, leer, nicht_da, oberer, gut, anderer, ofeld, ufeld, struktur in (
        (18, 24, 4632, 4633, 4631, ("H1", "P1"), "Q1", "G6:6", "G6:7", OGL),
        (30, 33, 4662, 4663, 4661, ("G1", "V1"), "W1", "G6:8", "G6:9", VARIANTEN)):
    menge(f"{leer}", BEIDE, {unten: gut[1]}, [leer], struktur)
    menge(f"no {leer}", BEIDE, {oben: gut[0], unten: gut[1]}, [], struktur)
    menge(f"{leer} and no look-up", BEIDE, {unten: "XX"}, [leer], ())
    menge(f"{nicht_da}", BEIDE, {oben: gut[0], unten: "XX"}, [nicht_da], struktur)
    menge(f"{nicht_da} below the other", BEIDE, {oben: gut[0], unten: anderer}, [nicht_da], struktur)
    menge(f"{nicht_da} and the upper", BEIDE, {oben: "XX", unten: gut[1]}, [oberer, nicht_da], struktur)
    menge(f"{nicht_da} below a joker", BEIDE, {oben: "*", unten: gut[1]}, [(3001, ofeld), nicht_da], struktur)
    menge(f"joker {ufeld}", BEIDE, {oben: gut[0], unten: gut[1][0] + "*"}, [(3001, ufeld)], struktur)
    menge(f"joker {ufeld} without a match", BEIDE, {oben: gut[0], unten: "X*"}, [(3001, ufeld), nicht_da], struktur)
    menge(f"joker {ufeld} alone", BEIDE, {oben: gut[0], unten: "*"}, [(3001, ufeld)], struktur)
    menge(f"joker {ufeld} without the upper", BEIDE, {unten: "*"}, [(3001, ufeld), leer], struktur)

test_references_of_a_quantity_are_looked_up = faelle()


# Check digit of the running number, weights 3 and 1 from the right.
for text, gueltig in (("1234565", True), ("1234560", False), ("1234564", False), ("0012348", True), ("12348", True),
                      ("1236", True), ("123456x", False), ("12345x5", False), ("5", False), ("12345*5", False),
                      ("   1236", False), ("-123457", False), ("1.00000", False), ("12 3456", False),
                      ("9999995", False),
                      ("9999992", True), ("17", True), ("71", False), ("1000009", True), ("1000007", False),
                      ("0100007", True),
                      ("0100009", False)):
    menge(f"check digit {text}", BEIDE, {75: text}, [] if gueltig else [4681])
# Value 0: a running number that is none, in the new interface; a text like others in the old.
for text, alt in (("0000000", []), ("0", []), ("00", []), ("000", []), ("x234565", [4681]), ("0000001", None),
                  ("0000005", None), ("0x00000", [4681]), ("-000000", [4681]), ("*234565", [4681]), ("     x6", [4681]),
                  ("0.50000", [4681]), ("0.60000", None)):
    if alt is not None:
        menge(f"value 0 {text}", "E1S", {75: text}, [4682])
        menge(f"value 0 {text}", "01S", {75: text}, alt)
    else:
        menge(f"value not 0 {text}", BEIDE, {75: text}, [4681])
EIN = [g6({75: "1234565"})]


def nochmals(name, arten, erste, zweite, codes, felder=None):
    """Two quantities on lines 4 and 5 with running numbers; `codes` are (code, line)."""
    fall(name, arten, [*VORNE, g6({75: erste}), g6({75: zweite, 82: "12", **(felder or {})})],
         [f(code, zeile) for code, zeile in codes], davor=KAG)


nochmals("4682", BEIDE, "1234565", "1234565", [(4682, 5)])
nochmals("no 4682", BEIDE, "1234565", "1234572", [])
nochmals("4682 by value", "E1S", "0012348", "12348", [(4682, 5)])
nochmals("no 4682 by text", "01S", "0012348", "12348", [])
nochmals("no 4682 of two with wrong check digits", BEIDE, "1234560", "1234560", [(4681, 4), (4681, 5)])
nochmals("a number with a wrong check digit is stored", "E1S", "   1236", "1236", [(4681, 4), (4682, 5)])
nochmals("its text is another", "01S", "   1236", "1236", [(4681, 4)])
nochmals("no 4682 at a leading blank", BEIDE, "1236", "   1236", [(4681, 5)])
nochmals("two of zeros", "E1S", "0000000", "0000000", [(4682, 4), (4682, 5)])
nochmals("two of zeros", "01S", "0000000", "0000000", [(4682, 5)])
nochmals("zeros of two lengths", "01S", "0000000", "00", [])
nochmals("zeros and a letter", "E1S", "0000000", "x", [(4682, 4), (4682, 5)])
nochmals("fraction by its whole value", "E1S", "0000017", "16.6", [(4681, 5)])
nochmals("a fraction that is stored keeps its value", "E1S", "   16.6", "17", [(4681, 4)])
nochmals("one that is whole", "E1S", "  17.00", "17", [(4681, 4), (4682, 5)])
fall("4682 on another position and in another chapter", BEIDE,
     [*VORNE, *EIN, g2("111002"), g5("111002"), g6({75: "1234565"}, "111002"), g1("112"), g2(kapitel="112"),
      g5(kapitel="112"), g6({75: "1234565"}, kapitel="112")],
     [f(4682, 7), f(4682, 11)], kapitel=(111, 112))
fall("4682 once, though two stand before", BEIDE,
     [*VORNE, *EIN, g6({75: "1234565", 82: "12"}), g6({75: "1234565", 82: "123"})], [f(4682, 5), f(4682, 6)],
     davor=KAG)
fall("one number after the other", BEIDE,
     [*VORNE, g6({75: "1234565"}), g6({75: "1234572", 82: "12"}), g6({75: "1234565", 82: "123"}),
      g6({75: "1234572", 18: "H1"}), g6({75: "1234589", 18: "H2"})], [f(4682, 6), f(4682, 7)], davor=KAG + OGL)

test_running_number_its_check_digit_and_uniqueness = faelle()


# Order.
REIHE = [g6({136: "05"}), g6({82: "12", 136: "05"})]
fall("4683", "01S", [*VORNE, *REIHE], [f(4683, 5)], davor=KAG)
fall("no 4683, the order is outdated", "E1S", [*VORNE, *REIHE], [f(3208, 4), f(3208, 5)], davor=KAG)
fall("no 4683", "01S", [*VORNE, REIHE[0], g6({82: "12", 136: "06"})], [], davor=KAG)
fall("no 4683 of zeros", "01S", [*VORNE, g6({136: "00"}), g6({82: "12", 136: "00"})], [], davor=KAG)
fall("3208 of zeros", "E1S", [*VORNE, g6({136: "00"})], [f(3208, 4)])
fall("no 4683 on another position", "01S",
     [*VORNE, REIHE[0], g2("111002"), g5("111002"), g6({136: "05"}, "111002")], [])
fall("4683 once a record, which is stored all the same", "01S",
     [*VORNE, *REIHE, g6({82: "123", 136: "05"}), g6({82: "12", 18: "H1", 136: "06"}), g6({18: "H2", 136: "06"})],
     [f(4683, 5), f(4683, 6), f(4683, 8)], davor=KAG + OGL)
menge("order no number", "01S", {136: "x"}, [(3001, "G6:24d")])
menge("order no number", "E1S", {136: "x"}, [(3001, "G6:24d"), 3208])

# A cost account record is an undefined line, so that no quantity is held against it: 4691 is never reported.
fall("no 4691", BEIDE, [*VORNE, g6({82: "12"})], [f(2041)],
     davor=[satz("B9", {18: "X", 45: "+", 46: VIEL, 82: "99"}), *KAG])

test_order_of_quantities_is_unique = faelle()


# Fields of a detail line in a plain quantity.
for spalte, feld in ((93, "G6:23"), (138, "G6:24e"), (208, "G6:24h")):
    menge(f"2032 {feld}", "E1S", {spalte: "Text"}, [(2032, feld)])
    menge(f"2032 {feld} at its end", "E1S", {spalte + 29: "x"}, [(2032, feld)])
    menge(f"2032 {feld} twice", "01S", {spalte: "Text"}, [(2032, str(spalte)), (2032, str(spalte))])
    menge(f"2032 {feld} twice, where it begins", "01S", {spalte + 4: "Text"},
          [(2032, str(spalte + 4)), (2032, str(spalte))])
menge("no 2032", BEIDE, {93: " " * 30}, [])
DREI = {93: "Text", 138: "Text", 208: "Text"}
menge("2032 of all three", "E1S", DREI, [(2032, "G6:23"), (2032, "G6:24e"), (2032, "G6:24h")])
menge("2032 of all three, behind the two of the line's characters", "01S", DREI,
      [(2032, "93"), (2032, "138"), (2032, "93"), (2032, "138"), (2032, "208")])
for spalte in (5, 43, 59, 135):
    menge(f"2032 column {spalte}", BEIDE, {spalte: "x"}, [(2032, str(spalte))])
menge("the additional field is free", BEIDE, {36: "x*1 23"}, [])
menge("remark no number", BEIDE, {123: "11110"}, [(3001, "G6:24a")])

test_fields_of_a_detail_line_stay_blank = faelle()


# All of a line, and that it is stored: its detail line finds it.
ALLES = {18: " *", 24: " *", 30: " *", 33: " *", 44: "x", 45: "x", 46: "x", 61: "Q", 62: "x", 63: "x", 75: "1",
         82: " *", 87: " *", 93: "x", 123: "x", 129: " *", 136: "x", 138: "x", 168: " *x", 188: " *x", 208: "x"}
FORM = ["G6:6", "G6:6", "G6:7", "G6:7", "G6:8", "G6:8", "G6:9", "G6:9", "G6:15", "G6:19", "G6:21", "G6:21", "G6:22",
        "G6:22", "G6:24a", "G6:24b", "G6:24b"]
VERWEISE = [4631, 4633, 4641, 4651, 4661, 4663, 4671, 4674, 4677, 4681]
menge("all of a line", "E1S", ALLES,
      [*((3001, feld) for feld in [*FORM, "G6:24f", "G6:24f", "G6:24g", "G6:24g", "G6:24d"]), 3208, 4611, 4613, 4622,
       4521, *VERWEISE, (2032, "G6:23"), (2032, "G6:24e"), (2032, "G6:24h")])
menge("all of a line", "01S", ALLES,
      [(2032, "93"), (2032, "138"), *((3001, feld) for feld in [*FORM, "168", "168", "188", "188", "G6:24d"]), 4611,
       4613, 4622, *VERWEISE, (2032, "93"), (2032, "138"), (2032, "208")])
fall("form errors of the number fields", BEIDE, [satz("G6")],
     [f(3002, 1, "G6:2a"), f(3002, 1, "G6:3"), f(3002, 1, "G6:13"), f(4601, 1)], kapitel=())
GUT = {18: "H1", 24: "P1", 30: "G1", 33: "V1", 36: "Zusatz", 44: "J", 45: "+", 46: VIEL, 61: "A", 62: "-", 63: PREIS,
       75: "1234565", 82: "12", 87: "E1", 123: "111001", 129: "T1"}
menge("nothing wrong", "E1S", {**GUT, 168: "N1", 188: "R1", 123: "000000"}, [], STRUKTUR_E1S)
menge("nothing wrong", "01S", {**GUT, 136: "05"}, [], STRUKTUR)

# A long file of lines with many findings of one code each: the one sort over the whole list.
for anzahl in (7, 40):
    for art in BEIDE:
        saetze, meldungen, zeichen = [g1()], [], []
        for nummer in NUMMERN[:anzahl]:
            saetze += [g2(nummer), g5(nummer), g6(ALLES, nummer)]
            n = len(saetze)
            if art == "E1S":
                meldungen += codes_bei([*((3001, feld) for feld in [*FORM, "G6:24f", "G6:24f", "G6:24g", "G6:24g", "G6:24d"]),
                                        3208, 4611, 4613, 4622, 4521, *VERWEISE, (2032, "G6:23"), (2032, "G6:24e"),
                                        (2032, "G6:24h")], n)
            else:
                zeichen += codes_bei([(2032, "93"), (2032, "138")], n)
                meldungen += codes_bei([*((3001, feld) for feld in [*FORM, "168", "168", "188", "188", "G6:24d"]), 4611, 4613,
                                        4622, *VERWEISE, (2032, "93"), (2032, "138"), (2032, "208")], n)
        fall(f"order of the protocol, {anzahl} lines", art, saetze, zeichen + meldungen)

test_all_findings_of_a_quantity_in_their_order = faelle()
