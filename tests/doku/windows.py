#!/usr/bin/env python3
"""The commands for Windows that the documents and the quick starts show, and the batch file of docs/aufrufen, under Wine.

windows.py FOLDER-OF-THE-PROGRAMS, with WINEPREFIX set; the drive of the prefix gets what the documents speak of.
"""
import os
import pathlib
import re
import shutil
import subprocess
import sys

from doku import QUELLE, bloecke, dokumente

PROGRAMME = pathlib.Path(sys.argv[1]).resolve()
LAUFWERK = pathlib.Path(os.environ["WINEPREFIX"], "drive_c")
WINE = "/usr/lib/wine/wine64"
ANLEITUNGEN = QUELLE / "packaging/windows"
UMGEBUNG = {**os.environ, "WINEDEBUG": "-all", "WINEDLLOVERRIDES": "mscoree,mshtml=", "LC_ALL": "C.UTF-8"}
ORTE = ("Los 1", "Bau Süd")
GEPRUEFT = 0
FALSCH = 0


def erwarte(name, ist, soll):
    global GEPRUEFT, FALSCH
    GEPRUEFT += 1
    if ist != soll:
        FALSCH += 1
        print(f"FALSE {name}: {ist} instead of {soll}")


def leeren(ort):
    shutil.rmtree(LAUFWERK / ort, ignore_errors=True)
    (LAUFWERK / ort).mkdir()


def bereiten():
    """C:\\ZEPHOLT with the programs, C:\\VLT, and a folder with a blank for each place that the documents name."""
    for ort in ("ZEPHOLT", "VLT", *ORTE):
        leeren(ort)
    for name in ("zepholt.exe", "zepholt-bericht.exe"):
        shutil.copy(PROGRAMME / name, LAUFWERK / "ZEPHOLT")
    shutil.copytree(QUELLE / "samples/katalog", LAUFWERK / "VLT", dirs_exist_ok=True)


def cmd(*worte):
    """Status and output of a batch file or a command."""
    lauf = subprocess.run([WINE, "cmd", "/c", *map(str, worte)], cwd=LAUFWERK / "ZEPHOLT", env=UMGEBUNG, check=False,
                          stdin=subprocess.DEVNULL, capture_output=True)
    return lauf.returncode, lauf.stdout.decode("utf-8", "replace").replace("\r", "")


def kommandos(zeilen, name):
    """Runs lines as batch files, one behind the other, in folders that hold nothing but an exchange file before; what
    they name as an output must be there then."""
    for ort in ORTE:
        leeren(ort)
        shutil.copy(QUELLE / "samples/fehlerhaft.01S", LAUFWERK / ort / "Offerte.01S")
    for zeile in zeilen:
        # A batch file is read in the code page of the console, as a line that is typed there.
        (LAUFWERK / "ZEPHOLT/zeile.bat").write_bytes(f"@{zeile}\r\n".encode("cp437"))
        status, ausgabe = cmd("zeile.bat")
        soll = 1 if re.search(r"-bericht\.exe (html|table|verdict)", zeile) else 0
        erwarte(f"{name}: {zeile}", (status, "can't" in ausgabe or "Can't" in ausgabe), (soll, False))
        for parameter in re.findall(r'(?:errorfile=|-o )"C:\\([^"]+)"', zeile):
            erwarte(f"{name}: {parameter}", (LAUFWERK / parameter.replace("\\", "/")).is_file(), True)
        if re.search(r"-bericht\.exe (table|code)", zeile):
            erwarte(f"{name}: output of {zeile}", len(ausgabe.split("\n")) > 10, True)


def anleitungen():
    for pfad in sorted(ANLEITUNGEN.glob("*.txt")):
        rohtext = pfad.read_bytes()
        erwarte(f"{pfad.name}: mark and line ends", (rohtext[:3], rohtext.count(b"\r\n")), (b"\xef\xbb\xbf", rohtext.count(b"\n")))
        zeilen = rohtext.decode("utf-8-sig").split("\r\n")
        befehle = [z for z in zeilen if re.match(r"zepholt\.exe file|zepholt-bericht\.exe (table|code) ", z)]
        erwarte(f"{pfad.name}: commands", len(befehle), 3)
        kommandos(befehle, pfad.name)


def batchdatei():
    """The batch file of docs/aufrufen, with a blank and an umlaut in the path."""
    leeren("Bau Süd")
    ort = LAUFWERK / "Bau Süd"
    shutil.copy(QUELLE / "docs/aufrufen/beispiele/aufruf.bat", LAUFWERK / "ZEPHOLT/aufruf.bat")
    for name in ("fehlerhaft.01S", "sauber.01S"):
        shutil.copy(QUELLE / "samples" / name, ort)

    def aufruf(datei="fehlerhaft.01S", protokoll="p ü.xml", katalog="C:\\VLT", programm="zepholt.exe", mehr=()):
        return cmd("aufruf.bat", "C:\\ZEPHOLT\\" + programm, "C:\\Bau Süd\\" + datei, "C:\\Bau Süd\\" + protokoll, katalog, *mehr)

    (ort / "p ü.xml").write_text("an old one", encoding="utf-8")
    erwarte("batch: faulty", aufruf(), (1, ""))
    erwarte("batch: the new protocol", b"<SIA451>" in (ort / "p ü.xml").read_bytes(), True)
    erwarte("batch: sound", aufruf("sauber.01S", mehr=["E"]), (0, ""))
    erwarte("batch: its mode", b"<Mode>E</Mode>" in (ort / "p ü.xml").read_bytes(), True)
    for wie, soll in [
            ({"datei": "fehlt.01S"}, "1003 exchange file not found"),
            ({"protokoll": "fehlt\\p.xml"}, "1005 protocol can't be made"),
            ({"katalog": "C:\\fehlt"}, "1006 catalogue not found"),
            ({"mehr": ["e"]}, "1007 mode is neither E nor I"),
            ({"programm": "fehlt.exe"}, "the program can't be started")]:
        erwarte(f"batch: {soll}", aufruf(**wie), (2, f"no protocol: {soll}\n"))
    leeren("beschädigt")
    kapitel = (QUELLE / "samples/katalog/N201241.qvm").read_bytes()
    (LAUFWERK / "beschädigt/N201241.qvm").write_bytes(kapitel[:21] + b"keineZahl" + kapitel[30:])
    status, text = aufruf(katalog="C:\\beschädigt")
    erwarte("batch: damaged catalogue", (status, text.split("Laufzeitfehler: ")[0]),
            (2, "no protocol: run-time failure:\nZEPHOLT: "))
    erwarte("batch: what is left", sorted(p.name for p in ort.iterdir()), ["fehlerhaft.01S", "sauber.01S"])


def main():
    bereiten()
    for pfad in dokumente():
        for block in bloecke(pfad):
            if block.sprache == "bat":
                kommandos(block.text, pfad.name)
    anleitungen()
    batchdatei()
    print(f"{GEPRUEFT - FALSCH} right, {FALSCH} false")
    return 1 if FALSCH else 0


if __name__ == "__main__":
    sys.exit(main())
