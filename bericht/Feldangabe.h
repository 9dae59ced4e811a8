// What a person is told of a finding's field: its name in the trade's words, its reference, its columns.
#pragma once

#include "bericht/Meldungen.h"
#include "state/SIA451Felder.h"

#include <span>
#include <string>
#include <string_view>

namespace zepholt::bericht {

struct Feldangabe {
    std::string Name;     // "Mengenart", "Preisart, Vorzeichen Preis"; empty when no field is meant
    std::int32_t Von = 0; // first and last column, from 1; 0 when none is known
    std::int32_t Bis = 0;
};

// The first record type that a reference speaks of: "eG6:4/5" and "G6:13" of G6, "G2/3:12" of G2, "X/P" of X4.
std::string TypAus(std::string_view feld);

// For the reference `feld` in a record with these layout rows; without rows those of the type that `feld` names.
Feldangabe FeldangabeVon(std::string_view feld, std::span<const RecordLayout> layouts, Sprache sprache);

} // namespace zepholt::bericht
