// What only this platform has: attributes, device names, both separators.
#include "support/OS_API.h"

#include "support/Pruefordner.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace zepholt {
namespace {

class WindowsTest : public Pruefordner {
protected:
    void Attribute(const Text& name, DWORD attribute) const {
        ASSERT_NE(SetFileAttributesW(System(name).c_str(), attribute), 0);
    }
};

TEST_F(WindowsTest, VersteckteUndSystemdateienZaehlenNicht) {
    for (const DWORD attribut : {DWORD{FILE_ATTRIBUTE_HIDDEN}, DWORD{FILE_ATTRIBUTE_SYSTEM}}) {
        Datei(u"a.qvm", "alt");
        Attribute(u"a.qvm", attribut);
        EXPECT_FALSE(DateiExistiert(Pfad(u"a.qvm")));
        EXPECT_FALSE(DateiExistiert(Pfad(u"*.qvm")));
        EXPECT_FALSE(OrdnerExistiert(Pfad(u"a.qvm")));
        EXPECT_TRUE(DateienImOrdner(Pfad(u""), u"*.qvm").empty());
        EXPECT_FALSE(DateiAnlegbar(Pfad(u"a.qvm")));
        Attribute(u"a.qvm", FILE_ATTRIBUTE_NORMAL);
        EXPECT_TRUE(DateiExistiert(Pfad(u"a.qvm")));
        EXPECT_EQ(Inhalt(u"a.qvm"), "alt");
    }
}

TEST_F(WindowsTest, LaufwerkUndSchraegstrich) {
    EXPECT_TRUE(OrdnerExistiert(u"C:\\"));
    EXPECT_TRUE(OrdnerExistiert(u"C:/"));
    EXPECT_FALSE(OrdnerExistiert(u"Q:\\"));
    EXPECT_FALSE(DateiExistiert(u"C:\\"));
    Ordner(u"o");
    Datei(u"o/a.qvm");
    Text pfad = Pfad(u"o/a.qvm");
    std::replace(pfad.begin(), pfad.end(), u'\\', u'/');
    EXPECT_TRUE(DateiExistiert(pfad));
    EXPECT_EQ(DateiNameOhnePfad(pfad), u"a.qvm");
    EXPECT_EQ(DateienImOrdner(pfad.substr(0, pfad.size() - 6), u"*.qvm").size(), 1U);
}

TEST_F(WindowsTest, OrdnerMitStern) {
    Ordner(u"o");
    Datei(u"o/!a"); // in front of "." by its byte; the folder's own entry comes first all the same
    EXPECT_TRUE(OrdnerExistiert(Pfad(u"o/*")));
    EXPECT_FALSE(OrdnerExistiert(Pfad(u"o/!*")));
}

TEST_F(WindowsTest, GeraetenamenUndDatenstroemeSindKeineDateien) {
    for (const char16_t* name : {u"NUL", u"nul", u"COM1", u"\\\\.\\NUL", u"\\\\.\\pipe\\zepholt"}) {
        EXPECT_EQ(ArtVon(name), DateiArt::Anderes) << Utf8Bytes(name);
        EXPECT_FALSE(DateiExistiert(name)) << Utf8Bytes(name);
        EXPECT_THROW(LeseDatei{Text(name)}, LaufzeitFehler) << Utf8Bytes(name);
        EXPECT_FALSE(DateiAnlegbar(name)) << Utf8Bytes(name);
        EXPECT_FALSE(AusgabeDatei(name).Abschliessen()) << Utf8Bytes(name);
    }
    EXPECT_FALSE(DateiAnlegbar(Pfad(u"a.xml:strom")));
    EXPECT_FALSE(AusgabeDatei(Pfad(u"a.xml:strom")).Abschliessen());
    for (const char16_t* name : {u"a*.xml", u"a?.xml", u"a<b", u"a|b"}) {
        EXPECT_FALSE(DateiAnlegbar(Pfad(name))) << Utf8Bytes(name);
    }
    EXPECT_EQ(Anzahl(), 0);
}

// A path that the system takes as it stands names no stream and no device either.
TEST_F(WindowsTest, WoertlichePfadeWerdenGenausoGeprueft) {
    Datei(u"da", "alt");
    const auto woertlich = [this](const Text& name) { return System(name).u16string(); };
    EXPECT_TRUE(DateiAnlegbar(woertlich(u"a.xml")));
    for (const char16_t* name : {u"a.xml:strom", u"a.xml::$DATA", u"da:strom", u"da::$DATA"}) {
        EXPECT_EQ(ArtVon(woertlich(name)), DateiArt::Nichts) << Utf8Bytes(name);
        EXPECT_FALSE(DateiAnlegbar(woertlich(name))) << Utf8Bytes(name);
        EXPECT_FALSE(AusgabeDatei(woertlich(name)).Abschliessen()) << Utf8Bytes(name);
        EXPECT_THROW(LeseDatei{woertlich(name)}, LaufzeitFehler) << Utf8Bytes(name);
    }
    for (const char16_t* name : {u"\\\\?\\NUL", u"\\\\?\\GLOBALROOT\\Device\\Null", u"\\\\?\\pipe\\zepholt"}) {
        EXPECT_EQ(ArtVon(name), DateiArt::Anderes) << Utf8Bytes(name);
        EXPECT_FALSE(DateiAnlegbar(name)) << Utf8Bytes(name);
        EXPECT_FALSE(AusgabeDatei(name).Abschliessen()) << Utf8Bytes(name);
    }
    EXPECT_EQ(Inhalt(u"da"), "alt");
    EXPECT_EQ(Anzahl(), 1);
}

// The program of the tests starts itself; that run, told by a variable where to write, is ended in the middle.
TEST_F(WindowsTest, EinGetoeteterLaufHinterlaesstNichts) {
    constexpr const wchar_t* Variable = L"ZEPHOLT_TEST_PFAD";
    std::wstring pfad(1000, L'\0');
    pfad.resize(GetEnvironmentVariableW(Variable, pfad.data(), 1000));
    if (!pfad.empty()) {
        AusgabeDatei datei(Text(pfad.begin(), pfad.end()));
        datei.Schreiben(std::string(3'000'000, 'x'));
        TerminateProcess(GetCurrentProcess(), 7);
    }
    std::wstring programm(1000, L'\0');
    programm.resize(GetModuleFileNameW(nullptr, programm.data(), 1000));
    std::wstring aufruf = L"x --gtest_filter=WindowsTest.EinGetoeteterLaufHinterlaesstNichts";
    const Text ziel = Pfad(u"a");
    SetEnvironmentVariableW(Variable, std::wstring(ziel.begin(), ziel.end()).c_str());
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION kind{};
    ASSERT_NE(
        CreateProcessW(programm.c_str(), aufruf.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &kind),
        0);
    SetEnvironmentVariableW(Variable, nullptr);
    WaitForSingleObject(kind.hProcess, INFINITE);
    DWORD ende = 0;
    GetExitCodeProcess(kind.hProcess, &ende);
    CloseHandle(kind.hThread);
    CloseHandle(kind.hProcess);
    EXPECT_EQ(ende, 7U);
    EXPECT_EQ(Anzahl(), 0);
}

TEST_F(WindowsTest, GrossUndKleinschreibungIstGleich) {
    Datei(u"N131241.QVM");
    EXPECT_TRUE(DateiExistiert(Pfad(u"n131241.qvm")));
    EXPECT_EQ(Gefunden(u"n*.qvm"), u"N131241.QVM");
}

TEST_F(WindowsTest, SchreibgeschuetzteDateiBleibt) {
    Datei(u"a", "alt");
    Attribute(u"a", FILE_ATTRIBUTE_READONLY);
    AusgabeDatei datei(Pfad(u"a"));
    datei.Schreiben("neu");
    EXPECT_FALSE(datei.Abschliessen());
    EXPECT_EQ(Inhalt(u"a"), "alt");
    EXPECT_EQ(Anzahl(), 1);
    Attribute(u"a", FILE_ATTRIBUTE_NORMAL);
}

TEST_F(WindowsTest, DasSchonMitVorsatzGeht) {
    Datei(u"a", "x");
    EXPECT_TRUE(DateiExistiert(System(u"a").u16string()));
}

TEST(Kommandozeile, OhneDenNamenDesProgramms) {
    EXPECT_EQ(Kommandozeile(0, nullptr).find(u"tests_support"), Text::npos);
}

} // namespace
} // namespace zepholt
