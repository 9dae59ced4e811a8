#include "support/OS_API.h"

#include "support/Pruefordner.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <limits>
#include <new>

namespace {

// The greatest array that the program gets; lowered where a test is about exhausted memory.
std::size_t groesstesFeld = std::numeric_limits<std::size_t>::max();

} // namespace

void* operator new[](std::size_t anzahl) {
    void* feld = anzahl <= groesstesFeld ? std::malloc(anzahl > 0 ? anzahl : 1) : nullptr;
    if (feld == nullptr) {
        throw std::bad_alloc();
    }
    return feld;
}

void operator delete[](void* feld) noexcept {
    std::free(feld);
}

void operator delete[](void* feld, std::size_t) noexcept {
    std::free(feld);
}

namespace zepholt {
namespace {

const Text LangerName(200, u'n');

class ArtVonTest : public Pruefordner {};
class EintraegeSuchenTest : public Pruefordner {};
class DateiExistiertTest : public Pruefordner {};
class OrdnerExistiertTest : public Pruefordner {};
class DateienImOrdnerTest : public Pruefordner {};
class LeseDateiTest : public Pruefordner {};
class AusgabeDateiTest : public Pruefordner {};
class DateiAnlegbarTest : public Pruefordner {};

TEST_F(ArtVonTest, DateiOrdnerNichts) {
    Datei(u"\u00E4 \u20AC.01S");
    Ordner(u"o");
    EXPECT_EQ(ArtVon(Pfad(u"\u00E4 \u20AC.01S")), DateiArt::Datei);
    EXPECT_EQ(ArtVon(Pfad(u"o")), DateiArt::Ordner);
    EXPECT_EQ(ArtVon(Pfad(u"o/")), DateiArt::Ordner);
    EXPECT_EQ(ArtVon(Pfad(u"o/.")), DateiArt::Ordner);
    EXPECT_EQ(ArtVon(Pfad(u"o/..")), DateiArt::Ordner);
    EXPECT_EQ(ArtVon(Pfad(u"fehlt")), DateiArt::Nichts);
    EXPECT_EQ(ArtVon(Pfad(u"fehlt/a")), DateiArt::Nichts);
    EXPECT_EQ(ArtVon(Pfad(u"\u00E4 \u20AC.01S/")), DateiArt::Nichts);
    EXPECT_EQ(ArtVon(Pfad(u"\u00E4 \u20AC.01S/a")), DateiArt::Nichts);
    EXPECT_EQ(ArtVon(u""), DateiArt::Nichts);
}

TEST_F(ArtVonTest, EinNulZeichenFindetNichts) {
    Datei(u"a");
    EXPECT_EQ(ArtVon(Pfad(u"a")), DateiArt::Datei);
    EXPECT_EQ(ArtVon(Pfad(u"a") + u'\0' + u"b"), DateiArt::Nichts);
    EXPECT_THROW(LeseDatei(Pfad(u"a") + u'\0' + u"b"), LaufzeitFehler);
    EXPECT_FALSE(DateiAnlegbar(Pfad(u"c") + u'\0' + u"b"));
    EXPECT_FALSE(AusgabeDatei(Pfad(u"c") + u'\0' + u"b").Abschliessen());
    EXPECT_EQ(Anzahl(), 1);
}

TEST_F(EintraegeSuchenTest, AufsteigendNachDenBytesDerNamen) {
    // In UTF-8: U+00E4 C3, U+FF21 EF, U+1F600 F0. By 16-bit units the last two would stand the other way round.
    for (const char16_t* name : {u"xz", u"x\U0001F600", u"x\uFF21", u"x\u00E4", u"xb", u"xa1", u"xa", u"x"}) {
        Datei(name);
    }
    EXPECT_EQ(Gefunden(u"x*"), u"x xa xa1 xb xz x\u00E4 x\uFF21 x\U0001F600");
    EXPECT_EQ(Gefunden(u"x??"), u"xa1 x\U0001F600"); // one column is one 16-bit unit
}

struct MusterFall {
    const char16_t* Muster;
    const char16_t* Namen;
};

TEST_F(EintraegeSuchenTest, SternUndFragezeichen) {
    for (const char16_t* name : {u"N131241.qvm", u"N132241.qvm", u"N13124.qvm", u"N131241.txt", u"aXbXc"}) {
        Datei(name);
    }
    const MusterFall faelle[] = {
        {u"N??1???.qvm", u"N131241.qvm"},
        {u"N*.qvm", u"N13124.qvm N131241.qvm N132241.qvm"},
        {u"*", u"N13124.qvm N131241.qvm N131241.txt N132241.qvm aXbXc"},
        {u"a*c", u"aXbXc"},
        {u"a*b*c", u"aXbXc"},
        {u"a*X*c", u"aXbXc"},
        {u"a**c", u"aXbXc"},
        {u"*c", u"aXbXc"},
        {u"a*d", u""},
        {u"a*b", u""},
        {u"?XbX?", u"aXbXc"},
        {u"?XbXc?d", u""},
        {u"N131241.txt", u"N131241.txt"},
        {u"fehlt", u""},
        {u"fehlt/*", u""},
        {u"N131241.txt/*", u""},
    };
    for (const MusterFall& fall : faelle) {
        Text namen = Gefunden(fall.Muster);
        // "*" fits a folder's own entries too where they are no hidden names.
        namen = namen.starts_with(u". .. ") ? namen.substr(5) : namen;
        EXPECT_EQ(namen, fall.Namen) << Utf8Bytes(fall.Muster);
    }
}

TEST_F(EintraegeSuchenTest, PlatzhalterNurImLetztenTeil) {
    Ordner(u"o");
    Datei(u"o/ab");
    EXPECT_EQ(Gefunden(u"o/a?"), u"ab");
    EXPECT_EQ(Gefunden(u"?/ab"), u"");
    EXPECT_EQ(Gefunden(u"?/a?"), u"");
}

TEST_F(EintraegeSuchenTest, EinNameOhnePlatzhalterGibtDenEinenEintrag) {
    Ordner(u"o");
    Datei(u"o/a");
    const std::vector<OrdnerEintrag> eintraege = EintraegeSuchen(Pfad(u"o/a"));
    ASSERT_EQ(eintraege.size(), 1U);
    EXPECT_EQ(eintraege[0].Name, u"a");
    EXPECT_EQ(eintraege[0].Art, DateiArt::Datei);
    EXPECT_FALSE(eintraege[0].Versteckt);
}

TEST_F(EintraegeSuchenTest, EinLangesMusterMitVielenSternenHaengtNicht) {
    Datei(LangerName);
    Text muster;
    for (int k = 0; k < 60; ++k) {
        muster += u"n*";
    }
    EXPECT_EQ(Gefunden(muster), LangerName);
    EXPECT_EQ(Gefunden(muster + u"x"), u"");
}

TEST_F(DateiExistiertTest, NurOrdentlicheDateien) {
    Datei(u"a b.01S");
    Ordner(u"o");
    EXPECT_TRUE(DateiExistiert(Pfad(u"a b.01S")));
    EXPECT_TRUE(DateiExistiert(Pfad(u"o/../a b.01S")));
    EXPECT_FALSE(DateiExistiert(Pfad(u"o")));
    EXPECT_FALSE(DateiExistiert(Pfad(u"o/")));
    EXPECT_FALSE(DateiExistiert(Pfad(u"o/.")));
    EXPECT_FALSE(DateiExistiert(Pfad(u"fehlt")));
    EXPECT_FALSE(DateiExistiert(Pfad(u"a b.01S/")));
    EXPECT_FALSE(DateiExistiert(u""));
}

TEST_F(DateiExistiertTest, MitPlatzhaltern) {
    Ordner(u"leer");
    Ordner(u"nur/unterordner");
    Ordner(u"beides/a");
    Datei(u"beides/z.01S");
    EXPECT_FALSE(DateiExistiert(Pfad(u"leer/*")));
    EXPECT_FALSE(DateiExistiert(Pfad(u"nur/*")));
    EXPECT_TRUE(DateiExistiert(Pfad(u"beides/*")));
    EXPECT_TRUE(DateiExistiert(Pfad(u"beides/?.01S")));
    EXPECT_FALSE(DateiExistiert(Pfad(u"beides/?.E1S")));
}

TEST_F(OrdnerExistiertTest, NurOrdner) {
    Datei(u"d");
    Ordner(u"o");
    EXPECT_TRUE(OrdnerExistiert(Pfad(u"o")));
    EXPECT_TRUE(OrdnerExistiert(Pfad(u"o/")));
    EXPECT_TRUE(OrdnerExistiert(Pfad(u"o/.")));
    EXPECT_TRUE(OrdnerExistiert(Pfad(u"o/..")));
    EXPECT_TRUE(OrdnerExistiert(u"."));
    EXPECT_TRUE(OrdnerExistiert(u".."));
    EXPECT_TRUE(OrdnerExistiert(Text(1, PfadTrenner())));
    EXPECT_FALSE(OrdnerExistiert(Pfad(u"d")));
    EXPECT_FALSE(OrdnerExistiert(Pfad(u"d/")));
    EXPECT_FALSE(OrdnerExistiert(Pfad(u"fehlt")));
    EXPECT_FALSE(OrdnerExistiert(Pfad(u"fehlt/")));
    EXPECT_FALSE(OrdnerExistiert(u""));
}

TEST_F(OrdnerExistiertTest, MitPlatzhaltern) {
    Ordner(u"xa");
    EXPECT_TRUE(OrdnerExistiert(Pfad(u"x*"))); // a folder alone
    Datei(u"ya");
    EXPECT_FALSE(OrdnerExistiert(Pfad(u"y*"))); // a file alone
    Ordner(u"yb");
    EXPECT_FALSE(OrdnerExistiert(Pfad(u"y*"))); // a file, then a folder
    Datei(u"xb");
    EXPECT_FALSE(OrdnerExistiert(Pfad(u"x*"))); // a folder, then a file: the second query finds the file
    EXPECT_FALSE(OrdnerExistiert(Pfad(u"z*")));
}

TEST_F(DateienImOrdnerTest, MitUndOhneTrennerAmEnde) {
    Ordner(u"o/N131999.qvm");
    for (const char16_t* name : {u"o/N132241.qvm", u"o/N131242.qvm", u"o/N131241.qvm", u"o/N131241.txt"}) {
        Datei(name);
    }
    const std::vector<Text> erwartet{Pfad(u"o/N131241.qvm"), Pfad(u"o/N131242.qvm")};
    EXPECT_EQ(DateienImOrdner(Pfad(u"o"), u"N??1???.qvm"), erwartet);
    EXPECT_EQ(DateienImOrdner(Pfad(u"o/"), u"N??1???.qvm"), erwartet);
    EXPECT_TRUE(DateienImOrdner(Pfad(u"o"), u"N??3???.qvm").empty());
    EXPECT_TRUE(DateienImOrdner(Pfad(u"fehlt"), u"*").empty());
    EXPECT_TRUE(DateienImOrdner(Pfad(u"o/N131241.qvm"), u"*").empty());
}

TEST_F(LeseDateiTest, StueckeUndGroesse) {
    Datei(u"\u00E4 b", "0123456789");
    LeseDatei datei(Pfad(u"\u00E4 b"));
    EXPECT_EQ(datei.Groesse(), 10U);
    EXPECT_EQ(AlsText(datei.Lies(0, 10)), "0123456789");
    EXPECT_EQ(AlsText(datei.Lies(3, 4)), "3456");
    EXPECT_EQ(AlsText(datei.Lies(0, 1000)), "0123456789");
    EXPECT_EQ(AlsText(datei.Lies(8, 1000)), "89");
    EXPECT_EQ(AlsText(datei.Lies(8, std::numeric_limits<std::size_t>::max())), "89");
    EXPECT_TRUE(datei.Lies(10, 5).empty());
    EXPECT_TRUE(datei.Lies(1000, 5).empty());
    EXPECT_TRUE(datei.Lies(std::numeric_limits<std::uint64_t>::max(), 5).empty());
    EXPECT_TRUE(datei.Lies(0, 0).empty());
}

TEST_F(LeseDateiTest, AlleByteWerteBleiben) {
    std::string alle;
    for (int byte = 0; byte < 256; ++byte) {
        alle.push_back(static_cast<char>(byte));
    }
    Datei(u"a", alle);
    EXPECT_EQ(AlsText(LeseDatei(Pfad(u"a")).Lies(0, 256)), alle);
}

TEST_F(LeseDateiTest, LeereDatei) {
    Datei(u"a", "");
    LeseDatei datei(Pfad(u"a"));
    EXPECT_EQ(datei.Groesse(), 0U);
    EXPECT_TRUE(datei.Lies(0, 100).empty());
}

TEST_F(LeseDateiTest, HinterVierGigabyte) {
    Datei(u"a", "anfang");
    constexpr std::uint64_t groesse = 5'000'000'000;
    std::filesystem::resize_file(System(u"a"), groesse);
    LeseDatei datei(Pfad(u"a"));
    EXPECT_EQ(datei.Groesse(), groesse);
    EXPECT_EQ(AlsText(datei.Lies(groesse - 3, 10)), std::string(3, '\0'));
    EXPECT_EQ(AlsText(datei.Lies(0, 6)), "anfang");
}

TEST_F(LeseDateiTest, GekuerzteDateiGibtWenigerBytes) {
    Datei(u"a", "0123456789");
    LeseDatei datei(Pfad(u"a"));
    std::filesystem::resize_file(System(u"a"), 4);
    EXPECT_EQ(AlsText(datei.Lies(0, 10)), "0123");
    EXPECT_TRUE(datei.Lies(6, 2).empty());
}

TEST_F(LeseDateiTest, WasKeineDateiIstScheitert) {
    Ordner(u"o");
    EXPECT_THROW(LeseDatei(Pfad(u"o")), LaufzeitFehler);
    EXPECT_THROW(LeseDatei(Pfad(u"o/")), LaufzeitFehler);
    EXPECT_THROW(LeseDatei(Pfad(u"fehlt")), LaufzeitFehler);
    EXPECT_THROW(LeseDatei(Pfad(u"fehlt/a")), LaufzeitFehler);
    EXPECT_THROW(LeseDatei(Pfad(u"*")), LaufzeitFehler);
    EXPECT_THROW(LeseDatei(u""), LaufzeitFehler);
}

TEST_F(LeseDateiTest, OhneSpeicherWasDieBibliothekWirft) {
    Datei(u"a", std::string(5000, 'a'));
    LeseDatei datei(Pfad(u"a"));
    groesstesFeld = 4999;
    EXPECT_THROW(datei.Lies(0, 5000), std::bad_alloc);
    groesstesFeld = 5000;
    EXPECT_EQ(datei.Lies(0, 5000).size(), 5000U);
    groesstesFeld = std::numeric_limits<std::size_t>::max();
}

TEST_F(AusgabeDateiTest, StehtErstNachDemAbschlussAnIhremPlatz) {
    const Text pfad = Pfad(u"fehler \u00E4\u20AC.xml");
    AusgabeDatei datei(pfad);
    datei.Schreiben("<SIA451>");
    datei.Schreiben(std::string_view("\0\xFF\r\n", 4));
    EXPECT_EQ(ArtVon(pfad), DateiArt::Nichts);
    EXPECT_TRUE(datei.Abschliessen());
    EXPECT_EQ(Inhalt(u"fehler \u00E4\u20AC.xml"), std::string("<SIA451>\0\xFF\r\n", 12));
    EXPECT_EQ(Anzahl(), 1);
    EXPECT_FALSE(datei.Abschliessen());
    EXPECT_EQ(Anzahl(), 1);
}

TEST_F(AusgabeDateiTest, OhneAbschlussBleibtNichts) {
    {
        AusgabeDatei datei(Pfad(u"a"));
        datei.Schreiben(std::string(3'000'000, 'a')); // more than is collected
    }
    EXPECT_EQ(Anzahl(), 0);
}

TEST_F(AusgabeDateiTest, GrosseUndKleineStueckeInIhrerReihenfolge) {
    std::string erwartet;
    AusgabeDatei datei(Pfad(u"a"));
    for (const std::size_t laenge : {0U, 1U, 700'000U, 348'575U, 1U, 1'048'576U, 1'048'577U, 5U, 3'000'000U, 2U}) {
        const std::string stueck(laenge, static_cast<char>('a' + erwartet.size() % 26));
        datei.Schreiben(stueck);
        erwartet += stueck;
    }
    EXPECT_TRUE(datei.Abschliessen());
    EXPECT_EQ(Inhalt(u"a"), erwartet);
}

TEST_F(AusgabeDateiTest, LeereDatei) {
    EXPECT_TRUE(AusgabeDatei(Pfad(u"a")).Abschliessen());
    EXPECT_EQ(ArtVon(Pfad(u"a")), DateiArt::Datei);
    EXPECT_EQ(Inhalt(u"a"), "");
}

TEST_F(AusgabeDateiTest, ErsetztEineDatei) {
    Datei(u"a", "alt und laenger");
    AusgabeDatei datei(Pfad(u"a"));
    datei.Schreiben("neu");
    EXPECT_EQ(Inhalt(u"a"), "alt und laenger");
    EXPECT_TRUE(datei.Abschliessen());
    EXPECT_EQ(Inhalt(u"a"), "neu");
    EXPECT_EQ(Anzahl(), 1);
}

TEST_F(AusgabeDateiTest, PlatzhalterSindNurWoEsGehtEinName) { // on Linux a name may hold them
    EXPECT_EQ(AusgabeDatei(Pfad(u"a*")).Abschliessen(), PfadTrenner() == u'/');
    EXPECT_EQ(Anzahl(), PfadTrenner() == u'/' ? 1 : 0);
}

TEST_F(AusgabeDateiTest, ErsetztKeinenOrdner) {
    Ordner(u"o");
    EXPECT_FALSE(AusgabeDatei(Pfad(u"o")).Abschliessen());
    AusgabeDatei datei(Pfad(u"p"));
    Ordner(u"p"); // it comes into being while the file is written
    EXPECT_FALSE(datei.Abschliessen());
    EXPECT_EQ(ArtVon(Pfad(u"p")), DateiArt::Ordner);
    EXPECT_EQ(Anzahl(), 2);
}

TEST_F(AusgabeDateiTest, OhneOrdnerScheitertSie) {
    for (const char16_t* name : {u"fehlt/a", u"o/", u""}) {
        AusgabeDatei datei(*name != 0 ? Pfad(name) : Text());
        datei.Schreiben(std::string(3'000'000, 'a'));
        EXPECT_FALSE(datei.Abschliessen()) << Utf8Bytes(name);
    }
    EXPECT_EQ(Anzahl(), 0);
}

TEST_F(AusgabeDateiTest, ZweiNebeneinander) {
    AusgabeDatei a(Pfad(u"a"));
    AusgabeDatei b(Pfad(u"b"));
    a.Schreiben("1");
    b.Schreiben("2");
    EXPECT_TRUE(b.Abschliessen());
    EXPECT_TRUE(a.Abschliessen());
    EXPECT_EQ(Inhalt(u"a") + Inhalt(u"b"), "12");
}

TEST_F(DateiAnlegbarTest, HinterlaesstNichts) {
    EXPECT_TRUE(DateiAnlegbar(Pfad(u"fehler \u00E4.xml")));
    EXPECT_EQ(Anzahl(), 0);
}

TEST_F(DateiAnlegbarTest, WasSchonDaIstBleibtUnberuehrt) {
    Datei(u"a", "alt");
    Ordner(u"o");
    EXPECT_FALSE(DateiAnlegbar(Pfad(u"a")));
    EXPECT_EQ(Inhalt(u"a"), "alt");
    EXPECT_FALSE(DateiAnlegbar(Pfad(u"o")));
    EXPECT_FALSE(DateiAnlegbar(Pfad(u"o/")));
    EXPECT_EQ(Anzahl(), 2);
}

TEST_F(DateiAnlegbarTest, UnmoeglichePfade) {
    EXPECT_FALSE(DateiAnlegbar(u""));
    EXPECT_FALSE(DateiAnlegbar(Pfad(u"fehlt/a")));
    EXPECT_FALSE(DateiAnlegbar(Pfad(u"fehlt/")));
    EXPECT_FALSE(DateiAnlegbar(Pfad(Text(300, u'n'))));
    EXPECT_EQ(Anzahl(), 0);
}

// A folder of 800 characters: beyond the 260 that a plain path may have on Windows.
TEST_F(AusgabeDateiTest, LangePfadeGehenUeberall) {
    const Text ordner = LangerName + u"/" + LangerName + u"/" + LangerName + u"/" + LangerName;
    const Text name = ordner + u"/fehler.xml";
    Ordner(ordner);
    EXPECT_TRUE(OrdnerExistiert(Pfad(ordner)));
    EXPECT_TRUE(OrdnerExistiert(Pfad(ordner + u"/")));
    EXPECT_TRUE(DateiAnlegbar(Pfad(name)));
    AusgabeDatei datei(Pfad(name));
    datei.Schreiben("lang");
    EXPECT_TRUE(datei.Abschliessen());
    EXPECT_TRUE(DateiExistiert(Pfad(name)));
    EXPECT_EQ(Gefunden(ordner + u"/f*"), u"fehler.xml");
    EXPECT_EQ(DateienImOrdner(Pfad(ordner), u"*"), std::vector<Text>{Pfad(name)});
    EXPECT_EQ(AlsText(LeseDatei(Pfad(name)).Lies(0, 10)), "lang");
}

// A name of 255 characters is the longest there is: what stands beside the place must not be longer.
TEST_F(AusgabeDateiTest, LaengsterName) {
    const Text name(255, u'n');
    EXPECT_TRUE(AusgabeDatei(Pfad(name)).Abschliessen());
    EXPECT_TRUE(DateiExistiert(Pfad(name)));
}

TEST(Jetzt, IstDieOrtszeit) {
    const auto minuten = [](std::time_t zeit) {
        const std::tm ort = *std::localtime(&zeit);
        return Zeitpunkt{ort.tm_year + 1900, ort.tm_mon + 1, ort.tm_mday, ort.tm_hour, ort.tm_min};
    };
    const auto alsZahl = [](const Zeitpunkt& z) {
        return (((z.Jahr * 100LL + z.Monat) * 100 + z.Tag) * 100 + z.Stunde) * 100 + z.Minute;
    };
    const long long davor = alsZahl(minuten(std::time(nullptr)));
    const long long jetzt = alsZahl(Jetzt());
    const long long danach = alsZahl(minuten(std::time(nullptr)));
    EXPECT_LE(davor, jetzt);
    EXPECT_LE(jetzt, danach);
}

TEST(Zufallszahlen, BestehenAusZweiVerschiedenen) {
    const auto [eins, zwei] = Zufallszahlen();
    EXPECT_NE(eins, zwei);
    EXPECT_NE(eins, 0U);
    EXPECT_NE(zwei, 0U);
}

TEST(MeldungAusgeben, EineZeileInUtf8) {
    testing::internal::CaptureStderr();
    testing::internal::CaptureStdout();
    MeldungAusgeben(u"Fehler: \u00E4\u20AC\U0001F600");
    EXPECT_FALSE(MeldungIstTerminal());
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    std::string zeile = testing::internal::GetCapturedStderr();
    std::erase(zeile, '\r');
    EXPECT_EQ(zeile, "Fehler: \xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80\n");
}

} // namespace
} // namespace zepholt
