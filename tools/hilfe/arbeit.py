"""One call's work: tables, texts and runs together. Faults are gathered, so that a call tells all of them."""
import tempfile
from pathlib import Path

import beispiele
import seiten
import verzeichnis
from tabellen import SPRACHEN, Fehler, Tabellen


class Arbeit:
    """`wurzel` is the project's folder, with hilfe/ and docs/codes/; `programme` the folder of the built programs."""

    def __init__(self, programme, wurzel):
        self.programme, self.wurzel = programme, wurzel
        self.hilfe, self.ziel = wurzel / "hilfe", wurzel / "docs/codes"
        self.tabellen = Tabellen(programme)
        self.texte = {sprache: seiten.Texte(self.hilfe, self.tabellen, sprache) for sprache in SPRACHEN}
        self.laeufe, self.fehler = {}, []

    def versuche(self, aufgabe, *argumente):
        try:
            return aufgabe(*argumente)
        except Fehler as fehler:
            self.fehler.append(str(fehler))
            return None

    # Examples

    def laufe(self, codes):
        """Runs the examples of these codes."""
        with beispiele.Laeufer(self.programme, self.hilfe, self.tabellen) as laeufer:
            for code, liste in (self.versuche(beispiele.alle, self.hilfe, codes) or {}).items():
                laeufe = [self.versuche(laeufer.laufe, beispiel) for beispiel in liste]
                self.laeufe[code] = [lauf for lauf in laeufe if lauf]
                for beispiel in liste:
                    self.versuche(self._folgen_bekannt, beispiel)
            self.versuche(laeufer.schema_pruefen)
        for code in codes:
            self.versuche(self._vollzaehlig, code)

    def _folgen_bekannt(self, beispiel):
        if fremd := beispiel.folgen() - set(self.tabellen.zeile(beispiel.code)["folgen"]):
            beispiel.klage(f"{sorted(fremd)} are no follow-ups of {beispiel.code} in the table")

    def _vollzaehlig(self, code):
        """An example of each kind of file in which the code can be reported; a call for those of the command line."""
        zeile = self.tabellen.zeile(code)
        soll = set(zeile["dateien"]) or ({beispiele.AUFRUF} if zeile["gemeldet"] == "ja" else set())
        ist = {lauf.art for lauf in self.laeufe.get(code, [])}
        if ist != soll:
            raise Fehler(f"{code}: right examples of {sorted(ist) or 'no kind'}, the table asks for {sorted(soll)}")

    # Pages

    def seite(self, code, sprache):
        abschnitte = self.texte[sprache].abschnitte(code)
        return seiten.Seite(code, sprache, self.tabellen, abschnitte, self.laeufe.get(code, [])).markdown()

    def zeige(self, codes, sprachen):
        for code in codes:
            for sprache in sprachen:
                if text := self.versuche(self.seite, code, sprache):
                    print(text)

    def schreibe(self, ziel, codes=()):
        """Indexes and pages, of all codes or of some, into a folder."""
        for sprache in SPRACHEN:
            ordner = ziel / sprache
            ordner.mkdir(parents=True, exist_ok=True)
            for name, text in verzeichnis.verzeichnisse(self.tabellen, sprache).items():
                (ordner / name).write_text(text, encoding="utf-8")
            for code in codes or self.tabellen.codes:
                if text := self.versuche(self.seite, code, sprache):
                    (ordner / f"{code}.md").write_text(text, encoding="utf-8")

    # Checks

    def pruefe(self, codes=()):
        """Texts and pages of codes that exist, and docs/codes as texts, tables and examples make it now."""
        for pfad in sorted(self.hilfe.glob("texte/*/*")) + sorted(self.ziel.glob("*/*")):
            namen = {str(code) for code in self.tabellen.codes} | {Path(n).stem for n in verzeichnis.DATEIEN}
            if pfad.suffix != ".md" or pfad.stem not in namen:
                self.fehler.append(f"{pfad.relative_to(self.wurzel)}: no such code")
        with tempfile.TemporaryDirectory() as neu:
            self.schreibe(Path(neu), codes)
            soll = {pfad.relative_to(neu): pfad.read_bytes() for pfad in Path(neu).rglob("*.md")}
        ist = {pfad.relative_to(self.ziel): pfad.read_bytes() for pfad in self.ziel.rglob("*.md")}
        if codes:
            gefragt = {str(code) for code in codes}
            ist = {pfad: text for pfad, text in ist.items() if pfad.stem in gefragt or not pfad.stem.isdigit()}
        for pfad in sorted(soll.keys() | ist.keys()):
            if soll.get(pfad) != ist.get(pfad):
                self.fehler.append(f"docs/codes/{pfad} is not up to date: python3 tools/hilfe seiten")

    def zaehle(self):
        for sprache in SPRACHEN:
            texte = [code for code in self.tabellen.codes if (self.hilfe / f"texte/{sprache}/{code}.md").exists()]
            print(f"{sprache}: {len(texte)} of {len(self.tabellen.codes)} codes have a text")
        for art in ("01S", "E1S", beispiele.AUFRUF):
            print(f"{art}: {sum(lauf.art == art for laeufe in self.laeufe.values() for lauf in laeufe)} examples")
