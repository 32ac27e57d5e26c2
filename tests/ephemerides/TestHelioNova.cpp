#include "ephemerides/ParamPlanet.hpp"

#include "OutilsPlanetes.hpp"

#include <gtest/gtest.h>

#include <algorithm>

/// Heliocentric places on 200 dates from 1900 to 2100 against libnova's series, another variant of the theory with
/// terms of its own number: what remains is the truncation of both.
namespace velmaris {
namespace {

using namespace essais;

struct Ecarts {
  double L = 0, B = 0, R = 0; ///< largest, degrees and astronomical units
};

/// The sums in 64 bits against libnova.
Ecarts PlusGrands(const PlaneteEssai &planete) {
  const TableVsop table = LitTable(planete.fichier);
  const double enDegres = 45 / std::atan(1.0);
  Ecarts e;
  for (const double JD : Dates(200)) {
    const LieuHelio nova = ALaDate(HelioNova(planete.nom, JD), JD);
    const double t = Millenaires(JD);
    const double L = SommeTable(table, 'L', t, kMorceau) * enDegres;
    e.L = std::max(e.L, std::fabs(Secondes(L, nova.L)) / 3600);
    e.B = std::max(e.B, std::fabs(SommeTable(table, 'B', t, kMorceau) * enDegres - nova.B));
    e.R = std::max(e.R, std::fabs(SommeTable(table, 'R', t, kMorceau) - nova.R));
  }
  return e;
}

TEST(AgainstLibnova, TheSeriesAgreeToTheirTruncation) {
  // Twice the root of the number of terms times the smallest of them, for either truncation; latitudes do better.
  const double bornes[5][3] = {
      {2E-6, 1E-7, 2E-8}, {2E-6, 1E-7, 2E-8}, {4E-6, 1E-7, 4E-8}, {5E-6, 2E-7, 3E-7}, {8E-6, 2E-7, 6E-7}};
  for (std::size_t i = 0; i < 5; ++i) {
    const Ecarts e = PlusGrands(kPlanetesEssai[i]);
    EXPECT_LT(e.L, bornes[i][0]) << kPlanetesEssai[i].nom;
    EXPECT_LT(e.B, bornes[i][1]) << kPlanetesEssai[i].nom;
    EXPECT_LT(e.R, bornes[i][2]) << kPlanetesEssai[i].nom;
    RecordProperty(std::string("L_") + kPlanetesEssai[i].nom, TexteGeneral(e.L));
    RecordProperty(std::string("B_") + kPlanetesEssai[i].nom, TexteGeneral(e.B));
    RecordProperty(std::string("R_") + kPlanetesEssai[i].nom, TexteGeneral(e.R));
  }
}

TEST(AgainstLibnova, LatitudeAndRadiusOfATextAgreeToTenDecimalsOfARadianAndEightOfAUnit) {
  for (const PlaneteEssai &planete : kPlanetesEssai) {
    const bool interieure = planete.nom[0] != 'J' && planete.nom[0] != 'S';
    for (const double JD : Dates(200)) {
      const std::string texte = PositionHelio(planete.nom, JD);
      const LieuHelio nova = ALaDate(HelioNova(planete.nom, JD), JD);
      std::string B = "B";
      std::string R = "R";
      EXPECT_NEAR(ExtraitCoord(B, texte) * ERFA_DD2R, nova.B * ERFA_DD2R, 2E-9) << planete.nom;
      EXPECT_NEAR(ExtraitCoord(R, texte), nova.R, interieure ? 1E-8 : 3E-7) << planete.nom;
    }
  }
}

/// Degrees that the 32-bit steps can be off: half a unit of the sum in radians and of its degrees, and the seven
/// digits.
double Pas32Bits(double JD, const char *nom) {
  const double parMillenaire = std::string(nom) == "VENUS"     ? 10213.6
                               : std::string(nom) == "EARTH"   ? 6283.4
                               : std::string(nom) == "MARS"    ? 3340.9
                               : std::string(nom) == "JUPITER" ? 530.0
                                                               : 213.6;
  const double somme = std::fabs(Millenaires(JD)) * parMillenaire + 7;
  const auto demiPas = [](double x) { return std::ldexp(1.0, std::ilogb(x) - 24); };
  const double enDegres = 45 / std::atan(1.0);
  return demiPas(somme) * enDegres + demiPas(somme * enDegres) + 5E-5;
}

TEST(AgainstLibnova, TheLongitudeOfATextIsOffByItsWidthsAndNoMore) {
  for (const PlaneteEssai &planete : kPlanetesEssai) {
    double pire = 0;
    for (const double JD : Dates(200)) {
      std::string L = "L";
      const double lue = ExtraitCoord(L, PositionHelio(planete.nom, JD));
      const double ecart = std::fabs(Secondes(lue, ALaDate(HelioNova(planete.nom, JD), JD).L)) / 3600;
      EXPECT_LE(ecart, Pas32Bits(JD, planete.nom) + 8E-6) << planete.nom << " " << JD;
      pire = std::max(pire, ecart);
    }
    RecordProperty(planete.nom, TexteGeneral(pire * 3600));
  }
}

TEST(AgainstLibnova, WithinAFewYearsOfJ2000TheLongitudeOfASlowPlanetKeepsItsSevenDigits) {
  for (const char *nom : {"JUPITER", "SATURNE"}) {
    for (int i = -20; i <= 20; ++i) {
      const double JD = 2451545.0 + 30.4 * i;
      std::string L = "L";
      const double lue = ExtraitCoord(L, PositionHelio(nom, JD));
      EXPECT_LT(std::fabs(Secondes(lue, ALaDate(HelioNova(nom, JD), JD).L)), 0.36) << nom << " " << JD;
    }
  }
}

} // namespace
} // namespace velmaris
