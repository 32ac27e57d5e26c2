#include "tests/shell/droites/OutilsDroites.hpp"

#include "shell/ecran/PageImprimee.hpp"

#include <algorithm>
#include <array>
#include <string>

/// The print page: its rows, the picture that it takes each time it comes to the front, and what a failed printing
/// leaves.
namespace velmaris::essais {
namespace {

class PageImprimee : public QuatreDroites {
protected:
  void SetUp() override {
    DemarreSansCarte();
    bureau.ports.imprime = [this](const Impression &imprimee) {
      ++imprimees;
      boutonImprime = imprimee.Frame1.visible;
      paysage = imprimee.paysage;
      return reussit;
    };
  }

  /// "Imprime", then the window comes to the front.
  void Montre() {
    ClicControle(bureau, d.Command11);
    ActiveFenetre(bureau, kFenetreImpression);
  }

  Impression &page = bureau.impression;
  int imprimees = 0;
  bool boutonImprime = true;
  bool paysage = false;
  bool reussit = true;
};

TEST_F(PageImprimee, ItsPartsLieAsTheSheetIsComposed) {
  EXPECT_EQ(page.Image1.place, (Place{15, 15, 15120, 9330}));
  EXPECT_EQ(page.Frame1.place, (Place{12810, 2910, 1995, 750}));
  EXPECT_EQ(page.Command1.legende, "Imprimer");
  EXPECT_EQ(page.Command1.parent, "Frame1");
  const std::array<double, 4> gauches = {60, 2850, 5610, 8355};
  for (std::size_t i = 0; i < gauches.size(); ++i) {
    EXPECT_EQ(page.Frame4[i].place, (Place{gauches[i], 9240, 2660, 1600}));
    EXPECT_FALSE(page.Frame4[i].visible) << "empty until a line is reduced";
  }
}

TEST_F(PageImprimee, EachRowHasFiveHeadingsTheirSignsAndTheirDefaults) {
  const std::array<std::string, 5> entetes = {"heure", "Latitude", "Longitude", "Azimuth ", "Intercept"};
  const std::array<std::string, 5> valeurs = {"00:00:00", "00°00' N", "000°00' W", "000°", "00.0'"};
  for (std::size_t rangee = 0; rangee < 4; ++rangee) {
    const auto etiquettes = EtiquettesDe(page, rangee);
    for (std::size_t i = 0; i < 5; ++i) {
      EXPECT_EQ(etiquettes[i]->legende, valeurs[i]);
      EXPECT_EQ(etiquettes[5 + i]->legende, entetes[i]);
      EXPECT_EQ(etiquettes[10 + i]->legende, "  =");
      EXPECT_EQ(etiquettes[i]->place.haut, etiquettes[5 + i]->place.haut) << "on one line";
      EXPECT_EQ(etiquettes[i]->place.haut, etiquettes[10 + i]->place.haut);
    }
    EXPECT_EQ(etiquettes[0]->nom + etiquettes[4]->nom, "Label32Label36");
    EXPECT_EQ(etiquettes[0]->indice, static_cast<int>(rangee));
  }
}

TEST_F(PageImprimee, ItShowsBesideTheMainWindowAndComesToTheFront) {
  ClicControle(bureau, d.Command11);
  EXPECT_TRUE(page.cadre.visible);
  EXPECT_EQ(bureau.premierPlan, kFenetreImpression);
  const auto libres = FenetresLibres(bureau);
  EXPECT_NE(std::find(libres.begin(), libres.end(), &page.cadre), libres.end());
}

TEST_F(PageImprimee, WithNoLineItIsOnlyThePicture) {
  Montre();
  for (const Controle &rangee : page.Frame4) {
    EXPECT_FALSE(rangee.visible);
  }
  EXPECT_EQ(page.image.traces, bureau.image1.traces);
  EXPECT_EQ(page.image.largeur, bureau.image1.largeur);
}

TEST_F(PageImprimee, ThePictureIsTakenEachTimeThePageComesToTheFrontAndNotBetween) {
  Montre();
  const auto avant = page.image.traces;
  TapeVisee();
  Calcule();
  EXPECT_EQ(page.image.traces, avant) << "what is drawn behind it isn't on it";
  ActiveFenetre(bureau, kFenetreImpression);
  EXPECT_EQ(page.image.traces, bureau.image1.traces);
  EXPECT_NE(page.image.traces, avant);
}

TEST_F(PageImprimee, RowsFillWhileThePageIsAwayAndStayWhenItIsPutAway) {
  TapeVisee();
  Calcule();
  ClicOption(bureau, d.Option1[0]);
  ClicControle(bureau, d.Droite[0]);
  ClicControle(bureau, d.Command6);
  EXPECT_FALSE(page.Frame4[0].visible) << "\"Ecran\" hides the rows";
  ClicControle(bureau, d.Droite[0]);
  EXPECT_TRUE(page.Frame4[0].visible);
  Montre();
  ClicControle(bureau, page.Image1);
  EXPECT_FALSE(page.cadre.visible);
  EXPECT_EQ(bureau.premierPlan, kFenetreDonnees);
  EXPECT_TRUE(page.Frame4[0].visible);
  EXPECT_EQ(page.Label33[0].legende, "47° 30' N");
}

TEST_F(PageImprimee, ItIsPrintedOnItsLongSideWithoutItsButtonWhichComesBack) {
  Montre();
  ClicControle(bureau, page.Command1);
  EXPECT_EQ(imprimees, 1);
  EXPECT_FALSE(boutonImprime);
  EXPECT_TRUE(paysage);
  EXPECT_TRUE(page.Frame1.visible);
  EXPECT_TRUE(page.cadre.visible);
  EXPECT_TRUE(boites.empty());
}

TEST_F(PageImprimee, AFailureIsToldAndLeavesTheButtonHiddenUntilThePageComesToTheFrontAgain) {
  Montre();
  reussit = false;
  ClicControle(bureau, page.Command1);
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_EQ(boites[0].texte, bureau.messages[24]);
  EXPECT_NE(boites[0].texte, "");
  EXPECT_EQ(boites[0].fenetre, kFenetreImpression) << "so that it is the page that is there when it goes";
  EXPECT_FALSE(page.Frame1.visible);
  EXPECT_TRUE(page.cadre.visible);
  ActiveFenetre(bureau, kFenetreImpression);
  EXPECT_TRUE(page.Frame1.visible);
}

TEST_F(PageImprimee, ItIsNotTranslated) {
  ClicControle(bureau, d.Image10[1]);
  Montre();
  EXPECT_EQ(page.Command1.legende, "Imprimer");
  EXPECT_EQ(page.Entete[0].legende, "heure");
}

TEST_F(PageImprimee, ItsControlsAreListedByItsNameAndAnUnknownWindowHasNone) {
  const ListeControles controles = ControlesDe(bureau, kFenetreImpression);
  EXPECT_TRUE(std::find(controles.begin(), controles.end(), &page.Command1) != controles.end());
  EXPECT_TRUE(ControlesDe(bureau, "Impression2").empty());
}

TEST_F(PageImprimee, LeavingTheProgramClosesIt) {
  Montre();
  reponse = true;
  ClicControle(bureau, d.Sortie);
  EXPECT_FALSE(page.cadre.visible);
}

} // namespace
} // namespace velmaris::essais
