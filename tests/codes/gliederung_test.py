"""Structure records B0 to B9: codes 3201 to 3298, what a refused record leaves behind (nothing), what a record that
reports and goes on leaves behind (its entry), and the two checks at the end of the block (3291, 3205).

Two records of one code have one universal key, so a doubled code needs a difference in a key column that the record
doesn't use; ANDERS puts an "x" there, which costs a warning 2032 of its own. Whether an entry is stored is asked with a
C5 record of a 01S file.
"""
from befunde import f, fall
from rahmen import BEIDE, faelle, satz


def b0(nummer, **mehr):
    spalten = {"jahr": 6, "name": 36, "kopf": 63, "folge": 75, "acht": 8, "achtzehn": 18}
    return satz("B0", {2: nummer, **{spalten[n]: w for n, w in mehr.items()}})


CODE = {1: 82, 2: 18, 3: 87, 4: 129, 5: 30, 6: 30, 7: 168, 8: 188}
ANDERS = {1: 87, 2: 82, 3: 82, 4: 82, 5: 82, 6: 82, 7: 82, 8: 82}
NUMMER = {1: "001", 2: "002", 3: "003", 4: "004", 5: "005", 6: "005", 7: "007", 8: "008"}


def b(art, code, felder=None, nummer=None, anders=False):
    """Record B1 to B8 with its code and a designation; for B6 the code is a pair "group/variant"."""
    spalten = {2: nummer or NUMMER[art], 93: "Name"}
    if art == 6:
        spalten[30], spalten[33] = code.split("/")
    elif art == 2 and "/" in code:
        spalten[18], spalten[24] = code.split("/")
    else:
        spalten[CODE[art]] = code
    if art == 5:
        spalten[135] = "V1"
    if anders:
        spalten[ANDERS[art]] = "x"
    return satz(f"B{art}", {**spalten, **(felder or {})})


def fremd(art, L):
    """The warning that ANDERS costs."""
    return f(2032, L, str(ANDERS[art]))


C0, C1 = satz("C0", {2: "000"}), satz("C1", {2: "001", 5: "1", 6: "01", 44: "%"})


def c5(**mehr):
    spalten = {"ogl": 18, "psl": 24, "kag": 82, "element": 87, "gruppe": 30, "variante": 33, "typ": 129}
    return satz("C5", {2: "001", **{spalten[n]: w for n, w in mehr.items()}})


# --- B0: number, standard structure -----------------------------------------------------------------------------------
for nummer in ("001", "002", "003", "004", "005", "007", "008"):
    fall(f"B0 {nummer}", BEIDE, [b0(nummer)], [])
for nummer in ("000", "006", "009", "010", "999"):
    fall(f"B0 {nummer}", BEIDE, [b0(nummer)], [f(3201, 2)])
fall("B0 without number", BEIDE, [b0("   ")], [f(3002, 2, "B0:2a"), f(3201, 2)])
for nummer in ("a01", "1  ", " 01", "0,1", "00x"):
    fall(f"B0 with a bad number {nummer!r}", BEIDE, [b0(nummer)], [f(3001, 2, "B0:2a"), f(3201, 2)])
fall("every bad B0 reports", BEIDE, [b0("000"), b0("006"), b0("009")], [f(3201, 2), f(3201, 3), f(3201, 4)])
fall("a bad B0 reads its other fields first", BEIDE, [b0("006", jahr="x1", folge="12")],
     [f(3001, 2, "B0:2c"), f(3001, 2, "B0:20"), f(3201, 2)])
fall("a bad B0 keeps no order", "E1S", [b0("001", folge="0000001"), b0("006", folge="0000001")], [f(3201, 3)])
fall("its twin does", "E1S", [b0("001", folge="0000001"), b0("007", folge="0000001")], [f(3205)])
fall("number 6 with a name is only 3201", BEIDE, [b0("006", name="SN")], [f(3201, 2)])

for nummer in ("001", "003"):
    fall(f"B0 {nummer} with name and year", BEIDE, [b0(nummer, name="eBKP", jahr="12", kopf="Text")], [])
    fall(f"B0 {nummer}, name alone", "E1S", [b0(nummer, name="eBKP")], [f(3203, 2)])
    fall(f"B0 {nummer}, year alone", "E1S", [b0(nummer, jahr="95")], [f(3203, 2)])
    fall(f"B0 {nummer}, year of zeros is a year", "E1S", [b0(nummer, name="eBKP", jahr="00")], [])
    fall(f"B0 {nummer}, name or year alone", "01S", [b0(nummer, name="eBKP")], [])
    fall(f"B0 {nummer}, name or year alone", "01S", [b0(nummer, jahr="95")], [])
    fall(f"B0 {nummer}, a bad year is a year", "E1S", [b0(nummer, name="eBKP", jahr="x1")], [f(3001, 2, "B0:2c")])
    fall(f"B0 {nummer}, a bad year alone", "E1S", [b0(nummer, jahr="1 ")], [f(3001, 2, "B0:2c"), f(3203, 2)])
    fall(f"B0 {nummer}, a bad year alone", "01S", [b0(nummer, jahr="1 ")], [f(3001, 2, "B0:2c")])
