#include "tests/shell/droites/OutilsDroites.hpp"

#include <algorithm>

namespace velmaris::essais {
namespace {

class Transport : public QuatreDroites {
protected:
  void SetUp() override { TroisDroites(); }

  /// The line of position that a stored line makes through a point.
  Segment LigneEn(Point p, int ligne) { return LigneDepuis(p, Garde("Az(", ligne), Garde("In(", ligne)); }

  /// The last green line is a stored line through a point, with a green circle there.
  void AttendTransportee(int ligne, Point p) {
    const auto traits = Traits(kTraitTransporte);
    ASSERT_FALSE(traits.empty());
    const Segment attendu = LigneEn(p, ligne);
    EXPECT_TRUE(MemeTrait(traits.back(), attendu)) << traits.back().debut.x << " " << traits.back().debut.y << " for "
                                                   << attendu.debut.x << " " << attendu.debut.y;
    EXPECT_NEAR(bureau.transports.PointX, p.x, kPresSurface);
    EXPECT_NEAR(bureau.transports.PointY, p.y, kPresSurface);
  }

  /// A run of 30 miles on 060 from the morning's position, from 9 to 12 at 10 knots.
  void EstimeTrenteMilles() {
    Intervalle(9, 0, 12, 0);
    Route("060", "10");
  }

  /// Where that run ends, by its departure and its departure's cosine.
  static double LatitudeCourue() { return LatitudeDe(kMatin) + 30 * std::cos(kPi / 3) / 60; }
  static double LongitudeCourue() {
    return LongitudeDe(kMatin) - 30 * std::sin(kPi / 3) / std::cos(LatitudeDe(kMatin) * kPi / 180) / 60;
  }
  Point PointCouru() const {
    return Lieu(LatitudeCourue(), LongitudeCourue(), LatitudeDe(kMatin), LongitudeDe(kMatin));
  }

