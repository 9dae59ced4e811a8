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

// The findings of one chapter in the order in which they are reported, each with the position in hand.
class Befunde {
public:
    void Position(std::int32_t nummer) { m_position = nummer; }
    void Melden(std::int32_t code) { m_liste.push_back({code, m_position}); }
    std::vector<Katalogbefund> Liste() && { return std::move(m_liste); }

private:
    std::vector<Katalogbefund> m_liste;
    std::int32_t m_position = 0; // 0 for the chapter itself
};

// Before the insertion point of the catalogue's text the lines must be blank: from there on the text is the user's.
// `einfuegepunkt` counts from 1 through the lines; in front of a negative one no column stands.
void TesteTextVorEinfuegepunkt(const Kette& zeilen, std::int32_t einfuegepunkt, Befunde& befunde) {
    const std::int32_t grenze = (einfuegepunkt - 1) / Zeilenbreite + 1;
    const auto spaltenDavor = static_cast<std::size_t>(std::max((einfuegepunkt - 1) % Zeilenbreite, 0));
    for (const VariablenzeileEintrag& zeile : sia451Datei.Variablenzeilen.Von(zeilen)) {
        const Feldsicht text = TextVon(zeile);
        const Feldsicht davor = text.substr(0, std::min(text.size(), spaltenDavor));
        if ((zeile.Nummer < grenze && !text.empty()) ||
            (zeile.Nummer == grenze && !OhneLeerzeichenRechts(davor).empty())) {
            befunde.Melden(6303);
        }
    }
}

// Judges a variable whose counterpart is the current V.
void TesteVariable(const VariableEintrag& variable, Befunde& befunde) {
    const std::int32_t einfuegepunkt = EinfuegepunktImKatalog();
    const auto hatText = [](const VariablenzeileEintrag& zeile) { return !TextVon(zeile).empty(); };
    if (einfuegepunkt != 0) {
        TesteTextVorEinfuegepunkt(variable.Zeilen, einfuegepunkt, befunde);
    } else if (std::ranges::any_of(sia451Datei.Variablenzeilen.Von(variable.Zeilen), hatText)) {
        befunde.Melden(6302);
    }

    if (variable.Einfuegepunkt > 0) { // of the last line
        const std::int32_t letzte = sia451Datei.Variablenzeilen.LetztesVon(variable.Zeilen).Nummer;
        const std::int32_t wert = (letzte - 1) * Zeilenbreite + variable.Einfuegepunkt;
        if (einfuegepunkt == 0 || wert < einfuegepunkt) {
            befunde.Melden(6304);
        }
    }
}

// Variables of one alternative group exclude each other: a report for each pair.
void TesteAlternativen(const std::vector<std::int32_t>& alternativen, std::int32_t gruppe, Befunde& befunde) {
    for (const std::int32_t fruehere : alternativen) {
        if (gruppe != 0 && fruehere == gruppe) {
            befunde.Melden(6305);
        }
    }
}

void TesteVariablen(const PositionEintrag& position, Befunde& befunde) {
    std::vector<std::int32_t> alternativen; // numbers of variables have two digits: no more than a hundred
    for (const VariableEintrag& variable : sia451Datei.Variablen.Von(position.Variablen)) {
        if (!FindeV(variable.Nummer)) {
            befunde.Melden(6301);
            continue;
        }
        TesteVariable(variable, befunde);
        TesteAlternativen(alternativen, AlternativGruppe(), befunde);
        alternativen.push_back(AlternativGruppe());
    }
}

// Judges a position that the catalogue has, and whose counterpart is the current U, or none for a main position.
void TestePosition(const PositionEintrag& position, Befunde& befunde) {
    if (position.Variablen.empty() && OhneFestenText()) {
        befunde.Melden(6202);
    }
    TesteVariablen(position, befunde);
    if (position.HatZuordnungen && !IstEndknoten(position.Nummer)) {
        befunde.Melden(6401);
    }
}

// The number of the title position that a reserve position belongs to. In the new interface a text position with a tens
// digit has one of its own, the group of hundreds.
std::int32_t Titelposition(std::int32_t nummer) {
    const bool untergruppe = nummer % 10 == 0 && nummer / 10 % 10 != 0;
    return untergruppe && NeueSchnittstelle() ? nummer / 100 * 100 : UebergeordnetePosition(nummer);
}

// Whether the catalogue has a position, and `grenze` in the same repeat range if it isn't 0: 6213 for a text position
// in a range whose start doesn't allow it.
bool ImKatalog(std::int32_t nummer, std::int32_t grenze, Befunde& befunde) {
    const Katalogstelle stelle = PositionImKatalog(nummer, grenze);
    if (stelle.AnfangPasstNicht && NeueSchnittstelle()) {
        befunde.Melden(6213);
    }
    return stelle.Da;
}

