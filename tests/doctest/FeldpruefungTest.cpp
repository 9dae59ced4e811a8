// The primitives that read one field: what they return and what they report.
#include "doctest/Feldpruefung.h"

#include "hilfen/Satztest.h"

#include <string>
#include <string_view>

namespace zepholt {
namespace {

using namespace hilfen;

class FeldpruefungTest : public Satztest {
protected:
    // What a primitive reports on a record of that text.
    template <class Aufruf>
    Funde Lies(TextSicht record, Aufruf aufruf) {
        return Pruefe(aufruf, Text(record));
    }
};

// --- FeldLeer, TextFeld ----------------------------------------------------------------------------------------------

TEST_F(FeldpruefungTest, FeldLeerCountsOnlyTheBlankU0020) {
    const auto leer = [](TextSicht record) {
        testDaten.Record = Feldsicht(record);
        return FeldLeer(2, 3);
    };
    EXPECT_TRUE(leer(u"G   x"));
    EXPECT_TRUE(leer(u"G"));
    EXPECT_TRUE(leer(u""));
    EXPECT_FALSE(leer(u"G  x"));
    EXPECT_FALSE(leer(u"G \t "));
    EXPECT_FALSE(leer(u"G \u00A0 "));
}

TEST_F(FeldpruefungTest, TextFeldTrimsRightOnlyAndReportsByPflicht) {
    Text gelesen;
    EXPECT_EQ(Lies(u"G ab  x", [&] { gelesen = TextFeld(2, 5, Zwingend); }), Funde{});
    EXPECT_EQ(gelesen, u" ab");

    EXPECT_EQ(Lies(u"G    x", [&] { gelesen = TextFeld(2, 4, Freiwillig); }), Funde{});
    EXPECT_EQ(gelesen, u"");
    EXPECT_EQ(Lies(u"G    x", [] { TextFeld(2, 4, Zwingend); }), (Funde{{3002, 2, 2}}));
    EXPECT_EQ(Lies(u"G    x", [] { TextFeld(2, 4, Erwartet); }), (Funde{{3003, 3, 2}}));
    EXPECT_EQ(Lies(u"G    x", [] { TextFeld(2, 4, static_cast<Pflicht>(3)); }), Funde{});
}

TEST_F(FeldpruefungTest, AnExpectedBlankFieldIsSilentInTheOldInterface) {
    Beginne(Alt);
    EXPECT_EQ(Lies(u"G    x", [] { TextFeld(2, 4, Erwartet); }), Funde{});
    EXPECT_EQ(Lies(u"G    x", [] { TextFeld(2, 4, Zwingend); }), (Funde{{3002, 1, 2}}));
}

// --- SchluesselFeld --------------------------------------------------------------------------------------------------

TEST_F(FeldpruefungTest, SchluesselFeldByJokerRule) {
    struct Fall {
        TextSicht Feld;
        JokerRegel Regel;
        int Anzahl3001;
    };
    const Fall faelle[] = {
        {u"ab  ", JokerUngeprueft, 0}, {u" *a*", JokerUngeprueft, 0},

        {u"ab  ", JokerVerboten, 0},   {u"a*  ", JokerVerboten, 1},   {u" ab ", JokerVerboten, 1},
        {u" *  ", JokerVerboten, 2},   {u"*   ", JokerVerboten, 1},   {u"**  ", JokerVerboten, 1},

        {u"ab  ", JokerAmEnde, 0},     {u"a*  ", JokerAmEnde, 0},     {u"*   ", JokerAmEnde, 0},
        {u"abc*", JokerAmEnde, 0},     {u"a*b ", JokerAmEnde, 1},     {u"a** ", JokerAmEnde, 1},
        {u"*a  ", JokerAmEnde, 1},     {u" a* ", JokerAmEnde, 1},     {u" *a ", JokerAmEnde, 2},
    };
    for (const Fall& fall : faelle) {
        Beginne(Neu);
        Text gelesen;
        const Funde funde =
            Lies(Text(u"G") + Text(fall.Feld) + u"x", [&] { gelesen = SchluesselFeld(2, 4, fall.Regel, Zwingend); });
        EXPECT_EQ(funde, Funde(static_cast<std::size_t>(fall.Anzahl3001), Fund{3001, 0, 2})) << fall.Regel;
        EXPECT_EQ(gelesen, fall.Feld.substr(0, fall.Feld.find_last_not_of(u' ') + 1));
    }
}

TEST_F(FeldpruefungTest, SchluesselFeldReportsABlankFieldByPflichtAlone) {
    EXPECT_EQ(Lies(u"G    x", [] { SchluesselFeld(2, 4, JokerVerboten, Zwingend); }), (Funde{{3002, 0, 2}}));
    EXPECT_EQ(Lies(u"G    x", [] { SchluesselFeld(2, 4, JokerVerboten, Erwartet); }), (Funde{{3003, 1, 2}}));
    EXPECT_EQ(Lies(u"G    x", [] { SchluesselFeld(2, 4, JokerVerboten, Freiwillig); }), Funde{});
}

// --- ZahlFeld --------------------------------------------------------------------------------------------------------

TEST_F(FeldpruefungTest, ZahlFeldTakesDigitsThatFillTheField) {
    struct Fall {
        TextSicht Record;
        std::int32_t Wert;
        Funde Erwartet;
    };
    const Fall faelle[] = {
        {u"G123x", 123, {}},
        {u"G000x", 0, {}},
        {u"G007", 7, {}},
        {u"G 12x", 0, {{3001, 0, 2}}},
        {u"G12 x", 0, {{3001, 0, 2}}},
        {u"G1 2x", 0, {{3001, 0, 2}}},
        {u"G+12x", 0, {{3001, 0, 2}}},
        {u"G1.2x", 0, {{3001, 0, 2}}},
        {u"G1/2x", 0, {{3001, 0, 2}}},
        {u"G1:2x", 0, {{3001, 0, 2}}},
        {u"G\u0661\u0662\u0663", 0, {{3001, 0, 2}}}, // Arabic digits are no digits here
        {u"G1", 0, {{3001, 0, 2}}},                  // the record ends inside the field
        {u"G", 0, {{3002, 0, 2}}},
        {u"G   x", 0, {{3002, 0, 2}}},
    };
    for (const Fall& fall : faelle) {
        Beginne(Neu);
        std::int32_t wert = -1;
        EXPECT_EQ(Lies(fall.Record, [&] { wert = ZahlFeld(2, 3, Zwingend); }), fall.Erwartet);
        EXPECT_EQ(wert, fall.Wert);
    }
}

TEST_F(FeldpruefungTest, ZahlFeldOptionalAndBlankOrZeroReadsZeroInSilence) {
    std::int32_t wert = -1;
    EXPECT_EQ(Lies(u"G   x", [&] { wert = ZahlFeld(2, 3, Freiwillig); }), Funde{});
    EXPECT_EQ(wert, 0);
    EXPECT_EQ(Lies(u"G000x", [&] { wert = ZahlFeld(2, 3, Freiwillig); }), Funde{});
    EXPECT_EQ(wert, 0);
}

TEST_F(FeldpruefungTest, ZahlFeldHoldsThirtyTwoBits) {
    std::int32_t wert = -1;
    EXPECT_EQ(Lies(u"G2147483647", [&] { wert = ZahlFeld(2, 10, Zwingend); }), Funde{});
    EXPECT_EQ(wert, 2147483647);
    EXPECT_EQ(Lies(u"G2147483648", [&] { wert = ZahlFeld(2, 10, Zwingend); }), (Funde{{3001, 1, 2}}));
    EXPECT_EQ(wert, 0);
}

// --- DezimalFeld -----------------------------------------------------------------------------------------------------

// Up to eight digits are read in one go where so many columns of a byte follow: with any byte behind them, at any
// place.
TEST_F(FeldpruefungTest, ZahlFeldReadsColumnsOfAByteAsThoseOf16Bits) {
    constexpr std::string_view Ziffern = "9081726354";
    for (std::int32_t laenge = 1; laenge <= 9; ++laenge) {
        for (std::size_t dahinter = 0; dahinter < 9; ++dahinter) {
            for (const char fremd : {' ', '0', '9', '\0', '/', ':', '\xFF'}) {
                const std::string feld(Ziffern.substr(0, static_cast<std::size_t>(laenge)));
                const std::string record = "G" + feld + std::string(dahinter, fremd);
                testDaten.Record = Feldsicht(reinterpret_cast<const unsigned char*>(record.data()), record.size());
                ASSERT_EQ(ZahlFeld(2, laenge, Zwingend), std::stoi(feld)) << laenge << ' ' << dahinter;
                const std::string nullen = std::string(static_cast<std::size_t>(laenge - 1), '0') + "7";
                const std::string kleine = "G" + nullen + std::string(dahinter, fremd);
                testDaten.Record = Feldsicht(reinterpret_cast<const unsigned char*>(kleine.data()), kleine.size());
                ASSERT_EQ(ZahlFeld(2, laenge, Zwingend), 7) << laenge << ' ' << dahinter;
            }
        }
    }
}

TEST_F(FeldpruefungTest, DezimalFeldReturnsItsDigits) {
    Feldsicht ziffern;
    EXPECT_EQ(Lies(u"G12345678901234", [&] { ziffern = DezimalFeld(2, 13); }), Funde{});
    EXPECT_EQ(ziffern, u"1234567890123");
    EXPECT_FALSE(NurNullen(ziffern));
    EXPECT_EQ(Lies(u"G0000000000000", [&] { ziffern = DezimalFeld(2, 13); }), Funde{});
    EXPECT_TRUE(NurNullen(ziffern));
    EXPECT_EQ(Lies(u"G0000000000001", [&] { ziffern = DezimalFeld(2, 13); }), Funde{});
    EXPECT_FALSE(NurNullen(ziffern));
}

TEST_F(FeldpruefungTest, DezimalFeldReportsBadDigitsButNeverABlankField) {
    Feldsicht ziffern;
    EXPECT_EQ(Lies(u"G             x", [&] { ziffern = DezimalFeld(2, 13); }), Funde{});
    EXPECT_TRUE(ziffern.empty() && NurNullen(ziffern));
    EXPECT_EQ(Lies(u"G         1500x", [&] { ziffern = DezimalFeld(2, 13); }), (Funde{{3001, 1, 2}}));
    EXPECT_TRUE(ziffern.empty());
    EXPECT_EQ(Lies(u"G15", [&] { ziffern = DezimalFeld(2, 13); }), (Funde{{3001, 2, 2}}));
    EXPECT_TRUE(ziffern.empty());
}

// --- DatumFeld -------------------------------------------------------------------------------------------------------

TEST_F(FeldpruefungTest, DatumFeldComposesWithCarry) {
    // Days since 1970-01-01, from `date -u -d DAY +%s` divided by 86400.
    struct Fall {
        TextSicht Feld; // ddMMyy
        std::int32_t Tage;
    };
    const Fall faelle[] = {
        {u"010100", 10957}, // 2000-01-01
        {u"311288", 43464}, // 2088-12-31: the last year of the new century
        {u"010189", 6940},  // 1989-01-01: the pivot year
        {u"290200", 11016}, // 2000-02-29
        {u"310299", 10653}, // 31 February 1999 is 3 March 1999
        {u"000000", 10925}, // 30 November 1999
        {u"000100", 10956}, // 31 December 1999
        {u"011300", 11323}, // month 13 of 2000 is January 2001
        {u"019900", 13939}, // month 99 of 2000 is March 2008
        {u"999999", 13671}, // 99 days into March 2007: 7 June 2007
    };
    for (const Fall& fall : faelle) {
        Beginne(Neu);
        std::int32_t tage = -1;
        EXPECT_EQ(Lies(Text(u"G") + Text(fall.Feld), [&] { tage = DatumFeld(2, 6, Zwingend); }), Funde{});
        EXPECT_EQ(tage, fall.Tage) << static_cast<char>(fall.Feld[0]) << static_cast<char>(fall.Feld[1]);
    }
}

TEST_F(FeldpruefungTest, DatumFeldReportsBlankByPflichtAndBadDigits) {
    std::int32_t tage = -1;
    EXPECT_EQ(Lies(u"G      ", [&] { tage = DatumFeld(2, 6, Zwingend); }), (Funde{{3002, 0, 2}}));
    EXPECT_EQ(tage, 0);
    EXPECT_EQ(Lies(u"G      ", [&] { tage = DatumFeld(2, 6, Freiwillig); }), Funde{});
    EXPECT_EQ(Lies(u"G01 100", [&] { tage = DatumFeld(2, 6, Zwingend); }), (Funde{{3001, 2, 2}}));
    EXPECT_EQ(tage, 0);
    EXPECT_EQ(Lies(u"G0101", [&] { tage = DatumFeld(2, 6, Zwingend); }), (Funde{{3001, 3, 2}}));
    EXPECT_EQ(tage, 0);
}

} // namespace
} // namespace zepholt
