#include "desktop/Prueffenster_windows.h"

#include "desktop/Ablauf_windows.h"
#include "desktop/Auswahl_windows.h"
#include "desktop/Desktoptexte.h"
#include "desktop/Einstellungen_windows.h"
#include "window/Formularfenster_windows.h"

#include <shellapi.h>

namespace zepholt::desktop {

namespace {

enum Element : std::int32_t {
    rahDatei,
    lblZiehen,
    cmdDatei,
    lblErgebnis,
    rahKatalog,
    lblKatalog,
    cmdKatalog,
};

constexpr Steuerelement Elemente[] = {
    {"rahDatei", ElementArt::Rahmen, -1, 150, 90, 7200, 1620, u"", 0},
    {"lblZiehen", ElementArt::Beschriftung, rahDatei, 225, 420, 6750, 270, u"", 1},
    {"cmdDatei", ElementArt::Knopf, rahDatei, 225, 885, 2100, 420, u"", 2},
    {"lblErgebnis", ElementArt::Beschriftung, rahDatei, 2550, 885, 4500, 540, u"", 3},
    {"rahKatalog", ElementArt::Rahmen, -1, 150, 1830, 7200, 900, u"", 4},
    {"lblKatalog", ElementArt::Beschriftung, rahKatalog, 225, 390, 5100, 270, u"", 5},
    {"cmdKatalog", ElementArt::Knopf, rahKatalog, 5475, 300, 1500, 420, u"", 6},
};
constexpr Formular frmPruefen = {
    "frmPruefen", u"", 7500, 2895, Elemente, static_cast<std::int32_t>(sizeof Elemente / sizeof Elemente[0])};

Formulartexte TextePruefen(bericht::Sprache sprache) {
    const auto text = [sprache](Desktoptext eines) { return In(sprache, eines); };
    return {text(Desktoptext::Titel),
            {text(Desktoptext::RahmenDatei),
             text(Desktoptext::Ziehen),
             text(Desktoptext::DateiWaehlen),
             {},
             text(Desktoptext::RahmenKatalog),
             {},
             text(Desktoptext::KatalogAendern)}};
}

class Prueffenster : private Formularfenster {
public:
    explicit Prueffenster(bericht::Sprache sprache)
        : Formularfenster(frmPruefen, TextePruefen(sprache)), m_sprache(sprache) {}
    ~Prueffenster() override {
        if (Griff() != nullptr) {
            DestroyWindow(Griff());
        }
    }

    void Zeigen() {
        if (!Oeffne()) {
            return;
        }
        DragAcceptFiles(Griff(), TRUE);
        ShowWindow(Griff(), SW_SHOWNORMAL);
        PostMessageW(Griff(), WM_COMMAND, MAKEWPARAM(Nummer(frmPruefen, cmdDatei), BN_CLICKED), 0);
        MSG nachricht{};
        while (!m_zu && GetMessageW(&nachricht, nullptr, 0, 0) > 0) {
            if (nachricht.message == WM_DROPFILES) {
                Fallengelassen(reinterpret_cast<HDROP>(nachricht.wParam));
            } else if (!IsDialogMessageW(Griff(), &nachricht)) {
                TranslateMessage(&nachricht);
                DispatchMessageW(&nachricht);
            }
        }
    }

protected:
    void Befehl(int nummer) override {
        if (nummer == IDCANCEL) {
            m_zu = true;
            PostMessageW(Griff(), WM_NULL, 0, 0);
        } else if (nummer == Nummer(frmPruefen, cmdDatei)) {
            Pruefen(DateienWaehlen(Griff(), m_sprache));
        } else if (nummer == Nummer(frmPruefen, cmdKatalog)) {
            KatalogFragen(Griff(), m_sprache, true);
            KatalogBeschriften();
        }
    }

    void NachAnordnung() override { KatalogBeschriften(); }

private:
    void Fallengelassen(HDROP dateien) {
        std::vector<Text> pfade(DragQueryFileW(dateien, 0xFFFFFFFFU, nullptr, 0));
        for (UINT i = 0; i < pfade.size(); ++i) {
            std::wstring pfad(DragQueryFileW(dateien, i, nullptr, 0) + 1, L'\0');
            pfad.resize(DragQueryFileW(dateien, i, pfad.data(), static_cast<UINT>(pfad.size())));
            pfade[i].assign(pfad.begin(), pfad.end());
        }
        DragFinish(dateien);
        Pruefen(pfade);
    }

    // One task at a time: meanwhile the window takes neither clicks nor files.
    void Pruefen(const std::vector<Text>& dateien) {
        if (dateien.empty() || !KatalogFragen(Griff(), m_sprache, false)) {
            return;
        }
        KatalogBeschriften();
        SetWindowTextW(Element(lblErgebnis), Breit(In(m_sprache, Desktoptext::Laeuft)));
        DragAcceptFiles(Griff(), FALSE);
        EnableWindow(Griff(), FALSE);
        const Text ergebnis = DateienPruefen(Griff(), m_sprache, dateien);
        EnableWindow(Griff(), TRUE);
        DragAcceptFiles(Griff(), TRUE);
        SetWindowTextW(Element(lblErgebnis), Breit(ergebnis));
    }

    void KatalogBeschriften() {
        const Text katalog = GemerkterKatalog();
        const int breite = InPixel(Elemente[lblKatalog].Breite);
        const Text text = katalog.empty() ? Text(In(m_sprache, Desktoptext::KatalogUnbekannt))
                                          : MitteGekuerzt(katalog, breite, Schrift());
        SetWindowTextW(Element(lblKatalog), Breit(text));
    }

    bericht::Sprache m_sprache;
    bool m_zu = false;
};

} // namespace

void PrueffensterZeigen(bericht::Sprache sprache) {
    Prueffenster(sprache).Zeigen();
}

} // namespace zepholt::desktop
