#!/usr/bin/env python3
"""Writes the folders of the whole-run cases: input, command line, expected protocol.

Each case states its lines (fields at columns) and its findings as worked out by hand from the rules; this script only
puts fields at columns and findings into elements. Run it after changing a case: tests/faelle/bauen.py
"""
import pathlib
import shutil
from xml.sax.saxutils import escape

ORT = pathlib.Path(__file__).parent

TEXTE = {
    2001: ("A", "Die Austauschdatei kann nicht eingelesen werden"),
    2002: ("A", "Die Schnittstellenversion ist nicht '451-92'"),
    2003: ("A", "Unbekannter Sprachcode (1='de', 2='fr', 3='it')"),
    2004: ("A", "Die Schnittstellenversion ist nicht 'QVMX17'"),
    2005: ("A", "Die Schnittstellen-Revision bei E1S-Datei muss 21 sein"),
    2006: ("A", "Die Austauschdatei ist veraltet oder ungültig"),
    2007: ("A", "Die Austauschdatei hat eine fehlerhafte UTF-8-Kodierung"),
    2008: ("A", "Die Austauschdatei hat ungültige Unicode-Zeichen"),
    2011: ("A", "Die erste Zeile ist nicht der Kopfrecord A"),
    2012: ("A", "Die letzte Zeile ist nicht der Schlussrecord Z"),
    2013: ("A", "Es ist mehr als eine Teildatei vorhanden"),
    2014: ("A", "Die Datenträgernummer ist nicht 1"),
    2015: ("A", "Die Anzahl der Records stimmt nicht mit der Angabe im Schlussrecord überein"),
    2021: ("A", "Es sind doppelte Schlüssel im Universalschlüssel vorhanden"),
    2022: ("A", "Die Reihenfolge der Zeilen stimmt nicht"),
    2031: ("A", "Unzulässige Zeichen in den Datenfeldern"),
    2032: ("B", "Unzulässige Daten ausserhalb der definierten Felder"),
    2041: ("A", "Undefinierter Recordtyp in der Datei (z.B. D0, G9 oder Leerzeile)"),
    3001: ("A", "Ungültiger Feldtyp"),
    3002: ("A", "Zwingender Eintrag fehlt"),
    3003: ("B", "Erwarteter Eintrag fehlt"),
    3101: ("A", "Unbekannter Dokumenten-Code (A, B, C, D, E, F, G, H, K, L)"),
    3106: ("A", "Unbekannter Dokumenten-Code (A, B, C, D, I)"),
    3201: ("A", "Ungültige Gliederungsnummer"),
    3202: ("B", "Angabe Standard-Gliederung nur bei KAG (Kostenartengliederung) und EKG (Elementkostengliederung)"),
    3205: ("A", "Angabe Reihenfolge der Sekundärgliederungen nicht eindeutig"),
    3208: ("A", "Angabe Reihenfolge veraltet (neu gilt Reihenfolge in Austauschdatei)"),
    3219: ("A", "Reihenfolge der OGL (Objektgliederung) nicht eindeutig"),
    4201: ("A", "Kapitel nicht vorhanden"),
    4601: ("A", "Kapitel nicht vorhanden"),
    4602: ("A", "Position nicht vorhanden"),
    5201: ("A", "C0-Record nicht vorhanden"),
    6101: ("A", "Kapitel/Kapitelversion im VLT nicht vorhanden oder nicht installiert"),
}
FELDER = {3101: "A:13", 3106: "A:13", 3201: "B0:2a", 3202: "B0:10", 3205: "B0", 3219: "B2:3", 4201: "G2:2a",
          4601: "G6:2a", 4602: "G6:3", 5201: "C1:2a"}


def satz(art, felder=None, laenge=0):
    """A record: fields {column from 1: text}; the second character of `art` goes to column 42."""
    zeichen = {0: art[0]}
    if len(art) > 1:
        zeichen[41] = art[1]
    for spalte, text in (felder or {}).items():
        for i, z in enumerate(text):
            zeichen[spalte - 1 + i] = z
    ende = max(max(zeichen) + 1, laenge)
    return "".join(zeichen.get(i, " ") for i in range(ende))


KOPF = {2: "211126", 30: "Bauherr", 42: "1", 44: "A", 45: "A", 63: "000000000001", 82: "P-1", 93: "Schulhaus Süd",
        123: "D-1", 138: "Baumeister", 168: "Muster AG", 188: "Bern", 208: "Ausmass"}
ART = {"01S": {8: "451-92", 14: "11"}, "E1S": {8: "QVMX17", 14: "21"}}


def a(kind, **aenderung):
    felder = {**KOPF, **ART[kind], **{int(k[1:]): v for k, v in aenderung.items()}}
    return satz("A", felder)


