#include "shell/complements/Verification.hpp"

#include "foundations/TexteNombre.hpp"
#include "shell/complements/LignesLoin.hpp"
#include "shell/complements/MotsControle.hpp"
#include "shell/visee/ChampsJuges.hpp"
#include "shell/visee/ReduitVisee.hpp"
#include "tests/shell/bureau/OutilsBureau.hpp"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <numeric>

/// The check of a sight in the windows: the line under the results, the check sheet, the marked rows.
namespace velmaris::essais {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

class Verifie : public Programme {
protected:
  Verifie() { DemarreSansCarte(); }

  /// What is done after each event.
  void Accorde() {
    JugeChamps(bureau);
    AccordeVerification(bureau);
  }

  void Vise() {
    TapeVisee();
    Calcule();
    Accorde();
  }

  /// A sight whose intercept by today's sky is small: the reading that the place itself gives.
  void ViseJuste() {
    Vise();
    const double manque = ControleDuResultat(bureau)->actuel->intercept;
    const auto secondes = static_cast<int>(std::lround((65 * 60 + 34 + 38 / 60.0 - manque) * 60));
    Tape(d.Text13, std::to_string(secondes / 3600));
    Tape(d.Text12, std::to_string(secondes / 60 % 60));
    Tape(d.Text25, std::to_string(secondes % 60));
    Calcule();
    Accorde();
  }

  std::size_t LigneDe(const std::string &nom) const {
    const auto &noms = d.Combo6.liste;
    return static_cast<std::size_t>(std::find(noms.begin(), noms.end(), nom) - noms.begin());
  }

  void ChoisitEtoile(const std::string &nom) {
    ClicOption(bureau, d.Option7[3]);
    PoseRang(bureau, d.Combo6, static_cast<int>(LigneDe(nom)), kNombreEtoiles);
  }

