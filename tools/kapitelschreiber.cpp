// kapitelschreiber: makes chapter files of the VLT catalogue from a readable description, and joins chapter files into
// one collected file.
#include "Werkzeug.h"

#include "support/HilfsFunktionen.h"

#include <cstdio>
#include <unordered_map>

namespace zepholt::werkzeug {

namespace {

constexpr const char* Hilfe = R"(kapitelschreiber kapitel BESCHREIBUNG ORDNER
kapitelschreiber sammeln AUSGABE KAPITELDATEI...

kapitel  makes a chapter file in ORDNER for each chapter of BESCHREIBUNG (UTF-8), named by the rule N, last two digits
         of the year, digit of the language, chapter number, ".qvm".
sammeln  joins chapter files, one behind the other, into one collected file.

A description, one element per line, each below the one that it belongs to:
  kapitel 111 2020 de "Excavation" a=7 zusatz="Second text"
  h 110 x                        main position 110; x: its search title may be changed
  u 100 w=100-199 x y            sub-position 100 with the repeat range 100 to 199; y: no fixed text
  v 1 a="Group" e=31             variable 1 of an alternative group, insertion point 31
  text "A row of texts"          a row of the chapter's texts
Everything behind the numbers may be left out. Languages: de, fr, it. Texts may hold the characters of ISO-8859-1.
Words that begin with # make the rest of the line a comment.
)";

constexpr std::size_t KopfLaenge = 30;
constexpr std::size_t VerzeichnisLaenge = 1000; // what the list of chapters reads of a file
constexpr const char* Deklaration = "<?xml version=\"1.0\" encoding=\"iso-8859-1\"?>";

struct Kapitel {
    std::int32_t Nummer = 0;
    std::int32_t Jahr = 0;
    std::int32_t Sprache = 0; // 1 German, 2 French, 3 Italian
    std::string Anfang;       // the start tag
    std::string Inhalt;       // what stands between start and end tag
    std::string Texte;
    bool HOffen = false;
    bool UOffen = false;
};

// --- From the description to XML -------------------------------------------------------------------------------------

// ISO-8859-1 with the escapes that an attribute in double quotes needs. The apostrophe stays: nobody unescapes.
std::string Attributwert(TextSicht text) {
    std::string bytes;
    for (const char16_t zeichen : text) {
        if (zeichen < 32 || zeichen > 255) {
            throw EingabeFehler("'" + AlsUtf8({&zeichen, 1}) + "' is no printable character of ISO-8859-1");
        }
        switch (zeichen) {
        case u'&':
            bytes += "&amp;";
            break;
        case u'<':
            bytes += "&lt;";
            break;
        case u'>':
            bytes += "&gt;";
            break;
        case u'"':
            bytes += "&quot;";
            break;
        default:
            bytes += static_cast<char>(static_cast<unsigned char>(zeichen));
        }
    }
    return bytes;
}

std::string Attribut(const char* name, const std::string& wert) {
    return std::string(" ") + name + "=\"" + wert + "\"";
}

std::string Attribut(const char* name, std::int32_t wert) {
    return Attribut(name, std::to_string(wert));
}

// The words behind the numbers of a line: "x" and "y" are flags, the others name=value.
class Angaben {
public:
    Angaben(const Beschreibungszeile& zeile, std::size_t ab) : m_woerter(zeile.Woerter) {
        m_woerter.erase(m_woerter.begin(),
                        m_woerter.begin() + static_cast<std::ptrdiff_t>(std::min(ab, m_woerter.size())));
    }

    bool Flagge(TextSicht name) {
        return Nimm([&](TextSicht wort) { return wort == name; }).has_value();
    }

    std::optional<Text> Wert(TextSicht name) {
        const std::optional<Text> wort =
            Nimm([&](TextSicht w) { return w.starts_with(name) && w.substr(name.size()).starts_with(u'='); });
        return wort ? std::optional(wort->substr(name.size() + 1)) : std::nullopt;
    }

    void AllesGebraucht() const {
        if (!m_woerter.empty()) {
            throw EingabeFehler("'" + AlsUtf8(m_woerter.front()) + "' is not understood here");
        }
    }

private:
    template <class Praedikat>
    std::optional<Text> Nimm(Praedikat praedikat) {
        for (auto wort = m_woerter.begin(); wort != m_woerter.end(); ++wort) {
            if (praedikat(*wort)) {
                Text text = *wort;
                m_woerter.erase(wort);
                return text;
            }
        }
        return std::nullopt;
    }

