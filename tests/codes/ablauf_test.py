"""The run as a whole: keys and order of the lines, the order and the attributes of the protocol's findings."""
import re
from functools import partial

from befunde import element, f, fall, ohne_zeile
from rahmen import BEIDE, elemente, erwarte, faelle, lauf, satz


def g1(kapitel, **mehr):
    return satz("G1", {2: kapitel, 6: "20", 93: "Titel", **{int(s[1:]): w for s, w in mehr.items()}})


def b3(code, name="x", **mehr):
    return satz("B3", {2: "003", 87: code, 93: name, **{int(s[1:]): w for s, w in mehr.items()}})


B0 = satz("B0", {2: "003"})

# --- doubled keys -----------------------------------------------------------------------------------------------------
fall("two keys", BEIDE, [B0, b3("E1"), b3("E2")], [])
fall("one key", BEIDE, [B0, b3("E1"), b3("E1", "y")], [f(2021, 4)])
fall("one key but for the case", BEIDE, [B0, b3("e1"), b3("E1")], [f(2021, 4)])
fall("one key but for the case of an umlaut", BEIDE, [B0, b3("\u00e41"), b3("\u00c41")], [f(2021, 4)])
fall("three of one key: the second", BEIDE, [B0, b3("E1"), b3("E1"), b3("E1")], [f(2021, 4)])
fall("two doubled keys: the lower key", BEIDE, [B0, b3("Z1"), b3("Z1"), b3("A1"), b3("A1")], [f(2021, 6)])
fall("two doubled keys: the lower key stands first", BEIDE, [B0, b3("A1"), b3("A1"), b3("Z1"), b3("Z1")],
     [f(2021, 4)])
fall("a doubled key stops everything else", BEIDE, [B0, b3("E1", "\t"), b3("E1"), satz("B9")], [f(2021, 4)])
fall("a doubled key goes before the order", BEIDE, [B0, b3("E1"), b3("E1"), satz("B0", {2: "001"})], [f(2021, 4)])
fall("a doubled G1 shows its position", BEIDE, [g1("191"), g1("191", _93="Anders")],
     [f(2021, 3, I="191.000.000")])
fall("columns 168 and on: no part of the old key", "01S", [B0, b3("E1"), b3("E1", _168="x")], [f(2021, 4)])
fall("columns 168 and on: part of the new key", "E1S", [B0, b3("E1"), b3("E1", _168="x")],
     [f(2032, 4, "168"), f(3233, 4)])
fall("columns 188 and on: part of the new key", "E1S", [B0, b3("E1"), b3("E1", _188="x")],
     [f(2032, 4, "188"), f(3233, 4)])
fall("columns 184 to 187: no part of any key", BEIDE, [B0, b3("E1"), b3("E1", _184="x")], [f(2021, 4)])
for spalte, laenge in ((82, 5), (18, 6), (24, 6), (129, 6), (30, 3), (33, 3), (14, 2), (16, 2), (123, 6)):
    for s in (spalte, spalte + laenge - 1):
        fall(f"column {s} is part of the key", BEIDE, [B0, b3("E1"), b3("E1", **{f"_{s}": "9"})],
             [f(2032, 4, str(s)), f(3233, 4)])
for s in (5, 7, 36, 43, 58, 63, 81, 93, 122, 138, 160, 208, 256):
    fall(f"column {s} is no part of the key", BEIDE, [B0, b3("E1"), b3("E1", **{f"_{s}": "9"})], [f(2021, 4)])

test_a_doubled_key_is_told_once_and_stops_the_run = faelle()


