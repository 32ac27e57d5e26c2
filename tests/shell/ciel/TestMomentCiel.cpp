#include "shell/ciel/MomentCiel.hpp"

#include "tests/shell/ciel/OutilsCiel.hpp"

#include <gtest/gtest.h>

/// The sky at another moment than the present.
namespace velmaris::essais {
namespace {

class MomentDuCiel : public AvecCiel {
protected:
  MomentDuCiel() { Ouvre(); }
  void Avance() { ClicControle(bureau, c.Avance); }
  void Recule() { ClicControle(bureau, c.Recule); }
  void PoseDuree(int rang) { ChoisitLigne(bureau, c.Pas, rang); }
};

TEST_F(MomentDuCiel, TheWindowTellsTheMomentAndThePositionThatItShows) {
  EXPECT_EQ(c.Moment.legende, "21/06/2026  12:05:30 GMT, maintenant");
  EXPECT_EQ(c.Lieu.legende, "47° 30.0' N  005° 10.0' W");
}

TEST_F(MomentDuCiel, AStepIsOfTenMinutesAtFirstAndEndsTheAutomaticRedraw) {
  Avance();
  EXPECT_EQ(c.Moment.legende, "21/06/2026  12:15:30 GMT");
  EXPECT_EQ(c.Check2.valeur, 0);
  EXPECT_FALSE(c.minuterie);
  Recule();
  Recule();
  EXPECT_EQ(c.Moment.legende, "21/06/2026  11:55:30 GMT");
}

TEST_F(MomentDuCiel, AStepIsOfAMinuteTenAnHourOrADay) {
  PoseDuree(0);
  Avance();
  EXPECT_EQ(c.Moment.legende, "21/06/2026  12:06:30 GMT");
  PoseDuree(2);
  Avance();
  EXPECT_EQ(c.Moment.legende, "21/06/2026  13:06:30 GMT");
  PoseDuree(3);
  Avance();
  EXPECT_EQ(c.Moment.legende, "22/06/2026  13:06:30 GMT");
}

TEST_F(MomentDuCiel, TheChartIsThatOfTheMoment) {
  PoseDuree(2);
  Avance();
  temps.heure = 13;
  const std::size_t vega = Rang("Vega");
  const PaireX horizon = Horizon(Equateur(vega));
  EstAHorizon(c.Shet[vega], horizon.gauche, horizon.droite);
}

TEST_F(MomentDuCiel, AtTheSameMomentTheSunAndThePlanetsAreWhereThePresentWillHaveThem) {
  PoseDuree(2);
  Avance();
  const Place soleil = c.SOL.place;
  const Place lune = c.Lune.place;
  const Place venus = c.Shapla[0].place;
  temps.heure = 13;
  Rafraichit();
  EXPECT_EQ(c.SOL.place, soleil);
  EXPECT_EQ(c.Lune.place, lune);
  EXPECT_EQ(c.Shapla[0].place, venus);
}

TEST_F(MomentDuCiel, RafraichirIsThePresentAgain) {
  Avance();
  Rafraichit();
  EXPECT_EQ(c.Moment.legende, "21/06/2026  12:05:30 GMT, maintenant");
  EXPECT_EQ(c.Check2.valeur, 0) << "it stays unticked";
}

TEST_F(MomentDuCiel, TickedAgainTheAutomaticRedrawIsThePresent) {
  Avance();
  ClicCase(bureau, c.Check2);
  ciel::Timer1_Tick(bureau);
  EXPECT_EQ(c.Moment.legende, "21/06/2026  12:05:30 GMT, maintenant");
}

TEST_F(MomentDuCiel, AnotherChartOrATurnStaysAtTheMoment) {
  Avance();
  Equatoriale();
  BougeCurseur(bureau, c.HScroll1, 35);
  EXPECT_EQ(c.Moment.legende, "21/06/2026  12:15:30 GMT");
}

TEST_F(MomentDuCiel, TheClockAndTheMoonOfTheRestOfTheProgramStayInThePresent) {
  LitHorloge(bureau.horloge);
  const std::string heure = bureau.horloge.HeureGMT;
  const double lune = bureau.lune.LuneAzimut;
  PoseDuree(3);
  Avance();
  EXPECT_EQ(bureau.horloge.HeureGMT, heure);
  EXPECT_EQ(bureau.horloge.source().jour, 21);
  EXPECT_EQ(bureau.lune.LuneAzimut, lune);
}

TEST_F(MomentDuCiel, OpenedAgainItShowsThePresent) {
  Avance();
  ClicControle(bureau, c.Command4);
  Ouvre();
  EXPECT_EQ(c.Moment.legende, "21/06/2026  12:05:30 GMT, maintenant");
  EXPECT_TRUE(c.minuterie);
}

TEST(DecaleMoment, StepsGoOverMidnightMonthYearAndTheLeapDay) {
  const TempsSysteme avant{2027, 12, 5, 31, 23, 55, 20, 0};
  const TempsSysteme apres = Decale(avant, 10);
  EXPECT_EQ(apres.annee, 2028);
  EXPECT_EQ(apres.mois, 1);
  EXPECT_EQ(apres.jour, 1);
  EXPECT_EQ(apres.jourSemaine, 6) << "a Saturday";
  EXPECT_EQ(apres.heure, 0);
  EXPECT_EQ(apres.minute, 5);
  EXPECT_EQ(apres.seconde, 20);
  EXPECT_EQ(Decale(apres, -10).jour, 31);
  EXPECT_EQ(Decale({2028, 2, 1, 28, 12, 0, 0, 0}, 24 * 60).jour, 29);
}

TEST_F(MomentDuCiel, StepsEndWhereTheTheoriesDo) {
  temps.annee = 2100;
  temps.mois = 12;
  temps.jour = 31;
  temps.heure = 23;
  Rafraichit();
  PoseDuree(3);
  const std::string avant = c.Moment.legende;
  Avance();
  EXPECT_EQ(c.Moment.legende, avant);
}

} // namespace
} // namespace velmaris::essais
