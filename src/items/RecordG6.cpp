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

namespace zepholt {

namespace {

// What only a detail line has: G6:4, G6:5, G6:23, G6:24e, G6:24h.
constexpr LeereFelder<5> FelderDerDetailzeile({{{14, 2}, {16, 2}, {93, 30}, {138, 30}, {208, 30}}});

struct Mengensatz {
    std::int32_t Kapitel;
    std::int32_t Position;
    bool IstDetail; // a detail measurement line
    Verweissatz Verweise;
    Feldsicht Mengenart;
    Betrag Menge;
    Betrag Preis;
    Feldsicht Laufnummer;
    std::int32_t Vorbemerkung;
    Feldsicht Preisart;
    std::int32_t Reihenfolge; // 0 in the new interface
};

[[gnu::always_inline]] inline Feldsicht Schluessel(std::int32_t spalte, std::int32_t laenge) {
    return SchluesselFeld(spalte, laenge, JokerVerboten, Freiwillig);
}

Mengensatz LiesG6() {
    Mengensatz satz;
    Verweissatz& verweise = satz.Verweise;
    satz.Kapitel = ZahlFeld(2, 3, Zwingend);                                   // G6:2a
    satz.Position = ZahlFeld(8, 6, Zwingend);                                  // G6:3
    satz.IstDetail = !FeldLeer(16, 2) || !FeldLeer(14, 2);                     // G6:5, G6:4
    verweise.OGL = Schluessel(18, 6);                                          // G6:6
    verweise.PSL = Schluessel(24, 6);                                          // G6:7
    verweise.Variantengruppe = Schluessel(30, 3);                              // G6:8
    verweise.Variante = Schluessel(33, 3);                                     // G6:9
    satz.Mengenart = satz.IstDetail ? Feldsicht() : TextFeld(44, 1, Zwingend); // G6:13
    BetragLesen(45, 46, 13, satz.Menge);                                       // G6:14, G6:15
    BetragLesen(62, 63, 12, satz.Preis);                                       // G6:18, G6:19
    satz.Laufnummer = TextFeld(75, 7, Freiwillig);                             // G6:20
    verweise.KAG = Schluessel(82, 5);                                          // G6:21
    verweise.Element = Schluessel(87, 6);                                      // G6:22
    satz.Vorbemerkung = ZahlFeld(123, 6, Freiwillig);                          // G6:24a
    verweise.Einrichtungstyp = Schluessel(129, 6);                             // G6:24b
    satz.Preisart = TextFeld(61, 1, Freiwillig);                               // G6:17
    verweise.Nutzung = SchluesselFeld(168, 16, JokerAmEnde, Freiwillig);       // G6:24f
    verweise.Raum = SchluesselFeld(188, 16, JokerAmEnde, Freiwillig);          // G6:24g
    satz.Reihenfolge = ReihenfolgeFeld(136, 2);                                // G6:24d, 3208
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

void PruefePrimaervariante(const Mengensatz& satz) {
    const Verweissatz& verweise = satz.Verweise;
    if (verweise.Variante.empty() || !ArtIn(u"JKLMQRSU", satz.Mengenart)) {
        return;
    }
    const bool primaer = IstPrimaervariante(verweise.Variantengruppe, verweise.Variante);
    if (!ArtIn(primaer ? u"JKLM" : u"QRSU", satz.Mengenart)) {
        FehlerMelden(4612);
    }
}

// The price of a quantity that has one of its own.
void PruefePreis(const Mengensatz& satz) {
    PruefePreisvorzeichen(satz.Preis, 4622, 4623);
    PruefePreisart(satz.Preisart); // 4521
}

// A quantity of a position that has the price already.
void PruefeOhnePreis(const Mengensatz& satz) {
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
void PruefeEinfacheMenge(const Mengensatz& satz, const PositionEintrag& position) {
    if (satz.Mengenart == u"W" && !satz.Menge.IstNull()) {
        FehlerMelden(4616);
    }
    if (!position.HatPreisart && !position.HatPreisVorzeichen) {
        PruefePreis(satz);
    } else {
        PruefeOhnePreis(satz);
    }
}

void PruefeG6Verweise(const Verweissatz& verweise) {
    PruefeVerweise(verweise, {.OGL = 4631,
                              .PSL = {4632, 0, 4633},
                              .KAG = 4641,
                              .Element = 4651,
                              .Variantengruppe = 4661,
                              .Variante = {4662, 0, 4663}});
    PruefeVerweis(verweise.Einrichtungstyp, EinrichtungGefunden, 4671);
    PruefeVerweis(verweise.Nutzung, NutzungGefunden, 4674);
    PruefeVerweis(verweise.Raum, RaumGefunden, 4677);
}

// The running number, unique in the whole document. In the new interface a value of 0 counts as taken and leaves the
// quantity without a number.
void PruefeLaufnummer(Feldsicht& laufnummer) {
    if (laufnummer.empty()) {
        return;
    }
    if (NeueSchnittstelle() && GanzzahlAmAnfang(Text(laufnummer)) == 0) {
        laufnummer = {};
        return FehlerMelden(4682);
    }
    if (!PruefzifferGueltig(laufnummer)) {
        return FehlerMelden(4681);
    }
    if (LaufnummerVergeben(laufnummer)) {
        FehlerMelden(4682);
    }
}

void PruefeKostenkonto(const Verweissatz& verweise) {
    if (testDaten.Revision != 0 || sia451Datei.KostenkontoTabelle.empty()) {
        return;
    }
    if (!KostenkontoGefunden(verweise)) {
        FehlerMelden(4691);
    }
}

} // namespace

void PruefeG6() {
    Mengensatz satz = LiesG6();

    const std::optional<Positionsort> ort = SucheOrt(satz.Kapitel, satz.Position, 4601, 4602);
    if (!ort) {
        return;
    }
    PositionEintrag& position = *ort->Eintrag;
    if (!position.HatG5) {
        return FehlerMelden(4602); // a position without unit and price counts as missing
    }

    PruefeMengenart(satz.Mengenart);
    PruefePrimaervariante(satz);
    PruefeVorzeichen(satz.Menge, {4613, 4614, 4615});
    if (!satz.IstDetail) {
        PruefeEinfacheMenge(satz, position);
    }
    PruefeG6Verweise(satz.Verweise);
    PruefeLaufnummer(satz.Laufnummer);
    if (ReihenfolgeVergeben(position, satz.Reihenfolge)) {
        FehlerMelden(4683);
    }
    PruefeKostenkonto(satz.Verweise);
    if (satz.IstDetail) {
        return HatMengeMit(ort->Kapitel, ort->Position, satz.Verweise) ? PruefeDetailausmass() : FehlerMelden(4692);
    }

    PruefeLeereFelder(FelderDerDetailzeile); // 2032
    LaufnummerMerken(satz.Laufnummer);
    ReihenfolgeMerken(position, satz.Reihenfolge);
    sia451Datei.Mengen.Anfuegen(position.Mengen, {.Zeile = testDaten.ZeilenNr, .Vorbemerkung = satz.Vorbemerkung});
}

} // namespace zepholt
