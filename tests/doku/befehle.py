#!/usr/bin/env python3
"""What the documents show is true: every command runs and says what stands below it, the code of an example is that of
its file, links lead somewhere, and a document says the same in each of its languages.

befehle.py BUILD-FOLDER [--schreiben]; with --schreiben an output that is shown whole is written anew.
"""
import os
import pathlib
import re
import subprocess
import sys
import tempfile

from doku import QUELLE, SPRACHEN, bloecke, befehle, dokumente, fassungen, maskiert, passt, prosa

BAU = pathlib.Path(sys.argv[1]).resolve()
SCHREIBEN = "--schreiben" in sys.argv

# Commands of sh blocks by their first words: the script that runs them, and how they stand there.
ANDERSWO = {
    "./run.sh": ("tools/pruefungen.sh", "./run.sh"),
    "./test.sh": (".ci/run", "./test.sh"),
    "./web.sh": ("tools/pruefungen.sh", "./web.sh"),
    "fuzz/lauf.sh": ("tools/pruefungen.sh", "fuzz/lauf.sh"),
    "fuzz/dauer.sh": ("tools/nacht.sh", "fuzz/dauer.sh"),
    "cmake --preset debug": ("test.sh", "cmake --preset debug"),
    "cmake --build --preset debug": ("test.sh", "cmake --build --preset debug"),
    "cmake --preset release": ("run.sh", "cmake --preset release"),
    "cmake --build --preset release": ("run.sh", "cmake --build --preset release"),
    "cmake --preset fuzz": ("tools/pruefungen.sh", "cmake --preset fuzz"),
    "cmake --build --preset fuzz": ("tools/pruefungen.sh", "cmake --build --preset fuzz"),
    "ctest --test-dir": ("tools/ctest_lauf.sh", "ctest --test-dir"),
    "/usr/bin/python3 -m pytest": ("tests/CMakeLists.txt", "-m pytest -q"),
    "zepholt-stapel ": ("tests/stapel/programm_test.py", "zepholt-stapel"),
    "zepholt-bericht batch ": ("tests/bericht/programm_test.py", '"batch"'),
    "find . -name '*.xml' ": ("tests/stapel/tempo.py", "summary"),
    "python3 tools/hilfe": ("tests/hilfe/generator_test.py", "tools/hilfe"),
}
ZU_LANG = {"tools/nacht.sh", ".ci/run"}  # nothing else runs them: they run everything
KEINE_BEFEHLE = {"", "xml", "cpp", "csharp", "java", "python", "powershell", "vb", "batch", "bat"}

GEPRUEFT = 0
FALSCH = []


def erwarte(wahr, was):
    global GEPRUEFT
    GEPRUEFT += 1
    if not wahr:
        FALSCH.append(was)
        print("FALSE", was)


def ort_von(pfad, zeile):
    return f"{pfad.relative_to(QUELLE)}:{zeile}"


def lauf(alle, ordner):
    """The output of each command, run by one bash in the folder."""
    (ordner / "samples").symlink_to(QUELLE / "samples")
    (ordner / "docs").symlink_to(QUELLE / "docs")
    marke = "--- next command ---"
    skript = "exec 2>&1\n" + "".join(f"{b}\nprintf '%s\\n' '{marke}'\n" for b in alle)
    umgebung = {k: v for k, v in os.environ.items() if k not in ("DISPLAY", "WAYLAND_DISPLAY", "LANG", "LANGUAGE")}
    umgebung |= {"PATH": f"{BAU}:{os.environ['PATH']}", "LC_ALL": "C.UTF-8", "HOME": str(ordner), "QUELLE": str(QUELLE)}
    fertig = subprocess.run(["bash", "-c", skript], cwd=ordner, env=umgebung, stdin=subprocess.DEVNULL,
                            stdout=subprocess.PIPE, check=False)
    teile = fertig.stdout.decode("utf-8").replace(str(ordner), "/tmp/lauf").split(marke + "\n")[:-1]
    return [teil.split("\n")[:-1] if teil else [] for teil in teile]


def konsole(pfad):
    """Runs the commands of a document and holds what they say against what is shown."""
    alle = [befehl for block in bloecke(pfad) if block.sprache == "console" for befehl in befehle(block)]
    if not alle:
        return
    with tempfile.TemporaryDirectory() as ordner:
        ausgaben = lauf([befehl for befehl, _, _ in alle], pathlib.Path(ordner))
    erwarte(len(ausgaben) == len(alle), f"{pfad.name}: the commands end before their end")
    zeilen = pfad.read_text(encoding="utf-8").split("\n")
    for (befehl, zeile, gezeigt), ist in reversed(list(zip(alle, ausgaben))):
        if SCHREIBEN and not passt(gezeigt, ist) and not any(z.endswith("...") for z in gezeigt):
            zeile += befehl.count("\n")
            zeilen[zeile:zeile + len(gezeigt)] = ist
            continue
        soll = "\n".join(map(maskiert, ist))
        erwarte(passt(gezeigt, ist), f"{ort_von(pfad, zeile)}: '{befehl}' says\n{soll}")
    if SCHREIBEN:
        pfad.write_text("\n".join(zeilen), encoding="utf-8")


def laeuft_anderswo(befehl):
    if befehl.split()[0] in ZU_LANG:
        return (QUELLE / befehl.split()[0]).exists()
    stellen = (stelle for anfang, stelle in ANDERSWO.items() if befehl.startswith(anfang))
    return any(text in (QUELLE / skript).read_text(encoding="utf-8") for skript, text in stellen)


