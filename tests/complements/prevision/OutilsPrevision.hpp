#pragma once

#include "../TableEtoiles.hpp"
#include "../point/OutilsPoint.hpp"
#include "complements/ciel/CielDuMoment.hpp"
#include "complements/prevision/CielDuPlan.hpp"
#include "complements/prevision/Journee.hpp"

#include <functional>
#include <random>
#include <vector>

/// What the tests of the plan share: ships at random, and the sky on them by another road, without the day's tables.
namespace velmaris::essais {

/// A ship and one of her days.
struct JourDeMer {
  JourCivil jour;
  NavirePrevu navire;
};

/// A ship anywhere: one of four stands, up to 89.5 degrees; the others go at up to 20 knots with up to four legs and a
/// current, up to 80 degrees. Years 1990 to 2034.
JourDeMer JourAuHasard(std::mt19937_64 &alea);

/// A ship that stands at noon of a day of 2026, her eye on the water.
NavirePrevu Mouillage(double latitude, double longitude, int mois, int jour);

/// What is seen from the ship, by the sky worked out at that very moment and a track of many small steps.
struct VueDuBord {
  double hauteur = 0;      ///< of the centre, without air, degrees
  double bord = 0;         ///< of the upper limb
  double angleHoraire = 0; ///< degrees in [-180, 180]
};
VueDuBord Voit(const NavirePrevu &navire, const Astre &astre, const InstantUTC &utc);

/// The sky of a moment, worked out for itself.
CielDuMoment CielPropre(const InstantUTC &utc);

/// Times at which a function goes through 0, by a scan every three minutes, one every 5 seconds around its tops, and
/// bisection; seconds from the day's begin.
/// @param echantillons  the function at every third minute, from the begin to the end of 24 h
std::vector<double> ZerosJuges(const std::function<double(double)> &f, const std::vector<double> &echantillons);

} // namespace velmaris::essais