  /// Leaves the flag of a transport that didn't run to its end.
  void TransportSansCible() { Transporte(0, ""); }
};

TEST_F(Transport, ALineIsDrawnAgainThroughThePointOfTheSheetsFirstLine) {
  Montre(1);
  Transporte(0, "2");
  AttendTransportee(0, {bureau.image1.largeur / 2, bureau.image1.hauteur / 2});
}

TEST_F(Transport, ALineIsDrawnAgainThroughThePointOfAnAddedLine) {
  Montre(0);
  Montre(1);
  Transporte(0, "2");
  AttendTransportee(0, Lieu(LatitudeDe(kApresMidi), LongitudeDe(kApresMidi), LatitudeDe(kMatin), LongitudeDe(kMatin)));
  EXPECT_EQ(Traits(kTraitTransporte).size(), 1U);
}

TEST_F(Transport, ALineThatIsNotOnTheSheetCanBeCarriedToOneThatIsNotEither) {
  Montre(2);
  Transporte(0, "2");
  AttendTransportee(0, Lieu(LatitudeDe(kApresMidi), LongitudeDe(kApresMidi), LatitudeDe(kMidi), LongitudeDe(kMidi)));
}

TEST_F(Transport, TheTargetHasAGreenCircleOfATwoHundredthOfTheWidth) {
  Montre(0);
  Transporte(0, "2");
  const auto cercles = CerclesEn(kTraitTransporte);
  ASSERT_EQ(cercles.size(), 1U);
  EXPECT_TRUE(Pres(cercles[0].centre, {bureau.transports.PointX, bureau.transports.PointY}));
  EXPECT_DOUBLE_EQ(cercles[0].rayon, bureau.image1.largeur / 200);
}

TEST_F(Transport, TheCarriedLinesOldPlaceStaysDrawn) {
  Montre(0);
  const auto premiere = Traits(kTraitPremiere);
  Transporte(0, "2");
  ASSERT_EQ(Traits(kTraitPremiere).size(), premiere.size());
  EXPECT_TRUE(MemeTrait(Traits(kTraitPremiere)[0], premiere[0]));
}

TEST_F(Transport, SouthAndEastTargetsLieBelowAndRight) {
  for (const auto &[cle, valeur] : std::map<std::string, std::string>{
           {"T6(3)", "00"}, {"T7(3)", "06"}, {"T8(3)", "00"}, {"T9(3)", "04"}, {"Hem(3)", "Sud"}, {"Lon(3)", "Est"}}) {
    EcritReglage(bureau, cle, valeur);
  }
  TapeSoleil({"09", "00", "10", "00", "05", false, "00", "05", false, "40", "00", "00"});
  Calcule();
  Transporte(0, "4");
  AttendTransportee(0, Lieu(-4.0 / 60, -6.0 / 60, 5.0 / 60, 5.0 / 60));
  EXPECT_GT(bureau.transports.PointX, bureau.image1.largeur / 2);
  EXPECT_GT(bureau.transports.PointY, bureau.image1.hauteur / 2);
}

TEST_F(Transport, ATargetWithoutSidesIsSouthAndWest) {
  EcritReglage(bureau, "T7(3)", "06");
  EcritReglage(bureau, "T9(3)", "04");
  TapeSoleil({"09", "00", "10", "00", "05", false, "00", "05", false, "40", "00", "00"});
  Calcule();
  Transporte(0, "4");
  AttendTransportee(0, Lieu(-4.0 / 60, 6.0 / 60, 5.0 / 60, 5.0 / 60));
}

TEST_F(Transport, AzimutAndInterceptBecomeThoseOfTheCarriedLine) {
  Montre(1);
  Transporte(0, "2");
  EXPECT_FLOAT_EQ(bureau.visee.Azimut, static_cast<float>(Garde("Az(", 0)));
  EXPECT_FLOAT_EQ(bureau.visee.Intercept, static_cast<float>(Garde("In(", 0)));
}

TEST_F(Transport, NeitherPanelNorStoreNorMarksNorPrintedRowsChange) {
  Montre(1);
  const auto magasin = Magasin();
  const Observation panneau = LitPanneau(d);
  Transporte(0, "2");
  EXPECT_EQ(Magasin(), magasin);
  EXPECT_EQ(d.Text3.texte + d.Text8.texte + d.Text9.texte, panneau.heure + "4720");
  EXPECT_TRUE(Marque(0, kHorsFeuille));
  EXPECT_TRUE(Marque(1, kPremiereDroite));
  EXPECT_FALSE(bureau.impression.Frame4[0].visible);
  EXPECT_TRUE(d.Option1[1].choisi);
}

TEST_F(Transport, EachLineIsListedOnceInTheOrderOfTheTransports) {
  Montre(1);
  Transporte(2, "2");
  EXPECT_EQ(bureau.transports.ListeTransportDroite, "2");
  Transporte(0, "2");
  Transporte(2, "2");
  EXPECT_EQ(bureau.transports.ListeTransportDroite, "20");
  EXPECT_EQ(bureau.transports.CibleTransport, "2");
  EXPECT_EQ(Traits(kTraitTransporte).size(), 3U) << "drawn again though listed";
  EXPECT_EQ(bureau.transports.ListeTransportEstime, "");
}

TEST_F(Transport, TheTargetIsNotedOnlyWithALineThatIsNew) {
  Montre(1);
  Transporte(0, "2");
  Transporte(0, "3");
  EXPECT_EQ(bureau.transports.CibleTransport, "2");
  Transporte(2, "1");
  EXPECT_EQ(bureau.transports.CibleTransport, "1");
}

TEST_F(Transport, ACarriedLineHasNoMileTicks) {
  Montre(1);
  const std::size_t avant = Milles();
  EXPECT_EQ(avant, static_cast<std::size_t>(std::fabs(Garde("In(", 1)))) << "a tick a whole mile";
  Transporte(0, "2");
  EXPECT_EQ(Milles(), avant);
  EXPECT_EQ(bureau.feuille.TransportEnCours, 0);
}

TEST_F(Transport, WithoutASheetTheScreenIsClearedAndNothingCarried) {
  Ligne(bureau.image1, {0, 0}, {100, 100}, kNoir);
  bureau.transports.ListeTransportDroite = "1";
  d.LHeure[3].couleur = kDroiteAjoutee;
  d.LabLon.legende = "L O N";
  Transporte(0, "2");
  EXPECT_TRUE(bureau.image1.traces.empty());
  EXPECT_EQ(d.LabLon.legende, "");
  EXPECT_EQ(d.LHeure[3].couleur, kHorsFeuille);
  EXPECT_EQ(bureau.transports.ListeTransportDroite, "");
  EXPECT_TRUE(d.Option1[2].choisi);
  EXPECT_EQ(bureau.feuille.TransportEnCours, 1);
  EXPECT_TRUE(boites.empty());
}

TEST_F(Transport, WithoutATargetABoxAsksForOneAndNothingIsDrawn) {
  Montre(1);
  const std::size_t traces = bureau.image1.traces.size();
  TransportSansCible();
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_EQ(boites[0].texte, bureau.messages[12]);
  EXPECT_NE(boites[0].texte, "");
  EXPECT_EQ(boites[0].titre, "Velmaris");
  EXPECT_EQ(boites[0].icone, Icone::Aucune);
  EXPECT_FALSE(boites[0].question);
  EXPECT_EQ(bureau.image1.traces.size(), traces);
  EXPECT_EQ(bureau.transports.ListeTransportDroite, "");
  EXPECT_EQ(bureau.feuille.TransportEnCours, 1);
}

TEST_F(Transport, ALineWithoutInterceptIsNeitherDrawnNorListed) {
  Montre(1);
  const std::size_t traces = bureau.image1.traces.size();
  Transporte(3, "2");
  EXPECT_EQ(bureau.image1.traces.size(), traces) << "never stored";
  EXPECT_EQ(bureau.feuille.TransportEnCours, 1);
  reponse = true;
  Presse(ModeDroite::Efface, 0);
  boites.clear();
  Transporte(0, "2");
  EXPECT_EQ(bureau.image1.traces.size(), traces) << "erased";
  EXPECT_EQ(bureau.transports.ListeTransportDroite, "");
  EXPECT_EQ(bureau.feuille.TransportEnCours, 1);
  EXPECT_TRUE(boites.empty());
}

TEST_F(Transport, MileTicksStayOffAfterAFailedTransportUntilOneRunsToItsEnd) {
  Montre(1);
  TransportSansCible();
  const std::size_t avant = Milles();
  Montre(0);
  EXPECT_EQ(Milles(), avant);
  Transporte(0, "2");
  Montre(2);
  EXPECT_EQ(Milles(), avant + static_cast<std::size_t>(std::fabs(Garde("In(", 2))));
}

TEST_F(Transport, TicksAreOffForANewSheetToo) {
  Montre(1);
  TransportSansCible();
  ClicControle(bureau, d.Command6);
  Montre(0);
  EXPECT_EQ(Traits(kTraitPremiere).size(), 1U);
  EXPECT_EQ(Milles(), 0U);
}

TEST_F(Transport, ALineCarriedToTheDeadReckoningPointIsGreenWithARedCircle) {
  Montre(0);
  EstimeTrenteMilles();
  Presse(ModeDroite::TransporteEstime, 1);
  AttendTransportee(1, PointCouru());
  const auto cercles = CerclesEn(kRouge);
  ASSERT_EQ(cercles.size(), 1U);
  EXPECT_TRUE(Pres(cercles[0].centre, PointCouru(), kPresSurface));
  EXPECT_DOUBLE_EQ(cercles[0].rayon, bureau.image1.largeur / 150);
  EXPECT_TRUE(CerclesEn(kTraitTransporte).empty());
}

TEST_F(Transport, TheRunIsARedDottedLineFromTheDepartureInMilesOfTheSheet) {
  Montre(0);
  EstimeTrenteMilles();
  Presse(ModeDroite::TransporteEstime, 0);
  const auto parcours = Traits(kRouge, Style::Points);
  ASSERT_EQ(parcours.size(), 1U);
  const double D = 30 * UnitesParMille();
  const Point fin = PointCouru();
  EXPECT_TRUE(Pres(parcours[0].fin, fin, kPresSurface));
  EXPECT_TRUE(Pres(parcours[0].debut, {fin.x - D * std::sin(kPi / 3), fin.y + D * std::cos(kPi / 3)}, kPresSurface));
  EXPECT_TRUE(Pres(parcours[0].debut, {bureau.image1.largeur / 2, bureau.image1.hauteur / 2}, 1))
      << "on a flat sheet of that latitude it starts at the position it was run from";
  EXPECT_EQ(bureau.image1.style, Style::Plein);
}

TEST_F(Transport, TheRunOfARoundedDistanceIsAsLongAsTheFieldSays) {
  Montre(0);
  Intervalle(9, 0, 10, 0);
  Route("090", "5.5");
  ASSERT_EQ(d.Text15.texte, "6");
  Presse(ModeDroite::TransporteEstime, 0);
  const auto parcours = Traits(kRouge, Style::Points);
  ASSERT_EQ(parcours.size(), 1U);
  EXPECT_NEAR(parcours[0].fin.x - parcours[0].debut.x, 6 * UnitesParMille(), kPresSurface);
}

TEST_F(Transport, ALineCarriedToTheDeadReckoningPointKeepsItsMileTicks) {
  Montre(0);
  EstimeTrenteMilles();
  const std::size_t avant = Milles();
  Presse(ModeDroite::TransporteEstime, 1);
  const std::size_t apres = avant + static_cast<std::size_t>(std::fabs(Garde("In(", 1)));
  EXPECT_EQ(Milles(), apres);
  TransportSansCible();
  Presse(ModeDroite::TransporteEstime, 2);
  EXPECT_EQ(Milles(), apres) << "off after a failed transport";
  EXPECT_EQ(bureau.feuille.TransportEnCours, 1) << "only a transport to a line ends that";
}

TEST_F(Transport, TheDeadReckoningListHoldsEachLineOnceWithTheTextOfTheTarget) {
  Montre(0);
  EstimeTrenteMilles();
  PoseTexte(bureau, d.Combo5, "3");
  for (const int ligne : {1, 0, 1}) {
    Presse(ModeDroite::TransporteEstime, ligne);
  }
  EXPECT_EQ(bureau.transports.ListeTransportEstime, "10");
  EXPECT_EQ(bureau.transports.ListeTransportDroite, "");
  EXPECT_EQ(bureau.transports.CibleTransport, "3");
  EXPECT_EQ(Traits(kTraitTransporte).size(), 3U);
}

TEST_F(Transport, ALineWithoutInterceptIsNotCarriedToTheDeadReckoningPoint) {
  Montre(0);
  EstimeTrenteMilles();
  const std::size_t traces = bureau.image1.traces.size();
  Presse(ModeDroite::TransporteEstime, 3);
  EXPECT_EQ(bureau.image1.traces.size(), traces);
  EXPECT_EQ(bureau.transports.ListeTransportEstime, "");
  EXPECT_TRUE(boites.empty());
}

TEST_F(Transport, EcranEmptiesTheListsAndTheTarget) {
  Montre(0);
  EstimeTrenteMilles();
  Transporte(1, "1");
  Presse(ModeDroite::TransporteEstime, 1);
  ClicControle(bureau, d.Command6);
  EXPECT_EQ(bureau.transports.ListeTransportDroite + bureau.transports.ListeTransportEstime, "");
  EXPECT_EQ(bureau.transports.CibleTransport, "");
}

} // namespace
} // namespace velmaris::essais
