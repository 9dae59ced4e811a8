#!/usr/bin/env python3
"""Time and memory of a report on a large exchange file: bench/bericht.py [BUILD FOLDER] [LINES] [FOLDER]

Writes a file with so many full records, of which each quantity has one or two findings, tests it, and makes its page. All
three stay in FOLDER when it is given; bench/oeffnen.sh then opens the page.
"""
import contextlib
import os
import pathlib
import subprocess
import sys
import tempfile
import time

WURZEL = pathlib.Path(__file__).resolve().parents[1]
sys.path.insert(0, str(WURZEL / "tests/bericht"))
from beispiele import gross  # noqa: E402


def gemessen(*befehl):
    """Seconds and the peak of the memory in MB."""
    anfang = time.monotonic()
    prozess = subprocess.Popen(befehl)
    _, _, verbrauch = os.wait4(prozess.pid, 0)
    return f"{time.monotonic() - anfang:.2f} s, {verbrauch.ru_utime + verbrauch.ru_stime:.2f} s of processor, {verbrauch.ru_maxrss / 1024:.0f} MB"


def main():
    bau = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else WURZEL / "build/release")
    zeilen = int(sys.argv[2]) if len(sys.argv) > 2 else 390_000
    with contextlib.nullcontext(sys.argv[3]) if len(sys.argv) > 3 else tempfile.TemporaryDirectory() as name:
        datei, xml, seite = (pathlib.Path(name) / n for n in ("gross.01S", "gross.xml", "gross.html"))
        datei.write_bytes("".join(s.ljust(256) + "\r\n" for s in gross(zeilen)).encode("cp850"))
        xml.unlink(missing_ok=True)  # the program writes over no protocol
        print("test:", gemessen(bau / "zepholt", f"file={datei}", "dialog=de-", f"errorfile={xml}", f"catalog={WURZEL / 'samples/katalog'}"))
        befunde = xml.read_bytes().count(b"<Error ")
        print("page:", gemessen(bau / "zepholt-bericht", "html", xml, datei, "-o", seite))
        groessen = (f"{p.stat().st_size / 1e6:.0f} MB" for p in (datei, xml, seite))
        print(f"{befunde} findings; exchange file {next(groessen)}, protocol {next(groessen)}, page {next(groessen)}")


if __name__ == "__main__":
    main()
