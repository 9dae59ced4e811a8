// Records C0, C1 and C5: gross amount, conditions, and what restricts a condition to a part of the structures. Amounts
// are kept, nothing is calculated.
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

struct Konditionsbetraege {
    Betrag Bezugsbetrag;
    Betrag Prozentwert;
    Betrag Konditionsbetrag;
    bool FristLeer = true; // C1:10
};

KonditionEintrag LiesC1(Konditionsbetraege& betraege) {
    KonditionEintrag kondition;
    kondition.Nummer = ZahlFeld(2, 3, Zwingend);             // C1:2a
    kondition.Stufe = ZahlFeld(6, 2, Zwingend);              // C1:2c
    kondition.Bezugsstufe = ZahlFeld(16, 2, Freiwillig);     // C1:5
    kondition.Konditionsart = ZahlFeld(5, 1, Zwingend);      // C1:2b
    kondition.Berechnungsart = TextFeld(44, 1, Zwingend);    // C1:13
    kondition.Beruecksichtigt = TextFeld(61, 1, Freiwillig); // C1:17
    kondition.Zahlungsfrist = ZahlFeld(36, 6, Freiwillig);   // C1:10
    betraege.FristLeer = FeldLeer(36, 6);                    // C1:10
    betraege.Bezugsbetrag = BetragFeld(45, 46, 15, 5);       // C1:14, C1:15-16
    betraege.Prozentwert = BetragFeld(75, 76, 6, 2);         // C1:20a, C1:20b
    betraege.Konditionsbetrag = BetragFeld(62, 63, 12, 2);   // C1:18, C1:19
    kondition.Bezeichnung = TextFeld(93, 30, Freiwillig);    // C1:23
    kondition.Text = TextFeld(138, 30, Freiwillig);          // C1:24e
    return kondition;
}

void PruefeNummerUndStufen(const KonditionEintrag& kondition) {
    if (kondition.Nummer < 1 || kondition.Nummer > 999) {
        FehlerMelden(5202);
    }
    if (sia451Datei.KonditionNachNummer.contains(kondition.Nummer)) {
        FehlerMelden(5203);
    }
    if (kondition.Stufe < 1 || kondition.Stufe > 99) {
        FehlerMelden(5211);
    }
    if (sia451Datei.KonditionStufen[Platz(kondition.Stufe)]) {
        FehlerMelden(5212);
    }
    if (kondition.Bezugsstufe < 0 || kondition.Bezugsstufe >= kondition.Stufe) {
        FehlerMelden(5213);
    }
}

