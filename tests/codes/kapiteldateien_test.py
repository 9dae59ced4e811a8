"""The reading of chapter files: head, abbreviations, scanner, attributes, collected files. What counts as an absent
chapter (6101), what is taken as it stands, and what ends the run."""
import re
from functools import partial

from befunde import f, fall
from katalogbau import (G1, G2, G3, G4, H, U, V, beide, dateiname, eintrag, geordnet, kapitel, kopf, ordner,
                        sammeldatei)
from rahmen import ABBRUCH, BEIDE, anmelden, befehl, datei, faelle, ort as arbeitsort, parameter

FEHLT = [f(6101, I="241.000.000")]
GUT = kapitel(H(111, U(1)))


def ort(p):
    return f"241.{p // 1000:03}.{p % 1000:03}"


def positionen(name, rumpf, *paare, **mehr):
    """The document holds the positions of `paare`, each with 1 when the chapter has it."""
    doc = [G1(), *[G2(p) for p, _ in paare]]
    beide(name, BEIDE, doc, eintrag(rumpf, **mehr), [f(6201, I=ort(p)) for p, da in sorted(paare) if not da])


def im_ordner(name, inhalt, soll, doc=(G2(111001),)):
    """A file of any content under the name of chapter 241 of 2013."""
    fall(f"{name}, folder", BEIDE, geordnet(G1(), doc), soll, katalog=ordner({dateiname(): inhalt}))


def in_datei(name, inhalt, soll, doc=(G2(111001),)):
    """A collected file of any content."""
    fall(f"{name}, collected file", BEIDE, geordnet(G1(), doc), soll, katalog=sammeldatei([inhalt]))


def kopfzeile():
    """Magic and head. No number in a field ends the run; a number is all that is asked of it."""
    gut = eintrag(GUT)
    for bytes_ in range(4):
        im_ordner(f"cut to {bytes_}", gut[:bytes_], FEHLT)
    for bytes_ in range(4, 32 - 1):
        im_ordner(f"cut to {bytes_}", gut[:bytes_], ABBRUCH)
    im_ordner("cut behind the table", gut[:31], FEHLT)
    for magie in ("CF12", "cf11", "CF1 ", " CF1", "XXXX", "\0\0\0\0"):
        im_ordner(f"magic {magie!r}", eintrag(GUT, magie=magie), FEHLT)
        in_datei(f"magic {magie!r}", eintrag(GUT, magie=magie), FEHLT)
    im_ordner("mark in front of the magic", b"\xef\xbb\xbf" + gut, FEHLT)

    def feld(von, laenge, wert):
        return gut[:von] + f"{wert:{laenge}}".encode("latin-1") + gut[von + laenge:]

    for name, von, laenge in (("year", 4, 4), ("language", 8, 1), ("chapter", 9, 3), ("length", 12, 9), ("size", 21, 9)):
        for wert in ("x", " ", "-", "+", "\xa0", "\0") + (() if laenge == 1 else ("1x", "x1", "1 1", "--1", "0x1", ".", "1e1")):
            im_ordner(f"{name} {wert!r}", feld(von, laenge, wert), ABBRUCH)
        for wert in ("0", "7") + (() if laenge == 1 else ("+1", "-1", " 1", "1.5")):
            im_ordner(f"{name} {wert!r}", feld(von, laenge, wert), [])
    for groesse in ("000000000", "-00000001", "000000001", "000000999", "000099999"):
        im_ordner(f"size {groesse}", feld(21, 9, groesse), [])
    # In a collected file the length is read first; without one nothing can be found. The key fields are compared only.
    for wert in ("x", " ", "1x", "-1", "0", "29", "000000029", "-00000300"):
        in_datei(f"length {wert!r}", feld(12, 9, wert), FEHLT)
    in_datei("length of the head alone", feld(12, 9, "30"), ABBRUCH)
    in_datei("length to the table", feld(12, 9, "31"), FEHLT)
    for wert in (str(len(gut)), f" {len(gut)}", f"+{len(gut)}", f"{len(gut)}.4", "999999999", str(len(gut) - 10)):
        in_datei(f"length {wert!r}", feld(12, 9, wert), [])
    in_datei("size x", feld(21, 9, "x"), ABBRUCH)
    in_datei("size blank", feld(21, 9, ""), ABBRUCH)
    for von, laenge, wert in ((4, 4, "x"), (4, 4, "2014"), (8, 1, "2"), (9, 3, "242"), (9, 3, "41")):
        in_datei(f"key {wert!r} at {von}", feld(von, laenge, wert), FEHLT)
    # A reserve chapter is never loaded, another chapter of the catalogue neither.
    doc = [G1(291), G2(100000, n=291), G3(100000, 0, "x", n=291)]
    beide("damaged file of a reserve chapter", BEIDE, doc, eintrag("", nummer=291, groesse="x"), [])
    beide("damaged file of a chapter that nobody asks for", BEIDE, doc, eintrag("", groesse="x"), [])
    beide("damaged file behind a good one", BEIDE, [G1(), G2(111001), G1(242)],
          [eintrag(GUT), eintrag("", nummer=242, groesse="x")], ABBRUCH)


