"""The folder of HTML pages that the packages carry: from docs/codes, with a search that needs no server and no network."""
import html
import json
import re
import shutil
from pathlib import Path

import markdown

from tabellen import SPRACHEN
from verzeichnis import DATEIEN
from woerter import NUMMER, WOERTER

EIGENES = Path(__file__).with_name("seite")
RICHTLINIE = ("default-src 'none'; style-src 'self'; script-src 'self'; base-uri 'none'; form-action 'none'")
WORTE = {
    "de": {"suche": "Suchen: Nummer, Feld (G6:13) oder Wort", "treffer": "{n} Treffer", "keine": "Kein Code passt dazu.",
           "weiter": "Zum Inhalt", "sprachen": "Sprache", "verzeichnisse": "Verzeichnisse", "bild": "Records des Beispiels",
           "ohne": "Die Suche braucht JavaScript; die Verzeichnisse gehen auch ohne."},
    "fr": {"suche": "Chercher : numéro, champ (G6:13) ou mot", "treffer": "{n} résultats", "keine": "Aucun code ne correspond.",
           "weiter": "Aller au contenu", "sprachen": "Langue", "verzeichnisse": "Index",
           "bild": "Enregistrements de l’exemple",
           "ohne": "La recherche a besoin de JavaScript ; les index fonctionnent sans."},
    "it": {"suche": "Cercare: numero, campo (G6:13) o parola", "treffer": "{n} risultati",
           "keine": "Nessun codice corrisponde.", "weiter": "Vai al contenuto", "sprachen": "Lingua",
           "verzeichnisse": "Indici", "bild": "Record dell'esempio",
           "ohne": "La ricerca richiede JavaScript; gli indici funzionano anche senza."},
}


def rumpf(text, sprache):
    """A page's Markdown as HTML: links to pages, the head table with its names as headings, blocks that scroll by keyboard."""
    seite = markdown.markdown(text, extensions=["tables", "fenced_code"])
    seite = re.sub(r'href="((?:\.\./\w\w/)?)([\w]+)\.md"', lambda t: f'href="{t[1]}{_name(t[2])}"', seite)
    seite = re.sub(r"<thead>.*?</thead>\s*", "", seite, flags=re.DOTALL)
    seite = re.sub(r"<tr>\s*<td>(.*?)</td>", r'<tr><th scope="row">\1</th>', seite)
    bild = f'<pre tabindex="0" role="region" aria-label="{WORTE[sprache]["bild"]}'
    for nummer in range(seite.count("<pre>")):
        seite = seite.replace("<pre>", bild + (f" {nummer + 1}" if nummer else "") + '">', 1)
    return re.sub(r"<pre.*?</pre>", lambda block: _markiert(block[0], sprache), seite, flags=re.DOTALL)


def _markiert(block, sprache):
    """The lines behind '>' stand out, in another colour where the block shows the right file."""
    art = ' class="gut"' if f">{WOERTER[sprache]['richtig']} " in block else ""
    return re.sub(r"^(&gt; .*)$", rf"<mark{art}>\1</mark>", block, flags=re.MULTILINE)


def _name(stamm):
    return "index.html" if stamm == "README" else f"{stamm}.html"