# --- order ------------------------------------------------------------------------------------------------------------
fall("equal in what decides the order", BEIDE, [B0, b3("E2"), b3("E1")], [])
fall("structures in order", BEIDE, [satz("B0", {2: "001"}), satz("B0", {2: "003"})], [])
fall("structures out of order", BEIDE, [satz("B0", {2: "003"}), satz("B0", {2: "001"})], [f(2022, 3)])
fall("only the first fault", BEIDE, [satz("B0", {2: n}) for n in ("003", "001", "005", "004")], [f(2022, 3)])
fall("G behind X: the line at that place of the sorted lines", "E1S", [satz("X4", {2: "191"}), g1("191")], [f(2022, 3, I="")])
fall("X behind G", "E1S", [g1("191"), satz("X4", {2: "191", 8: "100000", 16: "01", 93: "x"})], [])
fall("D behind G", BEIDE, [g1("191"), satz("D1", {2: "x"})], [f(2022, 3, I="191.000.000")])
fall("E in front of D", BEIDE, [satz("E1", {2: "x"}), satz("D1", {2: "x"})], [f(2022, 3)])
fall("D in front of E", BEIDE, [satz("D1", {2: "x"}), satz("E1", {2: "x"})], [])
fall("U behind G", BEIDE, [g1("191"), satz("U1", {2: "x"})], [])
fall("E, D and U in their places, all the same", BEIDE,
     [satz("D1", {2: "x"}), satz("D1", {2: "x"}), satz("E1", {2: "b"}), satz("E1", {2: "a"}), g1("191"),
      satz("U1"), satz("U1")], [])
fall("a small letter stands behind Z", BEIDE, [satz("b0", {2: "003"})], [f(2022, 3)])
for spalte in (2, 4, 8, 13, 14, 15, 16, 17):
    gleich = satz("P3", {2: "111", 8: "111111", 14: "11", 16: "11", 93: "x"})
    vorne, hinten = (gleich[:spalte - 1] + z + gleich[spalte:] for z in "12")
    fall(f"column {spalte} decides the order", "E1S", [vorne, hinten], [])
    fall(f"column {spalte} decides the order, the wrong way", "E1S", [hinten, vorne], [f(2022, 3)])

test_lines_out_of_order_are_told_once_and_stop_the_run = faelle()


# --- characters -------------------------------------------------------------------------------------------------------
fall("a tab", BEIDE, [B0, b3("E1", "a\tb")], [f(2031, 3, "B3:23")])
fall("three tabs", BEIDE, [B0, b3("E1", "\t\t\t")], [f(2031, 3, "B3:23")] * 3)
fall("data between the fields: once a gap, at its first character", BEIDE,
     [satz("B0", {2: "003", 12: "ab", 20: "c", 50: "d", 71: "", 75: ""})],
     [f(2032, 2, "12"), f(2032, 2, "50")])
fall("data behind the last field", BEIDE, [B0.ljust(99) + "xx"], [f(2032, 2, "100")])
fall("blanks behind the last field", BEIDE, [B0.ljust(256)], [])
fall("256 characters", BEIDE, [satz("B3", {2: "003", 87: "E1", 93: "x", 256: "y"})],
     [f(2032, 2, "256"), f(3232, 2)])
fall("257 blanks", BEIDE, [B0.ljust(257)], [f(2032, 2, "257")])
fall("a long X line", "E1S", [satz("X4", {2: "191", 8: "100000", 16: "01", 93: "x" * 165})], [f(2032, 2, "257")])
for art in BEIDE:
    fall("a tab in the project's name is dropped", art, [], [f(2031, 1, "A:23")], kopf={93: "Schul\thaus"},
         teile=['<Project ID="P-1">Schulhaus</Project>'])
fall("undefined lines: once", BEIDE, [satz("B9"), satz("C", {2: "1"}), satz("G7", {2: "191"}), "H"], [f(2041)])

test_forbidden_characters_and_data_outside_the_fields = faelle()


# --- attributes: the position of a G line -----------------------------------------------------------------------------
fall("a position", BEIDE, [g1("810")], [f(4101, 2, I="810.000.000")])
fall("no position beside a form finding", BEIDE, [g1("   ")], [f(3002, 2, "G1:2a"), f(4101, 2, I="000.000.000")])
fall("the number as far as it reads", BEIDE, [g1("11x")], [f(3001, 2, "G1:2a"), f(4101, 2, I="011.000.000")])
fall("a number that doesn't read", BEIDE, [g1("x11")], [f(3001, 2, "G1:2a"), f(4101, 2, I="000.000.000")])
fall("warnings have one too", BEIDE, [g1("191", _8="123456")], [f(2032, 2, "8", "191.123.456")])
fall("3003 has none, 4104 on the same line has", "E1S", [g1("191", _93="     ")],
     [f(3003, 2, "G1:23"), f(4104, 2, I="191.000.000")])
fall("no 3003 in the old interface", "01S", [g1("191", _93="     ")], [f(4104, 2, I="191.000.000")])

test_a_finding_of_a_g_line_shows_its_position = faelle()


