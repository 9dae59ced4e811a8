"""Every byte of a chapter file, and of a collected file of three, cut off, flipped and left out: a protocol with status 0,
or none with status 1 and one line on standard error. Nothing else, and never late."""
import shutil
from functools import cache, partial

from katalogbau import G1, G2, G3, G4, H, U, V, dateiname, eintrag, geordnet, kapitel
from rahmen import ABBRUCH, anmelden, befehle, datei, faelle, ort, parameter

DOKUMENT = datei("E1S", geordnet(
    G1(), G2(111001), G3(111001, 1, "x", e={1: 2}), G2(111010), G4(111010), G2(111122), G2(111191), G1(251),
    G2(111001, n=251)))
EINS = eintrag(kapitel(H(111, U(1, V(1, a="x", e=2)), "\x01", U(100, w=100199)), H(112)), kuerzel={1: b'<U N="10"/>', 7: b"x"})
ZWEI, DREI = (eintrag(kapitel(H(111, U(1)), n=n), nummer=n) for n in (242, 251))
STUECK = 25  # bytes whose runs share a process, which may take FRIST seconds and needs less than one
FRIST = 15


def verdorben(inhalt, i):
    """The ways to damage byte `i`: what was done, and the bytes."""
    yield "cut", inhalt[:i]
    yield "left out", inhalt[:i] + inhalt[i + 1:]
    for maske in (0x01, 0x10, 0x20, 0x80, 0xFF):
        yield f"^ {maske:#x}", inhalt[:i] + bytes([inhalt[i] ^ maske]) + inhalt[i + 1:]


def im_ordner(pfad, schlecht):
    """A catalogue of the damaged file and a good one; its name in `pfad`."""
    (pfad / "k").mkdir()
    (pfad / "k" / dateiname()).write_bytes(schlecht)
    (pfad / "k" / dateiname(nummer=251)).write_bytes(DREI)
    return "k"


def als_sammeldatei(pfad, schlecht):
    (pfad / "k.vlt").write_bytes(schlecht)
    return "k.vlt"


@cache
def enden(inhalt, lege, erstes):
    """How the tests of the document ended, and the lists of chapters, by byte and damage: of STUECK bytes."""
    shutil.rmtree(ort() / "v", ignore_errors=True)
    folge = {}
    for i in range(erstes, min(erstes + STUECK, len(inhalt))):
        for was, schlecht in verdorben(inhalt, i):
            for auftrag in ("e.E1S", "*1") if was in ("cut", "^ 0xff") else ("e.E1S",):
                wo = f"v/{len(folge)}"
                (ort() / wo).mkdir(parents=True)
                (ort() / wo / "e.E1S").write_bytes(DOKUMENT)
                folge[i, was, auftrag] = wo, parameter(auftrag, katalog=lege(ort() / wo, schlecht))
    return dict(zip(folge, befehle(folge.values(), frist=FRIST)))


def pruefe(inhalt, lege, i):
    """A protocol or a clean end; the list of chapters is written in every case."""
    for (byte, was, auftrag), ende in enden(inhalt, lege, i - i % STUECK).items():
        if byte == i and auftrag == "*1":
            assert ende.startswith("<?xml") and ende.endswith("</ZEPHOLT>"), was
        elif byte == i:
            assert ende == ABBRUCH or ende.startswith("<?xml") and ende.endswith("</SIA451>"), was


for art, inhalt, lege in (("file", EINS, im_ordner), ("collected file", EINS + ZWEI + DREI, als_sammeldatei)):
    for i in range(len(inhalt)):
        anmelden(f"{art} byte {i}", partial(pruefe, inhalt, lege, i))

test_a_damaged_chapter_file_never_makes_a_run_hang_or_fall = faelle()
