#include "tests/shell/carte/OutilsSouris.hpp"

#include <algorithm>
#include <cmath>

/// Legs forgotten, and the chart drawn anew around a place.
namespace velmaris::essais {
namespace {

TEST_F(Souris, ResetForgetsFiguresListAndStartAndLeavesTheLegsOnTheSurface) {
  ClicControle(bureau, d.PU_Distance);
  ClicDroit(5000, 8000);
  ClicDroit(9000, 8000);
  const std::size_t avant = bureau.image1.traces.size();
  ClicControle(bureau, d.Command19);
  EXPECT_TRUE(d.List1.liste.empty());
  EXPECT_EQ(d.Label56.legende + d.Label15.legende + d.Label17.legende, "");
  EXPECT_EQ(bureau.image1.traces.size(), avant);
  EXPECT_EQ(bureau.souris.DebutX, 0.0F);
}

TEST_F(Souris, WithToujoursVisibleResetWipesTheLegsAndKeepsSheetAndChart) {
  d.Check2.valeur = 1;
  const std::vector<Trace> feuille = bureau.image1.traces;
  ClicControle(bureau, d.PU_Distance);
  ClicDroit(5000, 8000);
  ClicDroit(9000, 8000);
  ClicControle(bureau, d.Command19);
  ASSERT_GT(bureau.image1.traces.size(), feuille.size()) << "the chart is drawn";
  for (std::size_t i = 0; i < feuille.size(); ++i) {
    EXPECT_TRUE(bureau.image1.traces[i] == feuille[i]) << i;
  }
  for (const Polyligne &ligne : TracesDe<Polyligne>(bureau.image1)) {
    EXPECT_FALSE(ligne.plume.style == Style::TiretPoint && ligne.plume.couleur == kMagenta);
  }
}

TEST_F(Souris, WithToujoursVisibleEachResetLeavesTheChartOnceOverTheSheetAndItsLines) {
  d.Check2.valeur = 1;
  Calcule();
  const std::vector<Trace> depart = bureau.image1.traces;
  ClicControle(bureau, d.PU_Distance);
  for (int i = 0; i < 5; ++i) {
    ClicDroit(5000, 8000);
    ClicDroit(9000, 8000);
    ASSERT_GT(bureau.image1.traces.size(), depart.size());
    ClicControle(bureau, d.Command19);
    EXPECT_EQ(bureau.image1.traces, depart) << i;
  }
}

TEST_F(Souris, ResetTakesEveryChartDrawnSinceTheSurfaceWasCleared) {
  OuvreCartes(bureau);
  ClicControle(bureau, d.PU_Distance);
  ClicDroit(5000, 8000);
  ClicDroit(9000, 8000);
  ClicControle(bureau, d.Command17);
  const auto cotes = [&] {
    const auto traces = TracesDe<Polyligne>(bureau.image1);
    return std::count_if(traces.begin(), traces.end(),
                         [](const Polyligne &l) { return l.plume.couleur == Rvb(100, 100, 100); });
  };
  ASSERT_EQ(cotes(), 2) << "the coast's one segment, drawn twice";
  d.Check2.valeur = 1;
  ClicControle(bureau, d.Command19);
  EXPECT_EQ(cotes(), 1);
  const std::size_t traces = bureau.image1.traces.size();
  ClicControle(bureau, d.Command19);
  EXPECT_EQ(bureau.image1.traces.size(), traces) << "also without a leg";
}

TEST_F(Souris, ResetTakesTheLandOfWhatIsNoLongerShown) {
  PoseDonnees("Iles.Asc", "0.4 0.4\n0.6 0.4\n0.6 0.5\n0.4 0.4\n");
  d.Check2.valeur = 1;
  d.Check1[3].valeur = 1;
  Efface(bureau.image1);
  OuvreCartes(bureau);
  const std::size_t avecIles = bureau.image1.aires.size();
  ASSERT_GT(avecIles, 0U);
  d.Check1[3].valeur = 0;
  ClicControle(bureau, d.Command19);
  EXPECT_EQ(bureau.image1.aires.size(), avecIles - 1);
}

TEST_F(Souris, RecentringDrawsTheChartAloneAroundThePlaceUnderThePointer) {
  const Point place = PlaceSurFeuille(bureau.feuille, 48.25, 4.5);
  const float echelle = bureau.feuille.EchelleY;
  ClicGauche(place.x, place.y);
  ClicControle(bureau, d.PU_Centre);
  EXPECT_NEAR(bureau.feuille.OrigineFeuille.latitude, 48.25, 1e-5);
  EXPECT_NEAR(bureau.feuille.OrigineFeuille.longitude, 4.5, 1e-5);
  EXPECT_EQ(bureau.feuille.EchelleY, echelle);
  for (const Polyligne &ligne : TracesDe<Polyligne>(bureau.image1)) {
    EXPECT_NE(ligne.plume.couleur, 0x00FFFFU) << "the line of position is not replayed";
  }
  ASSERT_FALSE(Textes(bureau.image1).empty());
  EXPECT_EQ(Textes(bureau.image1)[0].texte, "Lorient");
}

TEST_F(Souris, RecentringWrapsTheLongitudeAndSendsALatitudePastAPoleToTheOtherEnd) {
  bureau.feuille.OrigineFeuille = {89.0F, 179.0F};
  ClicGauche(W / 2 - bureau.feuille.EchelleX * 120, H / 2 - bureau.feuille.EchelleY * 120);
  ClicControle(bureau, d.PU_Centre);
  EXPECT_NEAR(bureau.feuille.OrigineFeuille.longitude, -179.0, 1e-4);
  EXPECT_NEAR(bureau.feuille.OrigineFeuille.latitude, -89.0, 1e-4);
}

TEST_F(Souris, RecentringTheWholeWorldStartsFromItsOddCentreAndKeepsItsScales) {
  ClicControle(bureau, d.Command6);
  OuvreCartes(bureau);
  ClicGauche(W / 2 + 60 * 10 * std::sqrt(0.5), H / 2 + 60 * 5);
  ClicControle(bureau, d.PU_Centre);
  EXPECT_NEAR(bureau.feuille.OrigineFeuille.latitude, 95.0 - 180, 1e-4);
  EXPECT_NEAR(bureau.feuille.OrigineFeuille.longitude, 290.0 - 360, 1e-4);
  EXPECT_EQ(bureau.feuille.EchelleY, 1.0F) << "the scale of the whole world";
  EXPECT_EQ(bureau.feuille.EchelleX, static_cast<float>(std::sqrt(0.5)));
}

TEST_F(Souris, RecentringBeforeAFirstDrawingShowsTheWholeWorld) {
  Bureau neuf;
  Branche(neuf);
  Donnees_Charge(neuf, {});
  Image1_MouseDown(neuf, BoutonSouris::Gauche, 100, 100);
  ClicControle(neuf, neuf.donnees.PU_Centre);
  EXPECT_EQ(neuf.feuille.OrigineFeuille, kSansFeuille);
  EXPECT_FALSE(neuf.image1.traces.empty());
}

} // namespace
} // namespace velmaris::essais
