"""Codes 4401 to 4496: assignments of preliminary remarks (G4)."""
from befunde import f, ohne_zeile
from gblock import EINRICHTUNG, EKG, KAG, NUTZUNG, OGL, RAUM, STRUKTUR, STRUKTUR_E1S, VARIANTEN, fall, g1, g2, g4, g5
from rahmen import BEIDE, faelle, satz


def zuordnung(name, arten, felder, codes, davor=STRUKTUR, vorher=()):
    """One G4 on position 111100, line 3; `codes` are its codes, or a code with its field."""
    meldungen = [f(*(code[:1] + (3,) + code[1:] if isinstance(code, tuple) else (code, 3))) for code in codes]
    fall(name, arten, [g1(), g2("111100"), g4(felder=felder)], [*vorher, *meldungen], davor=davor)


# A 01S file with uses or rooms has lines of an undefined type: one finding without a place, for the whole file.
UNDEFINIERT = [f(2041)]

# Chapter, position, level.
fall("4401", BEIDE, [g1(), g2("111100"), g4(kapitel="112")], [f(4401, 3)])
fall("no 4401, and no reference is needed", BEIDE, [g1(), g2("111100"), g4()], [])
fall("4402", BEIDE, [g1(), g2("111100"), g4("111200")], [f(4402, 3)])
fall("4403", BEIDE, [g1(), g2("111001"), g4("111001")], [f(4403, 3)])
for position in ("111000", "110000", "100000", "111010", "111100"):
    fall(f"no 4403 {position}", BEIDE, [g1(), g2(position), g4(position)], [])
SCHLECHT = {18: "X", 24: "Y", 30: "Z", 33: "Z", 82: "X", 87: "X", 129: "X", 135: "x", 168: "X", 188: "X"}
for position, code in (("111200", 4402), ("111001", 4403)):
    fall(f"{code} ends the record", BEIDE, [g1(), g2("111001"), g4(position, SCHLECHT)], [f(code, 3)])
fall("4401 ends the record", BEIDE, [g1(), g2("111100"), g4(kapitel="112", felder=SCHLECHT)], [f(4401, 3)])
fall("4403 stores nothing", "01S", [g1(), g2(), g4("111001", {136: "05"}), g4("111001", {82: "12", 136: "05"})],
     [f(4403, 3), f(4403, 4)], davor=KAG)
fall("the outdated order is told before the record ends", "E1S", [g1(), g2(), g4("111001", {136: "05"})],
     [f(3208, 3), f(4403, 3)])
fall("the outdated order is told before the chapter is looked for", "E1S", [g4(felder={136: "05"})],
     [f(3208, 1), f(4401, 1)], kapitel=())

test_an_assignment_needs_chapter_and_title_position = faelle()


# The furnishing detail. The fittings are allowed in each chapter: 4412, 4422, 4432, 4442, 4452, 4492, 4496 are never reported.
for zeichen in ("x", "+", "1"):
    zuordnung(f"4461 {zeichen}", BEIDE, {135: zeichen}, [4461])
for zeichen in ("*", " "):
    zuordnung(f"no 4461 {zeichen}", BEIDE, {135: zeichen}, [])
GUT = {18: "H1", 24: "P1", 30: "G1", 33: "V1", 82: "12", 87: "E1", 129: "T1"}
ALLE = {**GUT, 168: "N1", 188: "R1"}
for stern in ("*", " "):
    zuordnung(f"all references, detail {stern}", BEIDE, {**GUT, 135: stern}, [])
    zuordnung(f"all references, detail {stern}", "E1S", {**ALLE, 135: stern}, [], STRUKTUR_E1S)
    zuordnung(f"all references, detail {stern}", "01S", {**ALLE, 135: stern}, [], STRUKTUR_E1S, UNDEFINIERT)
    for spalte, text in GUT.items():
        if spalte not in (24, 33):
            zuordnung(f"{spalte} alone, detail {stern}", BEIDE, {spalte: text, 135: stern}, [])
    for spalte in (168, 188):
        zuordnung(f"{spalte} alone, detail {stern}", "E1S", {spalte: ALLE[spalte], 135: stern}, [], STRUKTUR_E1S)
