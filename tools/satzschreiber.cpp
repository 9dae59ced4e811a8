// satzschreiber: makes an exchange file from a readable description, so that nobody edits 256 columns by hand.
#include "Werkzeug.h"

#include "intake/UTF8_Speicherung.h"
#include "state/SIA451Felder.h"
#include "state/TestDaten.h"
#include "support/HilfsFunktionen.h"

#include <algorithm>
#include <cstdio>

namespace zepholt::werkzeug {

namespace {

constexpr const char* Hilfe = R"(satzschreiber BESCHREIBUNG AUSGABE

Makes an exchange file from a description in UTF-8. The kind of file follows from the name of AUSGABE: .E1S gives
UTF-8 and the record layouts of revision 21, anything else code page 850 and those of revision 11. Lines end in CRLF.

A line of the description is one record:
  G2 2a=111 3=111001 23="Excavation by hand"
The first word is the record letter and the digit of column 42 (A and Z have none). Each word behind it is a field:
  FELD=WERT       a field reference of the record type, without the type; the value must fit
  SPALTE:WERT     a column from 1; the value may have any length and overwrites what stands there
Values:
  "two words"     quotation marks keep blanks; inside, \" \\ and \xHH (one raw byte)
  #125            digits, filled with zeros on the left to the length of the field
  @anzahl         the number of records of the file, filled likewise
  @lauf:123456    a running number: the digits and their check digit
A line of its own:
  roh "TEXT"      a record as it stands
Words that begin with # make the rest of the line a comment.
)";

bool EndetMit(const std::string& name, TextSicht endung) {
    const Text klein = Kleinbuchstaben(AusAscii(name));
    return TextSicht(klein).ends_with(endung);
}

// Code page 850, the other way round.
std::string AlsOem(TextSicht text) {
    static const Codeseite seite = Codeseite850();
    static const TextSicht zeichen = TextSicht(seite.Zeichen.data(), seite.Zeichen.size()).substr(1);
    std::string bytes;
    for (const char16_t z : text) {
        const std::optional<unsigned char> roh = AlsRoheByte(z);
        const std::size_t platz = zeichen.find(z);
        if (!roh && platz == Text::npos) {
            throw EingabeFehler("code page 850 has no '" + AlsUtf8({&z, 1}) + "'");
        }
        bytes += static_cast<char>(roh ? *roh : platz + 1);
    }
    return bytes;
}

// The six digits of a running number and the digit that fills their sum, weighted 3, 1, 3, 1 from the right.
Text MitPruefziffer(TextSicht ziffern) {
    std::int32_t summe = 0;
    std::int32_t gewicht = 3;
    for (auto ziffer = ziffern.rbegin(); ziffer != ziffern.rend(); ++ziffer) {
        summe += (*ziffer - u'0') * gewicht;
        gewicht = 4 - gewicht;
    }
    return Text(ziffern) + static_cast<char16_t>(u'0' + (10 - summe % 10) % 10);
}

Text MitNullen(TextSicht ziffern, std::int32_t laenge) {
    const auto breite = static_cast<std::size_t>(laenge);
    return ziffern.size() < breite ? Text(breite - ziffern.size(), u'0') + Text(ziffern) : Text(ziffern);
}

void Setze(Text& satz, std::int32_t spalte, TextSicht wert) {
    const auto ab = static_cast<std::size_t>(spalte - 1);
    if (!wert.empty() && satz.size() < ab + wert.size()) {
        satz.resize(ab + wert.size(), u' ');
    }
    satz.replace(std::min(ab, satz.size()), wert.size(), wert);
}

const RecordLayout& LayoutVon(const Text& satz, TextSicht feld) {
    for (const RecordLayout& layout : LayoutsVon(satz)) {
        if (layout.Feldbezug.substr(layout.Feldbezug.find(u':') + 1) == feld) {
            return layout;
        }
    }
    throw EingabeFehler("the record has no field '" + AlsUtf8(feld) + "'");
}

Text Feldwert(TextSicht wert, std::int32_t laenge, std::size_t anzahl) {
    constexpr TextSicht lauf = u"@lauf:";
    if (wert == u"@anzahl") {
        return MitNullen(ZahlText(static_cast<std::int64_t>(anzahl)), laenge);
    }
    if (wert.starts_with(lauf)) {
        return MitPruefziffer(wert.substr(lauf.size()));
    }
    return wert.starts_with(u'#') ? MitNullen(wert.substr(1), laenge) : Text(wert);
}

// Puts one field, "24e=text" or "138:text", into the record.
void FeldSetzen(Text& satz, TextSicht wort, std::size_t anzahl) {
    const std::size_t trenner = wort.find_first_of(u"=:");
    if (trenner == TextSicht::npos) {
        throw EingabeFehler("'" + AlsUtf8(wort) + "' is neither FELD=WERT nor SPALTE:WERT");
    }
    const TextSicht name = wort.substr(0, trenner);
    const TextSicht wert = wort.substr(trenner + 1);
    if (wort[trenner] == u':') {
        Setze(satz, Zahl(name, 1, 9999, "a column"), wert);
        return;
    }
    const RecordLayout& layout = LayoutVon(satz, name);
    const Text text = Feldwert(wert, layout.Laenge, anzahl);
    if (AnzahlElemente(text) > layout.Laenge) {
        throw EingabeFehler("field " + AlsUtf8(name) + " has " + std::to_string(layout.Laenge) +
                            " columns, too few for '" + AlsUtf8(text) + "'");
    }
    Setze(satz, layout.Spalte, text);
}

Text SatzVon(const std::vector<Text>& woerter, std::size_t anzahl) {
    const Text& art = woerter.front();
    if (art == u"roh") {
        return woerter.size() > 1 ? woerter[1] : Text();
    }
    if (art.size() > 2) {
        throw EingabeFehler("'" + AlsUtf8(art) + "' is no record type");
    }
    Text satz = art.substr(0, 1);
    if (art.size() == 2) {
        Setze(satz, 42, TextSicht(art).substr(1));
    }
    for (std::size_t i = 1; i < woerter.size(); ++i) {
        FeldSetzen(satz, woerter[i], anzahl);
    }
    return satz;
}

int Programm(const std::vector<std::string>& argumente) {
    if (argumente.size() == 1 && argumente[0] == "--help") {
        std::fputs(Hilfe, stdout);
        return 0;
    }
    if (argumente.size() != 2) {
        throw EingabeFehler("two arguments are needed, BESCHREIBUNG and AUSGABE; --help tells more");
    }
    testDaten.IstE1S = EndetMit(argumente[1], u".e1s");
    testDaten.Revision = testDaten.IstE1S ? 21 : 11;
    const std::vector<Beschreibungszeile> zeilen = BeschreibungLesen(argumente[0]);
    std::string bytes;
    for (const Beschreibungszeile& zeile : zeilen) {
        try {
            const Text satz = SatzVon(zeile.Woerter, zeilen.size());
            bytes += testDaten.IstE1S ? AlsUtf8(satz) : AlsOem(satz);
            bytes += "\r\n";
        } catch (const EingabeFehler& fehler) {
            throw EingabeFehler(argumente[0] + ":" + std::to_string(zeile.Nummer) + ": " + fehler.what());
        }
    }
    DateiSchreiben(argumente[1], bytes);
    return 0;
}

} // namespace

} // namespace zepholt::werkzeug

int main(int anzahl, char** argumente) {
    return zepholt::werkzeug::Ausfuehren("satzschreiber", &zepholt::werkzeug::Programm, anzahl, argumente);
}
