"""Codes 4501 to 4521: unit, price and kind of price of a position (G5)."""
from befunde import f, ohne_zeile
from gblock import fall, g1, g2, g3, g5, g6
from rahmen import BEIDE, faelle, satz

PREIS = "000000001250"
OHNE_EINHEIT = "  "


def preis(name, arten, felder, codes, jahr="14", kopf=None):
    """One G5 on position 111001, line 3; `codes` are its codes."""
    fall(name, arten, [g1(felder={6: jahr}), g2(), g5(felder=felder)], [f(code, 3) for code in codes], kopf=kopf)


def menge(name, arten, felder, codes, preis_der_menge):
    """The same with a quantity on line 4 that brings `preis_der_menge`."""
    fall(name, arten, [g1(), g2(), g5(felder=felder), g6(preis_der_menge)], [f(code, zeile) for code, zeile in codes])


# Chapter, position, level.
fall("4501", BEIDE, [g1(), g2(), g5(kapitel="112")], [f(4501, 3)])
fall("no 4501", BEIDE, [g1(), g2(), g5()], [])
fall("4502", BEIDE, [g1(), g2(), g5("111002")], [f(4502, 3)])
for position in ("111000", "110000", "100000", "111100", "111010"):
    fall(f"4503 {position}, and no quantity can follow", BEIDE,
         [g1(), g2(position), g5(position), g6(position=position)], [f(4503, 3), f(4602, 4)])
for position in ("111001", "111009", "111101"):
    fall(f"no 4503 {position}", BEIDE, [g1(), g2(position), g5(position), g6(position=position)], [])
SCHLECHT = {59: "XX", 61: "Q", 62: "x", 63: PREIS}
fall("4501 ends the record", BEIDE, [g1(), g5(kapitel="112", felder=SCHLECHT)], [f(4501, 2)])
fall("4502 ends the record", BEIDE, [g1(), g2(), g5("111002", SCHLECHT)], [f(4502, 3)])
fall("4503 ends the record", BEIDE, [g1(), g2("111000"), g5("111000", SCHLECHT)], [f(4503, 3)])
fall("4503 ends the record also in a reserve chapter", "01S",
     [g1("119"), g2("111000", kapitel="119"), g5("111000", {59: OHNE_EINHEIT}, kapitel="119")],
     [f(4503, 3), ohne_zeile(4721, 119, 111000)], kapitel=())

test_a_price_needs_chapter_and_position = faelle()


# Units: by the language of the file. Those of a lump sum are outdated from the year 2020 on.
EINHEITEN = {
    "1": ("St Pr m m2 m3 kg t h d Wo Mt l hl S Kb Kr Ro % %o kJ pl gl LE", "Pr S Kb Kr Ro"),
    "2": ("p pa m m2 m3 kg t h d se ms l hl sa su br ro % %o kJ f gl up", "pa sa su br ro"),
    "3": ("pz pa m m2 m3 kg t h d st ms l hl sa se ca ro % %o kJ ac gl up", "pa sa se ca ro"),
}
NUMMERN = [f"111{n:03}" for n in range(1, 80) if n % 10]
ALLE = sorted({einheit for alle, _ in EINHEITEN.values() for einheit in alle.split()}
              | {"XX", "ST", "M2", "pr", "mt", " m", "%%", "o", "2", "no", "x"})
assert len(ALLE) <= len(NUMMERN)
for sprache, (gut, pauschal) in EINHEITEN.items():
    for jahr, veraltet in (("14", False), ("19", False), ("20", True), ("21", True), ("88", True), ("89", False),
                           ("00", False)):
        saetze, meldungen = [g1(felder={6: jahr})], []
        for nummer, einheit in zip(NUMMERN, ALLE, strict=False):
            saetze += [g2(nummer), g5(nummer, {59: f"{einheit:<2}"})]
            if einheit not in gut.split():
                meldungen.append(f(4504, len(saetze)))
            if veraltet and einheit in pauschal.split():
                meldungen.append(f(4511, len(saetze)))
        fall(f"4504 and 4511 of language {sprache}, year {jahr}", BEIDE, saetze, meldungen, kopf={42: sprache})
preis("4504", BEIDE, {59: "XX"}, [4504])
preis("no 4504", BEIDE, {59: "St"}, [])
preis("4504, the unit of another language", BEIDE, {59: "St"}, [4504], kopf={42: "2"})
preis("4504 in other letters", BEIDE, {59: "st"}, [4504])
preis("4504 leading blank", BEIDE, {59: " m"}, [4504])
preis("4511", BEIDE, {59: "Pr"}, [4511], jahr="20")
preis("no 4511, the year before", BEIDE, {59: "Pr"}, [], jahr="19")
preis("no 4511, no lump sum", BEIDE, {59: "St"}, [], jahr="20")

# A unit is needed at a reserve only.
fall("4505 reserve position", BEIDE, [g1(), g2("111901"), g3("111901"), g5("111901", {59: OHNE_EINHEIT})],
     [f(4505, 4)])
