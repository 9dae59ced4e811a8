#!/usr/bin/env python3
"""zepholt-bericht on real files: exit statuses, messages, damaged and foreign protocols, each kind of output, many
files.

programm_test.py [emulator ...] zepholt zepholt-bericht
"""
import csv
import io
import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import urllib.parse
import xml.etree.ElementTree as ET

ZEPHOLT, BERICHT = map(os.path.realpath, sys.argv[-2:])
EMULATOR = sys.argv[1:-2]
QUELLE = pathlib.Path(__file__).resolve().parents[2]
KATALOG = QUELLE / "samples/katalog"
# Wine takes names outside of ASCII only in a locale that the system has.
os.environ["LC_ALL"] = "C.UTF-8" if EMULATOR else "de_CH.UTF-8"
FALSCH = 0
GEPRUEFT = 0


def erwarte(name, ist, soll):
    global FALSCH, GEPRUEFT
    GEPRUEFT += 1
    if ist != soll:
        FALSCH += 1
        print(f"FALSE {name}: {str(ist)[:400]} instead of {str(soll)[:400]}")


def bericht(*argumente, umgebung=None):
    """Status, standard output, standard error."""
    lauf = subprocess.run([*EMULATOR, BERICHT, *map(str, argumente)], capture_output=True,
                          env={**os.environ, **(umgebung or {})}, check=False)
    return lauf.returncode, lauf.stdout.decode("utf-8"), lauf.stderr.decode("utf-8")


def protokoll(ordner, datei, sprache="de"):
    ziel = ordner / f"{datei.name}.{sprache}.xml"
    subprocess.run([*EMULATOR, ZEPHOLT, f"file={datei}", f"dialog={sprache}-", f"errorfile={ziel}", f"catalog={KATALOG}"], check=True)
    return ziel


def elemente(xml):
    return ET.parse(xml).getroot().findall("Errors/Error")


def status(ordner):
    for name, soll in [("fehlerhaft.01S", 1), ("fehlerhaft.E1S", 1), ("sauber.01S", 0), ("sauber.E1S", 0)]:
        datei = QUELLE / "samples" / name
        xml = protokoll(ordner, datei)
        erwarte(f"verdict {name}", bericht("verdict", xml), (soll, "", ""))
        erwarte(f"html {name}", bericht("html", xml, datei, "-o", ordner / "seite.html")[0], soll)
        erwarte(f"--test {name}", bericht("verdict", "--test", datei, "--catalog", KATALOG), (soll, "", ""))
    # Only warnings: the head of an E1S protocol counts them as errors, the status doesn't.
    ganz = protokoll(ordner, QUELLE / "samples/fehlerhaft.E1S").with_name("warnung.xml")
    text = (ordner / "fehlerhaft.E1S.de.xml").read_text("latin-1")
    text = re.sub(r'<Error [^>]*E="A"[^>]*/>', "", text)
    text = re.sub(r"<Errors>\d+</Errors>", f"<Errors>{text.count('<Error ')}</Errors>", text)
    ganz.write_text(text, "latin-1")
    erwarte("verdict of warnings", bericht("verdict", ganz)[0], 0)


