#include "bericht/Seitenkopf.h"

#include "bericht/Recordbild.h"
#include "bericht/Seitenteile.h"
#include "bericht/Zeichen.h"
#include "support/Fassung.h"
#include "support/HilfsFunktionen.h"

namespace zepholt::bericht {

namespace {

// A text where no tags may stand.
std::string OhneMarken(std::string_view text) {
    std::string sauber;
    while (!text.empty()) {
        const char32_t zeichen = NaechstesZeichen(text);
        if (IstUnsichtbar(zeichen)) {
            sauber += Codepunktname(zeichen);
        } else {
            Utf8Anhaengen(sauber, zeichen);
        }
    }
    return Html(sauber);
}

} // namespace

std::string Seitenkopf(const std::string& titel, Sprache sprache, const std::string& vermerk) {
    return "<!DOCTYPE html>\n<html lang=\"" + std::string(Sprachkuerzel[static_cast<std::size_t>(sprache)]) +
           "\">\n<head>\n<meta charset=\"utf-8\">\n<meta http-equiv=\"Content-Security-Policy\" content=\"" +
           std::string(Inhaltsregel()) + "\">\n" + vermerk +
           "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
           "<meta name=\"color-scheme\" content=\"light dark\">\n<meta name=\"referrer\" content=\"no-referrer\">\n"
           "<meta name=\"generator\" content=\"zepholt-bericht " +
           Utf8Bytes(Programmfassung) + "\">\n<title>" + OhneMarken(titel) + "</title>\n<style>" +
           std::string(Seitenstil()) + "</style>\n</head>\n<body>\n";
}

} // namespace zepholt::bericht
