"""Tests an exchange file with ZEPHOLT and reads the outcome.

aufruf.py PROGRAM EXCHANGE-FILE PROTOCOL CATALOGUE SCHEMA [MODE]; status 0 no errors, 1 errors, 2 no protocol.
"""
import os
import subprocess
import sys
import xml.etree.ElementTree as ET

XSD = "{http://www.w3.org/2001/XMLSchema}"


class OhneProtokoll(Exception):
    pass


def kommando(programm, datei, protokoll, katalog, modus, windows=os.name == "nt"):
    """What subprocess gets. On Windows one text, which goes to the program as it is: the quotation marks begin behind
    the "=". A list would get marks around each whole parameter there, which the program can't read."""
    werte = [("file", datei), ("dialog", "de-"), ("errorfile", protokoll), ("catalog", katalog), ("mode", modus)]
    werte = [(schluessel, wert) for schluessel, wert in werte if wert]
    if windows:
        return f'"{programm}" ' + " ".join(f'{schluessel}="{wert}"' for schluessel, wert in werte)
    return [programm] + [f"{schluessel}={wert}" for schluessel, wert in werte]


def parameter_pruefen(datei, protokoll, katalog, modus):
    """What the program would refuse, in the order of its own tests. Deletes the old protocol."""
    if not os.path.isfile(datei):
        raise OhneProtokoll("1003 exchange file not found")
    try:
        if os.path.lexists(protokoll):
            os.remove(protokoll)
        with open(protokoll, "x", encoding="ascii"):
            pass
        os.remove(protokoll)
    except OSError as fehler:
        raise OhneProtokoll("1005 protocol can't be made, or the old one not deleted") from fehler
    if not os.path.exists(katalog):
        raise OhneProtokoll("1006 catalogue not found")
    if modus not in ("", "E", "I"):
        raise OhneProtokoll("1007 mode is neither E nor I")


def starten(befehl, protokoll):
    """Starts the program and waits for its end, as a program of the window subsystem needs it."""
    try:
        lauf = subprocess.run(befehl, stderr=subprocess.PIPE, check=False)
    except OSError as fehler:
        raise OhneProtokoll("the program can't be started") from fehler
    zeile = lauf.stderr.decode("utf-8", "replace").strip()
    if lauf.returncode == 1 and zeile:
        raise OhneProtokoll("run-time failure: " + zeile)
    if lauf.returncode != 0:
        raise OhneProtokoll("ended from outside")
    if not os.path.exists(protokoll):
        raise OhneProtokoll("it could not be written at the end")


def namen(schema, typ):
    """The elements that the schema puts into a type: name and whether it must be there."""
    folge = schema.find(f"{XSD}complexType[@name='{typ}']/{XSD}sequence")
    return [(element.get("name"), element.get("minOccurs") != "0") for element in folge]


def lesen(protokoll, schema):
    """Errors and warnings, counted from the findings: the head of an E1S protocol adds them up. Python's own library
    knows no schemas: here it is the names and their order that are held against it."""
    try:
        wurzel = ET.parse(protokoll).getroot()
    except ET.ParseError as fehler:
        raise OhneProtokoll(f"what lies there is none: {fehler}") from fehler
    kopf = [element.tag for element in wurzel.find("Test") or []]
    soll = [name for name, zwingend in namen(ET.parse(schema), "Test") if zwingend or name in kopf]
    if wurzel.tag != "SIA451" or kopf != soll:
        raise OhneProtokoll("what lies there is none: another head")
    befunde = wurzel.findall("Errors/Error")
    warnungen = sum(befund.get("E") == "B" for befund in befunde)
    return len(befunde) - warnungen, warnungen


def main(angaben):
    datei, protokoll, katalog = map(os.path.abspath, angaben[1:4])
    modus = angaben[5] if len(angaben) > 5 else ""
    try:
        parameter_pruefen(datei, protokoll, katalog, modus)
        starten(kommando(angaben[0], datei, protokoll, katalog, modus), protokoll)
        fehler, warnungen = lesen(protokoll, angaben[4])
    except OhneProtokoll as grund:
        print("no protocol:", grund)
        return 2
    print(f"errors {fehler}, warnings {warnungen}")
    return 1 if fehler else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
