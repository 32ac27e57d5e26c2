#include "complements/serie/FichierSerie.hpp"

#include <gtest/gtest.h>

#include <string>

/// Files of readings.
namespace velmaris {
namespace {

TEST(RunFile, ALineIsATimeADegreeAndMinutes) {
  const SerieLue lue = LitSerie("24/09/2026 11:58:03 43 12.5\r\n\n# noon\n 24/09/2026\t11:59:00.25 43 13,25");
  ASSERT_EQ(lue.ligneFautive, 0U);
  ASSERT_EQ(lue.lectures.size(), 2U);
  EXPECT_DOUBLE_EQ(lue.lectures[0].lecture, 43 + 12.5 / 60);
  EXPECT_DOUBLE_EQ(lue.lectures[1].lecture, 43 + 13.25 / 60);
  EXPECT_NEAR(SecondesEntre(lue.lectures[0].utc, lue.lectures[1].utc), 57.25, 1E-6);
  EXPECT_FALSE(lue.lectures[0].ecartee);
}

TEST(RunFile, TheLineAtFaultIsTold) {
  for (const char *faute : {"24/09/2026 11:58:03 43", "24/09/2026 11:58:03 43 60", "24/09/2026 11:58:03 43 -1",
                            "24/09/2026 11:58 43 1", "24/09/2026 11:58:03 43.5 1", "24/09/2026 11:58:03 121 1",
                            "31/02/2026 11:58:03 43 1", "24/09/2026 11:58:03 43 1 x", "24/09/2026 11:58:03.5.5 43 1",
                            "24/09/2026 11:58:3.5 43 1", "24/09/2026 11:58:03.5e1 43 1", "x"}) {
    const SerieLue lue = LitSerie("24/09/2026 11:58:03 43 12.5\n" + std::string(faute) + "\n24/09/2026 12:58:03 43 1");
    EXPECT_EQ(lue.ligneFautive, 2U) << faute;
    EXPECT_EQ(lue.lectures.size(), 1U) << faute;
  }
}

TEST(RunFile, EmptyBytesAreNoReadings) {
  EXPECT_TRUE(LitSerie("").lectures.empty());
  EXPECT_EQ(LitSerie(std::string(4, '\0')).ligneFautive, 1U);
}

} // namespace
} // namespace velmaris
