#include "bericht/Listen.h"
#include "Berichtstest.h"
#include "bericht/Meldungen.h"
#include "bericht/Seite.h"
#include "bericht/Seitentexte.h"

namespace zepholt::bericht {
namespace {

class ListenTest : public Berichtstest {
protected:
    template <class Schreiber>
    std::string Geschrieben(Schreiber schreiber) const {
        Ausgabe ausgabe(m_ordner.TextPfad("aus"));
        schreiber(ausgabe);
        ausgabe.Abschliessen();
        return m_ordner.Lies("aus");
    }

    const Protokoll m_protokoll = ProtokollMit(
        {R"(L="2" I="241.211.001" N="4611" E="A" F="G6:13")", R"(N="2041" E="B")"}, "=SUM(1;&quot;2&quot;)");
};

TEST_F(ListenTest, ASpreadsheetComputesNothing) {
    EXPECT_EQ(
        Geschrieben([&](Ausgabe& aus) { CsvSchreiben(m_protokoll, nullptr, Sprache::Deutsch, aus); }),
        "\xEF\xBB\xBFProjekt;Dokument;Position;Zeile;Feld;Feldname;Spalte;Code;Schwere;Meldung\r\n"
        "\"P-1 =SUM(1;\"\"2\"\")\";;241.211.001;2;G6:13;Mengenart;44;4611;A;Code Mengenart nicht gemäss UbR\r\n"
        "\"P-1 =SUM(1;\"\"2\"\")\";;;;;;;2041;B;Undefinierter Recordtyp in der Datei (z.B. D0, G9 oder Leerzeile)\r\n");
    Protokoll formel = ProtokollMit({R"(N="2041" E="B")"}, "x");
    formel.ProjektNummer = "=1+1";
    EXPECT_NE(
        Geschrieben([&](Ausgabe& aus) { CsvSchreiben(formel, nullptr, Sprache::Deutsch, aus); }).find("\r\n'=1+1 x;"),
        std::string::npos);
}

TEST_F(ListenTest, AnObjectPerFinding) {
    EXPECT_EQ(
        Geschrieben([&](Ausgabe& aus) { JsonlSchreiben(m_protokoll, nullptr, Sprache::Franzoesisch, aus); }),
        "{\"project\":\"P-1 "
        "=SUM(1;\\\"2\\\")\",\"document\":\"\",\"position\":\"241.211.001\",\"line\":2,\"field\":\"G6:13\","
        "\"fieldName\":\"Genre de quantité\",\"column\":44,\"lastColumn\":44,\"code\":4611,\"severity\":\"A\","
        "\"text\":\"" +
            Befundtext(m_protokoll, m_protokoll.Befunde[0], Sprache::Franzoesisch) +
            "\"}\n"
            "{\"project\":\"P-1 =SUM(1;\\\"2\\\")\",\"document\":\"\",\"position\":null,\"line\":null,\"field\":null,"
            "\"fieldName\":null,\"column\":null,\"lastColumn\":null,\"code\":2041,\"severity\":\"B\","
            "\"text\":\"" +
            Befundtext(m_protokoll, m_protokoll.Befunde[1], Sprache::Franzoesisch) + "\"}\n");
}

TEST_F(ListenTest, ATerminalSeesNoControls) {
    Protokoll boese = ProtokollMit({R"(N="77" E="A")"});
    boese.Projekt = "a\x1B[31mb\xE2\x80\xAE";
    EXPECT_EQ(Geschrieben([&](Ausgabe& aus) { TabelleSchreiben(boese, Sprache::Deutsch, aus); }),
              "Projekt: P-1 a?[31mb?   Dokument:    Fehler: 1   Warnungen: 0\n"
              "ohne Zeile                        77 A  \n");
}

TEST_F(ListenTest, ACodeIsExplained) {
    const auto erklaert = [this](std::int32_t code, Sprache sprache) {
        return Geschrieben([&](Ausgabe& aus) { CodeSchreiben(Erklaerung(code, sprache), sprache, aus); });
    };
    const std::string deutsch = erklaert(4504, Sprache::Deutsch);
    EXPECT_TRUE(deutsch.starts_with("4504  Fehler (A)\nMengeneinheit ist nicht zulässig gemäss UbR\n"
                                    "Mengeneinheit (G5:16)\n\n|"))
        << deutsch;
    EXPECT_NE(deutsch.find("\n## So beheben Sie es\n"), std::string::npos);
    const std::string italienisch = erklaert(1001, Sprache::Italienisch);
    EXPECT_TRUE(italienisch.starts_with("1001\nProblema generale nei parametri di chiamata\n\n|")) << italienisch;
    EXPECT_NE(italienisch.find("\n## Come correggere\n"), std::string::npos);
}

TEST_F(ListenTest, ThePageHoldsEachFindingOnceInItsPlainPart) {
    const Austauschdatei datei = Datei({A, G("211001", "6"), Z});
    const Protokoll p = ProtokollMit({R"(L="2" I="241.211.001" N="4611" E="A" F="G6:13")", R"(N="2041" E="B")"});
    const std::string seite = Geschrieben([&](Ausgabe& aus) {
        SeiteSchreiben(p, datei, {Sprache::Deutsch, "katalog", ""}, aus);
    });
    EXPECT_NE(seite.find("<li class=\"A\" id=\"c4611\">"), std::string::npos);
    EXPECT_NE(seite.find("<li class=\"B\" id=\"c2041\">"), std::string::npos);
    EXPECT_NE(seite.find("Mengenart (G6:13, Spalte 44)"), std::string::npos);
    EXPECT_EQ(seite.find("http://"), std::string::npos);
    EXPECT_EQ(seite.find("https://"), std::string::npos);
    EXPECT_EQ(seite.find(" style="), std::string::npos); // the policy would refuse it
    EXPECT_EQ(seite.find("{0}</"), std::string::npos);
}

TEST_F(ListenTest, AnUnwritablePlaceIsRefusedAndKeepsNothing) {
    Ausgabe ausgabe(m_ordner.TextPfad("nirgends/seite.html"));
    ausgabe.Schreiben("x");
    EXPECT_THROW(ausgabe.Abschliessen(), Ablehnung);
    EXPECT_FALSE(m_ordner.Hat("nirgends"));
}

TEST_F(ListenTest, EveryWordOfThePageStandsInThreeLanguages) {
    for (const Seitentext& text : Seitentexte()) {
        for (const std::string_view wort : text.Texte) {
            EXPECT_FALSE(wort.empty()) << text.Schluessel;
            for (const std::string_view platz : {"{0}", "{1}", "{2}", "{3}"}) {
                EXPECT_EQ(wort.find(platz) == std::string_view::npos,
                          text.Texte[0].find(platz) == std::string_view::npos)
                    << text.Schluessel;
            }
        }
    }
    for (int meldung = 0; meldung <= static_cast<int>(Meldung::KeinSpeicher); ++meldung) {
        for (const Sprache sprache : {Sprache::Deutsch, Sprache::Franzoesisch, Sprache::Italienisch}) {
            EXPECT_FALSE(MeldungsText(static_cast<Meldung>(meldung), sprache).empty()) << meldung;
        }
    }
}

} // namespace
} // namespace zepholt::bericht
