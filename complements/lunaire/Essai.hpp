#pragma once

#include "complements/lunaire/Lunaire.hpp"

namespace velmaris {

/// Distances with all that doesn't hang on the time tried.
struct MesurePrete {
  const MesureLunaire *mesure = nullptr;
  double distance = 0; ///< degrees, as a sextant without error shows it
  LieuNavire lieu;     ///< of the ship by her run at the watch's time
};

/// What a place is moved by for its slopes.
struct Decalage {
  double nord = 0;         ///< miles
  double est = 0;          ///< miles
  double hauteurLune = 0;  ///< minutes, added to the measured height
  double hauteurAstre = 0; ///< minutes
};

/// Whether a distance has its heights.
bool AHauteurs(const MesureLunaire &mesure);

/// What the sky shows at a time tried.
struct EssaiDistance {
  DistanceVue vue;
  LieuNavire lieu;
  PlaceGeocentrique lune;
  PlaceGeocentrique astre;
};

/// The sky's distance with the watch's reading put by some seconds.
/// @throws Refus of time, body or place
EssaiDistance EssaieDistance(const MesurePrete &prete, const ReglagesLunaire &reglages, double retard,
                             const Decalage &decalage = {});

} // namespace velmaris
