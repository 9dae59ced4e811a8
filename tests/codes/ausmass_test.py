"""Codes 4692 to 4694: lines of a detail measurement (eG6), and 2032 for the fields that only a plain quantity may fill.

In a 01S file columns 14 to 17 of a quantity are no fields: each detail line there is data outside the fields, and is
judged as a detail line all the same.
"""
from befunde import f, ohne_zeile
from gblock import EKG, KAG, NUTZUNG, OGL, STRUKTUR, STRUKTUR_E1S, VARIANTEN, eg6, fall, g1, g2, g3, g5, g6
from rahmen import BEIDE, faelle

VIEL = "0000000001000"
VORNE = [g1(), g2(), g5(), g6()]
NAMEN = {14: "G6:4", 16: "G6:5", 93: "G6:23", 138: "G6:24e", 168: "G6:24f", 188: "G6:24g", 208: "G6:24h"}


def feld(art, spalte):
    """How a field of the new interface shows: by its column in a 01S file."""
    return NAMEN[spalte] if art == "E1S" else str(spalte)


def aussen(art, zeile, *spalten):
    """What the characters of a detail line give in a 01S file: one finding for each gap with data in it."""
    return [f(2032, zeile, str(spalte)) for spalte in spalten] if art == "01S" else []


def ausmass(name, felder, codes, arten=BEIDE, davor=(), menge=None, preis=None, spalten=(14,)):
    """A plain quantity on line 4, its detail line on line 5; `codes` are codes, or a code with its column or field."""
    for art in [arten] if isinstance(arten, str) else arten:
        saetze = [g1(), g2(), g5(felder=preis), g6(menge), eg6(felder)]
        meldungen = [f(code[0], 5, feld(art, code[1]) if code[1] in NAMEN else code[1])
                     if isinstance(code, tuple) else f(code, 5) for code in codes]
        fall(name, art, saetze, [*aussen(art, 5, *spalten), *meldungen], davor=davor)


# Without a quantity of the same references: 4692, and nothing of the line's own codes.
ausmass("no 4692", {}, [])
OHNE = {44: "B", 14: "00"}
for felder in ({}, OHNE, {44: None}, {75: "1234565"}, {36: "x", 61: "A", 62: "+", 63: "000000000100"}, {93: "Text"}):
    fall(f"4692 {felder}", "E1S", [g1(), g2(), g5(), eg6(felder)], [f(4692, 4)])
fall("4692", "01S", [g1(), g2(), g5(), eg6()], [f(2032, 4, "14"), f(4692, 4)])
for spalte, gut, davor in ((18, "H1", STRUKTUR), (30, "G1", STRUKTUR), (82, "12", STRUKTUR), (87, "E1", STRUKTUR),
                           (129, "T1", STRUKTUR), (168, "N1", STRUKTUR_E1S), (188, "R1", STRUKTUR_E1S)):
    ausmass(f"4692 only the line has {spalte}", {**OHNE, spalte: gut}, [4692], "E1S", davor)
    ausmass(f"4692 only the quantity has {spalte}", OHNE, [4692], "E1S", davor, menge={spalte: gut})
    ausmass(f"no 4692, both have {spalte}", {spalte: gut}, [], "E1S", davor, menge={spalte: gut})
    if spalte < 168:
        ausmass(f"4692 only the line has {spalte}", {spalte: gut}, [4692], "01S", davor)
        ausmass(f"no 4692, both have {spalte}", {spalte: gut}, [], "01S", davor, menge={spalte: gut})
for oben, unten, texte in ((18, 24, ("H1", "P1")), (30, 33, ("G1", "V1"))):
    ausmass(f"4692 only the line has {unten}", {oben: texte[0], unten: texte[1]}, [4692], BEIDE, STRUKTUR,
            menge={oben: texte[0]})
    ausmass(f"no 4692, both have {unten}", {oben: texte[0], unten: texte[1]}, [], BEIDE, STRUKTUR,
            menge={oben: texte[0], unten: texte[1]})
