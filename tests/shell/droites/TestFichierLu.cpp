#include "tests/shell/droites/OutilsFichierVisee.hpp"

#include <optional>
#include <random>

/// A loaded file line by line, and files that are short, long, broken or not there.
namespace velmaris::essais {
namespace {

class FichierLu : public AvecFichiers {
protected:
  /// A file that can't be read is told, and the panel stays.
  void NonLu(const std::filesystem::path &chemin) {
    ASSERT_EQ(boites.size(), 1U);
    EXPECT_EQ(boites[0].icone, Icone::Attention);
    EXPECT_NE(boites[0].texte.find(chemin.string()), std::string::npos);
    EXPECT_EQ(Panneau(), avant);
    SansFeuille();
    boites.clear();
  }

  std::string Images() const {
    std::string visibles;
    for (const Controle &image : d.ImAstre) {
      visibles += image.visible ? '1' : '0';
    }
    return visibles;
  }

  std::string avant = Panneau();
};

TEST_F(FichierLu, EachLineGoesToItsControl) {
  OuvreOctets(Joint(LignesSoleil()));
  EXPECT_EQ(d.Text3.texte + ":" + d.Text4.texte + ":" + d.Text5.texte, "12:05:31");
  EXPECT_EQ(d.TDate[0].texte + "/" + d.TDate[1].texte + "/" + d.TDate[2].texte, "16/03/2009");
  EXPECT_EQ(d.Text6.texte + "°" + d.Text7.texte, "006°07");
  EXPECT_EQ(d.Text8.texte + "°" + d.Text9.texte, "048°09");
  EXPECT_EQ(d.Text10.texte, "2,5");
  EXPECT_EQ(d.Text11.texte, "1,5");
  EXPECT_EQ(d.Text12.texte, "22");
  EXPECT_EQ(d.Text13.texte, "33");
  EXPECT_EQ(d.Text25.texte, "44");
  EXPECT_TRUE(d.OptN[1].choisi && !d.OptN[0].choisi);
  EXPECT_TRUE(d.OptE[0].choisi && !d.OptE[1].choisi);
  EXPECT_EQ(Choisie(d.Option7), 0);
  EXPECT_EQ(Choisie(d.Option5), 0);
  EXPECT_EQ(Choisie(d.Option6), 1);
  EXPECT_EQ(Choisie(d.Option4), 0);
  EXPECT_EQ(d.Label1.legende, "Monday :") << "2009 March 16";
  EXPECT_TRUE(boites.empty());
}

TEST_F(FichierLu, SouthAndWestAreWhatIsNotNordOrEst) {
  for (const char *ligne : {"Sud", "", "nord", "North"}) {
    OuvreAvec(14, ligne);
    EXPECT_TRUE(d.OptN[1].choisi) << ligne;
  }
  OuvreAvec(14, "Nord");
  EXPECT_TRUE(d.OptN[0].choisi && !d.OptN[1].choisi);
  for (const char *ligne : {"Ouest", "", "est", "East"}) {
    OuvreAvec(15, ligne);
    EXPECT_TRUE(d.OptE[1].choisi) << ligne;
  }
}

TEST_F(FichierLu, AnImpossibleDateHasNoWeekday) {
  OuvreAvec(3, "17");
  EXPECT_EQ(d.Label1.legende, "Tuesday :");
  OuvreAvec(3, "32");
  EXPECT_EQ(d.TDate[0].texte, "32") << "a load doesn't leave the field";
  EXPECT_NE(d.Label1.legende, "Tuesday :");
}

TEST_F(FichierLu, TheFractionIsCutToTwoCharactersAndOverSixtySecondsIsRed) {
  OuvreAvec(16, "123");
  EXPECT_EQ(d.Text25.texte, "12");
  EXPECT_EQ(d.Text25.couleur, kNoir);
  OuvreAvec(16, "75");
  EXPECT_EQ(d.Text25.couleur, kRouge);
}

TEST_F(FichierLu, AnArtificialHorizonTurnsTheReadingRedAndANaturalOneBlackAgain) {
  OuvreAvec(18, "ARTI");
  EXPECT_EQ(Choisie(d.Option5), 1);
  EXPECT_EQ(Choisie(d.Option6), 1) << "the limb of the next line comes after the horizon's";
  EXPECT_FALSE(d.Option6[0].actif || d.Option6[1].actif);
  EXPECT_EQ(d.Text12.couleur, kRouge);
  EXPECT_EQ(d.Text13.couleur, kRouge);
  OuvreAvec(18, "NATU");
  EXPECT_EQ(Choisie(d.Option5), 0);
  EXPECT_TRUE(d.Option6[0].actif && d.Option6[1].actif);
  EXPECT_EQ(d.Text12.couleur, kNoir);
  EXPECT_EQ(d.Text13.couleur, kNoir);
}

TEST_F(FichierLu, AnEmptyHorizonIsTheNaturalOneAndNothingMore) {
  OuvreAvec(18, "ARTI");
  OuvreAvec(18, "");
  EXPECT_EQ(Choisie(d.Option5), 0);
  EXPECT_EQ(d.Text12.couleur, kRouge);
  EXPECT_EQ(d.Text13.couleur, kRouge);
}

TEST_F(FichierLu, AnotherHorizonLeavesItAsItIs) {
  for (const char *ligne : {"arti", "NATU ", "0", "x"}) {
    OuvreAvec(18, "ARTI");
    OuvreAvec(18, ligne);
    EXPECT_EQ(Choisie(d.Option5), 1) << ligne;
    OuvreAvec(18, "NATU");
    OuvreAvec(18, ligne);
    EXPECT_EQ(Choisie(d.Option5), 0) << ligne;
  }
}

TEST_F(FichierLu, EveryBodyIsTakenWithItsPlaceInTheList) {
  OuvreAvec(17, " 1 ");
  EXPECT_EQ(Choisie(d.Option7), 1);
  EXPECT_EQ(Images(), "0100");
  OuvreCorps(" 2 ", " 3 ");
  EXPECT_EQ(Choisie(d.Option7), 2);
  EXPECT_EQ(d.Combo7.rang, 3);
  EXPECT_EQ(d.Combo7.texte, d.Combo7.liste[3]);
  EXPECT_TRUE(d.Combo7.visible);
  OuvreCorps(" 3 ", " 155 ");
  EXPECT_EQ(Choisie(d.Option7), 3);
  EXPECT_EQ(d.Combo6.rang, 155);
  EXPECT_EQ(d.Combo6.texte, d.Combo6.liste.back());
  EXPECT_EQ(d.Combo7.rang, 3);
  OuvreCorps(" 3 ", "-1 ");
  EXPECT_EQ(d.Combo6.rang, -1) << "no star is chosen";
}

TEST_F(FichierLu, APlaceThatTheListDoesNotHaveIsPassedOver) {
  OuvreCorps(" 2 ", " 1 ");
  OuvreCorps(" 3 ", " 7 ");
  for (const char *rang : {"156", "-2", "40000", "1e300"}) {
    OuvreCorps(" 3 ", rang);
    EXPECT_EQ(d.Combo6.rang, 7) << rang;
  }
  for (const char *rang : {"4", "-2", "40000"}) {
    OuvreCorps(" 2 ", rang);
    EXPECT_EQ(d.Combo7.rang, 1) << rang;
  }
  OuvreCorps(" 2 ", "Mars");
  EXPECT_EQ(d.Combo7.rang, 0) << "a text reads as 0";
}

TEST_F(FichierLu, AStarWithoutAPlaceInTheListIsTheFirst) {
  OuvreAvec(17, " 3 ");
  EXPECT_EQ(Choisie(d.Option7), 3);
  EXPECT_EQ(d.Combo6.rang, 0);
}

TEST_F(FichierLu, ASunReadAfterAStarLeavesTheListOfStars) {
  OuvreCorps(" 3 ", " 7 ");
  OuvreOctets(Joint(LignesSoleil()));
  EXPECT_EQ(bureau.lignesLoP[21], " 7 ");
  EXPECT_EQ(d.Combo6.rang, 7);
  EXPECT_EQ(d.Combo7.rang, -1);
  EXPECT_FALSE(d.Combo6.visible || d.Combo7.visible || d.Combo8.visible || d.Check3.visible);
}

TEST_F(FichierLu, ABodyThatDoesNotExistLeavesTheBodyButHidesWhatBelongsToOne) {
  for (const char *ligne : {"4", "-1", "17"}) {
    OuvreCorps(" 2 ", " 1 ");
    OuvreCorps(ligne, " 3 ");
    EXPECT_EQ(Choisie(d.Option7), 2) << ligne;
    EXPECT_EQ(Images(), "0000") << ligne;
    EXPECT_FALSE(d.Combo7.visible) << ligne;
    EXPECT_EQ(d.Combo7.rang, 1) << ligne;
  }
  OuvreAvec(17, "40000");
  EXPECT_EQ(Choisie(d.Option7), 2) << "past 16 bits";
  OuvreAvec(17, "Lune");
  EXPECT_EQ(Choisie(d.Option7), 0) << "a text reads as 0";
}

TEST_F(FichierLu, TheLimbIsANumberAndEmptyIsTheLowerOne) {
  const std::pair<const char *, int> cas[] = {{" 0 ", 0}, {"2", 2}, {" 1 ", 1}, {"abc", 0}, {"", 1}};
  for (const auto &[ligne, bord] : cas) {
    OuvreAvec(19, ligne);
    EXPECT_EQ(Choisie(d.Option6), bord) << ligne;
  }
  for (const char *ligne : {"3", "-1", "40000"}) {
    OuvreAvec(19, ligne);
    EXPECT_EQ(Choisie(d.Option6), 1) << "the one that the horizon set: " << ligne;
  }
}

TEST_F(FichierLu, TheKindOfFractionIsANumberAndEmptyIsHundredths) {
  const std::pair<const char *, int> cas[] = {{"0", 0}, {"1", 1}, {"abc", 0}, {" 1 ", 1},
                                              {"x", 0}, {"", 1},  {"2", 1},   {"-1", 1}};
  for (const auto &[ligne, fraction] : cas) {
    OuvreAvec(20, ligne);
    EXPECT_EQ(Choisie(d.Option4), fraction) << ligne;
    EXPECT_EQ(d.Label69.visible, fraction == 1) << ligne;
    EXPECT_EQ(Reglage("Prec"), std::to_string(fraction)) << ligne;
  }
}

TEST_F(FichierLu, AFileWithoutItsLastLinesTakesTheDefaultsInAFreshRun) {
  auto lignes = LignesSoleil();
  lignes.resize(17);
  ClicOption(bureau, d.Option5[1]);
  OuvreOctets(Joint(lignes));
  EXPECT_EQ(Choisie(d.Option7), 0);
  EXPECT_EQ(Choisie(d.Option5), 0);
  EXPECT_EQ(Choisie(d.Option6), 1);
  EXPECT_EQ(Choisie(d.Option4), 1);
}

TEST_F(FichierLu, AShortFileLeavesTheLinesOfTheOneBeforeButTheHorizon) {
  auto lignes = LignesSoleil();
  lignes[18] = "ARTI";
  lignes[19] = " 0 ";
  OuvreOctets(Joint(lignes));
  OuvreOctets("23\r\n59\r\n");
  EXPECT_EQ(d.Text3.texte + d.Text4.texte + d.Text5.texte, "235931");
  EXPECT_EQ(d.Text13.texte, "33");
  EXPECT_TRUE(d.OptN[1].choisi && d.OptE[0].choisi);
  EXPECT_EQ(Choisie(d.Option6), 0);
  EXPECT_EQ(Choisie(d.Option4), 0);
  EXPECT_EQ(Choisie(d.Option5), 0) << "its line was emptied";
}

TEST_F(FichierLu, AnyLineEndServesAndTheLastNeedsNone) {
  OuvreOctets(Joint(LignesSoleil()));
  const std::string attendu = Panneau();
  for (const char *fin : {"\n", "\r", "\r\n"}) {
    for (const bool complet : {true, false}) {
      OuvreOctets("\n");
      ASSERT_NE(Panneau(), attendu);
      const std::string octets = Joint(LignesSoleil(), fin);
      OuvreOctets(complet ? octets : octets.substr(0, octets.find_last_not_of("\r\n") + 1));
      EXPECT_EQ(Panneau(), attendu);
    }
  }
}

TEST_F(FichierLu, Windows1252AndUtf8AreBothRead) {
  OuvreAvec(0, "\xE9");
  EXPECT_EQ(d.Text3.texte, "é");
  OuvreAvec(0, "€");
  EXPECT_EQ(d.Text3.texte, "€");
}

TEST_F(FichierLu, AnEmptyFileAndOneOfZeroBytesAreLoadedWithoutAWord) {
  OuvreOctets("");
  EXPECT_EQ(d.Text3.texte + d.Text13.texte + d.TDate[0].texte, "");
  EXPECT_EQ(Choisie(d.Option1), 0);
  OuvreOctets(std::string(10, '\0'));
  EXPECT_EQ(d.Text3.texte, std::string(10, '\0'));
  EXPECT_TRUE(boites.empty());
}

TEST_F(FichierLu, AMissingFileOrADirectoryIsToldAndThePanelStays) {
  bureau.image1.police = {"serif", 20.0, false};
  Ouvre("none.LoP");
  NonLu(lieu / "none.LoP");
  Dossier("folder.LoP");
  Ouvre("folder.LoP");
  NonLu(lieu / "folder.LoP");
  ASSERT_EQ(::mkfifo((lieu / "pipe.LoP").c_str(), 0600), 0);
  Ouvre("pipe.LoP");
  NonLu(lieu / "pipe.LoP");
  EXPECT_EQ(bureau.image1.police.famille, "serif");
}

TEST_F(FichierLu, AFileOverSixtyFourMegabytesLoadsNothingAndShowsNoBox) {
  Pose(lieu / "grand.LoP", Joint(LignesSoleil()));
  std::filesystem::resize_file(lieu / "grand.LoP", (64U << 20U) + 1U);
  Ouvre("grand.LoP");
  EXPECT_EQ(Panneau(), avant);
  SansFeuille();
  std::filesystem::resize_file(lieu / "grand.LoP", std::uintmax_t{1} << 42U);
  OuvreVisee(bureau, lieu / "grand.LoP");
  EXPECT_EQ(Panneau(), avant);
  EXPECT_TRUE(boites.empty());
}

TEST_F(FichierLu, AFileWithoutPermissionIsToldAndThePanelStays) {
  Pose(lieu / "closed.LoP", Joint(LignesSoleil()));
  ::chmod((lieu / "closed.LoP").c_str(), 0);
  std::optional<UtilisateurSansDroit> utilisateur;
  Jouera([&] {
    Donne("closed.LoP");
    utilisateur.emplace();
  });
  ClicControle(bureau, d.Command4);
  const bool essaye = utilisateur && utilisateur->reussi;
  utilisateur.reset();
  if (!essaye) {
    GTEST_SKIP() << "the superuser's rights can't be laid down here";
  }
  NonLu(lieu / "closed.LoP");
}

TEST_F(FichierLu, BinaryNoiseNeverEndsTheProgram) {
  bureau.ports.attend = [&] { bureau.termine = true; };
  std::mt19937 alea(75);
  for (int i = 0; i < 200; ++i) {
    std::string octets(alea() % 400, '\0');
    for (char &c : octets) {
      c = static_cast<char>(i % 2 == 0 ? alea() : static_cast<unsigned char>("0123456789 -+.,E\n"[alea() % 17]));
    }
    bureau.termine = false;
    EXPECT_NO_THROW(OuvreOctets(octets)) << i;
  }
}

TEST_F(FichierLu, NoLineEndsTheProgramWhateverItHolds) {
  for (std::size_t numero = 0; numero < LignesSoleil().size(); ++numero) {
    for (const char *ligne : {"1e308", "-1e999", "99999", "-99999", "NaN", "1E38", "x", "&HFF", "\xFF"}) {
      EXPECT_NO_THROW(OuvreAvec(numero, ligne)) << numero << " " << ligne;
    }
  }
}

TEST_F(FichierLu, ASingleLineOfTenMegabytesIsLoaded) {
  OuvreOctets(std::string(10'000'000, '9'));
  EXPECT_EQ(d.Text3.texte.size(), 10'000'000U);
  EXPECT_TRUE(boites.empty());
}

TEST_F(FichierLu, ThirtyOneLinesAreLoadedWithoutWaiting) {
  bureau.ports.attend = [&] {
    ADD_FAILURE() << "it waits";
    bureau.termine = true;
  };
  auto lignes = LignesSoleil();
  lignes.resize(31, "x");
  OuvreOctets(Joint(lignes));
  EXPECT_EQ(d.Text3.texte, "12");
  EXPECT_TRUE(d.Option1[0].choisi);
}

TEST_F(FichierLu, AFileOfMoreThanThirtyOneLinesIsNeverLoadedAndTheProgramLivesOnBesideIt) {
  TapeVisee();
  Calcule();
  Pose(lieu / "good.LoP", Joint(LignesSoleil()));
  auto lignes = LignesSoleil();
  lignes.resize(32, "");
  lignes[0] = "23";
  int tours = 0;
  bureau.ports.attend = [&] {
    switch (++tours) {
    case 1:
      EXPECT_EQ(d.Text3.texte, "12") << "nothing is applied";
      EXPECT_FALSE(bureau.image1.traces.empty());
      ClicControle(bureau, d.Command6);
      EXPECT_TRUE(bureau.image1.traces.empty());
      break;
    case 2:
      Ouvre("good.LoP");
      EXPECT_EQ(d.Text13.texte, "33");
      EXPECT_FALSE(bureau.image1.traces.empty());
      break;
    case 3:
      Tape(d.Text3, "9");
      break;
    default:
      bureau.termine = true;
    }
  };
  OuvreOctets(Joint(lignes));
  EXPECT_EQ(tours, 4);
  EXPECT_EQ(d.Text3.texte, "09") << "nothing is applied once it ends";
  EXPECT_TRUE(boites.empty());
}

} // namespace
} // namespace velmaris::essais
