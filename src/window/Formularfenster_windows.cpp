#include "window/Formularfenster_windows.h"

#include <commctrl.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace zepholt {

namespace {

constexpr int TwipsJeZoll = 1440;
constexpr int Programmbild = 1;    // the icon's number in the program's resources
constexpr int ErsteNummer = 100;   // of the controls that have none of the system's own
constexpr int SchriftKleinste = 9; // pixels at 96 dots per inch
constexpr int KnopfRand = 6;       // pixels at 96 dots per inch that a button needs on each side of its caption

int Pixel(double twips, UINT dpi) {
    return static_cast<int>(std::lround(twips * dpi / TwipsJeZoll));
}

bool IstAbsatz(const Steuerelement& e) {
    return e.Art == ElementArt::Beschriftung && e.Hoehe > 300;
}

// --- Measuring -------------------------------------------------------------------------------------------------------

// The device to measure text with, in one font.
class Messgeraet {
public:
    explicit Messgeraet(HFONT schrift) : m_geraet(GetDC(nullptr)), m_vorher(SelectObject(m_geraet, schrift)) {}
    ~Messgeraet() {
        SelectObject(m_geraet, m_vorher);
        ReleaseDC(nullptr, m_geraet);
    }
    Messgeraet(const Messgeraet&) = delete;
    Messgeraet& operator=(const Messgeraet&) = delete;

    // Width and height of a text, in pixels; `breite` bounds the lines of a paragraph.
    SIZE Misst(const Text& text, int breite, bool absatz) const {
        RECT platz = {0, 0, breite, 0};
        const UINT umbruch = absatz ? DT_WORDBREAK : DT_SINGLELINE;
        DrawTextW(m_geraet, Breit(text), static_cast<int>(text.size()), &platz, DT_CALCRECT | DT_NOPREFIX | umbruch);
        return {platz.right, platz.bottom};
    }

private:
    HDC m_geraet;
    HGDIOBJ m_vorher;
};

bool IstErsteHaelfte(char16_t zeichen) {
    return zeichen >= 0xD800 && zeichen < 0xDC00;
}

// True when the captions of a form all fit into their places in this font.
bool Passt(const Formular& formular, const Formulartexte& texte, HFONT schrift, UINT dpi) {
    const Messgeraet mass(schrift);
    for (std::int32_t i = 0; i < formular.Anzahl; ++i) {
        const Steuerelement& e = formular.Elemente[i];
        const int rand = e.Art == ElementArt::Knopf ? 2 * MulDiv(KnopfRand, static_cast<int>(dpi), 96) : 0;
        const int breite = Pixel(e.Breite, dpi) - rand;
        const Text& inhalt = texte.Elemente[static_cast<std::size_t>(i)];
        if (inhalt.empty()) {
            continue; // even no text may be given the height of a line
        }
        const SIZE groesse = mass.Misst(inhalt, breite, IstAbsatz(e));
        if (groesse.cx > breite || groesse.cy > Pixel(e.Hoehe, dpi)) {
            return false;
        }
    }
    return true;
}

// The system's font for messages, in the largest size up to its own in which nothing of the form is cut off. The
// caller deletes it.
HFONT PassendeSchrift(const Formular& formular, const Formulartexte& texte, UINT dpi) {
    NONCLIENTMETRICSW masse{};
    masse.cbSize = sizeof masse;
    SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof masse, &masse, 0, dpi);
    LOGFONTW art = masse.lfMessageFont;
    const LONG kleinste = -MulDiv(SchriftKleinste, static_cast<int>(dpi), 96);
    art.lfHeight = std::min(-std::abs(art.lfHeight), kleinste);
    for (;; ++art.lfHeight) {
        HFONT schrift = CreateFontIndirectW(&art);
        if (art.lfHeight >= kleinste || Passt(formular, texte, schrift, dpi)) {
            return schrift;
        }
        DeleteObject(schrift);
    }
}

// --- Controls of the program's own -----------------------------------------------------------------------------------

constexpr const wchar_t* KlasseBahn = L"ZEPHOLTBahn";
constexpr const wchar_t* KlasseBalken = L"ZEPHOLTBalken";