for nummer in ("002", "004", "005", "007", "008"):
    fall(f"B0 {nummer} with a name", BEIDE, [b0(nummer, name="SN")], [f(3202, 2)])
    fall(f"B0 {nummer} with a year", BEIDE, [b0(nummer, jahr="12")], [f(3202, 2)])
    fall(f"B0 {nummer} with both: one warning", BEIDE, [b0(nummer, name="SN", jahr="12")], [f(3202, 2)])
    fall(f"B0 {nummer} with a head text", BEIDE, [b0(nummer, kopf="Text")], [])
fall("B0 after 3203 counts", "E1S", [b0("001", name="eBKP"), b(1, "A")], [f(3203, 2)])
fall("B0 after 3202 counts", BEIDE, [b0("002", name="SN"), b(2, "A")], [f(3202, 2)])
fall("a second B0 of one number is no fault", BEIDE, [b0("001"), b0("001", achtzehn="x")], [f(2032, 3, "18")])
for folge in ("1      ", "      1", "000000x"):
    fall(f"B0 order {folge!r}", BEIDE, [b0("001", folge=folge)], [f(3001, 2, "B0:20")])

test_b0_number_and_standard_structure = faelle()


# --- B0: order of the structures, once, without a line ----------------------------------------------------------------
EINS, ZWEI, NULL = "0000001", "0000002", "0000000"


def folgen(*werte):
    return [b0(n, folge=w) for n, w in zip(("001", "002", "003", "004", "005", "007", "008"), werte)]


for name, werte, doppelt in (
        ("1 0 1", (EINS, NULL, EINS), True), ("1 1", (EINS, EINS), True), ("1 2 2 1", (EINS, ZWEI, ZWEI, EINS), True),
        ("all the same", (EINS,) * 7, True), ("last two", (NULL,) * 5 + (ZWEI, ZWEI), True),
        ("first and last", (EINS,) + (NULL,) * 5 + (EINS,), True),
        ("0 0 0", (NULL,) * 3, False), ("blank", ("",) * 3, False), ("1 2", (EINS, ZWEI), False),
        ("0 1 0", (NULL, EINS, NULL), False), ("one", (EINS,), False), ("bad 1s", ("1", "1"), None)):
    if doppelt is None:
        fall(f"orders {name}", BEIDE, folgen(*werte), [f(3001, 2, "B0:20"), f(3001, 3, "B0:20")])
        continue
    fall(f"orders {name}", "E1S", folgen(*werte), [f(3205)] if doppelt else [])
    fall(f"orders {name}", "01S", folgen(*werte), [])
fall("a repeated B0 keeps both orders", "E1S", [b0("001", folge=EINS), b0("001", achtzehn="x", folge=EINS)],
     [f(2032, 3, "18"), f(3205)])

test_b0_order_of_the_structures_is_unique = faelle()


# --- the pattern of B1, B2, B3, B4, B5, B7, B8: number, announcement, code --------------------------------------------
FAMILIE = {1: (3221, 3222, 3223), 2: (3211, 3212, 3213), 3: (3231, 3232, 3233), 4: (3261, 3262, 3263),
           5: (3241, 3242, 3243), 7: (3292, 3293, 3294), 8: (3296, 3297, 3298)}
