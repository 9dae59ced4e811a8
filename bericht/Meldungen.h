// The messages of the report's program in German, French and Italian, and the one way in which it refuses something.
#pragma once

#include <array>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace zepholt::bericht {

// The index of a text in a row of three.
enum class Sprache { Deutsch, Franzoesisch, Italienisch };
constexpr std::array<std::string_view, 3> Sprachkuerzel = {"de", "fr", "it"};

// The number that the error table knows a language by.
constexpr int Tabellensprache(Sprache sprache) {
    return static_cast<int>(sprache) + 1;
}

enum class Meldung {
    KeinBefehl,
    UnbekannterBefehl,
    UnbekannteOption,
    OptionOhneWert,
    UnbekannteSprache,
    ZuWenigeArgumente,
    ZuVieleArgumente,
    UnbekannterCode,
    KatalogFehlt,
    ProtokollFehlt,
    ProtokollUnlesbar,
    KeinProtokoll,
    ProtokollAbgeschnitten,
    ProtokollBeschaedigt,
    ProtokollWiderspruch,
    AndereDatei,
    AndereZeile,
    DateiFehlt,
    DateiUnlesbar,
    NichtSchreibbar,
    ProgrammFehlt,
    OhneErgebnis,
    FalscherWert,
    KeineTabellenart,
    ListeUnvollstaendig,
    KeinSpeicher,
};

// The message in a language; "{0}", "{1}" stand for the arguments.
std::string MeldungsText(Meldung meldung, Sprache sprache, const std::vector<std::string>& werte = {});

// What each command does and takes.
std::string_view Hilfetext(Sprache sprache);

// Ends the program with a message and a status.
class Ablehnung : public std::runtime_error {
public:
    Ablehnung(int status, Meldung grund, std::vector<std::string> werte = {})
        : std::runtime_error("refused"), Status(status), Grund(grund), Werte(std::move(werte)) {}

    int Status;
    Meldung Grund;
    std::vector<std::string> Werte;
};

// The program's status at its end.
constexpr int StatusOhneFehler = 0;
constexpr int StatusMitFehlern = 1;
constexpr int StatusKeinErgebnis = 2; // no or a broken protocol, or nothing that a report could be made or written of
constexpr int StatusFalscherAufruf = 64;

} // namespace zepholt::bericht
