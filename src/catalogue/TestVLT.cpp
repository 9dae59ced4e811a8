#include "catalogue/TestVLT.h"

#include "catalogue/VLTKapitel.h"
#include "catalogue/VLTKatalog.h"
#include "errors/TestFehler.h"
#include "state/SIA451Datei.h"
#include "state/TestDaten.h"
#include "state/Verweise.h"
#include "support/HilfsFunktionen.h"
#include "window/DialogDeFrIt.h"
#include "window/Fortschritt.h"

#include <algorithm>

namespace zepholt {

namespace {

constexpr std::int32_t Zeilenbreite = 30;      // columns of a variable's line
constexpr std::int32_t FortschrittBasis = 200; // units of the bar that belong to loading a chapter

bool IstLeer(TextSicht text) {
    return OhneLeerzeichenRechts(text).empty();
}

// Before the insertion point of the catalogue's text the lines must be blank: from there on the text is the user's.
// `einfuegepunkt` counts from 1 through the lines.
void TesteTextVorEinfuegepunkt(const VariableEintrag& variable, std::int32_t einfuegepunkt) {
    const std::int32_t zeile = (einfuegepunkt - 1) / Zeilenbreite + 1;
    const std::int32_t spalte = (einfuegepunkt - 1) % Zeilenbreite + 1;
    for (std::size_t i = 0; i < variable.ZeilenNrn.size(); ++i) {
        const std::int32_t nummer = variable.ZeilenNrn[i];
        const TextSicht text = variable.ZeilenTexte[i];
        const bool davor = nummer < zeile;
        const bool angeschnitten = nummer == zeile && spalte >= 2;
        if ((davor && !IstLeer(text)) ||
            (angeschnitten && !IstLeer(text.substr(0, static_cast<std::size_t>(spalte - 1))))) {
            FehlerMelden(6303);
        }
    }
}

// Judges a variable whose counterpart is the current V.
void TesteVariable(const VariableEintrag& variable) {
    const std::int32_t einfuegepunkt = EinfuegepunktImKatalog();
    if (einfuegepunkt != 0) {
        TesteTextVorEinfuegepunkt(variable, einfuegepunkt);
    } else if (!std::ranges::all_of(variable.ZeilenTexte, IstLeer)) {
        FehlerMelden(6302);
    }

    if (variable.Einfuegepunkt > 0) { // of the last line
        const std::int32_t wert = (variable.LetzteZeile - 1) * Zeilenbreite + variable.Einfuegepunkt;
        if (einfuegepunkt == 0 || wert < einfuegepunkt) {
            FehlerMelden(6304);
        }
    }

    if (!variable.AlternativCode.empty() && AlternativGruppe() == 0) { // never: PruefeG3 drops every code
        FehlerMelden(6306);
    }
}

// Variables of one alternative group exclude each other: a report for each pair.
void TesteAlternativen(const std::vector<std::int32_t>& alternativen, std::int32_t gruppe) {
    for (const std::int32_t fruehere : alternativen) {
        if (gruppe != 0 && fruehere == gruppe) {
            FehlerMelden(6305);
        }
    }
}

void TesteVariablen(const PositionEintrag& position) {
    std::vector<std::int32_t> alternativen; // numbers of variables have two digits: no more than a hundred
    for (const VariableEintrag& variable : position.Variablen) {
        if (!FindeV(variable.Nummer)) {
            FehlerMelden(6301);
            continue;
        }
        TesteVariable(variable);
        TesteAlternativen(alternativen, AlternativGruppe());
        alternativen.push_back(AlternativGruppe());
    }
}

// Judges a position that the catalogue has, and whose counterpart is the current U, or none for a main position.
void TestePosition(const PositionEintrag& position) {
    if (position.Variablen.empty() && OhneFestenText()) {
        FehlerMelden(6202);
    }
    TesteVariablen(position);
    if (!position.Zuordnungen.empty() && !IstEndknoten(position.Nummer)) {
        FehlerMelden(6401);
    }
}

// The number of the title position that a reserve position belongs to. In the new interface a text position with a tens
// digit has one of its own, the group of hundreds.
std::int32_t Titelposition(std::int32_t nummer) {
    const bool untergruppe = nummer % 10 == 0 && nummer / 10 % 10 != 0;
    return untergruppe && NeueSchnittstelle() ? nummer / 100 * 100 : UebergeordnetePosition(nummer);
}

// In a main position that has xxx001 the catalogue keeps the sub-positions xxx091 to xxx099 for reserves; in one that
// has not, xxx090.
void TesteReserveEnde(std::int32_t nummer) {
    const std::int32_t basis = nummer / 1000 * 1000 + 1;
    const std::int32_t rest = nummer % 1000;
    bool istWiederholung = false;
    if (rest == 90 && PositionImKatalog(basis, istWiederholung, 0)) {
        FehlerMelden(6231);
    }
    if (rest >= 91 && rest <= 99 && !PositionImKatalog(basis, istWiederholung, 0)) {
        FehlerMelden(6232);
    }
}

// Judges a position that is the user's own, by its number alone. `kapitelIndex` is the index of its chapter.
void TesteReserveposition(std::int32_t kapitelIndex, std::int32_t nummer) {
    std::int32_t von = 0;
    std::int32_t bis = 0;
    if (nummer % 10 != 0 && InTextAst(nummer, von, bis)) {
        FehlerMelden(6221);
    }

    const std::int32_t titel = Titelposition(nummer);
    if (SuchePosition(kapitelIndex, titel) != -1) {
        return; // the superior position is in the document
    }
    bool istWiederholung = false;
    if (!PositionImKatalog(titel, istWiederholung, nummer) && titel != 0) {
        FehlerMelden(6211);
    }
    if (!NeueSchnittstelle()) {
        return;
    }
    if (nummer % 1000 != 0 && InWiederholungsbereich(nummer)) {
        FehlerMelden(6212);
    }
    TesteReserveEnde(nummer);
}

// Judges the positions of a chapter that is the current one. Wording doesn't count, nor does that of the title.
void TesteKapitelPositionen(std::int32_t kapitelIndex) {
    const std::vector<PositionEintrag>& positionen = Kapitel(kapitelIndex).Positionen;
    std::int32_t fortschritt = FortschrittBasis;
    for (const PositionEintrag& position : positionen) {
        testDaten.FehlerPosition = position.Nummer;
        bool istWiederholung = false;
        if (IstReservePosition(position.Nummer)) {
            TesteReserveposition(kapitelIndex, position.Nummer);
        } else if (PositionImKatalog(position.Nummer, istWiederholung, 0)) {
            TestePosition(position);
        } else {
            FehlerMelden(6201);
        }
        ZeigeFortschritt(++fortschritt);
    }
}

void TesteKapitel(std::int32_t kapitelIndex) {
    const KapitelEintrag& kapitel = Kapitel(kapitelIndex);
    const Text schritt = Text(Uebersetze(u"Testet VLT-Kapitel")) + u": " + ZahlText(kapitel.Nummer);
    ZeigeSchritt(schritt, FortschrittBasis + AnzahlElemente(kapitel.Positionen));
    FortschrittPhase(0);
    if (LadeKapitel(kapitel.Nummer, kapitel.Versionsjahr, sia451Datei.Sprachcode)) {
        TesteKapitelPositionen(kapitelIndex);
    } else {
        FehlerMelden(6101);
    }
}

} // namespace

void TesteKatalog() {
    testDaten.ZeilenNr = -1;
    for (std::int32_t i = 0; i < AnzahlElemente(sia451Datei.DokumentKapitel); ++i) {
        testDaten.FehlerKapitel = Kapitel(i).Nummer;
        testDaten.FehlerPosition = 0;
        if (IstReserveKapitel(Kapitel(i).Nummer)) {
            continue; // the user's own
        }
        TesteKapitel(i);
        if (testDaten.Abbruch) {
            return;
        }
    }
    testDaten.FehlerKapitel = 0;
    testDaten.FehlerPosition = 0;
    FortschrittPhase(6);
}

bool ImKatalogGeltungsbereich(std::int32_t kapitel, std::int32_t position, std::int32_t vorbemerkung,
                              GeladenesKapitel& geladen) {
    if (vorbemerkung > position) {
        return false;
    }
    const std::int32_t index = SucheKapitel(kapitel);
    if (index == -1 || Kapitel(index).Versionsjahr == 0) {
        return false;
    }
    if (geladen.Nummer != kapitel) {
        geladen = {}; // nothing is loaded should the load fail beyond repair
        const bool gut = LadeKapitel(kapitel, Kapitel(index).Versionsjahr, sia451Datei.Sprachcode);
        geladen = {kapitel, gut};
    }
    std::int32_t von = 0;
    std::int32_t bis = 0;
    return geladen.Gut && InTextAst(vorbemerkung, von, bis) && von <= position && position <= bis;
}

} // namespace zepholt
