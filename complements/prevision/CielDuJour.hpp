#pragma once

#include "complements/ciel/Instants.hpp"
#include "complements/ciel/Places.hpp"
#include "complements/ciel/Vecteurs.hpp"
#include "ephemerides/Etoiles.hpp"

#include <array>
#include <cstddef>
#include <optional>
#include <stop_token>
#include <vector>

namespace velmaris {

/// One body through a day.
struct AstreDuJour {
  Astre astre{};
  double magnitude = 0;           ///< visual, at the middle of the day; of a variable star the mean
  bool ligneLoin = false;         ///< the row of the star table lies over 5 minutes off its star
  std::vector<Vecteur3> noeuds{}; ///< from the Earth's centre, true equator of the date; of unit length for a star
  double rayon = 0;               ///< of its disk, in the unit of its vectors; 0 for a star
  double rayonTerre = 0;          ///< the Earth's in that unit; 0 for a star
};

/// The whole sky of a stretch of time, prepared once. A value without ties: made once, read by any number of threads.
struct CielDuJour {
  InstantUTC debut{};
  double heures = 24;                 ///< how long it holds
  double dut1 = 0;                    ///< UT1 - UTC, seconds
  std::vector<double> tempsSideral{}; ///< Greenwich apparent at the nodes, degrees, growing over whole turns
  std::vector<AstreDuJour> astres{};  ///< Sun, Moon, Venus, Mars, Jupiter, Saturn, then the stars by their rows; row 67
                                      ///< has no place and isn't there, nor is the Moon outside 1900 to 2100
};

/// Prepares all bodies: some milliseconds.
/// @param etoiles  the star table, whose rows are held against their stars
/// @param heures   over 0, up to 48
/// @param dut1     UT1 - UTC, seconds
/// @param arret    asked between nodes
/// @return nothing when it was stopped
/// @throws Refus AnneeHorsLimites
std::optional<CielDuJour> PrepareCielDuJour(const Etoiles &etoiles, const InstantUTC &debut, double heures,
                                            double dut1 = 0, const std::stop_token &arret = {});

/// Where a body stands in `CielDuJour::astres`.
std::optional<std::size_t> PlaceDansLeCiel(const CielDuJour &ciel, const Astre &astre);

/// What all bodies share at a time of the day.
struct InstantDuJour {
  InstantUTC utc{};
  double tempsSideral = 0; ///< Greenwich apparent, degrees in [0, 360)
  std::size_t noeud = 0;   ///< first of the six nodes between which the Sun, the Moon and the planets are taken
  std::array<double, 6> poids{};
  std::array<double, 3> poidsEtoiles{};
};

/// @param utc  within the stretch or an hour from it
InstantDuJour SitueInstant(const CielDuJour &ciel, const InstantUTC &utc);

/// A body's place, within 0.002" of the place worked out at the time itself; of a star beside the Sun 0.3".
/// @param rang  in `CielDuJour::astres`
PlaceGeocentrique PlaceDuJour(const CielDuJour &ciel, std::size_t rang, const InstantDuJour &instant);

} // namespace velmaris
