// The window on Linux: the module beside the program, or text on standard error.
#include "window/Fenster.h"

#include "state/TestDaten.h"
#include "support/OS_API.h"
#include "window/DialogDeFrIt.h"
#include "window/FensterModul.h"
#include "window/Formulartexte.h"
#include "window/Fortschritt.h"
#include "window/Terminalanzeige_linux.h"
#include "window/Textanzeige.h"

#include <dlfcn.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

namespace zepholt {

namespace {

// The folder of the running program, with its trailing '/'; empty when it can't be told.
std::string ProgrammOrdner() {
    std::string pfad(4096, '\0');
    const ssize_t laenge = readlink("/proc/self/exe", pfad.data(), pfad.size());
    if (laenge <= 0) {
        return {};
    }
    pfad.resize(static_cast<std::size_t>(laenge));
    return pfad.substr(0, pfad.rfind('/') + 1);
}

// The module, from beside the program or from where an installation puts it; null when there is none. It stays loaded
// until the process ends.
const FensterModul* ModulLaden() {
    const std::string ordner = ProgrammOrdner();
    if (ordner.empty()) {
        return nullptr;
    }
    void* bibliothek = dlopen((ordner + ZEPHOLT_FENSTERMODUL).c_str(), RTLD_NOW | RTLD_LOCAL);
    if (bibliothek == nullptr) {
        bibliothek = dlopen((ordner + "../lib/zepholt/" ZEPHOLT_FENSTERMODUL).c_str(), RTLD_NOW | RTLD_LOCAL);
    }
    if (bibliothek == nullptr) {
        return nullptr;
    }
    const auto modul = reinterpret_cast<FensterModulFunktion>(dlsym(bibliothek, kFensterModulFunktion));
    return modul == nullptr ? nullptr : modul(kFensterModulFassung);
}

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

// The texts of a form as the module takes them.
struct Textzeiger {
    explicit Textzeiger(const Formulartexte& texte) : Titel(texte.Titel.c_str()) {
        for (const Text& text : texte.Elemente) {
            Elemente.push_back(text.c_str());
        }
    }
    FormularMitTexten Mit(const Formular& formular) const { return {&formular, Titel, Elemente.data()}; }

    const char16_t* Titel;
    std::vector<const char16_t*> Elemente;
};

// The module's window behind the program's own interface.
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

    void ZeigeAustauschdatei(TextSicht text) override { Beschrifte(ZEPHOLT::lblAustauschdatei, text); }
    void ZeigeProjekt(TextSicht text) override { Beschrifte(ZEPHOLT::lblProjekt, text); }
    void ZeigeDokument(TextSicht text) override { Beschrifte(ZEPHOLT::lblDokument, text); }
    void ZeigeSchritt(TextSicht text) override { Beschrifte(ZEPHOLT::lblFortschritt, text); }
    void ZeigeBalken(double breite) override { m_modul.Balken(m_griff, breite); }

    void Ereignisse() override {
        if (m_modul.Ereignisse(m_griff)) {
            testDaten.Abbruch = true;
        }
    }

private:
    void Beschrifte(std::int32_t element, TextSicht text) { m_modul.Beschriften(m_griff, element, Text(text).c_str()); }

    const Formulartexte m_zepholt = TexteZEPHOLT();
    const Formulartexte m_info = TexteInfo();
    const Fragetexte m_frage = TexteAbbruchfrage();
    const Textzeiger m_zepholtZeiger{m_zepholt};
    const Textzeiger m_infoZeiger{m_info};
    const FensterTexte m_uebergabe = {
        m_zepholtZeiger.Mit(frmZEPHOLT), m_infoZeiger.Mit(frmInfo), kProgrammTitel,
        m_frage.Frage.c_str(),           m_frage.Ja.c_str(),        m_frage.Nein.c_str(),
    };
    const FensterModul& m_modul;
    ModulFensterGriff* m_griff;
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
    return modul != nullptr && modul->Meldung(kProgrammTitel, Text(text).c_str(), ok.c_str());
}

} // namespace zepholt
