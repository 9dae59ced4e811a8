#include "bericht/Erklaerung.h"

#include "bericht/Feldangabe.h"
#include "bericht/Zeichen.h"
#include "errors/FehlerERL.h"
#include "hilfe/Codeseiten.h"

namespace zepholt::bericht {

CodeErklaerung Erklaerung(std::int32_t code, Sprache sprache) {
    CodeErklaerung erklaerung;
    erklaerung.Code = code;
    erklaerung.Schwere = Utf8(FehlerSchwere(code));
    erklaerung.Text = Utf8(FehlerText(code, Tabellensprache(sprache)));
    erklaerung.Feld = Utf8(FehlerFeld(code));
    erklaerung.Feldname = FeldangabeVon(erklaerung.Feld, {}, sprache).Name;
    if (const hilfe::Codeseite* seite = hilfe::CodeseiteLesen(code)) {
        const std::string_view text = seite->Texte[static_cast<std::size_t>(Tabellensprache(sprache) - 1)].Text;
        erklaerung.Seite = text.substr(text.find('\n') + 1);
    }
    return erklaerung;
}

std::string_view Faltteil(std::int32_t code, Sprache sprache) {
    const hilfe::Codeseite* seite = hilfe::CodeseiteLesen(code);
    return seite == nullptr ? std::string_view() : seite->Texte[static_cast<std::size_t>(sprache)].Html;
}

} // namespace zepholt::bericht