fall("no 4505 with a unit", BEIDE, [g1(), g2("111901"), g3("111901"), g5("111901")], [])
fall("no 4505 but 4504", BEIDE, [g1(), g2("111901"), g3("111901"), g5("111901", {59: "XX"})], [f(4504, 4)])
for position in ("111009", "911001", "111001"):
    fall(f"no 4505 {position}", BEIDE, [g1(), g2(position), g5(position, {59: OHNE_EINHEIT})], [])
for position in ("111901", "111091", "119001", "191001"):
    fall(f"4505 {position}", "01S", [g1(), g2(position), g5(position, {59: OHNE_EINHEIT})],
         [f(4505, 3), ohne_zeile(4721, 111, int(position))])
fall("4505 reserve chapter", "01S", [g1("119"), g2(kapitel="119"), g5(felder={59: OHNE_EINHEIT}, kapitel="119")],
     [f(4505, 3), ohne_zeile(4721, 119, 111001)], kapitel=())
ASTE = ["100000", "110000", "111000"]
fall("4505 reserve chapter", "E1S",
     [g1("119"), *(g2(p, kapitel="119") for p in ASTE), g2(kapitel="119"),
      g5(felder={59: OHNE_EINHEIT}, kapitel="119")],
     [f(4505, 6), *(ohne_zeile(4721, 119, int(p)) for p in [*ASTE, "111001"])], kapitel=())

test_unit_by_language_and_year = faelle()


# Sign and price.
for zeichen in ("x", "0", "*"):
    preis(f"4506 {zeichen}", BEIDE, {62: zeichen, 63: PREIS}, [4506])
    preis(f"4506 {zeichen} without a price", BEIDE, {62: zeichen}, [4506])
for zeichen in ("+", "-"):
    preis(f"no 4506 {zeichen}", BEIDE, {62: zeichen, 63: PREIS}, [])
    preis(f"no 4506 {zeichen} without a price", BEIDE, {62: zeichen}, [])
preis("4507", BEIDE, {63: PREIS}, [4507])
preis("4507 of a price of zero", BEIDE, {63: "000000000000"}, [4507])
preis("no 4507 without a price", BEIDE, {63: " " * 12}, [])
fall("4507 of a price that is no number", BEIDE, [g1(), g2(), g5(felder={63: "       12.50"})],
     [f(3001, 3, "G5:19"), f(4507, 3)])
fall("price that fills its field in part", BEIDE, [g1(), g2(), g5(felder={62: "+", 63: "        1250"})],
     [f(3001, 3, "G5:19")])
fall("price cut by the end of the line", BEIDE, [g1(), g2(), g5(felder={62: "+", 63: "00000"})],
     [f(3001, 3, "G5:19")])

# Kind of price.
for zeichen in "AFINR ":
    preis(f"no 4521 {zeichen}", BEIDE, {61: zeichen}, [])
for zeichen in "QaBW1*":
    preis(f"4521 {zeichen}", "E1S", {61: zeichen}, [4521])
    preis(f"no 4521 {zeichen}", "01S", {61: zeichen}, [])

test_sign_price_and_kind_of_price = faelle()


# What is stored shows at the price of a quantity: a sign or a kind at the position bars it, valid or not.
MIT_PREIS = {62: "+", 63: PREIS}
menge("neither sign nor kind", BEIDE, {63: PREIS}, [(4507, 3)], MIT_PREIS)
for art, code in (("01S", 4621), ("E1S", 4624)):
    menge("a sign", art, {62: "+", 63: PREIS}, [(code, 4)], MIT_PREIS)
    menge("a sign alone", art, {62: "-"}, [(code, 4)], MIT_PREIS)
    menge("a wrong sign", art, {62: "x", 63: PREIS}, [(4506, 3), (code, 4)], MIT_PREIS)
    menge("a kind", art, {61: "A"}, [(code, 4)], MIT_PREIS)
    menge("a wrong kind", art, {61: "Q"}, ([(4521, 3)] if art == "E1S" else []) + [(code, 4)], MIT_PREIS)
    fall("the second G5 overwrites the first", art, [g1(), g2(), g5(), g5(felder={61: "A", 82: "X"}), g6(MIT_PREIS)],
         [f(2032, 4, "82"), f(code, 5)])
fall("the second G5 overwrites the first", BEIDE,
     [g1(), g2(), g5(felder={61: "A", 62: "+"}), g5(felder={82: "X"}), g6(MIT_PREIS)], [f(2032, 4, "82")])
fall("errors of the second part are stored all the same", BEIDE,
     [g1(), g2(), g5(felder={59: "XX", 62: "x"}), g6()], [f(4504, 3), f(4506, 3)])

preis("all of a line", "E1S", SCHLECHT, [4504, 4506, 4521])
preis("all of a line", "01S", SCHLECHT, [4504, 4506])
fall("form errors", BEIDE, [satz("G5", {63: "x"})],
     [f(3002, 1, "G5:2a"), f(3002, 1, "G5:3"), f(3001, 1, "G5:19"), f(4501, 1)], kapitel=())

test_what_a_price_leaves_for_its_quantities = faelle()
