// A quantity or partial quantity, and the first half of a detail measurement line, which belongs to the quantity of its
// position with the same nine references.

#include "items/RecordG.h"

#include "doctest/Feldpruefung.h"
#include "doctest/Feldregeln.h"
#include "doctest/Verweispruefung.h"
#include "errors/TestFehler.h"
#include "items/Positionsregeln.h"
#include "items/TestFunktionen.h"
#include "state/TestDaten.h"
#include "state/Verweise.h"
#include "support/HilfsFunktionen.h"

#include <utility>

namespace zepholt {

namespace {

struct Mengensatz {
    std::int32_t Kapitel;
    std::int32_t Position;
    bool IstDetail; // a detail measurement line
    Betrag Menge;
    Betrag Preis;
    Feldsicht Preisart;
    MengeEintrag Eintrag; // but for Menge and Preis, which the tests give their signs
};

Feldsicht Schluessel(std::int32_t spalte, std::int32_t laenge) {
    return SchluesselFeld(spalte, laenge, JokerVerboten, Freiwillig);
}

Mengensatz LiesG6() {
    Mengensatz satz = {};
    MengeEintrag& eintrag = satz.Eintrag;
    satz.Kapitel = ZahlFeld(2, 3, Zwingend);                                      // G6:2a
    satz.Position = ZahlFeld(8, 6, Zwingend);                                     // G6:3
    satz.IstDetail = !FeldLeer(16, 2) || !FeldLeer(14, 2);                        // G6:5, G6:4
    eintrag.OGL = Schluessel(18, 6);                                              // G6:6
    eintrag.PSL = Schluessel(24, 6);                                              // G6:7
    eintrag.Variantengruppe = Schluessel(30, 3);                                  // G6:8
    eintrag.Variante = Schluessel(33, 3);                                         // G6:9
    eintrag.Zusatzfeld = TextFeld(36, 6, Freiwillig);                             // G6:10
    eintrag.Mengenart = satz.IstDetail ? Feldsicht() : TextFeld(44, 1, Zwingend); // G6:13
    satz.Menge = BetragFeld(45, 46, 13, 3);                                       // G6:14, G6:15
    satz.Preis = BetragFeld(62, 63, 12, 2);                                       // G6:18, G6:19
    eintrag.Laufnummer = TextFeld(75, 7, Freiwillig);                             // G6:20
    eintrag.KAG = Schluessel(82, 5);                                              // G6:21
    eintrag.Element = Schluessel(87, 6);                                          // G6:22
    eintrag.Vorbemerkung = ZahlFeld(123, 6, Freiwillig);                          // G6:24a
    eintrag.Einrichtungstyp = Schluessel(129, 6);                                 // G6:24b
    satz.Preisart = TextFeld(61, 1, Freiwillig);                                  // G6:17
    eintrag.Nutzung = SchluesselFeld(168, 16, JokerAmEnde, Freiwillig);           // G6:24f
    eintrag.Raum = SchluesselFeld(188, 16, JokerAmEnde, Freiwillig);              // G6:24g
    eintrag.Reihenfolge = ReihenfolgeFeld(136, 2);                                // G6:24d, 3208
    return satz;
}

// True when the kind, of one column, stands in the set. An empty kind counts as being in any set.
bool ArtIn(TextSicht arten, Feldsicht art) {
    return art.empty() || arten.find(art.front()) != TextSicht::npos;
}

void PruefeMengenart(Feldsicht art) {
    const bool neu = NeueSchnittstelle();
    if (!ArtIn(neu ? u"ABCDJKLMQRSUW" : u"ABCJKLQRSW", art)) {
        FehlerMelden(4611);
    }
    if (neu && !art.empty() && ArtIn(u"CLS", art)) {
        FehlerMelden(4617);
    }
}

bool IstPrimaervariante(Feldsicht gruppe, Feldsicht variante) {
    const std::int32_t index = sia451Datei.VariantenTabelle.Finde(gruppe); // a group stands in the table only once
    return index != -1 && sia451Datei.VariantenTabelle[index].Primaervariante == variante;
}

void PruefePrimaervariante(const MengeEintrag& menge) {
    if (menge.Variante.empty() || !ArtIn(u"JKLMQRSU", menge.Mengenart)) {
        return;
    }
    const bool primaer = IstPrimaervariante(menge.Variantengruppe, menge.Variante);
    if (!ArtIn(primaer ? u"JKLM" : u"QRSU", menge.Mengenart)) {
        FehlerMelden(4612);
    }
}

// The price of a quantity that has one of its own.
void PruefePreis(Mengensatz& satz) {
    satz.Eintrag.Preis = PreisMitVorzeichen(satz.Preis, 4622, 4623);
    PruefePreisart(satz.Preisart); // 4521
}

// A quantity of a position that has the price already. The price stays positive, whatever its sign.
void PruefeOhnePreis(Mengensatz& satz) {
    satz.Eintrag.Preis = satz.Preis.Wert;
    const bool mitPreis = !satz.Preis.Vorzeichen.empty() || !satz.Preis.Leer;
    if (NeueSchnittstelle()) {
        if (mitPreis || !satz.Preisart.empty()) {
            FehlerMelden(4624);
        }
    } else if (mitPreis) {
        FehlerMelden(4621);
    }
}

// What only a plain quantity can have.
void PruefeEinfacheMenge(Mengensatz& satz, const PositionEintrag& position) {
    const MengeEintrag& menge = satz.Eintrag;
    if (menge.Mengenart == u"W" && menge.Menge != 0) {
        FehlerMelden(4616);
    }
    if (position.Preisart.empty() && !position.HatPreisVorzeichen) {
        PruefePreis(satz);
    } else {
        PruefeOhnePreis(satz);
    }
}

void PruefeG6Verweise(const MengeEintrag& menge) {
    PruefeVerweise(menge, {.OGL = 4631,
                           .PSL = {4632, 0, 4633},
                           .KAG = 4641,
                           .Element = 4651,
                           .Variantengruppe = 4661,
                           .Variante = {4662, 0, 4663}});
    PruefeVerweis(menge.Einrichtungstyp, EinrichtungGefunden, 4671);
    PruefeVerweis(menge.Nutzung, NutzungGefunden, 4674);
    PruefeVerweis(menge.Raum, RaumGefunden, 4677);
}

// The running number, unique in the whole document. In the new interface a value of 0 counts as taken and leaves the
// quantity without a number.
void PruefeLaufnummer(MengeEintrag& menge) {
    if (menge.Laufnummer.empty()) {
        return;
    }
    if (NeueSchnittstelle() && GanzzahlAmAnfang(Text(Feldsicht(menge.Laufnummer))) == 0) {
        menge.Laufnummer = {};
        return FehlerMelden(4682);
    }
    if (!PruefzifferGueltig(menge.Laufnummer)) {
        return FehlerMelden(4681);
    }
    if (LaufnummerVergeben(menge.Laufnummer)) {
        FehlerMelden(4682);
    }
}

void PruefeKostenkonto(const MengeEintrag& menge) {
    if (testDaten.Revision != 0 || sia451Datei.KostenkontoTabelle.empty()) {
        return;
    }
    if (!KostenkontoGefunden(menge.OGL, menge.PSL, menge.KAG, menge.Element, menge.Variantengruppe, menge.Variante)) {
        FehlerMelden(4691);
    }
}

void OrdneDetailZu(const Positionsort& ort, const MengeEintrag& verweise) {
    const std::int32_t index = SucheMenge(ort.Kapitel, ort.Position, verweise);
    if (index == -1) {
        return FehlerMelden(4692);
    }
    PruefeDetailausmass(ort.Kapitel, ort.Position, index);
}

} // namespace

void PruefeG6(bool /*zeilenGruppeG6*/) {
    Mengensatz satz = LiesG6();
    MengeEintrag& menge = satz.Eintrag;

    const std::optional<Positionsort> ort = SucheOrt(satz.Kapitel, satz.Position, 4601, 4602);
    if (!ort) {
        return;
    }
    PositionEintrag& position = ort->Eintrag();
    if (!position.HatG5) {
        return FehlerMelden(4602); // a position without unit and price counts as missing
    }

    PruefeMengenart(menge.Mengenart);
    PruefePrimaervariante(menge);
    menge.Menge = MitVorzeichen(satz.Menge, {4613, 4614, 4615});
    if (!satz.IstDetail) {
        PruefeEinfacheMenge(satz, position);
    }
    PruefeG6Verweise(menge);
    PruefeLaufnummer(menge);
    if (ReihenfolgeVergeben(position, menge.Reihenfolge)) {
        FehlerMelden(4683);
    }
    PruefeKostenkonto(menge);
    if (satz.IstDetail) {
        return OrdneDetailZu(*ort, menge);
    }

    PruefeLeereFelder({{14, 2}, {16, 2}, {93, 30}, {138, 30}, {208, 30}}); // 2032; the first two decide the form
    LaufnummerMerken(menge.Laufnummer);
    ReihenfolgeMerken(position, menge.Reihenfolge);
    position.Mengen.push_back(std::move(menge));
}

} // namespace zepholt
