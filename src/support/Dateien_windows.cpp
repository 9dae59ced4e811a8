// Files and folders on Windows.
#include "support/OS_API.h"

#include "support/HilfsFunktionen.h"
#include "support/Systemruf_windows.h"

#include <algorithm>
#include <new>
#include <utility>

namespace zepholt {

namespace {

static_assert(sizeof(wchar_t) == sizeof(char16_t));

constexpr int Versuche = 1000; // to find a name beside an output file that is not taken
constexpr DWORD AlleTeilen = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

std::wstring Breit(TextSicht text) {
    return {text.begin(), text.end()};
}

HANDLE Griff(std::intptr_t griff) {
    return reinterpret_cast<HANDLE>(griff);
}

bool BeginntMit(std::wstring_view text, std::wstring_view anfang) {
    return text.size() >= anfang.size() &&
           CompareStringOrdinal(text.data(), static_cast<int>(anfang.size()), anfang.data(),
                                static_cast<int>(anfang.size()), TRUE) == CSTR_EQUAL;
}

// The prefix of a path that the system takes as it stands, and so may be longer than 260 characters.
constexpr std::wstring_view Woertlich = LR"(\\?\)";

// True for a path to a device: \\.\NUL, and any taken as it stands that begins with no drive, volume or share.
bool IstGeraet(std::wstring_view pfad) {
    if (!pfad.starts_with(Woertlich)) {
        return pfad.starts_with(LR"(\\.\)");
    }
    pfad.remove_prefix(Woertlich.size());
    const bool laufwerk = pfad.size() > 2 && pfad[1] == L':' && pfad[2] == L'\\';
    return !laufwerk && !BeginntMit(pfad, LR"(UNC\)") && !BeginntMit(pfad, L"Volume{");
}

// True when a colon stands anywhere but behind the letter of a drive: a stream of a file is no file.
bool NenntStrom(std::wstring_view pfad) {
    const std::size_t anfang = pfad.starts_with(Woertlich) ? Woertlich.size() : 0;
    return pfad.find(L':', anfang + 2) != std::wstring_view::npos;
}

// The text as an absolute path, with '\' between its parts.
std::wstring VollerPfad(const std::wstring& pfad) {
    std::wstring voll(GetFullPathNameW(pfad.c_str(), 0, nullptr, nullptr), L'\0');
    voll.resize(GetFullPathNameW(pfad.c_str(), static_cast<DWORD>(voll.size()), voll.data(), nullptr));
    return voll;
}

// A path for the system: absolute, and taken as it stands, which lifts the limit of 260 characters. The name of a
// device (NUL, COM1) comes back as \\.\NUL. Empty, and so never found, for a text that holds a NUL, where the system
// would stop reading, or names a stream.
std::wstring SystemPfad(const Text& pfad) {
    const std::wstring breit = Breit(pfad);
    if (breit.empty() || breit.find(L'\0') != std::wstring::npos) {
        return {};
    }
    const std::wstring voll = breit.starts_with(Woertlich) ? breit : VollerPfad(breit);
    if (IstGeraet(voll)) {
        return voll;
    }
    if (NenntStrom(voll)) {
        return {};
    }
    if (voll.starts_with(Woertlich)) {
        return voll;
    }
    return voll.starts_with(LR"(\\)") ? LR"(\\?\UNC\)" + voll.substr(2) : std::wstring(Woertlich) + voll;
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

// A search in a folder, over with its end.
struct Suche {
    explicit Suche(HANDLE griff) : Griff(griff) {}
    ~Suche() {
        if (Griff != INVALID_HANDLE_VALUE) {
            FindClose(Griff);
        }
    }
    Suche(const Suche&) = delete;
    Suche& operator=(const Suche&) = delete;

    const HANDLE Griff;
};

std::vector<OrdnerEintrag> MitPlatzhaltern(const Text& muster, const std::wstring& ordner) {
    std::vector<OrdnerEintrag> eintraege;
    WIN32_FIND_DATAW fund{};
    const Suche suche(FindFirstFileExW(SystemPfad(muster).c_str(), FindExInfoBasic, &fund, FindExSearchNameMatch,
                                       nullptr, FIND_FIRST_EX_LARGE_FETCH));
    if (suche.Griff == INVALID_HANDLE_VALUE) {
        return eintraege;
    }
    do {
        const DateiArt art = ArtAus(fund.dwFileAttributes, ordner + fund.cFileName);
        if (art != DateiArt::Nichts) {
            eintraege.push_back({AusBreit(fund.cFileName), art, IstVersteckt(fund.dwFileAttributes)});
        }
    } while (FindNextFileW(suche.Griff, &fund) != 0);
    std::sort(eintraege.begin(), eintraege.end(), SteheVor);
    return eintraege;
}

// Gives a file its name, and takes it from the file that bears it. Another program may hold that for a moment (a test
// of the same name by a run that starts, a virus scanner): it is tried again for half a second.
bool Umbenennen(const std::wstring& von, const std::wstring& nach) {
    for (int versuch = 0; versuch < 50; ++versuch) {
        if (MoveFileExW(von.c_str(), nach.c_str(), MOVEFILE_REPLACE_EXISTING) != 0) {
            return true;
        }
        const DWORD grund = GetLastError();
        if (grund != ERROR_SHARING_VIOLATION && grund != ERROR_ACCESS_DENIED && grund != ERROR_DELETE_PENDING) {
            return false;
        }
        Sleep(10);
    }
    return false;
}

// True when a file may come to stand at `pfad`: nothing, an ordinary file that may be written, or a link to a file
// stands there. It is the link that is replaced.
bool IstErsetzbar(const std::wstring& pfad) {
    const DWORD attribute = GetFileAttributesW(pfad.c_str());
    constexpr DWORD Bleibt = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE | FILE_ATTRIBUTE_READONLY;
    return attribute == INVALID_FILE_ATTRIBUTES || (attribute & Bleibt) == 0;
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

std::size_t LeseDatei::Lies(std::uint64_t stelle, std::span<unsigned char> ziel) {
    std::size_t gelesen = 0;
    while (gelesen < ziel.size()) {
        OVERLAPPED ort{};
        ort.Offset = static_cast<DWORD>((stelle + gelesen) & 0xFFFFFFFFU);
        ort.OffsetHigh = static_cast<DWORD>((stelle + gelesen) >> 32U);
        DWORD stueck = 0;
        const auto soll = static_cast<DWORD>(std::min(ziel.size() - gelesen, GroesstesStueck));
        if (ReadFile(Griff(m_griff), ziel.data() + gelesen, soll, &stueck, &ort) == 0 &&
            GetLastError() != ERROR_HANDLE_EOF) {
            throw LaufzeitFehler("file can't be read");
        }
        if (stueck == 0) { // shorter than it was when it was opened
            break;
        }
        gelesen += stueck;
    }
    return gelesen;
}

struct AusgabeDatei::Platz {
    std::wstring Ziel;
    std::wstring Nebenan; // where the bytes go until the file is complete
    HANDLE Datei = INVALID_HANDLE_VALUE;

    ~Platz() {
        if (Datei != INVALID_HANDLE_VALUE) {
            CloseHandle(Datei);
            DeleteFileW(Nebenan.c_str());
        }
    }

    // The file is deleted when it is closed, by whatever ends the process, or it stays. Where the file system can't do
    // so it stays, and is deleted by its name.
    void BeimSchliessenLoeschen(bool loeschen) const {
        FILE_DISPOSITION_INFO angaben{};
        angaben.DeleteFile = loeschen ? TRUE : FALSE;
        SetFileInformationByHandle(Datei, FileDispositionInfo, &angaben, sizeof angaben);
    }
};

void AusgabeDatei::PlatzEnde::operator()(Platz* platz) const {
    delete platz;
}

// The name beside the place is short and of its own, whatever the length of the name in the end. A name that is taken
// is passed over: the process number alone is not unique where a folder is shared between machines.
AusgabeDatei::PlatzZeiger AusgabeDatei::Anlegen(const Text& pfad, PlatzZeiger /*erprobt*/) {
    PlatzZeiger platz(new Platz);
    platz->Ziel = SystemPfad(pfad);
    const std::wstring& ziel = platz->Ziel;
    if (ziel.empty() || ziel.back() == L'\\' || IstGeraet(ziel) || !IstErsetzbar(ziel)) {
        return nullptr;
    }
    const std::wstring davor =
        ziel.substr(0, ziel.rfind(L'\\') + 1) + L"zepholt-" + std::to_wstring(GetCurrentProcessId()) + L"-";
    for (int versuch = 0; versuch < Versuche; ++versuch) {
        platz->Nebenan = davor + std::to_wstring(versuch) + L".tmp";
        platz->Datei = CreateFileW(platz->Nebenan.c_str(), GENERIC_WRITE | DELETE, 0, nullptr, CREATE_NEW,
                                   FILE_ATTRIBUTE_NORMAL, nullptr);
        if (platz->Datei != INVALID_HANDLE_VALUE) {
            platz->BeimSchliessenLoeschen(true);
            return platz;
        }
        if (GetLastError() != ERROR_FILE_EXISTS) {
            break;
        }
    }
    return nullptr;
}

bool AusgabeDatei::Hinausschreiben(std::string_view bytes) {
    return AllesSchreiben(m_platz->Datei, bytes);
}

bool AusgabeDatei::Einsetzen() {
    const PlatzZeiger platz = std::move(m_platz);
    platz->BeimSchliessenLoeschen(false);
    const bool ganz = CloseHandle(std::exchange(platz->Datei, INVALID_HANDLE_VALUE)) != 0;
    if (ganz && IstErsetzbar(platz->Ziel) && Umbenennen(platz->Nebenan, platz->Ziel)) {
        return true;
    }
    DeleteFileW(platz->Nebenan.c_str());
    return false;
}

// Under the name itself, since only so the system tells whether it is one. What is deleted is the file that was created
// here and no other, also when the process is ended in between.
bool DateiAnlegbar(const Text& pfad, AusgabeDatei::PlatzZeiger* /*offen*/) {
    const std::wstring system = SystemPfad(pfad);
    if (IstGeraet(system) || GetFileAttributesW(system.c_str()) != INVALID_FILE_ATTRIBUTES) {
        return false;
    }
    const HANDLE griff = CreateFileW(system.c_str(), GENERIC_WRITE | DELETE, AlleTeilen, nullptr, CREATE_NEW,
                                     FILE_ATTRIBUTE_NORMAL | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (griff == INVALID_HANDLE_VALUE) {
        return false;
    }
    CloseHandle(griff);
    return true;
}

} // namespace zepholt
