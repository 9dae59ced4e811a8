"""Whole runs kept as files, one for each form that a protocol can have and each road that ends without one.

A folder of tests/faelle holds the input, `befehl` (the arguments, one a line) and `erwartet.xml`, the protocol with Date and
Time masked as "-", compared byte for byte; without it no protocol may come out. Nothing may be shown. `nur_linux` says why
an emulator can't run a case.
"""
import pathlib
import shutil

import pytest

from rahmen import behalten, mit_programm, ohne_uhr, unter_emulator

FAELLE = sorted(p for p in (pathlib.Path(__file__).parent.parent / "faelle").iterdir() if p.is_dir())


@pytest.mark.parametrize("fall", FAELLE, ids=lambda fall: fall.name)
def test_whole_run_gives_its_protocol(fall, tmp_path):
    if unter_emulator() and (fall / "nur_linux").exists():
        pytest.skip((fall / "nur_linux").read_text())
    shutil.copytree(fall, tmp_path, dirs_exist_ok=True, ignore=shutil.ignore_patterns("erwartet.xml"))
    argumente = (fall / "befehl").read_text().splitlines()
    ende = mit_programm(argumente, 60, tmp_path)
    assert (ende.returncode, ende.stdout, ende.stderr) == (0, b"", b"")
    protokoll, soll = tmp_path / "p.xml", fall / "erwartet.xml"
    assert protokoll.exists() == soll.exists()
    if soll.exists():
        assert ohne_uhr(behalten(protokoll.read_bytes()).decode("latin-1")) == soll.read_bytes().decode("latin-1")
