#!/usr/bin/env python3
"""The pages of help tried as a person uses them: proben.py BUILD [--ziehen SEED]

Twenty pages of each language, drawn at random. Whoever tries one has the page and a faulty file, made from another
description than the page's example, and follows its numbered steps. proben/LANGUAGE/NNNN.KIND.txt keeps both files of a
trial, as an example does: '- ' is the faulty file, '+ ' what the steps made of it. Each is run: the finding is in the one
and not in the other. --ziehen draws anew and names the pages that have no trial yet.
"""
import random
import re
import sys
from pathlib import Path

HIER = Path(__file__).resolve().parent
WURZEL = HIER.parents[1]
sys.path.insert(0, str(WURZEL / "tools/hilfe"))

from beispiele import AUFRUF, Beispiel, Laeufer  # noqa: E402
from tabellen import SPRACHEN, Fehler, Tabellen  # noqa: E402

JE_SPRACHE = 20
SAAT = 20261122


def gezogen(tabellen, saat):
    """Language -> codes; no page is drawn twice."""
    codes = [code for code, zeile in tabellen.codes.items() if zeile["gemeldet"] == "ja"]
    alle = random.Random(saat).sample(codes, JE_SPRACHE * len(SPRACHEN))
    return {sprache: alle[nummer * JE_SPRACHE:(nummer + 1) * JE_SPRACHE] for nummer, sprache in enumerate(SPRACHEN)}


def versuche(laeufer, pfad, sprache):
    """What is wrong with a trial, or nothing; the codes that are left behind its steps."""
    code, art = re.fullmatch(r"(\d{4})\.(01S|E1S|aufruf)\.txt", pfad.name).groups()
    probe = Beispiel(pfad, int(code), art)
    if art == AUFRUF:
        laeufer.laufe(probe)
        return None, []
    falsch, richtig = (laeufer.codes_von(probe, marke, sprache) for marke in "-+")
    if int(code) not in falsch:
        return f"the faulty file gives {falsch}", []
    return (f"{code} is still there" if int(code) in richtig else None), richtig


def main():
    bau = Path(sys.argv[1]).resolve()
    tabellen = Tabellen(bau)
    saat = int(sys.argv[sys.argv.index("--ziehen") + 1]) if "--ziehen" in sys.argv else SAAT
    falsch = 0
    with Laeufer(bau, WURZEL / "hilfe", tabellen) as laeufer:
        for sprache, codes in gezogen(tabellen, saat).items():
            gut = 0
            for code in codes:
                proben = sorted((HIER / "proben" / sprache).glob(f"{code}.*.txt"))
                klagen = [] if proben else ["there is no trial of it"]
                for pfad in proben:
                    try:
                        klage, rest = versuche(laeufer, pfad, sprache)
                    except Fehler as fehler:
                        klage, rest = str(fehler), []
                    klagen += [klage] if klage else []
                    if rest:
                        print(f"     {sprache} {code}: left {rest}")
                gut += not klagen
                for klage in klagen:
                    print(f"FALSE {sprache} {code}: {klage}")
            falsch += len(codes) - gut
            print(f"{sprache}: {gut} of {len(codes)} files repaired by their pages")
    return 1 if falsch else 0


if __name__ == "__main__":
    sys.exit(main())
