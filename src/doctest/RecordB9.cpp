// Record B9, a cost account. Dormant: the driver calls it at Revision 0 only, which no accepted file has.
#include "doctest/Feldpruefung.h"
#include "doctest/Feldregeln.h"
#include "doctest/Records.h"
#include "doctest/Verweispruefung.h"
#include "state/SIA451Datei.h"

namespace zepholt {

void PruefeB9() {
    KostenkontoEintrag konto{.OGL = SchluesselFeld(18, 6, JokerAmEnde, Freiwillig),
                             .PSL = SchluesselFeld(24, 6, JokerAmEnde, Freiwillig),
                             .KAG = SchluesselFeld(82, 5, JokerAmEnde, Freiwillig),
                             .Element = SchluesselFeld(87, 6, JokerAmEnde, Freiwillig),
                             .Variantengruppe = SchluesselFeld(30, 3, JokerAmEnde, Freiwillig),
                             .Variante = SchluesselFeld(33, 3, JokerAmEnde, Freiwillig)};
    const Betrag menge = BetragFeld(45, 46, 13, 3);
    const Betrag preis = BetragFeld(62, 63, 12, 2);

    VerweisePruefen(konto, {.OGLUnbekannt = 3271,
                            .PSLOhneOGL = 3272,
                            .PSLBeiJoker = 3273,
                            .PSLUnbekannt = 3274,
                            .KAGUnbekannt = 3275,
                            .ElementUnbekannt = 3276,
                            .GruppeUnbekannt = 3277,
                            .VarianteOhneGruppe = 3278,
                            .VarianteBeiJoker = 3279,
                            .VarianteUnbekannt = 3280});
    konto.Menge = MitVorzeichen(menge, {.Unzulaessig = 3281, .BetragFehlt = 3282, .VorzeichenFehlt = 3283});
    konto.Preis = MitVorzeichen(preis, {.Unzulaessig = 3284, .BetragFehlt = 3285, .VorzeichenFehlt = 3286});
    sia451Datei.KostenkontoTabelle.push_back(konto);
}

} // namespace zepholt
