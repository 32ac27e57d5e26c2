#include "tests/shell/ciel/OutilsCiel.hpp"

#include "shell/bureau/Evenements.hpp"
#include "shell/ciel/LabelsCiel.hpp"

#include <map>
#include <random>
#include <set>

namespace velmaris::essais {
namespace {

class CielLabels : public AvecCiel {
protected:
  std::vector<Controle *> Corps() {
    std::vector<Controle *> corps;
    for (Controle *astre : ControlesDe(bureau, kFenetreCiel)) {
      if (astre->parent == "Picture1") {
        corps.push_back(astre);
      }
    }
    return corps;
  }
  std::vector<ciel::LabelMontre> Montres() { return ciel::LabelsMontres(c, Corps()); }
  ciel::AstreTrouve Au(Point p) { return ciel::AstreAu(c, Corps(), p, 60); }
  static Point Milieu(const Place &p) { return {p.gauche + p.largeur / 2, p.haut + p.hauteur / 2}; }
  static Point Milieu(const ZoneTexte &z) { return {z.gauche + z.largeur / 2, z.haut + z.hauteur / 2}; }
  bool SurLaCarte(Point p) const {
    return p.x >= 0 && p.y >= 0 && p.x <= c.picture1.largeur && p.y <= c.picture1.hauteur;
  }

  void RienNeSeCouvre() {
    const std::vector<ciel::LabelMontre> montres = Montres();
    for (std::size_t i = 0; i < montres.size(); ++i) {
      for (std::size_t j = i + 1; j < montres.size(); ++j) {
        EXPECT_FALSE(SeCoupent(montres[i].zone, montres[j].zone))
            << montres[i].label->legende << ", " << montres[j].label->legende;
      }
    }
  }
  void LesVertsSontLa() {
    std::set<const Controle *> vus;
    for (const ciel::LabelMontre &m : Montres()) {
      vus.insert(m.label);
    }
    for (std::size_t i = 1; i <= kEtoilesCiel; ++i) {
      const Controle &label = c.Laet[i];
      if (label.gras && label.legende != "   " && SurLaCarte(Milieu(c.Shet[i].place))) {
        EXPECT_TRUE(vus.contains(&label)) << label.legende;
        ++verts;
      }
    }
  }
  /// A name takes the pointer where it is shown, and nowhere else.
  void CeQuiEstPeintEstTrouve() {
    std::map<const Controle *, ZoneTexte> montres;
    for (const ciel::LabelMontre &m : Montres()) {
      montres.emplace(m.label, m.zone);
      const ciel::AstreTrouve trouve = Au(Milieu(m.zone));
      EXPECT_TRUE(trouve.pointe == m.label || trouve.pointe->genre != Genre::Etiquette) << m.label->legende;
    }
    for (const Controle *astre : Corps()) {
      if (astre->genre == Genre::Etiquette && astre->visible) {
        const ciel::AstreTrouve trouve = Au(Milieu(astre->place));
        if (trouve.pointe != nullptr && trouve.pointe->genre == Genre::Etiquette) {
          ASSERT_TRUE(montres.contains(trouve.pointe)) << trouve.pointe->legende << " isn't shown";
        }
      }
    }
  }

