"""The document against the catalogue: chapters, positions, repeat ranges, reserve positions, variables, assignments."""
from functools import partial

from befunde import element, f
from katalogbau import G1, G2, G3, G4, G5, G6, H, U, V, beide, eintrag, geordnet, kapitel, mit_text, ordner
from rahmen import BEIDE, elemente, erwarte, faelle, lauf, satz


def kat(*haupt, **mehr):
    return eintrag(kapitel(*haupt, **mehr))


def ort(p, n=241):
    return f"{n}.{p // 1000:03}.{p % 1000:03}"


def kapitel_vorhanden():
    """6101: the chapter must be there for exactly the year of its G1 and the language of the document."""
    da = kat(H(111, U(1)))
    doc = [G1(), G2(111001), G2(222002)]
    fehlt = [f(6101, I="241.000.000")]
    beide("6101 no catalogue file", BEIDE, doc, [], fehlt)
    beide("6101 twin", BEIDE, [G1(), G2(111001)], da, [])
    beide("6101 nothing is said of the positions", BEIDE, [G1(), G2(111001), G2(111002), G2(311000)],
          [], fehlt)
    beide("6101 other year in the document", BEIDE, [G1(jahr="10"), G2(111001)], da, fehlt)
    beide("6101 other chapter", BEIDE, [G1(242), G2(111001, n=242)], da, [f(6101, I="242.000.000")])
    # The language is that of the file, not of the dialogue.
    for sprache, datei, soll in (("2", 1, fehlt), ("2", 2, []), ("3", 3, []), ("3", 2, fehlt), ("1", 2, fehlt)):
        beide(f"6101 document {sprache}, file {datei}", BEIDE, [G1(), G2(111001)],
              eintrag(kapitel(H(111, U(1)), s=datei), sprache=datei), soll, kopf_={42: sprache})
    # Years: 88 is 2088, 89 is 1989, 00 is 2000.
    for kurz, jahr in (("88", 2088), ("89", 1989), ("98", 1998), ("00", 2000), ("13", 2013), ("99", 1999)):
        beide(f"6101 year {jahr}", BEIDE, [G1(jahr=kurz), G2(111001)],
              eintrag(kapitel(H(111, U(1)), v=jahr), jahr=jahr), [])
        beide(f"6101 year {jahr} twin", BEIDE, [G1(jahr=kurz), G2(111001)],
              eintrag(kapitel(H(111, U(1)), v=jahr + 1), jahr=jahr), fehlt)
    # A chapter with a 9 is the user's own.
    for n in (199, 291, 912):
        beide(f"6101 reserve chapter {n}", BEIDE, [G1(n), mit_text(n, 100000)], [], [])
        beide(f"6101 reserve chapter {n} with a file", BEIDE, [G1(n), mit_text(n, 100000)],
              eintrag(kapitel(H(111), n=n), nummer=n), [])
    # One chapter absent, the others are tested.
    zwei = [G1(231), G2(111001, n=231), G1(241), G2(111002), G1(251), G2(111003, n=251)]
    beide("6101 one of three", BEIDE, zwei,
          [eintrag(kapitel(H(111, U(3)), n=251), nummer=251), eintrag(kapitel(H(111, U(1)), n=231), nummer=231)], fehlt)
    beide("6101 two of three", BEIDE, zwei, da, [f(6101, I="231.000.000"), f(6201, I=ort(111002)), f(6101, I="251.000.000")])
    # A chapter without positions is looked for as well; a document without chapters asks for none.
    beide("6101 chapter alone", BEIDE, [G1()], [], fehlt)
    beide("6101 chapter alone, there", BEIDE, [G1()], da, [])
    beide("6101 no chapter", BEIDE, [], [], [])
    # The title is never compared.
    beide("title", BEIDE, [G1(titel="Ganz anders"), G2(111001, "Auch anders")], da, [])
    # Chapters go into the protocol by number with their positions behind them, reserve positions among them.
    beide("order", BEIDE, [G1(), mit_text(241, 111900), G2(555001), G1(242), G2(111001, n=242), G1(243)],
          [kat(H(111, U(1))), eintrag(kapitel(H(112), n=242), nummer=242)],
          [f(6201, I="241.555.001"), f(6201, I="242.111.001"), f(6101, I="243.000.000")])


