#include "OutilsPoint.hpp"
#include "complements/ciel/CielDuMoment.hpp"
#include "complements/ciel/EtapesHauteur.hpp"

#include <gmock/gmock.h>

#include <cmath>

/// The rules of the fix, by lines of closed form.
namespace velmaris {
namespace {

using essais::Dit;
using essais::Heure;
using essais::Immobile;
using essais::kMidi;
using essais::Milles;
using essais::Vers;
using testing::ElementsAre;

constexpr LieuNavire kLieu{44, -28};

std::vector<ViseePoint> Tour(std::initializer_list<double> azimuts, double faute = 0) {
  std::vector<ViseePoint> visees;
  for (const double azimut : azimuts) {
    visees.push_back(Vers(kLieu, azimut, 0, 35, faute));
    visees.back().identite = static_cast<std::int64_t>(visees.size()) * 10;
  }
  return visees;
}

TEST(Fix, OfNoSightOrOneHasAWordAndNoNumber) {
  EXPECT_THAT(FaitPoint({}, Immobile()).avis, ElementsAre(AvisPoint::SansVisee));
  auto visees = Tour({100});
  const FichePoint une = FaitPoint(visees, Immobile());
  EXPECT_THAT(une.avis, ElementsAre(AvisPoint::UneVisee));
  EXPECT_FALSE(une.solution);
  visees[0].cochee = false;
  EXPECT_THAT(FaitPoint(visees, Immobile()).avis, ElementsAre(AvisPoint::SansVisee));
}

TEST(Fix, OfLinesThatRunTheSameWayIsRefused) {
  for (const auto &azimuts :
       {std::initializer_list<double>{50, 64}, {50, 244}, {50, 216}, {50, 50}, {10, 356, 190}, {50, 55, 60, 64.9}}) {
    const FichePoint fiche = FaitPoint(Tour(azimuts), Immobile());
    EXPECT_THAT(fiche.avis, ElementsAre(AvisPoint::AzimutsSerres)) << *azimuts.begin() << " " << azimuts.size();
    EXPECT_FALSE(fiche.solution);
  }
  for (const auto &azimuts : {std::initializer_list<double>{50, 66}, {50, 246}, {50, 214}, {50, 55, 60, 66}}) {
    EXPECT_TRUE(FaitPoint(Tour(azimuts), Immobile()).solution) << azimuts.size();
  }
}

TEST(Fix, OfTheSunAloneComesFromTheRunBetween) {
  const RouteNavire route{{{Heure(-6), 70, 8}}, {}};
  std::vector<ViseePoint> visees;
  for (const double heures : {-4.0, 0.0}) {
    visees.push_back(Vers(Deplace(route, kLieu, kMidi, Heure(heures)).lieu, heures < 0 ? 110 : 180, heures, 40));
  }
  ReglagesPoint r = Immobile();
  r.route = route;
  const FichePoint fiche = FaitPoint(visees, r);
  ASSERT_TRUE(fiche.solution);
  EXPECT_LT(Milles(fiche.solution->lieu, kLieu), 1E-3);
  visees[0].hauteur.dite->sous = visees[1].hauteur.dite->sous;
  visees[0].hauteur.dite->observee += 0.5;
  EXPECT_FALSE(FaitPoint(visees, r).solution) << "two circles about one place";
}

TEST(Fix, OfTwoSightsHasTwoPlacesAndTheNearerToTheTypedOneComesFirst) {
  std::vector<ViseePoint> visees = Tour({80, 170});
  const FichePoint ici = FaitPoint(visees, Immobile());
  EXPECT_THAT(ici.avis, ElementsAre(AvisPoint::DeuxSolutions));
  ASSERT_TRUE(ici.seconde);
  EXPECT_LT(Milles(ici.solution->lieu, kLieu), 1E-3);
  for (const ViseePoint &v : visees) {
    EXPECT_NEAR(HauteurDuLieu(v.hauteur, TheoriePoint::Dite, ici.seconde->lieu), 35, 1E-4);
  }
  for (ViseePoint &v : visees) {
    v.hauteur.estime = ici.seconde->lieu;
  }
  const FichePoint la = FaitPoint(visees, Immobile());
  EXPECT_LT(Milles(la.solution->lieu, ici.seconde->lieu), 1E-3);
  EXPECT_LT(Milles(la.seconde->lieu, kLieu), 1E-3);
}

TEST(Fix, NeedsNoEstimatedPositionAndLargeInterceptsAreNoRefusal) {
  std::vector<ViseePoint> visees = Tour({80, 170, 300});
  const FichePoint pres = FaitPoint(visees, Immobile());
  for (ViseePoint &v : visees) {
    v.hauteur.estime = {-60, 150};
  }
  const FichePoint loin = FaitPoint(visees, Immobile());
  EXPECT_TRUE(loin.avis.empty());
  EXPECT_EQ(loin.solution->lieu.latitude, pres.solution->lieu.latitude) << "the same bits";
  EXPECT_EQ(loin.solution->lieu.longitude, pres.solution->lieu.longitude);
}

TEST(Fix, OfTwoLinesAtRightAnglesHasTheCircleOfItsHeights) {
  const SolutionPoint s = *FaitPoint(Tour({80, 170}), Immobile()).solution;
  EXPECT_NEAR(s.ellipse.a, std::sqrt(5.991464547), 1E-4);
  EXPECT_NEAR(s.ellipse.b, std::sqrt(5.991464547), 1E-4);
}

TEST(Fix, OfLinesThatCrossAtAnAngleHasTheEllipseOfThatAngle) {
  // Two equal lines whose azimuths part by 2 u: deviations 1/(sqrt2 cos u) towards their middle, 1/(sqrt2 sin u)
  // across.
  const SolutionPoint s = *FaitPoint(Tour({70, 110}), Immobile()).solution;
  EXPECT_NEAR(s.ellipse.a, std::sqrt(5.991464547 / 2) / std::sin(20 * kRadian), 1E-3);
  EXPECT_NEAR(s.ellipse.b, std::sqrt(5.991464547 / 2) / std::cos(20 * kRadian), 1E-3);
  EXPECT_NEAR(std::min(s.ellipse.direction, 180 - s.ellipse.direction), 0, 0.01) << "the body stands in the east";
}

TEST(Fix, DoubtOfTheRunMakesAnOldLineAsUncertainAsItIs) {
  // Steering north: the course's doubt and the current's east part move a line that runs north; the log's doubt
  // doesn't.
  constexpr double kHeures = 5;
  constexpr double kVitesse = 10;
  // On the equator, so that a mile east stays one on the way.
  constexpr LieuNavire kEquateur{0.4, -28};
  const RouteNavire route{{{Heure(-9), 0, kVitesse}}, {}};
  ReglagesPoint r = Immobile();
  r.route = route;
  r.doutes = {1, 3, 5, 0.3};
  const std::vector<ViseePoint> visees{Vers(kEquateur, 0),
                                       Vers(Deplace(route, kEquateur, kMidi, Heure(-kHeures)).lieu, 90, -kHeures)};
  const SolutionPoint s = *FaitPoint(visees, r).solution;
  const double est = std::sqrt(1 + std::pow(0.3 * kHeures, 2) + std::pow(kVitesse * kHeures * 3 * kRadian, 2));
  EXPECT_NEAR(s.ellipse.a, est * std::sqrt(5.991464547), 0.03);
  EXPECT_NEAR(s.ellipse.b, std::sqrt(5.991464547), 0.01);
  EXPECT_NEAR(s.ellipse.direction, 90, 1);
}

TEST(Fix, ASightLeftOutCountsNothingAndKeepsItsResidual) {
  std::vector<ViseePoint> visees = Tour({20, 95, 170, 300});
  visees[3].hauteur.dite->observee += 10.0 / 60;
  visees[3].cochee = false;
  const FichePoint fiche = FaitPoint(visees, Immobile());
  EXPECT_LT(Milles(fiche.solution->lieu, kLieu), 1E-3);
  const ResiduPoint &r = fiche.solution->residus.at(3);
  EXPECT_FALSE(r.utilisee);
  EXPECT_TRUE(r.mesuree);
  EXPECT_NEAR(r.residu, 10, 1E-3);
  EXPECT_NEAR(r.azimut, 300, 1E-3);
  EXPECT_EQ(r.redondance, 0);
  EXPECT_EQ(r.identite, 40);
}

TEST(Fix, ASightWithoutAFigureIsToldAndHasNoResidual) {
  std::vector<ViseePoint> visees = Tour({20, 95, 170, 300});
  visees[1].hauteur.dite.reset();
  const FichePoint fiche = FaitPoint(visees, Immobile());
  EXPECT_THAT(fiche.avis, ElementsAre(AvisPoint::SansFigure));
  EXPECT_FALSE(fiche.solution->residus.at(1).mesuree);
  EXPECT_LT(Milles(fiche.solution->lieu, kLieu), 1E-3);
}

TEST(Fix, WeightsAreTheInverseSquaresOfTheAssumedErrors) {
  // Two lines east, 4 miles apart, assumed errors 1 and 2: the fix lies at a fifth of the way, and one line north.
  std::vector<ViseePoint> visees = Tour({0, 90, 90});
  visees[2].hauteur.dite->observee += 4.0 / 60;
  visees[2].ecartType = 2;
  const SolutionPoint s = *FaitPoint(visees, Immobile()).solution;
  EXPECT_NEAR((s.lieu.longitude - kLieu.longitude) * 60 * std::cos(44 * kRadian), 0.8, 1E-3);
  EXPECT_NEAR(s.residus[1].residu, -0.8, 1E-3);
  EXPECT_NEAR(s.residus[2].residu, 3.2, 1E-3);
  EXPECT_NEAR(s.khi2, 0.64 + 2.56, 1E-3);
  EXPECT_NEAR(s.residus[1].redondance, 0.2, 1E-4);
  EXPECT_NEAR(s.residus[2].redondance, 0.8, 1E-4);
  EXPECT_NEAR(s.residus[0].redondance, 0, 1E-4) << "nothing controls the only line from the north";
  EXPECT_NEAR(s.residus[1].statistique, -4 / std::sqrt(5.0), 1E-3);
  EXPECT_NEAR(s.residus[2].statistique, 4 / std::sqrt(5.0), 1E-3);
  visees[2].ecartType = std::nan("");
  EXPECT_EQ(EcartTypeDe(visees[2], Immobile().doutes), 1);
}

TEST(Fix, AssumedErrorGrowsUnderTenDegreesAsRefractionDoes) {
  EXPECT_EQ(ErreurSupposee(0.7, 10), 0.7);
  EXPECT_EQ(ErreurSupposee(0.7, 80), 0.7);
  EXPECT_NEAR(ErreurSupposee(0.7, 3), 1.5, 0.1);
  EXPECT_NEAR(ErreurSupposee(0.7, 0), 4.4, 0.3);
  EXPECT_GT(ErreurSupposee(0.7, 9.9), 0.7);
}

TEST(Fix, ASlipAmongThreeHasNoNameAndAmongFiveItHas) {
  std::vector<ViseePoint> visees = Tour({0, 120, 240});
  visees[1].hauteur.dite->observee += 1;
  const FichePoint trois = FaitPoint(visees, Immobile());
  EXPECT_THAT(trois.avis, ElementsAre(AvisPoint::Desaccord, AvisPoint::ErreurSansNom));
  EXPECT_NEAR(trois.solution->seuil, 2.5758, 1E-3) << "one test, since the three statistics are one";
  EXPECT_NEAR(trois.solution->residus[0].redondance, 1.0 / 3, 5E-3);
  visees = Tour({0, 72, 144, 216, 288});
  visees[1].hauteur.dite->observee += 1;
  const FichePoint cinq = FaitPoint(visees, Immobile());
  EXPECT_THAT(cinq.avis, ElementsAre(AvisPoint::Desaccord, AvisPoint::ViseeImprobable));
  EXPECT_EQ(cinq.solution->improbable, 1U);
  EXPECT_TRUE(cinq.solution->residus[1].utilisee) << "named, not left out";
}

TEST(Fix, OfTwoSightsThatOnlyControlEachOtherNeitherIsNamed) {
  std::vector<ViseePoint> visees = Tour({0, 0, 90, 90});
  visees[1].hauteur.dite->observee += 0.5;
  const FichePoint fiche = FaitPoint(visees, Immobile());
  EXPECT_TRUE(Dit(fiche, AvisPoint::ErreurSansNom));
  EXPECT_FALSE(fiche.solution->improbable);
}

TEST(Fix, ACommonErrorIsFoundWithBodiesAround) {
  ReglagesPoint r = Immobile();
  r.erreurCommune = true;
  const FichePoint fiche = FaitPoint(Tour({0, 90, 180, 270}, 2.5), r);
  EXPECT_TRUE(fiche.avis.empty());
  ASSERT_EQ(fiche.solution->communes.size(), 1U);
  EXPECT_EQ(fiche.solution->communes[0].genre, GenreCommune::Horizon);
  EXPECT_NEAR(fiche.solution->communes[0].valeur, 2.5, 1E-3);
  EXPECT_NEAR(fiche.solution->communes[0].ecartType, 0.5, 1E-3) << "of four heights known to a minute";
  EXPECT_LT(Milles(fiche.solution->lieu, kLieu), 1E-3);
  EXPECT_EQ(fiche.solution->surplus, 1);
}

TEST(Fix, ACommonErrorIsRefusedWithTheReason) {
  ReglagesPoint r = Immobile();
  r.erreurCommune = true;
  EXPECT_THAT(FaitPoint(Tour({0, 60, 120, 179}), r).avis, ElementsAre(AvisPoint::CommuneAzimuts));
  EXPECT_THAT(FaitPoint(Tour({0, 120, 240}), r).avis, ElementsAre(AvisPoint::CommuneTropPeu));
  EXPECT_THAT(FaitPoint(Tour({0, 5, 90, 181}), r).avis, testing::IsEmpty());
  EXPECT_THAT(FaitPoint(Tour({0, 2, 4, 178.5, 181.5, 91}), r).avis, testing::IsEmpty());
  EXPECT_THAT(FaitPoint(Tour({88, 89, 90, 91, 92, 269}), r).avis, ElementsAre(AvisPoint::AzimutsSerres));
}

TEST(Fix, HorizonAndSextantArePartedByAnArtificialHorizon) {
  // The index is 3' off, the horizon 1' more: the sea's heights have both, the artificial one's half of the index.
  std::vector<ViseePoint> visees = Tour({0, 60, 120, 180, 240, 300});
  for (std::size_t i = 0; i < visees.size(); ++i) {
    visees[i].hauteur.artificiel = i % 2 == 1;
    visees[i].hauteur.dite->observee += (i % 2 == 1 ? 1.5 : 4) / 60;
  }
  ReglagesPoint r = Immobile();
  r.erreurCommune = true;
  const FichePoint fiche = FaitPoint(visees, r);
  ASSERT_EQ(fiche.solution->communes.size(), 2U);
  EXPECT_NEAR(fiche.solution->communes[0].valeur, 1, 1E-2);
  EXPECT_EQ(fiche.solution->communes[1].genre, GenreCommune::Sextant);
  EXPECT_NEAR(fiche.solution->communes[1].valeur, 3, 1E-2);
}

TEST(Fix, EachWatchHasAnHorizonOfItsOwn) {
  std::vector<ViseePoint> visees;
  for (const double azimut : {0.0, 72.0, 144.0, 216.0, 288.0}) {
    visees.push_back(Vers(kLieu, azimut, -8 + azimut / 1000, 35, 2));
    visees.push_back(Vers(kLieu, azimut + 20, azimut / 1000, 35, -1));
  }
  ReglagesPoint r = Immobile();
  r.erreurCommune = true;
  const FichePoint fiche = FaitPoint(visees, r);
  ASSERT_EQ(fiche.solution->communes.size(), 2U);
  EXPECT_NEAR(fiche.solution->communes[0].valeur, 2, 1E-2);
  EXPECT_NEAR(fiche.solution->communes[1].valeur, -1, 1E-2);
  EXPECT_THAT(QuartsDeVisees(visees), ElementsAre(0, 1, 0, 1, 0, 1, 0, 1, 0, 1));
}

TEST(Fix, CourseAndSpeedMadeGoodAreFoundFromSixSightsOverThreeHours) {
  // The log says 8 knots east; a current of 2 knots south is unknown to it.
  const RouteNavire journal{{{Heure(-9), 90, 8}}, {}};
  const RouteNavire vraie{{{Heure(-9), 90, 8}}, {180, 2}};
  std::vector<ViseePoint> visees;
  for (int i = 0; i < 8; ++i) {
    const double t = -5.0 + i * 5.0 / 7;
    visees.push_back(Vers(Deplace(vraie, kLieu, kMidi, Heure(t)).lieu, i * 85.0, t));
  }
  ReglagesPoint r = Immobile();
  r.route = journal;
  r.routeFond = true;
  const FichePoint fiche = FaitPoint(visees, r);
  EXPECT_TRUE(fiche.avis.empty());
  ASSERT_TRUE(fiche.solution->fond);
  EXPECT_NEAR(fiche.solution->fond->cap, std::atan2(8, -2) / kRadian, 0.01);
  EXPECT_NEAR(fiche.solution->fond->vitesse, std::hypot(8, 2), 0.01);
  EXPECT_LT(Milles(fiche.solution->lieu, kLieu), 0.01);
  EXPECT_THAT(FaitPoint(std::span(visees).first(5), r).avis, testing::Contains(AvisPoint::FondTropPeu));
  EXPECT_THAT(FaitPoint(std::span(visees).last(4), r).avis, testing::Contains(AvisPoint::FondTropCourt));
  for (ViseePoint &v : visees) {
    v.ecartType = 20;
  }
  EXPECT_TRUE(Dit(FaitPoint(visees, r), AvisPoint::FondMalPose));
}

TEST(Fix, ByResidualsComesFromSixSightsOn) {
  EXPECT_FALSE(FaitPoint(Tour({0, 72, 144, 216, 288}), Immobile()).solution->parResidus);
  std::vector<ViseePoint> visees = Tour({0, 0, 90, 90, 180, 180, 270, 270});
  for (std::size_t i = 0; i < visees.size(); ++i) {
    visees[i].hauteur.dite->observee += (i % 2 == 0 ? 2.0 : -2.0) / 60;
  }
  const SolutionPoint s = *FaitPoint(visees, Immobile()).solution;
  // Eight residuals of 2 miles with six too many: a variance of 32/6; each axis has four heights; F(2, 6) is 5.143.
  ASSERT_TRUE(s.parResidus);
  EXPECT_NEAR(s.parResidus->a, std::sqrt(32.0 / 6 / 4 * 2 * 5.14325), 1E-2);
  EXPECT_NEAR(s.ellipse.a, std::sqrt(5.991464547 / 4), 1E-3);
}

TEST(Fix, AWatchThatIsSlowByTwentySecondsMovesItFiveMinutesWest) {
  ViseeTypee typee;
  typee.date = {2026, 6, 21, 22, 0, 0};
  std::vector<ViseePoint> justes;
  std::vector<ViseePoint> corrigees;
  for (const int rang : {10, 60, 120, 180}) {
    typee.astre = {GenreAstre::Etoile, rang};
    typee.lecture.lecture = VueDe(PlaceDe(PrepareCiel(MomentDe(typee.date)), typee.astre), {40, 10, 0}).hauteur;
    typee.lecture.lecture += Refraction(typee.lecture.lecture, 1010, 10) / 60;
    justes.push_back({PrepareHauteur(typee, ResultatDit{0, 30, 100, 5}), rang, true, 1});
    corrigees.push_back({PrepareHauteur(typee, ResultatDit{0, 30, 100, 5}, 20), rang, true, 1});
  }
  ReglagesPoint r = Immobile();
  r.heure = justes[0].hauteur.utc;
  r.theorie = TheoriePoint::Actuelle;
  const LieuNavire avant = FaitPoint(justes, r).solution->lieu;
  const LieuNavire apres = FaitPoint(corrigees, r).solution->lieu;
  EXPECT_NEAR((apres.longitude - avant.longitude) * 60, -20 * 15.041067 / 60, 1E-3);
  EXPECT_NEAR(apres.latitude, avant.latitude, 1E-4);
  const double dite = corrigees[0].hauteur.dite->sous.longitude - justes[0].hauteur.dite->sous.longitude;
  EXPECT_NEAR(dite * 60, -20 * 15.041067 / 60, 1E-4) << "the told line's too";
}

TEST(Fix, FromLinesAsDrawnPassesThroughTheEndOfAnIntercept) {
  // Two told lines from different estimated positions: the fix lies at their intercepts from each.
  ViseeTypee typee;
  typee.date = {2026, 6, 21, 12, 0, 0};
  typee.lecture.lecture = 40;
  std::vector<ViseePoint> visees;
  const auto ajoute = [&](const LieuNavire &estime, double azimut) {
    typee.station = {estime.latitude, estime.longitude, 2};
    visees.push_back({PrepareHauteur(typee, ResultatDit{0, 40, azimut, 12}), 0, true, {}});
  };
  ajoute(GrandCercle(kLieu, 90, -0.2), 90);
  ajoute(GrandCercle(kLieu, 0, -0.2), 0);
  ReglagesPoint r = Immobile();
  r.heure = visees[0].hauteur.utc;
  EXPECT_LT(Milles(FaitPoint(visees, r).solution->lieu, kLieu), 0.01);
}

TEST(Fix, FiguresThatAreNoneNeverFail) {
  std::vector<ViseePoint> visees = Tour({0, 90, 200});
  ReglagesPoint r = Immobile();
  r.doutes = {std::nan(""), -1, INFINITY, std::nan("")};
  EXPECT_TRUE(FaitPoint(visees, r).solution);
  r.route.jambes.push_back({kMidi, std::nan(""), 5});
  EXPECT_TRUE(FaitPoint(visees, r).solution) << "all at the time of the fix: the course doesn't matter";
  r.heure = Heure(1);
  EXPECT_FALSE(FaitPoint(visees, r).solution);
  visees[0].hauteur.dite->observee = std::nan("");
  EXPECT_FALSE(FaitPoint(visees, Immobile()).solution);
  ViseeTypee typee;
  typee.date = {2026, 2, 30, 12, 0, 0};
  EXPECT_THROW(PrepareHauteur(typee, {}), Refus);
  typee.date = {1850, 2, 1, 12, 0, 0};
  typee.astre = {GenreAstre::Lune, 0};
  EXPECT_EQ(PrepareHauteur(typee, {}).refus, RaisonRefus::LuneHorsTable);
  EXPECT_FALSE(PrepareHauteur(typee, ResultatDit{0, std::nan(""), 0, 0}).dite);
}

} // namespace
} // namespace velmaris
