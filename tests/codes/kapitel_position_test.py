"""Codes 4101 to 4331: chapters (G1), positions (G2) and variables with their lines (G3)."""
from befunde import f, ohne_zeile
from gblock import fall, g1, g2, g3, g4, g5, g6
from rahmen import BEIDE, faelle, satz

DOPPELT = {82: "X"}  # outside the fields of these records, but in the key: makes a second record of one number possible
AUSSEN = "82"

# G1: range, group, repeated, title of a reserve chapter.
for nummer in ("000", "099", "090", "800", "801", "810", "899"):
    fall(f"4101 {nummer}", BEIDE, [g1(nummer)], [f(4101, 1)], kapitel=())
for nummer, erwartet in (("111", True), ("101", True), ("788", True), ("199", False), ("799", False), ("901", False),
                         ("911", False), ("191", False), ("188", True), ("999", False)):
    fall(f"no 4101 {nummer}", BEIDE, [g1(nummer)], [], kapitel=(int(nummer),) if erwartet else ())
fall("chapter no number", BEIDE, [g1("1a1")], [f(3001, 1, "G1:2a"), f(4101, 1)], kapitel=())
fall("chapter with a blank", BEIDE, [g1("11 ")], [f(3001, 1, "G1:2a"), f(4101, 1)], kapitel=())
fall("chapter blank", BEIDE, [g1("   ")], [f(3002, 1, "G1:2a"), f(4101, 1)], kapitel=())
for nummer in ("100", "110", "790", "900", "990"):
    fall(f"4102 {nummer}", BEIDE, [g1(nummer)], [f(4102, 1)], kapitel=())
fall("4103", BEIDE, [g1(), g1(felder=DOPPELT)], [f(2032, 2, AUSSEN), f(4103, 2)])
fall("4103 of a reserve chapter without a title, only the first", "01S",
     [g1("119"), g1("119", {82: "X", 93: " " * 30})],
     [f(2032, 2, AUSSEN), f(4103, 2)], kapitel=())
fall("no 4103", BEIDE, [g1(), g1("112", DOPPELT)], [f(2032, 2, AUSSEN)], kapitel=(111, 112))
fall("no 4103 after a chapter that was refused", BEIDE, [g1("110"), g1("110", DOPPELT)],
     [f(2032, 2, AUSSEN), f(4102, 1), f(4102, 2)], kapitel=())
OHNE_TITEL = {93: " " * 30}
fall("4104", "01S", [g1("119", OHNE_TITEL)], [f(4104, 1)], kapitel=())
fall("4104", "E1S", [g1("119", OHNE_TITEL)], [f(3003, 1, "G1:23"), f(4104, 1)], kapitel=())
fall("no 4104 in a normal chapter", "01S", [g1("118", OHNE_TITEL)], [], kapitel=(118,))
fall("no 4104 in a normal chapter", "E1S", [g1("118", OHNE_TITEL)], [f(3003, 1, "G1:23")], kapitel=(118,))
fall("no 4104 with the second text alone", "01S", [g1("191", {93: " " * 30, 138: "Text"})], [f(4104, 1)], kapitel=())
fall("4104 stores the chapter", "01S", [g1("119", OHNE_TITEL), g2("000000", kapitel="119")],
     [f(4104, 1), ohne_zeile(4721, 119, 0)], kapitel=())
fall("year blank", BEIDE, [g1(felder={6: "  "})], [f(3002, 1, "G1:2c")])
fall("year no number", BEIDE, [g1(felder={6: " 5"})], [f(3001, 1, "G1:2c")])

test_g1_chapter_number_year_and_title = faelle()


# A record that ended early left nothing behind.
for nummer, code in (("800", 4101), ("110", 4102), ("000", 4101)):
    fall(f"chapter {nummer} is not stored", BEIDE,
         [g1(nummer), g2(kapitel=nummer), g3(kapitel=nummer), g4("111001", kapitel=nummer), g5(kapitel=nummer),
          g6(kapitel=nummer)],
         [f(code, 1), f(4201, 2), f(4301, 3), f(4401, 4), f(4501, 5), f(4601, 6)], kapitel=())

test_a_refused_chapter_is_not_stored = faelle()


