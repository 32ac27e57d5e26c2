#include "shell/visee/ChampsJuges.hpp"

#include "shell/ecran/Statut.hpp"
#include "tests/shell/bureau/OutilsBureau.hpp"

#include <gmock/gmock.h>

#include <functional>

/// Fields that are to be mended, and results that aren't those of the fields.
namespace velmaris::essais {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class ChampsJuges : public Programme {
protected:
  std::string Dit() {
    JugeChamps(bureau);
    AccordeStatut(bureau);
    return bureau.etat.Dit.legende;
  }

  int Alertes() {
    JugeChamps(bureau);
    int nombre = 0;
    for (const Controle *c : Liste(d)) {
      nombre += c->alerte.empty() ? 0 : 1;
    }
    return nombre;
  }
};

TEST_F(ChampsJuges, AFreshPanelShowsNone) {
  Demarre();
  EXPECT_EQ(Alertes(), 0);
  ClicOption(bureau, d.Option7[3]);
  EXPECT_EQ(Alertes(), 0);
  EXPECT_EQ(Dit(), "");
}

TEST_F(ChampsJuges, AStarWithoutEyeHeightTellsItsFieldInTheStatusLine) {
  DemarreSansCarte();
  TapeVisee();
  EXPECT_EQ(Alertes(), 0);
  ClicOption(bureau, d.Option7[3]);
  PoseRang(bureau, d.Combo6, 7, kNombreEtoiles);
  Tape(d.Text10, "");
  EXPECT_EQ(Alertes(), 1);
  EXPECT_THAT(d.Text10.alerte, HasSubstr(d.Nom[14].legende));
  EXPECT_EQ(Dit(), d.Text10.alerte);
  Tape(d.Text10, "2.5");
  EXPECT_EQ(Alertes(), 0);
  EXPECT_EQ(Dit(), "");
}

TEST_F(ChampsJuges, AValueOutsideItsLimitsIsToldWhileItStandsAndIsEmptiedOnLeaving) {
  DemarreSansCarte();
  TapeVisee();
  EntreChamp(bureau, d.Text13);
  SaisitTexte(bureau, d.Text13, "95");
  JugeChamps(bureau);
  EXPECT_THAT(d.Text13.alerte, HasSubstr(bureau.etat.Domaine[10].legende));
  EXPECT_EQ(d.Text13.texte, "95");
  QuitteChamp(bureau, d.Text13);
  EXPECT_EQ(d.Text13.texte, "");
  JugeChamps(bureau);
  EXPECT_THAT(d.Text13.alerte, HasSubstr(bureau.etat.TexteManque.legende));
}

TEST_F(ChampsJuges, TheFieldThatTheUserIsInIsToldFirst) {
  DemarreSansCarte();
  TapeVisee();
  Tape(d.Text8, "");
  Tape(d.Text6, "");
  bureau.etat.avis.clear();
  EntreChamp(bureau, d.Text6);
  JugeChamps(bureau);
  EXPECT_EQ(Dit(), d.Text6.alerte);
  EntreChamp(bureau, d.Text3);
  EXPECT_EQ(Dit(), d.Text8.alerte);
  d.Frame7.visible = false;
  EXPECT_EQ(Dit(), "");
}

TEST_F(ChampsJuges, AListWithoutItsStarOrPlanetIsToldOnceTheSightIsBegun) {
  DemarreSansCarte();
  TapeVisee();
  ClicOption(bureau, d.Option7[2]);
  JugeChamps(bureau);
  EXPECT_THAT(d.Combo7.alerte, HasSubstr(d.Nom[15].legende));
  EXPECT_THAT(d.Combo6.alerte, IsEmpty());
  ChoisitLigne(bureau, d.Combo7, 1);
  EXPECT_EQ(Alertes(), 0);
}

TEST_F(ChampsJuges, ResultsGoGreyAtAChangeUntilCalculAndKeepTheirValues) {
  DemarreSansCarte();
  TapeVisee();
  EXPECT_EQ(Alertes(), 0); // nothing is shown yet
  Calcule();
  const std::string intercept = d.Affichage_Intercept.legende;
  const std::string azimut = d.Affichage_Azimuth.legende;
  EXPECT_EQ(Alertes(), 0);
  const std::vector<std::function<void()>> changements = {
      [&] { Tape(d.Text25, "39"); }, [&] { Tape(d.Text9, "31"); }, [&] { ClicOption(bureau, d.OptE[0]); },
      [&] { ClicOption(bureau, d.Option6[0]); }, [&] { ClicOption(bureau, d.Option7[1]); }};
  for (const auto &change : changements) {
    TapeVisee();
    ClicOption(bureau, d.Option7[0]);
    JugeChamps(bureau);
    ASSERT_THAT(d.Affichage_Intercept.alerte, IsEmpty());
    change();
    JugeChamps(bureau);
    EXPECT_THAT(d.Affichage_Intercept.alerte, Not(IsEmpty()));
    EXPECT_THAT(d.Affichage_Azimuth.alerte, Not(IsEmpty()));
    EXPECT_EQ(d.Affichage_Intercept.legende, intercept);
    EXPECT_EQ(d.Affichage_Azimuth.legende, azimut);
    ClicOption(bureau, d.OptE[1]);
    ClicOption(bureau, d.Option7[0]);
    ClicOption(bureau, d.Option6[1]);
  }
  Tape(d.Text25, "50");
  Calcule();
  EXPECT_EQ(Alertes(), 0);
}

TEST_F(ChampsJuges, AFieldThatIsOnlyWrittenAnewLeavesTheResults) {
  DemarreSansCarte();
  TapeVisee();
  SaisitTexte(bureau, d.Text3, "9");
  Calcule();
  QuitteChamp(bureau, d.Text3);
  EXPECT_EQ(d.Text3.texte, "09");
  EXPECT_EQ(Alertes(), 0);
}

TEST_F(ChampsJuges, TheWordsFollowTheLanguage) {
  DemarreSansCarte();
  TapeVisee();
  Tape(d.Text8, "");
  ClicControle(bureau, d.Image10[1]);
  JugeChamps(bureau);
  EXPECT_EQ(d.Text8.alerte, d.Nom[6].legende + " : to be filled in");
}

} // namespace
} // namespace velmaris::essais