void PruefeArt(const KonditionEintrag& kondition, bool fristLeer) {
    if (kondition.Konditionsart < 1 || kondition.Konditionsart > 5) {
        FehlerMelden(5221);
    }
    if (kondition.Berechnungsart.empty()) {
        FehlerMelden(5222);
    }
    if (!kondition.Beruecksichtigt.empty() && kondition.Beruecksichtigt != u"-" && kondition.Beruecksichtigt != u"+") {
        FehlerMelden(5223);
    }
    if (kondition.Konditionsart == Skonto && fristLeer) {
        FehlerMelden(5224);
    } else if (kondition.Konditionsart != Skonto && !fristLeer) {
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

void PruefeMehrwertsteuer(const KonditionEintrag& kondition) {
    if (kondition.Berechnungsart != u"%") {
        FehlerMelden(5261);
    }
    if (kondition.Beruecksichtigt != u"+") {
        FehlerMelden(5262);
    }
    if (kondition.Bezugsstufe != LetzteStufeVorSteuer()) {
        FehlerMelden(5263);
    }
    // Several tax conditions must follow one another directly.
    if (sia451Datei.ErsteSteuerkondition >= 0 && sia451Datei.KonditionTabelle.back().Konditionsart != Mehrwertsteuer) {
        FehlerMelden(5264);
    }
}

void KonditionAnfuegen(const KonditionEintrag& kondition) {
    const auto index = static_cast<std::int32_t>(sia451Datei.KonditionTabelle.size());
    sia451Datei.KonditionNachNummer.emplace(kondition.Nummer, index); // a number that stands keeps its first entry
    sia451Datei.KonditionStufen.set(Platz(kondition.Stufe));
    if (kondition.Konditionsart == Mehrwertsteuer && sia451Datei.ErsteSteuerkondition < 0) {
        sia451Datei.ErsteSteuerkondition = index;
    }
    sia451Datei.KonditionTabelle.push_back(kondition);
}

// --- C5

EinschraenkungEintrag LiesC5() {
    return {.OGL = SchluesselFeld(18, 6, JokerAmEnde, Freiwillig),              // C5:6
            .PSL = SchluesselFeld(24, 6, JokerAmEnde, Freiwillig),              // C5:7
            .KAG = SchluesselFeld(82, 5, JokerAmEnde, Freiwillig),              // C5:21
            .Element = SchluesselFeld(87, 6, JokerAmEnde, Freiwillig),          // C5:22
            .Einrichtungstyp = SchluesselFeld(129, 6, JokerAmEnde, Freiwillig), // C5:24b
            .Variantengruppe = SchluesselFeld(30, 3, JokerAmEnde, Freiwillig),  // C5:8
            .Variante = SchluesselFeld(33, 3, JokerAmEnde, Freiwillig),         // C5:9
            .Kapitelangabe = TextFeld(8, 3, Freiwillig),                        // C5:3a
            .Reihenfolge = ReihenfolgeFeld(136, 2)};                            // C5:24d
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
void PruefeNurOGLUndKAG(const EinschraenkungEintrag& einschraenkung) {
    const bool nurOGLUndKAG = einschraenkung.PSL.empty() && einschraenkung.Element.empty() &&
                              einschraenkung.Einrichtungstyp.empty() && einschraenkung.Variantengruppe.empty() &&
                              einschraenkung.Variante.empty() && einschraenkung.Kapitelangabe.empty();
    if (!nurOGLUndKAG) {
        FehlerMelden(5381);
    } else if (HatJoker(einschraenkung.OGL) || HatJoker(einschraenkung.KAG)) {
        FehlerMelden(5382);
    }
}

} // namespace

void PruefeC0() {
    const std::int32_t nummer = ZahlFeld(2, 3, Zwingend); // C0:2a
    const Betrag betrag = BetragFeld(45, 46, 13, 3);      // C0:14, C0:15-16: of its 15 columns the first 13

    if (nummer != 0) {
        FehlerMelden(5101);
    }
    sia451Datei.Bruttobetrag =
        MitVorzeichen(betrag, {.Unzulaessig = 5102, .BetragFehlt = 5103, .VorzeichenFehlt = 5104});
    sia451Datei.BruttoVorhanden = true;
    sia451Datei.BruttoRest = 0;
}

void PruefeC1() {
    Konditionsbetraege betraege;
    KonditionEintrag kondition = LiesC1(betraege);

    if (!sia451Datei.BruttoVorhanden) {
        FehlerMelden(5201);
    }
    PruefeNummerUndStufen(kondition);
    PruefeArt(kondition, betraege.FristLeer);

    kondition.Bezugsbetrag =
        MitVorzeichen(betraege.Bezugsbetrag, {.Unzulaessig = 5231, .BetragFehlt = 5232, .VorzeichenFehlt = 5233});
    kondition.Prozentwert =
        MitVorzeichen(betraege.Prozentwert, {.Unzulaessig = 5241, .BetragFehlt = 5242, .VorzeichenFehlt = 5243});
    kondition.Konditionsbetrag =
        MitVorzeichen(betraege.Konditionsbetrag, {.Unzulaessig = 5251, .BetragFehlt = 5252, .VorzeichenFehlt = 5253});

    if (NeueSchnittstelle() && kondition.Konditionsart == Mehrwertsteuer) {
        PruefeMehrwertsteuer(kondition);
    }
    KonditionAnfuegen(kondition);
}

void PruefeC5() {
    const std::int32_t nummer = ZahlFeld(2, 3, Zwingend); // C5:2a
    const EinschraenkungEintrag einschraenkung = LiesC5();

    const auto erste = sia451Datei.KonditionNachNummer.find(nummer);
    if (erste == sia451Datei.KonditionNachNummer.end()) {
        return FehlerMelden(5301);
    }
    KonditionEintrag& kondition = sia451Datei.KonditionTabelle[static_cast<std::size_t>(erste->second)];

    PruefeVerweise(einschraenkung, {.OGL = 5311,
                                    .PSL = {5312, 5313, 5314},
                                    .KAG = 5321,
                                    .Element = 5331,
                                    .Variantengruppe = 5341,
                                    .Variante = {5342, 5343, 5344}});
    PruefeVerweis(einschraenkung.Einrichtungstyp, EinrichtungGefunden, 5351);
    PruefeVerweis(einschraenkung.Kapitelangabe, KapitelGefunden, 5361);
    PruefeReihenfolge(kondition, einschraenkung.Reihenfolge);
    if (NeueSchnittstelle()) {
        PruefeNurOGLUndKAG(einschraenkung);
    }
    kondition.Einschraenkungen.push_back(einschraenkung);
}

} // namespace zepholt
