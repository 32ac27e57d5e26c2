#include "shell/ecran/Echelle.hpp"

#include "chart/Projection.hpp"
#include "shell/Demarrage.hpp"
#include "shell/ecran/Disposition.hpp"
#include "tests/shell/bureau/OutilsBureau.hpp"

#include <gtest/gtest.h>

#include <numbers>
#include <utility>

namespace velmaris::essais {
namespace {

class EchelleEcran : public Programme {};

TEST_F(EchelleEcran, AScreenCountsTheHeightWithWhichTheWorldAgreesWithItself) {
  for (const double haut : {736.0, 768.0, 1048.0, 1080.0, 1440.0, 2128.0}) {
    const Ecran ecran = EcranDe(1920, haut, 1080);
    EXPECT_DOUBLE_EQ(ecran.hauteur, 12592.5) << haut;
    EXPECT_DOUBLE_EQ(ecran.echelle, (haut - 32) / 839.5);
    EXPECT_DOUBLE_EQ(ecran.largeur, 1920 * 15 / ecran.echelle);
  }
}

TEST_F(EchelleEcran, AScreenThatIsNotThereIsTakenForASmallOne) {
  for (const auto &[largeur, hauteur] : {std::pair{0.0, 0.0}, {-5.0, 20.0}, {640.0, 400.0}}) {
    const Ecran ecran = EcranDe(largeur, hauteur, 0);
    EXPECT_EQ(ecran.echelle, kEchelleMinimale);
    EXPECT_EQ(ecran.largeur, 640 * 15 / 0.8);
    EXPECT_EQ(ecran.hauteur, (400 - 32) * 15 / 0.8);
  }
}

TEST_F(EchelleEcran, TheSurfaceIsAsHighAsTheWorldHasMilesFromPoleToPole) {
  Demarre(EcranDe(1920, 1080, 1080));
  EXPECT_NEAR(bureau.image1.hauteur, 10800, 1e-9);
}

TEST_F(EchelleEcran, OverTheWholeWorldOutlinesLieWherePlacesAndTheMouseAre) {
  for (const auto &[largeur, hauteur] : {std::pair{1366, 768}, {1920, 1080}, {2560, 1440}, {3840, 2160}}) {
    const Ecran ecran = EcranDe(largeur, hauteur, hauteur);
    const double pixel = 15 / ecran.echelle;
    DisposeFenetre(bureau, ecran);
    Feuille &feuille = bureau.feuille;
    feuille.OrigineFeuille = kSansFeuille;
    const VueCarte vue = ChoisitVue(feuille, bureau.image1);
    for (double latitude = -90; latitude <= 90; latitude += 15) {
      for (double longitude = -180; longitude <= 180; longitude += 15) {
        // Of the files' square the world takes the lower 0.70711.
        const double y = (90 + latitude) / 180 / std::numbers::sqrt2;
        const Point trait = PlaceSurCarte(vue, feuille, (180 - longitude) / 360, y);
        const Point lieu = PointDePlace(feuille, latitude, longitude);
        EXPECT_NEAR(trait.x, lieu.x, pixel);
        EXPECT_NEAR(trait.y, lieu.y, pixel);
        const PlaceCarte sous = PlaceSousPoint(feuille, trait);
        EXPECT_NEAR(sous.latitude, latitude, 1e-3);
        EXPECT_NEAR(sous.longitude, longitude, 1e-3);
      }
    }
  }
}

TEST_F(EchelleEcran, NoScreenIsSoLowThatNothingCouldBeRead) {
  const Ecran ecran = EcranDe(1024, 600, 600);
  EXPECT_DOUBLE_EQ(ecran.echelle, 0.8);
  EXPECT_DOUBLE_EQ(ecran.hauteur, 568 * 15 / 0.8);
  EXPECT_DOUBLE_EQ(ecran.largeur, 1024 * 15 / 0.8);
}

TEST_F(EchelleEcran, TheCompactLayoutGoesByRealPixels) {
  Demarre(EcranDe(1092.8, 614.4, 768)); // 1366x768 at a desktop's 125 %
  EXPECT_FALSE(d.Label72.visible);
}

TEST_F(EchelleEcran, TheCompactLayoutIsForLessThan700) {
  Demarre(EcranDe(1024, 600, 600));
  EXPECT_TRUE(d.Label72.visible);
}

TEST_F(EchelleEcran, ContentFillsItsWindowAndIsNeverCut) {
  Demarre(EcranDe(1920, 1080, 1080));
  for (const auto &[largeur, hauteur] : {std::pair{1920.0, 1040.0}, {640.0, 400.0}, {3840.0, 900.0}, {700.0, 2000.0}}) {
    const double f = EchelleContenu(bureau, largeur, hauteur) / 15;
    EXPECT_LE(bureau.largeurFenetre * f, largeur + 1e-9);
    EXPECT_LE(bureau.hauteurFenetre * f, hauteur + 1e-9);
    EXPECT_TRUE(bureau.largeurFenetre * f > largeur - 1e-9 || bureau.hauteurFenetre * f > hauteur - 1e-9);
  }
}

TEST_F(EchelleEcran, TheUsersSizeMultipliesTheScaleAndTheLayoutStaysAsItIs) {
  Demarre(EcranDe(1920, 1080, 1080));
  const Place surface = d.Image1.place;
  const double automatique = EchelleContenu(bureau, 1000, 700);
  ClicControle(bureau, d.PU_TaillePlus);
  EXPECT_EQ(bureau.taille, 110);
  EXPECT_DOUBLE_EQ(EchelleContenu(bureau, 1000, 700), automatique * 1.1);
  EXPECT_DOUBLE_EQ(EchelleFenetre(bureau), bureau.ecran.echelle * 1.1);
  EXPECT_EQ(d.Image1.place, surface);
}

TEST_F(EchelleEcran, TheSizeGoesFrom80To200PercentAndBackToTheScreens) {
  Demarre();
  EXPECT_EQ(d.PU_TailleAuto.valeur, 1);
  for (int i = 0; i < 20; ++i) {
    ClicControle(bureau, d.PU_TaillePlus);
  }
  EXPECT_EQ(bureau.taille, 200);
  EXPECT_EQ(d.PU_TailleAuto.valeur, 0);
  for (int i = 0; i < 20; ++i) {
    ClicControle(bureau, d.PU_TailleMoins);
  }
  EXPECT_EQ(bureau.taille, 80);
  ClicControle(bureau, d.PU_TailleAuto);
  EXPECT_EQ(bureau.taille, 100);
  EXPECT_EQ(d.PU_TailleAuto.valeur, 1);
}

TEST_F(EchelleEcran, TheSizeIsKeptForTheNextStartAndAnotherPercentIsNone) {
  Demarre();
  ClicControle(bureau, d.PU_TailleMoins);
  EXPECT_EQ(LitReglage(bureau, "Taille", ""), "90");
  LitTaille(bureau);
  EXPECT_EQ(bureau.taille, 90);
  for (const char *inconnue : {"", "grand", "81", "1000", "-90"}) {
    EcritReglage(bureau, "Taille", inconnue);
    LitTaille(bureau);
    EXPECT_EQ(bureau.taille, 100) << inconnue;
  }
}

TEST_F(EchelleEcran, AWindowOverTheMainOneFitsItsScreen) {
  Demarre(EcranDe(1024, 600, 600));
  const CadreFenetre cadre{"grande", "", 12000, 11000};
  const double f = EchelleDialogue(bureau, cadre, 1024, 600) / 15;
  EXPECT_NEAR(cadre.hauteur * f, 568, 1e-9);
  const CadreFenetre petite{"petite", "", 3000, 3000};
  EXPECT_DOUBLE_EQ(EchelleDialogue(bureau, petite, 1024, 600), 0.8);
}

TEST_F(EchelleEcran, TheSkyWindowScalesDownUntilItsStripFitsAndNeverUp) {
  Demarre(EcranDe(1920, 1080, 1080));
  EXPECT_DOUBLE_EQ(EchelleCiel(bureau, 1900, 1000), bureau.ecran.echelle);
  EXPECT_LE(12900 * EchelleCiel(bureau, 640, 1000) / 15, 640);
  EXPECT_LE((2070 + 255 + 400) * EchelleCiel(bureau, 1900, 300) / 15, 300);
}

TEST_F(EchelleEcran, ThePrintPageFillsItsWindow) {
  const CadreFenetre cadre{"page", "", 15000, 10000};
  EXPECT_DOUBLE_EQ(EchellePage(cadre, 1500, 5000), 1.5);
  EXPECT_DOUBLE_EQ(EchellePage(cadre, 5000, 500), 0.75);
}

TEST_F(EchelleEcran, F11FillsTheScreenAndGivesItBack) {
  Demarre();
  EXPECT_TRUE(Donnees_KeyDown(bureau, kToucheF1 + 10));
  EXPECT_TRUE(bureau.pleinEcran);
  EXPECT_EQ(d.PU_PleinEcran.valeur, 1);
  ClicControle(bureau, d.PU_PleinEcran);
  EXPECT_FALSE(bureau.pleinEcran);
}

} // namespace
} // namespace velmaris::essais
