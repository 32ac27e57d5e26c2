#include "tests/ephemerides/JugesPlanetes.hpp"
#include "tests/sights/OutilsAstres.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace velmaris {
namespace {

using essais::ViseeAstre;
using essais::ViseePlanete;

constexpr std::array<int, kNombrePlanetes> kNumeros = {2, 4, 5, 6}; ///< of the judge

/// A sight at noon of a day with the planet near the meridian of 47 degrees north, in the judge's sky.
ViseeAstre AuMeridien(double jd, const essais::LieuEquatorial &lieu, int astre) {
  ViseeAstre v;
  double fraction = 0;
  eraJd2cal(jd, 0, &v.annee, &v.mois, &v.jour, &fraction);
  v.heure = 12;
  v.minute = v.seconde = 0;
  v.astre = astre;
  const double ouest = eraAnpm(eraGmst82(jd, 0) - lieu.AD * ERFA_DD2R) * ERFA_DR2D;
  v.est = ouest < 0;
  v.lonDegres = static_cast<int>(std::fabs(ouest));
  v.lonMinutes = 0;
  return v;
}

/// What the judge makes of the height, the declination's sign turned or not; degrees.
double Hauteur(double jd, const essais::LieuEquatorial &lieu, const ViseeAstre &v, double signe) {
  double azimut = 0;
  double hauteur = 0;
  eraHd2ae(eraGmst82(jd, 0) - essais::LongitudeALaMain(v) * ERFA_DD2R - lieu.AD * ERFA_DD2R,
           signe * lieu.Dec * ERFA_DD2R, essais::LatitudeALaMain(v) * ERFA_DD2R, &azimut, &hauteur);
  return hauteur * ERFA_DR2D;
}

/// Noons from 2020 to 2029 on which a planet stands between 0 and 1 degree south, and how far its sights go wrong.
struct Bande {
  int jours = 0;
  double pire = 0; ///< miles
};

Bande Parcourt(int astre) {
  Bande bande;
  double jd0 = 0;
  double debut = 0;
  double fin = 0;
  eraCal2jd(2020, 1, 1, &jd0, &debut);
  eraCal2jd(2030, 1, 1, &jd0, &fin);
  for (double jd = jd0 + debut + 0.5; jd < jd0 + fin; ++jd) {
    const essais::LieuEquatorial lieu = essais::LieuErfa(kNumeros.at(static_cast<std::size_t>(astre)), jd);
    if (lieu.Dec > -0.03 || lieu.Dec < -0.97) { // the judge's own error stays inside the band
      bande.jours += lieu.Dec < 0 && lieu.Dec > -1 ? 1 : 0;
      continue;
    }
    ++bande.jours;
    const ViseeAstre v = AuMeridien(jd, lieu, astre);
    ViseePlanete s(v);
    EXPECT_EQ(s.Reduit(), EtatReduction::Faite);
    const double calculee = s.valeurs.HauteurCalculee;
    EXPECT_NEAR(calculee, Hauteur(jd, lieu, v, -1), 0.04) << "read as north";
    bande.pire = std::max(bande.pire, std::fabs(calculee - Hauteur(jd, lieu, v, 1)) * 60);
  }
  return bande;
}

TEST(PlanetSight, BetweenZeroAndOneDegreeSouthIsReducedAsFarNorthOnSomeDaysOfADecade) {
  // The days that the guide tells for 2020 to 2029.
  constexpr std::array<int, kNombrePlanetes> kJours = {41, 56, 64, 20};
  double pire = 0;
  for (int astre = 0; astre < kNombrePlanetes; ++astre) {
    const Bande bande = Parcourt(astre);
    EXPECT_NEAR(bande.jours, kJours.at(static_cast<std::size_t>(astre)), 1) << astre;
    pire = std::max(pire, bande.pire);
  }
  EXPECT_GT(pire, 110);
  EXPECT_LT(pire, 120);
}

} // namespace
} // namespace velmaris