def z(anzahl, **aenderung):
    felder = {2: "211126", 18: "Ersteller", 46: f"{anzahl:013}", 62: "-", 63: "000000000001", 138: "Baumeister",
              168: "Muster AG", 188: "Bern", **{int(k[1:]): v for k, v in aenderung.items()}}
    return satz("Z", felder)


def datei(kind, mitte=(), kopf=None, schluss=None):
    zeilen = [kopf or a(kind), *mitte]
    zeilen.append(schluss or z(len(zeilen) + 1))
    return "".join(zeile + "\r\n" for zeile in zeilen).encode("cp850" if kind == "01S" else "utf-8")


def fund(code, L=None, I=None, F=None):
    schwere, text = TEXTE[code]
    attribute = [("L", L), ("I", I), ("N", code), ("E", schwere), ("F", F or FELDER.get(code)), ("T", text)]
    esc = {"'": "&apos;", '"': "&quot;"}
    return "<Error " + " ".join(f'{n}="{escape(str(w), esc)}"' for n, w in attribute if w is not None) + "/>"


KLAR = ("P-1", "Schulhaus Süd", "D-1", "Baumeister", "Muster AG", "Ausmass")  # trimmed
# As cut from the line, which ends behind the software name.
ROH = tuple(w.ljust(n) for w, n in zip(KLAR, (11, 30, 15, 30, 20, 0)))
LEER = ("", "?", "", "?", "", "?")


def protokoll(kind, version, funde, kopf=KLAR, modus=None, zaehler=None, warnungen=None):
    """`zaehler` is the content of Errors, `warnungen` that of Warnings (None: no such element)."""
    pn, pt, dn, dt, hersteller, software = (escape(w) for w in kopf)
    zaehler = len(funde) if zaehler is None else zaehler
    test = (f'<Project ID="{pn}">{pt}</Project><Document ID="{dn}">{dt}</Document><Date>-</Date><Time>-</Time>'
            + (f"<Mode>{modus}</Mode>" if modus else "") + f"<Errors>{zaehler}</Errors>"
            + (f"<Warnings>{warnungen}</Warnings>" if warnungen is not None else "")
            + f'<Software Manufacturer="{hersteller}">{software}</Software>'
            f'<Fileformat Version="{version}">{kind.lower()}</Fileformat><Testprogram Version="4.0">ZEPHOLT</Testprogram>')
    fehler = f"<Errors>{''.join(funde)}</Errors>" if funde else ""
    return f'<?xml version="1.0" encoding="iso-8859-1"?><SIA451><Test>{test}</Test>{fehler}</SIA451>'


def fall(name, kind, inhalt, erwartet, *mehr, dateiname=None, dialog="de-", meldung=None):
    ordner = ORT / name
    shutil.rmtree(ordner, ignore_errors=True)
    ordner.mkdir()
    dateiname = dateiname or f"eingabe.{kind}"
    (ordner / dateiname).write_bytes(inhalt)
    befehl = [f"file={dateiname}", f"dialog={dialog}", "errorfile=p.xml", "catalog=.", *mehr]
    (ordner / "befehl").write_text("".join(zeile + "\n" for zeile in befehl))
    if erwartet is not None:
        (ordner / "erwartet.xml").write_bytes(erwartet.encode("latin-1"))
    if meldung is not None:
        (ordner / "erwartet.txt").write_text(meldung, encoding="utf-8")


def refused(name, kind, inhalt, code, L=1, version=".00", kopf=LEER, I=None, dateiname=None):
    """A file that a file-level test refuses: one finding, and the Warnings element as long as the revision is low."""
    neu = version.endswith(".21")
    fall(name, kind, inhalt,
         protokoll(kind, version, [fund(code, L=L, I=I)], kopf, warnungen=None if neu else 0), dateiname=dateiname)


# --- Clean files
fall("sauber_01s", "01S", datei("01S"), protokoll("01S", "451-92.11", [], warnungen=0))
fall("sauber_e1s", "E1S", datei("E1S"), protokoll("E1S", "QVMX17.21", []))
fall("sauber_e1s_mit_marke", "E1S", b"\xef\xbb\xbf" + datei("E1S"), protokoll("E1S", "QVMX17.21", []))
fall("sauber_e1s_klein_geschrieben", "E1S", datei("E1S"), protokoll("E1S", "QVMX17.21", []), dateiname="a.e1s")
fall("sauber_ohne_endung", "01S", datei("01S"), protokoll("01S", "451-92.11", [], warnungen=0), dateiname="auftrag")
fall("sauber_name_mit_leerzeichen_und_umlaut", "01S", datei("01S"),
     protokoll("01S", "451-92.11", [], warnungen=0), dateiname="Los 1 Süd.01S")
