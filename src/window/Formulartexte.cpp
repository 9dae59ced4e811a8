#include "window/Formulartexte.h"

#include "window/DialogDeFrIt.h"

namespace zepholt {

namespace {

std::vector<Text> ElementeUebersetzt(const Formular& formular) {
    std::vector<Text> texte;
    texte.reserve(static_cast<std::size_t>(formular.Anzahl));
    for (std::int32_t i = 0; i < formular.Anzahl; ++i) {
        texte.emplace_back(Uebersetze(formular.Elemente[i].Text));
    }
    return texte;
}

} // namespace

Formulartexte TexteHaupt() {
    return {Text(Uebersetze(frmZEPHOLT.Titel)), ElementeUebersetzt(frmZEPHOLT)};
}

Formulartexte TexteInfo() {
    Formulartexte texte = {frmInfo.Titel, ElementeUebersetzt(frmInfo)};
    texte.Elemente[Infoformular::lblCopyright] = InfoText();
    texte.Elemente[Infoformular::lblProgrammhersteller].append(u":   ").append(Programmhersteller());
    return texte;
}

Fragetexte TexteAbbruchfrage() {
    const Text frage(Uebersetze(u"Soll der Test abgebrochen werden?"));
    switch (dialogDeFrIt.DialogSprache) {
    case 2:
        return {frage, u"Oui", u"Non"};
    case 3:
        return {frage, u"Sì", u"No"};
    default:
        return {frage, u"Ja", u"Nein"};
    }
}

} // namespace zepholt
