// Structures for tests of the records that refer to them.
#pragma once

#include "state/SIA451Datei.h"

namespace zepholt::hilfen {

// All structures, each announced, with one entry: OGL "12" with PSL "34", KAG "211", element "E1", furnishing type
// "T1", variant group "G1" with variant "V1", use "N1", room "R1".
inline void GliederungenAnlegen() {
    SIA451Datei& datei = sia451Datei;
    datei.OGLVorhanden = datei.KAGVorhanden = datei.EKGVorhanden = datei.EinrichtungVorhanden = true;
    datei.VariantenVorhanden = datei.NutzungVorhanden = datei.RaumVorhanden = true;
    datei.OGLTabelle.Anfuegen({u"12", 0, {}});
    datei.OGLTabelle[0].PSLListe.Anfuegen({u"34"});
    datei.KAGTabelle.Anfuegen({u"211"});
    datei.EKGTabelle.Anfuegen({u"E1"});
    datei.EinrichtungTabelle.Anfuegen({u"T1"});
    datei.VariantenTabelle.Anfuegen({u"G1", u"V1", 0, {}});
    datei.VariantenTabelle[0].Varianten.Anfuegen({u"V1"});
    datei.NutzungTabelle.Anfuegen({u"N1"});
    datei.RaumTabelle.Anfuegen({u"R1"});
}

} // namespace zepholt::hilfen
