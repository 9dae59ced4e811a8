#include "errors/Protokoll.h"

#include "errors/FehlerERL.h"
#include "errors/TestFehler.h"
#include "state/SIA451Datei.h"
#include "state/SIA451Felder.h"
#include "state/TestDaten.h"
#include "support/HilfsFunktionen.h"
#include "support/OS_API.h"
#include "support/Utf8.h"
#include "support/tqXML.h"
#include "window/Fortschritt.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <optional>

namespace zepholt {

namespace {

// The line of the file with that number. Line numbers count up without a gap, so that the first entry of ZeilenNummern
// that holds a number stands at that index.
std::optional<TextSicht> ZeileDerDatei(std::int32_t zeile) {
    const auto index = static_cast<std::size_t>(zeile);
    if (zeile < 0 || index >= testDaten.ZeilenNummern.size()) {
        return std::nullopt;
    }
    return testDaten.Zeilen[index];
}

// Chapter and position as one number, chapter times 1,000,000 plus position; none when no position can be told.
std::optional<std::int64_t> Positionsnummer(std::int32_t zeile, std::int32_t kapitel, std::int32_t position) {
    if (zeile != -1) {
        const std::optional<TextSicht> record = ZeileDerDatei(zeile);
        if (!record || !record->starts_with(u'G')) {
            return std::nullopt;
        }
        kapitel = GanzzahlAmAnfang(Feld(*record, 2, 3));
        position = GanzzahlAmAnfang(Feld(*record, 8, 6));
    } else if (kapitel == 0) {
        return std::nullopt;
    }
    return std::int64_t{kapitel} * 1'000'000 + position;
}

// --- Order -----------------------------------------------------------------------------------------------------------

// A sort key: right-justified decimal numbers as text, compared character by character. Room for three numbers of 32
// bits; what is not used stays 0 and so orders a shorter key before a longer one that begins alike.
using Sortierschluessel = std::array<char, 36>;

void ZahlAnfuegen(Sortierschluessel& schluessel, std::size_t& stelle, std::int64_t zahl, std::size_t breite) {
    const std::string text = std::to_string(zahl);
    for (std::size_t i = text.size(); i < breite; ++i) {
        schluessel[stelle++] = ' ';
    }
    for (const char zeichen : text) {
        schluessel[stelle++] = zeichen;
    }
}

// Line, position, code. A number that outgrows its piece (lines from 100000 on) shifts what stands behind it; the keys
// are compared as text all the same.
Sortierschluessel SchluesselVon(const FehlerEintrag& eintrag) {
    const bool hatPosition = Positionsnummer(eintrag.Zeile, eintrag.Kapitel, eintrag.Position).has_value();
    Sortierschluessel schluessel = {};
    std::size_t stelle = 0;
    ZahlAnfuegen(schluessel, stelle, eintrag.Zeile < 0 ? 99999 : eintrag.Zeile, 5);
    // The stamps decide here also where a record tells its own position.
    const std::int64_t stempel = std::int64_t{eintrag.Kapitel} * 1'000'000 + eintrag.Position;
    ZahlAnfuegen(schluessel, stelle, hatPosition ? stempel : 999999999, 9);
    ZahlAnfuegen(schluessel, stelle, eintrag.Code, 4);
    return schluessel;
}

// Many small steps: the window gets its look between some of them, so that it answers however many findings there are.
class Takt {
public:
    void Schritt() {
        if (++m_schritte % 16384 == 0) {
            BedieneFenster();
        }
    }

private:
    std::uint32_t m_schritte = 0;
};

std::vector<Sortierschluessel> SchluesselVon(const std::vector<FehlerEintrag>& liste) {
    std::vector<Sortierschluessel> schluessel;
    schluessel.reserve(liste.size());
    Takt takt;
    for (const FehlerEintrag& eintrag : liste) {
        schluessel.push_back(SchluesselVon(eintrag));
        takt.Schritt();
    }
    return schluessel;
}

// For each key the number of different keys below it.
std::vector<std::uint32_t> RaengeVon(const std::vector<Sortierschluessel>& schluessel) {
    std::vector<std::uint32_t> folge(schluessel.size());
    std::iota(folge.begin(), folge.end(), 0U);
    Takt takt;
    std::ranges::sort(folge, [&](std::uint32_t a, std::uint32_t b) {
        takt.Schritt();
        return schluessel[a] < schluessel[b];
    });

    std::vector<std::uint32_t> raenge(schluessel.size());
    for (std::size_t k = 1; k < folge.size(); ++k) {
        const bool hoeher = schluessel[folge[k]] != schluessel[folge[k - 1]];
        raenge[folge[k]] = raenge[folge[k - 1]] + (hoeher ? 1 : 0);
    }
    return raenge;
}

// --- Writing ---------------------------------------------------------------------------------------------------------

// Writes text to an output file in ISO-8859-1; a character that it does not have becomes a decimal reference, a pair of
// surrogates one of the character that it stands for.
class AnsiAusgabe {
public:
    explicit AnsiAusgabe(const Text& pfad) : m_datei(pfad) {}

