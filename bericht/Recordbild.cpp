#include "bericht/Recordbild.h"

#include "bericht/Feldangabe.h"
#include "bericht/Feldort.h"
#include "bericht/Seitentexte.h"
#include "bericht/Zeichen.h"
#include "state/SIA451Feldnamen.h"
#include "support/HilfsFunktionen.h"

#include <algorithm>
#include <map>

namespace zepholt::bericht {

namespace {

constexpr std::size_t BreiteMitZeiger = 60; // of a stretch that a caret stands under; a longer one may wrap

std::string Spaltentext(std::int32_t von, std::int32_t bis, Sprache sprache) {
    return von == bis ? Seitenwort("spalte", sprache, {std::to_string(von)})
                      : Seitenwort("spalten", sprache, {std::to_string(von), std::to_string(bis)});
}

std::string Spanne(std::int32_t spalte, std::int32_t laenge) {
    return std::to_string(spalte) + (laenge == 1 ? "" : "–" + std::to_string(spalte + laenge - 1));
}

void UnsichtbaresZeigen(std::string& ziel, char32_t zeichen, Zeichenbild bild) {
    const std::string name = Codepunktname(zeichen);
    if (bild != Zeichenbild::GanzeZeile) {
        ziel += "<i class=\"c\">" + name + "</i>";
        return;
    }
    ziel += "<i class=\"c\" title=\"" + name + "\">";
    Utf8Anhaengen(ziel, zeichen < 0x20 ? 0x2400 + zeichen : zeichen == 0x7F ? 0x2421 : 0x25AF);
    ziel += "</i>";
}

void ZeichenZeigen(std::string& ziel, char32_t zeichen, Zeichenbild bild) {
    constexpr std::pair<char32_t, std::string_view> Ersetzte[] = {
        {'<', "&lt;"}, {'>', "&gt;"}, {'&', "&amp;"}, {'"', "&quot;"}, {'\'', "&#39;"}};
    const auto ersetzt = std::ranges::find(Ersetzte, zeichen, &std::pair<char32_t, std::string_view>::first);
    if (ersetzt != std::end(Ersetzte)) {
        ziel += ersetzt->second;
    } else if (IstUnsichtbar(zeichen)) {
        UnsichtbaresZeigen(ziel, zeichen, bild);
    } else if (zeichen == ' ' && bild == Zeichenbild::Marke) {
        ziel += "<i class=\"b\">·</i>";
    } else {
        Utf8Anhaengen(ziel, zeichen);
    }
}

// A box: `schwere` is "A", "B" or empty for a field that no finding marks; `klasse` is what it looks like.
std::string Kasten(std::string_view klasse, std::string_view schwere, const std::string& titel,
                   const std::string& klein, const std::string& wert, Sprache sprache, const std::string& zeiger = {}) {
    std::string kasten = klasse.empty() ? "<div>" : "<div class=\"" + std::string(klasse) + "\">";
    kasten += "<dt>";
    if (!schwere.empty()) {
        kasten += "<span class=\"v\">" + Seitenwort(schwere, sprache) + ": </span>";
    }
    kasten += Html(titel) + " <small>" + Html(klein) + "</small></dt><dd>";
    kasten += wert.empty() ? "<i>" + Seitenwort("leer", sprache) + "</i>"
                           : Html(wert, schwere.empty() ? Zeichenbild::Feld : Zeichenbild::Marke);
    return kasten + zeiger + "</dd></div>";
}

// What the findings of a record mark, an error before a warning.
struct Marken {
    std::map<std::size_t, bool> Felder;   // row of the layout -> only warnings
    std::map<std::int32_t, bool> Spalten; // column outside of the fields -> only warnings
    std::string_view GanzerRecord;        // a class of the page

