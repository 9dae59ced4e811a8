"""The two lists of the special functions: `file=*1` the chapters of the catalogue, `file=*9` the table of codes."""
import re
from functools import partial

import pytest

from katalogbau import H, U, eintrag, kapitel, ordner, sammeldatei
from rahmen import NICHTS, anmelden, befehl, erwarte, faelle, maskiert, ort, parameter, unter_emulator
from texte import TEXTE

KOPF = '<?xml version="1.0" encoding="iso-8859-1"?>'
HAUPT = H(111, U(1))


def liste(name, katalog="leer", sprache="de-", mehr=()):
    return befehl(parameter(name, sprache, katalog=katalog, mehr=mehr))


def auch(name, ist, *soll):
    """A case of two runs that give the same."""
    erwarte(name, partial(liste, *ist), partial(liste, *soll))


def codes():
    """All codes of the table, in ascending order, in the language of the dialogue."""
    soll = "".join(f'<Error N="{n}" W="{w}" F="{f}" T="{maskiert(t)}"/>' for n, (w, f, t, *_) in sorted(TEXTE.items()))
    for sprache in ("de-", "de", "DE-"):
        erwarte(f"German, {sprache}", partial(liste, "*9", sprache=sprache),
                f"{KOPF}<ZEPHOLT><Errorlist>{soll}</Errorlist></ZEPHOLT>")
    for modus in "EI":
        auch(f"German, mode {modus}", ("*9", "leer", "de-", [f"mode={modus}"]), "*9")
    anmelden("in quotation marks", in_anfuehrungszeichen)
    # A catalogue is asked for, but not looked at.
    auch("damaged catalogue", ("*9", sammeldatei([b"rubbish"])), "*9")
    for nummer, sprache in enumerate(("fr", "it")):
        anmelden(f"frame {sprache}", partial(pruefe_codeliste, sprache))
        for n, (_, _, deutsch, *fremd) in sorted(TEXTE.items()):
            anmelden(f"{sprache} {n}", partial(pruefe_fremd, nummer, sprache, n, deutsch, fremd))


def in_anfuehrungszeichen():
    if unter_emulator():
        pytest.skip("the emulator puts a backslash in front of each mark")
    assert liste('"*9"') == liste("*9")


GELESEN = {}  # language -> code -> text, read once


def fremde_texte(sprache):
    if sprache not in GELESEN:
        zeilen = re.findall(r'<Error N="(\d+)" W="([AB]?)" F="([^"<]*)" T="([^"<]+)"/>', liste("*9", sprache=f"{sprache}-"))
        GELESEN[sprache] = {int(n): t for n, _, _, t in zeilen}
        assert [(int(n), w, f) for n, w, f, _ in zeilen] == [(n, w, f) for n, (w, f, *_) in sorted(TEXTE.items())]
    return GELESEN[sprache]


def pruefe_codeliste(sprache):
    fremd = liste("*9", sprache=f"{sprache}-")
    assert fremd.startswith(f"{KOPF}<ZEPHOLT><Errorlist><Error ") and fremd.endswith("/></Errorlist></ZEPHOLT>")
    assert "\n" not in fremd and "\u2019" not in fremd and "&#8217;" not in fremd
    assert "&apos;" in fremde_texte(sprache)[2002]


def pruefe_fremd(nummer, sprache, n, deutsch, fremd):
    """The text that is laid down, or one of its own with the catalogue's name of the language."""
    text = fremde_texte(sprache)[n]
    assert len(text) >= 4 and text != maskiert(deutsch)
    if fremd:
        assert text == maskiert(fremd[nummer])
    else:
        assert (("BRQ", "DXM")[nummer] in text, "VLT" in text) == ("VLT" in deutsch, False)


def W(n=241, v=2013, a=0, t="Titel", z=""):
    return f'<Worksection N="{n}" V="{v}" A="{a}" T="{t}"' + (f' Z="{z}"/>' if z else "/>")


