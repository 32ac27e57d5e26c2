#include "tests/shell/bureau/OutilsBureau.hpp"

#include "ephemerides/pLANETE.hpp"
#include "sights/DroitePLA.hpp"
#include "tests/ephemerides/SecondCalculLune.hpp"
#include "tests/sights/SecondCalculAstre.hpp"

#include <algorithm>
#include <cmath>
#include <cstdlib>

/// The live panel for the Moon, planets and stars.
namespace velmaris::essais {
namespace {

class PanneauDirect : public Programme {
protected:
  PanneauDirect() {
    DemarreSansCarte();
    TapeVisee();
    // The sight is of another day than the clock's.
    Tape(d.TDate[0], "3");
    Tape(d.TDate[1], "2");
    Tape(d.TDate[2], "1990");
    Tape(d.Text3, "7");
    Tape(d.Text4, "8");
    Tape(d.Text5, "9");
    d.Frame8.visible = true;
    d.Soleil.place.gauche = 77;
    bureau.visee.Azimut = 12;
    bureau.visee.HauteurCalculee = 34;
    bureau.visee.Intercept = 56;
    Marque();
  }

  void Marque() { d.Label64.legende = d.Label35.legende = d.Label36.legende = "before"; }

  /// Chooses a body without what its choice sets in motion.
  void Choisit(std::size_t corps) {
    for (std::size_t i = 0; i < d.Option7.size(); ++i) {
      d.Option7[i].choisi = i == corps;
    }
  }

  void Etoile(const std::string &nom) {
    Choisit(3);
    const auto ligne = std::find(d.Combo6.liste.begin(), d.Combo6.liste.end(), nom);
    d.Combo6.rang = static_cast<int>(ligne - d.Combo6.liste.begin());
    d.Combo6.texte = nom;
  }

  void Planete(int rang) {
    Choisit(2);
    d.Combo7.rang = rang;
    d.Combo7.texte = d.Combo7.liste.at(static_cast<std::size_t>(rang));
  }

  /// The clock's moment and the panel's position.
  static ViseeAstre Maintenant() {
    ViseeAstre v;
    v.heure = 12;
    return v;
  }

  static HorizonALaMain32 Ciel(double AD, double Dec) {
    const ViseeAstre v = Maintenant();
    return {v, AD, Dec, double{LatitudeALaMain(v)}, double{-LongitudeALaMain(v)}};
  }

  HorizonALaMain32 CielEtoile() const {
    const PaireX p = LitPaireX(CoordEtoile(bureau.etoiles, 0, d.Combo6.rang, {"3", "2", "1990"}));
    return Ciel(p.gauche, p.droite);
  }

  HorizonALaMain32 CielPlanete() const {
    std::string nom = d.Combo7.texte;
    const PlacePlanete p = LitPlacePlanete(PositionPlanete(nom, {"3", "2", "1990", "7", "8", "9"}));
    return Ciel(p.AD, p.Dec);
  }

  /// Hundredths, no zero before the point, and the sign of degrees after a blank.
  static void EstMontre(const Controle &label, double degres) {
    EXPECT_NEAR(std::strtod(label.legende.c_str(), nullptr), degres, 0.005 + 1E-9) << label.legende;
    EXPECT_EQ(label.legende.substr(label.legende.find('.') + 3), " °");
  }

