#include "foundations/ValeurDate.hpp"

#include "tests/OutilsTests.hpp"

#include <erfa.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <string>

namespace velmaris {
namespace {

using essais::NumeroErreur;

TEST(DateText, IsReadDayFirstAtZeroHours) {
  const ValeurDate d = LitDate("3/4/2009");
  EXPECT_EQ(d.jour, 3);
  EXPECT_EQ(d.mois, 4);
  EXPECT_EQ(d.annee, 2009);
  EXPECT_EQ(d.heure + d.minute + d.seconde, 0);
}

TEST(DateText, DayAndMonthAreNeverSwapped) {
  EXPECT_EQ(NumeroErreur([] { LitDate("3/13/2009"); }), 13);
  EXPECT_EQ(NumeroErreur([] { LitDate("2009/3/13"); }), 13);
}

TEST(DateText, YearsUnderAHundredStandFor1930To2029) {
  const int cas[][2] = {{0, 2000}, {9, 2009}, {29, 2029}, {30, 1930}, {99, 1999}, {100, 100}, {9999, 9999}};
  for (const auto &c : cas) {
    EXPECT_EQ(LitDate("1/1/" + std::to_string(c[0])).annee, c[1]);
  }
  EXPECT_EQ(LitDate("01/01/09").annee, 2009);
}

TEST(DateText, BlanksAroundAFieldAreAllowed) { EXPECT_EQ(LitDate(" 3 / 4 / 2009 ").mois, 4); }

TEST(DateText, AnImpossibleDateIsATypeMismatch) {
  for (const char *texte : {"31/02/2020", "29/2/2023",  "31/4/2020",
                            "32/1/2020",  "0/1/2020",   "1/0/2020",
                            "1/13/2020",  "1/1/10000",  "99999999999999999999/1/2000",
                            "-1/1/2000",  "1.5/1/2000", "1,5/1/2000",
                            "1/1",        "1",          "",
                            "//",         "/1/2000",    "1//2000",
                            "1/1/",       "a/b/c",      "1/1/2000 12:00",
                            "1/1/2000/1", "1-1-2000",   "+1/1/2000",
                            "1/é/2000"}) {
    EXPECT_EQ(NumeroErreur([&] { LitDate(texte); }), 13) << texte;
  }
}

TEST(DateText, TheTwentyNinthOfFebruaryFollowsTheGregorianRule) {
  for (const auto &[annee, permis] :
       {std::pair{2024, true}, {2023, false}, {2000, true}, {1900, false}, {1500, false}}) {
    const std::string texte = "29/2/" + std::to_string(annee);
    EXPECT_EQ(NumeroErreur([&] { LitDate(texte); }), permis ? 0 : 13) << texte;
  }
}

TEST(WeekDay, FollowsTheJulianDayNumber) {
  for (int i = 0; i < 1000; ++i) {
    int annee = 0;
    int mois = 0;
    int jour = 0;
    double fraction = 0;
    const double jd = 2300000.5 + 617.0 * i;
    ASSERT_EQ(eraJd2cal(jd, 0, &annee, &mois, &jour, &fraction), 0);
    // The Julian day number at noon, plus one, modulo seven counts from Sunday.
    const int attendu = static_cast<int>(std::fmod(jd + 0.5 + 1, 7.0));
    EXPECT_EQ(JourSemaine({annee, mois, jour, 0, 0, 0}), attendu) << jour << '/' << mois << '/' << annee;
  }
}

TEST(WeekDay, CountsFromSunday) {
  EXPECT_EQ(JourSemaine({2000, 1, 1, 0, 0, 0}), 6);
  EXPECT_EQ(JourSemaine({2024, 2, 29, 23, 0, 0}), 4);
  EXPECT_EQ(JourSemaine({1970, 1, 4, 0, 0, 0}), 0);
}

TEST(DateText, ADateAndTimeIsWrittenTwoDigitsAFieldAndFourTheYear) {
  EXPECT_EQ(TexteDateHeure({2009, 3, 5, 7, 8, 9}), "05/03/2009 07:08:09");
  EXPECT_EQ(TexteDateHeure({987, 12, 31, 23, 59, 59}), "31/12/0987 23:59:59");
}

TEST(TimeOfDay, IsTheFractionOfADay) {
  EXPECT_EQ(LitHeure("00:00"), 0);
  EXPECT_EQ(LitHeure("06:00"), 0.25);
  EXPECT_EQ(LitHeure("12:00"), 0.5);
  EXPECT_EQ(LitHeure("18:00"), 0.75);
  for (int minutes = 0; minutes < 1440; ++minutes) {
    const std::string texte = std::to_string(minutes / 60) + ":" + std::to_string(minutes % 60);
    EXPECT_DOUBLE_EQ(LitHeure(texte) * 1440, minutes) << texte;
  }
  EXPECT_LT(LitHeure("23:59"), 1);
}

TEST(TimeOfDay, FieldsHaveOneOrTwoDigits) {
  EXPECT_EQ(LitHeure("6:0"), LitHeure("06:00"));
  EXPECT_EQ(LitHeure("6:5"), LitHeure("06:05"));
}

TEST(TimeOfDay, AnythingElseIsATypeMismatch) {
  for (const char *texte : {"",      ":",      "12:",    ":30",      "12",      "24:00",   "23:60",   "99:00",
                            "00:99", "012:00", "12:000", "12:30:00", "12.5:00", "12:30.5", "12,5:00", "-1:00",
                            "12:-1", "+1:00",  "ab:cd",  "12h30",    "12:3o",   "12;30",   "é:00",    "1200"}) {
    EXPECT_EQ(NumeroErreur([&] { LitHeure(texte); }), 13) << texte;
  }
}

TEST(TimeText, HasTwoDigitsEachOfHoursMinutesAndSeconds) {
  EXPECT_EQ(TexteHeure(0), "00:00:00");
  EXPECT_EQ(TexteHeure(0.5), "12:00:00");
  EXPECT_EQ(TexteHeure(86399 / 86400.0), "23:59:59");
  for (int seconde = 0; seconde < 86400; seconde += 37) {
    char attendu[32];
    std::snprintf(attendu, sizeof attendu, "%02d:%02d:%02d", seconde / 3600, seconde / 60 % 60, seconde % 60);
    EXPECT_EQ(TexteHeure(seconde / 86400.0), attendu);
  }
}

TEST(TimeText, TakesTheNearestSecond) {
  EXPECT_EQ(TexteHeure(0.4 / 86400), "00:00:00");
  EXPECT_EQ(TexteHeure(0.6 / 86400), "00:00:01");
  EXPECT_EQ(TexteHeure(59.6 / 86400), "00:01:00");
  EXPECT_EQ(TexteHeure(3599.6 / 86400), "01:00:00");
}

TEST(TimeText, GivesBackTheMinutesBetweenTwoTimesOfDay) {
  for (int debut = 0; debut < 1440; debut += 11) {
    for (int duree = 0; duree < 1440; duree += 19) {
      const int fin = (debut + duree) % 1440;
      const auto lit = [](int minutes) {
        return LitHeure(std::to_string(minutes / 60) + ":" + std::to_string(minutes % 60));
      };
      const double jours = lit(fin) - lit(debut) + (fin < debut ? 1 : 0);
      char attendu[32];
      std::snprintf(attendu, sizeof attendu, "%02d:%02d:00", duree / 60, duree % 60);
      EXPECT_EQ(TexteHeure(jours), attendu);
    }
  }
}

TEST(DateAndTimeText, IsReadWhole) {
  const ValeurDate d = LitDateHeure("5/12/2025 7:08:59");
  EXPECT_EQ(TexteDateHeure(d), "05/12/2025 07:08:59");
  EXPECT_EQ(LitDateHeure(" 05/12/25 23:59:00 ").annee, 2025);
  EXPECT_EQ(LitDateHeure("5 / 12 / 2025 23:59:00").minute, 59);
}

TEST(DateAndTimeText, IsReadBackAsItIsWritten) {
  for (int i = 0; i < 500; ++i) {
    const ValeurDate d{1900 + i % 200, 1 + i % 12, 1 + i % 28, i % 24, i * 7 % 60, i * 13 % 60};
    EXPECT_EQ(TexteDateHeure(LitDateHeure(TexteDateHeure(d))), TexteDateHeure(d));
  }
}

TEST(DateAndTimeText, AnImpossibleOneIsATypeMismatch) {
  for (const char *texte : {"31/02/2025 12:00:00",
                            "05/12/2025 24:00:00",
                            "05/12/2025 12:60:00",
                            "05/12/2025 12:00:60",
                            "05/12/2025 60:00:00",
                            "05/12/2025 -1:00:00",
                            "05/12/2025 12.5:00:00",
                            "05/12/2025 12:00:0.5",
                            "05/12/2025 12:00",
                            "05/12/2025",
                            "12:00:00",
                            "",
                            " ",
                            "05/12/2025 ::",
                            "05/12/2025 12::00",
                            "05/12/2025 12:00:",
                            "05/12/2025 :00:00",
                            "5.5/12/2025 12:00:00",
                            "//  12:00:00",
                            "0/0/0 0:0:0",
                            "05/12/2025 012:00:00",
                            "05/12/2025 12:00:00:00",
                            "05/12/2025 12:00:00 12:00:00",
                            "05/12/2025 1E1:00:00",
                            "05/12/2025\n12:00:00",
                            "05/12/2025 12h00m00"}) {
    EXPECT_EQ(NumeroErreur([&] { LitDateHeure(texte); }), 13) << texte;
  }
}

} // namespace
} // namespace velmaris