# G2: chapter, digits, reserve, repeated, marker.
fall("4201", BEIDE, [g1(), g2(), g2(kapitel="112")], [f(4201, 3)])
fall("no 4201", BEIDE, [g1(), g2(), g1("112"), g2(kapitel="112")], [], kapitel=(111, 112))
fall("4201 before any chapter", BEIDE, [g2()], [f(4201, 1)], kapitel=())
fall("4201 of a chapter that is no number", BEIDE, [g1(), g2(kapitel="11x")], [f(3001, 2, "G2:2a"), f(4201, 2)])
fall("no 4211 at the highest number", "01S", [g1(), g2("999999")], [ohne_zeile(4721, 111, 999999)])
fall("no 4211 at the highest number", "E1S", [g1(), g2("999999")], [f(4217, 2)])
for position in ("101000", "201000", "101001", "009000", "001001"):
    fall(f"4212 {position}", BEIDE, [g1(), g2(position)], [f(4212, 2)])
for position in ("110000", "111000", "100000", "100100", "110100"):
    fall(f"no 4212 {position}", BEIDE, [g1(), g2(position)], [])
for kapitel, position in (("101", "111001"), ("101", "110001"), ("101", "011001"), ("701", "111001")):
    fall(f"4213 {kapitel} {position}", BEIDE, [g1(kapitel), g2(position, kapitel=kapitel)], [f(4213, 2)],
         kapitel=(int(kapitel),))
fall("4213 in a reserve chapter", BEIDE, [g1("109"), g2("111001", kapitel="109")], [f(4213, 2)], kapitel=())
fall("no 4213 above the service level", BEIDE, [g1("101"), g2("111010", kapitel="101")], [], kapitel=(101,))
fall("no 4213", BEIDE, [g1("111"), g2("111001")], [])
for position in ("011001", "010001", "000001", "011111"):
    fall(f"4214 {position}", BEIDE, [g1(), g2(position)], [f(4214, 2)])
fall("no 4214 above the service level", BEIDE, [g1(), g2("011010")], [])
for position in ("110001", "100001", "110111", "900001"):
    fall(f"4215 {position}", BEIDE, [g1(), g2(position)], [f(4215, 2)])
fall("no 4215", BEIDE, [g1(), g2("111001")], [])
fall("4216", BEIDE, [g1(), g2("000000")], [f(4216, 2)])
fall("no 4216 in a reserve chapter", BEIDE, [g1("119"), g2("000000", kapitel="119")], [ohne_zeile(4721, 119, 0)], kapitel=())
fall("4216 of a blank position", BEIDE, [g1(), g2("      ")], [f(3002, 2, "G2:3"), f(4216, 2)])
fall("4216 of a position that is no number", BEIDE, [g1(), g2("12a456")], [f(3001, 2, "G2:3"), f(4216, 2)])

test_g2_position_number = faelle()


# The superior position of a reserve position must stand in the document: from the new interface on.
for position in ("190100", "190010", "191000", "111910", "111990"):
    fall(f"4217 {position}", "E1S", [g1(), g2(position)], [f(4217, 2)])
    fall(f"no 4217 {position}", "01S", [g1(), g2(position)], [ohne_zeile(4721, 111, int(position))])
fall("4217 191001", "E1S", [g1(), g2("191001")], [f(4217, 2)])
fall("no 4217 with the sub-section", "E1S", [g1(), g2("190000"), g2("190100")],
     [ohne_zeile(4721, 111, 190000), ohne_zeile(4721, 111, 190100)])
fall("no 4217 with the group", "E1S", [g1(), g2("111900"), g2("111910")],
     [ohne_zeile(4721, 111, 111900), ohne_zeile(4721, 111, 111910)])
for position in ("111910", "112910", "117910"):
    fall(f"4217 {position} with the main position only", "E1S", [g1(), g2(position[:3] + "000"), g2(position)], [f(4217, 3)])
for position in ("190000", "119000", "111900", "111190", "111090", "111901", "111911", "111191"):
    fall(f"no 4217, no reserve above {position}", BEIDE, [g1(), g2(position)], [ohne_zeile(4721, 111, int(position))])
fall("a refused reserve position is not stored", "E1S",
     [g1(), g2("190100"), g3("190100"), g4("190100", {}), g5("190100"), g6(position="190100")],
     [f(4217, 2), f(4302, 3), f(4402, 4), f(4502, 5), f(4602, 6)])
fall("4217 of one refused gives no 4221", "E1S", [g1(), g2("190100"), g2("190100", DOPPELT)],
     [f(2032, 3, AUSSEN), f(4217, 2), f(4217, 3)])
