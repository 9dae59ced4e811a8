// The data of the page. Names are one letter: half a million findings stand here.
//
//   n  findings in all          t  the page's words, [de, fr, it] by key
//   c  codes: [code, severity, [de, fr, it]]
//   f  field references: [reference, record type that it speaks of]
//   o  place of a reference in a type: "G6 eG6:4/5" -> rows "3,4", "*" the record, "@100" a column
//   l  record types: [[de, fr, it], [[reference, column, columns, [de, fr, it]], ...]]
//   w  chapters and positions that sections stand below
//   a  sections: [kind, position, [w, ...], lines around, [line, record, ...], [c, f, ...], [line, record, [c, f, ...],
//   ...]]
//
// A record is its text without the blanks at its end; a run of blanks is ` and its length in two digits of base 36, and
// ` itself is doubled.
#include "bericht/Feldangabe.h"
#include "bericht/Feldort.h"
#include "bericht/Listen.h"
#include "bericht/Seite.h"
#include "bericht/Seitentexte.h"
#include "bericht/Zeichen.h"
#include "state/SIA451Feldnamen.h"
#include "support/HilfsFunktionen.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <functional>
#include <map>
#include <set>
#include <string_view>
#include <vector>

namespace zepholt::bericht {

namespace {

constexpr std::size_t HoechstensSpalten = 1000;
constexpr std::size_t KuerzesterLauf = 4; // of blanks: what stands for it takes three characters
constexpr std::size_t LaengsterLauf = 36 * 36 - 1;

// What stands for itself in a record of the data: no blank, which may be part of a run.
constexpr std::array<bool, 128> Einfache = [] {
    std::array<bool, 128> einfache{};
    for (std::size_t zeichen = '!'; zeichen < 0x7F; ++zeichen) {
        einfache[zeichen] = std::string_view("\"\\<>&`").find(static_cast<char>(zeichen)) == std::string_view::npos;
    }
    return einfache;
}();

bool IstEinfach(char16_t zeichen) {
    return zeichen < Einfache.size() && Einfache[zeichen];
}

class Datenbau {
public:
    Datenbau(const Seiteninhalt& inhalt, Ausgabe& ausgabe)
        : m_inhalt(inhalt), m_ausgabe(ausgabe), m_feldnummern(inhalt.Aus.Worte.Anzahl(), -1) {}

    void Schreiben() {
        m_ausgabe.Schreiben("{\"n\":" + std::to_string(m_inhalt.Aufbau.Folge.size()) + ",\"t\":{");
        Reihe(Seitentexte().size(), [&](std::size_t i) {
            const Seitentext& text = Seitentexte()[i];
            return JsonText(text.Schluessel) + ":" +
                   Dreifach([&](std::size_t s) { return std::string(text.Texte[s]); });
        });
        m_ausgabe.Schreiben("},\n\"c\":[");
        Reihe(m_inhalt.Codes.size(), [&](std::size_t i) { return Code(m_inhalt.Codes[i]); });
        m_ausgabe.Schreiben("],\n\"a\":[");
        bool erster = true;
        for (const Abschnitt& abschnitt : m_inhalt.Aufbau.Abschnitte) {
            AbschnittSchreiben(abschnitt, erster);
            erster = false;
        }
        m_ausgabe.Schreiben("],\n\"w\":[");
        Reihe(m_inhalt.Aufbau.Orte.Anzahl(),
              [&](std::size_t i) { return JsonText(m_inhalt.Aufbau.Orte.Wort(static_cast<std::uint32_t>(i))); });
        VerzeichnisseSchreiben();
        m_ausgabe.Schreiben("}");
    }

private:
    using Typeintrag = std::pair<const std::string, std::set<std::uint32_t>>;

    // Elements with commas between them.
    template <class Element>
    void Reihe(std::size_t anzahl, Element element) {
        for (std::size_t i = 0; i < anzahl; ++i) {
            m_ausgabe.Schreiben((i > 0 ? "," : "") + element(i));
        }
    }

    static std::string Dreifach(const std::function<std::string(std::size_t)>& text) {
        return "[" + JsonText(text(0)) + "," + JsonText(text(1)) + "," + JsonText(text(2)) + "]";
    }

