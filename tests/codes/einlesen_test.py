"""The road from the command line to the first record: what a file must be for its records to be tested, each case with
the whole protocol byte for byte (date and time apart), and parameter errors, which leave no protocol.

A refused file has one finding. Its header is empty where line 1 was not read, and stands as cut from the line otherwise.
"""
from functools import partial

import pytest

from befunde import element, f
from rahmen import (BEIDE, NICHTS, anmelden, befehl, datei as datei_aus, erwarte, faelle, maskiert, ohne_uhr, ort,
                    parameter, satz, unter_emulator)
from texte import TEXTE

SUED = {93: "Schulhaus S\u00fcd"}
FASSUNG = {"01S": "451-92.11", "E1S": "QVMX17.21"}
KLAR = ("P-1", SUED[93], "D-1", "Baumeister", "Muster AG", "Ausmass")  # trimmed
# As cut from the line, which ends behind the software name.
ROH = tuple(w.ljust(n) for w, n in zip(KLAR, (11, 30, 15, 30, 20, 0)))
LEER = ("", "?", "", "?", "", "?")


def datei(art, saetze=(), kopf=None, schluss=None):
    return datei_aus(art, saetze, {**SUED, **(kopf or {})}, schluss)


def protokoll(art, fassung, funde, zahlen, kopf=KLAR, modus=None):
    """`zahlen` are the counts of Errors and of Warnings; without the second there is no such element."""
    pn, pt, dn, dt, hersteller, software = (maskiert(w) for w in kopf)
    anzahlen = "".join(f"<{n}>{z}</{n}>" for n, z in zip(("Errors", "Warnings"), zahlen))
    test = (f'<Project ID="{pn}">{pt}</Project><Document ID="{dn}">{dt}</Document><Date>-</Date><Time>-</Time>'
            + (f"<Mode>{modus}</Mode>" if modus else "") + anzahlen
            + f'<Software Manufacturer="{hersteller}">{software}</Software>'
            f'<Fileformat Version="{fassung}">{art.lower()}</Fileformat><Testprogram Version="4.0">ZEPHOLT</Testprogram>')
    fehler = f"<Errors>{''.join(funde)}</Errors>" if funde else ""
    return f'<?xml version="1.0" encoding="iso-8859-1"?><SIA451><Test>{test}</Test>{fehler}</SIA451>'


def pruefe(name, inhalt, mehr, soll):
    (ort() / name).write_bytes(inhalt)
    assert ohne_uhr(befehl(parameter(name, mehr=mehr))) == soll


def ganz(name, art, inhalt, funde, zahlen, *mehr, kopf=KLAR, fassung=None, dateiname=None):
    """A file whose records are tested; `funde` stand in the order of the protocol."""
    modus = mehr[0][-1] if mehr else None
    soll = protokoll(art, fassung or FASSUNG[art], [element(b) for b in funde], zahlen, kopf, modus)
    anmelden(f"{name} [{art}]", partial(pruefe, dateiname or f"e.{art}", inhalt, mehr, soll))


def verweigert(name, art, inhalt, befund, fassung=".00", kopf=LEER, neu=None, **mehr):
    """A file that is not tested: one finding, and the Warnings element as long as the revision is low."""
    neu = fassung.endswith((".12", ".21", ".22")) if neu is None else neu
    ganz(name, art, inhalt, [befund], (1,) if neu else (1, 0), kopf=kopf, fassung=fassung, **mehr)


def gelesen(name, art, inhalt, befund):
    """A file whose header was read before it was refused."""
    verweigert(name, art, inhalt, befund, FASSUNG[art], ROH)


# --- clean files ------------------------------------------------------------------------------------------------------
ganz("clean", "01S", datei("01S"), [], (0, 0))
ganz("clean", "E1S", datei("E1S"), [], (0,))
ganz("mark of UTF-8", "E1S", b"\xef\xbb\xbf" + datei("E1S"), [], (0,))
ganz("extension in small letters", "E1S", datei("E1S"), [], (0,), dateiname="a.e1s")
ganz("no extension", "01S", datei("01S"), [], (0, 0), dateiname="auftrag")
ganz("mode E", "01S", datei("01S"), [], (0, 0), "mode=E")
ganz("mode I", "01S", datei("01S"), [], (0,), "mode=I")
ganz("two equal E lines", "E1S", datei("E1S", [satz("E1", {8: "beliebig"})] * 2), [], (0,))