def _seite(datei, text, sprache):
    w, eigene = WOERTER[sprache], WORTE[sprache]
    titel = text.partition("\n")[0].removeprefix("# ")
    ist_code = datei.stem.isdigit()
    if ist_code:
        text = text[:text.rstrip().rindex("\n")]  # the links at its end stand in the head here
    sprachen = "".join(
        f'<a href="../{s}/{_name(datei.stem)}" lang="{s}" hreflang="{s}"{" aria-current=true" if s == sprache else ""}>'
        f"{WOERTER[s]['sprache']}</a>" for s in SPRACHEN)
    verzeichnisse = "".join(
        f'<a href="{_name(Path(ziel).stem)}"{" aria-current=page" if ziel == datei.name else ""}>{w[name]}</a>'
        for ziel, name in DATEIEN.items())
    if not ist_code:
        text = re.sub(r"^(# .*\n\n).*\n", r"\1", text)  # and so do those between the indexes
    return f"""<!doctype html>
<html lang="{sprache}">
<head>
<meta charset="utf-8">
<meta http-equiv="Content-Security-Policy" content="{RICHTLINIE}">
<meta name="viewport" content="width=device-width, initial-scale=1">
<meta name="referrer" content="no-referrer">
<title>{html.escape(titel)}</title>
<link rel="stylesheet" href="../seite.css">
<script defer src="suche.js"></script>
<script defer src="../seite.js"></script>
</head>
<body>
<a class="sprung" href="#inhalt">{eigene['weiter']}</a>
<header>
<p class="marke"><a href="index.html">ZEPHOLT</a> {w['titel']}</p>
<nav class="sprachen" aria-label="{eigene['sprachen']}">{sprachen}</nav>
<form role="search" hidden data-treffer="{eigene['treffer']}" data-keine="{eigene['keine']}">
<label for="suche">{eigene['suche']}</label>
<input id="suche" type="search" autocomplete="off" spellcheck="false" aria-controls="treffer">
<p role="status" id="stand"></p>
<ol id="treffer"></ol>
</form>
<noscript><p>{eigene['ohne']}</p></noscript>
<nav class="verzeichnisse" aria-label="{eigene['verzeichnisse']}">{verzeichnisse}</nav>
</header>
<main id="inhalt"{' class="code"' if ist_code else ''}>
{rumpf(text, sprache)}
</main>
</body>
</html>
"""


def _suchworte(text):
    """What a page says, without marks and links, for the search."""
    text = re.sub(r"\[([^\]]*)\]\([^)]*\)", r"\1", text)
    return " ".join(re.sub(r"[|#`*]|---+", " ", text[:text.rstrip().rfind("\n") + 1]).split())


def _suche(verzeichnis, seiten):
    """The data of the search: code, field, message, text of the page; the codes are those of the index by number."""
    eintraege = re.findall(r"^- \[(\d+)\]\([^)]*\)(?: · [AB])?(?: · (\S+))? · (.*)$", verzeichnis, flags=re.MULTILINE)
    zeilen = [[int(code), feld, text, _suchworte(seiten.get(code, ""))] for code, feld, text in eintraege]
    return "const CODES = " + json.dumps(zeilen, ensure_ascii=False, separators=(",", ":")) + ";\n"


def schreibe(quelle, ziel):
    """The folder `ziel`, made anew from docs/codes. An address is ziel/fr/4214.html, or .../fr/4214 on a server."""
    shutil.rmtree(ziel, ignore_errors=True)
    for sprache in SPRACHEN:
        ordner = ziel / sprache
        ordner.mkdir(parents=True)
        seiten = {}
        for datei in sorted((quelle / sprache).glob("*.md")):
            text = datei.read_text(encoding="utf-8")
            (ordner / _name(datei.stem)).write_text(_seite(datei, text, sprache), encoding="utf-8")
            if datei.stem.isdigit():
                seiten[datei.stem] = text
        verzeichnis = (quelle / sprache / "README.md").read_text(encoding="utf-8")
        (ordner / "suche.js").write_text(_suche(verzeichnis, seiten), encoding="utf-8")
    for datei in ("seite.css", "seite.js"):
        shutil.copy(EIGENES / datei, ziel / datei)
    (ziel / "index.html").write_text(_eingang(), encoding="utf-8")


def _eingang():
    """The door: the three languages."""
    wahl = "".join(f'<li><a href="{s}/index.html" lang="{s}" hreflang="{s}">{WOERTER[s]["titel"]}</a></li>' for s in NUMMER)
    return f"""<!doctype html>
<html lang="de">
<head>
<meta charset="utf-8">
<meta http-equiv="Content-Security-Policy" content="{RICHTLINIE}">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>ZEPHOLT</title>
<link rel="stylesheet" href="seite.css">
</head>
<body>
<main class="eingang"><h1>ZEPHOLT</h1><ul>{wahl}</ul></main>
</body>
</html>
"""
