// The windows on Linux, with Qt: a module of its own that only a run with a dialog loads.
//
// One pixel of Qt stands for 15 twips; Qt scales pixels to the display.
#include "window/FensterModul.h"
#include "window/qt/Anzeigepruefung.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QFrame>
#include <QGroupBox>
#include <QIcon>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QtGui/qguiapplication_platform.h>

#include <algorithm>
#include <clocale>
#include <cmath>
#include <memory>
#include <string>
#include <vector>

namespace zepholt {

namespace {

constexpr int TwipsJePixel = 15;
constexpr int SchriftGroesste = 12; // pixels at 100 percent
constexpr int SchriftKleinste = 9;
constexpr int KnopfRand = 6; // pixels that a button needs on each side of its caption

int Pixel(double twips) {
    return static_cast<int>(std::lround(twips / TwipsJePixel));
}

QRect Platz(const Steuerelement& e) {
    return {Pixel(e.Links), Pixel(e.Oben), Pixel(e.Breite), Pixel(e.Hoehe)};
}

bool IstAbsatz(const Steuerelement& e) {
    return e.Art == ElementArt::Beschriftung && e.Hoehe > 300;
}

QString AusText(const char16_t* text) {
    return QString::fromUtf16(text);
}

// --- The widgets of a form -------------------------------------------------------------------------------------------

QWidget* Beschriftung(const Steuerelement& e, const QString& text, QWidget* eltern) {
    auto* feld = new QLabel(text, eltern);
    feld->setTextFormat(Qt::PlainText); // a file's name is no markup
    feld->setWordWrap(IstAbsatz(e));
    feld->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return feld;
}

QWidget* Bahn(QWidget* eltern) {
    auto* bahn = new QFrame(eltern);
    bahn->setFrameStyle(QFrame::WinPanel | QFrame::Sunken);
    bahn->setLineWidth(Pixel(BahnRand));
    return bahn;
}

QWidget* Balken(QWidget* eltern) {
    auto* balken = new QFrame(eltern);
    balken->setAutoFillBackground(true);
    balken->setBackgroundRole(QPalette::Highlight);
    balken->hide();
    return balken;
}

QWidget* NeuesWidget(const Steuerelement& e, const QString& text, QWidget* eltern) {
    switch (e.Art) {
    case ElementArt::Knopf:
        return new QPushButton(text, eltern);
    case ElementArt::Rahmen:
        return new QGroupBox(text, eltern);
    case ElementArt::Bahn:
        return Bahn(eltern);
    case ElementArt::Balken:
        return Balken(eltern);
    case ElementArt::Beschriftung:
        break;
    }
    return Beschriftung(e, text, eltern);
}

// The place of a widget counts from its parent's inner area: behind the border of the track.
QRect PlatzInEltern(const Formular& formular, const Steuerelement& e) {
    const bool inBahn = e.Eltern >= 0 && formular.Elemente[e.Eltern].Art == ElementArt::Bahn;
    const int rand = inBahn ? Pixel(BahnRand) : 0;
    return Platz(e).translated(rand, rand);
}

// True when the captions of the form all fit into their places in this font.
bool Passt(const FormularMitTexten& formular, const QFont& schrift) {
    const QFontMetrics mass(schrift);
    for (std::int32_t i = 0; i < formular.Form->Anzahl; ++i) {
        const Steuerelement& e = formular.Form->Elemente[i];
        const QString inhalt = AusText(formular.Texte[i]);
        if (inhalt.isEmpty()) {
            continue; // Qt gives even no text the height of a line
        }
        const QRect platz = Platz(e);
        const int breite = platz.width() - (e.Art == ElementArt::Knopf ? 2 * KnopfRand : 0);
        const int umbruch = IstAbsatz(e) ? Qt::TextWordWrap : 0;
        const QRect text = mass.boundingRect(QRect(0, 0, breite, 0), umbruch, inhalt);
        if (text.width() > breite || text.height() > platz.height()) {
            return false;
        }
    }
    return true;
}

// The places are laid down, the fonts of a desktop are not: the largest size in which nothing is cut off.
QFont PassendeSchrift(const FormularMitTexten& formular) {
    QFont schrift = QApplication::font();
    for (int groesse = SchriftGroesste; groesse >= SchriftKleinste; --groesse) {
        schrift.setPixelSize(groesse);
        if (Passt(formular, schrift)) {
            break;
        }
    }
    return schrift;
}

// Builds a form's widgets in `dialog`; returns them by the rows of its table.
std::vector<QWidget*> Aufbauen(QDialog& dialog, const FormularMitTexten& formular) {
    const Formular& form = *formular.Form;
    dialog.setObjectName(QString::fromLatin1(form.Name));
    dialog.setWindowTitle(AusText(formular.Titel));
    dialog.setWindowIcon(QIcon(QStringLiteral(":/zepholt.png")));
    dialog.setFont(PassendeSchrift(formular));
    dialog.setFixedSize(Pixel(form.Breite), Pixel(form.Hoehe));

    std::vector<QWidget*> widgets;
    QWidget* voriges = nullptr; // in tab order, which is the order of the table
    for (std::int32_t i = 0; i < form.Anzahl; ++i) {
        const Steuerelement& e = form.Elemente[i];
        QWidget* eltern = e.Eltern < 0 ? &dialog : widgets[static_cast<std::size_t>(e.Eltern)];
        QWidget* widget = NeuesWidget(e, AusText(formular.Texte[i]), eltern);
        widget->setObjectName(QString::fromLatin1(e.Name));
        widget->setGeometry(PlatzInEltern(form, e));
        if (voriges != nullptr) {
            QWidget::setTabOrder(voriges, widget);
        }
        voriges = widget;
        widgets.push_back(widget);
    }
    return widgets;
}

// --- The windows -----------------------------------------------------------------------------------------------------

void InfoZeigen(QWidget* eltern, const FormularMitTexten& formular) {
    QDialog dialog(eltern);
    const std::vector<QWidget*> widgets = Aufbauen(dialog, formular);
    auto* ok = static_cast<QPushButton*>(widgets[Infoformular::cmdOK]);
    ok->setDefault(true);
    QObject::connect(ok, &QPushButton::clicked, &dialog, &QDialog::accept);
    dialog.exec();
}

class Hauptfenster : public QDialog {
public:
    explicit Hauptfenster(const FensterTexte& texte) : m_texte(texte), m_widgets(Aufbauen(*this, texte.Haupt)) {
        setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                       Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);
        connect(Knopf(Hauptformular::cmdInfo), &QPushButton::clicked, this, [this] { InfoZeigen(this, m_texte.Info); });
        connect(Knopf(Hauptformular::cmdAbbrechen), &QPushButton::clicked, this, [this] { FrageAbbruch(); });
    }