    void Schreiben(TextSicht text) {
        m_bytes.clear();
        while (!text.empty()) {
            const char32_t zeichen = Utf16Lesen(text);
            if (zeichen <= 0xFF) {
                m_bytes.push_back(static_cast<char>(zeichen));
            } else {
                m_bytes.append("&#").append(std::to_string(static_cast<std::uint32_t>(zeichen))).push_back(';');
            }
            text.remove_prefix(zeichen > 0xFFFF ? 2 : 1);
        }
        m_datei.Schreiben(m_bytes);
    }

    void Abschliessen() { m_datei.Abschliessen(); }

private:
    AusgabeDatei m_datei;
    std::string m_bytes;
};

// The element's text, escaped; one that is empty, or empties under the escaping, stands as "?".
Text Elementtext(TextSicht wert, tqXML& xml) {
    const Text text = xml.ConvertStringToXMLString(wert);
    return text.empty() ? Text(u"?") : text;
}

Text XmlElement(TextSicht tag, TextSicht wert, tqXML& xml) {
    return Text(u"<").append(tag).append(u">").append(Elementtext(wert, xml)).append(u"</").append(tag).append(u">");
}

Text XmlElementMitAttribut(TextSicht tag, TextSicht wert, TextSicht attribut, TextSicht attributWert, tqXML& xml) {
    return Text(u"<")
        .append(tag)
        .append(u" ")
        .append(attribut)
        .append(u"=\"")
        .append(xml.ConvertStringToXMLString(attributWert))
        .append(u"\">")
        .append(Elementtext(wert, xml))
        .append(u"</")
        .append(tag)
        .append(u">");
}

Text MitNullen(std::int64_t zahl, std::size_t breite) {
    const Text text = ZahlText(zahl);
    return text.size() < breite ? Text(breite - text.size(), u'0') + text : text;
}

struct Zaehler {
    std::int32_t Fehler = 0;
    std::int32_t Warnungen = 0;
};

// An unknown code counts as an error.
Zaehler Auszaehlen() {
    Zaehler zaehler;
    for (const FehlerEintrag& eintrag : fehlerSpeicher.FehlerListe) {
        ++(FehlerSchwere(eintrag.Code) == u"B" ? zaehler.Warnungen : zaehler.Fehler);
    }
    return zaehler;
}

// The old interface counts errors and warnings apart, the new one counts both as errors; in mode I no warning is left.
Text Zaehlelemente(tqXML& xml) {
    const Zaehler zaehler = Auszaehlen();
    const bool alt = !NeueSchnittstelle();
    const bool nurFehler = testDaten.Modus == u"I";
    const std::int32_t fehler = alt || nurFehler ? zaehler.Fehler : zaehler.Fehler + zaehler.Warnungen;
    Text elemente = XmlElement(u"Errors", ZahlText(fehler), xml);
    if (alt && !nurFehler) {
        elemente += XmlElement(u"Warnings", ZahlText(zaehler.Warnungen), xml);
    }
    return elemente;
}

Text TestElement(tqXML& xml) {
    const Zeitpunkt jetzt = testDaten.Uhr();
    const Text datum = MitNullen(jetzt.Jahr, 4) + u"-" + MitNullen(jetzt.Monat, 2) + u"-" + MitNullen(jetzt.Tag, 2);
    const Text zeit = MitNullen(jetzt.Stunde, 2) + u":" + MitNullen(jetzt.Minute, 2);
    const Text version = testDaten.SchnittstellenId + u"." + MitNullen(testDaten.Revision, 2);

    Text test = u"<Test>";
    test += XmlElementMitAttribut(u"Project", sia451Datei.ProjektName, u"ID", sia451Datei.ProjektNummer, xml);
    test += XmlElementMitAttribut(u"Document", sia451Datei.DokumentName, u"ID", sia451Datei.DokumentNummer, xml);
    test += XmlElement(u"Date", datum, xml);
    test += XmlElement(u"Time", zeit, xml);
    if (!testDaten.Modus.empty()) {
        test += XmlElement(u"Mode", testDaten.Modus, xml);
    }
    test += Zaehlelemente(xml);
    test += XmlElementMitAttribut(u"Software", sia451Datei.SoftwareName, u"Manufacturer",
                                  sia451Datei.SoftwareHersteller, xml);
    test += XmlElementMitAttribut(u"Fileformat", Kleinbuchstaben(testDaten.Dateiformat), u"Version", version, xml);
    test += XmlElementMitAttribut(u"Testprogram", u"ZEPHOLT", u"Version", testDaten.Version, xml);
    return test += u"</Test>";
}

// The field reference of the code, unless the report named a column.
Text Feldbezug(const FehlerEintrag& eintrag) {
    if (eintrag.Spalte <= 0) {
        return Text(FehlerFeld(eintrag.Code));
    }
    return eintrag.Zeile >= 0 ? FeldName(eintrag.Zeile, eintrag.Spalte) : ZahlText(eintrag.Spalte);
}

Text ErrorElement(const FehlerEintrag& eintrag, tqXML& xml) {
    Text element = xml.createElement(u"Error");
    const auto setzeWennGegeben = [&](TextSicht name, TextSicht wert) {
        if (!wert.empty()) {
            xml.setAttribute(name, wert, element);
        }
    };

    if (eintrag.Zeile >= 0 && eintrag.Code != 2007) { // bad UTF-8 has no line: nothing was decoded
        xml.setAttribute(u"L", ZahlText(std::int64_t{eintrag.Zeile} + 1), element);
    }
    const bool formfehler = eintrag.Code >= 3001 && eintrag.Code <= 3003;
    if (!formfehler) {
        setzeWennGegeben(u"I", PositionsText(eintrag.Zeile, eintrag.Kapitel, eintrag.Position));
    }
    xml.setAttribute(u"N", ZahlText(eintrag.Code), element);
    xml.setAttribute(u"E", FehlerSchwere(eintrag.Code), element);
    setzeWennGegeben(u"F", Feldbezug(eintrag));
    xml.setAttribute(u"T", FehlerText(eintrag.Code, testDaten.Sprache), element);
    return element;
}

} // namespace

void WarnungenEntfernen() {
    std::vector<FehlerEintrag>& liste = fehlerSpeicher.FehlerListe;
    const bool alleBekannt = std::ranges::all_of(liste, [](const FehlerEintrag& eintrag) {
        const TextSicht schwere = FehlerSchwere(eintrag.Code);
        return schwere == u"A" || schwere == u"B";
    });
    if (alleBekannt) {
        std::erase_if(liste, [](const FehlerEintrag& eintrag) { return FehlerSchwere(eintrag.Code) == u"B"; });
    }
}

void FehlerSortieren() {
    std::vector<FehlerEintrag>& liste = fehlerSpeicher.FehlerListe;
    std::vector<std::uint32_t> raenge = RaengeVon(SchluesselVon(liste));
    const std::vector<std::uint32_t> folge = SortierFolge(std::move(raenge), BedieneFenster);

    std::vector<FehlerEintrag> sortiert;
    sortiert.reserve(liste.size());
    for (const std::uint32_t i : folge) {
        sortiert.push_back(liste[i]);
    }
    liste = std::move(sortiert);
}

Text PositionsText(std::int32_t zeile, std::int32_t kapitel, std::int32_t position) {
    const std::optional<std::int64_t> nummer = Positionsnummer(zeile, kapitel, position);
    if (!nummer) {
        return {};
    }
    const Text ziffern = ZahlText(*nummer + 1'000'000'000); // the leading 1 keeps the zeros and is dropped
    const auto gruppe = [&](std::size_t ab) { return ab < ziffern.size() ? ziffern.substr(ab, 3) : Text(); };
    return gruppe(1) + u"." + gruppe(4) + u"." + gruppe(7);
}

Text FeldName(std::int32_t zeile, std::int32_t spalte) {
    const std::optional<TextSicht> record = ZeileDerDatei(zeile);
    if (!record) {
        return {};
    }
    for (const RecordLayout& layout : LayoutsVon(*record)) {
        if (spalte >= layout.Spalte && spalte < layout.Spalte + layout.Laenge) {
            return Text(layout.Feldbezug);
        }
    }
    return ZahlText(spalte);
}

void TextDateiSchreiben(TextSicht text, const Text& pfad) {
    AnsiAusgabe ausgabe(pfad);
    ausgabe.Schreiben(text);
    ausgabe.Abschliessen();
}

void ProtokollSchreiben() {
    if (testDaten.Modus == u"I") {
        WarnungenEntfernen();
    }
    tqXML xml;
    AnsiAusgabe ausgabe(testDaten.Fehlerdatei);
    ausgabe.Schreiben(XmlDeklaration);
    ausgabe.Schreiben(u"<SIA451>");
    ausgabe.Schreiben(TestElement(xml));
    if (FehlerAnzahl() > 0) {
        FehlerSortieren();
        ausgabe.Schreiben(u"<Errors>");
        for (const FehlerEintrag& eintrag : fehlerSpeicher.FehlerListe) {
            ausgabe.Schreiben(ErrorElement(eintrag, xml));
            BedieneFenster();
            if (testDaten.Abbruch) {
                return; // no file is left
            }
        }
        ausgabe.Schreiben(u"</Errors>");
    }
    ausgabe.Schreiben(u"</SIA451>");
    ausgabe.Abschliessen();
}

} // namespace zepholt
