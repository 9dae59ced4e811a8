#include "doctest/Feldpruefung.h"

#include "errors/TestFehler.h"

#include <bit>
#include <limits>

namespace zepholt {

namespace {

constexpr std::size_t ImWort = sizeof(std::uint64_t); // columns

// The number that the first digits of eight columns make, at least one of them. Neighbours become pairs, pairs fours,
// fours eight: the first column lies lowest, and where digits are left out zeros stand in front.
std::int64_t WertImWort(const unsigned char* spalten, std::size_t laenge) {
    constexpr std::uint64_t Nullen = 0x3030303030303030;
    std::uint64_t wert = (Wort<std::uint64_t>(spalten) ^ Nullen) << 8 * (ImWort - laenge);
    wert = wert * (10 * 0x100 + 1) >> 8;
    wert = (wert & 0x00FF00FF00FF00FF) * (100 * 0x10000 + 1) >> 16;
    wert = (wert & 0x0000FFFF0000FFFF) * (10'000 * 0x100000000 + 1) >> 32;
    return static_cast<std::int64_t>(wert);
}

// Of a field that digits fill; none has more of them than can be exact.
std::int64_t Feldwert(std::int32_t spalte, std::int32_t laenge) {
    const auto ab = static_cast<std::size_t>(spalte - 1);
    const auto anzahl = static_cast<std::size_t>(laenge);
    const Feldsicht record = testDaten.Record;
    const bool schnell = std::endian::native == std::endian::little && !record.IstBreit() && anzahl <= ImWort &&
                         ab + ImWort <= record.size();
    return schnell ? WertImWort(record.Bytes() + ab, anzahl) : Ziffernwert(record.substr(ab, anzahl));
}

// Days since 1970-01-01 of the first day of a month in the proleptic Gregorian calendar; `monat` from 1 to 12.
std::int32_t TageBisMonat(std::int32_t jahr, std::int32_t monat) {
    // Counted from 1 March of year 0, so that the leap day is the last of its year.
    const std::int32_t maerzJahr = monat > 2 ? jahr : jahr - 1;
    const std::int32_t maerzMonat = (monat + 9) % 12;
    const std::int32_t tage = 365 * maerzJahr + maerzJahr / 4 - maerzJahr / 100 + maerzJahr / 400;
    return tage + (153 * maerzMonat + 2) / 5 - 719468;
}

// Month 0 is December of the year before, a month above 12 runs on into the next years; days carry by plain addition.
std::int32_t TageSeit1970(std::int32_t jahr, std::int32_t monat, std::int32_t tag) {
    const std::int32_t monate = jahr * 12 + monat - 1;
    return TageBisMonat(monate / 12, monate % 12 + 1) + tag - 1;
}

} // namespace

void LeeresFeldMelden(std::int32_t spalte, Pflicht pflicht) {
    if (pflicht == Zwingend) {
        FehlerHinzufuegen(3002, spalte);
    } else if (pflicht == Erwartet) {
        FehlerHinzufuegen(3003, spalte);
    }
}

Feldsicht GefuellterText(std::int32_t spalte, std::int32_t laenge) {
    return testDaten.Record.Feld(spalte, laenge);
}

void SchluesselTesten(Feldsicht text, std::int32_t spalte, JokerRegel regel) {
    const std::size_t joker = text.find(u'*');
    const std::size_t erlaubt = regel == JokerAmEnde ? text.size() - 1 : Feldsicht::npos;
    if (joker != Feldsicht::npos && joker != erlaubt) {
        FehlerHinzufuegen(3001, spalte);
    }

    if (text.front() == u' ') {
        FehlerHinzufuegen(3001, spalte);
    }
}

std::int32_t KeineZahl(std::int32_t spalte) {
    FehlerHinzufuegen(3001, spalte);
    return 0;
}

std::int32_t Zahl(std::int32_t spalte, std::int32_t laenge) {
    const std::int64_t wert = Feldwert(spalte, laenge);
    return wert > std::numeric_limits<std::int32_t>::max() ? KeineZahl(spalte) : static_cast<std::int32_t>(wert);
}

std::int32_t Datum(std::int32_t spalte) {
    const std::int64_t ddMMyy = Feldwert(spalte, 6);
    const auto jahr = static_cast<std::int32_t>(ddMMyy % 100);
    const auto monat = static_cast<std::int32_t>(ddMMyy / 100 % 100);
    return TageSeit1970(jahr < 89 ? 2000 + jahr : 1900 + jahr, monat, static_cast<std::int32_t>(ddMMyy / 10'000));
}

} // namespace zepholt
