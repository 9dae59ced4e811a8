"""The examples of hilfe/beispiele: each is a wrong file and its right twin in one description, and runs in the program."""
import os
import re
import shlex
import subprocess
import tempfile
from dataclasses import dataclass, field
from pathlib import Path

from tabellen import ARTEN, SPRACHEN, Fehler

KOPFZEILE = re.compile(r"# ([a-z]+)(?:\.(01S|E1S))?: *(.*)")
SCHEMATA = Path(__file__).resolve().parents[2] / "docs/schema"
SCHLUESSEL = {"katalog", "folgen", "zeile", "anzahl", "mehr", "rahmen", "seite"}
AUFRUF = "aufruf"


@dataclass
class Datei:
    """One of the two files of an example, as it was written and read."""
    saetze: list  # the records as text, in the order of the file
    markiert: list  # which of them stand in this file alone, as places from 0
    gezeigt: list  # which of them the example names, as places from 0
    befunde: dict = field(default_factory=dict)  # language -> Error elements


@dataclass
class Lauf:
    """An example that has been run and is right."""
    code: int
    art: str
    falsch: Datei
    richtig: Datei
    aufrufe: dict = field(default_factory=dict)  # "falsch"/"richtig" -> command line, for the codes of the command line
    auf_der_seite: bool = True  # else it is run, and the example of the other kind of file stands for both


class Beispiel:
    """NNNN.01S.txt, NNNN.E1S.txt or NNNN.aufruf.txt; NNNN.txt is one of each kind of file."""

    def __init__(self, pfad, code, art):
        self.pfad, self.code, self.art = pfad, code, art
        self.kopf, self.zeilen = {}, []
        for zeile in pfad.read_text(encoding="utf-8").splitlines():
            if not self.zeilen and (kopf := KOPFZEILE.fullmatch(zeile)):
                self._kopfzeile(*kopf.groups())
            elif zeile.strip() and not zeile.startswith("#"):
                marke = zeile[0] if zeile[:2] in ("- ", "+ ") else " "
                self.zeilen.append((marke, zeile[2:] if marke != " " else zeile))
        if not any(marke != " " for marke, _ in self.zeilen):
            self.klage("no line is marked with '- ' or '+ '")

    def _kopfzeile(self, schluessel, art, wert):
        """"# folgen.E1S:" holds for this kind of file alone."""
        if schluessel not in SCHLUESSEL:
            self.klage(f"'# {schluessel}:' is none of {', '.join(sorted(SCHLUESSEL))}")
        if art in (None, self.art):
            self.kopf[schluessel] = wert

    def klage(self, text):
        raise Fehler(f"{self.pfad.name} [{self.art}]: {text}")

    def folgen(self):
        return {int(code) for code in self.kopf.get("folgen", "").split()}

    def seite(self, marke):
        """The lines of the wrong file ("-") or of the right one ("+"), each with whether it is of that file alone."""
        return [(zeile, m == marke) for m, zeile in self.zeilen if m in (marke, " ")]


