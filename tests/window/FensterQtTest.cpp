// The windows on Linux under real clicks and keys, on Qt's display without a screen.
#include "hilfen/Fensterhilfe.h"
#include "hilfen/Formularwerte.h"
#include "run/NeuerLauf.h"
#include "state/TestDaten.h"
#include "window/DialogDeFrIt.h"
#include "window/Fenster.h"
#include "window/Formulare.h"
#include "window/Fortschritt.h"

#include <QGroupBox>

#include <gtest/gtest.h>

namespace zepholt {
namespace {

using namespace hilfen;

class FensterQtTest : public testing::Test {
protected:
    void SetUp() override { NeuerLauf(); }
    void TearDown() override {
        WartendeVergessen();
        NeuerLauf();
    }

    void Oeffne(std::int32_t sprache) {
        testDaten.Version = u"4.0";
        SpracheSetzen(sprache);
        m_fenster = FensterOeffnen();
        testDaten.Fortschrittsfenster = m_fenster.get();
    }

    // Lets the window work until the question is answered by `antwort`; true when it was asked.
    bool FragenLassen(const Tat& antwort) {
        bool gefragt = false;
        Sobald([] { return Box() != nullptr; },
               [&] {
                   gefragt = true;
                   antwort();
               });
        for (int i = 0; i < 200 && !gefragt; ++i) {
            m_fenster->Ereignisse();
            QTest::qSleep(1);
        }
        return gefragt;
    }

