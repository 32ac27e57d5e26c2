#include "tests/shell/carte/OutilsCarte.hpp"

#include "chart/Projection.hpp"

#include <algorithm>

namespace velmaris::essais {
namespace {

constexpr Couleur kContours = Rvb(100, 100, 100);
constexpr Couleur kIles = Rvb(130, 150, 130);
constexpr Couleur kRivieres = Rvb(0, 150, 180);
constexpr Couleur kLacs = 0xFF0000;

class Carte : public AvecCarte {};

TEST_F(Carte, ThePreciseOutlinesComeFirstThenIslandsRiversLakesCitiesAndObjects) {
  OuvreCartes(bureau);
  EXPECT_EQ(Couleurs(), (std::vector<Couleur>{kContours, kIles, kRivieres, kLacs}));
  EXPECT_TRUE(boites.empty());
  ASSERT_EQ(Textes(bureau.image1).size(), 2U);
  EXPECT_EQ(Textes(bureau.image1)[0].texte, "Lorient");
  EXPECT_EQ(Textes(bureau.image1)[1].texte, "Ar-Men");
}

TEST_F(Carte, TheGlobalMapIsDrawnInBlackWithoutIslandsLakesAndRivers) {
  ClicOption(bureau, d.OpCarte[0]);
  OuvreCartes(bureau);
  EXPECT_EQ(Couleurs(), (std::vector<Couleur>{kNoir}));
}

TEST_F(Carte, EachBoxShowsItsOwnLayer) {
  const std::vector<std::pair<std::size_t, std::vector<Couleur>>> cas = {{2, {kContours, kIles}},
                                                                         {3, {kContours, kRivieres, kLacs}}};
  for (const auto &[caseVide, couleurs] : cas) {
    Efface(bureau.image1);
    ClicCase(bureau, d.Check1[caseVide]);
    OuvreCartes(bureau);
    EXPECT_EQ(Couleurs(), couleurs);
    ClicCase(bureau, d.Check1[caseVide]);
  }
  ClicCase(bureau, d.Check1[0]);
  Efface(bureau.image1);
  OuvreCartes(bureau);
  ASSERT_EQ(Textes(bureau.image1).size(), 1U);
  EXPECT_EQ(Textes(bureau.image1)[0].texte, "Ar-Men");
  ClicCase(bureau, d.Check1[1]);
  Efface(bureau.image1);
  OuvreCartes(bureau);
  EXPECT_TRUE(Textes(bureau.image1).empty());
}

TEST_F(Carte, AGreyedBoxIsNotATickedOne) {
  for (Controle &boite : d.Check1) {
    boite.valeur = 2;
  }
  OuvreCartes(bureau);
  EXPECT_EQ(Couleurs(), (std::vector<Couleur>{kContours}));
  EXPECT_TRUE(Textes(bureau.image1).empty());
}

TEST_F(Carte, WithNeitherCoastSelectedTheOtherLayersAreDrawn) {
  d.OpCarte[0].choisi = d.OpCarte[1].choisi = false;
  OuvreCartes(bureau);
  EXPECT_EQ(Couleurs(), (std::vector<Couleur>{kIles, kRivieres, kLacs}));
}

TEST_F(Carte, BothCoastsOfAStoreWrittenByHandAreDrawnPreciseFirst) {
  d.OpCarte[0].choisi = d.OpCarte[1].choisi = true;
  OuvreCartes(bureau);
  EXPECT_EQ(Couleurs(), (std::vector<Couleur>{kContours, kNoir, kIles, kRivieres, kLacs}));
}

constexpr const char *kTriangle = "0.4 0.4\n0.6 0.4\n0.6 0.5\n0.4 0.4\n";

TEST_F(Carte, ClosedOutlinesAreFilledBelowAllLinesLandFirst) {
  for (const char *fichier : {"Contours.Asc", "Iles.Asc", "Rivieres.Asc", "Lacs.Asc"}) {
    PoseDonnees(fichier, kTriangle);
  }
  OuvreCartes(bureau);
  std::vector<Teinte> teintes;
  for (const Aire &aire : bureau.image1.aires) {
    ASSERT_EQ(aire.anneaux->size(), 1U);
    teintes.push_back(aire.teinte);
  }
  EXPECT_EQ(teintes, (std::vector<Teinte>{Teinte::Terre, Teinte::Terre, Teinte::Eau})) << "a river encloses nothing";
}

TEST_F(Carte, AFilledShapeLiesWhereItsOutlineLies) {
  PoseDonnees("Contours.Asc", kTriangle);
  OuvreCartes(bureau);
  ASSERT_FALSE(bureau.image1.aires.empty());
  const Aire &aire = bureau.image1.aires.front();
  const auto *ligne = std::get_if<Polyligne>(&bureau.image1.traces.front());
  ASSERT_NE(ligne, nullptr);
  EXPECT_EQ(ligne->genre, GenreLigne::Cote);
  for (std::size_t i = 0; i < 3; ++i) {
    const PointAnneau &p = (*aire.anneaux)[0].points[i];
    EXPECT_NEAR(aire.origine.x + p.x * aire.unite.x, ligne->points[i].x, 1e-6);
    EXPECT_NEAR(aire.origine.y + p.y * aire.unite.y, ligne->points[i].y, 1e-6);
  }
}

TEST_F(Carte, TheLinesOfTheRecordAreTheSameWithTintsAndWithout) {
  PoseDonnees("Contours.Asc", kTriangle);
  OuvreCartes(bureau);
  const auto avec = bureau.image1.traces;
  Efface(bureau.image1);
  ClicControle(bureau, d.PU_Terres);
  OuvreCartes(bureau);
  EXPECT_EQ(bureau.image1.traces, avec);
}

TEST_F(Carte, AShapeIsKeptWhileItsFileIsTheSameAndMadeAnewWhenItChanges) {
  PoseDonnees("Contours.Asc", kTriangle);
  OuvreCartes(bureau);
  const auto premiers = bureau.image1.aires.front().anneaux;
  Efface(bureau.image1);
  OuvreCartes(bureau);
  EXPECT_EQ(bureau.image1.aires.front().anneaux, premiers) << "no work is done twice";
  PoseDonnees("Contours.Asc", std::string(kTriangle) + "2 0\n0.1 0.1\n0.2 0.1\n0.2 0.2\n0.1 0.1\n");
  Efface(bureau.image1);
  OuvreCartes(bureau);
  EXPECT_EQ(bureau.image1.aires.front().anneaux->size(), 2U);
}

TEST_F(Carte, DrawnTwiceInTheSamePlaceAShapeIsThereOnce) {
  PoseDonnees("Contours.Asc", kTriangle);
  OuvreCartes(bureau);
  const std::size_t nombre = bureau.image1.aires.size();
  OuvreCartes(bureau);
  EXPECT_EQ(bureau.image1.aires.size(), nombre);
}

TEST_F(Carte, TintsAreOnAtFirstAndTheirSwitchIsKept) {
  EXPECT_TRUE(bureau.image1.teintee);
  EXPECT_EQ(d.PU_Terres.valeur, 1);
  ClicControle(bureau, d.PU_Terres);
  EXPECT_FALSE(bureau.image1.teintee);
  EXPECT_EQ(d.PU_Terres.valeur, 0);
  EXPECT_EQ(Reglage("Terres"), "0");
  Bureau suivant;
  Branche(suivant);
  Donnees_Charge(suivant, {});
  EXPECT_FALSE(suivant.image1.teintee);
}

TEST_F(Carte, TheToolTipTalliesThePointsOfEachFileAndTheTitleIsEmptied) {
  PoseDonnees("Iles.Asc", "2 0\n2 0\n2 0\n");
  OuvreCartes(bureau);
  EXPECT_EQ(d.Label51.legende, "");
  EXPECT_EQ(d.Label51.infobulle, "Polygones chargés + 2 + 3 + 2 + 2");
  OuvreCartes(bureau);
  EXPECT_EQ(d.Label51.infobulle, "Polygones chargés + 2 + 3 + 2 + 2") << "counted anew";
}

TEST_F(Carte, ADrawingOfMoreThanASecondIsTimedInTheTitle) {
  for (const auto &[secondes, titre] :
       {std::pair{0, ""}, {1, ""}, {2, "Carte dessinée en 2 secondes"}, {40, "Carte dessinée en 40 secondes"}}) {
    locale = {2026, 6, 21, 0, 0, 0};
    bureau.ports.respire = [this, secondes = secondes] { locale.seconde = secondes; };
    OuvreCartes(bureau);
    EXPECT_EQ(d.Label51.legende, titre);
  }
}

TEST_F(Carte, ADrawingAcrossMidnightIsNotTimed) {
  locale = {2026, 6, 21, 23, 59, 58};
  bureau.ports.respire = [this] { locale = {2026, 6, 22, 0, 0, 20}; };
  OuvreCartes(bureau);
  EXPECT_EQ(d.Label51.legende, "");
}

TEST_F(Carte, ThePointerIsBusyWhileTheChartIsDrawn) {
  int respirations = 0;
  bureau.ports.respire = [&] {
    ++respirations;
    EXPECT_TRUE(bureau.pointeurOccupe);
  };
  OuvreCartes(bureau);
  EXPECT_FALSE(bureau.pointeurOccupe);
  EXPECT_EQ(respirations, 4) << "after each file is read";
}

TEST_F(Carte, AMissingFileNamesItselfAndTheRestIsDrawn) {
  OteDonnees("Iles.Asc");
  OuvreCartes(bureau);
  EXPECT_EQ(TextesBoites(), (std::vector<std::string>{bureau.messages[3] + "Iles.Asc"}));
  EXPECT_EQ(boites[0].icone, Icone::Aucune);
  EXPECT_FALSE(boites[0].question);
  EXPECT_EQ(Couleurs(), (std::vector<Couleur>{kContours, kRivieres, kLacs}));
  EXPECT_EQ(Textes(bureau.image1).size(), 2U);
}

TEST_F(Carte, AFileOf60001PointsIsDrawnWithoutAWord) {
  std::string octets = TropDePoints();
  octets.resize(octets.size() - std::string_view("0.5 0.25\n").size());
  PoseDonnees("Iles.Asc", octets);
  OuvreCartes(bureau);
  EXPECT_TRUE(boites.empty());
}

TEST_F(Carte, AFileWithOnePointMoreIsNotDrawnStaysOpenAndShutsOutTheOthersUntilTheNextStart) {
  PoseDonnees("Iles.Asc", TropDePoints());
  OuvreCartes(bureau);
  const std::string m = bureau.messages[3];
  EXPECT_EQ(TextesBoites(), (std::vector<std::string>{m + "Iles.Asc", m + "Rivieres.Asc", m + "Lacs.Asc"}));
  EXPECT_EQ(Couleurs(), (std::vector<Couleur>{kContours}));
  EXPECT_EQ(Textes(bureau.image1).size(), 2U) << "cities and objects are read by another road";
  PoseDonnees("Iles.Asc", kSegment);
  boites.clear();
  Efface(bureau.image1);
  OuvreCartes(bureau);
  EXPECT_EQ(boites.size(), 4U) << "the coast too, now";
  EXPECT_TRUE(TracesDe<Polyligne>(bureau.image1).empty());

  Bureau suite;
  Branche(suite);
  Donnees_Charge(suite, {});
  boites.clear();
  OuvreCartes(suite);
  EXPECT_TRUE(boites.empty());
}

TEST_F(Carte, ACoordinateThatLeaves32BitsIsTreatedAlike) {
  PoseDonnees("Lacs.Asc", "0.5 0.5\n1e39 0.5\n");
  OuvreCartes(bureau);
  OuvreCartes(bureau);
  EXPECT_EQ(boites.size(), 1U + 4U);
}

TEST_F(Carte, AMissingFileLeavesNothingOpen) {
  OteDonnees("Contours.Asc");
  OuvreCartes(bureau);
  EXPECT_EQ(boites.size(), 1U);
}

TEST_F(Carte, AMissingOrUnreadableListOfPlacesIsToldByItsOwnMessage) {
  OteDonnees("Villes.txt");
  OuvreCartes(bureau);
  EXPECT_EQ(TextesBoites(), (std::vector<std::string>{bureau.messages[1]}));
  ASSERT_EQ(Textes(bureau.image1).size(), 1U) << "the objects are drawn";
  boites.clear();
  OteDonnees("Utilisateur.txt");
  PoseDonnees("Villes.txt", "+47.75 +003.37 1 P Lorient\nnoise\n");
  Efface(bureau.image1);
  OuvreCartes(bureau);
  EXPECT_EQ(TextesBoites(), (std::vector<std::string>{bureau.messages[1], bureau.messages[2]}));
  ASSERT_EQ(Textes(bureau.image1).size(), 1U) << "what came before the failure stays";
}

TEST_F(Carte, AFileOverSixtyFourMegabytesIsToldByItsOwnMessageAndTheRestIsDrawn) {
  for (const char *nom : {"Iles.Asc", "Villes.txt", "Utilisateur.txt"}) {
    std::filesystem::resize_file(bureau.dossiers.utilisateur / nom, std::uintmax_t{1} << 42U);
  }
  OuvreCartes(bureau);
  EXPECT_EQ(Couleurs(), (std::vector<Couleur>{kContours, kRivieres, kLacs}));
  EXPECT_EQ(TextesBoites(),
            (std::vector<std::string>{bureau.messages[3] + "Iles.Asc", bureau.messages[1], bureau.messages[2]}));
}

TEST_F(Carte, WithNoOutlineReadableBeforeAFirstSheetPlacesHaveNoScale) {
  for (const char *nom : {"Contours.Asc", "Iles.Asc", "Rivieres.Asc", "Lacs.Asc"}) {
    OteDonnees(nom);
  }
  OuvreCartes(bureau);
  EXPECT_EQ(boites.size(), 6U);
}

TEST_F(Carte, EveryKindOfBadFileIsABoxOrAPartialChartAndNeverACrash) {
  const std::string mauvais[] = {"",
                                 std::string(1, '\0'),
                                 std::string(1000, '\0'),
                                 "\xFF\xFE\x00\x01 \xFF",
                                 "NaN NaN\ninf -inf\n1e999 1e999\n",
                                 "0.5 0.25",
                                 std::string(10'000'000, 'x'),
                                 std::string(10'000'000, ' '),
                                 std::string(10'000'000, '\n'),
                                 "+47.75 +003.37 1 P " + std::string(1'000'000, 'n') + "\n"};
  for (const char *nom : {"Contours.Asc", "Iles.Asc", "Rivieres.Asc", "Lacs.Asc", "Villes.txt", "Utilisateur.txt"}) {
    for (const std::string &octets : mauvais) {
      PoseDonnees(nom, octets);
      OuvreCartes(bureau);
      bureau.carte.fichierReste = false;
      Efface(bureau.image1);
    }
    PoseDonnees(nom, kSegment);
  }
  for (const char *nom : {"Contours.Asc", "Villes.txt", "Utilisateur.txt"}) {
    std::filesystem::remove(bureau.dossiers.utilisateur / nom);
    std::filesystem::create_directory(bureau.dossiers.utilisateur / nom);
  }
  boites.clear();
  OuvreCartes(bureau);
  EXPECT_EQ(boites.size(), 3U) << "a folder in a file's place is told";
}

TEST_F(Carte, TheChartOnTheSheetKeepsItsLinesAndScales) {
  TapeVisee();
  Calcule();
  const std::size_t avant = bureau.image1.traces.size();
  const Feuille feuille = bureau.feuille;
  OuvreCartes(bureau);
  EXPECT_GT(bureau.image1.traces.size(), avant);
  EXPECT_EQ(bureau.feuille.EchelleX, feuille.EchelleX);
  EXPECT_EQ(bureau.feuille.EchelleY, feuille.EchelleY);
  const auto ville = std::find_if(bureau.image1.traces.begin(), bureau.image1.traces.end(), [](const Trace &t) {
    const auto *texte = std::get_if<TexteTrace>(&t);
    return texte != nullptr && texte->texte == "Lorient";
  });
  ASSERT_NE(ville, bureau.image1.traces.end());
  const Point place = PlaceSurFeuille(bureau.feuille, 47.75, 3.37);
  EXPECT_NEAR(std::get<TexteTrace>(*ville).position.x, place.x, 1e-6);
}

TEST_F(Carte, AfterEcranTheWholeWorldIsDrawnAndANewSheetSetsItsScalesAgain) {
  TapeVisee();
  Calcule();
  const Feuille feuille = bureau.feuille;
  ClicControle(bureau, d.Command6);
  OuvreCartes(bureau);
  EXPECT_EQ(bureau.feuille.EchelleY, 1.0F);
  Calcule();
  EXPECT_EQ(bureau.feuille.EchelleY, feuille.EchelleY);
  EXPECT_EQ(bureau.feuille.EchelleX, feuille.EchelleX);
}

TEST_F(Carte, TheSameChartDrawnAgainInTheSamePlaceIsRecordedOnce) {
  OuvreCartes(bureau);
  const std::vector<Trace> une = bureau.image1.traces;
  for (int i = 0; i < 5; ++i) {
    OuvreCartes(bureau);
    EXPECT_TRUE(bureau.image1.traces == une);
  }
  Ligne(bureau.image1, {0, 0}, {10, 10}, kRouge);
  OuvreCartes(bureau);
  EXPECT_EQ(bureau.image1.traces.size(), 2 * une.size() + 1) << "over something else it is drawn";
  PoseDonnees("Iles.Asc", "0.1 0.2\n0.2 0.3\n");
  OuvreCartes(bureau);
  EXPECT_EQ(bureau.image1.traces.size(), 3 * une.size() + 1) << "a file that has changed is drawn";
}

TEST_F(Carte, F4AndAfficheDrawTheChart) {
  EXPECT_TRUE(Donnees_KeyDown(bureau, 115));
  EXPECT_FALSE(bureau.image1.traces.empty());
  Efface(bureau.image1);
  ClicControle(bureau, d.FOptionCarte.visible ? d.Command17 : d.PU_Carte);
  EXPECT_FALSE(bureau.image1.traces.empty());
  Efface(bureau.image1);
  ClicControle(bureau, d.Command21);
  ClicControle(bureau, d.Command17);
  EXPECT_FALSE(bureau.image1.traces.empty());
}

TEST_F(Carte, EffaceTakesTheChartAndLeavesTheLines) {
  TapeVisee();
  Calcule();
  const std::vector<Trace> feuille = bureau.image1.traces;
  OuvreCartes(bureau);
  ClicControle(bureau, d.Command16);
  EXPECT_TRUE(bureau.image1.traces == feuille);
}

TEST_F(Carte, WithToujoursVisibleCalculZoomAndGridDrawTheChart) {
  d.Check2.valeur = 1;
  TapeVisee();
  const auto carte = [this] {
    const std::vector<Couleur> couleurs = Couleurs();
    return std::count(couleurs.begin(), couleurs.end(), kIles);
  };
  Calcule();
  EXPECT_EQ(carte(), 1);
  PoseValeur(bureau, d.HScroll1, 3000);
  EXPECT_EQ(carte(), 1);
  ClicControle(bureau, d.Command14);
  EXPECT_EQ(carte(), 1);
}

TEST_F(Carte, AZoomAfterRecentringWithoutASheetShowsTheWholeWorldAlone) {
  OuvreCartes(bureau);
  const std::vector<Trace> monde = bureau.image1.traces;
  d.Check2.valeur = 1;
  Image1_MouseDown(bureau, BoutonSouris::Gauche, bureau.feuille.CentreX + 600.0, bureau.feuille.CentreY + 300.0);
  ClicControle(bureau, d.PU_Centre);
  EXPECT_FALSE(EstMonde(bureau.feuille));
  EXPECT_FALSE(bureau.image1.traces == monde);
  ZoomeCrans(bureau, 1);
  EXPECT_EQ(bureau.feuille.OrigineFeuille, kSansFeuille);
  EXPECT_FALSE(monde.empty());
  EXPECT_TRUE(bureau.image1.traces == monde);
  ZoomeCrans(bureau, 1);
  EXPECT_TRUE(bureau.image1.traces == monde);
}

TEST_F(Carte, WhatWasDrawnByHandOverAChartStaysWhenTheSameChartIsDrawnAgain) {
  OuvreCartes(bureau);
  Ligne(bureau.image1, {10, 10}, {20, 20}, kMagenta);
  OuvreCartes(bureau);
  const std::vector<Couleur> couleurs = Couleurs();
  EXPECT_EQ(std::count(couleurs.begin(), couleurs.end(), kMagenta), 1);
}

TEST_F(Carte, TheSunStandsOverTheWholeWorldAtItsSubsolarPointOnTheScalesOfTheMouse) {
  ClicControle(bureau, d.Command7);
  EXPECT_EQ(d.Soleil.place.gauche, kHorsDeVue) << "nothing has been drawn yet";
  OuvreCartes(bureau);
  Timer1_Tick(bureau);
  const Point milieu{d.Soleil.place.gauche + d.Soleil.place.largeur / 2,
                     d.Soleil.place.haut + d.Soleil.place.hauteur / 2};
  const PlaceCarte place = PlaceSousPoint(bureau.feuille, milieu);
  EXPECT_NEAR(place.latitude, bureau.soleil.LatSoleil, 1e-6);
  EXPECT_NEAR(place.longitude, bureau.soleil.LonSoleil, 1e-6);
  EXPECT_NEAR(place.latitude, 23.4, 0.1) << "the longest day";
  EXPECT_NEAR(place.longitude, 1.0, 1.0) << "five minutes past noon at Greenwich";
}

TEST_F(Carte, TheChartIsNotDrawnAtStart) { EXPECT_TRUE(bureau.image1.traces.empty()); }

TEST_F(Carte, ANotchOfTheZoomIsAQuarterOfTheMilesShownWithinTheSlidersLimits) {
  ZoomeCrans(bureau, -1);
  EXPECT_EQ(d.HScroll1.valeur, 2500);
  EXPECT_EQ(bureau.feuille.Zoom, 250);
  ZoomeCrans(bureau, 1);
  EXPECT_EQ(d.HScroll1.valeur, 2000);
  ZoomeCrans(bureau, 1);
  EXPECT_EQ(d.HScroll1.valeur, 1600);
  ZoomeCrans(bureau, 100);
  EXPECT_EQ(d.HScroll1.valeur, d.HScroll1.minimum);
  ZoomeCrans(bureau, -10000);
  EXPECT_EQ(d.HScroll1.valeur, d.HScroll1.maximum);
}

} // namespace
} // namespace velmaris::essais