def gerahmt(zeilen):
    return f"{KOPF}<ZEPHOLT><Worksections>{''.join(zeilen)}</Worksections></ZEPHOLT>"


def ein(name, inhalt, soll):
    """One chapter file, in a folder and in a collected file."""
    erwarte(f"*1 {name} (folder)", partial(liste, "*1", ordner({"N131241.qvm": inhalt})), gerahmt(soll))
    erwarte(f"*1 {name} (collected file)", partial(liste, "*1", sammeldatei([inhalt])), gerahmt(soll))


def kapitelliste():
    """The chapters of a language: what the start tag of each says."""
    ein("one", eintrag(kapitel(HAUPT)), [W()])
    ein("second text", eintrag(kapitel(HAUPT, a=7, t="Baumeister", z="Beton")), [W(a=7, t="Baumeister", z="Beton")])
    ein("no second text", eintrag(kapitel(HAUPT, z=None)), [W()])
    ein("no attributes but one", eintrag(f'<Kapitel X="1">{HAUPT}</Kapitel>'), [W("", "", "", "")])
    ein("self-closed child", eintrag('<Kapitel N="241" V="2013" A="3" T="x"><H N="1"/></Kapitel>'), [W(a=3, t="x")])
    ein("values are not numbers", eintrag(f'<Kapitel N="x" V=" 13" A="" T="t" Z=" ">{HAUPT}</Kapitel>'),
        [W("x", " 13", "", "t", " ")])
    # What the start tag says counts, not the name of the file or its head.
    ein("other numbers inside", eintrag(kapitel(HAUPT, n=777, v=1999, s=3)), [W(777, 1999)])
    # Escapes of the file are kept as text, and so are escaped once more.
    ein("escapes", eintrag(kapitel(HAUPT, t="A &amp; B &lt;")), [W(t="A &amp;amp; B &amp;lt;")])
    ein("characters", eintrag(kapitel(HAUPT, t="A & B's <x")), [W(t="A &amp; B&apos;s &lt;x")])
    ein("Latin letters", eintrag(kapitel(HAUPT, t="H\xf6he \xa0\xff")), [W(t="H\xf6he \xa0\xff")])
    ein("apostrophes of the code page", eintrag(kapitel(HAUPT, t="a\x91b\x92c")), [W(t="a&apos;b&apos;c")])
    ein("other codes from 128 to 159", eintrag(kapitel(HAUPT, t="a" + "".join(
        chr(c) for c in range(128, 160) if c not in (145, 146)) + "b")), [W(t="ab")])
    ein("127", eintrag(kapitel(HAUPT, t="a\x7fb")), [W(t="a\x7fb")])
    ein("empty title", eintrag(kapitel(HAUPT, t="")), [W(t="")])
    # Abbreviations in the start tag; the search for it runs over the text as it stands in the file.
    ein("abbreviated title", eintrag(kapitel(HAUPT, t="\x01-\x02"), kuerzel={1: b"Bau", 2: b"meister"}), [W(t="Bau-meister")])
    ein("code without an entry", eintrag(kapitel(HAUPT, t="a\x05\0b")), [W(t="ab")])
    ein("later entry", eintrag(kapitel(HAUPT, t="\x01"), vorn=b"\x01a\n\x01b\n "), [W(t="b")])
    ein("tab out of an abbreviation begins a column", eintrag(kapitel(HAUPT, t="a\x01b"), kuerzel={1: b"\t"}),
        [W(t="a", z="b")])
    ein("return out of an abbreviation", eintrag(kapitel(HAUPT, t="a\x01b", z="z"), kuerzel={1: b"\r"}), [W(t="ab", z="z")])
    ein("abbreviated name of the root", eintrag(kapitel(HAUPT).replace("<Kapitel", "<\x01"), kuerzel={1: b"Kapitel"}), [])
    ein("abbreviated end of the start tag", eintrag(kapitel().replace("><", "\x01<"), kuerzel={1: b">"}),
        [W("241", "2013", "", "")])
    # A table with a bad code gives an empty line: no line at all where it is the first.
    ein("bad code", eintrag(kapitel(HAUPT), vorn=b"!x\n "), [])
    ein("bad code 0", eintrag(kapitel(HAUPT), vorn=b"\0x\n "), [])
    ein("no line feed in the table", eintrag(kapitel(HAUPT), vorn=b"\x01x "), [])
    # Magic and numbers of the head are not looked at.
    ein("magic", eintrag(kapitel(HAUPT), magie="XXXX"), [W()])
    ein("size", eintrag(kapitel(HAUPT), groesse="x"), [W()])
    # The title must stand within the first 1000 characters of the file, `><` included.
    anfang = len(kapitel(t="").split("><")[0])
    for laenge, da in ((1000 - 31 - anfang - 2, 1), (1000 - 31 - anfang - 1, 0)):
        titel = "t" * laenge
        ein(f"title of {laenge}", eintrag(kapitel(HAUPT, t=titel)), [W(t=titel) if da else W(a="", t="")])
    # No start tag, no list.
    ein("empty body", eintrag(""), [])
    ein("other root", eintrag("<Buch >" + HAUPT), [])
    ein("start tag alone", eintrag('<Kapitel N="241" V="2013" A="1" T="x">'), [W(a="", t="")])
    ein("line end behind the start tag", eintrag('<Kapitel N="1" T="x">\r\n<H N="1"/>'), [W(a="", t="")])
    ein("line end behind the start tag, more behind", eintrag('<Kapitel N="1" T="x">\r\n<H N="1"/><H N="2"/></Kapitel>'),
        [W("1", "", "", "x")])
    ein("abbreviation with the name of the root", eintrag(kapitel(HAUPT).replace("<Kapitel ", "\x01"),
                                                         kuerzel={1: b"<Kapitel "}), [W()])


