#pragma once

#include "foundations/PlaceTextes.hpp"
#include "shell/fenetres/Ciel.hpp"

#include <span>
#include <vector>

namespace velmaris::ciel {

/// A name that is shown on the sky's chart.
struct LabelMontre {
  Controle *label = nullptr;
  ZoneTexte zone; ///< where it is shown: its own place, or beside it
};

/// The names that the chart shows, and where: none overprints another. Those of navigation stars come first, the
/// brightest before the others, then planets, then the star under the pointer: all of these stand, moved aside if need
/// be. Then stars that are lit with their constellation and all others, each below, above or beside its mark, or left
/// out.
/// @param corps  marks, labels and pictures of the chart
/// @param pris   where the chart shows texts of its own, the figures of its scales: no name overprints them
std::vector<LabelMontre> LabelsMontres(const Ciel &ciel, std::span<Controle *const> corps,
                                       std::span<const ZoneTexte> pris = {});

/// The marks on show from the back to the front: planets, white stars, navigation stars with the brightest over all.
std::vector<Controle *> MarquesMontrees(std::span<Controle *const> corps);

/// A body found on the chart.
struct AstreTrouve {
  Controle *astre = nullptr;  ///< its label or picture, null for none
  Controle *pointe = nullptr; ///< what lies there: that, or the body's mark
};

/// The body at a point of the chart, by what is shown there: the star brought to the front, the mark whose disc it is,
/// a name that is shown, a picture, and last a mark close by. Names that aren't shown take nothing.
/// @param corps, pris  as for LabelsMontres
/// @param prise  how close to a mark still counts, 1/1440 inch
AstreTrouve AstreAu(const Ciel &ciel, std::span<Controle *const> corps, Point point, double prise,
                    std::span<const ZoneTexte> pris = {});

} // namespace velmaris::ciel
