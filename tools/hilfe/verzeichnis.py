"""The indexes of docs/codes: by number, by record, by field and by stage."""
from tabellen import ARTEN
from woerter import ETAPPEN, WOERTER, wort

DATEIEN = {"README.md": "nach_nummer", "record.md": "nach_record", "feld.md": "nach_feld", "etappe.md": "nach_etappe"}


def klein_begonnen(text):
    return text[:1].lower() + text[1:]


def verzeichnisse(tabellen, sprache):
    """File name -> Markdown."""
    w = WOERTER[sprache]
    gruppen = {"README.md": _nach_nummer(tabellen), "record.md": _nach_record(tabellen, w),
               "feld.md": _nach_feld(tabellen, sprache), "etappe.md": _nach_etappe(tabellen, sprache)}
    return {datei: _seite(datei, gruppen[datei], tabellen, sprache) for datei in DATEIEN}


def _seite(datei, gruppen, tabellen, sprache):
    w = WOERTER[sprache]
    kopf = [f"# {w['titel']}{w['doppelpunkt']} {klein_begonnen(w[DATEIEN[datei]])}", "",
            " · ".join(f"[{w[name]}]({ziel})" if ziel != datei else w[name] for ziel, name in DATEIEN.items())]
    for titel, codes in gruppen.items():
        kopf += ["", f"## {titel}", ""] + [_eintrag(code, tabellen, sprache) for code in codes]
    return "\n".join(kopf) + "\n"


def _eintrag(code, tabellen, sprache):
    zeile = tabellen.zeile(code)
    zusatz = f" ({WOERTER[sprache]['nie_kurz']})" if zeile["gemeldet"] != "ja" else ""
    worte = [f"[{code}]({code}.md)", zeile["schwere"], zeile["feld"], zeile["texte"][sprache].strip() + zusatz]
    return "- " + " · ".join(wort for wort in worte if wort)


def _nach_nummer(tabellen):
    gruppen = {}
    for code in tabellen.codes:
        gruppen.setdefault(f"{code // 100}xx", []).append(code)
    return gruppen


def _nach_record(tabellen, w):
    gruppen = {}
    for code in tabellen.codes:
        for typ in tabellen.recordtypen(code) or [w["ohne_feld"]]:
            gruppen.setdefault(typ, []).append(code)
    return dict(sorted(gruppen.items(), key=lambda gruppe: (gruppe[0] == w["ohne_feld"], gruppe[0])))


def _nach_feld(tabellen, sprache):
    ohne = WOERTER[sprache]["ohne_feld"]
    gruppen = {}
    for code, zeile in tabellen.codes.items():
        gruppen.setdefault(zeile["feld"] or ohne, []).append(code)
    folge = sorted(gruppen, key=lambda feld: (feld == ohne, feld.lower()))
    return {feld + _feldname(gruppen[feld][0], tabellen, sprache): gruppen[feld] for feld in folge}


def _feldname(code, tabellen, sprache):
    """What the field of a code's reference is called, behind a point; nothing where it names none."""
    namen = dict.fromkeys(feld["namen"][sprache] for art in ARTEN for feld in tabellen.felder_von(code, art))
    return " · " + ", ".join(namen) if namen else ""


def _nach_etappe(tabellen, sprache):
    gruppen = {wort(ETAPPEN, name, sprache): [] for name in ETAPPEN}
    for code, zeile in tabellen.codes.items():
        gruppen[wort(ETAPPEN, zeile["etappe"], sprache)].append(code)
    return gruppen