def viele():
    """Order, language, names."""
    k = lambda n, v, s=1, **mehr: eintrag(kapitel(HAUPT, n=n, v=v, s=s, t=f"{n}/{v}/{s}", **mehr), v, s, n)
    teile = [(241, 2013, 1), (112, 2013, 1), (241, 2013, 2), (241, 1998, 1), (300, 2000, 1), (112, 2013, 3), (113, 2088, 3)]
    namen = {f"N{v % 100:02}{s}{n}.qvm": k(n, v, s) for n, v, s in teile}
    for nummer, sprache in ((1, "de-"), (2, "fr-"), (3, "it-"), (1, "de"), (3, "IT")):
        hier = [(n, v, s) for n, v, s in teile if s == nummer]
        soll = lambda reihe: gerahmt(W(n, v, t=f"{n}/{v}/{s}") for n, v, s in reihe)
        erwarte(f"*1 folder {sprache}", partial(liste, "*1", ordner(namen), sprache),
                soll(sorted(hier, key=lambda e: f"{e[1] % 100:02}{e[2]}{e[0]}")))
        erwarte(f"*1 collected file {sprache}", partial(liste, "*1", sammeldatei([k(*t) for t in teile]), sprache), soll(hier))
    mit_trenner = partial(lambda lege: lege() + "/", ordner(namen))
    erwarte("*1 separator behind the folder", partial(liste, "*1", mit_trenner, "fr-"), gerahmt([W(t="241/2013/2")]))
    # No chapter of the language.
    erwarte("*1 empty folder", partial(liste, "*1", ordner({})), gerahmt([]))
    erwarte("*1 other language", partial(liste, "*1", ordner({"N132241.qvm": k(241, 2013, 2)})), gerahmt([]))
    erwarte("*1 empty collected file", partial(liste, "*1", sammeldatei([])), gerahmt([]))
    erwarte("*1 other language, collected file", partial(liste, "*1", sammeldatei([k(241, 2013, 2)])), gerahmt([]))
    # Names that are none of a chapter.
    for name in ("N13124.qvm", "N1312411.qvm", "M131241.qvm", "N131241.txt", "N131241.qvmx", "XN131241.qvm", "N131241", ".N131241.qvm"):
        erwarte(f"*1 name {name}", partial(liste, "*1", ordner({name: k(241, 2013), "N131300.qvm": k(300, 2013)})),
                gerahmt([W(300, t="300/2013/1")]))
    erwarte("*1 a folder with the name of a chapter", partial(
        liste, "*1", ordner({"N131300.qvm": k(300, 2013)}, ["N131299.qvm"])), gerahmt([W(300, t="300/2013/1")]))
    # A name whose columns are no numbers ends the list.
    for name in ("N131abc.qvm", "N1x1241.qvm", "N131 x1.qvm", "Nab1241.qvm"):
        erwarte(f"*1 columns {name}", partial(liste, "*1", ordner({name: k(241, 2013)})), gerahmt([]))
        erwarte(f"*1 columns {name}, another one there", partial(liste, "*1", ordner({name: k(241, 2013), "N131300.qvm": k(300, 2013)})),
                gerahmt([]))
    # Without a title the name tells chapter and year: below 89 it is 20xx.
    kurz = b"CF11" + b" " * 27 + b"<Kapitel "
    for zwei, jahr in (("00", 2000), ("88", 2088), ("89", 1989), ("99", 1999)):
        erwarte(f"*1 year {zwei}", partial(liste, "*1", ordner({f"N{zwei}1241.qvm": kurz})), gerahmt([W(v=jahr, a="", t="")]))
    erwarte("*1 chapter with zeros", partial(liste, "*1", ordner({"N131007.qvm": kurz})), gerahmt([W(n=7, a="", t="")]))
    # In a collected file the head tells them.
    erwarte("*1 year of the head", partial(liste, "*1", sammeldatei([eintrag("<Kapitel ", 1913, 1, 241)])),
            gerahmt([W(v=1913, a="", t="")]))
    # A bad table in the middle leaves an empty line, at the start none.
    schlecht = lambda n: eintrag(kapitel(HAUPT, n=n), nummer=n, vorn=b"!x\n ")
    a, b, c = k(111, 2013), k(112, 2013), k(113, 2013)
    A, B, C = W(111, t="111/2013/1"), W(112, t="112/2013/1"), W(113, t="113/2013/1")
    leer = W("", "", "", "")
    for name, dateien, soll in (("first", [schlecht(111), b, c], [B, C]), ("middle", [a, schlecht(112), c], [A, leer, C]),
                                ("last", [a, b, schlecht(113)], [A, B, leer]),
                                ("last two", [a, schlecht(112), schlecht(113)], [A, leer, leer]),
                                ("all", [schlecht(111), schlecht(112)], [])):
        namen = {f"N131{111 + i}.qvm": d for i, d in enumerate(dateien)}
        erwarte(f"*1 bad table {name} (folder)", partial(liste, "*1", ordner(namen)), gerahmt(soll))
        erwarte(f"*1 bad table {name} (collected file)", partial(liste, "*1", sammeldatei(dateien)), gerahmt(soll))
    # A file without a start tag empties the whole list.
    namen = {"N131111.qvm": a, "N131112.qvm": eintrag("", nummer=112), "N131113.qvm": c}
    erwarte("*1 no start tag in one of three", partial(liste, "*1", ordner(namen)), gerahmt([]))
    erwarte("*1 an empty file", partial(liste, "*1", ordner({"N131111.qvm": a, "N131112.qvm": b""})), gerahmt([]))
    # The walk over a collected file.
    for name, teile, soll in (
            ("length no number", [a, eintrag("", nummer=112, laenge="x"), c], []),
            ("length 0", [a, eintrag("", nummer=112, laenge=0), c], []),
            ("length 29", [a, eintrag("", nummer=112, laenge=29), c], []),
            ("length negative", [a, eintrag("", nummer=112, laenge="-00000100"), c], []),
            ("length of another language no number", [a, eintrag("", sprache=2, laenge="x")], []),
            ("year no number", [a, eintrag(kapitel(HAUPT), jahr="x")], []),
            ("chapter no number", [a, eintrag(kapitel(HAUPT), nummer="x")], []),
            ("year of another language no number", [a, eintrag(kapitel(HAUPT), jahr="x", sprache=2), c], [A, C]),
            ("text of another language", [a, eintrag("", sprache=2), c], [A, C]),
            ("rubbish behind", [a, b"rubbish"], []), ("one byte behind", [a, b"x"], [A]), ("two bytes behind", [a, b"xy"], []),
            ("length beyond the end", [a, eintrag(kapitel(HAUPT, n=112, t="112/2013/1"), nummer=112, laenge=99999)], [A, B])):
        erwarte(f"*1 walk: {name}", partial(liste, "*1", sammeldatei(teile)), gerahmt(soll))
    # What is read of an entry may reach into the next one.
    nackt = eintrag('<Kapitel N="111" V="2013" A="1" T="x">', nummer=111)
    erwarte("*1 start tag alone, next entry behind", partial(liste, "*1", sammeldatei([nackt, b])), gerahmt([W(111, a=1, t="x"), B]))


