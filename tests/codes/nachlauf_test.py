"""The checks over the finished tree: titles without variables, reserve positions without text, assignments outside of
end nodes, and preliminary remarks that are missing or out of scope."""
from befunde import f, fall
from katalogbau import G1, G2, G3, G4, G5, G6, H, U, V, beide, eintrag, geordnet, kapitel, mit_text, ordner
from rahmen import ABBRUCH, BEIDE, faelle, satz


def kat(*haupt, **mehr):
    return eintrag(kapitel(*haupt, **mehr))


ALLES = kat(H(110), H(111, U(1), U(10, V(1, e=1)), U(11), U(20), U(100, V(1, e=1)), U(110), U(111)), H(112, U(1)), H(119),
            H(120, U(1)))


def titel():
    """4711: a position with a finer one right behind it needs a variable. p + span itself is no longer below p."""
    for oben, unten, soll in (
            (110000, 111000, True), (111000, 111001, True), (111100, 111110, True), (111110, 111111, True),
            (110000, 112001, True), (110000, 120000, False), (111010, 111020, False), (111000, 112001, False)):
        beide(f"4711 {oben} {unten}", BEIDE, [G1(), G2(oben), G2(unten)], ALLES,
              [f(4711, I=f"241.{oben // 1000}.{oben % 1000:03}")] if soll else [])

    # The ends of the span at each level. 999 is beyond it in each, and what stands there has a 9: a reserve position
    # with text. Only the older interface takes one whose parent is missing.
    for oben, unten, soll in ((100000, 199999, False), (100000, 199998, True), (110000, 119999, False),
                              (110000, 119998, True), (111000, 111999, False), (111000, 111998, True),
                              (111100, 111199, False), (111100, 111198, True), (111110, 111119, False),
                              (111110, 111118, True), (112000, 112001, True)):
        katalog = kat(H(100), H(110), H(111, U(100), U(110), U(118), U(119)), H(112, U(1)), H(119), H(190), H(199))
        beide(f"4711 span {oben} {unten}", "01S", [G1(), G2(oben), G2(unten), G3(unten, 0, "Text")
                                                  if unten not in (111118, 111119, 112001) else []], katalog,
              [f(4711, I=f"241.{oben // 1000}.{oben % 1000:03}")] if soll else [])

    # Each level is a title of its own.
    beide("4711 two levels", BEIDE, [G1(), G2(111000), G2(111010), G2(111011)], ALLES,
          [f(4711, I="241.111.000"), f(4711, I="241.111.010")])
    beide("4711 only the upper level", BEIDE, [G1(), G2(111000), G2(111010), G3(111010, 1, ""), G2(111011)], ALLES,
          [f(4711, I="241.111.000")])
    beide("4711 with a variable", BEIDE, [G1(), G2(111010), G3(111010, 1, ""), G2(111011)], ALLES, [])
    beide("4711 twin: without", BEIDE, [G1(), G2(111010), G2(111011)], ALLES, [f(4711, I="241.111.010")])
    # A fixed text counts as a variable; the main position itself has none in the catalogue.
    beide("4711 110000 with a text", BEIDE, [G1(), G2(110000), G3(110000, 0, ""), G2(111000)], ALLES,
          [f(6301, I="241.110.000")])
    # A service position is no title, whatever follows.
    beide("4711 service position", BEIDE, [G1(), G2(111001), G2(111010)], ALLES, [])
    # In a reserve chapter and on a reserve position nothing is said.
    for nummer in (291, 219, 912):
        beide(f"4711 reserve chapter {nummer}", BEIDE,
              [G1(nummer), mit_text(nummer, 100000, 110000, 111000)], [], [])
    beide("4711 reserve position", "01S",
          [G1(), G2(111090), G3(111090, 0, "Text"), G2(111091), G3(111091, 0, "Text")], ALLES, [])
    beide("4711 a 9 in the first digit makes no reserve position", BEIDE, [G1(), G2(900000), G2(910000)],
          kat(H(900), H(910)), [f(4711, I="241.900.000")])
    # Each chapter starts anew: the first position of the next one is not below the last of this one.
    beide("4711 two chapters", BEIDE, [G1(241), G2(111000), G1(242), G2(111001, n=242)],
          [ALLES, eintrag(kapitel(H(111, U(1)), n=242), nummer=242)], [])
    # Without the chapter in the catalogue the after-pass says the same; the chapter stands before its positions.
    beide("4711 without the catalogue", BEIDE, [G1(), G2(111010), G2(111011)], [],
          [f(6101, I="241.000.000"), f(4711, I="241.111.010")])
    # Positions in the order of their numbers, chapters likewise.
    beide("4711 order", BEIDE,
          [G1(241), G2(111010), G2(111011), G2(111100), G2(111110), G1(242), G2(111000, n=242), G2(111001, n=242)],
          [ALLES, eintrag(kapitel(H(111, U(1)), n=242), nummer=242)],
          [f(4711, I="241.111.010"), f(4711, I="241.111.100"), f(4711, I="242.111.000")])


