"""Records A and Z: codes 3101 to 3107, the presence and form of their fields, and the rows 3104, 3105, 3111, 3112 of
the table, which no check reports."""
import re
from functools import partial

from befunde import f, fall
from rahmen import BEIDE, erwarte, faelle, lauf, satz

A, Z = 1, 2  # the lines of a file of nothing else

fall("a clean file of A and Z", BEIDE, [], [])


# --- document code, status, place: one character each -----------------------------------------------------------------
ZEICHEN = "ABCDEFGHIJKLMNOPZ1a*"
BEZUG = {8: "010120", 30: "Verfasser", 82: "P-1", 93: "Schulhaus", 123: "D-0"}  # the reference document, in Z
for z in ZEICHEN:
    fall(f"document code {z}", "01S", [], [] if z in "ABCDEFGHKL" else [f(3101, A)], kopf={44: z}, schluss=BEZUG)
    fall(f"document code {z}", "E1S", [], [] if z in "ABCDIK" else [f(3106, A)], kopf={44: z}, schluss=BEZUG)
    fall(f"status {z}", BEIDE, [], [] if z in "ABCD" else [f(3102, A)], kopf={45: z})
    fall(f"place {z}", BEIDE, [], [] if z in "AB" else [f(3103, A)], kopf={43: z})
fall("place blank", BEIDE, [], [], kopf={43: " "})
fall("document code blank", "01S", [], [f(3002, A, "A:13"), f(3101, A)], kopf={44: " "})
fall("document code blank", "E1S", [], [f(3002, A, "A:13"), f(3106, A)], kopf={44: " "})
fall("status blank", BEIDE, [], [f(3002, A, "A:14"), f(3102, A)], kopf={45: " "})
fall("the language of the file is not that of the messages", "01S", [], [f(3101, A)], kopf={42: "2", 44: "I"})

test_document_code_status_and_place = faelle()


# --- presence: (record, column, length, field, code in a 01S file, code in an E1S file) -------------------------------
PFLICHT = (
    ("A", 82, 11, "A:21-22", 3002, 3002),
    ("A", 93, 30, "A:23", None, 3003),
    ("A", 18, 12, "A:6-7", None, None),
    ("A", 123, 15, "A:24a-d", 3002, 3002),
    ("A", 138, 30, "A:24e", None, 3003),
    ("A", 46, 13, "A:15", None, None),
    ("A", 2, 6, "A:2", 3002, 3002),
    ("A", 30, 12, "A:8-10", None, 3002),
    ("A", 75, 7, "A:20", None, None),
    ("A", 59, 4, "A:16-18", None, None),
    ("A", 168, 20, "A:24f", 3002, 3002),
    ("A", 188, 20, "A:24g", 3002, 3002),
    ("A", 208, 30, "A:24h", 3002, 3002),
    ("A", 238, 19, "A:24i", None, None),
    ("Z", 82, 11, "Z:21-22", None, None),
    ("Z", 93, 30, "Z:23", None, None),
    ("Z", 8, 6, "Z:3", None, None),
    ("Z", 2, 6, "Z:2", 3002, 3002),
    ("Z", 123, 15, "Z:24a-d", None, None),
    ("Z", 75, 7, "Z:20", None, None),
    ("Z", 30, 12, "Z:8-10", None, None),
    ("Z", 18, 12, "Z:6-7", None, 3002),
    ("Z", 138, 30, "Z:24e", None, 3002),
    ("Z", 168, 20, "Z:24f", None, 3003),
    ("Z", 188, 20, "Z:24g", None, 3003),
    ("Z", 208, 49, "Z:24h-i", None, None),
)
for record, spalte, laenge, feld, alt, neu in PFLICHT:
    seite, zeile = ("kopf", A) if record == "A" else ("schluss", Z)
    for art, code in (("01S", alt), ("E1S", neu)):
        fall(f"{feld} blank", art, [], [f(code, zeile, feld)] if code else [], **{seite: {spalte: " " * laenge}})
        fall(f"{feld} absent", art, [], [f(code, zeile, feld)] if code else [], **{seite: {spalte: ""}})

# Everything blank at once: many 3002 on one line, so that the order among equal keys shows.
LEER_A = {s: " " * n for r, s, n, *_ in PFLICHT if r == "A"} | {44: " ", 45: " "}
LEER_Z = {s: " " * n for r, s, n, *_ in PFLICHT if r == "Z"}
fall("A all blank", "01S", [], [
    f(3002, A, "A:21-22"), f(3002, A, "A:24a-d"), f(3002, A, "A:13"), f(3002, A, "A:2"), f(3002, A, "A:14"),
    f(3002, A, "A:24f"), f(3002, A, "A:24g"), f(3002, A, "A:24h"), f(3101, A), f(3102, A)], kopf=LEER_A)
