#include "lines/FichierLoP.hpp"

#include "tests/OutilsTests.hpp"

#include <gtest/gtest.h>

/// The file of a sight: what is written, under what name, and the way there and back through the disk.
namespace velmaris {
namespace {

using namespace essais;

Observation Visee() {
  Observation o;
  o.jour = "15";
  o.mois = "03";
  o.annee = "2009";
  o.heure = "12";
  o.minute = "05";
  o.seconde = "30";
  o.longitudeDegres = "06";
  o.longitudeMinutes = "07";
  o.latitudeDegres = "48";
  o.latitudeMinutes = "09";
  o.hauteurOeil = "2,0";
  o.collimation = "-1,5";
  o.lectureMinutes = "22";
  o.lectureDegres = "33";
  o.lectureFraction = "44";
  return o;
}

constexpr const char *kSoleil =
    "12\r\n05\r\n30\r\n15\r\n03\r\n2009\r\n06\r\n07\r\n48\r\n09\r\n2,0\r\n-1,5\r\n22\r\n33\r\n"
    "Nord\r\nOuest\r\n44\r\n 0 \r\nNATU\r\n 1 \r\n0\r\n";

TEST(SightFile, HasTwentyOneLinesForTheSun) { EXPECT_EQ(EcritLoP(Visee()), kSoleil); }

TEST(SightFile, TheOtherChoicesOfEveryLine) {
  Observation o = Visee();
  o.sud = true;
  o.est = true;
  o.corps = Corps::Lune;
  o.horizon = Horizon::Artificiel;
  o.bord = Bord::Centre;
  o.fraction = Fraction::Centiemes;
  EXPECT_EQ(EcritLoP(o), "12\r\n05\r\n30\r\n15\r\n03\r\n2009\r\n06\r\n07\r\n48\r\n09\r\n2,0\r\n-1,5\r\n22\r\n33\r\n"
                         "Sud\r\nEst\r\n44\r\n 1 \r\nARTI\r\n 2 \r\n1\r\n");
}

/// The end of a file, from the line of the body on.
std::string Fin(const Observation &o) {
  const std::string texte = EcritLoP(o);
  return texte.substr(texte.find("44\r\n") + 4);
}

TEST(SightFile, APlanetOrAStarAddsItsPlaceInTheList) {
  Observation o = Visee();
  o.bord = Bord::Superieur;
  o.corps = Corps::Planetes;
  o.planete = 3;
  o.etoile = 99;
  EXPECT_EQ(Fin(o), " 2 \r\nNATU\r\n 0 \r\n0\r\n 3 \r\n");
  o.corps = Corps::Etoiles;
  EXPECT_EQ(Fin(o), " 3 \r\nNATU\r\n 0 \r\n0\r\n 99 \r\n");
}

TEST(SightFile, NoPlanetOrNoStarIsMinusOneWithoutItsLeadingBlank) {
  Observation o = Visee();
  o.corps = Corps::Etoiles;
  EXPECT_EQ(Fin(o), " 3 \r\nNATU\r\n 1 \r\n0\r\n-1 \r\n");
  o.corps = Corps::Planetes;
  EXPECT_EQ(Fin(o), " 2 \r\nNATU\r\n 1 \r\n0\r\n-1 \r\n");
}

TEST(SightFile, FieldsAreWrittenUntrimmedAsTheyStand) {
  const std::string texte = EcritLoP({});
  EXPECT_EQ(texte.substr(0, 28), std::string("\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n"));
  Observation o = Visee();
  o.heure = " 7 ";
  o.hauteurOeil = "abc";
  EXPECT_EQ(EcritLoP(o).substr(0, 5), " 7 \r\n");
  EXPECT_NE(EcritLoP(o).find("\r\nabc\r\n"), std::string::npos);
}

void CompareVisees(const Observation &a, const Observation &b) {
  EXPECT_EQ(EcritLoP(a), EcritLoP(b));
  EXPECT_EQ(a.corps, b.corps);
  EXPECT_EQ(a.bord, b.bord);
  EXPECT_EQ(a.horizon, b.horizon);
  EXPECT_EQ(a.fraction, b.fraction);
  EXPECT_EQ(a.sud, b.sud);
  EXPECT_EQ(a.est, b.est);
}

TEST(SightFile, EverySightComesBackFromTheDiskAsItWent) {
  const DossierTemporaire dossier;
  for (int n = 0; n < 4 * 3 * 2 * 2 * 4; ++n) {
    Observation o = Visee();
    o.corps = static_cast<Corps>(n % 4);
    o.bord = static_cast<Bord>(n / 4 % 3);
    o.horizon = static_cast<Horizon>(n / 12 % 2);
    o.fraction = static_cast<Fraction>(n / 24 % 2);
    o.sud = (n / 48 & 1) != 0;
    o.est = (n / 48 & 2) != 0;
    o.planete = o.corps == Corps::Planetes ? n % 5 - 1 : -1;
    o.etoile = o.corps == Corps::Etoiles ? n * 5 % (kNombreEtoiles + 1) - 1 : -1;
    SauveLoP(dossier / "sight.LoP", o);
    Observation relue;
    ChargeLoP(dossier / "sight.LoP", relue);
    CompareVisees(o, relue);
    EXPECT_EQ(relue.planete, o.planete);
    EXPECT_EQ(relue.etoile, o.etoile);
  }
}

TEST(SightFile, IsWrittenInWindows1252) {
  const DossierTemporaire dossier;
  Observation o = Visee();
  o.heure = "12é€";
  SauveLoP(dossier / "sight.LoP", o);
  EXPECT_EQ(Contenu(dossier / "sight.LoP").substr(0, 6), "12\xE9\x80\r\n");
  Observation relue;
  ChargeLoP(dossier / "sight.LoP", relue);
  EXPECT_EQ(relue.heure, "12é€");
}

TEST(SightFile, IsReplacedWholeAndNothingStaysBeside) {
  const DossierTemporaire dossier;
  Pose(dossier / "sight.LoP", std::string(5000, 'x'));
  SauveLoP(dossier / "sight.LoP", Visee());
  EXPECT_EQ(Contenu(dossier / "sight.LoP"), kSoleil);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dossier.chemin()), {}), 1);
}

