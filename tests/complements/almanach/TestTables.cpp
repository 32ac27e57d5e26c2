#include "OutilsAlmanach.hpp"

#include "complements/almanach/Arrondis.hpp"
#include "complements/almanach/CsvAlmanach.hpp"
#include "complements/ciel/EtapesHauteur.hpp"
#include "complements/point/Sphere.hpp"

#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <sstream>

/// The tables that need no date: what stands between two entries, and what the rows for a spreadsheet hold.
namespace velmaris::essais {
namespace {

TEST(TablesAlmanach, DipAndRefractionBetweenTwoEntriesAreThoseOfTheProgramsOwnSteps) {
  const TableSimple depression = TableDepression();
  for (double metres = 0.5; metres < 40; metres += 0.07) {
    EXPECT_NEAR(static_cast<double>(Entre(depression.x, depression.y, metres)) / 10, Depression(metres), 0.12);
  }
  const TableSimple refraction = TableRefraction();
  for (double h = 0.5; h < 90; h += 0.11) {
    EXPECT_NEAR(static_cast<double>(Entre(refraction.x, refraction.y, h)) / 10, Refraction(h, 1010, 10), 0.12) << h;
  }
}

TEST(TablesAlmanach, AnotherAirIsCorrectedToATenth) {
  const TableDouble air = TableAir();
  const TableDouble correction = TableCorrectionAir();
  for (double h = 5; h < 80; h += 3.1) {
    for (const double t : {-28.0, -3.0, 21.0, 38.0}) {
      for (const double p : {962.0, 995.0, 1042.0}) {
        const long pourCent = Entre(air, t, p);
        const double grand = static_cast<double>(std::labs(pourCent));
        const double dite = static_cast<double>(Entre(correction, h, std::max(grand, 2.0))) / 10 *
                            std::min(grand / 2, 1.0) * (pourCent < 0 ? -1 : 1);
        EXPECT_NEAR(dite, Refraction(h, 1010, 10) - Refraction(h, p, t), 0.16) << h << ' ' << t << ' ' << p;
      }
    }
  }
}

TEST(TablesAlmanach, AnHoursIncrementsAreWholeRates) {
  EXPECT_EQ(Increment(TauxIncrement::Soleil, 3600), 9000);
  EXPECT_EQ(Increment(TauxIncrement::Belier, 3600), 9025);
  EXPECT_EQ(Increment(TauxIncrement::Lune, 3600), 8590);
  EXPECT_EQ(Increment(TauxIncrement::Soleil, 4), 10);
  EXPECT_EQ(CorrectionVD(59, 60), 60);
  EXPECT_EQ(CorrectionVD(0, 180), 2); // half a minute of an hour
}

TEST(TablesAlmanach, HaversinesAreTheHalfOfOneLessTheCosine) {
  const TableHaversines h = Haversines();
  const std::vector<long> cosinus = LogarithmesCosinus();
  ASSERT_EQ(h.naturels.size(), 1081U);
  ASSERT_EQ(cosinus.size(), 541U);
  for (std::size_t i = 1; i < h.naturels.size(); ++i) {
    const double exact = (1 - std::cos(static_cast<double>(i) / 6 * kRadian)) / 2;
    EXPECT_NEAR(static_cast<double>(h.naturels[i]), exact * 1E6, 0.501);
    EXPECT_NEAR(static_cast<double>(h.logarithmes[i]), -std::log10(exact) * 1E6, 0.51);
  }
  EXPECT_EQ(cosinus[360], 301030);
  EXPECT_EQ(h.logarithmes[0], kSansLogarithme);
}

TEST(TablesAlmanach, TextsRoundOnceAndWrapAtAFullTurn) {
  EXPECT_EQ(TexteAngle(DixiemesUnTour(359.9995), ',', 1), "0 00,0");
  EXPECT_EQ(TexteAngle(DixiemesUnTour(8.9991), '.', 1), "8 59.9");
  EXPECT_EQ(TexteAngle(DixiemesUnTour(8.9993), '.', 1), "9 00.0");
  EXPECT_EQ(TexteDeclinaison(DixiemesDe(-0.5), '.'), "S 00 30.0");
  EXPECT_EQ(TexteDeclinaison(DixiemesDe(-0.0004), '.'), "N 00 00.0");
  EXPECT_EQ(TexteDeclinaison(DixiemesDe(23.99999), ','), "N 24 00,0");
  EXPECT_EQ(TexteEquation(-222.4), "-03:42");
  EXPECT_EQ(TexteHeureMinutes(MinutesDe(7.7)), "07 42");
  EXPECT_EQ(TexteDixiemes(-3, ','), "-0,3");
}

/// Fields between commas.
std::vector<std::string> Champs(const std::string &rangee) {
  std::vector<std::string> champs{""};
  for (const char c : rangee) {
    if (c == ',') {
      champs.emplace_back();
    } else {
      champs.back().push_back(c);
    }
  }
  return champs;
}

TEST(CsvAlmanach, EveryRowHasTheColumnsThatItsKindNames) {
  const Almanach almanach =
      *CalculeAlmanach({.debut = {2028, 2, 28}, .fin = {2028, 3, 2}, .latitudes = {75, 47.5, -33}}, Table());
  std::istringstream csv(EcritAlmanachCsv(almanach));
  std::map<std::string, std::size_t> colonnes;
  std::map<std::string, int> nombre;
  std::string rangee;
  while (std::getline(csv, rangee)) {
    const std::vector<std::string> champs = Champs(rangee);
    if (champs.front().front() == '#') {
      colonnes[champs.front().substr(1)] = champs.size();
      continue;
    }
    EXPECT_EQ(champs.size(), colonnes[champs.front()]) << rangee;
    ++nombre[champs.front()];
    if (champs.front() == "heure") {
      // The decimal figure is the printed one.
      EXPECT_EQ(champs[3], TexteAngle(DixiemesUnTour(std::stod(champs[5])), '.', 1));
    }
  }
  EXPECT_EQ(nombre["heure"], 4 * 24 * 7);
  EXPECT_EQ(nombre["jour"], 4 * 6);
  EXPECT_EQ(nombre["date"], 4);
  EXPECT_EQ(nombre["etoile"], 2 * 58);
  EXPECT_EQ(nombre["soleil"], 2 * 3);
  EXPECT_EQ(nombre["lune"], 4 * 3);
  EXPECT_NE(csv.str().find("2028-02-29T23:00:00Z"), std::string::npos);
}

} // namespace
} // namespace velmaris::essais
