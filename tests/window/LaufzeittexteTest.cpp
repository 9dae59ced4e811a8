// What a run-time failure is called, and that every cause in the sources has its words.
#include "window/Laufzeittexte.h"

#include "run/NeuerLauf.h"
#include "support/HilfsFunktionen.h"
#include "window/DialogDeFrIt.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>

namespace zepholt {
namespace {

class LaufzeittexteTest : public testing::Test {
protected:
    LaufzeittexteTest() { NeuerLauf(); }
};

TEST_F(LaufzeittexteTest, GermanWhileThereIsNoLanguage) {
    for (const std::int32_t sprache : {0, 1, 4, -1}) {
        dialogDeFrIt.DialogSprache = sprache;
        EXPECT_EQ(LaufzeitMeldung("number out of range"),
                  "ZEPHOLT: Laufzeitfehler: Zahl ausserhalb des zulässigen Bereichs");
        EXPECT_EQ(SpeicherMeldung(), "ZEPHOLT: Laufzeitfehler: der Speicher reicht nicht aus");
    }
}

TEST_F(LaufzeittexteTest, FrenchAndItalian) {
    dialogDeFrIt.DialogSprache = 2;
    EXPECT_EQ(LaufzeitMeldung("number out of range"), "ZEPHOLT: erreur d’exécution : nombre hors des limites admises");
    EXPECT_EQ(SpeicherMeldung(), "ZEPHOLT: erreur d’exécution : la mémoire ne suffit pas");
    dialogDeFrIt.DialogSprache = 3;
    EXPECT_EQ(LaufzeitMeldung("number out of range"), "ZEPHOLT: errore di esecuzione: numero fuori dai limiti ammessi");
    EXPECT_EQ(SpeicherMeldung(), "ZEPHOLT: errore di esecuzione: la memoria non è sufficiente");
}

TEST_F(LaufzeittexteTest, CausesJoinedByACommaAndAPlaceBehindThem) {
    EXPECT_EQ(LaufzeitMeldung("catalogue file damaged, a field of the head is no number: k/N\xE4.qvm"),
              "ZEPHOLT: Laufzeitfehler: Katalogdatei beschädigt, ein Feld des Kopfes ist keine Zahl: k/Nä.qvm");
    dialogDeFrIt.DialogSprache = 2;
    EXPECT_EQ(LaufzeitMeldung("catalogue file damaged, the file ends inside an abbreviation: not a number, x"),
              "ZEPHOLT: erreur d’exécution : fichier du catalogue endommagé, le fichier se termine dans une "
              "abréviation: not a number, x");
}

TEST_F(LaufzeittexteTest, UnknownCauseStays) {
    EXPECT_EQ(LaufzeitMeldung("vector::reserve"), "ZEPHOLT: Laufzeitfehler: vector::reserve");
    EXPECT_EQ(LaufzeitMeldung(""), "ZEPHOLT: Laufzeitfehler: ");
}

TEST_F(LaufzeittexteTest, MessageIsOneLineAndActsOnNoTerminal) {
    EXPECT_EQ(LaufzeitMeldung("not a number: a\nb\x1B[2J\x7F\x9B\xA0"),
              "ZEPHOLT: Laufzeitfehler: keine Zahl: a?b?[2J??\u00A0");
}

// The text of a failure stands in its throw, or is handed to what throws it.
TEST_F(LaufzeittexteTest, EveryCauseInTheSourcesHasItsWords) {
    const std::regex wurf("(?:throw LaufzeitFehler\\(|OderFehler\\([^;]*,\\s*)\"([^\"]+)\"");
    int gefunden = 0;
    for (const auto& eintrag : std::filesystem::recursive_directory_iterator(ZEPHOLT_QUELLE "/src")) {
        if (eintrag.path().extension() != ".cpp") {
            continue;
        }
        std::ifstream datei(eintrag.path());
        const std::string quelle{std::istreambuf_iterator<char>(datei), {}};
        for (std::sregex_iterator fund(quelle.begin(), quelle.end(), wurf), ende; fund != ende; ++fund) {
            std::string was = (*fund)[1];
            was.resize(std::min(was.size(), was.find_last_not_of(", ") + 1));
            ++gefunden;
            EXPECT_EQ(LaufzeitMeldung(was).find(was), std::string::npos) << was << ", " << eintrag.path();
        }
    }
    EXPECT_GE(gefunden, 15);
}

} // namespace
} // namespace zepholt
