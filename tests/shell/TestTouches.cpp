#include "shell/ecran/TailleFenetres.hpp"
#include "tests/shell/bureau/OutilsBureau.hpp"

#include <gtest/gtest.h>

/// The keys that every desktop has.
namespace velmaris::essais {
namespace {

class Touches : public Programme {
protected:
  Touches() {
    Demarre();
    bureau.ports.modale = [this](CadreFenetre &cadre) {
      dialogues.emplace_back(cadre.titre);
      cadre.visible = false;
    };
  }
  std::vector<std::string> dialogues;
};

TEST_F(Touches, ControlWithALetterIsTheButtonOfItsCommand) {
  EXPECT_TRUE(ToucheControle(bureau, 'S'));
  EXPECT_TRUE(ToucheControle(bureau, 'O'));
  EXPECT_EQ(dialogues, (std::vector<std::string>{"Sauvegarder le FICHIER", "Charger un FICHIER "}));
  EXPECT_TRUE(ToucheControle(bureau, 'P'));
  EXPECT_TRUE(bureau.impression.cadre.visible);
  EXPECT_TRUE(ToucheControle(bureau, 'Q'));
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_TRUE(boites[0].question);
  EXPECT_FALSE(bureau.termine) << "answered No";
  for (const char lettre : {'A', 'C', 'N', 'V', 'Z'}) {
    EXPECT_FALSE(ToucheControle(bureau, lettre)) << lettre;
  }
}

TEST_F(Touches, TheMenuKeyOpensTheSurfacesMenuAtThePointerOrElseUnderWhatHasTheKeyboard) {
  EXPECT_TRUE(ToucheMenu(bureau, &d.Image1, {3000, 4000}, &d.Text13));
  EXPECT_EQ(bureau.menu, &d.PopUp);
  EXPECT_EQ(bureau.menuSous, nullptr);
  EXPECT_EQ(bureau.souris.ClicX, 3000.0F);
  EXPECT_EQ(bureau.souris.ClicY, 4000.0F);
  EXPECT_TRUE(ToucheMenu(bureau, &d.Command2, {0, 0}, &d.Text13));
  EXPECT_EQ(bureau.menu, &d.PopUp);
  EXPECT_EQ(bureau.menuSous, &d.Text13);
  EXPECT_EQ(bureau.souris.ClicX, static_cast<float>(bureau.image1.largeur / 2));
  EXPECT_TRUE(ToucheMenu(bureau, nullptr, {0, 0}, &d.Image1));
  EXPECT_EQ(bureau.menuSous, nullptr) << "in the middle of the surface that has the keyboard";
}

TEST_F(Touches, OverAResultTheMenuKeyOpensTheMenuThatCopiesIt) {
  TapeVisee();
  Calcule();
  EXPECT_TRUE(ToucheMenu(bureau, &d.Affichage_Intercept, {0, 0}, &d.Text13));
  EXPECT_EQ(bureau.menu, &d.MenuCopie);
}

TEST_F(Touches, TheRightButtonStaysForTheLegs) {
  Image1_MouseDown(bureau, BoutonSouris::Droit, 3000, 4000);
  EXPECT_EQ(bureau.menu, nullptr);
}

TEST_F(Touches, CalculWithNoHeightReadSaysWhyNoLineComes) {
  Calcule();
  EXPECT_EQ(bureau.etat.avis, "Pas de droite : aucune hauteur n'est lue");
  EXPECT_TRUE(boites.empty());
  bureau.etat.avis.clear();
  TapeVisee();
  Calcule();
  EXPECT_EQ(bureau.etat.avis, "");
}

TEST_F(Touches, AWindowsSizeIsKeptAndWhatIsNoneIsntTaken) {
  EXPECT_FALSE(TailleGardee(bureau, kFenetreCiel));
  GardeTaille(bureau, kFenetreCiel, {1234, 567});
  EXPECT_EQ(TailleGardee(bureau, kFenetreCiel), (TailleFenetre{1234, 567}));
  bureau.ecran.echelle *= 2;
  EXPECT_EQ(TailleGardee(bureau, kFenetreCiel), (TailleFenetre{2468, 1134})) << "on a screen twice as fine";
  bureau.ecran.echelle /= 2;
  EXPECT_FALSE(TailleGardee(bureau, kFenetreImpression));
  for (const char *texte : {"", "x", "12", "0x0", "-3x4", "1e9x1e9", "axb"}) {
    EcritReglage(bureau, "Taille Ciel", texte);
    EXPECT_FALSE(TailleGardee(bureau, kFenetreCiel)) << texte;
  }
}

TEST_F(Touches, EveryFieldListAndSliderOfTheMainWindowTellsWhatItTakesInBothLanguages) {
  for (const std::size_t langue : {std::size_t{0}, std::size_t{1}}) {
    ClicControle(bureau, d.Image10[langue]);
    PourChaque(d, [](const LigneDonnees &, const Controle &c) {
      if (c.genre == Genre::Champ || c.genre == Genre::Liste || c.genre == Genre::Curseur) {
        EXPECT_NE(c.infobulle.find(':'), std::string::npos) << c.nom << " " << c.infobulle;
      }
    });
  }
}

TEST_F(Touches, WhatACalculationHasToldInATipOutlivesAChangeOfLanguage) {
  d.Text14.infobulle = "47.5";
  ClicControle(bureau, d.Image10[1]);
  EXPECT_EQ(d.Text14.infobulle, "47.5");
}

} // namespace
} // namespace velmaris::essais
