"""Holds an output folder of zepholt-stapel against what dateien.py says of its exchange files."""
import csv
import json
import os
import re
import urllib.parse

import dateien

ARBEITSORDNER = ".zepholt-stapel"


def protokolle(ziel):
    """The files of the output folder, without the tables and the work folder."""
    gefunden = set()
    ziel = os.fsencode(ziel)
    for ordner, unterordner, namen in os.walk(ziel):
        if os.fsencode(ARBEITSORDNER) in unterordner:
            unterordner.remove(os.fsencode(ARBEITSORDNER))
        gefunden |= {os.path.relpath(os.path.join(ordner, n), ziel) for n in namen}
    return gefunden - {b"table.csv", b"table.jsonl", b"index.html"}


def name_der_zeile(zeile):
    return urllib.parse.unquote_to_bytes(zeile["fileUri"]) if "fileUri" in zeile else zeile["file"].encode()


def codes_des_protokolls(pfad):
    """The codes with their counts; None for what is no whole protocol."""
    with open(pfad, "rb") as datei:
        text = datei.read()
    if not text.startswith(b"<?xml") or not text.endswith(b"</SIA451>"):
        return None
    codes = {}
    for code in re.findall(rb'<Error [^>]*?N="(\d+)"', text):
        codes[int(code)] = codes.get(int(code), 0) + 1
    return codes


def abweichungen(ziel, anzahl, seed=451):
    """What is lost, doubled, too much or other than its exchange file demands; empty when all is right."""
    klagen = []
    plaene = {p.name: p for p in (dateien.plan(i, seed) for i in range(anzahl))}
    da, soll = protokolle(ziel), {name + b".xml" for name in plaene}
    klagen += [f"no protocol: {n}" for n in sorted(soll - da)] + [f"nobody's: {n}" for n in sorted(da - soll)]
    gesehen = set()
    with open(os.path.join(ziel, "table.jsonl"), encoding="utf-8") as tabelle:
        for zeile in map(json.loads, tabelle):
            name = name_der_zeile(zeile)
            if name in gesehen or name not in plaene:
                klagen.append(f"a row too many: {name}")
                continue
            gesehen.add(name)
            p = plaene[name]
            ist = (zeile["verdict"], zeile["errors"], zeile["warnings"])
            if ist != dateien.erwartet(p) or {int(c): n for c, n in zeile["codes"].items()} != p.codes:
                klagen.append(f"row of {name}: {zeile} instead of {p}")
    klagen += [f"no row: {n}" for n in sorted(set(plaene) - gesehen)]
    with open(os.path.join(ziel, "table.csv"), encoding="utf-8-sig", newline="") as tabelle:
        zeilen = sum(1 for _ in csv.reader(tabelle, delimiter=";")) - 1
    if zeilen != anzahl:
        klagen.append(f"{zeilen} rows for the spreadsheet")
    for name in sorted(soll & da):
        if codes_des_protokolls(os.path.join(os.fsencode(ziel), name)) != plaene[name[:-4]].codes:
            klagen.append(f"protocol of {name}")
    return klagen
