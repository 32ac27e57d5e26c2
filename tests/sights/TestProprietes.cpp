#include "OutilsVisee.hpp"

#include "foundations/CelHor.hpp"
#include "foundations/TexteNombre.hpp"
#include "sights/DroiteLUN.hpp"
#include "sights/DroitePLA.hpp"
#include "sights/DroiteSOL.hpp"
#include "sights/DroiteSTAR.hpp"
#include "sights/TheorieSolaire.hpp"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <limits>

/// What holds for every sight, on 100,000 taken at random.
namespace velmaris::essais {
namespace {

/// The reductions, each on a record of its own.
struct Reducteur {
  Reducteur() {
    std::vector<std::string> noms;
    ChargeEtoiles(etoiles, noms);
  }

  Epreuve operator()(const ViseeAstre &v, Corps corps) {
    Epreuve e(v, corps);
    e.valeurs.HeureDecimale = HeureDesChamps(e.observation);
    switch (corps) {
    case Corps::Lune: {
      Lune lune;
      Calcul_DroiteLUN(e.observation, e.valeurs, lune, e.affichage, messages);
      break;
    }
    case Corps::Planetes:
      Calcul_DroitePLA(e.observation, e.valeurs, e.affichage, messages);
      break;
    case Corps::Etoiles:
      Calcul_DroiteSTAR(e.observation, e.valeurs, etoiles, e.affichage, messages);
      break;
    default:
      Calcul_DroiteSOL(e.observation, e.valeurs, e.affichage, messages);
      break;
    }
    return e;
  }