  Fiche &f = bureau.fiche;
};

TEST_F(Verifie, TheLineTellsTodaysInterceptAndHowFarTheToldOneLies) {
  Accorde();
  EXPECT_FALSE(d.LabControle[0].visible) << "nothing is reduced yet";
  Vise();
  EXPECT_TRUE(d.LabControle[0].visible);
  const FicheControle &controle = *ControleDuResultat(bureau);
  const double ecart = controle.actuel->intercept - bureau.visee.Intercept;
  EXPECT_NEAR(controle.ecart, ecart, 1E-9);
  EXPECT_EQ(d.LabControle[0].legende,
            "Contrôle : " + Format(controle.actuel->intercept, "0.0") + " '  (" + AvecSigne(ecart) + ")");
  EXPECT_EQ(d.LabControle[1].legende, "= accord");
}

TEST_F(Verifie, TheToldFiguresAreTheSameWithTheCheckAndWithout) {
  TapeVisee();
  Calcule();
  const AffichageDroite sans = bureau.affichage;
  const ValeursVisee valeurs = bureau.visee;
  Accorde();
  ClicControle(bureau, d.PU_Fiche);
  Accorde();
  EXPECT_EQ(bureau.affichage, sans);
  EXPECT_EQ(bureau.visee, valeurs);
  Calcule();
  EXPECT_EQ(bureau.affichage, sans);
}

TEST_F(Verifie, EachGradeHasASignAndAWord) {
  const std::array<std::string, 4> mots = {"? pas de chiffre d'aujourd'hui", "= accord", "≈ manière", "! attention"};
  for (std::size_t i = 0; i < mots.size(); ++i) {
    EXPECT_EQ(MotsDuGrade(f, static_cast<GradeControle>(i)), mots.at(i));
  }
}

TEST_F(Verifie, AStarWhoseRowLiesOffItWarnsAndNamesTheCause) {
  TapeVisee();
  ChoisitEtoile("Alphard");
  ASSERT_TRUE(EstLoin(bureau, LigneDe("Alphard") + 1));
  Calcule();
  Accorde();
  EXPECT_THAT(d.LabControle[1].legende, StartsWith("! "));
  ClicControle(bureau, d.LabControle[1]);
  Accorde();
  EXPECT_TRUE(std::any_of(f.Causes.begin(), f.Causes.end(), [](const Controle &ligne) {
    return ligne.legende.starts_with("ligne de l'étoile loin d'elle : ");
  }));
}

TEST_F(Verifie, ATimeThatIsNoneHasNoFigureOfTodayAndTheReasonIsTold) {
  Vise();
  SaisitTexte(bureau, d.TDate[1], "2");
  SaisitTexte(bureau, d.TDate[0], "31");
  Calcule();
  Accorde();
  EXPECT_EQ(d.LabControle[0].legende + "|" + d.LabControle[1].legende, "Contrôle : -|? la date n'existe pas");
  EXPECT_FALSE(d.Affichage_Intercept.legende.empty()) << "the told figure stands";
}

TEST_F(Verifie, ASlipIsAskedForInTheLineAndNamedInTheSheet) {
  ViseJuste();
  ASSERT_NEAR(ControleDuResultat(bureau)->actuel->intercept, 0, 0.1);
  Tape(d.Text3, "13");
  Calcule();
  Accorde();
  EXPECT_THAT(d.LabControle[1].legende, HasSubstr("faute de saisie ?"));
  ClicControle(bureau, d.PU_Fiche);
  Accorde();
  EXPECT_TRUE(std::any_of(f.Glissades.begin(), f.Glissades.end(), [](const Controle &ligne) {
    return ligne.legende.starts_with("heure : -1 h ; il resterait ");
  }));
}

TEST_F(Verifie, AnAzimuthThatIsOffIsAWarningWhateverTheIntercept) {
  // At the upper passage the told azimuth is that of the sight before.
  Vise();
  bureau.verification.visee->dit.azimut += 90;
  AccordeVerification(bureau);
  EXPECT_EQ(ControleDuResultat(bureau)->grade, GradeControle::Accord) << "the intercept agrees";
  EXPECT_EQ(d.LabControle[1].legende, "! attention : Azimut");
  bureau.verification.visee->dit.azimut += 270.5;
  AccordeVerification(bureau);
  EXPECT_EQ(d.LabControle[1].legende, "= accord") << "half a degree, over north";
}

TEST_F(Verifie, ABodyBelowTheHorizonIsAWarningAndALargeInterceptAsksForASlip) {
  Vise();
  Tape(d.Text3, "23");
  Calcule();
  Accorde();
  EXPECT_EQ(d.LabControle[1].legende, "! attention : horizon");
  Tape(d.Text3, "16");
  Calcule();
  Accorde();
  EXPECT_GT(std::fabs(ControleDuResultat(bureau)->actuel->intercept), 10);
  EXPECT_THAT(d.LabControle[1].legende, HasSubstr("faute de saisie ?"));
}

TEST_F(Verifie, TheCompactLayoutTellsTheCauseInShort) {
  Vise();
  EXPECT_EQ(JugementDuControle(f, *ControleDuResultat(bureau), true), "= accord");
  Tape(d.Text3, "23");
  Calcule();
  EXPECT_EQ(JugementDuControle(f, *ControleDuResultat(bureau), true), "! horizon");
  EXPECT_EQ(ChiffresDuControle(f, *ControleDuResultat(bureau), true).find("Contrôle"), std::string::npos);
}

TEST_F(Verifie, ItAgesWithItsResults) {
  Vise();
  EXPECT_EQ(d.LabControle[0].alerte, "");
  Tape(d.Text12, "35");
  Accorde();
  EXPECT_EQ(d.LabControle[0].alerte, d.Affichage_Intercept.alerte);
  ClicControle(bureau, d.PU_Fiche);
  Accorde();
  EXPECT_EQ(f.Verdict.alerte, d.Affichage_Intercept.alerte);
  EXPECT_EQ(f.Dit[14].alerte, d.Affichage_Intercept.alerte);
  EXPECT_NE(d.LabControle[0].alerte, "");
}

TEST_F(Verifie, ResultsThatComeBackBringTheirCheckWithThem) {
  Vise();
  const std::string avant = d.LabControle[0].legende;
  const EtatResultat resultat = PriseResultat(bureau);
  Tape(d.Text12, "44");
  Calcule();
  Accorde();
  EXPECT_NE(d.LabControle[0].legende, avant);
  RemetResultat(bureau, resultat);
  Accorde();
  EXPECT_EQ(d.LabControle[0].legende, avant);
}

TEST_F(Verifie, ASightThatFailsHasNone) {
  Vise();
  TapeVisee();
  ChoisitEtoile("Altair");
  SaisitTexte(bureau, d.Text10, ""); // a star's eye height must be a number
  EXPECT_ANY_THROW(Calcule());
  Accorde();
  EXPECT_FALSE(d.LabControle[0].visible);
}

TEST_F(Verifie, TheSheetSetsTheStepsSideBySideWithTheirReasons) {
  Vise();
  EXPECT_TRUE(ToucheControle(bureau, 'I'));
  Accorde();
  ASSERT_TRUE(f.cadre.visible);
  EXPECT_EQ(f.cadre.titre, "Fiche de contrôle");
  EXPECT_THAT(f.Verdict.legende, StartsWith("Soleil"));
  const FicheControle &controle = *ControleDuResultat(bureau);
  ASSERT_EQ(controle.lignes.size(), kEtapesFiche);
  for (std::size_t i = 0; i < kEtapesFiche; ++i) {
    EXPECT_EQ(static_cast<std::size_t>(controle.lignes[i].etape), i) << "the captions stand in this order";
    EXPECT_EQ(f.Raison.at(i).legende.empty(), !controle.lignes[i].raison) << f.Etape.at(i).legende;
    EXPECT_FALSE(f.Actuel.at(i).legende.empty()) << f.Etape.at(i).legende;
  }
  EXPECT_EQ(f.Dit[4].legende, "65° 34.6'") << "65° 34' 38''";
  EXPECT_EQ(f.Dit[14].legende, Format(bureau.visee.Intercept, "0.0") + " '");
}

TEST_F(Verifie, ANegativeAngleHasOneSign) {
  Vise();
  Tape(d.TDate[0], "21");
  Tape(d.TDate[1], "12");
  Calcule();
  ClicControle(bureau, d.PU_Fiche);
  Accorde();
  EXPECT_THAT(f.Actuel[2].legende, StartsWith("-23° 26.")) << "the Sun's declination at the solstice";
}

TEST_F(Verifie, TheSheetFollowsTheSightAndTheLanguage) {
  ClicControle(bureau, d.PU_Fiche);
  Accorde();
  EXPECT_EQ(f.Verdict.legende, "Aucune visée n'est encore calculée");
  EXPECT_FALSE(f.Command1.actif);
  Vise();
  EXPECT_TRUE(f.Command1.actif);
  ClicControle(bureau, d.Image10[1]);
  Accorde();
  EXPECT_THAT(d.LabControle[0].legende, StartsWith("Check: "));
  EXPECT_THAT(f.Verdict.legende, StartsWith("Sun   = agreement"));
  EXPECT_EQ(f.cadre.titre, "Check sheet");
  ClicControle(bureau, f.Command2);
  EXPECT_FALSE(f.cadre.visible);
}

TEST_F(Verifie, TheSheetIsCopiedAsARowAStep) {
  std::string copie;
  bureau.ports.copieTexte = [&](const std::string &texte) { copie = texte; };
  Vise();
  ClicControle(bureau, d.PU_Fiche);
  Accorde();
  ClicControle(bureau, f.Command1);
  EXPECT_THAT(copie, HasSubstr("Intercept\t" + f.Dit[14].legende + "\t" + f.Actuel[14].legende + "\t"));
  EXPECT_THAT(copie, HasSubstr("Réfraction\t"));
  EXPECT_THAT(copie, StartsWith("21/06/2026 12:05:30 UTC  47° 30' N  05° 10' W\n"));
}

TEST_F(Verifie, ASettingActsAtOnceAndIsKept) {
  Tape(d.Text13, "10");
  Vise();
  Tape(d.Text13, "10");
  Calcule();
  ClicControle(bureau, d.PU_Fiche);
  Accorde();
  const double avant = ControleDuResultat(bureau)->actuel->Ho;
  SaisitTexte(bureau, f.Text1[0], "1040");
  Accorde();
  // The almanac's factor on some 5.3' of refraction at ten degrees.
  EXPECT_NEAR((avant - ControleDuResultat(bureau)->actuel->Ho) * 60, 5.3 * 30 / 1010, 0.02);
  EXPECT_EQ(Reglage("ControlePression"), "1040");
  LitReglagesVerification(bureau);
  EXPECT_EQ(bureau.verification.reglages.pression, 1040);
}

TEST_F(Verifie, ASettingOutOfItsRangeIsMarkedToldAndNotUsed) {
  ClicControle(bureau, d.PU_Fiche);
  SaisitTexte(bureau, f.Text1[0], "10400");
  EXPECT_NE(f.Text1[0].alerte, "");
  EXPECT_THAT(bureau.etat.avis, HasSubstr("800 à 1100"));
  EXPECT_EQ(bureau.verification.reglages.pression, 1010);
  EXPECT_EQ(Reglage("ControlePression"), "absent");
  SaisitTexte(bureau, f.Text1[0], "");
  EXPECT_EQ(f.Text1[0].alerte, "");
}

TEST_F(Verifie, TheCheckIsWorkedOutOnceForASight) {
  Vise();
  const FicheControle *avant = ControleDuResultat(bureau);
  bureau.verification.fiche.ecart = 77; // would be gone if it were made anew
  EXPECT_EQ(ControleDuResultat(bureau), avant);
  EXPECT_EQ(avant->ecart, 77);
  BougeCurseur(bureau, d.HScroll1, 5000);
  EXPECT_EQ(ControleDuResultat(bureau)->ecart, 77) << "a redraw changes no sight";
}

class Marques : public Verifie {};

TEST_F(Marques, RowsOverFiveMinutesFromTheirStarBearASignInTheListsAndTheirNamesStay) {
  ClicOption(bureau, d.Option7[3]);
  ASSERT_EQ(d.Combo6.loin.size(), d.Combo6.liste.size());
  EXPECT_TRUE(d.Combo6.loin[LigneDe("Alphard")]);
  EXPECT_FALSE(d.Combo6.loin[LigneDe("Altair")]);
  ASSERT_EQ(d.Combo8.loin.size(), d.Combo8.liste.size());
  for (std::size_t i = 0; i < d.Combo8.liste.size(); ++i) {
    const auto ligne = std::find(d.Combo6.liste.begin(), d.Combo6.liste.end(), d.Combo8.liste[i]);
    EXPECT_EQ(d.Combo8.loin[i], d.Combo6.loin[static_cast<std::size_t>(ligne - d.Combo6.liste.begin())]);
  }
  EXPECT_FALSE(EstLoin(bureau, 0));
  EXPECT_FALSE(EstLoin(bureau, 247));
}

TEST_F(Marques, ChoosingSuchAStarTellsHowFarItsRowLies) {
  ChoisitEtoile("Altair");
  EXPECT_EQ(bureau.etat.avis, "");
  ChoisitEtoile("Alphard");
  EXPECT_THAT(bureau.etat.avis, StartsWith("Alphard : sa ligne de la table est loin de l'étoile, de "));
}

TEST_F(Marques, TheSkyMarksThemToo) {
  ClicControle(bureau, d.Command13);
  for (std::size_t rang = 1; rang <= kEtoilesCiel; ++rang) {
    EXPECT_EQ(bureau.ciel.Laet.at(rang).marque.empty(), !EstLoin(bureau, rang)) << rang;
    EXPECT_EQ(bureau.ciel.Shet.at(rang).marque.empty(), !EstLoin(bureau, rang)) << rang;
  }
}

} // namespace
} // namespace velmaris::essais