zuordnung("the detail is told beside a wrong fitting", BEIDE, {129: "X", 135: "x"}, [4461, 4451])

test_furnishing_detail = faelle()


# Each reference: its code is not there, its structure is not there, and what a joker does.
for spalte, feld, code, gut, falsch, struktur in (
        (18, "G4:6", 4411, "H1", "H3", OGL), (82, "G4:21", 4421, "12", "13", KAG), (87, "G4:22", 4431, "E1", "E2", EKG),
        (30, "G4:8", 4441, "G1", "G3", VARIANTEN), (129, "G4:24b", 4451, "T1", "T2", EINRICHTUNG)):
    zuordnung(f"{code}", BEIDE, {spalte: falsch}, [code], struktur)
    zuordnung(f"no {code}", BEIDE, {spalte: gut}, [], struktur)
    zuordnung(f"{code} without the structure", BEIDE, {spalte: gut}, [code], ())
    zuordnung(f"{code} shorter than the code", BEIDE, {spalte: gut[0]}, [code], struktur)
    zuordnung(f"{code} longer than the code", BEIDE, {spalte: gut + "9"}, [code], struktur)
    if gut.lower() != gut:
        zuordnung(f"{code} in other letters", BEIDE, {spalte: gut.lower()}, [code], struktur)
    zuordnung(f"{code} leading blank", BEIDE, {spalte: " " + gut}, [(3001, feld), code], struktur)
    for joker, gefunden in ((gut[0] + "*", True), (gut + "*", True), ("*", True), ("Q*", False)):
        rest = [] if gefunden else [code]
        zuordnung(f"joker {feld} {joker}", "01S", {spalte: joker}, rest, struktur)
        zuordnung(f"joker {feld} {joker}", "E1S", {spalte: joker}, [*rest, 4481], struktur)
    zuordnung(f"joker alone {feld} without the structure", "01S", {spalte: "*"}, [code], ())
    zuordnung(f"joker alone {feld} without the structure", "E1S", {spalte: "*"}, [code, 4481], ())
    zuordnung(f"joker alone {feld} with the structure's head only", "01S", {spalte: "*"}, [], struktur[:1])
    zuordnung(f"joker alone {feld} with the structure's head only", "E1S", {spalte: "*"}, [4481], struktur[:1])
    for joker in (gut[0] + "*x", gut[0] + "**", "**"):
        zuordnung(f"joker not last {feld} {joker}", "01S", {spalte: joker}, [(3001, feld)], struktur)
        zuordnung(f"joker not last {feld} {joker}", "E1S", {spalte: joker}, [(3001, feld), 4481], struktur)
    zuordnung(f"two form errors {feld}", "01S", {spalte: " **"}, [(3001, feld), (3001, feld), code], struktur)
    zuordnung(f"two form errors {feld}", "E1S", {spalte: " **"}, [(3001, feld), (3001, feld), code, 4481], struktur)

# Uses and rooms take no joker.
for spalte, feld, code, gut, struktur in ((168, "G4:24f", 4491, "N1", NUTZUNG), (188, "G4:24g", 4495, "R1", RAUM)):
    zuordnung(f"{code}", "E1S", {spalte: "X1"}, [code], struktur)
    zuordnung(f"no {code}", "E1S", {spalte: gut}, [], struktur)
    zuordnung(f"{code}", "01S", {spalte: "X1"}, [code], struktur, UNDEFINIERT)
    zuordnung(f"no {code}", "01S", {spalte: gut}, [], struktur, UNDEFINIERT)
    zuordnung(f"{code} without the structure", BEIDE, {spalte: gut}, [code], ())
    zuordnung(f"{code} only the head", BEIDE, {spalte: gut}, [code], struktur[:1])
    for joker in (gut + "*", gut[0] + "*", "*"):
        zuordnung(f"{code} joker {joker}", "E1S", {spalte: joker}, [code, 4481], struktur)
        zuordnung(f"{code} joker {joker}", "01S", {spalte: joker}, [code], struktur, UNDEFINIERT)
    zuordnung(f"{code} joker not last", "E1S", {spalte: "*x"}, [(3001, feld), code, 4481], struktur)
    zuordnung(f"{code} joker not last", "01S", {spalte: "*x"}, [(3001, feld), code], ())

