#include "shell/ecran/Copie.hpp"

#include "foundations/Fichiers.hpp"
#include "tests/shell/ecran/OutilsDialogue.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmaris::essais {
namespace {

/// The program with a clipboard that is noted, and pictures that name their form.
class Copier : public AvecDialogue {
protected:
  Copier() {
    bureau.ports.copieTexte = [this](const std::string &texte) { textes.push_back(texte); };
    bureau.ports.copieImage = [this](const Surface &surface) { images.push_back(&surface); };
    bureau.ports.image = [](const Surface &, FormeImage forme) {
      return std::string("picture ") + (forme == FormeImage::Png ? "png" : forme == FormeImage::Svg ? "svg" : "pdf");
    };
  }
  std::string Dernier() { return textes.empty() ? "nothing" : textes.back(); }
  void Enregistre(const std::string &nom) {
    Jouera([this, nom] { Donne(nom); });
    ClicControle(bureau, d.PU_Image);
  }
  std::vector<std::string> textes;
  std::vector<const Surface *> images;
};

TEST_F(Copier, AResultIsCopiedWithItsCaptionFromWhereThePointerIs) {
  TapeVisee();
  Calcule();
  Copie(bureau, &d.Affichage_Azimuth, &d.Text13);
  EXPECT_EQ(Dernier(), "Intercept en milles : " + d.Affichage_Intercept.legende +
                           "\nAzimut en degrés : " + d.Affichage_Azimuth.legende);
  EXPECT_THAT(bureau.etat.avis, testing::StartsWith("Copié : Intercept en milles : "));
}

TEST_F(Copier, WithThePointerElsewhereTheModuleThatHasTheKeyboardIsMeant) {
  TapeVisee();
  Calcule();
  Copie(bureau, &d.Image1, &d.Command2);
  EXPECT_THAT(Dernier(), testing::HasSubstr(d.Affichage_Intercept.legende));
  Copie(bureau, &d.Command2, &d.Text13);
  EXPECT_THAT(Dernier(), testing::HasSubstr(d.Affichage_Intercept.legende));
  EXPECT_TRUE(images.empty());
}

TEST_F(Copier, WithTheKeyboardOnTheSurfaceItsPictureIsCopied) {
  Copie(bureau, &d.Image1, &d.Image1);
  ASSERT_EQ(images.size(), 1U);
  EXPECT_EQ(images[0], &bureau.image1);
  EXPECT_TRUE(textes.empty());
  ClicControle(bureau, d.PU_CopieImage);
  EXPECT_EQ(images.size(), 2U);
}

TEST_F(Copier, BeforeACalculationThereIsNothingAndTheStatusLineSaysSo) {
  for (const Controle *c : {&d.Frame7, &d.Frame4, &d.Frame2, &d.Frame1, &d.Frame9, &d.Frame10}) {
    EXPECT_EQ(ResultatsDe(bureau, *c), "") << c->nom;
    EXPECT_FALSE(OuvreMenuCopie(bureau, *c)) << c->nom;
  }
  Copie(bureau, nullptr, &d.Text13);
  EXPECT_TRUE(textes.empty());
  EXPECT_EQ(bureau.etat.avis, "Rien à copier ici : rien n'est encore calculé");
}

TEST_F(Copier, TheDetailsOfASightAreEightLines) {
  TapeVisee();
  Calcule();
  const std::string texte = ResultatsDe(bureau, d.Label70[3]);
  EXPECT_EQ(std::count(texte.begin(), texte.end(), '\n'), 7);
  EXPECT_THAT(texte, testing::StartsWith(d.Label70[0].legende));
}

TEST_F(Copier, DeadReckoningCoursesAndLegsAreCopiedWithTheirUnits) {
  d.LabLatEst.legende = "N47.30";
  d.LabLonEst.legende = "W005.10";
  EXPECT_EQ(ResultatsDe(bureau, d.LabLonEst), "Position estimée N47.30 W005.10");
  d.Text24.texte = "045";
  d.Text23.texte = "120.5";
  EXPECT_EQ(ResultatsDe(bureau, d.Label58), "Route Suivie 045 °\nDistance 120.5 Nm");
  d.List1.liste = {" 012  :  012  :  090 °", " 005  :  017  :  180 °"};
  d.Label15.legende = "17";
  EXPECT_EQ(ResultatsDe(bureau, d.List1), "012  :  012  :  090 °\n005  :  017  :  180 °\nTotal 17");
}

TEST_F(Copier, TheLivePositionIsCopiedUnderItsTitle) {
  ClicControle(bureau, d.Command7);
  const std::string texte = ResultatsDe(bureau, d.PicAZ);
  EXPECT_THAT(texte, testing::StartsWith(d.Label64.legende + "\nAzimut " + d.Label35.legende));
  EXPECT_THAT(texte, testing::HasSubstr("\nHauteur " + d.Label36.legende));
}

TEST_F(Copier, TheRightButtonOnAResultOpensAMenuThatCopiesItAndOnAFieldOrAButtonNone) {
  TapeVisee();
  Calcule();
  EXPECT_FALSE(OuvreMenuCopie(bureau, d.Text13));
  EXPECT_FALSE(OuvreMenuCopie(bureau, d.Command2));
  EXPECT_FALSE(OuvreMenuCopie(bureau, d.Image1));
  EXPECT_EQ(bureau.menu, nullptr);
  ASSERT_TRUE(OuvreMenuCopie(bureau, d.Affichage_Intercept));
  EXPECT_EQ(bureau.menu, &d.MenuCopie);
  EXPECT_EQ(bureau.menuSous, &d.Affichage_Intercept);
  ClicControle(bureau, d.MC_Copier);
  EXPECT_EQ(Dernier(), ResultatsDe(bureau, d.Affichage_Intercept));
}

TEST_F(Copier, ThePlaceOfTheMenuIsCopiedWhereTheSurfaceHasAScale) {
  Image1_MouseDown(bureau, BoutonSouris::Gauche, 5000, 5000);
  EXPECT_FALSE(d.PU_CopiePoint.actif);
  TapeVisee();
  Calcule();
  Image1_MouseDown(bureau, BoutonSouris::Gauche, bureau.feuille.CentreX, bureau.feuille.CentreY);
  EXPECT_TRUE(d.PU_CopiePoint.actif);
  ClicControle(bureau, d.PU_CopiePoint);
  EXPECT_EQ(Dernier(), "47° 30.0' N  005° 10.0' W");
}

TEST_F(Copier, ThePictureIsSavedInTheFormOfItsSuffix) {
  for (const char *nom : {"a.png", "b.SVG", "c.pdf"}) {
    Enregistre(nom);
  }
  EXPECT_EQ(LitFichier(lieu / "a.png"), "picture png");
  EXPECT_EQ(LitFichier(lieu / "b.SVG"), "picture svg");
  EXPECT_EQ(LitFichier(lieu / "c.pdf"), "picture pdf");
  Enregistre("sans");
  EXPECT_EQ(LitFichier(lieu / "sans.png"), "picture png") << "a name without suffix";
  EXPECT_TRUE(boites.empty());
}

TEST_F(Copier, AnotherSuffixIsToldAndWritesNothing) {
  Enregistre("a.jpg");
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_THAT(boites[0].texte, testing::StartsWith("Terminez le nom par .png, .svg ou .pdf :"));
  EXPECT_FALSE(std::filesystem::exists(lieu / "a.jpg"));
}

TEST_F(Copier, APictureThatCantBeWrittenIsToldAndAnOldOneStaysWhole) {
  Pose(lieu / "a.png", "old");
  bureau.ports.image = [](const Surface &, FormeImage) { return std::string(); };
  reponse = true;
  Enregistre("a.png");
  ASSERT_EQ(boites.size(), 2U);
  EXPECT_TRUE(boites[0].question) << "an old one is replaced after a yes";
  EXPECT_EQ(boites[1].icone, Icone::Erreur);
  EXPECT_THAT(boites[1].texte, testing::HasSubstr("Le fichier n'a pas pu être écrit."));
  EXPECT_EQ(LitFichier(lieu / "a.png"), "old");
}

TEST_F(Copier, SavingAPictureLeavesTheTitleWithItsSight) {
  const std::string titre = bureau.TitreFichier;
  Enregistre("a.png");
  EXPECT_EQ(bureau.TitreFichier, titre);
}

} // namespace
} // namespace velmaris::essais
