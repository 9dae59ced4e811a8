"""The pages of help: python3 tools/hilfe [--bau FOLDER] COMMAND [CODE...]

  beispiele   run the examples, of all codes or of some, and tell what is wrong with them
  zeigen      print the pages of some codes (--sprache de, fr or it; all three unless given)
  seiten      write docs/codes anew
  html        make the folder of HTML pages from docs/codes (--ziel)
  daten       write docs/codes as a C++ table, for zepholt-bericht (--ziel)
  falten      the same with nothing but what unfolds beside a finding, for the page in the browser (--ziel)
  pruefen     everything is there, right, and docs/codes is up to date; counts

FOLDER holds the programs zepholt, satzschreiber, kapitelschreiber and codeschreiber; html, daten and falten need none.
Status 1 when something is wrong, with one line for each fault.
"""
import argparse
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parent))

from arbeit import Arbeit  # noqa: E402
from tabellen import SPRACHEN  # noqa: E402


def befehle(wahl):
    """The command's work; returns the faults."""
    arbeit = Arbeit(wahl.bau, wahl.wurzel)
    arbeit.laufe(wahl.codes or list(arbeit.tabellen.codes))
    if wahl.befehl == "zeigen":
        arbeit.zeige(wahl.codes, [wahl.sprache] if wahl.sprache else SPRACHEN)
    elif wahl.befehl == "seiten":
        arbeit.schreibe(arbeit.ziel)
    elif wahl.befehl == "pruefen":
        arbeit.pruefe(wahl.codes)
        arbeit.zaehle()
    return arbeit.fehler


def main():
    eingabe = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    eingabe.add_argument("befehl", choices=("beispiele", "zeigen", "seiten", "html", "daten", "falten", "pruefen"))
    eingabe.add_argument("codes", nargs="*", type=int)
    eingabe.add_argument("--wurzel", type=Path, default=Path(__file__).resolve().parents[2])
    eingabe.add_argument("--bau", type=Path)
    eingabe.add_argument("--sprache", choices=SPRACHEN)
    eingabe.add_argument("--ziel", type=Path)
    wahl = eingabe.parse_args()
    if wahl.befehl in ("html", "daten", "falten"):
        if not wahl.ziel:
            eingabe.error("--ziel names what is written")
        import daten  # these need python3-markdown and no built program
        import webseite
        if wahl.befehl == "html":
            webseite.schreibe(wahl.wurzel / "docs/codes", wahl.ziel)
        else:
            daten.schreibe(wahl.wurzel / "docs/codes", wahl.ziel, ganz=wahl.befehl == "daten")
        return 0
    wahl.bau = (wahl.bau or wahl.wurzel / "build/debug").resolve()
    for programm in ("zepholt", "satzschreiber", "kapitelschreiber", "codeschreiber"):
        if not (wahl.bau / programm).exists():
            eingabe.error(f"{wahl.bau} holds no {programm}; --bau names the build folder")
    fehler = dict.fromkeys(befehle(wahl))
    for zeile in fehler:
        print(zeile, file=sys.stderr)
    return 1 if fehler else 0


if __name__ == "__main__":
    sys.exit(main())
