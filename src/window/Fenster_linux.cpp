// The window on Linux: the module beside the program, or text on standard error.
#include "window/Fenster.h"

#include "state/TestDaten.h"
#include "support/OS_API.h"
#include "window/DialogDeFrIt.h"
#include "window/FensterModul.h"
#include "window/Formulartexte.h"
#include "window/Fortschritt.h"
#include "window/Modul_linux.h"
#include "window/Terminalanzeige_linux.h"
#include "window/Textanzeige.h"

#include <cstdlib>
#include <utility>
#include <vector>

namespace zepholt {

namespace {

// True when the environment names a display: without one the module isn't even loaded.
bool AnzeigeGenannt() {
    const auto gesetzt = [](const char* name) {
        const char* wert = std::getenv(name);
        return wert != nullptr && *wert != '\0';
    };
    return gesetzt("DISPLAY") || gesetzt("WAYLAND_DISPLAY") || gesetzt("QT_QPA_PLATFORM");
}

// The module when it has a display to show windows on, or null.
const FensterModul* BereitesModul() {
    if (!AnzeigeGenannt()) {
        return nullptr;
    }
    const FensterModul* modul = ModulLaden();
    return modul != nullptr && modul->Bereit() ? modul : nullptr;
}

// A form's texts in the dialog language, as the module takes them.
class UebergebeneTexte {
public:
    explicit UebergebeneTexte(Formulartexte texte) : m_texte(std::move(texte)) {
        for (const Text& text : m_texte.Elemente) {
            m_zeiger.push_back(text.c_str());
        }
    }
    UebergebeneTexte(const UebergebeneTexte&) = delete; // what is pointed to lies in here
    UebergebeneTexte& operator=(const UebergebeneTexte&) = delete;

    FormularMitTexten Mit(const Formular& formular) const {
        return {&formular, m_texte.Titel.c_str(), m_zeiger.data()};
    }

private:
    Formulartexte m_texte;
    std::vector<const char16_t*> m_zeiger;
};

// The module's window behind the program's own interface. It opens with the object, from members that stand in the
// order in which they need each other: texts, what points to them, the window that is given those.
class Modulfenster : public Fenster {
public:
    explicit Modulfenster(const FensterModul& modul) : m_modul(modul), m_griff(modul.Oeffnen(&m_uebergabe)) {}
    ~Modulfenster() override {
        if (Offen()) {
            m_modul.Schliessen(m_griff);
        }
    }
    Modulfenster(const Modulfenster&) = delete;
    Modulfenster& operator=(const Modulfenster&) = delete;

    bool Offen() const { return m_griff != nullptr; }

    void ZeigeAustauschdatei(TextSicht text) override { Beschrifte(Hauptformular::lblAustauschdatei, text); }
    void ZeigeProjekt(TextSicht text) override { Beschrifte(Hauptformular::lblProjekt, text); }
    void ZeigeDokument(TextSicht text) override { Beschrifte(Hauptformular::lblDokument, text); }
    void ZeigeSchritt(TextSicht text) override { Beschrifte(Hauptformular::lblFortschritt, text); }
    void ZeigeBalken(double breite) override { m_modul.Balken(m_griff, breite); }

    void Ereignisse() override {
        if (m_modul.Ereignisse(m_griff)) {
            testDaten.Abbruch = true;
        }
    }

private:
    void Beschrifte(std::int32_t element, TextSicht text) { m_modul.Beschriften(m_griff, element, Text(text).c_str()); }

    const UebergebeneTexte m_haupt{TexteHaupt()};
    const UebergebeneTexte m_info{TexteInfo()};
    const Fragetexte m_frage = TexteAbbruchfrage();
    const FensterTexte m_uebergabe = {
        m_haupt.Mit(frmZEPHOLT), m_info.Mit(frmInfo), ProgrammTitel,
        m_frage.Frage.c_str(),   m_frage.Ja.c_str(),  m_frage.Nein.c_str(),
    };
    const FensterModul& m_modul;
    ModulFensterGriff* const m_griff;
};

} // namespace

std::unique_ptr<Fenster> FensterOeffnen() {
    if (const FensterModul* modul = BereitesModul()) {
        auto fenster = std::make_unique<Modulfenster>(*modul);
        if (fenster->Offen()) {
            return fenster;
        }
    }
    if (MeldungIstTerminal()) {
        return std::make_unique<Terminalanzeige>();
    }
    return std::make_unique<Phasenzeilen>();
}

bool MeldungsboxZeigen(TextSicht text) {
    const FensterModul* modul = BereitesModul();
    const Text ok(Uebersetze(u"OK"));
    return modul != nullptr && modul->Meldung(ProgrammTitel, Text(text).c_str(), ok.c_str());
}

} // namespace zepholt
