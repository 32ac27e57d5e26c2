#include "tests/shell/ciel/OutilsCiel.hpp"

#include "sky/AstresCiel.hpp"
#include "sky/Constellations.hpp"

#include <gmock/gmock.h>

/// Where the stars stand on the chart, and what they look like.
namespace velmaris::essais {
namespace {

using testing::Contains;
using testing::ElementsAreArray;
using testing::Not;

class EtoilesCiel : public AvecCiel {};

struct Instant {
  int annee, mois, jour, heure, minute, seconde;
};
constexpr std::array<Instant, 3> kInstants = {
    {{2026, 6, 21, 22, 5, 30}, {2026, 12, 24, 3, 0, 1}, {2009, 3, 1, 12, 59, 59}}};

TEST_F(EtoilesCiel, OnTheHorizontalChartAStarStandsAtItsAzimuthAndHeight) {
  for (const Instant &t : kInstants) {
    Moment(t.annee, t.mois, t.jour, t.heure, t.minute, t.seconde);
    Ouvre();
    Horizontale();
    Rafraichit(); // so that the large marks are centred
    for (std::size_t i = 1; i <= 246; ++i) {
      EstAHorizon(c.Shet[i], Horizon(Equateur(i)).gauche, Horizon(Equateur(i)).droite);
      EXPECT_TRUE(c.Shet[i].visible && c.Laet[i].visible);
    }
  }
}

TEST_F(EtoilesCiel, OnTheEquatorialChartAStarStandsAtItsRightAscensionAndDeclination) {
  for (const Instant &t : kInstants) {
    Moment(t.annee, t.mois, t.jour, t.heure, t.minute, t.seconde);
    Ouvre();
    Equatoriale();
    Rafraichit();
    for (std::size_t i = 1; i <= 246; ++i) {
      EstAEquateur(c.Shet[i], Equateur(i).gauche, Equateur(i).droite);
    }
  }
}

TEST_F(EtoilesCiel, TheSliderTurnsEveryStarAndWrapsIt) {
  Ouvre();
  for (const bool horizontale : {true, false}) {
    horizontale ? Horizontale() : Equatoriale();
    for (const int valeur : {0, 50, 100, 150, 200}) {
      BougeCurseur(bureau, c.HScroll1, valeur);
      Rafraichit();
      for (const std::size_t i : {1U, 26U, 77U, 149U, 156U, 200U, 246U}) {
        const double x = horizontale ? Horizon(Equateur(i)).gauche / 360 * W() : W() - Equateur(i).gauche / 360 * W();
        EXPECT_NEAR(Milieu(c.Shet[i]).x, Tourne(x), 0.01) << i << " " << valeur;
      }
    }
  }
}

TEST_F(EtoilesCiel, AWholeTurnLooksAsNone) {
  Ouvre();
  Rafraichit();
  std::vector<double> places;
  for (std::size_t i = 1; i <= 246; ++i) {
    places.push_back(c.Shet[i].place.gauche);
  }
  BougeCurseur(bureau, c.HScroll1, 200);
  for (std::size_t i = 1; i <= 246; ++i) {
    EXPECT_NEAR(c.Shet[i].place.gauche, places[i - 1], 1e-6) << i;
  }
}

TEST_F(EtoilesCiel, AStarUnderTheHorizonIsBlueAndLosesItsNameOnBothCharts) {
  Ouvre();
  const auto tel = [&](std::size_t i) {
    const bool levee = Horizon(Equateur(i)).droite > 0;
    const std::string nom(bureau.etoiles.EtoileNom[i]);
    const std::string mots = !levee ? "   " : nom.empty() ? "    " : nom;
    const Controle &marque = c.Shet[i];
    return marque.couleur == (levee ? 0xFFFFFFU : 0xFF0000U) && c.Laet[i].legende == mots &&
           (EstNavigable(nom) || marque.bordure == marque.couleur);
  };
  for (Controle *carte : {&c.Option1[1], &c.Option1[0]}) {
    ClicOption(bureau, *carte);
    for (std::size_t i = 1; i <= 246; ++i) {
      EXPECT_TRUE(tel(i)) << i << " " << carte->legende;
    }
  }
}

TEST_F(EtoilesCiel, TheListHoldsTheNamedStarsThatAreUpOnTheHorizontalChart) {
  Ouvre();
  std::vector<std::string> levees;
  for (std::size_t i = 1; i <= 156; ++i) {
    if (Horizon(Equateur(i)).droite > 0) {
      levees.emplace_back(bureau.etoiles.EtoileNom[i]);
    }
  }
  EXPECT_THAT(c.List1.liste, ElementsAreArray(levees));
  EXPECT_GT(levees.size(), 50U);
}

TEST_F(EtoilesCiel, TheListHoldsAllNamedStarsOnTheEquatorialChart) {
  Ouvre();
  Equatoriale();
  EXPECT_THAT(c.List1.liste, ElementsAreArray(d.Combo6.liste));
  EXPECT_EQ(c.List1.liste.size(), 156U);
}

TEST_F(EtoilesCiel, TheChosenStarStaysChosenInTheListWhileItIsThere) {
  Ouvre();
  ChoisitLigne(bureau, c.List1, 5);
  const std::string nom = Dans(c.List1);
  Equatoriale();
  EXPECT_EQ(Dans(c.List1), nom);
  const std::size_t couchee = Premiere(false);
  const auto &liste = c.List1.liste;
  const auto rang = std::find(liste.begin(), liste.end(), bureau.etoiles.EtoileNom[couchee]) - liste.begin();
  ChoisitLigne(bureau, c.List1, static_cast<int>(rang));
  Horizontale();
  EXPECT_EQ(c.List1.rang, -1);
}

TEST_F(EtoilesCiel, ALabelStandsAHundredUnitsUnderItsStarAndWithinTheChart) {
  Ouvre();
  Rafraichit();
  bool aGauche = false;
  bool aDroite = false;
  const auto verifie = [&](std::size_t i) {
    const Place &label = c.Laet[i].place;
    const Point p = Milieu(c.Shet[i]);
    const double libre = p.x - label.largeur / 2;
    EXPECT_NEAR(label.haut, p.y + 100, 0.01);
    EXPECT_NEAR(label.gauche, std::clamp(libre, 0.0, W() - label.largeur), 0.01) << i;
    aGauche = aGauche || libre < 0;
    aDroite = aDroite || libre + label.largeur >= W();
  };
  for (int valeur = 0; valeur < 200; valeur += 30) {
    BougeCurseur(bureau, c.HScroll1, valeur);
    for (std::size_t i = 1; i <= 246; ++i) {
      verifie(i);
    }
  }
  EXPECT_TRUE(aGauche && aDroite);
}

TEST_F(EtoilesCiel, AStarOfTheShortListHasALargeGreenMarkAndABoldLabel) {
  Ouvre();
  const auto large = [&](std::size_t i) {
    const Controle &marque = c.Shet[i];
    const Controle &label = c.Laet[i];
    return marque.place.largeur == 200 && marque.place.hauteur == 200 && marque.bordure == 0x00FF00U &&
           marque.couleur != 0x00FF00U && label.gras && label.taille == 14 && label.etiquette == "65280" &&
           label.couleur == 0x00FF00U;
  };
  const auto petite = [&](std::size_t i) {
    const Controle &marque = c.Shet[i];
    const Controle &label = c.Laet[i];
    return marque.place.largeur == 105 && marque.place.hauteur == 105 && marque.bordure == marque.couleur &&
           !label.gras && label.etiquette == "16777215" && label.couleur == 0xFFFFFFU;
  };
  for (std::size_t i = 1; i <= 246; ++i) {
    EXPECT_TRUE(EstNavigable(bureau.etoiles.EtoileNom[i]) ? large(i) : petite(i)) << i;
  }
}

TEST_F(EtoilesCiel, ALargeMarkIsCentredFromTheSecondDrawingOn) {
  Ouvre();
  const std::size_t vega = Rang("Vega");
  const double avant = c.Shet[vega].place.gauche;
  Rafraichit();
  EXPECT_NEAR(c.Shet[vega].place.gauche, avant - (200 - 105) / 2.0, 1e-6);
}

TEST_F(EtoilesCiel, ALineEndsALittleOffTheCentreOfALargeMark) {
  Ouvre();
  Equatoriale();
  Rafraichit();
  const std::size_t deneb = Rang("Deneb");
  const Place &marque = c.Shet[deneb].place;
  const Point bout{marque.gauche + 52.5, marque.haut + 52.5};
  bool trouve = false;
  for (const Segment &s : Segments(c.picture1)) {
    trouve = trouve || s.debut == bout || s.fin == bout;
  }
  EXPECT_TRUE(trouve);
  EXPECT_NE(bout, Milieu(c.Shet[deneb]));
}

TEST_F(EtoilesCiel, ALineAcrossTheEdgeIsNotDrawn) {
  Ouvre();
  for (const int valeur : {0, 50, 100, 150}) {
    BougeCurseur(bureau, c.HScroll1, valeur);
    std::size_t attendus = 0;
    for (const SegmentCiel &s : kSegments) {
      attendus += std::abs(c.Shet[s.a].place.gauche - c.Shet[s.b].place.gauche) < 4000 ? 1 : 0;
    }
    std::size_t lignes = 0;
    for (const Segment &s : Segments(c.picture1)) {
      EXPECT_LT(std::abs(s.debut.x - s.fin.x), 4000);
      ++lignes;
    }
    EXPECT_EQ(lignes, attendus + 100 + 16) << "and the scales of azimuth and height";
    EXPECT_LT(attendus, 146U);
  }
}

TEST_F(EtoilesCiel, AnEmptyPositionCountsAsZero) {
  for (Controle *champ : {&d.Text6, &d.Text7, &d.Text8, &d.Text9}) {
    champ->texte.clear();
  }
  Ouvre();
  const PaireX place = Equateur(30);
  double dec = place.droite;
  double latitude = 0;
  const PaireX vu = LitPaireX(CelesteVersHorizon(Maintenant(), place.gauche, dec, latitude, 0));
  EXPECT_NEAR(Milieu(c.Shet[30]).x, vu.gauche / 360 * W(), 0.01);
  EXPECT_NEAR(Milieu(c.Shet[30]).y, H() - vu.droite / 90 * H(), 0.01);
}

TEST_F(EtoilesCiel, SouthAndEastTurnTheSigns) {
  ClicOption(bureau, d.OptN[1]);
  ClicOption(bureau, d.OptE[0]);
  Ouvre();
  const PaireX place = Equateur(30);
  double dec = place.droite;
  double latitude = -47.5;
  const PaireX vu = LitPaireX(CelesteVersHorizon(Maintenant(), place.gauche, dec, latitude, lon));
  EXPECT_NEAR(Milieu(c.Shet[30]).x, vu.gauche / 360 * W(), 0.01);
  EXPECT_NEAR(Milieu(c.Shet[30]).y, H() - vu.droite / 90 * H(), 0.01);
}

TEST_F(EtoilesCiel, AClockThatJumpsBackIsHarmless) {
  Ouvre();
  Rafraichit();
  const double x = c.Shet[9].place.gauche;
  temps.heure = 20;
  ciel::Timer1_Tick(bureau);
  EXPECT_NE(c.Shet[9].place.gauche, x);
  temps.heure = 12;
  ciel::Timer1_Tick(bureau);
  EXPECT_EQ(c.Shet[9].place.gauche, x);
}

TEST_F(EtoilesCiel, AStarWithoutAPlaceIsHiddenAndTheOthersGoOn) {
  Ouvre();
  bureau.etoiles.EtoileCoord[12] = "no place";
  Rafraichit();
  EXPECT_FALSE(c.Shet[12].visible);
  EXPECT_FALSE(c.Laet[12].visible);
  EXPECT_THAT(c.List1.liste, Not(Contains(std::string(bureau.etoiles.EtoileNom[12]))));
  EXPECT_TRUE(c.Shet[13].visible);
  EXPECT_TRUE(c.LaP[3].visible);
  EXPECT_EQ(Textes(c.picture1).size(), 25U + 16) << "the scales of azimuth and height";
}

TEST_F(EtoilesCiel, TheChartIsShownWithItsListAfterTheDrawing) {
  Ouvre();
  EXPECT_TRUE(c.Picture1.visible);
  EXPECT_TRUE(c.List1.visible);
  EXPECT_EQ(c.picture1.epaisseur, 1);
}

} // namespace
} // namespace velmaris::essais
