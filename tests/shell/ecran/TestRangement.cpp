#include "shell/ecran/Rangement.hpp"

#include "tests/shell/bureau/OutilsBureau.hpp"

#include <gtest/gtest.h>

#include <vector>

namespace velmaris::essais {
namespace {

class Rangement : public Programme {
protected:
  Rangement() { Demarre(); }
  void F12() { EXPECT_TRUE(Donnees_KeyDown(bureau, kToucheF1 + 11)); }
  std::vector<int> Montres() {
    std::vector<int> numeros;
    for (const int numero : {1, 2, 3, 4, 7, 8, 9, 10}) {
      if (Module(d, numero)->visible) {
        numeros.push_back(numero);
      }
    }
    return numeros;
  }
  /// The program started anew on the same store.
  void Redemarre() {
    neuf = std::make_unique<Bureau>();
    Branche(*neuf);
    Donnees_Charge(*neuf, {});
    RemetDisposition(*neuf);
  }
  std::unique_ptr<Bureau> neuf;
};

TEST_F(Rangement, F12PutsAllModulesAwayAndBringsThemBackWhereTheyWere) {
  ClicControle(bureau, d.Command7);
  ClicControle(bureau, d.Command22); // and the four lines with it
  TireModule(bureau, d.Frame8, 7000, 5000);
  const auto montres = Montres();
  F12();
  EXPECT_TRUE(Montres().empty());
  EXPECT_FALSE(d.Command8.visible) << "\"Mémoire\" goes with the four lines";
  EXPECT_LT(d.Soleil.place.gauche, 0) << "the Sun's mark goes with its module";
  F12();
  EXPECT_EQ(Montres(), montres);
  EXPECT_EQ(d.Frame8.place.gauche, 7000);
  EXPECT_EQ(d.Frame8.place.haut, 5000);
  EXPECT_TRUE(d.Command8.visible);
}

TEST_F(Rangement, AModulePutAwayComesBackToItsPlaceWhateverMovedItMeanwhile) {
  TireModule(bureau, d.Frame7, 4000, 2000);
  F12();
  d.Frame7.place.gauche = 0;
  F12();
  EXPECT_EQ(d.Frame7.place.gauche, 4000);
}

TEST_F(Rangement, WithOneModuleOpenedSinceThatOneIsPutAway) {
  F12();
  ClicControle(bureau, d.Command21);
  F12();
  EXPECT_TRUE(Montres().empty());
  F12();
  EXPECT_EQ(Montres(), std::vector<int>{9});
}

TEST_F(Rangement, TheLegsModuleTakesItsModeAwayAndBringsItBack) {
  ClicControle(bureau, d.PU_Distance);
  F12();
  EXPECT_EQ(bureau.souris.ModeDistance, 0);
  EXPECT_EQ(d.Image1.pointeur, Pointeur::Normal);
  F12();
  EXPECT_NE(bureau.souris.ModeDistance, 0);
  EXPECT_EQ(d.Image1.pointeur, Pointeur::Croix);
  EXPECT_TRUE(d.Frame1.visible);
}

TEST_F(Rangement, WithNothingToBringBackTheStatusLineSaysSo) {
  ClicControle(bureau, d.PU_Clear);
  F12();
  EXPECT_TRUE(Montres().empty());
  EXPECT_EQ(bureau.etat.avis, "Aucun module à remettre");
}

TEST_F(Rangement, AModuleHeldByTheMouseIsLetGo) {
  SaisitModule(bureau, 7);
  F12();
  EXPECT_EQ(bureau.ModuleDeplace, 0);
  EXPECT_FALSE(d.Label62.visible);
}

TEST_F(Rangement, AtFirstNoLayoutIsKeptAndAStartIsAsAlways) {
  EXPECT_FALSE(bureau.gardeDisposition);
  EXPECT_EQ(d.PU_Disposition.valeur, 0);
  TireModule(bureau, d.Frame7, 4000, 2000);
  reponse = true;
  ClicControle(bureau, d.Sortie);
  Redemarre();
  EXPECT_EQ(neuf->donnees.Frame7.place.gauche, 0);
}

TEST_F(Rangement, AKeptLayoutComesBackAfterTheStartWithPlacesAndModules) {
  ClicControle(bureau, d.PU_Disposition);
  EXPECT_EQ(d.PU_Disposition.valeur, 1);
  TireModule(bureau, d.Frame7, 4000, 2000);
  ClicControle(bureau, d.Command23);
  ClicControle(bureau, d.Command21);
  reponse = true;
  ClicControle(bureau, d.Sortie);
  Redemarre();
  const Donnees &n = neuf->donnees;
  EXPECT_EQ(n.PU_Disposition.valeur, 1);
  EXPECT_EQ(n.Frame7.place.gauche, 4000);
  EXPECT_EQ(n.Frame7.place.haut, 2000);
  EXPECT_TRUE(n.Frame10.visible && n.FOptionCarte.visible && n.Command8.visible);
  EXPECT_FALSE(n.Frame4.visible);
  EXPECT_EQ(n.FOptionCarte.place, d.FOptionCarte.place);
}

TEST_F(Rangement, LegsAndEmptyDetailsDontComeBackByThemselves) {
  ClicControle(bureau, d.PU_Disposition);
  TapeVisee();
  Calcule();
  ClicControle(bureau, d.Command26);
  ClicControle(bureau, d.PU_Distance);
  ASSERT_TRUE(d.Frame9.visible && d.Frame1.visible);
  reponse = true;
  ClicControle(bureau, d.Sortie);
  Redemarre();
  EXPECT_FALSE(neuf->donnees.Frame9.visible);
  EXPECT_FALSE(neuf->donnees.Frame1.visible);
  EXPECT_EQ(neuf->souris.ModeDistance, 0);
}

TEST_F(Rangement, AModuleFromALargerScreenStaysInReach) {
  ClicControle(bureau, d.PU_Disposition);
  d.Frame7.place.gauche = 90000;
  d.Frame7.place.haut = 90000;
  GardeDisposition(bureau);
  Redemarre();
  const Place &surface = neuf->donnees.Image1.place;
  EXPECT_LT(neuf->donnees.Frame7.place.gauche, surface.gauche + surface.largeur);
  EXPECT_LT(neuf->donnees.Frame7.place.haut, surface.haut + surface.hauteur);
}

TEST_F(Rangement, ATextThatIsNoLayoutChangesNothing) {
  ClicControle(bureau, d.PU_Disposition);
  for (const char *texte : {"", "7 1 10 10", "x", "1 1 0 0 2 1 0 0 3 1 0 0 4 1 0 0 7 1 0 0 8 1 0 0 9 1 0 0 99 1 0 0"}) {
    EcritReglage(bureau, "Places", texte);
    Redemarre();
    EXPECT_EQ(neuf->donnees.Frame7.place, d.Frame7.place) << texte;
    EXPECT_FALSE(neuf->donnees.Frame2.visible) << texte;
  }
}

} // namespace
} // namespace velmaris::essais
