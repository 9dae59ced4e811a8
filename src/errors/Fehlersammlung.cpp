#include "errors/Fehlersammlung.h"

namespace zepholt {

namespace {

// The lower word from above: two bits of form, fourteen of code, sixteen of column.
constexpr unsigned CodeAb = 16;
constexpr unsigned FormAb = 30;
constexpr std::int32_t Codes = 1 << (FormAb - CodeAb);
constexpr std::int32_t Spalten = 1 << CodeAb;

constexpr std::int32_t Million = 1'000'000; // positions of a chapter
constexpr std::int32_t Kapitel = 1'000;

constexpr bool Zwischen(std::int32_t wert, std::int32_t von, std::int32_t grenze) {
    return wert >= von && wert < grenze;
}

} // namespace

void Fehlersammlung::push_back(const FehlerEintrag& eintrag) {
    const bool kurz = Zwischen(eintrag.Code, 0, Codes) && Zwischen(eintrag.Spalte, 0, Spalten);
    const auto was = [&](Form form) {
        return static_cast<std::uint32_t>(form) << FormAb |
               (kurz ? static_cast<std::uint32_t>(eintrag.Code) << CodeAb | static_cast<std::uint32_t>(eintrag.Spalte)
                     : 0U);
    };
    if (kurz && eintrag.Kapitel == 0 && eintrag.Position == 0) {
        m_kurz.push_back({static_cast<std::uint32_t>(eintrag.Zeile), was(Form::AufZeile)});
    } else if (kurz && eintrag.Zeile == -1 && Zwischen(eintrag.Kapitel, 0, Kapitel) &&
               Zwischen(eintrag.Position, 0, Million)) {
        m_kurz.push_back(
            {static_cast<std::uint32_t>(eintrag.Kapitel * Million + eintrag.Position), was(Form::AnPosition)});
    } else {
        m_kurz.push_back({static_cast<std::uint32_t>(m_ganz.size()), was(Form::Ganz)});
        m_ganz.push_back(eintrag);
    }
}

FehlerEintrag Fehlersammlung::Lang(Kurzform kurz) const {
    const auto code = static_cast<std::int32_t>(kurz.Was >> CodeAb) % Codes;
    const auto spalte = static_cast<std::int32_t>(kurz.Was % Spalten);
    const auto ort = static_cast<std::int32_t>(kurz.Ort);
    switch (static_cast<Form>(kurz.Was >> FormAb)) {
    case Form::AufZeile:
        return {code, ort, spalte, 0, 0};
    case Form::AnPosition:
        return {code, -1, spalte, ort / Million, ort % Million};
    case Form::Ganz:
        break;
    }
    return m_ganz[kurz.Ort];
}

void Fehlersammlung::Umstellen(std::vector<std::uint32_t>&& folge) {
    std::vector<Kurzform> neu;
    neu.reserve(folge.size());
    for (const std::uint32_t herkunft : folge) {
        neu.push_back(m_kurz[herkunft]);
    }
    m_kurz = std::move(neu);
}

} // namespace zepholt
