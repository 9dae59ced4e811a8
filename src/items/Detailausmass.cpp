#include "items/RecordG.h"

#include "doctest/Feldpruefung.h"
#include "doctest/Feldregeln.h"
#include "errors/TestFehler.h"
#include "items/Positionsregeln.h"
#include "state/SIA451Datei.h"

namespace zepholt {

namespace {

bool NummerGueltig(std::int32_t nummer) {
    return nummer >= 1 && nummer <= 99;
}

} // namespace

void PruefeDetailausmass(std::int32_t kapitel, std::int32_t position, std::int32_t menge) {
    DetailEintrag eintrag;
    eintrag.Gruppe = ZahlFeld(14, 2, Zwingend);            // G6:4
    eintrag.DetailZeile = ZahlFeld(16, 2, Zwingend);       // G6:5
    eintrag.Text1 = TextFeld(93, 30, Freiwillig);          // G6:23
    eintrag.Text2 = TextFeld(138, 30, Freiwillig);         // G6:24e
    eintrag.Text3 = TextFeld(208, 30, Freiwillig);         // G6:24h
    const Feldsicht mengenart = TextFeld(44, 1, Zwingend); // G6:13
    const Betrag betrag = BetragFeld(45, 46, 13, 3);       // G6:14, G6:15

    if (mengenart != u"A") {
        FehlerMelden(4693);
    }
    if (!NummerGueltig(eintrag.Gruppe) || !NummerGueltig(eintrag.DetailZeile)) {
        FehlerMelden(4694);
    }
    // The sign has been tested with the quantity already: its faults count for both.
    eintrag.Menge = MitVorzeichen(betrag, {4613, 4614, 4615});
    PruefeLeereFelder({{36, 6}, {61, 1}, {62, 1}, {63, 12}, {75, 7}, {123, 6}}); // 2032

    auto& mengen = Positionsort{kapitel, position}.Eintrag().Mengen;
    mengen[static_cast<std::size_t>(menge)].Details.push_back(eintrag);
}

} // namespace zepholt
