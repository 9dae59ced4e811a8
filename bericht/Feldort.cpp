#include "bericht/Feldort.h"

#include "bericht/Zeichen.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <utility>

namespace zepholt::bericht {

namespace {

// Where the error table names a field by another number than the layout: the order of a structure's entries stands in
// field 20, and what all attachment records share is the variable number.
constexpr std::pair<std::string_view, std::string_view> Andere[] = {
    {"B2:3", "B2:20"}, {"B4:3", "B4:20"}, {"B5:3", "B5:20"}, {"B6:3", "B6:20"}, {"X/P", "X/P:4"},
};

// A field number in its two parts: "24a" is 24 and 'a', "13" is 13 and none.
struct Feldnummer {
    int Zahl = 0;
    char Buchstabe = '\0';

    // An order: the number, then the letter.
    std::int64_t Rang() const { return std::int64_t{Zahl} * 256 + static_cast<unsigned char>(Buchstabe); }
};

std::optional<Feldnummer> NummerAus(std::string_view text) {
    Feldnummer nummer;
    const auto ergebnis = std::from_chars(text.data(), text.data() + text.size(), nummer.Zahl);
    const std::string_view rest(ergebnis.ptr, static_cast<std::size_t>(text.data() + text.size() - ergebnis.ptr));
    if (ergebnis.ec != std::errc() || rest.size() > 1) {
        return std::nullopt;
    }
    nummer.Buchstabe = rest.empty() ? '\0' : rest[0];
    return nummer;
}

// True when the layout's number `bereich`, such as "24a-d", "21-22" or "13", is or covers `gesucht`.
bool Umfasst(std::string_view bereich, std::string_view gesucht) {
    if (bereich == gesucht) {
        return true;
    }
    const std::size_t strich = bereich.find('-');
    const std::optional<Feldnummer> nummer = NummerAus(gesucht);
    if (strich == std::string_view::npos || !nummer) {
        return false;
    }
    const std::optional<Feldnummer> von = NummerAus(bereich.substr(0, strich));
    std::optional<Feldnummer> bis = NummerAus(bereich.substr(strich + 1));
    if (von && !bis && strich + 2 == bereich.size()) { // the second letter alone: 24a-d
        bis = Feldnummer{von->Zahl, bereich.back()};
    }
    return von && bis && von->Rang() <= nummer->Rang() && nummer->Rang() <= bis->Rang();
}

std::string_view NummerDer(std::string_view feldbezug) {
    return feldbezug.substr(feldbezug.find(':') + 1);
}

void FelderSuchen(std::string_view nummern, std::span<const RecordLayout> layouts, Feldort& ort) {
    while (!nummern.empty()) {
        const std::size_t ende = std::min(nummern.find('/'), nummern.size());
        for (std::size_t i = 0; i < layouts.size(); ++i) {
            if (Umfasst(NummerDer(Utf8(layouts[i].Feldbezug)), nummern.substr(0, ende))) {
                ort.Felder.push_back(i);
            }
        }
        nummern.remove_prefix(std::min(ende + 1, nummern.size()));
    }
}

// True when `typ`, the part before the colon, speaks of records that begin like `eigener` ("G6", "A:").
bool TypPasst(std::string_view typ, std::string_view eigener) {
    if (typ.starts_with("e")) { // a detail measurement line
        typ.remove_prefix(1);
    }
    const std::string_view name = eigener.ends_with(":") ? eigener.substr(0, 1) : eigener;
    if (typ == name) {
        return true;
    }
    const std::size_t strich = typ.find('/');
    if (strich == std::string_view::npos) {
        return false;
    }
    const std::string_view rest = typ.substr(strich + 1);
    if (rest.size() != 1 || name.size() != 2) {
        return false;
    }
    const bool ziffern = rest[0] >= '0' && rest[0] <= '9'; // G2/3: the digit changes; X/P: the letter
    return ziffern ? typ[0] == name[0] && (typ[1] == name[1] || rest[0] == name[1])
                   : typ[0] == name[0] || rest[0] == name[0];
}

std::optional<std::int32_t> AlsSpalte(std::string_view feld) {
    std::int32_t spalte = 0;
    const auto ergebnis = std::from_chars(feld.data(), feld.data() + feld.size(), spalte);
    const bool ganz = ergebnis.ec == std::errc() && ergebnis.ptr == feld.data() + feld.size();
    return ganz && spalte > 0 ? std::optional(spalte) : std::nullopt;
}

} // namespace

Feldort FeldortVon(std::string_view feld, std::span<const RecordLayout> layouts) {
    Feldort ort;
    if (const std::optional<std::int32_t> spalte = AlsSpalte(feld)) {
        ort.Spalte = *spalte;
        return ort;
    }
    if (layouts.empty()) {
        return ort;
    }
    const auto anderes = std::ranges::find(Andere, feld, &std::pair<std::string_view, std::string_view>::first);
    const std::string_view bezug = anderes != std::end(Andere) ? anderes->second : feld;
    const std::size_t doppelpunkt = bezug.find(':');
    if (!TypPasst(bezug.substr(0, doppelpunkt), Utf8(layouts.front().Feldbezug).substr(0, 2))) {
        return ort;
    }
    if (doppelpunkt == std::string_view::npos) {
        ort.GanzerRecord = true;
    } else {
        FelderSuchen(bezug.substr(doppelpunkt + 1), layouts, ort);
    }
    return ort;
}

std::string Ortskuerzel(const Feldort& ort) {
    if (ort.GanzerRecord) {
        return "*";
    }
    if (ort.Spalte > 0) {
        return "@" + std::to_string(ort.Spalte);
    }
    std::string kuerzel;
    for (const std::size_t feld : ort.Felder) {
        if (!kuerzel.empty()) {
            kuerzel.push_back(',');
        }
        kuerzel.append(std::to_string(feld));
    }
    return kuerzel;
}

} // namespace zepholt::bericht
