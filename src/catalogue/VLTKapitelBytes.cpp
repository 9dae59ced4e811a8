// A chapter in its usual form: the bytes are read in one go, without a text and without lists of elements.
#include "catalogue/Kapiteldatei.h"
#include "catalogue/Kapitelleser.h"

#include <array>
#include <optional>

namespace zepholt {

namespace {

constexpr std::int32_t KeineZahl = -1;

// The attributes of one start tag, by their letters.
struct Merkmale {
    std::uint32_t Da = 0;              // a bit for each letter
    std::array<std::int32_t, 26> Zahl; // where it is there; KeineZahl for a value of anything else
    std::string_view Gruppe;           // the value of A

    bool Hat(char name) const { return (Da >> static_cast<unsigned>(name - 'A') & 1U) != 0; }

    // The number, 0 for a missing one; KeineZahl for anything else, and for more than `hoechste`.
    std::int32_t Wert(char name, std::int32_t hoechste) const {
        const std::int32_t zahl = Hat(name) ? Zahl[static_cast<std::size_t>(name - 'A')] : 0;
        return zahl <= hoechste ? zahl : KeineZahl;
    }
};

constexpr std::int32_t Hoechste8 = std::numeric_limits<std::uint8_t>::max();
constexpr std::int32_t Hoechste16 = std::numeric_limits<std::int16_t>::max();
constexpr std::int32_t Hoechste32 = std::numeric_limits<std::int32_t>::max();

enum class Ende { Unueblich, Offen, Selbst }; // how a start tag ends: in anything else, in > or in />

// Where a value may not go on.
constexpr std::array<bool, 256> Wertende = [] {
    std::array<bool, 256> tabelle{};
    std::fill_n(tabelle.begin(), 32, true);
    tabelle['"'] = tabelle['<'] = tabelle['>'] = tabelle['='] = true;
    return tabelle;
}();

// Walks over the text, which ends in '>'. A comparison goes from character to character and ends at the first that is
// another, and a value ends at a '>' at the latest, so that nothing is read behind the text.
class Leser {
public:
    Leser(ByteSicht bytes, KapitelDaten& kapitel)
        : m_stelle(bytes.data()), m_ende(bytes.data() + bytes.size()), m_kapitel(kapitel) {}

    bool Lies() {
        if (!Nimm("<Kapitel") || LiesMarke() != Ende::Offen || !NimmKopf() || !Nimm("<H")) {
            return false;
        }
        do {
            if (!LiesH()) {
                return false;
            }
        } while (Nimm("<H"));
        return m_kapitel.KapitelH.size() <= HoechsteAnzahl && Rest().find("<H") == std::string_view::npos;
    }

private:
    std::string_view Rest() const { return AlsZeichen({m_stelle, m_ende}); }

    // Passes over a text if it stands here.
    bool Nimm(std::string_view text) {
        const unsigned char* stelle = m_stelle;
        for (const char zeichen : text) {
            if (stelle == m_ende || *stelle != static_cast<unsigned char>(zeichen)) {
                return false;
            }
            ++stelle;
        }
        m_stelle = stelle;
        return true;
    }

    // The attributes of a start tag, from behind its name up to its end.
    Ende LiesMarke() {
        m_merkmale.Da = 0;
        m_merkmale.Gruppe = {};
        while (*m_stelle == ' ') {
            if (!LiesMerkmal()) {
                return Ende::Unueblich;
            }
        }
        if (m_merkmale.Da == 0) {
            return Ende::Unueblich;
        }
        const bool selbst = *m_stelle == '/';
        m_stelle += selbst ? 1 : 0;
        if (*m_stelle++ != '>') {
            return Ende::Unueblich;
        }
        return selbst ? Ende::Selbst : Ende::Offen;
    }

    // One attribute: ` X="value"`.
    bool LiesMerkmal() {
        const auto platz = static_cast<unsigned>(m_stelle[1] - 'A');
        if (platz >= 26 || (m_merkmale.Da >> platz & 1U) != 0 || m_stelle[2] != '=' || m_stelle[3] != '"') {
            return false;
        }
        const unsigned char* const anfang = m_stelle + 4;
        const unsigned char* zeichen = anfang;
        std::uint32_t zahl = 0;
        for (; *zeichen >= '0' && *zeichen <= '9'; ++zeichen) {
            zahl = zahl * 10 + (*zeichen - '0');
        }
        const bool istZahl = *zeichen == '"' && zeichen != anfang && zeichen - anfang <= 9;
        while (!Wertende[*zeichen]) {
            ++zeichen;
        }
        if (*zeichen != '"') {
            return false;
        }
        m_merkmale.Da |= 1U << platz;
        m_merkmale.Zahl[platz] = istZahl ? static_cast<std::int32_t>(zahl) : KeineZahl;
        if (platz == 0) {
            m_merkmale.Gruppe = AlsZeichen({anfang, zeichen});
        }
        m_stelle = zeichen + 1;
        return true;
    }