def name_mit_leerzeichen():
    if unter_emulator():
        pytest.skip("the emulator puts quotation marks around a whole argument with a blank")
    pruefe("Los 1 S\u00fcd.01S", datei("01S"), (), protokoll("01S", FASSUNG["01S"], [], (0, 0)))


anmelden("name with blanks and an umlaut", name_mit_leerzeichen)

test_clean_files_of_any_name = faelle()


# --- bytes ------------------------------------------------------------------------------------------------------------
for name, inhalt in {
        "empty": b"",
        "LF in front": b"\n" + datei("01S"),
        "CR behind": datei("01S") + b"\r",
        "LF alone": datei("01S").replace(b"\r\n", b"\n"),
        "CR alone": datei("01S").replace(b"Ersteller", b"Erst\rller"),
        "no last line end": datei("01S")[:-2]}.items():
    verweigert(f"2001 {name}", "01S", inhalt, f(2001, 1))
verweigert("2001", "E1S", datei("E1S")[:-1], f(2001, 1))
verweigert("2007 bytes of the code page", "E1S", datei("01S"), f(2007))
verweigert("2007 overlong", "E1S", datei("E1S").replace("\u00fc".encode(), b"\xc0\x80"), f(2007))
verweigert("2008 second line", "E1S", datei("E1S", schluss={93: "\U0001F600"}), f(2008, 2))

test_line_ends_and_encoding = faelle()


# --- the header -------------------------------------------------------------------------------------------------------
verweigert("2002 other id", "01S", datei("01S", kopf={8: "451-93"}), f(2002, 1))
verweigert("2002 id of the other kind", "01S", datei("E1S"), f(2002, 1))
verweigert("2002 mark of UTF-8", "01S", b"\xef\xbb\xbf" + datei("01S"), f(2002, 1))
verweigert("2004 other id", "E1S", datei("E1S", kopf={8: "451-92"}), f(2004, 1))
verweigert("2004 small letters", "E1S", datei("E1S", kopf={8: "qvmx17"}), f(2004, 1))
verweigert("2005 revision 11", "E1S", datei("E1S", kopf={14: "11"}), f(2005, 1), "QVMX17.11")
verweigert("2005 revision 22", "E1S", datei("E1S", kopf={14: "22"}), f(2005, 1), "QVMX17.22")
verweigert("2006 revision 05", "E1S", datei("E1S", kopf={14: "05"}), f(2006, 1), "QVMX17.00")
for revision in ("21", "12"):
    verweigert(f"2006 revision {revision}", "01S", datei("01S", kopf={14: revision}), f(2006, 1), f"451-92.{revision}")
for revision in ("09", "  ", " 1"):
    verweigert(f"2006 revision {revision!r}", "01S", datei("01S", kopf={14: revision}), f(2006, 1), "451-92.00")
for art, sprache in (("01S", "0"), ("01S", " "), ("E1S", "4")):
    gelesen(f"2003 language {sprache!r}", art, datei(art, kopf={42: sprache}), f(2003, 1))

test_header_of_the_file = faelle()


# --- the frame --------------------------------------------------------------------------------------------------------
gelesen("2011 first line", "01S", datei("01S", kopf={1: "B"}), f(2011, 1))
gelesen("2012 last line", "01S", datei("01S", schluss={1: "Y"}), f(2012, 1))
gelesen("2012 record A alone", "E1S", datei("E1S").split(b"\r\n")[0] + b"\r\n", f(2012, 1))
gelesen("2013 another part file", "01S", datei("01S", schluss={62: "+"}), f(2013, 1))
gelesen("2014 in A", "01S", datei("01S", kopf={63: "000000000002"}), f(2014, 1))
gelesen("2014 in Z", "E1S", datei("E1S", schluss={63: "000000000000"}), f(2014, 1))
ganz("no 2014 behind or in front of blanks", "01S",
     datei("01S", kopf={63: "           1"}, schluss={63: "1           "}), [], (0, 0))
gelesen("2015 count", "01S", datei("01S", schluss={46: f"{3:013}"}), f(2015, 1))
gelesen("2015 count blank", "01S", datei("01S", schluss={46: " " * 13}), f(2015, 1))

test_frame_of_the_file = faelle()


# --- keys and order ---------------------------------------------------------------------------------------------------
G1 = satz("G1", {2: "111", 6: "20", 93: "Kanalisation"})
gelesen("2021 doubled", "01S", datei("01S", [G1, satz("G1", {2: "111", 6: "20", 93: "Anderer Titel"})]),
        f(2021, 3, I="111.000.000"))
