#pragma once

#include "complements/ciel/Instants.hpp"
#include "complements/ciel/Vecteurs.hpp"

namespace velmaris {

/// What all places of one moment share. It is a value without ties: made once, read by any number of threads.
struct CielDuMoment {
  InstantTT tt;
  InstantUT1 ut1;
  Matrice3 verite{};       ///< from ICRS to the true equator and equinox of the date
  double tempsSideral = 0; ///< Greenwich apparent, degrees in [0, 360): the hour angle of Aries
  Vecteur3 terre{};        ///< the Earth from the Sun, ICRS, astronomical units
  Vecteur3 soleil{};       ///< the Sun's velocity from the centre of mass, ICRS, astronomical units a day
  Vecteur3 vitesse{};      ///< the Earth's velocity from there, ICRS, in units of light's
};

/// Works out what is shared at a moment.
/// Source: IAU 2006 precession, IAU 2000B nutation (within 0.003" of 2000A from 1900 to 2100), IAU 2006 sidereal time;
/// the Earth by VSOP87D.
/// @throws Refus AnneeHorsLimites outside 1800 to 2199
CielDuMoment PrepareCiel(const Moment &moment);

} // namespace velmaris