def reservetext():
    """4721: a reserve position, or any position of a reserve chapter, needs a text or an insertion point."""
    n = 291
    oben = [G1(n), mit_text(n, 100000, 110000, 111000)]
    beide("4721 no variable", BEIDE, [G1(n), G2(100000, n=n)], [], [f(4721, I="291.100.000")])
    beide("4721 twin: text", BEIDE, [G1(n), G2(100000, n=n), G3(100000, 0, "x", n=n)], [], [])
    beide("4721 blank line", BEIDE, [G1(n), G2(100000, n=n), G3(100000, 0, "", n=n)], [], [f(4721, I="291.100.000")])
    beide("4721 the text of the position itself does not count", BEIDE, [G1(n), G2(100000, "Text", n=n)], [],
          [f(4721, I="291.100.000")])
    beide("4721 two blank lines", BEIDE, [G1(n), G2(100000, n=n), G3(100000, 0, "", "", n=n)], [],
          [f(4721, I="291.100.000")])
    beide("4721 text on the second line", BEIDE, [G1(n), G2(100000, n=n), G3(100000, 0, "", "x", n=n)], [], [])
    beide("4721 text behind blanks", BEIDE, [G1(n), G2(100000, n=n), G3(100000, 0, " " * 29 + "x", n=n)], [], [])
    beide("4721 second variable", BEIDE,
          [*oben, G2(111100, n=n), G3(111100, 1, "", n=n), G3(111100, 2, "x", n=n)], [], [])
    beide("4721 twin: second variable blank", BEIDE,
          [*oben, G2(111100, n=n), G3(111100, 1, "", n=n), G3(111100, 2, "", n=n)], [], [f(4721, I="291.111.100")])
    beide("4721 insertion point", BEIDE, [*oben, G2(111100, n=n), G3(111100, 1, "", n=n, e={1: 5})], [], [])
    beide("4721 insertion point on the second variable", BEIDE,
          [*oben, G2(111100, n=n), G3(111100, 1, "", n=n), G3(111100, 2, "", n=n, e={1: 1})], [], [])
    # The last line of a variable decides on its insertion point.
    beide("4721 insertion point on line 1 of 2", BEIDE,
          [*oben, G2(111100, n=n), G3(111100, 1, "", "", n=n, e={1: 5})], [], [f(4721, I="291.111.100")])
    beide("4721 twin: on line 2 of 2", BEIDE,
          [*oben, G2(111100, n=n), G3(111100, 1, "", "", n=n, e={2: 5})], [], [])
    beide("4721 insertion point on line 1, text", BEIDE,
          [*oben, G2(111100, n=n), G3(111100, 1, "", "x", n=n, e={1: 5})], [], [])
    # 0 is no insertion point.
    beide("4721 insertion point 0", BEIDE, [*oben, G2(111100, n=n), G3(111100, 1, "", n=n, e={1: 0})], [],
          [f(4721, I="291.111.100")])
    # Every chapter with a 9, and the reserve positions of the others: a 9 in digits 2 to 5.
    for c in (199, 219, 291, 911):
        beide(f"4721 chapter {c}", BEIDE, [G1(c), G2(100000, n=c)], [], [f(4721, I=f"{c}.100.000")])
    beide("4721 no reserve chapter 188", BEIDE, [G1(188), G2(100000, n=188)],
          eintrag(kapitel(H(100), n=188), nummer=188), [])
    katalog = kat(H(100), H(110), H(111, U(100), U(110)), H(900))
    for p in (190000, 119000, 111900, 111190):
        beide(f"4721 position {p}", BEIDE, [G1(), G2(p)], katalog, [f(4721, I=f"241.{p // 1000}.{p % 1000:03}")])
        beide(f"4721 twin: position {p} with text", BEIDE, [G1(), G2(p), G3(p, 0, "x")], katalog, [])
    beide("4721 no reserve position 900000", BEIDE, [G1(), G2(900000)], katalog, [])
    beide("4721 no reserve position 111009", BEIDE, [G1(), G2(111009)], kat(H(111, U(9))), [])
    # Positions one by one, in order.
    beide("4721 three", BEIDE, [G1(n), G2(100000, n=n), G2(200000, n=n), G3(200000, 0, "x", n=n), G2(300000, n=n)],
          [], [f(4721, I="291.100.000"), f(4721, I="291.300.000")])
    # The highest position there is keeps its place.
    beide("4721 999.999.999", "01S", [G1(999), G2(999999, n=999)], [], [f(4721, I="999.999.999")])
    beide("4721 000.000 of a reserve chapter", BEIDE, [G1(119), G2(0, n=119)], [], [f(4721, I="119.000.000")])


