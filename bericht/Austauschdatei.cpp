#include "bericht/Austauschdatei.h"

#include "bericht/Meldungen.h"
#include "bericht/Zeichen.h"
#include "state/TestDaten.h"
#include "support/HilfsFunktionen.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace zepholt::bericht {

namespace {

constexpr std::int32_t RevisionAlt = 11;
constexpr std::int32_t RevisionNeu = 21;
constexpr std::size_t StelleDerZiffer = 41; // of a record type, from 0
constexpr std::size_t Positionsende = 13;   // the last column of a position number

Bytes AlleBytes(const Text& pfad) {
    if (ArtVon(pfad) != DateiArt::Datei) {
        throw Ablehnung(StatusKeinErgebnis, Meldung::DateiFehlt, {Utf8(pfad)});
    }
    try {
        LeseDatei datei(pfad);
        return datei.Lies(0, static_cast<std::size_t>(datei.Groesse()));
    } catch (const LaufzeitFehler&) {
        throw Ablehnung(StatusKeinErgebnis, Meldung::DateiUnlesbar, {Utf8(pfad)});
    }
}

// Without the blanks at the end: most records have many, so a word of them at a time.
std::span<const unsigned char> OhneRand(std::span<const unsigned char> zeile) {
    constexpr std::array<unsigned char, 8> Leere = {' ', ' ', ' ', ' ', ' ', ' ', ' ', ' '};
    std::size_t laenge = zeile.size();
    while (laenge >= Leere.size() &&
           std::memcmp(zeile.data() + laenge - Leere.size(), Leere.data(), Leere.size()) == 0) {
        laenge -= Leere.size();
    }
    while (laenge > 0 && zeile[laenge - 1] == ' ') {
        --laenge;
    }
    return zeile.first(laenge);
}

// The number in a field, 0 for one that none can be read from or that is out of range.
std::int64_t Nummer(TextSicht feld) {
    const double wert = ZahlAmAnfang(feld);
    return wert > -1e9 && wert < 1e9 ? static_cast<std::int64_t>(wert) : 0;
}

} // namespace

Austauschdatei::Austauschdatei(const Text& pfad, bool istE1S)
    : m_bytes(AlleBytes(pfad)), m_istE1S(istE1S), m_name(Utf8(DateiNameOhnePfad(pfad))) {
    ZeilenSuchen();
}

// A file may be refused for its line ends: a line ends at its line feed, or where the file does.
void Austauschdatei::ZeilenSuchen() {
    const unsigned char* anfang = m_bytes.data();
    std::size_t stelle = BeginntMitMarke(m_bytes.Sicht()) ? 3 : 0;
    m_anfaenge.push_back(stelle);
    while (stelle < m_bytes.size()) {
        const void* fund = std::memchr(anfang + stelle, '\n', m_bytes.size() - stelle);
        stelle = fund == nullptr ? m_bytes.size()
                                 : static_cast<std::size_t>(static_cast<const unsigned char*>(fund) - anfang) + 1;
        m_anfaenge.push_back(stelle);
    }
    if (m_anfaenge.size() == 1) { // the first line of an empty file, which it is refused for
        m_anfaenge.push_back(stelle);
    }
}

std::span<const unsigned char> Austauschdatei::Rohzeile(std::int32_t nummer) const {
    const auto index = static_cast<std::size_t>(nummer - 1);
    std::span<const unsigned char> zeile =
        m_bytes.Sicht().subspan(m_anfaenge[index], m_anfaenge[index + 1] - m_anfaenge[index]);
    for (const unsigned char ende : std::array<unsigned char, 2>{'\n', '\r'}) {
        if (!zeile.empty() && zeile.back() == ende) {
            zeile = zeile.first(zeile.size() - 1);
        }
    }
    return zeile;
}

TextSicht Austauschdatei::Zeile(std::int32_t nummer, std::size_t hoechstens) const {
    return Dekodiert(Rohzeile(nummer), hoechstens);
}

TextSicht Austauschdatei::ZeileOhneRand(std::int32_t nummer, std::size_t hoechstens) const {
    return OhneLeerzeichenRechts(Dekodiert(OhneRand(Rohzeile(nummer)), hoechstens)); // the cut may leave blanks again
}

TextSicht Austauschdatei::Dekodiert(std::span<const unsigned char> zeile, std::size_t hoechstens) const {
    const std::size_t bytesJeSpalte = m_istE1S ? 4 : 1;
    zeile = zeile.first(std::min(zeile.size(), hoechstens * bytesJeSpalte));
    if (m_text.size() < zeile.size()) {
        m_text.resize(zeile.size());
    }
    auto laenge = zeile.size();
    if (m_istE1S) {
        laenge = static_cast<std::size_t>(Utf8NachUnicode(zeile, m_text.data()) - m_text.data());
    } else {
        std::ranges::transform(zeile, m_text.begin(), [this](unsigned char byte) { return m_seite.Zeichen[byte]; });
    }
    return {m_text.data(), std::min(laenge, hoechstens)};
}

char Austauschdatei::Buchstabe(std::int32_t nummer) const {
    const std::span<const unsigned char> zeile = Rohzeile(nummer);
    return zeile.empty() ? '\0' : static_cast<char>(zeile[0]);
}

std::int64_t Austauschdatei::Position(std::int32_t nummer) const {
    const std::span<const unsigned char> bytes = Rohzeile(nummer);
    if (bytes.size() >= Positionsende && AsciiEnde(bytes.first(Positionsende), 0) == Positionsende) { // a byte a column
        const Feldsicht kapitel(bytes.data() + 1, 3);
        const Feldsicht position(bytes.data() + 7, 6);
        if (NurZiffern(kapitel) && NurZiffern(position)) { // as nearly all are
            return Ziffernwert(kapitel) * 1'000'000 + Ziffernwert(position);
        }
    }
    const TextSicht zeile = Zeile(nummer, Positionsende);
    return Nummer(SpaltenVon(zeile, 2, 3)) * 1'000'000 + Nummer(SpaltenVon(zeile, 8, 6));
}

std::string Austauschdatei::Sprachcode() const {
    return Zeilenzahl() > 0 ? Utf8(SpaltenVon(Zeile(1), 42, 1)) : std::string();
}

void SchnittstelleSetzen(bool istE1S) {
    testDaten.IstE1S = istE1S;
    testDaten.Revision = istE1S ? RevisionNeu : RevisionAlt;
}

std::span<const RecordLayout> LayoutsDesTyps(std::string_view typ) {
    zepholt::Text zeile(StelleDerZiffer + 1, u' ');
    if (typ.empty() || typ.size() > 2) {
        return {};
    }
    zeile.front() = static_cast<unsigned char>(typ[0]);
    zeile.back() = typ.size() == 2 ? static_cast<unsigned char>(typ[1]) : u' ';
    return LayoutsVon(zeile);
}

std::string TypDerZeile(TextSicht zeile) {
    if (zeile.empty()) {
        return {};
    }
    const bool ohneZiffer = zeile[0] == u'A' || zeile[0] == u'Z';
    std::string typ = Utf8(SpaltenVon(zeile, 1, 1));
    return ohneZiffer ? typ : typ + Utf8(SpaltenVon(zeile, 42, 1));
}

} // namespace zepholt::bericht