def kuerzel():
    """The abbreviation table and the bytes below 32 of the body."""
    def fall(name, rumpf, paare, soll=(), **mehr):
        beide(name, BEIDE, [G1(), G2(111001)], eintrag(rumpf, kuerzel=paare, **mehr), soll or [])

    fall("none", GUT, ())
    teile = {1: b"<Kapitel", 2: b'<H N="', 3: b'<U N="', 10: b'"/>', 13: b"</H>", 31: b"</Kapitel>", 9: b'">'}
    kurz = GUT.encode("latin-1")
    for code, text in teile.items():
        kurz = kurz.replace(text, bytes([code]))
    assert {*teile} <= {*kurz}
    fall("six abbreviations", kurz, teile)
    for code in teile:
        ohne = {c: t for c, t in teile.items() if c != code}
        # Without the end tag of the chapter all of its positions are read; without another piece they can't be.
        fall(f"code {code} without an entry", kurz, ohne, {31: [], 1: FEHLT}.get(code, [f(6201, I=ort(111001))]))
    fall("all 31 codes", b"".join(bytes([c]) for c in range(1, 32)),
         {c: GUT.encode("latin-1")[(c - 1) * 6:c * 6 if c < 31 else None] for c in range(1, 32)})
    fall("a byte 0 stands for nothing", GUT.replace("Kapitel ", "Kap\0itel ").replace("111", "1\0\x0011"), ())
    fall("a code without an entry stands for nothing", GUT.replace("111", "1\x051\x1f1"), {6: b"9"})
    fall("line ends stand for nothing", GUT.replace("><", ">\r\n<"), ())
    fall("line ends that stand for blanks", GUT.replace("><", ">\n<"), {10: b" "}, [f(6201, I=ort(111001))])
    fall("the later entry counts", GUT.replace("111", "\x01"), (), [], vorn=b"\x01222\n\x01111\n ")
    fall("twin: turned", GUT.replace("111", "\x01"), (), [f(6201, I=ort(111001))], vorn=b"\x01111\n\x01222\n ")
    fall("the later entry counts, also when empty", GUT.replace("111", "\x0111\x011"), (), [], vorn=b"\x01222\n\x01\n ")
    fall("more than 31 entries", GUT, (), vorn=b"".join(bytes([1 + i % 31]) + b"abc\n" for i in range(200)) + b" ")
    fall("an empty text", GUT.replace("111", "\x02111"), {2: b""})
    fall("a text is not expanded again", GUT.replace("111", "1\x021"), {2: b"\x031", 3: b"7"}, [f(6201, I=ort(111001))])
    fall("any byte in a text", GUT.replace('Titel"', '\x02"'), {2: bytes(b for b in range(256) if b not in b'\n"<>')})
    fall("a blank in a text", GUT.replace(" ", "\x02"), {2: b" "})
    fall("code 10", GUT.replace("111", "\n"), {10: b"111"})
    for code in (0, 33, 48, 127, 255):
        fall(f"code {code}", GUT, (), FEHLT, vorn=bytes([code]) + b"abc\n ")
        fall(f"code {code} as the second", GUT, (), FEHLT, vorn=b"\x01x\n" + bytes([code]) + b"abc\n ")
        fall(f"code {code} without a line feed", GUT, (), ABBRUCH, vorn=bytes([code]) + b"abc ")
    fall("code 31", GUT, (), vorn=b"\x1fabc\n ")
    fall("no line feed", GUT, (), ABBRUCH, vorn=b"\x01abc ")
    fall("no end of the table", "", (), ABBRUCH, vorn=b"\x01abc\n")
    fall("no table", GUT, (), ABBRUCH, vorn=b"")  # `<` is no code, and no line feed follows
    fall("no table, line feed", GUT + "\n", (), FEHLT, vorn=b"")
    fall("empty body", "", (), FEHLT)
    fall("body of zeros", "\0" * 100, (), FEHLT)
    fall("every other byte stands for itself", GUT.replace('Titel"', bytes(
        b for b in range(32, 256) if b not in b'"<>').decode("latin-1") + '"'), ())


