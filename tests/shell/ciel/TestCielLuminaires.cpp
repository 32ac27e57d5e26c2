#include "tests/shell/ciel/OutilsCiel.hpp"

/// The Sun, the Moon and the planets on the chart, and its background.
namespace velmaris::essais {
namespace {

class LuminairesCiel : public AvecCiel {
protected:
  SoleilDirect Soleil() {
    Horloge horloge = HorlogeFixe(temps, locale);
    return CalculeSoleilDirect(LitPanneau(d), horloge);
  }
  Lune LaLune() const {
    Lune lune;
    lune.LuneAn = temps.annee;
    lune.LuneMois = temps.mois;
    lune.LuneJour = temps.jour;
    lune.LuneHeure = temps.heure;
    lune.LuneMinute = temps.minute;
    lune.LuneSeconde = static_cast<float>(temps.seconde);
    CalculLune(lune);
    TopoLune(lune, lune.LuneAD, lune.LuneDecl, 47.5F, -lon, "");
    return lune;
  }
  PlacePlanete Planete(const std::string &nom) const {
    Horloge horloge = HorlogeFixe(temps, locale);
    std::string demande = nom;
    return LitPlacePlanete(PositionPlanete(demande, horloge));
  }
  PaireX HorizonDe(const PlacePlanete &p) const { return Horizon({p.AD, p.Dec}); }
  static constexpr std::array<const char *, 4> kNoms = {"VENUS", "MARS", "JUPITER", "SATURNE"};
};

TEST_F(LuminairesCiel, OnTheHorizontalChartTheSunStandsAtItsAzimuthAndHeight) {
  for (const int heure : {6, 12, 23}) {
    temps.heure = static_cast<std::uint16_t>(heure);
    Ouvre();
    Rafraichit();
    const SoleilDirect soleil = Soleil();
    EXPECT_NEAR(Milieu(c.SOL).x, soleil.azimut / 360 * W(), 0.01);
    EXPECT_NEAR(Milieu(c.SOL).y, H() - soleil.hauteur / 90 * H(), 0.01);
    EXPECT_EQ(c.SOL.etiquette, TexteGeneral(soleil.azimut) + "X" + TexteGeneral(soleil.hauteur));
  }
}

TEST_F(LuminairesCiel, OnTheEquatorialChartTheSunsTwoAnglesAreTakenForOneAnother) {
  Ouvre();
  Equatoriale();
  const SoleilDirect soleil = Soleil();
  EXPECT_NEAR(Milieu(c.SOL).x, W() - soleil.Dec / 360 * W(), 0.01);
  EXPECT_NEAR(Milieu(c.SOL).y, H() - (soleil.AD + 90) / 180 * H(), 0.01);
}

TEST_F(LuminairesCiel, TheMoonStandsAtItsPlaceOnBothCharts) {
  for (const int jour : {3, 12, 21}) {
    Moment(2026, 6, jour, 20, 30, 0);
    Ouvre();
    Horizontale();
    const Lune lune = LaLune();
    EstAHorizon(c.Lune, lune.LuneAzimut, lune.LuneHauteur);
    Equatoriale();
    EstAEquateur(c.Lune, lune.LuneAD * 15, lune.LuneDecl); // its hours fill the width
  }
}

TEST_F(LuminairesCiel, TheMoonLeavesItsPairsInTheWindow) {
  Ouvre();
  const Lune lune = LaLune();
  EXPECT_EQ(c.Label1.legende, TexteGeneral(lune.LuneDecl) + "X" + TexteGeneral(lune.LuneAD));
  EXPECT_EQ(c.Lune.etiquette, TexteGeneral(lune.LuneAzimut) + "X" + TexteGeneral(lune.LuneHauteur));
}

TEST_F(LuminairesCiel, TheSliderTurnsSunAndMoon) {
  Ouvre();
  for (const int valeur : {0, 50, 100, 150, 200}) {
    BougeCurseur(bureau, c.HScroll1, valeur);
    EXPECT_NEAR(Milieu(c.SOL).x, Tourne(Soleil().azimut / 360 * W()), 0.01) << valeur;
    EXPECT_NEAR(Milieu(c.Lune).x, Tourne(LaLune().LuneAzimut / 360 * W()), 0.01) << valeur;
    EXPECT_NEAR(Milieu(c.Shapla[2]).x, Tourne(HorizonDe(Planete("JUPITER")).gauche / 360 * W()), 76) << valeur;
  }
}

TEST_F(LuminairesCiel, ThePanelOfTheMainWindowIsLeftAloneButForTheSunsMark) {
  const std::string titre = d.Label64.legende;
  const auto traces = bureau.picAZ.effacements;
  d.Soleil.place.gauche = 3000;
  Ouvre();
  EXPECT_EQ(d.Label64.legende, titre);
  EXPECT_EQ(bureau.picAZ.effacements, traces);
  EXPECT_EQ(d.Soleil.place.gauche, kHorsDeVue) << "the Moon's place puts it away";
}

TEST_F(LuminairesCiel, TheHorizontalChartIsDarkWhileTheSunIsDown) {
  Ouvre();
  EXPECT_EQ(c.picture1.fond, 0xFF0000U) << "noon";
  temps.heure = 23;
  Rafraichit();
  EXPECT_EQ(c.picture1.fond, 0x800000U);
}

TEST_F(LuminairesCiel, TheEquatorialChartTakesTheHeightThatTheDrawingBeforeHasLeft) {
  Ouvre();
  bool haute = false;
  bool basse = false;
  for (int heure = 0; heure < 24; ++heure) {
    temps.heure = static_cast<std::uint16_t>(heure);
    Horizontale();
    // Saturn is the last body drawn.
    const bool levee = HorizonDe(Planete("SATURNE")).droite > 0;
    EXPECT_EQ(c.picture1.fond, Soleil().hauteur > 0 ? 0xFF0000U : 0x800000U);
    Equatoriale();
    EXPECT_EQ(c.picture1.fond, levee ? 0xFF0000U : 0x800000U) << heure;
    haute = haute || (levee && Soleil().hauteur < 0);
    basse = basse || (!levee && Soleil().hauteur > 0);
  }
  EXPECT_TRUE(haute && basse) << "the two heights differ at times";
}

TEST_F(LuminairesCiel, APlanetStandsAtItsPlaceOnBothCharts) {
  for (const int mois : {1, 6, 10}) {
    Moment(2026, mois, 15, 21, 10, 20);
    Ouvre();
    for (std::size_t k = 0; k < 4; ++k) {
      Horizontale();
      const PlacePlanete p = Planete(kNoms.at(k));
      EstAHorizon(c.Shapla[k], HorizonDe(p).gauche, HorizonDe(p).droite);
      Equatoriale();
      EstAEquateur(c.Shapla[k], p.AD, p.Dec);
      EXPECT_NEAR(c.LaP[k].place.haut, Milieu(c.Shapla[k]).y + 200, 0.01) << "twice as far as a star's";
    }
  }
}

TEST_F(LuminairesCiel, PlanetsBearTheirNamesInOneColour) {
  Ouvre();
  const std::array<const char *, 4> noms = {"Venus", "Mars", "Jupiter", "Saturne"};
  for (std::size_t k = 0; k < 4; ++k) {
    EXPECT_EQ(c.LaP[k].legende, noms.at(k));
    EXPECT_EQ(c.LaP[k].couleur, Rvb(255, 192, 128));
    EXPECT_EQ(c.Shapla[k].couleur, Rvb(255, 192, 128));
    EXPECT_GT(c.LaP[k].place.largeur, 0);
  }
}

TEST_F(LuminairesCiel, APlanetsLabelIsHeldWithinTheChartAndItsMarkAtTheRightEdge) {
  Ouvre();
  const double jupiter = HorizonDe(Planete("JUPITER")).gauche / 360 * W();
  const double label = c.LaP[2].place.largeur;
  const double marque = c.Shapla[2].place.largeur;
  bool gauche = false;
  bool droite = false;
  for (int valeur = 0; valeur <= 200; ++valeur) {
    BougeCurseur(bureau, c.HScroll1, valeur);
    const double x = Tourne(jupiter);
    EXPECT_NEAR(c.LaP[2].place.gauche, std::clamp(x - label / 2, 0.0, W() - label), 0.01);
    EXPECT_NEAR(c.Shapla[2].place.gauche, std::min(x - marque / 2, W() - marque), 0.01);
    gauche = gauche || x < label / 2;
    droite = droite || x > W() - label / 2;
  }
  EXPECT_TRUE(gauche && droite);
}

TEST_F(LuminairesCiel, BodiesWithoutAPlaceAreHiddenAndTheRestIsDrawn) {
  Ouvre();
  d.Text6.texte = "1E300";
  Rafraichit();
  EXPECT_TRUE(c.Lune.visible) << "a longitude that can't be held counts as 0";
  bureau.horloge.source = [] { return TempsSysteme{2026, 13, 0, 40, 12, 0, 0, 0}; };
  Rafraichit();
  EXPECT_TRUE(c.List1.liste.empty()) << "no moment, no star";
  EXPECT_EQ(Textes(c.picture1).size(), 25U + 16) << "the scales of azimuth and height";
  EXPECT_TRUE(boites.empty());
}

} // namespace
} // namespace velmaris::essais
