#include "tests/shell/bureau/OutilsBureau.hpp"

#include "foundations/TexteNombre.hpp"
#include "lines/FichierLoP.hpp"
#include "sights/DroiteSOL.hpp"

#include <algorithm>

namespace velmaris::essais {
namespace {

std::size_t Traits(const Surface &surface, Couleur couleur) {
  return static_cast<std::size_t>(std::count_if(surface.traces.begin(), surface.traces.end(), [&](const Trace &t) {
    const auto *ligne = std::get_if<Polyligne>(&t);
    return ligne != nullptr && ligne->plume.couleur == couleur;
  }));
}

TEST_F(Programme, ASightTypedIntoThePanelReducesAsTheSameSightReadFromAFile) {
  DemarreSansCarte();
  TapeVisee();
  Calcule();
  Observation lue;
  AppliqueLoP(
      [&] {
        TableLoP table;
        LitLignesLoP(EcritLoP(LitPanneau(d)), table);
        return table;
      }(),
      lue);
  ValeursVisee valeurs;
  valeurs.HeureDecimale = HeureDesChamps(lue);
  LitEstime(lue, valeurs);
  AffichageDroite affichage;
  Calcul_DroiteSOL(lue, valeurs, affichage, bureau.messages);
  EXPECT_EQ(d.Affichage_Intercept.legende, affichage.intercept);
  EXPECT_EQ(d.Affichage_Azimuth.legende, affichage.azimut);
  EXPECT_EQ(d.Label14.infobulle, affichage.infobulle);
  for (std::size_t i = 0; i < affichage.details.size(); ++i) {
    EXPECT_EQ(d.Label70[i].legende, affichage.details[i]);
  }
}

TEST_F(Programme, CalculDrawsASheetAroundTheEstimatedPosition) {
  DemarreSansCarte();
  TapeVisee();
  Calcule();
  EXPECT_EQ(bureau.feuille.OrigineFeuille, (Origine{47.5F, static_cast<float>(5 + 10.0 / 60)}));
  EXPECT_EQ(Traits(bureau.image1, 65535), 1U) << "the line of position";
  EXPECT_EQ(d.LabLon.legende, "L O N G I T U D E   O U E S T");
  EXPECT_EQ(d.LabLat.legende, "L\nA\nT\nI\nT\nU\nD\nE\n \nN\nO\nR\nD");
  EXPECT_EQ(bureau.NomAstre, "Soleil");
}

TEST_F(Programme, CalculTakesAllStoredLinesOffTheSheet) {
  DemarreSansCarte();
  d.LHeure[1].couleur = 0x008000;
  d.Ldate[2].couleur = kRouge;
  TapeVisee();
  Calcule();
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(d.LHeure[i].couleur, 0x800000U);
    EXPECT_EQ(d.Ldate[i].couleur, 0x800000U);
  }
}

TEST_F(Programme, AnAllZeroReadingShowsZerosChangesNoResultAndRedrawsTheSheet) {
  DemarreSansCarte();
  TapeVisee();
  Calcule();
  const std::string intercept = d.Affichage_Intercept.legende;
  const auto effacements = bureau.image1.effacements;
  Tape(d.Text13, "0");
  Tape(d.Text12, "");
  Tape(d.Text25, "");
  Calcule();
  EXPECT_EQ(d.Text13.texte, "00");
  EXPECT_EQ(d.Text12.texte, "00");
  EXPECT_EQ(d.Text25.texte, "00");
  EXPECT_EQ(d.Affichage_Intercept.legende, intercept);
  EXPECT_EQ(bureau.image1.effacements, effacements + 1);
}

TEST_F(Programme, AnEmptyEyeHeightReducesWithoutDipAndShowsZero) {
  DemarreSansCarte();
  TapeVisee();
  Tape(d.Text10, "");
  Calcule();
  EXPECT_EQ(d.Text10.texte, "0");
  EXPECT_EQ(d.Label70[0].legende, bureau.messages[14] + "00.00 '");
}

TEST_F(Programme, MoreThanSixtySecondsPaintTheFractionRedAndStillReduce) {
  DemarreSansCarte();
  TapeVisee();
  Calcule();
  const double avant = bureau.visee.Intercept;
  Tape(d.Text25, "75");
  Calcule();
  EXPECT_EQ(d.Text25.couleur, kRouge);
  EXPECT_NEAR(bureau.visee.Intercept - avant, 37.0 / 60, 0.002) << "37 seconds more of height";
  ClicOption(bureau, d.Option4[1]);
  Calcule();
  EXPECT_EQ(d.Text25.couleur, kNoir);
}

TEST_F(Programme, OneDigitOfFractionIsFiveSecondsAndNotFifty) {
  DemarreSansCarte();
  TapeVisee();
  Tape(d.Text25, "5");
  Calcule();
  EXPECT_EQ(d.Text25.texte, "05");
}

TEST_F(Programme, TheHoursOfDeadReckoningFollowTheSight) {
  DemarreSansCarte();
  TapeVisee();
  Calcule();
  EXPECT_EQ(d.Combo1.texte, "12");
  EXPECT_EQ(d.Combo2.texte, "05");
}

TEST_F(Programme, EcranClearsSurfaceCaptionsAndSheetAndLeavesTheResults) {
  DemarreSansCarte();
  TapeVisee();
  Calcule();
  d.LHeure[0].couleur = kRouge;
  ClicControle(bureau, d.Command6);
  EXPECT_TRUE(bureau.image1.traces.empty());
  EXPECT_EQ(d.LabLon.legende + d.LabLat.legende, "");
  EXPECT_EQ(bureau.feuille.OrigineFeuille, kSansFeuille);
  EXPECT_EQ(d.LHeure[0].couleur, 0x800000U);
  EXPECT_TRUE(d.Option1[2].choisi);
  EXPECT_NE(d.Affichage_Intercept.legende, "");
}

TEST_F(Programme, TheGridStartsOffAndItsTwoButtonsShareOneSpot) {
  DemarreSansCarte();
  TapeVisee();
  Calcule();
  const auto sansGrille = bureau.image1.traces.size();
  EXPECT_TRUE(d.Command14.visible);
  EXPECT_FALSE(d.Command12.visible);
  EXPECT_EQ(d.Command12.place, d.Command14.place);
  ClicControle(bureau, d.Command14);
  EXPECT_EQ(bureau.feuille.Grille, 0);
  EXPECT_TRUE(d.Command12.visible);
  EXPECT_FALSE(d.Command14.visible);
  EXPECT_GT(bureau.image1.traces.size(), sansGrille + 200);
  ClicControle(bureau, d.Command12);
  EXPECT_EQ(bureau.feuille.Grille, 1);
  EXPECT_EQ(bureau.image1.traces.size(), sansGrille);
}

TEST_F(Programme, TheSliderSetsTheMilesOverTheHeightAndRedraws) {
  DemarreSansCarte();
  TapeVisee();
  Calcule();
  BougeCurseur(bureau, d.HScroll1, 995);
  EXPECT_EQ(bureau.feuille.Zoom, 100) << "99.5 goes to the even neighbour";
  EXPECT_EQ(d.Label32.legende, "Zoom : 100");
  EXPECT_FLOAT_EQ(bureau.feuille.EchelleY, static_cast<float>(bureau.image1.hauteur / 100));
  BougeCurseur(bureau, d.HScroll1, 1);
  EXPECT_EQ(d.HScroll1.valeur, 80);
  EXPECT_EQ(bureau.feuille.Zoom, 8);
}

TEST_F(Programme, StoredLinesAreShownByDateTimeAndBody) {
  {
    Valeurs valeurs(dossier.chemin() / "utilisateur" / "valeurs.sqlite");
    const auto garde = [&](const char *cle, const char *valeur) {
      valeurs.SaveSetting("Velmaris", "Valeurs", cle, valeur);
    };
    garde("Td0(1)", "21");
    garde("Td1(1)", "06");
    garde("Td2(1)", "2026");
    garde("T3(1)", "12");
    garde("T4(1)", "05");
    garde("T5(1)", "30");
    garde("nom(1)", "Soleil");
    garde("T3(2)", "");
  }
  DemarreSansCarte();
  EXPECT_EQ(d.Ldate[1].legende, "21 / 06 / 2026");
  EXPECT_EQ(d.LHeure[1].legende, "12:05:30");
  EXPECT_EQ(d.Droite[1].infobulle, "Soleil");
  EXPECT_EQ(d.Ldate[2].legende + d.LHeure[2].legende, "");
  EXPECT_EQ(d.Droite[2].infobulle, "(F7)");
}

TEST_F(Programme, ASightWithoutPositionReducesAtTheOrigin) {
  DemarreSansCarte();
  Tape(d.Text13, "30");
  Calcule();
  EXPECT_EQ(bureau.feuille.OrigineFeuille, (Origine{0.0F, 0.0F}));
}

} // namespace
} // namespace velmaris::essais
