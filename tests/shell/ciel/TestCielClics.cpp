#include "tests/shell/ciel/OutilsCiel.hpp"

#include <gmock/gmock.h>

/// Bodies chosen on the chart, with the mouse and with the keyboard.
namespace velmaris::essais {
namespace {

using testing::Contains;

class ClicsCiel : public AvecCiel {
protected:
  /// The sky of a winter night: Sirius is up.
  ClicsCiel() {
    Moment(2026, 1, 15, 22, 0, 0);
    Tape(d.Text3, "22");
    Tape(d.Text4, "0");
    Tape(d.Text5, "0");
    Ouvre();
    Rafraichit();
  }
  int Corps() const {
    int choisi = -1;
    for (std::size_t i = 0; i < d.Option7.size(); ++i) {
      choisi = d.Option7[i].choisi ? static_cast<int>(i) : choisi;
    }
    return choisi;
  }
  void Clique(std::string_view etoile) { ClicControle(bureau, c.Laet[Rang(etoile)]); }
  /// The name of the body that the keyboard stands on.
  std::string Courant() const {
    const Controle *x = c.astreCourant;
    if (x == nullptr) {
      return "none";
    }
    return x->nom == "Laet" ? std::string(bureau.etoiles.EtoileBayer[static_cast<std::size_t>(x->indice)])
                            : x->nom + x->legende;
  }
};

TEST_F(ClicsCiel, TheSunBecomesTheBodyOfTheSight) {
  ClicOption(bureau, d.Option7[3]);
  ClicControle(bureau, c.SOL);
  EXPECT_EQ(Corps(), 0);
  EXPECT_TRUE(d.ImAstre[0].visible);
  EXPECT_TRUE(d.Option6[1].choisi) << "its lower limb";
  EXPECT_FALSE(d.Combo8.visible);
  EXPECT_EQ(bureau.premierPlan, kFenetreDonnees);
  EXPECT_TRUE(c.cadre.visible) << "the sky stays open";
}

TEST_F(ClicsCiel, TheMoonBecomesTheBodyOfTheSight) {
  ClicControle(bureau, c.Lune);
  EXPECT_EQ(Corps(), 1);
  EXPECT_TRUE(d.ImAstre[1].visible);
  EXPECT_EQ(bureau.premierPlan, kFenetreDonnees);
}

TEST_F(ClicsCiel, APlanetBecomesTheBodyOfTheSight) {
  for (std::size_t k = 0; k < 4; ++k) {
    bureau.premierPlan = {};
    ClicControle(bureau, c.LaP[k]);
    EXPECT_EQ(Corps(), 2);
    EXPECT_EQ(d.Combo7.rang, static_cast<int>(k));
    EXPECT_EQ(d.Combo7.texte, c.LaP[k].legende);
    EXPECT_TRUE(d.Combo7.visible);
    EXPECT_EQ(bureau.premierPlan, kFenetreDonnees);
  }
}

TEST_F(ClicsCiel, SiriusIsSeenHoveredClickedAndChosenInTheSightPanel) {
  ciel::Laet_MouseMove(bureau, Etoile("Sirius"));
  EXPECT_EQ(c.Bayer1.legende + " " + c.Bayer2.legende + " " + c.Label2.legende, "a CMa Sirius");
  Clique("Sirius");
  EXPECT_EQ(Corps(), 3);
  EXPECT_TRUE(d.Combo8.visible);
  EXPECT_EQ(d.Combo8.texte, "Sirius");
  EXPECT_EQ(Dans(d.Combo8), "Sirius");
  EXPECT_EQ(d.Combo6.texte, "Sirius") << "the list that the reduction reads";
  EXPECT_EQ(d.Combo6.rang + 1, Etoile("Sirius"));
  EXPECT_EQ(d.Bayer1.legende + d.Bayer2.legende, "aCMa");
  EXPECT_TRUE(d.Option6[2].choisi);
  EXPECT_EQ(bureau.premierPlan, kFenetreDonnees);
  Tape(d.Text13, "25");
  Calcule();
  EXPECT_NE(d.Affichage_Azimuth.legende, "") << "and can be reduced";
}

TEST_F(ClicsCiel, AStarOfTheShortListIsChosenAmongTheVisibleOnesWhateverListWasShown) {
  ClicOption(bureau, d.Option7[3]);
  for (const int visibles : {1, 0}) {
    PoseValeur(bureau, d.Check3, visibles);
    d.Combo8.liste = {"stale"};
    Clique("Sirius");
    // The box is cleared first, and choosing the kind of body ticks it again.
    EXPECT_EQ(d.Check3.valeur, 1);
    EXPECT_THAT(d.Combo8.liste, Contains("Sirius"));
    EXPECT_TRUE(d.Combo8.visible);
    EXPECT_FALSE(d.Combo6.visible);
  }
}

TEST_F(ClicsCiel, AStarThatIsNotInTheListOfVisibleOnesLeavesTheChoice) {
  Clique("Sirius");
  bureau.premierPlan = {};
  ASSERT_EQ(c.Laet[Rang("Alnilam")].legende, "Alnilam") << "it is up";
  Clique("Alnilam");
  EXPECT_EQ(Corps(), 3);
  EXPECT_EQ(d.Combo6.texte, "Sirius");
  EXPECT_EQ(bureau.premierPlan, kFenetreDonnees);
}

TEST_F(ClicsCiel, AStarUnderTheHorizonLeavesTheChoice) {
  Clique("Sirius");
  bureau.premierPlan = {};
  ASSERT_EQ(c.Laet[Rang("Antares")].legende, "   ");
  Clique("Antares");
  EXPECT_EQ(d.Combo8.texte, "Sirius");
  EXPECT_EQ(bureau.premierPlan, kFenetreDonnees);
}

TEST_F(ClicsCiel, ALabelWithoutWordsDoesNothing) {
  c.Laet[3].legende.clear();
  const int corps = Corps();
  bureau.premierPlan = {};
  ClicControle(bureau, c.Laet[3]);
  EXPECT_EQ(Corps(), corps);
  EXPECT_EQ(bureau.premierPlan, "");
}

TEST_F(ClicsCiel, TheFirstArrowGoesToTheBodyNearestTheMiddle) {
  EXPECT_EQ(Courant(), "none");
  ciel::PrendAstre(bureau);
  EXPECT_NE(bureau.premierPlan, kFenetreDonnees) << "nothing to take";
  ciel::DeplaceAstre(bureau, Direction::Haut);
  ASSERT_NE(c.astreCourant, nullptr);
  EXPECT_NE(c.Label2.legende + c.Bayer2.legende, "") << "it is told as by the mouse";
  const auto carre = [&](Point p) { return (p.x - W() / 2) * (p.x - W() / 2) + (p.y - H() / 2) * (p.y - H() / 2); };
  if (c.astreCourant->nom == "Laet") {
    const double ici = carre(Milieu(c.Shet[static_cast<std::size_t>(c.astreCourant->indice)]));
    for (std::size_t i = 1; i <= 246; ++i) {
      EXPECT_GE(carre(Milieu(c.Shet[i])), ici);
    }
  }
}

TEST_F(ClicsCiel, AnArrowGoesTheWayItPoints) {
  // Four stars around Sirius, and one farther on.
  const auto met = [&](std::string_view nom, double x, double y) {
    const Controle &marque = c.Shet[Rang(nom)];
    c.Shet[Rang(nom)].place.gauche = x - marque.place.largeur / 2;
    c.Shet[Rang(nom)].place.haut = y - marque.place.hauteur / 2;
  };
  for (std::size_t i = 1; i <= 246; ++i) {
    c.Shet[i].place.haut = H() + 5000;
  }
  for (Controle *x : {&c.SOL, &c.Lune, &c.LaP[0], &c.LaP[1], &c.LaP[2], &c.LaP[3]}) {
    x->visible = false;
  }
  met("Sirius", W() / 2, H() / 2);
  met("Vega", W() / 2 - 900, H() / 2 + 100);
  met("Deneb", W() / 2 + 800, H() / 2 - 100);
  met("Altair", W() / 2 + 3000, H() / 2);
  met("Rigel", W() / 2 + 10, H() / 2 - 700);
  met("Castor", W() / 2 + 10, H() / 2 + 650);
  const auto va = [&](Direction direction) {
    ciel::DeplaceAstre(bureau, direction);
    return c.Label2.legende;
  };
  c.astreCourant = &c.Laet[Rang("Sirius")];
  EXPECT_EQ(va(Direction::Droite), "Deneb");
  EXPECT_EQ(va(Direction::Droite), "Altair");
  EXPECT_EQ(va(Direction::Droite), "Altair") << "the last one that way";
  c.astreCourant = &c.Laet[Rang("Sirius")];
  EXPECT_EQ(va(Direction::Gauche), "Vega");
  c.astreCourant = &c.Laet[Rang("Sirius")];
  EXPECT_EQ(va(Direction::Haut), "Rigel");
  c.astreCourant = &c.Laet[Rang("Sirius")];
  EXPECT_EQ(va(Direction::Bas), "Castor");
}

TEST_F(ClicsCiel, TheKeyboardTellsAPlanetTheSunAndTheMoonAsTheMouseDoes) {
  for (std::size_t i = 1; i <= 246; ++i) {
    c.Shet[i].place.haut = H() + 5000;
  }
  for (Controle *x : {&c.LaP[0], &c.LaP[1], &c.LaP[3]}) {
    x->visible = false;
  }
  const auto met = [&](Controle &corps, double x) {
    corps.visible = true;
    corps.place.gauche = x - corps.place.largeur / 2;
    corps.place.haut = H() / 2 - corps.place.hauteur / 2;
  };
  c.LaP[2].visible = true;
  met(c.Shapla[2], W() / 2);
  met(c.SOL, W() / 2 + 900);
  met(c.Lune, W() / 2 - 700);
  ciel::DeplaceAstre(bureau, Direction::Droite);
  EXPECT_EQ(c.Label2.legende, "Jupiter");
  ciel::DeplaceAstre(bureau, Direction::Droite);
  EXPECT_EQ(c.Label2.legende, "Soleil");
  ciel::DeplaceAstre(bureau, Direction::Gauche);
  EXPECT_EQ(c.Label2.legende, "Jupiter");
  ciel::DeplaceAstre(bureau, Direction::Gauche);
  EXPECT_EQ(c.Label2.legende, "Lune");
}

TEST_F(ClicsCiel, TheKeyboardReachesSunMoonAndPlanetsThatAreShownAndNothingElse) {
  Equatoriale();
  for (const Direction direction : {Direction::Droite, Direction::Bas, Direction::Gauche, Direction::Haut}) {
    for (int pas = 0; pas < 300; ++pas) {
      ciel::DeplaceAstre(bureau, direction);
      ASSERT_NE(c.astreCourant, nullptr);
      EXPECT_TRUE(c.astreCourant->visible);
      EXPECT_TRUE(c.astreCourant->nom == "Laet" || c.astreCourant->nom == "LaP" || c.astreCourant->nom == "SOL" ||
                  c.astreCourant->nom == "Lune");
    }
  }
  for (Controle *x : {&c.SOL, &c.Lune, &c.LaP[1]}) {
    c.astreCourant = x;
    ciel::DeplaceAstre(bureau, Direction::Haut);
    EXPECT_NE(c.astreCourant, x);
  }
}

TEST_F(ClicsCiel, ReturnTakesTheBodyAsAClickDoes) {
  c.astreCourant = &c.Laet[Rang("Sirius")];
  ciel::PrendAstre(bureau);
  EXPECT_EQ(d.Combo6.texte, "Sirius");
  c.astreCourant = &c.LaP[1];
  ciel::PrendAstre(bureau);
  EXPECT_EQ(d.Combo7.texte, "Mars");
  c.astreCourant = &c.Lune;
  ciel::PrendAstre(bureau);
  EXPECT_EQ(Corps(), 1);
}

} // namespace
} // namespace velmaris::essais
