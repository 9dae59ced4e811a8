#!/usr/bin/env python3
"""Asks the tests whether they notice a change of the program: changes one thing at a time in a copy of src/ (a number,
a comparison, a condition, a letter, a statement left out), builds the test programs that can notice it, runs them,
and prints what went unnoticed. What tools/mutanten_bekannt.txt names with a reason counts as known.

    tools/mutanten.py doctest items --probe 100 --saat 7     # a hundred changes chosen by chance from two rooms
    tools/mutanten.py src/items/RecordG6.cpp --art zahl      # every number of one file
    tools/mutanten.py items --liste                          # what could be changed; nothing is built

Most changes of a file go into one build, which takes its orders from the environment (ZEPHOLT_MUTANT=n makes the n-th
change); those that can't be chosen at run time are built one by one.

Exit status 1 when a change went unnoticed that is not known, 2 when the tests fail without any."""
import argparse
import collections
import os
import pathlib
import random
import re
import resource
import shutil
import subprocess
import sys
import time

WURZEL = pathlib.Path(__file__).resolve().parent.parent
BEKANNT = pathlib.Path(__file__).resolve().parent / "mutanten_bekannt.txt"

# The test programs that are asked about a room, the quickest to answer first; for other rooms its own alone.
PROGRAMME = {
    "state": ["state", "doctest", "items"],
    "doctest": ["doctest", "items"],
    "items": ["items"],
}
# With --skripte what these leave unnoticed is asked about once more: the pages of the codes, whose texts are the
# program's, the tests of whole runs, and the cases by code that belong to the room.
SATZSKRIPTE = ["kopf", "gliederung", "konditionen", "anhang", "kapitel_position", "zuordnung", "preis", "menge",
               "ausmass", "nachlauf"]
SKRIPTE = {
    "support": ["ablauf", "einlesen", "listen", "protokoll"],
    "state": [*SATZSKRIPTE, "einlesen"],
    "errors": ["protokoll", "listen"],
    "intake": ["einlesen", "ablauf"],
    "doctest": SATZSKRIPTE,
    "catalogue": ["katalog", "kapiteldateien", "vergleich", "listen"],
    "items": SATZSKRIPTE,
}

SEITENRAEUME = ["errors", "state"]

WOERTER = {
    "true": ["false"],
    "false": ["true"],
    "Zwingend": ["Freiwillig", "Erwartet"],
    "Erwartet": ["Freiwillig", "Zwingend"],
    "Freiwillig": ["Zwingend"],
    "JokerVerboten": ["JokerAmEnde"],
    "JokerAmEnde": ["JokerVerboten", "JokerUngeprueft"],
}
ZEICHEN = {
    "==": ["!="],
    "!=": ["=="],
    "<": ["<="],
    "<=": ["<"],
    ">": [">="],
    ">=": [">"],
    "&&": ["||"],
    "||": ["&&"],
    "+": ["-"],
    "-": ["+"],
    "*": ["/"],
    "/": ["*"],
    "%": ["/"],
    "+=": ["-="],
    "-=": ["+="],
}

# A change of a source text: from `von` to `bis` stands `ersatz` instead. `wahl` says how it is chosen at run time:
# "wert" and "text" between two expressions, "bedingung" negates one, "anweisung" leaves out a statement; None for a
# change that takes a build of its own.
Mutant = collections.namedtuple("Mutant", "datei zeile art von bis ersatz wahl")

SCHALTER = """#pragma once
#include <cstdlib>
inline int zepholt_mutant() {
    static const int nummer = [] {
        const char* wert = std::getenv("ZEPHOLT_MUTANT");
        return wert == nullptr ? 0 : std::atoi(wert);
    }();
    return nummer;
}
"""


def code_maske(text):
    """The text with comments, preprocessor lines and the contents of texts blanked: what is left is code."""
    muster = re.compile(r'//[^\n]*|/\*.*?\*/|^[ \t]*#[^\n]*|u?R"\(.*?\)"|u?"(?:\\.|[^"\\\n])*"|u?\'(?:\\.|[^\'\\\n])\'',
                        re.DOTALL | re.MULTILINE)
    return muster.sub(lambda treffer: re.sub(r"[^\n]", "\x00", treffer[0]), text)