ausmass("4692 in other letters", {18: "h1"}, [4631, 4692], BEIDE, OGL, menge={18: "H1"})
NEUN = {18: "H1", 24: "P1", 30: "G1", 33: "V1", 82: "12", 87: "E1", 129: "T1", 168: "N1", 188: "R1"}
ausmass("no 4692 with all nine", NEUN, [], "E1S", STRUKTUR_E1S, menge=NEUN)
fall("4692 the quantity of another position", "E1S", [*VORNE, g2("111002"), g5("111002"), eg6(position="111002")],
     [f(4692, 7)])
fall("no 4692 at the third quantity", "E1S",
     [*VORNE, g6({82: "12"}), g6({82: "123"}), eg6({82: "123"}), eg6({82: "12"})], [], davor=KAG)
fall("4601 and 4602 of a detail line", "E1S",
     [g1(), g2(), g5(), eg6(position="111002"), g1("112"), eg6(kapitel="113")], [f(4602, 4), f(4601, 6)],
     kapitel=(111, 112))
fall("4602 without a G5", "E1S", [g1(), g2(), g6(), eg6()], [f(4602, 3), f(4602, 4)])
fall("a detail line after a quantity with errors", "E1S", [g1(), g2(), g5(), g6({44: "x", 45: "x"}), eg6()],
     [f(4611, 4), f(4613, 4), f(4614, 4)])
fall("wrong references are equal too", "E1S", [g1(), g2(), g5(), g6({18: "X"}), eg6({18: "X"})],
     [f(4631, 4), f(4631, 5)])
fall("a quantity with a wrong kind has no detail line of another kind", "E1S",
     [*VORNE, eg6({44: "J", 33: "V1", 30: "G1"})],
     [f(4692, 5)], davor=VARIANTEN)

test_a_detail_line_finds_the_quantity_of_its_references = faelle()


# Kind: not read with the quantity's own, and always A.
for zeichen in ("B", "a", "J", "W", "x", "C"):
    ausmass(f"4693 {zeichen}", {44: zeichen}, [4693])
ausmass("4693 kind blank", {44: None}, [(3002, "G6:13"), 4693])
ausmass("no 4616 of a detail line", {44: "W", 45: "+", 46: VIEL}, [4693])
ausmass("no 4612 of a detail line", {44: "Q", 30: "G1", 33: "V1"}, [4693], BEIDE, VARIANTEN, menge={30: "G1", 33: "V1"})
ausmass("no 4612 of a detail line, kind A", {30: "G1", 33: "V2"}, [], BEIDE, VARIANTEN, menge={30: "G1", 33: "V2"})

# Group and line from 1 to 99, once whichever it was.
for gruppe, zeile in (("00", "01"), ("01", "00"), ("00", "00")):
    ausmass(f"4694 {gruppe} {zeile}", {14: gruppe, 16: zeile}, [4694])
for gruppe, zeile in (("01", "01"), ("99", "99"), ("01", "99")):
    ausmass(f"no 4694 {gruppe} {zeile}", {14: gruppe, 16: zeile}, [])
ausmass("line blank", {16: "  "}, [(3002, 16), 4694])
ausmass("group blank", {14: "  "}, [(3002, 14), 4694], spalten=(16,))
ausmass("group in one column", {14: "1 "}, [(3001, 14), 4694])
ausmass("line in one column", {16: " 1"}, [(3001, 16), 4694])
ausmass("both no numbers", {14: "x", 16: "y"}, [(3001, 14), (3001, 16), 4694])
ausmass("both no numbers, kind blank", {14: "x", 16: "y", 44: None},
        [(3001, 14), (3001, 16), (3002, "G6:13"), 4693, 4694])
ausmass("a blank in front makes it a detail line too", {14: " 1"}, [(3001, 14), 4694], spalten=(15,))

# Sign and quantity: judged twice.
ausmass("4613", {45: "x", 46: VIEL}, [4613, 4613])
ausmass("4613 and 4614", {45: "x"}, [4613, 4614, 4613, 4614])
ausmass("4614", {45: "-"}, [4614, 4614])
ausmass("4615", {46: VIEL}, [4615, 4615])
ausmass("quantity no number", {45: "+", 46: "x"}, [(3001, "G6:15"), (3001, "G6:15")])
ausmass("quantity no number, no sign", {46: "x"}, [(3001, "G6:15"), 4615, (3001, "G6:15"), 4615])
for zeichen in "+-":
    ausmass(f"no 4613 {zeichen}", {45: zeichen, 46: VIEL}, [])
