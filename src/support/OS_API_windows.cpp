// The platform's door on Windows, by its UTF-16 functions only: no code page of the machine takes part.
#include "support/OS_API.h"

#include "support/HilfsFunktionen.h"

#include <algorithm>
#include <array>
#include <new>
#include <utility>

#include <windows.h>

namespace zepholt {

namespace {

static_assert(sizeof(wchar_t) == sizeof(char16_t));

constexpr int Versuche = 1000;                     // to find a name beside an output file that is not taken
constexpr std::size_t GroesstesStueck = 1U << 30U; // of one call for reading or writing, bytes
constexpr DWORD AlleTeilen = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

std::wstring Breit(TextSicht text) {
    return {text.begin(), text.end()};
}

Text AusBreit(std::wstring_view text) {
    return {text.begin(), text.end()};
}

HANDLE Griff(std::intptr_t griff) {
    return reinterpret_cast<HANDLE>(griff);
}

bool IstGeraet(const std::wstring& pfad) {
    return pfad.starts_with(LR"(\\.\)");
}

// A path for the system: absolute, and with the prefix that lifts the limit of 260 characters. The name of a device
// (NUL, COM1) comes back as \\.\NUL. Empty, and so never found, for a text that holds a NUL, where the system would
// stop reading, or a second colon: a stream of a file is no file.
std::wstring SystemPfad(const Text& pfad) {
    const std::wstring breit = Breit(pfad);
    if (breit.empty() || breit.find(L'\0') != std::wstring::npos || breit.starts_with(LR"(\\?\)")) {
        return breit.find(L'\0') == std::wstring::npos ? breit : std::wstring();
    }
    std::wstring voll(GetFullPathNameW(breit.c_str(), 0, nullptr, nullptr), L'\0');
    voll.resize(GetFullPathNameW(breit.c_str(), static_cast<DWORD>(voll.size()), voll.data(), nullptr));
    if (IstGeraet(voll)) {
        return voll;
    }
    if (voll.find(L':', 2) != std::wstring::npos) {
        return {};
    }
    return voll.starts_with(LR"(\\)") ? LR"(\\?\UNC\)" + voll.substr(2) : LR"(\\?\)" + voll;
}

// What a link or another stand-in leads to.
DateiArt ArtDesZiels(const std::wstring& pfad) {
    const HANDLE griff =
        CreateFileW(pfad.c_str(), 0, AlleTeilen, nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (griff == INVALID_HANDLE_VALUE) {
        return DateiArt::Nichts;
    }
    BY_HANDLE_FILE_INFORMATION angaben{};
    const bool gelesen = GetFileInformationByHandle(griff, &angaben) != 0;
    const bool platte = GetFileType(griff) == FILE_TYPE_DISK;
    CloseHandle(griff);
    if (!gelesen || !platte) {
        return DateiArt::Anderes;
    }
    return (angaben.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? DateiArt::Ordner : DateiArt::Datei;
}

DateiArt ArtAus(DWORD attribute, const std::wstring& pfad) {
    if (attribute == INVALID_FILE_ATTRIBUTES) {
        return DateiArt::Nichts;
    }
    if ((attribute & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
        return ArtDesZiels(pfad);
    }
    if ((attribute & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        return DateiArt::Ordner;
    }
    return (attribute & FILE_ATTRIBUTE_DEVICE) != 0 ? DateiArt::Anderes : DateiArt::Datei;
}

bool IstVersteckt(DWORD attribute) {
    return attribute != INVALID_FILE_ATTRIBUTES && (attribute & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM)) != 0;
}

// The order in which entries count: the folder's own first, then by the bytes of the names in UTF-8.
bool SteheVor(const OrdnerEintrag& a, const OrdnerEintrag& b) {
    const auto istEigener = [](const Text& name) { return name == u"." || name == u".."; };
    return std::pair(!istEigener(a.Name), Utf8Bytes(a.Name)) < std::pair(!istEigener(b.Name), Utf8Bytes(b.Name));
}

std::vector<OrdnerEintrag> MitPlatzhaltern(const Text& muster, const std::wstring& ordner) {
    std::vector<OrdnerEintrag> eintraege;
    WIN32_FIND_DATAW fund{};
    const HANDLE suche = FindFirstFileExW(SystemPfad(muster).c_str(), FindExInfoBasic, &fund, FindExSearchNameMatch,
                                          nullptr, FIND_FIRST_EX_LARGE_FETCH);
    if (suche == INVALID_HANDLE_VALUE) {
        return eintraege;
    }
    do {
        const DateiArt art = ArtAus(fund.dwFileAttributes, ordner + fund.cFileName);
        if (art != DateiArt::Nichts) {
            eintraege.push_back({AusBreit(fund.cFileName), art, IstVersteckt(fund.dwFileAttributes)});
        }
    } while (FindNextFileW(suche, &fund) != 0);
    FindClose(suche);
    std::sort(eintraege.begin(), eintraege.end(), SteheVor);
    return eintraege;
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

// True when a file may come to stand at `pfad`: nothing or an ordinary file that may be written stands there.
bool IstErsetzbar(const std::wstring& pfad) {
    const DWORD attribute = GetFileAttributesW(pfad.c_str());
    return attribute == INVALID_FILE_ATTRIBUTES ||
           (ArtAus(attribute, pfad) == DateiArt::Datei && (attribute & FILE_ATTRIBUTE_READONLY) == 0);
}

} // namespace

DateiArt ArtVon(const Text& pfad) {
    const std::wstring system = SystemPfad(pfad);
    if (IstGeraet(system)) {
        return DateiArt::Anderes;
    }
    const DateiArt art = ArtAus(GetFileAttributesW(system.c_str()), system);
    return art == DateiArt::Datei && system.ends_with(L'\\') ? DateiArt::Nichts : art;
}

std::vector<OrdnerEintrag> EintraegeSuchen(const Text& muster) {
    const std::size_t anfang = muster.find_last_of(u"\\/:") + 1; // 0 without one
    const Text name = muster.substr(anfang);
    if (name.find_first_of(u"*?") != Text::npos) {
        const Text ordner = anfang > 0 ? muster.substr(0, anfang) : Text(u".\\");
        return MitPlatzhaltern(muster, SystemPfad(ordner));
    }
    const DateiArt art = ArtVon(muster);
    if (art == DateiArt::Nichts) {
        return {};
    }
    return {{name, art, IstVersteckt(GetFileAttributesW(SystemPfad(muster).c_str()))}};
}

char16_t PfadTrenner() {
    return u'\\';
}

bool IstPfadTrenner(char16_t zeichen) {
    return zeichen == u'\\' || zeichen == u'/';
}

LeseDatei::LeseDatei(const Text& pfad) {
    if (ArtVon(pfad) != DateiArt::Datei) {
        throw LaufzeitFehler("no ordinary file");
    }
    const HANDLE griff = CreateFileW(SystemPfad(pfad).c_str(), GENERIC_READ, AlleTeilen, nullptr, OPEN_EXISTING,
                                     FILE_ATTRIBUTE_NORMAL, nullptr);
    LARGE_INTEGER groesse{};
    if (griff == INVALID_HANDLE_VALUE || GetFileType(griff) != FILE_TYPE_DISK || GetFileSizeEx(griff, &groesse) == 0) {
        if (griff != INVALID_HANDLE_VALUE) {
            CloseHandle(griff);
        }
        throw LaufzeitFehler("file can't be opened");
    }
    m_griff = reinterpret_cast<std::intptr_t>(griff);
    m_groesse = static_cast<std::uint64_t>(groesse.QuadPart);
}

LeseDatei::~LeseDatei() {
    CloseHandle(Griff(m_griff));
}

Bytes LeseDatei::Lies(std::uint64_t stelle, std::size_t anzahl) {
    const std::uint64_t rest = m_groesse - std::min(m_groesse, stelle);
    Bytes bytes(static_cast<std::size_t>(std::min<std::uint64_t>(anzahl, rest)));
    std::size_t gelesen = 0;
    while (gelesen < bytes.size()) {
        OVERLAPPED ort{};
        ort.Offset = static_cast<DWORD>((stelle + gelesen) & 0xFFFFFFFFU);
        ort.OffsetHigh = static_cast<DWORD>((stelle + gelesen) >> 32U);
        DWORD stueck = 0;
        const auto soll = static_cast<DWORD>(std::min(bytes.size() - gelesen, GroesstesStueck));
        if (ReadFile(Griff(m_griff), bytes.data() + gelesen, soll, &stueck, &ort) == 0 &&
            GetLastError() != ERROR_HANDLE_EOF) {
            throw LaufzeitFehler("file can't be read");
        }
        if (stueck == 0) { // shorter than it was when it was opened
            break;
        }
        gelesen += stueck;
    }
    bytes.Kuerzen(gelesen);
    return bytes;
}

// The name beside the place is short and of its own, whatever the length of the name in the end. A name that is taken
// is passed over: the process number alone is not unique where a folder is shared between machines.
void AusgabeDatei::Anlegen(const Text& pfad) {
    const std::wstring ziel = SystemPfad(pfad);
    if (ziel.empty() || ziel.back() == L'\\' || IstGeraet(ziel) || !IstErsetzbar(ziel)) {
        return;
    }
    m_pfad = AusBreit(ziel);
    const std::wstring davor =
        ziel.substr(0, ziel.rfind(L'\\') + 1) + L"zepholt-" + std::to_wstring(GetCurrentProcessId()) + L"-";
    for (int versuch = 0; versuch < Versuche && !m_gut; ++versuch) {
        const std::wstring nebenan = davor + std::to_wstring(versuch) + L".tmp";
        m_nebenan = AusBreit(nebenan);
        const HANDLE griff =
            CreateFileW(nebenan.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
        m_griff = reinterpret_cast<std::intptr_t>(griff);
        m_gut = griff != INVALID_HANDLE_VALUE;
        if (!m_gut && GetLastError() != ERROR_FILE_EXISTS) {
            return;
        }
    }
}

bool AusgabeDatei::Hinausschreiben(std::string_view bytes) {
    return AllesSchreiben(Griff(m_griff), bytes);
}

bool AusgabeDatei::Einsetzen() {
    const std::wstring ziel = Breit(m_pfad);
    const std::wstring nebenan = Breit(m_nebenan);
    const bool ganz = CloseHandle(Griff(std::exchange(m_griff, -1))) != 0;
    if (ganz && IstErsetzbar(ziel) && MoveFileExW(nebenan.c_str(), ziel.c_str(), MOVEFILE_REPLACE_EXISTING) != 0) {
        return true;
    }
    DeleteFileW(nebenan.c_str());
    return false;
}

void AusgabeDatei::Verwerfen() {
    if (m_griff != -1) {
        CloseHandle(Griff(std::exchange(m_griff, -1)));
        DeleteFileW(Breit(m_nebenan).c_str());
    }
}

bool DateiAnlegbar(const Text& pfad) {
    const std::wstring system = SystemPfad(pfad);
    if (IstGeraet(system) || GetFileAttributesW(system.c_str()) != INVALID_FILE_ATTRIBUTES) {
        return false;
    }
    const HANDLE griff =
        CreateFileW(system.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (griff == INVALID_HANDLE_VALUE) {
        return false;
    }
    CloseHandle(griff);
    DeleteFileW(system.c_str());
    return true;
}

Zeitpunkt Jetzt() {
    SYSTEMTIME ort{};
    GetLocalTime(&ort);
    return {ort.wYear, ort.wMonth, ort.wDay, ort.wHour, ort.wMinute};
}

std::int64_t MilliSekunden() {
    return static_cast<std::int64_t>(GetTickCount64());
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