def zahlen(text, maske):
    for treffer in re.finditer(r"(?<![\w.'])\d[\d']*(?![\w.'])", maske):
        wert = int(treffer[0].replace("'", ""))
        for neu in (wert + 1, wert - 1):
            if neu >= 0:
                yield "zahl", treffer.start(), treffer.end(), str(neu), "wert"


def zeichen(text, maske):
    for treffer in re.finditer(r" (==|!=|<=|>=|&&|\|\||\+=|-=|[-+*/%<>]) ", maske):
        for neu in ZEICHEN[treffer[1]]:
            yield "zeichen", treffer.start(1), treffer.end(1), neu, None
    for treffer in re.finditer(r"(?<=[(\s])!(?=[\w(])", maske):
        yield "zeichen", treffer.start(), treffer.end(), "", None


def woerter(text, maske):
    for treffer in re.finditer(r"\b(" + "|".join(WOERTER) + r")\b", maske):
        for neu in WOERTER[treffer[1]]:
            yield "wort", treffer.start(), treffer.end(), neu, "wert"


def bedingungen(text, maske):
    for treffer in re.finditer(r"\bif \(([^;\n]*)\) \{$", maske, re.MULTILINE):
        bedingung = text[treffer.start(1):treffer.end(1)]
        yield "bedingung", treffer.start(1), treffer.end(1), f"!({bedingung})", "bedingung"


def buchstaben(text, maske):
    for treffer in re.finditer(r"u'([^'\\\n])'", text):
        if maske[treffer.start()] == "\x00":
            yield "buchstabe", treffer.start(), treffer.end(), f"u'{chr(ord(treffer[1]) + 1)}'", "wert"
    for treffer in re.finditer(r'\bu"([^"\\\n]+)"', text):
        if maske[treffer.start()] == "\x00":
            for kuerzer in (treffer[1][1:], treffer[1][:-1]):
                yield "buchstabe", treffer.start(), treffer.end(), f'u"{kuerzer}"', "text"


AUFRUF = re.compile(r"[\w.:>\[\]()*&, -]*[\w\])]+(\(.*\)| [-+]?= .*);$")
VEREINBARUNG = re.compile(r"(const |constexpr |static |auto |bool |std::|[A-Z]\w+[&*]? \w)")


def anweisungen(text, maske):
    """Statements of one line: left out, or carried on behind where they return."""
    for treffer in re.finditer(r"^[ ]{4,}([^\n]*;)[^\n]*$", maske, re.MULTILINE):
        satz = text[treffer.start(1):treffer.end(1)]
        davor = maske[:treffer.start()].rstrip(" \n\x00")[-1:]
        if davor not in "{};" or satz.startswith(("using ", "static_assert", "for ", "} ", "default")):
            continue
        if satz in ("return;", "break;", "continue;") or AUFRUF.match(satz):
            if not VEREINBARUNG.match(satz) and not satz.startswith("return "):
                yield "anweisung", treffer.start(1), treffer.end(1), ";", "anweisung"
        if re.match(r"return \w+\([\w, ]*\);$", satz):
            yield "anweisung", treffer.start(1), treffer.end(1), satz.removeprefix("return "), None


ARTEN = {"zahl": zahlen, "zeichen": zeichen, "wort": woerter, "bedingung": bedingungen, "buchstabe": buchstaben,
         "anweisung": anweisungen}


def mutanten(datei, text, arten):
    """Every change of a source text, in the order of the kinds."""
    maske = code_maske(text)
    for art in arten:
        for name, von, bis, ersatz, wahl in ARTEN[art](text, maske):
            yield Mutant(datei, text.count("\n", 0, von) + 1, name, von, bis, ersatz, wahl)


def veraendert(text, mutant):
    return text[:mutant.von] + mutant.ersatz + text[mutant.bis:]