def listen(ordner):
    datei = QUELLE / "samples/fehlerhaft.E1S"
    xml = protokoll(ordner, datei)
    fehler = elemente(xml)
    zeilen = list(csv.reader(io.StringIO(bericht("csv", xml, datei)[1].removeprefix("\ufeff")), delimiter=";"))
    erwarte("csv", [(z[2], z[3], z[4], z[7], z[8]) for z in zeilen[1:]],
            [(e.get("I", ""), e.get("L", ""), e.get("F", ""), e.get("N"), e.get("E")) for e in fehler])
    objekte = [json.loads(z) for z in bericht("jsonl", xml, datei)[1].splitlines()]
    erwarte("jsonl", [(o["position"], o["line"], o["field"], o["code"], o["severity"]) for o in objekte],
            [(e.get("I"), int(e.get("L")) if e.get("L") else None, e.get("F"), int(e.get("N")), e.get("E")) for e in fehler])
    tabelle = bericht("table", xml)[1].splitlines()
    erwarte("table", [re.search(r" (\d{4}) ([AB])  ", z).groups() for z in tabelle[1:]], [(e.get("N"), e.get("E")) for e in fehler])
    erwarte("jsonl, without the file", len(bericht("jsonl", xml)[1].splitlines()), len(fehler))
    for sprache in ("fr", "it"):
        texte = [json.loads(z)["text"] for z in bericht("jsonl", protokoll(ordner, datei, sprache))[1].splitlines()]
        erwarte(f"language of the protocol: {sprache}", texte,
                [json.loads(z)["text"] for z in bericht("jsonl", xml, "-l", sprache)[1].splitlines()])


def ganzzahl(kleinste):
    return lambda wert: isinstance(wert, int) and not isinstance(wert, bool) and wert >= kleinste


def aus(*werte):
    return lambda wert: wert in werte


def muster(regel):
    return lambda wert: isinstance(wert, str) and re.fullmatch(regel, wert) is not None


def jedes(art, einmalig=False):
    return lambda wert: isinstance(wert, list) and all(erlaubt(art, w) for w in wert) and (
        not einmalig or len({json.dumps(w, sort_keys=True) for w in wert}) == len(wert))


def eines(art):
    return lambda wert: erlaubt(art, wert)


TEXT = muster(r"(?s).*")
# What the published schema of SARIF 2.1.0 lays down for the objects that stand here: each permits no other keys than those that
# it names, of which only these are written; then the keys that it requires.
SARIF = {
    "log": ({"$schema": muster(r"https://\S+"), "version": aus("2.1.0"), "runs": jedes("run")}, {"version", "runs"}),
    "run": ({"tool": eines("tool"), "language": muster(r"[a-zA-Z]{2}(-[a-zA-Z]{2})?"), "columnKind": aus("utf16CodeUnits", "unicodeCodePoints"),
             "artifacts": jedes("artifact", True), "properties": lambda wert: isinstance(wert, dict), "results": jedes("result")}, {"tool"}),
    "tool": ({"driver": eines("driver")}, {"driver"}),
    "driver": ({"name": TEXT, "version": TEXT, "rules": jedes("rule", True)}, {"name"}),
    "rule": ({"id": TEXT, "shortDescription": eines("text"), "defaultConfiguration": eines("configuration")}, {"id"}),
    "configuration": ({"level": aus("none", "note", "warning", "error")}, set()),
    "text": ({"text": TEXT}, {"text"}),
    "artifact": ({"location": eines("artifactLocation")}, set()),
    "artifactLocation": ({"uri": muster(r"([A-Za-z0-9._~/-]|%[0-9A-F]{2})*"), "index": ganzzahl(-1)}, set()),
    "result": ({"ruleId": TEXT, "ruleIndex": ganzzahl(-1), "level": aus("none", "note", "warning", "error"), "message": eines("text"),
                "locations": jedes("location")}, {"message"}),
    "location": ({"physicalLocation": eines("physicalLocation"), "logicalLocations": jedes("logicalLocation", True)}, set()),
    "physicalLocation": ({"artifactLocation": eines("artifactLocation"), "region": eines("region")}, {"artifactLocation"}),
    "region": ({"startLine": ganzzahl(1), "startColumn": ganzzahl(1), "endColumn": ganzzahl(1)}, set()),
    "logicalLocation": ({"fullyQualifiedName": TEXT, "kind": TEXT}, set()),
}


def erlaubt(art, objekt):
    formen, noetig = SARIF[art]
    return isinstance(objekt, dict) and noetig <= set(objekt) and all(k in formen and formen[k](w) for k, w in objekt.items())


