"""Every byte of a chapter file, and of a collected file of three, cut off, flipped and left out: a protocol with status 0,
or none with status 1 and one line on standard error. Nothing else, and never late."""
from functools import partial

from katalogbau import G1, G2, G3, G4, H, U, V, dateiname, eintrag, geordnet, kapitel, ordner, sammeldatei
from rahmen import ABBRUCH, anmelden, befehl, datei, faelle, ort, parameter

DOKUMENT = datei("E1S", geordnet(
    G1(), G2(111001), G3(111001, 1, "x", e={1: 2}), G2(111010), G4(111010), G2(111122), G2(111191), G1(251),
    G2(111001, n=251)))
EINS = eintrag(kapitel(H(111, U(1, V(1, a="x", e=2)), "\x01", U(100, w=100199)), H(112)), kuerzel={1: b'<U N="10"/>', 7: b"x"})
ZWEI, DREI = (eintrag(kapitel(H(111, U(1)), n=n), nummer=n) for n in (242, 251))


def verdorben(inhalt, i):
    """The ways to damage byte `i`: what was done, and the bytes."""
    yield "cut", inhalt[:i]
    yield "left out", inhalt[:i] + inhalt[i + 1:]
    for maske in (0x01, 0x10, 0x20, 0x80, 0xFF):
        yield f"^ {maske:#x}", inhalt[:i] + bytes([inhalt[i] ^ maske]) + inhalt[i + 1:]


def pruefe(inhalt, i, als_katalog):
    """A protocol or a clean end; the list of chapters is written in every case."""
    (ort() / "e.E1S").write_bytes(DOKUMENT)
    for was, schlecht in verdorben(inhalt, i):
        katalog = als_katalog(schlecht)
        ende = befehl(parameter("e.E1S", katalog=katalog), frist=5)
        assert ende == ABBRUCH or ende.startswith("<?xml") and ende.endswith("</SIA451>"), was
        if was in ("cut", "^ 0xff"):
            liste = befehl(parameter("*1", katalog=katalog), frist=5)
            assert liste.startswith("<?xml") and liste.endswith("</ZEPHOLT>"), was


for art, inhalt, als_katalog in (
        ("file", EINS, lambda inhalt: ordner({dateiname(): inhalt, dateiname(nummer=251): DREI})),
        ("collected file", EINS + ZWEI + DREI, lambda inhalt: sammeldatei([inhalt]))):
    for i in range(len(inhalt)):
        anmelden(f"{art} byte {i}", partial(pruefe, inhalt, i, als_katalog))

test_a_damaged_chapter_file_never_makes_a_run_hang_or_fall = faelle()
