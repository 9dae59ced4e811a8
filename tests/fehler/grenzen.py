#!/usr/bin/env python3
"""Inputs that are as large, as deep or as false as they come, and limits that the system sets: each ends as defined, in a
time and a memory that grow no faster than the input.

    tests/fehler/grenzen.py PROGRAM [PART]

PART shrinks the inputs: 1 (the default) for the sizes that the documents name, which takes some minutes, 15 GB of disk
and 12 GB of memory; 100 for the tests. Prints a row for each: size, seconds of the processor,
memory, outcome.
"""

import os
import resource
import subprocess
import sys
import tempfile

from dateien import kapiteldatei, ohne_uhr, rahmen, satz, zwei_kapitel

PROGRAMM = os.path.realpath(sys.argv[1])
TEIL = int(sys.argv[2]) if len(sys.argv) > 2 else 1
MB = 1 << 20
schlecht = 0


def pruefe(gut, was):
    global schlecht
    if not gut:
        schlecht += 1
        print("FAILED:", was)


class Lauf:
    """One run in an empty folder; `grenzen` are pairs of a limit of the system and its value."""

    def __init__(self, argumente, grenzen=()):
        def setze():
            for grenze, wert in grenzen:
                resource.setrlimit(grenze, (wert, wert))

        befehl = [PROGRAMM, *argumente, "dialog=de-", "errorfile=aus/p.xml"]
        prozess = subprocess.Popen(befehl, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE,
                                   preexec_fn=setze)
        self.gesagt = prozess.stderr.read().decode(errors="replace")
        _, status, verbrauch = os.wait4(prozess.pid, 0)
        prozess.returncode = self.status = os.waitstatus_to_exitcode(status)
        prozess.stderr.close()
        self.dauer = verbrauch.ru_utime + verbrauch.ru_stime
        self.speicher = verbrauch.ru_maxrss * 1024
        namen = os.listdir("aus")
        pruefe(set(namen) <= {"p.xml"}, f"left over: {namen}")
        self.protokoll = b""
        if "p.xml" in namen:
            with open("aus/p.xml", "rb") as datei:
                self.protokoll = ohne_uhr(datei.read())
            os.unlink("aus/p.xml")

    def codes(self):
        return [stueck[:4].decode() for stueck in self.protokoll.split(b' N="')[1:]]


def zeige(was, groesse, lauf, ausgang, sekunden_je_gb=40.0, speicher_je_byte=7.0):
    """A row of the table; the outcome must be there, and the bounds kept."""
    print(f"{was:44} {groesse / MB:9.1f} MB {lauf.dauer:7.2f} s {lauf.speicher / MB:9.1f} MB  {ausgang}", flush=True)
    pruefe(lauf.dauer < 2 + sekunden_je_gb * groesse / 1e9, f"{was}: {lauf.dauer:.1f} s")
    pruefe(lauf.speicher < 64 * MB + speicher_je_byte * groesse, f"{was}: {lauf.speicher / MB:.0f} MB")


