#pragma once

#include "complements/ciel/Astre.hpp"
#include "complements/controle/ViseeTypee.hpp"
#include "ephemerides/Etoiles.hpp"
#include "sights/Observation.hpp"

#include <optional>

namespace velmaris {

/// The steps of a told reduction, worked out beside it by its own routines. A step that fails, or that this body's
/// reduction hasn't, is absent. Corrections are minutes of arc as they act on the observed height: off an artificial
/// horizon they are halved.
struct EtapesDites {
  std::optional<double> gha;          ///< degrees in [0, 360), from the Earth's centre
  std::optional<double> declinaison;  ///< degrees, from the Earth's centre, with the sign that the reduction takes
  std::optional<double> depression;   ///< taken off; nothing off an artificial horizon
  std::optional<double> refraction;   ///< taken off
  std::optional<double> demiDiametre; ///< added, signed
  std::optional<double> parallaxe;    ///< added, or for the Moon taken off the computed height
  bool signePerdu = false;            ///< a planet's declination of "-00" degrees, taken as north
};

/// Works out the told steps of a sight. Nothing that is told is touched.
/// @param visee  the same sight as numbers
EtapesDites RefaitEtapes(const Observation &observation, const ViseeTypee &visee, const Etoiles &etoiles);

} // namespace velmaris
