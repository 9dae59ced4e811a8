#!/usr/bin/env python3
"""How soon a run answers Ctrl+C, at any of its moments.

    bench/abbruch.py [PROGRAM [MOMENTS]]

Runs PROGRAM (build/release/zepholt) on a terminal of its own with large files of several shapes. At each of MOMENTS (20)
spread over the time of a whole run, Ctrl+C is pressed and what then asks is answered with Yes. Two times count: until the
question stands there, and from the answer to the end of the process, which writes no protocol. Prints both for each shape,
the median and the longest. Fails when a question takes longer than 300 ms or a cancelled run leaves something behind; how
long the end takes is the rules' affair, which let the tests of the records run to their end.
"""
import os
import pathlib
import pty
import select
import subprocess
import sys
import tempfile
import time

FRIST = 0.3  # seconds to the question
WURZEL = pathlib.Path(__file__).resolve().parent.parent
FORMEN = (("dokument", "01S", 100, ()), ("dokument", "E1S", 100, ("--falsch",)), ("dokument_katalog", "E1S", 100, ()),
          ("zeichen", "01S", 500_000, ()), ("mengen_allein", "01S", 1_000_000, ()), ("objekte_gemischt", "01S", 900_000, ()),
          ("doppelte", "01S", 900_000, ()), ("laufnummern", "E1S", 900_000, ()), ("leer", "01S", 5_000_000, ()))


class Lauf:
    """A run on a terminal of its own."""

    def __init__(self, programm, datei, katalog):
        self.ordner = pathlib.Path(tempfile.mkdtemp(dir=datei.parent))
        argumente = ["zepholt", f"file={datei}", "dialog=de", f"errorfile={self.ordner}/p.xml", f"catalog={katalog}"]
        umgebung = {name: wert for name, wert in os.environ.items() if name not in ("DISPLAY", "WAYLAND_DISPLAY")}
        self.kind, self.terminal = pty.fork()
        if self.kind == 0:
            os.execve(programm, argumente, umgebung)
        self.gesagt = b""
        self.beginn = time.monotonic()

    def lies(self, bis):
        """Takes what the run says; False at its end."""
        if select.select([self.terminal], [], [], max(0, bis - time.monotonic()))[0]:
            try:
                self.gesagt += os.read(self.terminal, 65536)
            except OSError:
                return False
        return True

    def warte(self, sekunden):
        """Whether the run is still there after that time."""
        bis = time.monotonic() + sekunden
        while time.monotonic() < bis:
            if not self.lies(bis):
                return False
        return True

    def brich_ab(self):
        """(seconds to the question, seconds from the answer to the end), or None when the run was over before."""
        self.gesagt = b""
        gedrueckt = time.monotonic()
        os.write(self.terminal, b"\x03")
        while b"(j/n)" not in self.gesagt:
            if not self.lies(gedrueckt + 60):
                return None
        gefragt = time.monotonic()
        os.write(self.terminal, b"j\n")
        while self.lies(gefragt + 60):
            pass
        return gefragt - gedrueckt, time.monotonic() - gefragt

    def ende(self):
        """Waits for the end; what the run left in its folder."""
        while self.lies(time.monotonic() + 60):
            pass
        os.waitpid(self.kind, 0)
        os.close(self.terminal)
        return os.listdir(self.ordner)


def messe(programm, datei, katalog, momente):
    ganz = Lauf(programm, datei, katalog)
    if ganz.ende() != ["p.xml"]:
        sys.exit(f"{datei.name}: no protocol")
    dauer = time.monotonic() - ganz.beginn
    zeiten, faule = [], 0
    for k in range(momente):
        lauf = Lauf(programm, datei, katalog)
        zeit = lauf.brich_ab() if lauf.warte(dauer * (k + 0.5) / momente) else None
        uebrig = lauf.ende()
        if zeit:
            zeiten.append(zeit)
            faule += bool(uebrig)
    return dauer, zeiten, faule


def main():
    programm = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else WURZEL / "build/release/zepholt").resolve()
    momente = int(sys.argv[2]) if len(sys.argv) > 2 else 20
    schlecht = False
    print(f"{'shape':18} {'kind':4} {'whole run':>9} {'moments':>7} {'question, ms':>15} {'end, ms':>15}")
    with tempfile.TemporaryDirectory() as ordner:
        ordner = pathlib.Path(ordner)
        (ordner / "leer").mkdir()
        for form, art, n, falsch in FORMEN:
            datei = ordner / f"a.{art}"
            subprocess.run([WURZEL / "bench/erzeugen.py", form, datei, str(n), *falsch], check=True)
            katalog = pathlib.Path(f"{datei}.katalog")
            dauer, zeiten, faule = messe(programm, datei, katalog if katalog.exists() else ordner / "leer", momente)
            subprocess.run(["rm", "-rf", datei, katalog], check=True)
            spalten = ""
            for teil in zip(*zeiten):
                teil = sorted(teil)
                spalten += f" {teil[len(teil) // 2] * 1000:7.0f} {teil[-1] * 1000:7.0f}"
            schlecht |= any(frage > FRIST for frage, _ in zeiten)
            print(f"{form:18} {art:4} {dauer:7.2f} s {len(zeiten):7}{spalten}" + f"  {faule} left something" * bool(faule), flush=True)
            schlecht |= bool(faule) or not zeiten
    print("failed" if schlecht else "passed")
    return schlecht


sys.exit(main())
