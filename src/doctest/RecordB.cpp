// Structure records B0 to B8. B0 announces a structure by its number, the others fill it; each check that a record
// fails ends its test, but for the uniqueness of the order.
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

namespace zepholt {

namespace {

// --- B0

struct Gliederungskopf {
    Feldsicht StandardName;        // B0:10
    std::int32_t StandardJahr = 0; // B0:2c
    Feldsicht Text;                // B0:19
};

// Where the head of a structure is kept. Only cost types and elements follow a standard.
struct Gliederungsplatz {
    std::int32_t Nummer;
    bool SIA451Datei::*Vorhanden;
    Feldsicht SIA451Datei::*KopfText;
    Feldsicht SIA451Datei::*StandardName = nullptr;
    std::int32_t SIA451Datei::*StandardJahr = nullptr;

    bool HatStandard() const { return StandardName != nullptr; }
};
constexpr std::array<Gliederungsplatz, 7> Gliederungen = {{
    {1, &SIA451Datei::KAGVorhanden, &SIA451Datei::KAGKopfText, &SIA451Datei::KAGStandardName,
     &SIA451Datei::KAGStandardJahr},
    {2, &SIA451Datei::OGLVorhanden, &SIA451Datei::OGLKopfText},
    {3, &SIA451Datei::EKGVorhanden, &SIA451Datei::EKGKopfText, &SIA451Datei::EKGStandardName,
     &SIA451Datei::EKGStandardJahr},
    {4, &SIA451Datei::EinrichtungVorhanden, &SIA451Datei::EinrichtungKopfText},
    {5, &SIA451Datei::VariantenVorhanden, &SIA451Datei::VariantenKopfText},
    {7, &SIA451Datei::NutzungVorhanden, &SIA451Datei::NutzungKopfText},
    {8, &SIA451Datei::RaumVorhanden, &SIA451Datei::RaumKopfText},
}};

void KopfAblegen(const Gliederungsplatz& platz, const Gliederungskopf& kopf) {
    sia451Datei.*platz.Vorhanden = true;
    sia451Datei.*platz.KopfText = kopf.Text;
    if (platz.HatStandard()) {
        sia451Datei.*platz.StandardName = kopf.StandardName;
        sia451Datei.*platz.StandardJahr = kopf.StandardJahr;
    }
}

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

// False, with `codeDoppelt`, when an entry has the same code. Before that `reihenfolgeDoppelt` comes once for each
// entry in front of it that has the same order, or for each of all entries when none has the same code.
template <class Eintrag>
bool Eindeutig(const CodeListe<Eintrag>& liste, const Eintrag& eintrag, std::int32_t codeDoppelt,
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
    Gliederungskopf kopf;
    kopf.StandardJahr = ZahlFeld(6, 2, Freiwillig);  // B0:2c
    kopf.StandardName = TextFeld(36, 6, Freiwillig); // B0:10
    kopf.Text = TextFeld(63, 12, Freiwillig);        // B0:19
    const bool hatName = !kopf.StandardName.empty();
    const bool hatJahr = !TextFeld(6, 2, Freiwillig).empty();     // B0:2c
    const std::int32_t reihenfolge = ZahlFeld(75, 7, Freiwillig); // B0:20

    const auto* const platz = std::ranges::find(Gliederungen, nummer, &Gliederungsplatz::Nummer);
    if (platz == Gliederungen.end()) {
        return FehlerMelden(3201);
    }

    if (platz->HatStandard()) {
        if (NeueSchnittstelle() && hatName != hatJahr) {
            FehlerMelden(3203);
        }
        if (hatName) {
            kopf.StandardJahr += kopf.StandardJahr >= 89 ? 1900 : 2000;
        }
    } else if (hatName || hatJahr) {
        FehlerMelden(3202);
    }

    KopfAblegen(*platz, kopf);
    sia451Datei.GliederungNummern.push_back(nummer);
    sia451Datei.GliederungReihenfolgen.push_back(reihenfolge); // kept in the new interface too: 3205
}

void PruefeB1() {
    const std::int32_t nummer = ZahlFeld(2, 3, Zwingend);               // B1:2a
    const KAGEintrag eintrag{.Code = TextFeld(82, 5, Zwingend),         // B1:21
                             .Bezeichnung = TextFeld(93, 30, Erwartet), // B1:23
                             .Text = TextFeld(138, 30, Freiwillig),     // B1:24e
                             .ECode = TextFeld(208, 16, Freiwillig)};   // B1:24h

    if (GehoertDazu(nummer, {1, 3221, sia451Datei.KAGVorhanden, 3222}) &&
        Eindeutig(sia451Datei.KAGTabelle, eintrag, 3223) &&
        ECodeEindeutig(sia451Datei.KAGECodes, eintrag.ECode, 3226)) {
        sia451Datei.KAGTabelle.Anfuegen(eintrag);
    }
}

void PruefeB2() {
    const std::int32_t nummer = ZahlFeld(2, 3, Zwingend);     // B2:2a
    const Feldsicht ogl = TextFeld(18, 6, Zwingend);          // B2:6
    const Feldsicht psl = TextFeld(24, 6, Freiwillig);        // B2:7
    const Feldsicht bezeichnung = TextFeld(93, 30, Erwartet); // B2:23
    const Feldsicht text = TextFeld(138, 30, Freiwillig);     // B2:24e
    const std::int32_t reihenfolge = ReihenfolgeFeld(75, 7);  // B2:20

    if (!GehoertDazu(nummer, {2, 3211, sia451Datei.OGLVorhanden, 3212})) {
        return;
    }

    if (psl.empty()) {
        const OGLEintrag eintrag{ogl, bezeichnung, text, reihenfolge, {}};
        if (Eindeutig(sia451Datei.OGLTabelle, eintrag, 3213, 3219)) {
            sia451Datei.OGLTabelle.Anfuegen(eintrag);
        }
        return;
    }

    const std::int32_t index = sia451Datei.OGLTabelle.Finde(ogl);
    if (index < 0) {
        return FehlerMelden(3214);
    }

    CodeListe<PSLEintrag>& liste = sia451Datei.OGLTabelle[index].PSLListe;
    const PSLEintrag eintrag{psl, bezeichnung, text, reihenfolge};
    if (Eindeutig(liste, eintrag, 3215, 3219)) {
        liste.Anfuegen(eintrag);
    }
}

void PruefeB3() {
    const std::int32_t nummer = ZahlFeld(2, 3, Zwingend);                  // B3:2a
    const EKGEintrag eintrag{.Code = TextFeld(87, 6, Zwingend),            // B3:22
                             .Bezeichnung = TextFeld(93, 30, Erwartet),    // B3:23
                             .Text = TextFeld(138, 30, Freiwillig),        // B3:24e
                             .Mengeneinheit = TextFeld(59, 2, Freiwillig), // B3:16
                             .ECode = TextFeld(208, 16, Freiwillig)};      // B3:24h

    if (GehoertDazu(nummer, {3, 3231, sia451Datei.EKGVorhanden, 3232}) &&
        Eindeutig(sia451Datei.EKGTabelle, eintrag, 3233) &&
        ECodeEindeutig(sia451Datei.EKGECodes, eintrag.ECode, 3236)) {
        sia451Datei.EKGTabelle.Anfuegen(eintrag);
    }
}

void PruefeB4() {
    const std::int32_t nummer = ZahlFeld(2, 3, Zwingend);                       // B4:2a
    const EinrichtungEintrag eintrag{.Code = TextFeld(129, 6, Zwingend),        // B4:24b
                                     .Bezeichnung = TextFeld(93, 30, Erwartet), // B4:23
                                     .Text = TextFeld(138, 30, Freiwillig),     // B4:24e
                                     .Reihenfolge = ReihenfolgeFeld(75, 7)};    // B4:20

    if (GehoertDazu(nummer, {4, 3261, sia451Datei.EinrichtungVorhanden, 3262}) &&
        Eindeutig(sia451Datei.EinrichtungTabelle, eintrag, 3263, 3269)) {
        sia451Datei.EinrichtungTabelle.Anfuegen(eintrag);
    }
}

void PruefeB5() {
    const std::int32_t nummer = ZahlFeld(2, 3, Zwingend);                               // B5:2a
    const VariantengruppeEintrag eintrag{.Code = TextFeld(30, 3, Zwingend),             // B5:8
                                         .Bezeichnung = TextFeld(93, 30, Erwartet),     // B5:23
                                         .Text = TextFeld(138, 30, Freiwillig),         // B5:24e
                                         .Primaervariante = TextFeld(135, 3, Zwingend), // B5:24c-d
                                         .Reihenfolge = ReihenfolgeFeld(75, 7),         // B5:20
                                         .Varianten = {}};

    if (GehoertDazu(nummer, {5, 3241, sia451Datei.VariantenVorhanden, 3242}) &&
        Eindeutig(sia451Datei.VariantenTabelle, eintrag, 3243, 3249)) {
        sia451Datei.VariantenTabelle.Anfuegen(eintrag);
    }
}

void PruefeB6() {
    const std::int32_t nummer = ZahlFeld(2, 3, Zwingend);                    // B6:2a
    const Feldsicht gruppe = TextFeld(30, 3, Zwingend);                      // B6:8
    const VarianteEintrag eintrag{.Code = TextFeld(33, 3, Zwingend),         // B6:9
                                  .Bezeichnung = TextFeld(93, 30, Erwartet), // B6:23
                                  .Text = TextFeld(138, 30, Freiwillig),     // B6:24e
                                  .Reihenfolge = ReihenfolgeFeld(75, 7)};    // B6:20

    // Variants carry the number of the structure of their groups; there is no structure 6.
    if (nummer != 5) {
        return FehlerMelden(3251);
    }

    // The group shows that the structure exists.
    const std::int32_t index = sia451Datei.VariantenTabelle.Finde(gruppe);
    if (index < 0) {
        return FehlerMelden(3252);
    }

    CodeListe<VarianteEintrag>& liste = sia451Datei.VariantenTabelle[index].Varianten;
    if (Eindeutig(liste, eintrag, 3253, 3259)) {
        liste.Anfuegen(eintrag);
    }
}

void PruefeB7() {
    const std::int32_t nummer = ZahlFeld(2, 3, Zwingend);                   // B7:2a
    const NutzungEintrag eintrag{.Code = TextFeld(168, 16, Zwingend),       // B7:24f
                                 .Bezeichnung = TextFeld(93, 30, Erwartet), // B7:23
                                 .Text = TextFeld(138, 30, Freiwillig)};    // B7:24e

    if (GehoertDazu(nummer, {7, 3292, sia451Datei.NutzungVorhanden, 3293}) &&
        Eindeutig(sia451Datei.NutzungTabelle, eintrag, 3294)) {
        sia451Datei.NutzungTabelle.Anfuegen(eintrag);
    }
}

void PruefeB8() {
    const std::int32_t nummer = ZahlFeld(2, 3, Zwingend);                // B8:2a
    const RaumEintrag eintrag{.Code = TextFeld(188, 16, Zwingend),       // B8:24g
                              .Bezeichnung = TextFeld(93, 30, Erwartet), // B8:23
                              .Text = TextFeld(138, 30, Freiwillig)};    // B8:24e

    if (GehoertDazu(nummer, {8, 3296, sia451Datei.RaumVorhanden, 3297}) &&
        Eindeutig(sia451Datei.RaumTabelle, eintrag, 3298)) {
        sia451Datei.RaumTabelle.Anfuegen(eintrag);
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
