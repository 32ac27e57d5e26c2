#include "ephemerides/pLANETE.hpp"

#include "JugesPlanetes.hpp"

#include <gtest/gtest.h>

#include <functional>

/// Diameters and magnitudes against their closed forms, and the spelling of the name that decides over them.
namespace velmaris {
namespace {

using namespace essais;

constexpr double kJour = 2461212.5;
constexpr const char *kDiametreNul = "  00' 00.0\" ";

std::string Place(std::string nom, double JD) { return PlaceApparente(nom, JD); }

struct Photometre {
  const char *nom;
  double demiDiametre; ///< seconds of arc at one astronomical unit
  std::function<double(const Geometrie &)> magnitude;
};

double Grandeur(const Geometrie &g) { return 5 * std::log10(g.r * g.d); }

const Photometre kPhotometres[] = {
    {"Venus", 8.41,
     [](const Geometrie &g) {
       return -4.4 + Grandeur(g) + g.phase * (0.0009 + g.phase * (0.000239 - g.phase * 6.5e-07));
     }},
    {"Mars", 4.68, [](const Geometrie &g) { return -1.52 + Grandeur(g) + 0.016 * g.phase; }},
    {"Jupiter", 98.44, [](const Geometrie &g) { return -9.4 + Grandeur(g) + 0.005 * g.phase; }},
    {"SATURNE", 82.73, [](const Geometrie &g) { return -7.4 + Grandeur(g) - 16 / g.d; }},
};

TEST(PlanetDiameter, IsTwiceTheSemiDiameterSeenFromTheDistance) {
  for (const Photometre &p : kPhotometres) {
    for (const double JD : Dates(100)) {
      const LignePlace ligne = LitLigne(Place(p.nom, JD));
      EXPECT_LE(std::fabs(Sexagesimal(ligne.diametre) * 60 - 2 * p.demiDiametre / ligne.lieu.d), 0.05 + 1E-9)
          << p.nom << " " << JD << ligne.diametre;
    }
  }
}

TEST(PlanetDiameter, PassesAMinuteOfArcWhenVenusIsNear) {
  double plusGrand = 0;
  for (int i = 0; i < 584; i += 4) {
    plusGrand = std::max(plusGrand, Sexagesimal(LitLigne(Place("Venus", kJour + i)).diametre) * 60);
  }
  EXPECT_GT(plusGrand, 60);
  EXPECT_LT(plusGrand, 66.1);
}

TEST(PlanetMagnitude, IsItsClosedForm) {
  for (const Photometre &p : kPhotometres) {
    for (const double JD : Dates(100)) {
      double v[3];
      const Geometrie g = Geocentrique(HelioTexte, EnCapitales(p.nom), JD, v);
      EXPECT_NEAR(std::stod(LitLigne(Place(p.nom, JD)).magnitude), p.magnitude(g), 1E-7) << p.nom << " " << JD;
    }
  }
}

TEST(PlanetMagnitude, IsInItsGeneralText) {
  const std::string magnitude = LitLigne(Place("Venus", kJour)).magnitude.substr(1);
  EXPECT_EQ(TexteGeneral(Val(magnitude)), magnitude);
  EXPECT_EQ(magnitude.find(' '), std::string::npos);
}

TEST(PlanetMagnitude, AgreesWithLibnovaWhereItHasTheSameFormulas) {
  for (const double JD : Dates(50)) {
    EXPECT_NEAR(std::stod(LitLigne(Place("Mars", JD)).magnitude), ln_get_mars_magnitude(JD), 0.002);
    EXPECT_NEAR(std::stod(LitLigne(Place("Jupiter", JD)).magnitude), ln_get_jupiter_magnitude(JD), 0.002);
  }
}

TEST(NameSpelling, DecidesOverDiameterAndMagnitude) {
  for (const char *nom : {"Venus", "Mars", "Jupiter", "SATURNE"}) {
    const LignePlace ligne = LitLigne(Place(nom, kJour));
    EXPECT_NE(ligne.diametre, kDiametreNul) << nom;
    EXPECT_NE(ligne.magnitude, " ") << nom;
  }
  for (const char *nom : {"VENUS", "MARS", "JUPITER", "Saturne", "venus", "saturne", "vEnus"}) {
    const LignePlace ligne = LitLigne(Place(nom, kJour));
    EXPECT_EQ(ligne.diametre, kDiametreNul) << nom;
    EXPECT_EQ(ligne.magnitude, " ") << nom;
  }
}

TEST(NameSpelling, ChangesNothingInThePlace) {
  const char *paires[][2] = {{"Venus", "VENUS"}, {"Mars", "MARS"}, {"Jupiter", "JUPITER"}, {"SATURNE", "Saturne"}};
  for (const auto &[avec, sans] : paires) {
    const LignePlace a = LitLigne(Place(avec, kJour));
    const LignePlace b = LitLigne(Place(sans, kJour));
    EXPECT_EQ(a.AD, b.AD);
    EXPECT_EQ(a.Dec, b.Dec);
    EXPECT_EQ(a.distance, b.distance);
  }
}

TEST(NameSpelling, BlanksAroundItDoNotCount) { EXPECT_EQ(Place(" SATURNE ", kJour), Place("SATURNE", kJour)); }

} // namespace
} // namespace velmaris