def zuordnung():
    """4731: an assignment on a title. 6401 says the same of the catalogue."""
    variable = G3(111010, 1, "")
    beide("4731", BEIDE, [G1(), G2(111010), variable, G4(111010), G2(111011)], ALLES,
          [f(4731, I="241.111.010"), f(6401, I="241.111.010")])
    beide("4731 twin: no assignment", BEIDE, [G1(), G2(111010), variable, G2(111011)], ALLES, [])
    beide("4731 twin: nothing below", BEIDE, [G1(), G2(111010), variable, G4(111010), G2(111020)], ALLES,
          [f(6401, I="241.111.010")])
    beide("4731 and 4711", BEIDE, [G1(), G2(111010), G4(111010), G2(111011)], ALLES,
          [f(4711, I="241.111.010"), f(4731, I="241.111.010"), f(6401, I="241.111.010")])
    beide("4731 of a main position", BEIDE, [G1(), G2(111000), G4(111000), G2(111010)], ALLES,
          [f(4711, I="241.111.000"), f(4731, I="241.111.000"), f(6401, I="241.111.000")])
    # A reserve position too.
    beide("4731 reserve position", "01S",
          [G1(), G2(111090), G3(111090, 0, "Text"), G4(111090), G2(111091), G3(111091, 0, "Text")], ALLES,
          [f(4731, I="241.111.090")])
    beide("4731 reserve chapter", BEIDE,
          [G1(291), mit_text(291, 100000, 110000, 111000), G4(110000, n=291)], [], [])
    # Two assignments on one position make one report.
    beide("4731 two assignments", "01S",
          [G1(), G2(111010), variable, satz("G4", {2: "241", 8: "111010", 136: "01"}),
           satz("G4", {2: "241", 8: "111010", 82: "1*", 136: "02"}), G2(111011)], ALLES,
          [f(4421, 6), f(4731, I="241.111.010"), f(6401, I="241.111.010")])


