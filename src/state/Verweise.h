// The searches over the tree and the structure tables, and the digit rules of chapter and position numbers.
//
// Nothing here reports. Each search gives the result of a scan from the first entry, first match first; those that
// grow with the document use an index that follows the tree, which only grows.
#pragma once

#include "state/SIA451Datei.h"

namespace zepholt {

// --- Tree: index from 0, or -1. The indices handed in must be valid.

KapitelEintrag& Kapitel(std::int32_t index);

std::int32_t SucheKapitel(std::int32_t nummer);
std::int32_t SuchePosition(std::int32_t kapitel, std::int32_t nummer);
// The variable of a position with this number; null for none.
VariableEintrag* SucheVariable(const PositionEintrag& position, std::int32_t nummer);

// The text of a variable's line, G3:23, right-trimmed.
Feldsicht TextVon(const VariablenzeileEintrag& zeile);

// The references of a record G4 or G6. Reports nothing.
Verweissatz VerweiseIn(Feldsicht record);

// True when a quantity of the position has the same nine references.
bool HatMengeMit(std::int32_t kapitel, std::int32_t position, const Verweissatz& verweise);

// True when an assignment or a quantity of the position that ReihenfolgeMerken has seen bears this order value, 1 to
// 99; 0 stands for none and is never taken.
bool ReihenfolgeVergeben(const PositionEintrag& position, std::int32_t reihenfolge);

// To be called with the order value (0 to 99) of each assignment and each quantity that enters the tree.
void ReihenfolgeMerken(PositionEintrag& position, std::int32_t reihenfolge);

// True when a quantity that LaufnummerMerken has seen bears the running number `nummer`, which must be digits only. In
// the new interface numbers are equal by their value, in the old one by their text.
bool LaufnummerVergeben(Feldsicht nummer);

// To be called with the running number of each quantity that enters the tree; empty texts and texts that no running
// number of digits can equal are passed over.
void LaufnummerMerken(Feldsicht nummer);

// --- Structure tables. The text before the first '*' of a code is a prefix; what follows the '*' is ignored, and '*'
// at the first place matches everything, an empty table too. A structure that no B0 announced has no entries that
// count.

bool OGLGefunden(Feldsicht code);
bool KAGGefunden(Feldsicht code);
bool EKGGefunden(Feldsicht code);
bool VariantengruppeGefunden(Feldsicht code);
bool EinrichtungGefunden(Feldsicht code);

// Two levels: the first argument is matched exactly, a '*' in it too; the second takes a joker.
bool PSLGefunden(Feldsicht ogl, Feldsicht psl);
bool VarianteGefunden(Feldsicht gruppe, Feldsicht variante);

// Exact only: '*' is an ordinary character.
bool NutzungGefunden(Feldsicht code);
bool RaumGefunden(Feldsicht code);

// A chapter as text, joker permitted, against the decimal text of the document's chapters without leading zeros.
bool KapitelGefunden(Feldsicht kapitel);

// True when the text holds a '*'.
bool HatJoker(Feldsicht text);

// --- Numbers: pure arithmetic on digits.

// A chapter with a 9 in any of its three digits.
bool IstReserveKapitel(std::int32_t nummer);

// A position with a 9 in its second, third, fourth or fifth digit of six.
bool IstReservePosition(std::int32_t nummer);

// The main position that a position below it belongs to; the sub-section of a main position; the section of the others.
std::int32_t UebergeordnetePosition(std::int32_t nummer);

// True when a preliminary remark lies in one of the four digit ranges that cover `position`: its main position, its
// sub-section, its section, the chapter.
bool ImGueltigkeitsbereich(std::int32_t kapitel, std::int32_t position, std::int32_t vorbemerkung);

} // namespace zepholt
