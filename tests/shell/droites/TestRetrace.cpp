#include "tests/shell/droites/OutilsDroites.hpp"

#include <algorithm>
#include <functional>

namespace velmaris::essais {
namespace {

class Retrace : public QuatreDroites {
protected:
  void SetUp() override { TroisDroites(); }

  void Zoome(int milles) { BougeCurseur(bureau, d.HScroll1, milles * 10); }

  /// A stored line, drawn from a place on the sheet around another place.
  Segment Attendue(int ligne, const Visee &lieu, const Visee &feuille) {
    return LigneDepuis(Lieu(LatitudeDe(lieu), LongitudeDe(lieu), LatitudeDe(feuille), LongitudeDe(feuille)),
                       Garde("Az(", ligne), Garde("In(", ligne));
  }

  /// The lines of one colour are these, in this order.
  void AttendTraits(Couleur couleur, const std::vector<Segment> &attendus) {
    const auto traits = Traits(couleur);
    ASSERT_EQ(traits.size(), attendus.size());
    for (std::size_t i = 0; i < traits.size(); ++i) {
      EXPECT_TRUE(MemeTrait(traits[i], attendus[i])) << i;
    }
  }

  /// A run of 20 miles due west of the morning's position.
  void EstimeVersLOuest() {
    Intervalle(9, 0, 11, 0);
    Route("270", "10");
  }
  Segment LigneEstimee(int ligne) {
    const double latitude = LatitudeDe(kMatin);
    const double longitude = LongitudeDe(kMatin) + 20 / 60.0 / std::cos(latitude * kPi / 180);
    return LigneDepuis(Lieu(latitude, longitude, latitude, LongitudeDe(kMatin)), Garde("Az(", ligne),
                       Garde("In(", ligne));
  }
};

TEST_F(Retrace, TheGreenLineComesFirstThoughARedOneHasALowerNumber) {
  Montre(1);
  Montre(2);
  Montre(0);
  for (const int zoom : {120, 60, 900}) {
    Zoome(zoom);
    AttendTraits(kTraitPremiere, {Attendue(1, kApresMidi, kApresMidi)});
    AttendTraits(kTraitAjoute, {Attendue(0, kMatin, kApresMidi), Attendue(2, kMidi, kApresMidi)});
    EXPECT_TRUE(Marque(0, kDroiteAjoutee));
    EXPECT_TRUE(Marque(1, kPremiereDroite));
    EXPECT_TRUE(Marque(2, kDroiteAjoutee));
    EXPECT_TRUE(Marque(3, kHorsFeuille));
  }
  EXPECT_TRUE(boites.empty());
}

TEST_F(Retrace, LinesAreDrawnOnceHoweverOftenTheSheetIsRedrawn) {
  Montre(0);
  Montre(1);
  Montre(1);
  ASSERT_EQ(Traits(kTraitAjoute).size(), 2U);
  RetraceDroites(bureau);
  RetraceDroites(bureau);
  EXPECT_EQ(Traits(kTraitAjoute).size(), 1U);
}

TEST_F(Retrace, TheLineDrawnLastIsInThePanelAndPrintRowsFollow) {
  Montre(1);
  Montre(0);
  TapeSoleil(kMidi);
  Zoome(120);
  EXPECT_EQ(d.Text3.texte + d.Text4.texte + d.Text5.texte, "090010");
  EXPECT_TRUE(bureau.impression.Frame4[0].visible && bureau.impression.Frame4[1].visible);
  EXPECT_FALSE(bureau.impression.Frame4[2].visible);
}

TEST_F(Retrace, WithNoLineOnTheSheetThePanelsSightIsDrawn) {
  TapeSoleil(kMidi);
  Zoome(120);
  EXPECT_EQ(bureau.feuille.OrigineFeuille,
            (Origine{static_cast<float>(LatitudeDe(kMidi)), static_cast<float>(LongitudeDe(kMidi))}));
  AttendTraits(kTraitPremiere, {Attendue(2, kMidi, kMidi)});
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_TRUE(Marque(i, kHorsFeuille));
  }
}

TEST_F(Retrace, RedrawingInTheStoringModeStoresNothing) {
  Montre(1);
  TapeSoleil(kMidi);
  const auto magasin = Magasin();
  for (const int mode : {0, 3, 5, 6}) {
    ClicOption(bureau, d.Option1[static_cast<std::size_t>(mode)]);
    Zoome(120 + mode);
    EXPECT_EQ(Magasin(), magasin) << mode;
    EXPECT_TRUE(d.Option1[2].choisi) << mode;
    EXPECT_TRUE(Marque(1, kPremiereDroite)) << mode;
  }
  EXPECT_TRUE(boites.empty());
}

TEST_F(Retrace, CarriedLinesComeBackInTheirPlacesAfterAChangeOfZoom) {
  Montre(0);
  Montre(1);
  Transporte(0, "2");
  Transporte(2, "2");
  const std::vector<Segment> avant = {Attendue(0, kApresMidi, kMatin), Attendue(2, kApresMidi, kMatin)};
  AttendTraits(kTraitTransporte, avant);
  Zoome(80);
  AttendTraits(kTraitTransporte, {Attendue(0, kApresMidi, kMatin), Attendue(2, kApresMidi, kMatin)});
  EXPECT_FALSE(MemeTrait(Traits(kTraitTransporte)[0], avant[0])) << "on the new scale";
  Zoome(200);
  AttendTraits(kTraitTransporte, avant);
  EXPECT_EQ(bureau.transports.ListeTransportDroite, "02");
  EXPECT_EQ(CerclesEn(kTraitTransporte).size(), 2U);
}

TEST_F(Retrace, CarriedLinesComeBackWhateverTheListOfTargetsShowsMeanwhile) {
  Montre(0);
  Transporte(0, "2");
  PoseTexte(bureau, d.Combo5, "");
  Zoome(80);
  AttendTraits(kTraitTransporte, {Attendue(0, kApresMidi, kMatin)});
  EXPECT_EQ(d.Combo5.texte, "2");
  EXPECT_TRUE(boites.empty());
}

TEST_F(Retrace, LinesCarriedToTwoTargetsComeBackAtTheOneNotedLast) {
  Montre(0);
  Transporte(0, "2");
  Transporte(1, "3");
  Zoome(80);
  AttendTraits(kTraitTransporte, {Attendue(0, kMidi, kMatin), Attendue(1, kMidi, kMatin)});
}

TEST_F(Retrace, LinesCarriedToTheDeadReckoningPointComeBackWithTheirRun) {
  Montre(0);
  EstimeVersLOuest();
  Presse(ModeDroite::TransporteEstime, 1);
  Presse(ModeDroite::TransporteEstime, 0);
  AttendTraits(kTraitTransporte, {LigneEstimee(1), LigneEstimee(0)});
  Zoome(80);
  AttendTraits(kTraitTransporte, {LigneEstimee(1), LigneEstimee(0)});
  const auto parcours = Traits(kRouge, Style::Points);
  ASSERT_EQ(parcours.size(), 2U);
  const Point centre{bureau.image1.largeur / 2, bureau.image1.hauteur / 2};
  for (const Segment &s : parcours) {
    EXPECT_TRUE(Pres(s.debut, centre, 1));
    EXPECT_TRUE(Pres(s.fin, {centre.x - 20 * bureau.image1.hauteur / 80, centre.y}, 1));
  }
  EXPECT_EQ(bureau.transports.ListeTransportEstime, "10");
}

TEST_F(Retrace, TheDeadReckoningPointStaysThoughThePanelHoldsAnotherPosition) {
  Montre(0);
  EstimeVersLOuest();
  Presse(ModeDroite::TransporteEstime, 0);
  const std::string latitude = d.LabLatEst.legende;
  Montre(1);
  Zoome(80);
  AttendTraits(kTraitTransporte, {LigneEstimee(0)});
  EXPECT_EQ(d.LabLatEst.legende, latitude);
}

TEST_F(Retrace, TheModeIsLeftAtTheLastOneThatWasNeeded) {
  Montre(0);
  Zoome(80);
  EXPECT_TRUE(d.Option1[2].choisi);
  Transporte(0, "2");
  ClicOption(bureau, d.Option1[0]);
  Zoome(81);
  EXPECT_TRUE(d.Option1[1].choisi);
  EXPECT_TRUE(d.Combo5.actif);
  EstimeVersLOuest();
  Presse(ModeDroite::TransporteEstime, 0);
  ClicOption(bureau, d.Option1[0]);
  Zoome(82);
  EXPECT_TRUE(d.Option1[4].choisi) << "both lists: to lines first";
  EXPECT_FALSE(d.Combo5.actif);
  EXPECT_EQ(Traits(kTraitTransporte).size(), 2U);
}

TEST_F(Retrace, ListsSurviveTheGrid) {
  Montre(0);
  EstimeVersLOuest();
  Transporte(0, "2");
  Presse(ModeDroite::TransporteEstime, 1);
  const std::vector<Segment> attendus = {Attendue(0, kApresMidi, kMatin), LigneEstimee(1)};
  ClicControle(bureau, d.Command14);
  AttendTraits(kTraitTransporte, attendus);
  ClicControle(bureau, d.Command12);
  AttendTraits(kTraitTransporte, attendus);
  EXPECT_EQ(bureau.transports.ListeTransportDroite, "0");
  EXPECT_EQ(bureau.transports.ListeTransportEstime, "1");
}

TEST_F(Retrace, AfterEcranNothingIsCarriedBack) {
  Montre(0);
  EstimeVersLOuest();
  Transporte(0, "2");
  Presse(ModeDroite::TransporteEstime, 1);
  ClicControle(bureau, d.Command6);
  Zoome(80);
  EXPECT_TRUE(Traits(kTraitTransporte).empty());
  EXPECT_TRUE(Traits(kRouge, Style::Points).empty());
  EXPECT_TRUE(d.Option1[2].choisi);
}

TEST_F(Retrace, RemovingALineLeavesItsTransport) {
  Montre(1);
  Montre(0);
  Transporte(0, "2");
  Presse(ModeDroite::Retire, 0);
  EXPECT_TRUE(Traits(kTraitAjoute).empty());
  AttendTraits(kTraitTransporte, {Attendue(0, kApresMidi, kApresMidi)});
  EXPECT_TRUE(d.Option1[1].choisi);
}

TEST_F(Retrace, AMarkedLineThatWasErasedSinceIsToldAndTheOthersComeBack) {
  Montre(0);
  Montre(1);
  Montre(2);
  EffaceDroite(bureau, 1);
  Zoome(80);
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_EQ(boites[0].texte, bureau.messages[11]);
  EXPECT_EQ(boites[0].titre, "Erreur");
  AttendTraits(kTraitPremiere, {Attendue(0, kMatin, kMatin)});
  AttendTraits(kTraitAjoute, {Attendue(2, kMidi, kMatin)});
  EXPECT_TRUE(Marque(1, kDroiteAjoutee)) << "its mark is its only record";
}

TEST_F(Retrace, WithTheGreenLineErasedSinceTheNextRedOneStartsTheSheet) {
  Montre(0);
  Montre(1);
  EffaceDroite(bureau, 0);
  Zoome(80);
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_EQ(boites[0].texte, bureau.messages[11]);
  AttendTraits(kTraitPremiere, {Attendue(1, kApresMidi, kApresMidi)});
  EXPECT_TRUE(Marque(1, kPremiereDroite));
}

TEST_F(Retrace, WithItsOnlyLineErasedSinceThereIsNoSheet) {
  Montre(0);
  EffaceDroite(bureau, 0);
  Zoome(80);
  EXPECT_EQ(boites.size(), 1U);
  EXPECT_EQ(bureau.feuille.OrigineFeuille, kSansFeuille) << "the line counts, so the panel isn't drawn in its stead";
}

TEST_F(Retrace, ACarriedLineThatWasErasedSinceIsLeftOutAndTicksStayOff) {
  Montre(1);
  Transporte(0, "2");
  reponse = true;
  Presse(ModeDroite::Efface, 0);
  Zoome(80);
  EXPECT_TRUE(Traits(kTraitTransporte).empty());
  EXPECT_EQ(bureau.transports.ListeTransportDroite, "0");
  EXPECT_EQ(bureau.feuille.TransportEnCours, 1);
  EXPECT_GT(Milles(), 0U) << "drawn before the transport";
  Zoome(81);
  EXPECT_EQ(Milles(), 0U);
}

TEST_F(Retrace, WithoutASheetToCarryToTheScreenIsClearedAndTheListsAreEmptied) {
  Montre(0);
  EstimeVersLOuest();
  Transporte(0, "2");
  Presse(ModeDroite::TransporteEstime, 0);
  EffaceDroite(bureau, 0);
  Zoome(80);
  EXPECT_TRUE(bureau.image1.traces.empty());
  EXPECT_EQ(bureau.transports.ListeTransportDroite + bureau.transports.ListeTransportEstime, "");
  EXPECT_TRUE(Marque(0, kHorsFeuille));
  EXPECT_TRUE(d.Option1[2].choisi);
}

TEST_F(Retrace, CalculTakesTheLinesOffSoThatAChangeOfZoomDrawsThePanel) {
  Montre(0);
  Montre(1);
  TapeSoleil(kMidi);
  Calcule();
  Zoome(80);
  AttendTraits(kTraitPremiere, {Attendue(2, kMidi, kMidi)});
  EXPECT_TRUE(Traits(kTraitAjoute).empty());
}

/// A star or a planet in the panel after a sight of the Sun, and redraws by slider and grid.
class RetraceInacheve : public Retrace {
protected:
  void SetUp() override {
    DemarreSansCarte();
    TapeSoleil(kMatin);
    Calcule();
  }