fall("A all blank", "E1S", [], [
    f(3002, A, "A:21-22"), f(3003, A, "A:23"), f(3002, A, "A:24a-d"), f(3003, A, "A:24e"), f(3002, A, "A:13"),
    f(3002, A, "A:2"), f(3002, A, "A:8-10"), f(3002, A, "A:14"), f(3002, A, "A:24f"), f(3002, A, "A:24g"),
    f(3002, A, "A:24h"), f(3106, A), f(3102, A)], kopf=LEER_A)
fall("A and Z all blank", "E1S", [], [
    f(3002, A, "A:21-22"), f(3003, A, "A:23"), f(3002, A, "A:24a-d"), f(3003, A, "A:24e"), f(3002, A, "A:13"),
    f(3002, A, "A:2"), f(3002, A, "A:8-10"), f(3002, A, "A:14"), f(3002, A, "A:24f"), f(3002, A, "A:24g"),
    f(3002, A, "A:24h"), f(3106, A), f(3102, A),
    f(3002, Z, "Z:2"), f(3002, Z, "Z:6-7"), f(3002, Z, "Z:24e"), f(3003, Z, "Z:24f"), f(3003, Z, "Z:24g")],
    kopf=LEER_A, schluss=LEER_Z)
fall("Z all blank", "01S", [], [f(3002, Z, "Z:2")], schluss=LEER_Z)
# Two equal keys change places, three turn round.
fall("two fields blank", "01S", [], [f(3002, A, "A:24g"), f(3002, A, "A:24f")], kopf={168: " " * 20, 188: " " * 20},
     wie_im_protokoll=True)
fall("three fields blank", "01S", [], [f(3002, A, "A:24h"), f(3002, A, "A:24g"), f(3002, A, "A:24f")],
     kopf={168: " " * 20, 188: " " * 20, 208: " " * 30}, wie_im_protokoll=True)

test_fields_of_a_and_z_that_must_be_there = faelle()


# --- form: numbers, dates, keys without a joker -----------------------------------------------------------------------
FORM = (
    ("A", 2, "A:2", ("310299", "000000", "991399"), ("21112x", "2111 6", " 21126", "21112 ", "+21126")),
    ("A", 75, "A:20", ("0000000", "9999999"), ("1      ", "      1", "00000.1", "-000001")),
    ("A", 59, "A:16-18", ("0000", "1234"), ("1   ", "  12", "12a4")),
    ("A", 82, "A:21-22", ("P", "P- 1"), ("P*", "*", " P")),
    ("A", 18, "A:6-7", ("x", "x y"), ("x*y", "*", " x")),
    ("A", 123, "A:24a-d", ("D", "D  1"), ("D*", "*  ", " D-1")),
    ("Z", 2, "Z:2", ("310299", "000000"), ("21112x", "2      ")),
    ("Z", 8, "Z:3", ("310299", "000000"), ("21112x", "2")),
    ("Z", 75, "Z:20", ("0000000",), ("12",)),
    ("Z", 82, "Z:21-22", ("P-9",), ("P*", " P")),
)
for record, spalte, feld, gut, schlecht in FORM:
    seite, zeile = ("kopf", A) if record == "A" else ("schluss", Z)
    breite = {75: 7, 59: 4, 82: 11, 18: 12, 123: 15}.get(spalte, 6)
    for wert in gut:
        fall(f"{feld} good {wert!r}", BEIDE, [], [], **{seite: {spalte: wert.ljust(breite)[:breite]}})
    for wert in schlecht:
        fall(f"{feld} bad {wert!r}", BEIDE, [], [f(3001, zeile, feld)],
             **{seite: {spalte: wert.ljust(breite)[:breite]}})
for spalte, feld, wert in ((82, "A:21-22", " *"), (18, "A:6-7", " x*"), (123, "A:24a-d", " *D")):
    fall(f"{feld} joker behind a blank: twice", BEIDE, [], [f(3001, A, feld)] * 2, kopf={spalte: wert.ljust(11)})
# Fields read as plain text take a joker and a leading blank.
fall("texts of A are free", BEIDE, [], [], kopf={93: " *a", 138: " *", 46: " *", 30: " *", 168: " *", 188: " *"})
fall("texts of Z are free", BEIDE, [], [], schluss={93: " *a", 123: " *", 30: " *", 18: " *", 138: " *", 168: " *"})

