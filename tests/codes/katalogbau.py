"""Builders for the tests of the catalogue: chapter files, collected files, and documents of G records.

A chapter is written from its parts: kapitel(H(111, U(1, V(0)))) is its XML text, eintrag(...) the bytes of its file with
the head and the abbreviation table. ordner() and sammeldatei() are catalogues of either kind, laid down when the run
comes, and beide() runs one document against both. This writer shares nothing with the program.
"""
import shutil
from functools import partial

from befunde import pruefe
from rahmen import anmelden, ohne_uhr, ort, satz


# Chapter text

def merkmale(**werte):
    """Attributes in the order given; None leaves one out. Values stand as they are: nothing is escaped."""
    return "".join(f' {name}="{wert}"' for name, wert in werte.items() if wert is not None)


def V(n, a=None, e=None):
    return f"<V{merkmale(N=n, A=a, E=e)}/>"


def U(n, *variablen, w=None, x=None, y=None):
    kopf = f"<U{merkmale(N=n, W=w, X=x, Y=y)}"
    return kopf + (">" + "".join(variablen) + "</U>" if variablen else "/>")


def H(n, *unter, x=None):
    kopf = f"<H{merkmale(N=n, X=x)}"
    return kopf + (">" + "".join(unter) + "</H>" if unter else "/>")


def kapitel(*haupt, n=241, s=1, v=2013, a=0, t="Titel", z=""):
    kopf = f"<Kapitel{merkmale(N=n, S=s, V=v, A=a, T=t, Z=z)}>"
    return kopf + "".join(haupt) + "<Texte><T>eins</T><T>zwei</T></Texte></Kapitel>"


# Files

def kopf(laenge, jahr=2013, sprache=1, nummer=241, groesse=1000, magie="CF11"):
    return f"{magie:4}{jahr:>4}{sprache:>1}{nummer:>3}{laenge:>09}{groesse:>09}".encode("latin-1")


def tabelle(kuerzel=()):
    """The abbreviation table: pairs of code and text, ended by a blank in the place of a code."""
    return b"".join(bytes([code]) + text + b"\n" for code, text in dict(kuerzel).items()) + b" "


def eintrag(rumpf, jahr=2013, sprache=1, nummer=241, kuerzel=(), groesse=None, magie="CF11", laenge=None, vorn=None):
    """A chapter file. `vorn` replaces the table; `laenge` and `groesse` stand in the head instead of the true ones."""
    rumpf = rumpf.encode("latin-1") if isinstance(rumpf, str) else rumpf
    rest = (tabelle(kuerzel) if vorn is None else vorn) + rumpf
    laenge = 30 + len(rest) if laenge is None else laenge
    return kopf(laenge, jahr, sprache, nummer, len(rumpf) + 44 if groesse is None else groesse, magie) + rest


def dateiname(jahr=2013, sprache=1, nummer=241):
    return f"N{jahr % 100:02}{sprache}{nummer}.qvm"


def _lege_ordner(dateien, unterordner):
    pfad = ort() / "k"
    shutil.rmtree(pfad, ignore_errors=True)
    pfad.mkdir()
    for name, inhalt in dateien.items():
        (pfad / name).write_bytes(inhalt)
    for name in unterordner:
        (pfad / name).mkdir()
    return "k"


def _lege_sammeldatei(inhalt):
    (ort() / "k.vlt").write_bytes(inhalt)
    return "k.vlt"


def ordner(dateien, unterordner=()):
    """A folder of chapter files, from names to bytes."""
    return partial(_lege_ordner, dateien, unterordner)


def sammeldatei(eintraege):
    return partial(_lege_sammeldatei, b"".join(eintraege))


# Documents

def G1(n=241, jahr="13", titel="Titel"):
    return satz("G1", {2: str(n), 6: jahr, 93: titel})


def G2(p, text="", n=241):
    return satz("G2", {2: str(n), 8: f"{p:06}", 93: text})


def G3(p, v, *texte, n=241, e=None, erste=1):
    """The lines of a variable; `e` maps a line to its insertion point."""
    return [satz("G3", {2: str(n), 8: f"{p:06}", 14: f"{v:02}", 16: f"{z:02}", 93: text,
                        136: f"{e[z]:02}" if e and z in e else ""}) for z, text in enumerate(texte, erste)]


def G4(p, n=241):
    return satz("G4", {2: str(n), 8: f"{p:06}"})


def G5(p, n=241, einheit="m2"):
    return satz("G5", {2: str(n), 8: f"{p:06}", 59: einheit})


def G6(p, vorbemerkung=0, n=241, art="A"):
    return satz("G6", {2: str(n), 8: f"{p:06}", 44: art, 123: f"{vorbemerkung:06}" if vorbemerkung else ""})


def geordnet(*saetze):
    """Flattens lists of records and puts them in the order of the keys."""
    def flach(teile):
        return [z for teil in teile for z in (flach(teil) if isinstance(teil, (list, tuple)) else [teil])]

    def schluessel(z):
        f = f"{z:256}"
        return f[0] + f[1:4] + f[7:13] + f[41] + f[13:17]

    return sorted(flach(saetze), key=schluessel)


def mit_text(n, *positionen):
    """Positions of a chapter with a line of fixed text each: what a reserve chapter needs."""
    return [[G2(p, n=n), G3(p, 0, "Text", n=n)] for p in positionen]


# Runs

def beide(name, arten, saetze, eintraege, soll, kopf_=None):
    """One document against a catalogue as folder and as collected file: `soll` both times, and the same protocol.

    `eintraege` are the chapter files, one or several (each with year, language and number in its head); `soll` are findings
    or ABBRUCH.
    """
    eintraege = [eintraege] if isinstance(eintraege, bytes) else eintraege
    namen = {f"N{b[6:8].decode('latin-1')}{b[8:9].decode('latin-1')}{b[9:12].decode('latin-1')}.qvm": b for b in eintraege}
    for art in [arten] if isinstance(arten, str) else arten:
        anmelden(f"{name} [{art}]", partial(_pruefe_beide, art, geordnet(saetze), soll, kopf_, ordner(namen),
                                            sammeldatei(eintraege)))


def _pruefe_beide(art, saetze, soll, kopf_, *kataloge):
    aus_ordner, aus_datei = (pruefe(art, saetze, soll, kopf=kopf_, katalog=katalog) for katalog in kataloge)
    assert ohne_uhr(aus_datei) == ohne_uhr(aus_ordner)
