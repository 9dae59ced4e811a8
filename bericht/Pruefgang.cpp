#include "bericht/Pruefgang.h"

#include "bericht/Ablage.h"
#include "bericht/Konsole.h"
#include "bericht/Seite.h"
#include "bericht/Uebersicht.h"
#include "bericht/Zeichen.h"
#include "support/HilfsFunktionen.h"

#include <algorithm>
#include <array>
#include <utility>

namespace zepholt::bericht {

namespace {

constexpr int HoechsteNummer = 1000; // of the names that are tried in a folder

using Namen = std::array<TextSicht, 3>;
constexpr Namen Seitennamen = {u"bericht", u"rapport", u"rapporto"};
constexpr Namen Protokollnamen = {u"protokoll", u"journal", u"protocollo"};
constexpr Namen Uebersichtnamen = {u"Berichte", u"Rapports", u"Rapporti"};

// A protocol that is gone when it has been read.
class TemporaeresProtokoll {
public:
    TemporaeresProtokoll() : m_pfad(TemporaererPfad()) {}
    ~TemporaeresProtokoll() { DateiLoeschen(m_pfad); }
    TemporaeresProtokoll(const TemporaeresProtokoll&) = delete;
    TemporaeresProtokoll& operator=(const TemporaeresProtokoll&) = delete;

