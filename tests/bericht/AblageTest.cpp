#include "bericht/Ablage.h"

#include "hilfen/Testordner.h"

#include <gtest/gtest.h>

namespace zepholt::bericht {
namespace {

class AblageTest : public testing::Test {
protected:
    bool Verfuegbar() const {
        return IstVerfuegbar(m_ordner.TextPfad("seite.html"), m_ordner.TextPfad("protokoll.xml"));
    }
    static std::string Seite(const std::string& protokoll) {
        const std::span bytes(reinterpret_cast<const unsigned char*>(protokoll.data()), protokoll.size());
        return "<!DOCTYPE html>\n" + Ablagevermerk(Kennzahl(bytes)) + "<p>";
    }

    hilfen::Testordner m_ordner;
};

TEST_F(AblageTest, ThePublishedValuesOfTheSum) {
    EXPECT_EQ(Kennzahl({}), "cbf29ce484222325");
    const unsigned char a[] = {'a'};
    EXPECT_EQ(Kennzahl(a), "af63dc4c8601ec8c");
}

TEST_F(AblageTest, FreePlacesMayBeUsed) {
    EXPECT_TRUE(Verfuegbar());
}

TEST_F(AblageTest, AProtocolWithoutAPageIsSomeoneElses) {
    m_ordner.Schreibe("protokoll.xml", "x");
    EXPECT_FALSE(Verfuegbar());
}

TEST_F(AblageTest, APageWithoutTheMarkIsSomeoneElses) {
    m_ordner.Schreibe("seite.html", "<!DOCTYPE html>\n<p>");
    EXPECT_FALSE(Verfuegbar());
}

TEST_F(AblageTest, APageAndItsProtocolMayBeReplaced) {
    m_ordner.Schreibe("seite.html", Seite("x"));
    EXPECT_TRUE(Verfuegbar());
    m_ordner.Schreibe("protokoll.xml", "x");
    EXPECT_TRUE(Verfuegbar());
    m_ordner.Schreibe("protokoll.xml", "y"); // changed since
    EXPECT_FALSE(Verfuegbar());
}

TEST_F(AblageTest, AMarkBehindTheHeadIsNone) {
    m_ordner.Schreibe("seite.html", std::string(5000, ' ') + Seite("x"));
    EXPECT_FALSE(Verfuegbar());
}

TEST_F(AblageTest, AFolderIsNeverAPage) {
    EXPECT_FALSE(IstVerfuegbar(m_ordner.TextPfad("."), {}));
}

} // namespace
} // namespace zepholt::bericht