def sarif(ordner):
    for name in ("fehlerhaft.01S", "fehlerhaft.E1S", "sauber.01S"):
        datei = QUELLE / "samples" / name
        xml = protokoll(ordner, datei)
        log = json.loads(bericht("sarif", xml, datei)[1])
        fehler = elemente(xml)
        erwarte("sarif: the schema's rules", erlaubt("log", log), True)
        lauf = log["runs"][0]
        regeln = lauf["tool"]["driver"]["rules"]
        erwarte("sarif: rules are unique", len({r["id"] for r in regeln}), len(regeln))
        erwarte("sarif: results", [r["ruleId"] for r in lauf["results"]], [e.get("N") for e in fehler])
        for ergebnis, e in zip(lauf["results"], fehler):
            erwarte("sarif: rule", regeln[ergebnis["ruleIndex"]]["id"], ergebnis["ruleId"])
            erwarte("sarif: level", ergebnis["level"], "error" if e.get("E") == "A" else "warning")
            ort = ergebnis["locations"][0]["physicalLocation"]
            erwarte("sarif: artifact", lauf["artifacts"][ort["artifactLocation"]["index"]]["location"]["uri"], name)
            bereich = ort.get("region")
            erwarte("sarif: line", bereich and bereich["startLine"], e.get("L") and int(e.get("L")))
            if bereich and "startColumn" in bereich:
                erwarte("sarif: columns", 1 <= bereich["startColumn"] < bereich["endColumn"] <= 258, True)
    log["runs"][0]["tool"]["driver"]["rule"] = []
    erwarte("sarif: a key of none of the schema's", erlaubt("log", log), False)


def schema(ordner):
    """Every protocol and list is valid by both schemas, and one that is changed isn't."""
    def gueltig(art, xml):
        wege = (("--relaxng", "rng"), ("--schema", "xsd"))
        return [subprocess.run(["xmllint", "--noout", weg, QUELLE / f"docs/schema/{art}.{endung}", xml], capture_output=True,
                               check=False).returncode == 0 for weg, endung in wege]

    for name in ("fehlerhaft.01S", "fehlerhaft.E1S", "sauber.01S", "sauber.E1S"):
        for sprache in ("de", "fr", "it"):
            erwarte(f"schema: {name} {sprache}", gueltig("protokoll", protokoll(ordner, QUELLE / "samples" / name, sprache)), [True, True])
    for zahl in ("1", "9"):
        ziel = ordner / f"liste{zahl}.xml"
        subprocess.run([*EMULATOR, ZEPHOLT, f"file=*{zahl}", "dialog=de-", f"errorfile={ziel}", f"catalog={KATALOG}"], check=True)
        erwarte(f"schema: list {zahl}", gueltig("listen", ziel), [True, True])
    falsch = ordner / "falsch.xml"
    falsch.write_bytes((ordner / "fehlerhaft.01S.de.xml").read_bytes().replace(b' N="', b' M="', 1))
    erwarte("schema: a finding without its code", gueltig("protokoll", falsch), [False, False])