def position_vorhanden():
    """6201: a position that is neither in the chapter nor in a repeat range of it."""
    katalog = kat(H(111, U(1), U(100, w=100199), U(201), U(300)), H(112))
    for p, da in ((111001, 1), (111002, 0), (111000, 1), (112000, 1), (112001, 0), (113000, 0), (113001, 0), (110000, 0),
                  (111201, 1), (111300, 1), (111310, 0)):
        beide(f"6201 {p}", BEIDE, [G1(), G2(p)], katalog, [] if da else [f(6201, I=ort(p))])
    beide("6201 011.010", BEIDE, [G1(), G2(11010)], kat(H(11, U(10))), [])
    beide("6201 011.020", BEIDE, [G1(), G2(11020)], kat(H(11, U(10))), [f(6201, I="241.011.020")])
    # A repeat range takes what lies behind its start up to its end; its start itself is not a position.
    for p, da in ((111100, 0), (111101, 1), (111111, 1), (111150, 1), (111181, 1), (111200, 0), (111202, 0)):
        beide(f"6201 repeat {p}", BEIDE, [G1(), G2(p)], katalog, [] if da else [f(6201, I=ort(p))])
    # The end node in front of the position must carry the range, and stand in the same main position.
    for name, haupt, p, da in (
            ("range of another main position", [H(111, U(100, w=100199)), H(112)], 112150, 0),
            ("end node without a range between", [H(111, U(101, w=101199), U(110), U(121))], 111122, 0),
            ("twin: no end node between", [H(111, U(101, w=101199), U(131))], 111122, 1),
            ("a carrier that is refined is no end node", [H(111, U(100, w=100199), U(101))], 111122, 0),
            ("twin: not refined", [H(111, U(100, w=100199), U(201))], 111122, 1),
            ("the carrier is missing under its own number", [H(111, U(100, w=110199))], 111122, 0),
            ("twin: another start that exists", [H(111, U(90), U(100, w=90199))], 111122, 1),
            ("start beyond the number", [H(111, U(100, w=130199), U(130))], 111122, 0),
            ("end 000", [H(111, U(100, w=100000))], 111122, 0),
            ("start 000", [H(111, U(0), U(100, w=199))], 111122, 1),
            ("start 000 without a sub-position 0", [H(111, U(100, w=199))], 111122, 0),
            ("end at the number", [H(111, U(100, w=100122))], 111122, 1),
            ("end one below", [H(111, U(100, w=100121))], 111122, 0),
            ("number in front of every end node", [H(111, U(201, w=100299))], 111122, 0),
            ("a listed position inside its own range", [H(111, U(100), U(101, w=100199))], 111101, 1),
            ("a listed position at its own start", [H(111, U(101, w=101199))], 111101, 0),
            ("a listed position at its own end", [H(111, U(100), U(188, w=100188))], 111188, 1),
            ("a listed position behind its own end", [H(111, U(100), U(201, w=100199))], 111201, 0),
            ("first of two equal numbers", [H(111, U(101, w=101199), U(101))], 111101, 0),
            ("first of two equal numbers, turned", [H(111, U(101), U(101, w=101199))], 111101, 1),
            ("first of two equal main positions", [H(111), H(111, U(101))], 111101, 0),
            ("first of two equal main positions, turned", [H(111, U(101)), H(111)], 111101, 1),
            ("no position in the chapter at all", [], 111101, 0),
            ("main position alone", [H(111)], 111101, 0)):
        beide(f"6201 {name}", BEIDE, [G1(), G2(p)], kat(*haupt), [] if da else [f(6201, I=ort(p))])


def ohne_text():
    """6202: a position without fixed text needs a variable."""
    katalog = kat(H(111, U(1, V(1, e=1), y=1), U(2, V(1, e=1), y=0), U(3, V(1, e=1)), U(4, V(1, e=1), y=2), U(5, y=1),
                    U(100, V(1, e=1), w=100199, y=1)))
    for p, soll in ((111001, True), (111002, False), (111003, False), (111004, False), (111005, True), (111000, False),
                    (111121, True), (111131, True)):
        beide(f"6202 {p}", BEIDE, [G1(), G2(p)], katalog, [f(6202, I=ort(p))] if soll else [])
    beide("6202 twin: with a variable", BEIDE, [G1(), G2(111001), G3(111001, 1, "")], katalog, [])
    beide("6202 any variable counts", BEIDE, [G1(), G2(111001), G3(111001, 2, "")], katalog, [f(6301, I=ort(111001))])
    beide("6202 on the main position", BEIDE, [G1(), G2(111000)], kat(H(111, U(0, y=1))), [])


