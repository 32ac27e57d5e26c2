#include "OutilsRegistre.hpp"

#include "foundations/Fichiers.hpp"

#include <gmock/gmock.h>

#include <chrono>

/// All journals of a folder as one list.
namespace velmaris::essais {
namespace {

using testing::ElementsAre;

class LeRegistre : public ::testing::Test {
protected:
  void Ecrit(const std::string &nom, const std::string &octets) { Pose(dossier / nom, octets); }

  std::vector<std::string> Identites(const RegistreLu &r) {
    std::vector<std::string> identites;
    for (std::size_t i = 0; i < r.lignes.size(); ++i) {
      identites.push_back(IdentiteDe(r, i));
    }
    return identites;
  }

  DossierTemporaire dossier;
};

TEST_F(LeRegistre, RowsOfAllJournalsStandNewestSightFirst) {
  Ecrit("journal.csv", JournalDe(LigneMain("2,1,2026", "10,0,0", Suite("c")) + "\n" +
                                 LigneMain("1,1,2026", "10,0,0", Suite("a")) + "\n"));
  Ecrit("journal-2025.csv", JournalDe(LigneMain("31,12,2025", "23,59,59", Suite("z")) + "\r\n" +
                                      LigneMain("1,1,2026", "11,0,0", Suite("b")) + "\r\n"));
  const auto r = LitRegistre(dossier.chemin());
  EXPECT_THAT(Identites(*r), ElementsAre("c", "b", "a", "z"));
  EXPECT_EQ(r->cassees, 0U);
}

TEST_F(LeRegistre, OfOneMomentTheRowEnteredLastComesFirst) {
  Ecrit("journal.csv", JournalDe(LigneMain("1,1,2026", "10,0,0", Suite("a")) + "\n" +
                                 LigneMain("1,1,2026", "10,0,0", Suite("b")) + "\n"));
  Ecrit("journal-1.csv", std::string(kAnciensTitres) + "\n" + LigneMain("1,1,2026", "10,0,0", "") + "\n");
  const auto r = LitRegistre(dossier.chemin());
  ASSERT_EQ(r->lignes.size(), 3U);
  EXPECT_EQ(IdentiteDe(*r, 0), "b");
  EXPECT_EQ(IdentiteDe(*r, 1), "a");
  EXPECT_EQ(IdentiteDe(*r, 2), IdentiteAncienne(LigneMain("1,1,2026", "10,0,0", "")));
}

TEST_F(LeRegistre, ASightWithoutADateStandsWhereItWasWritten) {
  Ecrit("journal.csv", JournalDe(LigneMain("31,2,2026", "10,0,0", Suite("sans")) + "\n" +
                                 LigneMain("21,6,2026", "12,5,39", Suite("avant")) + "\n" +
                                 LigneMain("21,6,2026", "12,5,41", Suite("apres")) + "\n"));
  EXPECT_THAT(Identites(*LitRegistre(dossier.chemin())), ElementsAre("apres", "sans", "avant"));
}

TEST_F(LeRegistre, BrokenLinesArePassedOverAndCounted) {
  const std::string bonne = LigneMain("1,1,2026", "10,0,0");
  Ecrit("journal.csv", JournalDe(bonne + "\nrien\n" + bonne.substr(0, 70) + "\n\n" + LigneMain("1,1,2026", "x", "") +
                                 "\n" + std::string(100'000, ',') + "\n\"" + bonne + "\n" + bonne));
  const auto r = LitRegistre(dossier.chemin());
  EXPECT_EQ(r->lignes.size(), 2U) << "the last one has no line end";
  EXPECT_EQ(r->cassees, 5U) << "an empty line is none";
}

TEST_F(LeRegistre, OtherFilesAreLeftAlone) {
  Ecrit("journal.txt", JournalDe(LigneMain("1,1,2026", "10,0,0")));
  Ecrit("monjournal.csv", JournalDe(LigneMain("1,1,2026", "10,0,0")));
  std::filesystem::create_directory(dossier / "journal-2020.csv");
  EXPECT_TRUE(LitRegistre(dossier.chemin())->lignes.empty());
  EXPECT_TRUE(LitRegistre("/nulle/part")->lignes.empty());
  EXPECT_TRUE(LitRegistre(dossier.chemin())->journaux.empty());
}

TEST_F(LeRegistre, AFileThatIsTooLargeIsToldAndTheOthersAreRead) {
  Ecrit("journal.csv", JournalDe(LigneMain("1,1,2026", "10,0,0")));
  Ecrit("journal-2025.csv", "");
  std::filesystem::resize_file(dossier / "journal-2025.csv", kTailleLue + 1);
  const auto r = LitRegistre(dossier.chemin());
  ASSERT_EQ(r->journaux.size(), 2U);
  EXPECT_TRUE(r->journaux[0]->illisible);
  EXPECT_FALSE(r->journaux[1]->illisible);
  EXPECT_EQ(r->lignes.size(), 1U);
}

TEST_F(LeRegistre, WhatHasntChangedIsNotReadAgain) {
  Ecrit("journal.csv", JournalDe(LigneMain("1,1,2026", "10,0,0", Suite("a")) + "\n"));
  Ecrit("journal-2025.csv", JournalDe(LigneMain("1,1,2025", "10,0,0", Suite("z")) + "\n"));
  const auto premier = LitRegistre(dossier.chemin());
  EXPECT_EQ(LitRegistre(dossier.chemin(), premier), premier);
  EXPECT_TRUE(EstAJour(dossier.chemin(), *premier));
  Ecrit("journal.csv", JournalDe(LigneMain("1,1,2026", "10,0,0", Suite("a")) + "\n" +
                                 LigneMain("2,1,2026", "10,0,0", Suite("b")) + "\n"));
  EXPECT_FALSE(EstAJour(dossier.chemin(), *premier));
  const auto second = LitRegistre(dossier.chemin(), premier);
  EXPECT_THAT(Identites(*second), ElementsAre("b", "a", "z"));
  EXPECT_EQ(second->journaux[0], premier->journaux[0]);
  EXPECT_THAT(Identites(*premier), ElementsAre("a", "z")) << "what was read stays as it was";
  std::filesystem::remove(dossier / "journal-2025.csv");
  EXPECT_FALSE(EstAJour(dossier.chemin(), *second));
}

TEST_F(LeRegistre, WhatIsExportedIsAJournalThatHoldsTheSameRows) {
  Ecrit("journal.csv", JournalDe(LigneMain("1,1,2026", "10,0,0", Suite("a")) + "\n"));
  Ecrit("journal-1.csv", std::string(kAnciensTitres) + "\n" + LigneMain("1,1,2020", "10,0,0", "") + "\n");
  const auto r = LitRegistre(dossier.chemin());
  const DossierTemporaire ailleurs;
  Pose(ailleurs / "journal.csv", EnCsv(*r, {0, 1}));
  const auto relu = LitRegistre(ailleurs.chemin());
  ASSERT_EQ(relu->lignes.size(), 2U);
  EXPECT_EQ(relu->cassees, 0U);
  for (std::size_t i = 0; i < 2; ++i) {
    EXPECT_EQ(IdentiteDe(*relu, i), IdentiteDe(*r, i));
    EXPECT_EQ(RangeeDe(*relu, i)->observation, RangeeDe(*r, i)->observation);
    EXPECT_EQ(RangeeDe(*relu, i)->Ho, RangeeDe(*r, i)->Ho);
  }
}

TEST_F(LeRegistre, AHundredThousandRowsAreOrderedAndEachIsFound) {
  constexpr int kLignes = 100'000;
  Ecrit("journal.csv", LongJournal(kLignes));
  const auto debut = std::chrono::steady_clock::now();
  const auto r = LitRegistre(dossier.chemin());
  const std::chrono::duration<double> duree = std::chrono::steady_clock::now() - debut;
  ASSERT_EQ(r->lignes.size(), static_cast<std::size_t>(kLignes));
  EXPECT_EQ(IdentiteDe(*r, 0), "000000000001869f");
  EXPECT_EQ(IdentiteDe(*r, kLignes - 1), "0000000000000000");
  EXPECT_LT(duree.count(), 2.0) << "ten times what it may take, on a machine that has other work";
  RecordProperty("secondes", std::to_string(duree.count()));
}

} // namespace
} // namespace velmaris::essais
