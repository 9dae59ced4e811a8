#include "bericht/Protokolldatei.h"

#include <gtest/gtest.h>

namespace zepholt::bericht {
namespace {

const std::string Anfang = "<?xml version=\"1.0\" encoding=\"iso-8859-1\"?><SIA451><Test>"
                           "<Project ID=\"P-1\">Schulhaus</Project><Document ID=\"\">T\xFCren</Document>"
                           "<Date>2026-11-22</Date><Time>02:53</Time>";
const std::string Mitte = "<Software Manufacturer=\"Muster &amp; Co\">?</Software>"
                          "<Fileformat Version=\"451-92.11\">01s</Fileformat>"
                          "<Testprogram Version=\"4.0\">ZEPHOLT</Testprogram></Test>";
const std::string Schluss = "</SIA451>";
const std::string EinFehler =
    "<Errors><Error L=\"17\" I=\"111.000.100\" N=\"4412\" E=\"A\" F=\"G4:6\" T=\"Text &#8211; d&apos;\"/>"
    "<Error N=\"2041\" E=\"B\" T=\"x\"/></Errors>";

std::string Zahlen(const std::string& fehler, const std::string& warnungen) {
    return "<Errors>" + fehler + "</Errors>" + (warnungen.empty() ? "" : "<Warnings>" + warnungen + "</Warnings>");
}

std::string Ganz(const std::string& fehler = "1", const std::string& warnungen = "1",
                 const std::string& befunde = EinFehler) {
    return Anfang + Zahlen(fehler, warnungen) + Mitte + befunde + Schluss;
}

// How a protocol is refused, or none when it is taken.
std::optional<Meldung> Ablehnungsgrund(const std::string& bytes) {
    try {
        ProtokollAus(bytes, "p.xml");
        return std::nullopt;
    } catch (const Ablehnung& ablehnung) {
        EXPECT_EQ(ablehnung.Status, StatusKeinErgebnis);
        return ablehnung.Grund;
    }
}

TEST(Protokolldatei, HeadAndFindingsAreRead) {
    const Protokoll p = ProtokollAus(Ganz(), "p.xml");
    EXPECT_EQ(p.Projekt, "Schulhaus");
    EXPECT_EQ(p.ProjektNummer, "P-1");
    EXPECT_EQ(p.Dokument, "Türen");
    EXPECT_EQ(p.DokumentNummer, "");
    EXPECT_EQ(p.Datum, "2026-11-22");
    EXPECT_EQ(p.Zeit, "02:53");
    EXPECT_EQ(p.Hersteller, "Muster & Co");
    EXPECT_EQ(p.Software, ""); // "?" stands for an empty text
    EXPECT_EQ(p.Dateiformat, "01s");
    EXPECT_EQ(p.Schnittstelle, "451-92.11");
    ASSERT_EQ(p.Befunde.size(), 2U);
    EXPECT_EQ(p.Befunde[0].Zeile, 17);
    EXPECT_EQ(p.Worte.Wort(p.Befunde[0].Position), "111.000.100");
    EXPECT_EQ(p.Befunde[0].Code, 4412);
    EXPECT_FALSE(p.Befunde[0].IstWarnung);
    EXPECT_EQ(p.Worte.Wort(p.Befunde[0].Feld), "G4:6");
    EXPECT_EQ(p.Worte.Wort(p.Befunde[0].Text), "Text – d'");
    EXPECT_EQ(p.Befunde[1].Zeile, 0);
    EXPECT_TRUE(p.Befunde[1].IstWarnung);
    EXPECT_EQ(p.Fehler, 1);
    EXPECT_EQ(p.Warnungen, 1);
}

TEST(Protokolldatei, TheStatusCountsErrorsOnly) {
    EXPECT_EQ(StatusVon(ProtokollAus(Ganz(), "p")), StatusMitFehlern);
    EXPECT_EQ(StatusVon(ProtokollAus(Ganz("0", "0", ""), "p")), StatusOhneFehler);
    const std::string nurWarnung = "<Errors><Error N=\"2032\" E=\"B\" T=\"x\"/></Errors>";
    EXPECT_EQ(StatusVon(ProtokollAus(Ganz("1", "", nurWarnung), "p")),
              StatusOhneFehler); // an E1S file's head counts it
    const std::string unbekannt = "<Errors><Error N=\"1\" E=\"\" T=\"\"/></Errors>";
    EXPECT_EQ(StatusVon(ProtokollAus(Ganz("1", "0", unbekannt), "p")), StatusMitFehlern);
}

TEST(Protokolldatei, LaidOutByAnEditorItReadsTheSame) {
    std::string bytes =
        "<?xml version='1.0' encoding='UTF-8'?>\n<!-- kept -->\n" + Ganz().substr(Ganz().find("<SIA451>"));
    for (std::size_t stelle = 0; (stelle = bytes.find("><", stelle)) != std::string::npos;) {
        bytes.insert(stelle + 1, "\r\n\t");
    }
    bytes.replace(bytes.find("T\xFCren"), 2, "T\xC3\xBC");
    const Protokoll p = ProtokollAus(bytes + "\n", "p");
    EXPECT_EQ(p.Dokument, "Türen");
    EXPECT_EQ(p.Befunde.size(), 2U);
}

TEST(Protokolldatei, CutAnywhereItIsRefused) {
    const std::string ganz = Ganz();
    for (std::size_t laenge = 0; laenge < ganz.size(); ++laenge) {
        EXPECT_TRUE(Ablehnungsgrund(ganz.substr(0, laenge))) << laenge;
    }
    EXPECT_FALSE(Ablehnungsgrund(ganz));
    EXPECT_EQ(Ablehnungsgrund(ganz.substr(0, ganz.size() - 3)), Meldung::ProtokollAbgeschnitten);
}

TEST(Protokolldatei, AnyByteThatIsLostOrChangedDoesNoHarm) {
    const std::string ganz = Ganz();
    for (std::size_t stelle = 0; stelle < ganz.size(); ++stelle) {
        std::string ohne = ganz;
        ohne.erase(stelle, 1);
        Ablehnungsgrund(ohne);
        for (const char byte : {'\0', '<', '&', '"', '\xFF'}) {
            std::string anders = ganz;
            anders[stelle] = byte;
            Ablehnungsgrund(anders);
        }
    }
}

TEST(Protokolldatei, WhatIsNoProtocolIsRefused) {
    EXPECT_TRUE(Ablehnungsgrund(""));
    EXPECT_TRUE(Ablehnungsgrund("A150926451-9211"));
    EXPECT_EQ(Ablehnungsgrund("<html><body>x</body></html>"), Meldung::KeinProtokoll);
    EXPECT_EQ(Ablehnungsgrund("<SIA451/>"), Meldung::KeinProtokoll);
    EXPECT_EQ(Ablehnungsgrund("<SIA451><Errors/></SIA451>"), Meldung::KeinProtokoll);
    EXPECT_EQ(Ablehnungsgrund(Anfang + Zahlen("0", "0") + "<Extra/>" + Mitte + Schluss), Meldung::KeinProtokoll);
    EXPECT_EQ(Ablehnungsgrund(Ganz("x")), Meldung::KeinProtokoll);
    EXPECT_EQ(Ablehnungsgrund(Ganz("1", "1", "<Errors><Error E=\"A\" T=\"\"/></Errors>")), Meldung::KeinProtokoll);
    EXPECT_EQ(Ablehnungsgrund("<!DOCTYPE SIA451 [<!ENTITY a \"b\">]>" + Ganz().substr(Ganz().find("<SIA451>"))),
              Meldung::ProtokollBeschaedigt);
    EXPECT_EQ(Ablehnungsgrund(Ganz() + "<SIA451/>"), Meldung::ProtokollBeschaedigt);
}

TEST(Protokolldatei, AHeadThatCountsOtherwiseIsAContradiction) {
    EXPECT_EQ(Ablehnungsgrund(Ganz("2", "1")), Meldung::ProtokollWiderspruch);
    EXPECT_EQ(Ablehnungsgrund(Ganz("1", "0")), Meldung::ProtokollWiderspruch);
    EXPECT_EQ(Ablehnungsgrund(Ganz("1", "1", "")), Meldung::ProtokollWiderspruch);
    EXPECT_FALSE(Ablehnungsgrund(Ganz("2", ""))); // together, as in an E1S file
}

TEST(Protokolldatei, TheLanguageIsThatOfItsMessages) {
    const auto sprache = [](const std::string& text) {
        return ProtokollAus(Ganz("1", "0", "<Errors><Error N=\"1002\" E=\"A\" T=\"" + text + "\"/></Errors>"), "p")
            .Textsprache();
    };
    EXPECT_EQ(sprache("Unerkannter Parameter"), Sprache::Deutsch);
    EXPECT_EQ(sprache("Param\xE8tre non reconnu"), Sprache::Franzoesisch);
    EXPECT_EQ(sprache("Parametro non riconosciuto"), Sprache::Italienisch);
    EXPECT_EQ(sprache("anything"), Sprache::Deutsch);
}

TEST(Protokolldatei, APositionIsNineDigits) {
    EXPECT_EQ(Positionsnummer("241.211.001"), 241211001);
    EXPECT_EQ(Positionsnummer("000.000.000"), 0);
    EXPECT_EQ(Positionsnummer("241.211.00"), std::nullopt);
    EXPECT_EQ(Positionsnummer("241-211-001"), std::nullopt);
    EXPECT_EQ(Positionsnummer("241.2a1.001"), std::nullopt);
    EXPECT_EQ(Positionsnummer(""), std::nullopt);
}

} // namespace
} // namespace zepholt::bericht
