"""Frame of the tests by code: each case is a whole run of the real program on a smallest file, with the exact findings
that the rules ask for, as worked out by hand.

A file is a list of records between A and Z; a record is built by satz("G2", {2: "111", 8: "111001"}): the letter, the
digit for column 42, and fields at columns. A module says its cases one after the other, most by fall() of befunde.py or
by erwarte(); nothing runs then. `test_name = faelle()` takes all that were said since the last one as the cases of one
test, each by its own name. lauf() runs the program on a file, befehl() with any arguments. What the program
writes is kept, and at the end all of it must be valid by the schemas of docs/schema.
"""
import os
import pathlib
import re
import select
import subprocess
import tempfile
from functools import partial

import pytest

BEIDE = ("01S", "E1S")  # the kinds of exchange file
KOPF = {2: "211126", 30: "Bauherr", 42: "1", 44: "A", 45: "A", 63: "000000000001", 82: "P-1", 93: "Schulhaus",
        123: "D-1", 138: "Baumeister", 168: "Muster AG", 188: "Bern", 208: "Ausmass"}
KENNUNG = {"01S": {8: "451-92", 14: "11"}, "E1S": {8: "QVMX17", 14: "21"}}
SCHLUSS = {2: "211126", 18: "Ersteller", 62: "-", 63: "000000000001", 138: "Baumeister", 168: "Muster AG", 188: "Bern"}

# Ends of a run that are no protocol
ABBRUCH = "status 1, one line on standard error, no protocol"
NICHTS = "status 0, nothing shown, nothing written"
HAENGT = "no end"

programm = []  # with an emulator in front of it where there is one
_ordner = None
_ablage = None  # the folder of what the program wrote
_dauerlauf = None  # takes the place of a process for each silent run
_offen = []


# Cases

def beginne(befehl, in_einem_prozess=False):
    global _ordner, _ablage, _dauerlauf
    programm[:] = befehl
    if in_einem_prozess:
        _dauerlauf = Dauerlauf(_viele_laeufe())
    _ablage = tempfile.TemporaryDirectory(prefix="zepholt-protokolle-")
    _ordner = tempfile.TemporaryDirectory(prefix="zepholt-codes-")
    (ort() / "leer").mkdir()


def beende():
    if _dauerlauf:
        _dauerlauf.beende()
    if _ordner:
        _ordner.cleanup()
        _ablage.cleanup()


def ort():
    """The folder in which the program runs."""
    return pathlib.Path(_ordner.name)


def unter_emulator():
    return len(programm) > 1


def anmelden(name, pruefung):
    _offen.append(pytest.param(pruefung, id=name))


def faelle():
    """The test whose cases are those said since the last call."""
    gesagt = _offen[:]
    _offen.clear()
    assert gesagt, "a test without cases"

    @pytest.mark.parametrize("pruefung", gesagt)
    def test(pruefung):
        pruefung()

    return test


def nichts_offen():
    assert not _offen, f"cases that belong to no test: {[fall.id for fall in _offen[:3]]}"


def _vergleiche(ist, soll):
    ist, soll = (wert() if callable(wert) else wert for wert in (ist, soll))
    assert ist == soll


def erwarte(name, ist, soll):
    """A case of two values; one that needs a run is given as a function, partial(lauf, ...)."""
    anmelden(name, partial(_vergleiche, ist, soll))


# Files

def satz(art, felder=None):
    """A record as text: the second character of `art` goes to column 42; it ends behind its last field."""
    zeichen = {0: art[0]}
    if len(art) > 1:
        zeichen[41] = art[1]
    for spalte, text in (felder or {}).items():
        for i, z in enumerate(text):
            zeichen[spalte - 1 + i] = z
    return "".join(zeichen.get(i, " ") for i in range(max(zeichen) + 1))


def zeilen_der_datei(art, saetze, kopf=None, schluss=None):
    """All records of a file of kind "01S" or "E1S"; `kopf` and `schluss` overwrite fields of records A and Z."""
    zeilen = [satz("A", {**KOPF, **KENNUNG[art], **(kopf or {})}), *saetze]
    return [*zeilen, satz("Z", {**SCHLUSS, 46: f"{len(zeilen) + 1:013}", **(schluss or {})})]


