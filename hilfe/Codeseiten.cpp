#include "hilfe/Codeseiten.h"

#include "hilfe/Entpacken.h"
#include "hilfe/Seitenvorrat.h"

#include <algorithm>
#include <string>
#include <vector>

namespace zepholt::hilfe {

namespace {

// All pages, unpacked.
class Seitenbuch {
public:
    Seitenbuch() : m_text(Entpacken(Packung(), Seiten().Bytes)) {
        std::string_view rest = m_text;
        for (const Seitenlaengen& laengen : Seiten().Laengen) {
            Codeseite& seite = m_seiten.emplace_back(Codeseite{laengen.Code, {}});
            for (std::size_t i = 0; i < seite.Texte.size(); ++i) {
                seite.Texte[i].Text = Abgetrennt(rest, laengen.Bytes[2 * i]);
                seite.Texte[i].Html = Abgetrennt(rest, laengen.Bytes[2 * i + 1]);
            }
        }
    }

    const Codeseite* Suchen(std::int32_t code) const {
        const auto seite = std::ranges::lower_bound(m_seiten, code, {}, &Codeseite::Code);
        return seite != m_seiten.end() && seite->Code == code ? &*seite : nullptr;
    }

private:
    static std::string_view Packung() {
        const std::span<const unsigned char> gepackt = Seiten().Gepackt;
        return {reinterpret_cast<const char*>(gepackt.data()), gepackt.size()};
    }

    static std::string_view Abgetrennt(std::string_view& rest, std::size_t laenge) {
        const std::string_view text = rest.substr(0, laenge);
        rest.remove_prefix(text.size());
        return text;
    }

    std::string m_text;
    std::vector<Codeseite> m_seiten;
};

} // namespace

const Codeseite* CodeseiteLesen(std::int32_t code) {
    static const Seitenbuch buch; // only programs that explain a code unpack the pages
    return buch.Suchen(code);
}

} // namespace zepholt::hilfe
