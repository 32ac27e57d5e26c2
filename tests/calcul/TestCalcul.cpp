#include "Passage.hpp"
#include "foundations/TexteNombre.hpp"

#include <array>
#include <chrono>
#include <cmath>
#include <gmock/gmock.h>
#include <numbers>

namespace velmaris {
namespace {

using nlohmann::ordered_json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

// ---------------------------------------------------------------- horizon

/// Azimut and altitude by vectors: the hour angle from the mean sidereal time of 1982 in its seconds form.
struct Place {
  double azimut = 0.0;
  double hauteur = 0.0;
};

Place PlaceIndependante(std::chrono::sys_days jour, double heures, double ad, double dec, double lat, double lon) {
  using namespace std::chrono;
  const double rad = std::numbers::pi / 180;
  const double jours = static_cast<double>((jour - sys_days(year(2000) / 1 / 1)).count()) - 0.5;
  const double t = jours / 36525;
  const double tsmg0 = 24110.54841 + 8640184.812866 * t + 0.093104 * t * t - 6.2E-6 * t * t * t;
  const double angle = ((tsmg0 / 240) + heures * 15 * 1.00273790935 + lon - ad) * rad;
  const double x = std::cos(dec * rad) * std::cos(angle);
  const double y = std::cos(dec * rad) * std::sin(angle);
  const double z = std::sin(dec * rad);
  const double nord = z * std::cos(lat * rad) - x * std::sin(lat * rad);
  const double zenith = x * std::cos(lat * rad) + z * std::sin(lat * rad);
  Place place;
  place.azimut = std::fmod(std::atan2(-y, nord) / rad + 360, 360);
  place.hauteur = std::asin(zenith) / rad;
  return place;
}

TEST(CalculHorizon, TellsAzimuthAndAltitude) {
  const std::array<std::array<double, 4>, 5> lieux{{{89.5, 23.4, -33.5, -70.25},
                                                    {279.2, 38.8, 48.5, -4.75},
                                                    {10.0, -80.0, -12.0, 130.5},
                                                    {359.9, 0.1, 0.5, 179.9},
                                                    {201.3, -11.2, 60.2, -179.5}}};
  for (const auto &l : lieux) {
    std::vector<std::string> arguments{"horizon", "21/06/2026", "13:45:07"};
    for (const double angle : l) {
      arguments.push_back(TexteGeneral(angle));
    }
    const Passage p = Lance(arguments);
    ASSERT_EQ(p.etat, 0) << p.erreurs;
    EXPECT_THAT(p.erreurs, IsEmpty());
    const ordered_json o = Objets(p.sortie).at(0);
    EXPECT_THAT(Cles(o), ElementsAre("texte"));
    const auto texte = o["texte"].get<std::string>();
    const std::size_t x = texte.find('X');
    ASSERT_NE(x, std::string::npos) << texte;
    const Place place =
        PlaceIndependante(std::chrono::year(2026) / 6 / 21, 13 + 45 / 60.0 + 7 / 3600.0, l[0], l[1], l[2], l[3]);
    EXPECT_NEAR(Val(texte.substr(0, x)), place.azimut, 2E-4) << texte;
    EXPECT_NEAR(Val(texte.substr(x + 1)), place.hauteur, 1E-5) << texte;
  }
}

TEST(CalculHorizon, ALongitudeIsEastPositive) {
  const auto hauteur = [](const char *lon) {
    const Passage p = Lance({"horizon", "21/03/2026", "08:00:00", "0", "0", "0", lon});
    const auto texte = Objets(p.sortie).at(0)["texte"].get<std::string>();
    return Val(texte.substr(texte.find('X') + 1));
  };
  EXPECT_GT(hauteur("60"), 80);
  EXPECT_LT(hauteur("-60"), -20);
}

TEST(CalculHorizon, NumbersWithASignOrALeadingPointAreArguments) {
  const Passage p = Lance({"horizon", "21/06/2026", "12:00:00", "+89.5", "-.5", "-33.5", "-7E1"});
  EXPECT_EQ(p.etat, 0) << p.erreurs;
  EXPECT_EQ(p.sortie, Lance({"horizon", "21/06/2026", "12:00:00", "89.5", "-0.5", "-33.5", "-70"}).sortie);
}

TEST(CalculHorizon, AnImpossibleDateOrTimeIsATypeMismatch) {
  const std::vector<std::array<const char *, 2>> cas = {
      {"31/06/2026", "12:00:00"}, {"29/02/2025", "12:00:00"}, {"06/21/2026", "12:00:00"}, {"2026-06-21", "12:00:00"},
      {"", "12:00:00"},           {"21/06/2026", "24:00:00"}, {"21/06/2026", "12:60:00"}, {"21/06/2026", "12:00:60"},
      {"21/06/2026", "12:00"},    {"21/06/2026", ""},         {"21/06/2026", "12:00:0.5"}};
  for (const auto &[date, heure] : cas) {
    const Passage p = Lance({"horizon", date, heure, "1", "2", "3", "4"});
    EXPECT_EQ(p.etat, 1) << date << ' ' << heure;
    const ordered_json o = Objets(p.sortie).at(0);
    EXPECT_THAT(Cles(o), ElementsAre("erreur"));
    EXPECT_EQ(o["erreur"]["numero"], 13) << date << ' ' << heure;
  }
}

TEST(CalculHorizon, AnAngleBeyondReasonIsToldAndDoesNotHang) {
  const Passage p = Lance({"horizon", "21/06/2026", "12:00:00", "1", "2", "3", "1E300"});
  EXPECT_EQ(p.etat, 1);
  EXPECT_EQ(Objets(p.sortie).at(0)["erreur"]["numero"], 5);
}

// ---------------------------------------------------------------- the command line

TEST(CalculCommande, TellsItsVersion) {
  const Passage p = Lance({"--version"});
  EXPECT_EQ(p.etat, 0);
  EXPECT_EQ(p.sortie, "velmaris-calcul " VELMARIS_VERSION "\n");
  EXPECT_THAT(p.erreurs, IsEmpty());
}

TEST(CalculCommande, HelpNamesEveryVerb) {
  const Passage p = Lance({"--help"});
  EXPECT_EQ(p.etat, 0);
  EXPECT_THAT(p.sortie, HasSubstr("reduit"));
  EXPECT_THAT(p.sortie, HasSubstr("horizon"));
  EXPECT_THAT(p.sortie, HasSubstr("helio"));
  EXPECT_THAT(p.sortie, HasSubstr("place"));
  EXPECT_THAT(p.erreurs, IsEmpty());
  EXPECT_THAT(Lance({"horizon", "--help"}).sortie, HasSubstr("HH:MM:SS"));
  EXPECT_THAT(Lance({"reduit", "--help"}).sortie, HasSubstr("--langue"));
}

TEST(CalculCommande, AUsageErrorGoesToStandardErrorWithStatusTwo) {
  const std::vector<std::vector<std::string>> cas = {{},
                                                     {"inconnu"},
                                                     {"--inconnu"},
                                                     {"reduit"},
                                                     {"reduit", "--langue"},
                                                     {"reduit", "--langue", "de", "a.LoP"},
                                                     {"reduit", "--inconnu", "a.LoP"},
                                                     {"helio"},
                                                     {"helio", "Venus"},
                                                     {"helio", "Venus", "demain"},
                                                     {"place", "Venus", "2461212,5"},
                                                     {"place", "Venus", "2461212.5", "5"},
                                                     {"place", "Venus", "inf"},
                                                     {"horizon"},
                                                     {"horizon", "21/06/2026", "12:00:00", "1", "2", "3"},
                                                     {"horizon", "21/06/2026", "12:00:00", "1", "2", "3", "4", "5"},
                                                     {"horizon", "21/06/2026", "12:00:00", "1,5", "2", "3", "4"},
                                                     {"horizon", "21/06/2026", "12:00:00", "1", "2x", "3", "4"},
                                                     {"horizon", "21/06/2026", "12:00:00", "1", "2", "", "4"},
                                                     {"horizon", "21/06/2026", "12:00:00", "1", "2", "nan", "4"},
                                                     {"horizon", "21/06/2026", "12:00:00", "1", "2", "3", "inf"}};
  for (const auto &arguments : cas) {
    const Passage p = Lance(arguments);
    EXPECT_EQ(p.etat, 2) << testing::PrintToString(arguments);
    EXPECT_THAT(p.sortie, IsEmpty()) << testing::PrintToString(arguments);
    EXPECT_THAT(p.erreurs, StartsWith("velmaris-calcul: ")) << testing::PrintToString(arguments);
  }
}

TEST(CalculCommande, AFullDiskAtItsOutputIsToldAndEndsWithStatusOneWhateverIsAsked) {
  const std::vector<std::vector<std::string>> cas = {{"--help"},
                                                     {"--version"},
                                                     {"reduit", "--help"},
                                                     {"reduit", "rien.LoP"},
                                                     {"helio", "Venus", "2461212.5"},
                                                     {"place", "Venus", "2461212.5"},
                                                     {"etoile", "1", "1", "1", "2026"},
                                                     {"lune", "2026", "6", "21", "12", "0", "0", "47", "-5"},
                                                     {"horizon", "21/06/2026", "12:00:00", "1", "2", "3", "4"}};
  for (const auto &[langue, message] :
       {std::pair("fr_FR.UTF-8", "la sortie ne peut pas être écrite"), std::pair("C", "the output can't be written")}) {
    const Environnement environnement(Variables{{"LANG", langue}});
    for (const auto &arguments : cas) {
      const Passage p = Lance(arguments, VELMARIS_CALCUL, "/dev/full");
      EXPECT_EQ(p.etat, 1) << testing::PrintToString(arguments);
      EXPECT_EQ(p.erreurs, std::string("velmaris-calcul: ") + message + "\n") << testing::PrintToString(arguments);
    }
  }
}

TEST(CalculCommande, AVerbAfterFilesIsAFile) {
  const Passage p = Lance({"reduit", "horizon"});
  EXPECT_EQ(p.etat, 1);
  EXPECT_EQ(Objets(p.sortie).at(0)["fichier"], "horizon");
}

} // namespace
} // namespace velmaris
