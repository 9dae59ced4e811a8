#!/usr/bin/python3
"""A run of zepholt-stapel over generated files, killed again and again: abschuesse.py BUILD-FOLDER FILES [KILLS [FOLDER]]

KILLS times (30) SIGKILL at random moments, in turn to a zepholt, a worker, xargs, the script, and to all at once; whoever
lost the script starts it anew. Then every file must have its one protocol with the verdict that its source demands, and
nothing may lie beside. Prints figures; FOLDER is kept, with the generated files in it, without one all is removed.
"""
import os
import random
import resource
import signal
import subprocess
import sys
import tempfile
import time

import dateien
import pruefung

ZIELE = ("zepholt", "worker", "xargs", "script", "all")
EINTRAG = 40  # bytes of the journal for one file, roughly


def kinder(nummer):
    """The processes that this one has started and that are not over."""
    try:
        with open(f"/proc/{nummer}/task/{nummer}/children", encoding="ascii") as datei:
            return [int(kind) for kind in datei.read().split()]
    except OSError:
        return []


def name_von(nummer):
    try:
        with open(f"/proc/{nummer}/comm", encoding="utf-8", errors="replace") as datei:
            return datei.read().rstrip("\n")
    except OSError:
        return ""


class Lauf:
    def __init__(self, bau, ein, aus):
        quelle = dateien.QUELLE
        self.aus = aus
        self.pool = 0  # the number of xargs
        self.befehl = [os.path.join(bau, "zepholt-stapel"), ein, "-o", aus, "-c", quelle / "samples/katalog"]
        self.starte()

    def starte(self):
        self.haupt = subprocess.Popen(self.befehl, start_new_session=True, stdout=subprocess.DEVNULL,
                                      stderr=subprocess.DEVNULL)

    def laeuft(self):
        return self.haupt.poll() is None

    def anteil(self, anzahl):
        """How much of the work the journals tell, roughly."""
        ordner = os.path.join(self.aus, pruefung.ARBEITSORDNER)
        if not os.path.isdir(ordner):
            return 0
        groesse = sum(os.stat(os.path.join(ordner, n)).st_size for n in os.listdir(ordner) if n.endswith(".journal"))
        return groesse / (EINTRAG * anzahl)

    def ziele(self, ziel):
        """Those that the kill is meant for; empty while there are none. The pool of a killed script works on, and the
        script that was started anew waits for it."""
        self.pool = next((kind for kind in kinder(self.haupt.pid) if name_von(kind) == "xargs"), self.pool)
        if name_von(self.pool) != "xargs":
            return []
        if ziel == "script":
            return [self.haupt.pid]
        if ziel == "xargs":
            return [self.pool]
        arbeiter = kinder(self.pool)
        if ziel == "worker":
            return arbeiter[:1]
        pruefungen = [kind for einer in arbeiter for kind in kinder(einer)]
        return pruefungen[:1] if ziel == "zepholt" else [self.haupt.pid, self.pool, *arbeiter, *pruefungen]

    def abschuss(self, ziel):
        """Kills as soon as there is something to kill, and starts the script again where it was killed."""
        while self.laeuft():
            opfer = self.ziele(ziel)
            for nummer in opfer:
                try:
                    os.kill(nummer, signal.SIGKILL)
                except ProcessLookupError:
                    pass  # it was faster
            if opfer:
                break
        if ziel in ("script", "all"):
            self.haupt.wait()
            self.starte()


def laufen(bau, ordner, anzahl, abschuesse):
    ein, aus = (os.path.join(ordner, name) for name in ("ein", "aus"))
    beginn = time.monotonic()
    if not os.path.isdir(ein):
        groesse = dateien.erzeuge(ein, anzahl)
        print(f"{anzahl} files, {groesse / 1e6:.0f} MB, made in {time.monotonic() - beginn:.0f} s", flush=True)
    zufall = random.Random(anzahl)
    momente = sorted(zufall.uniform(0, 0.8) for _ in range(abschuesse))
    beginn = time.monotonic()
    lauf = Lauf(bau, ein, aus)
    getan = dict.fromkeys(ZIELE, 0)
    for i, moment in enumerate(momente):
        while lauf.laeuft() and lauf.anteil(anzahl) < moment:
            time.sleep(0.005)
        if not lauf.laeuft():
            break
        ziel = ZIELE[i % len(ZIELE)]
        lauf.abschuss(ziel)
        getan[ziel] += 1
    status = lauf.haupt.wait()
    dauer = time.monotonic() - beginn
    klagen = pruefung.abweichungen(aus, anzahl)
    if status != 1:
        klagen.append(f"status {status} instead of 1")
    if sum(getan.values()) != abschuesse:
        klagen.append(f"only {sum(getan.values())} kills")
    print("\n".join(klagen[:20]))
    verlauf = ", ".join(f"{n} {z}" for z, n in getan.items())
    kosten = resource.getrusage(resource.RUSAGE_CHILDREN)
    print(f"{anzahl} files, killed: {verlauf}; {dauer:.1f} s, {anzahl / dauer:.0f} files/s, "
          f"{kosten.ru_utime + kosten.ru_stime:.1f} s of processor time seen; {len(klagen)} deviations")
    return 1 if klagen else 0


def main():
    if len(sys.argv) < 3 or "--help" in sys.argv:
        sys.exit(__doc__)
    bau, anzahl = os.path.realpath(sys.argv[1]), int(sys.argv[2])
    abschuesse = int(sys.argv[3]) if len(sys.argv) > 3 else 30
    if len(sys.argv) > 4:
        return laufen(bau, os.path.realpath(sys.argv[4]), anzahl, abschuesse)
    with tempfile.TemporaryDirectory(prefix="zepholt-stapel-") as ordner:
        return laufen(bau, ordner, anzahl, abschuesse)


if __name__ == "__main__":
    sys.exit(main())
