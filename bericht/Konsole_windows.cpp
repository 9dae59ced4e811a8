#include "bericht/Konsole.h"

#include "bericht/Zeichen.h"
#include "support/HilfsFunktionen.h"

#include <windows.h>

#include <shellapi.h>
#include <shlobj.h>

namespace zepholt::bericht {

namespace {

std::wstring Breit(TextSicht text) {
    return {text.begin(), text.end()};
}

Text AusBreit(std::wstring_view text) {
    return {text.begin(), text.end()};
}

// A console takes UTF-16, everything else the bytes.
bool Schreiben(DWORD strom, std::string_view bytes) {
    const HANDLE griff = GetStdHandle(strom);
    DWORD modus = 0;
    DWORD anzahl = 0;
    if (GetConsoleMode(griff, &modus) != 0) {
        const std::wstring text = Breit(AusUtf8Bytes(bytes));
        return WriteConsoleW(griff, text.c_str(), static_cast<DWORD>(text.size()), &anzahl, nullptr) != 0;
    }
    while (!bytes.empty()) {
        if (WriteFile(griff, bytes.data(), static_cast<DWORD>(bytes.size()), &anzahl, nullptr) == 0 || anzahl == 0) {
            return false;
        }
        bytes.remove_prefix(anzahl);
    }
    return true;
}

// One argument of a command text. The programs that are started here take quotation marks as zepholt does: around a
// value, with nothing escaped, since no path holds one.
std::wstring Eingefasst(const Text& argument) {
    const std::size_t gleich = argument.find(u'=');
    if (argument.find(u' ') == Text::npos || gleich == Text::npos) {
        return Breit(argument);
    }
    return Breit(argument.substr(0, gleich + 1)) + L'"' + Breit(argument.substr(gleich + 1)) + L'"';
}

// The process, or null where the program could not be started.
HANDLE Gestartet(const Text& programm, const std::vector<Text>& argumente) {
    std::wstring zeile = L'"' + Breit(programm) + L'"';
    for (const Text& argument : argumente) {
        zeile += L' ' + Eingefasst(argument);
    }
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION prozess{};
    if (CreateProcessW(Breit(programm).c_str(), zeile.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                       &prozess) == 0) {
        return nullptr;
    }
    CloseHandle(prozess.hThread);
    return prozess.hProcess;
}

// Waits for the end of a process; what the windows of this thread are sent is handled meanwhile.
void Abwarten(HANDLE prozess) {
    while (MsgWaitForMultipleObjects(1, &prozess, FALSE, INFINITE, QS_ALLINPUT) == WAIT_OBJECT_0 + 1) {
        MSG nachricht{};
        while (PeekMessageW(&nachricht, nullptr, 0, 0, PM_REMOVE) != 0) {
            TranslateMessage(&nachricht);
            DispatchMessageW(&nachricht);
        }
    }
}

} // namespace

std::vector<Text> Argumente(int /*anzahl*/, char** /*argumente*/) {
    int anzahl = 0;
    wchar_t** liste = CommandLineToArgvW(GetCommandLineW(), &anzahl);
    std::vector<Text> texte;
    for (int i = 1; liste != nullptr && i < anzahl; ++i) {
        texte.push_back(AusBreit(liste[i]));
    }
    LocalFree(liste);
    return texte;
}

bool StandardausgabeSchreiben(std::string_view bytes) {
    return Schreiben(STD_OUTPUT_HANDLE, bytes);
}

void FehlerausgabeSchreiben(std::string_view utf8) {
    Schreiben(STD_ERROR_HANDLE, utf8);
}

std::size_t StandardeingabeLesen(std::span<char> ziel) {
    DWORD anzahl = 0;
    const HANDLE griff = GetStdHandle(STD_INPUT_HANDLE);
    return ReadFile(griff, ziel.data(), static_cast<DWORD>(ziel.size()), &anzahl, nullptr) != 0 ? anzahl : 0;
}

Sprache Systemsprache() {
    switch (PRIMARYLANGID(GetUserDefaultUILanguage())) {
    case LANG_FRENCH:
        return Sprache::Franzoesisch;
    case LANG_ITALIAN:
        return Sprache::Italienisch;
    default:
        return Sprache::Deutsch;
    }
}

Text EigenerOrdner() {
    std::wstring pfad(32768, L'\0');
    pfad.resize(GetModuleFileNameW(nullptr, pfad.data(), static_cast<DWORD>(pfad.size())));
    return AusBreit(pfad.substr(0, pfad.rfind(L'\\') + 1));
}

Text Pruefprogramm() {
    return EigenerOrdner() + u"zepholt.exe";
}

Text VollerPfad(const Text& pfad) {
    std::wstring voll(32768, L'\0');
    voll.resize(GetFullPathNameW(Breit(pfad).c_str(), static_cast<DWORD>(voll.size()), voll.data(), nullptr));
    return voll.empty() ? pfad : AusBreit(voll);
}

Text Benutzerordner() {
    wchar_t* dokumente = nullptr;
    std::wstring ordner;
    if (SHGetKnownFolderPath(FOLDERID_Documents, KF_FLAG_CREATE, nullptr, &dokumente) == S_OK) {
        ordner = dokumente;
    }
    CoTaskMemFree(dokumente);
    ordner += L"\\ZEPHOLT";
    CreateDirectoryW(ordner.c_str(), nullptr); // where it fails, so does writing into it
    return AusBreit(ordner + L'\\');
}

Text TemporaererPfad() {
    std::wstring ordner(MAX_PATH + 1, L'\0');
    ordner.resize(GetTempPathW(static_cast<DWORD>(ordner.size()), ordner.data()));
    std::wstring pfad(MAX_PATH + 1, L'\0');
    if (GetTempFileNameW(ordner.c_str(), L"zep", 0, pfad.data()) == 0) {
        throw LaufzeitFehler("no temporary file");
    }
    pfad.resize(pfad.find(L'\0'));
    DeleteFileW(pfad.c_str());
    return AusBreit(pfad + L".xml");
}

void DateiLoeschen(const Text& pfad) {
    DeleteFileW(Breit(pfad).c_str());
}

bool ProgrammAusfuehren(const Text& programm, const std::vector<Text>& argumente) {
    const HANDLE prozess = Gestartet(programm, argumente);
    if (prozess == nullptr) {
        return false;
    }
    Abwarten(prozess);
    CloseHandle(prozess);
    return true;
}

void Prozesse::Starten(const Text& programm, const std::vector<Text>& argumente) {
    Abwarten(m_hoechstens - 1);
    if (const HANDLE prozess = Gestartet(programm, argumente); prozess != nullptr) {
        m_laufende.push_back(reinterpret_cast<std::intptr_t>(prozess));
    }
}

void Prozesse::Abwarten(std::size_t anzahl) {
    while (m_laufende.size() > anzahl) {
        std::vector<HANDLE> griffe;
        for (const std::intptr_t griff : m_laufende) {
            griffe.push_back(reinterpret_cast<HANDLE>(griff));
        }
        const DWORD ende =
            WaitForMultipleObjects(static_cast<DWORD>(griffe.size()), griffe.data(), FALSE, INFINITE) - WAIT_OBJECT_0;
        const std::size_t welcher = ende < griffe.size() ? ende : 0; // a handle that can't be waited for is given up
        CloseHandle(griffe[welcher]);
        m_laufende.erase(m_laufende.begin() + static_cast<std::ptrdiff_t>(welcher));
    }
}

std::size_t Prozessoren() {
    SYSTEM_INFO angaben{};
    GetSystemInfo(&angaben);
    return angaben.dwNumberOfProcessors;
}

void OrdnerAnlegen(const Text& pfad) {
    CreateDirectoryW(Breit(pfad).c_str(), nullptr);
}

} // namespace zepholt::bericht
