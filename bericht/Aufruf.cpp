#include "bericht/Aufruf.h"

#include "bericht/Dateitabelle.h"
#include "bericht/Konsole.h"
#include "bericht/Listen.h"
#include "bericht/Pruefgang.h"
#include "bericht/Seite.h"
#include "bericht/Stapellauf.h"
#include "bericht/Zeichen.h"
#include "errors/FehlerERL.h"
#include "support/Fassung.h"
#include "support/HilfsFunktionen.h"

#include <algorithm>
#include <exception>
#include <new>
#include <optional>

#include <getopt.h>

namespace zepholt::bericht {

namespace {

struct Auftrag {
    std::string Befehl;
    std::vector<Text> Angaben; // behind the command
    std::optional<Text> Ziel;
    std::optional<Sprache> Gewaehlt;
    Text Katalog;
    Text Modus;
    bool ErstPruefen = false;
    bool MitFenster = false;
    std::size_t Zugleich = 0; // processes; 0 for one on each processor
};

// How a command is called: the least and the most that stands behind it, the exchange file counted.
struct Befehl {
    std::string_view Name;
    std::size_t Mindestens;
    std::size_t Hoechstens;
    std::string_view Fehlendes; // what the message names when there is too little
    bool LiestProtokoll;
};

constexpr Befehl Befehle[] = {
    {"html", 2, 2, "PROTOKOLL AUSTAUSCHDATEI", true},
    {"table", 1, 1, "PROTOKOLL", true},
    {"csv", 1, 2, "PROTOKOLL", true},
    {"jsonl", 1, 2, "PROTOKOLL", true},
    {"sarif", 1, 2, "PROTOKOLL", true},
    {"verdict", 1, 1, "PROTOKOLL", true},
    {"summary", 1, SIZE_MAX, "TABELLE", false},
    {"batch", 2, 2, "ORDNER ZIEL", false},
    {"code", 1, 1, "NNNN", false},
    {"fields", 0, 0, "", false},
    {"test", 1, SIZE_MAX, "AUSTAUSCHDATEI", false},
};

Sprache SpracheAus(const std::string& kuerzel) {
    const auto fund = std::ranges::find(Sprachkuerzel, kuerzel);
    if (fund == Sprachkuerzel.end()) {
        throw Ablehnung(StatusFalscherAufruf, Meldung::UnbekannteSprache, {kuerzel});
    }
    return static_cast<Sprache>(fund - Sprachkuerzel.begin());
}

// A number of processes.
std::size_t ZahlAus(const std::string& wert) {
    const std::int32_t zahl = StrengeGanzzahl(AusUtf8Bytes(wert)).value_or(0);
    if (zahl < 1) {
        throw Ablehnung(StatusFalscherAufruf, Meldung::FalscherWert, {Bereinigt(wert)});
    }
    return static_cast<std::size_t>(zahl);
}

enum class Sonst { Nichts, Hilfe, Version };

// Reads options and words, in any order, as the GNU tools do.
class Zerlegung {
public:
    explicit Zerlegung(const std::vector<Text>& argumente) {
        m_texte.emplace_back("zepholt-bericht");
        for (const Text& argument : argumente) {
            m_texte.push_back(Utf8Bytes(argument));
        }
        for (std::string& text : m_texte) {
            m_zeiger.push_back(text.data());
        }
        m_zeiger.push_back(nullptr);
    }

