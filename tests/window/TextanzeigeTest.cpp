// What stands on standard error where no window can be shown.
#include "window/Textanzeige.h"

#include <gtest/gtest.h>

namespace zepholt {
namespace {

// What `tat` writes to standard error; it must write nothing to standard output.
template <class Tat>
std::string Fehlerausgabe(Tat tat) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    tat();
    const std::string text = testing::internal::GetCapturedStderr();
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    return text;
}

TEST(PhasenzeilenTest, OneLineForEachPhase) {
    EXPECT_EQ(Fehlerausgabe([] {
                  Phasenzeilen zeilen;
                  zeilen.ZeigeAustauschdatei(u"a.01S");
                  zeilen.ZeigeProjekt(u"P");
                  zeilen.ZeigeDokument(u"D");
                  zeilen.ZeigeSchritt(u"");
                  zeilen.ZeigeSchritt(u"Liest Austauschdatei ein");
                  zeilen.ZeigeBalken(100);
                  zeilen.Ereignisse();
                  zeilen.ZeigeSchritt(u"Testet Dokument");
                  zeilen.ZeigeSchritt(u"");
              }),
              "Liest Austauschdatei ein\nTestet Dokument\n");
}

TEST(PhasenzeilenTest, ChaptersOfOnePhaseAreOneLine) {
    EXPECT_EQ(Fehlerausgabe([] {
                  Phasenzeilen zeilen;
                  zeilen.ZeigeSchritt(u"Testet VLT-Kapitel: 113");
                  zeilen.ZeigeSchritt(u"Testet VLT-Kapitel: 114");
                  zeilen.ZeigeSchritt(u"Schreibt Fehlerprotokoll");
              }),
              "Testet VLT-Kapitel\nSchreibt Fehlerprotokoll\n");
}

TEST(MeldungAlsTextTest, LineByLineTheEmptyOneToo) {
    EXPECT_EQ(Fehlerausgabe([] { MeldungAlsText(u"file=\"a\"\r\n\r\nText"); }), "file=\"a\"\n\nText\n");
    EXPECT_EQ(Fehlerausgabe([] { MeldungAlsText(u""); }), "\n");
}

TEST(MeldungAlsTextTest, ControlCharactersDontReachTheTerminal) {
    EXPECT_EQ(Fehlerausgabe([] { MeldungAlsText(u"a\x1b[2J\x7f\u009b\tb\rc"); }), "a?[2J???b?c\n");
}

} // namespace
} // namespace zepholt
