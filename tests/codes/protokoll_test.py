"""The form of the protocol and the order of lines, where a whole run shows them: attributes that are left out, counts,
header fields of refused files, and what the file's order and doubled keys do."""
import re

from functools import partial

from befunde import f, pruefe
from katalogbau import G1, G2, H, U, dateiname, eintrag, kapitel, ordner
from rahmen import BEIDE, anmelden, faelle, satz

KATALOG = eintrag(kapitel(H(111, U(1)), H(222, U(1))))


def fall(name, art, saetze, soll, *teile, **mehr):
    """`saetze` stand as they are; `teile` are pieces of the protocol."""
    anmelden(f"{name} [{art}]", partial(pruefe, art, saetze, soll, teile, katalog=ordner({dateiname(): KATALOG}), **mehr))


def pruefe_form(muster, art, modus):
    protokoll = pruefe(art, [G1(), G2(111001)], [], katalog=ordner({dateiname(): KATALOG}), mehr=[modus] if modus else [])
    assert re.fullmatch(muster, protokoll)


for art in BEIDE:
    warnungen = "<Warnings>0</Warnings>" if art == "01S" else ""
    fassung = "451-92.11" if art == "01S" else "QVMX17.21"
    klein = art.lower()
    rahmen_ = (r'<\?xml version="1\.0" encoding="iso-8859-1"\?><SIA451><Test><Project ID="P-1">Schulhaus</Project>'
               r'<Document ID="D-1">Baumeister</Document><Date>\d{4}-\d\d-\d\d</Date><Time>\d\d:\d\d</Time>%s<Errors>0</Errors>'
               rf'%s<Software Manufacturer="Muster AG">Ausmass</Software><Fileformat Version="{fassung}">{klein}</Fileformat>'
               r'<Testprogram Version="4\.0">ZEPHOLT</Testprogram></Test></SIA451>')
    for modus, element in (("", ""), ("mode=E", "<Mode>E</Mode>"), ("mode=I", "<Mode>I</Mode>")):
        anmelden(f"frame {modus} [{art}]", partial(
            pruefe_form, rahmen_ % (element, "" if modus == "mode=I" else warnungen), art, modus))

    # A record type without a layout: once for the file, without a line.
    fall("2041 column 42 blank", art, [satz("G", {2: "111", 93: "x"})], [f(2041)])
    fall("2041 short line", art, ["G111"], [f(2041)])
    fall("2041 two of them", art, [satz("G7", {2: "111"}), satz("G8", {2: "111"})], [f(2041)])
    fall("2041 behind the positions", art, [G1(), G2(333000), satz("G7", {2: "555"})], [f(6201, I="241.333.000"), f(2041)])
    fall("2041 twin", art, [G1(), G2(111001)], [])
    # E, D and U lines have no layout and no key of their own, but a place in the order.
    fall("two equal D lines", art, ["D", "D", G1(), G2(111001)], [])
    fall("D behind G", art, [G1(), G2(111001), "D"], [f(2022, 4, I="241.111.001")])
    fall("U behind G", art, [G1(), G2(111001), "U"], [])
    # Out of order: the place is that of the file, the position that of the sorted lines.
    fall("2022", art, [G1(), G2(222000), G2(111001)], [f(2022, 4, I="241.222.000")])
    fall("2022 twin", art, [G1(), G2(111001), G2(222000)], [])
    fall("2022 only the first", art, [G1(), G2(222000), G2(111001), G2(111000)], [f(2022, 4, I="241.111.001")])
    fall("2022 lower case", art, ["g"], [f(2022, 3)])
    # Equal in the columns of the order, different in the key: in any order.
    zwei = [satz("G4", {2: "241", 8: "111000", 82: k}) for k in ("2", "1")]
    fall("order of equal places", art, [G1(), G2(111000), *zwei], [f(4421, 4), f(4421, 5),
                                                                  f(6401, I="241.111.000")])
    # Doubled keys: text fields do not tell lines apart, nor does case.
    fall("2021", art, [G1(), G2(111001, "a"), G2(111001, "b")], [f(2021, 4)])
    fall("2021 case", art, [G1(), G2(111000), *[satz("G4", {2: "241", 8: "111000", 87: k}) for k in ("A", "a")]],
         [f(2021, 5)])
    fall("2021 before 2022", art, [G1(), G2(222000), G2(111001, "a"), G2(111001, "b")], [f(2021, 5, I="241.222.000")])

    # A mandatory entry that is missing has no position; the same line's other findings have.
    fall("3002 on a G record", art, [satz("G2", {8: "111000"})], [f(3002, 2, "G2:2a"), f(4201, 2)])
    fall("3001 on a G record", art, [satz("G2", {2: "1x1", 8: "111000"})], [f(3001, 2, "G2:2a"), f(4201, 2)])
    # The same code twice on one field: two entries.
    fall("3001 twice", art, [], [f(3001, 1, "A:21-22")] * 2, "<Errors>2</Errors>", kopf={82: " *         "})
    fall("expected entry", art, [], [] if art == "01S" else [f(3003, 1, "A:23")], '<Project ID="P-1">?</Project>',
         "<Errors>0</Errors><Warnings>0</Warnings>" if art == "01S" else "<Errors>1</Errors><Software", kopf={93: " " * 30})
    fall("nothing of a project", art, [], [f(3002, 1, "A:21-22")] + ([] if art == "01S" else [f(3003, 1, "A:23")]),
         '<Project ID="">?</Project>', kopf={82: " " * 11, 93: " " * 30})
    fall("no manufacturer", art, [], [f(3002, 1, "A:24f")], '<Software Manufacturer="">Ausmass</Software>',
         kopf={168: " " * 20})
    fall("control character", art, [], [f(2031, 1, "A:23")], '<Project ID="P-1">Schulhaus</Project>',
         kopf={93: "Schul\thaus"})
    fall("escapes", art, [], [], '<Project ID="P&amp;1">&lt;a&gt; &quot;b&quot; &apos;c&apos;</Project>',
         kopf={82: "P&1", 93: "<a> \"b\" 'c'"})
    fall("umlauts", art, [], [], '<Project ID="P-1">H\xf6he \xe9</Project>', kopf={93: "H\xf6he \xe9   "})
    # Two entries of one code on one line: the sort turns a pair of equal keys round.
    fall("outside of the fields", art, [G1(), satz("G2", {2: "241", 8: "111001", 60: "x", 200: "yy"})],
         [f(2032, 3, "60"), f(2032, 3, "200")])

    # Refused files: one error; the header stands untrimmed where it was read before.
    kennung = {8: "451-93"} if art == "01S" else {8: "QVMX18"}
    fall("other id", art, [], [f(2002 if art == "01S" else 2004, 1)], '<Project ID="">?</Project>',
         f'<Fileformat Version=".00">{klein}</Fileformat>', kopf=kennung, neu=False)
    fall("other language", art, [], [f(2003, 1)], '<Project ID="P-1        ">Schulhaus' + " " * 21 + "</Project>",
         f'<Fileformat Version="{fassung}">{klein}</Fileformat>', kopf={42: "4"})
    fall("old revision", art, [], [f(2006, 1)], '<Project ID="">?</Project>', 'Version="%s.00"' % fassung[:6],
         kopf={14: "10"}, neu=False)
    fall("new revision", art, [], [f(2006 if art == "01S" else 2005, 1)], 'Version="%s.22"' % fassung[:6],
         "<Errors>1</Errors><Software", kopf={14: "22"}, neu=True)
    fall("no record Z", art, [], [f(2012, 1)], schluss={1: "Y"})
    fall("another part file", art, [], [f(2013, 1)], schluss={62: "+"})
    fall("carrier 2 in A", art, [], [f(2014, 1)], kopf={63: "000000000002"})
    fall("carrier 2 in Z", art, [], [f(2014, 1)], schluss={63: "000000000002"})
    fall("carrier behind blanks", art, [], [], kopf={63: "         1  "}, schluss={63: " 1          "})
    fall("count", art, [], [f(2015, 1)], schluss={46: "0000000000003"})
    fall("count behind blanks", art, [], [], schluss={46: "            2"})
    fall("count blank", art, [], [f(2015, 1)], schluss={46: " " * 13})

# What only one of the two interfaces has.
g2 = [satz("G2", {2: "241", 8: "111001", 168: k}) for k in ("a", "b")]
fall("column 168 is no part of the key", "01S", [G1(), *g2], [f(2021, 4)])
fall("column 168 is part of the key", "E1S", [G1(), *g2],
     [f(2032, 3, "168"), f(2032, 4, "168"), f(4221, 4)])
x4 = satz("X4", {2: "241", 8: "111001", 14: "00"})
fall("X behind G", "01S", [G1(), G2(111001), x4], [f(2041)])
fall("G behind X", "E1S", [x4, G1()], [f(2022, 3, I="")])
fall("B9", "01S", [satz("B9", {62: "?"})], [f(2041)])
fall("B9", "E1S", [satz("B9", {62: "?"})], [f(2041)])

test_form_of_the_protocol_and_order_of_the_lines = faelle()