def variablen():
    """6301 to 6305."""
    p = 111001

    def fall(name, v, rufe, soll, arten=BEIDE):
        beide(name, arten, [G1(), G2(p), *rufe], kat(H(111, U(1, *v))), [f(c, I=ort(p)) for c in soll])

    fall("6301", [V(1, e=1)], [G3(p, 2, "")], [6301])
    fall("6301 twin", [V(1, e=1)], [G3(p, 1, "")], [])
    fall("6301 no variables there", [], [G3(p, 1, "")], [6301])
    fall("6301 two of three", [V(2, e=1)], [G3(p, 1, "x"), G3(p, 2, "x"), G3(p, 3, "x")], [6301, 6301])
    fall("6301 fixed text", [V(1)], [G3(p, 0, "")], [6301])
    fall("6301 twin: fixed text", [V(0)], [G3(p, 0, "")], [])
    fall("6301 twin: a variable without N is number 0", ["<V />"], [G3(p, 0, "")], [])
    beide("6301 main position", BEIDE, [G1(), G2(111000), G3(111000, 0, "")], kat(H(111, U(0, V(0)))), [f(6301, I=ort(111000))])
    beide("6301 in a repeat range", BEIDE, [G1(), G2(111121), G3(111121, 1, "")], kat(H(111, U(100, V(1), w=100199))), [])
    beide("6301 in a repeat range, absent", BEIDE, [G1(), G2(111121), G3(111121, 2, "")],
          kat(H(111, U(100, V(1), w=100199))), [f(6301, I=ort(111121))])
    # The variables of the carrier are asked through the start of its range.
    beide("6301 start elsewhere", BEIDE, [G1(), G2(111121), G3(111121, 2, "")],
          kat(H(111, U(90, V(2)), U(100, V(1), w=90199))), [])

    # 6302: no insertion point there, so no text here; one report at most.
    fall("6302", [V(1)], [G3(p, 1, "x")], [6302])
    fall("6302 twin: blank", [V(1)], [G3(p, 1, "")], [])
    fall("6302 blank lines", [V(1)], [G3(p, 1, "", "", "")], [])
    fall("6302 second line", [V(1)], [G3(p, 1, "", "x")], [6302])
    fall("6302 two lines", [V(1)], [G3(p, 1, "x", "y")], [6302])
    fall("6302 two variables", [V(1), V(2)], [G3(p, 1, "x"), G3(p, 2, "y")], [6302, 6302])
    fall("6302 fixed text", [V(0, e=0)], [G3(p, 0, "x")], [6302])
    fall("6302 last column", [V(1)], [G3(p, 1, " " * 29 + "x")], [6302])

    # 6303: text in front of the insertion point.
    for e, zeilen, zahl in (
            (1, ["x", "y"], 0), (2, ["x"], 1), (2, [" x"], 0), (5, ["    x"], 0), (5, ["   x"], 1), (30, [" " * 29 + "x"], 0),
            (30, [" " * 28 + "x"], 1), (31, ["", "x"], 0), (31, ["x", ""], 1), (31, [" " * 29 + "x"], 1),
            (35, ["", "    x"], 0), (35, ["", "   x"], 1), (35, ["x", ""], 1), (35, ["x", "x"], 2), (35, ["", "", "x"], 0),
            (61, ["x", "y", "z"], 2), (61, ["", "", "z"], 0), (60, ["", " " * 28 + "x"], 1), (60, ["", " " * 29 + "x"], 0),
            (2, [""], 0), (35, [""], 0)):
        fall(f"6303 E {e} {zeilen}", [V(1, e=e)], [G3(p, 1, *zeilen)], [6303] * zahl)
    # The numbers of the lines count, not their places.
    beide("6303 line 2 alone", BEIDE, [G1(), G2(p), G3(p, 1, "x", erste=2)], kat(H(111, U(1, V(1, e=31)))),
          [f(4304, 4)])
    beide("6303 twin: line 1 alone", BEIDE, [G1(), G2(p), G3(p, 1, "x")], kat(H(111, U(1, V(1, e=31)))), [f(6303, I=ort(p))])
    fall("6303 the highest point", [V(1, e=32767)], [G3(p, 1, "x", "y")], [6303, 6303])
    # In front of a negative point no column stands; the text is the user's all the same.
    for e in (-1, -5, -28, -29, -30, -59, -32768):
        fall(f"6303 E {e}", [V(1, e=e)], [G3(p, 1, "x", "y")], [])

    # 6304: the document's insertion point in front of the catalogue's.
    for e, n, zeile, soll in ((5, 5, 1, 0), (5, 4, 1, 1), (5, 6, 1, 0), (1, 1, 1, 0), (None, 1, 1, 1), (0, 30, 1, 1),
                              (31, 1, 2, 0), (32, 1, 2, 1), (35, 5, 2, 0), (35, 4, 2, 1), (31, 30, 1, 1), (30, 30, 1, 0), (-5, 1, 1, 0), (-32768, 30, 2, 0)):
        texte = [""] * zeile
        fall(f"6304 E {e}, {zeile}/{n}", [V(1, e=e)], [G3(p, 1, *texte, e={zeile: n})], [6304] if soll else [])
    fall("6304 no insertion point", [V(1, e=5)], [G3(p, 1, "")], [])
    fall("6304 not on the last line", [V(1, e=35)], [G3(p, 1, "", "", e={1: 1})], [])
    fall("6304 and 6303", [V(1, e=5)], [G3(p, 1, "x", e={1: 4})], [6303, 6304])
    fall("6304 and 6302", [V(1)], [G3(p, 1, "x", e={1: 4})], [6302, 6304])
    # A line with a doubled number is refused; an insertion point that is out of range is kept all the same.
    beide("6304 point 31", BEIDE, [G1(), G2(p), G3(p, 1, "", e={1: 31})], kat(H(111, U(1, V(1, e=31)))),
          [f(4331, 4)])
    beide("6304 point 31, one below", BEIDE, [G1(), G2(p), G3(p, 1, "", e={1: 31})], kat(H(111, U(1, V(1, e=32)))),
          [f(4331, 4), f(6304, I=ort(p))])

    # 6305: two of one group; the second gives one, the third two.
    gruppe = [V(1, a="x", e=1), V(2, a="x", e=1), V(3, a="x", e=1), V(4, a="y", e=1), V(5, a="", e=1), V(6, e=1),
              V(7, a="X", e=1), V(8, a="", e=1)]
    for nummern, zahl in (((1,), 0), ((1, 2), 1), ((1, 2, 3), 3), ((1, 4), 0), ((1, 4, 3), 1), ((5, 6, 8), 0), ((1, 7), 0),
                          ((1, 2, 4, 5, 3), 3)):
        fall(f"6305 {nummern}", gruppe, [G3(p, v, "") for v in nummern], [6305] * zahl)
    fall("6305 not with a variable that is absent", gruppe, [G3(p, 1, ""), G3(p, 9, "")], [6301])
    # Groups are compared as they stand in the file.
    fall("6305 blank group", [V(1, a=" ", e=1), V(2, a=" ", e=1)], [G3(p, 1, ""), G3(p, 2, "")], [6305])
    fall("6305 escaped", [V(1, a="&amp;", e=1), V(2, a="&amp;", e=1)], [G3(p, 1, ""), G3(p, 2, "")], [6305])
    fall("6305 escaped and not", [V(1, a="&amp;", e=1), V(2, a="&", e=1)], [G3(p, 1, ""), G3(p, 2, "")], [])
    # The alternative code of the document is dropped: 4311 in the newer interface, nothing in the older.
    plus = satz("G3", {2: "241", 8: str(p), 14: "01", 16: "01", 135: "+"})
    fall("alternative code", [V(1, e=1)], [plus], [], "01S")
    beide("alternative code", "E1S", [G1(), G2(p), plus], kat(H(111, U(1, V(1, e=1)))), [f(4311, 4)])