# Locations below an object, and variants below a group: one chain each, at most one finding.
for oben, unten, leer, mit_joker, nicht_da, oberer, gut, anderer, feld, struktur in (
        (18, 24, 4413, 4414, 4415, 4411, ("H1", "P1"), "Q1", "G4:7", OGL),
        (30, 33, 4443, 4444, 4445, 4441, ("G1", "V1"), "W1", "G4:9", VARIANTEN)):
    zuordnung(f"{leer}", BEIDE, {unten: gut[1]}, [leer], struktur)
    zuordnung(f"no {leer}", BEIDE, {oben: gut[0], unten: gut[1]}, [], struktur)
    zuordnung(f"{leer} and no look-up", "01S", {unten: "XX"}, [leer], ())
    zuordnung(f"{leer} of a joker", "01S", {unten: "*"}, [leer], struktur)
    zuordnung(f"{leer} of a joker", "E1S", {unten: "*"}, [leer, 4481], struktur)
    zuordnung(f"{mit_joker}", "01S", {oben: gut[0][0] + "*", unten: gut[1]}, [mit_joker], struktur)
    zuordnung(f"{mit_joker}", "E1S", {oben: gut[0][0] + "*", unten: gut[1]}, [mit_joker, 4481], struktur)
    zuordnung(f"{mit_joker} joker without a match", "01S", {oben: "X*", unten: gut[1]}, [oberer, mit_joker], struktur)
    zuordnung(f"{mit_joker} joker without a match", "E1S", {oben: "X*", unten: "XX"}, [oberer, mit_joker, 4481],
              struktur)
    zuordnung(f"no {mit_joker} without the lower", "01S", {oben: gut[0][0] + "*"}, [], struktur)
    zuordnung(f"{nicht_da}", BEIDE, {oben: gut[0], unten: "XX"}, [nicht_da], struktur)
    zuordnung(f"{nicht_da} below the other", BEIDE, {oben: gut[0], unten: anderer}, [nicht_da], struktur)
    zuordnung(f"{nicht_da} and the upper", BEIDE, {oben: "XX", unten: gut[1]}, [oberer, nicht_da], struktur)
    zuordnung(f"{nicht_da} without the structure", BEIDE, {oben: gut[0], unten: gut[1]}, [oberer, nicht_da], ())
    for joker, gefunden in ((gut[1][0] + "*", True), ("*", True), ("X*", False)):
        rest = [] if gefunden else [nicht_da]
        zuordnung(f"joker {feld} {joker}", "01S", {oben: gut[0], unten: joker}, rest, struktur)
        zuordnung(f"joker {feld} {joker}", "E1S", {oben: gut[0], unten: joker}, [*rest, 4481], struktur)
    zuordnung(f"joker {feld} below an unknown one", "01S", {oben: "XX", unten: "*"}, [oberer, nicht_da], struktur)
for eintrag, gefunden in (("12", True), ("123", True), ("1", False)):
    zuordnung(f"joker 12* and the entry {eintrag}", "01S", {82: "12*"}, [] if gefunden else [4421],
              [KAG[0], satz("B1", {2: "001", 82: eintrag, 93: "Kosten"})])
zuordnung("joker * below an object without locations", "01S", {18: "H3", 24: "*"}, [],
          [*OGL[:1], satz("B2", {2: "002", 18: "H3", 93: "Haus 3"})])

test_references_of_an_assignment_are_looked_up = faelle()


# Order.
REIHE = [g4(felder={82: code, 136: "05"}) for code in ("12", "123")]
fall("4471", "01S", [g1(), g2("111100"), *REIHE], [f(4471, 4)], davor=KAG)
fall("no 4471, the order is outdated", "E1S", [g1(), g2("111100"), *REIHE], [f(3208, 3), f(3208, 4)], davor=KAG)
fall("no 4471", "01S", [g1(), g2("111100"), REIHE[0], g4(felder={82: "123", 136: "06"})], [], davor=KAG)
fall("no 4471 of zeros", "01S", [g1(), g2("111100"), *(g4(felder={82: c, 136: "00"}) for c in ("12", "123"))], [],
     davor=KAG)