  std::size_t verts = 0;
};

TEST_F(CielLabels, NamesOfNavigationStarsStandAtAllHoursOnBothChartsAndWhatIsShownIsWhatIsFound) {
  Ouvre();
  std::mt19937 hasard(6);
  const auto tire = [&](int min, int max) { return std::uniform_int_distribution<int>(min, max)(hasard); };
  for (int essai = 0; essai < 60; ++essai) {
    Moment(tire(2020, 2034), tire(1, 12), tire(1, 28), tire(0, 23), tire(0, 59), 0);
    Tape(d.Text8, std::to_string(tire(0, 65)));
    ClicOption(bureau, d.OptN[static_cast<std::size_t>(tire(0, 1))]);
    PoseValeur(bureau, c.HScroll1, tire(0, 200));
    essai % 2 == 0 ? Horizontale() : Equatoriale();
    Rafraichit();
    LesVertsSontLa();
    RienNeSeCouvre();
    CeQuiEstPeintEstTrouve();
    ASSERT_FALSE(HasFailure()) << essai;
  }
  EXPECT_GT(verts, 600U);
}

TEST_F(CielLabels, NoNameOverprintsAFigureOfTheScaleAndGreenOnesAreMovedAside) {
  Ouvre();
  const std::vector<ciel::LabelMontre> libres = Montres();
  for (const ciel::LabelMontre &libre : libres) {
    const std::vector<ZoneTexte> figure{libre.zone};
    bool vu = false;
    for (const ciel::LabelMontre &montre : ciel::LabelsMontres(c, Corps(), figure)) {
      EXPECT_FALSE(SeCoupent(montre.zone, figure[0])) << montre.label->legende;
      vu = vu || montre.label == libre.label;
    }
    EXPECT_TRUE(vu || !libre.label->gras) << libre.label->legende;
    verts += libre.label->gras ? 1 : 0;
    const ciel::AstreTrouve trouve = ciel::AstreAu(c, Corps(), Milieu(libre.zone), 0, figure);
    EXPECT_TRUE(trouve.pointe == nullptr || trouve.pointe->genre != Genre::Etiquette) << libre.label->legende;
  }
  EXPECT_GT(verts, 5U);
}

TEST_F(CielLabels, PointingAtTheCrossFindsAcruxByItsNameAndItsMark) {
  Tape(d.Text8, "35");
  ClicOption(bureau, d.OptN[1]);
  Moment(2026, 5, 10, 22, 0, 0);
  Ouvre();
  const Controle &acrux = c.Laet[Rang("Acrux")];
  ASSERT_EQ(acrux.legende, "Acrux") << "up over Brittany's meridian in the south";
  EXPECT_EQ(Au(Milieu(c.Shet[Rang("Acrux")].place)).astre, &acrux);
  for (const ciel::LabelMontre &m : Montres()) {
    if (m.label == &acrux) {
      EXPECT_EQ(Au(Milieu(m.zone)).astre, &acrux);
    }
  }
  RienNeSeCouvre();
}

TEST_F(CielLabels, OfMarksThatMeetTheBrighterStarIsOnTopAndIsFound) {
  Ouvre();
  Controle &rigel = c.Shet[Rang("Rigel")];
  Controle &sirius = c.Shet[Rang("Sirius")];
  Controle &castor = c.Shet[Rang("Castor")];
  for (Controle *marque : {&rigel, &sirius, &castor, &c.Shapla[0], &c.Shet[Rang("Mizar")]}) {
    marque->visible = true;
    marque->place.gauche = 5000;
    marque->place.haut = 300;
  }
  for (const char *nom : {"Rigel", "Sirius", "Castor"}) {
    c.Laet[Rang(nom)].legende = nom; // up, whatever the hour
  }
  c.SOL.visible = c.Lune.visible = false;
  EXPECT_EQ(Au({5050, 350}).pointe, &sirius);
  sirius.visible = false;
  EXPECT_EQ(Au({5050, 350}).pointe, &rigel);
  rigel.visible = false;
  EXPECT_EQ(Au({5050, 350}).pointe, &castor);
  castor.visible = false;
  EXPECT_NE(Au({5050, 350}).pointe, &c.Shapla[0]) << "a white star lies over a planet";
}

TEST_F(CielLabels, OnThePlanetsDiscTheDialsGiveTheDiscsPlaceAndOnItsNameTheNames) {
  Ouvre();
  const auto cadrans = [&] { return c.Label35.legende + c.Label36.legende; };
  const Point disque = Milieu(c.Shapla[0].place);
  ciel::Picture1_MouseMove(bureau, disque.x, disque.y);
  const std::string auDisque = cadrans();
  const Point nom = Milieu(c.LaP[0].place);
  ciel::Picture1_MouseMove(bureau, nom.x, nom.y);
  const std::string auNom = cadrans();
  ASSERT_NE(auDisque, auNom);
  ciel::Survole(bureau, c.LaP[0], c.Shapla[0]);
  EXPECT_EQ(cadrans(), auDisque);
  EXPECT_EQ(c.Label2.legende, "Venus");
  ciel::Survole(bureau, c.LaP[0], c.LaP[0]);
  EXPECT_EQ(cadrans(), auNom);
}

TEST_F(CielLabels, AStarThatAClickWouldNotChooseSaysSoAndNoOther) {
  Ouvre();
  std::size_t choisies = 0;
  std::size_t refusees = 0;
  for (std::size_t i = 1; i <= kEtoilesCiel; i += 3) {
    const bool promis = ciel::SeChoisit(bureau, c.Laet[i]);
    const std::string aide = ciel::AideAstre(bureau, c.Laet[i]);
    EXPECT_EQ(aide.find(c.TexteHorsListe.legende) == std::string::npos, promis) << i;
    d.Combo6.rang = -1;
    d.Combo6.texte.clear();
    ciel::Laet_Click(bureau, static_cast<int>(i));
    EXPECT_EQ(d.Combo6.rang >= 0, promis) << c.Laet[i].legende;
    ++(promis ? choisies : refusees);
  }
  EXPECT_GT(choisies, 5U);
  EXPECT_GT(refusees, 5U);
  EXPECT_TRUE(ciel::SeChoisit(bureau, c.SOL));
  EXPECT_TRUE(ciel::SeChoisit(bureau, c.LaP[2]));
}

TEST_F(CielLabels, EachStarOfTheShortListHasItsPlaceByBrightness) {
  std::set<int> rangs;
  std::set<std::string_view> noms;
  for (const std::string_view nom : bureau.etoiles.EtoileNom) {
    if (EstNavigable(nom)) {
      rangs.insert(RangEclat(nom));
      noms.insert(nom);
    }
  }
  EXPECT_EQ(rangs.size(), noms.size());
  EXPECT_EQ(*rangs.begin(), 0);
  EXPECT_LT(*rangs.rbegin(), kNombreNavigables);
  EXPECT_LT(RangEclat("Sirius"), RangEclat("Canopus"));
  EXPECT_LT(RangEclat("Acrux"), RangEclat("Pollux"));
  EXPECT_LT(RangEclat("Pollux"), RangEclat("Castor"));
  EXPECT_EQ(RangEclat("Mizar"), kNombreNavigables);
}

} // namespace
} // namespace velmaris::essais
