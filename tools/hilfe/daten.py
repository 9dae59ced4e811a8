"""docs/codes as a C++ table, for programs that explain a code: the page as text, and its first sections as HTML."""
import re

import webseite
from tabellen import SPRACHEN
from woerter import ABSCHNITTE

KURZ = ("geprueft", "nie", "beheben")  # what unfolds beside a finding


def schreibe(quelle, ziel):
    codes = sorted({int(pfad.stem) for pfad in quelle.glob("*/*.md") if pfad.stem.isdigit()})
    zeilen = "".join(f"    {{{code}, {{{{{_paare(quelle, code)}}}}}}},\n" for code in codes)
    ziel.write_text(f"""// The pages of docs/codes, made from them by tools/hilfe.
#include "hilfe/Codeseiten.h"

#include <algorithm>
#include <iterator>

namespace zepholt::hilfe {{

namespace {{

using namespace std::string_view_literals;

constexpr Codeseite Seiten[] = {{
{zeilen}}};

}} // namespace

const Codeseite* CodeseiteLesen(std::int32_t code) {{
    const Codeseite* seite = std::ranges::lower_bound(Seiten, code, {{}}, &Codeseite::Code);
    return seite != std::end(Seiten) && seite->Code == code ? seite : nullptr;
}}

}} // namespace zepholt::hilfe
""", encoding="utf-8")


def _paare(quelle, code):
    return ", ".join("{" + ", ".join(map(_literal, _texte(quelle / sprache / f"{code}.md", sprache))) + "}"
                     for sprache in SPRACHEN)


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


def _literal(text):
    """A C++ literal that knows its length; raw ones end at their mark, which no page holds."""
    return f'R"~~({text})~~"sv'