def reserve():
    """6211 to 6232: reserve positions."""
    def fall(name, haupt, p, alt, neu):
        rufe = [G1(), mit_text(241, p)]
        beide(name, "01S", rufe, kat(*haupt), [f(c, I=ort(p)) for c in alt])
        beide(name, "E1S", rufe, kat(*haupt), [f(c, I=ort(p)) for c in neu])

    # 6211: the superior position. Three digits, four digits, five digits off.
    fall("6211", [H(112, U(1))], 111900, [6211], [6211])
    fall("6211 twin", [H(111)], 111900, [], [])
    fall("6211 section", [H(110)], 190000, [6211], [6211])
    fall("6211 section twin", [H(100)], 190000, [], [])
    fall("6211 sub-section", [H(100)], 119000, [6211], [6211])
    fall("6211 sub-section twin", [H(110)], 119000, [], [])
    # Superior position in the document: nothing more is asked. Here it is unknown to the catalogue itself.
    rufe = [G1(), G2(111000), mit_text(241, 111900)]
    beide("6211 superior in the document", BEIDE, rufe, kat(H(112)), [f(4711, I=ort(111000)), f(6201, I=ort(111000))])
    # Superior of a service in a text: only the newer interface asks for the group of a text position.
    fall("6211 text of a group", [H(111, U(1))], 111190, [], [6211])
    fall("6211 text of a group twin", [H(111, U(1), U(100))], 111190, [], [])
    beide("6211 text of a group, group in the document", "E1S", [G1(), G2(111100), mit_text(241, 111190)],
          kat(H(111, U(1))), [f(4711, I=ort(111100)), f(6201, I=ort(111100))])
    fall("6211 service of a group", [H(111, U(1))], 111191, [], [])
    fall("6211 units digit 0, tens digit 0", [H(111, U(1))], 111900, [], [])
    # Superior position 000: no report.
    fall("6211 superior 000.000", [H(111)], 90000, [], [])
    # Superior through a repeat range: 111100 is the start itself, so not a position.
    fall("6211 start of a range", [H(111, U(100, w=100199))], 111190, [], [6211, 6212])
    # ... and inside of it, with the reserve position inside too.
    fall("6212", [H(111, U(1), U(100), U(110, w=100299))], 111290, [], [6212])
    fall("6212 reserve position behind the range", [H(111, U(1), U(100), U(110, w=100289))], 111290, [], [6211])
    fall("6212 twin: range ends in front", [H(111, U(1), U(200), U(110, w=100289))], 111290, [], [])
    fall("6212 service", [H(111, U(1), U(100, w=100199))], 111191, [], [6212])
    fall("6212 service twin", [H(111, U(1), U(100, w=100190))], 111191, [], [])
    fall("6212 at the end", [H(111, U(1), U(100, w=100191))], 111191, [], [6212])
    fall("6212 at the start", [H(111, U(1), U(191, w=191199))], 111191, [], [6212])
    fall("6212 start one behind", [H(111, U(1), U(192, w=192199))], 111191, [], [])
    fall("6212 second range", [H(111, U(1, w=1050), U(100, w=100199))], 111191, [], [6212])
    fall("6212 range of another main position", [H(111, U(1)), H(112, U(100, w=100199))], 111191, [], [])
    fall("6212 main position", [H(110), H(119, U(100, w=199))], 119000, [], [])
    beide("6212 superior in the document", BEIDE, [G1(), G2(111000), mit_text(241, 111191)],
          kat(H(111, U(1), U(100, w=100199))), [f(4711, I=ort(111000))])

    # 6213: a text position in a range that begins on a service, or a group in one that begins below groups.
    def text(name, haupt, p, neu):
        beide(f"6213 {name}", "E1S", [G1(), G2(p)], kat(*haupt), [f(c, I=ort(p)) for c in neu])
        beide(f"6213 {name}", "01S", [G1(), G2(p)], kat(*haupt), [])
    text("start 101", [H(111, U(101, w=101199))], 111120, [6213])
    text("start 101, service", [H(111, U(101, w=101199))], 111121, [])
    text("start 110", [H(111, U(110, w=110299))], 111120, [])
    text("start 110, group", [H(111, U(110, w=110299))], 111200, [6213])
    text("start 101, group", [H(111, U(101, w=101299))], 111200, [6213])
    text("start 100, group", [H(111, U(100, w=100299))], 111200, [])
    text("start 110, service", [H(111, U(110, w=110299))], 111201, [])
    # Reported also where the start of the range is missing, and so with 6201.
    beide("6213 and 6201", "E1S", [G1(), G2(111120)], kat(H(111, U(100, w=101199))), [f(6201, I=ort(111120)), f(6213, I=ort(111120))])
    beide("6213 and 6201", "01S", [G1(), G2(111120)], kat(H(111, U(100, w=101199))), [f(6201, I=ort(111120))])
    # On the way to the superior position of a reserve position: stamped with the reserve position.
    fall("6213 superior", [H(111, U(101, w=101299))], 111290, [], [6212, 6213])
    fall("6213 superior twin", [H(111, U(100, w=100299))], 111290, [], [6212])
    fall("6213 superior, reserve position outside", [H(111, U(101, w=101289))], 111290, [], [6211])

    # 6221: a service in a branch of texts.
    for alt, name, haupt in (([6221], "main position", [H(111, U(10)), H(112, U(1))]),
                             ([6221], "sub-section", [H(111, U(10)), H(112, U(10)), H(121, U(1))]),
                             ([6221], "section", [H(111, U(10)), H(121, U(10)), H(211, U(1))]),
                             ([6221], "whole chapter", [H(111, U(10))]),
                             ([], "service in the branch", [H(111, U(10), U(21)), H(112, U(1))]),
                             ([], "no end node", [H(111), H(112, U(1))]),
                             ([], "other main position", [H(111, U(1)), H(112, U(10))])):
        fall(f"6221 {name}", haupt, 111191, alt, alt)
    fall("6221 text position", [H(111, U(10)), H(112, U(1))], 111190, [], [6211])
    # In a new main position of a branch: 115 lies in the sub-section of texts.
    fall("6221 main position not listed", [H(111, U(10)), H(121, U(1))], 115191, [6211, 6221], [6211, 6221])
    # Also with the superior position in the document.
    beide("6221 superior in the document", BEIDE, [G1(), G2(111000), mit_text(241, 111191)],
          kat(H(111, U(10)), H(112, U(1))), [f(4711, I=ort(111000)), f(6221, I=ort(111191))])

    # 6231: .090 beside .001; 6232: .091 to .099 without .001.
    fall("6231", [H(111, U(1))], 111090, [], [6231])
    fall("6231 twin", [H(111, U(2))], 111090, [], [])
    fall("6232", [H(111, U(2))], 111091, [], [6232])
    fall("6232 twin", [H(111, U(1))], 111091, [], [])
    fall("6232 .099", [H(111, U(2))], 111099, [], [6232])
    fall("6232 .095", [H(111, U(2))], 111095, [], [6232])
    fall("6232 .100 is none", [H(111, U(2))], 111900, [], [])
    fall("6232 .191", [H(111, U(2))], 111191, [], [])
    fall("6232 .001 of another main position", [H(111, U(2)), H(112, U(1))], 111091, [], [6232])
    # .001 as the start of a range is not a position itself.
    fall("6231 .001 with a range", [H(111, U(1, w=1050))], 111090, [], [])
    fall("6232 .001 with a range", [H(111, U(1, w=1050))], 111091, [], [6232])
    fall("6231 .001 in a range", [H(111, U(0, w=50))], 111090, [], [6231])
    # Main position absent.
    fall("6232 and 6211", [H(112, U(1))], 111091, [6211], [6211, 6232])
    fall("6231 and 6211", [H(112, U(1))], 111090, [6211], [6211])
    beide("6231 superior in the document", BEIDE, [G1(), G2(111000), mit_text(241, 111090)], kat(H(111, U(1))),
          [f(4711, I=ort(111000))])
    # 6212 and 6232 together.
    fall("6212 and 6232", [H(111, U(50, w=50099), U(61))], 111091, [], [6212, 6232])

    # Reserve positions are not looked for: variables, texts and assignments of theirs are free.
    beide("reserve position with variables", BEIDE,
          [G1(), G2(111900), G3(111900, 1, "x"), G3(111900, 2, "y", e={1: 3}), G4(111900)], kat(H(111, U(1))), [])
    # A listed number with a 9 is a reserve position all the same.
    fall("reserve number in the catalogue", [H(111, U(1), U(900, y=1))], 111900, [], [])
    # The text 4721 belongs to the after-pass.
    beide("reserve position without text", BEIDE, [G1(), G2(111900)], kat(H(111, U(1))), [f(4721, I=ort(111900))])


