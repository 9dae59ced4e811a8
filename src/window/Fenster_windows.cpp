// The windows on Windows, with the platform's own controls.
//
// Both forms are dialogs of the system, which gives tab order, Enter and Escape their usual sense.
#include "window/Fenster.h"

#include "state/TestDaten.h"
#include "window/Formularfenster_windows.h"
#include "window/Fortschritt.h"
#include "window/Textanzeige.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>

namespace zepholt {

namespace {

class Infofenster : public Formularfenster {
public:
    Infofenster() : Formularfenster(frmInfo, TexteInfo()) {}

protected:
    void Befehl(int nummer) override {
        if (nummer == IDOK || nummer == IDCANCEL) {
            EndDialog(Griff(), nummer);
        }
    }
};

class Hauptfenster : public Fenster, private Formularfenster {
public:
    Hauptfenster() : Formularfenster(frmZEPHOLT, TexteHaupt()) {}
    ~Hauptfenster() override {
        if (Griff() != nullptr) {
            DestroyWindow(Griff());
        }
    }

    bool Oeffne() {
        if (!Formularfenster::Oeffne()) {
            return false;
        }
        ShowWindow(Griff(), SW_SHOWNORMAL);
        Ereignisse();
        return true;
    }

    void ZeigeAustauschdatei(TextSicht text) override { Beschrifte(Hauptformular::lblAustauschdatei, text); }
    void ZeigeProjekt(TextSicht text) override { Beschrifte(Hauptformular::lblProjekt, text); }
    void ZeigeDokument(TextSicht text) override { Beschrifte(Hauptformular::lblDokument, text); }
    void ZeigeSchritt(TextSicht text) override { Beschrifte(Hauptformular::lblFortschritt, text); }
    void ZeigeBalken(double breite) override {
        m_balken = breite;
        BalkenAnordnen();
    }

    void Ereignisse() override {
        MSG meldung;
        while (PeekMessageW(&meldung, nullptr, 0, 0, PM_REMOVE) != 0) {
            if (!IsDialogMessageW(Griff(), &meldung)) {
                TranslateMessage(&meldung);
                DispatchMessageW(&meldung);
            }
        }
    }

protected:
    void Befehl(int nummer) override {
        if (nummer == IDCANCEL) {
            FrageAbbruch();
        } else if (nummer == Nummer(frmZEPHOLT, Hauptformular::cmdInfo)) {
            Infofenster().ZeigeModal(Griff());
        }
    }

    void NachAnordnung() override {
        for (const Anzeigefeld& feld : m_felder) {
            FeldAnordnen(feld);
        }
        BalkenAnordnen();
    }

private:
    // A label whose text comes from the run.
    struct Anzeigefeld {
        std::int32_t Element;
        Text Inhalt;
    };

    void Beschrifte(std::int32_t element, TextSicht text) {
        for (Anzeigefeld& feld : m_felder) {
            if (feld.Element == element && feld.Inhalt != text) {
                feld.Inhalt = text;
                FeldAnordnen(feld);
            }
        }
    }

    // Shortened in the middle to the label's width, and whole as its hint.
    void FeldAnordnen(const Anzeigefeld& feld) {
        const HWND element = Element(feld.Element);
        const int breite = InPixel(frmZEPHOLT.Elemente[feld.Element].Breite);
        const Text kurz = MitteGekuerzt(feld.Inhalt, breite, Schrift());
        SetWindowTextW(element, Breit(kurz));
        HinweisSetzen(element, kurz == feld.Inhalt ? Text() : feld.Inhalt);
    }

    // The hint of a label; an empty one doesn't show.
    void HinweisSetzen(HWND element, Text text) {
        TTTOOLINFOW angaben{};
        angaben.cbSize = sizeof angaben;
        angaben.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
        angaben.hwnd = Griff();
        angaben.uId = reinterpret_cast<UINT_PTR>(element);
        if (m_hinweise == nullptr) {
            m_hinweise =
                CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0,
                                0, 0, Griff(), nullptr, GetModuleHandleW(nullptr), nullptr);
        }
        SendMessageW(m_hinweise, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&angaben));
        angaben.lpszText = reinterpret_cast<wchar_t*>(text.data());
        SendMessageW(m_hinweise, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&angaben));
        SendMessageW(m_hinweise, TTM_SETMAXTIPWIDTH, 0, InPixel(frmZEPHOLT.Breite));
    }

    void BalkenAnordnen() {
        const HWND balken = Element(Hauptformular::picFSBalken);
        const int hoehe = InPixel(frmZEPHOLT.Elemente[Hauptformular::picFSBalken].Hoehe);
        SetWindowPos(balken, nullptr, 0, 0, std::max(1, InPixel(m_balken)), hoehe,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        ShowWindow(balken, m_balken > 0 ? SW_SHOWNA : SW_HIDE);
    }

    void FrageAbbruch() {
        const Text frage = TexteAbbruchfrage().Frage;
        if (MessageBoxW(Griff(), Breit(frage), Breit(ProgrammTitel), MB_YESNO | MB_DEFBUTTON2) == IDYES) {
            testDaten.Abbruch = true;
        }
    }

    Anzeigefeld m_felder[4] = {
        {Hauptformular::lblAustauschdatei, {}},
        {Hauptformular::lblProjekt, {}},
        {Hauptformular::lblDokument, {}},
        {Hauptformular::lblFortschritt, {}},
    };
    double m_balken = 0; // in twips
    HWND m_hinweise = nullptr;
};

} // namespace

std::unique_ptr<Fenster> FensterOeffnen() {
    KlassenAnmelden();
    auto fenster = std::make_unique<Hauptfenster>();
    if (fenster->Oeffne()) {
        return fenster;
    }
    return std::make_unique<Phasenzeilen>();
}

bool MeldungsboxZeigen(TextSicht text) {
    return MessageBoxW(nullptr, Breit(Text(text)), Breit(ProgrammTitel), MB_OK | MB_ICONSTOP) != 0;
}

} // namespace zepholt