  /// Each redraw draws the sheet with these, and says nothing.
  void AttendRedessins(const ValeursVisee &v) {
    const double latitude = LatitudeDe(kMatin);
    const double longitude = LongitudeDe(kMatin);
    const std::vector<std::function<void()>> gestes = {[&] { Zoome(120); }, [&] { ClicControle(bureau, d.Command14); },
                                                       [&] { Zoome(60); }, [&] { ClicControle(bureau, d.Command12); },
                                                       [&] { ClicControle(bureau, d.Command16); }};
    for (std::size_t i = 0; i < gestes.size(); ++i) {
      EXPECT_NO_THROW(gestes[i]()) << i;
      AttendTraits(kTraitPremiere,
                   {LigneDepuis(Lieu(latitude, longitude, latitude, longitude), v.Azimut, v.Intercept)});
      EXPECT_EQ(bureau.visee.Azimut, v.Azimut) << i;
      EXPECT_EQ(bureau.visee.Intercept, v.Intercept) << i;
    }
    EXPECT_TRUE(boites.empty());
  }
};

TEST_F(RetraceInacheve, WithoutAStarOrAPlanetChosenTheSheetIsRedrawnWithTheSightBefore) {
  const ValeursVisee avant = bureau.visee;
  for (const std::size_t corps : {2U, 3U}) {
    ClicOption(bureau, d.Option7[corps]);
    d.Combo6.rang = -1;
    AttendRedessins(avant);
  }
  Calcule();
  ASSERT_EQ(boites.size(), 1U) << "the user who asks for it is told";
  EXPECT_EQ(boites[0].texte, d.TexteSansAstre.legende);
}

TEST_F(RetraceInacheve, AStarOrAPlanetThatCannotBeReducedIsSkippedAndTheSheetIsRedrawn) {
  for (const std::size_t corps : {2U, 3U}) {
    ClicOption(bureau, d.Option7[corps]);
    PoseRang(bureau, corps == 2 ? d.Combo7 : d.Combo6, 1, 4);
    for (Controle *champ : {&d.Text10, &d.Text11}) {
      const std::string garde = champ->texte;
      Tape(*champ, "");
      const ValeursVisee avant = bureau.visee; // the live panel has written its azimuth
      AttendRedessins(avant);
      EXPECT_THROW(Calcule(), Erreur) << "the button lets it reach the program's edge";
      Tape(*champ, garde);
    }
  }
}

TEST_F(Retrace, AStoredStarThatCannotBeReducedAnyMoreLeavesTheOthersOnTheSheet) {
  TapeSoleil(kMidi);
  ClicOption(bureau, d.Option7[3]);
  PoseRang(bureau, d.Combo6, 10, 246);
  Calcule();
  Presse(ModeDroite::Enregistre, 3);
  ClicControle(bureau, d.Command6);
  Montre(0);
  Montre(3);
  Montre(1);
  EcritReglage(bureau, "T10(3)", "");
  EXPECT_NO_THROW(Zoome(80));
  EXPECT_TRUE(boites.empty());
  AttendTraits(kTraitPremiere, {Attendue(0, kMatin, kMatin)});
  const auto ajoutees = Traits(kTraitAjoute);
  ASSERT_EQ(ajoutees.size(), 2U);
  EXPECT_TRUE(MemeTrait(ajoutees[0], Attendue(1, kApresMidi, kMatin)));
  EXPECT_TRUE(Marque(3, kDroiteAjoutee));
}

TEST_F(Retrace, WithTheTrackModuleOpenARedrawBringsTheLinesBackAndFillsNoField) {
  Montre(0);
  EstimeVersLOuest();
  Montre(1);
  Transporte(2, "2");
  Presse(ModeDroite::TransporteEstime, 1);
  ClicControle(bureau, d.Command9);
  Presse(ModeDroite::Affiche, 2);
  const std::array<Controle *, 8> champs = {&d.Text14, &d.Text16, &d.Text17, &d.Text18,
                                            &d.Text20, &d.Text19, &d.Text22, &d.Text21};
  PoseTexte(bureau, d.Text20, "12");
  const auto textes = [&] {
    std::string tout;
    for (const Controle *champ : champs) {
      tout += champ->texte + " ";
    }
    for (const auto *options : {&d.OptN, &d.OptE}) {
      for (std::size_t i = 2; i < options->size(); ++i) {
        tout += (*options)[i].choisi ? '1' : '0';
      }
    }
    return tout + (d.Option2.choisi ? "2" : "3");
  };
  const std::string avant = textes();
  const std::vector<std::function<void()>> gestes = {[&] { Zoome(80); }, [&] { ClicControle(bureau, d.Command14); },
                                                     [&] { Zoome(120); }, [&] { ClicControle(bureau, d.Command16); }};
  for (const auto &geste : gestes) {
    geste();
    EXPECT_EQ(textes(), avant);
    AttendTraits(kTraitPremiere, {Attendue(0, kMatin, kMatin)});
    AttendTraits(kTraitAjoute, {Attendue(1, kApresMidi, kMatin)});
    AttendTraits(kTraitTransporte, {Attendue(2, kApresMidi, kMatin), LigneEstimee(1)});
  }
}

} // namespace
} // namespace velmaris::essais