for position in ("110000", "111000", "111100", "111001", "119000"):
    fall(f"4217 in a reserve chapter {position}", "E1S", [g1("119"), g2(position, kapitel="119")], [f(4217, 2)],
         kapitel=())
    fall(f"no 4217 in a reserve chapter {position}", "01S", [g1("119"), g2(position, kapitel="119")],
         [ohne_zeile(4721, 119, int(position))], kapitel=())
ASTE = ["100000", "110000", "111000", "111001"]
fall("no 4217 in a reserve chapter with all above", "E1S", [g1("119"), *(g2(p, kapitel="119") for p in ASTE)],
     [ohne_zeile(4721, 119, int(p)) for p in ASTE], kapitel=())
fall("4217 one level after the other", "E1S", [g1("119"), *(g2(p, kapitel="119") for p in ASTE[1:])],
     [f(4217, 2), f(4217, 3), f(4217, 4)], kapitel=())
ASTE = ["100000", "110000", "111000", "111110"]
fall("no 4217: the group is asked for below a reserve position only", "E1S",
     [g1("119"), *(g2(p, kapitel="119") for p in ASTE)], [ohne_zeile(4721, 119, int(p)) for p in ASTE], kapitel=())
fall("4217 group in a reserve chapter", "E1S",
     [g1("119"), *(g2(p, kapitel="119") for p in ASTE[:3]), g2("111190", kapitel="119")],
     [f(4217, 5), *(ohne_zeile(4721, 119, int(p)) for p in ASTE[:3])], kapitel=())
ASTE = ["100000", "110000", "111000", "111100", "111190"]
fall("no 4217 with the group in a reserve chapter", "E1S", [g1("119"), *(g2(p, kapitel="119") for p in ASTE)],
     [ohne_zeile(4721, 119, int(p)) for p in ASTE], kapitel=())

fall("4221", BEIDE, [g1(), g2(), g2(felder=DOPPELT)], [f(2032, 3, AUSSEN), f(4221, 3)])
fall("4221 at each repetition", BEIDE, [g1(), g2(), g2(felder=DOPPELT), g2(felder={82: "Y"})],
     [f(2032, 3, AUSSEN), f(2032, 4, AUSSEN), f(4221, 3), f(4221, 4)])
fall("no 4221", BEIDE, [g1(), g2(), g2("111002", DOPPELT)], [f(2032, 3, AUSSEN)])
fall("no 4221 in another chapter", BEIDE, [g1(), g2(), g1("112"), g2(kapitel="112")], [], kapitel=(111, 112))
fall("4221 ends before the marker", BEIDE, [g1(), g2(), g2(felder={43: "X", 82: "X"})],
     [f(2032, 3, AUSSEN), f(4221, 3)])
for zeichen in ("X", "1", "*"):
    fall(f"4231 G2 {zeichen}", BEIDE, [g1(), g2(felder={43: zeichen}), g3()], [f(4231, 2)])
    fall(f"4231 G3 {zeichen}", BEIDE, [g1(), g2(), g3(felder={43: zeichen}), g3(zeile="02")], [f(4231, 3)])
for zeichen in ("E", "e", " "):
    fall(f"no 4231 {zeichen}", BEIDE, [g1(), g2(felder={43: zeichen}), g3(felder={43: zeichen})], [])

test_g2_superior_position_repetition_and_marker = faelle()


# G3: chapter, position, level, repeated line, line 1, alternative code, insertion point, marker.
fall("4301", BEIDE, [g1(), g2(), g3(kapitel="112")], [f(4301, 3)])
fall("no 4301", BEIDE, [g1(), g2(), g3()], [])
fall("4302", BEIDE, [g1(), g2(), g3("111002")], [f(4302, 3)])
fall("4302 in the other chapter", BEIDE, [g1(), g2(), g1("112"), g3(kapitel="112")], [f(4302, 4)],
     kapitel=(111, 112))
fall("4302 ends the record", "E1S", [g1(), g3("111000", "05", "02", {43: "X", 135: "+", 136: "31"})], [f(4302, 2)])
for position in ("111000", "110000", "100000"):
    fall(f"4308 {position}", BEIDE, [g1(), g2(position), g3(position, "05")], [f(4308, 3)])
    fall(f"no 4308 fixed text {position}", BEIDE, [g1(), g2(position), g3(position, "00")], [])
for position in ("111100", "111010", "111001"):
    fall(f"no 4308 {position}", BEIDE, [g1(), g2(position), g3(position, "05")], [])
