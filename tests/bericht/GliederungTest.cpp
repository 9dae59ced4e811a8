#include "bericht/Gliederung.h"
#include "Berichtstest.h"

namespace zepholt::bericht {
namespace {

class GliederungTest : public Berichtstest {
protected:
    // Each section as its kind, its position, and in brackets the lines of its records.
    static std::vector<std::string> Bild(const Gliederung& gliederung) {
        std::vector<std::string> bild;
        for (const Abschnitt& abschnitt : gliederung.Abschnitte) {
            std::string text = abschnitt.Art + (abschnitt.Position > 0 ? " " + PositionsText(abschnitt.Position) : "");
            if (abschnitt.Bis > abschnitt.Von) {
                text += " -";
            }
            for (std::uint32_t e = abschnitt.ErsterEintrag; e < abschnitt.EndeEintraege; ++e) {
                text += " " + std::to_string(gliederung.Eintraege[e].Zeile);
            }
            bild.push_back(text);
        }
        return bild;
    }

    const std::vector<std::string> m_saetze = {A,
                                               Satz({{1, "B002"}, {42, "0"}}),
                                               Satz({{1, "G241 20"}, {42, "1"}, {93, "Mauern"}}),
                                               G("210000", "2", "Backstein"),
                                               G("211001", "2"),
                                               G("211001", "3", "Dicke 24 cm"),
                                               G("211001", "6"),
                                               G("212001", "2"),
                                               Satz({{1, "X241"}, {8, "211001"}, {42, "4"}}),
                                               "D0",
                                               Z};
};

TEST_F(GliederungTest, AnEmptyFileHasTheOneLineThatItIsRefusedFor) {
    EXPECT_EQ(Datei({}).Zeilenzahl(), 1);
    EXPECT_EQ(Datei({}).Zeile(1), u"");
    EXPECT_EQ(Datei({A}).Zeilenzahl(), 1);
    const Gliederung gliederung = GliederungVon(ProtokollMit({R"(L="1" N="2001" E="A")"}), Datei({}));
    EXPECT_EQ(gliederung.Eintraege.size(), 1U);
}

TEST_F(GliederungTest, FindingsStandByPositionAndLineInTheOrderOfTheFile) {
    const Protokoll p =
        ProtokollMit({R"(L="1" N="3101" E="A")", R"(L="2" N="3201" E="A")", R"(L="3" I="241.000.000" N="4102" E="A")",
                      R"(L="5" N="3001" E="A")", R"(L="7" I="241.211.001" N="4611" E="A")",
                      R"(L="7" I="241.211.001" N="4613" E="A")", R"(L="9" N="4252" E="A")", R"(L="10" N="2031" E="A")",
                      R"(L="11" N="3002" E="A")"});
    const std::vector<std::string> soll = {"A 1",  "B 2", "G 241.000.000 3", "G 241.211.001 5 7", "X 241.211.001 9",
                                           "U 10", "Z 11"};
    EXPECT_EQ(Bild(GliederungVon(p, Datei(m_saetze))), soll);
}

TEST_F(GliederungTest, AFindingWithoutALineStandsAtItsPosition) {
    const Protokoll p =
        ProtokollMit({R"(L="8" I="241.212.001" N="4221" E="A")", R"(I="241.211.001" N="4721" E="A")",
                      R"(I="241.000.000" N="6101" E="A")", R"(I="999.000.000" N="6101" E="A")", R"(N="2041" E="A")"});
    const Gliederung gliederung = GliederungVon(p, Datei(m_saetze));
    const std::vector<std::string> soll = {"D -", "G 241.000.000 -", "G 241.211.001 -", "G 241.212.001 8",
                                           "G 999.000.000 -"};
    EXPECT_EQ(Bild(gliederung), soll);
    EXPECT_EQ(gliederung.Abschnitte[0].Umgebung, std::vector<std::int32_t>{9}); // X is none of 451-92; D is free
    EXPECT_EQ(gliederung.Abschnitte[1].Umgebung, std::vector<std::int32_t>{3});
    EXPECT_EQ(gliederung.Abschnitte[2].Umgebung, (std::vector<std::int32_t>{5, 6, 7}));
    EXPECT_EQ(gliederung.Abschnitte[4].UmgebungAnzahl, 0);
}

TEST_F(GliederungTest, UndefinedRecordsAreNamedWhereTheyStand) {
    std::vector<std::string> saetze = m_saetze;
    saetze[9] = "F0";
    saetze.insert(saetze.end() - 1, "");
    const Gliederung gliederung = GliederungVon(ProtokollMit({R"(N="2041" E="A")"}), Datei(saetze));
    // The X record is one of the new interface only.
    EXPECT_EQ(gliederung.Abschnitte[0].Umgebung, (std::vector<std::int32_t>{9, 10, 11}));
}

TEST_F(GliederungTest, APositionTellsWhereItIs) {
    const Gliederung gliederung =
        GliederungVon(ProtokollMit({R"(L="7" I="241.211.001" N="4611" E="A")"}), Datei(m_saetze));
    std::vector<std::string> orte;
    for (const std::uint32_t ort : gliederung.Abschnitte[0].Herkunft) {
        orte.push_back(gliederung.Orte.Wort(ort));
    }
    EXPECT_EQ(orte, (std::vector<std::string>{"241 Mauern (2020)", "210.000 Backstein", "211.001 Dicke 24 cm"}));
    EXPECT_EQ(gliederung.Kapitel, std::vector<std::string>{"241 Mauern (2020)"});
}

TEST_F(GliederungTest, AProtocolOfAnotherFileIsRefused) {
    const Austauschdatei datei = Datei(m_saetze);
    const auto grund = [&](const std::string& befund) -> std::optional<Meldung> {
        try {
            GliederungVon(ProtokollMit({befund}), datei);
            return std::nullopt;
        } catch (const Ablehnung& ablehnung) {
            return ablehnung.Grund;
        }
    };
    EXPECT_EQ(grund(R"(L="11" N="3002" E="A")"), std::nullopt);
    EXPECT_EQ(grund(R"(L="12" N="3002" E="A")"), Meldung::AndereZeile);
    EXPECT_EQ(grund(R"(L="5" I="241.211.001" N="4221" E="A")"), std::nullopt);
    EXPECT_EQ(grund(R"(L="5" I="241.211.002" N="4221" E="A")"), Meldung::AndereZeile);
    EXPECT_EQ(grund(R"(L="2" I="241.211.001" N="4221" E="A")"), Meldung::AndereZeile);
    EXPECT_EQ(grund(R"(L="2" I="241.211.001" N="2022" E="A")"), std::nullopt); // its lines were sorted for the protocol

    EXPECT_NO_THROW(ZusammengehoerigkeitPruefen(ProtokollMit({}), datei));
    EXPECT_NO_THROW(
        ZusammengehoerigkeitPruefen(ProtokollMit({}, "?"), datei)); // a refused file's protocol knows nothing
    EXPECT_THROW(ZusammengehoerigkeitPruefen(ProtokollMit({}, "Turnhalle"), datei), Ablehnung);
}

TEST_F(GliederungTest, AnyFileCanBeAsked) {
    for (const std::vector<std::string>& saetze : {std::vector<std::string>{}, {""}, {"G"}, {std::string(5000, 'G')}}) {
        const Austauschdatei datei = Datei(saetze);
        EXPECT_EQ(datei.Zeilenzahl(), saetze.empty() ? 1 : static_cast<std::int32_t>(saetze.size()));
        EXPECT_NO_THROW(GliederungVon(ProtokollMit({R"(N="2001" E="A")"}), datei));
        EXPECT_NO_THROW(GliederungVon(ProtokollMit({R"(L="1" N="2002" E="A")"}), datei)); // also of an empty file
    }
    m_ordner.Schreibe("rest.01S", "A\nB"); // no carriage returns, and none of the last line
    const Austauschdatei datei(m_ordner.TextPfad("rest.01S"), false);
    EXPECT_EQ(datei.Zeilenzahl(), 2);
    EXPECT_EQ(datei.Zeile(2), u"B");
}

} // namespace
} // namespace zepholt::bericht
