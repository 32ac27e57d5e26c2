#include "complements/prevision/Magnitudes.hpp"

#include "complements/point/Sphere.hpp"

#include <algorithm>
#include <array>
#include <cmath>

namespace velmaris {
namespace {

/// The north pole of Saturn's rings, ICRS, degrees; it moves by hundredths in a century.
constexpr LieuNavire kPoleSaturne{83.537, 40.589};

Vecteur3 VersAstre(const PlaceGeocentrique &place) {
  return Fois(place.distance, DirectionDe({place.declinaison, place.ascension}));
}

double Angle(const Vecteur3 &a, const Vecteur3 &b) {
  return std::atan2(Longueur(ProduitVectoriel(a, b)), Scalaire(a, b)) / kRadian;
}

/// A polynomial, lowest power first.
template <std::size_t N> double Polynome(const std::array<double, N> &c, double x) {
  double somme = 0;
  for (std::size_t i = N; i-- > 0;) {
    somme = somme * x + c[i];
  }
  return somme;
}

double PhaseVenus(double a) {
  constexpr double kMince = 163.7; ///< degrees: from here on the sickle's horns reach around the disk
  return a <= kMince ? Polynome<5>({-4.384, -1.044E-3, 3.687E-4, -2.814E-6, 8.938E-9}, a)
                     : Polynome<3>({236.05828, -2.81914, 8.39034E-3}, a);
}

double PhaseMars(double a) {
  constexpr double kLarge = 50; ///< degrees; the Earth sees no more
  return a <= kLarge ? Polynome<3>({-1.601, 0.02267, -0.0001302}, a) : Polynome<3>({-0.367, -0.02573, 0.0003445}, a);
}

/// @param b  sine of the rings' latitude
double PhaseSaturne(double a, double b) { return -8.914 - 1.825 * b + 0.026 * a - 0.378 * b * std::exp(-2.25 * a); }

} // namespace

EclairementAstre EclairementDe(const PlaceGeocentrique &astre, const PlaceGeocentrique &soleil) {
  const Vecteur3 a = VersAstre(astre);
  const Vecteur3 s = VersAstre(soleil);
  const Vecteur3 duSoleil = Ajoute(a, -1, s);
  return {Longueur(duSoleil), astre.distance, Longueur(duSoleil) > 0 ? Angle(a, duSoleil) : 0, Angle(a, s)};
}

double PartEclairee(const EclairementAstre &eclairage) { return (1 + std::cos(eclairage.phase * kRadian)) / 2; }

double OuvertureAnneaux(const CielDuMoment &ciel, const PlaceGeocentrique &saturne, const PlaceGeocentrique &soleil) {
  const Vecteur3 pole = Tourne(ciel.verite, DirectionDe(kPoleSaturne));
  const Vecteur3 a = VersAstre(saturne);
  const double terre = -Scalaire(pole, Unitaire(a));
  const double jour = -Scalaire(pole, Unitaire(Ajoute(a, -1, VersAstre(soleil))));
  if (terre * jour <= 0) {
    return 0;
  }
  return std::sin(std::sqrt(std::asin(std::fabs(terre)) * std::asin(std::fabs(jour))));
}

double MagnitudeDe(GenreAstre genre, const EclairementAstre &eclairage, double ouverture) {
  const double a = eclairage.phase;
  const double loin = 5 * std::log10(eclairage.distanceSoleil * eclairage.distance);
  switch (genre) {
  case GenreAstre::Soleil:
    return -26.74 + 5 * std::log10(eclairage.distance);
  case GenreAstre::Lune: {
    constexpr double kMoyenne = 384400 / 149597870.7; ///< the Moon's mean distance, astronomical units
    return -12.73 + 0.026 * a + 4E-9 * a * a * a * a + loin - 5 * std::log10(kMoyenne);
  }
  case GenreAstre::Venus:
    return loin + PhaseVenus(a);
  case GenreAstre::Mars:
    return loin + PhaseMars(a);
  case GenreAstre::Jupiter:
    return loin + Polynome<3>({-9.395, -3.7E-4, 6.16E-4}, a);
  case GenreAstre::Saturne:
    return loin + PhaseSaturne(a, ouverture);
  case GenreAstre::Etoile:
  case GenreAstre::Belier:
    break;
  }
  return 0;
}

double MagnitudeVisible(double depression) {
  struct Marche {
    double depression, magnitude;
  };
  constexpr std::array kMarches{Marche{0, -4},  Marche{3, -1.5}, Marche{6, 1},
                                Marche{9, 2.5}, Marche{12, 4},   Marche{18, 6}};
  constexpr double kDeJour = -5;
  if (depression < 0) {
    return kDeJour;
  }
  const auto *const apres =
      std::find_if(kMarches.begin() + 1, kMarches.end(), [&](const Marche &m) { return m.depression >= depression; });
  if (apres == kMarches.end()) {
    return kMarches.back().magnitude;
  }
  const Marche &avant = *(apres - 1);
  return avant.magnitude + (apres->magnitude - avant.magnitude) * (depression - avant.depression) /
                               (apres->depression - avant.depression);
}

} // namespace velmaris