FELD = {1: "B1:21", 2: "B2:6", 3: "B3:22", 4: "B4:24b", 5: "B5:8", 7: "B7:24f", 8: "B8:24g"}
for art, (nr, fehlt, doppelt) in FAMILIE.items():
    kopf, eigen = b0(NUMMER[art]), NUMMER[art]
    arten = BEIDE if art < 7 else "E1S"
    # A B5 wants its primary variant, told at the end of the block on the first B5 line that names it.
    def ende(L, mal=1):
        return [f(3291, L)] * mal if art == 5 else []
    fall(f"B{art}", arten, [kopf, b(art, "A")], ende(3))
    for nummer in ("009", "999"):
        fall(f"B{art} with number {nummer}", arten, [kopf, b(art, "A", nummer=nummer)], [f(nr, 3)])
        fall(f"B{art} with number {nummer}, not announced either", arten, [b(art, "A", nummer=nummer)], [f(nr, 2)])
    fall(f"B{art} without number", arten, [b(art, "A", nummer="   ")], [f(3002, 2, f"B{art}:2a"), f(nr, 2)])
    fall(f"B{art} with a bad number", arten, [b(art, "A", nummer=eigen[:2] + "x")],
         [f(3001, 2, f"B{art}:2a"), f(nr, 2)])
    fall(f"B{art} not announced", arten, [b(art, "A"), b(art, "B")], [f(fehlt, 2), f(fehlt, 3)])
    fall(f"B{art}: another structure announced", arten,
         [b0("001"), b(art, "A")] if art > 1 else [b(art, "A"), b0("002")], [f(fehlt, 3 if art > 1 else 2)])
    fall(f"B{art} twice", arten, [kopf, b(art, "A"), b(art, "A", anders=True)],
         [*ende(3), fremd(art, 4), f(doppelt, 4)])
    fall(f"B{art} with two codes", arten, [kopf, b(art, "A"), b(art, "B", anders=True)],
         [*ende(3, 2), fremd(art, 4)])
    fall(f"B{art}: case counts", arten, [kopf, b(art, "A"), b(art, "a", anders=True)], [*ende(3, 2), fremd(art, 4)])
    fall(f"B{art}: a leading blank counts", arten, [kopf, b(art, "A"), b(art, " A")], ende(3, 2))
    fall(f"B{art} three times", arten, [kopf, b(art, "A"), b(art, "B"), b(art, "B", anders=True)],
         [*ende(3, 2), fremd(art, 5), f(doppelt, 5)])
    fall(f"B{art} without code", arten, [kopf, b(art, "")], [f(3002, 3, FELD[art]), *ende(3)])
    fall(f"B{art} without code is stored", arten, [kopf, b(art, ""), b(art, "", anders=True)],
         [f(3002, 3, FELD[art]), *ende(3), fremd(art, 4), f(3002, 4, FELD[art]), f(doppelt, 4)])
    fall(f"B{art} without designation", "E1S", [kopf, b(art, "A", {93: "    "})],
         [f(3003, 3, f"B{art}:23"), *ende(3)])
    if art < 7:
        fall(f"B{art} without designation", "01S", [kopf, b(art, "A", {93: "    "})], ende(3))
    fall(f"B{art}: all form findings before the number's", "E1S", [satz(f"B{art}", {2: "9x9"})],
         [f(3001, 2, f"B{art}:2a"),
          *([f(3002, 2, FELD[art])] + ([f(3002, 2, "B5:24c-d")] if art == 5 else [])),
          f(3003, 2, f"B{art}:23"), f(nr, 2)])
    # A B0 that the sort puts behind its records comes too late (columns 8 to 13 come before column 42).
    fall(f"B{art} before its B0", arten, [b(art, "A"), b0(eigen, acht="1")], [f(fehlt, 2), f(2032, 3, "8")])

test_structure_records_want_their_number_their_b0_and_a_new_code = faelle()


# --- a refused record leaves nothing, a stored one is found: asked with C5 in a 01S file ------------------------------
FRAGE = {1: ("kag", 5321), 2: ("ogl", 5311), 3: ("element", 5331), 4: ("typ", 5351), 5: ("gruppe", 5341)}
for art, (feld, code) in FRAGE.items():
    nr, fehlt, doppelt = FAMILIE[art]
    ende = [f(3291, 3)] if art == 5 else []
    fall(f"B{art} stored", "01S", [b0(NUMMER[art]), b(art, "A"), C0, C1, c5(**{feld: "A"})], ende)
    fall(f"B{art} not stored: another code", "01S", [b0(NUMMER[art]), b(art, "A"), C0, C1, c5(**{feld: "B"})],
         [*ende, f(code, 6)])
    fall(f"B{art} not stored: number", "01S",
         [b0(NUMMER[art]), b(art, "A", nummer="009"), C0, C1, c5(**{feld: "A"})], [f(nr, 3), f(code, 6)])
    fall(f"B{art} not stored: not announced", "01S", [b(art, "A"), C0, C1, c5(**{feld: "A"})],
         [f(fehlt, 2), f(code, 5)])
    fall(f"B{art} not stored: announced too late", "01S",
         [b(art, "A"), b0(NUMMER[art], acht="1"), C0, C1, c5(**{feld: "A"})],
         [f(fehlt, 2), f(2032, 3, "8"), f(code, 6)])

test_a_refused_record_leaves_nothing_a_stored_one_is_found = faelle()