class Laeufer:
    """Runs examples with the programs of a build folder; `mit` closes its folder."""

    def __init__(self, programme, hilfe, tabellen):
        self.programme, self.tabellen, self.hilfe = programme, tabellen, hilfe
        self._ordner = tempfile.TemporaryDirectory(prefix="zepholt-hilfe-")
        self.ort = Path(self._ordner.name)
        self.rahmen = {art: _rahmen(hilfe / f"beispiele/rahmen.{art}.txt") for art in ARTEN}
        self._kataloge, self._protokolle = {}, set()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._ordner.cleanup()

    def laufe(self, beispiel):
        self.tabellen.zeile(beispiel.code)
        return self._aufruf(beispiel) if beispiel.art == AUFRUF else self._datei(beispiel)

    def schema_pruefen(self):
        """Every protocol that the runs wrote is valid by the schemas of docs/schema."""
        ordner = self.ort / "protokolle"
        ordner.mkdir()
        for nummer, inhalt in enumerate(sorted(self._protokolle)):
            (ordner / f"{nummer}.xml").write_bytes(inhalt)
        dateien = sorted(ordner.iterdir())
        for weg, schema in (("--relaxng", "protokoll.rng"), ("--schema", "protokoll.xsd")):
            if dateien and (ende := subprocess.run(["xmllint", "--noout", weg, SCHEMATA / schema, *dateien], capture_output=True,
                                                   text=True, check=False)).returncode:
                klagen = [zeile for zeile in ende.stderr.splitlines() if not zeile.endswith(" validates")]
                raise Fehler(f"docs/schema/{schema}: {'; '.join(klagen[:3])}")

    # Files

    def _datei(self, beispiel):
        lauf = Lauf(beispiel.code, beispiel.art, self._seite(beispiel, "-"), self._seite(beispiel, "+"))
        erwartet = beispiel.folgen() | {beispiel.code}
        for befunde in lauf.falsch.befunde.values():
            gefunden = [int(re.search(r'N="(\d+)"', e)[1]) for e in befunde]
            if set(gefunden) != erwartet or gefunden.count(beispiel.code) != int(beispiel.kopf.get("anzahl", 1)):
                beispiel.klage(f"the wrong file gives {gefunden or 'no finding'}, expected {sorted(erwartet)}")
        for befunde in lauf.richtig.befunde.values():
            if befunde:
                beispiel.klage(f"the right file has findings: {' '.join(befunde)}")
        self._ort_pruefen(beispiel, lauf)
        lauf.auf_der_seite = beispiel.kopf.get("seite") != "nein"
        return lauf

    def _ort_pruefen(self, beispiel, lauf):
        """The finding lies on a marked line, on the one that `# zeile:` names, or on none."""
        eigene = [e for e in lauf.falsch.befunde["de"] if f'N="{beispiel.code}"' in e]
        ort = re.search(r' L="(\d+)"', eigene[0])
        zeile = int(ort[1]) if ort else 0
        soll = {int(n) for n in beispiel.kopf.get("zeile", "").split()} or {n + 1 for n in lauf.falsch.markiert}
        if zeile and zeile not in soll:
            beispiel.klage(f"the finding stands on line {zeile}, not on {sorted(soll)}; '# zeile: N' names another line")
        if not zeile and "zeile" in beispiel.kopf and beispiel.kopf["zeile"] != "0":
            beispiel.klage("the finding has no line")

    def _seite(self, beispiel, marke):
        zeilen = self._mit_rahmen(beispiel, beispiel.seite(marke))
        (self.ort / "d.txt").write_text("".join(zeile + "\n" for zeile, _, _ in zeilen), encoding="utf-8")
        name = f"e.{beispiel.art}"
        ende = subprocess.run([self.programme / "satzschreiber", "d.txt", name], cwd=self.ort, capture_output=True,
                              text=True, check=False)
        if ende.returncode:
            beispiel.klage(f"satzschreiber: {ende.stderr.strip()}")
        codepage = "cp850" if beispiel.art == "01S" else "utf-8"
        saetze = (self.ort / name).read_bytes().decode(codepage, "replace").split("\r\n")
        datei = Datei(saetze[:-1] if saetze[-1] == "" else saetze, [i for i, z in enumerate(zeilen) if z[1]],
                      [i for i, z in enumerate(zeilen) if z[2]])
        for sprache in SPRACHEN:
            datei.befunde[sprache] = self._protokoll(beispiel, name, sprache)
        return datei

    def codes_von(self, beispiel, marke, sprache):
        """The codes that the wrong file ("-") or the right one ("+") gives, in the order of the protocol."""
        befunde = self._seite(beispiel, marke).befunde[sprache]
        return [int(re.search(r'N="(\d+)"', befund)[1]) for befund in befunde]

    def _mit_rahmen(self, beispiel, zeilen):
        """Records A and Z of the frame, with the fields that the example sets in them, around the other lines."""
        if beispiel.kopf.get("rahmen") == "nein":
            return [(zeile, eigen, True) for zeile, eigen in zeilen]
        def rand(buchstabe):
            mehr = [(zeile[2:], eigen) for zeile, eigen in zeilen if zeile.startswith(buchstabe + " ")]
            text = " ".join([self.rahmen[beispiel.art][buchstabe], *(zeile for zeile, _ in mehr)])
            return text, any(eigen for _, eigen in mehr), bool(mehr)
        mitte = [(zeile, eigen, True) for zeile, eigen in zeilen if zeile[:2] not in ("A ", "Z ")]
        return [rand("A"), *mitte, rand("Z")]

    def _protokoll(self, beispiel, datei, sprache):
        ziel = self.ort / "p.xml"
        ziel.unlink(missing_ok=True)
        katalog = self._katalog(beispiel)
        subprocess.run([self.programme / "zepholt", f"file={datei}", f"dialog={sprache}-", "errorfile=p.xml",
                        f"catalog={katalog}", *shlex.split(beispiel.kopf.get("mehr", ""))], cwd=self.ort, check=False,
                       stdin=subprocess.DEVNULL)
        if not ziel.exists():
            beispiel.klage("the program wrote no protocol")
        inhalt = ziel.read_bytes()
        self._protokolle.add(inhalt)
        return re.findall(r"<Error [^>]*/>", inhalt.decode("latin-1"))

    def _katalog(self, beispiel):
        """The folder of chapter files: that of the samples, or one made from hilfe/beispiele/katalog/NAME.txt."""
        name = beispiel.kopf.get("katalog", "")
        if not name:
            return self.hilfe.parent / "samples/katalog"
        if name not in self._kataloge:
            quelle = self.hilfe / f"beispiele/katalog/{name}.txt"
            if not quelle.exists():
                beispiel.klage(f"there is no {quelle.name} in hilfe/beispiele/katalog")
            ordner = self.ort / f"katalog-{name}"
            ordner.mkdir()
            subprocess.run([self.programme / "kapitelschreiber", "kapitel", quelle, ordner], check=True)
            self._kataloge[name] = ordner
        return self._kataloge[name]

    # Command lines

    def _aufruf(self, beispiel):
        leer = Datei([], [], [])
        lauf = Lauf(beispiel.code, AUFRUF, leer, Datei([], [], []))
        for marke, name in (("-", "falsch"), ("+", "richtig")):
            zeilen = [zeile for zeile, _ in beispiel.seite(marke)]
            if len(zeilen) != 1 or not zeilen[0].startswith("zepholt"):
                beispiel.klage("one line 'zepholt ...' each for wrong and right")
            lauf.aufrufe[name] = zeilen[0]
        for sprache in SPRACHEN:
            meldung, protokoll = self._befehl(lauf.aufrufe["falsch"], sprache)
            text = self.tabellen.zeile(beispiel.code)["texte"][sprache]
            if protokoll is not None or text not in meldung:
                beispiel.klage(f"the wrong call doesn't give its message in {sprache}: {meldung.strip()!r}")
            meldung, protokoll = self._befehl(lauf.aufrufe["richtig"], sprache)
            if protokoll is None or "<Error " in protokoll:
                beispiel.klage(f"the right call gives no clean protocol: {meldung.strip()!r}")
        return lauf

    def _befehl(self, zeile, sprache):
        """Runs a command line where los1.01S, the folder katalog and alt.xml lie; message and protocol, or None."""
        ort = Path(tempfile.mkdtemp(dir=self.ort))
        (ort / "d.txt").write_text("".join(f"{self.rahmen['01S'][b]}\n" for b in "AZ"), encoding="utf-8")
        subprocess.run([self.programme / "satzschreiber", "d.txt", "los1.01S"], cwd=ort, check=True)
        (ort / "katalog").symlink_to(self.hilfe.parent / "samples/katalog")
        (ort / "alt.xml").write_text("alt", encoding="utf-8")
        argumente = [wort.replace("dialog=de", f"dialog={sprache}") if wort == "dialog=de" else wort
                     for wort in shlex.split(zeile)[1:]]
        ohne_schirm = {n: w for n, w in os.environ.items() if n not in ("DISPLAY", "WAYLAND_DISPLAY")}
        ende = subprocess.run([self.programme / "zepholt", *argumente], cwd=ort, capture_output=True, env=ohne_schirm,
                              stdin=subprocess.DEVNULL, check=False)
        protokoll = ort / "fehler.xml"
        return (ende.stderr.decode("utf-8", "replace"),
                protokoll.read_bytes().decode("latin-1") if protokoll.exists() else None)


def _rahmen(pfad):
    zeilen = [zeile for zeile in pfad.read_text(encoding="utf-8").splitlines() if zeile and not zeile.startswith("#")]
    return {zeile[0]: zeile for zeile in zeilen}


def alle(hilfe, codes=()):
    """The examples by code, all of them or those of some codes."""
    ergebnis = {}
    for pfad in sorted((hilfe / "beispiele").glob("[0-9]*.txt")):
        treffer = re.fullmatch(r"(\d{4})(?:\.(01S|E1S|aufruf))?\.txt", pfad.name)
        if not treffer:
            raise Fehler(f"{pfad.name}: an example is called NNNN.txt, NNNN.01S.txt, NNNN.E1S.txt or NNNN.aufruf.txt")
        if not codes or int(treffer[1]) in codes:
            for art in (treffer[2],) if treffer[2] else ARTEN:
                ergebnis.setdefault(int(treffer[1]), []).append(Beispiel(pfad, int(treffer[1]), art))
    return ergebnis
