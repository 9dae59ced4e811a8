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

#include <functional>
#include <set>
#include <unordered_map>

namespace zepholt::bericht {

namespace {

constexpr std::size_t HoechstensSpalten = 1000;
constexpr std::size_t KuerzesterLauf = 4; // of blanks: what stands for it takes three characters
constexpr std::size_t LaengsterLauf = 36 * 36 - 1;

class Datenbau {
public:
    Datenbau(const Seiteninhalt& inhalt, Ausgabe& ausgabe) : m_inhalt(inhalt), m_ausgabe(ausgabe) {}

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
        m_puffer += "\"," + std::to_string(abschnitt.Position) + ",[";
        for (std::size_t i = 0; i < abschnitt.Herkunft.size(); ++i) {
            m_puffer += (i > 0 ? "," : "") + std::to_string(abschnitt.Herkunft[i]);
        }
        m_puffer += "]," + std::to_string(abschnitt.UmgebungAnzahl) + ",[";
        for (std::size_t i = 0; i < abschnitt.Umgebung.size(); ++i) {
            m_puffer += i > 0 ? "," : "";
            RecordAnhaengen(abschnitt.Umgebung[i]);
        }
        m_puffer += "],[";
        BefundeAnhaengen(abschnitt.Von, abschnitt.Bis, {});
        m_puffer += "],[";
        for (std::uint32_t e = abschnitt.ErsterEintrag; e < abschnitt.EndeEintraege; ++e) {
            const Eintrag& eintrag = m_inhalt.Aufbau.Eintraege[e];
            m_puffer += e > abschnitt.ErsterEintrag ? "," : "";
            const std::string& typ = RecordAnhaengen(eintrag.Zeile);
            m_puffer += ",[";
            BefundeAnhaengen(eintrag.Von, eintrag.Bis, typ);
            m_puffer += ']';
        }
        m_ausgabe.Schreiben(m_puffer + "]]");
    }

    // Line number and record; returns the record's type.
    const std::string& RecordAnhaengen(std::int32_t nummer) {
        const TextSicht zeile = OhneLeerzeichenRechts(m_inhalt.Datei.Zeile(nummer, HoechstensSpalten));
        m_puffer += std::to_string(nummer) + ",\"";
        std::size_t stelle = 0;
        while (stelle < zeile.size()) {
            const std::size_t ende = std::min(zeile.find_first_not_of(u' ', stelle), zeile.size());
            if (ende - stelle >= KuerzesterLauf) {
                LaufAnhaengen(std::min(ende - stelle, LaengsterLauf));
                stelle += std::min(ende - stelle, LaengsterLauf);
                continue;
            }
            stelle = ZeichenAnhaengen(zeile, stelle);
        }
        m_puffer += '"';
        return *m_typen.emplace(TypDerZeile(zeile)).first;
    }

    void LaufAnhaengen(std::size_t laenge) {
        constexpr std::string_view Ziffern = "0123456789abcdefghijklmnopqrstuvwxyz";
        m_puffer += '`';
        m_puffer += Ziffern[laenge / 36];
        m_puffer += Ziffern[laenge % 36];
    }

    std::size_t ZeichenAnhaengen(TextSicht zeile, std::size_t stelle) {
        const char16_t zeichen = zeile[stelle];
        const bool einfach = zeichen >= u' ' && zeichen < 0x7F && zeichen != u'"' && zeichen != u'\\' &&
                             zeichen != u'<' && zeichen != u'>' && zeichen != u'&';
        if (einfach) {
            m_puffer.append(zeichen == u'`' ? 2 : 1, static_cast<char>(zeichen));
            return stelle + 1;
        }
        const bool paar = zeichen >= 0xD800 && zeichen <= 0xDBFF && stelle + 1 < zeile.size();
        const std::string text = JsonText(Utf8(zeile.substr(stelle, paar ? 2 : 1)));
        m_puffer.append(text, 1, text.size() - 2);
        return stelle + (paar ? 2 : 1);
    }

    void BefundeAnhaengen(std::uint32_t von, std::uint32_t bis, const std::string& typ) {
        for (std::uint32_t stelle = von; stelle < bis; ++stelle) {
            const Befund& befund = m_inhalt.BefundAn(stelle);
            m_puffer += (stelle > von ? "," : "") + std::to_string(m_inhalt.CodeAn(stelle)) + "," +
                        std::to_string(Feldnummer(befund.Feld, typ));
        }
    }

    // The number of a field reference in the data, -1 for none; takes note of the type that it is used in.
    std::int64_t Feldnummer(std::uint32_t feld, const std::string& typ) {
        if (feld == 0) {
            return -1;
        }
        const auto [fund, neu] = m_feldnummern.emplace(feld, m_felder.size());
        if (neu) {
            m_felder.push_back(feld);
        }
        m_paare.emplace(typ.empty() ? TypAus(m_inhalt.Aus.Worte.Wort(feld)) : typ, feld);
        return static_cast<std::int64_t>(fund->second);
    }

    void VerzeichnisseSchreiben() {
        m_ausgabe.Schreiben("],\n\"f\":[");
        Reihe(m_felder.size(), [&](std::size_t i) {
            const std::string& feld = m_inhalt.Aus.Worte.Wort(m_felder[i]);
            return "[" + JsonText(feld) + "," + JsonText(TypAus(feld)) + "]";
        });
        m_ausgabe.Schreiben("],\n\"o\":{");
        bool erster = true;
        for (const auto& [typ, nummer] : m_paare) {
            m_typen.insert(typ);
            const std::string& feld = m_inhalt.Aus.Worte.Wort(nummer);
            m_ausgabe.Schreiben((erster ? "" : ",") + JsonText(typ + " " + feld) + ":" +
                                JsonText(Ortskuerzel(FeldortVon(feld, LayoutsDesTyps(typ)))));
            erster = false;
        }
        m_ausgabe.Schreiben("},\n\"l\":{");
        erster = true;
        for (const std::string& typ : m_typen) {
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
    std::set<std::string> m_typen;
    std::unordered_map<std::uint32_t, std::size_t> m_feldnummern;
    std::vector<std::uint32_t> m_felder;
    std::set<std::pair<std::string, std::uint32_t>> m_paare;
};

} // namespace

void SeitendatenSchreiben(const Seiteninhalt& inhalt, Ausgabe& ausgabe) {
    Datenbau(inhalt, ausgabe).Schreiben();
}

} // namespace zepholt::bericht