    // Number, language and year of the chapter; the fourth number must be one too.
    bool NimmKopf() {
        for (const char name : {'N', 'S', 'V', 'A'}) {
            if (!m_merkmale.Hat(name) || m_merkmale.Wert(name, Hoechste16) == KeineZahl) {
                return false;
            }
        }
        m_kapitel.KapitelN = static_cast<std::int16_t>(m_merkmale.Wert('N', Hoechste16));
        m_kapitel.KapitelS = static_cast<std::int16_t>(m_merkmale.Wert('S', Hoechste16));
        m_kapitel.KapitelV = static_cast<std::int16_t>(m_merkmale.Wert('V', Hoechste16));
        return true;
    }

    // A main position, from behind its name on.
    bool LiesH() {
        const Ende ende = LiesMarke();
        const std::int32_t n = m_merkmale.Wert('N', Hoechste16);
        if (ende == Ende::Unueblich || (n | m_merkmale.Wert('X', Hoechste8)) < 0) {
            return false;
        }
        const std::size_t erstes = m_kapitel.KapitelUListe.size();
        if (ende == Ende::Offen) {
            do {
                if (!Nimm("<U") || !LiesU()) {
                    return false;
                }
            } while (!Nimm("</H>"));
        }
        HEintrag& h = m_kapitel.KapitelH.emplace_back();
        h.N = static_cast<std::int16_t>(n);
        h.ErstesU = static_cast<std::uint32_t>(erstes);
        return Zaehle(m_kapitel.KapitelUListe.size() - erstes, h.UAnzahl);
    }

    bool LiesU() {
        const Ende ende = LiesMarke();
        const std::int32_t n = m_merkmale.Wert('N', Hoechste16);
        const std::int32_t w = m_merkmale.Wert('W', Hoechste32);
        const std::int32_t y = m_merkmale.Wert('Y', Hoechste8);
        if (ende == Ende::Unueblich || (n | w | y | m_merkmale.Wert('X', Hoechste8)) < 0) {
            return false;
        }
        UEintrag u;
        u.N = static_cast<std::int16_t>(n);
        u.W = w;
        u.Y = static_cast<std::uint8_t>(y);
        u.ErstesV = static_cast<std::uint32_t>(m_kapitel.KapitelVListe.size());
        if (ende == Ende::Offen && !LiesVariablen(u)) {
            return false;
        }
        m_kapitel.KapitelUListe.push_back(u);
        return true;
    }

    bool LiesVariablen(UEintrag& u) {
        m_gruppen.clear();
        bool hatGruppe = false;
        do {
            if (!Nimm("<V") || !LiesV()) {
                return false;
            }
            m_gruppen.push_back(m_merkmale.Gruppe);
            hatGruppe = hatGruppe || !m_merkmale.Gruppe.empty();
        } while (!Nimm("</U>"));
        if (hatGruppe) {
            NummeriereGruppen(std::span(m_kapitel.KapitelVListe).subspan(u.ErstesV), m_gruppen);
        }
        return Zaehle(m_gruppen.size(), u.VAnzahl);
    }

    bool LiesV() {
        const Ende ende = LiesMarke();
        const std::int32_t n = m_merkmale.Wert('N', Hoechste16);
        const std::int32_t e = m_merkmale.Wert('E', Hoechste16);
        if (ende != Ende::Selbst || (n | e) < 0) {
            return false;
        }
        m_kapitel.KapitelVListe.push_back({static_cast<std::int16_t>(n), static_cast<std::int16_t>(e), 0});
        return true;
    }

    static bool Zaehle(std::size_t eintraege, std::int16_t& anzahl) {
        anzahl = static_cast<std::int16_t>(eintraege);
        return eintraege <= HoechsteAnzahl;
    }

    const unsigned char* m_stelle;
    const unsigned char* const m_ende;
    KapitelDaten& m_kapitel;
    Merkmale m_merkmale;
    std::vector<std::string_view> m_gruppen; // of the variables of the sub-position in hand
};

} // namespace

bool LiesUeblicheForm(ByteSicht bytes, KapitelDaten& kapitel) {
    return !bytes.empty() && bytes.back() == '>' && Leser(bytes, kapitel).Lies();
}

} // namespace zepholt
