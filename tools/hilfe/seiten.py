"""The pages of docs/codes, in Markdown: the words of hilfe/texte between what the tables and the examples say."""
import re
import textwrap

import bild
from beispiele import AUFRUF
from tabellen import ARTEN, SPRACHEN, Fehler
from woerter import ABSCHNITTE, ETAPPEN, HALT, NIE, ORT, WOERTER, wort

LAENGSTE_SEITE = 60  # lines
ZEILENBREITE = 130  # columns of a line of prose
PFLICHT = ("geprueft", "beheben", "herkunft", "dazu", "regel")
PFLICHT_NIE = ("geprueft", "nie")
# What a code without a field reference is about, by its stage.
OHNE_FELD = {"aufruf": "aufruf", "zeichen": "wechselnd", "felder": "wechselnd", "gliederungen": "mehrere",
             "konditionen": "kondition", "nachlauf": "position", "katalog": "katalog", "programm": "programm"}
VERWEIS = re.compile(r"\[(\d{4})\](?!\()")
KLEBER = "\x00"
LISTE = re.compile(r"- |\d{1,2}\. ")
NUR = re.compile(r"^((?:- |\d+\. )?)\{nur ([\d ]+)\} ?")


def _gefuellt(zeilen):
    """A paragraph, or an item of a list with its text behind the mark."""
    text = " ".join(" ".join(zeilen).split())
    marke = LISTE.match(text)
    einzug = " " * len(marke[0]) if marke else ""
    # No line of a paragraph begins like an item, or with the mark of a French sentence.
    text = re.sub(r" (?=(?:[-+*]|\d+\.) |[;:?!»])", KLEBER, text)
    zeilen = textwrap.wrap(text, ZEILENBREITE, subsequent_indent=einzug, break_long_words=False, break_on_hyphens=False)
    return [zeile.replace(KLEBER, " ") for zeile in zeilen]


class Texte:
    """The prose of one language: code -> section -> text."""

    def __init__(self, hilfe, tabellen, sprache):
        self.ordner, self.tabellen, self.sprache = hilfe / "texte" / sprache, tabellen, sprache

    def abschnitte(self, code):
        pfad = self._quelle(code)
        titel = {text: name for name, text in ABSCHNITTE[self.sprache].items()}
        ergebnis, name = {}, None
        for zeile in pfad.read_text(encoding="utf-8").splitlines():
            if zeile.startswith("#"):
                name = titel.get(zeile.removeprefix("## "))
                if name is None or name in ergebnis:
                    raise Fehler(f"{self._wo(pfad)}: '{zeile}' is no section, or stands twice")
                ergebnis[name] = []
            elif name is None and zeile.strip():
                raise Fehler(f"{self._wo(pfad)}: text in front of the first section")
            elif name:
                ergebnis[name].append(zeile)
        self._vollstaendig(code, pfad, ergebnis)
        return {n: self._fuer(code, zeilen, pfad) for n, zeilen in ergebnis.items()}

    def _quelle(self, code):
        """The file of a code; the line "wie NNNN" in it sends to that of another code, one step."""
        pfad = self.ordner / f"{code}.md"
        if not pfad.exists():
            raise Fehler(f"{self._wo(pfad)} is missing")
        if verweis := re.fullmatch(r"wie (\d{4})\s*", pfad.read_text(encoding="utf-8")):
            pfad = self.ordner / f"{verweis[1]}.md"
            if not pfad.exists() or pfad.read_text(encoding="utf-8").startswith("wie "):
                raise Fehler(f"{self._wo(self.ordner / f'{code}.md')}: {verweis[0].strip()} leads to no text")
        return pfad

    def _wo(self, pfad):
        return f"hilfe/texte/{self.sprache}/{pfad.name}"

    def _vollstaendig(self, code, pfad, teile):
        pflicht = PFLICHT if self.tabellen.zeile(code)["gemeldet"] == "ja" else PFLICHT_NIE
        for name in pflicht:
            if not "".join(teile.get(name, [])).strip():
                raise Fehler(f"{self._wo(pfad)}: '## {ABSCHNITTE[self.sprache][name]}' is missing or empty")
        if list(teile) != [name for name in ABSCHNITTE[self.sprache] if name in teile]:
            raise Fehler(f"{self._wo(pfad)}: the sections stand in another order than the form's")
        if "ß" in "".join("".join(zeilen) for zeilen in teile.values()):
            raise Fehler(f"{self._wo(pfad)}: 'ß' is 'ss' here")

    def _fuer(self, code, zeilen, pfad):
        """The lines of a section as they hold for one code: lines of other codes left out, placeholders filled."""
        ergebnis, weg = [], False
        for zeile in zeilen:
            if nur := NUR.match(zeile):
                weg = str(code) not in nur[2].split()
                zeile = nur[1] + zeile[nur.end():]
            elif not zeile.strip() or LISTE.match(zeile):
                weg = False
            if not weg:
                ergebnis.append(zeile)
        text = re.sub(r"\n{3,}", "\n\n", "\n".join(ergebnis)).strip("\n")
        for name, wert in self._platzhalter(code).items():
            text = text.replace("{" + name + "}", wert)
        if rest := re.search(r"\{\w*\}|\{nur", text):
            raise Fehler(f"{self._wo(pfad)}: {rest[0]} is no placeholder")
        return text

    def _platzhalter(self, code):
        zeile = self.tabellen.zeile(code)
        felder = self.tabellen.felder_von(code, ARTEN[0]) or self.tabellen.felder_von(code, ARTEN[1])
        return {
            "code": str(code), "text": zeile["texte"][self.sprache].strip(), "bezug": zeile["feld"],
            "record": "/".join(self.tabellen.recordtypen(code)), "feld": zeile["feld"].partition(":")[2],
            "spalten": ", ".join(bild.spalten(f["spalte"], f["laenge"], self.sprache) for f in felder[:1]),
        }