def bemerkung():
    """4741 a remark that is not in the chapter, 4742 one out of scope (only in the newer interface)."""
    p = 212343
    katalog = kat(H(111, U(1)), H(212, U(50), U(343), U(350)))
    basis = [G1(), G2(p), G5(p)]
    fall = lambda name, arten, r, soll, *mehr: beide(f"474x {name}", arten, [*basis, *mehr, G6(p, r)], katalog, soll)
    ort = "241.212.343"
    fall("none", BEIDE, 0, [])
    fall("missing, in scope", BEIDE, 212050, [f(4741, I=ort)])
    fall("twin: there", BEIDE, 212050, [], G2(212050))
    # The four ranges, ends included, and one beside each end. The remark is missing each time.
    for r, gut in ((212000, 1), (212099, 1), (212100, 0), (211999, 0), (210000, 1), (210999, 1), (209999, 0), (211000, 0),
                   (200000, 1), (200999, 1), (199999, 0), (201000, 0), (1, 1), (999, 1), (1000, 0), (212343, 0),
                   (212344, 0), (999999, 0), (100000, 0)):
        soll = ([] if r == p else [f(4741, I=ort)])
        fall(f"range {r}", "01S", r, soll)
        fall(f"range {r}", "E1S", r, soll if gut else soll + [f(4742, I=ort)])
    # Known, but out of scope: the 4742 alone.
    fall("known, out of scope", "01S", 111001, [], G2(111001))
    fall("known, out of scope", "E1S", 111001, [f(4742, I=ort)], G2(111001))
    # The remark is looked up in its own chapter.
    beide("4741 other chapter", BEIDE, [G1(), G2(p), G5(p), G6(p, 212050), G1(291),
                                        mit_text(291, 200000, 210000, 212000, 212050)],
          katalog, [f(4741, I=ort)])
    # One report for each quantity, detail lines left out.
    beide("4741 twice", "01S",
          [*basis, satz("G6", {2: "241", 8: str(p), 44: "A", 123: "212050", 136: "01"}),
           satz("G6", {2: "241", 8: str(p), 44: "B", 123: "212051", 136: "02"})], katalog, [f(4741, I=ort), f(4741, I=ort)])
    # A reserve chapter has no chapter file: there the four ranges alone decide.
    for r, soll in ((212000, []), (211000, [f(4742, I="291.212.343")])):
        n = 291
        reserve = [G1(n), mit_text(n, 200000, 210000, 211000, 212000, p)]
        beide(f"4742 reserve chapter {r}", "E1S", [*reserve, G5(p, n=n), G6(p, r, n=n)], [], soll)
        beide(f"4742 reserve chapter {r}", "01S", [*reserve, G5(p, n=n), G6(p, r, n=n)], [], [])
    # No chapter file for the year: no scope from the catalogue.
    beide("4742 no chapter", "E1S", [*basis, G6(p, 211000)], [], [f(6101, I="241.000.000"), f(4741, I=ort), f(4742, I=ort)])
    # A head that is no head ends the run already in the after-pass.
    kaputt = eintrag(kapitel(), groesse="x")
    beide("4742 damaged head", "E1S", [*basis, G6(p, 211000)], kaputt, ABBRUCH)


