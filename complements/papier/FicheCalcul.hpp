#pragma once

#include "complements/controle/ViseeTypee.hpp"

#include <cstdint>
#include <string>
#include <vector>

namespace velmaris {

/// The steps of a sight worked by hand, in the order of the hand.
enum class EtapeFiche : std::uint8_t {
  Jour,
  Heure,
  Latitude,
  Longitude,
  Oeil,
  Bord, ///< of the Sun and the Moon
  Lecture,
  ErreurArc,
  Collimation,
  Moitie, ///< of the double height off an artificial horizon
  Depression,
  Apparente,
  Refraction,
  ParallaxeHorizontale,
  Parallaxe,
  DemiDiametre,
  Observee,
  GhaHeure, ///< of the body at the whole hour, or of Aries for a star
  Increment,
  VHoraire,
  VariationGha, ///< v by the part of the hour
  AscensionVerse,
  Gha,
  LongitudeCalcul,
  AngleLocal,
  DeclinaisonHeure,
  DHoraire,             ///< positive where the declination grows away from the equator
  VariationDeclinaison, ///< d by the part of the hour, the same
  Declinaison,
  ProduitSinus,
  ProduitCosinus,
  SinusHauteur,
  Calculee,
  CosinusAzimut,
  AngleAzimut,
  Azimut,
  ObserveeEncore,
  Intercept,
};

/// Where a step's figure comes from.
enum class SourceFiche : std::uint8_t {
  Visee,  ///< the sight itself: it stands on a form with blanks
  Tables, ///< the almanac
  Calcul, ///< a sum of what stands above it
};

/// One step with its figure as it is written.
struct LigneCalcul {
  EtapeFiche etape = EtapeFiche::Jour;
  std::string valeur;
  SourceFiche source = SourceFiche::Calcul;
};

/// A sight worked by hand: every figure is rounded as it is written, to 0.1', and each sum is that of the figures
/// written above it.
struct FicheCalcul {
  std::string astre;               ///< its name
  Contact bord = Contact::Centre;  ///< that was shot; its line has a word of it
  std::vector<LigneCalcul> lignes; ///< without the steps that the sight hasn't
  double observee = 0;             ///< degrees
  double calculee = 0;             ///< degrees
  double azimut = 0;               ///< degrees in [0, 360)
  double intercept = 0;            ///< miles, towards the body
  double controle = 0;             ///< the same without a rounding on the way
  bool vers = true;                ///< towards the body
};

/// Works a sight by hand, with the almanac's figures of the whole hours before and after it.
/// Rates: 15 degrees an hour, the Moon 14 degrees 19.0', Aries 15 degrees 2.46'; v and d what is left of the hour's
/// change.
/// @param nom   of its body
/// @param dut1  UT1 - UTC, seconds
/// @throws Refus as `SuitRoute`
FicheCalcul FaitFicheCalcul(const ViseeTypee &visee, const std::string &nom, double dut1 = 0);

} // namespace velmaris
