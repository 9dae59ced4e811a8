#include "errors/Protokoll.h"

#include "errors/FehlerERL.h"
#include "errors/Fehlerausgabe.h"
#include "errors/Fehlerfolge.h"
#include "errors/Takt.h"
#include "errors/TestFehler.h"
#include "state/SIA451Datei.h"
#include "state/TestDaten.h"
#include "support/HilfsFunktionen.h"
#include "support/OS_API.h"
#include "support/tqXML.h"

#include <algorithm>

namespace zepholt {

namespace {

// The element's text, escaped; one that is empty, or empties under the escaping, stands as "?". Then the closing tag.
void ElementBeenden(TextSicht tag, TextSicht wert, Text& xml) {
    xml += u'>';
    const std::size_t anfang = xml.size();
    tqXML::ConvertStringToXMLString(wert, xml);
    if (xml.size() == anfang) {
        xml += u'?';
    }
    xml.append(u"</").append(tag).append(u">");
}

void XmlElement(TextSicht tag, TextSicht wert, Text& xml) {
    xml.append(u"<").append(tag);
    ElementBeenden(tag, wert, xml);
}

void XmlElementMitAttribut(TextSicht tag, TextSicht wert, TextSicht attribut, TextSicht attributWert, Text& xml) {
    xml.append(u"<").append(tag).append(u" ").append(attribut).append(u"=\"");
    tqXML::ConvertStringToXMLString(attributWert, xml);
    xml += u'"';
    ElementBeenden(tag, wert, xml);
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
    Takt takt;
    for (const FehlerEintrag& eintrag : fehlerSpeicher.FehlerListe) {
        takt.Schritt();
        ++(FehlerSchwere(eintrag.Code) == u"B" ? zaehler.Warnungen : zaehler.Fehler);
    }
    return zaehler;
}

// The old interface counts errors and warnings apart, the new one counts both as errors; in mode I no warning is left.
void Zaehlelemente(Text& xml) {
    const Zaehler zaehler = Auszaehlen();
    const bool alt = !NeueSchnittstelle();
    const bool nurFehler = testDaten.Modus == u"I";
    const std::int32_t fehler = alt || nurFehler ? zaehler.Fehler : zaehler.Fehler + zaehler.Warnungen;
    XmlElement(u"Errors", ZahlText(fehler), xml);
    if (alt && !nurFehler) {
        XmlElement(u"Warnings", ZahlText(zaehler.Warnungen), xml);
    }
}

Text TestElement() {
    const Zeitpunkt jetzt = testDaten.Uhr();
    const Text datum = MitNullen(jetzt.Jahr, 4) + u"-" + MitNullen(jetzt.Monat, 2) + u"-" + MitNullen(jetzt.Tag, 2);
    const Text zeit = MitNullen(jetzt.Stunde, 2) + u":" + MitNullen(jetzt.Minute, 2);
    const Text version = testDaten.SchnittstellenId + u"." + MitNullen(testDaten.Revision, 2);

    Text xml;
    xml.reserve(1024); // most are shorter
    xml += u"<Test>";
    XmlElementMitAttribut(u"Project", sia451Datei.ProjektName, u"ID", sia451Datei.ProjektNummer, xml);
    XmlElementMitAttribut(u"Document", sia451Datei.DokumentName, u"ID", sia451Datei.DokumentNummer, xml);
    XmlElement(u"Date", datum, xml);
    XmlElement(u"Time", zeit, xml);
    if (!testDaten.Modus.empty()) {
        XmlElement(u"Mode", testDaten.Modus, xml);
    }
    Zaehlelemente(xml);
    XmlElementMitAttribut(u"Software", sia451Datei.SoftwareName, u"Manufacturer", sia451Datei.SoftwareHersteller, xml);
    XmlElementMitAttribut(u"Fileformat", Kleinbuchstaben(testDaten.Dateiformat), u"Version", version, xml);
    XmlElementMitAttribut(u"Testprogram", u"ZEPHOLT", u"Version", testDaten.Version, xml);
    return xml += u"</Test>";
}

// False when the run was cancelled meanwhile.
bool ErrorElementeSchreiben(AusgabeDatei& ausgabe) {
    Fehlerausgabe elemente;
    Takt takt;
    for (const FehlerEintrag& eintrag : fehlerSpeicher.FehlerListe) {
        ausgabe.Schreiben(elemente.Element(eintrag));
        if (takt.Schritt() && testDaten.Abbruch) {
            return false;
        }
    }
    BedieneFenster();
    return !testDaten.Abbruch;
}

} // namespace

void WarnungenEntfernen() {
    Fehlersammlung& liste = fehlerSpeicher.FehlerListe;
    const bool alleBekannt = std::all_of(liste.begin(), liste.end(), [](const FehlerEintrag& eintrag) {
        const TextSicht schwere = FehlerSchwere(eintrag.Code);
        return schwere == u"A" || schwere == u"B";
    });
    if (alleBekannt) {
        liste.Entfernen([](const FehlerEintrag& eintrag) { return FehlerSchwere(eintrag.Code) == u"B"; });
    }
}

void FehlerSortieren() {
    Fehlersammlung& liste = fehlerSpeicher.FehlerListe;
    liste.Umstellen(Fehlerfolge(liste));
}

void TextDateiSchreiben(TextSicht text, const Text& pfad) {
    AusgabeDatei ausgabe(pfad);
    ausgabe.Schreiben(XmlBytes(text));
    ausgabe.Abschliessen();
}

void ProtokollSchreiben() {
    if (testDaten.Modus == u"I") {
        WarnungenEntfernen();
    }
    AusgabeDatei ausgabe(testDaten.Fehlerdatei, std::move(testDaten.Protokollplatz));
    ausgabe.Schreiben(XmlBytes(XmlDeklaration));
    ausgabe.Schreiben("<SIA451>");
    ausgabe.Schreiben(XmlBytes(TestElement()));
    if (FehlerAnzahl() > 0) {
        FehlerSortieren();
        ausgabe.Schreiben("<Errors>");
        if (!ErrorElementeSchreiben(ausgabe)) {
            return; // no file is left
        }
        ausgabe.Schreiben("</Errors>");
    }
    ausgabe.Schreiben("</SIA451>");
    ausgabe.Abschliessen();
}

} // namespace zepholt
