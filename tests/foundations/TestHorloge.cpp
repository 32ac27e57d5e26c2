#include "foundations/Horloge.hpp"

#include "tests/OutilsTests.hpp"

#include <gtest/gtest.h>

#include <ctime>

namespace velmaris {
namespace {

using essais::HorlogeFixe;

TEST(Clock, ReadingItPublishesItsFourTexts) {
  Horloge horloge = HorlogeFixe({2009, 3, 0, 5, 7, 8, 9, 500}, {});
  LitHorloge(horloge);
  EXPECT_EQ(horloge.HeureGMT, "07:08:09");
  EXPECT_EQ(horloge.JourGMT, "05");
  EXPECT_EQ(horloge.MoisGMT, "03");
  EXPECT_EQ(horloge.AnGMT, "2009");
  EXPECT_EQ(horloge.temps.annee, 2009);
  EXPECT_EQ(horloge.temps.millisecondes, 500);
}

TEST(Clock, EveryReadingIsFresh) {
  Horloge horloge;
  std::uint16_t seconde = 0;
  horloge.source = [&seconde] { return TempsSysteme{2024, 1, 1, 1, 0, 0, seconde++, 0}; };
  LitHorloge(horloge);
  LitHorloge(horloge);
  EXPECT_EQ(horloge.HeureGMT, "00:00:01");
  FractionJourUTC(horloge);
  EXPECT_EQ(horloge.temps.seconde, 2);
}

TEST(Clock, TheFractionOfADayIs32BitsAndIgnoresMilliseconds) {
  Horloge horloge = HorlogeFixe({2024, 6, 0, 1, 13, 47, 59, 999}, {});
  EXPECT_EQ(FractionJourUTC(horloge), static_cast<float>(((13 + 47 / 60.0) + 59 / 3600.0) / 24.0));
  horloge = HorlogeFixe({2024, 6, 0, 1, 12, 0, 0, 0}, {});
  EXPECT_EQ(FractionJourUTC(horloge), 0.5F);
  horloge = HorlogeFixe({2024, 6, 0, 1, 0, 0, 0, 999}, {});
  EXPECT_EQ(FractionJourUTC(horloge), 0.0F);
}

TEST(Clock, TheFractionLeavesTheTextsAlone) {
  Horloge horloge = HorlogeFixe({2024, 6, 0, 1, 12, 0, 0, 0}, {});
  horloge.HeureGMT = "before";
  FractionJourUTC(horloge);
  EXPECT_EQ(horloge.HeureGMT, "before");
  EXPECT_EQ(horloge.temps.heure, 12);
}

/// Seconds since 1970 of a civil moment, by the C library.
std::time_t Secondes(int annee, int mois, int jour, int heure, int minute, int seconde, bool utc) {
  std::tm champs{};
  champs.tm_year = annee - 1900;
  champs.tm_mon = mois - 1;
  champs.tm_mday = jour;
  champs.tm_hour = heure;
  champs.tm_min = minute;
  champs.tm_sec = seconde;
  champs.tm_isdst = -1;
  return utc ? ::timegm(&champs) : std::mktime(&champs);
}

TEST(Clock, TheSystemsTimeIsUniversalTime) {
  const std::time_t avant = std::time(nullptr);
  const TempsSysteme t = GetSystemTime();
  const std::time_t apres = std::time(nullptr);
  const std::time_t lue = Secondes(t.annee, t.mois, t.jour, t.heure, t.minute, t.seconde, true);
  EXPECT_GE(lue, avant - 1);
  EXPECT_LE(lue, apres);
  EXPECT_LT(t.millisecondes, 1000);
  std::tm champs{};
  gmtime_r(&lue, &champs);
  EXPECT_EQ(t.jourSemaine, champs.tm_wday);
}

TEST(Clock, TheLocalDateIsThatOfTheTimeZone) {
  const char *zone = std::getenv("TZ");
  const std::string ancienne = zone != nullptr ? zone : "";
  ::setenv("TZ", "EAST-13", 1);
  ::tzset();
  const std::time_t avant = std::time(nullptr);
  const ValeurDate d = DateLocale();
  const std::time_t apres = std::time(nullptr);
  const std::time_t lue = Secondes(d.annee, d.mois, d.jour, d.heure, d.minute, d.seconde, true) - 13 * 3600;
  if (zone != nullptr) {
    ::setenv("TZ", ancienne.c_str(), 1);
  } else {
    ::unsetenv("TZ");
  }
  ::tzset();
  EXPECT_GE(lue, avant);
  EXPECT_LE(lue, apres);
}

} // namespace
} // namespace velmaris
