// The page: one file that shows the verdict, the findings and their records, asks nothing of anyone and needs nothing
// beside it. Its first part is plain HTML; all findings stand behind it as data, which its script builds rows from.
#pragma once

#include "bericht/Ausgabe.h"
#include "bericht/Austauschdatei.h"
#include "bericht/Gliederung.h"
#include "bericht/Protokolldatei.h"

#include <string>
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
    Seiteninhalt(const Protokoll& protokoll, const Austauschdatei& datei);

    const Protokoll& Aus;
    const Austauschdatei& Datei;
    Gliederung Aufbau;
    std::vector<Seitencode> Codes; // errors before warnings, frequent ones first

    const Befund& BefundAn(std::uint32_t stelle) const { return Aus.Befunde[Aufbau.Folge[stelle]]; }

    // The number in Codes of the finding at that place.
    std::uint32_t CodeAn(std::uint32_t stelle) const { return m_codes[Aufbau.Folge[stelle]]; }

private:
    std::vector<std::uint32_t> m_codes; // of each finding
};

// What the page is told beside protocol and exchange file.
struct Seitenangaben {
    Sprache Anfangssprache = Sprache::Deutsch;
    std::string Katalog;      // shown in the head when it is known
    std::string Vermerk;      // see Ablagevermerk; empty for a page whose place the caller chose
    bool OhneKatalog = false; // the file was tested without one: the page says what is not tested
};

void SeiteSchreiben(const Protokoll& protokoll, const Austauschdatei& datei, const Seitenangaben& angaben,
                    Ausgabe& ausgabe);

// The data part: everything that the page can show, in all languages.
void SeitendatenSchreiben(const Seiteninhalt& inhalt, Ausgabe& ausgabe);

} // namespace zepholt::bericht
