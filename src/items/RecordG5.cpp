#include "items/RecordG.h"

#include "doctest/Feldpruefung.h"
#include "errors/TestFehler.h"
#include "items/Positionsregeln.h"
#include "state/Verweise.h"

#include <array>

namespace zepholt {

namespace {

// The unit codes of one language of the file; a blank before every code and behind the last.
struct Einheitenliste {
    TextSicht Einheiten;
    TextSicht PauschalEinheiten;
};
constexpr std::array<Einheitenliste, 3> Einheitenlisten = {{
    {u" St Pr m m2 m3 kg t h d Wo Mt l hl S Kb Kr Ro % %o kJ pl gl LE ", u" Pr S Kb Kr Ro "},
    {u" p pa m m2 m3 kg t h d se ms l hl sa su br ro % %o kJ f gl up ", u" pa sa su br ro "},
    {u" pz pa m m2 m3 kg t h d st ms l hl sa se ca ro % %o kJ ac gl up ", u" pa sa se ca ro "},
}};

// True when the unit stands in a list that has a blank before every code and behind the last.
bool EinheitIn(TextSicht einheiten, Feldsicht einheit) {
    return einheiten.find(u' ' + Text(einheit) + u' ') != TextSicht::npos;
}

void PruefeEinheit(Feldsicht einheit, std::int32_t kapitel, std::int32_t versionsjahr, std::int32_t position) {
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

void EinheitenSetzen() {
    const std::int32_t sprache = sia451Datei.Sprachcode;
    if (sprache >= 1 && sprache <= 3) {
        const Einheitenliste& liste = Einheitenlisten[static_cast<std::size_t>(sprache - 1)];
        sia451Datei.Einheiten = liste.Einheiten;
        sia451Datei.PauschalEinheiten = liste.PauschalEinheiten;
    }
}

void PruefeG5() {
    const std::int32_t kapitel = ZahlFeld(2, 3, Zwingend);  // G5:2a
    const std::int32_t nummer = ZahlFeld(8, 6, Zwingend);   // G5:3
    const Feldsicht einheit = TextFeld(59, 2, Freiwillig);  // G5:16
    const Betrag preis = BetragFeld(62, 63, 12);            // G5:18, G5:19
    const Feldsicht preisart = TextFeld(61, 1, Freiwillig); // G5:17

    const std::optional<Positionsort> ort = SucheOrt(kapitel, nummer, 4501, 4502);
    if (!ort) {
        return;
    }
    if (nummer % 10 == 0) {
        return FehlerMelden(4503);
    }
    const KapitelEintrag& kapitelEintrag = Kapitel(ort->Kapitel);
    PruefeEinheit(einheit, kapitel, kapitelEintrag.Versionsjahr, nummer);
    PruefePreisvorzeichen(preis, 4506, 4507);
    PruefePreisart(preisart); // 4521

    // A second record of the same position takes the place of the first.
    PositionEintrag& position = *ort->Eintrag;
    position.HatG5 = true;
    position.HatPreisart = !preisart.empty();
    position.HatPreisVorzeichen = !preis.Vorzeichen.empty();
}

} // namespace zepholt