    Sonst Lesen(Auftrag& auftrag) {
        constexpr option Lange[] = {
            {"output", required_argument, nullptr, 'o'}, {"language", required_argument, nullptr, 'l'},
            {"test", no_argument, nullptr, 't'},         {"catalog", required_argument, nullptr, 'c'},
            {"mode", required_argument, nullptr, 'm'},   {"help", no_argument, nullptr, 'h'},
            {"version", no_argument, nullptr, 'V'},      {"window", no_argument, nullptr, 'w'},
            {"jobs", required_argument, nullptr, 'j'},   {nullptr, 0, nullptr, 0},
        };
        optind = 1;
        opterr = 0; // the messages are this program's own
        const int anzahl = static_cast<int>(m_zeiger.size()) - 1;
        Sonst sonst = Sonst::Nichts;
        for (int zeichen = 0;
             (zeichen = getopt_long(anzahl, m_zeiger.data(), ":o:l:tc:m:hVwj:", Lange, nullptr)) != -1;) {
            Option(zeichen, auftrag, sonst);
        }
        for (int i = optind; i < anzahl; ++i) {
            if (auftrag.Befehl.empty() && i == optind) {
                auftrag.Befehl = m_zeiger[static_cast<std::size_t>(i)];
            } else {
                auftrag.Angaben.push_back(AusUtf8Bytes(m_zeiger[static_cast<std::size_t>(i)]));
            }
        }
        return sonst;
    }

private:
    void Option(int zeichen, Auftrag& auftrag, Sonst& sonst) const {
        const std::string wert = optarg != nullptr ? optarg : "";
        switch (zeichen) {
        case 'o':
            auftrag.Ziel = AusUtf8Bytes(wert);
            break;
        case 'l':
            auftrag.Gewaehlt = SpracheAus(wert);
            break;
        case 't':
            auftrag.ErstPruefen = true;
            break;
        case 'c':
            auftrag.Katalog = AusUtf8Bytes(wert);
            break;
        case 'm':
            auftrag.Modus = AusUtf8Bytes(wert);
            break;
        case 'w':
            auftrag.MitFenster = true;
            break;
        case 'j':
            auftrag.Zugleich = ZahlAus(wert);
            break;
        case 'h':
            sonst = Sonst::Hilfe;
            break;
        case 'V':
            sonst = Sonst::Version;
            break;
        default:
            throw Ablehnung(StatusFalscherAufruf, zeichen == ':' ? Meldung::OptionOhneWert : Meldung::UnbekannteOption,
                            {Bereinigt(m_zeiger[static_cast<std::size_t>(optind - 1)])});
        }
    }

