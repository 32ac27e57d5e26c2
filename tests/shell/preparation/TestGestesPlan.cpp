#include "OutilsPlan.hpp"

#include "shell/Demarrage.hpp"
#include "shell/preparation/CalculPlan.hpp"
#include "shell/preparation/DessinPlan.hpp"

#include <cmath>
#include <filesystem>
#include <limits>
#include <vector>

/// What the plan's window says of its gestures, the best moment of a night, and the names of its chart.
namespace velmaris::essais {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/// The names on a chart of the sky.
std::vector<const TexteTrace *> Noms(const Surface &carte) {
  std::vector<const TexteTrace *> noms;
  for (const Trace &trace : carte.traces) {
    const auto *texte = std::get_if<TexteTrace>(&trace);
    if (texte != nullptr && texte->texte.size() > 2 && texte->texte.back() != '\xB0') {
      noms.push_back(texte);
    }
  }
  return noms;
}

TEST_F(PlanFait, UndoInItsWindowTakesBackWhatAClickPutIntoThePanel) {
  OuvrePlan("21/06/2026", "22:30");
  plan.choisi = plan.vue.astres[Etoile("Vega")].astre;
  const Observation avant = LitPanneau(d);
  ClicControle(bureau, pr.Prend);
  ASSERT_EQ(d.Combo6.texte, "Vega");
  EXPECT_TRUE(RevientDans(bureau, kFenetrePreparation, false));
  AccordePreparation(bureau);
  EXPECT_EQ(LitPanneau(d).corps, avant.corps);
  EXPECT_THAT(pr.LabAvis[0].legende, HasSubstr(bureau.etat.TexteAnnule.legende)) << "the main window lies below";
  EXPECT_TRUE(RevientDans(bureau, kFenetrePreparation, true));
  EXPECT_EQ(d.Combo6.texte, "Vega");
  EXPECT_FALSE(RevientDans(bureau, kFenetreFSelect, false));
}

TEST_F(PlanFait, APageThatIsWrittenIsToldInItsOwnWindowAndTheWindowComesBack) {
  OuvrePlan("21/06/2026", "21:45");
  bureau.ports.image = [](const Surface &, FormeImage) { return std::string("page"); };
  Jouera([this] { Donne("soir"); });
  bureau.premierPlan = {};
  ClicControle(bureau, pr.Command2[0]);
  AccordePreparation(bureau);
  EXPECT_TRUE(std::filesystem::exists(lieu / "soir.pdf"));
  EXPECT_EQ(pr.LabAvis[0].legende, pr.TexteEcrit.legende + (lieu / "soir.pdf").string());
  EXPECT_EQ(bureau.premierPlan, kFenetrePreparation);
  bureau.premierPlan = {};
  Jouera([this] { ClicControle(bureau, f.Quitter); });
  ClicControle(bureau, pr.Command2[0]);
  EXPECT_EQ(bureau.premierPlan, kFenetrePreparation) << "given up too";
}

TEST_F(PlanFait, AFolderThatIsNotThereAndAnEndingThatIsNotTakenAreTold) {
  OuvrePlan("21/06/2026", "21:45");
  bureau.ports.image = [](const Surface &, FormeImage) { return std::string("page"); };
  boites.clear();
  Jouera([this] { Donne("absent/soir.pdf"); });
  ClicControle(bureau, pr.Command2[0]);
  EXPECT_TRUE(restee) << "it can be mended at once";
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_THAT(boites[0].texte, AllOf(HasSubstr(f.TexteSansDossier.legende), HasSubstr("absent/soir.pdf")));
  EXPECT_EQ(boites[0].fenetre, kFenetreFSelect);
  boites.clear();
  Jouera([this] { Donne("soir.txt"); });
  ClicControle(bureau, pr.Command2[0]);
  AccordePreparation(bureau);
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_THAT(boites[0].texte, HasSubstr(".pdf"));
  EXPECT_EQ(boites[0].fenetre, kFenetrePreparation);
  EXPECT_THAT(pr.LabAvis[0].legende, HasSubstr(pr.TexteNonEcrit.legende));
  boites.clear();
  std::filesystem::create_directories(lieu / "nuit.pdf");
  Jouera([this] { Donne("nuit.pdf"); });
  ClicControle(bureau, pr.Command2[0]);
  ASSERT_EQ(boites.size(), 1U) << "a name that can't be written";
  EXPECT_EQ(boites[0].icone, Icone::Erreur);
}

TEST_F(PlanFait, AnUnknownBodyWhoseFieldsAreBothRefusedIsToldByTheRefusal) {
  OuvrePlan("21/06/2026", "22:30");
  SaisitTexte(bureau, pr.Text5[0], "31 99");
  SaisitTexte(bureau, pr.Text5[1], "400");
  AccordePreparation(bureau);
  EXPECT_THAT(pr.Label13.legende, AllOf(HasSubstr("31 99"), HasSubstr(pr.TexteHors.legende)));
  SaisitTexte(bureau, pr.Text5[0], "89");
  SaisitTexte(bureau, pr.Text5[1], "");
  AccordePreparation(bureau);
  EXPECT_EQ(pr.Label13.legende, pr.TexteSansInconnu.legende);
}

TEST_F(PlanFait, AStarByDayIsNotSaidToBeLostInTheTwilight) {
  OuvrePlan("21/06/2026", "14:00");
  const std::string mots =
      Cellule(pr.Astres,
              static_cast<std::size_t>(std::find(plan.montres.begin(), plan.montres.end(), plan.montres.back()) -
                                       plan.montres.begin()),
              6);
  EXPECT_EQ(mots, pr.TextePerduJour.legende);
  VaA(plan.journee->fuseau * 60 + 21 * 60 + 20);
  AccordePreparation(bureau);
  bool crepuscule = false;
  for (std::size_t i = 0; i < pr.Astres.tableau.lignes; ++i) {
    EXPECT_NE(Cellule(pr.Astres, i, 6), pr.TextePerduJour.legende);
    crepuscule = crepuscule || Cellule(pr.Astres, i, 6) == pr.MotRaison[2].legende;
  }
  EXPECT_TRUE(crepuscule);
}

TEST_F(PlanFait, TheBestMomentOfEachTimeForStarsIsTheSmallestTraceOfAllItsMinutes) {
  OuvrePlan();
  ASSERT_EQ(plan.meilleurs.size(), plan.journee->fenetres.size());
  for (std::size_t i = 0; i < plan.meilleurs.size(); ++i) {
    double moindre = std::numeric_limits<double>::infinity();
    const FenetrePrise &prise = plan.journee->fenetres[i];
    for (InstantUTC utc = prise.debut; SecondesEntre(utc, prise.fin) > 0; utc = PlusTard(utc, 20)) {
      const CielDuPlan vue = RegardeCiel(*plan.ciel, plan.demande.navire, utc, plan.demande.reglages);
      for (const auto &jeux : ChoisitJeux(vue, plan.demande.jeux)) {
        moindre = jeux.empty() ? moindre : std::min(moindre, jeux.front().trace);
      }
    }
    EXPECT_NEAR(plan.meilleurs[i].trace / moindre, 1, 0.02) << i;
    EXPECT_TRUE(pr.Mieux.at(i).visible);
    ClicControle(bureau, pr.Mieux.at(i));
    AccordePreparation(bureau);
    EXPECT_LT(std::fabs(SecondesEntre(plan.instant, plan.meilleurs[i].utc)), 31);
    EXPECT_THAT(pr.Mieux.at(i).legende, HasSubstr(TexteHeureMinute(plan.meilleurs[i].utc)));
  }
}

TEST_F(PlanFait, OtherLimitsOfTheSetsLookForOtherBestMoments) {
  OuvrePlan();
  ASSERT_FALSE(plan.meilleurs.empty());
  const double avant = plan.meilleurs.front().trace;
  SaisitTexte(bureau, pr.Text3[1], "1.4");
  EXPECT_NEAR(plan.meilleurs.front().trace, 4 * avant, 0.1 * avant) << "twice the error of an altitude";
  SaisitTexte(bureau, pr.Text3[0], "-2");
  AccordePreparation(bureau);
  EXPECT_THAT(plan.meilleurs, IsEmpty());
  EXPECT_FALSE(pr.Mieux[0].visible);
}

TEST_F(PlanFait, NamesOnTheChartLieInsideTheHorizonAndNoneOverAnother) {
  for (const int minute : {120, 240, 1320, 1380}) {
    OuvrePlan();
    VaA(minute);
    AccordePreparation(bureau);
    const Surface &s = pr.dessinCarte;
    const Point c{s.largeur / 2, s.hauteur / 2};
    const double rayon = c.y - PlaceSurCarte(s, 0, 0, 0).y;
    const auto noms = Noms(s);
    EXPECT_GT(noms.size(), 5U) << minute;
    for (std::size_t i = 0; i < noms.size(); ++i) {
      const auto largeur = [&](const TexteTrace &t) { return bureau.ports.largeurTexte(t.texte, 9, t.police.gras); };
      const Point p = noms[i]->position;
      for (const double x : {p.x, p.x + largeur(*noms[i])}) {
        for (const double y : {p.y, p.y + 200}) {
          EXPECT_LT(std::hypot(x - c.x, y - c.y), rayon) << noms[i]->texte;
        }
      }
      for (std::size_t j = 0; j < i; ++j) {
        const Point q = noms[j]->position;
        EXPECT_FALSE(p.x < q.x + largeur(*noms[j]) && q.x < p.x + largeur(*noms[i]) && std::fabs(p.y - q.y) < 200)
            << noms[i]->texte << " " << noms[j]->texte;
      }
    }
  }
}

TEST_F(PlanFait, MoonAndPlanetsHaveTheirNamesLowOrNot) {
  OuvrePlan("21/06/2026", "21:50");
  std::string mots;
  for (const TexteTrace *nom : Noms(pr.dessinCarte)) {
    mots += nom->texte + "\n";
  }
  for (const std::size_t rang : plan.montres) {
    const AstreDuPlan &astre = plan.vue.astres[rang];
    if (astre.astre.genre != GenreAstre::Etoile) {
      EXPECT_THAT(mots, HasSubstr(NomDAstre(bureau, astre.astre))) << astre.apparente;
    }
  }
}

/// Two stars side by side: there is room for one name, whichever is listed first.
TEST_F(PlanFait, TheBrighterOfTwoNeighboursHasItsName) {
  CielDuPlan ciel;
  for (int i = 0; i < 9; ++i) {
    AstreDuPlan astre;
    astre.astre = {GenreAstre::Etoile, i + 1};
    astre.apparente = 45;
    astre.azimut = 100 + 0.1 * i;
    astre.magnitude = i == 4 ? 1.0 : 2 + 0.1 * i;
    ciel.astres.push_back(astre);
  }
  CarteDuPlan carte;
  carte.astres = {0, 1, 2, 3, 4, 5, 6, 7, 8};
  carte.nom = [](const Astre &astre) { return "Etoile bien longue " + std::to_string(astre.rang); };
  Surface s;
  s.largeur = s.hauteur = 5700;
  DessineCarte(s, ciel, carte);
  const auto noms = Noms(s);
  ASSERT_FALSE(noms.empty());
  EXPECT_LT(noms.size(), 9U);
  EXPECT_EQ(noms.front()->texte, "Etoile bien longue 5");
  ciel.astres[4].magnitude = 4;
  DessineCarte(s, ciel, carte);
  for (const TexteTrace *nom : Noms(s)) {
    EXPECT_NE(nom->texte, "Etoile bien longue 5") << "a faint star has no name";
  }
}

TEST_F(PlanFait, AComplaintGoesWithItsPageItsWindowAndItsLanguage) {
  OuvrePlan();
  pr.Onglets1.rang = static_cast<int>(PagePlan::Inconnu);
  Declenche(bureau, pr.Onglets1, Evenement::Clic);
  SaisitTexte(bureau, pr.Text5[1], "400");
  AccordePreparation(bureau);
  ASSERT_THAT(pr.LabAvis[0].legende, HasSubstr("400"));
  Image10_Click(bureau, 1);
  AccordePreparation(bureau);
  EXPECT_THAT(pr.LabAvis[0].legende, HasSubstr(pr.TexteHors.legende + pr.Text5[1].infobulle));
  pr.Onglets1.rang = static_cast<int>(PagePlan::Ciel);
  Declenche(bureau, pr.Onglets1, Evenement::Clic);
  AccordePreparation(bureau);
  EXPECT_THAT(pr.LabAvis[0].legende, IsEmpty());
  ClicControle(bureau, pr.Command2[1]);
  EXPECT_THAT(pr.Text5[1].alerte, IsEmpty());
}

} // namespace
} // namespace velmaris::essais
