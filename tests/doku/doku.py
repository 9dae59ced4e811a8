"""The documents and their blocks, for the scripts that hold them against the programs.

A block says by its language how it is tested:

    console     "$ " begins a command for bash, "> " goes on with it, and its output stands below; a line "..." stands
                for any lines, "..." at the end of a line for its rest. All commands of a document run one behind the
                other in one folder, /tmp/lauf by name. Dates, clock times, and numbers in front of s, ms and MB
                may differ.
    bat         commands of Windows, one a line; run by windows.py
    sh          commands that other scripts run, named in befehle.py
    others      no commands: rows of a file, or the code of an example, which is that of the file named above the block
"""
import dataclasses
import pathlib
import re

QUELLE = pathlib.Path(__file__).resolve().parents[2]
SPRACHEN = ("en", "de", "fr", "it")

MASKEN = [
    (re.compile(r"\b\d{4}-\d\d-\d\d\b"), "DATUM"),
    (re.compile(r"\b\d\d:\d\d(:\d\d)?\b"), "UHRZEIT"),
    (re.compile(r"\b\d+([.,]\d+)? ?(s|ms|MB)\b"), r"N \2"),
]


@dataclasses.dataclass
class Block:
    sprache: str
    zeile: int  # of the first line of its text, from 1
    text: list


def dokumente():
    """All documents but the pages of the codes, which have a test of their own."""
    muster = ["*.md", "docs/*.md", "docs/aufrufen/*.md", "docs/stapel/*.md", "docs/browser/*.md", "hilfe/*.md"]
    return sorted(pfad for m in muster for pfad in QUELLE.glob(m))


def fassungen():
    """The documents that say the same in four languages: lists of paths in the order of SPRACHEN."""
    return [
        [QUELLE / ("README.md" if s == "en" else f"README.{s}.md") for s in SPRACHEN],
        [QUELLE / f"docs/aufrufen/{s}.md" for s in SPRACHEN],
        [QUELLE / f"docs/stapel/{s}.md" for s in SPRACHEN],
        [QUELLE / f"docs/browser/{s}.md" for s in SPRACHEN],
    ]


def bloecke(pfad):
    """The fenced blocks of a document."""
    offen = None
    for nummer, zeile in enumerate(pfad.read_text(encoding="utf-8").split("\n"), 1):
        zaun = zeile.strip().startswith("```")
        if offen is None and zaun:
            offen = Block(zeile.strip()[3:], nummer + 1, [])
            einzug = len(zeile) - len(zeile.lstrip())
        elif offen is not None and zaun:
            yield offen
            offen = None
        elif offen is not None:
            offen.text.append(zeile[einzug:])


def prosa(pfad):
    """The lines outside of the fenced blocks, with their numbers."""
    drin = False
    for nummer, zeile in enumerate(pfad.read_text(encoding="utf-8").split("\n"), 1):
        if zeile.strip().startswith("```"):
            drin = not drin
        elif not drin:
            yield nummer, zeile


def befehle(block):
    """Command, its line, its output as shown: of a console block."""
    ergebnis = []
    for versatz, zeile in enumerate(block.text):
        if zeile.startswith("$ "):
            ergebnis.append([zeile[2:], block.zeile + versatz, []])
        elif ergebnis and zeile.startswith("> ") and not ergebnis[-1][2]:
            ergebnis[-1][0] += "\n" + zeile[2:]
        elif ergebnis:
            ergebnis[-1][2].append(zeile)
        else:
            raise ValueError(f"line {block.zeile}: output in front of any command")
    return ergebnis


def maskiert(zeile):
    for muster, ersatz in MASKEN:
        zeile = muster.sub(ersatz, zeile)
    return zeile.rstrip()


def passt(gezeigt, ist):
    """Whether the lines shown are those that came, but for what the masks and "..." leave open."""
    def muster(zeile):
        zeile = maskiert(zeile)
        if zeile == "...":
            return r"(?:[^\n]*\n)*?"
        offen = zeile.endswith("...")
        return re.escape(zeile[:-3] if offen else zeile) + (r"[^\n]*\n" if offen else r"\n")

    return re.fullmatch("".join(map(muster, gezeigt)), "".join(maskiert(z) + "\n" for z in ist)) is not None