def aufruf(ordner):
    xml = protokoll(ordner, QUELLE / "samples/sauber.01S")
    for argumente, wort in [([], "Befehl"), (["nix"], "nix"), (["verdict"], "PROTOKOLL"), (["html", xml], "AUSTAUSCHDATEI"),
                            (["verdict", xml, xml], "zu viel"), (["verdict", "--nix", xml], "--nix"), (["verdict", "-o"], "Wert"),
                            (["verdict", "-l", "en", xml], "en"), (["code", "4100"], "4100"), (["code", "abc"], "abc"), (["code"], "NNNN"),
                            (["html", "--test", QUELLE / "samples/sauber.01S"], "--catalog")]:
        ergebnis, aus, fehler = bericht(*argumente)
        erwarte(f"wrong call {argumente}", (ergebnis, aus, wort in fehler, fehler.count("\n")), (64, "", True, 1))
    erwarte("French", bericht("-l", "fr", "nix")[2], "zepholt-bericht: Commande inconnue : nix\n")
    if not EMULATOR:
        erwarte("Italian by the system", bericht("nix", umgebung={"LC_ALL": "it_CH.UTF-8"})[2], "zepholt-bericht: Comando sconosciuto: nix\n")
    for option in ("--help", "-h", "--version", "-V"):
        ergebnis, aus, fehler = bericht(option)
        erwarte(option, (ergebnis, aus.startswith("zepholt-bericht"), fehler), (0, True, ""))
    ergebnis, aus, fehler = bericht("code", "4504")
    anfang = "4504  Fehler (A)\nMengeneinheit ist nicht zulässig gemäss UbR\nMengeneinheit (G5:16)\n\n"
    erwarte("code", (ergebnis, aus[:len(anfang)], fehler), (0, anfang, ""))
    for sprache, abschnitt in (("de", "## So beheben Sie es"), ("fr", "## Comment corriger"), ("it", "## Come correggere")):
        erwarte(f"code, explained in {sprache}", abschnitt in bericht("code", "4504", "-l", sprache)[1].splitlines(), True)
    erwarte("options behind the words", bericht("verdict", xml, "--language=fr")[0], 0)


def schlecht(ordner):
    datei = QUELLE / "samples/fehlerhaft.01S"
    xml = protokoll(ordner, datei)
    ganz = xml.read_bytes()
    krank = ordner / "krank.xml"
    for name, bytes_ in [("empty", b""), ("cut", ganz[:-20]), ("cut in a finding", ganz[:2000]), ("foreign", b"<a><b/></a>"),
                         ("an exchange file", datei.read_bytes()), ("a list", ganz.replace(b"SIA451>", b"ZEPHOLT>")),
                         ("a finding lost", re.sub(rb'<Error L="2"[^>]*/>', b"", ganz)), ("zeros", b"\0" * 1000),
                         ("a tag broken", ganz.replace(b"</Test>", b"</Tets>"))]:
        krank.write_bytes(bytes_)
        for befehl in (["verdict", krank], ["html", krank, datei, "-o", ordner / "nie.html"], ["csv", krank]):
            ergebnis, aus, fehler = bericht(*befehl)
            erwarte(f"{name}: {befehl[0]}", (ergebnis, aus, "Protokoll" in fehler, fehler.count("\n")), (2, "", True, 1))
    andere = ordner / "andere.01S"
    andere.write_bytes(datei.read_bytes().replace(b"Musterschulhaus", b"Musterturnhalle"))
    kurze = ordner / "kurze.01S"
    kurze.write_bytes(b"".join(datei.read_bytes().splitlines(keepends=True)[:20]))
    for name, befehl, wort in [("no protocol", ["verdict", ordner / "fehlt.xml"], "gibt es nicht"), ("a folder", ["verdict", ordner], "gibt es nicht"),
                               ("no exchange file", ["html", xml, ordner / "fehlt.01S", "-o", ordner / "nie.html"], "gibt es nicht"),
                               ("another project", ["html", xml, andere, "-o", ordner / "nie.html"], "anderen Austauschdatei"),
                               ("another file", ["html", xml, kurze, "-o", ordner / "nie.html"], "anderen Austauschdatei"),
                               ("unwritable", ["html", xml, datei, "-o", ordner / "fehlt/nie.html"], "geschrieben"),
                               ("a folder as the page", ["html", xml, datei, "-o", ordner], "geschrieben"),
                               ("nothing to test", ["html", "--test", ordner / "fehlt.01S", "-c", KATALOG], "gibt es nicht"),
                               ("no catalogue", ["html", "--test", datei, "-c", ordner / "fehlt"], "kein Protokoll geschrieben")]:
        ergebnis, aus, fehler = bericht(*befehl)
        erwarte(name, (ergebnis, aus, wort in fehler, fehler.count("\n")), (2, "", True, 1))
    erwarte("nothing half", [p.name for p in ordner.iterdir() if p.name.startswith(("nie", "zepholt-"))], [])