def datei(art, saetze, kopf=None, schluss=None):
    zeilen = zeilen_der_datei(art, saetze, kopf, schluss)
    return "".join(zeile + "\r\n" for zeile in zeilen).encode("cp850" if art == "01S" else "utf-8")


# Runs

def _viele_laeufe():
    return pathlib.Path(programm[-1]).with_name("viele_laeufe")


class Dauerlauf:
    """viele_laeufe, waiting for one run after the other: under the sanitizers the start of a process takes twenty times as
    long as the test of a smallest file."""

    def __init__(self, viele_laeufe):
        self._befehl = [viele_laeufe, "/dev/stdin"]
        self._meldungen = tempfile.TemporaryFile()
        self._prozess = None

    @staticmethod
    def nimmt(argumente):
        """A silent run, whose arguments are the words of a line."""
        return (all(re.fullmatch(r"[!#-~]+", argument) for argument in argumente)
                and any(re.fullmatch(r"dialog=..-", argument) for argument in argumente))

    def lauf(self, argumente, frist, wo):
        if self._prozess is None:
            self._prozess = subprocess.Popen(self._befehl, bufsize=0, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                             stderr=self._meldungen)
        gemeldet = os.fstat(self._meldungen.fileno()).st_size
        self._prozess.stdin.write(f"{wo}\t{' '.join(argumente)}\n".encode())
        if not select.select([self._prozess.stdout], [], [], frist)[0]:
            self._prozess.kill()
            self.beende()
            raise subprocess.TimeoutExpired(self._befehl, frist)
        gezeigt = self._prozess.stdout.readline()
        gut = re.fullmatch(rb"\d+\n", gezeigt)
        status, gezeigt = (int(gezeigt), b"") if gut else (self.beende(), gezeigt)
        meldung = os.pread(self._meldungen.fileno(), 1 << 20, gemeldet)
        return subprocess.CompletedProcess(self._befehl, status, gezeigt, meldung)

    def beende(self):
        """The status of the process; None where none was running."""
        prozess, self._prozess = self._prozess, None
        if prozess is None:
            return None
        prozess.stdin.close()
        try:
            return prozess.wait(10)
        except subprocess.TimeoutExpired:
            prozess.kill()
            return prozess.wait()


def gestartet(argumente, frist, wo):
    """A run of the program, in the one process for many where there is one."""
    if _dauerlauf and _dauerlauf.nimmt(argumente):
        return _dauerlauf.lauf(argumente, frist, wo)
    return mit_programm(argumente, frist, wo)


def mit_programm(argumente, frist, wo):
    """Wine itself hangs now and then while it starts a program: there a second run decides."""
    versuche = 2 if any(teil.endswith(".exe") for teil in map(str, programm)) else 1
    while True:
        versuche -= 1
        try:
            return subprocess.run([*programm, *argumente], cwd=wo, capture_output=True, stdin=subprocess.DEVNULL,
                                  timeout=frist)
        except subprocess.TimeoutExpired:
            if versuche == 0:
                raise


def befehl(argumente, ausgabe="p.xml", frist=60, wo=None):
    """One run; the file it wrote as text, or in words how else it ended. It may leave nothing else behind."""
    wo = wo or ort()
    (wo / ausgabe).unlink(missing_ok=True)
    vorher = {*os.listdir(wo)}
    try:
        ende = gestartet(argumente, frist, wo)
    except subprocess.TimeoutExpired:
        return HAENGT
    return _urteil(ende.returncode, ende.stdout, ende.stderr, wo, vorher, ausgabe)


def _urteil(status, gezeigt, gemeldet, wo, vorher, ausgabe):
    """How a run ended whose folder held `vorher` before it."""
    nachher = {*os.listdir(wo)}
    da = ausgabe in nachher
    if nachher - vorher - {ausgabe}:
        return f"left behind: {sorted(nachher)}"
    if status == 1 and not da and not gezeigt and re.fullmatch(rb"[^\n]+\n", gemeldet):
        return ABBRUCH
    if status != 0 or gezeigt or gemeldet:
        return f"status {status}: {gemeldet!r}{gezeigt!r}"
    return behalten((wo / ausgabe).read_bytes()).decode("latin-1") if da else NICHTS


