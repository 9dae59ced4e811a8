"""docs/codes inside a program that explains a code: the page as text, and its first sections as HTML; packed, for they are
larger than the program."""
import lzma
import re

import webseite
from tabellen import SPRACHEN
from woerter import ABSCHNITTE

# As hilfe/Entpacken.h unpacks it; the dictionary holds all.
PACKUNG = {"id": lzma.FILTER_LZMA1, "lc": 4, "lp": 0, "pb": 0, "dict_size": 1 << 22, "mode": lzma.MODE_NORMAL,
           "mf": lzma.MF_BT4, "nice_len": 273, "depth": 1000}
KURZ = ("geprueft", "nie", "beheben")  # what unfolds beside a finding


def schreibe(quelle, ziel, ganz=True):
    """Without `ganz`: only what unfolds, and no page as text."""
    codes = sorted({int(pfad.stem) for pfad in quelle.glob("*/*.md") if pfad.stem.isdigit()})
    seiten = {code: [_bytes(quelle / sprache / f"{code}.md", sprache, ganz) for sprache in SPRACHEN]
              for code in codes}
    alles = b"".join(text for seite in seiten.values() for paar in seite for text in paar)
    gepackt = lzma.compress(alles, format=lzma.FORMAT_RAW, filters=[PACKUNG])
    laengen = "".join(f"    {{{code}, {{{', '.join(str(len(text)) for paar in seite for text in paar)}}}}},\n"
                      for code, seite in seiten.items())
    ziel.write_text(f"""// The pages of docs/codes, made from them by tools/hilfe.
#include "hilfe/Seitenvorrat.h"

namespace zepholt::hilfe {{

namespace {{

constexpr Seitenlaengen Laengen[] = {{
{laengen}}};

constexpr unsigned char Gepackt[{len(gepackt)}] = {{
{_zahlen(gepackt)}}};

}} // namespace

const Seitenvorrat& Seiten() {{
    static constexpr Seitenvorrat vorrat{{Laengen, Gepackt, {len(alles)}}};
    return vorrat;
}}

}} // namespace zepholt::hilfe
""", encoding="utf-8")


def _zahlen(bytes_):
    return "".join(f"    {', '.join(map(str, bytes_[i:i + 32]))},\n" for i in range(0, len(bytes_), 32))


def _bytes(pfad, sprache, ganz):
    seite, falte = _texte(pfad, sprache)
    return [(seite if ganz else "").encode(), falte.encode()]


def _texte(pfad, sprache):
    """The page as plain text, and what unfolds."""
    text = pfad.read_text(encoding="utf-8") if pfad.exists() else ""
    text = text[:text.rstrip().rfind("\n") + 1].rstrip() + "\n" if text else ""
    teile = re.split(r"^## (.*)$", text, flags=re.MULTILINE)[1:]
    abschnitte = dict(zip(teile[::2], teile[1::2]))
    kurz = "".join(f"#### {ABSCHNITTE[sprache][name]}\n{abschnitte[ABSCHNITTE[sprache][name]]}" for name in KURZ
                   if ABSCHNITTE[sprache][name] in abschnitte)
    nackt = re.sub(r"\[([^\]]*)\]\([^)]*\)", r"\1", text)
    ohne_verweise = re.sub(r"\[([^\]]*)\]\([^)]*\)", r"\1", kurz)
    return nackt, webseite.rumpf(ohne_verweise, sprache)