LRESULT CALLBACK BahnProzedur(HWND fenster, UINT meldung, WPARAM w, LPARAM l) {
    if (meldung != WM_PAINT) {
        return DefWindowProcW(fenster, meldung, w, l);
    }
    PAINTSTRUCT malen;
    const HDC geraet = BeginPaint(fenster, &malen);
    RECT platz;
    GetClientRect(fenster, &platz);
    DrawEdge(geraet, &platz, EDGE_SUNKEN, BF_RECT);
    EndPaint(fenster, &malen);
    return 0;
}

void KlasseAnmelden(const wchar_t* name, WNDPROC prozedur, int farbe) {
    WNDCLASSEXW klasse{};
    klasse.cbSize = sizeof klasse;
    klasse.lpfnWndProc = prozedur;
    klasse.hInstance = GetModuleHandleW(nullptr);
    klasse.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    klasse.hbrBackground = GetSysColorBrush(farbe);
    klasse.lpszClassName = name;
    RegisterClassExW(&klasse);
}

struct Bauart {
    const wchar_t* Klasse;
    DWORD Stil;
};

Bauart BauartVon(const Steuerelement& e) {
    switch (e.Art) {
    case ElementArt::Knopf:
        return {L"BUTTON", WS_VISIBLE | WS_TABSTOP | BS_PUSHBUTTON};
    case ElementArt::Rahmen:
        return {L"BUTTON", WS_VISIBLE | BS_GROUPBOX};
    case ElementArt::Bahn:
        return {KlasseBahn, WS_VISIBLE | WS_CLIPCHILDREN};
    case ElementArt::Balken:
        return {KlasseBalken, 0};
    case ElementArt::Beschriftung:
        break;
    }
    // Notifying, or the mouse would never be seen over a label with a hint.
    return {L"STATIC",
            WS_VISIBLE | SS_NOPREFIX | SS_NOTIFY | static_cast<DWORD>(IstAbsatz(e) ? SS_LEFT : SS_LEFTNOWORDWRAP)};
}

// --- A form ----------------------------------------------------------------------------------------------------------

// The template of a dialog: without controls, menu, class and title.
struct Vorlage {
    DLGTEMPLATE Kopf;
    WORD Leer[3];
};
constexpr Vorlage LeereVorlage = {{WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX, 0, 0, 0, 0, 0, 0}, {}};

// The system's own scaling of dialogs would scale what is laid out here a second time. Early versions don't have it.
void EigeneSkalierungAbstellen(HWND griff) {
    using Funktion = BOOL(WINAPI*)(HWND, int, int);
    constexpr int Alles = 7; // neither the dialog nor its controls
    const FARPROC adresse = GetProcAddress(GetModuleHandleW(L"user32.dll"), "SetDialogDpiChangeBehavior");
    if (adresse != nullptr) {
        reinterpret_cast<Funktion>(reinterpret_cast<void*>(adresse))(griff, Alles, Alles);
    }
}

// Where the upper left corner of a window of this size lies when it stands in the middle of its display.
POINT EckeInDerMitte(HWND fenster, const SIZE& groesse) {
    MONITORINFO anzeige{};
    anzeige.cbSize = sizeof anzeige;
    GetMonitorInfoW(MonitorFromWindow(fenster, MONITOR_DEFAULTTONEAREST), &anzeige);
    const RECT& frei = anzeige.rcWork;
    return {(frei.left + frei.right - groesse.cx) / 2, (frei.top + frei.bottom - groesse.cy) / 2};
}

} // namespace

void KlassenAnmelden() {
    INITCOMMONCONTROLSEX steuerelemente = {sizeof steuerelemente, ICC_STANDARD_CLASSES | ICC_BAR_CLASSES};
    InitCommonControlsEx(&steuerelemente);
    KlasseAnmelden(KlasseBahn, BahnProzedur, COLOR_BTNFACE);
    KlasseAnmelden(KlasseBalken, DefWindowProcW, COLOR_HIGHLIGHT);
}

