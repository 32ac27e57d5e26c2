#include "lines/Feuille.hpp"

#include "tests/lines/OutilsFeuille.hpp"

#include <gtest/gtest.h>

#include <cmath>

namespace velmaris {
namespace {

using namespace essais;

constexpr double kCentreX = kLargeur / 2;
constexpr double kCentreY = kHauteur / 2;

TEST(NewSheet, AnInterceptOfZeroLeavesEverythingAsItIs) {
  Planche p = PlancheCourante();
  Ecrit(p.surface, "before");
  p.valeurs.Intercept = 0;
  NouvelleFeuille(p);
  EXPECT_EQ(p.surface.traces.size(), 1U);
  EXPECT_EQ(p.surface.effacements, 0U);
  EXPECT_EQ(p.feuille.OrigineFeuille, kSansFeuille);
  EXPECT_EQ(p.feuille.OrigineFeuille, (Origine{100.0F, 300.0F}));
  EXPECT_EQ(p.feuille.EchelleY, 0.0F);
  EXPECT_EQ(p.feuille.LabLon, "");
}

TEST(NewSheet, ClearsTheSurfaceOnce) {
  Planche p = PlancheCourante();
  Ecrit(p.surface, "before");
  NouvelleFeuille(p);
  EXPECT_EQ(p.surface.effacements, 1U);
  for (const TexteTrace &t : Textes(p.surface)) {
    EXPECT_NE(t.texte, "before");
  }
}

TEST(NewSheet, ItsCentreIsTheEstimatedPositionReadFromTheFields) {
  Planche p = PlancheCourante();
  p.valeurs.LonEstimee = 99;
  NouvelleFeuille(p);
  EXPECT_EQ(p.feuille.OrigineFeuille, (Origine{45.5F, 5.25F}));
  EXPECT_EQ(p.valeurs.LonEstimee, 5.25F);
  EXPECT_EQ(p.feuille.CentreX, kCentreX);
  EXPECT_EQ(p.feuille.CentreY, kCentreY);
  EXPECT_EQ(PlaceSurFeuille(p.feuille, 45.5, 5.25), (Point{kCentreX, kCentreY}));
}

TEST(NewSheet, AMileIsTheHeightOverTheZoomThroughTheIntercept) {
  for (const float intercept : {12.5F, -0.37F, 0.01F, -80.25F}) {
    Planche p = PlancheCourante(70);
    p.valeurs.Intercept = intercept;
    NouvelleFeuille(p);
    const auto longueur = static_cast<float>(kHauteur / 70 * double{intercept});
    EXPECT_EQ(p.feuille.LongueurIntercept, longueur);
    EXPECT_EQ(p.feuille.EchelleY, static_cast<float>(double{longueur} / double{intercept}));
    EXPECT_NEAR(p.feuille.EchelleY, kHauteur / 70, 2E-5);
  }
}

TEST(NewSheet, AMinuteOfLongitudeShrinksWithTheCosineOfTheLatitude) {
  for (const int latitude : {0, 30, 45, 60, 75, 89}) {
    for (const bool sud : {false, true}) {
      Planche p = PlancheCourante();
      p.observation = Position(latitude, 0, sud, 5, 15, false);
      LitEstime(p.observation, p.valeurs);
      NouvelleFeuille(p);
      const double rapport = std::cos(latitude * std::atan(1.0) / 45);
      EXPECT_NEAR(p.feuille.EchelleX / p.feuille.EchelleY, rapport, 1E-7) << latitude;
      EXPECT_EQ(p.feuille.EchelleX, static_cast<float>(p.feuille.EchelleY * std::cos(latitude * 0.017453292)));
    }
  }
}

TEST(NewSheet, AtThePoleTheMeridiansCloseUp) {
  Planche p = PlancheQuadrillee(Position(90, 0, false, 5, 15, false), 60);
  NouvelleFeuille(p);
  EXPECT_NEAR(p.feuille.EchelleX, 0.0, 1E-4);
  EXPECT_GT(Segments(p.surface).size(), 161U + 121U);
}

TEST(NewSheet, EastIsRightAndNorthIsUp) {
  Planche p = PlancheCourante();
  NouvelleFeuille(p);
  const double mille = p.feuille.EchelleY;
  const double minute = p.feuille.EchelleX;
  EXPECT_TRUE(Pres(PlaceSurFeuille(p.feuille, 45.5 + 10 / 60.0, 5.25), {kCentreX, kCentreY - 10 * mille}));
  EXPECT_TRUE(Pres(PlaceSurFeuille(p.feuille, 45.5, 5.25 - 10 / 60.0), {kCentreX + 10 * minute, kCentreY}));
}

TEST(NewSheet, ItsCaptionsNameTheSides) {
  Planche p = PlancheCourante();
  NouvelleFeuille(p);
  EXPECT_EQ(p.feuille.LabLon, "L O N G I T U D E   O U E S T");
  EXPECT_EQ(p.feuille.LabLat, "L\nA\nT\nI\nT\nU\nD\nE\n \nN\nO\nR\nD");
  p.observation.est = true;
  p.observation.sud = true;
  NouvelleFeuille(p);
  EXPECT_EQ(p.feuille.LabLon, "L O N G I T U D E   E S T");
  EXPECT_EQ(p.feuille.LabLat, "L\nA\nT\nI\nT\nU\nD\nE\n \nS\nU\nD");
}

/// The four strokes of a cross from the centre, in their order and pen.
void VerifieCroix(const std::vector<Segment> &segments, std::size_t debut, double vertical, double horizontal) {
  const Point fins[] = {{kCentreX, kCentreY + vertical},
                        {kCentreX, kCentreY - vertical},
                        {kCentreX - horizontal, kCentreY},
                        {kCentreX + horizontal, kCentreY}};
  ASSERT_GE(segments.size(), debut + 4);
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(segments[debut + i].plume, (Plume{kNoir, 1, Style::TiretPoint}));
    EXPECT_EQ(segments[debut + i].debut, (Point{kCentreX, kCentreY}));
    EXPECT_EQ(segments[debut + i].fin, fins[i]);
  }
}

TEST(NewSheet, TheCentreHasACircleAndFourDashedStrokes) {
  Planche p = PlancheCourante(150);
  p.feuille.Grille = 1;
  NouvelleFeuille(p);
  ASSERT_FALSE(p.surface.traces.empty());
  const auto *cercle = std::get_if<CercleTrace>(&p.surface.traces.front());
  ASSERT_NE(cercle, nullptr);
  EXPECT_EQ(cercle->centre, (Point{kCentreX, kCentreY}));
  EXPECT_EQ(cercle->rayon, kLargeur / 200.0);
  VerifieCroix(Segments(p.surface), 0, kHauteur / 25.0, kLargeur / 30.0);
  EXPECT_EQ(p.surface.style, Style::Plein);
}

TEST(PositionRose, BearsThePositionItsCircleAndThirteenPoints) {
  Planche p = PlancheCourante();
  NouvelleFeuille(p);
  const auto textes = Textes(p.surface);
  ASSERT_GE(textes.size(), 2U);
  EXPECT_EQ(textes[0].texte, "05° 15' W");
  EXPECT_EQ(textes[0].position, (Point{kCentreX, kCentreY - kHauteur / 5.0}));
  EXPECT_EQ(textes[1].texte, "45° 30' N");
  EXPECT_EQ(textes[1].position, (Point{kCentreX - kLargeur / 6.0, kCentreY}));
  const auto cercles = Cercles(p.surface);
  ASSERT_EQ(cercles.size(), 15U);
  EXPECT_EQ(cercles[1].rayon, kLargeur / 15.0);
  EXPECT_EQ(cercles[1].plume.couleur, Rvb(220, 220, 220));
  VerifieCroix(Segments(p.surface), 4, kHauteur / 5.0, kLargeur / 6.0);
  for (std::size_t n = 0; n <= 12; ++n) {
    const double angle = 2 * kPi * static_cast<double>(n) / 12;
    EXPECT_EQ(cercles[2 + n].rayon, kLargeur / 250.0);
    EXPECT_TRUE(Pres(cercles[2 + n].centre,
                     {kCentreX + std::sin(angle) * kLargeur / 15, kCentreY + std::cos(angle) * kLargeur / 15}));
  }
  EXPECT_TRUE(Pres(cercles[2].centre, cercles[14].centre)) << "the thirteenth point closes the circle";
}

TEST(PositionRose, WritesTheFieldsAsTheyStandAndTheirSides) {
  Planche p = PlancheCourante();
  p.observation.longitudeDegres = "005";
  p.observation.latitudeMinutes = "";
  p.observation.est = true;
  p.observation.sud = true;
  NouvelleFeuille(p);
  EXPECT_EQ(Textes(p.surface)[0].texte, "005° 15' E");
  EXPECT_EQ(Textes(p.surface)[1].texte, "45° ' S");
}

TEST(PositionRose, IsDrawnWithoutTheGridOrUnderAHundredMiles) {
  for (const auto &[grille, zoom, rose] : {std::tuple{1, 60, true},
                                           {1, 100, true},
                                           {1, 3000, true},
                                           {0, 99, true},
                                           {0, 100, false},
                                           {0, 500, false},
                                           {0, 20, true}}) {
    Planche p = PlancheCourante(zoom);
    p.feuille.Grille = static_cast<std::int16_t>(grille);
    NouvelleFeuille(p);
    EXPECT_EQ(Cercles(p.surface).size(), rose ? 15U : 1U) << grille << ' ' << zoom;
  }
}

TEST(NewSheet, TheGridIsDrawnOnlyWhenItsSwitchIsZero) {
  for (const int grille : {0, 1}) {
    Planche p = PlancheCourante();
    p.feuille.Grille = static_cast<std::int16_t>(grille);
    NouvelleFeuille(p);
    EXPECT_EQ(EnCouleur(p.surface, Rvb(150, 150, 150)).empty(), grille == 1);
  }
}

TEST(NewSheet, ItsLineIsYellowThroughTheFootOfTheIntercept) {
  Planche p = PlancheCourante();
  NouvelleFeuille(p);
  const auto jaunes = EnCouleur(p.surface, 0x00FFFF);
  ASSERT_EQ(jaunes.size(), 1U);
  // Towards 135 degrees: right and down; the line runs across, a third of the height to each side.
  const double g = 12.5 * kHauteur / 60;
  const double r = std::sqrt(0.5);
  const Point pied{kCentreX + g * r, kCentreY + g * r};
  EXPECT_TRUE(Pres(jaunes[0].debut, {pied.x - kHauteur / 3 * r, pied.y + kHauteur / 3 * r}, 0.01));
  EXPECT_TRUE(Pres(jaunes[0].fin, {pied.x + kHauteur / 3 * r, pied.y - kHauteur / 3 * r}, 0.01));
  EXPECT_EQ(EnCouleur(p.surface, kMagenta).size(), 12U);
}

TEST(NewSheet, TheScaleBarStandsBetweenTheLineAndTheArrow) {
  Planche p = PlancheCourante();
  NouvelleFeuille(p);
  const auto textes = Textes(p.surface);
  std::size_t intercept = 0;
  std::size_t barre = 0;
  std::size_t azimut = 0;
  for (std::size_t i = 0; i < textes.size(); ++i) {
    intercept = textes[i].texte == "12.5 '" ? i : intercept;
    barre = textes[i].texte == "Milles Nautiques " ? i : barre;
    azimut = textes[i].texte == "135. °" ? i : azimut;
  }
  EXPECT_LT(0U, intercept);
  EXPECT_LT(intercept, barre);
  EXPECT_LT(barre, azimut);
  EXPECT_EQ(azimut, textes.size() - 1);
}

TEST(NewSheet, LeavesTheArrowsDirectionAndAThinPen) {
  Planche p = PlancheCourante();
  NouvelleFeuille(p);
  EXPECT_EQ(p.feuille.AngleDroite, static_cast<float>(45.0 * kPi / 180.0));
  EXPECT_EQ(p.surface.epaisseur, 1);
  EXPECT_EQ(p.surface.style, Style::Plein);
}

TEST(NewSheet, AZoomOfZeroIsPassedOver) {
  Planche p = PlancheCourante(0);
  NouvelleFeuille(p);
  EXPECT_EQ(p.feuille.OrigineFeuille, (Origine{45.5F, 5.25F}));
  EXPECT_EQ(p.feuille.EchelleY, 0.0F);
}

TEST(BodyColour, SunBlueMoonGreyPlanetsMagentaStarsGreen) {
  EXPECT_EQ(CouleurDroite(Corps::Soleil), 0xFF0000U);
  EXPECT_EQ(CouleurDroite(Corps::Lune), 0x828282U);
  EXPECT_EQ(CouleurDroite(Corps::Planetes), 0xFF00FFU);
  EXPECT_EQ(CouleurDroite(Corps::Etoiles), 0x00C000U);
}

TEST(AddedLine, StandsAtItsOwnPositionOnTheScalesOfTheFirst) {
  Planche p = PlancheCourante();
  NouvelleFeuille(p);
  const float echelleX = p.feuille.EchelleX;
  const float echelleY = p.feuille.EchelleY;
  p.surface.traces.clear();
  p.observation = Position(45, 40, false, 5, 5, false);
  p.observation.corps = Corps::Lune;
  p.valeurs.Azimut = 200;
  p.valeurs.Intercept = -3.5F;
  AjouDroites(p.feuille, p.surface, p.observation, p.valeurs);
  EXPECT_EQ(p.feuille.EchelleX, echelleX);
  EXPECT_EQ(p.feuille.EchelleY, echelleY);
  EXPECT_EQ(p.feuille.OrigineFeuille, (Origine{45.5F, 5.25F}));
  EXPECT_EQ(p.valeurs.LatEstimee, static_cast<float>(45 + 40 / 60.0));
  const Point depart{kCentreX + 10 * double{echelleX}, kCentreY - 10 * double{echelleY}};
  const auto cercles = Cercles(p.surface);
  ASSERT_EQ(cercles.size(), 1U);
  EXPECT_TRUE(Pres(cercles[0].centre, depart, 0.05));
  EXPECT_EQ(cercles[0].rayon, kLargeur / 200.0);
  const auto fleche = EnCouleur(p.surface, Rvb(130, 130, 130));
  ASSERT_EQ(fleche.size(), 4U);
  EXPECT_TRUE(Pres(fleche[0].debut, depart, 0.05));
}

TEST(AddedLine, IsRedWithItsTicksAndFigureLast) {
  Planche p = PlancheCourante();
  NouvelleFeuille(p);
  p.surface.traces.clear();
  p.valeurs.Azimut = 200;
  p.valeurs.Intercept = -3.5F;
  AjouDroites(p.feuille, p.surface, p.observation, p.valeurs);
  const auto rouges = EnCouleur(p.surface, 0x0000FF);
  ASSERT_EQ(rouges.size(), 1U);
  EXPECT_EQ(rouges[0].plume.largeur, 1);
  EXPECT_EQ(EnCouleur(p.surface, kMagenta).size(), 3U);
  EXPECT_EQ(Textes(p.surface).back().texte, "-3.5 '");
  EXPECT_EQ(p.feuille.AngleDroite, static_cast<float>((90.0 - 200.0) * kPi / 180.0));
  EXPECT_EQ(p.feuille.LongueurIntercept, static_cast<float>(kHauteur / 60 * -3.5));
  const double t = p.feuille.AngleDroite;
  const double g = p.feuille.LongueurIntercept;
  const Point pied{kCentreX + g * std::cos(t), kCentreY - g * std::sin(t)};
  EXPECT_TRUE(Pres({(rouges[0].debut.x + rouges[0].fin.x) / 2, (rouges[0].debut.y + rouges[0].fin.y) / 2}, pied));
}

TEST(AddedLine, AnInterceptOfZeroStillDrawsItsArrow) {
  Planche p = PlancheCourante();
  NouvelleFeuille(p);
  p.surface.traces.clear();
  p.valeurs.Intercept = 0;
  AjouDroites(p.feuille, p.surface, p.observation, p.valeurs);
  EXPECT_EQ(EnCouleur(p.surface, kBleu).size(), 4U);
  EXPECT_TRUE(EnCouleur(p.surface, 0x0000FF).empty());
  EXPECT_EQ(Textes(p.surface).back().texte, ".0 '");
}

TEST(AddedLine, DoesNotClearAndDrawsNoGridCrossOrBar) {
  Planche p = PlancheCourante();
  p.feuille.Grille = 0;
  NouvelleFeuille(p);
  p.surface.traces.clear();
  AjouDroites(p.feuille, p.surface, p.observation, p.valeurs);
  EXPECT_EQ(p.surface.effacements, 1U);
  EXPECT_TRUE(EnCouleur(p.surface, kNoir).empty());
  EXPECT_EQ(Textes(p.surface).size(), 2U);
}

TEST(AddedLine, FromTwoHundredAndFiftyMilesOnHasNoTicks) {
  for (const auto &[zoom, traits] : {std::pair{249, 12U}, {250, 0U}, {1000, 0U}}) {
    Planche p = PlancheCourante(zoom);
    NouvelleFeuille(p);
    p.surface.traces.clear();
    AjouDroites(p.feuille, p.surface, p.observation, p.valeurs);
    EXPECT_EQ(EnCouleur(p.surface, kMagenta).size(), traits) << zoom;
  }
}

} // namespace
} // namespace velmaris
