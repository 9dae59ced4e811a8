"""The generator of the help pages tells what is wrong: each case changes one thing in a copy of a few codes' sources.

Run by pytest with ZEPHOLT_BAU, the build folder that holds the programs.
"""
import os
import pathlib
import shutil
import subprocess
import sys

import pytest

QUELLE = pathlib.Path(__file__).resolve().parents[2]
CODES = ("4214", "4302", "4402", "1003")
SPRACHEN = ("de", "fr", "it")


def hilfe(wurzel, *worte):
    """One call of the generator: its status and what it complains of."""
    ende = subprocess.run([sys.executable, "-B", QUELLE / "tools/hilfe", "--wurzel", wurzel, "--bau",
                           os.environ["ZEPHOLT_BAU"], *worte], capture_output=True, text=True, check=False)
    return ende.returncode, ende.stderr


@pytest.fixture(scope="module")
def vorlage(tmp_path_factory):
    """A project of four codes: texts, examples and the pages made of them."""
    wurzel = tmp_path_factory.mktemp("vorlage")
    (wurzel / "samples").symlink_to(QUELLE / "samples")
    beispiele = wurzel / "hilfe/beispiele"
    beispiele.mkdir(parents=True)
    for sprache in SPRACHEN:
        ordner = wurzel / "hilfe/texte" / sprache
        ordner.mkdir(parents=True)
        for code in CODES:
            shutil.copy(QUELLE / f"hilfe/texte/{sprache}/{code}.md", ordner)
    for name in ("rahmen.01S.txt", "rahmen.E1S.txt", "4214.txt", "4302.txt", "4402.txt", "1003.aufruf.txt"):
        shutil.copy(QUELLE / "hilfe/beispiele" / name, beispiele)
    hilfe(wurzel, "seiten", *CODES)
    return wurzel


@pytest.fixture
def wurzel(vorlage, tmp_path):
    shutil.copytree(vorlage, tmp_path / "w", symlinks=True)
    return tmp_path / "w"


def test_a_complete_project_is_taken(wurzel):
    assert hilfe(wurzel, "pruefen", *CODES) == (0, "")


def ersetze(datei, alt, neu):
    def aendern(wurzel):
        pfad = wurzel / "hilfe" / datei
        text = pfad.read_text(encoding="utf-8")
        assert alt in text
        pfad.write_text(text.replace(alt, neu, 1), encoding="utf-8")
    return aendern


def schreibe(datei, text):
    return lambda wurzel: (wurzel / datei).write_text(text, encoding="utf-8")


def loesche(datei):
    return lambda wurzel: (wurzel / datei).unlink()


RICHTIG = "+ G2 2a=241 3=211001"
FALSCH = "- G2 2a=241 3=011001"

