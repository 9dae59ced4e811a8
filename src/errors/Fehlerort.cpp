#include "errors/Fehlerort.h"

#include "state/TestDaten.h"
#include "support/HilfsFunktionen.h"

#include <optional>

namespace zepholt {

namespace {

// Once the lines have numbers, a line's number is its index.
bool InDatei(std::int32_t zeile) {
    return zeile >= 0 && testDaten.ZeilenNummeriert && static_cast<std::size_t>(zeile) < testDaten.Zeilen.size();
}

std::optional<Feldsicht> ZeileDerDatei(std::int32_t zeile) {
    return InDatei(zeile) ? std::optional(testDaten.Zeilen[static_cast<std::size_t>(zeile)]) : std::nullopt;
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
    // Ten digits, of which the first is dropped; fewer where a record's own chapter or position is negative.
    const Zahlziffern ziffern(*nummer + 1'000'000'000);
    const auto gruppe = [&](std::size_t ab) {
        return ab < ziffern.Sicht().size() ? ziffern.Sicht().substr(ab, 3) : std::string_view();
    };
    bytes.append(gruppe(1)).append(".").append(gruppe(4)).append(".").append(gruppe(7));
}

Text PositionsText(std::int32_t zeile, std::int32_t kapitel, std::int32_t position) {
    std::string bytes;
    PositionAnhaengen(bytes, zeile, kapitel, position);
    return AusAscii(bytes);
}

void FolgendesVorausholen(std::int32_t zeile) {
    if (InDatei(zeile)) {
        testDaten.Zeilen.Vorausholen(static_cast<std::size_t>(zeile));
    }
}

std::span<const RecordLayout> LayoutsDerZeile(std::int32_t zeile) {
    const std::optional<Feldsicht> record = ZeileDerDatei(zeile);
    return record ? LayoutsVon(*record) : std::span<const RecordLayout>();
}

void FeldAnhaengen(std::string& bytes, std::int32_t zeile, std::int32_t spalte) {
    const std::optional<Feldsicht> record = ZeileDerDatei(zeile);
    if (!record) {
        return;
    }
    const RecordLayout* feld = LayoutBei(LayoutsVon(*record), spalte);
    if (feld == nullptr) {
        bytes.append(Zahlziffern(spalte).Sicht());
        return;
    }
    for (const char16_t zeichen : feld->Feldbezug) {
        bytes.push_back(static_cast<char>(zeichen));
    }
}

Text FeldName(std::int32_t zeile, std::int32_t spalte) {
    std::string bytes;
    FeldAnhaengen(bytes, zeile, spalte);
    return AusAscii(bytes);
}

} // namespace zepholt