def wurzel():
    """The root element and its attributes."""
    def fall(name, rumpf, soll=()):
        beide(name, BEIDE, [G1(), G2(111001)], eintrag(rumpf), list(soll))

    rest = GUT[GUT.index("><") + 1:]
    fall("plain", f'<Kapitel N="241" S="1" V="2013" A="0" T="" Z="">{rest}')
    fall("any order", f'<Kapitel Z="" T="x" A="7" V="2013" S="1" N="241">{rest}')
    fall("no title", f'<Kapitel N="241" S="1" V="2013" A="0">{rest}')
    for anfang in ("<kapitel ", "<KAPITEL ", "<Kapitelx ", "<Buch ", "< Kapitel ", "<x:Kapitel ", "</Kapitel ", "<?x?><y "):
        fall(f"root {anfang}", GUT.replace("<Kapitel ", anfang), FEHLT)
    fall("text in front of the root", "Vorwort" + GUT)
    fall("a second declaration", '<?xml version="1.0"?>' + GUT, FEHLT)
    fall("an element in front of the root", '<x a="1"/>' + GUT, FEHLT)
    for name, gut in (("N", "241"), ("S", "1"), ("V", "2013"), ("A", "0")):
        mit = lambda wert: GUT.replace(f' {name}="{gut}"', "" if wert is None else f' {name}="{wert}"', 1)
        for wert in (None, "", " ", "x", f"{gut}x", f"x{gut}", "1 2", "1e1", "&#50;", "-", "+", "32768", "-32769", "99999999999",
                     "32767.5", "1,5", "0x1", f"{gut}%"):
            fall(f"{name} {wert!r}", mit(wert), FEHLT)
        for wert in (f" {gut}", f"{gut} ", f"  {gut}  ", f"+{gut}", f"00{gut}", f"{gut}.0", f"{gut}.4"):
            fall(f"{name} {wert!r}", mit(wert))
    for wert in ("32767", "-32768", "32767.4", "-32768.5", "-7", "0.5"):
        fall(f"A {wert}", GUT.replace(' A="0"', f' A="{wert}"'))
    # Halves go to the even number.
    for name, werte in (("N", (("240.5", 0), ("241.5", 0), ("240.51", 1), ("241.49", 1))),
                        ("V", (("2012.5", 0), ("2013.5", 0), ("2012.6", 1))),
                        ("S", (("0.5", 0), ("1.5", 0), ("0.6", 1), ("1.4", 1)))):
        for wert, da in werte:
            fall(f"{name} {wert}", re.sub(f' {name}="[0-9]+"', f' {name}="{wert}"', GUT, count=1), [] if da else FEHLT)
    fall("242.5 is 242, 241.5 too", GUT.replace('N="241"', 'N="240.5"'), FEHLT)
    for name, wert in (("V", "1913"), ("V", "2012"), ("V", "13"), ("S", "2"), ("S", "0"), ("N", "242"), ("N", "-241")):
        fall(f"other {name} {wert}", re.sub(f' {name}="[0-9]+"', f' {name}="{wert}"', GUT, count=1), FEHLT)
    # Attributes are found by a plain search for the name and `=`.
    fall("N= inside an earlier value", f'<Kapitel T="N=" N="241" S="1" V="2013" A="0">{rest}', FEHLT)
    fall("twin: inside a later value", f'<Kapitel N="241" T="N=" S="1" V="2013" A="0">{rest}')
    fall("a longer name in front", f'<Kapitel XN="7" N="241" S="1" V="2013" A="0">{rest}', FEHLT)
    fall("a longer name that fits", f'<Kapitel XN="241" N="7" S="1" V="2013" A="0">{rest}')
    fall("single quotes", f"<Kapitel N='241' S=\"1\" V=\"2013\" A=\"0\">{rest}", FEHLT)
    fall("single quotes, last", f"<Kapitel N=\"241\" S=\"1\" V=\"2013\" A='0'>{rest}")  # the quotes of the first H: A=111
    fall("no quotes", f'<Kapitel N=241 S="1" V="2013" A="0">{rest}', FEHLT)
    fall("no quotes, next value fits", f'<Kapitel V="2013" A="0" N= S="241" S="1">{rest}', FEHLT)
    fall("blanks around the equals sign", f'<Kapitel N ="241" S="1" V="2013" A="0">{rest}', FEHLT)
    fall("blank behind the equals sign", f'<Kapitel N= "241" S="1" V="2013" A="0">{rest}')
    fall("lower case", f'<Kapitel n="241" S="1" V="2013" A="0">{rest}', FEHLT)
    fall("> inside a value", f'<Kapitel T="a>b" N="241" S="1" V="2013" A="0">{rest}', FEHLT)
    fall("> inside a later value", f'<Kapitel N="241" S="1" V="2013" A="0" T="a>b">{rest}')
    fall("attribute of a child", f'<Kapitel S="1" V="2013" A="0"><H N="241"><U N="1"/></H></Kapitel>', FEHLT)
    # No tab parts attributes; it can only come from an abbreviation.
    beide("tab behind the name", BEIDE, [G1(), G2(111001)],
          eintrag(GUT.replace("<Kapitel ", "<Kapitel\x02"), kuerzel={2: b"\t"}), FEHLT)
    # A chapter without main positions is a chapter.
    for name, rumpf in (("self-closed", '<Kapitel N="241" S="1" V="2013" A="0"/>'),
                        ("without children", '<Kapitel N="241" S="1" V="2013" A="0"></Kapitel>'),
                        ("start tag alone", '<Kapitel N="241" S="1" V="2013" A="0">'),
                        ("texts only", kapitel()), ("rows only", kapitel().replace("eins", "").replace("zwei", ""))):
        beide(f"no main position: {name}", BEIDE, [G1(), G2(111001), G2(112000)], eintrag(rumpf),
              [f(6201, I=ort(111001)), f(6201, I=ort(112000))])


