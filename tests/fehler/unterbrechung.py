#!/usr/bin/env python3
"""Runs of the real program that are ended or disturbed from outside, and what they leave.

    tests/fehler/unterbrechung.py PROGRAM [TIMES [LIBRARY]]

Ended at random moments by SIGKILL and SIGTERM, TIMES times each (50): a whole protocol or none, nothing beside it; by
SIGTERM also where the file system knows no files without a name, for which LIBRARY is the one of stoerung.cpp. Two runs
with the same errorfile= at once: one whole protocol. A closed pipe behind standard error, a limit of the file size, short
memory: the run ends as defined.
"""

import os
import random
import resource
import signal
import subprocess
import sys
import tempfile
import time

from dateien import dokument, ohne_uhr

PROGRAMM = os.path.realpath(sys.argv[1])
MAL = int(sys.argv[2]) if len(sys.argv) > 2 else 50
ZUFALL = random.Random(451)
OHNE_NAMENLOS = {"LD_PRELOAD": os.path.realpath(sys.argv[3]), "ZEPHOLT_OHNE_NAMENLOS": "1"} if len(sys.argv) > 3 else None
schlecht = 0


def pruefe(gut, was):
    global schlecht
    if not gut:
        schlecht += 1
        print("FAILED:", was)


class Ordner:
    """A folder with a document; the protocols come into a folder of their own."""

    def __init__(self, ort, positionen):
        self.ort = ort
        self.aus = os.path.join(ort, "aus")
        os.makedirs(self.aus)
        os.makedirs(os.path.join(ort, "k"))
        with open(os.path.join(ort, "a.01S"), "w", encoding="ascii", newline="") as datei:
            datei.write(dokument(positionen))
        beginn = time.monotonic()
        self.starte().wait()
        self.spanne = time.monotonic() - beginn  # seconds, in which a moment is drawn; see getoetet
        self.ganz = self.protokoll()
        pruefe(self.ganz.endswith(b"</SIA451>"), "the protocol of a run that nothing disturbs")

    def starte(self, dialog="de-", **weitere):
        befehl = [PROGRAMM, "file=a.01S", f"dialog={dialog}", "errorfile=aus/p.xml", "catalog=k"]
        return subprocess.Popen(befehl, cwd=self.ort, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, **weitere)

    def protokoll(self):
        """The protocol without its date and time, b"" when there is none; then the folder is emptied. Nothing else may
        have stood there."""
        namen = os.listdir(self.aus)
        pruefe(set(namen) <= {"p.xml"}, f"left over: {namen}")
        inhalt = b""
        for name in namen:
            pfad = os.path.join(self.aus, name)
            with open(pfad, "rb") as datei:
                inhalt = datei.read()
            os.unlink(pfad)
        return ohne_uhr(inhalt)

    def ganz_oder_nichts(self, was):
        protokoll = self.protokoll()
        pruefe(protokoll in (b"", self.ganz), f"half a protocol: {was}")
        return protokoll != b""


def getoetet(ordner, signalnummer, wo="", **weitere):
    """The span of the moments follows the machine: it shrinks when a run was through, else it grows, so that about half
    of the runs are met."""
    fertig = 0
    for _ in range(MAL):
        lauf = ordner.starte(**weitere)
        time.sleep(ZUFALL.uniform(0, ordner.spanne))
        lauf.send_signal(signalnummer)
        lauf.wait()
        war_fertig = ordner.ganz_oder_nichts(signal.Signals(signalnummer).name)
        fertig += war_fertig
        ordner.spanne *= 0.9 if war_fertig else 1.1
    pruefe(0 < fertig < MAL, "moments before and behind the end of a run")
    print(f"{MAL} runs ended by {signal.Signals(signalnummer).name}{wo}: {fertig} had written their protocol")


def zu_zweit(ordner):
    for _ in range(MAL):
        laeufe = [ordner.starte(), ordner.starte()]
        for lauf in laeufe:
            pruefe(lauf.wait() == 0, "two runs at once: status")
        pruefe(ordner.protokoll() == ordner.ganz, "two runs at once: one whole protocol")
    print(f"{MAL} times two runs with one errorfile")


def geschlossenes_rohr(ordner):
    umgebung = {name: wert for name, wert in os.environ.items() if "DISPLAY" not in name and "QT_" not in name}
    for _ in range(min(MAL, 40)):
        lesen, schreiben = os.pipe()
        os.close(lesen)
        lauf = ordner.starte("de", stderr=schreiben, env=umgebung)
        os.close(schreiben)
        pruefe(lauf.wait() == 0, f"a closed pipe: status {lauf.returncode}")
        pruefe(ordner.protokoll() == ordner.ganz, "a closed pipe: the protocol")


def begrenzte_dateigroesse(ordner):
    def dateigroesse():
        resource.setrlimit(resource.RLIMIT_FSIZE, (4096, 4096))

    lauf = ordner.starte(preexec_fn=dateigroesse)
    pruefe(lauf.wait() == 0, f"a limit of the file size: status {lauf.returncode}")
    pruefe(ordner.protokoll() == b"", "a limit of the file size: no protocol")


def wenig_speicher(ordner):
    """The limit falls until not even the program itself gets in."""

    def lauf(megabyte):
        def grenze():
            resource.setrlimit(resource.RLIMIT_AS, (megabyte << 20, megabyte << 20))

        prozess = ordner.starte(preexec_fn=grenze, stderr=subprocess.PIPE)
        gesagt = prozess.communicate()[1]
        return prozess.returncode, gesagt, ordner.protokoll()

    if lauf(64)[0] != 0:
        print("short memory: not tried, the program alone needs more than 64 MB")
        return
    for megabyte in range(63, 0, -1):
        status, gesagt, protokoll = lauf(megabyte)
        if status == 127 or status < 0 and not gesagt:
            print(f"short memory: the program needs {megabyte + 1} MB to start")
            break
        if status == 1:
            pruefe(protokoll == b"" and gesagt.count(b"\n") == 1, f"{megabyte} MB: one line and no protocol, {gesagt}")
        else:
            pruefe(status == 0, f"{megabyte} MB: status {status}, {gesagt}")
            pruefe(protokoll == ordner.ganz or b'N="2001"' in protokoll, f"{megabyte} MB: the protocol")


def main():
    with tempfile.TemporaryDirectory() as ort:
        ordner = Ordner(os.path.join(ort, "gross"), 2000)
        getoetet(ordner, signal.SIGKILL)
        getoetet(ordner, signal.SIGTERM)
        if OHNE_NAMENLOS:
            getoetet(ordner, signal.SIGTERM, ", no files without a name", env=OHNE_NAMENLOS)
        begrenzte_dateigroesse(ordner)
        wenig_speicher(ordner)
        ordner = Ordner(os.path.join(ort, "klein"), 20)
        zu_zweit(ordner)
        geschlossenes_rohr(ordner)
    print("failed" if schlecht else "passed")
    return 1 if schlecht else 0


sys.exit(main())