    void Beschrifte(std::int32_t element, const QString& text) {
        auto* feld = static_cast<QLabel*>(Widget(element));
        const QString kurz = feld->fontMetrics().elidedText(text, Qt::ElideMiddle, feld->width());
        feld->setText(kurz);
        feld->setToolTip(kurz == text ? QString() : QStringLiteral("<qt>%1</qt>").arg(text.toHtmlEscaped()));
    }

    void SetzeBalken(double breite) {
        QWidget* balken = Widget(Hauptformular::picFSBalken);
        balken->resize(std::max(1, Pixel(breite)), balken->height());
        balken->setVisible(breite > 0);
    }

    bool Abbruch() const { return m_abbruch; }

protected:
    // Escape, and the window's frame, ask what the cancel button asks.
    void reject() override { FrageAbbruch(); }
    void closeEvent(QCloseEvent* ereignis) override {
        ereignis->ignore();
        FrageAbbruch();
    }

private:
    QWidget* Widget(std::int32_t element) { return m_widgets[static_cast<std::size_t>(element)]; }
    QPushButton* Knopf(std::int32_t element) { return static_cast<QPushButton*>(Widget(element)); }

    void FrageAbbruch() {
        QMessageBox frage(QMessageBox::NoIcon, AusText(m_texte.ProgrammTitel), AusText(m_texte.Frage),
                          QMessageBox::NoButton, this);
        const QPushButton* ja = frage.addButton(AusText(m_texte.Ja), QMessageBox::YesRole);
        QPushButton* nein = frage.addButton(AusText(m_texte.Nein), QMessageBox::NoRole);
        frage.setDefaultButton(nein);
        frage.setEscapeButton(nein);
        frage.exec();
        if (frage.clickedButton() == ja) {
            m_abbruch = true;
        }
    }