fall("sign errors once without a quantity to belong to", "E1S", [g1(), g2(), g5(), eg6({45: "x"})],
     [f(4613, 4), f(4614, 4), f(4692, 4)])

test_kind_group_line_sign_and_quantity_of_a_detail_line = faelle()


# Fields of a plain quantity.
EINZELN = ((36, "x", "G6:10"), (61, "A", "G6:17"), (62, "+", "G6:18"), (63, "000000000100", "G6:19"),
           (75, "1234565", "G6:20"), (123, "000000", "G6:24a"))
for spalte, text, name in EINZELN:
    ausmass(f"2032 {name}", {spalte: text}, [(2032, name)])
ausmass("2032 at the end of its field", {41: "x"}, [(2032, "G6:10")])
SECHS = {spalte: text for spalte, text, _ in EINZELN}
ausmass("2032 of all six", SECHS, [(2032, name) for _, _, name in EINZELN])
ausmass("2032 of five", {36: "x", 61: "A", 62: "+", 63: "000000000100", 123: "000000"},
        [(2032, name) for spalte, _, name in EINZELN if spalte != 75])
ausmass("no code of the price", {61: "Q", 62: "x", 63: "000000000100"},
        [(2032, "G6:17"), (2032, "G6:18"), (2032, "G6:19")])
ausmass("no code of the price below a price of the position", {61: "Q", 62: "x", 63: "000000000100"},
        [(2032, "G6:17"), (2032, "G6:18"), (2032, "G6:19")], preis={61: "A", 62: "+"})
ausmass("price no number", {63: "x"}, [(3001, "G6:19"), (2032, "G6:19")])
ausmass("remark no number", {123: "x"}, [(3001, "G6:24a"), (2032, "G6:24a")])
ausmass("no 4741: the remark of a detail line is not kept", {123: "999999"}, [(2032, "G6:24a")])
fall("4741 of the quantity, to compare", "01S", [g1(), g2(), g5(), g6({123: "999999"})], [ohne_zeile(4741, 111, 111001)])

# Texts of a detail line are fields of the new interface; in a 01S file they stand outside.
for spalte in (93, 138, 208):
    ausmass(f"no 2032 {spalte}", {spalte: "Text"}, [], spalten=(14, spalte))
ausmass("no 2032 of the three texts", {93: "Text", 138: "Text", 208: "Text"}, [], spalten=(14, 93, 138))

test_fields_of_a_plain_quantity_stay_blank = faelle()


# Running number: judged with the others, but not kept.
ausmass("number repeated from its quantity", {75: "1234565"}, [4682, (2032, "G6:20")], menge={75: "1234565"})
ausmass("number of its own", {75: "1234572"}, [(2032, "G6:20")], menge={75: "1234565"})
ausmass("number with a wrong check digit", {75: "1234560"}, [4681, (2032, "G6:20")])
ausmass("number of zeros", {75: "0000000"}, [4682, (2032, "G6:20")], "E1S")
ausmass("number of zeros", {75: "0000000"}, [(2032, "G6:20")], "01S")
for art in BEIDE:
    fall("a number of a detail line may come again", art,
         [*VORNE, eg6({75: "1234565"}), g2("111002"), g5("111002"), g6({75: "1234565"}, "111002")],
         [*aussen(art, 5, 14), f(2032, 5, "G6:20")])
    fall("a number of a detail line may come again in a detail line", art,
         [*VORNE, eg6({75: "1234565"}), eg6({16: "02", 75: "1234565"})],
         [*aussen(art, 5, 14), *aussen(art, 6, 14), f(2032, 5, "G6:20"), f(2032, 6, "G6:20")])
ausmass("4682 of another position", {75: "1234565"}, [4682, (2032, "G6:20")], menge={75: "1234565"})