# --- B1, B3: the extended code ----------------------------------------------------------------------------------------
for art, doppelt, erweitert, (feld, frage) in ((1, 3223, 3226, FRAGE[1]), (3, 3233, 3236, FRAGE[3])):
    kopf = b0(NUMMER[art])
    fall(f"B{art} eCode twice", "E1S", [kopf, b(art, "A", {208: "e1"}), b(art, "B", {208: "e1"})], [f(erweitert, 4)])
    fall(f"B{art} eCode twice", "01S", [kopf, b(art, "A", {208: "e1"}), b(art, "B", {208: "e1"})], [])
    fall(f"B{art} two eCodes", BEIDE, [kopf, b(art, "A", {208: "e1"}), b(art, "B", {208: "e2"})], [])
    fall(f"B{art} eCodes that differ in the last of sixteen columns", "E1S",
         [kopf, b(art, "A", {208: "ABCDEFGHIJKLMNOP"}), b(art, "B", {208: "ABCDEFGHIJKLMNOQ"})], [])
    fall(f"B{art} eCodes that differ in the column behind", "E1S",
         [kopf, b(art, "A", {208: "ABCDEFGHIJKLMNOPx"}), b(art, "B", {208: "ABCDEFGHIJKLMNOPy"})],
         [f(2032, 3, "224"), f(2032, 4, "224"), f(erweitert, 4)])
    fall(f"B{art} eCodes of two cases", BEIDE, [kopf, b(art, "A", {208: "e1"}), b(art, "B", {208: "E1"})], [])
    fall(f"B{art} no eCodes", BEIDE, [kopf, b(art, "A"), b(art, "B")], [])
    fall(f"B{art} code and eCode twice: the code tells", "E1S",
         [kopf, b(art, "A", {208: "e1"}), b(art, "A", {208: "e1"}, anders=True)], [fremd(art, 4), f(doppelt, 4)])
    fall(f"B{art}: any entry's code goes before the first's eCode", "E1S",
         [kopf, b(art, "A", {208: "e1"}), b(art, "B"), b(art, "B", {208: "e1"}, anders=True)],
         [fremd(art, 5), f(doppelt, 5)])
    fall(f"B{art} refused for its eCode leaves its code free", "E1S",
         [kopf, b(art, "A", {208: "e1"}), b(art, "B", {208: "e1"}), b(art, "B", {208: "e2"}, anders=True)],
         [f(erweitert, 4), fremd(art, 5)])
    fall(f"B{art} refused for its eCode leaves no eCode of its own, the first's stays", "E1S",
         [kopf, b(art, "A", {208: "e1"}), b(art, "B", {208: "e1"}), b(art, "C", {208: "e1"})],
         [f(erweitert, 4), f(erweitert, 5)])
    weitere = [] if art == 1 else [f(5381, 7)]
    fall(f"B{art} refused for its eCode isn't found", "E1S",
         [kopf, b(art, "A", {208: "e1"}), b(art, "B", {208: "e1"}), C0, C1, c5(**{feld: "B"})],
         [f(erweitert, 4), f(frage, 7), *weitere])
    fall(f"B{art} with a parent code that doesn't exist", BEIDE, [kopf, b(art, "12.34"[:5])], [])

test_b1_b3_extended_code_is_unique = faelle()


# --- B2: object structure and positions -------------------------------------------------------------------------------
OGL = b0("002")
fall("PSL below its OGL", BEIDE, [OGL, b(2, "A"), b(2, "A/p")], [])
fall("PSL without OGL", BEIDE, [OGL, b(2, "A/p")], [f(3214, 3)])
fall("PSL below another OGL", BEIDE, [OGL, b(2, "B"), b(2, "A/p")], [f(3214, 4)])
fall("PSL before its OGL", BEIDE, [OGL, b(2, "A/p"), b(2, "A")], [f(3214, 3)])
fall("PSL below a joker", BEIDE, [OGL, b(2, "A"), b(2, "*/p")], [f(3214, 4)])
fall("PSL twice", BEIDE, [OGL, b(2, "A"), b(2, "A/p"), b(2, "A/p", anders=True)], [fremd(2, 5), f(3215, 5)])
fall("two PSL", BEIDE, [OGL, b(2, "A"), b(2, "A/p"), b(2, "A/q", anders=True)], [fremd(2, 5)])
fall("one PSL code below two OGL", BEIDE, [OGL, b(2, "A"), b(2, "B"), b(2, "A/p"), b(2, "B/p")], [])
fall("PSL code like an OGL code", BEIDE, [OGL, b(2, "A"), b(2, "A/A")], [])
fall("PSL with a wrong number", BEIDE, [OGL, b(2, "A"), b(2, "A/p", nummer="003")], [f(3211, 4)])
fall("PSL not announced", BEIDE, [b(2, "A"), b(2, "A/p")], [f(3212, 2), f(3212, 3)])
fall("PSL without OGL code", BEIDE, [OGL, b(2, "/p")], [f(3002, 3, "B2:6"), f(3214, 3)])
fall("PSL below an OGL without code", BEIDE, [OGL, b(2, ""), b(2, "/p")],
     [f(3002, 3, "B2:6"), f(3002, 4, "B2:6")])
fall("PSL stored", "01S", [OGL, b(2, "A"), b(2, "A/p"), C0, C1, c5(ogl="A", psl="p")], [])
fall("PSL refused", "01S", [OGL, b(2, "A/p"), b(2, "A"), C0, C1, c5(ogl="A", psl="p")], [f(3214, 3), f(5314, 7)])
fall("a refused OGL takes no PSL", BEIDE, [b(2, "A", nummer="001"), OGL, b(2, "A/p")], [f(3211, 2), f(3214, 4)])

