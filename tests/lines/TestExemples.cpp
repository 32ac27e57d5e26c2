#include "lines/FichierLoP.hpp"

#include "tests/OutilsTests.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <regex>

/// The sample sights and the page that describes them.
namespace velmaris {
namespace {

namespace fs = std::filesystem;

/// The words of the page on a file, up to the next file's.
std::string MotsSur(const std::string &page, const std::string &fichier) {
  const std::size_t debut = page.find(fichier);
  return debut == std::string::npos ? "" : page.substr(debut, page.find(".LoP", debut + fichier.size()) - debut);
}

std::string Cote(const Observation &o, bool latitude) { return latitude ? (o.sud ? "S" : "N") : (o.est ? "E" : "W"); }

TEST(SampleSights, StandInTheirPageWithThePositionThatTheyHold) {
  const fs::path dossier = fs::path(VELMARIS_DONNEES) / "exemples";
  const std::string page = essais::Contenu(dossier / "LISEZMOI.txt");
  const std::regex position("([NS]) ([0-9]+)°([0-9]+)' ([EW]) ([0-9]+)°([0-9]+)'");
  int situees = 0;
  int visees = 0;
  for (const auto &entree : fs::directory_iterator(dossier)) {
    if (entree.path().extension() != ".LoP") {
      continue;
    }
    ++visees;
    const std::string mots = MotsSur(page, entree.path().filename().string());
    ASSERT_NE(mots, "") << entree.path();
    Observation o;
    ChargeLoP(entree.path(), o);
    std::smatch m;
    if (!std::regex_search(mots, m, position)) {
      continue;
    }
    ++situees;
    EXPECT_EQ(m[1].str() + " " + m[4].str(), Cote(o, true) + " " + Cote(o, false)) << mots;
    const double latitude = std::stod(m[2]) + std::stod(m[3]) / 60;
    const double longitude = std::stod(m[5]) + std::stod(m[6]) / 60;
    EXPECT_NEAR(std::fabs(LatitudeEstimee(o)), latitude, 1E-9) << mots;
    EXPECT_NEAR(std::fabs(LongitudeEstimee(o)), longitude, 1E-9) << mots;
  }
  EXPECT_EQ(visees, 22);
  EXPECT_GT(situees, 20);
}

} // namespace
} // namespace velmaris