(ORT / "sauber_name_mit_leerzeichen_und_umlaut" / "nur_linux").write_text(
    "The emulator that runs the Windows program puts quotation marks around a whole argument with a blank.\n")
fall("sauber_modus_e", "01S", datei("01S"), protokoll("01S", "451-92.11", [], modus="E", warnungen=0), "mode=E")
fall("sauber_modus_i", "01S", datei("01S"), protokoll("01S", "451-92.11", [], modus="I"), "mode=I")

# --- 2001: bytes
for name, inhalt in {
    "2001_leer": b"",
    "2001_lf_am_anfang": b"\n" + datei("01S"),
    "2001_cr_am_ende": datei("01S") + b"\r",
    "2001_nur_lf": datei("01S").replace(b"\r\n", b"\n"),
    "2001_cr_allein": datei("01S").replace(b"Ersteller", b"Erst\rller"),
    "2001_ohne_letztes_zeilenende": datei("01S")[:-2],
}.items():
    refused(name, "01S", inhalt, 2001)
refused("2001_e1s", "E1S", datei("E1S")[:-1], 2001)

# --- 2002 to 2006: the header
refused("2002_falsche_kennung", "01S", datei("01S", kopf=a("01S", _8="451-93")), 2002)
refused("2002_kennung_der_e1s", "01S", datei("E1S"), 2002, dateiname="a.01S")
refused("2002_marke", "01S", b"\xef\xbb\xbf" + datei("01S"), 2002)
refused("2004_falsche_kennung", "E1S", datei("E1S", kopf=a("E1S", _8="451-92")), 2004)
refused("2004_klein", "E1S", datei("E1S", kopf=a("E1S", _8="qvmx17")), 2004)
refused("2005_revision_11", "E1S", datei("E1S", kopf=a("E1S", _14="11")), 2005, version="QVMX17.11")
refused("2005_revision_22", "E1S", datei("E1S", kopf=a("E1S", _14="22")), 2005, version="QVMX17.22")
(ORT / "2005_revision_22" / "erwartet.xml").write_bytes(
    protokoll("E1S", "QVMX17.22", [fund(2005, L=1)], LEER).encode("latin-1"))  # 22 is the new interface: no Warnings
refused("2006_e1s_revision_05", "E1S", datei("E1S", kopf=a("E1S", _14="05")), 2006, version="QVMX17.00")
refused("2006_revision_21", "01S", datei("01S", kopf=a("01S", _14="21")), 2006, version="451-92.21")
refused("2006_revision_12", "01S", datei("01S", kopf=a("01S", _14="12")), 2006, version="451-92.12")
(ORT / "2006_revision_12" / "erwartet.xml").write_bytes(
    protokoll("01S", "451-92.12", [fund(2006, L=1)], LEER).encode("latin-1"))
refused("2006_revision_09", "01S", datei("01S", kopf=a("01S", _14="09")), 2006, version="451-92.00")
refused("2006_revision_leer", "01S", datei("01S", kopf=a("01S", _14="  ")), 2006, version="451-92.00")
refused("2006_revision_eins", "01S", datei("01S", kopf=a("01S", _14=" 1")), 2006, version="451-92.00")
refused("2003_sprache_0", "01S", datei("01S", kopf=a("01S", _42="0")), 2003, version="451-92.11", kopf=ROH)
refused("2003_sprache_leer", "01S", datei("01S", kopf=a("01S", _42=" ")), 2003, version="451-92.11", kopf=ROH)
refused("2003_e1s", "E1S", datei("E1S", kopf=a("E1S", _42="4")), 2003, version="QVMX17.21", kopf=ROH)

# --- 2007, 2008: UTF-8
refused("2007_cp850_als_e1s", "E1S", datei("01S"), 2007, L=None)
refused("2007_ueberlang", "E1S", datei("E1S").replace("ü".encode(), b"\xc0\x80"), 2007, L=None)
refused("2008_zweite_zeile", "E1S",
        datei("E1S", schluss=z(2, _93="\U0001F600")), 2008, L=2)

# --- 2011 to 2015: the frame
refused("2011_erste_zeile", "01S", datei("01S", kopf="B" + a("01S")[1:]), 2011, version="451-92.11", kopf=ROH)
refused("2012_letzte_zeile", "01S", datei("01S", schluss="Y" + z(2)[1:]), 2012, version="451-92.11", kopf=ROH)
refused("2012_nur_record_a", "E1S", (a("E1S") + "\r\n").encode(), 2012, version="QVMX17.21", kopf=ROH)
refused("2013_weitere_teildatei", "01S", datei("01S", schluss=z(2, _62="+")), 2013, version="451-92.11", kopf=ROH)
refused("2014_in_a", "01S", datei("01S", kopf=a("01S", _63="000000000002")), 2014, version="451-92.11", kopf=ROH)
refused("2014_in_z", "E1S", datei("E1S", schluss=z(2, _63="000000000000")), 2014, version="QVMX17.21", kopf=ROH)
fall("2014_rechtsbuendig", "01S", datei("01S", kopf=a("01S", _63="           1"), schluss=z(2, _63="1           ")),
     protokoll("01S", "451-92.11", [], warnungen=0))
