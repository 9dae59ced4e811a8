#!/usr/bin/env python3
"""Every call of the system fails once, in turn, and then from there on; and the disk changes before every call.

    tests/fehler/stoerung.py PROGRAM LIBRARY

LIBRARY is the one of stoerung.cpp. For each kind of call the 1st, 2nd, 3rd ... of a run fails, until a run has no more of
them; so on both kinds of file with both kinds of catalogue, and on the lists. Whatever fails, the output file is whole or
absent, nothing lies beside it, and the outcome is a defined one.
"""

import errno
import os
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor

from dateien import kapiteldatei, ohne_uhr, zwei_kapitel

PROGRAMM, BIBLIOTHEK = (os.path.realpath(pfad) for pfad in sys.argv[1:3])
FRIST = 20  # seconds until a run counts as hanging
schlecht = []

KEINE = b""  # no output file


def lies(pfad):
    with open(pfad, "rb") as datei:
        return datei.read()


def schreibe(pfad, inhalt):
    with open(pfad, "wb") as datei:
        datei.write(inhalt)


class Fall:
    """A command line on files of its own. `namenlos`: the file system knows files without a name."""

    def __init__(self, name, datei, katalog, namenlos=True):
        self.name, self.datei, self.katalog, self.namenlos = name, datei, katalog, namenlos
        self.laeufe = 0
        self.liste = datei.startswith("*")
        self.ort = None

    def anderswo(self, ort, **wie):
        return Fall(self.name, self.datei, self.katalog, self.namenlos).lege(ort, **wie)

    def lege(self, ort, kapitel=("111", "112"), datei_leer=False):
        """The files of the case in a folder; some of them missing where an outcome to compare with is asked for."""
        self.ort = ort
        os.makedirs(os.path.join(ort, "aus"))
        os.makedirs(os.path.join(ort, "k"))
        dateien = {"a." + art: "" if datei_leer else zwei_kapitel(art == "E1S") for art in ("01S", "E1S")}
        dateien |= {f"k/N191{nummer}.qvm": kapiteldatei(nummer) for nummer in kapitel}
        dateien["k.vlt"] = "".join(kapiteldatei(nummer) for nummer in kapitel) or " "
        for name, text in dateien.items():
            schreibe(os.path.join(ort, name), text.encode("ascii"))
        return self

    def laufe(self, stoerung=None, tat=None):
        """Status, output file, what was said, and whether the disturbance took place."""
        lesen, schreiben = os.pipe()
        umgebung = {"LD_PRELOAD": BIBLIOTHEK, "ZEPHOLT_STOERUNG_MELDER": str(schreiben)}
        umgebung |= {"ZEPHOLT_STOERUNG": stoerung} if stoerung else {}
        umgebung |= {"ZEPHOLT_TAT": tat} if tat else {}
        umgebung |= {} if self.namenlos else {"ZEPHOLT_OHNE_NAMENLOS": "1"}
        befehl = [PROGRAMM, "file=" + self.datei, "dialog=de-", "errorfile=aus/p.xml", "catalog=" + self.katalog]
        lauf = subprocess.Popen(befehl, cwd=self.ort, env=umgebung, pass_fds=[schreiben], stdin=subprocess.DEVNULL,
                                stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
        os.close(schreiben)
        try:
            gesagt = lauf.communicate(timeout=FRIST)[1]
        except subprocess.TimeoutExpired:
            lauf.kill()
            gesagt = lauf.communicate()[1] + b"(hangs)"
        getroffen = os.read(lesen, 1) != b""
        os.close(lesen)
        self.laeufe += 1
        return lauf.returncode, self.nimm_ausgabe(stoerung, tat), gesagt, getroffen

    def nimm_ausgabe(self, stoerung, tat):
        """The output file without its clock; then the folder is emptied. Nothing else may lie there."""
        inhalt = KEINE
        for name in os.listdir(os.path.join(self.ort, "aus")):
            pfad = os.path.join(self.ort, "aus", name)
            if name == "p.xml" and not os.path.islink(pfad):
                inhalt = lies(pfad)
            elif not tat and not str(stoerung).startswith("unlinkat"):
                schlecht.append(f"{self.name}: {stoerung}: left over: {name}")
            os.unlink(pfad)
        return ohne_uhr(inhalt)


def ausgaben(fall):
    """The outputs of undisturbed runs on what a failure may make of the files: whole, file unreadable, without one or both
    chapters."""

    def mit(**wie):
        with tempfile.TemporaryDirectory() as ort:
            return fall.anderswo(ort, **wie).laufe()[1]

    fehlend = {mit(kapitel=kapitel) for kapitel in (("111",), ("112",), ())}
    return {"ganz": mit(), "unlesbar": mit(datei_leer=True), "fehlend": fehlend}


def urteil(fall, soll, ruf, was, ergebnis):
    """What is wrong with an outcome; nothing for a defined one."""
    status, ausgabe, gesagt, _ = ergebnis
    ganz, unlesbar, fehlend = soll["ganz"], soll["unlesbar"], soll["fehlend"]
    if was in (str(errno.EINTR), "kurz"):  # no failure at all
        erlaubt = {ganz}
    elif ruf == "malloc":
        erlaubt = {ganz, ausgabe if ausgabe.count(b"<Error ") == 1 and b'N="2001"' in ausgabe else ganz}
        if status == 1:
            return "" if ausgabe == KEINE and gesagt.count(b"\n") == 1 else "a failure is one line and no output"
    elif ruf == "pread":
        erlaubt = fehlend if fall.liste else {unlesbar, *fehlend}
    elif ruf in ("write", "linkat", "renameat"):
        erlaubt = {KEINE}
    elif ruf == "unlinkat":
        erlaubt = {ganz, KEINE}
    else:
        erlaubt = {ganz, unlesbar, *fehlend, KEINE}
    if status != 0 or gesagt:
        return "a silent run that ends with status 0"
    return "" if ausgabe in erlaubt else "an output that nothing explains"


RUFE = ["openat", "namenlos", "opendir", "readdir", "pread", "write", "fstatat", "fstat", "statfs", "faccessat", "dup",
        "close", "linkat", "renameat", "unlinkat"]


def fehler_fuer(ruf):
    if ruf == "malloc":
        return [str(errno.ENOMEM)]
    werte = [str(errno.EIO), str(errno.ENOSPC), str(errno.EINTR)]
    if ruf in ("dup", "statfs", "faccessat", "fstat", "namenlos"):
        werte.pop()  # no signal interrupts these
    return werte + (["kurz"] if ruf in ("pread", "write") else [])


def pruefe_rufe(fall, soll, rufe):
    """All disturbances of some kinds of call in one case; returns how many calls of each a run has."""
    anzahlen = {}
    for ruf in rufe:
        for was in fehler_fuer(ruf):
            for dauernd in ("", "+"):
                if dauernd and was == str(errno.EINTR):
                    continue  # a call that never ends
                nummer = 1
                while True:
                    stoerung = f"{ruf} {nummer}{dauernd} {was}"
                    ergebnis = fall.laufe(stoerung)
                    if not ergebnis[3]:
                        if ergebnis[:3] != (0, soll["ganz"], b""):
                            schlecht.append(f"{fall.name}: {stoerung}: not disturbed, but {ergebnis}")
                        break
                    fehler = urteil(fall, soll, ruf, was, ergebnis)
                    if fehler:
                        schlecht.append(f"{fall.name}: {stoerung}: {fehler}: {ergebnis}")
                    nummer += 1
                anzahlen[ruf] = max(anzahlen.get(ruf, 0), nummer - 1)
    return anzahlen


def pruefe_taten(fall):
    """The disk changes before every call: the exchange file is cut, grows, is replaced by another, goes; a
    file or a link appears where the protocol is to stand. Such a file is replaced or stays, and is never deleted; the
    link's target, a foreign file, stays what it is."""
    ort = fall.ort
    datei = os.path.join(ort, fall.datei)
    protokoll = os.path.join(ort, "aus", "p.xml")
    fremde = os.path.join(ort, "fremde")
    gueltig = lies(datei)
    for tat in (f"kuerze {datei} -", f"wachse {datei} -", f"ersetze {datei} {datei}.neu", f"loesche {datei} -",
                f"verknuepfe {protokoll} {fremde}", f"ersetze {protokoll} {protokoll}.neu"):
        for ruf in ("openat", "fstatat", "fstat", "pread", "write", "linkat", "close"):
            nummer, getroffen = 0, True
            while getroffen:
                nummer += 1
                schreibe(datei, gueltig)
                schreibe(datei + ".neu", gueltig[: len(gueltig) // 2])
                schreibe(fremde, b"fremd")
                if tat.startswith(f"ersetze {protokoll}"):
                    schreibe(protokoll + ".neu", b"alt")
                status, ausgabe, gesagt, getroffen = fall.laufe(f"{ruf} {nummer} tat", tat)
                ganz = ausgabe in (KEINE, b"alt") or ausgabe.endswith(b"</SIA451>")
                geloescht = tat.startswith(f"ersetze {protokoll}") and ausgabe == KEINE
                if status != 0 or gesagt or not ganz or geloescht:
                    schlecht.append(f"{fall.name}: {tat} before {ruf} {nummer}: {status} {ausgabe} {gesagt}")
                if lies(fremde) != b"fremd":
                    schlecht.append(f"{fall.name}: {tat} before {ruf} {nummer}: a foreign file is overwritten")


def aufgabe(arbeit):
    fall, rufe = arbeit
    with tempfile.TemporaryDirectory() as ort:
        soll = ausgaben(fall)
        fall.lege(ort)
        if not soll["ganz"].endswith((b"</SIA451>", b"</ZEPHOLT>")):
            schlecht.append(f"{fall.name}: an undisturbed run writes no output")
            return fall, {}
        anzahlen = pruefe_rufe(fall, soll, rufe)
        if rufe is RUFE and not fall.liste:
            pruefe_taten(fall)
        return fall, anzahlen


def main():
    faelle = [
        ("01S, folder", "a.01S", "k"),
        ("E1S, collected file", "a.E1S", "k.vlt"),
        ("list of chapters, folder", "*1", "k"),
        ("list of chapters, collected file", "*1", "k.vlt"),
        ("list of codes", "*9", "k"),
        ("01S, no files without a name", "a.01S", "k", False),
    ]
    arbeiten = [(Fall(*fall), ["malloc"]) for fall in faelle]
    arbeiten += [(Fall(*fall), RUFE) for fall in faelle]
    laeufe = 0
    with ThreadPoolExecutor(os.cpu_count()) as arbeiter:
        for fall, anzahlen in arbeiter.map(aufgabe, arbeiten):
            laeufe += fall.laeufe
            print(f"{fall.name}: {', '.join(f'{ruf} {n}' for ruf, n in anzahlen.items() if n > 0)}")
    for zeile in schlecht[:40]:
        print("FAILED:", zeile)
    print(f"{laeufe} runs disturbed, {len(schlecht)} of them ended as they must not")
    return 1 if schlecht else 0


sys.exit(main())