def aufruf():
    """Other names do nothing; parameter errors leave no file."""
    for name in ("*", "*2", "*0", "*11", "*91", "*01", "*1 ", "* 1", "*9x", "**", "*A", "*e.01S"):
        erwarte(f"name {name!r}", partial(liste, name), NICHTS)
    gut = {"file": "*9", "dialog": "de-", "errorfile": "p.xml", "catalog": "leer"}
    for name, aenderung in (("no catalogue", {"catalog": None}), ("empty catalogue", {"catalog": ""}),
                            ("catalogue not there", {"catalog": "nirgends"}),
                            ("mode e", {"mode": "e"}), ("mode X", {"mode": "X"}), ("folder of the file not there", {
                                "errorfile": "nirgends/p.xml"}), ("no file", {"errorfile": ""}),
                            ("errorfile is a folder", {"errorfile": "leer"})):
        for funktion in ("*1", "*9", "*2"):
            werte = {**gut, "file": funktion, **aenderung}
            erwarte(f"{funktion} {name}", partial(befehl, [f"{k}={w}" for k, w in werte.items() if w is not None]), NICHTS)
    # What is wrong before the dialogue is looked at: the message, and no file. A program of windows shows it in a box. A
    # call that asks for silence anywhere is silent here too.
    for name, mehr in (("unknown key", "datei=x"), ("no equals sign", "x"), ("unknown language", "dialog=xx-")):
        erwarte(f"{name}, silent", partial(befehl, [*(f"{k}={w}" for k, w in gut.items()), mehr]), NICHTS)
        laut = {**gut, "dialog": "de"}
        anmelden(f"{name}, with dialog", partial(pruefe_meldung, [*(f"{k}={w}" for k, w in laut.items()), mehr]))
    for funktion in ("*1", "*9"):
        anmelden(f"{funktion} file exists", partial(pruefe_alte_datei, funktion))
    # Keys in any case, the last value counts.
    erwarte("keys", partial(befehl, ["FILE=*2", "Dialog=FR-", "ErrorFile=p.xml", "CATALOG=leer", "file=*1"]), gerahmt([]))


def pruefe_meldung(argumente):
    ende = befehl(argumente)
    assert unter_emulator() or ende.startswith('status 0: b\'file="*9"')
    assert not (ort() / "p.xml").exists()


def pruefe_alte_datei(funktion):
    alt = ort() / "alt.xml"
    alt.write_bytes(b"old")
    try:
        assert befehl(parameter(funktion, ausgabe="alt.xml")) == NICHTS
        assert alt.read_bytes() == b"old"
    finally:
        alt.unlink()


codes()
test_list_of_codes = faelle()

kapitelliste()
test_list_of_chapters_what_a_start_tag_says = faelle()

viele()
test_list_of_chapters_order_language_and_names = faelle()

aufruf()
test_other_names_and_parameter_errors_write_nothing = faelle()