TEST(SightFile, AFailedSaveIsReported) {
  const DossierTemporaire dossier;
  EXPECT_EQ(NumeroErreur([&] { SauveLoP(dossier / "none/sight.LoP", Visee()); }), 75);
}

TEST(SightFile, AMissingFileIsError53AndADirectory75) {
  const DossierTemporaire dossier;
  Observation o = Visee();
  EXPECT_EQ(NumeroErreur([&] { ChargeLoP(dossier / "none.LoP", o); }), 53);
  EXPECT_EQ(NumeroErreur([&] { ChargeLoP(dossier.chemin(), o); }), 75);
  EXPECT_EQ(EcritLoP(o), kSoleil);
}

TEST(ProposedName, IsDayMonthYearAndTime) { EXPECT_EQ(NomProposeLoP(Visee()), "15MAR09 120530.LoP"); }

TEST(ProposedName, EachMonthHasItsThreeLetters) {
  const char *lettres[] = {"JAN", "FEV", "MAR", "AVR", "MAI", "JUN", "JUI", "AOU", "SEP", "OCT", "NOV", "DEC"};
  Observation o = Visee();
  for (int mois = 1; mois <= 12; ++mois) {
    o.mois = (mois < 10 ? "0" : "") + std::to_string(mois);
    EXPECT_EQ(NomProposeLoP(o), std::string("15") + lettres[mois - 1] + "09 120530.LoP");
    o.mois = std::to_string(mois);
    EXPECT_EQ(NomProposeLoP(o), std::string("15") + lettres[mois - 1] + "09 120530.LoP");
  }
}

TEST(ProposedName, AMonthOutside1To12AddsNothing) {
  Observation o = Visee();
  for (const char *mois : {"0", "00", "13", "-1", "", "MAR", "99999"}) {
    o.mois = mois;
    EXPECT_EQ(NomProposeLoP(o), "1509 120530.LoP") << mois;
  }
}

TEST(ProposedName, AnUnsetYearKeepsTheBlank) {
  Observation o = Visee();
  o.annee = "";
  EXPECT_EQ(NomProposeLoP(o), "15MAR 120530.LoP");
  o.annee = "9";
  EXPECT_EQ(NomProposeLoP(o), "15MAR9 120530.LoP");
}

TEST(ProposedName, TakesTheFieldsAsTheyStand) {
  EXPECT_EQ(NomProposeLoP({}), " .LoP");
  Observation o = Visee();
  o.heure = "7";
  o.minute = "";
  EXPECT_EQ(NomProposeLoP(o), "15MAR09 730.LoP");
}

} // namespace
} // namespace velmaris
