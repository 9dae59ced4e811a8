"""A file with more characters beyond ASCII than a byte can tell apart is judged as any other."""
from befunde import f, fall
from rahmen import faelle, satz

ZEICHEN = [chr(c) for c in range(0x400, 0x400 + 300)]  # 300 of them, 30 in each record


def kostenarten(stelle=None, zeichen=""):
    """Ten cost types with a name of 30 characters each; `zeichen` stands in the third of them instead of one."""
    namen = ["".join(ZEICHEN[i * 30:i * 30 + 30]) for i in range(10)]
    if stelle is not None:
        namen[2] = namen[2][:stelle] + zeichen + namen[2][stelle + 1:]
    return [satz("B0", {2: "001"}), *(satz("B1", {2: "001", 82: f"K{i}", 93: name}) for i, name in enumerate(namen))]


fall("300 characters", "E1S", kostenarten(), [])
fall("its twin with a control character among them", "E1S", kostenarten(7, "\x85"), [f(2031, 5, "B1:23")])
fall("its twin with a tab in the last column of the field", "E1S", kostenarten(29, "\t"), [f(2031, 5, "B1:23")])
fall("its twin with a record more", "E1S", [*kostenarten(), satz("B1", {2: "001", 82: "K9", 93: "Name"})], [f(2021, 13)])

test_characters_of_many_scripts = faelle()
