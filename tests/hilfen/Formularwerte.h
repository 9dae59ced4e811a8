// The two windows as they are laid down: every number and text written out, for the tests of the tables and of the
// windows that are built from them.
#pragma once

#include "window/Formulare.h"

#include <vector>

namespace zepholt::hilfen {

struct Formularwert {
    const char* Name;
    ElementArt Art;
    const char* Eltern;                      // "" for the form itself
    std::int32_t Links, Oben, Breite, Hoehe; // twips
    const char16_t* Text[3]; // German, as designed, then French and Italian; of what the run fills in: empty
};

struct Formularwerte {
    const char* Name;
    const char16_t* Titel;              // in every language
    std::int32_t Breite, Hoehe;         // of the client area, twips
    std::vector<Formularwert> Elemente; // in tab order
};

inline Formularwerte Hauptwerte() {
    using enum ElementArt;
    return {"frmZEPHOLT",
            u"QVM-Test: SIA451",
            7800,
            2655,
            {{"Label1",
              Beschriftung,
              "",
              105,
              210,
              1590,
              225,
              {u"Austauschdatei", u"Fichier de transfert", u"File di scambio"}},
             {"lblAustauschdatei", Beschriftung, "", 1890, 210, 4530, 225, {u"", u"", u""}},
             {"cmdInfo", Knopf, "", 6510, 210, 1170, 330, {u"Info", u"Info", u"Info"}},
             {"Label2", Beschriftung, "", 105, 630, 1590, 225, {u"Projekt", u"Projet", u"Progetto"}},
             {"lblProjekt", Beschriftung, "", 1890, 630, 4530, 225, {u"", u"", u""}},
             {"Label4", Beschriftung, "", 105, 1050, 1590, 225, {u"Dokument", u"Document", u"Documento"}},
             {"lblDokument", Beschriftung, "", 1890, 1050, 4530, 225, {u"", u"", u""}},
             {"Frame1", Rahmen, "", 105, 1470, 7575, 1065, {u"Fortschritt", u"Progression", u"Avanzamento"}},
             {"lblFortschritt", Beschriftung, "Frame1", 210, 315, 7260, 225, {u"", u"", u""}},
             {"cmdAbbrechen", Knopf, "", 6510, 630, 1170, 330, {u"Abbrechen", u"Interrompre", u"Interruzione"}},
             {"picFS", Bahn, "Frame1", 210, 630, 7155, 225, {u"", u"", u""}},
             {"picFSBalken", Balken, "picFS", 15, 15, 855, 135, {u"", u"", u""}}}};
}

// The supplier's line ends in name and town of the build.
inline Formularwerte Infowerte() {
    using enum ElementArt;
    return {"frmInfo",
            u"QVM-Test: SIA451",
            7455,
            4785,
            {{"Label1",
              Beschriftung,
              "",
              210,
              315,
              4845,
              435,
              {u"Dieses Programm testet Austauschdateien gemäss UbR'92",
               u"Ce programme teste les fichiers de transfert selon Ubr'92",
               u"Questo programma esegue il test secondo Ubr'92"}},
             {"lblCopyright", Beschriftung, "", 210, 945, 7050, 3165, {u"", u"", u""}},
             {"lblProgrammhersteller",
              Beschriftung,
              "",
              210,
              4305,
              5160,
              225,
              {u"Programmhersteller:   " ZEPHOLT_HERSTELLER u", " ZEPHOLT_ORT,
               u"Fournisseur du logiciel:   " ZEPHOLT_HERSTELLER u", " ZEPHOLT_ORT,
               u"Produttore del programma:   " ZEPHOLT_HERSTELLER u", " ZEPHOLT_ORT}},
             {"cmdOK", Knopf, "", 5985, 4305, 1275, 330, {u"OK", u"OK", u"OK"}}}};
}

} // namespace zepholt::hilfen