    Marken(std::span<const Recordbefund> befunde, std::span<const RecordLayout> layouts) {
        for (const Recordbefund& befund : befunde) {
            const Feldort ort = FeldortVon(befund.Feld, layouts);
            for (const std::size_t feld : ort.Felder) {
                Felder.emplace(feld, true).first->second &= befund.IstWarnung;
            }
            if (ort.Spalte > 0) {
                Spalten.emplace(ort.Spalte, true).first->second &= befund.IstWarnung;
            }
            if (ort.GanzerRecord) {
                GanzerRecord = befund.IstWarnung && GanzerRecord != "ganz" ? "ganzB" : "ganz";
            }
        }
    }
};

// True for the one or two fields that only repeat the record's type, which stands above.
bool IstTypfeld(TextSicht feldbezug) {
    const bool mitZiffer = feldbezug[1] != u':';
    return feldbezug.ends_with(u":1") || (mitZiffer && feldbezug.ends_with(u":11"));
}

std::string Wert(TextSicht zeile, std::int32_t spalte, std::int32_t laenge) {
    return Utf8(OhneLeerzeichenRechts(SpaltenVon(zeile, spalte, laenge)));
}

// The stretch around a column that no field covers, with a caret under the column.
std::string Luecke(TextSicht zeile, std::span<const RecordLayout> layouts, std::int32_t spalte, bool warnung,
                   Sprache sprache) {
    std::int32_t von = 1;
    std::int32_t bis = std::max(static_cast<std::int32_t>(zeile.size()), spalte);
    for (const RecordLayout& layout : layouts) {
        if (layout.Spalte + layout.Laenge <= spalte) {
            von = std::max(von, layout.Spalte + layout.Laenge);
        }
        if (layout.Spalte > spalte) {
            bis = std::min(bis, layout.Spalte - 1);
        }
    }
    const TextSicht text = OhneLeerzeichenRechts(SpaltenVon(zeile, von, bis - von + 1));
    std::string zeiger;
    if (text.size() > static_cast<std::size_t>(spalte - von) && text.size() < BreiteMitZeiger) {
        zeiger = "\n" + std::string(static_cast<std::size_t>(spalte - von), ' ') + "^";
    }
    const std::string_view schwere = warnung ? "B" : "A";
    return Kasten(schwere, schwere, Seitenwort(layouts.empty() ? "inhalt" : "ausserhalb", sprache),
                  Spaltentext(spalte, spalte, sprache), Utf8(text), sprache, zeiger);
}

} // namespace

std::string Html(std::string_view utf8, Zeichenbild bild) {
    std::string ziel;
    ziel.reserve(utf8.size());
    while (!utf8.empty()) {
        ZeichenZeigen(ziel, NaechstesZeichen(utf8), bild);
    }
    return ziel;
}

std::string Feldkaesten(TextSicht zeile, std::span<const Recordbefund> befunde, Sprache sprache) {
    const std::span<const RecordLayout> layouts = LayoutsVon(zeile);
    const Marken marken(befunde, layouts);
    std::multimap<std::int32_t, std::string> kaesten; // by column
    for (std::size_t i = 0; i < layouts.size(); ++i) {
        const RecordLayout& layout = layouts[i];
        const auto marke = marken.Felder.find(i);
        const bool markiert = marke != marken.Felder.end();
        const std::string wert = Wert(zeile, layout.Spalte, layout.Laenge);
        if (!markiert && (wert.empty() || IstTypfeld(layout.Feldbezug))) {
            continue;
        }
        const std::string_view schwere = !markiert ? "" : marke->second ? "B" : "A";
        kaesten.emplace(layout.Spalte,
                        Kasten(markiert ? schwere : marken.GanzerRecord, schwere,
                               Utf8(Feldbezeichnung(layout.Feldbezug, Tabellensprache(sprache))),
                               Utf8(layout.Feldbezug) + " · " + Spanne(layout.Spalte, layout.Laenge), wert, sprache));
    }
    if (layouts.empty() && marken.Spalten.empty()) {
        const auto laenge = static_cast<std::int32_t>(zeile.size());
        kaesten.emplace(
            1, Kasten("", "", Seitenwort("inhalt", sprache), Spanne(1, laenge), Wert(zeile, 1, laenge), sprache));
    }
    for (const auto& [spalte, warnung] : marken.Spalten) {
        kaesten.emplace(spalte, Luecke(zeile, layouts, spalte, warnung, sprache));
    }
    std::string bild = "<dl class=\"r\">";
    for (const auto& [spalte, kasten] : kaesten) {
        bild += kasten;
    }
    return bild + "</dl>";
}

std::string GanzeZeile(TextSicht zeile, std::span<const Recordbefund> befunde, Sprache sprache) {
    const std::span<const RecordLayout> layouts = LayoutsVon(zeile);
    const Marken marken(befunde, layouts);
    std::string zeiger;
    const auto setzen = [&](std::int32_t spalte, std::int32_t laenge) {
        const auto anfang = static_cast<std::size_t>(spalte - 1);
        zeiger.resize(std::max(zeiger.size(), anfang + static_cast<std::size_t>(laenge)), ' ');
        std::fill_n(zeiger.begin() + static_cast<std::ptrdiff_t>(anfang), laenge, '^');
    };
    for (const auto& [feld, warnung] : marken.Felder) {
        setzen(layouts[feld].Spalte, layouts[feld].Laenge);
    }
    for (const auto& [spalte, warnung] : marken.Spalten) {
        if (spalte <= static_cast<std::int32_t>(zeile.size())) {
            setzen(spalte, 1);
        }
    }
    std::string bild =
        "<details class=\"z\"><summary>" + Seitenwort("ganzezeile", sprache) + "</summary><pre tabindex=\"0\">";
    bild += Html(Utf8(OhneLeerzeichenRechts(zeile)), Zeichenbild::GanzeZeile);
    return bild + (zeiger.empty() ? "" : "\n<b>" + zeiger + "</b>") + "</pre></details>";
}

std::string Feldsatz(std::string_view feld, std::span<const RecordLayout> layouts, Sprache sprache) {
    if (feld.empty()) {
        return {};
    }
    const std::string bezug(feld);
    const Feldangabe angabe = FeldangabeVon(feld, layouts, sprache);
    if (!angabe.Name.empty()) {
        return angabe.Name + " (" + bezug + ", " + Spaltentext(angabe.Von, angabe.Bis, sprache) + ")";
    }
    if (angabe.Von > 0) {
        return Seitenwort("ausserhalb", sprache) + " (" + Spaltentext(angabe.Von, angabe.Bis, sprache) + ")";
    }
    const bool ganz = FeldortVon(feld, layouts.empty() ? LayoutsDesTyps(TypAus(feld)) : layouts).GanzerRecord;
    return ganz ? Seitenwort("ganzerrecord", sprache) + " (" + bezug + ")" : bezug;
}

} // namespace zepholt::bericht
