// What the page says in its own words, in three languages. The page's script has the same texts.
#pragma once

#include "bericht/Meldungen.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zepholt::bericht {

struct Seitentext {
    std::string_view Schluessel;
    std::array<std::string_view, 3> Texte;
};

std::span<const Seitentext> Seitentexte();

// The text of a key; "{0}", "{1}" stand for the values. A key that is none of the table's gives an empty text.
std::string Seitenwort(std::string_view schluessel, Sprache sprache, const std::vector<std::string>& werte = {});

// "1 Fehler", "35 Fehler": the text of the key, or of the key with a 1 behind it for a single one.
std::string Anzahlwort(std::string_view schluessel, std::int64_t anzahl, Sprache sprache);

} // namespace zepholt::bericht
