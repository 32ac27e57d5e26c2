#include "Passage.hpp"
#include "ephemerides/ParamPlanet.hpp"
#include "ephemerides/pLANETE.hpp"
#include "foundations/TexteNombre.hpp"

#include <gmock/gmock.h>

namespace velmaris {
namespace {

using nlohmann::ordered_json;
using testing::ElementsAre;
using testing::IsEmpty;

/// The text of a run that succeeds; its only key.
std::string Texte(const std::vector<std::string> &arguments) {
  const Passage p = Lance(arguments);
  EXPECT_EQ(p.etat, 0) << p.sortie << p.erreurs;
  EXPECT_THAT(p.erreurs, IsEmpty());
  const ordered_json o = Objets(p.sortie).at(0);
  EXPECT_THAT(Cles(o), ElementsAre("texte"));
  return o["texte"].get<std::string>();
}

/// The error of a run that fails.
int Numero(const std::vector<std::string> &arguments) {
  const Passage p = Lance(arguments);
  EXPECT_EQ(p.etat, 1) << p.sortie;
  const ordered_json o = Objets(p.sortie).at(0);
  EXPECT_THAT(Cles(o), ElementsAre("erreur"));
  EXPECT_THAT(Cles(o["erreur"]), ElementsAre("numero", "texte"));
  return o["erreur"]["numero"].get<int>();
}

TEST(CalculHelio, TellsTheHeliocentricTextOfEveryPlanet) {
  for (const char *nom : {"Venus", "EARTH", "mars", "Jupiter", " Saturne "}) {
    for (const double JD : {2451545.0, 2461212.52431, 2415020.5, 0.0, -1000.25}) {
      EXPECT_EQ(Texte({"helio", nom, TexteGeneral(JD)}), PositionHelio(nom, JD));
    }
  }
}

TEST(CalculHelio, AnUnknownBodyIsToldAsAnError) {
  for (const char *nom : {"Sun", "Saturn", "Mercury", "Moon", ""}) {
    EXPECT_EQ(Numero({"helio", nom, "2451545"}), 5) << nom;
  }
}

TEST(CalculHelio, ADateBeyondAllReckoningIsAnOverflow) { EXPECT_EQ(Numero({"helio", "Venus", "1E300"}), 6); }

TEST(CalculPlace, TellsTheLineOfFiveFieldsOfEveryPlanet) {
  for (const char *nom : {"Venus", "VENUS", "Mars", "Jupiter", "SATURNE", "Saturne"}) {
    for (const double JD : {2451545.0, 2461212.52431, 2415020.5}) {
      std::string seul = nom;
      EXPECT_EQ(Texte({"place", nom, TexteGeneral(JD)}), PlaceApparente(seul, JD));
    }
  }
}

TEST(CalculPlace, ABodyWithoutSeriesAndTheEarthAreToldAsErrors) {
  EXPECT_EQ(Numero({"place", "Mercury", "2451545"}), 5);
  EXPECT_EQ(Numero({"place", "Saturn", "2451545"}), 5);
  EXPECT_EQ(Numero({"place", "Sun", "2451545"}), 5);
  EXPECT_EQ(Numero({"place", "Earth", "2451545"}), 11);
  EXPECT_EQ(Numero({"place", "Mars", "1E30"}), 6);
}

} // namespace
} // namespace velmaris
