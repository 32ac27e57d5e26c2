#include "ephemerides/Etoiles.hpp"

#include "foundations/TexteNombre.hpp"
#include "tests/OutilsTests.hpp"
#include "tests/ephemerides/OutilsEtoiles.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

namespace velmaris {
namespace {

using essais::Ligne;
using essais::LigneEtoile;
using essais::MouvementDe;
using essais::TableLue;

int Compte(bool (*genre)(const LigneEtoile &)) {
  int n = 0;
  for (int i = 1; i <= kNombreLignesEtoiles; ++i) {
    n += genre(Ligne(i)) ? 1 : 0;
  }
  return n;
}

TEST(StarTable, EveryRowHasOneOfNineShapes) {
  for (int i = 1; i <= kNombreLignesEtoiles; ++i) {
    EXPECT_TRUE(Ligne(i).reconnue) << kLignesEtoiles.at(static_cast<std::size_t>(i) - 1);
  }
  EXPECT_EQ(Compte([](const LigneEtoile &l) {
              return l.apresMinutes.empty() && l.separateurDec == ':' && l.signe == "-" && l.secondesDec.empty();
            }),
            125);
  EXPECT_EQ(Compte([](const LigneEtoile &l) {
              return l.apresMinutes.empty() && l.separateurDec == ':' && l.signe == "+" && l.secondesDec.empty();
            }),
            88);
  EXPECT_EQ(Compte([](const LigneEtoile &l) { return l.separateurDec == ',' && l.signe == "-"; }), 8);
  EXPECT_EQ(Compte([](const LigneEtoile &l) { return l.separateurDec == ',' && l.signe == "+"; }), 1);
  EXPECT_EQ(Compte([](const LigneEtoile &l) {
              return !l.apresMinutes.empty() && l.pointAD == ',' && l.secondesDec.size() == 2;
            }),
            15);
  EXPECT_EQ(Compte([](const LigneEtoile &l) {
              return !l.apresMinutes.empty() && l.decimales.empty() && l.secondesDec.size() == 2;
            }),
            6);
  EXPECT_EQ(Compte([](const LigneEtoile &l) { return l.secondesDec.size() == 1; }), 1);
  EXPECT_EQ(Compte([](const LigneEtoile &l) { return l.pointAD == '.'; }), 1);
  EXPECT_EQ(Compte([](const LigneEtoile &l) { return !l.apresMinutes.empty() && l.secondesDec.empty(); }), 1);
}

TEST(StarTable, NamedRowsComeFirstByNameThenTheOthersByRightAscension) {
  for (int i = 1; i <= kNombreLignesEtoiles; ++i) {
    EXPECT_EQ(Ligne(i).nom.empty(), i > 156) << i;
  }
  int inversions = 0;
  for (int i = 158; i <= kNombreLignesEtoiles; ++i) {
    inversions += essais::PlaceVoulue(Ligne(i)).ad < essais::PlaceVoulue(Ligne(i - 1)).ad ? 1 : 0;
  }
  EXPECT_EQ(inversions, 0);
  // Capitals count as their letters: HR2748 comes after Hoedus.
  TableLue t;
  for (std::string &nom : t.liste) {
    std::transform(nom.begin(), nom.end(), nom.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  }
  EXPECT_TRUE(std::is_sorted(t.liste.begin(), t.liste.end()));
}

TEST(StarTable, ARowSplitsIntoLabelNameAndCoordinates) {
  const TableLue t;
  for (int i = 1; i <= kNombreLignesEtoiles; ++i) {
    const auto rang = static_cast<std::size_t>(i);
    const LigneEtoile l = Ligne(i);
    EXPECT_EQ(t.etoiles.EtoileLigne.at(rang), kLignesEtoiles.at(rang - 1));
    EXPECT_EQ(t.etoiles.EtoileBayer.at(rang), l.bayer);
    EXPECT_EQ(t.etoiles.EtoileBayer.at(rang).size(), 5U);
    EXPECT_EQ(t.etoiles.EtoileNom.at(rang), l.nom);
    const std::string avant = "(" + l.bayer + ")" + l.nom + "X";
    EXPECT_EQ(t.etoiles.EtoileCoord.at(rang), kLignesEtoiles.at(rang - 1).substr(avant.size()));
  }
}

TEST(StarTable, RowZeroAndTheRowsAfter246AreEmpty) {
  const TableLue t;
  for (const std::size_t i : {std::size_t{0}, std::size_t{247}, std::size_t{300}}) {
    EXPECT_TRUE(t.etoiles.EtoileLigne.at(i).empty());
    EXPECT_TRUE(t.etoiles.EtoileCoord.at(i).empty());
  }
}

TEST(StarTable, TheListOfStarsHoldsThe156NamesInTheTablesOrder) {
  const TableLue t;
  ASSERT_EQ(t.liste.size(), 156U);
  for (std::size_t i = 0; i < t.liste.size(); ++i) {
    EXPECT_EQ(t.liste[i], t.etoiles.EtoileNom.at(i + 1));
  }
  EXPECT_EQ(t.liste.front(), "Acamar");
  EXPECT_EQ(t.liste.back(), "Zuben Elschemali");
}

TEST(StarTable, SplittingAgainAddsTheNamesAgain) {
  TableLue t;
  DecoupeEtoiles(t.etoiles, t.liste);
  EXPECT_EQ(t.liste.size(), 312U);
}

TEST(StarPlace, IsTheSecondComputationToTheLastDigitOfItsText) {
  const TableLue t;
  const int dates[][3] = {{1, 1, 2000},  {29, 2, 2024}, {1, 3, 2025},   {31, 12, 1999},
                          {14, 7, 1950}, {28, 2, 1900}, {15, 10, 2050}, {1, 1, 2100}};
  for (const auto &d : dates) {
    const double T = essais::Siecles(d[0], d[1], d[2]);
    for (int i = 1; i <= kNombreLignesEtoiles; ++i) {
      const LigneEtoile l = Ligne(i);
      const auto mu = MouvementDe(l.nom);
      EXPECT_EQ(t.texte(i, d[0], d[1], d[2]), essais::TexteALaMain(essais::PlaceLue(l), mu.ad, mu.dec, T))
          << kLignesEtoiles.at(static_cast<std::size_t>(i) - 1) << ' ' << d[2];
    }
  }
}

TEST(StarPlace, OnTheDayOfTheEpochIsTheRowsOwnToHalfADayOfPrecession) {
  const TableLue t;
  for (int i = 1; i <= kNombreLignesEtoiles; ++i) {
    const auto lue = essais::PlaceLue(Ligne(i));
    const PaireX p = t.place(i, 1, 1, 2000);
    const double demiJour = 0.5 / 365.25 * 50 / 3600;
    EXPECT_NEAR(p.gauche, lue.ad, demiJour / std::cos(lue.dec * M_PI / 180) * 2) << i;
    EXPECT_NEAR(p.droite, lue.dec, demiJour) << i;
  }
}

TEST(StarPlace, ATenthOfAMinuteIsReadAsSeconds) {
  // Acamar, 02:58,2: 2 h 58 m 2.3 s and not 2 h 58 m 12 s.
  const TableLue t;
  const PaireX p = t.place(1, 1, 1, 2000);
  EXPECT_NEAR(p.gauche, 15 * (2 + 58 / 60.0 + 2.3 / 3600), 3E-5);
  EXPECT_GT(15 * (2 + 58.2 / 60) - p.gauche, 0.039);
  const auto courte = [](const LigneEtoile &l) { return l.apresMinutes.empty(); };
  EXPECT_EQ(Compte(courte), 222);
  EXPECT_EQ(Compte([](const LigneEtoile &l) { return l.apresMinutes.empty() && l.decimales != "0"; }), 200);
  // The worst are those of nine tenths: 54 seconds meant, 9.3 read.
  double pire = 0;
  for (int i = 1; i <= kNombreLignesEtoiles; ++i) {
    const LigneEtoile l = Ligne(i);
    pire = std::max(pire, std::fabs(essais::PlaceVoulue(l).ad - t.place(i, 1, 1, 2000).gauche));
  }
  EXPECT_NEAR(pire, 44.7 / 240, 2E-4);
}

TEST(StarPlace, InARowWithSecondsTheirDecimalsFallAway) {
  const TableLue t;
  EXPECT_NEAR(t.place(t.rang("Regulus"), 1, 1, 2000).gauche, 15 * (10 + 8 / 60.0 + 22.3 / 3600), 3E-5)
      << "cut before the point";
  EXPECT_NEAR(t.place(t.rang("Achenar"), 1, 1, 2000).gauche, 15 * (1 + 37 / 60.0 + 42.3 / 3600), 3E-5)
      << "42,6 is read as 42 and 0.3 added";
  EXPECT_NEAR(t.place(t.rang("Aldebaran"), 1, 1, 2000).gauche, 15 * (4 + 35 / 60.0 + 55.3 / 3600), 3E-5)
      << "0.3 is added to whole seconds too";
}

TEST(StarPlace, TheSignOfMinusZeroDegreesIsLost) {
  const TableLue t;
  EXPECT_NEAR(t.place(t.rang("Mintaka"), 1, 1, 2000).droite, 18 / 60.0, 1E-4);
  EXPECT_NEAR(t.place(t.rang("Sadalmelik"), 1, 1, 2000).droite, 19 / 60.0, 1E-4);
  EXPECT_EQ(Compte([](const LigneEtoile &l) { return l.signe == "-" && l.degres == "00"; }), 2);
}

TEST(StarPlace, ACommaForTheColonOfADeclinationDoesNotMatter) {
  const TableLue t;
  EXPECT_NEAR(t.place(t.rang("Albaldah"), 1, 1, 2000).droite, -(21 + 2 / 60.0), 1E-4);
  EXPECT_NEAR(t.place(t.rang("Ed Asich"), 1, 1, 2000).droite, 58 + 58 / 60.0, 1E-4);
}

TEST(StarPlace, SecondsOfDeclinationMayBeMissingOrOfOneDigit) {
  const TableLue t;
  EXPECT_NEAR(t.place(t.rang("Vega"), 1, 1, 2000).droite, 38 + 47 / 60.0, 1E-5);
  EXPECT_NEAR(t.place(t.rang("Altair"), 1, 1, 2000).droite, 8 + 52 / 60.0 + 6 / 3600.0, 1E-5);
}

TEST(StarPlace, IndexZeroIsTheChosenStarOfTheList) {
  const TableLue t;
  const DateEtoile date{"21", "06", "2026"};
  EXPECT_EQ(CoordEtoile(t.etoiles, 0, 0, date), CoordEtoile(t.etoiles, 1, -1, date));
  EXPECT_EQ(CoordEtoile(t.etoiles, 0, 155, date), CoordEtoile(t.etoiles, 156, 7, date));
}

TEST(StarPlace, AnEmptyRowIsATypeMismatchAndAFarOneASubscriptError) {
  const TableLue t;
  const DateEtoile date{"21", "06", "2026"};
  const auto erreur = [&](std::int16_t index, int selection) {
    return essais::NumeroErreur([&] { CoordEtoile(t.etoiles, index, selection, date); });
  };
  EXPECT_EQ(erreur(0, -1), 13) << "nothing chosen";
  EXPECT_EQ(erreur(247, 0), 13);
  EXPECT_EQ(erreur(300, 0), 13);
  EXPECT_EQ(erreur(301, 0), 9);
  EXPECT_EQ(erreur(-1, 0), 9);
  EXPECT_EQ(erreur(0, 300), 9);
  EXPECT_EQ(erreur(0, -2), 9);
}

TEST(StarPlace, EmptyDateFieldsCountAsZero) {
  // Month 0 of year 0 is month 12 of the year -1: day 1721028.5, the old calendar with two days too many.
  const TableLue t;
  const double T = (-365 + 397 + 1720996.5 - 2451545) / 36525;
  EXPECT_EQ(CoordEtoile(t.etoiles, 1, -1, {"", "", ""}), essais::TexteALaMain(essais::PlaceLue(Ligne(1)), 0, 0, T));
}

TEST(StarPlace, TheCalendarChangesAfterOctober14) {
  const TableLue t;
  const auto lue = essais::PlaceLue(Ligne(1));
  const double base = 577825 + 336 + 1720996.5 - 2451545;
  EXPECT_EQ(t.texte(1, 14, 10, 1582), essais::TexteALaMain(lue, 0, 0, (base + 14) / 36525));
  EXPECT_EQ(t.texte(1, 15, 10, 1582), essais::TexteALaMain(lue, 0, 0, (base + 15 - 15 + 3) / 36525));
}

TEST(StarPlace, AFieldIsReadUpToItsFirstOtherCharacter) {
  const TableLue t;
  EXPECT_EQ(CoordEtoile(t.etoiles, 5, -1, {"21x", " 06", "2026."}), t.texte(5, 21, 6, 2026));
}

TEST(StarPlace, ADateBeyondTheRangeOfNumbersIsAnOverflow) {
  const TableLue t;
  for (const char *annee : {"1E308", "1E200", "-1E307"}) {
    EXPECT_EQ(essais::NumeroErreur([&] { CoordEtoile(t.etoiles, 5, -1, {"1", "1", annee}); }), 6) << annee;
  }
}

TEST(StarMotion, BelongsToTheNamesOfTheListAlone) {
  // Two dates a year apart with the precession taken off leave the motion.
  const TableLue t;
  for (int i = 1; i <= kNombreLignesEtoiles; ++i) {
    const LigneEtoile l = Ligne(i);
    const double T = essais::Siecles(1, 1, 2030);
    const PaireX sans = LitPaireX(essais::TexteALaMain(essais::PlaceLue(l), 0, 0, T));
    const PaireX p = t.place(i, 1, 1, 2030);
    const auto mu = MouvementDe(l.nom);
    EXPECT_NEAR((p.gauche - sans.gauche) * 240 / (100 * T), mu.ad, 1E-9) << l.nom;
    EXPECT_NEAR((p.droite - sans.droite) * 3600 / (100 * T), mu.dec, 1E-9) << l.nom;
  }
}

TEST(StarMotion, OneNameOfTheListIsSpelledOtherwiseInTheTable) {
  const TableLue t;
  std::vector<std::string> absents;
  for (const auto &[nom, mu] : essais::Mouvements()) {
    if (t.rang(nom) == 0) {
      absents.push_back(nom);
    }
  }
  EXPECT_EQ(absents, std::vector<std::string>{"Achernar"});
  EXPECT_NE(t.rang("Achenar"), 0);
}

TEST(PairOfNumbers, IsSplitAtTheFirstX) {
  EXPECT_EQ(LitPaireX("12.5X-3").gauche, 12.5);
  EXPECT_EQ(LitPaireX("12.5X-3").droite, -3.0);
  EXPECT_EQ(LitPaireX("7").gauche, 7.0);
  EXPECT_EQ(LitPaireX("7").droite, 0.0);
  EXPECT_EQ(LitPaireX("").gauche, 0.0);
  EXPECT_EQ(LitPaireX("1X2X3").droite, 2.0);
}

} // namespace
} // namespace velmaris
