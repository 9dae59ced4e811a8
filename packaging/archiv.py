#!/usr/bin/env python3
"""Packs a folder: archiv.py FOLDER ARCHIVE NAME. ARCHIVE ends in .zip or .tar.gz; NAME is the one folder at its top.

The same files give the same bytes: sorted, of one time (SOURCE_DATE_EPOCH), without owners.
"""
import gzip
import os
import pathlib
import sys
import tarfile
import time
import zipfile

ordner, archiv, name = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2]), sys.argv[3]
zeit = int(os.environ.get("SOURCE_DATE_EPOCH", time.time()))
dateien = sorted((p.relative_to(ordner).as_posix(), p) for p in ordner.rglob("*") if p.is_file())


def rechte(pfad):
    return 0o755 if os.access(pfad, os.X_OK) else 0o644


def zip_schreiben():
    with zipfile.ZipFile(archiv, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as ziel:
        for wo, pfad in dateien:
            eintrag = zipfile.ZipInfo(f"{name}/{wo}", time.gmtime(zeit)[:6])
            eintrag.compress_type = zipfile.ZIP_DEFLATED
            eintrag.create_system = 3  # of the rights
            eintrag.external_attr = (0o100000 | rechte(pfad)) << 16
            ziel.writestr(eintrag, pfad.read_bytes(), compresslevel=9)


def tar_schreiben():
    with open(archiv, "wb") as datei, gzip.GzipFile("", "wb", 9, datei, 0) as gepackt, \
            tarfile.open(fileobj=gepackt, mode="w", format=tarfile.PAX_FORMAT) as ziel:
        for wo, pfad in dateien:
            eintrag = tarfile.TarInfo(f"{name}/{wo}")
            eintrag.size, eintrag.mtime, eintrag.mode = pfad.stat().st_size, zeit, rechte(pfad)
            with pfad.open("rb") as inhalt:
                ziel.addfile(eintrag, inhalt)


zip_schreiben() if archiv.suffix == ".zip" else tar_schreiben()
