#include "tests/shell/droites/OutilsDroites.hpp"

#include <array>

#include <algorithm>

namespace velmaris::essais {
namespace {

/// Two decimals at the most and no leading zero, by the C library.
std::string DeuxDecimales(double valeur) {
  std::array<char, 32> tampon{};
  std::snprintf(tampon.data(), tampon.size(), "%.2f", valeur);
  std::string texte = tampon.data();
  while (texte.back() == '0') {
    texte.pop_back();
  }
  if (const auto zero = texte.find("0."); zero == 0 || (zero == 1 && texte[0] == '-')) {
    texte.erase(zero, 1);
  }
  return texte;
}

class Modes : public QuatreDroites {
protected:
  void SetUp() override { TroisDroites(); }

  /// The print row of a line tells its sight and the result of its reduction.
  void AttendRangee(std::size_t ligne, const Visee &v) {
    const Impression &page = bureau.impression;
    EXPECT_TRUE(page.Frame4[ligne].visible);
    EXPECT_EQ(page.Frame4[ligne].legende, "    " + std::to_string(ligne + 1) + "°  Droite :");
    EXPECT_EQ(page.Label32[ligne].legende, v.heure + " : " + v.minute + " : " + v.seconde);
    EXPECT_EQ(page.Label33[ligne].legende, v.latD + "° " + v.latM + "'" + (v.sud ? " S" : " N"));
    EXPECT_EQ(page.Label34[ligne].legende, v.lonD + "° " + v.lonM + "'" + (v.est ? " E" : " W"));
    EXPECT_EQ(page.Label35[ligne].legende, DeuxDecimales(bureau.visee.Azimut));
    EXPECT_EQ(page.Label36[ligne].legende, DeuxDecimales(bureau.visee.Intercept));
  }

  void AttendFeuilleDe(const Visee &v) {
    EXPECT_EQ(bureau.feuille.OrigineFeuille,
              (Origine{static_cast<float>(LatitudeDe(v)), static_cast<float>(LongitudeDe(v))}));
  }

