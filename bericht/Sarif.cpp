#include "bericht/Feldangabe.h"
#include "bericht/Listen.h"
#include "bericht/Zeichen.h"
#include "errors/FehlerERL.h"

#include <map>

namespace zepholt::bericht {

namespace {

// The number of each code's rule, in the order of the codes.
std::map<std::int32_t, std::size_t> RegelnDer(const Protokoll& protokoll) {
    std::map<std::int32_t, std::size_t> regeln;
    for (const Befund& befund : protokoll.Befunde) {
        regeln[befund.Code] = 0;
    }
    std::size_t nummer = 0;
    for (auto& [code, regel] : regeln) {
        regel = nummer++;
    }
    return regeln;
}

std::string Regel(std::int32_t code, Sprache sprache) {
    const bool warnung = FehlerSchwere(code) == u"B";
    const std::string text = Utf8(FehlerText(code, Tabellensprache(sprache)));
    return "{\"id\":\"" + std::to_string(code) +
           "\",\"shortDescription\":{\"text\":" + JsonText(text.empty() ? std::to_string(code) : text) +
           "},\"defaultConfiguration\":{\"level\":\"" + (warnung ? "warning" : "error") + "\"}}";
}

// Where a finding is. In a record, columns count from 1 in units of UTF-16, the last one excluded.
std::string Ort(const Befund& befund, const Feldangabe& feld, const std::string& position, const std::string& uri) {
    std::string ort = "{\"physicalLocation\":{\"artifactLocation\":{\"uri\":" + JsonText(uri) + ",\"index\":0}";
    if (befund.Zeile > 0) {
        ort += ",\"region\":{\"startLine\":" + std::to_string(befund.Zeile);
        if (feld.Von > 0) {
            ort += ",\"startColumn\":" + std::to_string(feld.Von) + ",\"endColumn\":" + std::to_string(feld.Bis + 1);
        }
        ort += "}";
    }
    ort += "}";
    if (!position.empty()) {
        ort += ",\"logicalLocations\":[{\"fullyQualifiedName\":" + JsonText(position) + ",\"kind\":\"position\"}]";
    }
    return ort + "}";
}

std::string Ergebnis(const Protokoll& protokoll, const Befund& befund, std::size_t regel, const Feldangabe& feld,
                     const std::string& uri, Sprache sprache) {
    const std::string& bezug = protokoll.Worte.Wort(befund.Feld);
    std::string text = Befundtext(protokoll, befund, sprache);
    if (!bezug.empty()) {
        text += " (" + (feld.Name.empty() ? bezug : feld.Name + ", " + bezug) + ")";
    }
    return "{\"ruleId\":\"" + std::to_string(befund.Code) + "\",\"ruleIndex\":" + std::to_string(regel) +
           ",\"level\":\"" + (befund.IstWarnung ? "warning" : "error") +
           "\",\"message\":{\"text\":" + JsonText(text.empty() ? std::to_string(befund.Code) : text) +
           "},\"locations\":[" + Ort(befund, feld, protokoll.Worte.Wort(befund.Position), uri) + "]}";
}

} // namespace

void SarifSchreiben(const Protokoll& protokoll, const Austauschdatei* datei, Sprache sprache, Ausgabe& ausgabe) {
    const std::string uri = UriTeil(datei != nullptr ? datei->Name() : "austauschdatei." + protokoll.Dateiformat);
    const std::map<std::int32_t, std::size_t> regeln = RegelnDer(protokoll);
    ausgabe.Schreiben("{\"$schema\":\"https://json.schemastore.org/sarif-2.1.0.json\",\"version\":\"2.1.0\",\"runs\":["
                      "{\"tool\":{\"driver\":{\"name\":" +
                      JsonText(protokoll.Pruefprogramm) + ",\"version\":" + JsonText(protokoll.ProgrammVersion) +
                      ",\"rules\":[");
    for (const auto& [code, regel] : regeln) {
        ausgabe.Schreiben((regel > 0 ? "," : "") + Regel(code, sprache));
    }
    ausgabe.Schreiben("]}},\"language\":\"" + std::string(Sprachkuerzel[static_cast<std::size_t>(sprache)]) +
                      "\",\"columnKind\":\"utf16CodeUnits\",\"artifacts\":[{\"location\":{\"uri\":" + JsonText(uri) +
                      "}}],\"properties\":{\"project\":" + JsonText(protokoll.Projekt) + ",\"projectId\":" +
                      JsonText(protokoll.ProjektNummer) + ",\"document\":" + JsonText(protokoll.Dokument) +
                      ",\"documentId\":" + JsonText(protokoll.DokumentNummer) + "},\"results\":[");
    Feldangaben felder(protokoll, datei, sprache);
    bool erstes = true;
    for (const Befund& befund : protokoll.Befunde) {
        const Feldangabe& feld = felder.Zu(befund);
        ausgabe.Schreiben((erstes ? "\n" : ",\n") +
                          Ergebnis(protokoll, befund, regeln.at(befund.Code), feld, uri, sprache));
        erstes = false;
    }
    ausgabe.Schreiben("\n]}]}\n");
}

} // namespace zepholt::bericht
