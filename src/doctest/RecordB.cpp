// Structure records B0 to B8. B0 announces a structure by its number, the others fill it. A record of no
// announced structure, below no known code or with a code that is taken is left out; what else is found of it doesn't
// matter to that.
#include "doctest/Feldpruefung.h"
#include "doctest/Feldregeln.h"
#include "doctest/Records.h"
#include "errors/TestFehler.h"
#include "state/SIA451Datei.h"
#include "state/SIA451Felder.h"
#include "state/TestDaten.h"
#include "support/HilfsFunktionen.h"

#include <algorithm>
#include <array>
#include <type_traits>
#include <utility>

namespace zepholt {

namespace {

// --- B0

// Where it is kept that a structure was announced.
struct Gliederungsplatz {
    std::int32_t Nummer;
    bool HatStandard; // only cost types and elements follow a standard
    bool SIA451Datei::*Vorhanden;
};
constexpr std::array<Gliederungsplatz, 7> Gliederungen = {{
    {1, true, &SIA451Datei::KAGVorhanden},
    {2, false, &SIA451Datei::OGLVorhanden},
    {3, true, &SIA451Datei::EKGVorhanden},
    {4, false, &SIA451Datei::EinrichtungVorhanden},
    {5, false, &SIA451Datei::VariantenVorhanden},
    {7, false, &SIA451Datei::NutzungVorhanden},
    {8, false, &SIA451Datei::RaumVorhanden},
}};

// --- What B1 to B8 share

// The structure that a record belongs to, and the codes for a record that doesn't fit it.
struct Zugehoerigkeit {
    std::int32_t Nummer;
    std::int32_t AndereNummer;
    bool Vorhanden; // a B0 has announced it
    std::int32_t NichtVorhanden;
};

bool GehoertDazu(std::int32_t nummer, const Zugehoerigkeit& struktur) {
    if (nummer != struktur.Nummer) {
        FehlerMelden(struktur.AndereNummer);
        return false;
    }
    if (!struktur.Vorhanden) {
        FehlerMelden(struktur.NichtVorhanden);
        return false;
    }
    return true;
}

// Asks the processor for what a record some lines on will look for, its code at `spalte` (from 1) and its order, in a
// list whose codes come in any order: without that, each search in a large one would wait for memory.
template <class Eintrag>
void Vorausschauen(const CodeListe<Eintrag>& liste, std::int32_t spalte, std::int32_t laenge) {
    constexpr std::int32_t Voraus = 8; // records
    if (!liste.IstVerstreut() || testDaten.ZeilenNr + Voraus >= testDaten.ZeilenAnzahl) {
        return;
    }
    const Feldsicht record = ZeileAn(testDaten.ZeilenNr + Voraus);
    const Feldsicht reihenfolge = Feld(record, 75, 7);
    liste.Vorausholen(OhneLeerzeichenRechts(Feld(record, spalte, laenge)),
                      NurZiffern(reihenfolge) ? static_cast<std::int32_t>(Ziffernwert(reihenfolge)) : 0);
}

// False, with `codeDoppelt`, when an entry has the same code. Before that `reihenfolgeDoppelt` comes once for each
// entry in front of it that has the same order, or for each of all entries when none has the same code.
template <class Eintrag>
bool Eindeutig(const CodeListe<Eintrag>& liste, const std::type_identity_t<Eintrag>& eintrag, std::int32_t codeDoppelt,
               [[maybe_unused]] std::int32_t reihenfolgeDoppelt = 0) {
    const std::int32_t gleicher = liste.Finde(eintrag.Code);
    if constexpr (requires { eintrag.Reihenfolge; }) {
        const std::int32_t bis = gleicher >= 0 ? gleicher : liste.Anzahl();
        for (std::int32_t n = liste.AnzahlMitReihenfolge(eintrag.Reihenfolge, bis); n > 0; --n) {
            FehlerMelden(reihenfolgeDoppelt);
        }
    }
    if (gleicher >= 0) {
        FehlerMelden(codeDoppelt);
    }
    return gleicher < 0;
}

template <class Eintrag>
void AnfuegenWennEindeutig(CodeListe<Eintrag>& liste, std::type_identity_t<Eintrag> eintrag, std::int32_t codeDoppelt,
                           std::int32_t reihenfolgeDoppelt = 0) {
    if (Eindeutig(liste, eintrag, codeDoppelt, reihenfolgeDoppelt)) {
        liste.Anfuegen(std::move(eintrag));
    }
}

// Only the new interface wants extended codes to be unique. Notes the code of an entry that is about to be appended.
bool ECodeEindeutig(std::set<Feldsicht>& vergebene, Feldsicht ecode, std::int32_t doppelt) {
    if (!NeueSchnittstelle() || ecode.empty() || vergebene.insert(ecode).second) {
        return true;
    }
    FehlerMelden(doppelt);
    return false;
}

// --- The end of the block

// The first B5 line, as index into Zeilen, that names each primary variant.
std::map<Feldsicht, std::size_t> ZeilenDerPrimaervarianten() {
    std::map<Feldsicht, std::size_t> zeilen;
    for (std::size_t i = 0; i < testDaten.Zeilen.size(); ++i) {
        const Feldsicht zeile = testDaten.Zeilen[i];
        if (Feld(zeile, 1, 1) == u"B" && Feld(zeile, 42, 1) == u"5") {
            zeilen.emplace(OhneLeerzeichenRechts(Feld(zeile, 135, 3)), i);
        }
    }
    return zeilen;
}

void PruefePrimaervarianten() {
    std::map<Feldsicht, std::size_t> zeilen; // built at the first missing variant: most files have none
    for (const VariantengruppeEintrag& gruppe : sia451Datei.VariantenTabelle.Eintraege()) {
        if (gruppe.Varianten.Finde(gruppe.Primaervariante) >= 0) {
            continue;
        }
        if (zeilen.empty()) {
            zeilen = ZeilenDerPrimaervarianten();
        }
        const auto zeile = zeilen.find(gruppe.Primaervariante);
        testDaten.ZeilenNr = zeile == zeilen.end() ? -1 : static_cast<std::int32_t>(zeile->second);
        FehlerMelden(3291);
    }
}

bool ReihenfolgeDoppelt(std::vector<std::int32_t> reihenfolgen) {
    std::ranges::sort(reihenfolgen);
    const auto gleichesPaar = [](std::int32_t a, std::int32_t b) { return a != 0 && a == b; };
    return std::ranges::adjacent_find(reihenfolgen, gleichesPaar) != reihenfolgen.end();
}

} // namespace

void PruefeB0() {
    const std::int32_t nummer = ZahlFeld(2, 3, Zwingend); // B0:2a
    ZahlFeld(6, 2, Freiwillig);                           // B0:2c
    const bool hatJahr = !FeldLeer(6, 2);
    const bool hatName = !FeldLeer(36, 6);                        // B0:10
    const std::int32_t reihenfolge = ZahlFeld(75, 7, Freiwillig); // B0:20

    const auto* const platz = std::ranges::find(Gliederungen, nummer, &Gliederungsplatz::Nummer);
    if (platz == Gliederungen.end()) {
        return FehlerMelden(3201);
    }

    if (!platz->HatStandard && (hatName || hatJahr)) {
        FehlerMelden(3202);
    }
    if (platz->HatStandard && NeueSchnittstelle() && hatName != hatJahr) {
        FehlerMelden(3203);
    }

    sia451Datei.*platz->Vorhanden = true;
    sia451Datei.GliederungReihenfolgen.push_back(reihenfolge); // kept in the new interface too: 3205
}

void PruefeB1() {
    Vorausschauen(sia451Datei.KAGTabelle, 82, 5);
    const std::int32_t nummer = ZahlFeld(2, 3, Zwingend);  // B1:2a
    const Feldsicht code = TextFeld(82, 5, Zwingend);      // B1:21
    TextFeld(93, 30, Erwartet);                            // B1:23
    const Feldsicht ecode = TextFeld(208, 16, Freiwillig); // B1:24h

    if (GehoertDazu(nummer, {1, 3221, sia451Datei.KAGVorhanden, 3222}) &&
        Eindeutig(sia451Datei.KAGTabelle, {code}, 3223) && ECodeEindeutig(sia451Datei.KAGECodes, ecode, 3226)) {
        sia451Datei.KAGTabelle.Anfuegen({code});
    }
}

void PruefeB2() {
    Vorausschauen(sia451Datei.OGLTabelle, 18, 6);
    const std::int32_t nummer = ZahlFeld(2, 3, Zwingend);    // B2:2a
    const Feldsicht ogl = TextFeld(18, 6, Zwingend);         // B2:6
    const Feldsicht psl = TextFeld(24, 6, Freiwillig);       // B2:7
    TextFeld(93, 30, Erwartet);                              // B2:23
    const std::int32_t reihenfolge = ReihenfolgeFeld(75, 7); // B2:20

    if (!GehoertDazu(nummer, {2, 3211, sia451Datei.OGLVorhanden, 3212})) {
        return;
    }

    if (psl.empty()) {
        AnfuegenWennEindeutig(sia451Datei.OGLTabelle, {ogl, reihenfolge, {}}, 3213, 3219);
        return;
    }

    const std::int32_t index = sia451Datei.OGLTabelle.Finde(ogl);
    if (index < 0) {
        return FehlerMelden(3214);
    }
    AnfuegenWennEindeutig(sia451Datei.OGLTabelle[index].PSLListe, {psl, reihenfolge}, 3215, 3219);
}

void PruefeB3() {
    Vorausschauen(sia451Datei.EKGTabelle, 87, 6);
    const std::int32_t nummer = ZahlFeld(2, 3, Zwingend);  // B3:2a
    const Feldsicht code = TextFeld(87, 6, Zwingend);      // B3:22
    TextFeld(93, 30, Erwartet);                            // B3:23
    const Feldsicht ecode = TextFeld(208, 16, Freiwillig); // B3:24h

    if (GehoertDazu(nummer, {3, 3231, sia451Datei.EKGVorhanden, 3232}) &&
        Eindeutig(sia451Datei.EKGTabelle, {code}, 3233) && ECodeEindeutig(sia451Datei.EKGECodes, ecode, 3236)) {
        sia451Datei.EKGTabelle.Anfuegen({code});
    }
}

void PruefeB4() {
    Vorausschauen(sia451Datei.EinrichtungTabelle, 129, 6);
    const std::int32_t nummer = ZahlFeld(2, 3, Zwingend);    // B4:2a
    const Feldsicht code = TextFeld(129, 6, Zwingend);       // B4:24b
    TextFeld(93, 30, Erwartet);                              // B4:23
    const std::int32_t reihenfolge = ReihenfolgeFeld(75, 7); // B4:20

    if (GehoertDazu(nummer, {4, 3261, sia451Datei.EinrichtungVorhanden, 3262})) {
        AnfuegenWennEindeutig(sia451Datei.EinrichtungTabelle, {code, reihenfolge}, 3263, 3269);
    }
}

void PruefeB5() {
    const std::int32_t nummer = ZahlFeld(2, 3, Zwingend);         // B5:2a
    const Feldsicht code = TextFeld(30, 3, Zwingend);             // B5:8
    TextFeld(93, 30, Erwartet);                                   // B5:23
    const Feldsicht primaervariante = TextFeld(135, 3, Zwingend); // B5:24c-d
    const std::int32_t reihenfolge = ReihenfolgeFeld(75, 7);      // B5:20

    if (GehoertDazu(nummer, {5, 3241, sia451Datei.VariantenVorhanden, 3242})) {
        AnfuegenWennEindeutig(sia451Datei.VariantenTabelle, {code, primaervariante, reihenfolge, {}}, 3243, 3249);
    }
}

void PruefeB6() {
    const std::int32_t nummer = ZahlFeld(2, 3, Zwingend);    // B6:2a
    const Feldsicht gruppe = TextFeld(30, 3, Zwingend);      // B6:8
    const Feldsicht code = TextFeld(33, 3, Zwingend);        // B6:9
    TextFeld(93, 30, Erwartet);                              // B6:23
    const std::int32_t reihenfolge = ReihenfolgeFeld(75, 7); // B6:20

    // Variants carry the number of the structure of their groups; there is no structure 6.
    if (nummer != 5) {
        return FehlerMelden(3251);
    }

    // The group shows that the structure exists.
    const std::int32_t index = sia451Datei.VariantenTabelle.Finde(gruppe);
    if (index < 0) {
        return FehlerMelden(3252);
    }
    AnfuegenWennEindeutig(sia451Datei.VariantenTabelle[index].Varianten, {code, reihenfolge}, 3253, 3259);
}

void PruefeB7() {
    Vorausschauen(sia451Datei.NutzungTabelle, 168, 16);
    const std::int32_t nummer = ZahlFeld(2, 3, Zwingend); // B7:2a
    const Feldsicht code = TextFeld(168, 16, Zwingend);   // B7:24f
    TextFeld(93, 30, Erwartet);                           // B7:23

    if (GehoertDazu(nummer, {7, 3292, sia451Datei.NutzungVorhanden, 3293})) {
        AnfuegenWennEindeutig(sia451Datei.NutzungTabelle, {code}, 3294);
    }
}

void PruefeB8() {
    Vorausschauen(sia451Datei.RaumTabelle, 188, 16);
    const std::int32_t nummer = ZahlFeld(2, 3, Zwingend); // B8:2a
    const Feldsicht code = TextFeld(188, 16, Zwingend);   // B8:24g
    TextFeld(93, 30, Erwartet);                           // B8:23

    if (GehoertDazu(nummer, {8, 3296, sia451Datei.RaumVorhanden, 3297})) {
        AnfuegenWennEindeutig(sia451Datei.RaumTabelle, {code}, 3298);
    }
}

void PruefeBEnde() {
    PruefePrimaervarianten();

    if (NeueSchnittstelle() && ReihenfolgeDoppelt(sia451Datei.GliederungReihenfolgen)) {
        testDaten.ZeilenNr = -1;
        FehlerMelden(3205);
    }
}

} // namespace zepholt
