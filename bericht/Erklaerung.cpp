#include "bericht/Erklaerung.h"

#include "bericht/Feldangabe.h"
#include "bericht/Zeichen.h"
#include "errors/FehlerERL.h"

namespace zepholt::bericht {

CodeErklaerung Erklaerung(std::int32_t code, Sprache sprache) {
    CodeErklaerung erklaerung;
    erklaerung.Code = code;
    erklaerung.Schwere = Utf8(FehlerSchwere(code));
    erklaerung.Text = Utf8(FehlerText(code, Tabellensprache(sprache)));
    erklaerung.Feld = Utf8(FehlerFeld(code));
    erklaerung.Feldname = FeldangabeVon(erklaerung.Feld, {}, sprache).Name;
    return erklaerung;
}

} // namespace zepholt::bericht
