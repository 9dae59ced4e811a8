// The searches over the current chapter.
#include "catalogue/VLTKapitel.h"

#include <algorithm>

namespace zepholt {

namespace {

// --- The current entries

const HEintrag* DasH() {
    const std::int32_t h = kapitelDaten.AktuellesH;
    return h < 0 ? nullptr : &kapitelDaten.KapitelH[static_cast<std::size_t>(h)];
}

const UEintrag* DasU() {
    const HEintrag* h = DasH();
    const std::int32_t u = kapitelDaten.AktuellesU;
    return h == nullptr || u < 0 ? nullptr : &kapitelDaten.UVon(*h)[static_cast<std::size_t>(u)];
}

const VEintrag* DasV() {
    const UEintrag* u = DasU();
    const std::int32_t v = kapitelDaten.AktuellesV;
    return u == nullptr || v < 0 ? nullptr : &kapitelDaten.VVon(*u)[static_cast<std::size_t>(v)];
}

// The first entry of a stretch of the list with the number, counted from the stretch's start; -1 when there is none.
template <class Eintrag>
std::int32_t ErsterMitNummer(const std::vector<Eintrag>& liste, const std::vector<std::uint32_t>& folge,
                             std::span<const Eintrag> strecke, std::int32_t nummer) {
    const auto ab = static_cast<std::size_t>(strecke.data() - liste.data());
    const auto platz = [&](std::size_t i) { return folge.empty() ? i : folge[ab + i] - ab; };
    std::size_t von = 0;
    for (std::size_t bis = strecke.size(); von < bis;) {
        const std::size_t mitte = von + (bis - von) / 2;
        if (strecke[platz(mitte)].N < nummer) {
            von = mitte + 1;
        } else {
            bis = mitte;
        }
    }
    const bool gefunden = von < strecke.size() && strecke[platz(von)].N == nummer;
    return gefunden ? static_cast<std::int32_t>(platz(von)) : -1;
}

// The main position asked for last is mostly the one asked for next.
std::int32_t SucheH(std::int32_t nummer) {
    if (const HEintrag* h = DasH(); h != nullptr && h->N == nummer) {
        return kapitelDaten.AktuellesH;
    }
    return ErsterMitNummer(kapitelDaten.KapitelH, kapitelDaten.HFolge, std::span<const HEintrag>(kapitelDaten.KapitelH),
                           nummer);
}

std::int32_t SucheU(const HEintrag& h, std::int32_t nummer) {
    return ErsterMitNummer(kapitelDaten.KapitelUListe, kapitelDaten.UFolge, kapitelDaten.UVon(h), nummer);
}

// Index of the first end node greater than a position; the count when there is none. An entry is the first one greater
// than something only when it is greater than all before it, so those alone are searched: in a list that ascends they
// are all entries.
std::size_t ErsterEndknotenHinter(std::int32_t position) {
    const auto endknoten = [](std::int32_t i) { return kapitelDaten.Endknoten[static_cast<std::size_t>(i)]; };
    const auto stufe = std::ranges::upper_bound(kapitelDaten.EndknotenStufen, position, {}, endknoten);
    return stufe == kapitelDaten.EndknotenStufen.end() ? kapitelDaten.Endknoten.size()
                                                       : static_cast<std::size_t>(*stufe);
}

// --- Where a position is found

// The sub-position whose range the position may lie in: the end node before the place where it would stand.
std::int32_t TraegerVor(const HEintrag& h, std::int32_t position) {
    const std::size_t dahinter = ErsterEndknotenHinter(position);
    return dahinter == 0 ? -1 : SucheU(h, kapitelDaten.Endknoten[dahinter - 1] % 1000);
}

// A repetition lies behind the first number of the range, up to its last.
bool Wiederholt(const Nummernbereich& bereich, std::int32_t unter) {
    return bereich.Von < unter && unter <= bereich.Bis;
}

bool ZuFein(std::int32_t position, std::int32_t von) {
    return position % 10 == 0 && (von % 10 != 0 || (von % 100 != 0 && position % 100 == 0));
}

Katalogstelle SucheStelle(std::int32_t position, std::int32_t grenze) {
    Katalogstelle stelle;
    const std::int32_t unter = position % 1000;
    stelle.H = SucheH(position / 1000);
    if (stelle.H < 0 || unter == 0) {
        stelle.Da = stelle.H >= 0;
        return stelle;
    }
    const HEintrag& h = kapitelDaten.KapitelH[static_cast<std::size_t>(stelle.H)];
    stelle.U = SucheU(h, unter);
    const bool genannt = stelle.U >= 0;
    if (!genannt) {
        stelle.U = TraegerVor(h, position);
    }
    const UEintrag u = stelle.U < 0 ? UEintrag() : kapitelDaten.UVon(h)[static_cast<std::size_t>(stelle.U)];
    if (u.W == 0) {
        stelle.Da = genannt;
        return stelle;
    }
    const Nummernbereich bereich = BereichVon(u);
    if (!Wiederholt(bereich, unter) || (grenze != 0 && !Wiederholt(bereich, grenze % 1000))) {
        return stelle;
    }
    stelle.AnfangPasstNicht = ZuFein(position, bereich.Von);
    stelle.U = SucheU(h, bereich.Von);
    stelle.Da = stelle.IstWiederholung = stelle.U >= 0;
    return stelle;
}

} // namespace

// --- Searches --------------------------------------------------------------------------------------------------------

bool FindeH(std::int32_t nummer) {
    kapitelDaten.AktuellesU = -1;
    kapitelDaten.AktuellesV = -1;
    kapitelDaten.AktuellesH = SucheH(nummer);
    return kapitelDaten.AktuellesH >= 0;
}

bool FindeU(std::int32_t nummer) {
    const HEintrag* h = DasH();
    kapitelDaten.AktuellesV = -1;
    kapitelDaten.AktuellesU = h == nullptr ? -1 : SucheU(*h, nummer);
    return kapitelDaten.AktuellesU >= 0;
}

bool FindeV(std::int32_t nummer) {
    const UEintrag* u = DasU();
    kapitelDaten.AktuellesV =
        u == nullptr ? -1
                     : ErsterMitNummer(kapitelDaten.KapitelVListe, kapitelDaten.VFolge, kapitelDaten.VVon(*u), nummer);
    return kapitelDaten.AktuellesV >= 0;
}

Katalogstelle PositionImKatalog(std::int32_t position, std::int32_t grenze) {
    const Katalogstelle stelle = SucheStelle(position, grenze);
    kapitelDaten.AktuellesH = stelle.H;
    kapitelDaten.AktuellesU = stelle.U;
    kapitelDaten.AktuellesV = -1;
    return stelle;
}

// --- Accessors -------------------------------------------------------------------------------------------------------

bool OhneFestenText() {
    const UEintrag* u = DasU();
    return u != nullptr && u->Y == 1;
}

std::int32_t EinfuegepunktImKatalog() {
    const VEintrag* v = DasV();
    return v != nullptr ? v->E : 0;
}

std::int32_t AlternativGruppe() {
    const VEintrag* v = DasV();
    return v != nullptr ? v->Gruppe : 0;
}

// --- Questions -------------------------------------------------------------------------------------------------------

bool IstEndknoten(std::int32_t position) {
    if (position < 1 || position % 10 != 0) {
        return true;
    }
    std::int64_t ende = position;
    std::int64_t stufe = 10;
    do {
        ende += stufe * 9 / 10;
        stufe *= 10;
    } while (position % stufe == 0);
    const std::size_t dahinter = ErsterEndknotenHinter(position);
    return dahinter == kapitelDaten.Endknoten.size() || kapitelDaten.Endknoten[dahinter] > ende;
}

bool InWiederholungsbereich(std::int32_t position) {
    const std::int32_t nummer = position % 1000;
    const std::int32_t index = nummer != 0 ? SucheH(position / 1000 % 1000) : -1;
    if (index < 0) {
        return false;
    }
    const HEintrag& h = kapitelDaten.KapitelH[static_cast<std::size_t>(index)];
    return LiegtIn(std::span(kapitelDaten.Bereiche).subspan(h.ErsterBereich, h.BereichAnzahl), nummer);
}

bool InTextAst(std::int32_t position, std::int32_t& von, std::int32_t& bis) {
    von = 0;
    bis = 0;
    const std::int32_t h = position / 1000;
    if (kapitelDaten.TextAeste.empty() || h < -HoechstesH || h > HoechstesH) {
        return false;
    }
    const std::int32_t index = kapitelDaten.AstVonH[static_cast<std::size_t>(h + HoechstesH)];
    if (index < 0) {
        return false;
    }
    const TextAst& ast = kapitelDaten.TextAeste[static_cast<std::size_t>(index)];
    von = ast.GeltungVon * 1000;
    bis = ast.GeltungBis * 1000 + 999;
    return true;
}

} // namespace zepholt
