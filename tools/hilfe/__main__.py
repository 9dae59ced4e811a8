"""The pages of help: python3 tools/hilfe [--bau FOLDER] COMMAND [CODE...]

  beispiele   run the examples, of all codes or of some, and tell what is wrong with them
  zeigen      print the pages of some codes (--sprache de, fr or it; all three unless given)
  seiten      write docs/codes anew
  pruefen     everything is there, right, and docs/codes is up to date; counts

FOLDER holds the programs: zepholt, satzschreiber, kapitelschreiber and codeschreiber.
Status 1 when something is wrong, with one line for each fault.
"""
import argparse
import sys
import tempfile
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parent))

import beispiele  # noqa: E402
import seiten  # noqa: E402
import verzeichnis  # noqa: E402
from tabellen import SPRACHEN, Fehler, Tabellen  # noqa: E402

WURZEL = Path(__file__).resolve().parents[2]
HILFE = WURZEL / "hilfe"
ZIEL = WURZEL / "docs/codes"


class Arbeit:
    """Tables, texts and runs of one call; faults are gathered, so that one call tells all of them."""

    def __init__(self, programme):
        self.programme = programme
        self.tabellen = Tabellen(programme)
        self.texte = {sprache: seiten.Texte(HILFE, self.tabellen, sprache) for sprache in SPRACHEN}
        self.laeufe, self.fehler = {}, []

    def versuche(self, aufgabe, *argumente):
        try:
            return aufgabe(*argumente)
        except Fehler as fehler:
            self.fehler.append(str(fehler))
            return None

    def laufe(self, codes):
        """Runs the examples of these codes."""
        with beispiele.Laeufer(self.programme, HILFE, self.tabellen) as laeufer:
            for code, liste in beispiele.alle(HILFE, codes).items():
                laeufe = [self.versuche(laeufer.laufe, beispiel) for beispiel in liste]
                self.laeufe[code] = [lauf for lauf in laeufe if lauf]
                self.versuche(self._folgen_bekannt, code, liste)
        for code in codes:
            self.versuche(self._vollzaehlig, code)

    def _folgen_bekannt(self, code, liste):
        for beispiel in liste:
            if fremd := beispiel.folgen() - set(self.tabellen.zeile(code)["folgen"]):
                beispiel.klage(f"{sorted(fremd)} are no follow-ups of {code} in the table")

    def _vollzaehlig(self, code):
        """An example of each kind of file in which the code can be reported; a call for those of the command line."""
        zeile = self.tabellen.zeile(code)
        soll = set(zeile["dateien"]) or ({beispiele.AUFRUF} if zeile["gemeldet"] == "ja" else set())
        ist = {lauf.art for lauf in self.laeufe.get(code, [])}
        if ist != soll:
            raise Fehler(f"{code}: right examples of {sorted(ist) or 'no kind'}, the table asks for {sorted(soll)}")

    def seite(self, code, sprache):
        abschnitte = self.texte[sprache].abschnitte(code)
        return seiten.Seite(code, sprache, self.tabellen, abschnitte, self.laeufe.get(code, [])).markdown()

    def alle_seiten(self, ziel):
        for sprache in SPRACHEN:
            ordner = ziel / sprache
            ordner.mkdir(parents=True, exist_ok=True)
            for name, text in verzeichnis.verzeichnisse(self.tabellen, sprache).items():
                (ordner / name).write_text(text, encoding="utf-8")
            for code in self.tabellen.codes:
                if text := self.versuche(self.seite, code, sprache):
                    (ordner / f"{code}.md").write_text(text, encoding="utf-8")

    def fremde_texte(self):
        """Texts and examples of codes that don't exist."""
        for pfad in sorted(HILFE.glob("texte/*/*.md")):
            if not pfad.stem.isdigit() or int(pfad.stem) not in self.tabellen.codes:
                self.fehler.append(f"{pfad.relative_to(WURZEL)}: no such code")


def vergleiche(arbeit):
    """docs/codes is what the texts, tables and examples make now."""
    with tempfile.TemporaryDirectory() as neu:
        arbeit.alle_seiten(Path(neu))
        soll = {pfad.relative_to(neu): pfad.read_bytes() for pfad in Path(neu).rglob("*.md")}
    ist = {pfad.relative_to(ZIEL): pfad.read_bytes() for pfad in ZIEL.rglob("*.md")}
    for pfad in sorted(soll.keys() | ist.keys()):
        if soll.get(pfad) != ist.get(pfad):
            arbeit.fehler.append(f"docs/codes/{pfad} is not up to date: tools/hilfe seiten")


def anzahlen(arbeit):
    for sprache in SPRACHEN:
        da = [code for code in arbeit.tabellen.codes if (HILFE / f"texte/{sprache}/{code}.md").exists()]
        print(f"{sprache}: {len(da)} of {len(arbeit.tabellen.codes)} codes have a text")
    for art in ("01S", "E1S", beispiele.AUFRUF):
        print(f"{art}: {sum(lauf.art == art for laeufe in arbeit.laeufe.values() for lauf in laeufe)} examples")


def main():
    eingabe = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    eingabe.add_argument("befehl", choices=("beispiele", "zeigen", "seiten", "pruefen"))
    eingabe.add_argument("codes", nargs="*", type=int)
    eingabe.add_argument("--bau", type=Path, default=WURZEL / "build/debug")
    eingabe.add_argument("--sprache", choices=SPRACHEN)
    wahl = eingabe.parse_args()
    arbeit = Arbeit(programme(wahl.bau))
    arbeit.laufe(wahl.codes or list(arbeit.tabellen.codes))
    if wahl.befehl == "zeigen":
        for code in wahl.codes:
            for sprache in [wahl.sprache] if wahl.sprache else SPRACHEN:
                if text := arbeit.versuche(arbeit.seite, code, sprache):
                    print(text)
    elif wahl.befehl == "seiten":
        arbeit.alle_seiten(ZIEL)
    elif wahl.befehl == "pruefen":
        arbeit.fremde_texte()
        vergleiche(arbeit)
        anzahlen(arbeit)
    for zeile in dict.fromkeys(arbeit.fehler):
        print(zeile, file=sys.stderr)
    return 1 if arbeit.fehler else 0


def programme(bau):
    """A folder that holds all the programs: the build's own, or one with links to those that lie apart."""
    bau = bau.resolve()
    if (bau / "zepholt").exists() and (bau / "codeschreiber").exists():
        return bau
    sys.exit(f"{bau} holds no zepholt or no codeschreiber; --bau names the build folder")


if __name__ == "__main__":
    sys.exit(main())
