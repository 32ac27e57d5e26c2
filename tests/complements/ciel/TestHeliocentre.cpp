#include "OutilsCiel.hpp"

#include "complements/ciel/Heliocentre.hpp"

#include <gtest/gtest.h>
#include <libnova/libnova.h>

#include <array>

namespace velmaris {
namespace {

using essais::Ecart;
using essais::JoursAuHasard;

struct Planete {
  const char *nom;
  const SeriesCiel *series;
  int numero; ///< in ERFA's approximate places
  void (*nova)(double, ln_helio_posn *);
  double grossier; ///< of those places, seconds of arc: twice the largest error that their authors tell
};

constexpr std::array kPlanetes{
    Planete{"Venus", &kCielVenus, 2, ln_get_venus_helio_coords, 12},
    Planete{"Mars", &kCielMars, 4, ln_get_mars_helio_coords, 50},
    Planete{"Jupiter", &kCielJupiter, 5, ln_get_jupiter_helio_coords, 142},
    Planete{"Saturne", &kCielSaturne, 6, ln_get_saturn_helio_coords, 174},
};

Vecteur3 Place(const SeriesCiel &series, double jd) {
  return Heliocentre(series, (jd - ERFA_DJ00) / ERFA_DJM, kTousLesTermes, VoieDuProcesseur());
}

/// The same from another variant of the theory, which never leaves the ecliptic and equinox of J2000.0: libnova's, in
/// FK5.
Vecteur3 PlaceNova(void (*nova)(double, ln_helio_posn *), double jd) {
  ln_helio_posn p{};
  nova(jd, &p);
  Vecteur3 v{};
  eraS2p(p.L * ERFA_DD2R, p.B * ERFA_DD2R, p.R, v.data());
  double rotation[3][3];
  eraIr(rotation);
  eraRx(-84381.412 * ERFA_DAS2R, rotation);
  eraRxp(rotation, v.data(), v.data());
  double versIcrs[3][3];
  double tourne[3];
  eraFk5hip(versIcrs, tourne);
  eraRxp(versIcrs, v.data(), v.data());
  return v;
}

TEST(Heliocentre, TheEarthLiesWhereErfaHasIt) {
  for (const double jd : JoursAuHasard(400, 1900, 2100)) {
    double helio[2][3];
    double bary[2][3];
    eraEpv00(jd, 0, helio, bary);
    const Vecteur3 juge{helio[0][0], helio[0][1], helio[0][2]};
    const Vecteur3 terre = Place(kCielTerre, jd);
    EXPECT_LT(Ecart(terre, juge), 0.04) << jd;
    EXPECT_NEAR(Longueur(terre), Longueur(juge), 6E-8) << jd;
  }
}

TEST(Heliocentre, NoPlanetIsGrosslyWrong) {
  for (const Planete &planete : kPlanetes) {
    for (const double jd : JoursAuHasard(300, 1900, 2100)) {
      double pv[2][3];
      eraPlan94(jd, 0, planete.numero, pv);
      EXPECT_LT(Ecart(Place(*planete.series, jd), {pv[0][0], pv[0][1], pv[0][2]}), planete.grossier) << planete.nom;
    }
  }
}

TEST(Heliocentre, TheVariantOfTheDateGivesThePlacesOfTheVariantOfJ2000) {
  for (const Planete &planete : kPlanetes) {
    for (const double jd : JoursAuHasard(100, 1900, 2100)) {
      const Vecteur3 notre = Place(*planete.series, jd);
      const Vecteur3 autre = PlaceNova(planete.nova, jd);
      EXPECT_NEAR(Longueur(notre), Longueur(autre), 2E-7) << planete.nom;
      EXPECT_LT(Ecart(notre, autre), 0.06) << planete.nom << " " << jd;
    }
  }
}

TEST(Heliocentre, TheLargestTermsAreEnoughForALightTime) {
  for (const Planete &planete : kPlanetes) {
    for (const double jd : JoursAuHasard(50, 1900, 2100)) {
      const double tt = (jd - ERFA_DJ00) / ERFA_DJM;
      const Vecteur3 entier = Heliocentre(*planete.series, tt, kTousLesTermes, VoieDuProcesseur());
      const Vecteur3 court = Heliocentre(*planete.series, tt, 64, VoieDuProcesseur());
      // Light takes 0.1 s for 0.0002 astronomical units, in which no planet goes 0.02".
      EXPECT_LT(Longueur(Ajoute(entier, -1, court)), 2E-4) << planete.nom;
    }
  }
}

} // namespace
} // namespace velmaris