class Seite:
    """One page: the head from the tables, the example from its run, the prose in between."""

    def __init__(self, code, sprache, tabellen, abschnitte, laeufe):
        self.code, self.sprache, self.tabellen = code, sprache, tabellen
        self.abschnitte, self.laeufe = abschnitte, [lauf for lauf in laeufe if lauf.auf_der_seite]
        self.zeile = tabellen.zeile(code)
        self.w = WOERTER[sprache]

    def markdown(self):
        teile = [f"# {self.code} · {self.zeile['texte'][self.sprache].strip()}", "\n".join(self._kopf())]
        for name, titel in ABSCHNITTE[self.sprache].items():
            if name == "nie" and self.zeile["gemeldet"] != "ja":
                teile.append(self._abschnitt(titel, self._prosa(
                    f"{wort(NIE, self.zeile['gemeldet'], self.sprache)} {self.abschnitte[name]}")))
            elif name in self.abschnitte:
                teile.append(self._abschnitt(titel, self._prosa(self.abschnitte[name])))
            if name == "geprueft" and self.laeufe:
                teile.append(self._abschnitt(self.w["beispiel"], self._beispiele()))
        teile.append(self._fuss())
        text = self._verlinkt("\n\n".join(teile)) + "\n"
        laenge = text.count("\n")
        if laenge > LAENGSTE_SEITE:
            raise Fehler(f"docs/codes/{self.sprache}/{self.code}.md: {laenge} lines, at most {LAENGSTE_SEITE}")
        return text

    def _abschnitt(self, titel, text):
        return f"## {titel}\n\n{text}"

    def _prosa(self, text):
        """Filled anew: a line of a text may have any length, a line of a page has 130 columns at most."""
        absaetze, offen = [], []
        for zeile in [*self._verlinkt(text).split("\n"), ""]:
            if not zeile.strip() or LISTE.match(zeile):
                absaetze += _gefuellt(offen) + ([""] if not zeile.strip() else [])
                offen = [zeile] if zeile.strip() else []
            else:
                offen.append(zeile)
        return "\n".join(absaetze + _gefuellt(offen)).strip("\n")

    # Head

    def _kopf(self):
        zeile, w = self.zeile, self.w
        dateien = [w[art] for art in zeile["dateien"]]
        reihen = [(w["schwere"], w[zeile["schwere"]]), (w["betrifft"], self._betrifft()),
                  *([(w["dateien"], w["und"].join(dateien))] if dateien else []),
                  (w["etappe"], wort(ETAPPEN, zeile["etappe"], self.sprache))]
        if zeile["gemeldet"] == "ja":
            reihen += [(w["protokoll"], wort(ORT, zeile["ort"], self.sprache)),
                       (w["weiter"], wort(HALT, self._haelt(), self.sprache))]
        if zeile["folgen"]:
            reihen.append((w["folgen"], ", ".join(f"[{code}]" for code in zeile["folgen"])))
        return ["| | |", "|---|---|"] + [f"| {name} | {wert} |" for name, wert in reihen]

    def _haelt(self):
        """A finding that belongs to no line stops no record's test."""
        ohne_record = self.zeile["haelt"] == "nichts" and self.zeile["ort"] in ("ohne", "position")
        return "weiter" if ohne_record else self.zeile["haelt"]

    def _betrifft(self):
        w, etappe = self.w, self.zeile["etappe"]
        typen = self.tabellen.recordtypen(self.code)
        if not typen:
            return w[OHNE_FELD.get(etappe, "ganze_datei") if self.zeile["ort"] != "ohne" else "ganze_datei"]
        text = f"{w['record'] if len(typen) == 1 else w['records']} {', '.join(typen)}"
        felder = {art: self.tabellen.felder_von(self.code, art) for art in ARTEN}
        lagen = {art: self._lage(zeilen) for art, zeilen in felder.items() if zeilen}
        for lage in dict.fromkeys(lagen.values()):
            arten = [art for art in lagen if lagen[art] == lage]
            text += f", {lage}" + (f" ({arten[0]})" if len(set(lagen.values())) > 1 else "")
        return text[0].upper() + text[1:]

    def _lage(self, zeilen):
        lagen = {(z["feld"].partition(":")[2], z["namen"][self.sprache], z["spalte"], z["laenge"]): None for z in zeilen}
        return ", ".join(f"{self.w['feld']} {feld} ({name}), {bild.spalten(spalte, laenge, self.sprache)}"
                         for feld, name, spalte, laenge in lagen)

    # Example

    def _beispiele(self):
        """The kinds of file together as far as they show the same records."""
        bilder = {}
        for lauf in self.laeufe:
            bild_und_richtig = (self._aufruf(lauf), "") if lauf.art == AUFRUF else self._dateien(lauf)
            bilder.setdefault(bild_und_richtig, []).append(lauf)
        zeilen = []
        for (falsch, richtig), laeufe in bilder.items():
            if len(bilder) > 1:
                zeilen += [f"**{self.w['und'].join(self.w[lauf.art] for lauf in laeufe)}**", ""]
            zeilen += [falsch, "", *self._befunde(laeufe), richtig, ""]
        return "\n".join(zeilen).strip("\n")

    def _dateien(self, lauf):
        """The wrong records, and the right ones or what changes in them."""
        w = self.w
        falsch = "\n".join(["```", *bild.block(lauf.falsch, lauf.falsch.gezeigt, w["falsch"]), "```"])
        if texte := bild.aenderungen(lauf, self.tabellen, self.sprache):
            return falsch, f"- {w['richtig'].capitalize()}{w['doppelpunkt']} {w['strichpunkt'].join(texte)}."
        gezeigt = lauf.richtig.markiert or lauf.richtig.gezeigt
        return falsch, "\n".join(["", "```", *bild.block(lauf.richtig, gezeigt, w["richtig"]), "```"])

    def _befunde(self, laeufe):
        """What the protocol says of these files: one line where it says the same of all."""
        texte = {}
        for lauf in laeufe:
            if lauf.art != AUFRUF:
                texte.setdefault(self._befund(lauf), []).append(self.w[lauf.art])
        return [f"- {self.w['protokoll']}{f' ({arten[0]})' if len(texte) > 1 else ''}{self.w['doppelpunkt']} {text}"
                for text, arten in texte.items()]

    def _befund(self, lauf):
        befunde = lauf.falsch.befunde[self.sprache]
        eigener = next(e for e in befunde if f'N="{lauf.code}"' in e)
        andere = sorted({int(n) for e in befunde for n in re.findall(r'N="(\d+)"', e)} - {lauf.code})
        dazu = f" {self.w['auch'][len(andere) > 1]} {', '.join(f'[{code}]' for code in andere)}." if andere else ""
        return f"`{eigener}`{dazu}"

    def _aufruf(self, lauf):
        w = self.w
        falsch, richtig = (lauf.aufrufe[n].replace("dialog=de ", f"dialog={self.sprache} ") for n in ("falsch", "richtig"))
        rand = max(len(w["falsch"]), len(w["richtig"])) + 1
        return "\n".join(["```", f"{w['falsch']:{rand}} {falsch}", f"{w['richtig']:{rand}} {richtig}", "```", "",
                          f"{w['meldung']}{w['doppelpunkt']} {self.zeile['texte'][self.sprache]}"])

    # Links

    def _fuss(self):
        andere = [f"[{WOERTER[s]['sprache']}](../{s}/{self.code}.md)" for s in SPRACHEN if s != self.sprache]
        return " · ".join([f"[{self.w['alle']}](README.md)", *andere])

    def _verlinkt(self, text):
        def verweis(treffer):
            self.tabellen.zeile(int(treffer[1]))
            return f"[{treffer[1]}]({treffer[1]}.md)"
        return VERWEIS.sub(verweis, text)