    std::vector<Text> m_woerter;
};

TextSicht Wort(const Beschreibungszeile& zeile, std::size_t stelle) {
    if (stelle >= zeile.Woerter.size()) {
        throw EingabeFehler("something is missing behind '" + AlsUtf8(zeile.Woerter.back()) + "'");
    }
    return zeile.Woerter[stelle];
}

std::int32_t Sprache(TextSicht text) {
    const std::size_t stelle = TextSicht(u"de fr it").find(text);
    if (text.size() != 2 || stelle == TextSicht::npos) {
        throw EingabeFehler("a language is de, fr or it, not '" + AlsUtf8(text) + "'");
    }
    return static_cast<std::int32_t>(stelle / 3 + 1);
}

Kapitel KapitelBeginnen(const Beschreibungszeile& zeile) {
    Kapitel kapitel;
    kapitel.Nummer = Zahl(Wort(zeile, 1), 100, 999, "a chapter number");
    kapitel.Jahr = Zahl(Wort(zeile, 2), 1989, 2088, "a version year");
    kapitel.Sprache = Sprache(Wort(zeile, 3));
    const std::string titel = Attributwert(Wort(zeile, 4));
    if (titel.find("Z=") != std::string::npos) {
        throw EingabeFehler("the title may not hold 'Z=': a reader would take it for the second text");
    }
    Angaben angaben(zeile, 5);
    const std::int32_t a = Zahl(angaben.Wert(u"a").value_or(u"0"), -32768, 32767, "a");
    const std::string zusatz = Attributwert(angaben.Wert(u"zusatz").value_or(Text()));
    angaben.AllesGebraucht();
    kapitel.Anfang = "<Kapitel" + Attribut("N", kapitel.Nummer) + Attribut("S", kapitel.Sprache) +
                     Attribut("V", kapitel.Jahr) + Attribut("A", a) + Attribut("T", titel) + Attribut("Z", zusatz) +
                     ">";
    return kapitel;
}

// A start tag whose children may follow is written self-closed; the first child opens it, see OeffneLetztes.
void OeffneLetztes(Kapitel& kapitel, bool& offen) {
    if (!offen) {
        kapitel.Inhalt.replace(kapitel.Inhalt.size() - 2, 2, ">");
        offen = true;
    }
}

void SchliesseU(Kapitel& kapitel) {
    if (kapitel.UOffen) {
        kapitel.Inhalt += "</U>";
        kapitel.UOffen = false;
    }
}

void SchliesseH(Kapitel& kapitel) {
    SchliesseU(kapitel);
    if (kapitel.HOffen) {
        kapitel.Inhalt += "</H>";
        kapitel.HOffen = false;
    }
}

// The element of the last line of a kind: 'k' none yet, then 'h', 'u' (which 'v' lines belong to).
void HAnfuegen(Kapitel& kapitel, const Beschreibungszeile& zeile) {
    Angaben angaben(zeile, 2);
    SchliesseH(kapitel);
    kapitel.Inhalt += "<H" + Attribut("N", Zahl(Wort(zeile, 1), 0, 999, "a main position")) +
                      (angaben.Flagge(u"x") ? Attribut("X", 1) : "") + "/>";
    angaben.AllesGebraucht();
}

std::string Bereich(TextSicht text) {
    const std::size_t strich = std::min(text.find(u'-'), text.size());
    const std::int32_t von = Zahl(text.substr(0, strich), 0, 999, "the begin of a range");
    const std::int32_t bis = Zahl(text.substr(std::min(strich + 1, text.size())), von, 999, "the end of a range");
    return Attribut("W", von * 1000 + bis);
}

void UAnfuegen(Kapitel& kapitel, const Beschreibungszeile& zeile) {
    Angaben angaben(zeile, 2);
    SchliesseU(kapitel);
    OeffneLetztes(kapitel, kapitel.HOffen);
    kapitel.Inhalt += "<U" + Attribut("N", Zahl(Wort(zeile, 1), 0, 999, "a sub-position"));
    if (const std::optional<Text> bereich = angaben.Wert(u"w")) {
        kapitel.Inhalt += Bereich(*bereich);
    }
    kapitel.Inhalt += angaben.Flagge(u"x") ? Attribut("X", 1) : "";
    kapitel.Inhalt += angaben.Flagge(u"y") ? Attribut("Y", 1) : "";
    kapitel.Inhalt += "/>";
    angaben.AllesGebraucht();
}

void VAnfuegen(Kapitel& kapitel, const Beschreibungszeile& zeile) {
    Angaben angaben(zeile, 2);
    OeffneLetztes(kapitel, kapitel.UOffen);
    kapitel.Inhalt += "<V" + Attribut("N", Zahl(Wort(zeile, 1), 0, 99, "a variable"));
    if (const std::optional<Text> punkt = angaben.Wert(u"e")) {
        kapitel.Inhalt += Attribut("E", Zahl(*punkt, 0, 32767, "an insertion point"));
    }
    // Last, for a reader that looks for `N=` and `E=` would find them in a text as well.
    if (const std::optional<Text> gruppe = angaben.Wert(u"a")) {
        kapitel.Inhalt += Attribut("A", Attributwert(*gruppe));
    }
    kapitel.Inhalt += "/>";
    angaben.AllesGebraucht();
}

// The level that the last line of a chapter stands at: 1 chapter, 2 main position, 3 sub-position.
void ZeileAnfuegen(Kapitel& kapitel, std::int32_t& ebene, const Beschreibungszeile& zeile) {
    const Text& art = zeile.Woerter.front();
    if (art == u"h") {
        HAnfuegen(kapitel, zeile);
        ebene = 2;
    } else if (art == u"u" && ebene >= 2) {
        UAnfuegen(kapitel, zeile);
        ebene = 3;
    } else if (art == u"v" && ebene == 3) {
        VAnfuegen(kapitel, zeile);
    } else if (art == u"text") {
        kapitel.Texte += "<T>" + Attributwert(Wort(zeile, 1)) + "</T>";
    } else {
        throw EingabeFehler("'" + AlsUtf8(art) + "' can't stand here");
    }
}

std::vector<Kapitel> KapitelLesen(const std::string& pfad) {
    std::vector<Kapitel> liste;
    std::int32_t ebene = 0;
    for (const Beschreibungszeile& zeile : BeschreibungLesen(pfad)) {
        try {
            if (zeile.Woerter.front() == u"kapitel") {
                liste.push_back(KapitelBeginnen(zeile));
                ebene = 1;
            } else if (liste.empty()) {
                throw EingabeFehler("the first line must be 'kapitel'");
            } else {
                ZeileAnfuegen(liste.back(), ebene, zeile);
            }
        } catch (const EingabeFehler& fehler) {
            throw EingabeFehler(pfad + ":" + std::to_string(zeile.Nummer) + ": " + fehler.what());
        }
    }
    for (Kapitel& kapitel : liste) {
        SchliesseH(kapitel);
        kapitel.Inhalt += kapitel.Texte.empty() ? "" : "<Texte>" + kapitel.Texte + "</Texte>";
        kapitel.Inhalt += "</Kapitel>";
    }
    return liste;
}

// --- Abbreviations ---------------------------------------------------------------------------------------------------

struct Kuerzung {
    std::string Tabelle;
    std::string Inhalt;
};

struct Vorkommen {
    std::size_t Anzahl = 0;
    std::size_t Ende = 0; // of the last one counted: occurrences don't overlap
};

bool IstCode(char zeichen) {
    return static_cast<unsigned char>(zeichen) < 32;
}

// The stretch of text whose replacement by one byte saves most, its entry in the table counted; empty when nothing
// saves. Candidates begin where an element, an attribute or a word begins, which is where repetition is.
std::string BesterText(const std::string& inhalt) {
    constexpr std::size_t Probe = 65536; // enough to see what repeats
    constexpr std::size_t Laengster = 48;
    const std::string_view text = std::string_view(inhalt).substr(0, Probe);
    std::unordered_map<std::string_view, Vorkommen> vorkommen;
    for (std::size_t ab = 0; ab < text.size(); ++ab) {
        if (std::string_view("< \"/").find(text[ab]) == std::string_view::npos) {
            continue;
        }
        for (std::size_t laenge = 1; ab + laenge <= text.size() && laenge <= Laengster; ++laenge) {
            if (IstCode(text[ab + laenge - 1])) {
                break;
            }
            Vorkommen& stelle = vorkommen[text.substr(ab, laenge)];
            if (ab >= stelle.Ende) {
                ++stelle.Anzahl;
                stelle.Ende = ab + laenge;
            }
        }
    }
    std::string_view bester;
    std::size_t gewinn = 0;
    for (const auto& [kandidat, stelle] : vorkommen) {
        const std::size_t gespart = stelle.Anzahl * (kandidat.size() - 1);
        const std::size_t kosten = kandidat.size() + 2;
        // Of equal ones the lower text: the same description gives the same file everywhere.
        if (gespart > kosten && (gespart - kosten > gewinn || (gespart - kosten == gewinn && kandidat < bester))) {
            gewinn = gespart - kosten;
            bester = kandidat;
        }
    }
    return std::string(bester);
}

std::string Ersetzt(const std::string& text, const std::string& suche, char code) {
    std::string ergebnis;
    std::size_t ab = 0;
    for (std::size_t stelle = text.find(suche); stelle != std::string::npos; stelle = text.find(suche, ab)) {
        ergebnis.append(text, ab, stelle - ab);
        ergebnis += code;
        ab = stelle + suche.size();
    }
    return ergebnis.append(text, ab);
}

// The content with up to 31 abbreviations, whose table stays within `platz` bytes.
Kuerzung Kuerzen(std::string inhalt, std::size_t platz) {
    std::string tabelle;
    for (char code = 1; code <= 31; ++code) {
        const std::string text = BesterText(inhalt);
        if (text.empty() || tabelle.size() + text.size() + 2 > platz) {
            break;
        }
        inhalt = Ersetzt(inhalt, text, code);
        tabelle += code;
        tabelle += text + '\n';
    }
    return {tabelle, inhalt};
}

// --- Files -----------------------------------------------------------------------------------------------------------

std::string Neunstellig(std::size_t zahl) {
    const std::string ziffern = std::to_string(zahl);
    if (ziffern.size() > 9) {
        throw EingabeFehler("the chapter is too long");
    }
    return std::string(9 - ziffern.size(), '0') + ziffern;
}

// The list of chapters looks for the start tag and the next '<' in the first 1000 bytes of the file as they stand, so
// both are written without abbreviations and the table leaves them room.
std::string Kapiteldatei(const Kapitel& kapitel) {
    const std::size_t fest = KopfLaenge + 1 + kapitel.Anfang.size() + 1;
    if (fest > VerzeichnisLaenge) {
        throw EingabeFehler("title and second text of chapter " + std::to_string(kapitel.Nummer) + " are too long");
    }
    const Kuerzung kuerzung = Kuerzen(kapitel.Inhalt.substr(1), VerzeichnisLaenge - fest);
    const std::string rumpf = kuerzung.Tabelle + " " + kapitel.Anfang + "<" + kuerzung.Inhalt;
    const std::size_t entpackt = std::string_view(Deklaration).size() + kapitel.Anfang.size() + kapitel.Inhalt.size();
    return "CF11" + std::to_string(kapitel.Jahr) + std::to_string(kapitel.Sprache) + std::to_string(kapitel.Nummer) +
           Neunstellig(KopfLaenge + rumpf.size()) + Neunstellig(entpackt) + rumpf;
}

std::string Dateiname(const Kapitel& kapitel) {
    return "N" + std::to_string(kapitel.Jahr).substr(2) + std::to_string(kapitel.Sprache) +
           std::to_string(kapitel.Nummer) + ".qvm";
}

int KapitelSchreiben(const std::string& beschreibung, std::string ordner) {
    if (!ordner.ends_with('/') && !ordner.ends_with('\\')) {
        ordner += '/';
    }
    std::vector<std::pair<std::string, std::string>> dateien; // all of them before the first is written
    for (const Kapitel& kapitel : KapitelLesen(beschreibung)) {
        dateien.emplace_back(ordner + Dateiname(kapitel), Kapiteldatei(kapitel));
    }
    for (const auto& [pfad, bytes] : dateien) {
        DateiSchreiben(pfad, bytes);
    }
    return 0;
}

// A chapter file whose head tells its true length: the collected file has no other way from one entry to the next.
std::string GeprueftesKapitel(const std::string& pfad) {
    std::string bytes = DateiLesen(pfad);
    if (bytes.size() < KopfLaenge || !bytes.starts_with("CF11") || bytes.substr(12, 9) != Neunstellig(bytes.size())) {
        throw EingabeFehler(pfad + ": is no chapter file, or its length is not what its head tells");
    }
    return bytes;
}

int Sammeln(const std::string& ausgabe, const std::vector<std::string>& kapitel) {
    std::string bytes;
    for (const std::string& pfad : kapitel) {
        bytes += GeprueftesKapitel(pfad);
    }
    DateiSchreiben(ausgabe, bytes);
    return 0;
}

int Programm(const std::vector<std::string>& argumente) {
    if (argumente.size() == 1 && argumente[0] == "--help") {
        std::fputs(Hilfe, stdout);
        return 0;
    }
    if (argumente.size() == 3 && argumente[0] == "kapitel") {
        return KapitelSchreiben(argumente[1], argumente[2]);
    }
    if (argumente.size() >= 3 && argumente[0] == "sammeln") {
        return Sammeln(argumente[1], {argumente.begin() + 2, argumente.end()});
    }
    throw EingabeFehler("'kapitel BESCHREIBUNG ORDNER' or 'sammeln AUSGABE KAPITELDATEI...'; --help tells more");
}

} // namespace

} // namespace zepholt::werkzeug

int main(int anzahl, char** argumente) {
    return zepholt::werkzeug::Ausfuehren("kapitelschreiber", &zepholt::werkzeug::Programm, anzahl, argumente);
}
