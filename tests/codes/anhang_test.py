"""Attachment records X4, X5 and P1 to P5: codes 4252 and 4282, the form of their fields, and the rows 4251, 4261 and
4281 of the table, which no check reports: no attachment is compared with the positions of the document.

A 01S file leaves these records out: they are of an undefined type there, which is told once (2041).
"""
from befunde import f, fall
from rahmen import faelle, satz

MIT_ZEILE = ("X4", "X5", "P3", "P4", "P5")
ARTEN = ("X4", "X5", "P1", "P2", "P3", "P4", "P5")
GUT = {2: "111", 8: "111001", 14: "01", 16: "01", 93: "bild.png"}


def anhang(art, **mehr):
    spalten = {"kapitel": 2, "position": 8, "variable": 14, "zeile": 16, "zeichen": 43, "text": 93}
    felder = {s: w for s, w in GUT.items() if s != 16 or art in MIT_ZEILE}
    felder.update({spalten[n]: w for n, w in mehr.items()})
    return satz(art, {s: w for s, w in felder.items() if w})


UNBEKANNT = f(2041)
NIE = {4251, 4261, 4281}


def pruefe(name, saetze, soll):
    """The findings in an E1S file, nothing about positions; in a 01S file the same lines give the one 2041."""
    assert not {befund.code for befund in soll} & NIE
    fall(name, "E1S", saetze, soll)
    fall(name, "01S", saetze, [UNBEKANNT])


for art in ARTEN:
    def feld(nummer):
        return f"{art}:{nummer}"

    pruefe(f"{art} of a position that doesn't exist", [anhang(art)], [])
    pruefe(f"{art} of a chapter 000, position 000000", [anhang(art, kapitel="000", position="000000")], [])
    pruefe(f"{art} variable blank", [anhang(art, variable="")], [])
    pruefe(f"{art} variable 99", [anhang(art, variable="99")], [])
    pruefe(f"{art} variable 00", [anhang(art, variable="00")], [f(4252, 2)])
    for wert in ("0a", "1 ", " 1", "-1", "x"):
        pruefe(f"{art} variable {wert!r}", [anhang(art, variable=wert)], [f(3001, 2, feld("4")), f(4252, 2)])
    pruefe(f"{art} text with 164 characters", [anhang(art, text="x" * 164)], [])
    pruefe(f"{art} text with a joker and a leading blank", [anhang(art, text=" *")], [])
    for name, spalte, nummer in (("kapitel", 2, "2a"), ("position", 8, "3")):
        pruefe(f"{art} {name} blank", [anhang(art, **{name: ""})], [f(3002, 2, feld(nummer))])
        pruefe(f"{art} {name} bad", [anhang(art, **{name: "1x1"})], [f(3001, 2, feld(nummer))])
    pruefe(f"{art} text blank", [anhang(art, text="")], [f(3002, 2, feld("23"))])
    if art in MIT_ZEILE:
        pruefe(f"{art} line blank", [anhang(art, zeile="")], [f(3002, 2, feld("5"))])
        pruefe(f"{art} line 00", [anhang(art, zeile="00")], [])
        pruefe(f"{art} line bad", [anhang(art, zeile="1")], [f(3001, 2, feld("5"))])
    else:
        pruefe(f"{art} has no line", [anhang(art, zeile="01")], [f(2032, 2, "16")])
        pruefe(f"{art} columns 16 and 17 blank", [anhang(art, zeile="  ")], [])
    pflicht = ["2a", "3"] + (["5"] if art in MIT_ZEILE else []) + ["23"]
    pruefe(f"{art} everything blank", [satz(art)], [f(3002, 2, feld(n)) for n in pflicht])
    schlecht = ["2a", "3", "4"] + (["5"] if art in MIT_ZEILE else [])
    pruefe(f"{art} all numbers bad", [anhang(art, kapitel="x", position="x", variable="x",
                                             zeile="x" if art in MIT_ZEILE else "", text="")],
           [*(f(3001, 2, feld(n)) for n in schlecht), f(3002, 2, feld("23")), f(4252, 2)])
    if art == "P1":
        continue
    pruefe(f"{art} has no field 12", [anhang(art, zeichen="0")], [f(2032, 2, "43")])
    pruefe(f"{art} has no field 12 to be tested", [anhang(art, zeichen="2")], [f(2032, 2, "43")])

for zeichen in "01 ":
    pruefe(f"P1:12 {zeichen!r}", [anhang("P1", zeichen=zeichen)], [])
for zeichen in "29x+*":
    pruefe(f"P1:12 {zeichen!r}", [anhang("P1", zeichen=zeichen)], [f(4282, 2)])
pruefe("P1 with all its findings", [satz("P1", {14: "00", 43: "2"})],
       [f(3002, 2, "P1:2a"), f(3002, 2, "P1:3"), f(3002, 2, "P1:23"), f(4252, 2), f(4282, 2)])

test_fields_of_attachments = faelle()


# --- a position that does exist, of a reserve chapter, so that no catalogue is asked ----------------------------------
ITEMS = [satz("G1", {2: "191", 6: "20", 93: "Reserve"}), satz("G2", {2: "191", 8: "100000"}),
         satz("G3", {2: "191", 8: "100000", 14: "00", 16: "01", 93: "Text"})]
fall("attachments of a position that exists", "E1S",
     [*ITEMS, *(anhang(art, kapitel="191", position="100000") for art in sorted(ARTEN))], [])
fall("attachments have no position in the protocol", "E1S",
     [*ITEMS, anhang("P2", kapitel="191", position="100000", variable="00"),
      anhang("X4", kapitel="191", position="100000", variable="00")], [f(4252, 5), f(4252, 6)])

test_attachments_are_never_held_against_positions = faelle()


# --- digits that don't exist ------------------------------------------------------------------------------------------
for art in ("X0", "X1", "X3", "X6", "P0", "P6", "P9", "X ", "P "):
    pruefe(f"{art} is undefined and not tested", [satz(art, {2: "x", 14: "00", 43: "2"})], [UNBEKANNT])
pruefe("between others", [anhang("P1", variable="00"), satz("P6", {2: "222"}), anhang("P1", kapitel="333", zeichen="2"),
                          anhang("X4", variable="00"), satz("X6", {2: "222"}),
                          anhang("X5", kapitel="333", variable="0a")],
       [f(4252, 2), f(4282, 4), f(4252, 5), f(3001, 7, "X5:4"), f(4252, 7), UNBEKANNT])
# The X records are tested before the P records, which shows in the order of equal findings of one line.
fall("many lines of many blanks", "E1S",
     [satz(art, {8: f"{i:06}"}) for i in range(7) for art in ("P1", "P3")]
     + [satz("X4", {8: f"{i:06}"}) for i in range(7)],
     [f(3002, 16 + i, f"X4:{n}") for i in range(7) for n in ("2a", "5", "23")]
              + [f(3002, 2 + 2 * i + k, f"{art}:{n}") for i in range(7)
                 for k, (art, felder) in enumerate((("P1", ("2a", "23")), ("P3", ("2a", "5", "23")))) for n in felder])

test_unknown_attachments_are_undefined_and_not_tested = faelle()
