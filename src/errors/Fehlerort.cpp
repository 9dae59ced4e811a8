#include "errors/Fehlerort.h"

#include "state/SIA451Felder.h"
#include "state/TestDaten.h"
#include "support/HilfsFunktionen.h"

#include <optional>

namespace zepholt {

namespace {

// The line of the file with that number, once the lines have numbers: a line's number is its index.
std::optional<Feldsicht> ZeileDerDatei(std::int32_t zeile) {
    const auto index = static_cast<std::size_t>(zeile);
    if (zeile < 0 || !testDaten.ZeilenNummeriert || index >= testDaten.Zeilen.size()) {
        return std::nullopt;
    }
    return testDaten.Zeilen[index];
}

// Chapter and position as one number, chapter times 1,000,000 plus position; none when no position can be told.
std::optional<std::int64_t> Positionsnummer(std::int32_t zeile, std::int32_t kapitel, std::int32_t position) {
    if (!HatPosition(zeile, kapitel)) {
        return std::nullopt;
    }
    if (zeile != -1) {
        const Feldsicht record = *ZeileDerDatei(zeile);
        kapitel = GanzzahlAmAnfang(Text(Feld(record, 2, 3)));
        position = GanzzahlAmAnfang(Text(Feld(record, 8, 6)));
    }
    return std::int64_t{kapitel} * 1'000'000 + position;
}

} // namespace

bool HatPosition(std::int32_t zeile, std::int32_t kapitel) {
    if (zeile == -1) {
        return kapitel != 0;
    }
    const std::optional<Feldsicht> record = ZeileDerDatei(zeile);
    return record && record->starts_with(u'G');
}

void PositionAnhaengen(std::string& bytes, std::int32_t zeile, std::int32_t kapitel, std::int32_t position) {
    const std::optional<std::int64_t> nummer = Positionsnummer(zeile, kapitel, position);
    if (!nummer) {
        return;
    }
    // Ten digits, of which the first is dropped; fewer where a record's own chapter is negative.
    const std::string ziffern = std::to_string(*nummer + 1'000'000'000);
    const auto gruppe = [&](std::size_t ab) {
        return ab < ziffern.size() ? std::string_view(ziffern).substr(ab, 3) : std::string_view();
    };
    bytes.append(gruppe(1)).append(".").append(gruppe(4)).append(".").append(gruppe(7));
}

Text PositionsText(std::int32_t zeile, std::int32_t kapitel, std::int32_t position) {
    std::string bytes;
    PositionAnhaengen(bytes, zeile, kapitel, position);
    return AusAscii(bytes);
}

void FeldAnhaengen(std::string& bytes, std::int32_t zeile, std::int32_t spalte) {
    const std::optional<Feldsicht> record = ZeileDerDatei(zeile);
    if (!record) {
        return;
    }
    for (const RecordLayout& layout : LayoutsVon(*record)) {
        if (spalte >= layout.Spalte && spalte < layout.Spalte + layout.Laenge) {
            for (const char16_t zeichen : layout.Feldbezug) {
                bytes.push_back(static_cast<char>(zeichen));
            }
            return;
        }
    }
    bytes.append(std::to_string(spalte));
}

Text FeldName(std::int32_t zeile, std::int32_t spalte) {
    std::string bytes;
    FeldAnhaengen(bytes, zeile, spalte);
    return AusAscii(bytes);
}

} // namespace zepholt
