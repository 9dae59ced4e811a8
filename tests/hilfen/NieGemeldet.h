// The codes of the error table that no run writes into a protocol, each with the reason, and no others.
#pragma once

#include <cstdint>
#include <vector>

namespace zepholt::hilfen {

enum class NieWeil {
    Kommandozeile,      // told by a box before any file is opened, and then no protocol is written
    KeinePruefung,      // no check names it
    NurImFilter,        // no check names it; the store keeps it out of the old interface all the same
    OhneRevision,       // cost accounts: asked for in Revision 0 only, which no accepted file has
    UnerfuellbarImG2,   // six digits are never above 999999, and what is no number reads as 0
    OhneAlternativcode, // asks for a code that the G3 test drops from every record
    OffenesKapitel,     // every chapter may have furnishing, so that its detail goes with any reference
};

struct NieGemeldet {
    std::int32_t Code;
    NieWeil Grund;
};

inline const std::vector<NieGemeldet>& NieGemeldeteCodes() {
    using enum NieWeil;
    static const std::vector<NieGemeldet> codes = {
        {1001, Kommandozeile},  {1002, Kommandozeile},      {1003, Kommandozeile},  {1004, Kommandozeile},
        {1005, Kommandozeile},  {1006, Kommandozeile},      {1007, Kommandozeile},  {3104, KeinePruefung},
        {3105, KeinePruefung},  {3111, KeinePruefung},      {3112, KeinePruefung},  {3224, NurImFilter},
        {3234, NurImFilter},    {3271, OhneRevision},       {3272, OhneRevision},   {3273, OhneRevision},
        {3274, OhneRevision},   {3275, OhneRevision},       {3276, OhneRevision},   {3277, OhneRevision},
        {3278, OhneRevision},   {3279, OhneRevision},       {3280, OhneRevision},   {3281, OhneRevision},
        {3282, OhneRevision},   {3283, OhneRevision},       {3284, OhneRevision},   {3285, OhneRevision},
        {3286, OhneRevision},   {4211, UnerfuellbarImG2},   {4251, KeinePruefung},  {4261, KeinePruefung},
        {4281, KeinePruefung},  {4305, KeinePruefung},      {4306, KeinePruefung},  {4412, OffenesKapitel},
        {4422, OffenesKapitel}, {4432, OffenesKapitel},     {4442, OffenesKapitel}, {4452, OffenesKapitel},
        {4492, OffenesKapitel}, {4496, OffenesKapitel},     {4603, KeinePruefung},  {4691, OhneRevision},
        {6102, NurImFilter},    {6306, OhneAlternativcode}, {6901, NurImFilter},    {6902, NurImFilter},
        {9999, KeinePruefung},
    };
    return codes;
}

} // namespace zepholt::hilfen
