#include "ephemerides/Series.hpp"

#include "SecondCalculPlanetes.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace velmaris {
namespace {

using essais::LitTable;

struct Planete {
  const char *fichier;
  const SeriesPlanete *series;
  std::array<std::array<std::size_t, 6>, 3> comptes;
  std::array<double, 3> plusPetites;
};

const Planete kPlanetes[] = {
    {"vsop87d_venus.txt",
     &kSeriesVenus,
     {{{367, 215, 70, 9, 5, 5}, {210, 133, 59, 15, 5, 4}, {330, 180, 63, 7, 3, 2}}},
     {3.7e-10, 4e-10, 2.6e-10}},
    {"vsop87d_earth.txt",
     &kSeriesTerre,
     {{{559, 341, 142, 22, 11, 5}, {184, 99, 49, 11, 5, 0}, {526, 292, 139, 27, 10, 3}}},
     {3.9e-10, 3.9e-10, 3.6e-10}},
    {"vsop87d_mars.txt",
     &kSeriesMars,
     {{{1217, 686, 310, 129, 36, 15}, {441, 287, 130, 41, 11, 5}, {1118, 596, 313, 111, 28, 9}}},
     {3.6e-10, 3.6e-10, 5.4e-10}},
    {"vsop87d_jupiter.txt",
     &kSeriesJupiter,
     {{{760, 369, 191, 109, 45, 10}, {249, 141, 81, 42, 12, 5}, {745, 381, 190, 98, 46, 9}}},
     {7.6e-10, 7.4e-10, 3.7e-9}},
    {"vsop87d_saturn.txt",
     &kSeriesSaturne,
     {{{1152, 642, 321, 148, 68, 27}, {500, 260, 111, 58, 26, 11}, {1205, 639, 342, 157, 64, 28}}},
     {7.2e-10, 7.2e-10, 6.84e-9}},
};

const CoordonneeVsop &Coordonnee(const SeriesPlanete &series, std::size_t rang) {
  return rang == 0 ? series.L : rang == 1 ? series.B : series.R;
}

void AttendTerme(const TermeVsop &terme, double A, double B, double C) {
  EXPECT_EQ(terme.A, A);
  EXPECT_EQ(terme.B, B);
  EXPECT_EQ(terme.C, C);
}

TEST(PlanetarySeries, EachPowerHasThePublishedNumberOfTerms) {
  std::size_t total = 0;
  for (const Planete &planete : kPlanetes) {
    for (std::size_t c = 0; c < 3; ++c) {
      for (std::size_t k = 0; k < kPuissances; ++k) {
        const std::size_t nombre = Coordonnee(*planete.series, c)[k].size();
        EXPECT_EQ(nombre, planete.comptes[c][k]) << planete.fichier << " "
                                                 << "LBR"[c] << k;
        total += nombre;
      }
    }
  }
  EXPECT_EQ(total, 18832U);
}

TEST(PlanetarySeries, TheSmallestAmplitudesAreThePublishedOnes) {
  for (const Planete &planete : kPlanetes) {
    for (std::size_t c = 0; c < 3; ++c) {
      double plusPetite = 1;
      for (const TermeVsop &terme : Coordonnee(*planete.series, c)[0]) {
        plusPetite = std::min(plusPetite, std::fabs(terme.A));
      }
      EXPECT_EQ(plusPetite, planete.plusPetites[c]) << planete.fichier << " "
                                                    << "LBR"[c];
    }
  }
}

TEST(PlanetarySeries, KnownRowsStandWhereTheyArePrinted) {
  AttendTerme(kSeriesTerre.L[0][0], 1.75347045673, 0, 0);
  AttendTerme(kSeriesTerre.L[0][1], 0.03341656456, 4.66925680417, 6283.0758499914);
  AttendTerme(kSeriesTerre.L[0][2], 0.00034894275, 4.62610241759, 12566.1516999828);
  AttendTerme(kSeriesTerre.L[0][3], 3.417571e-05, 2.82886579606, 3.523118349);
  AttendTerme(kSeriesTerre.L[5][0], 8.78e-09, 3.14159265359, 0);
  AttendTerme(kSeriesTerre.R[0][0], 1.00013988799, 0, 0);
  AttendTerme(kSeriesJupiter.L[0][0], 0.59954691495, 0, 0);
  AttendTerme(kSeriesSaturne.R[0][0], 9.55758135801, 0, 0);
}

TEST(PlanetarySeries, MeanMotionsAreThoseOfTheEquinoxOfTheDate) {
  AttendTerme(kSeriesTerre.L[1][0], 6283.31966747491, 0, 0);
  AttendTerme(kSeriesMars.L[1][0], 3340.85627474342, 0, 0);
  // The table has one digit more than fifteen.
  EXPECT_NEAR(kSeriesVenus.L[1][0].A, 10213.529430529, 3E-11);
}

TEST(PlanetarySeries, EveryFigureIsTheOneInTheTableAndInItsOrder) {
  for (const Planete &planete : kPlanetes) {
    const auto table = LitTable(planete.fichier);
    for (std::size_t c = 0; c < 3; ++c) {
      for (std::size_t k = 0; k < kPuissances; ++k) {
        const auto section = table.find(std::string(1, "LBR"[c]) + std::to_string(k));
        const auto termes = Coordonnee(*planete.series, c)[k];
        ASSERT_EQ(termes.size(), section == table.end() ? 0 : section->second.size());
        for (std::size_t i = 0; i < termes.size(); ++i) {
          AttendTerme(termes[i], section->second[i][0], section->second[i][1], section->second[i][2]);
        }
      }
    }
  }
}

TEST(NutationRows, SixtyThreeInLongitudeThirtyEightInObliquity) {
  EXPECT_EQ(kNutation.size(), 63U);
  EXPECT_EQ(std::count_if(kNutation.begin(), kNutation.end(),
                          [](const TermeNutation &t) { return t.eps != 0 || t.epsT != 0; }),
            38);
}

TEST(NutationRows, TheFirstAreThePrintedOnes) {
  const double attendues[6][9] = {
      {0, 0, 0, 0, 1, -171996, -174.2, 92025, 8.9}, {-2, 0, 0, 2, 2, -13187, -1.6, 5736, -3.1},
      {0, 0, 0, 2, 2, -2274, -0.2, 977, -0.5},      {0, 0, 0, 0, 2, 2062, 0.2, -895, 0.5},
      {0, 1, 0, 0, 0, 1426, -3.4, 54, -0.1},        {0, 0, 1, 0, 0, 712, 0.1, -7, 0}};
  for (std::size_t i = 0; i < 6; ++i) {
    const TermeNutation &t = kNutation[i];
    const double trouvee[9] = {double(t.D), double(t.M), double(t.Mp), double(t.F), double(t.Omega),
                               t.psi,       t.psiT,      t.eps,        t.epsT};
    EXPECT_TRUE(std::equal(std::begin(trouvee), std::end(trouvee), std::begin(attendues[i]))) << "row " << i + 1;
  }
}

TEST(NutationRows, NoneIsUnderThreeTenThousandthsOfASecond) {
  for (const TermeNutation &t : kNutation) {
    EXPECT_GE(std::fabs(t.psi), 3);
    EXPECT_TRUE(t.eps == 0 || std::fabs(t.eps) >= 3);
  }
}

template <std::size_t N> std::pair<double, double> Amplitudes(const std::array<TermeLune, N> &termes) {
  const auto [petite, grande] = std::minmax_element(termes.begin(), termes.end(), [](const auto &a, const auto &b) {
    return std::fabs(a.amplitude) < std::fabs(b.amplitude);
  });
  return {std::fabs(petite->amplitude), std::fabs(grande->amplitude)};
}

TEST(MoonRows, AmplitudesLieBetweenThePublishedBounds) {
  EXPECT_EQ(Amplitudes(kLuneLongitude), std::pair(0.00096, 22639.55));
  EXPECT_EQ(Amplitudes(kLuneLatitude), std::pair(0.01009, 18461.4));
  EXPECT_EQ(Amplitudes(kLuneDistance), std::pair(0.10326, 20905.32206));
}

bool AvecPlanetes(const TermeLune &t) {
  return t.Ve != 0 || t.Te != 0 || t.Ma != 0 || t.Ju != 0 || t.Lp != 0 || t.phase != 0;
}

TEST(MoonRows, TermsWithPlanetsComeLast) {
  const auto compte = [](const auto &debut, const auto &fin) { return std::count_if(debut, fin, AvecPlanetes); };
  EXPECT_EQ(compte(kLuneLongitude.begin(), kLuneLongitude.begin() + 375), 0);
  // One term of the last thirty has no planet.
  EXPECT_EQ(compte(kLuneLongitude.begin() + 375, kLuneLongitude.end()), 29);
  EXPECT_EQ(compte(kLuneLatitude.begin(), kLuneLatitude.begin() + 188), 0);
  EXPECT_EQ(compte(kLuneLatitude.begin() + 188, kLuneLatitude.end()), 12);
  EXPECT_EQ(compte(kLuneDistance.begin(), kLuneDistance.end()), 0);
}

TEST(MoonRows, ColumnsGoToTheirOwnArguments) {
  const TermeLune &t = kLuneLongitude[376];
  EXPECT_EQ(t.amplitude, 1.1431);
  EXPECT_EQ((std::array<int, 9>{t.D, t.M, t.l, t.F, t.Ve, t.Te, t.Ma, t.Ju, t.Lp}),
            (std::array<int, 9>{2, 0, -1, 0, 0, 2, 0, -2, 0}));
  EXPECT_EQ(t.phase, 180.11977);
  const TermeLune &n = kLuneLongitude.back();
  EXPECT_EQ(n.amplitude, 0.01234);
  EXPECT_EQ((std::array<int, 9>{n.D, n.M, n.l, n.F, n.Ve, n.Te, n.Ma, n.Ju, n.Lp}),
            (std::array<int, 9>{2, 0, 1, -1, 0, 0, 0, 0, 1}));
  EXPECT_EQ(n.phase, 0.00102);
}

} // namespace
} // namespace velmaris