// In a main position that has xxx001 the catalogue keeps the sub-positions xxx091 to xxx099 for reserves; in one that
// has not, xxx090.
void TesteReserveEnde(std::int32_t nummer, Befunde& befunde) {
    const std::int32_t basis = nummer / 1000 * 1000 + 1;
    const std::int32_t rest = nummer % 1000;
    if (rest == 90 && ImKatalog(basis, 0, befunde)) {
        befunde.Melden(6231);
    }
    if (rest >= 91 && rest <= 99 && !ImKatalog(basis, 0, befunde)) {
        befunde.Melden(6232);
    }
}

// Judges a position that is the user's own, by its number alone. `kapitelIndex` is the index of its chapter.
void TesteReserveposition(std::int32_t kapitelIndex, std::int32_t nummer, Befunde& befunde) {
    std::int32_t von = 0;
    std::int32_t bis = 0;
    if (nummer % 10 != 0 && InTextAst(nummer, von, bis)) {
        befunde.Melden(6221);
    }

    const std::int32_t titel = Titelposition(nummer);
    if (SuchePosition(kapitelIndex, titel) != -1) {
        return; // the superior position is in the document
    }
    if (!ImKatalog(titel, nummer, befunde) && titel != 0) {
        befunde.Melden(6211);
    }
    if (!NeueSchnittstelle()) {
        return;
    }
    if (nummer % 1000 != 0 && InWiederholungsbereich(nummer)) {
        befunde.Melden(6212);
    }
    TesteReserveEnde(nummer, befunde);
}

// Judges the positions of a chapter that is the current one. Wording doesn't count, nor does that of the title. `zeige`
// gets the state of the bar behind each position.
void TesteKapitelPositionen(std::int32_t kapitelIndex, void (*zeige)(std::int32_t), Befunde& befunde) {
    std::int32_t fortschritt = FortschrittBasis;
    for (const PositionEintrag& position : Kapitel(kapitelIndex).Positionen) {
        befunde.Position(position.Nummer);
        if (IstReservePosition(position.Nummer)) {
            TesteReserveposition(kapitelIndex, position.Nummer, befunde);
        } else if (ImKatalog(position.Nummer, 0, befunde)) {
            TestePosition(position, befunde);
        } else {
            befunde.Melden(6201);
        }
        zeige(++fortschritt);
    }
}

// Makes the chapter of that index the current one and judges it, unless it is the user's own.
std::vector<Katalogbefund> LadeUndTeste(std::int32_t kapitelIndex, void (*zeige)(std::int32_t)) {
    const KapitelEintrag& kapitel = Kapitel(kapitelIndex);
    katalogVergleich.Geladen = -1; // nothing is loaded should the load fail beyond repair
    katalogVergleich.Gut = LadeKapitel(kapitel.Nummer, kapitel.Versionsjahr, sia451Datei.Sprachcode);
    katalogVergleich.Geladen = kapitelIndex;
    Befunde befunde;
    if (!katalogVergleich.Gut) {
        befunde.Melden(6101);
    } else if (!IstReserveKapitel(kapitel.Nummer)) {
        TesteKapitelPositionen(kapitelIndex, zeige, befunde);
    }
    return std::move(befunde).Liste();
}

// The findings of a chapter: those that are there already, or by loading it now.
std::vector<Katalogbefund> BefundeVon(std::int32_t kapitelIndex) {
    const auto vorab = katalogVergleich.Vorab.extract(kapitelIndex);
    if (vorab.empty()) {
        return LadeUndTeste(kapitelIndex, ZeigeFortschritt);
    }
    ZeigeFortschritt(FortschrittBasis + AnzahlElemente(Kapitel(kapitelIndex).Positionen));
    return std::move(vorab.mapped());
}

void TesteKapitel(std::int32_t kapitelIndex) {
    const KapitelEintrag& kapitel = Kapitel(kapitelIndex);
    const Text schritt = Text(Uebersetze(u"Testet VLT-Kapitel")) + u": " + ZahlText(kapitel.Nummer);
    ZeigeSchritt(schritt, FortschrittBasis + AnzahlElemente(kapitel.Positionen));
    FortschrittPhase(0);
    for (const Katalogbefund& befund : BefundeVon(kapitelIndex)) {
        testDaten.FehlerPosition = befund.Position;
        FehlerMelden(befund.Code);
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

bool ImKatalogGeltungsbereich(std::int32_t kapitel, std::int32_t position, std::int32_t vorbemerkung) {
    if (vorbemerkung > position) {
        return false;
    }
    const std::int32_t index = SucheKapitel(kapitel);
    if (index == -1 || Kapitel(index).Versionsjahr == 0) {
        return false;
    }
    if (katalogVergleich.Geladen != index) {
        katalogVergleich.Vorab[index] = LadeUndTeste(index, [](std::int32_t) { BedieneFenster(); });
    }
    std::int32_t von = 0;
    std::int32_t bis = 0;
    return katalogVergleich.Gut && InTextAst(vorbemerkung, von, bis) && von <= position && position <= bis;
}

} // namespace zepholt
