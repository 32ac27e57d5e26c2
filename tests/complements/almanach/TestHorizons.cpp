#include "OutilsAlmanach.hpp"

#include "complements/almanach/Arrondis.hpp"
#include "complements/almanach/JourDuCiel.hpp"
#include "complements/point/Sphere.hpp"

#include <cmath>
#include <gtest/gtest.h>
#include <vector>

/// Twilights, rises and sets of the almanac against heights worked out for each moment by itself.
namespace velmaris::essais {
namespace {

const std::vector<double> kLatitudes{89.5, 78, 72, 66, 60, 45, 20, 0, -20, -45, -60, -72};

double Hauteur(const DateCivile &date, double heures, GenreAstre genre, double latitude,
               double *demiMoinsHp = nullptr) {
  const InstantUTC utc = PlusTard(UTCDe(date), heures * 3600);
  const PlaceGeocentrique place = PlaceDe(PrepareCiel({TTDe(utc), UT1De(utc, 0)}), {genre, 0});
  if (demiMoinsHp != nullptr) {
    *demiMoinsHp = (place.demiDiametre - place.parallaxe) / 60;
  }
  const double s = std::sin(latitude * kRadian) * std::sin(place.declinaison * kRadian) +
                   std::cos(latitude * kRadian) * std::cos(place.declinaison * kRadian) * std::cos(place.gha * kRadian);
  return std::asin(s) / kRadian;
}

double Bord(const DateCivile &date, double heures, GenreAstre genre, double latitude, double hauteur) {
  if (genre == GenreAstre::Soleil) {
    return Hauteur(date, heures, genre, latitude) - hauteur;
  }
  double demiMoinsHp = 0;
  const double h = Hauteur(date, heures, genre, latitude, &demiMoinsHp);
  return h + 34.0 / 60 + demiMoinsHp;
}

/// Crossings of a day by a scan every two minutes and bisection.
struct Juge {
  std::vector<double> monte;
  std::vector<double> descend;
  bool dessus = false; ///< at the day's middle
};

Juge JugeDe(const DateCivile &date, GenreAstre genre, double latitude, double hauteur) {
  Juge juge;
  constexpr double kPas = 2.0 / 60;
  double avant = Bord(date, 0, genre, latitude, hauteur);
  for (int i = 1; i <= 720; ++i) {
    const double a = kPas * i;
    const double ici = Bord(date, a, genre, latitude, hauteur);
    if ((avant >= 0) != (ici >= 0)) {
      double bas = a - kPas;
      double haut = a;
      for (int tour = 0; tour < 20; ++tour) {
        const double milieu = (bas + haut) / 2;
        ((Bord(date, milieu, genre, latitude, hauteur) >= 0) == (avant >= 0) ? bas : haut) = milieu;
      }
      (ici >= 0 ? juge.monte : juge.descend).push_back(bas);
    }
    avant = ici;
  }
  juge.dessus = Bord(date, 12, genre, latitude, hauteur) >= 0;
  return juge;
}

/// How figures of a kind differ from the judge's.
struct Compte {
  int heures = 0;
  int minutesAutres = 0; ///< that round to another minute
  int sans = 0;          ///< days without one
};

void Compare(const HeuresHorizon &dites, const std::vector<double> &jugees, const Juge &juge, Compte &compte) {
  ASSERT_EQ(dites.heures.size(), jugees.size());
  for (std::size_t i = 0; i < jugees.size(); ++i) {
    EXPECT_NEAR(dites.heures[i], jugees[i], 0.1 / 60); // a body that grazes its horizon at the pole is slow
    ++compte.heures;
    compte.minutesAutres += MinutesDe(dites.heures[i]) == MinutesDe(jugees[i]) ? 0 : 1;
  }
  if (jugees.empty()) {
    ++compte.sans;
    const bool jamais = juge.monte.empty() && juge.descend.empty();
    const RaisonAbsence sans = juge.dessus ? RaisonAbsence::ToujoursAuDessus : RaisonAbsence::ToujoursAuDessous;
    EXPECT_EQ(dites.absence, jamais ? sans : RaisonAbsence::AutreJour);
  } else {
    EXPECT_EQ(dites.absence, RaisonAbsence::Aucune);
  }
}

TEST(HorizonsAlmanach, TheSunsTimesAreThoseOfTheSkyOfTheMiddleDayAtAnyLatitude) {
  Compte compte;
  for (const int mois : {3, 6, 10, 12}) {
    const DateCivile milieu{2026, mois, 21};
    const Almanach pages =
        *CalculeAlmanach({.debut = {2026, mois, 20}, .fin = {2026, mois, 22}, .latitudes = kLatitudes}, Table());
    ASSERT_EQ(pages.periodes.front().milieu.jour, 21);
    for (std::size_t i = 0; i < kLatitudes.size(); ++i) {
      const SoleilHorizon &s = pages.periodes.front().soleil[i];
      const Juge bord = JugeDe(milieu, GenreAstre::Soleil, kLatitudes[i], -50.0 / 60);
      const Juge civil = JugeDe(milieu, GenreAstre::Soleil, kLatitudes[i], -6);
      const Juge nautique = JugeDe(milieu, GenreAstre::Soleil, kLatitudes[i], -12);
      Compare(s.lever, bord.monte, bord, compte);
      Compare(s.coucher, bord.descend, bord, compte);
      Compare(s.civilMatin, civil.monte, civil, compte);
      Compare(s.civilSoir, civil.descend, civil, compte);
      Compare(s.nautiqueMatin, nautique.monte, nautique, compte);
      Compare(s.nautiqueSoir, nautique.descend, nautique, compte);
    }
  }
  EXPECT_GT(compte.heures, 180);
  EXPECT_GT(compte.sans, 30);
  EXPECT_EQ(compte.minutesAutres, 0);
}

TEST(HorizonsAlmanach, TheMoonRisesAndSetsWithTheSkyAndIsMissingOnceAMonth) {
  const std::vector<double> latitudes{70, 62, 45, 0, -45};
  const Almanach pages =
      *CalculeAlmanach({.debut = {2026, 3, 1}, .fin = {2026, 3, 30}, .latitudes = latitudes}, Table());
  Compte compte;
  std::vector<int> manques(latitudes.size());
  for (const JourAlmanach &jour : pages.jours) {
    for (std::size_t i = 0; i < latitudes.size(); ++i) {
      const Juge juge = JugeDe(jour.date, GenreAstre::Lune, latitudes[i], 0);
      Compare(jour.lune[i].lever, juge.monte, juge, compte);
      Compare(jour.lune[i].coucher, juge.descend, juge, compte);
      manques[i] += jour.lune[i].lever.absence == RaisonAbsence::AutreJour ? 1 : 0;
    }
  }
  EXPECT_EQ(manques[2], 1);
  EXPECT_EQ(manques[3], 1);
  EXPECT_EQ(manques[4], 1);
  EXPECT_EQ(compte.minutesAutres, 0);
  EXPECT_EQ(pages.suivants[0].size(), latitudes.size());
}

} // namespace
} // namespace velmaris::essais