refused("2015_anzahl", "01S", datei("01S", schluss=z(3)), 2015, version="451-92.11", kopf=ROH)
refused("2015_anzahl_leer", "01S", datei("01S", schluss=z(2, _46=" " * 13)), 2015, version="451-92.11", kopf=ROH)

# --- 2021, 2022: keys
e = satz("E1", {8: "beliebig"})
g1 = satz("G1", {2: "111", 6: "20", 93: "Kanalisation"})
g1b = satz("G1", {2: "111", 6: "20", 93: "Anderer Titel"})
refused("2021_doppelt", "01S", datei("01S", [g1, g1b]), 2021, L=3, I="111.000.000", version="451-92.11", kopf=ROH)
refused("2021_gross_und_klein", "E1S",
        datei("E1S", [satz("B3", {2: "003", 87: "e0", 93: "x"}), satz("B3", {2: "003", 87: "E0", 93: "y"})]),
        2021, L=3, version="QVMX17.21", kopf=ROH)
refused("2022_reihenfolge", "01S", datei("01S", [satz("G1", {2: "112", 6: "20"}), g1]), 2022, L=3,
        I="112.000.000", version="451-92.11", kopf=ROH)  # the lines are sorted: 112 stands at the third place now
refused("2022_klein_geschrieben", "01S", datei("01S", ["g" + g1[1:]]), 2022, L=3, version="451-92.11", kopf=ROH)
refused("2022_d_hinter_g", "01S", datei("01S", [g1, satz("D0", {2: "1"})]), 2022, L=3, I="111.000.000",
        version="451-92.11", kopf=ROH)

# --- 2031, 2032, 2041: the run goes on
fall("2031_2032_zeichen", "01S",
     datei("01S", [satz("B0", {2: "002", 5: "x", 36: "", 63: "Objekt\t"})]),
     protokoll("01S", "451-92.11", [fund(2031, L=2, F="B0:19"), fund(2032, L=2, F="5")], zaehler=1, warnungen=1))
fall("2031_e1s_steuerzeichen", "E1S",
     datei("E1S", [satz("B0", {2: "002", 63: "Objekt\t\u4e2d\u0085"})]),
     protokoll("E1S", "QVMX17.21", [fund(2031, L=2, F="B0:19"), fund(2031, L=2, F="B0:19")]))
fall("2032_zeile_zu_lang", "01S", datei("01S", schluss=z(2).ljust(256) + "x"),
     protokoll("01S", "451-92.11", [fund(2032, L=2, F="257")], zaehler=0, warnungen=1))
fall("2041_undefiniert", "01S", datei("01S", [satz("B9", {2: "xyz"}), satz("G7", {2: "111"})]),
     protokoll("01S", "451-92.11", [fund(2041)], warnungen=0))
fall("sauber_gleiche_e_zeilen", "E1S", datei("E1S", [e, e]),
     protokoll("E1S", "QVMX17.21", []))

# --- Records A and Z
fall("3002_kopf", "E1S", datei("E1S", kopf=a("E1S", _82="   ", _93=" " * 13, _44="E")),
     protokoll("E1S", "QVMX17.21",
               [fund(3002, L=1, F="A:21-22"), fund(3003, L=1, F="A:23"), fund(3106, L=1)],
               kopf=("", "?", "D-1", "Baumeister", "Muster AG", "Ausmass")))
fall("3003_modus_i", "E1S", datei("E1S", kopf=a("E1S", _93=" " * 13, _82="   ")),
     protokoll("E1S", "QVMX17.21", [fund(3002, L=1, F="A:21-22")], modus="I",
               kopf=("", "?", "D-1", "Baumeister", "Muster AG", "Ausmass")), "mode=I")
fall("3003_modus_i_nur_warnung", "E1S", datei("E1S", kopf=a("E1S", _93=" " * 13)),
     protokoll("E1S", "QVMX17.21", [], modus="I", kopf=("P-1", "?", "D-1", "Baumeister", "Muster AG", "Ausmass")),
     "mode=I")

# --- Parameters: no protocol
fall("1003_still", "01S", datei("01S"), None, "file=fehlt.01S")
fall("1005_still", "01S", datei("01S"), None, "errorfile=eingabe.01S")
fall("1006_still", "01S", datei("01S"), None, "catalog=fehlt")
fall("1007_still", "01S", datei("01S"), None, "mode=e")