fall("4308 stores the line", BEIDE, [g1(), g2("111000"), g3("111000", "05"), g3("111000", "05", "02"), g2("111001")],
     [f(4308, 3), f(4308, 4)])
fall("4303", BEIDE, [g1(), g2(), g3(), g3(felder=DOPPELT)], [f(2032, 4, AUSSEN), f(4303, 4)])
fall("no 4303 in the next line", BEIDE, [g1(), g2(), g3(), g3(zeile="02", felder=DOPPELT)], [f(2032, 4, AUSSEN)])
fall("no 4303 in another variable", BEIDE, [g1(), g2(), g3(), g3(variable="02", felder=DOPPELT)],
     [f(2032, 4, AUSSEN)])
fall("4303 ends the record", "E1S", [g1(), g2(), g3(), g3(felder={43: "X", 82: "X", 135: "+", 136: "31"})],
     [f(2032, 4, AUSSEN), f(4303, 4)])
fall("4303 stores nothing of the insertion point", BEIDE,
     [g1(), g2(), g3(), g3(felder={82: "X", 136: "05"}), g3(zeile="02", felder={136: "06"})],
     [f(2032, 4, AUSSEN), f(4303, 4)])
fall("4308 stands before 4303", BEIDE, [g1(), g2("111000"), g3("111000"), g3("111000", felder=DOPPELT)],
     [f(2032, 4, AUSSEN), f(4308, 3), f(4308, 4), f(4303, 4)])
fall("4304", BEIDE, [g1(), g2(), g3(zeile="02")], [f(4304, 3)])
fall("no 4304", BEIDE, [g1(), g2(), g3(), g3(zeile="02")], [])
fall("4304 line 1 of another variable", BEIDE, [g1(), g2(), g3(), g3(variable="02", zeile="02")], [f(4304, 4)])
fall("4304 line 0", BEIDE, [g1(), g2(), g3(zeile="00")], [f(4304, 3)])
fall("4304 line blank", BEIDE, [g1(), g2(), g3(zeile="  ")], [f(3002, 3, "G3:5"), f(4304, 3)])
fall("4304 stores the line", BEIDE, [g1(), g2(), g3(zeile="02"), g3(zeile="02", felder=DOPPELT)],
     [f(2032, 4, AUSSEN), f(4304, 3), f(4303, 4)])
fall("variable blank", BEIDE, [g1(), g2(), g3(variable="  ")], [f(3002, 3, "G3:4")])
fall("variable blank is the fixed text", BEIDE, [g1(), g2(), g3(variable="  "), g3(variable="00")],
     [f(3002, 3, "G3:4"), f(4303, 4)])
fall("4303 of one variable number by two spellings", BEIDE, [g1(), g2(), g3(variable=" 1"), g3(variable="00")],
     [f(3001, 3, "G3:4"), f(4303, 4)])

test_g3_position_variable_and_line = faelle()


# The alternative code is gone: a report in the new interface, silence in the old. 4305 and 4306 are never reported.
for zeichen in ("+", "x", "-"):
    fall(f"4311 {zeichen}", "E1S", [g1(), g2(), g3(felder={135: zeichen})], [f(4311, 3)])
    fall(f"no 4311, no 4305 {zeichen}", "01S", [g1(), g2(), g3(felder={135: zeichen})], [])
fall("no 4306", "01S", [g1(), g2(), g3(), g3(zeile="02", felder={135: "+"})], [])
fall("no 4306", "E1S", [g1(), g2(), g3(), g3(zeile="02", felder={135: "+"})], [f(4311, 4)])
fall("4311 stores the line", "E1S", [g1(), g2(), g3(felder={135: "+"}), g3(zeile="02")], [f(4311, 3)])
fall("no 4311", "E1S", [g1(), g2(), g3(felder={135: " "})], [])

fall("4307", BEIDE, [g1(), g2(), g3(felder={136: "05"}), g3(zeile="02", felder={136: "06"})], [f(4307, 4)])
fall("4307 twice", BEIDE, [g1(), g2(), *(g3(zeile=f"0{n}", felder={136: "05"}) for n in (1, 2, 3))],
     [f(4307, 4), f(4307, 5)])
fall("no 4307 with a line between", BEIDE,
     [g1(), g2(), g3(felder={136: "05"}), g3(zeile="02"), g3(zeile="03", felder={136: "06"})], [])
fall("no 4307 on one line", BEIDE, [g1(), g2(), g3(), g3(zeile="02", felder={136: "06"})], [])
fall("no 4307 in two variables", BEIDE,
     [g1(), g2(), g3(felder={136: "05"}), g3(variable="02", felder={136: "06"})], [])