    std::vector<std::string> m_texte;
    std::vector<char*> m_zeiger;
};

const Befehl& BefehlVon(const Auftrag& auftrag) {
    const auto befehl = std::ranges::find(Befehle, auftrag.Befehl, &Befehl::Name);
    if (auftrag.Befehl.empty()) {
        throw Ablehnung(StatusFalscherAufruf, Meldung::KeinBefehl);
    }
    if (befehl == std::end(Befehle)) {
        throw Ablehnung(StatusFalscherAufruf, Meldung::UnbekannterBefehl, {Bereinigt(auftrag.Befehl)});
    }
    const bool prueft = auftrag.ErstPruefen && befehl->LiestProtokoll; // one name, the exchange file's, is then enough
    const std::size_t hoechstens = prueft ? 1 : befehl->Hoechstens;
    if (auftrag.Angaben.size() < std::min(befehl->Mindestens, hoechstens)) {
        throw Ablehnung(StatusFalscherAufruf, Meldung::ZuWenigeArgumente,
                        {std::string(befehl->Name), prueft ? "AUSTAUSCHDATEI" : std::string(befehl->Fehlendes)});
    }
    if (auftrag.Angaben.size() > hoechstens) {
        throw Ablehnung(StatusFalscherAufruf, Meldung::ZuVieleArgumente, {Utf8(auftrag.Angaben[hoechstens])});
    }
    if ((prueft || befehl->Name == "test" || befehl->Name == "batch") && auftrag.Katalog.empty()) {
        throw Ablehnung(StatusFalscherAufruf, Meldung::KatalogFehlt);
    }
    return *befehl;
}

Pruefwunsch WunschAus(const Auftrag& auftrag) {
    return {auftrag.Katalog, auftrag.Modus, auftrag.Gewaehlt.value_or(Systemsprache()), auftrag.MitFenster};
}

Protokoll ProtokollDes(const Auftrag& auftrag) {
    const Text& angabe = auftrag.Angaben[0];
    if (!auftrag.ErstPruefen) {
        return ProtokollLesen(angabe);
    }
    const Bytes bytes = Geprueft(angabe, WunschAus(auftrag));
    return ProtokollAus({reinterpret_cast<const char*>(bytes.data()), bytes.size()}, Utf8(angabe));
}

int BerichtSchreiben(const Auftrag& auftrag) {
    const Protokoll protokoll = ProtokollDes(auftrag);
    const bool istE1S = protokoll.Dateiformat == "e1s";
    SchnittstelleSetzen(istE1S);
    std::optional<Austauschdatei> datei;
    if (auftrag.ErstPruefen || auftrag.Angaben.size() > 1) {
        datei.emplace(auftrag.Angaben.back(), istE1S);
        ZusammengehoerigkeitPruefen(protokoll, *datei);
    }
    const Austauschdatei* mit = datei ? &*datei : nullptr;
    const Sprache sprache = auftrag.Gewaehlt.value_or(protokoll.Textsprache());
    if (auftrag.Befehl == "verdict") {
        return StatusVon(protokoll);
    }
    Ausgabe ausgabe(auftrag.Ziel);
    if (auftrag.Befehl == "html") {
        SeiteSchreiben(protokoll, *datei, {sprache, Utf8(auftrag.Katalog), {}}, ausgabe);
    } else if (auftrag.Befehl == "table") {
        TabelleSchreiben(protokoll, sprache, ausgabe);
    } else if (auftrag.Befehl == "csv") {
        CsvSchreiben(protokoll, mit, sprache, ausgabe);
    } else if (auftrag.Befehl == "jsonl") {
        JsonlSchreiben(protokoll, mit, sprache, ausgabe);
    } else {
        SarifSchreiben(protokoll, mit, sprache, ausgabe);
    }
    ausgabe.Abschliessen();
    return StatusVon(protokoll);
}

int CodeErklaeren(const Auftrag& auftrag, Sprache sprache) {
    const Text& angabe = auftrag.Angaben[0];
    const std::int32_t code = StrengeGanzzahl(angabe).value_or(0);
    if (!FehlerBekannt(code)) {
        throw Ablehnung(StatusFalscherAufruf, Meldung::UnbekannterCode, {Utf8(angabe)});
    }
    Ausgabe ausgabe(auftrag.Ziel);
    SchnittstelleSetzen(true); // which has every field
    CodeSchreiben(Erklaerung(code, sprache), sprache, ausgabe);
    ausgabe.Abschliessen();
    return StatusOhneFehler;
}

// Tests each file, lays its page down, and names the one page that is to be opened.
int DateienPruefen(const Auftrag& auftrag) {
    const Pruefwunsch wunsch = WunschAus(auftrag);
    std::vector<Pruefergebnis> ergebnisse;
    for (const Text& datei : auftrag.Angaben) {
        ergebnisse.push_back(PruefenUndAblegen(datei, wunsch));
        if (!ergebnisse.back().Hindernis.empty()) {
            FehlerausgabeSchreiben("zepholt-bericht: " + ergebnisse.back().Hindernis + "\n");
        }
    }
    const Text seite =
        ergebnisse.size() > 1 ? UebersichtAblegen(ergebnisse, wunsch.Gewaehlt) : ergebnisse.front().Seite;
    if (!seite.empty()) {
        StandardausgabeSchreiben(Utf8Bytes(seite) + "\n");
    }
    return StatusVon(ergebnisse);
}

int Erledigen(const std::vector<Text>& argumente, Auftrag& auftrag) {
    const Sonst sonst = Zerlegung(argumente).Lesen(auftrag);
    const Sprache sprache = auftrag.Gewaehlt.value_or(Systemsprache());
    if (sonst != Sonst::Nichts) {
        StandardausgabeSchreiben(sonst == Sonst::Hilfe ? Hilfetext(sprache)
                                                       : "zepholt-bericht " + Utf8Bytes(Programmfassung) + "\n");
        return StatusOhneFehler;
    }
    if (BefehlVon(auftrag).LiestProtokoll) {
        return BerichtSchreiben(auftrag);
    }
    if (auftrag.Befehl == "test") {
        return DateienPruefen(auftrag);
    }
    if (auftrag.Befehl == "summary") {
        return DateitabelleSchreiben(ListeDerStandardeingabe(), auftrag.Angaben, sprache);
    }
    if (auftrag.Befehl == "batch") {
        return OrdnerPruefen(auftrag.Angaben[0], auftrag.Angaben[1], WunschAus(auftrag), auftrag.Zugleich);
    }
    if (auftrag.Befehl == "code") {
        return CodeErklaeren(auftrag, sprache);
    }
    Ausgabe ausgabe(auftrag.Ziel);
    FelderSchreiben(ausgabe);
    ausgabe.Abschliessen();
    return StatusOhneFehler;
}

} // namespace

int Ausfuehren(const std::vector<Text>& argumente) {
    Auftrag auftrag;
    const auto melden = [&](Meldung grund, const std::vector<std::string>& werte) {
        const Sprache sprache = auftrag.Gewaehlt.value_or(Systemsprache());
        FehlerausgabeSchreiben("zepholt-bericht: " + MeldungsText(grund, sprache, werte) + "\n");
    };
    try {
        return Erledigen(argumente, auftrag);
    } catch (const Ablehnung& ablehnung) {
        melden(ablehnung.Grund, ablehnung.Werte);
        return ablehnung.Status;
    } catch (const std::bad_alloc&) {
        melden(Meldung::KeinSpeicher, {});
    } catch (const std::exception& fehler) {
        FehlerausgabeSchreiben("zepholt-bericht: " + std::string(fehler.what()) + "\n");
    }
    return StatusKeinErgebnis;
}

} // namespace zepholt::bericht
