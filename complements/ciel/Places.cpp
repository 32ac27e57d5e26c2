#include "complements/ciel/Places.hpp"

#include "complements/ciel/Heliocentre.hpp"
#include "complements/ciel/LuneDuMoment.hpp"

#include <erfa.h>
#include <erfam.h>

#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

constexpr double kLumiere = ERFA_AULT / ERFA_DAYSEC; ///< days that light takes for one astronomical unit
constexpr double kKmParUA = ERFA_DAU / 1E3;
constexpr double kRayonTerre = 6378.137;  ///< kilometres, WGS84
constexpr std::size_t kTermesTrajet = 64; ///< of each sum: a light time within 0.1 s
constexpr double kDeflexionMin = 1E-6;    ///< nearer to the Sun than some minutes the bending is held back
constexpr double kMinutesParRadian = ERFA_DR2D * 60;

/// A body's radius, kilometres, as the almanacs take it. The Sun's is 959.63" at one astronomical unit, the Moon's
/// 0.2725076 of the Earth's, a planet's that of its equator.
double Rayon(GenreAstre genre) {
  switch (genre) {
  case GenreAstre::Soleil:
    return 696000;
  case GenreAstre::Lune:
    return 0.2725076 * kRayonTerre;
  case GenreAstre::Venus:
    return 6051.8;
  case GenreAstre::Mars:
    return 3396.2;
  case GenreAstre::Jupiter:
    return 71492;
  case GenreAstre::Saturne:
    return 60268;
  case GenreAstre::Etoile:
  case GenreAstre::Belier:
    break;
  }
  return 0;
}

const SeriesCiel &Series(GenreAstre planete) {
  switch (planete) {
  case GenreAstre::Venus:
    return kCielVenus;
  case GenreAstre::Mars:
    return kCielMars;
  case GenreAstre::Jupiter:
    return kCielJupiter;
  default:
    return kCielSaturne;
  }
}

/// The moment by days earlier.
InstantTT Avant(const InstantTT &tt, double jours) { return {tt.jour, tt.fraction - jours}; }

/// The way of a body's light, and how far it was from the Earth.
struct Trajet {
  Vecteur3 vers{};     ///< ICRS, astronomical units: the body as the light left it, from the Earth as it takes it
  double distance = 0; ///< astronomical units
};

Trajet TrajetPlanete(const CielDuMoment &ciel, GenreAstre genre) {
  const SeriesCiel &series = Series(genre);
  const Voie voie = VoieDuProcesseur();
  const auto depuisTerre = [&](double jours, std::size_t limite) {
    const Vecteur3 planete = Heliocentre(series, Millenaires(Avant(ciel.tt, jours)), limite, voie);
    return Ajoute(Ajoute(planete, -1, ciel.terre), -jours, ciel.soleil);
  };
  double jours = Longueur(depuisTerre(0, kTermesTrajet)) * kLumiere;
  jours = Longueur(depuisTerre(jours, kTermesTrajet)) * kLumiere;
  const Vecteur3 vers = depuisTerre(jours, kTousLesTermes);
  return {vers, Longueur(vers)};
}

/// The Earth has gone 40 km while the Moon's light travelled. That belongs to the way of the light, where aberration
/// takes it back, and not to the distance that parallax comes from.
Trajet TrajetLune(const CielDuMoment &ciel) {
  const double jours = Longueur(LuneIcrs(ciel.tt)) * kLumiere;
  const Vecteur3 lune = LuneIcrs(Avant(ciel.tt, jours));
  return {Ajoute(lune, -jours / kLumiere, ciel.vitesse), Longueur(lune)};
}

Trajet TrajetSoleil(const CielDuMoment &ciel) {
  const double distance = Longueur(ciel.terre);
  return {Ajoute(Fois(-1, ciel.terre), -distance * kLumiere, ciel.soleil), distance};
}

