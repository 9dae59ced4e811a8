#include "intake/Zeilenschnitt.h"

#include "intake/UTF8_Speicherung.h"
#include "state/TestDaten.h"

namespace zepholt {

void Zeilenschnitt::Nimm(ByteSicht bisher) {
    m_crLfErgebnis = CrLfPruefen(bisher, m_enden);
    if (m_enden.Falsch) {
        return;
    }
    if (m_genommen == 0) {
        m_zeilen = Zeilenliste(bisher.data());
        m_besondere = testDaten.IstE1S && BeginntMitMarke(bisher) ? Markenlaenge : 0;
    }
    if (m_besondere >= m_genommen) {
        m_besondere = testDaten.IstE1S ? AsciiEnde(bisher, m_besondere) : ByteSuchen(bisher, 0, m_besondere);
    }
    for (std::size_t stelle = m_genommen; (stelle = ByteSuchen(bisher, '\n', stelle)) < bisher.size();) {
        m_zeilen.Anfuegen(++stelle);
    }
    m_genommen = bisher.size();
}

} // namespace zepholt