    std::string Code(const Seitencode& code) const {
        const Befund& befund = m_inhalt.Aus.Befunde[code.Erster];
        return "[" + std::to_string(code.Code) + (code.IstWarnung ? ",\"B\"," : ",\"A\",") +
               Dreifach([&](std::size_t s) { return Befundtext(m_inhalt.Aus, befund, static_cast<Sprache>(s)); }) + "]";
    }

    void AbschnittSchreiben(const Abschnitt& abschnitt, bool erster) {
        m_puffer = erster ? "\n[\"" : ",\n[\"";
        m_puffer += abschnitt.Art;
        m_puffer += "\",";
        ZahlAnhaengen(abschnitt.Position);
        m_puffer += ",[";
        for (std::size_t i = 0; i < abschnitt.Herkunft.size(); ++i) {
            m_puffer += i > 0 ? "," : "";
            ZahlAnhaengen(abschnitt.Herkunft[i]);
        }
        m_puffer += "],";
        ZahlAnhaengen(abschnitt.UmgebungAnzahl);
        m_puffer += ",[";
        for (std::size_t i = 0; i < abschnitt.Umgebung.size(); ++i) {
            m_puffer += i > 0 ? "," : "";
            RecordAnhaengen(abschnitt.Umgebung[i]);
        }
        m_puffer += "],[";
        BefundeAnhaengen(abschnitt.Von, abschnitt.Bis, nullptr);
        m_puffer += "],[";
        for (std::uint32_t e = abschnitt.ErsterEintrag; e < abschnitt.EndeEintraege; ++e) {
            const Eintrag& eintrag = m_inhalt.Aufbau.Eintraege[e];
            m_puffer += e > abschnitt.ErsterEintrag ? "," : "";
            Typeintrag& typ = RecordAnhaengen(eintrag.Zeile);
            m_puffer += ",[";
            BefundeAnhaengen(eintrag.Von, eintrag.Bis, &typ);
            m_puffer += ']';
        }
        m_puffer += "]]";
        m_ausgabe.Schreiben(m_puffer);
    }

    void ZahlAnhaengen(std::int64_t zahl) {
        std::array<char, 20> ziffern;
        const auto ergebnis = std::to_chars(ziffern.data(), ziffern.data() + ziffern.size(), zahl);
        m_puffer.append(ziffern.data(), ergebnis.ptr);
    }

    // Line number and record; returns the record's type.
    Typeintrag& RecordAnhaengen(std::int32_t nummer) {
        TextSicht zeile = m_inhalt.Datei.ZeileOhneRand(nummer, HoechstensSpalten);
        Typeintrag& typ = *m_typen.try_emplace(TypDerZeile(zeile)).first;
        ZahlAnhaengen(nummer);
        m_puffer += ",\"";
        while (!zeile.empty()) {
            LeereAnhaengen(zeile);
            EinfacheAnhaengen(zeile);
            if (!zeile.empty() && zeile.front() != u' ') {
                ZeichenAnhaengen(zeile);
            }
        }
        m_puffer += '"';
        return typ;
    }

    // These three take off the front of a line what they append.
    void LeereAnhaengen(TextSicht& zeile) {
        std::size_t anzahl = zeile.find_first_not_of(u' '); // its last character is none
        zeile.remove_prefix(anzahl);
        for (; anzahl >= KuerzesterLauf; anzahl -= std::min(anzahl, LaengsterLauf)) {
            LaufAnhaengen(std::min(anzahl, LaengsterLauf));
        }
        m_puffer.append(anzahl, ' ');
    }

    void EinfacheAnhaengen(TextSicht& zeile) {
        const auto ende = std::find_if_not(zeile.begin(), zeile.end(), IstEinfach);
        const std::size_t vorher = m_puffer.size();
        m_puffer.resize(vorher + static_cast<std::size_t>(ende - zeile.begin()));
        std::transform(zeile.begin(), ende, m_puffer.begin() + static_cast<std::ptrdiff_t>(vorher),
                       [](char16_t zeichen) { return static_cast<char>(zeichen); });
        zeile.remove_prefix(m_puffer.size() - vorher);
    }

    void ZeichenAnhaengen(TextSicht& zeile) {
        const char16_t zeichen = zeile.front();
        if (zeichen == u'`') {
            m_puffer += "``";
            zeile.remove_prefix(1);
            return;
        }
        const bool paar = zeichen >= 0xD800 && zeichen <= 0xDBFF && zeile.size() > 1;
        const std::string text = JsonText(Utf8(zeile.substr(0, paar ? 2 : 1)));
        m_puffer.append(text, 1, text.size() - 2);
        zeile.remove_prefix(paar ? 2 : 1);
    }