def befehle(folge, ausgabe="p.xml", frist=60):
    """Runs, each in a folder of its own: `folge` has pairs of a folder below ort() and arguments without blanks. How each
    ended, as befehl() says it. All in one process where the program has viele_laeufe beside it: thousands of small runs take
    a tenth of the time so."""
    viele = _viele_laeufe()
    if not viele.exists():
        return [befehl(argumente, ausgabe, frist, ort() / name) for name, argumente in folge]
    vorher = [{*os.listdir(ort() / name)} for name, _ in folge]
    liste = ort() / "liste"
    liste.write_text("".join(f"{ort() / name}\t{' '.join(argumente)}\n" for name, argumente in folge))
    try:
        ende = subprocess.run([viele, liste], capture_output=True, stdin=subprocess.DEVNULL, timeout=frist)
    except subprocess.TimeoutExpired:
        return [HAENGT] * len(folge)
    status = ende.stdout.split()
    if ende.returncode != 0 or len(status) != len(folge) or ende.stderr.count(b"\n") != status.count(b"1"):
        return [f"status {ende.returncode} after {len(status)} runs: {ende.stderr!r}"] * len(folge)
    return [_urteil(int(eines), b"", b"one line\n" * int(eines), ort() / name, davor, ausgabe)
            for eines, (name, _), davor in zip(status, folge, vorher)]


# What the program wrote

SCHEMATA = pathlib.Path(__file__).resolve().parents[2] / "docs/schema"
_gleiche = set()


def behalten(inhalt):
    """Keeps one file of each content, by the kind that its root element tells."""
    if hash(inhalt) not in _gleiche:
        _gleiche.add(hash(inhalt))
        art = "listen" if b"<ZEPHOLT>" in inhalt[:100] else "protokoll"
        (pathlib.Path(_ablage.name) / f"{len(_gleiche)}.{art}").write_bytes(inhalt)
    return inhalt


def schema_verstoesse():
    """What xmllint says of the kept files that aren't valid."""
    klagen = []
    for art in ("protokoll", "listen"):
        dateien = sorted(pathlib.Path(_ablage.name).glob(f"*.{art}"))
        for weg, endung in (("--relaxng", "rng"), ("--schema", "xsd")):
            if dateien:
                lauf_ = subprocess.run(["xmllint", "--noout", "--huge", weg, SCHEMATA / f"{art}.{endung}", *dateien],
                                       capture_output=True, text=True)
                klagen += [z for z in lauf_.stderr.splitlines() if not z.endswith(" validates")] if lauf_.returncode else []
    return klagen


def parameter(datei_, sprache="de-", ausgabe="p.xml", katalog="leer", mehr=()):
    """The arguments of a run. `katalog` is a path, or a function that lays the catalogue down and gives its path."""
    return [f"file={datei_}", f"dialog={sprache}", f"errorfile={ausgabe}",
            f"catalog={katalog() if callable(katalog) else katalog}", *mehr]


def lauf(art, saetze, kopf=None, schluss=None, katalog="leer", sprache="de", mehr=()):
    """Runs the program on that file, without a window, and gives the protocol. The catalogue is an empty folder."""
    (ort() / f"e.{art}").write_bytes(datei(art, saetze, kopf, schluss))
    return befehl(parameter(f"e.{art}", f"{sprache}-", katalog=katalog, mehr=mehr))


def elemente(protokoll):
    """The Error elements; the end of a run that wrote no protocol stays what it is."""
    return re.findall(r"<Error [^>]*/>", protokoll) if protokoll.startswith("<?xml") else protokoll


def ohne_uhr(protokoll):
    return re.sub(r"<Date>\d{4}-\d\d-\d\d</Date><Time>\d\d:\d\d</Time>", "<Date>-</Date><Time>-</Time>", protokoll)


def maskiert(text):
    """A text as a protocol or a list holds it: typographic apostrophes become plain ones, then the five escapes."""
    for zeichen, ersatz in (("\u2018", "'"), ("\u2019", "'"), ("&", "&amp;"), ("<", "&lt;"), (">", "&gt;"),
                            ("'", "&apos;"), ('"', "&quot;")):
        text = text.replace(zeichen, ersatz)
    return text