def seite(ordner):
    """The page as text: complete, without a way out, the same wherever it is written."""
    ziel = ordner / "ä b"
    ziel.mkdir()
    datei = ziel / "Türen und Mauern.E1S"
    shutil.copy(QUELLE / "samples/fehlerhaft.E1S", datei)
    xml = protokoll(ordner, QUELLE / "samples/fehlerhaft.E1S")
    erwarte("a path with blanks and umlauts", bericht("html", xml, datei, "-o", ziel / "Seite ü.html")[0], 1)
    text = (ziel / "Seite ü.html").read_text("utf-8")
    erwarte("to standard output", bericht("html", xml, datei)[1], text)
    erwarte("ends", text.endswith("</html>\n"), True)
    erwarte("policy", "default-src 'none'" in text, True)
    erwarte("no address", re.findall(r"""(?:https?:)?//[a-z]|url\(|@import|<link|<img|<iframe""", text.split('id="daten"')[0]), [])
    for sprache, wort in (("de", "38 Fehler"), ("fr", "38 erreurs"), ("it", "38 errori")):
        erwarte(f"in {sprache}", wort in bericht("html", xml, datei, "-l", sprache)[1], True)
    erwarte("--test writes the same page", re.sub(r"<dt data-t=\"geprueft.*?</div>", "", bericht("html", "--test", datei, "-c", KATALOG)[1]),
            re.sub(r"<dt data-t=\"geprueft.*?</div>", "", bericht("html", xml, datei, "-c", KATALOG)[1]))


