#include "tests/ephemerides/OutilsEtoiles.hpp"

#include "foundations/CelHor.hpp"

#include <erfa.h>
#include <erfam.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace velmaris {
namespace {

using essais::Ligne;
using essais::TableLue;

/// A place of J2000.0 with its motion, turned by a precession of the library; degrees.
PaireX Precesse(essais::PlaceEtoile p, essais::MouvementConnu mu, double T, bool de2006) {
  const double ad = (p.ad + mu.ad * 100 * T * 15 / 3600) * M_PI / 180;
  const double dec = (p.dec + mu.dec * 100 * T / 3600) * M_PI / 180;
  double matrice[3][3];
  if (de2006) {
    eraPmat06(ERFA_DJ00, T * 36525, matrice);
  } else {
    eraPmat76(ERFA_DJ00, T * 36525, matrice);
  }
  double v[3];
  double w[3];
  eraS2c(ad, dec, v);
  eraRxp(matrice, v, w);
  double a = 0;
  double d = 0;
  eraC2s(w, &a, &d);
  return {a * 180 / M_PI, d * 180 / M_PI};
}

double Ecart(const PaireX &a, const PaireX &b) {
  const double r = M_PI / 180;
  return eraSeps(a.gauche * r, a.droite * r, b.gauche * r, b.droite * r) * 206264.806;
}

/// Greatest distance on the sky between the program and the library among the rows of a band, seconds of arc.
double Pire(int annee, double decMin, double decMax, bool de2006) {
  static const TableLue t;
  double pire = 0;
  for (int i = 1; i <= kNombreLignesEtoiles; ++i) {
    const auto lue = essais::PlaceLue(Ligne(i));
    if (std::fabs(lue.dec) < decMin || std::fabs(lue.dec) >= decMax) {
      continue;
    }
    const auto mu = essais::MouvementDe(Ligne(i).nom);
    const PaireX juge = Precesse(lue, mu, essais::Siecles(1, 7, annee), de2006);
    pire = std::max(pire, Ecart(t.place(i, 1, 7, annee), juge));
  }
  return pire;
}

TEST(StarPrecession, WithinAQuarterCenturyIsThatOfTheLibraryToSecondsOfArc) {
  for (const bool de2006 : {false, true}) {
    EXPECT_LT(Pire(2000, 0, 80, de2006), 0.05);
    EXPECT_LT(Pire(2026, 0, 60, de2006), 3.0);
    EXPECT_LT(Pire(2026, 60, 80, de2006), 4.0);
  }
}

TEST(StarPrecession, ByAnnualRatesGrowsWrongWithTheSquareOfTheTime) {
  const double court = Pire(2025, 0, 80, false);
  const double longue = Pire(2050, 0, 80, false);
  EXPECT_NEAR(longue / court, 4.0, 0.5);
  EXPECT_LT(Pire(1950, 0, 60, false), 10.0);
  EXPECT_LT(Pire(2100, 0, 60, false), 40.0);
}

TEST(StarPrecession, NearThePoleIsAMinuteOfArcWrongAfterAQuarterCentury) {
  // Polaris is the only row past 80 degrees: its right ascension runs away from the annual rate.
  const double pire = Pire(2026, 80, 90, false);
  EXPECT_GT(pire, 50.0);
  EXPECT_LT(pire, 60.0);
}

std::vector<std::string> Attendues(const ValeurDate &date, double latitude, double longitude) {
  const TableLue t;
  double jd0 = 0;
  double jd = 0;
  eraCal2jd(date.annee, date.mois, date.jour, &jd0, &jd);
  jd += (date.heure + date.minute / 60.0 + date.seconde / 3600.0) / 24;
  const double r = M_PI / 180;
  std::vector<std::string> noms;
  for (std::size_t i = 0; i < t.liste.size(); ++i) {
    if (essais::Mouvements().count(t.liste[i]) == 0) {
      continue;
    }
    const PaireX p = t.place(static_cast<int>(i) + 1, date.jour, date.mois, date.annee);
    double az = 0;
    double el = 0;
    eraHd2ae(eraGmst82(jd0, jd) - longitude * r - p.gauche * r, p.droite * r, latitude * r, &az, &el);
    if (el > 0) {
      noms.push_back(t.liste[i]);
    }
  }
  return noms;
}

std::vector<std::string> Visibles(const ValeurDate &date, double latitude, double longitude) {
  const TableLue t;
  const std::string jour = std::to_string(date.jour);
  const std::string mois = std::to_string(date.mois);
  const std::string annee = std::to_string(date.annee);
  return ListeVisibles(t.etoiles, {jour, mois, annee}, date, latitude, longitude);
}

TEST(VisibleStars, AreTheBrightOnesAboveTheHorizon) {
  for (int i = 0; i < 60; ++i) {
    const ValeurDate date{1950 + i * 2, 1 + i % 12, 1 + i % 28, i % 24, (i * 7) % 60, (i * 11) % 60};
    const double latitude = -88.7 + 3 * i;
    const double longitude = std::remainder(41.3 * i, 360.0);
    EXPECT_EQ(Visibles(date, latitude, longitude), Attendues(date, latitude, longitude)) << i;
  }
}

TEST(VisibleStars, LongitudeIsWestPositive) {
  // Vega culminates near 18 h 37 m of sidereal time.
  const ValeurDate date{2026, 7, 1, 0, 0, 0};
  const double vega = eraGmst82(ERFA_DJ00, 9677.5) * 180 / M_PI;
  const auto voit = [&](double longitude) {
    const auto noms = Visibles(date, 0, longitude);
    return std::find(noms.begin(), noms.end(), "Vega") != noms.end();
  };
  const double ouest = std::remainder(vega - 279.2, 360.0);
  EXPECT_TRUE(voit(ouest));
  EXPECT_FALSE(voit(std::remainder(ouest + 180, 360.0)));
}

TEST(VisibleStars, AStarOnTheHorizonIsNotListed) {
  // From the pole the altitude is the declination: the southern half is missing, whatever the hour.
  const auto noms = Visibles({2026, 1, 1, 5, 0, 0}, 89.999, 0);
  for (const auto &nom : noms) {
    const TableLue t;
    EXPECT_GT(t.place(t.rang(nom), 1, 1, 2026).droite, -0.01) << nom;
  }
  EXPECT_EQ(noms.size(), 17U);
}

TEST(VisibleStars, TheOneSpelledOtherwiseIsNeverListed) {
  bool acrux = false;
  for (int heure = 0; heure < 24; ++heure) {
    const auto noms = Visibles({2026, 1, 1, heure, 0, 0}, -80, 0);
    EXPECT_EQ(std::count_if(noms.begin(), noms.end(), [](const std::string &n) { return n.starts_with("Ache"); }), 0);
    acrux = acrux || std::count(noms.begin(), noms.end(), "Acrux") == 1;
  }
  EXPECT_TRUE(acrux) << "its neighbours are";
}

TEST(VisibleStars, StandInTheOrderOfTheTable) {
  const auto noms = Visibles({2026, 6, 21, 22, 0, 0}, 47.5, 5.17);
  EXPECT_TRUE(std::is_sorted(noms.begin(), noms.end()));
  EXPECT_GT(noms.size(), 8U);
}

TEST(VisibleStars, AMalformedDateFieldDoesNotStopTheList) {
  const TableLue t;
  EXPECT_FALSE(ListeVisibles(t.etoiles, {"", "", ""}, {2026, 6, 21, 22, 0, 0}, 47.5, 5.17).empty());
}

} // namespace
} // namespace velmaris