def mit_wahl(text, nummern):
    """The source text in which ZEPHOLT_MUTANT chooses one of the changes of `nummern` (change: number)."""
    einfuegen = []  # (place, order at the same place, what comes in), and what goes out
    werte = collections.defaultdict(list)
    for mutant, nummer in nummern.items():
        if mutant.wahl in ("wert", "text"):
            werte[mutant.von, mutant.bis].append((mutant, nummer))
        elif mutant.wahl == "bedingung":
            einfuegen += [(mutant.von, 0, f"(zepholt_mutant() == {nummer}) != bool("), (mutant.bis, 9, ")")]
        elif mutant.wahl == "anweisung":
            einfuegen += [(mutant.von, 0, f"if (zepholt_mutant() != {nummer}) {{ "), (mutant.bis, 9, " }")]
    teile = []
    for (von, bis), auswahl_hier in werte.items():
        form = "zepholt::TextSicht({})" if auswahl_hier[0][0].wahl == "text" else "{}"
        faelle = "".join(f"zepholt_mutant() == {nummer} ? {form.format(mutant.ersatz)} : "
                         for mutant, nummer in auswahl_hier)
        teile.append((von, 5, bis, f"({faelle}{form.format(text[von:bis])})"))
    teile += [(stelle, folge, stelle, was) for stelle, folge, was in einfuegen]
    neu = []
    bisher = 0
    for von, _, bis, was in sorted(teile):
        neu += [text[bisher:von], was]
        bisher = max(bisher, bis)
    return "".join(neu) + text[bisher:]


def zeilen_des(text, mutant):
    """The line as it is and as it becomes."""
    anfang = text.rfind("\n", 0, mutant.von) + 1
    ende = text.find("\n", mutant.bis)
    alt = text[anfang:ende]
    neu = text[anfang:mutant.von] + mutant.ersatz + text[mutant.bis:ende]
    return alt.strip(), neu.strip()


def bekannte():
    """(file, line as it is, line as it becomes) of what tools/mutanten_bekannt.txt names, without comments and
    alignment; '*' stands for any line of the file, and for any change of the line."""
    eintraege = set()
    if BEKANNT.exists():
        for zeile in BEKANNT.read_text(encoding="utf-8").splitlines():
            teile = zeile.split("\t")
            if zeile and not zeile.startswith("#") and len(teile) == 4:
                eintraege.add(tuple(teile[:3]))
    return eintraege


def schlicht(zeile):
    """A line without its comment and its alignment."""
    return " ".join(zeile.split("//")[0].split())


def ist_bekannt(eintraege, datei, alt, neu):
    return any((datei, zeile, aenderung) in eintraege
               for zeile in (schlicht(alt), "*") for aenderung in (schlicht(neu), "*"))


class Kopie:
    """A copy of the source tree with a build of its own."""

    def __init__(self, ordner):
        self.ordner = ordner
        self.bau = ordner / "bau"
        self.umgebung = {**os.environ, "CCACHE_BASEDIR": str(ordner), "CCACHE_NOHASHDIR": "1"}

    def anlegen(self):
        namen = subprocess.run(["git", "-C", WURZEL, "ls-files", "-co", "--exclude-standard"], check=True,
                               capture_output=True, text=True).stdout.splitlines()
        for name in namen:
            if (WURZEL / name).is_file():
                self.setzen(name, (WURZEL / name).read_bytes())
        self.setzen("schalter.h", SCHALTER.encode())
        schalter = f"-D_GLIBCXX_ASSERTIONS -w -include {self.ordner}/schalter.h"
        subprocess.run(["cmake", "-S", self.ordner, "-B", self.bau, "-G", "Ninja", "-Wno-dev",
                        "-DCMAKE_BUILD_TYPE=Debug", f"-DCMAKE_CXX_FLAGS={schalter}",
                        "-DCMAKE_CXX_FLAGS_DEBUG=-O0", "-DZEPHOLT_TESTS=ON"],
                       check=True, stdout=subprocess.DEVNULL)

    def setzen(self, name, inhalt):
        """Writes a file unless it holds that already: what is left alone is not built anew."""
        ziel = self.ordner / name
        if not ziel.exists() or ziel.read_bytes() != inhalt:
            ziel.parent.mkdir(parents=True, exist_ok=True)
            ziel.write_bytes(inhalt)
            if (WURZEL / name).exists():
                shutil.copymode(WURZEL / name, ziel)

    def bauen(self, ziele):
        lauf = subprocess.run(["ninja", "-C", self.bau, *ziele], capture_output=True, text=True, env=self.umgebung)
        return lauf.returncode == 0, lauf.stdout

    def besteht(self, befehl, frist, nummer=0):
        """Whether a command ends well within so many seconds of the processor: a busy machine changes no verdict."""
        def setze():
            resource.setrlimit(resource.RLIMIT_CPU, (frist, frist))

        umgebung = {**os.environ, "ZEPHOLT_MUTANT": str(nummer)}
        try:
            lauf = subprocess.run(befehl, cwd=self.bau, capture_output=True, timeout=60 * frist, env=umgebung,
                                  preexec_fn=setze)
        except subprocess.TimeoutExpired:
            return False
        return lauf.returncode == 0

    def test(self, programm, frist, nummer=0):
        befehl = [self.bau / f"tests_{programm}", "--gtest_brief=1", "--gtest_fail_fast"]
        return self.besteht(befehl, frist, nummer)

    def skript(self, name, frist, nummer=0):
        befehl = ["/usr/bin/python3", "-B", "-m", "pytest", "-q", "-x", "-p", "no:cacheprovider",
                  self.ordner / "tests" / "codes" / f"{name}_test.py", f"--programm={self.bau / 'zepholt'}"]
        return self.besteht(befehl, frist, nummer)

    def seiten(self, frist, nummer=0):
        """Whether the pages of the codes are those that the program's tables make."""
        return (self.bauen(["zepholt", "satzschreiber", "kapitelschreiber", "codeschreiber"])[0] and
                self.besteht(["/usr/bin/python3", "-B", self.ordner / "tools" / "hilfe", "--bau", self.bau, "pruefen"],
                             frist, nummer))

    def ganze_laeufe(self, datei, frist, nummer=0):
        """The tests of whole runs and the cases by code that belong to the room of a source file."""
        return (self.bauen(["tests_run", "zepholt"])[0] and
                (datei.split("/")[1] not in SEITENRAEUME or self.seiten(frist, nummer)) and
                self.test("run", frist, nummer) and
                all(self.skript(name, frist, nummer) for name in SKRIPTE.get(datei.split("/")[1], [])))


