// A protocol as it was read: the head of the test and its findings.
#pragma once

#include "bericht/Meldungen.h"
#include "support/Text.h"

#include <array>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zepholt::bericht {

// Texts that occur often, each kept once; number 0 is the empty text.
class Woerter {
public:
    Woerter() = default;
    Woerter(Woerter&&) = default;
    Woerter& operator=(Woerter&&) = default;

    std::uint32_t Nummer(std::string_view text);
    const std::string& Wort(std::uint32_t nummer) const { return *m_folge[nummer]; }
    std::size_t Anzahl() const { return m_folge.size(); }

private:
    std::map<std::string, std::uint32_t, std::less<>> m_nummern{{"", 0}};
    std::vector<const std::string*> m_folge{&m_nummern.begin()->first};
    std::array<std::uint32_t, 256> m_juengste{}; // numbers by hash value of their text: what comes again comes soon
};

struct Befund {
    std::int32_t Zeile = 0; // of the exchange file, from 1; 0 for none
    std::int32_t Code = 0;
    bool IstWarnung = false;    // severity B; everything else is an error
    std::uint32_t Position = 0; // in Worte: "241.211.001"
    std::uint32_t Feld = 0;     // in Worte: a field reference, or a column as a number
    std::uint32_t Text = 0;     // in Worte: the message as the protocol gives it
};

struct Protokoll {
    std::string Projekt;
    std::string ProjektNummer;
    std::string Dokument;
    std::string DokumentNummer;
    std::string Datum;
    std::string Zeit;
    std::string Modus;
    std::string Software;
    std::string Hersteller;
    std::string Dateiformat;   // "e1s" or "01s"
    std::string Schnittstelle; // "QVMX17.21"
    std::string Pruefprogramm;
    std::string ProgrammVersion;

    std::vector<Befund> Befunde; // in the order of the protocol
    Woerter Worte;
    std::int64_t Fehler = 0; // counted from the findings
    std::int64_t Warnungen = 0;

    // "P-2026-02 Musterschulhaus": number and name, as far as they are there.
    std::string Projekttitel() const;
    std::string Dokumenttitel() const;

    // The language that its messages are in; German when it has none.
    Sprache Textsprache() const;
};

// Reads the protocol at `pfad`. What is none, is cut or damaged, or contradicts itself is an Ablehnung.
Protokoll ProtokollLesen(const Text& pfad);

// The same from its bytes; `name` is how messages call it.
Protokoll ProtokollAus(std::string_view bytes, const std::string& name);

// The status of a protocol: 1 when it holds an error, else 0.
int StatusVon(const Protokoll& protokoll);

// "ordnung", "fehlerhaft", or "abgewiesen" for a file whose content was not tested: the key of a word of the page.
std::string_view Urteilsart(const Protokoll& protokoll);

// Chapter times 1,000,000 plus position of "241.211.001"; none for anything else.
std::optional<std::int64_t> Positionsnummer(std::string_view position);

} // namespace zepholt::bericht