def form(pfad):
    """Commands stand in blocks that say how they are tested, and those that other scripts run are run there."""
    in_liste = False
    for nummer, zeile in prosa(pfad):
        if zeile.strip():
            in_liste = bool(re.match(r"(?:[-*]|\d+\.) ", zeile)) or in_liste and zeile.startswith(" ")
        erwarte(in_liste or not zeile.startswith("    "), f"{ort_von(pfad, nummer)}: an indented block is not tested")
    for block in bloecke(pfad):
        if block.sprache == "sh":
            for versatz, zeile in enumerate(block.text):
                for befehl in re.sub(r"\s+#.*", "", zeile).split(" && "):
                    erwarte(laeuft_anderswo(befehl), f"{ort_von(pfad, block.zeile + versatz)}: no script runs '{befehl}'")
        else:
            erwarte(block.sprache in KEINE_BEFEHLE or block.sprache == "console",
                    f"{ort_von(pfad, block.zeile)}: a block of '{block.sprache}'")


def beispiele(pfad):
    """A block below a line that names a file of beispiele/ holds that file."""
    text = pfad.read_text(encoding="utf-8")
    def ersetzt(fund):
        code = (pfad.parent / fund[2]).read_text(encoding="utf-8").replace("\r\n", "\n")
        if not SCHREIBEN:
            erwarte(code == fund[5], f"{pfad.relative_to(QUELLE)}: the code differs from {fund[2]}")
        return f"{fund[1]}{fund[3]}```{fund[4]}\n{code}```"
    neu = re.sub(r"(\[`[^`]+`\]\((beispiele/[^)]+)\))([^\n]*\n\n)```(\w+)\n(.*?)^```$", ersetzt, text, flags=re.S | re.M)
    if SCHREIBEN:
        pfad.write_text(neu, encoding="utf-8")


def anker(pfad):
    """The places of a document that a link can name: its headings, as the usual viewers of Markdown name them."""
    ueberschriften = (z.lstrip("#").strip() for _, z in prosa(pfad) if re.match(r"#+ ", z))
    return {re.sub(r"[^\w\- ]", "", u.lower()).replace(" ", "-") for u in ueberschriften}


def verweise(pfad):
    """Links lead to files and headings that exist, and what is named as a path of the repository exists."""
    for nummer, zeile in prosa(pfad):
        for ziel in re.findall(r"\]\(([^)\s:]+)\)", zeile):
            datei, _, stelle = ziel.partition("#")
            wohin = (pfad.parent / datei) if datei else pfad
            erwarte(wohin.exists(), f"{ort_von(pfad, nummer)}: {ziel} does not exist")
            if stelle and wohin.exists():
                erwarte(stelle in anker(wohin), f"{ort_von(pfad, nummer)}: {ziel} has no such heading")
        for name in re.findall(r"`((?:src|tests|tools|docs|bench|samples|cmake|hilfe|fuzz|packaging)/[\w./*-]+)`", zeile):
            erwarte(any(QUELLE.glob(name.rstrip("/"))), f"{ort_von(pfad, nummer)}: {name} does not exist")


def tatsachen(pfad, sprache):
    """What must be the same in every language of a document: headings, commands, codes, parameters, links, attributes."""
    text = "\n".join(zeile for _, zeile in prosa(pfad))
    gleich = lambda s: re.sub(r"\bdialog=(de|fr|it)\b", "dialog=XX", s)
    kommandos = [befehl for block in bloecke(pfad) if block.sprache == "console" for befehl, _, _ in befehle(block)]
    kommandos += [z for block in bloecke(pfad) if block.sprache in ("sh", "bat") for z in block.text]
    ziele = re.findall(r"\]\(([^)#\s]+)(?:#[^)]*)?\)", text)
    # The document's own languages stand in another order in each; pictures and pages may be those of the language.
    ziele = [re.sub(r"(?<=/)(de|fr|it)(?=/)|/(en|de|fr|it)(?=\.md)|-(de|fr|it)(?=\.png)", "", z) for z in ziele
             if not re.fullmatch(r"(README(\.(de|fr|it))?|en|de|fr|it)\.md", z)]
    return {
        "headings": [len(z) - len(z.lstrip("#")) for z in text.split("\n") if re.match(r"#+ ", z)],
        "rows of tables": [z.count("|") for z in text.split("\n") if z.startswith("|")],
        "items": len(re.findall(r"^ *(?:[-*]|\d+\.) ", text, re.M)),
        "commands": [re.sub(r"\s+#.*", "", gleich(k)) for k in kommandos],
        "codes": sorted(re.findall(r"(?<![\d-])\d{4}(?![\d-])", re.sub(r"\]\([^)]*\)", "", text))),
        "words of the program": sorted(gleich(" ".join(w.split())) for w in re.findall(r"`([^`]+)`", text)),
        "links": ziele,
        "kinds of blocks": [block.sprache for block in bloecke(pfad)],
    }


def sprachen():
    for fassung in fassungen():
        muster = tatsachen(fassung[0], "en")
        for sprache, pfad in list(zip(SPRACHEN, fassung))[1:]:
            for name, wert in tatsachen(pfad, sprache).items():
                erwarte(wert == muster[name], f"{pfad.name}: other {name} than {fassung[0].name}\n"
                        f"  {unterschied(muster[name], wert)}")


def unterschied(a, b):
    if not isinstance(a, list):
        return f"{a} / {b}"
    hier = next((i for i, (x, y) in enumerate(zip(a, b)) if x != y), min(len(a), len(b)))
    return f"from place {hier}: {a[hier:hier + 3]} / {b[hier:hier + 3]}"


def main():
    for pfad in dokumente():
        beispiele(pfad)
        konsole(pfad)
        form(pfad)
        verweise(pfad)
    sprachen()
    print(f"{GEPRUEFT - len(FALSCH)} right, {len(FALSCH)} false")
    return 1 if FALSCH else 0


if __name__ == "__main__":
    sys.exit(main())