    void LaufAnhaengen(std::size_t laenge) {
        constexpr std::string_view Ziffern = "0123456789abcdefghijklmnopqrstuvwxyz";
        m_puffer += '`';
        m_puffer += Ziffern[laenge / 36];
        m_puffer += Ziffern[laenge % 36];
    }

    // The findings of a record of that type, or those without a line.
    void BefundeAnhaengen(std::uint32_t von, std::uint32_t bis, Typeintrag* typ) {
        for (std::uint32_t stelle = von; stelle < bis; ++stelle) {
            m_puffer += stelle > von ? "," : "";
            ZahlAnhaengen(m_inhalt.CodeAn(stelle));
            m_puffer += ',';
            ZahlAnhaengen(Feldnummer(m_inhalt.BefundAn(stelle).Feld, typ));
        }
    }

    // The number of a field reference in the data, -1 for none; takes note of the type that it is used in.
    std::int64_t Feldnummer(std::uint32_t feld, Typeintrag* typ) {
        if (feld == 0) {
            return -1;
        }
        if (m_feldnummern[feld] < 0) {
            m_feldnummern[feld] = std::ssize(m_felder);
            m_felder.push_back(feld);
        }
        const bool ohneTyp = typ == nullptr || typ->first.empty();
        (ohneTyp ? m_typen[TypAus(m_inhalt.Aus.Worte.Wort(feld))] : typ->second).insert(feld);
        return m_feldnummern[feld];
    }

    void VerzeichnisseSchreiben() {
        m_ausgabe.Schreiben("],\n\"f\":[");
        Reihe(m_felder.size(), [&](std::size_t i) {
            const std::string& feld = m_inhalt.Aus.Worte.Wort(m_felder[i]);
            return "[" + JsonText(feld) + "," + JsonText(TypAus(feld)) + "]";
        });
        m_ausgabe.Schreiben("],\n\"o\":{");
        bool erster = true;
        for (const auto& [typ, nummern] : m_typen) {
            for (const std::uint32_t nummer : nummern) {
                const std::string& feld = m_inhalt.Aus.Worte.Wort(nummer);
                m_ausgabe.Schreiben((erster ? "" : ",") + JsonText(typ + " " + feld) + ":" +
                                    JsonText(Ortskuerzel(FeldortVon(feld, LayoutsDesTyps(typ)))));
                erster = false;
            }
        }
        m_ausgabe.Schreiben("},\n\"l\":{");
        erster = true;
        for (const auto& [typ, nummern] : m_typen) {
            const std::span<const RecordLayout> layouts = LayoutsDesTyps(typ);
            if (!layouts.empty()) {
                m_ausgabe.Schreiben((erster ? "" : ",") + JsonText(typ) + ":" + Layout(typ, layouts));
                erster = false;
            }
        }
        m_ausgabe.Schreiben("}");
    }

    static std::string Layout(const std::string& typ, std::span<const RecordLayout> layouts) {
        const Text name = AusUtf8Bytes(typ);
        std::string text =
            "[" +
            Dreifach([&](std::size_t s) { return Utf8(Recordbezeichnung(name, static_cast<std::int32_t>(s) + 1)); }) +
            ",[";
        for (const RecordLayout& layout : layouts) {
            text += (&layout == layouts.data() ? "[" : ",[") + JsonText(Utf8(layout.Feldbezug)) + "," +
                    std::to_string(layout.Spalte) + "," + std::to_string(layout.Laenge) + "," +
                    Dreifach([&](std::size_t s) {
                        return Utf8(Feldbezeichnung(layout.Feldbezug, static_cast<std::int32_t>(s) + 1));
                    }) +
                    "]";
        }
        return text + "]]";
    }

    const Seiteninhalt& m_inhalt;
    Ausgabe& m_ausgabe;
    std::string m_puffer;
    std::map<std::string, std::set<std::uint32_t>> m_typen; // with the references that they are used with
    std::vector<std::int64_t> m_feldnummern;                // of each word of the protocol in m_felder, -1 for none
    std::vector<std::uint32_t> m_felder;
};

} // namespace

void SeitendatenSchreiben(const Seiteninhalt& inhalt, Ausgabe& ausgabe) {
    Datenbau(inhalt, ausgabe).Schreiben();
}

} // namespace zepholt::bericht
