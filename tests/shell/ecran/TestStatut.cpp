#include "shell/ecran/Statut.hpp"

#include "shell/Demarrage.hpp"
#include "shell/carte/Carte.hpp"
#include "shell/carte/Souris.hpp"
#include "shell/ecran/Disposition.hpp"
#include "shell/ecran/Echelle.hpp"
#include "tests/shell/bureau/OutilsBureau.hpp"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace velmaris::essais {
namespace {

class LigneDeStatut : public Programme {
protected:
  LigneDeStatut() { Demarre(EcranDe(1920, 1080, 1080)); }
  std::string Dit() {
    AccordeStatut(bureau);
    return bureau.etat.Dit.legende;
  }
  const std::string &Position() const { return bureau.etat.Position.legende; }
  void Bat(int fois) {
    for (int i = 0; i < fois; ++i) {
      Timer1_Tick(bureau);
    }
  }
};

TEST_F(LigneDeStatut, APlaceIsToldInTenthsOfAMinute) {
  EXPECT_EQ(TexteTenue(47 + 10.3 / 60, 4 + 44.1 / 60), "47° 10.3' N  004° 44.1' W");
  EXPECT_EQ(TexteTenue(-5.5, -120.25), "05° 30.0' S  120° 15.0' E");
  EXPECT_EQ(TexteTenue(0, 0), "00° 00.0' N  000° 00.0' W");
}

TEST_F(LigneDeStatut, TenthsThatRoundToAWholeDegreeCarry) {
  EXPECT_EQ(TexteTenue(47 + 59.96 / 60, 9 + 59.97 / 60), "48° 00.0' N  010° 00.0' W");
  EXPECT_EQ(TexteTenue(-0.00001, -0.00001), "00° 00.0' N  000° 00.0' W");
}

TEST_F(LigneDeStatut, ALongitudeIsBroughtWithin180AndPastAPoleIsNoPlace) {
  EXPECT_EQ(TexteTenue(10, 190), "10° 00.0' N  170° 00.0' E");
  EXPECT_EQ(TexteTenue(10, -200.5), "10° 00.0' N  159° 30.0' W");
  EXPECT_EQ(TexteTenue(90.1, 0), "");
  EXPECT_EQ(TexteTenue(90, 0), "90° 00.0' N  000° 00.0' W");
}

TEST_F(LigneDeStatut, WithoutASheetOrAChartThePointerHasNoPlace) {
  Image1_MouseMove(bureau, false, 5000, 5000);
  EXPECT_EQ(Position(), "");
}

TEST_F(LigneDeStatut, OverTheWholeWorldTheMiddleIsNoughtNought) {
  OuvreCartes(bureau);
  Image1_MouseMove(bureau, false, bureau.feuille.CentreX, bureau.feuille.CentreY);
  EXPECT_EQ(Position(), "00° 00.0' N  000° 00.0' W");
  PerdPosition(bureau);
  EXPECT_EQ(Position(), "");
}

TEST_F(LigneDeStatut, OnASheetThePointerAtTheCentreIsAtTheEstimatedPosition) {
  TapeVisee();
  Calcule();
  Image1_MouseMove(bureau, false, bureau.feuille.CentreX, bureau.feuille.CentreY);
  EXPECT_EQ(Position(), "47° 30.0' N  005° 10.0' W");
}

TEST_F(LigneDeStatut, ARefusedFieldIsToldWithWhatItTakesAndThenNoMore) {
  Tape(d.Text9, "95");
  EXPECT_EQ(d.Text9.texte, "");
  EXPECT_EQ(Dit(), "Latitude estimée, minutes : 95 refusé, le champ est vidé. Il prend : 0 à 60");
  Bat(5);
  EXPECT_NE(Dit(), "");
  Bat(1);
  EXPECT_EQ(Dit(), "");
}

TEST_F(LigneDeStatut, AFieldThatIsLeftEmptyIsNotRefused) {
  Tape(d.Text9, "");
  EXPECT_EQ(Dit(), "");
}

TEST_F(LigneDeStatut, EveryFieldOfASightTellsItsRangeInBothLanguages) {
  EXPECT_EQ(d.Text11.infobulle, "Collimation, minutes : -60 à 60 ; dixièmes après la virgule");
  ClicControle(bureau, d.Image10[1]);
  for (const Controle *c : {&d.TDate[0], &d.Text3, &d.Text6, &d.Text9, &d.Text10, &d.Text12, &d.Text13, &d.Text25}) {
    EXPECT_NE(c->infobulle.find(" : "), std::string::npos) << c->nom;
  }
  Tape(d.Text13, "200");
  EXPECT_EQ(Dit().find("Sextant reading, degrees : 200 refused, the field is emptied. It takes: 0 to 90"), 0U) << Dit();
}

TEST_F(LigneDeStatut, AToolTellsWhatItWaitsFor) {
  ClicControle(bureau, d.Command23);
  ClicOption(bureau, d.Option1[0]);
  EXPECT_EQ(Dit(), bureau.etat.TexteMode[0].legende);
  ClicOption(bureau, d.Option1[6]);
  EXPECT_EQ(Dit(), bureau.etat.TexteMode[6].legende);
  ClicControle(bureau, d.Command9); // courses and distances
  EXPECT_EQ(Dit(), bureau.etat.TexteCapsDepart.legende);
  ClicOption(bureau, d.Option3);
  EXPECT_EQ(Dit(), bureau.etat.TexteCapsArrivee.legende);
  OuvreCartes(bureau);
  ClicControle(bureau, d.Command24); // distance
  EXPECT_EQ(Dit(), bureau.etat.TexteDepart.legende);
  Image1_MouseDown(bureau, BoutonSouris::Droit, 4000, 4000);
  EXPECT_EQ(Dit(), bureau.etat.TexteBranche.legende);
  ClicControle(bureau, d.Frame10);
  EXPECT_EQ(Dit(), bureau.etat.TexteModule.legende);
}

TEST_F(LigneDeStatut, AClickThatDoesNothingSaysWhy) {
  ClicControle(bureau, d.Command26);
  EXPECT_EQ(Dit(), "Pas de détails : aucune visée n'est encore calculée");
  Image1_MouseDown(bureau, BoutonSouris::Droit, 4000, 4000);
  EXPECT_EQ(Dit(), bureau.etat.TexteSansDistance.legende);
  d.HScroll1.valeur = 29000;
  EXPECT_TRUE(Donnees_KeyDown(bureau, kToucheF1 + 8));
  EXPECT_EQ(Dit(), "Le zoom est au bout de sa course");
  EXPECT_EQ(d.HScroll1.valeur, 29000);
}

TEST_F(LigneDeStatut, ItLiesUnderTheSurfaceWithinTheWindowOnEveryScreen) {
  for (const auto &[largeur, hauteur] : {std::pair{1024, 600}, {1366, 768}, {1920, 1080}, {3840, 2160}}) {
    Bureau autre;
    DisposeFenetre(autre, EcranDe(largeur, hauteur, hauteur));
    const Place &surface = autre.donnees.Image1.place;
    for (const Place &place : {autre.etat.Dit.place, autre.etat.Position.place}) {
      EXPECT_GE(place.haut, surface.haut + surface.hauteur);
      EXPECT_LE(place.haut + place.hauteur, autre.hauteurFenetre);
      EXPECT_LE(place.gauche + place.largeur, autre.largeurFenetre);
    }
    EXPECT_LT(autre.etat.Dit.place.gauche + autre.etat.Dit.place.largeur, autre.etat.Position.place.gauche);
  }
}

} // namespace
} // namespace velmaris::essais
