// The tables of the two forms and their captions in the three languages, against what is laid down.
#include "window/Formulare.h"

#include "hilfen/Formularwerte.h"
#include "run/NeuerLauf.h"
#include "state/TestDaten.h"
#include "window/DialogDeFrIt.h"
#include "window/Formulartexte.h"

#include <gtest/gtest.h>

namespace zepholt {
namespace {

using namespace hilfen;

class FormulareTest : public testing::Test {
protected:
    FormulareTest() {
        NeuerLauf();
        testDaten.Version = u"4.0";
    }
};

void PruefeTabelle(const Formular& formular, const Formularwerte& erwartet) {
    EXPECT_STREQ(formular.Name, erwartet.Name);
    EXPECT_EQ(Text(formular.Titel), erwartet.Titel);
    EXPECT_EQ(formular.Breite, erwartet.Breite);
    EXPECT_EQ(formular.Hoehe, erwartet.Hoehe);
    ASSERT_EQ(static_cast<std::size_t>(formular.Anzahl), erwartet.Elemente.size());
    for (std::int32_t i = 0; i < formular.Anzahl; ++i) {
        const Steuerelement& e = formular.Elemente[i];
        const Formularwert& wert = erwartet.Elemente[static_cast<std::size_t>(i)];
        SCOPED_TRACE(wert.Name);
        EXPECT_STREQ(e.Name, wert.Name);
        EXPECT_EQ(e.Art, wert.Art);
        EXPECT_STREQ(e.Eltern < 0 ? "" : formular.Elemente[e.Eltern].Name, wert.Eltern);
        EXPECT_EQ(e.Links, wert.Links);
        EXPECT_EQ(e.Oben, wert.Oben);
        EXPECT_EQ(e.Breite, wert.Breite);
        EXPECT_EQ(e.Hoehe, wert.Hoehe);
        EXPECT_EQ(e.TabPlatz, i);
    }
}

TEST_F(FormulareTest, TablesHoldEveryControlAtItsPlace) {
    PruefeTabelle(frmZEPHOLT, Hauptwerte());
    PruefeTabelle(frmInfo, Infowerte());
}

void PruefeTexte(const Formulartexte& texte, const Formularwerte& erwartet, std::int32_t sprache) {
    EXPECT_EQ(texte.Titel, erwartet.Titel);
    ASSERT_EQ(texte.Elemente.size(), erwartet.Elemente.size());
    for (std::size_t i = 0; i < texte.Elemente.size(); ++i) {
        const Formularwert& wert = erwartet.Elemente[i];
        if (std::string_view(wert.Name) != "lblCopyright") {
            EXPECT_EQ(texte.Elemente[i], wert.Text[sprache - 1]) << wert.Name;
        }
    }
}

TEST_F(FormulareTest, CaptionsAndTheSuppliersLineInEachLanguage) {
    for (const std::int32_t sprache : {1, 2, 3}) {
        SpracheSetzen(sprache);
        PruefeTexte(TexteHaupt(), Hauptwerte(), sprache);
        PruefeTexte(TexteInfo(), Infowerte(), sprache);
        EXPECT_EQ(TexteInfo().Elemente[Infoformular::lblCopyright], InfoText());
    }
}

// As designed the captions are German: the key of the translation.
TEST_F(FormulareTest, DesignedCaptionsAreTheGermanOnes) {
    for (std::int32_t i = 0; i < frmZEPHOLT.Anzahl; ++i) {
        EXPECT_EQ(Text(frmZEPHOLT.Elemente[i].Text), Hauptwerte().Elemente[static_cast<std::size_t>(i)].Text[0]);
    }
    EXPECT_EQ(Text(frmInfo.Elemente[Infoformular::lblProgrammhersteller].Text), u"Programmhersteller");
    EXPECT_EQ(Text(frmInfo.Elemente[Infoformular::cmdOK].Text), u"OK");
}

} // namespace
} // namespace zepholt
