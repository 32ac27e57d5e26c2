#include "OutilsFenetreSerie.hpp"

#include "shell/registre/LectureRegistre.hpp"
#include "shell/serie/CalculSerie.hpp"
#include "shell/serie/DessinSerie.hpp"
#include "shell/serie/MotsSerie.hpp"
#include "shell/serie/PriseSerie.hpp"

#include <functional>
#include <utility>

/// Noon and the clock from the Moon in their pages, and the plots, without a screen.
namespace velmaris::essais {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

class PageDeMidi : public FenetreDeSerie {
protected:
  /// Readings of a noon off Brittany, made where the ship is; the position is then typed off.
  void TapeMidi(const std::vector<const char *> &heures) {
    Ouvre("12:20");
    SaisitTexte(bureau, f.Text2[0], "180");
    SaisitTexte(bureau, f.Text2[1], "12");
    TapeLectures(heures);
    SaisitTexte(bureau, f.Text1[2], "47 20.0 N");
    SaisitTexte(bureau, f.Text1[3], "5 30.0 W");
    Page(PageSerie::Midi);
  }
  const std::vector<const char *> kMidi = {"11:50:00", "12:05:00", "12:15:00", "12:25:00", "12:35:00", "12:50:00"};
};

TEST_F(PageDeMidi, TheCurveGivesBackTheShipsPlaceUnderWay) {
  TapeMidi(kMidi);
  ASSERT_TRUE(p.midi.latitude && p.midi.longitude && p.midi.passage);
  const LieuNavire vrai =
      Deplace({{{A("12:20:00"), 180, 12}}, {}}, {47.5, -(5 + 10.0 / 60)}, A("12:20:00"), p.midi.passage->heure).lieu;
  EXPECT_NEAR(p.midi.latitude->latitude, vrai.latitude, 0.02 / 60);
  EXPECT_NEAR(p.midi.longitude->longitude, vrai.longitude, 0.2 / 60);
  EXPECT_THAT(f.Midi[2].legende, HasSubstr("N   ±"));
  EXPECT_THAT(f.Midi[0].legende, HasSubstr(f.TexteSud.legende));
  EXPECT_THAT(f.Midi[1].legende, HasSubstr(f.TexteVersPassage.legende));
}

TEST_F(PageDeMidi, TakingPutsWholeMinutesIntoTheEstimatedPositionAsOneGesture) {
  TapeVisee();
  TapeMidi(kMidi);
  const Observation avant = LitPanneau(d);
  ClicControle(bureau, f.PrendMidi);
  const Observation o = LitPanneau(d);
  EXPECT_NEAR(LatitudeEstimee(o), p.midi.latitude->latitude, 0.51 / 60);
  EXPECT_NEAR(-LongitudeEstimee(o), p.midi.longitude->longitude, 0.51 / 60);
  EXPECT_EQ(o.lectureDegres, avant.lectureDegres);
  ClicControle(bureau, d.PU_Annule);
  EXPECT_EQ(LitPanneau(d), avant);
}

TEST_F(PageDeMidi, OneReadingGivesALatitudeAndLeavesTheLongitude) {
  TapeVisee();
  TapeMidi({"12:22:00"});
  ASSERT_TRUE(p.midi.latitude);
  EXPECT_FALSE(p.midi.longitude);
  EXPECT_THAT(Lignes(f.LabMidi), HasSubstr(f.MotAvisMidi[6].legende));
  const Observation avant = LitPanneau(d);
  ClicControle(bureau, f.PrendMidi);
  EXPECT_EQ(LitPanneau(d).longitudeMinutes, avant.longitudeMinutes);
  EXPECT_NEAR(LatitudeEstimee(LitPanneau(d)), p.midi.latitude->latitude, 0.51 / 60);
}

TEST_F(PageDeMidi, EqualAltitudesGiveTheLongitudeOfAShipThatStands) {
  Ouvre("12:20");
  Page(PageSerie::Midi);
  // The time after the passage at which the height is that of 11:40, by halves.
  const double hauteur = Lecture(A("11:40:00"));
  InstantUTC avant = A("12:30:00");
  InstantUTC apres = A("13:40:00");
  for (int i = 0; i < 40; ++i) {
    const InstantUTC milieu = PlusTard(avant, SecondesEntre(avant, apres) / 2);
    (Lecture(milieu) > hauteur ? avant : apres) = milieu;
  }
  SaisitTexte(bureau, f.Text1[3], "6 0.0 W");
  SaisitTexte(bureau, f.Text6[0], "11:40:00");
  SaisitTexte(bureau, f.Text6[1], TexteHeureUtc(apres));
  AccordeSerie(bureau);
  ASSERT_TRUE(p.egales);
  EXPECT_NEAR(p.egales->longitude.longitude, -(5 + 10.0 / 60), 0.2 / 60);
  EXPECT_THAT(f.Egales.legende, HasSubstr("W"));
  SaisitTexte(bureau, f.Text6[1], "11:41:00");
  AccordeSerie(bureau);
  EXPECT_EQ(f.Egales.legende, f.TexteSansEgales.legende);
}

class PageDeLune : public FenetreDeSerie {
protected:
  /// The distance that is seen at a time, from the typed position.
  double Distance(const InstantUTC &utc, const Astre &astre, BordDistance bordLune, BordDistance bord) {
    const BaseLectures base = *LitBase(bureau);
    const Station station = StationDe(base, LieuDeLaBase(base, utc));
    const PlaceGeocentrique lune = PlaceA({GenreAstre::Lune, 0}, utc, 0);
    return VoitDistance(lune, bordLune, PlaceA(astre, utc, 0), bord, station,
                        {base.corrections.pression, base.corrections.temperature})
        .distance;
  }
  /// Distances of the best candidate, by a watch that is slow.
  void TapeDistances(double retard) {
    Ouvre("19:00");
    Page(PageSerie::Lune);
    SaisitTexte(bureau, f.Text2[3], "1.5");
    ASSERT_FALSE(p.candidats.empty());
    const CandidatLunaire c = p.candidats[0];
    ASSERT_FALSE(c.raison);
    for (const char *heure : {"19:00:00", "19:03:00", "19:06:00"}) {
      ChoisitLignes(bureau, f.Candidats, {0}, 0);
      ValideLigne(bureau, f.Candidats, 0);
      const InstantUTC vraie = PlusTard(A(heure), retard);
      SaisitTexte(bureau, f.Text5[0], heure);
      SaisitTexte(bureau, f.Text5[1], Angle(Distance(vraie, c.astre, c.bordLune, c.bordAstre) - 1.5 / 60));
      ClicControle(bureau, f.Command4[0]);
    }
    AccordeSerie(bureau);
  }
};

TEST_F(PageDeLune, DistancesTellByHowMuchTheWatchIsSlow) {
  TapeDistances(75);
  ASSERT_EQ(p.distances.size(), 3U);
  ASSERT_TRUE(p.lune.solution);
  EXPECT_NEAR(p.lune.solution->retard, 75, 2);
  EXPECT_THAT(f.Lune[0].legende, HasSubstr(f.TexteRetarde.legende + "1 min"));
  EXPECT_EQ(f.Distances.tableau.lignes, 3U);
}

TEST_F(PageDeLune, AResultOfOtherFiguresThanThoseTypedByThenIsDropped) {
  TapeDistances(75);
  std::vector<std::function<std::function<void()>()>> travaux;
  bureau.ports.travaille = [&](auto travail) { travaux.push_back(std::move(travail)); };
  CocheLigne(bureau, f.Distances, 0);
  EXPECT_FALSE(p.lune.solution) << "it is under way";
  CocheLigne(bureau, f.Distances, 1);
  ASSERT_EQ(travaux.size(), 2U);
  const auto premier = travaux[0]();
  const auto second = travaux[1]();
  premier();
  EXPECT_FALSE(p.lune.solution);
  second();
  ASSERT_TRUE(p.lune.solution);
  EXPECT_EQ(p.lune.solution->surplus, 0) << "one distance is left";
}

TEST_F(PageDeLune, TheResultIsKeptAsARowOfTheWatch) {
  TapeDistances(-40);
  ASSERT_TRUE(p.lune.solution);
  ClicControle(bureau, f.PrendLune);
  ASSERT_EQ(bureau.registreOuvert.montre.size(), 1U);
  const ReleveMontre &releve = bureau.registreOuvert.montre[0];
  EXPECT_NEAR(releve.erreur, 40, 2) << "ahead";
  EXPECT_EQ(releve.instant, SecondesDe(PlusTard(A("19:03:00"), p.lune.solution->retard)));
  EXPECT_THAT(bureau.serie.dit, testing::HasSubstr("±")) << "with its doubt";
  ClicControle(bureau, f.PrendLune);
  EXPECT_EQ(bureau.registreOuvert.montre.size(), 1U) << "once is enough";
  EXPECT_THAT(bureau.serie.dit, testing::HasSubstr("Déjà"));
}

TEST_F(PageDeLune, AKeptRowHasTheRateOfTheOneBeforeIt) {
  SolutionLunaire solution;
  solution.retard = 12;
  const InstantUTC montre = A("19:00:00");
  const std::int64_t ici = SecondesDe(montre);
  EXPECT_EQ(ReleveDe(solution, montre, {}).marche, 0);
  EXPECT_EQ(ReleveDe(solution, montre, {{ici - 5000, 1, 0.5}, {ici - 100, 1, -0.25}, {ici + 500, 1, 2}}).marche, -0.25);
  EXPECT_EQ(ReleveDe(solution, montre, {{ici + 500, 1, 2}}).marche, 0);
}

TEST_F(PageDeLune, HeightsAreTakenAsReadBothOrNone) {
  Ouvre("19:00");
  Page(PageSerie::Lune);
  SaisitTexte(bureau, f.Text5[0], "19:00:00");
  SaisitTexte(bureau, f.Text5[1], "80 10");
  SaisitTexte(bureau, f.Text5[2], "30 10");
  ClicControle(bureau, f.Command4[0]);
  EXPECT_TRUE(p.distances.empty());
  EXPECT_FALSE(f.Text5[3].alerte.empty());
  SaisitTexte(bureau, f.Text5[3], "20 10");
  ClicControle(bureau, f.Command4[0]);
  ASSERT_EQ(p.distances.size(), 1U);
  const BaseLectures base = *LitBase(bureau);
  const MesureLunaire m = MesuresDe(p.distances, base)[0];
  EXPECT_NEAR(*m.hauteurLune, 30 + (10 - 1 - Depression(2.5)) / 60, 1E-9);
  EXPECT_NEAR(*m.hauteurAstre, 20 + (10 - 1 - Depression(2.5)) / 60, 1E-9);
  EXPECT_EQ(m.collimation, -1);
}

TEST_F(PageDeLune, BodiesThatAreOfNoUseSayWhy) {
  Ouvre("19:00");
  Page(PageSerie::Lune);
  bool raison = false;
  for (std::size_t i = 0; i < p.candidats.size(); ++i) {
    if (p.candidats[i].raison) {
      raison = true;
      EXPECT_EQ(Cellule(f.Candidats, i, 3), f.MotRaison.at(static_cast<std::size_t>(*p.candidats[i].raison)).legende);
    } else {
      EXPECT_FALSE(raison) << "those that will do stand first";
    }
  }
  EXPECT_TRUE(raison);
}

TEST(DessinSerie, ReadingsOnTheCourseLieOnItsLineAndLaterOnesToTheRight) {
  Surface s;
  s.largeur = 7000;
  s.hauteur = 4000;
  TraceLectures trace;
  trace.origine = UTCDe({2026, 6, 21, 9, 0, 0});
  trace.course = {{-2, 42}, {0, 42.4}, {2, 42.8}};
  trace.lectures = {{-2, 42, 0, true, false}, {1, 42.6, 0, true, false}, {2, 42.81, 0.6, false, true}};
  const Point a = PlaceDeLecture(s, trace, trace.lectures[0]);
  const Point b = PlaceDeLecture(s, trace, trace.lectures[1]);
  DessineLectures(s, trace);
  const Polyligne *ligne = nullptr;
  int anneaux = 0;
  for (const Trace &t : s.traces) {
    const auto *polyligne = std::get_if<Polyligne>(&t);
    ligne = polyligne != nullptr && polyligne->points.size() == 3 ? polyligne : ligne;
    const auto *cercle = std::get_if<CercleTrace>(&t);
    anneaux += cercle != nullptr && cercle->rayon > 100 ? 1 : 0;
  }
  ASSERT_NE(ligne, nullptr);
  EXPECT_NEAR(ligne->points[0].x, a.x, 1E-6);
  EXPECT_NEAR(ligne->points[0].y, a.y, 1E-6);
  EXPECT_NEAR((b.x - a.x) / (ligne->points[2].x - a.x), 0.75, 1E-6);
  EXPECT_LT(b.y, a.y) << "higher is up";
  EXPECT_EQ(anneaux, 2) << "the marked one, above and below";
  EXPECT_LT(PlaceDuResidu(s, trace, trace.lectures[2]).y, PlaceDuResidu(s, trace, trace.lectures[1]).y);
  EXPECT_GT(PlaceDuResidu(s, trace, trace.lectures[2]).y, a.y);
}

TEST(DessinSerie, WithoutACourseItIsEmpty) {
  Surface s;
  s.largeur = 7000;
  s.hauteur = 4000;
  DessineLectures(s, {});
  EXPECT_TRUE(s.traces.empty());
}

TEST(MotsSerie, ADurationHasMinutesFromSixtySecondsOn) {
  EXPECT_EQ(MotsDuree(59.4), "59 s");
  EXPECT_EQ(MotsDuree(-59.6), "1 min 00 s");
  EXPECT_EQ(MotsDuree(125.2), "2 min 05 s");
}

} // namespace
} // namespace velmaris::essais
