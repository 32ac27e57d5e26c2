#include "tests/shell/bureau/OutilsBureau.hpp"

#include "foundations/Fichiers.hpp"
#include "lines/FichierLoP.hpp"
#include "shell/bureau/Langage.hpp"

#include <algorithm>
#include <gmock/gmock.h>
#include <set>

namespace velmaris::essais {
namespace {

class Langue : public Programme {
protected:
  void Lit(const std::string &texte) { AppliqueLangue(texte, "Données", Liste(d), bureau.messages); }
};

TEST_F(Langue, OnlyTheLinesOfTheWindowsOwnSectionAreUsed) {
  Lit("MSG\\avant\\6\nForm=Ciel\nMSG\\ciel\\6\nForm=Données\nMSG\\ici\\6\nForm=Autre\nMSG\\autre\\6\n");
  EXPECT_EQ(bureau.messages[6], "ici");
  Lit("form=Données\nMSG\\x\\6\nForm=donnees\nMSG\\y\\6\n");
  EXPECT_EQ(bureau.messages[6], "ici");
}

TEST_F(Langue, AMessageNumberOutsideTheTableHasNoEffect) {
  Lit("Form=Données\nMSG\\cent\\100\nMSG\\trop\\101\nMSG\\moins\\-"
      "1\nMSG\\énorme\\99999\nMSG\\sans\nMSG\nMSG\\zéro\\\n");
  EXPECT_EQ(bureau.messages[100], "cent");
  EXPECT_EQ(bureau.messages[0], "zéro") << "an empty number reads as 0";
}

TEST_F(Langue, AnIndexChoosesOneControlAndAnEmptyOneAllOfTheName) {
  Lit("Form=Données\nLabel50\\Tous\\\\\\\n");
  EXPECT_EQ(d.Label50[0].legende + d.Label50[14].legende, "TousTous");
  Lit("Form=Données\nLabel50\\Un\\\\bulle\\0\n");
  EXPECT_EQ(d.Label50[0].legende, "Un");
  EXPECT_EQ(d.Label50[0].infobulle, "bulle");
  EXPECT_EQ(d.Label50[1].legende, "Tous");
}

TEST_F(Langue, EmptyFieldsAreWrittenThroughAndAbsentOnesPassedOver) {
  d.Label14.infobulle = "He =  30° 5'";
  Lit("Form=Données\nLabel14\\Reading\n");
  EXPECT_EQ(d.Label14.legende, "Reading");
  EXPECT_EQ(d.Label14.infobulle, "He =  30° 5'");
  Lit("Form=Données\nLabel14\\\\\\\\\n");
  EXPECT_EQ(d.Label14.legende + d.Label14.infobulle, "");
}

TEST_F(Langue, WhatAControlLacksIsSkipped) {
  d.Text13.texte = "65";
  Lit("Form=Données\nText13\\Lost\nHScroll1\\Lost\\lost\\bulle\\\nLabel2\\Month\\lost\\\\\n");
  EXPECT_EQ(d.Text13.texte, "65");
  EXPECT_EQ(d.Text13.legende, "");
  EXPECT_EQ(d.HScroll1.infobulle, "bulle");
  EXPECT_EQ(d.HScroll1.texte, "");
  EXPECT_EQ(d.Label2.texte, "");
  Lit("Form=Données\nText13\\\\\\\\\n");
  EXPECT_EQ(d.Text13.texte, "") << "an empty text empties a field";
}

TEST_F(Langue, AnUnknownControlAndABackslashInATextDoNoHarm) {
  Lit("Form=Données\nNulle\\part\\\\\\\nLabel2\\a\\b\\c\\7\n\\\\\\\\\\\\\n\n");
  EXPECT_EQ(d.Label2.legende, "Mois :") << "index 7 is no index of a control alone";
}

TEST_F(Langue, AFileInTheOldEightBitSetAndAnyLineEndsAreRead) {
  Lit("Form=Donn\xe9"
      "es\r\nMSG\\\xe9t\xe9\\6\rLabel2\\M\xf6\\\\\\");
  EXPECT_EQ(bureau.messages[6], "été");
  EXPECT_EQ(d.Label2.legende, "Mö");
}

TEST_F(Langue, NoiseEmptinessAndTenMegabytesAreReadWithoutHarm) {
  std::string bruit;
  for (int i = 0; i < 100000; ++i) {
    bruit += static_cast<char>(i * 7919 % 256);
  }
  for (const std::string &texte : {std::string(), std::string(1000, '\0'), bruit, std::string(10'000'000, 'x'),
                                   "Form=Données\n" + std::string(10'000'000, '\\')}) {
    Lit(texte);
  }
  EXPECT_EQ(d.Label2.legende, "Mois :");
}

TEST_F(Langue, AMissingFileIsToldOnceAndTheBuiltInFrenchStays) {
  bureau.dossiers.programme = "/nulle/part";
  Demarre();
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_EQ(boites[0].texte, "Fichier absent.");
  EXPECT_EQ(d.Command2.legende, "Calcul");
  EXPECT_EQ(bureau.messages[6], "");
  EXPECT_EQ(d.Label1.legende, "Sunday :");
  TapeVisee();
  Calcule();
  EXPECT_NE(d.Affichage_Intercept.legende, "");
}

TEST_F(Langue, ADirectoryInPlaceOfTheFileIsAnAbsentFile) {
  bureau.dossiers.programme = dossier.chemin();
  std::filesystem::create_directories(dossier / "FR.txt");
  Demarre();
  EXPECT_EQ(boites.size(), 1U);
}

TEST_F(Langue, TheUsersOwnFileComesBeforeTheProgramsFile) {
  std::filesystem::create_directories(dossier.chemin() / "utilisateur");
  Pose(dossier.chemin() / "utilisateur" / "FR.txt", "Form=Données\nCommand2\\Hop\\\\\\\n");
  Demarre();
  EXPECT_EQ(d.Command2.legende, "Hop");
}

TEST_F(Langue, ChangingTheLanguageKeepsWhatWasTypedAndReduced) {
  Demarre();
  TapeVisee();
  Calcule();
  const std::string bulle = d.Label14.infobulle;
  const std::string intercept = d.Affichage_Intercept.legende;
  const std::string detail = d.Label70[0].legende;
  const std::string panneau = EcritLoP(LitPanneau(d));
  ClicControle(bureau, d.Image10[1]);
  EXPECT_EQ(EcritLoP(LitPanneau(d)), panneau);
  EXPECT_EQ(d.Label14.infobulle, bulle);
  EXPECT_EQ(d.Affichage_Intercept.legende, intercept);
  EXPECT_EQ(d.Label70[0].legende, detail);
  EXPECT_EQ(d.Label14.legende, "Sextant reading");
}

TEST_F(Langue, ChangingTheLanguageKeepsTheToolTipsThatTheProgramHasWritten) {
  Demarre(); // with the chart over the sheet
  TapeVisee();
  Calcule();
  d.Command15.infobulle = "Temps route = 03:00:00";
  const std::string polygones = d.Label51.infobulle;
  EXPECT_THAT(polygones, testing::HasSubstr(" + "));
  ClicControle(bureau, d.Image10[1]);
  EXPECT_EQ(d.Label51.infobulle, polygones);
  EXPECT_EQ(d.Command15.infobulle, "Temps route = 03:00:00");
  EXPECT_EQ(d.Command15.legende, "Compute");
}

TEST_F(Langue, EnglishSpeaksAsItsNavigatorsDo) {
  Demarre();
  TapeVisee();
  ClicControle(bureau, d.Image10[1]);
  Calcule();
  EXPECT_EQ(d.Label21.legende, "Index correction (min)");
  EXPECT_THAT(d.Label21.infobulle, testing::HasSubstr("On the arc: minus"));
  EXPECT_EQ(d.Command2.legende, "Reduce") << "a sight";
  EXPECT_EQ(d.Command15.legende + d.Command10.legende, "ComputeCompute") << "a route";
  EXPECT_EQ(d.PU_D.legende, d.Label63.legende) << "the menu and the module that it shows";
  EXPECT_THAT(d.Option1[1].legende, testing::StartsWith("Advance to"));
  EXPECT_THAT(d.Option1[4].legende, testing::StartsWith("Advance to"));
  EXPECT_EQ(d.Label24.legende, "Altitude");
  EXPECT_THAT(d.Label70[3].legende, testing::StartsWith("Observed altitude"));
  ClicControle(bureau, d.Image10[0]);
  EXPECT_EQ(d.Label21.infobulle, "");
}

TEST_F(Langue, AFieldThatAFileFillsRunsItsChangeAtOnce) {
  std::filesystem::create_directories(dossier.chemin() / "utilisateur");
  Pose(dossier.chemin() / "utilisateur" / "FR.txt", "Form=Données\nText25\\\\12345\\\\\n");
  Demarre();
  EXPECT_EQ(d.Text25.texte, "12") << "cut to two characters";
}

TEST_F(Langue, TheFirstLabelExplainsItselfAfterEveryReading) {
  Demarre();
  EXPECT_EQ(d.Label1.infobulle, "Jour :");
  ClicControle(bureau, d.Image10[1]);
  EXPECT_EQ(d.Label1.infobulle, "Day :");
}

TEST_F(Langue, AWrittenTemplateReadBackChangesNothing) {
  Demarre();
  const std::string modele = ModeleLangue(Liste(d));
  std::vector<Controle> avant;
  PourChaque(d, [&](const LigneDonnees &, const Controle &c) { avant.push_back(c); });
  Lit("Form=Données\r\n" + modele);
  std::size_t i = 0;
  PourChaque(d, [&](const LigneDonnees &, const Controle &c) { EXPECT_EQ(c, avant[i++]) << c.nom; });
}

TEST_F(Langue, AFileOverSixtyFourMegabytesIsToldAndTheBuiltInFrenchStays) {
  LanguesSeules();
  std::filesystem::resize_file(bureau.dossiers.programme / "FR.txt", std::uintmax_t{1} << 42U);
  Demarre();
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_EQ(boites[0].texte, "Fichier absent.");
  EXPECT_EQ(d.Sortie.infobulle, "Sortie du logiciel (F2)");
}

TEST_F(Langue, TheTemplateIsWrittenToTheUsersFolder) {
  Demarre();
  EcritLangue(bureau, kFenetreDonnees);
  EXPECT_EQ(LitFichier(dossier.chemin() / "utilisateur" / "langDonnées.txt"), ModeleLangue(Liste(d)));
}

/// The shipped files, in both languages.
class FichiersLivres : public Programme, public ::testing::WithParamInterface<const char *> {};

TEST_P(FichiersLivres, EveryNumberedTextThatCodeUsesIsThere) {
  AppliqueLangue(LitFichier(std::filesystem::path(VELMARIS_DONNEES) / GetParam()), "Données", Liste(d),
                 bureau.messages);
  for (std::size_t n = 1; n <= 34; ++n) {
    EXPECT_FALSE(bureau.messages[n].empty()) << n;
  }
}

TEST_P(FichiersLivres, EveryCaptionAndToolTipOfEveryWindowHasItsLine) {
  const auto efface = [](Controle &c) {
    if (c.legende.find_first_not_of(" °'.:") != std::string::npos) {
      c.legende = "?";
    }
    if (!c.infobulle.empty()) {
      c.infobulle = "?";
    }
  };
  // The program writes these, and the last two are the same in every language.
  const std::set<std::string> composes = {"Données Label32 -1", "apropos Label2 3", "apropos Label1 -1"};
  const std::string fichier = LitFichier(std::filesystem::path(VELMARIS_DONNEES) / GetParam());
  for (const std::string_view fenetre :
       {kFenetreDonnees, kFenetreFSelect, kFenetreUtilisateur, kFenetreCiel, kFenetreApropos, kFenetreEtat,
        kFenetreFiche, kFenetreRegistre, kFenetrePoint, kFenetrePreparation, kFenetreSerie, kFenetreExercice,
        kFenetrePapier, kFenetreMotsPapier, kFenetreTermes}) {
    const ListeControles controles = ControlesDe(bureau, fenetre);
    std::for_each(controles.begin(), controles.end(), [&](Controle *c) { efface(*c); });
    AppliqueLangue(fichier, fenetre, controles, bureau.messages);
    for (const Controle *c : controles) {
      const std::string nom = std::string(fenetre) + " " + c->nom + " " + std::to_string(c->indice);
      if (composes.count(nom) == 0) {
        EXPECT_NE(c->legende, "?") << nom;
        EXPECT_NE(c->infobulle, "?") << nom;
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(DeuxLangues, FichiersLivres, ::testing::Values("FR.txt", "EN.txt"));

TEST_F(Programme, TheFrenchFileHoldsTheBuiltInCaptions) {
  std::vector<std::string> avant;
  PourChaque(d, [&](const LigneDonnees &, const Controle &c) { avant.push_back(c.legende); });
  AppliqueLangue(LitFichier(std::filesystem::path(VELMARIS_DONNEES) / "FR.txt"), "Données", Liste(d), bureau.messages);
  std::size_t i = 0;
  PourChaque(d, [&](const LigneDonnees &, const Controle &c) { EXPECT_EQ(c.legende, avant[i++]) << c.nom; });
}

TEST_F(Programme, TheMeaningsOfErrorsAreThoseOfTheCore) {
  for (std::size_t i = 0; i < kErreursNommees.size(); ++i) {
    EXPECT_EQ(d.TexteSens[i].legende, SensErreur(kErreursNommees[i]));
  }
}

TEST_F(Programme, WhatIsTypedInTheComplementsStaysInAnotherLanguageAndAtAnotherStart) {
  Demarre();
  SaisitTexte(bureau, bureau.fiche.Text1[0], "1040");
  SaisitTexte(bureau, bureau.preparation.Text1[2], "47 N");
  SaisitTexte(bureau, bureau.fenetreExercice.Text3[0], "12 S");
  ClicControle(bureau, d.Image10[1]);
  EXPECT_EQ(bureau.fiche.Text1[0].texte, "1040");
  EXPECT_EQ(bureau.preparation.Text1[2].texte, "47 N");
  EXPECT_EQ(bureau.fenetreExercice.Text3[0].texte, "12 S");
  EXPECT_EQ(Reglage("ControlePression"), "1040");
  Bureau autre;
  Branche(autre);
  Donnees_Charge(autre, {});
  EXPECT_EQ(autre.fiche.Text1[0].texte, "1040");
}

TEST_F(Programme, AChangeOfLanguageLeavesTheWeekdayOnShow) {
  Demarre();
  TapeVisee();
  ClicControle(bureau, d.Image10[1]);
  EXPECT_EQ(d.Label1.legende, "Sunday :");
  EXPECT_EQ(d.Label1.infobulle, d.Label1.texte) << "the plain caption of the new language";
  Tape(d.TDate[1], "");
  EXPECT_EQ(d.Label1.legende, d.Label1.texte);
}

} // namespace
} // namespace velmaris::essais