R = 75  # the order field
fall("OGL: one order twice", "01S", [OGL, b(2, "A", {R: EINS}), b(2, "B", {R: EINS})], [f(3219, 4)])
fall("OGL: one order twice", "E1S", [OGL, b(2, "A", {R: EINS}), b(2, "B", {R: EINS})], [f(3208, 3), f(3208, 4)])
fall("OGL: two orders", "01S", [OGL, b(2, "A", {R: EINS}), b(2, "B", {R: ZWEI})], [])
fall("OGL: order 0 twice", "01S", [OGL, b(2, "A", {R: NULL}), b(2, "B", {R: NULL})], [])
fall("OGL: order 0 is given", "E1S", [OGL, b(2, "A", {R: NULL})], [f(3208, 3)])
fall("OGL: no order", BEIDE, [OGL, b(2, "A"), b(2, "B")], [])
fall("OGL: one order three times", "01S", [OGL, *(b(2, c, {R: EINS}) for c in "ABC")],
     [f(3219, 4), f(3219, 5), f(3219, 5)])
fall("OGL: one order four times", "01S", [OGL, *(b(2, c, {R: EINS}) for c in "ABCD")],
     [f(3219, 4), *[f(3219, 5)] * 2, *[f(3219, 6)] * 3])
fall("OGL: the order and then the code", "01S",
     [OGL, b(2, "A", {R: EINS}), b(2, "B"), b(2, "B", {R: EINS}, anders=True)],
     [fremd(2, 5), f(3213, 5), f(3219, 5)])
fall("OGL: the code first ends the scan", "01S",
     [OGL, b(2, "B"), b(2, "A", {R: EINS}), b(2, "B", {R: EINS}, anders=True)], [fremd(2, 5), f(3213, 5)])
fall("OGL: code and order of one entry", "01S", [OGL, b(2, "A", {R: EINS}), b(2, "A", {R: EINS}, anders=True)],
     [fremd(2, 4), f(3213, 4)])
fall("OGL after 3219 is stored", "01S", [OGL, b(2, "A", {R: EINS}), b(2, "B", {R: EINS}), b(2, "B/p")], [f(3219, 4)])
fall("OGL after 3213 leaves no order", "01S",
     [OGL, b(2, "A"), b(2, "A", {R: EINS}, anders=True), b(2, "B", {R: EINS})], [fremd(2, 4), f(3213, 4)])
fall("OGL after 3208 is stored", "E1S", [OGL, b(2, "A", {R: EINS}), b(2, "A/p")], [f(3208, 3)])
fall("OGL: a bad order", "01S", [OGL, b(2, "A", {R: "1"}), b(2, "B", {R: "1"})],
     [f(3001, 3, "B2:20"), f(3001, 4, "B2:20")])
fall("OGL: a bad order", "E1S", [OGL, b(2, "A", {R: "1"})], [f(3001, 3, "B2:20"), f(3208, 3)])
fall("3208 comes before the number", "E1S", [b(2, "A", {R: EINS}, nummer="003")], [f(3208, 2), f(3211, 2)])
fall("PSL: one order twice", "01S", [OGL, b(2, "A"), b(2, "A/p", {R: EINS}), b(2, "A/q", {R: EINS})], [f(3219, 5)])
fall("PSL: one order twice", "E1S", [OGL, b(2, "A"), b(2, "A/p", {R: EINS}), b(2, "A/q", {R: EINS})],
     [f(3208, 4), f(3208, 5)])
fall("PSL: one order three times", "01S", [OGL, b(2, "A"), *(b(2, f"A/{c}", {R: EINS}) for c in "pqr")],
     [f(3219, 5), f(3219, 6), f(3219, 6)])
fall("PSL: the order and then the code", "01S",
     [OGL, b(2, "A"), b(2, "A/p", {R: EINS}), b(2, "A/q"), b(2, "A/q", {R: EINS}, anders=True)],
     [fremd(2, 6), f(3215, 6), f(3219, 6)])
fall("PSL: the orders of two OGL", "01S",
     [OGL, b(2, "A"), b(2, "B"), b(2, "A/p", {R: EINS}), b(2, "B/p", {R: EINS})], [])
fall("PSL: the order of its OGL", "01S", [OGL, b(2, "A", {R: EINS}), b(2, "A/p", {R: EINS})], [])
fall("PSL after 3219 is stored", "01S",
     [OGL, b(2, "A"), b(2, "A/p", {R: EINS}), b(2, "A/q", {R: EINS}), C0, C1, c5(ogl="A", psl="q")], [f(3219, 5)])

test_b2_objects_and_their_locations = faelle()


# --- B4: order --------------------------------------------------------------------------------------------------------
TYP = b0("004")
fall("B4: one order twice", "01S", [TYP, b(4, "A", {R: EINS}), b(4, "B", {R: EINS})], [f(3269, 4)])
fall("B4: one order twice", "E1S", [TYP, b(4, "A", {R: EINS}), b(4, "B", {R: EINS})], [f(3208, 3), f(3208, 4)])
fall("B4: two orders", "01S", [TYP, b(4, "A", {R: EINS}), b(4, "B", {R: ZWEI})], [])
fall("B4: one order three times", "01S", [TYP, *(b(4, c, {R: EINS}) for c in "ABC")],
     [f(3269, 4), f(3269, 5), f(3269, 5)])