  void Intact() const {
    EXPECT_EQ(d.Label64.legende + d.Label35.legende + d.Label36.legende, "beforebeforebefore");
    EXPECT_EQ(bureau.visee.Azimut, 12.0F);
    EXPECT_EQ(bureau.visee.HauteurCalculee, 34.0F);
    EXPECT_EQ(bureau.visee.Intercept, 56.0F);
  }
};

TEST_F(PanneauDirect, TheClockShowsTheBodyThatIsChosen) {
  Etoile("Vega");
  Planete(1);
  const std::string titres[] = {"N 23.26", bureau.messages[30], "Mars", "Vega"};
  for (std::size_t corps = 0; corps < 4; ++corps) {
    Choisit(corps);
    Marque();
    bureau.picAZ.traces.clear();
    Timer1_Tick(bureau);
    EXPECT_EQ(d.Label64.legende.substr(0, titres[corps].size()), titres[corps]);
    EXPECT_NE(d.Label64.legende, "");
    EXPECT_NE(d.Label35.legende, "before");
    EXPECT_NE(d.Label36.legende, "before");
    EXPECT_FALSE(bureau.picAZ.traces.empty());
  }
}

TEST_F(PanneauDirect, NothingRunsWhileTheModuleIsHidden) {
  d.Frame8.visible = false;
  Etoile("Vega");
  Planete(1);
  for (std::size_t corps = 0; corps < 4; ++corps) {
    Choisit(corps);
    Timer1_Tick(bureau);
    Intact();
    EXPECT_EQ(d.Soleil.place.gauche, 77.0);
  }
}

TEST_F(PanneauDirect, AStarIsPlacedForTheSightsDateInTheHorizonOfTheClock) {
  for (const char *nom : {"Vega", "Sirius", "Acamar", "Polaris"}) {
    Etoile(nom);
    d.Soleil.place.gauche = 77;
    Timer1_Tick(bureau);
    const HorizonALaMain32 ciel = CielEtoile();
    EXPECT_EQ(bureau.visee.Azimut, ciel.azimut) << nom;
    EXPECT_EQ(bureau.visee.HauteurCalculee, ciel.hauteur) << nom;
    EXPECT_EQ(bureau.visee.Intercept, 56.0F);
    EXPECT_EQ(d.Label64.legende, nom);
    EstMontre(d.Label35, ciel.azimut);
    EstMontre(d.Label36, ciel.hauteur);
    EXPECT_EQ(d.Soleil.place.gauche, kHorsDeVue);
  }
}

TEST_F(PanneauDirect, APlanetIsPlacedForTheSightsMomentInTheHorizonOfTheClock) {
  for (int rang = 0; rang < kNombrePlanetes; ++rang) {
    Planete(rang);
    d.Soleil.place.gauche = 77;
    Timer1_Tick(bureau);
    const HorizonALaMain32 ciel = CielPlanete();
    EXPECT_EQ(bureau.visee.Azimut, ciel.azimut) << rang;
    EXPECT_EQ(bureau.visee.HauteurCalculee, ciel.hauteur) << rang;
    EXPECT_EQ(bureau.visee.Intercept, 56.0F);
    EXPECT_EQ(d.Label64.legende, d.Combo7.liste[static_cast<std::size_t>(rang)]);
    EstMontre(d.Label35, ciel.azimut);
    EstMontre(d.Label36, ciel.hauteur);
    EXPECT_EQ(d.Soleil.place.gauche, kHorsDeVue);
  }
}

TEST_F(PanneauDirect, TheMoonIsThatOfTheClockAndLeavesTheSightsAzimutAndHeight) {
  Choisit(1);
  Timer1_Tick(bureau);
  Lune lune = LuneA(2026, 6, 21, 12, 5, 30);
  const ViseeAstre v = Maintenant();
  TopoLune(lune, lune.LuneAD, lune.LuneDecl, LatitudeALaMain(v), -LongitudeALaMain(v), bureau.messages[33]);
  EXPECT_EQ(bureau.lune.LuneAzimut, lune.LuneAzimut);
  EXPECT_EQ(bureau.lune.LuneHauteur, lune.LuneHauteur);
  EXPECT_EQ(bureau.lune.LuneTexteAD, lune.LuneTexteAD);
  EXPECT_EQ(d.Label64.legende, bureau.messages[30]);
  EstMontre(d.Label35, lune.LuneAzimut);
  EstMontre(d.Label36, lune.LuneHauteur);
  EXPECT_EQ(d.Soleil.place.gauche, kHorsDeVue);
  EXPECT_EQ(bureau.visee.Azimut, 12.0F);
  EXPECT_EQ(bureau.visee.HauteurCalculee, 34.0F);
  EXPECT_EQ(d.Text3.texte, "07") << "the sight's own time stays";
}

TEST_F(PanneauDirect, TheSunLeavesTheSightsAzimutAndHeight) {
  Choisit(0);
  Timer1_Tick(bureau);
  EXPECT_EQ(bureau.visee.Azimut, 12.0F);
  EXPECT_EQ(bureau.visee.HauteurCalculee, 34.0F);
  EXPECT_EQ(d.Label64.legende.substr(0, 7), "N 23.26") << "midsummer";
}

TEST_F(PanneauDirect, WithoutAStarOrAPlanetNothingChanges) {
  for (const std::size_t corps : {2U, 3U}) {
    Choisit(corps);
    Timer1_Tick(bureau);
    Intact();
    EXPECT_EQ(d.Soleil.place.gauche, 77.0);
  }
}

TEST_F(PanneauDirect, WithoutDrawingLabelsAndDialsStay) {
  bureau.picAZ.traces.clear();
  bureau.picHE.traces.clear();
  Choisit(1);
  PosLune(bureau, false, true);
  Intact();
  EXPECT_NE(bureau.lune.LuneJD, 0.0);
  Etoile("Vega");
  PositionEtoileLive(bureau, false);
  EXPECT_EQ(d.Label64.legende + d.Label35.legende + d.Label36.legende, "beforebeforebefore");
  EXPECT_EQ(bureau.visee.Azimut, CielEtoile().azimut) << "the sight's azimuth is the star's all the same";
  EXPECT_TRUE(bureau.picAZ.traces.empty());
  EXPECT_TRUE(bureau.picHE.traces.empty());
}

TEST_F(PanneauDirect, ChoosingAStarShowsItWhileTheModuleIsOpenAndChoosingAPlanetAlways) {
  ClicOption(bureau, d.Option7[3]);
  ClicCase(bureau, d.Check3);
  ChoisitLigne(bureau, d.Combo6, 146);
  EXPECT_EQ(d.Label64.legende, d.Combo6.liste[146]);
  EXPECT_EQ(bureau.visee.Azimut, CielEtoile().azimut);
  ClicCase(bureau, d.Check3);
  ASSERT_FALSE(d.Combo8.liste.empty());
  ChoisitLigne(bureau, d.Combo8, 0);
  EXPECT_EQ(d.Label64.legende, d.Combo8.liste[0]);
  ClicOption(bureau, d.Option7[2]);
  ChoisitLigne(bureau, d.Combo7, 2);
  EXPECT_EQ(d.Label64.legende, "Jupiter");
  EXPECT_EQ(bureau.visee.HauteurCalculee, CielPlanete().hauteur);
  d.Frame8.visible = false;
  bureau.visee.Azimut = 12;
  Marque();
  ClicOption(bureau, d.Option7[3]);
  ChoisitLigne(bureau, d.Combo8, 1);
  EXPECT_EQ(d.Label64.legende, "before");
  EXPECT_EQ(bureau.visee.Azimut, 12.0F);
  ClicOption(bureau, d.Option7[2]);
  ChoisitLigne(bureau, d.Combo7, 1);
  EXPECT_EQ(d.Label64.legende, "Mars");
  EXPECT_EQ(bureau.visee.Azimut, CielPlanete().azimut);
}

TEST_F(PanneauDirect, AFailureLeavesLabelsAzimutAndHeightAsTheyWere) {
  Planete(1);
  d.TDate[0].texte = "31"; // of February
  Timer1_Tick(bureau);
  Intact();
  for (Controle &champ : d.TDate) {
    champ.texte.clear();
  }
  Timer1_Tick(bureau);
  Intact();
  Etoile("Vega");
  d.TDate[2].texte = "1E300";
  Timer1_Tick(bureau);
  Intact();
}

TEST_F(PanneauDirect, EmptyFieldsOfThePositionAreThePointZero) {
  for (Controle *champ : {&d.Text6, &d.Text7, &d.Text8, &d.Text9}) {
    champ->texte.clear();
  }
  Etoile("Vega");
  Timer1_Tick(bureau);
  const PaireX p = LitPaireX(CoordEtoile(bureau.etoiles, 0, d.Combo6.rang, {"3", "2", "1990"}));
  const HorizonALaMain32 ciel(Maintenant(), p.gauche, p.droite, 0, 0);
  EXPECT_EQ(bureau.visee.HauteurCalculee, ciel.hauteur);
  EXPECT_EQ(bureau.visee.Azimut, ciel.azimut);
}

TEST_F(PanneauDirect, AtThePoleNoLabelIsNoNumber) {
  Tape(d.Text8, "90");
  Tape(d.Text9, "0");
  Etoile("Vega");
  Planete(0);
  for (std::size_t corps = 0; corps < 4; ++corps) {
    for (const std::size_t sud : {0U, 1U}) {
      ClicOption(bureau, d.OptN[sud]);
      Choisit(corps);
      Timer1_Tick(bureau);
      for (const Controle *label : {&d.Label35, &d.Label36, &d.Label64}) {
        EXPECT_EQ(label->legende.find("nan"), std::string::npos) << corps;
        EXPECT_EQ(label->legende.find("inf"), std::string::npos) << corps;
      }
    }
  }
}

TEST_F(PanneauDirect, AnAngleUnderOneDegreeHasNoZeroBeforeItsPoint) {
  TraceCadrans(bureau, 0.5, -0.25);
  EXPECT_EQ(d.Label35.legende, ".50 °");
  EXPECT_EQ(d.Label36.legende, "-.25 °");
  TraceCadrans(bureau, 359.996, 0);
  EXPECT_EQ(d.Label35.legende, "360.00 °");
  EXPECT_EQ(d.Label36.legende, ".00 °");
}

TEST_F(PanneauDirect, TheSightsAzimuthChangesWhenThePanelRunsAndTheInterceptStays) {
  Etoile("Vega");
  d.TDate[2].texte = "2026";
  d.TDate[1].texte = "6";
  d.TDate[0].texte = "21";
  d.Text3.texte = "21";
  Calcule();
  const ValeursVisee apres = bureau.visee;
  Timer1_Tick(bureau);
  EXPECT_NE(bureau.visee.Azimut, apres.Azimut);
  EXPECT_NE(bureau.visee.HauteurCalculee, apres.HauteurCalculee);
  EXPECT_EQ(bureau.visee.Intercept, apres.Intercept);
}

} // namespace
} // namespace velmaris::essais
