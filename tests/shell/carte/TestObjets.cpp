#include "tests/shell/carte/OutilsObjets.hpp"

#include "foundations/Fichiers.hpp"
#include "shell/bureau/Langage.hpp"

#include <gmock/gmock.h>

/// The editor of the user's objects: how it opens and closes, and what its buttons do.
namespace velmaris::essais {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char *kTrois = "+48.42 +05.13 4 La Jument\n+43.50 -005.00 2 Est\n-34.35 -018.47 3 Cap\n";

class Objets : public AvecObjets {};

TEST_F(Objets, ConfigOpensItBesideTheMainWindowWithItsTitleAndTheModeOfMinutes) {
  Ouvre();
  EXPECT_TRUE(u.cadre.visible);
  EXPECT_EQ(u.cadre.titre, bureau.messages[25]);
  EXPECT_NE(u.cadre.titre, "");
  EXPECT_EQ(u.Precision, 60);
  EXPECT_EQ(u.Modifie, 0);
  EXPECT_TRUE(u.Option1[0].choisi);
  EXPECT_FALSE(u.Option1[1].choisi);
  EXPECT_EQ(u.etiquetteCommand1, "0");
  EXPECT_FALSE(u.Command3.actif);
  EXPECT_FALSE(u.Command2.image.empty());
  EXPECT_EQ(bureau.focus, &u.Text4);
  EXPECT_EQ(bureau.premierPlan, "Utilisateur");
  EXPECT_THAT(FenetresLibres(bureau), testing::Contains(&u.cadre));
}

TEST_F(Objets, TheMainWindowGoesOnWorkingBesideIt) {
  Ouvre();
  TapeVisee();
  Calcule();
  EXPECT_NE(d.Affichage_Intercept.legende, "");
  EXPECT_TRUE(u.cadre.visible);
}

TEST_F(Objets, ItsTablesHoldTwoThousandAndOneEntriesWhileItIsOpen) {
  EXPECT_TRUE(u.tables.empty());
  Ouvre();
  EXPECT_EQ(u.tables.size(), 2001U);
  Ferme();
  EXPECT_TRUE(u.tables.empty());
  EXPECT_FALSE(u.cadre.visible);
}

TEST_F(Objets, TheMainWindowsClockStandsStillWhileItIsOpen) {
  EXPECT_FALSE(bureau.horlogeArretee);
  OuvreSur(kTrois);
  EXPECT_TRUE(bureau.horlogeArretee);
  bureau.horlogeArretee = false;
  Choisit(0);
  Supprime();
  EXPECT_TRUE(bureau.horlogeArretee) << "each reading stops it";
  Ferme();
  EXPECT_FALSE(bureau.horlogeArretee);
  EXPECT_EQ(bureau.premierPlan, kFenetreDonnees);
}

TEST_F(Objets, ConfigAgainBringsItToTheFrontAndKeepsWhatIsTyped) {
  Ouvre();
  Nouveau("A");
  Tape(u.Text4, "half typ");
  bureau.premierPlan = {};
  ClicControle(bureau, d.Command18);
  EXPECT_EQ(bureau.premierPlan, "Utilisateur");
  EXPECT_EQ(u.Text4.texte, "half typ");
  EXPECT_THAT(u.List1.liste, ElementsAre("A"));
}

TEST_F(Objets, ItReadsTheLanguageEachTimeItIsOpened) {
  Ouvre();
  EXPECT_EQ(u.Command1.legende + u.Frame5.legende + u.Label2.legende, "NouveauLatitude:Rayon du cercle (Nm) ");
  EXPECT_EQ(u.Text3.infobulle, "Entre  2  et  4");
  ClicControle(bureau, d.Image10[1]);
  EXPECT_EQ(u.Command1.legende, "Nouveau") << "it is open";
  Ferme();
  Ouvre();
  EXPECT_EQ(u.Command1.legende, "New");
  EXPECT_EQ(u.Text3.infobulle, "Between  2  and  4");
  EXPECT_EQ(u.cadre.titre, "User's objects");
}

TEST_F(Objets, TheBuiltInCaptionsAreThoseOfTheFrenchFile) {
  bureau.FichierLangue = "\\XX.txt";
  Ouvre();
  std::vector<std::string> livrees;
  for (const Controle *c : ControlesDe(bureau, kFenetreUtilisateur)) {
    livrees.push_back(c->nom + c->legende + c->infobulle);
  }
  Ferme();
  bureau.FichierLangue = "\\FR.txt";
  Ouvre();
  std::vector<std::string> lues;
  for (const Controle *c : ControlesDe(bureau, kFenetreUtilisateur)) {
    lues.push_back(c->nom + c->legende + c->infobulle);
  }
  EXPECT_EQ(livrees, lues);
  EXPECT_THAT(boites, IsEmpty());
}

TEST_F(Objets, EveryCaptionAndToolTipHasItsLineInBothLanguages) {
  for (const char *nom : {"FR.txt", "EN.txt"}) {
    const std::string texte = LitFichier(std::filesystem::path(VELMARIS_DONNEES) / nom);
    Utilisateur neuve;
    InitialiseUtilisateur(neuve);
    PourChaque(neuve, [](const LigneUtilisateur &, Controle &c) {
      c.legende = c.legende.empty() ? "" : "?";
      c.infobulle = c.infobulle.empty() ? "" : "?";
    });
    TexteMsg messages;
    AppliqueLangue(texte, kFenetreUtilisateur, Liste(neuve), messages);
    PourChaque(neuve, [&](const LigneUtilisateur &, const Controle &c) {
      EXPECT_NE(c.legende, "?") << nom << " " << c.nom;
      EXPECT_NE(c.infobulle, "?") << nom << " " << c.nom;
    });
  }
}

TEST_F(Objets, EveryFieldAndListIsNamedForAScreenReader) {
  PourChaque(u, [&](const LigneUtilisateur &ligne, const Controle &c) {
    if (c.genre == Genre::Champ || c.genre == Genre::ListeBoite) {
      const Controle *libelle = Cherche(Liste(u), ligne.traits.par, ligne.traits.parIndice);
      ASSERT_NE(libelle, nullptr) << ligne.nom;
      EXPECT_NE(libelle->legende, "") << ligne.nom;
    }
  });
}

TEST_F(Objets, NouveauAddsAnEntryAtTheEnd) {
  Ouvre();
  Saisit("A", "4", "43", "30", 'N', "5", "0", 'E');
  Nouveau();
  Saisit("B", "2", "7", "15", 'S', "123", "45", 'W');
  Nouveau();
  EXPECT_EQ(u.tables[0], (Objet{"+43.50", "-05.00", 4, "A"}));
  EXPECT_EQ(u.tables[1], (Objet{"-07.25", "+123.75", 2, "B"}));
  EXPECT_EQ(u.etiquetteCommand1, "2");
  EXPECT_THAT(u.List1.liste, ElementsAre("A", "B"));
  EXPECT_EQ(u.Modifie, -1);
  EXPECT_EQ(bureau.focus, &u.Text4) << "the next one starts with its name";
  EXPECT_FALSE(std::filesystem::exists(fichier)) << "the file waits for the window's end";
}

TEST_F(Objets, AClickInTheListShowsTheEntry) {
  OuvreSur(kTrois);
  Choisit(2);
  EXPECT_EQ(u.Text1.texte, "-34.35");
  EXPECT_EQ(u.Text8.texte, "34");
  EXPECT_EQ(u.Text9.texte, "21");
  EXPECT_TRUE(u.OptN[1].choisi);
  EXPECT_FALSE(u.OptN[0].choisi);
  EXPECT_EQ(u.Text2.texte, "-018.47");
  EXPECT_EQ(u.Text6.texte, "18");
  EXPECT_EQ(u.Text7.texte, "28"); // 28.2
  EXPECT_TRUE(u.OptE[0].choisi);
  EXPECT_FALSE(u.OptE[1].choisi);
  EXPECT_EQ(u.Text3.texte, "3");
  EXPECT_EQ(u.Text4.texte, "Cap");
  EXPECT_EQ(u.etiquetteCommand3, "2");
  EXPECT_FALSE(u.Command3.actif);
  Choisit(0);
  EXPECT_TRUE(u.OptN[0].choisi);
  EXPECT_TRUE(u.OptE[1].choisi) << "a positive longitude is West";
  EXPECT_EQ(u.Text4.texte, "La Jument");
  EXPECT_EQ(u.etiquetteCommand3, "0");
  EXPECT_EQ(u.Modifie, 0) << "looking changes nothing";
}

TEST_F(Objets, AChoiceThatIsTakenBackLeavesTheFieldsAsTheyAre) {
  OuvreSur(kTrois);
  Choisit(2);
  ChoisitLigne(bureau, u.List1, -1);
  EXPECT_EQ(u.List1.rang, -1);
  EXPECT_EQ(u.Text4.texte, "Cap");
  EXPECT_EQ(u.etiquetteCommand3, "2");
}

TEST_F(Objets, FiveDegreesEastIsStoredWithAMinusAndShownAsEast) {
  Ouvre();
  Saisit("E", "2", "0", "1", 'N', "5", "0", 'E');
  Nouveau();
  EXPECT_EQ(u.tables[0].Longitude, "-05.00");
  ClicOption(bureau, u.OptE[1]);
  Choisit(0);
  EXPECT_TRUE(u.OptE[0].choisi);
}

TEST_F(Objets, ZeroDegreesShowsSouthAndEastWhicheverWasEntered) {
  Ouvre();
  Saisit("0", "2", "0", "0", 'N', "0", "0", 'W');
  Nouveau();
  EXPECT_EQ(u.tables[0].Latitude, "+00.00");
  EXPECT_EQ(u.tables[0].Longitude, "+00.00");
  Choisit(0);
  EXPECT_TRUE(u.OptN[1].choisi);
  EXPECT_TRUE(u.OptE[0].choisi);
}

TEST_F(Objets, ModifierStaysGreyUntilAFieldOfTheEntrySelectedHasChanged) {
  OuvreSur(kTrois);
  for (Controle *champ : {&u.Text3, &u.Text4, &u.Text6, &u.Text7, &u.Text8, &u.Text9}) {
    Choisit(1);
    EXPECT_FALSE(u.Command3.actif) << champ->nom;
    SaisitTexte(bureau, *champ, champ->texte + "1");
    EXPECT_TRUE(u.Command3.actif) << champ->nom;
  }
  for (Controle *option : {&u.OptN[0], &u.OptN[1], &u.OptE[0], &u.OptE[1]}) {
    Choisit(1);
    ClicOption(bureau, *option);
    EXPECT_TRUE(u.Command3.actif) << option->nom << option->indice;
  }
}

TEST_F(Objets, WithoutASelectionNoChangeMakesModifierUsable) {
  OuvreSur(kTrois);
  Saisit("A", "4", "43", "30", 'N', "5", "0", 'E');
  EXPECT_FALSE(u.Command3.actif);
  Nouveau();
  Tape(u.Text4, "B");
  EXPECT_FALSE(u.Command3.actif);
}

TEST_F(Objets, TheEntryModeIsNoChangeOfTheEntry) {
  OuvreSur(kTrois);
  Choisit(1);
  ClicOption(bureau, u.Option1[1]);
  EXPECT_FALSE(u.Command3.actif);
}

TEST_F(Objets, ModifierReplacesTheEntryAtItsPlace) {
  OuvreSur(kTrois);
  Choisit(1);
  Saisit("Autre", "9", "12", "6", 'S', "7", "12", 'W');
  Modifie();
  EXPECT_EQ(u.tables[1], (Objet{"-12.10", "+07.20", 9, "Autre"}));
  EXPECT_THAT(u.List1.liste, ElementsAre("La Jument", "Autre", "Cap"));
  EXPECT_EQ(u.etiquetteCommand1, "3");
  EXPECT_EQ(u.etiquetteCommand3, "1");
  EXPECT_EQ(u.List1.rang, 1);
  EXPECT_EQ(u.Modifie, -1);
  EXPECT_EQ(Ecrit(), kTrois) << "the file waits for the window's end";
  Ferme();
  EXPECT_EQ(Ecrit(), "+48.42 +05.13 4 La Jument\n-12.10 +07.20 9 Autre\n-34.35 -018.47 3 Cap\n");
}

TEST_F(Objets, SupprimerWritesTheFileAtOnceAndClosesUpTheNumbers) {
  OuvreSur(kTrois);
  Choisit(1);
  Supprime();
  EXPECT_EQ(Ecrit(), "+48.42 +05.13 4 La Jument\n-34.35 -018.47 3 Cap\n");
  EXPECT_THAT(u.List1.liste, ElementsAre("La Jument", "Cap"));
  EXPECT_EQ(u.tables[1].Nom, "Cap");
  EXPECT_EQ(u.tables[2], Objet());
  EXPECT_EQ(u.etiquetteCommand1, "2");
  EXPECT_EQ(u.Modifie, -1);
  Choisit(1);
  EXPECT_EQ(u.Text4.texte, "Cap");
  EXPECT_THAT(boites, IsEmpty());
}

TEST_F(Objets, SupprimerWritesAlsoWhatWasNewAndChanged) {
  OuvreSur(kTrois);
  Nouveau("Neuf");
  Choisit(0);
  Supprime();
  EXPECT_EQ(Ecrit(), "+43.50 -005.00 2 Est\n-34.35 -018.47 3 Cap\n+47.25 +05.50 4 Neuf\n");
}

TEST_F(Objets, PressedAgainWithoutAChoiceSupprimerAndModifierDoNothing) {
  OuvreSur(kTrois);
  Supprime();
  EXPECT_EQ(Ecrit(), kTrois) << "nothing was chosen";
  EXPECT_EQ(u.Modifie, 0);
  Choisit(0);
  Tape(u.Text4, "X");
  Supprime();
  EXPECT_FALSE(u.Command3.actif);
  Supprime();
  u.Command3.actif = true;
  Modifie();
  EXPECT_THAT(u.List1.liste, ElementsAre("Est", "Cap"));
  EXPECT_EQ(u.tables[0].Nom, "Est");
}

TEST_F(Objets, ClosingWritesOnlyWhatHasChanged) {
  OuvreSur("+48.42 +05.13 4 La Jument");
  Choisit(0);
  Ferme();
  EXPECT_EQ(Ecrit(), "+48.42 +05.13 4 La Jument") << "without a line end, as it was";
  Ouvre();
  Nouveau("B");
  Ferme();
  EXPECT_EQ(Ecrit(), "+48.42 +05.13 4 La Jument\n+47.25 +05.50 4 B\n");
}

TEST_F(Objets, ClosingLeavesTheChartAsItIs) {
  TapeVisee();
  Calcule();
  const auto avant = bureau.image1.traces.size();
  Ouvre();
  Nouveau("A");
  Ferme();
  EXPECT_EQ(bureau.image1.traces.size(), avant);
}

TEST_F(Objets, ItOpensAfreshEachTime) {
  OuvreSur(kTrois);
  ClicOption(bureau, u.Option1[1]);
  Choisit(2);
  Ferme();
  Ouvre();
  EXPECT_EQ(u.Text4.texte + u.Text1.texte + u.Text8.texte, "");
  EXPECT_EQ(u.Precision, 60);
  EXPECT_EQ(u.List1.rang, -1);
  EXPECT_EQ(u.etiquetteCommand3, "");
  EXPECT_EQ(u.Label23.legende, "°");
}

TEST_F(Objets, LeavingTheProgramWritesWhatHasChangedAndClosesTheEditor) {
  Ouvre();
  Nouveau("A");
  ClicControle(bureau, d.Sortie);
  EXPECT_TRUE(u.cadre.visible) << "No was answered";
  EXPECT_FALSE(std::filesystem::exists(fichier));
  reponse = true;
  ClicControle(bureau, d.Sortie);
  EXPECT_TRUE(bureau.termine);
  EXPECT_FALSE(u.cadre.visible);
  EXPECT_EQ(Ecrit(), "+47.25 +05.50 4 A\n");
}

TEST_F(Objets, LeavingTheProgramWithoutAChangeWritesNothing) {
  Ouvre();
  reponse = true;
  ClicControle(bureau, d.Sortie);
  EXPECT_TRUE(bureau.termine);
  EXPECT_FALSE(std::filesystem::exists(fichier));
}

TEST_F(Objets, AFailureThatEndsTheProgramKeepsTheList) {
  Ouvre();
  Nouveau("A");
  Secours(bureau, Erreur(13));
  EXPECT_EQ(Ecrit(), "+47.25 +05.50 4 A\n");
}

} // namespace
} // namespace velmaris::essais