fall("B4: the order and then the code", "01S",
     [TYP, b(4, "A", {R: EINS}), b(4, "B"), b(4, "B", {R: EINS}, anders=True)],
     [fremd(4, 5), f(3263, 5), f(3269, 5)])
fall("B4 after 3269 is stored", "01S",
     [TYP, b(4, "A", {R: EINS}), b(4, "B", {R: EINS}), C0, C1, c5(typ="B")], [f(3269, 4)])
fall("B4: a bad order", "E1S", [TYP, b(4, "A", {R: "x"})], [f(3001, 3, "B4:20"), f(3208, 3)])
fall("B4: 3208 comes before the number", "E1S", [b(4, "A", {R: EINS})], [f(3208, 2), f(3262, 2)])

test_b4_order_is_unique = faelle()


# --- B5, B6: variants -------------------------------------------------------------------------------------------------
VAR = b0("005")
fall("a group and its primary variant", BEIDE, [VAR, b(5, "G"), b(6, "G/V1")], [])
fall("the primary variant as the second", BEIDE, [VAR, b(5, "G"), b(6, "G/V0"), b(6, "G/V1")], [])
fall("a group without variants", BEIDE, [VAR, b(5, "G")], [f(3291, 3)])
fall("a group without its primary variant", BEIDE, [VAR, b(5, "G"), b(6, "G/V2")], [f(3291, 3)])
fall("case of the primary variant", BEIDE, [VAR, b(5, "G"), b(6, "G/v1")], [f(3291, 3)])
fall("the primary variant in another group", BEIDE, [VAR, b(5, "G"), b(5, "H"), b(6, "H/V1")], [f(3291, 3)])
fall("the missing one is the second's, the line the first's", BEIDE, [VAR, b(5, "G"), b(5, "H"), b(6, "G/V1")],
     [f(3291, 3)])
fall("two groups, one missing variant: twice on the first line", BEIDE, [VAR, b(5, "G"), b(5, "H")],
     [f(3291, 3), f(3291, 3)])
fall("two groups, two missing variants", BEIDE, [VAR, b(5, "G"), b(5, "H", {135: "V2"})], [f(3291, 3), f(3291, 4)])
fall("the line of a refused B5 that names the variant first", BEIDE,
     [b(5, "F", nummer="004"), VAR, b(5, "G")], [f(3241, 2), f(3291, 2)])
fall("its twin names another", BEIDE, [b(5, "F", {135: "V2"}, nummer="004"), VAR, b(5, "G")],
     [f(3241, 2), f(3291, 4)])
fall("the line of another record that has the text there doesn't count", BEIDE,
     [b0("004"), b(4, "A", {135: "V1"}), VAR, b(5, "G")], [f(2032, 3, "135"), f(3291, 5)])
fall("the field behind the primary variant is none of it", BEIDE, [VAR, b(5, "G", {138: "x"})], [f(3291, 3)])
fall("a B5 without primary variant", BEIDE, [VAR, b(5, "G", {135: "  "})], [f(3002, 3, "B5:24c-d"), f(3291, 3)])
fall("on the first line with blanks there", BEIDE,
     [b(5, "F", {135: "  "}, nummer="004"), VAR, b(5, "G", {135: "  "})],
     [f(3002, 2, "B5:24c-d"), f(3241, 2), f(3291, 2), f(3002, 4, "B5:24c-d")])
fall("a line that ends before it has blanks there", BEIDE,
     [satz("B5", {2: "004", 30: "F", 93: "Name"}), VAR, satz("B5", {2: "005", 30: "G", 93: "Name"})],
     [f(3002, 2, "B5:24c-d"), f(3241, 2), f(3291, 2), f(3002, 4, "B5:24c-d")])
fall("no primary variant, a variant without code", BEIDE, [VAR, b(5, "G", {135: "  "}), b(6, "G/")],
     [f(3002, 3, "B5:24c-d"), f(3002, 4, "B6:9")])
fall("a leading blank of the primary variant counts", BEIDE, [VAR, b(5, "G", {135: " V1"}), b(6, "G/V1")],
     [f(3291, 3)])
fall("a group of an announcement that comes too late, no 3291", BEIDE, [b(5, "G"), b0("005", acht="1")],
     [f(3242, 2), f(2032, 3, "8")])

fall("B5: one order twice", "01S",
     [VAR, b(5, "G", {R: EINS}), b(5, "H", {R: EINS}), b(6, "G/V1"), b(6, "H/V1")], [f(3249, 4)])
