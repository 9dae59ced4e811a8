"""What the program's own tables say of the codes and of the fields: read from codeschreiber, never typed."""
import json
import re
import subprocess

ARTEN = ("01S", "E1S")  # the kinds of exchange file
SPRACHEN = ("de", "fr", "it")


class Fehler(Exception):
    """What is wrong with a text, an example or a page, in words for the person who wrote it."""


class Tabellen:
    def __init__(self, programme):
        alles = json.loads(subprocess.run([programme / "codeschreiber"], check=True, capture_output=True).stdout)
        self.codes = {zeile["code"]: zeile for zeile in alles["codes"]}
        self.felder = alles["felder"]  # kind of file -> [{"feld", "spalte", "laenge", "namen"}]

    def zeile(self, code):
        if code not in self.codes:
            raise Fehler(f"{code}: no such code")
        return self.codes[code]

    def recordtypen(self, code):
        """The record types that the code's field reference speaks of: "G2/3:12" G2 and G3, "P1-P5" five, "eG6:13" G6."""
        return _typen(self.zeile(code)["feld"].partition(":")[0], self._alle_typen())

    def felder_von(self, code, art):
        """The layout rows that the code's reference names in a kind of file; "C1:15" is the row "C1:15-16"."""
        bezug, _, felder = self.zeile(code)["feld"].partition(":")
        typen = _typen(bezug, self._alle_typen())
        if not felder:
            return []
        gesucht = {f"{typ}:{feld}" for typ in typen for feld in _felder(felder)}
        gesucht |= {f"{typ}:{felder}" for typ in typen}
        return ([zeile for zeile in self.felder[art] if zeile["feld"] in gesucht] or
                [zeile for zeile in self.felder[art] if zeile["feld"].partition("-")[0] in gesucht])

    def felder_des_records(self, satz, art):
        typ = satz[:1] if satz[:1] in "AZ" else satz[:1] + satz[41:42]
        return [zeile for zeile in self.felder[art] if zeile["feld"].partition(":")[0] == typ]

    def _alle_typen(self):
        return sorted({zeile["feld"].partition(":")[0] for art in ARTEN for zeile in self.felder[art]})


def _felder(bezug):
    """"17/18" two fields, "24c-d" what a layout row calls so, "4/5" two."""
    return bezug.split("/")


def _typen(bezug, alle):
    bezug = bezug.removeprefix("e")
    if bezug == "X/P":
        return [typ for typ in alle if typ[0] in "XP"]
    if treffer := re.fullmatch(r"(\w)(\d)-\1(\d)", bezug):
        return [f"{treffer[1]}{n}" for n in range(int(treffer[2]), int(treffer[3]) + 1)]
    if treffer := re.fullmatch(r"(\w)(\d)/(\d)", bezug):
        return [treffer[1] + treffer[2], treffer[1] + treffer[3]]
    return [bezug] if bezug else []
