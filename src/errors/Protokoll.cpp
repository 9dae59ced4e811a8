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
    Takt takt;
    for (const FehlerEintrag& eintrag : fehlerSpeicher.FehlerListe) {
        takt.Schritt();
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
    tqXML xml;
    AusgabeDatei ausgabe(testDaten.Fehlerdatei);
    ausgabe.Schreiben(XmlBytes(XmlDeklaration));
    ausgabe.Schreiben("<SIA451>");
    ausgabe.Schreiben(XmlBytes(TestElement(xml)));
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