def zuordnungen():
    """6401: an assignment on a position that has finer ones in the catalogue."""
    def fall(name, haupt, p, soll):
        beide(f"6401 {name}", BEIDE, [G1(), G2(p), G4(p)], kat(*haupt), [f(6401, I=ort(p))] if soll else [])

    liste = [H(100), H(110), H(111, U(0)), H(112, U(0)), H(120, U(0))]
    mit = [H(100, U(0)), H(110, U(0)), H(111, U(0)), H(112, U(0)), H(120, U(0))]
    for p, soll in ((100000, 1), (110000, 1), (111000, 0), (112000, 0), (120000, 0)):
        fall(f"{p}", mit, p, soll)
        fall(f"{p} by sub-positions", liste, p, soll)
    fall("service below", [H(111, U(0), U(1))], 111000, 1)
    fall("text below a text", [H(111, U(10), U(11))], 111010, 1)
    fall("twin", [H(111, U(10), U(21))], 111010, 0)
    fall("group", [H(111, U(100), U(110))], 111100, 1)
    fall("group twin", [H(111, U(100), U(200))], 111100, 0)
    fall("group, last of the group", [H(111, U(100), U(199))], 111100, 1)
    fall("main position, last below it", [H(111, U(0), U(999))], 111000, 1)
    fall("main position, next one", [H(111, U(0)), H(112, U(0))], 111000, 0)
    fall("sub-section, last main position", [H(110), H(119, U(999))], 110000, 1)
    fall("section, last", [H(100), H(199, U(999))], 100000, 1)
    fall("section, next one", [H(100), H(200, U(0))], 100000, 0)
    fall("no end nodes at all", [H(111)], 111000, 0)
    # Two assignments, one report; no position, no report.
    beide("6401 twice", "01S", [G1(), G2(111010), G4(111010), satz("G4", {2: "241", 8: "111010", 129: "*", 136: "07"})],
          kat(H(111, U(10), U(11))), [f(4451, 5), f(6401, I=ort(111010))])
    beide("6401 position not there", BEIDE, [G1(), G2(111010), G4(111010)], kat(H(111, U(1))), [f(6201, I=ort(111010))])
    # An assignment on a service position is refused before.
    beide("6401 service position", BEIDE, [G1(), G2(111001), G4(111001)], kat(H(111, U(1))), [f(4403, 4)])
    # Units of normed positions and texts in the place of search titles have no report.
    beide("units and search titles", BEIDE, [G1(), G2(111001, "Spezifikation"), G5(111001), G6(111001)],
          kat(H(111, U(1))), [])


def sprachen():
    """The texts follow the language of the dialogue, the chapter that of the file."""
    def gemeldet(saetze, eintraege, sprache):
        return elemente(lauf("E1S", geordnet(saetze), katalog=ordner(eintraege), sprache=sprache))

    for nummer, sprache in ((1, "fr"), (2, "it")):
        for befund, saetze, eintraege in (
                (f(6101, I="241.000.000"), [G1()], {}),
                (f(6231, I="241.111.090"), [G1(), mit_text(241, 111090)], {"N131241.qvm": kat(H(111, U(1)))})):
            erwarte(f"{befund.code} {sprache}", partial(gemeldet, saetze, eintraege, sprache),
                    [element(befund, sprache=nummer)])


kapitel_vorhanden()
test_the_chapter_is_there_for_year_and_language = faelle()

position_vorhanden()
test_positions_are_in_the_chapter_or_a_repeat_range = faelle()

ohne_text()
test_a_position_without_text_needs_a_variable = faelle()

variablen()
test_variables_and_what_may_stand_in_them = faelle()

reserve()
test_reserve_positions_and_their_superiors = faelle()

zuordnungen()
test_assignments_stand_in_end_nodes = faelle()

sprachen()
test_texts_follow_the_language_of_the_dialogue = faelle()
