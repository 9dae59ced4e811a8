#include "items/TestFunktionen.h"

#include "support/HilfsFunktionen.h"

#include <algorithm>
#include <ranges>

namespace zepholt {

namespace {

// Two codes side by side, each filled up with blanks to the columns that it has in a record.
Text Paar(Feldsicht erster, std::int32_t breite, Feldsicht zweiter) {
    return LinksBuendig(Text(erster), breite) + LinksBuendig(Text(zweiter), breite);
}

} // namespace

bool PruefzifferGueltig(Feldsicht text) {
    if (text.empty()) {
        return true;
    }
    if (!NurZiffern(text)) {
        return false;
    }
    const std::int32_t pruefziffer = text.back() - u'0';
    std::int32_t summe = 0;
    std::int32_t gewicht = 3;
    for (std::size_t i = text.size() - 1; i-- > 0;) {
        summe += (text[i] - u'0') * gewicht;
        gewicht = 4 - gewicht;
    }
    return (10 - summe % 10) % 10 == pruefziffer;
}

bool JokerGleich(Feldsicht wert, Feldsicht muster) {
    const std::size_t joker = muster.find(u'*');
    return joker == Feldsicht::npos ? wert == muster : wert.substr(0, joker) == muster.substr(0, joker);
}

bool KostenkontoGefunden(const Verweissatz& verweise) {
    const Text objekt = Paar(verweise.OGL, 6, verweise.PSL);
    const Text kostenart = LinksBuendig(Text(verweise.KAG), 5);
    const Text bauteil = LinksBuendig(Text(verweise.Element), 6);
    const Text wahl = Paar(verweise.Variantengruppe, 3, verweise.Variante);
    return std::ranges::any_of(sia451Datei.KostenkontoTabelle, [&](const Verweissatz& konto) {
        return JokerGleich(objekt, Paar(konto.OGL, 6, konto.PSL)) &&
               JokerGleich(kostenart, LinksBuendig(Text(konto.KAG), 5)) &&
               JokerGleich(bauteil, LinksBuendig(Text(konto.Element), 6)) &&
               JokerGleich(wahl, Paar(konto.Variantengruppe, 3, konto.Variante));
    });
}

bool EinrichtungErlaubt(std::int32_t /*kapitel*/) {
    return true;
}

} // namespace zepholt
