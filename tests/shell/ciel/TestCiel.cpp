#include "tests/shell/ciel/OutilsCiel.hpp"

#include "foundations/Fichiers.hpp"
#include "shell/bureau/Langage.hpp"

#include <gmock/gmock.h>

#include <set>

/// The sky window: how it opens, closes, is sized and speaks.
namespace velmaris::essais {
namespace {

using testing::Contains;
using testing::IsEmpty;

class FenetreCiel : public AvecCiel {};

TEST_F(FenetreCiel, AstresOpensItBesideTheMainWindow) {
  EXPECT_FALSE(c.cadre.visible);
  EXPECT_TRUE(d.Command13.actif);
  Ouvre();
  EXPECT_TRUE(c.cadre.visible);
  EXPECT_EQ(bureau.premierPlan, kFenetreCiel);
  EXPECT_THAT(FenetresLibres(bureau), Contains(&c.cadre));
  EXPECT_EQ(c.cadre.titre, "Astres");
  EXPECT_EQ(c.cadre.largeur, 28800 - 100);
  EXPECT_EQ(c.cadre.hauteur, 16200 - 300);
}

TEST_F(FenetreCiel, ItStartsOnTheHorizontalChartUnturnedAndRefreshingItself) {
  Ouvre();
  EXPECT_TRUE(c.Option1[1].choisi);
  EXPECT_FALSE(c.Option1[0].choisi);
  EXPECT_EQ(c.HScroll1.valeur, 0);
  EXPECT_EQ(c.HScroll1.minimum, 0);
  EXPECT_EQ(c.HScroll1.maximum, 200);
  EXPECT_EQ(c.HScroll1.petitPas, 5);
  EXPECT_EQ(c.HScroll1.grandPas, 10);
  EXPECT_EQ(c.Check2.valeur, 1);
  EXPECT_TRUE(c.minuterie);
  EXPECT_EQ(kPeriodeCiel, 10000);
  Ciel neuve;
  InitialiseCiel(neuve);
  EXPECT_EQ(neuve.picture1.fond, kBleu);
  EXPECT_EQ(neuve.picture1.encre, kBlanc);
  EXPECT_FALSE(c.picture1.traces.empty()) << "it is drawn at once";
}

TEST_F(FenetreCiel, ItsTimerRunsExactlyWhileTheBoxIsTicked) {
  Ouvre();
  ClicCase(bureau, c.Check2);
  EXPECT_FALSE(c.minuterie);
  auto dessins = c.picture1.effacements;
  ciel::Timer1_Tick(bureau);
  EXPECT_EQ(c.picture1.effacements, dessins);
  ClicCase(bureau, c.Check2);
  EXPECT_TRUE(c.minuterie);
  ciel::Timer1_Tick(bureau);
  EXPECT_EQ(c.picture1.effacements, dessins + 1);
}

TEST_F(FenetreCiel, WhatChangesTheChartDrawsItOnceAnew) {
  Ouvre();
  auto dessins = c.picture1.effacements;
  Rafraichit();
  EXPECT_EQ(c.picture1.effacements, ++dessins);
  BougeCurseur(bureau, c.HScroll1, 35);
  EXPECT_EQ(c.picture1.effacements, ++dessins);
  BougeCurseur(bureau, c.HScroll1, 35);
  EXPECT_EQ(c.picture1.effacements, dessins) << "it stands there";
  Equatoriale();
  EXPECT_EQ(c.picture1.effacements, ++dessins);
  Ciel_Redimensionne(bureau, 20000, 12000);
  EXPECT_EQ(c.picture1.effacements, ++dessins);
}

TEST_F(FenetreCiel, ItsPartsFollowItsSize) {
  Ouvre();
  Ciel_Redimensionne(bureau, 20000, 12000);
  const double liste = c.List1.place.largeur;
  EXPECT_EQ(c.List1.place.hauteur, 12000 - 400);
  EXPECT_EQ(W(), 20000 - 400 - liste);
  EXPECT_EQ(H(), 12000 - c.Frame8.place.hauteur - c.HScroll1.place.hauteur - 400);
  EXPECT_EQ(c.picture1.largeur, W());
  EXPECT_EQ(c.picture1.hauteur, H());
  EXPECT_GE(c.Picture1.place.gauche, c.List1.place.gauche + liste);
  EXPECT_EQ(c.HScroll1.place.gauche, c.Picture1.place.gauche);
  EXPECT_EQ(c.HScroll1.place.largeur, W());
  EXPECT_EQ(c.HScroll1.place.haut, c.Picture1.place.haut + H());
  EXPECT_EQ(c.Frame8.place.haut, c.HScroll1.place.haut + c.HScroll1.place.hauteur);
  EXPECT_EQ(c.Frame8.place.gauche, 20000 - 200 - c.Frame8.place.largeur);
  EXPECT_LE(c.Frame8.place.haut + c.Frame8.place.hauteur, 12000);
}

TEST_F(FenetreCiel, AWindowWithoutRoomDrawsNothingAndFailsNot) {
  Ouvre();
  const auto dessins = c.picture1.effacements;
  for (const Place &taille : {Place{0, 0, 0, 0}, Place{0, 0, 300, 9000}, Place{0, 0, 9000, 300}}) {
    Ciel_Redimensionne(bureau, taille.largeur, taille.hauteur);
    Equatoriale();
    Horizontale();
    ciel::Picture1_MouseMove(bureau, 0, 0);
    ciel::Laet_MouseMove(bureau, 3);
    ciel::DeplaceAstre(bureau, Direction::Haut);
    EXPECT_EQ(c.picture1.effacements, dessins);
    EXPECT_GE(W(), 0);
    EXPECT_GE(H(), 0);
    EXPECT_GE(c.List1.place.hauteur, 0);
  }
  EXPECT_THAT(boites, IsEmpty());
}

TEST_F(FenetreCiel, AllPartsOfTheStripLieInItWithoutOverlap) {
  const std::vector<Controle *> parties = {&c.Bayer1,  &c.Bayer2, &c.Label2, &c.PicAZ,    &c.PicHE,   &c.Label35,
                                           &c.Label36, &c.Frame1, &c.Check2, &c.Command1, &c.Command4};
  for (const Controle *a : parties) {
    EXPECT_LE(a->place.gauche + a->place.largeur, c.Frame8.place.largeur) << a->nom;
    EXPECT_LE(a->place.haut + a->place.hauteur, c.Frame8.place.hauteur) << a->nom;
    for (const Controle *b : parties) {
      const bool separes = a->place.gauche + a->place.largeur <= b->place.gauche ||
                           b->place.gauche + b->place.largeur <= a->place.gauche ||
                           a->place.haut + a->place.hauteur <= b->place.haut ||
                           b->place.haut + b->place.hauteur <= a->place.haut;
      EXPECT_TRUE(a == b || separes) << a->nom << " " << b->nom;
    }
  }
  EXPECT_LE(c.Frame8.place.largeur, 1024 * 15 - 100 - 200) << "the smallest screen";
}

TEST_F(FenetreCiel, ClosingLeavesTheProgramAndItsTimer) {
  Ouvre();
  bureau.premierPlan = {};
  ClicControle(bureau, c.Command4);
  EXPECT_FALSE(c.cadre.visible);
  EXPECT_FALSE(c.minuterie);
  EXPECT_EQ(bureau.premierPlan, kFenetreDonnees);
  const auto dessins = c.picture1.effacements;
  ciel::Timer1_Tick(bureau);
  EXPECT_EQ(c.picture1.effacements, dessins);
  EXPECT_EQ(c.Command4.role, Role::Annule) << "Escape";
}

TEST_F(FenetreCiel, OpeningItAgainBringsItToTheFrontOrStartsAfresh) {
  Ouvre();
  BougeCurseur(bureau, c.HScroll1, 60);
  bureau.premierPlan = {};
  Ouvre();
  EXPECT_EQ(bureau.premierPlan, kFenetreCiel);
  EXPECT_EQ(c.HScroll1.valeur, 60);
  ClicControle(bureau, c.Command4);
  Ouvre();
  EXPECT_EQ(c.HScroll1.valeur, 0);
}

TEST_F(FenetreCiel, TheExitClosesIt) {
  Ouvre();
  reponse = true;
  Sortie_Click(bureau, -1);
  EXPECT_FALSE(c.cadre.visible);
  EXPECT_TRUE(bureau.termine);
}

TEST_F(FenetreCiel, ItTakesThePicturesOfTheMainWindow) {
  Ouvre();
  EXPECT_EQ(c.SOL.image, d.Soleil.image);
  EXPECT_EQ(c.Lune.image, d.ImAstre[1].image);
  EXPECT_FALSE(c.Command4.image.empty());
}

TEST_F(FenetreCiel, EachStarHasAMarkAndALabelOfItsNumber) {
  Ouvre();
  const ListeControles liste = ControlesDe(bureau, kFenetreCiel);
  std::set<std::string> noms;
  for (const Controle *x : liste) {
    EXPECT_TRUE(noms.insert(x->nom + "/" + std::to_string(x->indice)).second) << x->nom << x->indice;
  }
  for (int i = 1; i <= 246; ++i) {
    const auto rang = static_cast<std::size_t>(i);
    EXPECT_EQ(Cherche(liste, "Shet", i), &c.Shet[rang]);
    EXPECT_EQ(Cherche(liste, "Laet", i), &c.Laet[rang]);
    EXPECT_EQ(c.Shet[rang].genre, Genre::Marque);
    EXPECT_EQ(c.Laet[rang].infobulle, bureau.etoiles.EtoileBayer[rang]);
    EXPECT_EQ(c.Laet[rang].parent, "Picture1");
  }
  EXPECT_EQ(Cherche(liste, "Shet", 0), nullptr);
  EXPECT_EQ(Cherche(liste, "Laet", 247), nullptr);
}

TEST_F(FenetreCiel, ItsSurfacesAreItsOwn) {
  EXPECT_EQ(SurfaceDe(bureau, c.Picture1), &c.picture1);
  EXPECT_EQ(SurfaceDe(bureau, c.PicAZ), &c.picAZ);
  EXPECT_EQ(SurfaceDe(bureau, c.PicHE), &c.picHE);
  EXPECT_EQ(SurfaceDe(bureau, d.PicAZ), &bureau.picAZ);
  EXPECT_EQ(SurfaceDe(bureau, c.List1), nullptr);
  EXPECT_EQ(c.picAZ.largeur, c.PicAZ.place.largeur);
}

TEST_F(FenetreCiel, ItReadsTheLanguageEachTimeItIsOpened) {
  ClicControle(bureau, d.Image10[1]);
  EXPECT_EQ(c.marqueLangue, "");
  Ouvre();
  EXPECT_EQ(c.marqueLangue, "Lang");
  EXPECT_EQ(c.Check2.legende, "Automatic refresh");
  EXPECT_EQ(c.Option1[1].legende + c.Option1[0].legende, "HorizontalEquatorial");
  EXPECT_EQ(c.TexteSoleil.legende, "Sun");
  EXPECT_EQ(c.LaP[3].legende, "Saturne") << "as the list of planets has it";
  ClicControle(bureau, d.Image10[0]);
  EXPECT_EQ(c.Command1.legende, "Refresh") << "it is open";
  ClicControle(bureau, c.Command4);
  Ouvre();
  EXPECT_EQ(c.Command1.legende, "Rafraichir");
}

TEST_F(FenetreCiel, EveryCaptionHasItsLineInBothLanguages) {
  for (const char *nom : {"FR.txt", "EN.txt"}) {
    const std::string texte = LitFichier(std::filesystem::path(VELMARIS_DONNEES) / nom);
    Ciel livree;
    InitialiseCiel(livree);
    Ciel neuve;
    InitialiseCiel(neuve);
    PourChaque(neuve, [](const LigneCiel &, Controle &x) { x.legende = x.legende.empty() ? "" : "?"; });
    TexteMsg messages;
    AppliqueLangue(texte, kFenetreCiel, Liste(neuve), messages);
    PourChaque(neuve, [&](const LigneCiel &ligne, const Controle &x) {
      EXPECT_NE(x.legende, "?") << nom << " " << x.nom;
      if (std::string_view(nom) == "FR.txt") {
        EXPECT_EQ(x.legende, ligne.legende) << "built in and in the file";
      }
    });
  }
}

TEST_F(FenetreCiel, ItsListAndSliderAreNamedForAScreenReader) {
  PourChaque(c, [&](const LigneCiel &ligne, const Controle &x) {
    if (x.genre == Genre::ListeBoite || x.genre == Genre::Curseur) {
      const Controle *libelle = Cherche(Liste(c), ligne.traits.par);
      ASSERT_NE(libelle, nullptr) << x.nom;
      EXPECT_NE(libelle->legende, "");
    }
  });
}

TEST_F(FenetreCiel, TheTemplateOfItsTextsIsWrittenOnDemand) {
  Ouvre();
  Ciel_EcritLangue(bureau);
  const std::string texte = Contenu(dossier / "utilisateur/langCiel.txt");
  EXPECT_NE(texte.find("Command4\\Fermer\\\\\\\r\n"), std::string::npos);
  EXPECT_NE(texte.find("Laet\\"), std::string::npos);
  std::filesystem::remove(dossier / "utilisateur/langCiel.txt");
  std::filesystem::create_directories(dossier / "utilisateur/langCiel.txt/plein");
  Ciel_EcritLangue(bureau);
  EXPECT_EQ(boites.size(), 1U) << "a write that fails is told";
}

} // namespace
} // namespace velmaris::essais