def geltung():
    """The scope of a remark after the catalogue: behind its pure text branch, to the end of the group above."""
    def fall(name, haupt, r, p, gut, **mehr):
        n = mehr.pop("n", 241)
        rufe = [G1(n), G2(r, n=n), G2(p, n=n), G5(p, n=n), G6(p, r, n=n)]
        ort = f"{n}.{p // 1000:03}.{p % 1000:03}"
        katalog = eintrag(kapitel(*haupt, n=n, **mehr), nummer=n)
        beide(f"scope {name}", "E1S", rufe, katalog, [] if gut else [f(4742, I=ort)])
        beide(f"scope {name}", "01S", rufe, katalog, [])

    # Level 3: 111 holds text only, 112 and 113 services: 112000 to 119999.
    drei = [H(111, U(10)), H(112, U(1)), H(113, U(1)), H(121, U(1)), H(211, U(1))]
    fall("level 3", drei, 111010, 113001, True)
    fall("level 3, the position next to it", drei, 111010, 112001, True)
    fall("level 3, out of its sub-section", drei, 111010, 121001, False)
    fall("level 3, out of its section", drei, 111010, 211001, False)
    # A service below the branch makes an end node of its own: no branch any more.
    fall("level 3 with a service", [H(111, U(10), U(21)), *drei[1:]], 111010, 113001, False)
    # The main position alone has no end node without a sub-position.
    fall("level 3 without sub-positions", [H(111), *drei[1:]], 111000, 113001, False)
    fall("level 3 by sub-position 0", [H(111, U(0)), *drei[1:]], 111000, 113001, True)
    # Two neighbours are one branch, and the scope begins behind both.
    paar = [H(111, U(10)), H(112, U(10)), H(113, U(1)), H(115, U(1))]
    fall("level 3, two neighbours", paar, 111010, 113001, True)
    fall("level 3, two neighbours, second", paar, 112010, 115001, True)
    # 112 lies in the branch itself.
    luecke = [H(111, U(10)), H(112, U(1)), H(113, U(10)), H(114, U(1))]
    fall("level 3, a gap", luecke, 111010, 112001, True)
    fall("level 3, a gap: behind the second", luecke, 113010, 114001, True)

    # Level 2: all of 11x is text: 120000 to 199999.
    zwei = [H(111, U(10)), H(112, U(10)), H(121, U(1)), H(191, U(1)), H(211, U(1))]
    fall("level 2", zwei, 111010, 121001, True)
    fall("level 2, second main position", zwei, 112010, 121001, True)
    fall("level 2, out of its section", zwei, 111010, 211001, False)
    # 122 text, 121 not: level 3 within 12x.
    fall("level 2, two groups", [H(111, U(10)), H(121, U(10)), H(131, U(1))], 111010, 131001, True)
    fall("level 2, group not next", [H(111, U(10)), H(121, U(1)), H(131, U(10)), H(141, U(1))], 131010, 141001, True)

    # Level 1: all of 1xx is text: 200000 to 999999.
    eins = [H(111, U(10)), H(121, U(10)), H(211, U(1)), H(811, U(1))]
    fall("level 1", eins, 111010, 211001, True)
    fall("level 1, far", eins, 121010, 811001, True)
    fall("level 1, two sections", [H(111, U(10)), H(211, U(10)), H(311, U(1))], 111010, 311001, True)
    fall("level 1, two sections, from the second", [H(111, U(10)), H(211, U(10)), H(311, U(1))], 211010, 311001, True)
    # A remark behind the position is out of scope before the catalogue is asked.
    beide("scope remark behind", "E1S", [G1(), G2(111001), G5(111001), G6(111001, 211010), G2(211010)],
          kat(H(111, U(1)), H(211, U(10)), H(311, U(1))), [f(4742, I="241.111.001")])
    # In a section 0xx no branch is kept.
    fall("hundreds digit 0", [H(11, U(10)), H(211, U(1))], 11010, 211001, False)
    # A chapter with the tens digit 0 has no branches, and no service position either.
    beide("scope chapter 102", BEIDE, [G1(102), G2(111010, n=102)], eintrag(kapitel(H(111, U(10)), n=102), nummer=102),
          [])
    # The year and the language decide which file is asked.
    rufe = [G1(), G2(111010), G2(113001), G5(113001), G6(113001, 111010)]
    beide("scope wrong year", "E1S", rufe, eintrag(kapitel(*drei, v=2012), jahr=2013),
          [f(6101, I="241.000.000"), f(4742, I="241.113.001")])


def reihenfolge():
    """Entries without a line come behind those with one; within a position they go by code."""
    beide("order of lines and positions", BEIDE,
          [G1(), G2(111010), G3(111010, 7, "x"), G4(111010), G2(111011),
           satz("G2", {2: "241", 8: "111020", 43: "x"})], ALLES,
          [f(4231, 7), f(4731, I="241.111.010"), f(6301, I="241.111.010"),
           f(6401, I="241.111.010")])
    # In the mode I the warnings go, and with nothing else the block of errors goes too.
    rufe = geordnet([G1(), G2(111010), G2(111011)])
    for art, mehr, zahlen, soll in (
            ("01S", (), "<Errors>0</Errors><Warnings>1</Warnings>", [f(4711, I="241.111.010")]),
            ("01S", ("mode=E",), "<Mode>E</Mode><Errors>0</Errors><Warnings>1</Warnings>", [f(4711, I="241.111.010")]),
            ("01S", ("mode=I",), "<Mode>I</Mode><Errors>0</Errors><Software", []),
            ("E1S", (), "<Errors>1</Errors><Software", [f(4711, I="241.111.010")]),
            ("E1S", ("mode=I",), "<Mode>I</Mode><Errors>0</Errors><Software", [])):
        fall(f"count {mehr}", art, rufe, soll, teile=[zahlen], katalog=ordner({"N131241.qvm": ALLES}), mehr=mehr)

titel()
test_a_title_has_a_variable = faelle()

reservetext()
test_a_reserve_position_has_a_text = faelle()

zuordnung()
test_an_assignment_stands_on_no_title = faelle()

bemerkung()
test_a_remark_is_there_and_in_scope = faelle()

geltung()
test_scope_of_a_remark_after_the_catalogue = faelle()

reihenfolge()
test_findings_without_a_line_stand_behind_the_others = faelle()
