#include "tests/shell/droites/OutilsDroites.hpp"

namespace velmaris::essais {
namespace {

/// One end as it is typed; degrees and minutes, then its sides.
struct Bout {
  std::string latD, latM;
  bool sud = false;
  std::string lonD, lonM;
  bool ouest = false;
};

double Latitude(const Bout &b) { return (b.sud ? -1 : 1) * (std::stod(b.latD) + std::stod(b.latM) / 60); }
double Longitude(const Bout &b) { return (b.ouest ? -1 : 1) * (std::stod(b.lonD) + std::stod(b.lonM) / 60); }

/// Great-circle miles by half angles, another road than the cosine rule.
double GrandCercle(const Bout &a, const Bout &b) {
  const double rad = kPi / 180;
  const double h = std::sin((Latitude(b) - Latitude(a)) * rad / 2);
  const double g = std::sin((Longitude(b) - Longitude(a)) * rad / 2);
  const double s = h * h + std::cos(Latitude(a) * rad) * std::cos(Latitude(b) * rad) * g * g;
  return 2 * std::asin(std::sqrt(s)) * 60 / rad;
}

/// Course of the mean-latitude track by its two components, for ends on one side of the antimeridian.
double CapMoyen(const Bout &a, const Bout &b) {
  const double est = (Longitude(b) - Longitude(a)) * std::cos((Latitude(a) + Latitude(b)) / 2 * kPi / 180);
  const double cap = std::atan2(est, Latitude(b) - Latitude(a)) * 180 / kPi;
  return cap < 0 ? cap + 360 : cap;
}

std::string EnTexte(const char *forme, double valeur) {
  std::array<char, 32> texte{};
  std::snprintf(texte.data(), texte.size(), forme, valeur);
  return texte.data();
}

class Caps : public QuatreDroites {
protected:
  void SetUp() override {
    DemarreSansCarte();
    ClicControle(bureau, d.Command9);
  }

  void Depart(const Bout &b) {
    Tape(d.Text14, b.latD);
    Tape(d.Text16, b.latM);
    ClicOption(bureau, d.OptN[b.sud ? 3 : 2]);
    Tape(d.Text17, b.lonD);
    Tape(d.Text18, b.lonM);
    ClicOption(bureau, d.OptE[b.ouest ? 3 : 2]);
  }

  void Arrivee(const Bout &b) {
    Tape(d.Text20, b.latD);
    Tape(d.Text19, b.latM);
    ClicOption(bureau, d.OptN[b.sud ? 4 : 5]);
    Tape(d.Text22, b.lonD);
    Tape(d.Text21, b.lonM);
    ClicOption(bureau, d.OptE[b.ouest ? 4 : 5]);
  }

