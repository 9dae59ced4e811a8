#include "items/RecordG.h"

#include "doctest/Feldpruefung.h"
#include "errors/TestFehler.h"
#include "items/Positionsregeln.h"
#include "state/Verweise.h"

namespace zepholt {

namespace {

// True when the unit stands in a list that has a blank before every code and behind the last.
bool EinheitIn(TextSicht einheiten, TextSicht einheit) {
    Text gesucht = u" ";
    gesucht.append(einheit).append(u" ");
    return einheiten.find(gesucht) != TextSicht::npos;
}

void PruefeEinheit(TextSicht einheit, std::int32_t kapitel, std::int32_t versionsjahr, std::int32_t position) {
    if (einheit.empty()) {
        if (IstReserveKapitel(kapitel) || IstReservePosition(position)) {
            FehlerMelden(4505);
        }
        return;
    }
    if (!EinheitIn(sia451Datei.Einheiten, einheit)) {
        FehlerMelden(4504);
    }
    if (versionsjahr >= 2020 && EinheitIn(sia451Datei.PauschalEinheiten, einheit)) {
        FehlerMelden(4511);
    }
}

} // namespace

void PruefeG5() {
    const std::int32_t kapitel = ZahlFeld(2, 3, Zwingend);
    const std::int32_t nummer = ZahlFeld(8, 6, Zwingend);
    const TextSicht einheit = TextFeld(59, 2, Freiwillig);
    const Betrag preis = BetragFeld(62, 63, 12, 2);
    const TextSicht preisart = TextFeld(61, 1, Freiwillig);

    const std::optional<Positionsort> ort = SucheOrt(kapitel, nummer, 4501, 4502);
    if (!ort) {
        return;
    }
    if (nummer % 10 == 0) {
        return FehlerMelden(4503);
    }
    const KapitelEintrag& kapitelEintrag = sia451Datei.DokumentKapitel[static_cast<std::size_t>(ort->Kapitel)];
    PruefeEinheit(einheit, kapitel, kapitelEintrag.Versionsjahr, nummer);
    const double preisMitVorzeichen = PreisMitVorzeichen(preis, 4506, 4507);
    PruefePreisart(preisart); // 4521

    // A second record of the same position takes the place of the first.
    PositionEintrag& position = ort->Eintrag();
    position.HatG5 = true;
    position.Mengeneinheit = einheit;
    position.Preis = preisMitVorzeichen;
    position.HatPreisVorzeichen = !preis.Vorzeichen.empty();
    position.Preisart = preisart;
}

} // namespace zepholt