fall("no 4307 of zeros", BEIDE, [g1(), g2(), g3(felder={136: "05"}), g3(zeile="02", felder={136: "00"})], [])
fall("4321", "E1S", [g1(), g2(), g3(variable="00", felder={136: "05"})], [f(4321, 3)])
fall("no 4321", "01S", [g1(), g2(), g3(variable="00", felder={136: "05"})], [])
fall("no 4321 in a variable", "E1S", [g1(), g2(), g3(variable="01", felder={136: "05"})], [])
fall("no 4321 of zeros", "E1S", [g1(), g2(), g3(variable="00", felder={136: "00"})], [])
for punkt in ("31", "99"):
    fall(f"4331 {punkt}", BEIDE, [g1(), g2(), g3(felder={136: punkt})], [f(4331, 3)])
for punkt in ("30", "01", "00", "  "):
    fall(f"no 4331 {punkt}", BEIDE, [g1(), g2(), g3(felder={136: punkt})], [])
fall("insertion point cut by the end of the line", BEIDE, [g1(), g2(), g3(felder={136: "5"})], [f(3001, 3, "G3:24d")])
for position, reserve in (("900000", False), ("190000", True), ("100900", True), ("100090", True), ("111009", False)):
    fall(f"reserve position {position}", BEIDE, [g1(), g2(position)],
         [ohne_zeile(4721, 111, int(position))] if reserve else [])
fall("insertion point no number", BEIDE, [g1(), g2(), g3(felder={136: "5 "})], [f(3001, 3, "G3:24d")])
fall("all three of the insertion point", "E1S",
     [g1(), g2(), g3(variable="00", felder={136: "05"}), g3(variable="00", zeile="02", felder={136: "31"})],
     [f(4321, 3), f(4307, 4), f(4321, 4), f(4331, 4)])
fall("two of the insertion point", "01S",
     [g1(), g2(), g3(variable="00", felder={136: "05"}), g3(variable="00", zeile="02", felder={136: "31"})],
     [f(4307, 4), f(4331, 4)])
fall("4331 is stored", BEIDE, [g1(), g2("111901"), g3("111901", felder={93: "    ", 136: "31"})], [f(4331, 3)])
fall("without it the reserve text fails", BEIDE, [g1(), g2("111901"), g3("111901", felder={93: "    "})],
     [ohne_zeile(4721, 111, 111901)])
fall("only the last insertion point is kept", BEIDE,
     [g1(), g2("111901"), g3("111901", felder={93: "    ", 136: "05"}), g3("111901", zeile="02", felder={93: "    "})],
     [ohne_zeile(4721, 111, 111901)])
fall("all of a line", "E1S",
     [g1(), g2("111000"), g3("111000", "05", "02", {43: "x", 135: "+", 136: "31"})],
     [f(4308, 3), f(4304, 3), f(4311, 3), f(4331, 3), f(4231, 3)])
fall("all of a line", "01S",
     [g1(), g2("111000"), g3("111000", "05", "02", {43: "x", 135: "+", 136: "31"})],
     [f(4308, 3), f(4304, 3), f(4331, 3), f(4231, 3)])

test_g3_alternative_code_and_insertion_point = faelle()


# Form errors come in the order of the fields, all with one key: the one sort decides where they end.
fall("form errors of G1", "01S", [satz("G1", {93: "Titel"})],
     [f(3002, 1, "G1:2a"), f(3002, 1, "G1:2c"), f(4101, 1)], kapitel=())
fall("form errors of G2", BEIDE, [satz("G2")], [f(3002, 1, "G2:2a"), f(3002, 1, "G2:3"), f(4201, 1)], kapitel=())
fall("form errors of G3", BEIDE, [satz("G3")],
     [f(3002, 1, feld) for feld in ("G3:2a", "G3:3", "G3:4", "G3:5")] + [f(4301, 1)], kapitel=())
fall("form errors of G3, no numbers", BEIDE, [satz("G3", {2: "x", 8: "x", 14: "x", 16: "x", 136: "x"})],
     [f(3001, 1, feld) for feld in ("G3:2a", "G3:3", "G3:4", "G3:5", "G3:24d")] + [f(4301, 1)], kapitel=())
fall("other digits are passed over", BEIDE, [g1(), g2(), satz("G7", {2: "111", 8: "111001"})], [f(2041)])

test_form_errors_of_g1_to_g3 = faelle()