fall("3208 of zeros", "E1S", [g1(), g2("111100"), *(g4(felder={82: c, 136: "00"}) for c in ("12", "123"))],
     [f(3208, 3), f(3208, 4)], davor=KAG)
fall("no 4471 on another position", "01S",
     [g1(), g2("111100"), g4(felder={136: "05"}), g2("111200"), g4("111200", {136: "05"})], [])
fall("4471 once a record, which is stored all the same", "01S",
     [g1(), g2("111100"), g4(felder={136: "05"}), *REIHE, g4(felder={18: "H1", 136: "05"})],
     [f(4471, 4), f(4471, 5), f(4471, 6)], davor=KAG + OGL)
fall("an assignment with a wrong reference is stored", "01S",
     [g1(), g2("111100"), g4(felder={82: "X", 136: "05"}), g4(felder={136: "05"})], [f(4421, 3), f(4471, 4)])
zuordnung("order no number", "01S", {136: "5 "}, [(3001, "G4:24d")])
zuordnung("order no number", "E1S", {136: "5 "}, [(3001, "G4:24d"), 3208])
fall("order no number counts as none", "01S",
     [g1(), g2("111100"), *(g4(felder={82: c, 136: "5 "}) for c in ("12", "123"))],
     [f(3001, 3, "G4:24d"), f(3001, 4, "G4:24d")], davor=KAG)

test_order_of_assignments_is_unique = faelle()


# The joker is gone from the new interface: once for the record.
zuordnung("4481 once", "E1S", {18: "H*", 82: "*"}, [4481])
zuordnung("no 4481", "01S", {18: "H*", 82: "*"}, [])
zuordnung("no 4481 for the detail", "E1S", {18: "H1", 135: "*"}, [])
zuordnung("joker in all nine", "E1S",
          {18: "H*", 24: "P*", 30: "G*", 33: "V*", 82: "1*", 87: "E*", 129: "T*", 168: "N*", 188: "R*"},
          [4414, 4444, 4491, 4495, 4481], STRUKTUR_E1S)
zuordnung("joker in all nine", "01S",
          {18: "H*", 24: "P*", 30: "G*", 33: "V*", 82: "1*", 87: "E*", 129: "T*", 168: "N*", 188: "R*"},
          [4414, 4444, 4491, 4495], STRUKTUR_E1S, UNDEFINIERT)
zuordnung("all references wrong", "E1S", SCHLECHT, [4461, 4411, 4415, 4421, 4431, 4441, 4445, 4451, 4491, 4495])
zuordnung("all references wrong", "01S", SCHLECHT, [4461, 4411, 4415, 4421, 4431, 4441, 4445, 4451, 4491, 4495])
FELDER = (("G4:6", 18), ("G4:7", 24), ("G4:8", 30), ("G4:9", 33), ("G4:21", 82), ("G4:22", 87), ("G4:24b", 129),
          ("G4:24f", 168), ("G4:24g", 188))
for art in BEIDE:
    zuordnung("nine form errors doubled", art, {spalte: " **" for _, spalte in FELDER},
              [(3001, feld) for feld, _ in FELDER for _ in (1, 2)]
              + [4411, 4414, 4421, 4431, 4441, 4444, 4451, 4491, 4495] + ([4481] if art == "E1S" else []))
fall("form errors of the number fields", BEIDE, [satz("G4")],
     [f(3002, 1, "G4:2a"), f(3002, 1, "G4:3"), f(4401, 1)], kapitel=())

test_a_joker_is_told_once_in_an_e1s_file = faelle()


# Stored or not shows at a title position: an assignment belongs in an end node.
fall("stored", BEIDE, [g1(), g2("111000"), g4("111000", {18: "X"}), g2("111001"), g5()],
     [f(4411, 3), ohne_zeile(4711, 111, 111000), ohne_zeile(4731, 111, 111000)])
fall("not stored", BEIDE, [g1(), g2("111000"), g4("111200", {18: "X"}), g2("111300")],
     [f(4402, 3), ohne_zeile(4711, 111, 111000)])

test_what_an_assignment_leaves_for_the_tree = faelle()
