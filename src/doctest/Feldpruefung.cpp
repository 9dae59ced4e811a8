#include "doctest/Feldpruefung.h"

#include "errors/TestFehler.h"
#include "state/SIA451Felder.h"
#include "state/TestDaten.h"

#include <limits>
#include <optional>

namespace zepholt {

namespace {

void LeeresFeldMelden(std::int32_t spalte, Pflicht pflicht) {
    if (pflicht == Zwingend) {
        FehlerHinzufuegen(3002, spalte);
    } else if (pflicht == Erwartet) {
        FehlerHinzufuegen(3003, spalte);
    }
}

// The digits of a field that they fill. None when it is blank, which is left to the caller; none and 3001 when a
// character is no digit, or when the record ends inside the field, whose missing columns count as blanks.
std::optional<Feldsicht> Ziffern(std::int32_t spalte, std::int32_t laenge) {
    if (testDaten.Record.NurZiffern(spalte, laenge)) {
        return testDaten.Record.substr(static_cast<std::size_t>(spalte - 1), static_cast<std::size_t>(laenge));
    }
    if (!FeldLeer(spalte, laenge)) {
        FehlerHinzufuegen(3001, spalte);
    }
    return std::nullopt;
}

// The same; LeeresFeldMelden when it is blank.
std::optional<Feldsicht> Ziffern(std::int32_t spalte, std::int32_t laenge, Pflicht pflicht) {
    const std::optional<Feldsicht> ziffern = Ziffern(spalte, laenge);
    if (!ziffern && FeldLeer(spalte, laenge)) {
        LeeresFeldMelden(spalte, pflicht);
    }
    return ziffern;
}

// Exact up to 18 digits, more than any field has.
std::int64_t Ziffernwert(Feldsicht ziffern) {
    return ziffern.MitSpalten([&ziffern](const auto* spalten) {
        std::int64_t wert = 0;
        for (std::size_t i = 0; i < ziffern.size(); ++i) {
            wert = wert * 10 + (spalten[i] - '0');
        }
        return wert;
    });
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
std::int32_t Datum(std::int32_t jahr, std::int32_t monat, std::int32_t tag) {
    const std::int32_t monate = jahr * 12 + monat - 1;
    return TageBisMonat(monate / 12, monate % 12 + 1) + tag - 1;
}

} // namespace

bool FeldLeer(std::int32_t spalte, std::int32_t laenge) {
    return testDaten.Record.IstLeer(spalte, laenge);
}

Feldsicht TextFeld(std::int32_t spalte, std::int32_t laenge, Pflicht pflicht) {
    const Feldsicht text = testDaten.Record.Feld(spalte, laenge);
    if (text.empty()) {
        LeeresFeldMelden(spalte, pflicht);
    }
    return text;
}

Feldsicht SchluesselFeld(std::int32_t spalte, std::int32_t laenge, JokerRegel regel, Pflicht pflicht) {
    const Feldsicht text = TextFeld(spalte, laenge, pflicht);
    if (text.empty() || regel == JokerUngeprueft) {
        return text;
    }

    const std::size_t joker = text.find(u'*');
    const std::size_t erlaubt = regel == JokerAmEnde ? text.size() - 1 : Feldsicht::npos;
    if (joker != Feldsicht::npos && joker != erlaubt) {
        FehlerHinzufuegen(3001, spalte);
    }

    if (text.front() == u' ') {
        FehlerHinzufuegen(3001, spalte);
    }
    return text;
}

std::int32_t ZahlFeld(std::int32_t spalte, std::int32_t laenge, Pflicht pflicht) {
    const std::optional<Feldsicht> ziffern = Ziffern(spalte, laenge, pflicht);
    if (!ziffern) {
        return 0;
    }
    const std::int64_t wert = Ziffernwert(*ziffern);
    if (wert > std::numeric_limits<std::int32_t>::max()) {
        FehlerHinzufuegen(3001, spalte);
        return 0;
    }
    return static_cast<std::int32_t>(wert);
}

Feldsicht DezimalFeld(std::int32_t spalte, std::int32_t laenge) {
    return Ziffern(spalte, laenge).value_or(Feldsicht());
}

std::int32_t DatumFeld(std::int32_t spalte, std::int32_t laenge, Pflicht pflicht) {
    const std::optional<Feldsicht> ziffern = Ziffern(spalte, laenge, pflicht);
    if (!ziffern) {
        return 0;
    }
    const auto zweistellig = [&](std::size_t ab) {
        return static_cast<std::int32_t>(Ziffernwert(ziffern->substr(ab, 2)));
    };
    const std::int32_t jahr = zweistellig(4);
    return Datum(jahr < 89 ? 2000 + jahr : 1900 + jahr, zweistellig(2), zweistellig(0));
}

} // namespace zepholt
