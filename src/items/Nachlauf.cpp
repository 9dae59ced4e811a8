// The checks over the finished tree, which no single record can judge. The tree stays as it is.
#include "catalogue/TestVLT.h"
#include "errors/TestFehler.h"
#include "items/RecordG.h"
#include "state/SIA451Datei.h"
#include "state/TestDaten.h"
#include "state/Verweise.h"
#include "support/HilfsFunktionen.h"

#include <algorithm>

namespace zepholt {

namespace {

// No record is current here: the stamps name the place.
void MeldenAn(std::int32_t code, const KapitelEintrag& kapitel, const PositionEintrag& position) {
    testDaten.FehlerKapitel = kapitel.Nummer;
    testDaten.FehlerPosition = position.Nummer;
    FehlerMelden(code);
}

// How far the numbers below a position reach: up to `nummer` + span, the end itself not counted. 0 for a service
// position, which has nothing below it.
std::int32_t Spanne(std::int32_t nummer) {
    for (const std::int32_t stufe : {100000, 10000, 1000, 100, 10}) {
        if (nummer % stufe == 0) {
            return stufe - 1;
        }
    }
    return 0;
}

// Title positions: the positions stand in file order, so that the list neighbour tells whether one has another below.
void PruefeTitel(const KapitelEintrag& kapitel) {
    std::int32_t naechste = 0;
    for (auto zeiger = kapitel.Positionen.rbegin(); zeiger != kapitel.Positionen.rend(); ++zeiger) {
        const PositionEintrag& position = *zeiger;
        const std::int32_t nummer = position.Nummer;
        const bool istTitel = naechste > nummer && naechste < nummer + Spanne(nummer);
        if (istTitel && position.Variablen.empty() && !IstReservePosition(nummer)) {
            MeldenAn(4711, kapitel, position);
        }
        if (istTitel && position.HatZuordnungen) { // assignments belong to the end nodes
            MeldenAn(4731, kapitel, position);
        }
        naechste = nummer;
    }
}

bool HatText(const VariableEintrag& variable) {
    return variable.Einfuegepunkt >= 1 ||
           std::ranges::any_of(sia451Datei.Variablenzeilen.Von(variable.Zeilen),
                               [](const VariablenzeileEintrag& zeile) { return !TextVon(zeile).empty(); });
}

void PruefeReservetext(const KapitelEintrag& kapitel) {
    const bool reserveKapitel = IstReserveKapitel(kapitel.Nummer);
    for (const PositionEintrag& position : kapitel.Positionen) {
        const bool reserve = reserveKapitel || IstReservePosition(position.Nummer);
        if (reserve && std::ranges::none_of(sia451Datei.Variablen.Von(position.Variablen), HatText)) {
            MeldenAn(4721, kapitel, position);
        }
    }
}

// The preliminary remark that a quantity points to (G6:24a): it must stand in the chapter, and in the new interface
// it must cover the position, by its digits or by the catalogue.
void PruefeVorbemerkungen(std::int32_t index) {
    const KapitelEintrag& kapitel = Kapitel(index);
    for (const PositionEintrag& position : kapitel.Positionen) {
        for (const MengeEintrag& menge : sia451Datei.Mengen.Von(position.Mengen)) {
            const std::int32_t vorbemerkung = menge.Vorbemerkung;
            if (vorbemerkung == 0) {
                continue;
            }
            if (SuchePosition(index, vorbemerkung) == -1) {
                MeldenAn(4741, kapitel, position);
            }
            if (NeueSchnittstelle() && !ImGueltigkeitsbereich(kapitel.Nummer, position.Nummer, vorbemerkung) &&
                !ImKatalogGeltungsbereich(kapitel.Nummer, position.Nummer, vorbemerkung)) {
                MeldenAn(4742, kapitel, position);
            }
        }
    }
}

} // namespace

void PruefeNachlauf() {
    testDaten.ZeilenNr = -1;
    for (const KapitelEintrag& kapitel : sia451Datei.DokumentKapitel) {
        if (!IstReserveKapitel(kapitel.Nummer)) {
            PruefeTitel(kapitel);
        }
    }
    for (const KapitelEintrag& kapitel : sia451Datei.DokumentKapitel) {
        PruefeReservetext(kapitel);
    }
    for (std::int32_t i = 0; i < AnzahlElemente(sia451Datei.DokumentKapitel); ++i) {
        PruefeVorbemerkungen(i);
    }
}

} // namespace zepholt
