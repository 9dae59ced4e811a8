#include "bericht/Feldangabe.h"

#include "bericht/Austauschdatei.h"
#include "bericht/Feldort.h"
#include "bericht/Zeichen.h"
#include "state/SIA451Feldnamen.h"

#include <algorithm>

namespace zepholt::bericht {

std::string TypAus(std::string_view feld) {
    if (feld.starts_with('e')) {
        feld.remove_prefix(1);
    }
    if (feld.starts_with("X/P")) {
        return "X4";
    }
    return std::string(feld.substr(0, std::min<std::size_t>(feld.find(':'), 2)));
}

Feldangabe FeldangabeVon(std::string_view feld, std::span<const RecordLayout> layouts, Sprache sprache) {
    if (feld.empty()) {
        return {};
    }
    if (layouts.empty()) {
        layouts = LayoutsDesTyps(TypAus(feld));
    }
    const Feldort ort = FeldortVon(feld, layouts);
    Feldangabe angabe;
    if (ort.Spalte > 0) {
        angabe.Von = angabe.Bis = ort.Spalte;
    }
    for (const std::size_t i : ort.Felder) {
        const RecordLayout& layout = layouts[i];
        angabe.Name += angabe.Name.empty() ? "" : ", ";
        angabe.Name += Utf8(Feldbezeichnung(layout.Feldbezug, Tabellensprache(sprache)));
        angabe.Von = angabe.Von == 0 ? layout.Spalte : std::min(angabe.Von, layout.Spalte);
        angabe.Bis = std::max(angabe.Bis, layout.Spalte + layout.Laenge - 1);
    }
    return angabe;
}

} // namespace zepholt::bericht