def schreibe(pfad, *stuecke):
    """Pieces of text, or pairs of a text and how often it stands there."""
    with open(pfad, "wb") as datei:
        for stueck in stuecke:
            text, anzahl = stueck if isinstance(stueck, tuple) else (stueck, 1)
            block = text.encode("latin-1")
            je = max(1, MB // max(1, len(block)))
            while anzahl > 0:
                datei.write(block * min(je, anzahl))
                anzahl -= min(je, anzahl)
    return os.path.getsize(pfad)


def dokument(*stuecke):
    """An exchange file of pieces as `schreibe` takes them, each a line; returns its size."""
    zeilen = sum(stueck[1] if isinstance(stueck, tuple) else 1 for stueck in stuecke)
    kopf, ende = rahmen([], anzahl=zeilen + 2).splitlines(keepends=True)
    return schreibe("a.01S", kopf, *stuecke, ende)


ZEILE = satz("G3", {2: "111", 8: "111000", 14: "01", 16: "01", 93: "Text", 200: "x"}) + "\r\n"


def dateien():
    """The exchange file."""
    groesse = dokument((ZEILE, (1 << 30) // TEIL // len(ZEILE)))
    lauf = Lauf(["file=a.01S", "catalog=k"])
    pruefe(lauf.status == 0 and "2021" in lauf.codes(), f"1 GB: the doubled key is found, {lauf.codes()[:9]}")
    zeige("a file of 1 GB, all lines alike", groesse, lauf, "a protocol")

    with open("a.01S", "wb") as datei:
        datei.truncate((5 << 30) // TEIL)
    lauf = Lauf(["file=a.01S", "catalog=k"])
    pruefe(lauf.status == 0 and lauf.codes() == ["2001"], "a sparse file is no text")
    zeige("a sparse file of 5 GB", os.path.getsize("a.01S"), lauf, "2001", 20, 3)

    groesse = dokument(("\r\n", (1 << 31) // TEIL))
    grenze = groesse * 3 // 2 + 64 * MB
    lauf = Lauf(["file=a.01S", "catalog=k"], [(resource.RLIMIT_AS, grenze)])
    pruefe(lauf.status == 0 and lauf.codes() == ["2001"], f"2^31 lines in too little memory: {lauf.status} {lauf.gesagt}")
    zeige("2^31 lines, in half the memory it needs", groesse, lauf, "2001", 20, 3)

    groesse = dokument(satz("G1", {2: "111"}) + "x" * (300 * MB // TEIL) + "\r\n")
    lauf = Lauf(["file=a.01S", "catalog=k"])
    pruefe(lauf.status == 0 and "2032" in lauf.codes(), f"a line of 300 MB: data outside the fields, {lauf.codes()[:9]}")
    zeige("a line of 300 MB", groesse, lauf, "2032")
    os.unlink("a.01S")


def wachstum(was, schreiber, anzahl):
    """A file twice as large takes about twice the time."""
    zeiten = []
    for mal in (1, 2):
        groesse = schreiber(anzahl * mal)
        laeufe = [Lauf(["file=a.01S", "catalog=k"]) for _ in range(3)]
        zeiten.append(min(lauf.dauer for lauf in laeufe))
    zeige(was, groesse, laeufe[-1], f"{zeiten[0]:.2f} s for half of it", 400, 60)
    pruefe(zeiten[1] < 3 * zeiten[0] + 0.2, f"{was}: {zeiten[0]:.2f} s, twice as large {zeiten[1]:.2f} s")


def gewaehlte_schluessel(anzahl):
    """Keys that fall into one place of a table that takes a number by its lower bits."""
    saetze = (satz("B1", {2: "001", 82: f"{i * 16:05X}"}) + "\r\n" for i in range(anzahl))
    return dokument(*saetze)


def gewaehlte_positionen(anzahl):
    """Position numbers from the last to the first: none is where the one before is."""
    saetze = (satz("G2", {2: "111", 8: f"{999999 - i * 7:06}"}) + "\r\n" for i in range(anzahl))
    return dokument(satz("G1", {2: "111", 6: "19"}) + "\r\n", *saetze)


def katalog():
    """Chapters that lie, in a document of two of them."""

    def kapitel(rumpf, tabelle=""):
        text = f"{tabelle} {rumpf}"
        return schreibe("k/N191111.qvm", f"CF1120191111{30 + len(text):09}{0:09}{text}")

    def pruefe_kapitel(was, groesse, codes, ausgang):
        lauf = Lauf(["file=b.01S", "catalog=k"])
        pruefe(lauf.status == 0 and set(lauf.codes()) >= codes, f"{was}: {lauf.status} {lauf.codes()[:9]} {lauf.gesagt}")
        zeige(was, groesse, lauf, ausgang)
        os.unlink("k/N191111.qvm")

    schreibe("b.01S", zwei_kapitel(False))
    tags = 10_000_000 // TEIL
    wurzel = '<Kapitel N="111" V="2019" S="1" A="1" T="">'
    groesse = kapitel(wurzel + '<H N="1"/>' * tags + "</Kapitel>")
    pruefe_kapitel("a chapter of ten million tags", groesse, {"6101"}, "6101: more than fit a count")
    groesse = kapitel(wurzel + "<H >" * tags)
    pruefe_kapitel("ten million tags, none of them closed", groesse, {"6101"}, "6101")
    groesse = kapitel(wurzel + "\x01" * 60_000, "\x01" + "x" * 60_000 + "\n")
    pruefe_kapitel("an abbreviation bomb, 3.6 GB of text", groesse, {"6101"}, "6101")

    paar = "".join(f'<V N="{i}" A="{chr(1) * 5}"/>' for i in (1, 2))
    haupt = "".join(f'<U N="{i}">{paar}</U>' for i in range(1, 41))
    groesse = kapitel(f'{wurzel}<H N="111">{haupt}</H></Kapitel>', "\x01" + "x" * 60_000 + "\n")
    saetze = [satz("G1", {2: "111", 6: "19"})]
    for i in range(111001, 111041):
        saetze.append(satz("G2", {2: "111", 8: str(i)}))
        saetze += [satz("G3", {2: "111", 8: str(i), 14: variable, 16: "01", 93: "Text"}) for variable in ("01", "02")]
    schreibe("b.01S", rahmen(saetze))
    pruefe_kapitel("an alternative group named by 300,000 letters", groesse, {"6305"}, "6305")


def listen():
    anzahl = 200_000 // TEIL
    os.makedirs("v")
    inhalt = kapiteldatei("111").encode("ascii")
    for i in range(anzahl):
        with open(f"v/N{i % 100:02}1{i // 100:03}.qvm" if i < 90_000 else f"v/x{i}.qvm", "wb") as datei:
            datei.write(inhalt)
    lauf = Lauf(["file=*1", "catalog=v"])
    pruefe(lauf.status == 0 and lauf.protokoll.count(b"<Worksection ") == min(anzahl, 90_000), "the list of a large folder")
    zeige("a catalogue folder of 200,000 files", anzahl * len(inhalt), lauf, "the list", 400)

    schreibe("luege.vlt", "CF1120191111000000030" + "0" * 9, ("CF1120191112000000031" + "0" * 9 + " ", 100))
    schreibe("b.01S", zwei_kapitel(False))
    for laenge in ("000000029", "000000000", "-00000001", "999999999", "         "):
        schreibe("luege.vlt", kapiteldatei("111"), "CF1120191112" + laenge + "0" * 9, kapiteldatei("112"))
        lauf = Lauf(["file=b.01S", "catalog=luege.vlt"])
        pruefe(lauf.status in (0, 1) and lauf.dauer < 2, f"a length of {laenge}: {lauf.status}")
    print("lengths of entries that lie: each run ends at once")


def grenzen():
    """Limits of stack and descriptors, falling until the program can't even start."""
    schreibe("b.01S", zwei_kapitel(False))
    for nummer in ("111", "112"):
        schreibe(f"k/N191{nummer}.qvm", kapiteldatei(nummer))
    ganz = Lauf(["file=b.01S", "catalog=k"]).protokoll
    for name, grenze, werte in (("stack", resource.RLIMIT_STACK, [kb << 10 for kb in range(256, 0, -8)]),
                                ("descriptors", resource.RLIMIT_NOFILE, range(16, 2, -1))):
        unten = 0
        for wert in werte:
            lauf = Lauf(["file=b.01S", "catalog=k"], [(grenze, wert)])
            if lauf.status < 0 or lauf.status == 127:  # the system can't start a program with so little
                pruefe(wert <= (32 << 10 if name == "stack" else 3), f"{name} {wert}: status {lauf.status}")
                break
            pruefe(lauf.status in (0, 1), f"{name} {wert}: status {lauf.status}")
            if name == "stack":
                pruefe(lauf.protokoll == ganz, f"a stack of {wert} bytes: the protocol")
            unten = wert if lauf.protokoll == ganz else unten
        print(f"{name}: the whole protocol down to {unten}")


def main():
    with tempfile.TemporaryDirectory() as ort:
        os.chdir(ort)
        os.makedirs("aus")
        os.makedirs("k")
        dateien()
        wachstum("chosen keys", gewaehlte_schluessel, 400_000 // TEIL)
        wachstum("chosen position numbers, descending", gewaehlte_positionen, 130_000 // TEIL)
        katalog()
        listen()
        grenzen()
        os.chdir("/")
    print("failed" if schlecht else "passed")
    return 1 if schlecht else 0


sys.exit(main())
