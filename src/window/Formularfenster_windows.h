// A form as a dialog of Windows: the controls of one table, laid out afresh when the window comes to a display of
// another resolution.
#pragma once

#include "window/Formulare.h"
#include "window/Formulartexte.h"

#include <windows.h>

#include <utility>
#include <vector>

namespace zepholt {

inline const wchar_t* Breit(const char16_t* text) {
    return reinterpret_cast<const wchar_t*>(text);
}
inline const wchar_t* Breit(const Text& text) {
    return Breit(text.c_str());
}

// Registers the controls of the program's own; once, before the first form.
void KlassenAnmelden();

// The text without so much of its middle, replaced by an ellipsis, that it fits into `breite` pixels in this font.
Text MitteGekuerzt(const Text& text, int breite, HFONT schrift);

// The number by which a control of a form reports a command: IDCANCEL, IDOK or one of the program's own.
int Nummer(const Formular& formular, std::int32_t element);

// A dialog of the system with the controls of one table.
class Formularfenster {
public:
    Formularfenster(const Formular& formular, Formulartexte texte) : m_formular(formular), m_texte(std::move(texte)) {}
    virtual ~Formularfenster();
    Formularfenster(const Formularfenster&) = delete;
    Formularfenster& operator=(const Formularfenster&) = delete;

    bool Oeffne();                // without blocking; false when no window can be shown
    void ZeigeModal(HWND eltern); // returns when it is closed

    HWND Griff() const { return m_griff; }

protected:
    virtual void Befehl(int nummer) = 0; // a button, Escape or the close box

    // Called behind a layout: what depends on the resolution.
    virtual void NachAnordnung() {}

    HWND Element(std::int32_t i) const { return m_elemente[static_cast<std::size_t>(i)]; }
    int InPixel(double twips) const;
    HFONT Schrift() const { return m_schrift; }

private:
    static INT_PTR CALLBACK Prozedur(HWND griff, UINT meldung, WPARAM w, LPARAM l);
    void Aufbauen(HWND griff);
    void ElementAnlegen(const Steuerelement& e, std::int32_t i);
    void Anordnen(UINT dpi, const POINT* ort);
    void SchriftErneuern();
    void ElementAnordnen(const Steuerelement& e, HWND element) const;
    SIZE Aussengroesse() const;
    RECT PlatzVon(const Steuerelement& e) const;

    const Formular& m_formular;
    const Formulartexte m_texte;
    HWND m_griff = nullptr;
    std::vector<HWND> m_elemente; // by the rows of the table
    HFONT m_schrift = nullptr;
    UINT m_dpi = USER_DEFAULT_SCREEN_DPI;
};

} // namespace zepholt
