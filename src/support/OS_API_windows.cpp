// The platform's door on Windows, by its UTF-16 functions only: no code page of the machine takes part. Here are clock,
// command line, messages, and what the other source of the platform shares.
#include "support/OS_API.h"

#include "support/HilfsFunktionen.h"
#include "support/Systemruf_windows.h"

#include <algorithm>
#include <array>

namespace zepholt {

namespace {

// In pieces that need no memory but the stack's. A piece never ends within a character.
void AufKonsole(HANDLE konsole, std::string_view utf8) {
    std::array<wchar_t, 512> breit{};
    while (!utf8.empty()) {
        std::size_t stueck = std::min(utf8.size(), breit.size());
        while (stueck > 1 && stueck < utf8.size() && (utf8[stueck] & 0xC0) == 0x80) {
            --stueck;
        }
        const int einheiten = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), static_cast<int>(stueck), breit.data(),
                                                  static_cast<int>(breit.size()));
        DWORD anzahl = 0;
        WriteConsoleW(konsole, breit.data(), static_cast<DWORD>(einheiten), &anzahl, nullptr);
        utf8.remove_prefix(stueck);
    }
}

} // namespace

Text AusBreit(std::wstring_view text) {
    return {text.begin(), text.end()};
}

bool AllesSchreiben(HANDLE griff, std::string_view bytes) {
    while (!bytes.empty()) {
        DWORD anzahl = 0;
        const auto stueck = static_cast<DWORD>(std::min(bytes.size(), GroesstesStueck));
        if (WriteFile(griff, bytes.data(), stueck, &anzahl, nullptr) == 0 || anzahl == 0) {
            return false;
        }
        bytes.remove_prefix(anzahl);
    }
    return true;
}

char16_t PfadTrenner() {
    return u'\\';
}

bool IstPfadTrenner(char16_t zeichen) {
    return zeichen == u'\\' || zeichen == u'/';
}

void WirdGanzGefuellt(void* /*speicher*/, std::size_t /*bytes*/) {}

void SpeicherBehalten() {}

Zeitpunkt Jetzt() {
    SYSTEMTIME ort{};
    GetLocalTime(&ort);
    return {ort.wYear, ort.wMonth, ort.wDay, ort.wHour, ort.wMinute};
}

std::int64_t MilliSekunden() {
    return static_cast<std::int64_t>(GetTickCount64());
}

// A drive without a disk is a failure of the call, not a box that asks for one.
void ProzessVorbereiten() {
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
}

Text Kommandozeile(int /*anzahl*/, char** /*argumente*/) {
    return Text(OhneProgrammnamen(AusBreit(GetCommandLineW())));
}

void MeldungAusgeben(TextSicht text) {
    MeldungAusgeben(std::string_view(Utf8Bytes(text)));
}

void MeldungAusgeben(std::string_view utf8) {
    const HANDLE ausgabe = GetStdHandle(STD_ERROR_HANDLE);
    if (ausgabe == nullptr || ausgabe == INVALID_HANDLE_VALUE) { // a program without a console
        return;
    }
    if (MeldungIstTerminal()) {
        AufKonsole(ausgabe, utf8);
        AufKonsole(ausgabe, "\r\n");
    } else {
        AllesSchreiben(ausgabe, utf8);
        AllesSchreiben(ausgabe, "\r\n");
    }
}

bool MeldungIstTerminal() {
    DWORD modus = 0;
    return GetConsoleMode(GetStdHandle(STD_ERROR_HANDLE), &modus) != 0;
}

} // namespace zepholt