def programme_fuer(datei):
    raum = datei.split("/")[1]
    return PROGRAMME.get(raum, [raum])


def urteil(kopie, mutant, skripte, nummer):
    """"unnoticed" or what noticed the change, which is built; `nummer` chooses it."""
    for programm in programme_fuer(mutant.datei):
        if not kopie.test(programm, 20, nummer):
            return "noticed"
    if skripte and not kopie.ganze_laeufe(mutant.datei, 900, nummer):
        return "noticed"
    return "unnoticed"


def ziele_fuer(datei):
    return [f"tests_{programm}" for programm in programme_fuer(datei)]


def gemeinsame(kopie, datei, text, mutanten_der_datei):
    """Builds the changes of a file that can be chosen at run time; {change: number}. Lines that can't are left out."""
    nummern = {mutant: i for i, mutant in enumerate(mutanten_der_datei, 1) if mutant.wahl}
    while nummern:
        kopie.setzen(datei, mit_wahl(text, nummern).encode())
        gebaut, ausgabe = kopie.bauen(ziele_fuer(datei))
        if gebaut:
            return nummern
        zeilen = {int(zeile) for zeile in re.findall(re.escape(datei) + r":(\d+):\d+: error", ausgabe)}
        zeilen |= {int(zeile) for zeile in re.findall(re.escape(datei) + r":(\d+):\d+:   (?:required|in)", ausgabe)}
        uebrig = {mutant: i for mutant, i in nummern.items() if mutant.zeile not in zeilen}
        nummern = uebrig if len(uebrig) < len(nummern) else {}
    return {}


def urteile(kopie, datei, text, mutanten_der_datei, skripte):
    """(change, verdict) of each change of a file."""
    nummern = gemeinsame(kopie, datei, text, mutanten_der_datei)
    for mutant, nummer in nummern.items():
        yield mutant, urteil(kopie, mutant, skripte, nummer)
    for mutant in mutanten_der_datei:
        if mutant not in nummern:
            kopie.setzen(datei, veraendert(text, mutant).encode())
            gebaut, _ = kopie.bauen(ziele_fuer(datei))
            yield mutant, urteil(kopie, mutant, skripte, 0) if gebaut else "does not build"
    kopie.setzen(datei, text.encode())


def dateien_aus(angaben):
    """The source files of the rooms and files named; of a room those that are built here."""
    for angabe in angaben:
        pfad = WURZEL / "src" / angabe if (WURZEL / "src" / angabe).is_dir() else WURZEL / angabe
        gefunden = sorted(pfad.glob("*.cpp")) + sorted(pfad.glob("*.h")) if pfad.is_dir() else [pfad]
        if not gefunden or not gefunden[0].is_file():
            sys.exit(f"{angabe}: no room of src/ and no file")
        hier = [datei for datei in gefunden if datei == pfad or not datei.stem.endswith(("_windows", "_browser"))]
        yield from (str(datei.relative_to(WURZEL)) for datei in hier)


