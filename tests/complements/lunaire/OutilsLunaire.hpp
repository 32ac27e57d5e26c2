#pragma once

#include "../point/OutilsPoint.hpp"
#include "../point/Parts.hpp"
#include "complements/lunaire/Lunaire.hpp"

#include <optional>
#include <random>
#include <vector>

/// What the tests of lunar distances share: distances made by another road, limb by limb.
namespace velmaris::essais {

/// The distance that a sextant shows, from points all around both limbs, each bent where it stands: ERFA's vectors.
double DistanceJugee(const PlaceGeocentrique &lune, BordDistance bordLune, const PlaceGeocentrique &astre,
                     BordDistance bordAstre, const LieuNavire &lieu, double oeil, const AirMesure &air);

/// The height in air of a limb, or of the centre.
double HauteurDuBord(const PlaceGeocentrique &place, Contact contact, const LieuNavire &lieu, double oeil,
                     const AirMesure &air);

/// Where a lunar is taken.
struct Nuit {
  InstantUTC utc; ///< true time of the first distance
  LieuNavire lieu;
  double oeil = 0;
  AirMesure air;
  std::vector<Astre> astres; ///< that stand well, other than the Moon
};

/// A moment and place where the Moon and other bodies stand well, and their distances move well.
Nuit NuitAuHasard(std::mt19937_64 &alea, double cadenceMin);

/// How fast a distance moves there, minutes of arc an hour, growing positive.
double CadenceJugee(const Nuit &nuit, const Astre &astre);

/// A distance without error, as the watch has it.
/// @param apres   seconds after the night's time
/// @param retard  seconds that the watch is slow by
MesureLunaire MesureVraie(const Nuit &nuit, const Astre &astre, double apres, double retard, bool hauteurs,
                          BordDistance bord);

/// Settings with the true position.
ReglagesLunaire ReglagesDe(const Nuit &nuit);

} // namespace velmaris::essais