/// A star's direction at the moment from the Earth, ICRS.
Vecteur3 DirectionEtoile(const CielDuMoment &ciel, const EtoileIcrs &e) {
  constexpr double mas = ERFA_DAS2R / 1000;
  const double dec = e.dec * ERFA_DD2R;
  const double annees = Millenaires(ciel.tt) * 1000;
  Vecteur3 terre = ciel.terre;
  Vecteur3 direction{};
  eraPmpx(e.ad * ERFA_DD2R, dec, e.muAd * mas / std::cos(dec), e.muDec * mas, e.parallaxe / 1000, 0, annees,
          terre.data(), direction.data());
  return direction;
}

/// A direction bent by the Sun.
/// @param depuisSoleil  the body from the Sun, any length
Vecteur3 Devie(const CielDuMoment &ciel, Vecteur3 direction, const Vecteur3 &depuisSoleil) {
  const double distance = Longueur(ciel.terre);
  Vecteur3 terre = Unitaire(ciel.terre);
  Vecteur3 astre = Unitaire(depuisSoleil);
  Vecteur3 devie{};
  eraLd(1, direction.data(), astre.data(), terre.data(), distance, kDeflexionMin / std::max(distance * distance, 1.0),
        devie.data());
  return devie;
}

/// A direction as the moving Earth sees it, on the true equator and from the true equinox of the date.
Vecteur3 Apparente(const CielDuMoment &ciel, Vecteur3 direction) {
  Vecteur3 vitesse = ciel.vitesse;
  Vecteur3 vue{};
  eraAb(direction.data(), vitesse.data(), Longueur(ciel.terre), std::sqrt(1 - Scalaire(vitesse, vitesse)), vue.data());
  return Tourne(ciel.verite, vue);
}

/// What is put together of the direction.
PlaceGeocentrique PlaceDeDirection(const CielDuMoment &ciel, Vecteur3 direction) {
  double ascension = 0;
  double declinaison = 0;
  eraC2s(direction.data(), &ascension, &declinaison);
  PlaceGeocentrique place;
  place.ascension = eraAnp(ascension) * ERFA_DR2D;
  place.declinaison = declinaison * ERFA_DR2D;
  place.gha = eraAnp((ciel.tempsSideral - place.ascension) * ERFA_DD2R) * ERFA_DR2D;
  return place;
}

Trajet TrajetDe(const CielDuMoment &ciel, GenreAstre genre) {
  switch (genre) {
  case GenreAstre::Soleil:
    return TrajetSoleil(ciel);
  case GenreAstre::Lune:
    return TrajetLune(ciel);
  default:
    return TrajetPlanete(ciel, genre);
  }
}

bool EstPlanete(GenreAstre genre) { return genre >= GenreAstre::Venus && genre <= GenreAstre::Saturne; }

} // namespace

PlaceGeocentrique PlaceEtoile(const CielDuMoment &ciel, const EtoileIcrs &etoile) {
  const Vecteur3 direction = DirectionEtoile(ciel, etoile);
  PlaceGeocentrique place = PlaceDeDirection(ciel, Apparente(ciel, Devie(ciel, direction, direction)));
  if (etoile.parallaxe > 0) {
    place.distance = ERFA_DR2AS * 1000 / etoile.parallaxe;
  }
  return place;
}

PlaceGeocentrique PlaceDe(const CielDuMoment &ciel, const Astre &astre) {
  ExigePlace(astre);
  if (astre.genre == GenreAstre::Belier) {
    return PlaceDeDirection(ciel, {1, 0, 0});
  }
  if (astre.genre == GenreAstre::Etoile) {
    return PlaceEtoile(ciel, *kEtoilesIcrs[static_cast<std::size_t>(astre.rang) - 1]);
  }
  const Trajet trajet = TrajetDe(ciel, astre.genre);
  Vecteur3 direction = Unitaire(trajet.vers);
  if (EstPlanete(astre.genre)) {
    direction = Devie(ciel, direction, Ajoute(trajet.vers, 1, ciel.terre));
  }
  PlaceGeocentrique place = PlaceDeDirection(ciel, Apparente(ciel, direction));
  place.distance = trajet.distance;
  place.demiDiametre = std::asin(Rayon(astre.genre) / (place.distance * kKmParUA)) * kMinutesParRadian;
  place.parallaxe = std::asin(kRayonTerre / (place.distance * kKmParUA)) * kMinutesParRadian;
  return place;
}

} // namespace velmaris