    const Text& Pfad() const { return m_pfad; }

private:
    Text m_pfad;
};

std::string_view Zeichenfolge(const Bytes& bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

Text OrdnerVon(const Text& pfad) {
    return pfad.substr(0, pfad.size() - DateiNameOhnePfad(pfad).size());
}

// "Mauern.01S.bericht-2.html"; the first one has no number.
Text Benannt(const Text& anfang, TextSicht name, int nummer, TextSicht endung) {
    return anfang + Text(name) + (nummer > 1 ? u"-" + ZahlText(nummer) : Text()) + Text(endung);
}

struct Orte {
    Text Seite;
    Text Protokoll; // empty where there is none
};

// The first two names that nothing else has, as `orte` gives them by their number.
template <class Funktion>
Orte FreieOrte(Funktion orte) {
    for (int nummer = 1; nummer <= HoechsteNummer; ++nummer) {
        Orte diese = orte(nummer);
        if (IstVerfuegbar(diese.Seite, diese.Protokoll)) {
            return diese;
        }
    }
    throw Ablehnung(StatusKeinErgebnis, Meldung::NichtSchreibbar, {Utf8(orte(1).Seite)});
}

// Calls `schreiben` with one folder after the other until it succeeds.
template <class Funktion>
void InEinenOrdner(const Text& ersterOrdner, Funktion schreiben) {
    try {
        schreiben(ersterOrdner);
    } catch (const Ablehnung& ablehnung) {
        if (ablehnung.Grund != Meldung::NichtSchreibbar) {
            throw;
        }
        schreiben(Benutzerordner());
    }
}

void ProtokollAblegen(const Text& pfad, const Bytes& bytes) {
    Ausgabe ausgabe(pfad);
    ausgabe.Schreiben(Zeichenfolge(bytes));
    ausgabe.Abschliessen();
}

// The protocol first: a page names the protocol that stands beside it.
Text Ablegen(const Text& anfang, const Austauschdatei& datei, const Protokoll& protokoll, const Bytes& bytes,
             const Pruefwunsch& wunsch) {
    const auto index = static_cast<std::size_t>(wunsch.Gewaehlt);
    const Orte orte = FreieOrte([&](int nummer) {
        return Orte{Benannt(anfang + u".", Seitennamen[index], nummer, u".html"),
                    Benannt(anfang + u".", Protokollnamen[index], nummer, u".xml")};
    });
    const bool neu = ArtVon(orte.Protokoll) == DateiArt::Nichts;
    ProtokollAblegen(orte.Protokoll, bytes);
    try {
        Ausgabe ausgabe(orte.Seite);
        const std::string vermerk = Ablagevermerk(Kennzahl(bytes.Sicht()));
        SeiteSchreiben(protokoll, datei, {wunsch.Gewaehlt, Utf8(wunsch.Katalog), vermerk}, ausgabe);
        ausgabe.Abschliessen();
    } catch (...) {
        if (neu) {
            DateiLoeschen(orte.Protokoll);
        }
        throw;
    }
    return orte.Seite;
}

void Erledigen(Pruefergebnis& ergebnis, const Pruefwunsch& wunsch) {
    const Bytes bytes = Geprueft(ergebnis.Datei, wunsch);
    const Protokoll protokoll = ProtokollAus(Zeichenfolge(bytes), Utf8(ergebnis.Datei));
    const bool istE1S = protokoll.Dateiformat == "e1s";
    SchnittstelleSetzen(istE1S);
    const Austauschdatei datei(ergebnis.Datei, istE1S);
    ZusammengehoerigkeitPruefen(protokoll, datei);
    const Text name(DateiNameOhnePfad(ergebnis.Datei));
    InEinenOrdner(OrdnerVon(ergebnis.Datei), [&](const Text& ordner) {
        ergebnis.Seite = Ablegen(ordner + name, datei, protokoll, bytes, wunsch);
    });
    ergebnis.Art = Urteilsart(protokoll);
    ergebnis.Fehler = protokoll.Fehler;
    ergebnis.Warnungen = protokoll.Warnungen;
}

} // namespace

Bytes Geprueft(const Text& datei, const Pruefwunsch& wunsch) {
    if (ArtVon(datei) != DateiArt::Datei) {
        throw Ablehnung(StatusKeinErgebnis, Meldung::DateiFehlt, {Utf8(datei)});
    }
    if (ArtVon(Pruefprogramm()) != DateiArt::Datei) {
        throw Ablehnung(StatusKeinErgebnis, Meldung::ProgrammFehlt, {Utf8(Pruefprogramm())});
    }
    const TemporaeresProtokoll protokoll;
    const Text sprache = AusUtf8Bytes(Sprachkuerzel[static_cast<std::size_t>(wunsch.Gewaehlt)]);
    std::vector<Text> argumente = {u"file=" + datei, u"dialog=" + sprache + (wunsch.MitFenster ? u"" : u"-"),
                                   u"errorfile=" + protokoll.Pfad(), u"catalog=" + wunsch.Katalog};
    if (!wunsch.Modus.empty()) {
        argumente.push_back(u"mode=" + wunsch.Modus);
    }
    if (!ProgrammAusfuehren(Pruefprogramm(), argumente) || ArtVon(protokoll.Pfad()) != DateiArt::Datei) {
        throw Ablehnung(StatusKeinErgebnis, Meldung::OhneErgebnis, {Utf8(datei)});
    }
    LeseDatei gelesen(protokoll.Pfad());
    return gelesen.Lies(0, static_cast<std::size_t>(gelesen.Groesse()));
}

Pruefergebnis PruefenUndAblegen(const Text& datei, const Pruefwunsch& wunsch) {
    Pruefergebnis ergebnis;
    ergebnis.Datei = VollerPfad(datei);
    try {
        Erledigen(ergebnis, wunsch);
    } catch (const Ablehnung& ablehnung) {
        ergebnis.Hindernis = MeldungsText(ablehnung.Grund, wunsch.Gewaehlt, ablehnung.Werte);
    } catch (const LaufzeitFehler&) {
        ergebnis.Hindernis = MeldungsText(Meldung::OhneErgebnis, wunsch.Gewaehlt, {Utf8(ergebnis.Datei)});
    }
    return ergebnis;
}

Text UebersichtAblegen(const std::vector<Pruefergebnis>& ergebnisse, Sprache sprache) {
    const TextSicht name = Uebersichtnamen[static_cast<std::size_t>(sprache)];
    Text seite;
    InEinenOrdner(OrdnerVon(ergebnisse.at(0).Datei), [&](const Text& ordner) {
        seite = FreieOrte([&](int nummer) { return Orte{Benannt(ordner, name, nummer, u".html"), {}}; }).Seite;
        Ausgabe ausgabe(seite);
        UebersichtSchreiben(ergebnisse, ordner, sprache, ausgabe);
        ausgabe.Abschliessen();
    });
    return seite;
}

int StatusVon(const std::vector<Pruefergebnis>& ergebnisse) {
    int status = StatusOhneFehler;
    for (const Pruefergebnis& ergebnis : ergebnisse) {
        const int eigener = ergebnis.Seite.empty() ? StatusKeinErgebnis
                            : ergebnis.Fehler > 0  ? StatusMitFehlern
                                                   : StatusOhneFehler;
        status = std::max(status, eigener);
    }
    return status;
}

} // namespace zepholt::bericht
