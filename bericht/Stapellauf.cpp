#include "bericht/Stapellauf.h"

#include "bericht/Dateitabelle.h"
#include "bericht/Konsole.h"
#include "bericht/Zeichen.h"
#include "support/HilfsFunktionen.h"

#include <algorithm>

namespace zepholt::bericht {

namespace {

constexpr std::size_t MeisteZugleich = 64; // that Windows can wait for

Text MitTrenner(Text pfad) {
    if (!pfad.empty() && !IstPfadTrenner(pfad.back())) {
        pfad.push_back(PfadTrenner());
    }
    return pfad;
}

bool IstAustauschdatei(const Text& name) {
    const Text klein = Kleinbuchstaben(name);
    return klein.ends_with(u".01s") || klein.ends_with(u".e1s");
}

// A tree of exchange files and the tree of their protocols.
struct Baeume {
    Text Quelle; // both with a path separator behind them
    Text Ziel;

    // The exchange files by their ways from Quelle on, in ascending order.
    std::vector<Text> Namen() const {
        std::vector<Text> namen;
        std::vector<Text> offene = {Text()};
        while (!offene.empty()) {
            const Text ordner = std::move(offene.back());
            offene.pop_back();
            for (const OrdnerEintrag& eintrag : EintraegeSuchen(Quelle + ordner + u"*")) {
                const Text weg = ordner + eintrag.Name;
                const bool eigener = eintrag.Name == u"." || eintrag.Name == u"..";
                if (eintrag.Art == DateiArt::Ordner && !eintrag.Versteckt && !eigener &&
                    Quelle + weg + PfadTrenner() != Ziel) {
                    offene.push_back(weg + PfadTrenner());
                } else if (eintrag.Art == DateiArt::Datei && !eintrag.Versteckt && IstAustauschdatei(eintrag.Name)) {
                    namen.push_back(weg);
                }
            }
        }
        std::ranges::sort(namen);
        return namen;
    }

    Text Protokoll(const Text& name) const { return Ziel + name + u".xml"; }
};

// The folders of a path below `ab`, the outermost first.
void OrdnerBisAnlegen(const Text& pfad, std::size_t ab) {
    for (std::size_t i = ab; i < pfad.size(); ++i) {
        if (IstPfadTrenner(pfad[i])) {
            OrdnerAnlegen(pfad.substr(0, i));
        }
    }
}

void FehlendePruefen(const Baeume& baeume, const std::vector<Text>& namen, const Pruefwunsch& wunsch,
                     std::size_t zugleich) {
    const Text sprache = AusUtf8Bytes(Sprachkuerzel[static_cast<std::size_t>(wunsch.Gewaehlt)]);
    Prozesse prozesse(std::min(zugleich == 0 ? Prozessoren() : zugleich, MeisteZugleich));
    for (const Text& name : namen) {
        const Text protokoll = baeume.Protokoll(name);
        if (ArtVon(protokoll) == DateiArt::Datei) {
            continue;
        }
        OrdnerBisAnlegen(protokoll, baeume.Ziel.size() - 1);
        std::vector<Text> argumente = {u"file=" + baeume.Quelle + name, u"dialog=" + sprache + u"-",
                                       u"errorfile=" + protokoll, u"catalog=" + wunsch.Katalog};
        if (!wunsch.Modus.empty()) {
            argumente.push_back(u"mode=" + wunsch.Modus);
        }
        prozesse.Starten(Pruefprogramm(), argumente);
    }
}

} // namespace

int OrdnerPruefen(const Text& ordner, const Text& ziel, const Pruefwunsch& wunsch, std::size_t zugleich) {
    const Baeume baeume = {MitTrenner(VollerPfad(ordner)), MitTrenner(VollerPfad(ziel))};
    if (ArtVon(ordner) != DateiArt::Ordner || ArtVon(wunsch.Katalog) == DateiArt::Nichts) {
        throw Ablehnung(StatusFalscherAufruf, Meldung::FalscherWert,
                        {Utf8(ArtVon(ordner) != DateiArt::Ordner ? ordner : wunsch.Katalog)});
    }
    if (ArtVon(Pruefprogramm()) != DateiArt::Datei) {
        throw Ablehnung(StatusKeinErgebnis, Meldung::ProgrammFehlt, {Utf8(Pruefprogramm())});
    }
    const std::vector<Text> namen = baeume.Namen();
    OrdnerAnlegen(ziel);
    FehlendePruefen(baeume, namen, wunsch, zugleich);
    const auto quelle = [&, i = std::size_t{0}]() mutable -> std::optional<Tabelleneintrag> {
        if (i == namen.size()) {
            return std::nullopt;
        }
        const Text& name = namen[i++];
        const Text protokoll = baeume.Protokoll(name);
        const bool da = ArtVon(protokoll) == DateiArt::Datei;
        const std::string grund =
            da ? "" : MeldungsText(Meldung::OhneErgebnis, wunsch.Gewaehlt, {Utf8(baeume.Quelle + name)});
        return Tabelleneintrag{Utf8Bytes(name), Utf8Bytes(protokoll), "", grund};
    };
    return DateitabelleSchreiben(quelle, {baeume.Ziel + u"table.csv", baeume.Ziel + u"table.jsonl"}, wunsch.Gewaehlt);
}

} // namespace zepholt::bericht
