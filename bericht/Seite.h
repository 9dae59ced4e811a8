// The page: one file that shows the verdict, the findings and their records, asks nothing of anyone and needs nothing
// beside it. Its first part is plain HTML; all findings stand behind it as data, which its script builds rows from.
#pragma once

#include "bericht/Ausgabe.h"
#include "bericht/Austauschdatei.h"
#include "bericht/Gliederung.h"
#include "bericht/Protokolldatei.h"

#include <map>
#include <string>
#include <tuple>
#include <vector>

namespace zepholt::bericht {

// One code on the page: an unknown code may come with several messages or severities.
struct Seitencode {
    std::int32_t Code = 0;
    bool IstWarnung = false;
    std::uint32_t Text = 0;   // of the protocol
    std::uint32_t Erster = 0; // a finding of it
    std::int64_t Anzahl = 0;
};

// What the parts of the page share.
struct Seiteninhalt {
    Seiteninhalt(const Protokoll& protokoll, const Austauschdatei& datei, Sprache sprache);

    const Protokoll& Aus;
    const Austauschdatei& Datei;
    Sprache Anfangssprache;
    Gliederung Aufbau;
    std::vector<Seitencode> Codes; // errors before warnings, frequent ones first
    std::map<std::tuple<std::int32_t, bool, std::uint32_t>, std::uint32_t> CodeNummern;

    const Befund& BefundAn(std::uint32_t stelle) const { return Aus.Befunde[Aufbau.Folge[stelle]]; }
    std::uint32_t CodeNummer(const Befund& befund) const;
};

// `katalog` is shown in the head when it is known.
void SeiteSchreiben(const Protokoll& protokoll, const Austauschdatei& datei, const std::string& katalog,
                    Sprache sprache, Ausgabe& ausgabe);

// The data part: everything that the page can show, in all languages.
void SeitendatenSchreiben(const Seiteninhalt& inhalt, Ausgabe& ausgabe);

} // namespace zepholt::bericht