def scanner():
    """The limits of the scanner: what it can't read ends the search with what was found up to there."""
    def fall(name, mitte, *paare):
        positionen(name, kapitel(mitte), *paare)

    h = lambda n: f'<H N="{n}"><U N="1"/></H>'
    a, z = h(111), h(113)
    alle = ((111001, 1), (112001, 1), (113001, 1))
    bis_1 = ((111001, 1), (112001, 0), (113001, 0))
    nur_2_nicht = ((111001, 1), (112001, 0), (113001, 1))
    for name, mitte, paare in (
            ("plain", h(112), alle),
            ("H without children, self-closed", '<H N="112"/>', nur_2_nicht),
            ("H without children, with a closing tag", '<H N="112"></H>', bis_1),
            ("U without children, with a closing tag", '<H N="112"><U N="1"></U></H>', bis_1),
            ("V with a closing tag", '<H N="112"><U N="1"><V N="1"></V></U></H>', bis_1),
            ("H without anything", "<H></H>", nur_2_nicht),
            ("H without a blank but with children", '<H><U N="1"/></H>', nur_2_nicht),
            ("text in front of the first U", '<H N="112">abc<U N="1"/></H>', alle),
            ("text between two U", '<H N="112"><U N="2"/>abc<U N="1"/></H>', alle),
            ("text behind the last U", '<H N="112"><U N="1"/>abc</H>', bis_1),
            ("blank behind the last U", '<H N="112"><U N="1"/> </H>', bis_1),
            ("text between two H", "abc" + h(112), alle),
            ("blank between two H", " " + h(112) + " ", alle),
            ("text in a U", '<H N="112"><U N="1">abc</U></H>', bis_1),
            ("comment", "<!-- x -->" + h(112), bis_1),
            ("comment without a blank", "<!--x-->" + h(112), bis_1),
            ("comment that ends like an element", "<!-- x /-->" + h(112), bis_1),
            ("processing instruction", "<?x y?>" + h(112), None),
            ("instruction that ends like an element", "<x y/>" + h(112), alle),
            ("other element", '<X N="1"/>' + h(112), alle),
            ("other element with children", '<X N="1"><U N="1"/></X>' + h(112), alle),
            ("lower case", h(112).replace("H", "h"), nur_2_nicht),
            ("lower case at the end only", h(112).replace("</H", "</h"), bis_1),
            ("blank in the closing tag", h(112).replace("</H>", "</H >"), bis_1),
            ("longer name", h(112).replace("H", "HH"), nur_2_nicht),
            ("no closing tag", h(112).replace("</H>", ""), bis_1),
            ("closing tag twice", h(112) + "</H>", ((111001, 1), (112001, 1), (113001, 0))),
            ("closing tag of the chapter in the middle", h(112) + "</Kapitel>", None),
            ("no end of the start tag", '<H N="112"<U N="1"/></H>', None),
            ("H in an H", f'<H N="112">{h(114)}<U N="1"/></H>', alle + ((114001, 0),)),
            ("H in another element", f'<X N="1">{h(112)}</X>', nur_2_nicht),
            ("U in a U", '<H N="112"><U N="2"><U N="1"/></U></H>', nur_2_nicht),
            ("U in another element", '<H N="112"><X N="2"><U N="1"/></X></H>', nur_2_nicht),
            ("U beside the H", '<U N="1"/>' + h(112), alle),
            ("> in a value of a U", '<H N="112"><U N="1" B="a>b"/></H>', bis_1),
            ("/> in a value of a U", '<H N="112"><U N="1" B="a/>b"/><U N="2"/></H>', alle),
            ("< in a value of a U", '<H N="112"><U N="1" B="a<b"/></H>', alle),
            ("< in a value of an H", '<H N="112" B="a<b"><U N="1"/></H>', bis_1),
            ("> in a value of an H", '<H N="112" B="a>b"><U N="1"/></H>', alle),
            ("/> in a value of an H", '<H N="112" B="a/>b"><U N="1"/></H>', None),
            ("U that fails behind a good one", '<H N="112"><U N="1"/><U N="2"></U></H>', bis_1),
            ("two blanks", h(112).replace(" ", "  "), alle),
            ("blank in front of the slash", h(112).replace("/>", " />"), alle),
            ("blank in front of the end of a start tag", h(112).replace('"><', '" ><'), alle),
            ("doubled quotes", h(112).replace('"112"', '""112""'), nur_2_nicht),
            ("no quotes", '<H N=112><U N="1"/></H>', nur_2_nicht),
    ):
        if paare is not None:
            fall(name, a + mitte + z, *paare)
    # The instruction's end is taken for the end of the declaration only once: the first one is the program's own.
    fall("processing instruction", a + "<?x y?>" + h(112) + z, *bis_1)
    # A second end of the chapter ends the element; what follows stands beside it, at the top, and is no child.
    fall("closing tag of the chapter in the middle", a + h(112) + "</Kapitel>" + z, (111001, 1), (112001, 1), (113001, 0))
    # H without `>`: its start tag runs on to the end of its first U, and that ends like an empty element.
    fall("no end of the start tag", a + '<H N="112"<U N="1"/></H>' + z, *bis_1)
    # `/>` in a value ends the H there, its U becomes a child of the chapter, and its end tag the end of nothing.
    fall("/> in a value of an H", a + '<H N="112" B="a/>b"><U N="1"/></H>' + z, *bis_1)
    # A second root brings its main positions.
    positionen("two roots", kapitel(a) + kapitel(z), (111001, 1), (113001, 0))
    zwei = kapitel(a).replace("<Texte><T>eins</T><T>zwei</T></Texte>", "")
    positionen("two roots that can be read", zwei + zwei.replace("111", "113"), (111001, 1), (113001, 1))
    positionen("two roots, any name", zwei + zwei.replace("111", "113").replace("Kapitel", "Buch"), (111001, 1), (113001, 1))
    # No end of the chapter.
    positionen("no end", kapitel(a, z).replace("</Kapitel>", ""), (111001, 1), (113001, 1))
    # `<U></U>` needs a blank somewhere behind it.
    ohne = lambda schwanz: kapitel(a, '<H N="112"><U N="1"/><U></U></H>').replace(
        "<Texte><T>eins</T><T>zwei</T></Texte>", "") + schwanz
    positionen("empty U, no blank behind", ohne(""), (111001, 1), (112001, 0))
    positionen("empty U, a blank behind", ohne(" "), (111001, 1), (112001, 1))
    positionen("empty U between two", kapitel('<H N="112"><U N="1"/><U></U><U N="2"/></H>'), (112001, 1), (112002, 1))
    positionen("empty Texte in front", kapitel("<Texte></Texte>", a), (111001, 1))
    positionen("Texte with text in front", kapitel("<Texte><T>x</T></Texte>", a), (111001, 0))
    # An element of V alone: no name without a blank.
    beide("V without a blank", BEIDE, [G1(), G2(111001), G3(111001, 0, "")],
          eintrag(kapitel('<H N="111"><U N="1"><V/></U></H>')), [f(6301, I=ort(111001))])
    beide("V behind one that fails", BEIDE, [G1(), G2(111001), G3(111001, 1, "")],
          eintrag(kapitel('<H N="111"><U N="1"><V N="2"><x></x></V><V N="1"/></U></H>')), [])
    # Depth and length.
    tief = '<x y="1">' * 60000 + '<z y="1"/>' + "</x>" * 60000
    positionen("60000 levels", kapitel(a, tief, z), (111001, 1), (113001, 1))
    positionen("60000 levels in an H", kapitel(f'<H N="112">{tief}<U N="1"/></H>'), (112001, 1))
    positionen("60000 open levels", kapitel(a, '<x y="1">' * 60000, z), (111001, 1), (113001, 0))
    for name, mitte in (("empty elements", "<a></a>" * 200000), ("self-closed", "<a/>" * 200000),
                        ("open", "<a>" * 200000), ("text", "a" * 1000000), ("end tags", "</a>" * 200000),
                        ("quotes", '<H N="' * 100000), ("angles", "<" * 1000000)):
        anmelden(f"time on {name}", partial(pruefe_dauer, kapitel(a, mitte, z) + " "))


