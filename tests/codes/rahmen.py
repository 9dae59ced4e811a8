"""Frame of the tests by code: each case is a whole run of the real program on a smallest file, with the exact Error
elements that the rules ask for, as worked out by hand.

A file is a list of records between A and Z; a record is built by satz("G2", {2: "111", 8: "111001"}): the letter, the
digit for column 42, and fields at columns. lauf() runs the program and returns the Error elements of its protocol;
erwarte() compares them. A test script ends with abschluss(), which prints the count and sets the exit status.
"""
import pathlib
import re
import subprocess
import sys
import tempfile

PROGRAMM = sys.argv[1:]  # the program, with an emulator in front of it where there is one
UNTER_EMULATOR = len(PROGRAMM) > 1
KOPF = {2: "211126", 30: "Bauherr", 42: "1", 44: "A", 45: "A", 63: "000000000001", 82: "P-1", 93: "Schulhaus",
        123: "D-1", 138: "Baumeister", 168: "Muster AG", 188: "Bern", 208: "Ausmass"}
KENNUNG = {"01S": {8: "451-92", 14: "11"}, "E1S": {8: "QVMX17", 14: "21"}}
SCHLUSS = {2: "211126", 18: "Ersteller", 62: "-", 63: "000000000001", 138: "Baumeister", 168: "Muster AG", 188: "Bern"}

zaehler = {"gut": 0, "schlecht": 0}
ort = tempfile.TemporaryDirectory(prefix="zepholt-codes-")


def satz(art, felder=None):
    """A record as text: the second character of `art` goes to column 42; it ends behind its last field."""
    zeichen = {0: art[0]}
    if len(art) > 1:
        zeichen[41] = art[1]
    for spalte, text in (felder or {}).items():
        for i, z in enumerate(text):
            zeichen[spalte - 1 + i] = z
    return "".join(zeichen.get(i, " ") for i in range(max(zeichen) + 1))


def datei(art, saetze, kopf=None, schluss=None):
    """The bytes of a file of kind "01S" or "E1S"; `kopf` and `schluss` overwrite fields of records A and Z."""
    zeilen = [satz("A", {**KOPF, **KENNUNG[art], **(kopf or {})}), *saetze]
    zeilen.append(satz("Z", {**SCHLUSS, 46: f"{len(zeilen) + 1:013}", **(schluss or {})}))
    return "".join(zeile + "\r\n" for zeile in zeilen).encode("cp850" if art == "01S" else "utf-8")


def lauf(art, saetze, kopf=None, schluss=None, katalog=None, sprache="de", mehr=()):
    """Runs the program on that file and returns the whole protocol. Without `katalog` the catalogue is an empty folder."""
    pfad = pathlib.Path(ort.name)
    (pfad / "leer").mkdir(exist_ok=True)
    (pfad / f"e.{art}").write_bytes(datei(art, saetze, kopf, schluss))
    (pfad / "p.xml").unlink(missing_ok=True)
    befehl = [*PROGRAMM, f"file=e.{art}", f"dialog={sprache}-", "errorfile=p.xml", f"catalog={katalog or 'leer'}", *mehr]
    ende = subprocess.run(befehl, cwd=pfad, capture_output=True, timeout=60)
    if ende.returncode != 0 or ende.stdout:
        return f"status {ende.returncode}: {ende.stderr!r}{ende.stdout!r}"
    return (pfad / "p.xml").read_bytes().decode("latin-1")


def elemente(protokoll):
    return re.findall(r"<Error [^>]*/>", protokoll)


def fehler(code, schwere, text, L=None, I=None, F=None):
    """An Error element as it must stand in the protocol. `text` as it is read by a person; it is escaped here."""
    for zeichen, ersatz in (("&", "&amp;"), ("<", "&lt;"), (">", "&gt;"), ("\u2018", "'"), ("\u2019", "'"),
                            ("'", "&apos;"), ('"', "&quot;")):
        text = text.replace(zeichen, ersatz)
    attribute = [("L", L), ("I", I), ("N", code), ("E", schwere), ("F", F), ("T", text)]
    return "<Error " + " ".join(f'{n}="{w}"' for n, w in attribute if w is not None) + "/>"


def erwarte(name, ist, soll):
    """One case: `ist` and `soll` are lists of Error elements (or any two values)."""
    if ist == soll:
        zaehler["gut"] += 1
        return
    zaehler["schlecht"] += 1
    print(f"FAILED {name}\n  expected {soll}\n  found    {ist}")


def abschluss():
    print(f"{zaehler['gut']} passed, {zaehler['schlecht']} failed")
    ort.cleanup()
    sys.exit(1 if zaehler["schlecht"] or not zaehler["gut"] else 0)
