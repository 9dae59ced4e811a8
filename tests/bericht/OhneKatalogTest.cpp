// The page of a test without a catalogue: it says what is not tested, and claims no more.
#include "Berichtstest.h"
#include "bericht/Ausgabe.h"
#include "bericht/Seite.h"

namespace zepholt::bericht {
namespace {

class OhneKatalogTest : public Berichtstest {
protected:
    std::string Seite(const std::vector<std::string>& befunde, bool ohneKatalog) {
        const Austauschdatei datei = Datei({A, G("211001", "6"), Z});
        const Protokoll protokoll = ProtokollMit(befunde);
        Ausgabe ausgabe(m_ordner.TextPfad("seite.html"));
        SeiteSchreiben(protokoll, datei, {Sprache::Deutsch, ohneKatalog ? "" : "VLT", "", ohneKatalog}, ausgabe);
        ausgabe.Abschliessen();
        const std::string seite = m_ordner.Lies("seite.html");
        return seite.substr(0, seite.find("</header>"));
    }
};

constexpr const char* Fehler = R"(L="2" I="241.211.001" N="4611" E="A" F="G6:13")";
constexpr const char* Abweisung = R"(N="2001" E="A")";
constexpr const char* Hinweis = "Ohne Katalog geprüft: ";
constexpr const char* Keiner = "<dd data-t=\"katalog0\">keiner</dd>";

bool Enthaelt(const std::string& text, std::string_view teil) {
    return text.find(teil) != std::string::npos;
}

TEST_F(OhneKatalogTest, AFileWithoutErrorsIsInOrderAsFarAsItWasTested) {
    const std::string seite = Seite({}, true);
    EXPECT_TRUE(Enthaelt(seite, "<b data-t=\"ordnung.ohne\">Soweit geprüft in Ordnung</b>"));
    EXPECT_TRUE(Enthaelt(seite, "class=\"urteil ordnung ohne\""));
    EXPECT_TRUE(Enthaelt(seite, Hinweis));
    EXPECT_TRUE(Enthaelt(seite, Keiner));
}

TEST_F(OhneKatalogTest, WithACatalogueItIsInOrder) {
    const std::string seite = Seite({}, false);
    EXPECT_TRUE(Enthaelt(seite, "<b data-t=\"ordnung\">In Ordnung</b>"));
    EXPECT_TRUE(Enthaelt(seite, "class=\"urteil ordnung\""));
    EXPECT_TRUE(Enthaelt(seite, "<dd>VLT</dd>"));
    EXPECT_FALSE(Enthaelt(seite, Hinweis));
    EXPECT_FALSE(Enthaelt(seite, Keiner));
}

TEST_F(OhneKatalogTest, AFaultyFileHasItsVerdictAndTheNote) {
    const std::string seite = Seite({Fehler}, true);
    EXPECT_TRUE(Enthaelt(seite, "<b data-t=\"fehlerhaft\">Fehlerhaft</b>"));
    EXPECT_TRUE(Enthaelt(seite, Hinweis));
}

TEST_F(OhneKatalogTest, OfARefusedFileNothingWasTestedAnyway) {
    const std::string seite = Seite({Abweisung}, true);
    EXPECT_TRUE(Enthaelt(seite, "data-t=\"dazu.abgewiesen\""));
    EXPECT_FALSE(Enthaelt(seite, Hinweis));
}

} // namespace
} // namespace zepholt::bericht
