#include "chart/Terres.hpp"

#include "foundations/Fichiers.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace velmaris::essais {
namespace {

Anneaux Lus(std::string_view octets) {
  Polygone polygone;
  LitPolygone(polygone, octets);
  return AnneauxFermes(polygone);
}

TEST(Terres, AClosedOutlineEnclosesLand) {
  const Anneaux anneaux = Lus("0.1 0.1\n0.2 0.1\n0.2 0.3\n0.1 0.1\n");
  ASSERT_EQ(anneaux.size(), 1U);
  EXPECT_EQ(anneaux[0].points.size(), 3U);
  EXPECT_EQ(anneaux[0].bas, (PointAnneau{0.1F, 0.1F}));
  EXPECT_EQ(anneaux[0].haut, (PointAnneau{0.2F, 0.3F}));
}

TEST(Terres, AnOpenOutlineEnclosesNothing) {
  EXPECT_TRUE(Lus("0.1 0.1\n0.2 0.1\n0.2 0.3\n").empty());
  EXPECT_TRUE(Lus("0.1 0.1\n0.2 0.1\n0.1 0.1\n").empty()); // there and back
  EXPECT_TRUE(Lus("").empty());
}

TEST(Terres, APointThatIsNoneEndsAnOutline) {
  EXPECT_EQ(Lus("0.1 0.1\n0.2 0.1\n0.2 0.3\n0.1 0.1\n2 0\n0.5 0.1\n0.6 0.1\n0.6 0.3\n0.5 0.1\n").size(), 2U);
  EXPECT_TRUE(Lus("0.1 0.1\n0.2 0.1\n2 0\n0.2 0.3\n0.1 0.1\n").empty());
}

TEST(Terres, AnOutlineCutAt180DegreesIsClosedAlongThatMeridian) {
  const Anneaux anneaux = Lus("0.9999999 0.62\n0.95 0.615\n0.9999999 0.61\n");
  ASSERT_EQ(anneaux.size(), 1U);
  EXPECT_EQ(anneaux[0].points.size(), 3U);
}

TEST(Terres, AnOutlineFromOneSideTo180DegreesToTheOtherIsClosedOverTheSouthPole) {
  const Anneaux anneaux = Lus("0.9999999 0.05\n0.5 0.08\n0.0000001 0.05\n");
  ASSERT_EQ(anneaux.size(), 1U);
  ASSERT_EQ(anneaux[0].points.size(), 5U);
  EXPECT_EQ(anneaux[0].bas.y, 0.0F);
}

/// Places that are known to be land or water, by the tinted shapes of the program's own files.
class TerresDuMonde : public ::testing::Test {
protected:
  static bool Contient(const std::string &fichier, double latitude, double longitudeEst) {
    const Anneaux anneaux = Lus(LitFichier(std::filesystem::path(VELMARIS_DONNEES) / fichier));
    const double x = (180 + longitudeEst) / 360;
    const double y = (latitude + 90) / (180 * std::sqrt(2.0));
    bool dedans = false;
    for (const Anneau &anneau : anneaux) {
      for (std::size_t i = 0; i < anneau.points.size(); ++i) {
        const PointAnneau a = anneau.points[i];
        const PointAnneau b = anneau.points[(i + 1) % anneau.points.size()];
        if ((a.y > y) != (b.y > y) && x < a.x + (y - a.y) / (b.y - a.y) * (b.x - a.x)) {
          dedans = !dedans;
        }
      }
    }
    return dedans;
  }
};

TEST_F(TerresDuMonde, ContinentsAreLandUpToTheSeamAndThePole) {
  for (const char *fichier : {"Contours.Asc", "Totale.asc"}) {
    EXPECT_TRUE(Contient(fichier, 48, 2)) << fichier;       // Paris
    EXPECT_TRUE(Contient(fichier, 67.5, 179.9)) << fichier; // Chukotka, west of 180 degrees
    EXPECT_TRUE(Contient(fichier, 67.5, -179.9)) << fichier;
    EXPECT_TRUE(Contient(fichier, -89.9, 100)) << fichier; // Antarctica
    EXPECT_TRUE(Contient(fichier, -85, 179.9)) << fichier;
    EXPECT_TRUE(Contient(fichier, -25, 134)) << fichier; // Australia
  }
}

TEST_F(TerresDuMonde, OceansAreWater) {
  for (const char *fichier : {"Contours.Asc", "Totale.asc", "Iles.Asc"}) {
    EXPECT_FALSE(Contient(fichier, 45, -30)) << fichier;
    EXPECT_FALSE(Contient(fichier, 0, 179.9)) << fichier;
    EXPECT_FALSE(Contient(fichier, -60, -179.9)) << fichier;
    EXPECT_FALSE(Contient(fichier, 89, 0)) << fichier;
    EXPECT_FALSE(Contient(fichier, 36, 18)) << fichier; // Mediterranean
  }
}

TEST_F(TerresDuMonde, IslandsAndLakesHaveTheirOwnFiles) {
  EXPECT_TRUE(Contient("Iles.Asc", 71.2, 179.5)); // Wrangel Island lies on both sides of 180 degrees
  EXPECT_TRUE(Contient("Iles.Asc", 71.2, -179.5));
  EXPECT_TRUE(Contient("Iles.Asc", 48.46, -5.09)); // Ushant
  EXPECT_TRUE(Contient("Lacs.Asc", -1, 33));       // Lake Victoria
  EXPECT_FALSE(Contient("Lacs.Asc", 48, 2));
}

TEST(Terres, TheShapeLiesWhereItsLinesLie) {
  Feuille feuille;
  Surface surface;
  surface.largeur = 16000;
  surface.hauteur = 10800;
  feuille.CentreX = 8000;
  feuille.CentreY = 5400;
  feuille.Zoom = 200;
  feuille.EchelleY = 54;
  feuille.EchelleX = 36;
  feuille.OrigineFeuille = {47.5F, 5.0F};
  const VueCarte vue = ChoisitVue(feuille, surface);
  const Aire aire = AireSurCarte(vue, feuille, Teinte::Terre, nullptr);
  for (const auto &[x, y] : {std::pair{0.486, 0.540}, {0.5, 0.5}, {0.1, 0.7}}) {
    const Point ligne = PlaceSurCarte(vue, feuille, x, y);
    EXPECT_NEAR(aire.origine.x + x * aire.unite.x, ligne.x, 1e-6);
    EXPECT_NEAR(aire.origine.y + y * aire.unite.y, ligne.y, 1e-6);
  }
}

} // namespace
} // namespace velmaris::essais
