#include "OutilsPapier.hpp"
#include "complements/papier/Canevas.hpp"
#include "complements/papier/PageDuJour.hpp"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>

/// Plotting sheets in true scale, and the day's page on one.
namespace velmaris {
namespace {

using essais::MotsDe;
using testing::HasSubstr;

constexpr double kRadian = std::numbers::pi / 180;

double Longueur(Point a, Point b) { return std::hypot(a.x - b.x, a.y - b.y); }

TEST(Canevas, AMileIsAsLongInEveryDirectionFromTheMiddle) {
  for (const double latitude : {-70.0, -33.2, 0.0, 47.5, 80.0}) {
    const PlanVrai plan{{latitude, 179.9}, {5000, 5000}, 100};
    const double departement = std::cos(latitude * kRadian);
    const Point nord = plan.PointDe({latitude + 10 / 60.0, 179.9});
    const Point est = plan.PointDe({latitude, 179.9 + 10 / 60.0 / departement - 360}); // over the date line
    EXPECT_NEAR(Longueur(plan.centre, nord), 1000, 1e-6);
    EXPECT_NEAR(Longueur(plan.centre, est), 1000, 1e-6);
    EXPECT_LT(nord.y, plan.centre.y) << "north is up";
    EXPECT_GT(est.x, plan.centre.x) << "east is right";
  }
}

TEST(Canevas, ALineIsCutAtTheSheetsEdge) {
  const CadrePage cadre{{0, 0}, {100, 50}};
  const auto morceaux = CoupeAuCadre({{-50, 25}, {150, 25}}, cadre);
  ASSERT_EQ(morceaux.size(), 1U);
  EXPECT_EQ(morceaux[0].front(), (Point{0, 25}));
  EXPECT_EQ(morceaux[0].back(), (Point{100, 25}));
  EXPECT_TRUE(CoupeAuCadre({{-50, -25}, {150, -25}}, cadre).empty());
  EXPECT_EQ(CoupeAuCadre({{10, 10}, {20, 10}, {200, 10}, {200, 40}, {20, 40}}, cadre).size(), 2U)
      << "it leaves and comes back";
}

MotsCanevas Mots() { return {"milles", "plan autour de ", " ; une minute vaut "}; }

bool APourMot(const Feuillet &page, const std::string &texte) {
  const auto mots = MotsDe(page);
  return std::any_of(mots.begin(), mots.end(), [&](const MotFeuillet &m) { return m.texte == texte; });
}

TEST(PageVierge, ParallelsStandAMinuteOfLatitudeApartAndBearTheirFigures) {
  const Feuillet page = PageVierge(47, 60, FormatPapier::A4, "Titre", "Pied", Mots());
  const auto mots = MotsDe(page);
  const auto pied = [&](const std::string &texte) {
    const auto mot = std::find_if(mots.begin(), mots.end(), [&](const MotFeuillet &m) { return m.texte == texte; });
    EXPECT_NE(mot, mots.end()) << texte;
    return mot == mots.end() ? 0.0 : mot->pied.y;
  };
  const double dixMinutes = pied("46° 50' N") - pied("47° N");
  EXPECT_NEAR(pied("47° N") - pied("47° 10' N"), dixMinutes, 1e-6);
  EXPECT_NEAR(dixMinutes, (page.hauteur - 3500) / 6, 1) << "sixty minutes from foot to head";
  EXPECT_TRUE(std::any_of(mots.begin(), mots.end(), [](const MotFeuillet &m) {
    return m.texte.find("47° 00.0' N") != std::string::npos && m.texte.find("0.682 M") != std::string::npos;
  })) << "it says what it is a chart of";
}

TEST(PageVierge, MeridiansHaveTheDepartureOfTheMiddleLatitudeAndNoFigures) {
  const Feuillet page = PageVierge(-60, 120, FormatPapier::Lettre, "Titre", "Pied", Mots());
  std::vector<double> meridiens;
  for (const ElementFeuillet &e : page.elements) {
    const auto *trait = std::get_if<TraitFeuillet>(&e);
    if (trait != nullptr && trait->points.size() == 2 && trait->points[0].x == trait->points[1].x &&
        Longueur(trait->points[0], trait->points[1]) > 5000) {
      meridiens.push_back(trait->points[0].x);
    }
  }
  ASSERT_GE(meridiens.size(), 3U);
  const double mille = (page.hauteur - 3500) / 120;
  const double pas = (meridiens[1] - meridiens[0]) / mille / std::cos(60 * kRadian);
  EXPECT_NEAR(pas, std::round(pas), 1e-6) << "whole minutes of longitude";
  EXPECT_FALSE(APourMot(page, "0°"));
}

DonneesJour JourDEssai() {
  DonneesJour jour;
  jour.point = PointDuJour{{47.17, -4.73}, {1.5, 0.6, 40}, "05:45"};
  jour.route = {{47.1, -4.9}, {47.17, -4.73}};
  jour.droites = {{"Vega 05:31", {47.17, -4.73}, 60, 0.4, 45, true},
                  {"Mars 05:40", {47.17, -4.73}, 170, -0.8, 30, false}};
  jour.lignes = {"Point de 05:45"};
  jour.visees.resize(2);
  jour.visees[0][0] = "Vega";
  jour.meteo = {"SW 5", ""};
  return jour;
}

MotsJour MotsDEssai() {
  MotsJour mots;
  mots.titre = "Page du jour";
  mots.suite = " (suite)";
  mots.meteo = {"Vent", "Mer"};
  mots.canevas = Mots();
  return mots;
}

TEST(PageDuJour, ALineStandsItsMilesFromTheFixAcrossItsAzimuth) {
  DonneesJour jour = JourDEssai();
  jour.droites.resize(1);
  jour.droites[0].hauteur = 0; // a straight one
  const Feuillet page = PagesDuJour(jour, FormatPapier::A4, MotsDEssai()).front();
  const CadrePage cadre{{1400, 1350}, {page.largeur - 720, 1350 + 0.535 * 15840}};
  const PlanVrai plan = PlanDuJour(jour, cadre);
  const Point fixe = plan.PointDe(jour.point->lieu);
  bool vue = false;
  for (const ElementFeuillet &e : page.elements) {
    const auto *trait = std::get_if<TraitFeuillet>(&e);
    if (trait == nullptr || trait->ferme || trait->encre.largeur != 0.9) {
      continue;
    }
    const Point a = trait->points.front();
    const Point b = trait->points.back();
    const double loin = std::fabs((b.x - a.x) * (a.y - fixe.y) - (a.x - fixe.x) * (b.y - a.y)) / Longueur(a, b);
    EXPECT_NEAR(loin / plan.mille, 0.4, 1e-6);
    const double direction = std::atan2(b.x - a.x, a.y - b.y) / kRadian;
    EXPECT_NEAR(std::remainder(direction - (60 + 90), 180.0), 0, 1e-6);
    vue = true;
  }
  EXPECT_TRUE(vue);
}

TEST(PageDuJour, TheChartShowsFixTrackAndLines) {
  const DonneesJour jour = JourDEssai();
  const CadrePage cadre{{1000, 1000}, {11000, 9000}};
  const PlanVrai plan = PlanDuJour(jour, cadre);
  for (const LieuNavire &lieu : jour.route) {
    const Point p = plan.PointDe(lieu);
    EXPECT_TRUE(p.x > 1000 && p.x < 11000 && p.y > 1000 && p.y < 9000);
  }
  EXPECT_LT(10000 / plan.mille, 60) << "and no more of the sea than that";
}

TEST(PageDuJour, ADayOnTheDateLineIsNoJourneyRoundTheWorld) {
  DonneesJour jour = JourDEssai();
  jour.point->lieu = {-20, 179.98};
  jour.route = {{-20, 179.9}, {-20.02, -179.95}};
  jour.droites.clear();
  const PlanVrai plan = PlanDuJour(jour, {{1000, 1000}, {11000, 9000}});
  EXPECT_LT(10000 / plan.mille, 60);
  EXPECT_NEAR(std::fabs(plan.milieu.longitude), 180, 0.1);
}

TEST(PageDuJour, ALongTableGoesOnOnFurtherPagesAndLosesNoRow) {
  DonneesJour jour = JourDEssai();
  jour.visees.clear();
  for (int i = 0; i < 200; ++i) {
    jour.visees.emplace_back();
    jour.visees.back()[0] = "visée " + std::to_string(i);
  }
  const std::vector<Feuillet> pages = PagesDuJour(jour, FormatPapier::Lettre, MotsDEssai());
  ASSERT_GE(pages.size(), 3U);
  int rangees = 0;
  for (const Feuillet &page : pages) {
    for (const MotFeuillet &mot : MotsDe(page)) {
      rangees += mot.texte.rfind("visée ", 0) == 0 ? 1 : 0;
      EXPECT_LT(mot.pied.y, page.hauteur - 500) << mot.texte;
    }
  }
  EXPECT_EQ(rangees, 200);
  EXPECT_TRUE(APourMot(pages[1], "Page du jour (suite)"));
}

TEST(PageDuJour, TypedWeatherStandsAndWhatIsEmptyIsABlank) {
  const Feuillet page = PagesDuJour(JourDEssai(), FormatPapier::A4, MotsDEssai()).front();
  EXPECT_TRUE(APourMot(page, "SW 5"));
  EXPECT_TRUE(APourMot(page, "Mer"));
}

TEST(PageDuJour, ALongRemarkGoesOnOnFurtherLinesAndLosesNoWord) {
  DonneesJour jour = JourDEssai();
  std::string remarque;
  for (int i = 0; i < 60; ++i) {
    remarque += (i == 0 ? "" : " ") + std::string("élément") + std::to_string(i);
  }
  jour.meteo = {"NW 4 à 5, fraîchissant NW 6 en rafales sous les grains de la fin de l'après-midi", remarque};
  const Feuillet page = PagesDuJour(jour, FormatPapier::A4, MotsDEssai()).front();
  std::string ecrite;
  for (const MotFeuillet &mot : MotsDe(page)) {
    EXPECT_LT(mot.texte.size(), 130U) << mot.texte;
    ecrite += mot.texte.find("élément") == std::string::npos ? "" : (ecrite.empty() ? "" : " ") + mot.texte;
  }
  EXPECT_EQ(ecrite, remarque);
}

TEST(PageDuJour, WithoutAnythingItIsABlankSheet) {
  EXPECT_EQ(PagesDuJour({}, FormatPapier::A4, MotsDEssai()).size(), 1U);
}

} // namespace
} // namespace velmaris
