#include "OutilsFenetrePoint.hpp"
#include "shell/Reprise.hpp"
#include "shell/RepriseSeance.hpp"
#include "shell/point/SourcesPoint.hpp"

#include <gmock/gmock.h>

/// The list of sights that a fix is made of, as its user has left it.
namespace velmaris::essais {
namespace {

TEST_F(PointEnChiffres, TheLastWatchAsksBeforeItTakesThePlaceOfAListMadeByHand) {
  ViseQuatre();
  OuvrePoint();
  Clique(f.Command1[0]);
  EXPECT_THAT(boites, testing::IsEmpty()) << "the list is the last watch's still";
  Coche(3);
  reponse = false;
  Clique(f.Command1[0]);
  EXPECT_EQ(boites.size(), 1U);
  EXPECT_FALSE(p.visees[3].cochee);
  reponse = true;
  Clique(f.Command1[0]);
  EXPECT_EQ(boites.size(), 2U);
  EXPECT_TRUE(p.visees[3].cochee);
}

TEST_F(PointEnChiffres, ASessionThatIsTakenUpHasTheListAsItsUserLeftIt) {
  ViseQuatre();
  OuvrePoint();
  Coche(1);
  ChoisitLignes(bureau, f.Visees, {2}, 2);
  TapeIci(f.Text2, "2.5");
  ChoisitLignes(bureau, f.Visees, {3}, 3);
  Clique(f.Command1[1]);
  const std::vector<ViseeTenue> tenues = ViseesTenues(p);
  ASSERT_EQ(tenues.size(), 3U);
  const Session session = PriseSession(bureau);
  EXPECT_EQ(session.point, tenues);
  const Calque tracee = bureau.image1.calque;
  p = {};
  bureau.registreOuvert.auPoint.clear();
  bureau.image1.calque = {};
  f.cadre.visible = false;
  ReprendSession(bureau, session);
  Accorde();
  EXPECT_EQ(bureau.image1.calque, tracee) << "the fix lies on the sheet, its window put away";
  EXPECT_EQ(ViseesTenues(p), tenues);
  EXPECT_FALSE(p.visees[1].cochee);
  EXPECT_EQ(p.visees[2].ecartType, 2.5);
  OuvrePoint();
  EXPECT_EQ(ViseesTenues(p), tenues) << "the window takes it as it is";
}

} // namespace
} // namespace velmaris::essais