gelesen("2021 but for the case", "E1S",
        datei("E1S", [satz("B3", {2: "003", 87: "e0", 93: "x"}), satz("B3", {2: "003", 87: "E0", 93: "y"})]), f(2021, 3))
# The lines are sorted by then: 112 stands at the third place.
gelesen("2022 chapters", "01S", datei("01S", [satz("G1", {2: "112", 6: "20"}), G1]), f(2022, 3, I="112.000.000"))
gelesen("2022 small letter", "01S", datei("01S", ["g" + G1[1:]]), f(2022, 3))
gelesen("2022 D behind G", "01S", datei("01S", [G1, satz("D0", {2: "1"})]), f(2022, 3, I="111.000.000"))

test_keys_and_order_of_the_lines = faelle()


# --- characters and header fields: the run goes on --------------------------------------------------------------------
OHNE_NUMMER = ("", "?", "D-1", "Baumeister", "Muster AG", "Ausmass")
ganz("2031 and 2032", "01S", datei("01S", [satz("B0", {2: "002", 5: "x", 63: "Objekt\t"})]),
     [f(2031, 2, "B0:19"), f(2032, 2, "5")], (1, 1))
ganz("2031 twice in one field", "E1S", datei("E1S", [satz("B0", {2: "002", 63: "Objekt\t\u4e2d\u0085"})]),
     [f(2031, 2, "B0:19")] * 2, (2,))
ganz("2032 behind column 256", "01S", datei("01S", schluss={257: "x"}), [f(2032, 2, "257")], (0, 1))
ganz("2041", "01S", datei("01S", [satz("B9", {2: "xyz"}), satz("G7", {2: "111"})]), [f(2041)], (1, 0))
ganz("header fields blank", "E1S", datei("E1S", kopf={82: "   ", 93: " " * 13, 44: "E"}),
     [f(3002, 1, "A:21-22"), f(3003, 1, "A:23"), f(3106, 1)], (3,), kopf=OHNE_NUMMER)
ganz("mode I leaves the warning out", "E1S", datei("E1S", kopf={82: "   ", 93: " " * 13}), [f(3002, 1, "A:21-22")], (1,),
     "mode=I", kopf=OHNE_NUMMER)
ganz("mode I, a warning only", "E1S", datei("E1S", kopf={93: " " * 13}), [], (0,), "mode=I", kopf=("P-1", *OHNE_NUMMER[1:]))

test_findings_of_characters_and_header = faelle()


# --- parameter errors -------------------------------------------------------------------------------------------------
FALSCH = {1003: "file=fehlt.01S", 1005: "errorfile=fehlt/p.xml", 1006: "catalog=fehlt", 1007: "mode=e"}


def mit_parametern(sprache, *mehr):
    (ort() / "e.01S").write_bytes(datei("01S"))
    return befehl(parameter("e.01S", sprache, mehr=mehr))


def pruefe_meldung(code, argument, sprache, nummer):
    """With a window the same error is told, in the language of the dialogue alone."""
    if unter_emulator():
        pytest.skip("a program of windows shows a box")
    ende = mit_parametern(sprache, argument)
    assert ende.startswith("status 0: b'file=") and not (ort() / "p.xml").exists()
    if nummer < len(TEXTE[code]):
        assert ascii(TEXTE[code][nummer].encode())[2:-1] in ende


def pruefe_alt(sprache):
    """An error file that is there already stays what it is."""
    alt = ort() / "alt.xml"
    alt.write_bytes(b"old")
    try:
        assert mit_parametern(sprache, "errorfile=alt.xml") == NICHTS
        assert alt.read_bytes() == b"old"
    finally:
        alt.unlink()


for nummer, sprache in enumerate(("de", "fr", "it"), 2):
    for stumm in (f"{sprache}-", f"{sprache}-".upper()):
        for code, argument in FALSCH.items():
            erwarte(f"{code} {stumm}", partial(mit_parametern, stumm, argument), NICHTS)
        anmelden(f"1005 {stumm}, there already", partial(pruefe_alt, stumm))
        erwarte(f"twin {stumm}: nothing wrong", lambda stumm=stumm: ohne_uhr(mit_parametern(stumm)),
                protokoll("01S", FASSUNG["01S"], [], (0, 0)))
    for code, argument in FALSCH.items():
        anmelden(f"twin {sprache}: {code} with a window", partial(pruefe_meldung, code, argument, sprache, nummer))

test_a_silent_run_shows_and_writes_nothing_on_a_parameter_error = faelle()
