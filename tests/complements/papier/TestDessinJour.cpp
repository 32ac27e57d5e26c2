#include "OutilsPapier.hpp"
#include "complements/papier/DessinJour.hpp"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>

/// What the day's sheet has room for: names, times, the rose, the table.
namespace velmaris {
namespace {

using essais::MotsDe;

constexpr double kRadian = std::numbers::pi / 180;

MotsJour Mots() {
  MotsJour mots;
  mots.titre = "Page du jour";
  mots.suite = " (suite)";
  mots.meteo = {"Vent", "Mer"};
  return mots;
}

/// An evening of eight stars around a fix, and the track of its twenty minutes.
DonneesJour Soiree() {
  DonneesJour jour;
  const LieuNavire fixe{46.27, -7.17};
  jour.point = PointDuJour{fixe, {2.1, 1.1, 60}, "21:11"};
  for (int i = 0; i < 8; ++i) {
    jour.droites.push_back(
        {"Etoile" + std::to_string(i) + " 21:0" + std::to_string(i), fixe, 43.0 * i, 0.6 - 0.2 * i, 30, true});
    jour.route.push_back({46.2 + 0.01 * i, -7.3 + 0.018 * i});
    jour.heures.push_back("20:" + std::to_string(51 + i));
  }
  jour.lignes = {"Point", "Ellipse"};
  jour.visees.resize(8);
  jour.meteo = {"SW 5, fraîchissant 6 dans les grains, puis mollissant en fin de journée, pluie", ""};
  return jour;
}

/// Points along a word.
std::vector<Point> LeLong(const MotFeuillet &mot) {
  const double largeur = 75 * static_cast<double>(mot.texte.size());
  const double angle = mot.graphie.angle * kRadian;
  const double sens = mot.graphie.ancrage == Ancrage::Droite ? -1 : 1;
  std::vector<Point> points;
  for (double loin = 0; loin <= largeur; loin += 50) {
    points.push_back({mot.pied.x + sens * loin * std::cos(angle), mot.pied.y + sens * loin * std::sin(angle)});
  }
  return points;
}

double Entre(const std::vector<Point> &a, const std::vector<Point> &b) {
  double jeu = 1e9;
  for (const Point &p : a) {
    for (const Point &q : b) {
      jeu = std::min(jeu, std::hypot(p.x - q.x, p.y - q.y));
    }
  }
  return jeu;
}

class Feuille : public testing::Test {
protected:
  Feuillet Dessine(const DonneesJour &jour) {
    plan = PlanDuJour(jour, cadre);
    rose = PlaceDeLaRose(jour, plan, cadre, kRose);
    Feuillet page = FeuilletVide(FormatPapier::A4);
    DessinJour(page, plan, cadre, rose, kRose).Trace(jour);
    return page;
  }
  static constexpr double kRose = 800;
  CadrePage cadre{{1400, 1350}, {11000, 9800}};
  PlanVrai plan;
  Point rose;
};

TEST_F(Feuille, NoNameStandsOnAnotherOnTheFixOrOnTheRose) {
  const DonneesJour jour = Soiree();
  const Feuillet page = Dessine(jour);
  const std::vector<MotFeuillet> mots = MotsDe(page);
  const Point fixe = plan.PointDe(jour.point->lieu);
  std::size_t noms = 0;
  for (std::size_t i = 0; i < mots.size(); ++i) {
    noms += mots[i].texte.starts_with("Etoile") ? 1 : 0;
    for (std::size_t k = i + 1; k < mots.size(); ++k) {
      EXPECT_GT(Entre(LeLong(mots[i]), LeLong(mots[k])), 85) << mots[i].texte << " on " << mots[k].texte;
    }
    if (mots[i].texte.starts_with("Etoile")) {
      EXPECT_GT(Entre(LeLong(mots[i]), {fixe}), 100) << mots[i].texte;
    }
    EXPECT_GT(Entre(LeLong(mots[i]), {rose}), kRose - 60) << mots[i].texte;
  }
  EXPECT_EQ(noms, 8U) << "every line has its name";
}

TEST_F(Feuille, TheRoseLeavesTheDayFree) {
  const DonneesJour jour = Soiree();
  Dessine(jour);
  for (const LieuNavire &lieu : jour.route) {
    EXPECT_GT(Entre({plan.PointDe(lieu)}, {rose}), kRose);
  }
  EXPECT_GT(Entre({plan.PointDe(jour.point->lieu)}, {rose}), kRose);
}

TEST_F(Feuille, TheTrackBearsTimesWhereTheyHaveRoom) {
  DonneesJour jour = Soiree();
  const auto heures = [](const Feuillet &page) {
    const std::vector<MotFeuillet> mots = MotsDe(page);
    return std::count_if(mots.begin(), mots.end(), [](const auto &mot) { return mot.texte.starts_with("20:"); });
  };
  EXPECT_GE(heures(Dessine(jour)), 3);
  jour.droites.clear();
  jour.route.resize(2);
  jour.route = {{46.0, -7.6}, {46.25, -7.2}};
  EXPECT_EQ(heures(Dessine(jour)), 2);
}

TEST_F(Feuille, WithoutAFixALineShowsWhereItIsLaidOffFromAndWhichWay) {
  DonneesJour jour;
  jour.droites = {{"Lune 05:02", {46, -7}, 90, 6, 30, true}};
  const Feuillet page = Dessine(jour);
  const Point appui = plan.PointDe({46, -7});
  bool croix = false;
  bool fleche = false;
  for (const ElementFeuillet &e : page.elements) {
    const auto *trait = std::get_if<TraitFeuillet>(&e);
    if (trait == nullptr || trait->points.size() != 2) {
      continue;
    }
    const Point a = trait->points[0];
    const Point b = trait->points[1];
    croix = croix || (std::fabs((a.x + b.x) / 2 - appui.x) < 1 && std::fabs(a.y - appui.y) < 1 && a.x < b.x);
    fleche = fleche || (std::fabs(a.x - appui.x - 6 * plan.mille) < 1 && b.x < a.x && b.x > a.x - 200);
  }
  EXPECT_TRUE(croix);
  EXPECT_TRUE(fleche) << "its point lies on the line, six miles east";
}

TEST(PageDuneJournee, EightSightsAndLongWeatherStandOnOnePage) {
  for (const FormatPapier format : {FormatPapier::A4, FormatPapier::Lettre}) {
    EXPECT_EQ(PagesDuJour(Soiree(), format, Mots()).size(), 1U);
  }
}

} // namespace
} // namespace velmaris
