// The page over several exchange files: a line for each, with the way to its own page.
#pragma once

#include "bericht/Ausgabe.h"
#include "bericht/Pruefgang.h"

namespace zepholt::bericht {

// `ordner`: the folder in which the page will stand, with a path separator behind it.
void UebersichtSchreiben(const std::vector<Pruefergebnis>& ergebnisse, const Text& ordner, Sprache sprache,
                         Ausgabe& ausgabe);

} // namespace zepholt::bericht