# Order.
ausmass("order repeated from its quantity", {136: "05"}, [4683], "01S", menge={136: "05"})
ausmass("order of its own", {136: "06"}, [], "01S", menge={136: "05"})
ausmass("order outdated", {136: "05"}, [3208], "E1S")
fall("the order of a detail line is not kept", "01S", [*VORNE, eg6({136: "05"}), eg6({16: "02", 136: "05"})],
     [f(2032, 5, "14"), f(2032, 6, "14")])

test_running_number_and_order_of_a_detail_line = faelle()


# References of a detail line: tested as those of a quantity.
for felder, codes, davor in (({18: "X"}, [4631], OGL), ({24: "P1"}, [4632], OGL), ({18: "H1", 24: "X"}, [4633], OGL),
                             ({82: "X"}, [4641], KAG), ({87: "X"}, [4651], EKG), ({30: "X"}, [4661], VARIANTEN),
                             ({33: "V1"}, [4662], VARIANTEN), ({30: "G1", 33: "X"}, [4663], VARIANTEN),
                             ({129: "X"}, [4671], ()), ({18: "*"}, [(3001, "G6:6")], OGL),
                             ({18: " *"}, [(3001, "G6:6"), (3001, "G6:6"), 4631], OGL)):
    ausmass(f"references {felder} and no quantity", felder, [*codes, 4692], BEIDE, davor)
    fall(f"references {felder} of both", "E1S", [g1(), g2(), g5(), g6(felder), eg6(felder)],
         [f(code[0], z, code[1]) if isinstance(code, tuple) else f(code, z) for z in (4, 5) for code in codes],
         davor=davor)
for spalte, code in ((168, 4674), (188, 4677)):
    ausmass(f"{code}", {spalte: "X"}, [code, 4692], spalten=(14, spalte))
ausmass("no 4674", {168: "N1"}, [], "E1S", NUTZUNG, menge={168: "N1"})

# Repeated group and line: no test asks for it.
for art in BEIDE:
    fall("two lines of the same numbers", art, [*VORNE, eg6(), eg6({123: "000000"})],
         [*aussen(art, 5, 14), *aussen(art, 6, 14), f(2032, 6, "G6:24a")])
fall("only one of the two columns, on many lines", "E1S",
     [*VORNE, *(eg6({14: "  ", 16: f"{n:02}"}) for n in range(1, 9))],
     [f(code, 4 + n, name) for n in range(1, 9) for code, name in ((3002, "G6:4"), (4694, None))])

test_references_of_a_detail_line_are_looked_up = faelle()


# Everything at once, and the order of the many equal keys over a longer file.
ALLES = {**SECHS, 14: "x", 16: "y", 44: None, 45: "x", 46: "x", 63: "x", 75: "1", 123: "x", 136: "x"}


def alles(art, zeile):
    """Characters of the line apart from the record: in the order of adding the first come before all records."""
    return aussen(art, zeile, 14), [
        f(3001, zeile, "G6:15"), f(3001, zeile, "G6:19"), f(3001, zeile, "G6:24a"), f(3001, zeile, "G6:24d"),
        *([f(3208, zeile)] if art == "E1S" else []), f(4613, zeile), f(4681, zeile),
        f(3001, zeile, feld(art, 14)), f(3001, zeile, feld(art, 16)), f(3002, zeile, "G6:13"),
        f(3001, zeile, "G6:15"), f(4693, zeile), f(4694, zeile), f(4613, zeile),
        *(f(2032, zeile, name) for _, _, name in EINZELN)]


for art in BEIDE:
    for anzahl in (1, 2, 5, 60):
        saetze, zeichen, meldungen = [g1()], [], []
        for nummer in [f"111{n:03}" for n in range(1, 80) if n % 10][:anzahl]:
            saetze += [g2(nummer), g5(nummer), g6(position=nummer), eg6(ALLES, nummer)]
            vorn, hinten = alles(art, len(saetze))
            zeichen += vorn
            meldungen += hinten
        fall(f"all of {anzahl} detail lines", art, saetze, zeichen + meldungen)
fall("a reserve position with a detail line", "E1S",
     [g1(), g2("111901"), g3("111901"), g5("111901"), g6(position="111901"), eg6(position="111901")], [])

test_all_findings_of_detail_lines_in_their_order = faelle()
