#include "state/Verweise.h"

#include "state/SIA451Felder.h"
#include "state/TestDaten.h"
#include "support/HilfsFunktionen.h"

#include <algorithm>
#include <iterator>
#include <optional>

namespace zepholt {

namespace {

// --- References

std::uint64_t Streuwert(const Verweissatz& verweise) {
    Streuer streuer;
    for (const Feldsicht text : verweise.Alle()) {
        streuer.Nimm(text.empty() ? 0 : Streuwert(text));
    }
    return streuer.Wert();
}

// The place of the first quantity with these references, among those taken in.
std::int32_t& Platz(VerweisIndex& index, const Verweissatz& verweise) {
    return index.Erste.Platz(Streuwert(verweise),
                             [&verweise](std::int32_t zeile) { return VerweiseIn(ZeileAn(zeile)) == verweise; });
}

void Nachfuehren(VerweisIndex& index, const Kette& mengen) {
    for (const MengeEintrag& menge : sia451Datei.Mengen.Seit(index.Gelesen, mengen)) {
        index.Erste.Vorsorgen(index.Anzahl + 1);
        std::int32_t& platz = Platz(index, VerweiseIn(ZeileAn(menge.Zeile)));
        if (platz == Platztabelle::Frei) { // references that stand already keep their first line
            platz = menge.Zeile;
            ++index.Anzahl;
        }
    }
    index.Gelesen = mengen;
}

// --- Order values

// Those of a position that has some.
std::bitset<100>& ReihenfolgenVon(const PositionEintrag& position) {
    return sia451Datei.Reihenfolgen[static_cast<std::size_t>(position.Reihenfolgen)];
}

// --- Running numbers

// The place of a running number in Laufnummern. New interface: its value, when that is a whole number that digits can
// express. Old interface: its digits behind a 1, which keeps leading zeros apart; other texts equal no digits.
std::optional<std::size_t> LaufnummerPlatz(Feldsicht nummer) {
    // What a 1 is worth before so many digits; the field has seven columns.
    constexpr std::size_t Stellenwerte[] = {1, 10, 100, 1'000, 10'000, 100'000, 1'000'000, 10'000'000};
    constexpr double Grenze = 10'000'000;
    const bool neu = NeueSchnittstelle();
    if (nummer.size() < std::size(Stellenwerte) && NurZiffern(nummer)) {
        return (neu ? 0 : Stellenwerte[nummer.size()]) + static_cast<std::size_t>(Ziffernwert(nummer));
    }
    if (!neu || nummer.empty()) {
        return std::nullopt;
    }
    const double wert = ZahlAmAnfang(Text(nummer));
    const bool ganz = wert >= 0 && wert < Grenze && wert == static_cast<std::int32_t>(wert);
    return ganz ? std::optional(static_cast<std::size_t>(wert)) : std::nullopt;
}

// --- Structure tables

template <class Eintrag>
bool CodeGefunden(const CodeListe<Eintrag>& tabelle, Feldsicht code) {
    const std::size_t joker = code.find(u'*');
    if (joker == Feldsicht::npos) {
        return tabelle.Finde(code) != -1;
    }
    return joker == 0 || tabelle.HatAnfang(code.substr(0, joker));
}

bool Zwischen(std::int32_t zahl, std::int32_t von, std::int32_t bis) {
    return von <= zahl && zahl <= bis;
}

std::int32_t Ziffer(std::int32_t zahl, std::int32_t stellenwert) {
    return zahl / stellenwert % 10;
}

} // namespace

KapitelEintrag& Kapitel(std::int32_t index) {
    return sia451Datei.DokumentKapitel[static_cast<std::size_t>(index)];
}

std::int32_t SucheKapitel(std::int32_t nummer) {
    return sia451Datei.KapitelNachNummer.Finde(sia451Datei.DokumentKapitel, nummer);
}

std::int32_t SuchePosition(std::int32_t kapitel, std::int32_t nummer) {
    KapitelEintrag& eintrag = Kapitel(kapitel);
    return eintrag.PositionenNachNummer.Finde(eintrag.Positionen, nummer);
}

// The numbers of variables have two digits: a position has no more than a hundred, so this one scans.
VariableEintrag* SucheVariable(const PositionEintrag& position, std::int32_t nummer) {
    for (VariableEintrag& variable : sia451Datei.Variablen.Von(position.Variablen)) {
        if (variable.Nummer == nummer) {
            return &variable;
        }
    }
    return nullptr;
}

Feldsicht TextVon(const VariablenzeileEintrag& zeile) {
    return OhneLeerzeichenRechts(Feld(ZeileAn(zeile.Zeile), 93, 30));
}

Verweissatz VerweiseIn(Feldsicht record) {
    const auto feld = [record](std::int32_t spalte, std::int32_t laenge) {
        return OhneLeerzeichenRechts(Feld(record, spalte, laenge));
    };
    return {.OGL = feld(18, 6),
            .PSL = feld(24, 6),
            .KAG = feld(82, 5),
            .Element = feld(87, 6),
            .Variantengruppe = feld(30, 3),
            .Variante = feld(33, 3),
            .Einrichtungstyp = feld(129, 6),
            .Nutzung = feld(168, 16),
            .Raum = feld(188, 16)};
}

bool HatMengeMit(std::int32_t kapitel, std::int32_t position, const Verweissatz& verweise) {
    VerweisIndex& index = sia451Datei.MengenNachVerweis;
    if (index.Kapitel != kapitel || index.Position != position) {
        index = {.Kapitel = kapitel, .Position = position};
    }
    Nachfuehren(index, Kapitel(kapitel).Positionen[static_cast<std::size_t>(position)].Mengen);
    return index.Anzahl > 0 && Platz(index, verweise) != Platztabelle::Frei;
}

bool ReihenfolgeVergeben(const PositionEintrag& position, std::int32_t reihenfolge) {
    return position.Reihenfolgen != -1 && ReihenfolgenVon(position).test(static_cast<std::size_t>(reihenfolge));
}

void ReihenfolgeMerken(PositionEintrag& position, std::int32_t reihenfolge) {
    if (reihenfolge == 0) {
        return;
    }
    if (position.Reihenfolgen == -1) {
        position.Reihenfolgen = static_cast<std::int32_t>(sia451Datei.Reihenfolgen.size());
        sia451Datei.Reihenfolgen.emplace_back();
    }
    ReihenfolgenVon(position).set(static_cast<std::size_t>(reihenfolge));
}

bool LaufnummerVergeben(Feldsicht nummer) {
    const std::optional<std::size_t> platz = LaufnummerPlatz(nummer);
    return platz && sia451Datei.Laufnummern.Enthaelt(*platz);
}

void LaufnummerMerken(Feldsicht nummer) {
    if (const std::optional<std::size_t> platz = LaufnummerPlatz(nummer)) {
        sia451Datei.Laufnummern.Setze(*platz);
    }
}

bool OGLGefunden(Feldsicht code) {
    return sia451Datei.OGLVorhanden && CodeGefunden(sia451Datei.OGLTabelle, code);
}

bool KAGGefunden(Feldsicht code) {
    return sia451Datei.KAGVorhanden && CodeGefunden(sia451Datei.KAGTabelle, code);
}

bool EKGGefunden(Feldsicht code) {
    return sia451Datei.EKGVorhanden && CodeGefunden(sia451Datei.EKGTabelle, code);
}

bool VariantengruppeGefunden(Feldsicht code) {
    return sia451Datei.VariantenVorhanden && CodeGefunden(sia451Datei.VariantenTabelle, code);
}

bool EinrichtungGefunden(Feldsicht code) {
    return sia451Datei.EinrichtungVorhanden && CodeGefunden(sia451Datei.EinrichtungTabelle, code);
}

bool PSLGefunden(Feldsicht ogl, Feldsicht psl) {
    const std::int32_t index = sia451Datei.OGLVorhanden ? sia451Datei.OGLTabelle.Finde(ogl) : -1;
    return index != -1 && CodeGefunden(sia451Datei.OGLTabelle[index].PSLListe, psl);
}

bool VarianteGefunden(Feldsicht gruppe, Feldsicht variante) {
    const std::int32_t index = sia451Datei.VariantenVorhanden ? sia451Datei.VariantenTabelle.Finde(gruppe) : -1;
    return index != -1 && CodeGefunden(sia451Datei.VariantenTabelle[index].Varianten, variante);
}

bool NutzungGefunden(Feldsicht code) {
    return sia451Datei.NutzungVorhanden && sia451Datei.NutzungTabelle.Finde(code) != -1;
}

bool RaumGefunden(Feldsicht code) {
    return sia451Datei.RaumVorhanden && sia451Datei.RaumTabelle.Finde(code) != -1;
}

bool KapitelGefunden(Feldsicht kapitel) {
    Kapitelnummerntexte& index = sia451Datei.TexteDerKapitel;
    for (; index.Gelesen < sia451Datei.DokumentKapitel.size(); ++index.Gelesen) {
        index.Texte.insert(ZahlText(sia451Datei.DokumentKapitel[index.Gelesen].Nummer));
    }
    const std::size_t joker = kapitel.find(u'*');
    if (joker == Feldsicht::npos) {
        return index.Texte.contains(Text(kapitel));
    }
    const Text anfang = kapitel.substr(0, joker);
    const auto treffer = index.Texte.lower_bound(anfang);
    return joker == 0 || (treffer != index.Texte.end() && treffer->starts_with(anfang));
}

bool HatJoker(Feldsicht text) {
    return text.find(u'*') != Feldsicht::npos;
}

bool IstReserveKapitel(std::int32_t nummer) {
    return Ziffer(nummer, 100) == 9 || Ziffer(nummer, 10) == 9 || Ziffer(nummer, 1) == 9;
}

bool IstReservePosition(std::int32_t nummer) {
    return Ziffer(nummer, 10000) == 9 || Ziffer(nummer, 1000) == 9 || Ziffer(nummer, 100) == 9 ||
           Ziffer(nummer, 10) == 9;
}

std::int32_t UebergeordnetePosition(std::int32_t nummer) {
    for (const std::int32_t stufe : {1000, 10000}) {
        if (nummer % stufe != 0) {
            return nummer / stufe * stufe;
        }
    }
    return nummer / 100000 * 100000;
}

bool ImGueltigkeitsbereich(std::int32_t /*kapitel*/, std::int32_t position, std::int32_t vorbemerkung) {
    const std::int32_t hauptposition = position / 1000 * 1000;
    const std::int32_t unterabschnitt = position / 10000 * 10000;
    const std::int32_t abschnitt = position / 100000 * 100000;
    return Zwischen(vorbemerkung, hauptposition, hauptposition + 99) ||
           Zwischen(vorbemerkung, unterabschnitt, unterabschnitt + 999) ||
           Zwischen(vorbemerkung, abschnitt, abschnitt + 999) || Zwischen(vorbemerkung, 0, 999);
}

} // namespace zepholt
