// Record B9, a cost account. Dormant: the driver calls it at Revision 0 only, which no accepted file has.
#include "doctest/Feldpruefung.h"
#include "doctest/Feldregeln.h"
#include "doctest/Records.h"
#include "doctest/Verweispruefung.h"
#include "state/SIA451Datei.h"

namespace zepholt {

void PruefeB9() {
    Verweissatz konto;
    konto.OGL = SchluesselFeld(18, 6, JokerAmEnde, Freiwillig);             // B9:6
    konto.PSL = SchluesselFeld(24, 6, JokerAmEnde, Freiwillig);             // B9:7
    konto.KAG = SchluesselFeld(82, 5, JokerAmEnde, Freiwillig);             // B9:21
    konto.Element = SchluesselFeld(87, 6, JokerAmEnde, Freiwillig);         // B9:22
    konto.Variantengruppe = SchluesselFeld(30, 3, JokerAmEnde, Freiwillig); // B9:8
    konto.Variante = SchluesselFeld(33, 3, JokerAmEnde, Freiwillig);        // B9:9
    const Betrag menge = BetragFeld(45, 46, 13);                            // B9:14, B9:15
    const Betrag preis = BetragFeld(62, 63, 12);                            // B9:18, B9:19

    PruefeVerweise(konto, {.OGL = 3271,
                           .PSL = {3272, 3273, 3274},
                           .KAG = 3275,
                           .Element = 3276,
                           .Variantengruppe = 3277,
                           .Variante = {3278, 3279, 3280}});
    PruefeVorzeichen(menge, {.Unzulaessig = 3281, .BetragFehlt = 3282, .VorzeichenFehlt = 3283});
    PruefeVorzeichen(preis, {.Unzulaessig = 3284, .BetragFehlt = 3285, .VorzeichenFehlt = 3286});
    sia451Datei.KostenkontoTabelle.push_back(konto);
}

} // namespace zepholt
