// The texts of the dialog language, row by row, and the lookup's rules.
#include "window/DialogDeFrIt.h"

#include "run/NeuerLauf.h"
#include "state/TestDaten.h"

#include <gtest/gtest.h>

namespace zepholt {
namespace {

class DialogDeFrItTest : public testing::Test {
protected:
    void SetUp() override {
        NeuerLauf();
        testDaten.Version = u"4.0";
    }
};

struct Fall {
    TextSicht Deutsch;
    TextSicht Franzoesisch;
    TextSicht Italienisch;
};

constexpr Fall Texte[] = {
    {u"Schreibt Fehlerprotokoll", u"Journal des erreurs - Transcription en cours", u"Scrittura protocollo errori"},
    {u"Liest Austauschdatei ein", u"Fichier de transfert - Lecture en cours", u"Lettura file di scambio"},
    {u"Testet Dokument", u"Document - Test en cours", u"Esecuzione test documento"},
    {u"Testet VLT-Kapitel", u"Chapitre BRQ - Test en cours", u"Esecuzione test capitolo DXM"},
    {u"Soll der Test abgebrochen werden?", u"Le test doit-il être interrompu?", u"Il test deve venir interrotto?"},
    {u"ZEPHOLT Version 4.0", u"ZEPHOLT Version 4.0", u"ZEPHOLT Versione 4.0"},
    {u"Austauschdatei", u"Fichier de transfert", u"File di scambio"},
    {u"Projekt", u"Projet", u"Progetto"},
    {u"Dokument", u"Document", u"Documento"},
    {u"Fortschritt", u"Progression", u"Avanzamento"},
    {u"Info", u"Info", u"Info"},
    {u"Abbrechen", u"Interrompre", u"Interruzione"},
    {u"Dieses Programm testet Austauschdateien gemäss UbR'92",
     u"Ce programme teste les fichiers de transfert selon Ubr'92", u"Questo programma esegue il test secondo Ubr'92"},
    {u"Programmhersteller", u"Fournisseur du logiciel", u"Produttore del programma"},
    {u"OK", u"OK", u"OK"},
};

TEST_F(DialogDeFrItTest, EachTextInEachLanguage) {
    for (const Fall& fall : Texte) {
        SpracheSetzen(1);
        EXPECT_EQ(fall.Deutsch, Uebersetze(fall.Deutsch));
        SpracheSetzen(2);
        EXPECT_EQ(fall.Franzoesisch, Uebersetze(fall.Deutsch));
        SpracheSetzen(3);
        EXPECT_EQ(fall.Italienisch, Uebersetze(fall.Deutsch));
    }
}

TEST_F(DialogDeFrItTest, TableIsBuiltAfreshWithTheVersionRowTwice) {
    SpracheSetzen(3);
    SpracheSetzen(3);
    ASSERT_EQ(16U, dialogDeFrIt.TextTabelle.size());
    EXPECT_EQ(u"ZEPHOLT Versione 4.0", dialogDeFrIt.TextTabelle[5].Italienisch);
    EXPECT_EQ(u"ZEPHOLT Versione 4.0", dialogDeFrIt.TextTabelle[12].Italienisch);
}

TEST_F(DialogDeFrItTest, KeyIsExactInCase) {
    SpracheSetzen(3);
    EXPECT_EQ(u"Documento", Uebersetze(u"Dokument"));
    EXPECT_EQ(u"dokument", Uebersetze(u"dokument"));
}

TEST_F(DialogDeFrItTest, EmptyTextStaysEmptyEvenWhenARowIsEmpty) {
    for (const std::int32_t sprache : {1, 2, 3}) {
        SpracheSetzen(sprache);
        TextHinzufuegen(u"", u"vide", u"vuoto");
        EXPECT_EQ(u"", Uebersetze(u""));
    }
}

TEST_F(DialogDeFrItTest, TextWithoutARowStays) {
    for (const std::int32_t sprache : {1, 2, 3}) {
        SpracheSetzen(sprache);
        EXPECT_EQ(u"QVM-Test: SIA451", Uebersetze(u"QVM-Test: SIA451"));
        EXPECT_EQ(u"Documento", Uebersetze(u"Documento"));
    }
}

TEST_F(DialogDeFrItTest, LanguageOutsideOneToThreeTranslatesNothing) {
    for (const std::int32_t sprache : {0, 4, -1}) {
        SpracheSetzen(sprache);
        EXPECT_EQ(u"Dokument", Uebersetze(u"Dokument"));
    }
}

TEST_F(DialogDeFrItTest, OfTwoRowsTheFirstServes) {
    SpracheSetzen(2);
    TextHinzufuegen(u"Dokument", u"autre", u"altro");
    EXPECT_EQ(u"Document", Uebersetze(u"Dokument"));
}

TEST_F(DialogDeFrItTest, InfoTextHasFourParagraphsInEachLanguage) {
    Text texte[3];
    for (const std::int32_t sprache : {1, 2, 3}) {
        SpracheSetzen(sprache);
        Text& text = texte[sprache - 1];
        text = InfoText();
        std::size_t leerzeilen = 0;
        for (std::size_t ab = 0; (ab = text.find(u"\r\n\r\n", ab)) != Text::npos; ab += 4) {
            ++leerzeilen;
        }
        EXPECT_EQ(3U, leerzeilen);
        EXPECT_EQ(Text::npos, text.find(u"\r\n\r\n\r\n"));
        EXPECT_EQ(0U, text.find(u"Copyright © "));
    }
    EXPECT_NE(texte[0], texte[1]);
    EXPECT_NE(texte[1], texte[2]);
    EXPECT_NE(texte[0], texte[2]);
}

TEST_F(DialogDeFrItTest, InfoTextSetsALanguageOutsideOneToThreeToGerman) {
    SpracheSetzen(1);
    const Text deutsch = InfoText();
    for (const std::int32_t sprache : {0, 4, -1}) {
        SpracheSetzen(sprache);
        EXPECT_EQ(deutsch, InfoText());
        EXPECT_EQ(1, dialogDeFrIt.DialogSprache);
    }
}

} // namespace
} // namespace zepholt