    const FensterTexte& m_texte;
    std::vector<QWidget*> m_widgets;
    bool m_abbruch = false;
};

// --- The application -------------------------------------------------------------------------------------------------

// Qt sets the process's locale from the environment; the rest of the program counts on the one that it started with.
class LocaleBewahrer {
public:
    LocaleBewahrer() : m_vorher(std::setlocale(LC_ALL, nullptr)) {}
    ~LocaleBewahrer() { std::setlocale(LC_ALL, m_vorher.c_str()); }
    LocaleBewahrer(const LocaleBewahrer&) = delete;
    LocaleBewahrer& operator=(const LocaleBewahrer&) = delete;

private:
    std::string m_vorher;
};

// Qt's warnings say nothing to a user.
void Verschweige(QtMsgType, const QMessageLogContext&, const QString&) {}

// The toolkit's application, for as long as a window needs it; one that is there already is used and left alone.
class Anwendung {
public:
    Anwendung() {
        if (QCoreApplication::instance() != nullptr) {
            return;
        }
        const LocaleBewahrer bewahrer;
        qInstallMessageHandler(Verschweige);
        m_anwendung = std::make_unique<QApplication>(m_anzahl, m_argumente);
        m_anwendung->setQuitOnLastWindowClosed(false);
    }

private:
    char m_name[8] = "zepholt"; // class and instance of the window
    char* m_argumente[2] = {m_name, nullptr};
    int m_anzahl = 1;
    std::unique_ptr<QApplication> m_anwendung;
};

// True when the display is gone in the middle of a run: Qt would end the process at its next look.
bool AnzeigeVerloren() {
    const auto* x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 != nullptr && VerbindungGestoert(x11->connection());
}

} // namespace

struct ModulFensterGriff {
    explicit ModulFensterGriff(const FensterTexte& texte) : Fenster(texte) {}

    Anwendung App;
    Hauptfenster Fenster;
};

namespace {

// Nothing may be thrown into the program: a failure of the toolkit leaves the window as it is.
template <class Tat>
auto OhneAusnahme(Tat tat) noexcept -> decltype(tat()) {
    try {
        return tat();
    } catch (...) {
        return decltype(tat())();
    }
}

ModulFensterGriff* Oeffnen(const FensterTexte* texte) {
    return OhneAusnahme([texte] {
        auto griff = std::make_unique<ModulFensterGriff>(*texte);
        griff->Fenster.show();
        QCoreApplication::processEvents();
        return griff.release();
    });
}

void Beschriften(ModulFensterGriff* griff, std::int32_t element, const char16_t* text) {
    OhneAusnahme([=] { griff->Fenster.Beschrifte(element, AusText(text)); });
}

void BalkenSetzen(ModulFensterGriff* griff, double breite) {
    OhneAusnahme([=] { griff->Fenster.SetzeBalken(breite); });
}

bool Ereignisse(ModulFensterGriff* griff) {
    return OhneAusnahme([griff] {
        if (!AnzeigeVerloren()) {
            QCoreApplication::processEvents(); // painting what has changed is one of them
        }
        return griff->Fenster.Abbruch();
    });
}

void Schliessen(ModulFensterGriff* griff) {
    OhneAusnahme([griff] { delete griff; });
}

bool Meldung(const char16_t* titel, const char16_t* text, const char16_t* ok) {
    return OhneAusnahme([=] {
        const Anwendung anwendung;
        const QString zeilen = AusText(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
        QMessageBox box(QMessageBox::Critical, AusText(titel), zeilen);
        box.setTextFormat(Qt::PlainText);
        box.setWindowIcon(QIcon(QStringLiteral(":/zepholt.png")));
        box.addButton(AusText(ok), QMessageBox::AcceptRole);
        box.exec();
        return true;
    });
}

bool Bereit() {
    return OhneAusnahme([] { return QCoreApplication::instance() != nullptr || AnzeigeVorhanden(); });
}

constexpr FensterModul Modul = {Bereit, Oeffnen, Beschriften, BalkenSetzen, Ereignisse, Schliessen, Meldung};

} // namespace

} // namespace zepholt

// The module's one door, which the program looks up by name.
extern "C" const zepholt::FensterModul* zepholt_fenster_modul(std::int32_t fassung);

extern "C" __attribute__((visibility("default"))) const zepholt::FensterModul*
zepholt_fenster_modul(std::int32_t fassung) {
    return fassung == zepholt::FensterModulFassung ? &zepholt::Modul : nullptr;
}