  /// Course and distance as the window shows them.
  std::string Resultat(const Bout &a, const Bout &b) {
    Depart(a);
    Arrivee(b);
    ClicControle(bureau, d.Command10);
    return d.Text24.texte + " " + d.Text23.texte;
  }
};

TEST_F(Caps, ADegreeNorthIsSixtyMilesOnCourseZero) {
  EXPECT_EQ(Resultat({"00", "00", false, "00", "00", false}, {"01", "00", false, "00", "00", false}), "000 060.0");
  EXPECT_EQ(Resultat({"01", "00", false, "00", "00", false}, {"00", "00", false, "00", "00", false}), "180 060.0");
  EXPECT_EQ(Resultat({"00", "30", true, "00", "00", false}, {"00", "30", false, "00", "00", false}), "000 060.0");
  EXPECT_EQ(Resultat({"47", "30", false, "05", "10", true}, {"48", "30", false, "05", "10", true}), "000 060.0");
}

TEST_F(Caps, OnOneParallelTheCourseIsEastOrWest) {
  const Bout ouest{"45", "00", false, "10", "00", true};
  const Bout est{"45", "00", false, "09", "00", true};
  const std::string milles = EnTexte("%05.1f", GrandCercle(ouest, est));
  EXPECT_EQ(Resultat(ouest, est), "090 " + milles);
  EXPECT_EQ(Resultat(est, ouest), "270 " + milles);
}

TEST_F(Caps, EachQuarterHasTheCourseOfItsMeanLatitudeAndItsGreatCircleMiles) {
  const Bout centre{"47", "30", false, "12", "15", true};
  for (const bool sud : {false, true}) {
    for (const bool ouest : {false, true}) {
      const Bout bout{sud ? "44" : "51", "12", false, ouest ? "19" : "05", "40", true};
      EXPECT_EQ(Resultat(centre, bout),
                EnTexte("%03.0f", CapMoyen(centre, bout)) + EnTexte(" %05.1f", GrandCercle(centre, bout)))
          << sud << ouest;
    }
  }
}

TEST_F(Caps, TracksCrossGreenwichBothWays) {
  const Bout ouest{"50", "00", false, "02", "00", true};
  const Bout est{"51", "30", false, "03", "20", false};
  EXPECT_EQ(Resultat(ouest, est),
            EnTexte("%03.0f", CapMoyen(ouest, est)) + EnTexte(" %05.1f", GrandCercle(ouest, est)));
  EXPECT_EQ(Resultat(est, ouest),
            EnTexte("%03.0f", CapMoyen(est, ouest)) + EnTexte(" %05.1f", GrandCercle(est, ouest)));
}

TEST_F(Caps, TracksCrossTheEquator) {
  const Bout sud{"02", "00", true, "30", "00", false};
  const Bout nord{"03", "00", false, "32", "00", false};
  EXPECT_EQ(Resultat(sud, nord), EnTexte("%03.0f", CapMoyen(sud, nord)) + EnTexte(" %05.1f", GrandCercle(sud, nord)));
}

TEST_F(Caps, CoursesHaveThreeDigitsAndMilesThreeAndATenth) {
  EXPECT_EQ(Resultat({"00", "00", false, "20", "00", false}, {"00", "00", false, "20", "05", false}), "090 005.0");
  EXPECT_EQ(Resultat({"00", "00", false, "20", "00", false}, {"00", "00", false, "110", "00", false}), "090 5400.0");
}

TEST_F(Caps, PastTheAntimeridianDegreesAndRadiansAreMixed) {
  const Bout est{"00", "00", false, "179", "00", false};
  const Bout ouest{"00", "00", false, "179", "00", true};
  const double dG = 360 - 358 * kPi / 180;
  const double milles = std::acos(std::cos(dG)) * 180 * 60 / kPi;
  EXPECT_EQ(Resultat(est, ouest), "270 " + EnTexte("%05.1f", milles)) << "known to be wrong";
}

TEST_F(Caps, OneAndTheSamePointIsToldAndLeavesTheResults) {
  const Bout ici{"47", "30", false, "05", "10", true};
  const std::string avant = Resultat(ici, {"48", "30", false, "05", "10", true});
  EXPECT_EQ(Resultat(ici, {"46", "90", false, "04", "70", true}), avant) << "the same place in other minutes";
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_EQ(boites[0].texte, bureau.messages[4]);
  EXPECT_NE(boites[0].texte, "");
  EXPECT_EQ(boites[0].titre, bureau.messages[5]);
  EXPECT_NE(boites[0].titre, "");
  EXPECT_EQ(boites[0].icone, Icone::Attention);
  EXPECT_FALSE(boites[0].question);
  EXPECT_EQ(d.Text20.infobulle, "47.5") << "tool tips come before the test";
}

TEST_F(Caps, TwoEmptyEndsAreOnePoint) {
  ClicControle(bureau, d.Command10);
  ASSERT_EQ(boites.size(), 1U);
  EXPECT_EQ(d.Text24.texte + d.Text23.texte, "");
}

TEST_F(Caps, TheDegreesTellTheirPlaceInDecimalDegreesNorthAndEastPositive) {
  const auto minutes = [this] {
    return d.Text16.infobulle + d.Text18.infobulle + d.Text19.infobulle + d.Text21.infobulle;
  };
  const std::string avant = minutes();
  Resultat({"47", "30", false, "05", "15", true}, {"33", "45", true, "151", "12", false});
  EXPECT_EQ(d.Text14.infobulle, "47.5");
  EXPECT_EQ(d.Text17.infobulle, "-5.25");
  EXPECT_EQ(d.Text20.infobulle, "-33.75");
  EXPECT_EQ(d.Text22.infobulle, "151.2");
  EXPECT_EQ(minutes(), avant) << "the minutes tell nothing";
}

TEST_F(Caps, ALongRepeatingFractionOfDegreesHasFifteenDigits) {
  Resultat({"47", "20", false, "00", "40", true}, {"0", "0", false, "0", "0", false});
  EXPECT_EQ(d.Text14.infobulle, EnTexte("%.15g", 47 + 20.0 / 60));
  EXPECT_EQ(d.Text17.infobulle, EnTexte("%.15g", -40.0 / 60));
}

TEST_F(Caps, EndsThatDifferAtThePoleAloneFail) {
  const std::string avant = Resultat({"47", "30", false, "05", "10", true}, {"48", "30", false, "05", "10", true});
  EXPECT_NE(NumeroErreur([&] {
              Resultat({"90", "00", false, "10", "00", false}, {"90", "00", false, "50", "00", false});
            }),
            0);
  EXPECT_EQ(d.Text24.texte + " " + d.Text23.texte, avant);
}

TEST_F(Caps, TheResultsCannotBeTyped) {
  Tape(d.Text24, "123");
  Tape(d.Text23, "45.6");
  EXPECT_EQ(d.Text24.texte + d.Text23.texte, "");
}

TEST_F(Caps, TwoStoredLinesGiveTheTrackBetweenThem) {
  ClicControle(bureau, d.Command9);
  Stocke(0, kMatin);
  Stocke(1, kApresMidi);
  ClicControle(bureau, d.Command9);
  ClicControle(bureau, d.Droite[0]);
  ClicControle(bureau, d.Droite[1]);
  ClicControle(bureau, d.Command10);
  const Bout matin{"47", "30", false, "05", "10", true};
  const Bout soir{"47", "20", false, "05", "30", true};
  EXPECT_EQ(d.Text24.texte, EnTexte("%03.0f", CapMoyen(matin, soir)));
  EXPECT_EQ(d.Text23.texte, EnTexte("%05.1f", GrandCercle(matin, soir)));
}

} // namespace
} // namespace velmaris::essais