def ablage(ordner):
    """test: page and protocol beside the file, never over what someone else made, else in the user's folder."""
    heim = ordner / "heim"
    heim.mkdir()
    mauern = ordner / "Mauern ä.01S"
    shutil.copy(QUELLE / "samples/fehlerhaft.01S", mauern)
    umgebung = {"HOME": str(heim), "USERPROFILE": str(heim)}

    def pruefe(*dateien, sprache="de", davor=()):
        lauf = subprocess.run([*davor, *EMULATOR, BERICHT, "test", *map(str, dateien), "-c", KATALOG, "-l", sprache], capture_output=True,
                              env={**os.environ, **umgebung}, check=False)
        return lauf.returncode, pathlib.PureWindowsPath(lauf.stdout.decode().strip()).name, lauf.stderr.decode()

    def namen(wo):
        return sorted(p.name for p in wo.iterdir() if p.suffix in (".html", ".xml"))

    erste = ["Mauern ä.01S.bericht.html", "Mauern ä.01S.protokoll.xml"]
    for _ in range(2):
        erwarte("beside the file, again in the same place", (pruefe(mauern), namen(ordner)), ((1, erste[0], ""), erste))
    xml = (ordner / erste[1]).read_bytes()
    erwarte("the protocol is the program's", re.sub(rb"<Date>.*</Time>", b"", xml),
            re.sub(rb"<Date>.*</Time>", b"", protokoll(ordner / "heim", QUELLE / "samples/fehlerhaft.01S").read_bytes()))
    (ordner / erste[1]).write_bytes(xml + b" ")
    zweite = ["Mauern ä.01S.bericht-2.html", "Mauern ä.01S.protokoll-2.xml"]
    erwarte("a protocol that was changed stays", (pruefe(mauern), namen(ordner)), ((1, zweite[0], ""), sorted(erste + zweite)))
    (ordner / erste[0]).write_text("<p>", "utf-8")
    (ordner / erste[1]).unlink()
    erwarte("another page stays", (pruefe(mauern)[1], (ordner / erste[0]).read_text("utf-8")), (zweite[0], "<p>"))
    erwarte("French names", (pruefe(mauern, sprache="fr")[1]), "Mauern ä.01S.rapport.html")
    erwarte("no such file", pruefe(ordner / "fehlt.01S"), (2, "", f"zepholt-bericht: Die Austauschdatei gibt es nicht: {ordner / 'fehlt.01S'}\n")
            if not EMULATOR else pruefe(ordner / "fehlt.01S"))

    mehrere = ordner / "mehrere"
    mehrere.mkdir()
    for art in ("sauber.01S", "fehlerhaft.E1S"):
        shutil.copy(QUELLE / "samples" / art, mehrere / art.replace("s", "<s", 1) if not EMULATOR else mehrere / art)
    dateien = sorted(mehrere.iterdir())
    status, name, _ = pruefe(*dateien, mehrere / "fehlt.01S")
    seite_ = (mehrere / "Berichte.html").read_text("utf-8")
    erwarte("several", (status, name), (2, "Berichte.html"))
    ziele = re.findall(r'<a href="\./([^"]*)">', seite_)
    erwarte("several: their pages", sorted(urllib.parse.unquote(z) for z in ziele), [n for n in namen(mehrere) if n != name and n.endswith("html")])
    erwarte("several: outcomes", re.findall(r"<li class=\"\w+\"><b>([^<]*)", seite_), [
        {"f": "Fehlerhaft", "s": "In Ordnung", "<": "In Ordnung"}[d.name[0]] for d in dateien] + ["Nicht geprüft"])
    erwarte("several: headline", re.findall(r"<h1 class=\"viele\">(.*)</h1>", seite_), [
        '<span class="A">1 nicht geprüft</span>, <span class="A">1 fehlerhaft</span>, <span class="ok">1 in Ordnung</span>'])

    if EMULATOR:
        return
    fest = ordner / "fest"
    fest.mkdir()
    for art in ("sauber.01S", "sauber.E1S"):
        shutil.copy(QUELLE / "samples" / art, fest / art)
    fest.chmod(0o555)
    davor = ["setpriv", "--bounding-set", "-dac_override"] if os.geteuid() == 0 else []
    erwarte("a folder that can't be written", (pruefe(fest / "sauber.01S", davor=davor), namen(fest), namen(heim / "ZEPHOLT")),
            ((0, "sauber.01S.bericht.html", ""), [], ["sauber.01S.bericht.html", "sauber.01S.protokoll.xml"]))
    erwarte("two in such a folder", (pruefe(fest / "sauber.01S", fest / "sauber.E1S", davor=davor)[1], len(namen(heim / "ZEPHOLT"))), ("Berichte.html", 5))
    (heim / "ZEPHOLT").chmod(0o555)
    erwarte("nor the user's folder", (pruefe(fest / "sauber.01S", sprache="it", davor=davor)[0], len(namen(heim / "ZEPHOLT"))), (2, 5))
    (heim / "ZEPHOLT").chmod(0o755)
    fest.chmod(0o755)


def protokolltext(befunde, projekt="S"):
    """A protocol of findings (code, severity)."""
    je = "".join(f'<Error L="2" N="{code}" E="{schwere}" T="x"/>' for code, schwere in befunde)
    zahlen = [sum(s == schwere for _, s in befunde) for schwere in "AB"]
    return ('<?xml version="1.0" encoding="iso-8859-1"?><SIA451><Test><Project ID="P">%s</Project><Document ID="D">M</Document>'
            '<Date>2026-11-21</Date><Time>05:13</Time><Errors>%d</Errors><Warnings>%d</Warnings><Software Manufacturer="M">A'
            '</Software><Fileformat Version="451-92.11">01s</Fileformat><Testprogram Version="4.0">ZEPHOLT</Testprogram></Test>%s'
            '</SIA451>' % (projekt, zahlen[0], zahlen[1], f"<Errors>{je}</Errors>" if je else "")).encode("latin-1")