  Etoiles etoiles;
  TexteMsg messages = MessagesNumerotes();
};

bool SansNombre(std::string texte) {
  std::transform(texte.begin(), texte.end(), texte.begin(), [](unsigned char c) { return std::tolower(c); });
  return texte.find("nan") != std::string::npos || texte.find("inf") != std::string::npos;
}

void ToutEstNombre(const Epreuve &e) {
  ASSERT_TRUE(std::isfinite(e.valeurs.Azimut) && std::isfinite(e.valeurs.Intercept) &&
              std::isfinite(e.valeurs.HauteurCalculee));
  ASSERT_NE(e.affichage.intercept, "before") << "it was reduced";
  ASSERT_FALSE(SansNombre(e.affichage.intercept + e.affichage.azimut + e.affichage.infobulle));
  for (const std::string &detail : e.affichage.details) {
    ASSERT_FALSE(SansNombre(detail)) << detail;
  }
}

/// The last bits that a change of collimation can lose: those of the 32-bit intercepts; of the collimations, which the
/// Sun and the Moon take through 32 bits; and of the Sun's 32-bit heights, which are in degrees.
double DerniersBits(const Epreuve &avant, const Epreuve &apres, Corps corps) {
  const auto bit = [](double x) {
    const auto f = static_cast<float>(std::fabs(x));
    return double{std::nextafter(f, std::numeric_limits<float>::max())} - f;
  };
  const double intercepts = bit(avant.valeurs.Intercept) + bit(apres.valeurs.Intercept);
  const double collimations = corps == Corps::Soleil || corps == Corps::Lune ? bit(65.0) : 1E-9;
  return intercepts + collimations + (corps == Corps::Soleil ? 2 * 60 * bit(150.0) : 0.0);
}

class ToutesVisees : public ::testing::TestWithParam<std::tuple<Corps, int, int>> {};

TEST_P(ToutesVisees, AreReducedToNumbersAndFollowTheirCollimation) {
  const auto [corps, nombre, astres] = GetParam();
  std::mt19937 alea(static_cast<unsigned>(20261121 + static_cast<int>(corps)));
  std::uniform_int_distribution<int> dixiemes(-50, 50);
  Reducteur reduit;
  for (int i = 0; i < nombre; ++i) {
    ViseeAstre v = ViseeAuHasard(alea, astres);
    const Epreuve avant = reduit(v, corps);
    ToutEstNombre(avant);
    // The refraction is that of the raw reading: the intercept moves by the whole change, or by half of it off an
    // artificial horizon, where the height is halved.
    const double change = dixiemes(alea) / 10.0;
    v.collimation += change;
    const Epreuve apres = reduit(v, corps);
    const double attendu = v.artificiel ? change / 2 : change;
    ASSERT_NEAR(double{apres.valeurs.Intercept} - avant.valeurs.Intercept, attendu, DerniersBits(avant, apres, corps))
        << i;
    ASSERT_EQ(apres.valeurs.Azimut, avant.valeurs.Azimut) << i;
    ASSERT_FALSE(HasFatalFailure());
  }
}

INSTANTIATE_TEST_SUITE_P(CentMille, ToutesVisees,
                         ::testing::Values(std::tuple{Corps::Soleil, 50000, 1}, std::tuple{Corps::Etoiles, 35000, 156},
                                           std::tuple{Corps::Lune, 13000, 1}, std::tuple{Corps::Planetes, 2000, 4}));

/// An azimuth as the nearest turn of another one.
double Ecart(double a, double b) { return std::remainder(a - b, 360.0); }

/// A number at random between two others.
double Entre(std::mt19937 &alea, double bas, double haut) {
  return std::uniform_real_distribution<double>(bas, haut)(alea);
}

constexpr double kTour = 6.283185307179586 / kRadCourt; ///< a whole turn in the program's radian, degrees

TEST(Hemispheres, AMirroredSkyHasTheSameHeightsAndMirroredAzimuths) {
  std::mt19937 alea(21);
  for (int i = 0; i < 100000; ++i) {
    const double dec = Entre(alea, -70, 70);
    const double lat = Entre(alea, -85, 85);
    const double angle = Entre(alea, 1, 179) + (i % 2 == 0 ? 180 : 0);
    double Hc = 0;
    double azimut = 0;
    CalculeHauteurAzimut<double>(dec, angle, lat, Hc, azimut);
    double HcSud = 0;
    double azimutSud = 0;
    CalculeHauteurAzimut<double>(-dec, angle, -lat, HcSud, azimutSud);
    double HcEst = 0;
    double azimutEst = 0;
    CalculeHauteurAzimut<double>(dec, kTour - angle, lat, HcEst, azimutEst);
    // The program's radian of eight digits makes half a turn of the azimuth 180.00009 degrees. Near the zenith, and
    // near the meridian, the last bits of the cosine grow.
    const double finesse =
        2E-4 + 1E-9 / std::pow(std::cos(Hc * kRadCourt), 2) / std::fabs(std::sin(azimut * kRadCourt));
    ASSERT_NEAR(HcSud, Hc, 1E-9 / std::cos(Hc * kRadCourt));
    ASSERT_NEAR(HcEst, Hc, 1E-9 / std::cos(Hc * kRadCourt));
    ASSERT_NEAR(Ecart(azimutSud, 180 - azimut), 0, finesse) << dec << " " << lat << " " << angle;
    ASSERT_NEAR(Ecart(azimutEst, 360 - azimut), 0, finesse);
  }
}

TEST(Hemispheres, TheHorizonOfTheOtherBodiesMirrorsToo) {
  std::mt19937 alea(22);
  const ValeurDate date{2026, 11, 21, 20, 15, 30};
  for (int i = 0; i < 20000; ++i) {
    const double ra = Entre(alea, 0, 360);
    const double lon = Entre(alea, -179, 179);
    double dec = Entre(alea, -70, 70);
    double lat = Entre(alea, -85, 85);
    double decSud = -dec;
    double latSud = -lat;
    const std::string nord = CelesteVersHorizon(date, ra, dec, lat, lon);
    const std::string sud = CelesteVersHorizon(date, ra, decSud, latSud, lon);
    const auto hauteur = [](const std::string &texte) { return Val(texte.substr(texte.find('X') + 1)); };
    ASSERT_NEAR(hauteur(sud), hauteur(nord), 1E-8);
    // The azimuth is a 32-bit value of seven digits, and its cosine flat near the meridian.
    const double azimut = Val(nord);
    const double finesse = 4E-4 + 1E-8 / std::pow(std::cos(hauteur(nord) * kRadCourt), 2) /
                                      std::max(1E-9, std::fabs(std::sin(azimut * kRadCourt)));
    ASSERT_NEAR(Ecart(Val(sud), 180 - azimut), 0, finesse) << nord << " " << sud;
  }
}

} // namespace
} // namespace velmaris::essais