test_form_of_the_fields_of_a_and_z = faelle()


# --- reference document: E1S, codes I and C ---------------------------------------------------------------------------
for code in "IC":
    fall(f"code {code}, reference document given", "E1S", [], [], kopf={44: code}, schluss=BEZUG)
    for spalte in (8, 30, 82, 123):
        fall(f"code {code}, column {spalte} blank", "E1S", [], [f(3107, Z)], kopf={44: code},
             schluss={**BEZUG, spalte: ""})
    fall(f"code {code}, name blank: a warning", "E1S", [], [f(3003, Z, "Z:23")], kopf={44: code},
         schluss={**BEZUG, 93: ""})
    fall(f"code {code}, all blank: one 3107", "E1S", [], [f(3003, Z, "Z:23"), f(3107, Z)], kopf={44: code})
    fall(f"code {code}, only the name", "E1S", [], [f(3107, Z)], kopf={44: code}, schluss={93: "Schulhaus"})
    fall(f"code {code}, a bad date counts as absent", "E1S", [], [f(3001, Z, "Z:3"), f(3107, Z)], kopf={44: code},
         schluss={**BEZUG, 8: "01012x"})
    fall(f"code {code}, a date of zeros counts as given", "E1S", [], [], kopf={44: code},
         schluss={**BEZUG, 8: "000000"})
    fall(f"code {code}, a key with a joker counts as given", "E1S", [], [f(3001, Z, "Z:21-22")], kopf={44: code},
         schluss={**BEZUG, 82: "P*"})
    fall(f"code {code}, after the other findings of Z", "E1S", [],
         [f(3002, Z, "Z:6-7"), f(3003, Z, "Z:24f"), f(3003, Z, "Z:24g"), f(3003, Z, "Z:23"), f(3107, Z)],
         kopf={44: code}, schluss={18: "", 168: "", 188: ""})
for code in "ABDK":
    fall(f"code {code} needs no reference document", "E1S", [], [], kopf={44: code})
fall("code C in a 01S file needs none", "01S", [], [], kopf={44: "C"})
fall("code I in a 01S file is unknown and needs none", "01S", [], [f(3101, A)], kopf={44: "I"})
fall("the finding of Z stands behind those of the lines before", "E1S", [satz("B0", {2: "009"})],
     [f(3102, 1), f(3201, 2), f(3003, 3, "Z:23"), f(3107, 3)], kopf={44: "I", 45: "X"})

test_codes_i_and_c_want_a_reference_document = faelle()


# --- comparisons that don't exist -------------------------------------------------------------------------------------
NIE = (3104, 3105, 3111, 3112)


def codes_der_datei(art, kopf, schluss):
    """The codes of NIE that the run tells."""
    return [n for n in NIE if f'N="{n}"' in lauf(art, [], kopf=kopf, schluss=schluss)]


for name, kopf, schluss in (
        ("project number of Z differs", {}, {82: "Q-2"}),
        ("project name of Z differs", {}, {93: "Kirche"}),
        ("both differ", {82: "P-1", 93: "Schulhaus"}, {82: "Q-2", 93: "Kirche"}),
        ("model id as it should be", {30: "E2112710", 16: "AB"}, {}),
        ("model id not as defined", {30: "xyz", 16: "?!"}, {})):
    for code in "ABCDK":
        fall(f"{name}, code {code}", BEIDE, [], [], kopf={44: code, **kopf}, schluss={**BEZUG, **schluss})
        for art in BEIDE:
            erwarte(f"{name}, code {code}, no reference document [{art}]",
                    partial(codes_der_datei, art, {44: code, **kopf}, schluss), [])

test_a_and_z_are_never_compared = faelle()


# --- what the protocol keeps of the header ----------------------------------------------------------------------------
def angaben(art, kopf):
    return re.findall(r"<(?:Project|Document|Software) .*?>.*?</", lauf(art, [], kopf=kopf))


for art in BEIDE:
    erwarte(f"cut at the right, not at the left [{art}]", partial(angaben, art, {
        93: "  Schulhaus  ", 138: "a & b", 168: "M\u00fcller <AG>", 208: "'Ausmass'"}), [
        '<Project ID="P-1">  Schulhaus</', '<Document ID="D-1">a &amp; b</',
        '<Software Manufacturer="M\u00fcller &lt;AG&gt;">&apos;Ausmass&apos;</'])
    erwarte(f"fields blank [{art}]", partial(angaben, art, LEER_A),
            ['<Project ID="">?</', '<Document ID="">?</', '<Software Manufacturer="">?</'])

test_the_protocol_keeps_the_header_trimmed = faelle()