  Segment LigneDe(int ligne, const Visee &v, const Visee &feuille) {
    return LigneDepuis(Lieu(LatitudeDe(v), LongitudeDe(v), LatitudeDe(feuille), LongitudeDe(feuille)),
                       Garde("Az(", ligne), Garde("In(", ligne));
  }
};

TEST_F(Modes, TheFirstLineShownStartsASheetAroundItsPosition) {
  Montre(1);
  AttendFeuilleDe(kApresMidi);
  ASSERT_EQ(Traits(kTraitPremiere).size(), 1U);
  EXPECT_TRUE(MemeTrait(Traits(kTraitPremiere)[0], LigneDe(1, kApresMidi, kApresMidi)));
  EXPECT_TRUE(Marque(1, kPremiereDroite));
  EXPECT_EQ(d.Combo5.texte, "2");
  EXPECT_EQ(d.Combo5.rang, 1);
  EXPECT_EQ(d.Combo1.texte + d.Combo2.texte, "1500");
  AttendRangee(1, kApresMidi);
  EXPECT_TRUE(d.Option1[2].choisi);
}

TEST_F(Modes, TheFirstLinesBodyIsTheButtonsToolTipAndAnAddedOnesThatOfItsReduction) {
  d.Droite[1].infobulle = "Soleil du soir";
  Montre(1);
  EXPECT_EQ(bureau.NomAstre, "Soleil du soir");
  Montre(0);
  EXPECT_EQ(bureau.NomAstre, "Soleil");
}

TEST_F(Modes, TheNextLineIsAddedInRedOnTheSheetsOwnScale) {
  Montre(1);
  const auto effacements = bureau.image1.effacements;
  Montre(0);
  EXPECT_EQ(bureau.image1.effacements, effacements);
  AttendFeuilleDe(kApresMidi);
  ASSERT_EQ(Traits(kTraitAjoute).size(), 1U);
  EXPECT_TRUE(MemeTrait(Traits(kTraitAjoute)[0], LigneDe(0, kMatin, kApresMidi)));
  EXPECT_TRUE(Marque(0, kDroiteAjoutee));
  EXPECT_TRUE(Marque(1, kPremiereDroite));
  EXPECT_EQ(d.Combo5.texte, "2") << "that of the first line";
  EXPECT_EQ(d.Combo1.texte + d.Combo2.texte, "0900");
  AttendRangee(0, kMatin);
}

TEST_F(Modes, ALineIsReducedAnewWhenItIsShown) {
  EcritReglage(bureau, "In(0)", "99000");
  EcritReglage(bureau, "Az(0)", "1000");
  TapeSoleil(kMatin);
  Calcule();
  const ValeursVisee attendu = bureau.visee;
  for (const int avant : {1, -1}) { // added to a sheet, and first of one
    ClicControle(bureau, d.Command6);
    if (avant >= 0) {
      Montre(avant);
    }
    Montre(0);
    EXPECT_EQ(bureau.visee.Azimut, attendu.Azimut);
    EXPECT_EQ(bureau.visee.Intercept, attendu.Intercept);
    EXPECT_EQ(bureau.visee.HeureDecimale, attendu.HeureDecimale);
  }
}

TEST_F(Modes, ALineShownTwiceIsDrawnTwiceInOnePlace) {
  Montre(0);
  Montre(1);
  Montre(1);
  ASSERT_EQ(Traits(kTraitAjoute).size(), 2U);
  EXPECT_TRUE(MemeTrait(Traits(kTraitAjoute)[0], Traits(kTraitAjoute)[1]));
  Montre(0);
  ASSERT_EQ(Traits(kTraitAjoute).size(), 3U);
  EXPECT_TRUE(MemeTrait(Traits(kTraitAjoute)[2], Traits(kTraitPremiere)[0])) << "over its own first drawing";
  EXPECT_TRUE(Marque(0, kDroiteAjoutee));
}

TEST_F(Modes, ALineJoinsTheSheetOfACalculatedSight) {
  TapeSoleil(kMidi);
  Calcule();
  Montre(0);
  AttendFeuilleDe(kMidi);
  EXPECT_TRUE(Marque(0, kDroiteAjoutee));
}

TEST_F(Modes, ALineNeverStoredEmptiesThePanelAndSaysSo) {
  TapeSoleil(kMidi);
  Calcule();
  const std::size_t traces = bureau.image1.traces.size();
  Montre(3);
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_EQ(boites[0].texte, bureau.messages[11]);
  EXPECT_NE(boites[0].texte, "");
  EXPECT_EQ(boites[0].titre, "Erreur");
  EXPECT_EQ(boites[0].icone, Icone::Information);
  EXPECT_FALSE(boites[0].question);
  for (const Controle *champ : {&d.TDate[0], &d.TDate[1], &d.TDate[2], &d.Text3, &d.Text4, &d.Text5, &d.Text6, &d.Text7,
                                &d.Text8, &d.Text9, &d.Text10, &d.Text11, &d.Text12, &d.Text13, &d.Text25}) {
    EXPECT_EQ(champ->texte, "") << champ->nom;
  }
  EXPECT_EQ(bureau.image1.traces.size(), traces);
  EXPECT_TRUE(Marque(3, kHorsFeuille));
  EXPECT_FALSE(bureau.impression.Frame4[3].visible);
}

TEST_F(Modes, ALineWithAnyOfHourMinuteAndDayCountsAsStored) {
  for (const char *cle : {"T3(3)", "T4(3)", "Td0(3)"}) {
    EcritReglage(bureau, cle, "01");
    Montre(3);
    EXPECT_TRUE(boites.empty()) << cle;
    EcritReglage(bureau, cle, "");
  }
  EcritReglage(bureau, "T5(3)", "01");
  Montre(3);
  EXPECT_EQ(boites.size(), 1U) << "the second alone does not";
}

TEST_F(Modes, ErasingAsksFirstWithNoAsTheAnswerToReturn) {
  Montre(0);
  boites.clear();
  const auto magasin = Magasin();
  Presse(ModeDroite::Efface, 0);
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_EQ(boites[0].texte, bureau.messages[13]);
  EXPECT_NE(boites[0].texte, "");
  EXPECT_EQ(boites[0].titre, "Attention");
  EXPECT_EQ(boites[0].icone, Icone::Question);
  EXPECT_TRUE(boites[0].question);
  EXPECT_TRUE(boites[0].nonParDefaut);
  EXPECT_EQ(Magasin(), magasin);
  EXPECT_TRUE(d.Option1[3].choisi) << "No leaves the mode";
  EXPECT_EQ(d.LHeure[0].legende, "09:00:10");
  EXPECT_EQ(d.Droite[0].infobulle, "Soleil");
  EXPECT_TRUE(Marque(0, kPremiereDroite));
}

TEST_F(Modes, ErasingWritesEmptyTextsInItsOrderAndLeavesFourKeys) {
  NoteLesEcritures();
  reponse = true;
  Presse(ModeDroite::Efface, 1);
  const std::vector<std::string> attendues = {
      "AS(1)=",  "Bord(1)=", "Hor(1)=", "T3(1)=",  "T4(1)=",  "T5(1)=",     "Td0(1)=", "Td1(1)=",
      "Td2(1)=", "T6(1)=",   "T7(1)=",  "T8(1)=",  "T9(1)=",  "T10(1)=",    "T11(1)=", "T12(1)=",
      "T13(1)=", "Hem(1)=",  "Lon(1)=", "In(1)=0", "Az(1)=0", "Nom(1)=(F6)"};
  EXPECT_EQ(Ecritures(), attendues);
  EXPECT_EQ(Reglage("O4(1)") + Reglage("T25(1)"), "050") << "fraction kind and fraction stay";
}

TEST_F(Modes, AnErasedLineLosesItsCaptionsAndItsMarkAndStaysDrawn) {
  Montre(0);
  Montre(1);
  const std::size_t traces = bureau.image1.traces.size();
  reponse = true;
  Presse(ModeDroite::Efface, 1);
  EXPECT_EQ(d.Ldate[1].legende + d.LHeure[1].legende, "");
  EXPECT_EQ(d.Droite[1].infobulle, "(F6)");
  EXPECT_TRUE(Marque(1, kHorsFeuille));
  EXPECT_TRUE(d.Option1[2].choisi);
  EXPECT_EQ(bureau.image1.traces.size(), traces);
  EXPECT_EQ(d.LHeure[0].legende, "09:00:10");
  BougeCurseur(bureau, d.HScroll1, 1500);
  EXPECT_EQ(Traits(kTraitAjoute).size(), 0U) << "gone with the next redraw";
  EXPECT_EQ(Traits(kTraitPremiere).size(), 1U);
}

TEST_F(Modes, EachErasedLineShowsItsOwnKey) {
  reponse = true;
  for (const std::size_t i : {0U, 1U, 2U, 3U}) {
    Presse(ModeDroite::Efface, static_cast<int>(i));
    EXPECT_EQ(d.Droite[i].infobulle, "(F" + std::to_string(i + 5) + ")");
  }
}

TEST_F(Modes, CentringALineMakesItTheFirstAndTheOthersComeBackInRed) {
  Montre(0);
  Montre(1);
  Presse(ModeDroite::Centre, 1);
  AttendFeuilleDe(kApresMidi);
  EXPECT_TRUE(Marque(1, kPremiereDroite));
  EXPECT_TRUE(Marque(0, kDroiteAjoutee));
  EXPECT_TRUE(Marque(2, kHorsFeuille));
  ASSERT_EQ(Traits(kTraitAjoute).size(), 1U);
  EXPECT_TRUE(MemeTrait(Traits(kTraitAjoute)[0], LigneDe(0, kMatin, kApresMidi)));
  EXPECT_TRUE(MemeTrait(Traits(kTraitPremiere).at(0), LigneDe(1, kApresMidi, kApresMidi)));
  EXPECT_TRUE(d.Option1[2].choisi);
}

TEST_F(Modes, CentringALineThatWasNotOnTheSheetAddsItAndLosesTheTransports) {
  Montre(0);
  Montre(1);
  Transporte(0, "2");
  Presse(ModeDroite::Centre, 2);
  AttendFeuilleDe(kMidi);
  EXPECT_TRUE(Marque(2, kPremiereDroite));
  EXPECT_TRUE(Marque(0, kDroiteAjoutee));
  EXPECT_TRUE(Marque(1, kDroiteAjoutee));
  EXPECT_EQ(Traits(kTraitAjoute).size(), 2U);
  EXPECT_TRUE(Traits(kTraitTransporte).empty());
  EXPECT_EQ(bureau.transports.ListeTransportDroite, "");
}

TEST_F(Modes, RemovingALineRedrawsTheRest) {
  Montre(0);
  Montre(1);
  Montre(2);
  Presse(ModeDroite::Retire, 1);
  EXPECT_TRUE(Marque(1, kHorsFeuille));
  EXPECT_FALSE(bureau.impression.Frame4[1].visible);
  EXPECT_TRUE(bureau.impression.Frame4[0].visible && bureau.impression.Frame4[2].visible);
  AttendFeuilleDe(kMatin);
  ASSERT_EQ(Traits(kTraitAjoute).size(), 1U);
  EXPECT_TRUE(MemeTrait(Traits(kTraitAjoute)[0], LigneDe(2, kMidi, kMatin)));
  EXPECT_EQ(d.LHeure[1].legende, "15:00:40") << "the line is still stored";
}

TEST_F(Modes, WithTheFirstLineRemovedTheLowestOfTheOthersStartsTheSheet) {
  Montre(0);
  Montre(2);
  Montre(1);
  Presse(ModeDroite::Retire, 0);
  AttendFeuilleDe(kApresMidi);
  EXPECT_TRUE(Marque(1, kPremiereDroite));
  EXPECT_TRUE(Marque(2, kDroiteAjoutee));
}

TEST_F(Modes, WithTheLastLineRemovedThePanelsSightIsDrawn) {
  Montre(1);
  Presse(ModeDroite::Retire, 1);
  AttendFeuilleDe(kApresMidi);
  EXPECT_TRUE(Marque(1, kHorsFeuille));
  EXPECT_EQ(Traits(kTraitPremiere).size(), 1U);
}

TEST_F(Modes, EveryBodyJoinsTheSheetUnderItsName) {
  EcritReglage(bureau, "Combo6(1)", "128");
  EcritReglage(bureau, "Combo7(1)", "1");
  const std::array<std::string, 4> noms = {"", d.Option7[1].legende, "Mars", d.Combo6.liste[128]};
  for (const std::size_t corps : {1U, 2U, 3U}) {
    EcritReglage(bureau, "AS(1)", std::to_string(corps));
    ClicControle(bureau, d.Command6);
    Montre(0);
    boites.clear();
    Montre(1);
    EXPECT_TRUE(boites.empty()) << corps;
    EXPECT_EQ(bureau.NomAstre, noms.at(corps));
    EXPECT_EQ(d.LHeure[1].couleur, kDroiteAjoutee);
    EXPECT_NE(bureau.visee.Intercept, 0.0F);
    EXPECT_FALSE(Traits(kTraitAjoute).empty());
  }
}

TEST_F(Modes, AStarOrAPlanetOfReadingZeroJoinsTheSheetUnderItsOwnName) {
  EcritReglage(bureau, "Combo6(1)", "128");
  EcritReglage(bureau, "Combo7(1)", "1");
  for (const char *champ : {"T12(1)", "T13(1)", "T25(1)"}) {
    EcritReglage(bureau, champ, "00");
  }
  Montre(0);
  const float intercept = bureau.visee.Intercept;
  for (const auto &[corps, nom] : {std::pair<const char *, std::string>{"2", "Mars"}, {"3", d.Combo6.liste[128]}}) {
    EcritReglage(bureau, "AS(1)", corps);
    Montre(1);
    EXPECT_EQ(bureau.NomAstre, nom);
    EXPECT_EQ(bureau.visee.Intercept, intercept) << "not reduced";
  }
}

} // namespace
} // namespace velmaris::essais
