#include "tests/shell/droites/OutilsDroites.hpp"

#include <algorithm>

namespace velmaris::essais {
namespace {

/// A 32-bit thousandfold in seven significant digits, by the C library.
std::string EnMilliemes(float valeur) {
  std::array<char, 32> texte{};
  std::snprintf(texte.data(), texte.size(), "%.7g", static_cast<double>(static_cast<float>(valeur * 1000.0)));
  return texte.data();
}

class Memoire : public QuatreDroites {
protected:
  void SetUp() override { DemarreSansCarte(); }

  void ChoisitCorps(int corps) { PoseChoix(bureau, d.Option7, corps); }

  /// A sight whose every field differs from the panel's start.
  void PanneauSingulier() {
    TapeSoleil({"23", "58", "59", "12", "34", true, "145", "56", true, "78", "09", "07"});
    Tape(d.TDate[0], "31");
    Tape(d.TDate[1], "12");
    Tape(d.TDate[2], "1999");
    ClicOption(bureau, d.Option5[1]);
    ClicOption(bureau, d.Option4[1]);
    bureau.NomAstre = "Soleil";
    bureau.visee.Azimut = 123.4567F;
    bureau.visee.Intercept = -7.654321F;
  }

  /// The keys of a stored Sun sight of that panel, in the order of writing.
  static std::vector<std::string> ClesSingulieres(const std::string &ligne) {
    std::vector<std::string> cles;
    for (const auto &[champ, valeur] :
         std::vector<std::pair<std::string, std::string>>{{"AS(", "0"},
                                                          {"Bord(", "2"},
                                                          {"Hor(", "1"},
                                                          {"O4(", "1"},
                                                          {"Nom(", "Soleil"},
                                                          {"T3(", "23"},
                                                          {"T4(", "58"},
                                                          {"T5(", "59"},
                                                          {"Td0(", "31"},
                                                          {"Td1(", "12"},
                                                          {"Td2(", "1999"},
                                                          {"T6(", "145"},
                                                          {"T7(", "56"},
                                                          {"T8(", "12"},
                                                          {"T9(", "34"},
                                                          {"T10(", "2,5"},
                                                          {"T11(", "-1,0"},
                                                          {"T12(", "09"},
                                                          {"T13(", "78"},
                                                          {"T25(", "07"},
                                                          {"Hem(", "Sud"},
                                                          {"Lon(", "Est"},
                                                          {"In(", EnMilliemes(-7.654321F)},
                                                          {"Az(", EnMilliemes(123.4567F)}}) {
      cles.push_back(champ + ligne + ")=" + valeur);
    }
    return cles;
  }
};

TEST_F(Memoire, StoringWritesEveryFieldOfThePanelInItsOrder) {
  PanneauSingulier();
  NoteLesEcritures();
  Presse(ModeDroite::Enregistre, 2);
  EXPECT_EQ(Ecritures(), ClesSingulieres("2"));
}

TEST_F(Memoire, StoringAgainWritesTheSameKeysOverTheOldOnes) {
  TapeSoleil(kMatin);
  Calcule();
  Presse(ModeDroite::Enregistre, 1);
  const auto cles = Magasin().size();
  PanneauSingulier();
  NoteLesEcritures();
  Presse(ModeDroite::Enregistre, 1);
  EXPECT_EQ(Ecritures(), ClesSingulieres("1"));
  EXPECT_EQ(Magasin().size(), cles);
}

TEST_F(Memoire, AStarsNumberIsWrittenAfterTheBodyAndAPlanetsNumberLikewise) {
  PanneauSingulier();
  NoteLesEcritures();
  ChoisitCorps(3);
  PoseRang(bureau, d.Combo6, 40, kNombreEtoiles);
  PoseRang(bureau, d.Combo7, 2, kNombrePlanetes);
  Presse(ModeDroite::Enregistre, 0);
  ChoisitCorps(2);
  Presse(ModeDroite::Enregistre, 1);
  const auto ecrites = Ecritures();
  ASSERT_EQ(ecrites.size(), 50U);
  EXPECT_EQ(ecrites[0] + " " + ecrites[1] + " " + ecrites[2], "AS(0)=3 Combo6(0)=40 Bord(0)=2");
  EXPECT_EQ(ecrites[25] + " " + ecrites[26] + " " + ecrites[27], "AS(1)=2 Combo7(1)=2 Bord(1)=2");
}

TEST_F(Memoire, OtherBodiesWriteNoListNumber) {
  PoseRang(bureau, d.Combo6, 40, kNombreEtoiles);
  PoseRang(bureau, d.Combo7, 2, kNombrePlanetes);
  for (const int corps : {0, 1}) {
    ChoisitCorps(corps);
    Presse(ModeDroite::Enregistre, corps);
  }
  EXPECT_EQ(Reglage("Combo6(0)") + Reglage("Combo7(0)") + Reglage("Combo6(1)") + Reglage("Combo7(1)"),
            "absentabsentabsentabsent");
}

TEST_F(Memoire, AStarAndAPlanetStoredInOneLineLeaveEachOthersNumber) {
  ChoisitCorps(3);
  PoseRang(bureau, d.Combo6, 40, kNombreEtoiles);
  Presse(ModeDroite::Enregistre, 0);
  ChoisitCorps(2);
  PoseRang(bureau, d.Combo7, 2, kNombrePlanetes);
  Presse(ModeDroite::Enregistre, 0);
  EXPECT_EQ(Reglage("AS(0)") + " " + Reglage("Combo6(0)") + " " + Reglage("Combo7(0)"), "2 40 2");
  ChoisitCorps(3);
  PoseRang(bureau, d.Combo6, 7, kNombreEtoiles);
  Presse(ModeDroite::Enregistre, 0);
  EXPECT_EQ(Reglage("AS(0)") + " " + Reglage("Combo6(0)") + " " + Reglage("Combo7(0)"), "3 7 2");
}

TEST_F(Memoire, OnlyTheNumberOfTheStoredBodyIsReadBack) {
  for (const char *cle : {"Combo6(0)", "Combo7(0)"}) {
    EcritReglage(bureau, cle, "3");
  }
  for (const auto &[corps, etoile, planete] : {std::array{3, 3, 1}, {2, 9, 3}, {1, 9, 1}, {0, 9, 1}}) {
    EcritReglage(bureau, "AS(0)", std::to_string(corps));
    PoseRang(bureau, d.Combo6, 9, kNombreEtoiles);
    PoseRang(bureau, d.Combo7, 1, kNombrePlanetes);
    ChargeDroite(bureau, 0);
    EXPECT_EQ(d.Combo6.rang, etoile) << corps;
    EXPECT_EQ(d.Combo7.rang, planete) << corps;
  }
}

TEST_F(Memoire, StoringWithoutABodyKeepsANumberThatReadingBackPassesOver) {
  TapeSoleil(kMatin);
  for (Controle &corps : d.Option7) {
    corps.choisi = false;
  }
  Presse(ModeDroite::Enregistre, 2);
  EXPECT_EQ(Reglage("AS(2)"), "4");
  ChoisitCorps(1);
  TapeSoleil(kApresMidi);
  ChargeDroite(bureau, 2);
  EXPECT_TRUE(d.Option7[1].choisi);
  EXPECT_EQ(d.Text3.texte + d.Text9.texte, "0930") << "the fields come back all the same";
}

TEST_F(Memoire, StoringLeavesTheSheetAndSelectsShowing) {
  TapeSoleil(kMatin);
  Calcule();
  const std::size_t traces = bureau.image1.traces.size();
  const auto effacements = bureau.image1.effacements;
  const Origine origine = bureau.feuille.OrigineFeuille;
  Presse(ModeDroite::Enregistre, 3);
  EXPECT_EQ(bureau.image1.traces.size(), traces);
  EXPECT_EQ(bureau.image1.effacements, effacements);
  EXPECT_EQ(bureau.feuille.OrigineFeuille, origine);
  EXPECT_TRUE(d.Option1[2].choisi);
  EXPECT_FALSE(d.Option1[0].choisi);
  EXPECT_TRUE(Marque(3, kHorsFeuille));
  EXPECT_FALSE(bureau.impression.Frame4[3].visible);
  EXPECT_TRUE(boites.empty());
}

TEST_F(Memoire, StoringShowsDateTimeAndBodyAndSetsTheHoursOfDeadReckoning) {
  TapeSoleil(kApresMidi);
  Calcule();
  PoseTexte(bureau, d.Combo1, "00");
  PoseTexte(bureau, d.Combo2, "59");
  Presse(ModeDroite::Enregistre, 3);
  EXPECT_EQ(d.Ldate[3].legende, "21 / 06 / 2026");
  EXPECT_EQ(d.LHeure[3].legende, "15:00:40");
  EXPECT_EQ(d.Droite[3].infobulle, "Soleil");
  EXPECT_EQ(d.Combo1.texte + d.Combo2.texte, "1500");
}

TEST_F(Memoire, ALineComesBackToThePanelInEveryField) {
  PanneauSingulier();
  const Observation avant = LitPanneau(d);
  Presse(ModeDroite::Enregistre, 0);
  ClicOption(bureau, d.Option5[0]);
  ClicOption(bureau, d.Option4[0]);
  TapeSoleil(kMatin);
  ChargeDroite(bureau, 0);
  const Observation apres = LitPanneau(d);
  const auto textes = [](const Observation &o) {
    return std::vector<std::string>{o.jour,
                                    o.mois,
                                    o.annee,
                                    o.heure,
                                    o.minute,
                                    o.seconde,
                                    o.longitudeDegres,
                                    o.longitudeMinutes,
                                    o.latitudeDegres,
                                    o.latitudeMinutes,
                                    o.hauteurOeil,
                                    o.collimation,
                                    o.lectureMinutes,
                                    o.lectureDegres,
                                    o.lectureFraction};
  };
  EXPECT_EQ(textes(apres), textes(avant));
  EXPECT_TRUE(apres.sud);
  EXPECT_TRUE(apres.est);
  EXPECT_EQ(apres.fraction, Fraction::Centiemes);
  EXPECT_EQ(apres.bord, Bord::Centre);
  EXPECT_EQ(apres.horizon, Horizon::Artificiel);
  EXPECT_EQ(d.Text13.couleur, kRouge) << "a double angle";
}

TEST_F(Memoire, EveryLimbComesBackThoughBodyAndHorizonSetTheirOwn) {
  TapeSoleil(kMatin);
  for (const std::size_t bord : {0U, 1U, 2U}) {
    ClicOption(bureau, d.Option6[bord]);
    Presse(ModeDroite::Enregistre, 1);
    ClicOption(bureau, d.Option6[(bord + 1) % 3]);
    ChargeDroite(bureau, 1);
    EXPECT_TRUE(d.Option6[bord].choisi) << bord;
  }
}

TEST_F(Memoire, AnEmptyLimbIsTheLowerOneAndAnEmptyFractionKindIsHundredths) {
  ClicOption(bureau, d.Option6[0]);
  ClicOption(bureau, d.Option4[0]);
  EcritReglage(bureau, "T3(1)", "07");
  ChargeDroite(bureau, 1);
  EXPECT_TRUE(d.Option6[1].choisi);
  EXPECT_TRUE(d.Option4[1].choisi);
  EXPECT_TRUE(d.Option7[0].choisi);
  EXPECT_TRUE(d.Option5[0].choisi);
  EXPECT_TRUE(d.OptN[1].choisi) << "no side is South";
  EXPECT_TRUE(d.OptE[1].choisi) << "no side is West";
}

TEST_F(Memoire, ChoicesThatDoNotExistAreLeftAsTheyAre) {
  for (const char *champ : {"AS(", "Bord(", "Hor(", "O4("}) {
    EcritReglage(bureau, CleDroite(champ, 0), "99999");
  }
  EcritReglage(bureau, "T3(0)", "07");
  const bool centiemes = d.Option4[1].choisi;
  ChargeDroite(bureau, 0);
  EXPECT_EQ(d.Text3.texte, "07");
  EXPECT_EQ(d.Option4[1].choisi, centiemes);
  EXPECT_TRUE(d.Option7[0].choisi);
}

TEST_F(Memoire, ANewSessionShowsTheLinesAndReadsThemByTheOtherSpelling) {
  Stocke(1, kMidi);
  const float azimut = bureau.visee.Azimut;
  Bureau seconde;
  Branche(seconde);
  bureau.valeurs.reset();
  Donnees_Charge(seconde, {});
  EXPECT_EQ(seconde.donnees.LHeure[1].legende, "12:05:30");
  EXPECT_EQ(seconde.donnees.Droite[1].infobulle, "Soleil");
  EXPECT_EQ(seconde.donnees.LHeure[1].couleur, kHorsFeuille);
  EXPECT_NEAR(LitMillieme(LitReglage(seconde, "aZ(1)")), azimut, 1E-4);
}

} // namespace
} // namespace velmaris::essais