    std::unique_ptr<Fenster> m_fenster;
};

// --- The forms -------------------------------------------------------------------------------------------------------

// What lies in the place of a text fits into it.
void ErwartePasst(const QLabel& feld) {
    const int umbruch = feld.wordWrap() ? Qt::TextWordWrap : 0;
    const QRect text = feld.fontMetrics().boundingRect(QRect(0, 0, feld.width(), 0), umbruch, feld.text());
    EXPECT_LE(text.width(), feld.width());
    EXPECT_LE(text.height(), feld.height());
}

void PruefeText(const QWidget& widget, TextSicht text) {
    if (const auto* feld = qobject_cast<const QLabel*>(&widget)) {
        EXPECT_EQ(feld->text(), AusText(text));
        ErwartePasst(*feld);
    }
    if (const auto* knopf = qobject_cast<const QPushButton*>(&widget)) {
        EXPECT_EQ(knopf->text(), AusText(text));
        EXPECT_LT(knopf->fontMetrics().horizontalAdvance(knopf->text()), knopf->width() - 8);
    }
    if (const auto* rahmen = qobject_cast<const QGroupBox*>(&widget)) {
        EXPECT_EQ(rahmen->title(), AusText(text));
    }
}

// A pixel is 15 twips.
void PruefeForm(QWidget& fenster, const Formularwerte& werte, std::int32_t sprache) {
    EXPECT_EQ(fenster.windowTitle(), AusText(werte.Titel));
    EXPECT_EQ(fenster.width(), werte.Breite / 15);
    EXPECT_EQ(fenster.height(), werte.Hoehe / 15);
    EXPECT_FALSE(fenster.windowIcon().isNull());
    for (const Formularwert& wert : werte.Elemente) {
        SCOPED_TRACE(wert.Name);
        const auto* widget = Kind<QWidget>(&fenster, wert.Name);
        ASSERT_NE(widget, nullptr);
        if (wert.Art == ElementArt::Balken) {
            continue; // its width is the progress
        }
        EXPECT_EQ(widget->geometry(), QRect(wert.Links / 15, wert.Oben / 15, wert.Breite / 15, wert.Hoehe / 15));
        if (std::string_view(wert.Name) == "lblCopyright") {
            PruefeText(*widget, InfoText());
        } else {
            PruefeText(*widget, wert.Text[sprache - 1]);
        }
    }
}

TEST_F(FensterQtTest, ProgressWindowStandsAsLaidDownInEachLanguage) {
    for (const std::int32_t sprache : {1, 2, 3}) {
        Oeffne(sprache);
        ASSERT_NE(Haupt(), nullptr);
        PruefeForm(*Haupt(), Hauptwerte(), sprache);
        m_fenster.reset();
        EXPECT_EQ(Haupt(), nullptr);
    }
}

TEST_F(FensterQtTest, InfoWindowStandsAsLaidDownInEachLanguage) {
    for (const std::int32_t sprache : {1, 2, 3}) {
        Oeffne(sprache);
        bool gesehen = false;
        Sobald([] { return Offen("frmInfo") != nullptr; },
               [&gesehen, sprache] {
                   gesehen = true;
                   PruefeForm(*Offen("frmInfo"), Infowerte(), sprache);
                   Klicke(Kind<QPushButton>(Offen("frmInfo"), "cmdOK"));
               });
        Klicke(Kind<QPushButton>(Haupt(), "cmdInfo")); // returns when the window is closed
        EXPECT_TRUE(gesehen);
        EXPECT_EQ(Offen("frmInfo"), nullptr);
        m_fenster.reset();
    }
}

TEST_F(FensterQtTest, NoControlOfOneParentOverlapsAnother) {
    for (const Formular* formular : {&frmZEPHOLT, &frmInfo}) {
        for (std::int32_t i = 0; i < formular->Anzahl; ++i) {
            for (std::int32_t j = 0; j < i; ++j) {
                const Steuerelement& a = formular->Elemente[i];
                const Steuerelement& b = formular->Elemente[j];
                const QRect platzA(a.Links, a.Oben, a.Breite, a.Hoehe);
                const QRect platzB(b.Links, b.Oben, b.Breite, b.Hoehe);
                EXPECT_FALSE(a.Eltern == b.Eltern && platzA.intersects(platzB)) << a.Name << " on " << b.Name;
            }
        }
    }
}

// --- Labels and bar --------------------------------------------------------------------------------------------------

TEST_F(FensterQtTest, SettersReachLabelsAndBar) {
    Oeffne(1);
    ZeigeAustauschdatei(u"a.01S");
    ZeigeProjekt(u"Neubau   [12]");
    ZeigeDokument(u"Baumeister   [A]");
    ZeigeSchritt(u"Testet Dokument", 100);
    EXPECT_EQ(Kind<QLabel>(Haupt(), "lblAustauschdatei")->text(), QStringLiteral("a.01S"));
    EXPECT_EQ(Kind<QLabel>(Haupt(), "lblProjekt")->text(), QStringLiteral("Neubau   [12]"));
    EXPECT_EQ(Kind<QLabel>(Haupt(), "lblDokument")->text(), QStringLiteral("Baumeister   [A]"));
    EXPECT_EQ(Kind<QLabel>(Haupt(), "lblFortschritt")->text(), QStringLiteral("Testet Dokument"));

    const auto* balken = Kind<QWidget>(Haupt(), "picFSBalken");
    EXPECT_FALSE(balken->isVisible());
    m_fenster->ZeigeBalken(BalkenInnen / 2.0);
    EXPECT_TRUE(balken->isVisible());
    EXPECT_EQ(balken->width(), 236); // half of 7089 twips
    EXPECT_EQ(balken->height(), 9);
    EXPECT_EQ(balken->pos(), QPoint(3, 3)); // 15 twips behind a border of 30
    m_fenster->ZeigeBalken(BalkenInnen);
    EXPECT_EQ(balken->width(), 473);
    m_fenster->ZeigeBalken(1);
    EXPECT_EQ(balken->width(), 1) << "a bar that isn't 0 is seen";
    m_fenster->ZeigeBalken(0);
    EXPECT_FALSE(balken->isVisible());
}

TEST_F(FensterQtTest, LongFileNameIsShortenedInTheMiddleAndWholeAsHint) {
    Oeffne(1);
    const Text lang = u"/daten/" + Text(200, u'x') + u"/Offerte.01S";
    ZeigeAustauschdatei(lang);
    const auto* feld = Kind<QLabel>(Haupt(), "lblAustauschdatei");
    EXPECT_TRUE(feld->text().startsWith(QStringLiteral("/daten/")));
    EXPECT_TRUE(feld->text().endsWith(QStringLiteral("/Offerte.01S")));
    EXPECT_TRUE(feld->text().contains(QChar(0x2026)));
    EXPECT_LE(feld->fontMetrics().horizontalAdvance(feld->text()), feld->width());
    EXPECT_TRUE(feld->toolTip().contains(AusText(lang)));
    ZeigeAustauschdatei(u"/daten/Offerte.01S");
    EXPECT_EQ(feld->text(), QStringLiteral("/daten/Offerte.01S"));
    EXPECT_TRUE(feld->toolTip().isEmpty());
}

TEST_F(FensterQtTest, NamesAreNoMarkup) {
    Oeffne(1);
    ZeigeProjekt(u"<b>A & B</b>");
    const auto* feld = Kind<QLabel>(Haupt(), "lblProjekt");
    EXPECT_EQ(feld->text(), QStringLiteral("<b>A & B</b>"));
    EXPECT_EQ(feld->textFormat(), Qt::PlainText);
    ZeigeProjekt(u"<b>" + Text(200, u'x'));
    EXPECT_TRUE(feld->toolTip().contains(QStringLiteral("&lt;b&gt;xx")));
}

// --- The cancel question ---------------------------------------------------------------------------------------------

TEST_F(FensterQtTest, QuestionHasItsTextInEachLanguageAndNoAsTheDefault) {
    struct Fall {
        TextSicht Frage;
        TextSicht Ja;
        TextSicht Nein;
    };
    constexpr Fall Faelle[] = {
        {u"Soll der Test abgebrochen werden?", u"Ja", u"Nein"},
        {u"Le test doit-il être interrompu?", u"Oui", u"Non"},
        {u"Il test deve venir interrotto?", u"Sì", u"No"},
    };
    for (const std::int32_t sprache : {1, 2, 3}) {
        const Fall& fall = Faelle[sprache - 1];
        Oeffne(sprache);
        bool gefragt = false;
        Sobald([] { return Box() != nullptr; },
               [&] {
                   gefragt = true;
                   EXPECT_EQ(Box()->text(), AusText(fall.Frage));
                   EXPECT_EQ(Box()->icon(), QMessageBox::NoIcon);
                   EXPECT_EQ(Box()->windowTitle(), QStringLiteral("ZEPHOLT"));
                   EXPECT_EQ(Box()->buttons().size(), 2);
                   EXPECT_NE(Antwort(*Box(), fall.Ja), nullptr);
                   EXPECT_EQ(Box()->defaultButton(), Antwort(*Box(), fall.Nein));
                   Klicke(Antwort(*Box(), fall.Nein));
               });
        Klicke(Kind<QPushButton>(Haupt(), "cmdAbbrechen"));
        EXPECT_TRUE(gefragt);
        EXPECT_FALSE(testDaten.Abbruch);
        m_fenster.reset();
    }
}

TEST_F(FensterQtTest, YesSetsAbbruchAtTheNextLook) {
    Oeffne(1);
    Sobald([] { return Box() != nullptr; }, [] { Klicke(Antwort(*Box(), u"Ja")); });
    Klicke(Kind<QPushButton>(Haupt(), "cmdAbbrechen"));
    m_fenster->Ereignisse();
    EXPECT_TRUE(testDaten.Abbruch);
}

TEST_F(FensterQtTest, EnterAndEscapeInTheQuestionAreNo) {
    for (const Qt::Key taste : {Qt::Key_Return, Qt::Key_Escape}) {
        Oeffne(1);
        Sobald([] { return Box() != nullptr; }, [taste] { QTest::keyClick(Box(), taste); });
        Klicke(Kind<QPushButton>(Haupt(), "cmdAbbrechen"));
        m_fenster->Ereignisse();
        EXPECT_FALSE(testDaten.Abbruch);
        m_fenster.reset();
    }
}

TEST_F(FensterQtTest, EscapeAndTheCloseBoxAskAndTheWindowStays) {
    Oeffne(1);
    QTimer::singleShot(0, [] { QTest::keyClick(Haupt(), Qt::Key_Escape); });
    EXPECT_TRUE(FragenLassen([] { Klicke(Antwort(*Box(), u"Nein")); }));
    EXPECT_NE(Haupt(), nullptr);
    EXPECT_FALSE(testDaten.Abbruch);

    QTimer::singleShot(0, [] { Haupt()->close(); });
    EXPECT_TRUE(FragenLassen([] { Klicke(Antwort(*Box(), u"Nein")); }));
    EXPECT_NE(Haupt(), nullptr);
    EXPECT_FALSE(testDaten.Abbruch);

    QTimer::singleShot(0, [] { Haupt()->close(); });
    EXPECT_TRUE(FragenLassen([] { Klicke(Antwort(*Box(), u"Ja")); }));
    m_fenster->Ereignisse();
    EXPECT_NE(Haupt(), nullptr) << "the run closes its window itself";
    EXPECT_TRUE(testDaten.Abbruch);
}

// --- Keys ------------------------------------------------------------------------------------------------------------

TEST_F(FensterQtTest, TabGoesFromInfoToCancelAndBack) {
    Oeffne(1);
    Haupt()->activateWindow();
    auto* info = Kind<QPushButton>(Haupt(), "cmdInfo");
    auto* abbrechen = Kind<QPushButton>(Haupt(), "cmdAbbrechen");
    ASSERT_TRUE(QTest::qWaitForWindowActive(Haupt()));
    EXPECT_TRUE(info->hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(abbrechen->hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(info->hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    EXPECT_TRUE(abbrechen->hasFocus());
}

TEST_F(FensterQtTest, EnterPressesTheButtonWithTheFocus) {
    Oeffne(1);
    ASSERT_TRUE(QTest::qWaitForWindowActive(Haupt()));
    bool info = false;
    Sobald([] { return Offen("frmInfo") != nullptr; },
           [&info] {
               info = true;
               QTest::keyClick(Offen("frmInfo"), Qt::Key_Return); // OK
           });
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(info);
    EXPECT_EQ(Offen("frmInfo"), nullptr);

    Kind<QPushButton>(Haupt(), "cmdAbbrechen")->setFocus();
    QTimer::singleShot(0, [] { QTest::keyClick(Kind<QPushButton>(Haupt(), "cmdAbbrechen"), Qt::Key_Return); });
    EXPECT_TRUE(FragenLassen([] { QTest::keyClick(Box(), Qt::Key_Return); }));
    EXPECT_FALSE(testDaten.Abbruch);
}

TEST_F(FensterQtTest, EscapeClosesTheInfoWindow) {
    Oeffne(1);
    Sobald([] { return Offen("frmInfo") != nullptr; }, [] { QTest::keyClick(Offen("frmInfo"), Qt::Key_Escape); });
    Klicke(Kind<QPushButton>(Haupt(), "cmdInfo"));
    EXPECT_EQ(Offen("frmInfo"), nullptr);
    EXPECT_FALSE(testDaten.Abbruch);
}

} // namespace
} // namespace zepholt