Text MitteGekuerzt(const Text& text, int breite, HFONT schrift) {
    const Messgeraet mass(schrift);
    const auto gekuerzt = [&text](std::size_t bleibt) {
        std::size_t vorne = bleibt / 2;
        std::size_t hinten = text.size() - (bleibt - vorne);
        if (vorne > 0 && IstErsteHaelfte(text[vorne - 1])) {
            --vorne; // no half of a character stays
        }
        if (hinten < text.size() && hinten > 0 && IstErsteHaelfte(text[hinten - 1])) {
            ++hinten;
        }
        return text.substr(0, vorne) + u"…" + text.substr(hinten);
    };
    if (mass.Misst(text, breite, false).cx <= breite) {
        return text;
    }
    std::size_t passt = 0; // so many characters of the text fit, and `zuviel` don't
    std::size_t zuviel = text.size();
    while (zuviel - passt > 1) {
        const std::size_t versuch = (passt + zuviel) / 2;
        (mass.Misst(gekuerzt(versuch), breite, false).cx <= breite ? passt : zuviel) = versuch;
    }
    return gekuerzt(passt);
}

// Cancel button, Escape and the frame's close box are one command of the system.
int Nummer(const Formular& formular, std::int32_t element) {
    if (&formular == &frmZEPHOLT && element == Hauptformular::cmdAbbrechen) {
        return IDCANCEL;
    }
    if (&formular == &frmInfo && element == Infoformular::cmdOK) {
        return IDOK;
    }
    return ErsteNummer + element;
}

Formularfenster::~Formularfenster() {
    if (m_schrift != nullptr) {
        DeleteObject(m_schrift);
    }
}

int Formularfenster::InPixel(double twips) const {
    return Pixel(twips, m_dpi);
}

bool Formularfenster::Oeffne() {
    return CreateDialogIndirectParamW(GetModuleHandleW(nullptr), &LeereVorlage.Kopf, nullptr, &Prozedur,
                                      reinterpret_cast<LPARAM>(this)) != nullptr;
}

void Formularfenster::ZeigeModal(HWND eltern) {
    DialogBoxIndirectParamW(GetModuleHandleW(nullptr), &LeereVorlage.Kopf, eltern, &Prozedur,
                            reinterpret_cast<LPARAM>(this));
}

INT_PTR CALLBACK Formularfenster::Prozedur(HWND griff, UINT meldung, WPARAM w, LPARAM l) {
    if (meldung == WM_INITDIALOG) {
        SetWindowLongPtrW(griff, DWLP_USER, l);
        reinterpret_cast<Formularfenster*>(l)->Aufbauen(griff);
        return FALSE; // the focus is set
    }
    auto* formular = reinterpret_cast<Formularfenster*>(GetWindowLongPtrW(griff, DWLP_USER));
    if (formular == nullptr) {
        return FALSE;
    }
    if (meldung == WM_COMMAND && HIWORD(w) == BN_CLICKED) {
        formular->Befehl(LOWORD(w));
        return TRUE;
    }
    if (meldung == WM_DPICHANGED) {
        const auto* vorschlag = reinterpret_cast<const RECT*>(l);
        const POINT ort = {vorschlag->left, vorschlag->top};
        formular->Anordnen(HIWORD(w), &ort);
        return TRUE;
    }
    return FALSE;
}

void Formularfenster::Aufbauen(HWND griff) {
    m_griff = griff;
    EigeneSkalierungAbstellen(griff);
    SetWindowTextW(griff, Breit(m_texte.Titel));
    const auto bild = [griff](WPARAM art, int breite, int hoehe) {
        const HANDLE symbol = LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(Programmbild), IMAGE_ICON,
                                         GetSystemMetrics(breite), GetSystemMetrics(hoehe), LR_SHARED);
        SendMessageW(griff, WM_SETICON, art, reinterpret_cast<LPARAM>(symbol));
    };
    bild(ICON_BIG, SM_CXICON, SM_CYICON);
    bild(ICON_SMALL, SM_CXSMICON, SM_CYSMICON);

    for (std::int32_t i = 0; i < m_formular.Anzahl; ++i) {
        ElementAnlegen(m_formular.Elemente[i], i);
    }
    Anordnen(GetDpiForWindow(griff), nullptr);
    SetFocus(GetNextDlgTabItem(griff, nullptr, FALSE));
}