def argumente():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("wo", nargs="+", help="rooms of src/, or files")
    parser.add_argument("--probe", type=int, metavar="N", help="N changes chosen by chance instead of all")
    parser.add_argument("--saat", type=int, default=1, metavar="S", help="what the choice begins with (1)")
    parser.add_argument("--art", action="append", choices=sorted(ARTEN), help="only changes of this kind (repeatable)")
    parser.add_argument("--zeilen", metavar="MUSTER", help="only lines that this regular expression finds")
    parser.add_argument("--ordner", type=pathlib.Path, default=WURZEL / "build" / "mutanten",
                        help="where the copy is built (build/mutanten)")
    parser.add_argument("--skripte", action="store_true",
                        help="ask the tests of whole runs and the cases by code too about what went unnoticed")
    parser.add_argument("--liste", action="store_true", help="print the changes and end")
    return parser.parse_args()


def auswahl(optionen, texte):
    alle = []
    for datei, text in texte.items():
        for mutant in mutanten(datei, text, optionen.art or list(ARTEN)):
            if not optionen.zeilen or re.search(optionen.zeilen, zeilen_des(text, mutant)[0]):
                alle.append(mutant)
    if optionen.probe is not None and optionen.probe < len(alle):
        alle = random.Random(optionen.saat).sample(alle, optionen.probe)
    return sorted(alle, key=lambda mutant: (mutant.datei, mutant.von, mutant.ersatz))


def erste_der_raeume(dateien):
    """A source file of each room."""
    return {datei.split("/")[1]: datei for datei in dateien}.values()


def main():
    optionen = argumente()
    texte = {datei: (WURZEL / datei).read_text(encoding="utf-8") for datei in dateien_aus(optionen.wo)}
    gewaehlt = auswahl(optionen, texte)
    if optionen.liste:
        for mutant in gewaehlt:
            alt, neu = zeilen_des(texte[mutant.datei], mutant)
            print(f"{mutant.datei}:{mutant.zeile}: {mutant.art}\n  - {alt}\n  + {neu}")
        print(f"{len(gewaehlt)} changes")
        return 0

    eintraege = bekannte()
    kopie = Kopie(optionen.ordner.resolve())
    kopie.anlegen()
    programme = sorted({programm for datei in texte for programm in programme_fuer(datei)})
    gebaut, ausgabe = kopie.bauen([f"tests_{programm}" for programm in programme])
    gut = gebaut and all(kopie.test(programm, 600) for programm in programme)
    if not gut or optionen.skripte and not all(kopie.ganze_laeufe(datei, 900) for datei in erste_der_raeume(texte)):
        print(ausgabe[-3000:])
        print("the tests fail without any change")
        return 2

    zahl = collections.Counter()
    beginn = time.monotonic()
    for datei, text in texte.items():
        for mutant, ergebnis in urteile(kopie, datei, text, [m for m in gewaehlt if m.datei == datei],
                                        optionen.skripte):
            alt, neu = zeilen_des(text, mutant)
            if ergebnis == "unnoticed" and ist_bekannt(eintraege, datei, alt, neu):
                ergebnis = "known"
            zahl[ergebnis] += 1
            if ergebnis == "unnoticed":
                print(f"{datei}:{mutant.zeile}: {mutant.art}\n  - {alt}\n  + {neu}", flush=True)
            if sys.stderr.isatty():
                print(f"\r{zahl.total()} of {len(gewaehlt)} ", end="", file=sys.stderr)
    gewertet = zahl["noticed"] + zahl["unnoticed"]
    anteil = f" ({100 * zahl['noticed'] / gewertet:.1f} %)" if gewertet else ""
    print(f"{gewertet} changes that mean a difference: {zahl['noticed']} noticed{anteil}, {zahl['unnoticed']} not; "
          f"besides {zahl['known']} known and {zahl['does not build']} that do not build; "
          f"{time.monotonic() - beginn:.0f} s")
    return 1 if zahl["unnoticed"] else 0


if __name__ == "__main__":
    sys.exit(main())