def zahlen():
    """Numbers of H, U and V: what stands in front counts, out of the width fails the chapter."""
    def u_n(wert, nummer):
        beide(f"U N {wert!r}", BEIDE, [G1(), G2(111000 + nummer)], eintrag(kapitel(H(111, U(wert)))), [])
        beide(f"U N {wert!r} twin", BEIDE, [G1(), G2(111000 + nummer + 1)], eintrag(kapitel(H(111, U(wert)))),
              [f(6201, I=ort(111000 + nummer + 1))])
    for wert, nummer in (("5", 5), ("005", 5), (" 5", 5), ("5x", 5), ("5 1", 5), ("+5", 5), ("5.4", 5), ("4.5", 4), ("5.5", 6),
                         ("4.51", 5), ("5e2", 5), ("5.", 5), ("5,7", 5), ("5&", 5), ("5-1", 5)):
        u_n(wert, nummer)
    # H too, and no N is 0.
    for wert, nummer in (("112", 112), (" 112x", 112), ("111.5", 112), ("112.5", 112)):
        positionen(f"H N {wert!r}", kapitel(H(wert, U(1))), (nummer * 1000 + 1, 1), (nummer * 1000 + 1001, 0))
    positionen("H without N is 000", kapitel('<H X="0"><U N="10"/></H>'), (10, 1), (20, 0))
    beide("U without N", BEIDE, [G1(), G2(111002)], eintrag(kapitel(H(111, '<U W="1050"/>', "<U N=\"1\"/>"))),
          [f(6201, I=ort(111002))])
    beide("U without N carries a range", BEIDE, [G1(), G2(111002)], eintrag(kapitel(H(111, '<U W="50"/>'))), [])
    # Widths.
    def breite(name, haupt, gut):
        beide(f"width {name}", BEIDE, [G1(), G2(111001)], eintrag(kapitel(H(111, U(1)), *haupt)), [] if gut else FEHLT)
    for attribut, bau, grenzen in (
            ("H N", lambda w: H(w), ("32767", "32768", "-32768", "-32769")),
            ("H X", lambda w: H(112, x=w), ("255", "256", "0", "-1")),
            ("U N", lambda w: H(112, U(w)), ("32767", "32768", "-32768", "-32769")),
            ("U W", lambda w: H(112, U(1, w=w)), ("2147483647", "2147483648", "-2147483648", "-2147483649")),
            ("U X", lambda w: H(112, U(1, x=w)), ("255", "256", "0", "-1")),
            ("U Y", lambda w: H(112, U(1, y=w)), ("255", "256", "0", "-1")),
            ("V N", lambda w: H(112, U(1, V(w))), ("32767", "32768", "-32768", "-32769")),
            ("V E", lambda w: H(112, U(1, V(1, e=w))), ("32767", "32768", "-32768", "-32769"))):
        oben, drueber, unten, drunter = grenzen
        for wert, gut in ((oben, 1), (drueber, 0), (unten, 1), (drunter, 0), (oben + ".4", 1), (oben + ".5", 0),
                          (unten + ".4" if unten != "0" else "-0.4", 1), ("9" * 30, 0), ("-" + "9" * 30, 0), ("9" * 400, 0),
                          ("x" * 400, 1), ("0" * 400 + "1", 1), ("0." + "9" * 400, 1)):
            breite(f"{attribut} {wert[:14]}({len(wert)})", [bau(wert)], gut)
    # A text attribute has none; one that nobody asks for neither.
    breite("V A", [H(112, U(1, V(1, a="9" * 400)))], 1)
    breite("H W", ['<H N="112" W="99999999999999"/>'], 1)
    # An attribute of the child does not stand for one that is missing at the parent.
    breite("X at the child only", ['<H N="112"><U N="1" X="7"/></H>'], 1)
    # The plain search: N= in a longer name.
    positionen("longer name", kapitel('<H N="111"><U XN="2" N="1"/></H>'), (111002, 1), (111001, 0))
    # Counts: 32767 of each fit.
    for name, bau in (("main positions", lambda n: [H(1)] * (n - 1)), ("sub-positions", lambda n: [H(1, *[U(1)] * n)]),
                      ("variables", lambda n: [H(1, U(1, *[V(1)] * n))])):
        for n, gut in ((32767, 1), (32768, 0)):
            breite(f"{n} {name}", bau(n), gut)