fall("B5: one order twice", "E1S",
     [VAR, b(5, "G", {R: EINS}), b(5, "H", {R: EINS}), b(6, "G/V1"), b(6, "H/V1")], [f(3208, 3), f(3208, 4)])
fall("B5: two orders", "01S",
     [VAR, b(5, "G", {R: EINS}), b(5, "H", {R: ZWEI}), b(6, "G/V1"), b(6, "H/V1")], [])
fall("B5: one order three times", "01S",
     [VAR, *(b(5, g, {R: EINS}) for g in "GHI"), *(b(6, f"{g}/V1") for g in "GHI")],
     [f(3249, 4), f(3249, 5), f(3249, 5)])
fall("B5: the order and then the code", "01S",
     [VAR, b(5, "G", {R: EINS}), b(5, "H"), b(5, "H", {R: EINS}, anders=True), b(6, "G/V1"), b(6, "H/V1")],
     [fremd(5, 5), f(3243, 5), f(3249, 5)])
fall("B5: a bad order", "E1S", [VAR, b(5, "G", {R: "x"}), b(6, "G/V1")], [f(3001, 3, "B5:20"), f(3208, 3)])
fall("B5: 3208 comes before the number", "E1S", [b(5, "G", {R: EINS}, nummer="004")], [f(3208, 2), f(3241, 2)])

fall("B6 with number 006", BEIDE, [VAR, b(5, "G"), b(6, "G/V1", nummer="006")], [f(3291, 3), f(3251, 4)])
fall("B6 with a bad number", BEIDE, [VAR, b(5, "G"), b(6, "G/V1", nummer="00x")],
     [f(3291, 3), f(3001, 4, "B6:2a"), f(3251, 4)])
fall("B6 without number", BEIDE, [b(6, "G/V1", nummer="   "), VAR], [f(3002, 2, "B6:2a"), f(3251, 2)])
fall("B6 of no group", BEIDE, [VAR, b(6, "G/V1")], [f(3252, 3)])
fall("B6 without any B0", BEIDE, [b(6, "G/V1")], [f(3252, 2)])
fall("B6 of another group", BEIDE, [VAR, b(5, "G"), b(6, "G/V1"), b(6, "H/V1")], [f(3252, 5)])
fall("B6 of a joker", BEIDE, [VAR, b(5, "G"), b(6, "*/V1")], [f(3291, 3), f(3252, 4)])
fall("B6 before its B5", BEIDE, [VAR, b(6, "G/V1"), b(5, "G", {8: "1"})],
     [f(3252, 3), f(2032, 4, "8"), f(3291, 4)])
fall("B6 of a refused group", BEIDE, [b(5, "G", nummer="004"), VAR, b(6, "G/V1")], [f(3241, 2), f(3252, 4)])
fall("B6 of a group not announced", BEIDE, [b(5, "G"), b(6, "G/V1")], [f(3242, 2), f(3252, 3)])
fall("B6 twice", BEIDE, [VAR, b(5, "G"), b(6, "G/V1"), b(6, "G/V1", anders=True)], [fremd(6, 5), f(3253, 5)])
fall("B6 with two codes", BEIDE, [VAR, b(5, "G"), b(6, "G/V1"), b(6, "G/V2", anders=True)], [fremd(6, 5)])
fall("one variant in two groups", BEIDE, [VAR, b(5, "G"), b(5, "H"), b(6, "G/V1"), b(6, "H/V1")], [])
fall("B6 without group code", BEIDE, [VAR, b(6, "/V1")], [f(3002, 3, "B6:8"), f(3252, 3)])
fall("B6 of a group without code", BEIDE, [VAR, b(5, ""), b(6, "/V1")], [f(3002, 3, "B5:8"), f(3002, 4, "B6:8")])
fall("B6 without variant code is stored", BEIDE, [VAR, b(5, "G"), b(6, "G/"), b(6, "G/", anders=True)],
     [f(3291, 3), f(3002, 4, "B6:9"), fremd(6, 5), f(3002, 5, "B6:9"), f(3253, 5)])
fall("B6 without both codes", BEIDE, [VAR, b(6, "/")],
     [f(3002, 3, "B6:8"), f(3002, 3, "B6:9"), f(3252, 3)])
fall("B6 without designation", "E1S", [VAR, b(5, "G"), b(6, "G/V1", {93: "    "})], [f(3003, 4, "B6:23")])
fall("B6 without designation", "01S", [VAR, b(5, "G"), b(6, "G/V1", {93: "    "})], [])
fall("B6: one order twice", "01S", [VAR, b(5, "G"), b(6, "G/V1", {R: EINS}), b(6, "G/V2", {R: EINS})], [f(3259, 5)])
fall("B6: one order twice", "E1S", [VAR, b(5, "G"), b(6, "G/V1", {R: EINS}), b(6, "G/V2", {R: EINS})],
     [f(3208, 4), f(3208, 5)])
