#include "intake/Zeichentest.h"

#include "errors/TestFehler.h"
#include "intake/UTF8_Speicherung.h"
#include "intake/UniversalSchluessel.h"
#include "state/SIA451Felder.h"
#include "state/TestDaten.h"

#include <algorithm>
#include <array>

namespace zepholt {

namespace {

constexpr std::int32_t Recordlaenge = 256; // columns

struct Bereich {
    std::int32_t Von;
    std::int32_t Bis;
};

// The permitted characters as codes of code page 850.
constexpr Bereich ErlaubteCodes[] = {
    {32, 126},  {128, 168}, {171, 175}, {181, 183}, {189, 190}, {198, 199}, {207, 212},
    {214, 216}, {221, 222}, {224, 239}, {241, 241}, {243, 245}, {248, 250},
};
constexpr Bereich ErlaubteCodesAbRevision11 = {252, 253};

// The 27 characters of code page 1252 at its positions 128 to 159.
constexpr TextSicht Sonderzeichen1252 = u"\u20AC\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152"
                                        u"\u017D\u2018\u2019\u201C\u201D\u2022\u2013"
                                        u"\u2014\u02DC\u2122\u0161\u203A\u0153\u017E\u0178";

void CodesAnfuegen(const Bereich& bereich, std::vector<unsigned char>& codes) {
    for (std::int32_t code = bereich.Von; code <= bereich.Bis; ++code) {
        codes.push_back(static_cast<unsigned char>(code));
    }
}

bool InUtf8() {
    return testDaten.IstE1S || testDaten.Utf8Modus;
}

// Printable ASCII passes every character test. Both differences stay below 32768 for such characters only; no early
// end, so that the loop runs on many columns at a time.
bool NurDruckbaresAscii(TextSicht text) {
    char16_t differenzen = 0;
    for (const char16_t zeichen : text) {
        differenzen |= static_cast<char16_t>((zeichen - 32) | (126 - zeichen));
    }
    return differenzen < 0x8000;
}

bool NurLeerzeichen(TextSicht text) {
    char16_t abweichungen = 0;
    for (const char16_t zeichen : text) {
        abweichungen |= static_cast<char16_t>(zeichen ^ u' ');
    }
    return abweichungen == 0;
}

// Reports each character of a field that `erlaubt` refuses.
template <class Regel>
void PruefeZeichen(std::int32_t spalte, std::int32_t laenge, Regel erlaubt) {
    const TextSicht feld = Feld(testDaten.Record, spalte, laenge);
    if (NurDruckbaresAscii(feld)) {
        return;
    }
    for (const char16_t zeichen : feld) {
        if (!erlaubt(zeichen)) {
            FehlerHinzufuegen(2031, spalte);
        }
        ++spalte;
    }
}

// A record E, D or U: no layout, and any code that one byte of text can have.
void PruefeFreieZeichen() {
    if (!InUtf8()) {
        const std::int32_t laenge = static_cast<std::int32_t>(testDaten.Record.size());
        PruefeZeichen(2, laenge, [](char16_t zeichen) { return zeichen >= 32 && zeichen <= 255; });
    }
}

// What stands between the last field tested and `spalte` must be blank.
void PruefeLuecke(std::int32_t spalte) {
    const TextSicht luecke = Feld(testDaten.Record, testDaten.NaechsteSpalte, spalte - testDaten.NaechsteSpalte);
    if (!NurLeerzeichen(luecke)) {
        const auto stelle = static_cast<std::int32_t>(luecke.find_first_not_of(u' '));
        FehlerHinzufuegen(2032, testDaten.NaechsteSpalte + stelle);
    }
}

// The test of a field whose characters are known to be good: only the gap before it.
void PruefeNurLuecke(std::int32_t spalte, std::int32_t laenge) {
    if (spalte == 1) {
        testDaten.NaechsteSpalte = 1;
    }
    if (spalte > testDaten.NaechsteSpalte) {
        PruefeLuecke(spalte);
    }
    testDaten.NaechsteSpalte = spalte + laenge;
}

} // namespace

void ErlaubteZeichenAufbauen() {
    std::vector<unsigned char> codes;
    for (const Bereich& bereich : ErlaubteCodes) {
        CodesAnfuegen(bereich, codes);
    }
    if (testDaten.Revision >= 11) {
        CodesAnfuegen(ErlaubteCodesAbRevision11, codes);
    }
    testDaten.ErlaubteZeichen.resize(codes.size());
    OemNachAnsi(codes, testDaten.ErlaubteZeichen.data());

    testDaten.IstErlaubt.reset();
    for (const char16_t zeichen : testDaten.ErlaubteZeichen) {
        testDaten.IstErlaubt.set(zeichen);
    }
}

void RecordZeichenTest() {
    if (testDaten.Record.size() > Recordlaenge) {
        FehlerHinzufuegen(2032, Recordlaenge + 1);
    }
    if (IstEDURecord(testDaten.Record)) {
        PruefeFreieZeichen();
        return;
    }
    const std::span<const RecordLayout> layouts = LayoutsVon(testDaten.Record);
    if (layouts.empty()) {
        testDaten.UndefinierterRecordTyp = true;
        return;
    }
    const auto feldtest = NurDruckbaresAscii(testDaten.Record) ? PruefeNurLuecke : FeldZeichenTest;
    for (const RecordLayout& layout : layouts) {
        feldtest(layout.Spalte, layout.Laenge);
    }
    feldtest(Recordlaenge + 1, 0); // what stands behind the last field
}

void FeldZeichenTest(std::int32_t spalte, std::int32_t laenge) {
    PruefeNurLuecke(spalte, laenge);
    if (InUtf8()) {
        UnicodeZeichenTest(spalte, laenge);
    } else {
        PruefeZeichen(spalte, laenge, [](char16_t zeichen) { return testDaten.IstErlaubt.test(zeichen); });
    }
}

void UnicodeZeichenTest(std::int32_t spalte, std::int32_t laenge) {
    PruefeZeichen(spalte, laenge, [](char16_t zeichen) {
        const bool steuerzeichen = zeichen < 32 || (zeichen >= 127 && zeichen <= 159);
        const bool in1252 = zeichen < 256 || Sonderzeichen1252.find(zeichen) != TextSicht::npos;
        return !steuerzeichen && (testDaten.IstE1S || in1252);
    });
}

} // namespace zepholt
