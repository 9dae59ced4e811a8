#include "items/RecordG.h"

#include "doctest/Feldpruefung.h"
#include "errors/TestFehler.h"
#include "items/Positionsregeln.h"
#include "state/TestDaten.h"
#include "state/Verweise.h"

#include <algorithm>

namespace zepholt {

namespace {

bool KapitelnummerErlaubt(std::int32_t nummer) {
    const bool frueherErlaubt = testDaten.Revision < 11 && nummer >= 800 && nummer <= 899;
    return (nummer >= 100 && nummer <= 799) || (nummer >= 900 && nummer <= 999) || frueherErlaubt;
}

// The code of the first fault in the digits of a position number of the chapter; 0 for none.
std::int32_t FehlerDerZiffern(std::int32_t kapitel, std::int32_t position) {
    const bool hauptposition = position / 1000 % 10 != 0; // the third digit
    if (hauptposition && position / 10000 % 10 == 0) {
        return 4212;
    }

    const bool leistungsposition = position % 10 != 0;
    if (leistungsposition && kapitel / 10 % 10 == 0) {
        return 4213;
    }
    if (leistungsposition && position < 100000) {
        return 4214;
    }
    if (leistungsposition && !hauptposition) {
        return 4215;
    }

    return position == 0 && !IstReserveKapitel(kapitel) ? 4216 : 0;
}

// True when the superior position of a position that is no section is of the user's own making, and missing. A reserve
// sub-position sub-group needs its group too.
bool ReservepositionFehlt(std::int32_t kapitelIndex, std::int32_t kapitel, std::int32_t position) {
    const auto fehlt = [&](std::int32_t obere) {
        return (IstReserveKapitel(kapitel) || IstReservePosition(obere)) && SuchePosition(kapitelIndex, obere) == -1;
    };
    const bool untergruppe = position % 10 == 0 && position / 10 % 10 != 0 && position / 100 % 10 != 0;
    return fehlt(UebergeordnetePosition(position)) ||
           (untergruppe && IstReservePosition(position) && fehlt(position / 100 * 100));
}

// G2:12 and G3:12, the mark of an ecodevis position.
void PruefeKennzeichnung(Feldsicht kennzeichnung) {
    if (!kennzeichnung.empty() && kennzeichnung != u"E" && kennzeichnung != u"e") {
        FehlerMelden(4231);
    }
}

// The variable of this number, made when it is the first time that a line names it.
VariableEintrag& VariableAnlegen(PositionEintrag& position, std::int32_t nummer) {
    VariableEintrag* const vorhandene = SucheVariable(position, nummer);
    return vorhandene != nullptr
               ? *vorhandene
               : sia451Datei.Variablen.Anfuegen(position.Variablen, {.Nummer = static_cast<std::uint8_t>(nummer)});
}

// Numbers of lines have two digits: a variable has no more than a hundred. Most of them ascend, and the highest tells.
bool HatZeile(const VariableEintrag& variable, std::int32_t nummer) {
    return nummer <= variable.HoechsteZeile &&
           std::ranges::any_of(sia451Datei.Variablenzeilen.Von(variable.Zeilen),
                               [nummer](const VariablenzeileEintrag& zeile) { return zeile.Nummer == nummer; });
}

// G3:24d. `variable` as it stands before this line.
void PruefeEinfuegepunkt(const VariableEintrag& variable, std::int32_t einfuegepunkt) {
    if (einfuegepunkt == 0) {
        return;
    }
    if (variable.Einfuegepunkt != 0) {
        FehlerMelden(4307);
    }
    if (NeueSchnittstelle() && variable.Nummer == 0) {
        FehlerMelden(4321);
    }
    if (einfuegepunkt > 30) {
        FehlerMelden(4331); // a line has 30 columns
    }
}

struct Variablenzeile {
    std::int32_t Kapitel;
    std::int32_t Position;
    std::int32_t Variable;
    std::int32_t Zeile;
    Feldsicht AlternativCode;
    std::int32_t Einfuegepunkt;
    Feldsicht Kennzeichnung;
};

Variablenzeile LiesG3() {
    return {.Kapitel = ZahlFeld(2, 3, Zwingend),            // G3:2a
            .Position = ZahlFeld(8, 6, Zwingend),           // G3:3
            .Variable = ZahlFeld(14, 2, Zwingend),          // G3:4
            .Zeile = ZahlFeld(16, 2, Zwingend),             // G3:5
            .AlternativCode = TextFeld(135, 1, Freiwillig), // G3:24c
            .Einfuegepunkt = ZahlFeld(136, 2, Freiwillig),  // G3:24d
            .Kennzeichnung = TextFeld(43, 1, Freiwillig)};  // G3:12
}

} // namespace

void PruefeG1() {
    const std::int32_t nummer = ZahlFeld(2, 3, Zwingend); // G1:2a
    const std::int32_t jahr = ZahlFeld(6, 2, Zwingend);   // G1:2c
    const Feldsicht titel = TextFeld(93, 30, Erwartet);   // G1:23

    if (!KapitelnummerErlaubt(nummer)) {
        return FehlerMelden(4101);
    }
    if (nummer % 10 == 0) {
        return FehlerMelden(4102);
    }
    if (SucheKapitel(nummer) != -1) {
        return FehlerMelden(4103);
    }
    if (IstReserveKapitel(nummer) && titel.empty()) {
        FehlerMelden(4104);
    }

    KapitelEintrag& kapitel = sia451Datei.DokumentKapitel.emplace_back();
    kapitel.Nummer = nummer;
    kapitel.Versionsjahr = jahr >= 89 ? 1900 + jahr : 2000 + jahr;
}

void PruefeG2() {
    const std::int32_t kapitel = ZahlFeld(2, 3, Zwingend);       // G2:2a
    const std::int32_t nummer = ZahlFeld(8, 6, Zwingend);        // G2:3
    const Feldsicht kennzeichnung = TextFeld(43, 1, Freiwillig); // G2:12

    const std::int32_t kapitelIndex = SucheKapitel(kapitel);
    if (kapitelIndex == -1) {
        return FehlerMelden(4201);
    }
    if (nummer < 0 || nummer > 999999) {
        return FehlerMelden(4211); // not with six digits
    }
    if (const std::int32_t fehler = FehlerDerZiffern(kapitel, nummer); fehler != 0) {
        return FehlerMelden(fehler);
    }
    if (NeueSchnittstelle() && nummer % 100000 != 0 && ReservepositionFehlt(kapitelIndex, kapitel, nummer)) {
        return FehlerMelden(4217);
    }
    if (SuchePosition(kapitelIndex, nummer) != -1) {
        return FehlerMelden(4221);
    }
    PruefeKennzeichnung(kennzeichnung);

    Kapitel(kapitelIndex).Positionen.emplace_back().Nummer = nummer;
}

void PruefeG3() {
    const Variablenzeile satz = LiesG3();

    const std::optional<Positionsort> ort = SucheOrt(satz.Kapitel, satz.Position, 4301, 4302);
    if (!ort) {
        return;
    }
    if (satz.Variable != 0 && satz.Position % 1000 == 0) {
        FehlerMelden(4308);
    }

    // The variable stays, also when its line is refused.
    VariableEintrag& variable = VariableAnlegen(*ort->Eintrag, satz.Variable);
    if (HatZeile(variable, satz.Zeile)) {
        return FehlerMelden(4303);
    }
    if (satz.Zeile != 1 && !variable.HatErsteZeile) {
        FehlerMelden(4304);
    }
    if (NeueSchnittstelle() && !satz.AlternativCode.empty()) {
        FehlerMelden(4311);
    }
    PruefeEinfuegepunkt(variable, satz.Einfuegepunkt);
    PruefeKennzeichnung(satz.Kennzeichnung);

    // Also with 0: the checks that follow see the last line only.
    variable.Einfuegepunkt = static_cast<std::uint8_t>(satz.Einfuegepunkt);
    variable.HoechsteZeile = std::max(variable.HoechsteZeile, static_cast<std::uint8_t>(satz.Zeile));
    variable.HatErsteZeile = variable.HatErsteZeile || satz.Zeile == 1;
    sia451Datei.Variablenzeilen.Anfuegen(variable.Zeilen, {.Zeile = testDaten.ZeilenNr, .Nummer = satz.Zeile});
}

} // namespace zepholt
