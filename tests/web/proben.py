#!/usr/bin/env python3
"""Writes the files that the page is tested with beside the samples: proben.py SOURCE [MEGABYTES]

feindlich/    files that try to break out: markup in names and texts, binary rubbish, cut and empty files, endless lines
schaden.vlt   a collected catalogue with a damaged head
gross1.01S, gross20.01S, gross100.01S   a clean document of that many megabytes
falsch20.01S   a document of 20 megabytes with findings everywhere
"""
import pathlib
import random
import subprocess
import sys

QUELLE = pathlib.Path(sys.argv[1])
MEGABYTE = [1, int(sys.argv[2]) if len(sys.argv) > 2 else 20]

sys.path.insert(0, str(QUELLE / "tests/bericht"))
from beispiele import feindlich, schreiben  # noqa: E402

ordner = pathlib.Path("feindlich")
sauber = (QUELLE / "samples/sauber.01S").read_bytes()
schreiben(ordner / "feindlich.E1S", feindlich(), "utf-8")
zufall = random.Random(451)
for name, inhalt in {
        "leer.01S": b"",
        "ein_byte.E1S": b"A",
        "nullen.01S": bytes(70000),
        "rauschen.01S": zufall.randbytes(50000),
        "rauschen.E1S": zufall.randbytes(50000),
        "eine_zeile.01S": b"A" + b" " * 3000000,
        "nur_zeilenenden.01S": b"\r\n" * 20000,
        "abgeschnitten.01S": sauber[:len(sauber) // 2 + 7],
        "<img src=x onerror=alert(1)>.01S": sauber,
        "a'b & c; ü ${alert(2)}.01S": sauber,
        "C:\\fakepath\\..%2f..%00.01S": sauber,
        "ohne_endung": sauber}.items():
    (ordner / name).write_bytes(inhalt)
katalog = bytearray((QUELLE / "samples/katalog.vlt").read_bytes())
katalog[22:26] = b"xxxx"  # of the first chapter's head: a number is none
pathlib.Path("schaden.vlt").write_bytes(katalog)
for name, mb, *falsch in (*((f"gross{mb}", mb) for mb in MEGABYTE), ("falsch20", 20, "--falsch")):
    ziel = pathlib.Path(name + ".01S")
    if not ziel.exists():
        subprocess.run([sys.executable, "-B", QUELLE / "bench/erzeugen.py", "dokument", ziel, str(mb), *falsch], check=True)