def sammlung(ordner):
    """summary: one row per file, its kind by the ending of the table's name."""
    def summe(eintraege, *tabellen, sprache="de", rest=b""):
        liste = b"".join(teil + b"\0" for eintrag in eintraege for teil in eintrag) + rest
        lauf = subprocess.run([*EMULATOR, BERICHT, "summary", "-l", sprache, *tabellen], input=liste, capture_output=True, cwd=ordner,
                              check=False)
        return lauf.returncode, lauf.stdout.decode(), lauf.stderr.decode()

    for name, inhalt in (("gut.xml", protokolltext([])), ("warnung.xml", protokolltext([(2032, "B")])),
                         ("schlecht.xml", protokolltext([(4221, "A"), (2032, "B"), (4221, "A")], "Größe; &quot;Ä&quot;")),
                         ("refus.xml", protokolltext([(2021, "A")])), ("kaputt.xml", protokolltext([])[:-3])):
        (ordner / name).write_bytes(inhalt)
    (ordner / "schlecht.html").write_text("x")
    gut, warnung = (b"a.01S", b"gut.xml", b"12", b""), (b"=b\n.E1S", b"warnung.xml", b"", b"von einem anderen Lauf")
    schlecht_ = (b"o/c.01S", b"schlecht.xml", b"3", b"")
    refus, fehlt = (b"\xff.01S", b"refus.xml", b"x", b""), (b"e.01S", b"fehlt.xml", b"0", "Signal 9; ü".encode())
    erwarte("summary: clean", summe([gut, warnung], "t.csv", "t.jsonl"), (0, "2 in Ordnung\n", ""))
    erwarte("summary: for a spreadsheet", (ordner / "t.csv").read_bytes().decode("utf-8"),
            "\ufeffDatei;Urteil;Fehler;Warnungen;Codes;Projekt;Dokument;Geprüft;Millisekunden;Grund;Protokoll\r\n"
            "a.01S;In Ordnung;0;0;;P S;D M;2026-11-21 05:13;12;;gut.xml\r\n"
            "\"'=b\n.E1S\";In Ordnung;0;1;2032×1;P S;D M;2026-11-21 05:13;;;warnung.xml\r\n")
    erwarte("summary: faulty", summe([gut, schlecht_, refus], "t.csv", "t.jsonl", sprache="fr")[:2],
            (1, "1 en ordre, 1 erroné, 1 refusé\n"))
    erwarte("summary: by code", (ordner / "t.csv").read_bytes().decode("utf-8").split("\r\n")[2],
            'o/c.01S;Erroné;2;1;2032×1 4221×2;"P Größe; ""Ä""";D M;2026-11-21 05:13;3;;schlecht.xml')
    status_, aus, _ = summe([schlecht_, refus, fehlt, (b"f.01S", b"kaputt.xml", b"", b"")], "t.jsonl", "t.html")
    erwarte("summary: untested", (status_, aus), (2, "1 fehlerhaft, 1 abgewiesen, 2 nicht geprüft\n"))
    zeilen = [json.loads(z) for z in (ordner / "t.jsonl").read_text("utf-8").splitlines()]
    erwarte("summary: a faulty object", zeilen[0], {
        "file": "o/c.01S", "verdict": "faulty", "errors": 2, "warnings": 1, "codes": {"2032": 1, "4221": 2}, "project": 'P Größe; "Ä"',
        "document": "D M", "tested": "2026-11-21T05:13", "milliseconds": 3, "reason": None, "protocol": "schlecht.xml"})
    erwarte("summary: a refused object", (zeilen[1]["file"], zeilen[1]["fileUri"], zeilen[1]["verdict"], zeilen[1]["milliseconds"]),
            ("\ufffd.01S", "%FF.01S", "refused", None))
    erwarte("summary: an untested object", zeilen[2], {
        "file": "e.01S", "verdict": "untested", "errors": None, "warnings": None, "codes": {}, "project": None, "document": None,
        "tested": None, "milliseconds": 0, "reason": "Signal 9; ü", "protocol": "fehlt.xml"})
    erwarte("summary: a damaged protocol", (zeilen[3]["verdict"], "abgeschnitten" in zeilen[3]["reason"]), ("untested", True))
    text = (ordner / "t.html").read_text("utf-8")
    erwarte("summary: the page", re.findall(r'<a href="([^"]*)">([^<]*)</a>', text), [("./schlecht.html", "o/c.01S")])
    erwarte("summary: nothing", summe([], "t.csv"), (0, "\n", ""))
    for name, lauf in (("unknown ending", summe([gut], "nie.txt")), ("half a group", summe([gut], "nie.csv", rest=b"a\0b\0")),
                       ("half a text", summe([gut], "nie.csv", rest=b"a\0b\0c\0d")), ("no table", summe([gut]))):
        erwarte(f"summary, {name}", (lauf[0], lauf[2].count("\n")), (64, 1))
    erwarte("summary: nothing half", [p.name for p in ordner.glob("nie*")], [])