FAELLE = {
    "a text is missing": (loesche("hilfe/texte/fr/4214.md"), "hilfe/texte/fr/4214.md is missing"),
    "a section is missing": (ersetze("texte/it/4214.md", "## Da dove viene l'errore\n", "\n"),
                             "'## Da dove viene l'errore' is missing"),
    "a section that the form doesn't have": (ersetze("texte/de/4214.md", "## Die genaue Regel", "## Regel"),
                                             "'## Regel' is no section"),
    "a section twice": (ersetze("texte/de/4214.md", "## Die genaue Regel", "## Was dazugehört"), "or stands twice"),
    "text in front of the sections": (ersetze("texte/de/4214.md", "## Was", "Vorher\n\n## Was"), "in front of the first"),
    "sharp s": (ersetze("texte/de/4214.md", "Meist", "Meißt"), "'ß'"),
    "a link to a code that doesn't exist": (ersetze("texte/fr/4214.md", "[4215]", "[4299]"), "4299: no such code"),
    "a placeholder that doesn't exist": (ersetze("texte/de/4214.md", "{feld}", "{fald}"), "{fald} is no placeholder"),
    "a page of more than 60 lines": (ersetze("texte/de/4214.md", "## Die genaue Regel\n",
                                             "- noch eins\n" * 20 + "\n## Die genaue Regel\n"), "lines, at most 60"),
    "a text of a code that doesn't exist": (schreibe("hilfe/texte/de/4299.md", "x"), "hilfe/texte/de/4299.md: no such code"),
    "a reference to a text that is one itself": (schreibe("hilfe/texte/de/4302.md", "wie 4402\n"), "leads to no text"),
    "the wrong file is right": (ersetze("beispiele/4214.txt", FALSCH, FALSCH.replace("011001", "211011")),
                                "the wrong file gives no finding, expected [4214]"),
    "the wrong file has another finding": (ersetze("beispiele/4214.txt", FALSCH, FALSCH.replace("011001", "210001")),
                                           "the wrong file gives [4215], expected [4214]"),
    "the wrong file has one more finding": (ersetze("beispiele/4214.txt", FALSCH, FALSCH + " 12=X\n- G2 2a=241 3=211003"),
                                            "expected [4214]"),
    "the right file has a finding": (ersetze("beispiele/4214.txt", RICHTIG, RICHTIG.replace("211001", "211005")),
                                     "the right file has findings"),
    "a follow-up that the table doesn't have": (ersetze("beispiele/4214.txt", "G1 ", "# folgen: 4601\nG1 "),
                                                "[4601] are no follow-ups"),
    "a head line that doesn't exist": (ersetze("beispiele/4214.txt", "G1 ", "# folge: 4601\nG1 "), "is none of"),
    "a finding on another line": (ersetze("beispiele/4214.txt", "G1 ", "# zeile: 2\nG1 "), "stands on line 3, not on [2]"),
    "no line is marked": (schreibe("hilfe/beispiele/4214.txt", "G1 2a=241 2c=20\n"), "no line is marked"),
    "a field that doesn't exist": (ersetze("beispiele/4214.txt", " 3=011001", " 33=011001"), "satzschreiber"),
    "an example of one kind of file only": (
        lambda wurzel: (wurzel / "hilfe/beispiele/4214.txt").rename(wurzel / "hilfe/beispiele/4214.E1S.txt"),
        "the table asks for ['01S', 'E1S']"),
    "no example": (loesche("hilfe/beispiele/4214.txt"), "right examples of no kind"),
    "the name of an example": (schreibe("hilfe/beispiele/4214.e1s.txt", ""), "an example is called"),
    "a wrong call that is right": (schreibe("hilfe/beispiele/1003.aufruf.txt",
                                            "zepholt file=los1.01S dialog=de errorfile=fehler.xml catalog=katalog\n"
                                            "- # \n"), "one line 'zepholt ...' each"),
    "a right call without a protocol": (ersetze("beispiele/1003.aufruf.txt", "+ zepholt file=los1", "+ zepholt file=los3"),
                                        "the right call gives no clean protocol"),
    "a page that was changed by hand": (schreibe("docs/codes/de/4214.md", "# 4214\n"), "docs/codes/de/4214.md is not up"),
    "a page that is missing": (loesche("docs/codes/it/4402.md"), "docs/codes/it/4402.md is not up"),
    "a page of a code that doesn't exist": (schreibe("docs/codes/de/4299.md", ""), "docs/codes/de/4299.md: no such code"),
}


@pytest.mark.parametrize("name", FAELLE)
def test_a_fault_is_told(name, wurzel):
    aendern, klage = FAELLE[name]
    aendern(wurzel)
    status, klagen = hilfe(wurzel, "pruefen", *CODES)
    assert status == 1 and klage in klagen


def test_an_example_that_is_not_on_the_page_is_run(wurzel):
    eines = wurzel / "hilfe/beispiele/4214.txt"
    eines.with_name("4214.E1S.txt").write_text(eines.read_text(encoding="utf-8"), encoding="utf-8")
    anderes = eines.rename(eines.with_name("4214.01S.txt"))
    anderes.write_text("# seite: nein\nB0 2a=001\n" + anderes.read_text(encoding="utf-8"), encoding="utf-8")
    hilfe(wurzel, "seiten", *CODES)
    assert "B001" not in (wurzel / "docs/codes/de/4214.md").read_text(encoding="utf-8")
    ersetze("beispiele/4214.01S.txt", FALSCH, FALSCH.replace("011001", "211011"))(wurzel)
    assert "4214.01S.txt [01S]: the wrong file gives no finding" in hilfe(wurzel, "pruefen", *CODES)[1]


def test_codes_that_share_their_text_keep_their_own_lines(wurzel):
    seiten = {code: (wurzel / f"docs/codes/de/{code}.md").read_text(encoding="utf-8") for code in ("4302", "4402")}
    assert "Record G3 gehört" in seiten["4302"] and "Record G4 gehört" in seiten["4402"]
    assert "[4301](4301.md)" in seiten["4302"] and "[4301](4301.md)" not in seiten["4402"]
    assert not any("{" in text for text in seiten.values())


def test_a_number_at_the_beginning_of_a_line_is_no_item(wurzel):
    ersetze("texte/de/4214.md", "die Nummer also unter 100000 liegt. Das gilt", "die Nummer also unter\n100000. Das gilt")(wurzel)
    hilfe(wurzel, "seiten", *CODES)
    assert "also unter 100000. Das gilt" in (wurzel / "docs/codes/de/4214.md").read_text(encoding="utf-8")