// Controls lie in the form itself, also those of a frame; only the bar lies in its track, which cuts it off.
void Formularfenster::ElementAnlegen(const Steuerelement& e, std::int32_t i) {
    const Bauart bauart = BauartVon(e);
    const HWND eltern = e.Art == ElementArt::Balken ? Element(e.Eltern) : m_griff;
    const auto nummer = reinterpret_cast<HMENU>(static_cast<INT_PTR>(Nummer(m_formular, i)));
    m_elemente.push_back(CreateWindowExW(0, bauart.Klasse, Breit(m_texte.Elemente[static_cast<std::size_t>(i)]),
                                         WS_CHILD | WS_CLIPSIBLINGS | bauart.Stil, 0, 0, 0, 0, eltern, nummer,
                                         GetModuleHandleW(nullptr), nullptr));
}

// Where a control comes to lie in its window, in pixels.
RECT Formularfenster::PlatzVon(const Steuerelement& e) const {
    std::int32_t links = e.Links;
    std::int32_t oben = e.Oben;
    if (e.Art == ElementArt::Balken) {
        links += BahnRand;
        oben += BahnRand;
    } else if (e.Eltern >= 0) {
        links += m_formular.Elemente[e.Eltern].Links;
        oben += m_formular.Elemente[e.Eltern].Oben;
    }
    return {InPixel(links), InPixel(oben), InPixel(links + e.Breite), InPixel(oben + e.Hoehe)};
}

// Lays everything out for a resolution. `ort` is where the window goes; without one to the middle of its display.
void Formularfenster::Anordnen(UINT dpi, const POINT* ort) {
    m_dpi = dpi;
    SchriftErneuern();
    for (std::int32_t i = 0; i < m_formular.Anzahl; ++i) {
        ElementAnordnen(m_formular.Elemente[i], Element(i));
    }
    const SIZE groesse = Aussengroesse();
    const POINT ecke = ort == nullptr ? EckeInDerMitte(m_griff, groesse) : *ort;
    SetWindowPos(m_griff, nullptr, ecke.x, ecke.y, groesse.cx, groesse.cy, SWP_NOZORDER | SWP_NOACTIVATE);
    NachAnordnung();
    InvalidateRect(m_griff, nullptr, TRUE);
}

// The controls leave the old font before it is deleted.
void Formularfenster::SchriftErneuern() {
    const HFONT alteSchrift = std::exchange(m_schrift, PassendeSchrift(m_formular, m_texte, m_dpi));
    for (const HWND element : m_elemente) {
        SendMessageW(element, WM_SETFONT, reinterpret_cast<WPARAM>(m_schrift), FALSE);
    }
    if (alteSchrift != nullptr) {
        DeleteObject(alteSchrift);
    }
}

// A frame goes below all others, or it would cut off what it frames.
void Formularfenster::ElementAnordnen(const Steuerelement& e, HWND element) const {
    const RECT platz = PlatzVon(e);
    const bool istRahmen = e.Art == ElementArt::Rahmen;
    SetWindowPos(element, istRahmen ? HWND_BOTTOM : nullptr, platz.left, platz.top, platz.right - platz.left,
                 platz.bottom - platz.top, SWP_NOACTIVATE | (istRahmen ? 0U : SWP_NOZORDER));
}

// Of the window with its frame, in pixels.
SIZE Formularfenster::Aussengroesse() const {
    RECT aussen = {0, 0, InPixel(m_formular.Breite), InPixel(m_formular.Hoehe)};
    AdjustWindowRectExForDpi(&aussen, static_cast<DWORD>(GetWindowLongW(m_griff, GWL_STYLE)), FALSE,
                             static_cast<DWORD>(GetWindowLongW(m_griff, GWL_EXSTYLE)), m_dpi);
    return {aussen.right - aussen.left, aussen.bottom - aussen.top};
}

} // namespace zepholt
