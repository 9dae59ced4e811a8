#!/usr/bin/env python3
"""The examples of docs/aufrufen call the program in a folder with a blank and an umlaut, read the outcome and tell the
reasons for a missing protocol apart.

aufrufe.py BUILD-FOLDER LANGUAGE...; a LANGUAGE is python, java or csharp.
"""
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

from doku import QUELLE

BAU = pathlib.Path(sys.argv[1]).resolve()
BEISPIELE = QUELLE / "docs/aufrufen/beispiele"
ZEPHOLT = BAU / "zepholt"
GEPRUEFT = 0
FALSCH = 0


def erwarte(name, ist, soll):
    global GEPRUEFT, FALSCH
    GEPRUEFT += 1
    if ist != soll:
        FALSCH += 1
        print(f"FALSE {name}: {ist} instead of {soll}")


def bereiten(sprache, ordner):
    """The words that start an example."""
    if sprache == "python":
        return [sys.executable, "-B", BEISPIELE / "aufruf.py"]
    if sprache == "java":
        subprocess.run(["javac", "-Xlint:all,-serial", "-Werror", "-d", ordner, BEISPIELE / "Aufruf.java"], check=True)
        return ["java", "-Xshare:auto", "-XX:TieredStopAtLevel=1", "-cp", ordner, "Aufruf"]
    exe = ordner / "Aufruf.exe"
    subprocess.run(["mcs", "-warnaserror", "-r:System.Xml.dll", f"-out:{exe}", BEISPIELE / "Aufruf.cs"], check=True)
    return ["mono", exe]


class Ort:
    """A folder "Bau Süd" with files, catalogue and schema, and programs that end in other ways than the real one."""

    def __init__(self, ordner):
        self.ordner = ordner / "Bau Süd"
        shutil.copytree(QUELLE / "samples", self.ordner)
        self.schema = self.ordner / "protokoll.xsd"
        shutil.copy(QUELLE / "docs/schema/protokoll.xsd", self.schema)
        self.protokoll = self.ordner / "Protokoll für Süd.xml"
        beschaedigt = self.ordner / "beschädigt"
        shutil.copytree(self.ordner / "katalog", beschaedigt)
        for kapitel in beschaedigt.glob("N201*.qvm"):
            inhalt = kapitel.read_bytes()
            kapitel.write_bytes(inhalt[:21] + b"keineZahl" + inhalt[30:])

    def programm(self, name, zeilen):
        """A stand-in for the program."""
        pfad = self.ordner / name
        pfad.write_text("#!/bin/sh\n" + zeilen + "\n", encoding="utf-8")
        pfad.chmod(0o755)
        return pfad

    def aufruf(self, start, programm=ZEPHOLT, datei="fehlerhaft.01S", katalog="katalog", protokoll=None, mehr=()):
        """Status and what the example says."""
        worte = [*start, programm, self.ordner / datei, protokoll or self.protokoll, self.ordner / katalog, self.schema]
        lauf = subprocess.run([str(w) for w in [*worte, *mehr]], capture_output=True, check=False,
                              env={**os.environ, "LC_ALL": "C.UTF-8"})
        return lauf.returncode, (lauf.stdout + lauf.stderr).decode("utf-8").strip()


def urteile(name, start, ort):
    """Counted by hand from the samples' protocols; the head of an E1S protocol says the sum."""
    ort.protokoll.write_text("an old one", encoding="utf-8")
    erwarte(f"{name}: faulty", ort.aufruf(start), (1, "errors 35, warnings 6"))
    kopf = re.search(rb"<Errors>(\d+)</Errors><Warnings>(\d+)", ort.protokoll.read_bytes())
    erwarte(f"{name}: the head", kopf.groups(), (b"35", b"6"))
    erwarte(f"{name}: sound", ort.aufruf(start, datei="sauber.01S"), (0, "errors 0, warnings 0"))
    status, text = ort.aufruf(start, datei="fehlerhaft.E1S")
    summe = sum(map(int, re.findall(r"\d+", text)))
    kopf = re.search(rb"<Errors>(\d+)</Errors><Software", ort.protokoll.read_bytes())
    erwarte(f"{name}: new interface", (status, summe), (1, int(kopf[1])))
    erwarte(f"{name}: mode I", ort.aufruf(start, mehr=["I"]), (1, "errors 35, warnings 0"))


def gruende(name, start, ort):
    def grund(was, soll, **wie):
        status, text = ort.aufruf(start, **wie)
        erwarte(f"{name}: {was}", (status, text[:len(soll)]), (2, soll))

    grund("no exchange file", "no protocol: 1003", datei="fehlt.01S")
    grund("no folder of the protocol", "no protocol: 1005", protokoll=ort.ordner / "fehlt/p.xml")
    grund("no catalogue", "no protocol: 1006", katalog="fehlt")
    grund("mode in lower case", "no protocol: 1007", mehr=["e"])
    grund("no program", "no protocol: the program can't be started", programm=ort.ordner / "fehlt")
    grund("damaged catalogue", "no protocol: run-time failure: ZEPHOLT: Laufzeitfehler: ", katalog="beschädigt")
    grund("killed", "no protocol: ended from outside", programm=ort.programm("getötet", "kill -9 $$"))
    grund("ended with 1", "no protocol: ended from outside", programm=ort.programm("beendet", "exit 1"))
    grund("nothing written", "no protocol: it could not be written at the end", programm=ort.programm("stumm", "exit 0"))
    halb = ort.programm("halb", f"printf '<SIA451><Test>' >'{ort.protokoll}'")
    grund("half a protocol", "no protocol: what lies there is none", programm=halb)
    fremd = ort.programm("fremd", f"printf '<ZEPHOLT/>' >'{ort.protokoll}'")
    grund("a foreign file", "no protocol: what lies there is none", programm=fremd)


def windowstext():
    """The raw text that Windows gets, worked out from the rule: the marks begin behind the "="."""
    sys.path.insert(0, str(BEISPIELE))
    sys.dont_write_bytecode = True
    import aufruf  # pylint: disable=import-error,import-outside-toplevel
    text = aufruf.kommando(r"C:\Programme alt\zepholt.exe", r"C:\Bau Süd\x.01S", r"C:\p.xml", "C:\\VLT\\", "E", windows=True)
    soll = (r'"C:\Programme alt\zepholt.exe" file="C:\Bau Süd\x.01S" dialog="de-" errorfile="C:\p.xml" '
            r'catalog="C:\VLT\" mode="E"')
    erwarte("the command text of Python on Windows", text, soll)


def main():
    for sprache in sys.argv[2:]:
        with tempfile.TemporaryDirectory() as ordner:
            ordner = pathlib.Path(ordner)
            start = bereiten(sprache, ordner)
            ort = Ort(ordner)
            urteile(sprache, start, ort)
            gruende(sprache, start, ort)
        if sprache == "python":
            windowstext()
    print(f"{GEPRUEFT - FALSCH} right, {FALSCH} false")
    return 1 if FALSCH else 0


if __name__ == "__main__":
    sys.exit(main())
