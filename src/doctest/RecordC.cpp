// Records C0, C1 and C5: gross amount, conditions, and what restricts a condition to a part of the structures. Amounts
// are tested for their form and signs, nothing is calculated.
#include "doctest/Feldpruefung.h"
#include "doctest/Feldregeln.h"
#include "doctest/Records.h"
#include "doctest/Verweispruefung.h"
#include "errors/TestFehler.h"
#include "state/SIA451Datei.h"
#include "state/TestDaten.h"

namespace zepholt {

namespace {

constexpr std::int32_t Mehrwertsteuer = 2; // values of Konditionsart
constexpr std::int32_t Skonto = 3;

// The place of a level or an order, fields of two digits, in a set of a hundred.
std::size_t Platz(std::int32_t zweistellig) {
    return static_cast<std::size_t>(zweistellig);
}

// --- C1

struct Konditionssatz {
    std::int32_t Nummer;
    std::int32_t Stufe;
    std::int32_t Bezugsstufe;
    std::int32_t Konditionsart;
    Feldsicht Berechnungsart;
    Feldsicht Beruecksichtigt;
    bool FristLeer; // C1:10
    Betrag Bezugsbetrag;
    Betrag Prozentwert;
    Betrag Konditionsbetrag;
};

Konditionssatz LiesC1() {
    Konditionssatz satz = {};
    satz.Nummer = ZahlFeld(2, 3, Zwingend);             // C1:2a
    satz.Stufe = ZahlFeld(6, 2, Zwingend);              // C1:2c
    satz.Bezugsstufe = ZahlFeld(16, 2, Freiwillig);     // C1:5
    satz.Konditionsart = ZahlFeld(5, 1, Zwingend);      // C1:2b
    satz.Berechnungsart = TextFeld(44, 1, Zwingend);    // C1:13
    satz.Beruecksichtigt = TextFeld(61, 1, Freiwillig); // C1:17
    ZahlFeld(36, 6, Freiwillig);                        // C1:10, period of payment
    satz.FristLeer = FeldLeer(36, 6);                   // C1:10
    satz.Bezugsbetrag = BetragFeld(45, 46, 15);         // C1:14, C1:15-16
    satz.Prozentwert = BetragFeld(75, 76, 6);           // C1:20a, C1:20b
    satz.Konditionsbetrag = BetragFeld(62, 63, 12);     // C1:18, C1:19
    return satz;
}

void PruefeNummerUndStufen(const Konditionssatz& satz) {
    if (satz.Nummer < 1 || satz.Nummer > 999) {
        FehlerMelden(5202);
    }
    if (sia451Datei.KonditionNachNummer.contains(satz.Nummer)) {
        FehlerMelden(5203);
    }
    if (satz.Stufe < 1 || satz.Stufe > 99) {
        FehlerMelden(5211);
    }
    if (sia451Datei.KonditionStufen[Platz(satz.Stufe)]) {
        FehlerMelden(5212);
    }
    if (satz.Bezugsstufe < 0 || satz.Bezugsstufe >= satz.Stufe) {
        FehlerMelden(5213);
    }
}

void PruefeArt(const Konditionssatz& satz) {
    if (satz.Konditionsart < 1 || satz.Konditionsart > 5) {
        FehlerMelden(5221);
    }
    if (satz.Berechnungsart.empty()) {
        FehlerMelden(5222);
    }
    if (!satz.Beruecksichtigt.empty() && satz.Beruecksichtigt != u"-" && satz.Beruecksichtigt != u"+") {
        FehlerMelden(5223);
    }
    if (satz.Konditionsart == Skonto && satz.FristLeer) {
        FehlerMelden(5224);
    } else if (satz.Konditionsart != Skonto && !satz.FristLeer) {
        FehlerMelden(5225);
    }
}

// The level that a tax condition must refer to: the last one before the first tax condition. A first tax condition at
// the head of the table has none before it; then, as without any, it is the last level so far.
std::int32_t LetzteStufeVorSteuer() {
    const std::vector<KonditionEintrag>& tabelle = sia451Datei.KonditionTabelle;
    if (tabelle.empty()) {
        return 0;
    }
    const std::int32_t erste = sia451Datei.ErsteSteuerkondition;
    return erste > 0 ? tabelle[static_cast<std::size_t>(erste - 1)].Stufe : tabelle.back().Stufe;
}

void PruefeMehrwertsteuer(const Konditionssatz& satz) {
    if (satz.Berechnungsart != u"%") {
        FehlerMelden(5261);
    }
    if (satz.Beruecksichtigt != u"+") {
        FehlerMelden(5262);
    }
    if (satz.Bezugsstufe != LetzteStufeVorSteuer()) {
        FehlerMelden(5263);
    }
    // Several tax conditions must follow one another directly.
    if (sia451Datei.ErsteSteuerkondition >= 0 && sia451Datei.KonditionTabelle.back().Konditionsart != Mehrwertsteuer) {
        FehlerMelden(5264);
    }
}

void KonditionAnfuegen(const Konditionssatz& satz) {
    const auto index = static_cast<std::int32_t>(sia451Datei.KonditionTabelle.size());
    sia451Datei.KonditionNachNummer.emplace(satz.Nummer, index); // a number that stands keeps its first entry
    sia451Datei.KonditionStufen.set(Platz(satz.Stufe));
    if (satz.Konditionsart == Mehrwertsteuer && sia451Datei.ErsteSteuerkondition < 0) {
        sia451Datei.ErsteSteuerkondition = index;
    }
    sia451Datei.KonditionTabelle.push_back({.Stufe = satz.Stufe, .Konditionsart = satz.Konditionsart});
}

// --- C5

struct Einschraenkungssatz {
    Verweissatz Verweise; // but for use and room
    Feldsicht Kapitelangabe;
    std::int32_t Reihenfolge; // 0 in the new interface
};

Einschraenkungssatz LiesC5() {
    Einschraenkungssatz satz = {};
    Verweissatz& verweise = satz.Verweise;
    verweise.OGL = SchluesselFeld(18, 6, JokerAmEnde, Freiwillig);              // C5:6
    verweise.PSL = SchluesselFeld(24, 6, JokerAmEnde, Freiwillig);              // C5:7
    verweise.KAG = SchluesselFeld(82, 5, JokerAmEnde, Freiwillig);              // C5:21
    verweise.Element = SchluesselFeld(87, 6, JokerAmEnde, Freiwillig);          // C5:22
    verweise.Einrichtungstyp = SchluesselFeld(129, 6, JokerAmEnde, Freiwillig); // C5:24b
    verweise.Variantengruppe = SchluesselFeld(30, 3, JokerAmEnde, Freiwillig);  // C5:8
    verweise.Variante = SchluesselFeld(33, 3, JokerAmEnde, Freiwillig);         // C5:9
    satz.Kapitelangabe = TextFeld(8, 3, Freiwillig);                            // C5:3a
    satz.Reihenfolge = ReihenfolgeFeld(136, 2);                                 // C5:24d
    return satz;
}

// Notes the order of a restriction of the condition; 0 stands for none.
void PruefeReihenfolge(KonditionEintrag& kondition, std::int32_t reihenfolge) {
    const std::size_t platz = Platz(reihenfolge);
    if (reihenfolge != 0 && kondition.Reihenfolgen[platz]) {
        FehlerMelden(5371);
    }
    kondition.Reihenfolgen.set(platz);
}

// The new interface restricts by object structure and cost type only, and without a joker.
void PruefeNurOGLUndKAG(const Einschraenkungssatz& satz) {
    const Verweissatz nurOGLUndKAG = {.OGL = satz.Verweise.OGL, .KAG = satz.Verweise.KAG};
    if (satz.Verweise != nurOGLUndKAG || !satz.Kapitelangabe.empty()) {
        FehlerMelden(5381);
    } else if (HatJoker(satz.Verweise.OGL) || HatJoker(satz.Verweise.KAG)) {
        FehlerMelden(5382);
    }
}

} // namespace

void PruefeC0() {
    const std::int32_t nummer = ZahlFeld(2, 3, Zwingend); // C0:2a
    const Betrag betrag = BetragFeld(45, 46, 13);         // C0:14, C0:15-16: of its 15 columns the first 13

    if (nummer != 0) {
        FehlerMelden(5101);
    }
    PruefeVorzeichen(betrag, {.Unzulaessig = 5102, .BetragFehlt = 5103, .VorzeichenFehlt = 5104});
    sia451Datei.BruttoVorhanden = true;
}

void PruefeC1() {
    const Konditionssatz satz = LiesC1();

    if (!sia451Datei.BruttoVorhanden) {
        FehlerMelden(5201);
    }
    PruefeNummerUndStufen(satz);
    PruefeArt(satz);

    PruefeVorzeichen(satz.Bezugsbetrag, {.Unzulaessig = 5231, .BetragFehlt = 5232, .VorzeichenFehlt = 5233});
    PruefeVorzeichen(satz.Prozentwert, {.Unzulaessig = 5241, .BetragFehlt = 5242, .VorzeichenFehlt = 5243});
    PruefeVorzeichen(satz.Konditionsbetrag, {.Unzulaessig = 5251, .BetragFehlt = 5252, .VorzeichenFehlt = 5253});

    if (NeueSchnittstelle() && satz.Konditionsart == Mehrwertsteuer) {
        PruefeMehrwertsteuer(satz);
    }
    KonditionAnfuegen(satz);
}

void PruefeC5() {
    const std::int32_t nummer = ZahlFeld(2, 3, Zwingend); // C5:2a
    const Einschraenkungssatz satz = LiesC5();

    const auto erste = sia451Datei.KonditionNachNummer.find(nummer);
    if (erste == sia451Datei.KonditionNachNummer.end()) {
        return FehlerMelden(5301);
    }
    KonditionEintrag& kondition = sia451Datei.KonditionTabelle[static_cast<std::size_t>(erste->second)];

    PruefeVerweise(satz.Verweise, {.OGL = 5311,
                                   .PSL = {5312, 5313, 5314},
                                   .KAG = 5321,
                                   .Element = 5331,
                                   .Variantengruppe = 5341,
                                   .Variante = {5342, 5343, 5344}});
    PruefeVerweis(satz.Verweise.Einrichtungstyp, EinrichtungGefunden, 5351);
    PruefeVerweis(satz.Kapitelangabe, KapitelGefunden, 5361);
    PruefeReihenfolge(kondition, satz.Reihenfolge);
    if (NeueSchnittstelle()) {
        PruefeNurOGLUndKAG(satz);
    }
}

} // namespace zepholt
