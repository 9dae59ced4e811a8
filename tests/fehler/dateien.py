"""Files for runs that are disturbed: exchange files of both kinds and chapter files, written without the program."""

import re


def satz(art, felder):
    zeile = [" "] * 256
    zeile[0] = art[0]
    if len(art) > 1:
        zeile[41] = art[1]
    for spalte, wert in felder.items():
        zeile[spalte - 1 : spalte - 1 + len(wert)] = wert
    return "".join(zeile).rstrip()


def rahmen(saetze, neu=False, anzahl=None):
    """The records between the head and the end of a document, as a file. The end counts `anzahl` records, or its own."""
    kopf = {2: "211126", 8: "QVMX17" if neu else "451-92", 14: "21" if neu else "11", 30: "Bauherr", 42: "1", 44: "AA"}
    kopf |= {63: "000000000001", 82: "P-1", 93: "Schulhaus", 123: "D-1", 138: "Baumeister", 168: "Muster AG"}
    kopf |= {188: "Bern", 208: "Ausmass"}
    schluss = {2: "211126", 18: "Ersteller", 46: f"{anzahl or len(saetze) + 2:013}", 62: "-", 63: "000000000001"}
    schluss |= {138: "Baumeister", 168: "Muster AG", 188: "Bern"}
    return "".join(zeile + "\r\n" for zeile in [satz("A", kopf), *saetze, satz("Z", schluss)])


def dokument(positionen):
    """A document whose positions each give findings."""
    saetze = [satz("G1", {2: "111", 6: "19", 93: "Kapitel"})]
    saetze += [satz("G2", {2: "111", 8: f"{100001 + i:06}", 43: "?", 93: "Position"}) for i in range(positionen)]
    return rahmen(saetze)


def zwei_kapitel(neu):
    """A document of two chapters, in each a position that the catalogue has and one that it hasn't."""
    saetze = []
    for kapitel in ("111", "112"):
        saetze.append(satz("G1", {2: kapitel, 6: "19", 93: "Kapitel"}))
        saetze += [satz("G2", {2: kapitel, 8: position, 93: "Text"}) for position in ("111000", "222000")]
    return rahmen(saetze, neu)


def kapiteldatei(nummer, jahr=2019, sprache=1):
    inhalt = f'<Kapitel N="{nummer}" V="{jahr}" S="{sprache}" A="1" T="Titel"><H N="100"><U N="0"/></H>'
    inhalt += '<H N="110"><U N="0"/></H><H N="111"><U N="0"/></H></Kapitel>'
    return f"CF11{jahr}{sprache}{nummer}{31 + len(inhalt):09}{0:09} {inhalt}"


def ohne_uhr(protokoll):
    """A protocol without its date and time."""
    return re.sub(rb"<Date>.*?</Time>", b"", protokoll)