def endknoten():
    """The list of end nodes has room for 729 of each main position and one more; beyond that it is empty."""
    def fall(name, letzte, haupt, soll):
        rumpf = kapitel(H(111, *[U(n) for n in range(1, letzte + 1)]), *haupt)
        beide(f"end nodes {name}", BEIDE, [G1(), G2(111810), G4(111810)], eintrag(rumpf), [f(6401, I=ort(111810))] if soll else [])
    # Of 1 to 811 the tens are refined by what follows: 81 of them, 730 end nodes are left.
    fall("730", 811, [], True)
    fall("731", 812, [], False)
    fall("731, two main positions", 812, [H(112)], True)
    # An emptied list finds no repeat range either.
    bereich = [U(n) for n in range(1, 812)]
    for mehr, soll in (([U(820, w=820899)], [f(6201, I=ort(111822))]), ([], [f(6201, I=ort(111822))])):
        beide(f"end nodes and range {len(mehr)}", BEIDE, [G1(), G2(111822)], eintrag(kapitel(H(111, *bereich, *mehr))), soll)
    beide("end nodes and range, room", BEIDE, [G1(), G2(111822)],
          eintrag(kapitel(H(111, *bereich, U(820, w=820899)), H(112))), [])
    # Refining: the order of the file counts.
    for name, haupt, soll in (("in order", [H(111, U(10), U(11))], 1), ("turned", [H(111, U(11), U(10))], 1),
                              ("between", [H(111, U(10), U(21), U(11))], 0)):
        beide(f"refining {name}", BEIDE, [G1(), G2(111010), G4(111010)], eintrag(kapitel(*haupt)),
              [f(6401, I=ort(111010))] if soll else [])