# --- order of the protocol --------------------------------------------------------------------------------------------
RESERVE = [g1("191"), satz("G2", {2: "191", 8: "100000"}), satz("G2", {2: "191", 8: "200000"})]
fall("chapters that the catalogue lacks, in their order", BEIDE, [g1("111"), g1("112"), g1("222")],
     [f(6101, I=f"{k}.000.000") for k in ("111", "112", "222")], wie_im_protokoll=True)
for kapitel in ("119", "191", "911", "999"):
    fall(f"chapter {kapitel} is the user's own", BEIDE, [g1(kapitel)], [])
fall("chapter 188 isn't", BEIDE, [g1("188")], [f(6101, I="188.000.000")])
fall("without a line: by position, whatever was told first", BEIDE, [g1("111"), *RESERVE, g1("222")],
     [f(6101, I="111.000.000"), f(4721, I="191.100.000"), f(4721, I="191.200.000"), f(6101, I="222.000.000")],
     wie_im_protokoll=True)
fall("lines, then positions, then the rest by code", "E1S",
     [satz("B0", {2: "001", 75: "0000001"}), satz("B0", {2: "002", 75: "0000001"}), satz("B9", {2: "003"}),
      satz("C0", {2: "007"}), g1("111"), g1("810"), satz("P2", {2: "111", 8: "000000", 14: "00", 93: "x"})],
     [f(5101, 5), f(4101, 7, I="810.000.000"), f(4252, 8), f(6101, I="111.000.000"), f(2041), f(3205)],
     wie_im_protokoll=True)
# From line 100001 on the line takes more room in the sort key, which is compared as text all the same.
zeilen = [satz("B9")] + ["E"] * 100000
for stelle in (9999, 10000, 99998, 99999, 100000):
    zeilen[stelle - 1] = "E\t"  # place in the file from 0, behind A
fall("line 100001 and on", "01S", zeilen,
     [*(f(2031, L, "2") for L in (10000, 100001, 10001, 99999, 100000)), f(2041)], wie_im_protokoll=True)

test_the_protocol_goes_by_line_then_position_then_code = faelle()


# --- modes ------------------------------------------------------------------------------------------------------------
GEMISCHT = [satz("B0", {2: "002", 36: "SN"}), satz("B0", {2: "006"})]
fall("errors and warnings", BEIDE, GEMISCHT, [f(3202, 2), f(3201, 3)])
fall("errors and warnings, mode E", BEIDE, GEMISCHT, [f(3202, 2), f(3201, 3)], mehr=("mode=E",))
fall("errors and warnings, mode I", BEIDE, GEMISCHT, [f(3201, 3)], mehr=("mode=I",))
fall("warnings only, mode I", BEIDE, GEMISCHT[:1], [], mehr=("mode=I",))
fall("errors only, mode I", BEIDE, GEMISCHT[1:], [f(3201, 2)], mehr=("mode=I",))
# Two equal keys change places; what mode I takes away takes no part in that.
fall("three fields blank, one of them a warning, mode I", "E1S", [], [f(3002, 1, "A:24g"), f(3002, 1, "A:24f")],
     kopf={93: "", 168: " " * 20, 188: " " * 20}, mehr=("mode=I",), wie_im_protokoll=True)

test_the_modes_change_nothing_but_list_and_counts = faelle()


# --- the other languages: the same findings with other texts ----------------------------------------------------------
VIELE = [satz("B0", {2: "006"}), satz("B2", {2: "003"}), satz("C0", {2: "007"}), g1("111"), satz("G2", {2: "222"})]


def gemeldet(saetze, sprache, art="E1S"):
    return elemente(lauf(art, saetze, sprache=sprache))


def ohne_text(art, sprache):
    return [re.sub(' T="[^"]+"', "", e) for e in gemeldet(VIELE, sprache, art)]


for art in BEIDE:
    for sprache in ("fr", "it"):
        erwarte(f"{art} {sprache}", partial(ohne_text, art, sprache), partial(ohne_text, art, "de"))
for nummer, sprache in ((1, "fr"), (2, "it")):
    erwarte(f"6101 {sprache}", partial(gemeldet, [g1("111")], sprache), [element(ohne_zeile(6101, 111), sprache=nummer)])

test_other_languages_tell_the_same_findings_in_other_texts = faelle()
