#!/usr/bin/env python3
"""Writes the exchange files that the pages are shown and tested with, beside the samples, into a folder.

abgewiesen.01S  lines out of order: refused with 2022
gross.01S       many findings, as many lines as asked for
feindlich.E1S   texts that try to leave their place: markup, ends of scripts, marks of direction, controls, forged codes
"""
import itertools
import pathlib
import sys


def satz(*felder):
    """A record of 256 columns out of (column, text)."""
    zeichen = [" "] * 256
    for spalte, text in felder:
        zeichen[spalte - 1:spalte - 1 + len(text)] = text
    return "".join(zeichen)


def schreiben(pfad, saetze, kodierung):
    pfad.write_bytes("".join(s.rstrip(" ") + "\r\n" for s in saetze).encode(kodierung))


def kopf(kennung, projekt, dokument, software="Musterausmass"):
    return satz((1, "A150926" + kennung), (30, "Muster AG"), (42, "1"), (44, "AA"), (63, "000000000001"), (82, "P-2026-02"),
                (93, projekt), (123, "D-02"), (138, dokument), (168, "Muster AG"), (188, "Musterstadt"), (208, software))


def schluss(zeilen):
    return satz((1, "Z150926"), (18, "X"), (46, f"{zeilen:013}"), (62, "-"), (63, "000000000001"), (138, "Mauern"), (168, "Muster AG"),
                (188, "Musterstadt"))


def gross(zeilen):
    """Positions of 96 quantities each, every one with an unknown object, every third of an unknown kind."""
    saetze = [kopf("451-9211", "Musterschulhaus", "Mauern"), satz((1, "G241 20"), (42, "1"), (93, "Probemauern"))]
    for ziffern in itertools.product("123456789", repeat=6):
        platz = "G241   " + "".join(ziffern)
        saetze.append(satz((1, platz), (42, "2"), (93, "Mauer " + "".join(ziffern))))
        saetze.append(satz((1, platz), (42, "5"), (59, "m2")))
        for _ in range(96):
            nummer = len(saetze)
            saetze.append(satz((1, platz), (18, f"{nummer:06}"), (42, "6"), (44, "x" if nummer % 3 == 0 else "A"), (45, "+"),
                               (46, "0000000125500")))
        if len(saetze) >= zeilen - 1:
            break
    saetze = saetze[:zeilen - 1]
    return saetze + [schluss(len(saetze) + 1)]


FEINDLICHE = ["</script><script>alert(1)//", "<img src=x onerror=alert(2)>", "</style><b>fett</b><!--", "\u202eRTL\u202c \u2066LRI\u2069 \ufeff.",
              "\x07\x1b[31mrot\x7f", "\" N=\"4101\" E=\"B\" T=\"", "&lt;b&gt;&amp;&#60;x&#62;", "{0}{1}${alert(3)}", "=1+1;\"a\"", "`1z``\\u003c\\",
              "javascript:alert(4)", "]]></Errors>", "4101 A Kapitel 999"]


def feindlich():
    saetze = [kopf("QVMX1721", "<script>alert(5)</script>", "\"><img src=x onerror=a()>", "</title></textarea>'\"&")]
    saetze.append(satz((1, "G241 20"), (42, "1"), (93, "<b>Kapitel</b>\u202e")))
    for nummer, text in enumerate(FEINDLICHE):
        platz = f"G241   2110{nummer // 9 + 1}{nummer % 9 + 1}"
        saetze.append(satz((1, platz), (42, "2"), (93, text[:30])))
        saetze.append(satz((1, platz), (42, "5"), (59, "zz"), (61, "<"), (100, text[:24])))
        saetze.append(satz((1, platz), (42, "6"), (18, text[:6].replace("*", "x")), (44, "<"), (168, text[:16]), (188, "<i>")))
    return saetze + [schluss(len(saetze) + 1)]


def main():
    ordner = pathlib.Path(sys.argv[1])
    zeilen = int(sys.argv[2])
    wurzel = pathlib.Path(__file__).resolve().parents[2]
    schreiben(ordner / "gross.01S", gross(zeilen), "cp850")
    schreiben(ordner / "feindlich.E1S", feindlich(), "utf-8")
    zeilen = (wurzel / "samples/sauber.01S").read_bytes().split(b"\r\n")
    zeilen.insert(1, zeilen.pop(-3))  # the last chapter's last record before the structures
    (ordner / "abgewiesen.01S").write_bytes(b"\r\n".join(zeilen))


if __name__ == "__main__":
    main()
