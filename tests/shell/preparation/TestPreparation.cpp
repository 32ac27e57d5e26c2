#include "OutilsPlan.hpp"

#include "shell/preparation/DessinPlan.hpp"
#include "shell/preparation/EvenementsPlan.hpp"
#include "shell/preparation/LecturePlan.hpp"
#include "shell/preparation/PagePlan.hpp"

#include <cmath>
#include <limits>
#include <variant>

/// The plan's window without a screen.
namespace velmaris::essais {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

TEST_F(PlanFait, TheKeyAndTheMenuOpenItAndClosingPutsItAway) {
  EXPECT_TRUE(ToucheControle(bureau, 'K'));
  EXPECT_TRUE(pr.cadre.visible);
  EXPECT_EQ(bureau.premierPlan, kFenetrePreparation);
  ClicControle(bureau, pr.Command2[1]);
  EXPECT_FALSE(pr.cadre.visible);
  EXPECT_EQ(bureau.premierPlan, kFenetreDonnees);
}

TEST_F(PlanFait, ItBeginsWithThePanelsPositionEyeAndIndex) {
  Tape(d.Text8, "33");
  Tape(d.Text9, "30");
  ClicOption(bureau, d.OptN[1]);
  Tape(d.Text6, "018");
  Tape(d.Text7, "15");
  ClicOption(bureau, d.OptE[0]);
  Tape(d.Text10, "3,5");
  Tape(d.Text11, "-1,2");
  ClicControle(bureau, d.PU_Preparation);
  EXPECT_NEAR(plan.demande.navire.lieu.latitude, -33.5, 1E-9);
  EXPECT_NEAR(plan.demande.navire.lieu.longitude, 18.25, 1E-9);
  EXPECT_EQ(plan.demande.navire.hauteurOeil, 3.5);
  EXPECT_EQ(plan.demande.reglages.sextant.collimation, -1.2);
}

TEST_F(PlanFait, TheDayIsThatOfZoneTimeAndTheHourFallsIntoIt) {
  for (const char *longitude : {"4 44.1 W", "179 W", "179 E", "90 E", "120 W"}) {
    for (const char *heure : {"00:10", "11:50", "23:40"}) {
      ClicControle(bureau, d.PU_Preparation);
      Pose({"31/12/2026", heure, "20 N", longitude});
      const InstantUTC debut = DebutDuJour(plan.demande.jour, plan.demande.navire);
      const double depuis = SecondesEntre(debut, plan.demande.navire.heure);
      EXPECT_GE(depuis, 0) << longitude << heure;
      EXPECT_LT(depuis, 86400) << longitude << heure;
      EXPECT_EQ(TexteHeureMinute(plan.demande.navire.heure), heure);
    }
  }
}

TEST_F(PlanFait, TheDayShowsItsEventsInTheirOrderAndWhatIsNotSeenAtTheEnd) {
  OuvrePlan();
  const std::vector<EvenementDuPlan> evenements = EvenementsDuJour(*plan.journee);
  EXPECT_GE(evenements.size(), kGenresEvenement);
  EXPECT_EQ(pr.Jour.tableau.lignes, evenements.size());
  bool manque = false;
  for (std::size_t i = 0; i < evenements.size(); ++i) {
    manque = manque || !evenements[i].moment;
    EXPECT_EQ(evenements[i].moment.has_value(), !manque) << i;
    EXPECT_EQ(Cellule(pr.Jour, i, 1).empty(), manque) << i;
  }
  EXPECT_THAT(pr.Label5.legende, HasSubstr("UTC"));
  EXPECT_THAT(pr.Label2.legende, HasSubstr("UTC"));
}

TEST_F(PlanFait, ASummerNightOfTheFarNorthIsToldInWords) {
  OuvrePlan();
  Pose({"21/06/2026", "12:00", "72 N", "20 E"});
  AccordePreparation(bureau);
  EXPECT_TRUE(plan.journee->soleil.coucher.moments.empty());
  EXPECT_EQ(pr.Label5.legende, pr.TexteSansPrise.legende);
  EXPECT_FALSE(Cellule(pr.Jour, pr.Jour.tableau.lignes - 1, 4).empty());
}

TEST_F(PlanFait, TheSliderStopsAtTwilightsAndStepsLeaveThem) {
  OuvrePlan();
  const std::vector<int> minutes = MinutesDesEvenements(*plan.journee);
  ASSERT_FALSE(minutes.empty());
  const int minute = minutes.back();
  VaA(minute > 700 ? minute - 300 : minute + 300);
  VaA(minute + 4);
  EXPECT_EQ(pr.HScroll1.valeur, minute);
  ClicControle(bureau, pr.Pas[3]);
  EXPECT_EQ(pr.HScroll1.valeur, minute + 1);
  ClicControle(bureau, pr.Pas[4]);
  EXPECT_EQ(pr.HScroll1.valeur, minute + 11);
  ClicControle(bureau, pr.Pas[0]);
  EXPECT_EQ(pr.HScroll1.valeur, minute);
  VaA(minute - 1);
  EXPECT_EQ(pr.HScroll1.valeur, minute - 1) << "a step of the key";
  ClicControle(bureau, pr.Pas[5]);
  EXPECT_EQ(pr.HScroll1.valeur, minute);
}

TEST_F(PlanFait, AllBodiesOverTheHorizonAreListedTheBrightestFirst) {
  OuvrePlan("21/06/2026", "22:00");
  ASSERT_GT(pr.Astres.tableau.lignes, 30U);
  EXPECT_EQ(pr.Astres.tableau.lignes, plan.montres.size());
  double avant = -30;
  for (const std::size_t rang : plan.montres) {
    EXPECT_GE(plan.vue.astres[rang].magnitude, avant);
    EXPECT_FALSE(Tient(plan.vue.astres[rang].raisons, RaisonPale::SousHorizon));
    avant = plan.vue.astres[rang].magnitude;
  }
  const std::size_t tous = plan.montres.size();
  ClicCase(bureau, pr.Check2);
  EXPECT_LT(plan.montres.size(), tous);
  for (const std::size_t rang : plan.montres) {
    EXPECT_TRUE(plan.vue.astres[rang].raisons.none());
  }
}

TEST_F(PlanFait, ARowPutsItsBodyIntoThePanelAndUndoTakesItBack) {
  OuvrePlan("21/06/2026", "22:30");
  const std::size_t vega = Etoile("Vega");
  const auto ligne = std::find(plan.montres.begin(), plan.montres.end(), vega);
  ASSERT_NE(ligne, plan.montres.end());
  const Observation avant = LitPanneau(d);
  ChoisitLignes(bureau, pr.Astres, {}, static_cast<int>(ligne - plan.montres.begin()));
  ClicControle(bureau, pr.Prend);
  EXPECT_TRUE(d.Option7[3].choisi);
  EXPECT_EQ(d.Combo6.texte, "Vega");
  EXPECT_EQ(LitPanneau(d).heure, avant.heure) << "the time is the sight's own";
  ClicControle(bureau, d.PU_Annule);
  EXPECT_EQ(LitPanneau(d).corps, avant.corps);
}

TEST_F(PlanFait, AClickOnTheChartChoosesTheBodyThere) {
  OuvrePlan("21/06/2026", "22:30");
  const AstreDuPlan &astre = plan.vue.astres[Etoile("Vega")];
  PresseSurface(bureau, pr.Carte, PlaceSurCarte(pr.dessinCarte, astre.apparente, astre.azimut, 0));
  ASSERT_TRUE(plan.choisi);
  EXPECT_EQ(*plan.choisi, astre.astre);
  AccordePreparation(bureau);
  EXPECT_EQ(Cellule(pr.Astres, static_cast<std::size_t>(pr.Astres.tableau.courante), 0), "Vega");
}

TEST_F(PlanFait, TheChartHasTheZenithInTheMiddleAndDirectionsAsOnACompass) {
  Surface s;
  s.largeur = 6000;
  s.hauteur = 6000;
  const Point zenith = PlaceSurCarte(s, 90, 123, 0);
  EXPECT_NEAR(zenith.x, 3000, 1E-9);
  EXPECT_NEAR(zenith.y, 3000, 1E-9);
  EXPECT_GT(PlaceSurCarte(s, 10, 90, 0).x, 5000);
  EXPECT_LT(PlaceSurCarte(s, 10, 0, 0).y, 1000);
  EXPECT_LT(PlaceSurCarte(s, 10, 90, 90).y, 1000) << "course up";
  const double demi = 3000 - PlaceSurCarte(s, 45, 0, 0).y;
  EXPECT_NEAR(demi * 2, 3000 - PlaceSurCarte(s, 0, 0, 0).y, 1E-9) << "heights are even";
}

TEST_F(PlanFait, SetsAreOfThreeFourAndFiveAndNoneHasABodyThatIsLeftOut) {
  OuvrePlan("21/06/2026", "21:45");
  ASSERT_FALSE(plan.jeux[0].empty());
  std::size_t nombre = 0;
  for (std::size_t i = 0; i < plan.jeux.size(); ++i) {
    for (const JeuAstres &jeu : plan.jeux.at(i)) {
      ++nombre;
      EXPECT_EQ(jeu.astres.size(), kNombresDuJeu.at(i));
      for (const std::size_t rang : jeu.astres) {
        EXPECT_TRUE(plan.vue.astres[rang].raisons.none());
      }
    }
  }
  EXPECT_EQ(pr.Jeux.tableau.lignes, nombre);
  EXPECT_FALSE(pr.dessinEsquisse.traces.empty());
}

TEST_F(PlanFait, NamesOfASketchedSetStandOutsideOfItsLinesAndNoneUponALetter) {
  Surface s;
  s.largeur = s.hauteur = 6000;
  CarteDuPlan carte;
  carte.cardinaux = {"N", "E", "S", "W"};
  carte.largeur = [](const std::string &mots, const Police &) { return 100.0 * static_cast<double>(mots.size()); };
  DessineEsquisse(s, {{303, "Mizar"}, {93, "Vega"}}, carte);
  std::vector<std::string> mots;
  for (const Trace &trace : s.traces) {
    if (const auto *texte = std::get_if<TexteTrace>(&trace)) {
      mots.push_back(texte->texte);
      if (texte->texte == "1 Mizar") {
        EXPECT_LT(texte->position.x + 700, 3000 - 0.8 * 2000) << "its end lies left of the dot";
      }
      if (texte->texte == "2 Vega") {
        EXPECT_GT(texte->position.x, 3000 + 0.8 * 2000);
      }
    }
  }
  EXPECT_THAT(mots, testing::UnorderedElementsAre("N", "S", "W", "1 Mizar", "2 Vega"));
}

TEST_F(PlanFait, BodiesForALunarAreRankedByHowFastTheirDistanceMoves) {
  OuvrePlan("22/06/2026", "22:00"); // the Moon is a day past her first quarter
  EXPECT_TRUE(plan.lunaires.empty()) << "only the page that shows them asks for them";
  pr.Onglets1.rang = static_cast<int>(PagePlan::Jeux);
  Declenche(bureau, pr.Onglets1, Evenement::Clic);
  AccordePreparation(bureau);
  ASSERT_FALSE(plan.lunaires.empty());
  EXPECT_EQ(pr.Lunaires.tableau.lignes, plan.lunaires.size());
  double avant = std::numeric_limits<double>::infinity();
  bool bons = true;
  for (const CandidatLunaire &c : plan.lunaires) {
    EXPECT_TRUE(bons || c.raison) << "those that are of no use come last";
    bons = bons && !c.raison;
    if (bons) {
      EXPECT_LE(std::fabs(c.cadence), avant);
      EXPECT_GT(c.vue.hauteurAstre, 9);
      avant = std::fabs(c.cadence);
    }
  }
  EXPECT_FALSE(plan.lunaires.front().raison);
  const auto avant22 = plan.lunaires.front().vue.distance;
  ClicControle(bureau, pr.Pas[4]);
  EXPECT_NE(plan.lunaires.front().vue.distance, avant22) << "they follow the slider";
}

TEST_F(PlanFait, TheDeviationIsWhatTheVariationLeavesOfTheCompassError) {
  OuvrePlan("21/06/2026", "18:00");
  ASSERT_GE(pr.Combo1.rang, 0);
  const double azimut = plan.vue.astres[plan.compas[static_cast<std::size_t>(pr.Combo1.rang)]].azimut;
  SaisitTexte(bureau, pr.Text4[0], Dixiemes(std::round(azimut) + 5));
  SaisitTexte(bureau, pr.Text4[1], "-3");
  EXPECT_EQ(pr.Resultat[0].legende, Dixiemes(azimut) + "°");
  const double erreur = azimut - std::round(azimut) - 5;
  EXPECT_EQ(pr.Resultat[1].legende, Dixiemes(-erreur) + "° " + pr.TexteOuest.legende);
  EXPECT_EQ(pr.Resultat[2].legende, Dixiemes(-erreur - 3) + "° " + pr.TexteOuest.legende);
  SaisitTexte(bureau, pr.Text4[0], "400");
  EXPECT_THAT(pr.Text4[0].alerte, HasSubstr(pr.Text4[0].infobulle));
  EXPECT_THAT(pr.Resultat[1].legende, IsEmpty());
}

TEST_F(PlanFait, AnUnknownBodyIsFoundByItsReadingAndDirection) {
  OuvrePlan("21/06/2026", "22:30");
  const AstreDuPlan vega = plan.vue.astres[Etoile("Vega")];
  ASSERT_TRUE(vega.prereglage);
  SaisitTexte(bureau, pr.Text5[0], TexteAngleSigne(*vega.prereglage));
  SaisitTexte(bureau, pr.Text5[1], Dixiemes(vega.azimut));
  AccordePreparation(bureau);
  ASSERT_FALSE(plan.inconnus.empty());
  EXPECT_EQ(Cellule(pr.Inconnus, 0, 0), "Vega");
  ChoisitLignes(bureau, pr.Inconnus, {}, 0);
  ValideLigne(bureau, pr.Inconnus, 0);
  EXPECT_EQ(d.Combo6.texte, "Vega");
}

TEST_F(PlanFait, AFieldThatCannotBeUsedIsMarkedAndThePlanStays) {
  OuvrePlan();
  const auto avant = plan.ciel;
  SaisitTexte(bureau, pr.Text1[2], "97 N");
  AccordePreparation(bureau);
  EXPECT_THAT(pr.Text1[2].alerte, HasSubstr(pr.Text1[2].infobulle));
  EXPECT_THAT(pr.LabAvis[0].legende, HasSubstr("97 N"));
  EXPECT_EQ(plan.ciel, avant);
  SaisitTexte(bureau, pr.Text1[2], "47 N");
  AccordePreparation(bureau);
  EXPECT_EQ(pr.Text1[2].alerte, "");
  EXPECT_NE(plan.ciel, avant);
}

TEST_F(PlanFait, AnotherDayThatIsAskedForMeanwhileTakesThePlaceOfTheFirst) {
  std::vector<std::function<std::function<void()>()>> travaux;
  OuvrePlan();
  bureau.ports.travaille = [&](auto travail) { travaux.push_back(std::move(travail)); };
  SaisitTexte(bureau, pr.Text1[0], "22/06/2026");
  SaisitTexte(bureau, pr.Text1[0], "23/06/2026");
  EXPECT_TRUE(plan.enCalcul);
  ASSERT_EQ(travaux.size(), 2U);
  const auto premier = travaux[0]();
  const auto second = travaux[1]();
  second();
  const auto ciel = plan.ciel;
  premier();
  EXPECT_EQ(plan.ciel, ciel);
  EXPECT_FALSE(plan.enCalcul);
  EXPECT_EQ(CivileDe(PlusTard(plan.journee->debut, 43200)).jour, 23);
}

TEST_F(PlanFait, ThePageHasTheDayTheBodiesAndTheirReadings) {
  OuvrePlan("21/06/2026", "21:45");
  CarteDuPlan carte;
  carte.astres = plan.montres;
  carte.nom = [this](const Astre &astre) { return NomDAstre(bureau, astre); };
  const Surface page = PageDuPlan(bureau, carte);
  std::string mots;
  std::vector<Point> debuts; // of the lines of words, those of the chart not counted
  for (const Trace &trace : page.traces) {
    const auto *texte = std::get_if<TexteTrace>(&trace);
    if (texte != nullptr && texte->role.genre == GenreTexte::Libre && texte->texte.size() > 1) {
      for (const Point &autre : debuts) {
        EXPECT_FALSE(std::fabs(autre.x - texte->position.x) < 300 && std::fabs(autre.y - texte->position.y) < 180)
            << texte->texte;
      }
      debuts.push_back(texte->position);
    }
    if (texte != nullptr) {
      mots += texte->texte + "\n";
      EXPECT_LT(texte->position.y, page.hauteur);
      EXPECT_LT(texte->position.x, page.largeur);
    }
  }
  for (const Controle &evenement : pr.MotEvenement) {
    EXPECT_THAT(mots, HasSubstr(evenement.legende));
  }
  const AstreDuPlan &premier = plan.vue.astres[plan.jeux[0][0].astres[0]];
  EXPECT_THAT(mots, HasSubstr(TexteAngleSigne(*premier.prereglage)));
  EXPECT_THAT(mots, HasSubstr(pr.TextePied.legende));
}

TEST_F(PlanFait, ThePageIsWrittenAndThePlanIsKeptUntilItsDayIsOver) {
  OuvrePlan("22/06/2026", "21:45");
  bureau.ports.image = [](const Surface &surface, FormeImage forme) {
    return forme == FormeImage::Pdf && surface.largeur > 0 ? std::string("page") : std::string();
  };
  Jouera([this] { Donne("soir.pdf"); });
  ClicControle(bureau, pr.Command2[0]);
  EXPECT_EQ(ouvertures, 1);
  Bureau autre;
  Branche(autre);
  Donnees_Charge(autre, {});
  ClicControle(autre, autre.donnees.PU_Preparation);
  EXPECT_EQ(autre.preparation.Text1[2].texte, "47 10.3 N");
  temps.jour = 24;
  Bureau plusTard;
  Branche(plusTard);
  Donnees_Charge(plusTard, {});
  ClicControle(plusTard, plusTard.donnees.PU_Preparation);
  EXPECT_NE(plusTard.preparation.Text1[2].texte, "47 10.3 N");
}

TEST_F(PlanFait, NothingToldIsTouched) {
  TapeVisee();
  Calcule();
  const AffichageDroite affichage = bureau.affichage;
  const ValeursVisee visee = bureau.visee;
  const Observation panneau = LitPanneau(d);
  OuvrePlan();
  VaA(600);
  ClicControle(bureau, pr.Command2[1]);
  EXPECT_EQ(bureau.affichage, affichage);
  EXPECT_EQ(bureau.visee, visee);
  EXPECT_EQ(LitPanneau(d), panneau);
}

} // namespace
} // namespace velmaris::essais
