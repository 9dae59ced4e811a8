#!/usr/bin/env python3
"""Puts the folder of the page together: zusammenstellen.py MODULE-FOLDER REPORT-FOLDER TARGET [ARCHIVE]

MODULE-FOLDER holds zepholt_modul.js and .wasm, REPORT-FOLDER the style and script of the report (bericht/seite). The same
sources give the same folder and the same archive, byte for byte.
"""
import base64
import hashlib
import json
import pathlib
import shutil
import sys
import zipfile

SEITE = pathlib.Path(__file__).parent / "seite"
NUR_ALS_DATEI = "eingebettet.js"  # what a page that no server gives needs: it may fetch nothing


def summe(text):
    return "'sha256-" + base64.b64encode(hashlib.sha256(text.encode()).digest()).decode() + "'"


def regel(stil, skript):
    """The content policy. A report is shown in a frame, which is bound by it too: its style and script by their sums."""
    return "; ".join((
        "default-src 'none'",
        f"script-src 'self' 'wasm-unsafe-eval' {summe(skript)}",
        f"style-src 'self' {summe(stil)}",
        "img-src 'self'",
        "manifest-src 'self'",
        "connect-src 'self' blob:",
        "worker-src 'self' blob:",  # the service worker and the one that tests
        "frame-src blob:",
        "base-uri 'none'",
        "form-action 'none'"))


def zusammenstellen(modul, bericht, ziel):
    stil, skript = ((bericht / name).read_text() for name in ("seite.css", "seite.js"))
    teile = {name: (SEITE / name).read_text() for name in ("index.html", "zepholt.css", "texte.js", "zepholt.js", "dienst.js")}
    arbeiter = "".join((
        (modul / "zepholt_modul.js").read_text(), "\n", (SEITE / "platte.js").read_text(), (SEITE / "arbeiter.js").read_text()))
    wasm = (modul / "zepholt_modul.wasm").read_bytes()

    shutil.rmtree(ziel, ignore_errors=True)
    ziel.mkdir(parents=True)
    for name in ("zeichen.svg", "zeichen-192.png", "zeichen-512.png", "zepholt.webmanifest"):
        shutil.copyfile(SEITE / name, ziel / name)
    (ziel / "modul.wasm").write_bytes(wasm)
    (ziel / "arbeiter.js").write_text(arbeiter)
    (ziel / "texte.js").write_text(teile["texte.js"])
    (ziel / "zepholt.js").write_text(teile["zepholt.js"])
    (ziel / "zepholt.css").write_text(stil + teile["zepholt.css"])
    (ziel / "index.html").write_text(teile["index.html"].replace("@REGEL@", regel(stil, skript)))
    eingebettet = {"modul": base64.b64encode(wasm).decode(), "arbeiter": arbeiter}
    (ziel / NUR_ALS_DATEI).write_text(f"self.ZEPHOLT_EINGEBETTET={json.dumps(eingebettet)};\n")

    dateien = sorted(p.name for p in ziel.iterdir() if p.name != NUR_ALS_DATEI)
    kennzahl = hashlib.sha256(b"".join((ziel / name).read_bytes() for name in dateien)).hexdigest()[:16]
    liste = json.dumps(["./", *(name for name in dateien if name != "index.html")])
    (ziel / "dienst.js").write_text(teile["dienst.js"].replace("@KENNZAHL@", kennzahl).replace("@DATEIEN@", liste))


def packen(ordner, archiv):
    with zipfile.ZipFile(archiv, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as zip_:
        for pfad in sorted(ordner.iterdir()):
            eintrag = zipfile.ZipInfo(f"zepholt-web/{pfad.name}", (2026, 1, 1, 0, 0, 0))
            eintrag.external_attr = 0o644 << 16
            eintrag.compress_type = zipfile.ZIP_DEFLATED
            zip_.writestr(eintrag, pfad.read_bytes())


def main():
    modul, bericht, ziel, *archiv = map(pathlib.Path, sys.argv[1:])
    zusammenstellen(modul, bericht, ziel)
    if archiv:
        packen(ziel, archiv[0])


main()