def stapel(ordner):
    """batch: a tree of protocols, several at once; again, it goes on."""
    ein, aus = ordner / "ein", ordner / "aus ä"
    for name, vorlage in (("a b/x ü.01S", "fehlerhaft.01S"), ("a b/tief/y.e1s", "sauber.E1S"), ("z.01S", "sauber.01S"), ("z.txt", "sauber.01S")):
        (ein / name).parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(QUELLE / "samples" / vorlage, ein / name)
    aufruf_ = ("batch", ein, aus, "-c", KATALOG, "-l", "de", "-j", "2")
    erwarte("batch", bericht(*aufruf_), (1, "2 in Ordnung, 1 fehlerhaft\n", ""))
    namen = sorted(str(p.relative_to(aus)) for p in aus.rglob("*") if p.is_file())
    erwarte("batch: the tree", namen, ["a b/tief/y.e1s.xml", "a b/x ü.01S.xml", "table.csv", "table.jsonl", "z.01S.xml"])
    zeilen = [json.loads(z) for z in (aus / "table.jsonl").read_text("utf-8").splitlines()]
    erwarte("batch: rows", sorted((z["file"].replace("\\", "/"), z["verdict"], z["errors"]) for z in zeilen),
            [("a b/tief/y.e1s", "clean", 0), ("a b/x ü.01S", "faulty", 35), ("z.01S", "clean", 0)])
    (aus / "z.01S.xml").unlink()
    vorher = (aus / "a b/x ü.01S.xml").stat().st_mtime_ns
    erwarte("batch: goes on", (bericht(*aufruf_)[:2], (aus / "a b/x ü.01S.xml").stat().st_mtime_ns, (aus / "z.01S.xml").exists()),
            ((1, "2 in Ordnung, 1 fehlerhaft\n"), vorher, True))
    (aus / "z.01S.xml").unlink()
    (aus / "z.01S.xml").mkdir()
    erwarte("batch: no place for a protocol", bericht(*aufruf_)[:2], (2, "1 in Ordnung, 1 fehlerhaft, 1 nicht geprüft\n"))
    (aus / "z.01S.xml").rmdir()
    erwarte("batch: the output below the folder", bericht("batch", ein, ein / "aus", "-c", KATALOG, "-l", "it")[:2], (1, "2 in ordine, 1 con errori\n"))
    for argumente in ((ein, aus, "-c", KATALOG, "-j", "0"), (ein, aus), (ein, "-c", KATALOG), (ordner / "fehlt", aus, "-c", KATALOG),
                      (ein, aus, "-c", ordner / "fehlt")):
        erwarte(f"batch {argumente}", bericht("batch", *argumente)[0], 64)


with tempfile.TemporaryDirectory() as name:
    for pruefung in (status, listen, sarif, schema, aufruf, schlecht, seite, ablage, sammlung, stapel):
        unter = pathlib.Path(name) / pruefung.__name__
        unter.mkdir()
        pruefung(unter)
print(f"{GEPRUEFT} checks, {FALSCH} false")
sys.exit(1 if FALSCH else 0)
