#include "tests/shell/droites/OutilsFichierVisee.hpp"

#include <functional>

/// The sight that a failure has kept, opened again.
namespace velmaris::essais {
namespace {

class ViseeDeSecours : public AvecFichiers {};

TEST_F(ViseeDeSecours, TheRescuedSightIsOpenedWithoutTheDialogWhoseFolderStays) {
  Pose(lieu / "in.LoP", Joint(LignesSoleil()));
  Ouvre("in.LoP");
  TapeVisee();
  Tape(d.Text3, "07");
  Calcule();
  const std::string visee = EcritLoP(LitPanneau(d));
  Secours(bureau, Erreur(13));
  boites.clear();
  const std::vector<std::function<void()>> portes = {[&] { ClicControle(bureau, d.PU_Secours); },
                                                     [&] { OuvreVisee(bureau, FichierSecours(bureau)); }};
  for (const auto &porte : portes) {
    Tape(d.Text3, "11");
    porte();
    EXPECT_EQ(EcritLoP(LitPanneau(d)), visee);
    EXPECT_EQ(bureau.TitreFichier, "secours");
    EXPECT_EQ(bureau.fselect.dossier, lieu);
    EXPECT_EQ(Reglage("Dossier"), lieu.string());
    EXPECT_TRUE(boites.empty());
  }
}

TEST_F(ViseeDeSecours, WithoutARescuedSightItsEntryTellsTheFile) {
  ClicControle(bureau, d.PU_Secours);
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_EQ(boites[0].texte, d.TexteNonLu.legende + "\n" + FichierSecours(bureau).string());
}

} // namespace
} // namespace velmaris::essais