fall("B6: two orders", "01S", [VAR, b(5, "G"), b(6, "G/V1", {R: EINS}), b(6, "G/V2", {R: ZWEI})], [])
fall("B6: one order in two groups", "01S",
     [VAR, b(5, "G"), b(5, "H"), b(6, "G/V1", {R: EINS}), b(6, "H/V1", {R: EINS})], [])
fall("B6: one order three times", "01S", [VAR, b(5, "G"), *(b(6, f"G/V{i}", {R: EINS}) for i in (0, 2, 1))],
     [f(3259, 5), f(3259, 6), f(3259, 6)])
fall("B6 after 3259 is stored: the primary variant is found", "01S",
     [VAR, b(5, "G"), b(6, "G/V0", {R: EINS}), b(6, "G/V1", {R: EINS})], [f(3259, 5)])
fall("B6: the order and then the code", "01S",
     [VAR, b(5, "G"), b(6, "G/V1", {R: EINS}), b(6, "G/V2"), b(6, "G/V2", {R: EINS}, anders=True)],
     [fremd(6, 6), f(3253, 6), f(3259, 6)])
fall("B6 after 3208 is stored", "E1S", [VAR, b(5, "G"), b(6, "G/V1", {R: EINS})], [f(3208, 4)])
fall("B6: a bad order", "E1S", [VAR, b(5, "G"), b(6, "G/V1", {R: "1"})], [f(3001, 4, "B6:20"), f(3208, 4)])
fall("B6: 3208 comes before the number", "E1S", [b(6, "G/V1", {R: EINS}, nummer="006")], [f(3208, 2), f(3251, 2)])

test_b5_b6_groups_and_their_variants = faelle()


# --- B7, B8 in a 01S file: an undefined record type, but tested all the same ------------------------------------------
UNBEKANNT = f(2041)
for art in (7, 8):
    nr, fehlt, doppelt = FAMILIE[art]
    kopf = b0(NUMMER[art])
    fall(f"B{art}", "01S", [kopf, b(art, "A")], [UNBEKANNT])
    fall(f"B{art} not announced", "01S", [b(art, "A")], [f(fehlt, 2), UNBEKANNT])
    fall(f"B{art} with another number", "01S", [kopf, b(art, "A", nummer="009")], [f(nr, 3), UNBEKANNT])
    fall(f"B{art} twice", "01S", [kopf, b(art, "A"), b(art, "A", anders=True)], [f(doppelt, 4), UNBEKANNT])
    fall(f"B{art} with two codes", "01S", [kopf, b(art, "A"), b(art, "B", anders=True)], [UNBEKANNT])
    fall(f"B{art} without code: the column stands for the field", "01S", [kopf, b(art, "")],
         [f(3002, 3, str(CODE[art])), UNBEKANNT])
    fall(f"B{art} with a bad number: the column stands for the field", "01S", [b(art, "A", nummer="x")],
         [f(3001, 2, "2"), f(nr, 2), UNBEKANNT])

test_b7_b8_are_undefined_but_tested_in_a_01s_file = faelle()


# --- B9 and digits that don't exist: silent ---------------------------------------------------------------------------
for felder in ({}, {2: "009", 18: "A"},
               {2: "xxx", 18: "*?*", 24: " *", 82: "K", 45: "x", 46: "abc", 62: "?", 63: "-1"}):
    fall("B9", BEIDE, [satz("B9", felder)], [UNBEKANNT])
fall("B9 between others", BEIDE, [OGL, b(2, "A"), satz("B9", {2: "002", 18: "Z", 24: "p", 62: "x"}), b0("003")],
     [UNBEKANNT])
fall("two B9, one 2041", BEIDE, [satz("B9", {18: "A"}), satz("B9", {18: "B"})], [UNBEKANNT])
fall("B without a digit", BEIDE, [satz("B", {2: "001", 93: "x"})], [UNBEKANNT])
fall("a B line that ends early", BEIDE, [satz("B", {2: "001"})], [UNBEKANNT])

test_b9_and_unknown_digits_are_silent = faelle()


# --- order of the protocol --------------------------------------------------------------------------------------------
G1 = satz("G1", {2: "111", 6: "20", 93: "Titel"})
fall("without a line: positions first, then by code", "E1S",
     [*folgen(EINS, EINS), satz("B9", {2: "003", 18: "A"}), satz("C0", {2: "001"}), G1],
     [f(5101, 5), f(6101, I="111.000.000"), UNBEKANNT, f(3205)],
     wie_im_protokoll=True)
fall("many records without any code", "E1S",
     [VAR, *(satz("B5", {2: "005", 14: f"{i:02}"}) for i in range(1, 8))],
     [f(2032, L, "14") for L in range(3, 10)]
              + [x for L in range(3, 10) for x in
                 [f(3002, L, "B5:8"), f(3003, L, "B5:23"), f(3002, L, "B5:24c-d")] + ([f(3243, L)] if L > 3 else [])]
              + [f(3291, 3)])

test_the_protocol_goes_by_line_then_position_then_code = faelle()
