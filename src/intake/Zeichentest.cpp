#include "intake/Zeichentest.h"

#include "errors/TestFehler.h"
#include "intake/UTF8_Speicherung.h"
#include "intake/UniversalSchluessel.h"
#include "state/SIA451Felder.h"
#include "state/TestDaten.h"

#include <algorithm>
#include <span>

namespace zepholt {

namespace {

constexpr std::int32_t Recordlaenge = 256; // columns

struct Bereich {
    std::size_t Von;
    std::size_t Bis;
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

bool InUtf8() {
    return testDaten.IstE1S || testDaten.Utf8Modus;
}

// True when printable ASCII, which is permitted everywhere, stands in all columns. No early end: many columns at a
// time.
bool NurAscii(Feldsicht spalten) {
    return spalten.MitSpalten([&spalten](const auto* spalte) {
        unsigned char andere = 0;
        for (std::size_t i = 0; i < spalten.size(); ++i) {
            andere |= static_cast<unsigned char>((spalte[i] < ' ') | (spalte[i] > '~'));
        }
        return andere == 0;
    });
}

// Reports each place of a field that `erlaubt` refuses; it permits printable ASCII.
template <class Regel>
void PruefeZeichen(std::int32_t spalte, std::int32_t laenge, Regel erlaubt) {
    const Feldsicht feld = Feld(testDaten.Record, spalte, laenge);
    if (NurAscii(feld)) {
        return;
    }
    for (std::size_t i = 0; i < feld.size(); ++i) {
        if (!erlaubt(feld, i)) {
            FehlerHinzufuegen(2031, spalte);
        }
        ++spalte;
    }
}

// A character of a file in UTF-8: no control character, in a 451-92 file one that code page 1252 has.
bool IstErlaubtInUtf8(char16_t zeichen) {
    const bool steuerzeichen = zeichen < 32 || (zeichen >= 127 && zeichen <= 159);
    return !steuerzeichen && (testDaten.IstE1S || zeichen < 256 || Sonderzeichen1252.find(zeichen) != TextSicht::npos);
}

bool IstErlaubt(char16_t zeichen) {
    return InUtf8() ? IstErlaubtInUtf8(zeichen) : testDaten.ErlaubteZeichen.find(zeichen) != Text::npos;
}

// The same of a place in a line, from 0.
bool IstErlaubtAn(Feldsicht feld, std::size_t stelle) {
    return feld.IstBreit() ? IstErlaubt(feld.Zeichen()[stelle]) : testDaten.VerboteneCodes[feld.Bytes()[stelle]] == 0;
}

// A record E, D or U: no layout, and any code that one byte of text can have.
void PruefeFreieZeichen() {
    if (!InUtf8()) {
        const std::int32_t laenge = static_cast<std::int32_t>(testDaten.Record.size());
        PruefeZeichen(2, laenge,
                      [](Feldsicht feld, std::size_t stelle) { return feld[stelle] >= 32 && feld[stelle] <= 255; });
    }
}

void CodesErlauben(const Bereich& bereich, const Codeseite& seite) {
    for (std::size_t code = bereich.Von; code <= bereich.Bis; ++code) {
        testDaten.ErlaubteZeichen.push_back(seite.Zeichen[code]);
        testDaten.VerboteneCodes[code] = 0;
    }
}

} // namespace

void ErlaubteZeichenAufbauen() {
    const Codeseite seite = Codeseite850();
    testDaten.ErlaubteZeichen.clear();
    testDaten.ErlaubteZeichen.reserve(seite.Zeichen.size());
    testDaten.VerboteneCodes.fill(1);
    for (const Bereich& bereich : ErlaubteCodes) {
        CodesErlauben(bereich, seite);
    }
    if (testDaten.Revision >= 11) {
        CodesErlauben(ErlaubteCodesAbRevision11, seite);
    }
    if (InUtf8()) { // its codes are its own
        std::ranges::transform(codeseite.Zeichen, testDaten.VerboteneCodes.begin(),
                               [](char16_t zeichen) { return IstErlaubtInUtf8(zeichen) ? 0 : 1; });
    }
}

bool OhneZeichenbefund(Feldsicht record) {
    if (record.size() > Recordlaenge || IstEDURecord(record)) {
        return false;
    }
    const Recordtyp typ = RecordtypVon(record);
    return !typ.Zeilen.empty() &&
           AuffaelligeSpalten(record, *typ.Felder).JedeErfuellt([&record, &typ](std::int32_t spalte) {
               return typ.Felder->Hat(spalte) && IstErlaubtAn(record, static_cast<std::size_t>(spalte - 1));
           });
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
    for (const RecordLayout& layout : layouts) {
        FeldZeichenTest(layout.Spalte, layout.Laenge);
    }
    FeldZeichenTest(Recordlaenge + 1, 0); // what stands behind the last field
}

void FeldZeichenTest(std::int32_t spalte, std::int32_t laenge) {
    if (spalte == 1) {
        testDaten.NaechsteSpalte = 1;
    }
    const std::int32_t luecke = spalte - testDaten.NaechsteSpalte;
    const std::int32_t erste =
        luecke > 0 ? testDaten.Record.Arten().Gefuellt.Erste(testDaten.NaechsteSpalte, luecke) : 0;
    if (erste != 0) {
        FehlerHinzufuegen(2032, erste);
    }
    testDaten.NaechsteSpalte = spalte + laenge;
    if (InUtf8()) {
        UnicodeZeichenTest(spalte, laenge);
    } else {
        PruefeZeichen(spalte, laenge, IstErlaubtAn);
    }
}

void UnicodeZeichenTest(std::int32_t spalte, std::int32_t laenge) {
    PruefeZeichen(spalte, laenge, [](Feldsicht feld, std::size_t stelle) { return IstErlaubtInUtf8(feld[stelle]); });
}

} // namespace zepholt
