#!/usr/bin/python3
"""What zepholt-stapel costs, against other ways to test the same files: tempo.py BUILD-FOLDER [FILES] [FOLDER]

Prints files per second and processor time per file: of the program alone (its own processes, one at a time on each core,
started by nothing but a loop: the bound), of zepholt-stapel, of xargs and of GNU parallel with a shell for each file, as
protocols need a folder each. Then the table of a million findings, in few large and in many small protocols. FOLDER has
the files of dateien.py already.
"""
import os
import re
import resource
import shutil
import subprocess
import sys
import tempfile
import time

import dateien

KATALOG = dateien.QUELLE / "samples/katalog"
KERNE = len(os.sched_getaffinity(0))
JE_DATEI = ('mkdir -p "$(dirname "$2/$1")"; exec "$0" "file=$3/$1" dialog=de- "errorfile=$2/$1.xml" "catalog=%s"' % KATALOG)


def prozessorzeit():
    z = resource.getrusage(resource.RUSAGE_CHILDREN)
    return z.ru_utime + z.ru_stime


def gemessen(name, anzahl, aufruf):
    """Prints one line and gives the processor time in seconds."""
    zeit, prozessor = time.monotonic(), prozessorzeit()
    eigenes = aufruf()
    dauer, prozessor = time.monotonic() - zeit, prozessorzeit() - prozessor
    prozessor = prozessor if eigenes is None else eigenes
    print(f"{name:44} {anzahl / dauer:7.0f} files/s {prozessor / anzahl * 1000:7.2f} ms/file", flush=True)
    return prozessor


def grenze(programm, ein, aus, namen):
    """One loop for each core, which does nothing but start the program: its processor time alone."""
    for name in namen:
        os.makedirs(os.path.dirname(os.path.join(aus, name)), exist_ok=True)
    rohre = []
    for kern in range(KERNE):
        lesen, schreiben = os.pipe()
        if os.fork() == 0:
            summe = 0.0
            for name in namen[kern::KERNE]:
                p = os.posix_spawn(programm, [programm, b"file=" + os.path.join(ein, name), "dialog=de-",
                                              b"errorfile=" + os.path.join(aus, name) + b".xml", f"catalog={KATALOG}"], os.environ)
                _, _, kosten = os.wait4(p, 0)
                summe += kosten.ru_utime + kosten.ru_stime
            os.write(schreiben, str(summe).encode())
            os._exit(0)
        rohre.append(lesen)
    for _ in rohre:
        os.wait()
    return sum(float(os.read(r, 100)) for r in rohre)


def wege(bau, ort, ein, anzahl):
    # Names that every way can say.
    namen = [p.name for p in map(dateien.plan, range(anzahl)) if re.fullmatch(rb"[\w/. -]+", p.name) and b"/-" not in p.name]
    liste = os.path.join(ort, "liste")
    with open(liste, "wb") as datei:
        datei.write(b"".join(n + b"\0" for n in namen))
    zepholt = os.path.join(bau, "zepholt")
    ziele = [os.path.join(ort, f"aus{i}") for i in range(4)]
    oben = os.fsencode(ein)
    eigen = gemessen("the program alone, one on each core", len(namen),
                     lambda: grenze(zepholt, oben, os.fsencode(ziele[0]), namen))
    stapel = [os.path.join(bau, "zepholt-stapel"), "-L", liste, "-0", "-b", ein, "-o", ziele[1], "-c", KATALOG, "-l", "de"]
    leise = {"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL}
    gesamt = gemessen("zepholt-stapel, with the table", len(namen), lambda: subprocess.run(stapel, cwd=ein, **leise) and None)
    je_datei = ["sh", "-c", JE_DATEI, zepholt]
    with open(liste, "rb") as eingabe:
        gemessen("xargs -n 1 with a shell", len(namen), lambda: subprocess.run(
            ["xargs", "-0", "-P", str(KERNE), "-I", "{}", *je_datei, "{}", ziele[2], ein], stdin=eingabe, **leise) and None)
    with open(liste, "rb") as eingabe:
        gemessen("GNU parallel per file", len(namen), lambda: subprocess.run(
            ["parallel", "-0", "-q", "-j", str(KERNE), *je_datei, "{}", ziele[3], ein], stdin=eingabe, **leise) and None)
    print(f"zepholt-stapel over the program alone: {(gesamt - eigen) / len(namen) * 1000:.2f} ms of processor time per file")
    for ziel in ziele:
        shutil.rmtree(ziel)
    return (gesamt - eigen) / len(namen) <= 0.001


def million(bau, ort):
    """Protocols with a million findings in all; their memory must not depend on how many protocols they are."""
    befund = ('<Error L="17" I="241.211.001" N="2031" E="A" F="G3:23" T="Unzulässige Zeichen im Record"/>').encode("latin-1")
    gut = True
    for anzahl in (1000, 10000, 100000):
        ordner = os.path.join(ort, f"m{anzahl}")
        os.makedirs(ordner)
        je = 1000000 // anzahl
        text = (b'<?xml version="1.0" encoding="iso-8859-1"?><SIA451><Test><Project ID="P">S</Project><Document ID="D">M'
                b'</Document><Date>2026-11-21</Date><Time>05:13</Time><Errors>%d</Errors><Warnings>0</Warnings><Software '
                b'Manufacturer="M">A</Software><Fileformat Version="451-92.11">01s</Fileformat><Testprogram Version="4.0">'
                b'ZEPHOLT</Testprogram></Test><Errors>' % je + befund * je + b"</Errors></SIA451>")
        for i in range(anzahl):
            with open(os.path.join(ordner, f"{i}.xml"), "wb") as datei:
                datei.write(text)
        liste = b"".join(b"%d.01S\0%d.xml\0\0\0" % (i, i) for i in range(anzahl))
        beginn = time.monotonic()
        p = subprocess.Popen([os.path.join(bau, "zepholt-bericht"), "summary", "t.csv", "t.jsonl"], cwd=ordner,
                             stdin=subprocess.PIPE, stdout=subprocess.DEVNULL)
        p.stdin.write(liste)
        p.stdin.close()
        _, _, kosten = os.wait4(p.pid, 0)
        dauer = time.monotonic() - beginn
        print(f"a million findings in {anzahl:6} protocols: {dauer:5.1f} s, {kosten.ru_utime + kosten.ru_stime:5.1f} s of "
              f"processor time, {kosten.ru_maxrss / 1024:.0f} MB", flush=True)
        gut = gut and dauer < 30
        shutil.rmtree(ordner)
    return gut


def main():
    if len(sys.argv) < 2 or "--help" in sys.argv:
        sys.exit(__doc__)
    bau, anzahl = os.path.realpath(sys.argv[1]), int(sys.argv[2]) if len(sys.argv) > 2 else 2000
    with tempfile.TemporaryDirectory(prefix="zepholt-stapel-") as ort:
        ein = os.path.realpath(sys.argv[3]) if len(sys.argv) > 3 else os.path.join(ort, "ein")
        if len(sys.argv) < 4:
            dateien.erzeuge(ein, anzahl)
        gut = wege(bau, ort, ein, anzahl)
        return 0 if million(bau, ort) and gut else 1


if __name__ == "__main__":
    sys.exit(main())