def sammlung():
    """The walk over a collected file."""
    gut, davor = eintrag(GUT), eintrag(kapitel(H(222), n=242), nummer=242)
    for name, teile, soll in (
            ("first", [gut, davor], []), ("last", [davor, gut], []), ("between", [davor, gut, davor], []),
            ("empty file", [], FEHLT), ("one byte", [b"C"], FEHLT), ("ten bytes", [gut[:10]], FEHLT),
            ("29 bytes", [gut[:29]], ABBRUCH), ("rubbish behind", [gut, b"rubbish"], []),
            ("rubbish in front", [b"rubbish", gut], FEHLT), ("zeros in front", [b"\0" * 31, gut], FEHLT),
            ("first of two", [gut, eintrag(kapitel())], []), ("first of two, turned", [eintrag(kapitel()), gut],
                                                             [f(6201, I=ort(111001))]),
            ("first of two, damaged", [eintrag(GUT, groesse="x"), gut], ABBRUCH),
            ("first of two, wrong magic", [eintrag(GUT, magie="CF12"), gut], FEHLT),
            ("magic of the one in front", [eintrag(GUT, nummer=242, magie="XXXX"), gut], []),
            ("table of the one in front", [eintrag("", nummer=242, vorn=b"\xffx"), gut], []),
            ("size of the one in front", [eintrag("", nummer=242, groesse="x"), gut], []),
            ("year of the one in front", [eintrag("", jahr="x", nummer=242), gut], []),
            ("length of the one in front: none", [eintrag(GUT, nummer=242, laenge="x"), gut], FEHLT),
            ("length of the one in front: 0", [eintrag(GUT, nummer=242, laenge=0), gut], FEHLT),
            ("length of the one in front: 29", [eintrag(GUT, nummer=242, laenge=29), gut], FEHLT),
            ("length of the one in front: negative", [eintrag(GUT, nummer=242, laenge="-00000200"), gut], FEHLT),
            ("length of the one in front: short", [eintrag(GUT, nummer=242, laenge=40), gut], FEHLT),
            ("length of the one in front: beyond the end", [eintrag(GUT, nummer=242, laenge=99999), gut], FEHLT),
            ("length of the one in front: over both", [eintrag(GUT, nummer=242, laenge=30 + 1 + len(GUT) + len(gut)), gut], FEHLT),
            ("head alone in front", [kopf(30, nummer=242), gut], []),
            ("length of the one behind", [gut, eintrag("", nummer=242, laenge="x")], []),
            ("length beyond the end", [eintrag(GUT, laenge=99999)], []),
            ("length of the head alone", [eintrag(GUT, laenge=30), davor], ABBRUCH),
            ("same number, other year", [eintrag(kapitel(v=2012), jahr=2012), gut], []),
            ("same number, other language", [eintrag(kapitel(s=2), sprache=2), gut], []),
            ("year inside does not fit", [eintrag(kapitel(H(111, U(1)), v=2012))], FEHLT)):
        in_datei(f"walk: {name}", b"".join(teile), soll)
    # An entry that takes in the next one takes in its main positions.
    ohne_texte = GUT.replace("<Texte><T>eins</T><T>zwei</T></Texte>", "")
    eins = eintrag(ohne_texte)
    zwei = eintrag(ohne_texte.replace("111", "222"), nummer=242)
    doc = (G2(111001), G2(222001))
    in_datei("walk: true length", eins + zwei, [f(6201, I=ort(222001))], doc)
    in_datei("walk: length over the next entry", eintrag(ohne_texte, laenge=len(eins) + len(zwei)) + zwei, [], doc)
    # Folder: the name is what counts, with and without a separator behind the folder.
    for name in ("N131241.txt", "N132241.qvm", "N121241.qvm", "N131240.qvm", "M131241.qvm", "N131241.qvm.bak", "N1312410.qvm"):
        fall(f"name {name}", "01S", [G1(), G2(111001)], FEHLT, katalog=ordner({name: gut}))
    mit_trenner = lambda: ordner({dateiname(): gut})() + "/"
    fall("separator behind the folder", "01S", [G1(), G2(111001)], [], katalog=mit_trenner)
    fall("a folder in the place of the file", "01S", [G1(), G2(111001)], FEHLT, katalog=ordner({}, [dateiname()]))


def pruefe_dauer(rumpf):
    """The run ends within five seconds."""
    (arbeitsort() / "e.E1S").write_bytes(datei("E1S", geordnet(G1(), G2(111001), G2(113001))))
    assert befehl(parameter("e.E1S", katalog=ordner({dateiname(): eintrag(rumpf)})), frist=5).startswith("<?xml")


kopfzeile()
test_head_and_magic_of_a_chapter_file = faelle()

kuerzel()
test_abbreviations = faelle()

wurzel()
test_root_element_and_its_attributes = faelle()

scanner()
test_limits_of_the_scanner = faelle()

zahlen()
test_numbers_and_their_widths = faelle()

endknoten()
test_room_for_end_nodes = faelle()

sammlung()
test_walk_over_a_collected_file_and_names_of_a_folder = faelle()
