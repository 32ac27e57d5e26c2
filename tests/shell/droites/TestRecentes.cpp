#include "shell/droites/Recentes.hpp"

#include "tests/shell/droites/OutilsFichierVisee.hpp"

#include <gtest/gtest.h>

namespace velmaris::essais {
namespace {

class Recentes : public AvecFichiers {
protected:
  std::vector<std::string> Noms() {
    std::vector<std::string> noms;
    for (const auto &chemin : ViseesRecentes(bureau)) {
      noms.push_back(chemin.filename().string());
    }
    return noms;
  }
  void PoseVisee(const std::string &nom) { Pose(lieu / nom, Joint(LignesSoleil())); }
};

TEST_F(Recentes, SightsOpenedAndSavedAreRememberedTheLatestFirst) {
  EXPECT_TRUE(Noms().empty());
  Sauve("un.LoP");
  PoseVisee("deux.LoP");
  Ouvre("deux.LoP");
  EXPECT_EQ(Noms(), (std::vector<std::string>{"deux.LoP", "un.LoP"}));
  Ouvre("un.LoP");
  EXPECT_EQ(Noms(), (std::vector<std::string>{"un.LoP", "deux.LoP"})) << "each once";
}

TEST_F(Recentes, AtMostEightAreRememberedAndThoseThatHaveGoneAreLeftOut) {
  for (int i = 0; i < 10; ++i) {
    PoseVisee(std::to_string(i) + ".LoP");
    OuvreVisee(bureau, lieu / (std::to_string(i) + ".LoP"));
  }
  EXPECT_EQ(Noms().size(), 8U);
  EXPECT_EQ(Noms().front(), "9.LoP");
  std::filesystem::remove(lieu / "9.LoP");
  EXPECT_EQ(Noms().front(), "8.LoP");
}

TEST_F(Recentes, WhatIsNoSightTheRescuedOneAndANameThatIsntUtf8ArentRemembered) {
  Pose(FichierSecours(bureau), Joint(LignesSoleil()));
  ClicControle(bureau, d.PU_Secours);
  OuvreVisee(bureau, lieu / "absent.LoP");
  PoseVisee("\xE9t\xE9.LoP");
  OuvreVisee(bureau, lieu / "\xE9t\xE9.LoP");
  PoseVisee("a\nb.LoP");
  OuvreVisee(bureau, lieu / "a\nb.LoP");
  EXPECT_TRUE(Noms().empty());
}

TEST_F(Recentes, TheArrowAndOuvreHeldDownOpenTheirMenuUnderOuvre) {
  PoseVisee("R&D été.LoP");
  OuvreVisee(bureau, lieu / "R&D été.LoP");
  ClicControle(bureau, d.FlecheOuvre);
  EXPECT_EQ(bureau.menu, &d.Recentes);
  EXPECT_EQ(bureau.menuSous, &d.Command4);
  EXPECT_TRUE(d.Recente[0].visible);
  EXPECT_EQ(d.Recente[0].legende, "R&D été");
  EXPECT_EQ(d.Recente[0].infobulle, (lieu / "R&D été.LoP").string());
  EXPECT_FALSE(d.Recente[1].visible);
  bureau.menu = nullptr;
  ouvertures = 0;
  ClicLongControle(bureau, d.Command4);
  EXPECT_EQ(bureau.menu, &d.Recentes);
  EXPECT_EQ(ouvertures, 0) << "no dialog opens";
}

TEST_F(Recentes, AnEntryOpensItsSightAsTheCommandLineDoes) {
  PoseVisee("un.LoP");
  OuvreVisee(bureau, lieu / "un.LoP");
  const std::string lue = d.Text13.texte;
  Tape(d.Text13, "11");
  ClicControle(bureau, d.FlecheOuvre);
  ClicControle(bureau, d.Recente[0]);
  EXPECT_EQ(d.Text13.texte, lue);
  EXPECT_EQ(bureau.TitreFichier, "un");
}

TEST_F(Recentes, WithNoneTheMenuSaysSoAndItsEntryDoesNothing) {
  ClicControle(bureau, d.FlecheOuvre);
  EXPECT_EQ(d.Recente[0].legende, "Aucune visée récente");
  EXPECT_TRUE(d.Recente[0].visible);
  EXPECT_FALSE(d.Recente[0].actif);
  Recente_Click(bureau, 0);
  EXPECT_TRUE(boites.empty());
}

TEST_F(Recentes, ASightIsKnownByItsSuffixInAnyCase) {
  EXPECT_TRUE(EstNomDeVisee("/a/b.LoP"));
  EXPECT_TRUE(EstNomDeVisee("b.lop"));
  EXPECT_FALSE(EstNomDeVisee("b.txt"));
  EXPECT_FALSE(EstNomDeVisee("LoP"));
  EXPECT_FALSE(EstNomDeVisee(""));
}

} // namespace
} // namespace velmaris::essais
