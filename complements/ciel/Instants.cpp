#include "complements/ciel/Instants.hpp"

#include "complements/ciel/Refus.hpp"

#include <erfa.h>
#include <erfam.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace velmaris {
namespace {

constexpr double kJour1970 = 2440587.5;
constexpr std::int64_t kSecondesDuJour = 86400;
constexpr double kJour1972 = 2441317.5; ///< leap seconds from here on
constexpr double kJour2035 = 2464328.5; ///< from here on what will be put in is anybody's guess
constexpr double kJoursParAn = 365.25;
constexpr double kParabole = 32.5E-4; ///< seconds a year squared: the long-term course of Delta T
constexpr int kPremiereMesure = 1900;

/// Delta T at the beginning of each year from 1900 to 1972, seconds; the last is that of UTC itself (42.23 of UT1).
constexpr std::array kMesures{-2.72, -1.54, -0.02, 1.24,  2.64,  3.86,  5.37,  6.14,  7.75,  9.13,  10.46, 11.53, 13.36,
                              14.65, 16.01, 17.20, 18.24, 19.06, 20.25, 20.95, 21.16, 22.25, 22.41, 23.03, 23.49, 23.62,
                              23.86, 24.49, 24.34, 24.08, 24.02, 24.00, 23.87, 23.95, 23.86, 23.93, 23.73, 23.92, 23.96,
                              24.02, 24.33, 24.83, 25.30, 25.70, 26.24, 26.77, 27.28, 27.78, 28.25, 28.71, 29.15, 29.57,
                              29.97, 30.36, 30.72, 31.07, 31.35, 31.68, 32.18, 32.68, 33.15, 33.59, 34.00, 34.47, 35.03,
                              35.73, 36.54, 37.43, 38.29, 39.20, 40.18, 41.17, 42.184};

template <std::size_t N> double Polynome(const std::array<double, N> &c, double t) {
  double somme = 0;
  for (auto i = c.rbegin(); i != c.rend(); ++i) {
    somme = somme * t + *i;
  }
  return somme;
}

/// Whether UTC has leap seconds that are known, or will at least be told in time.
bool Atomique(const InstantUTC &utc) {
  const double jd = utc.jour + utc.fraction;
  return jd >= kJour1972 && jd < kJour2035;
}

/// TT - UTC of a day with leap seconds, seconds.
double EcartAtomique(const InstantUTC &utc) {
  double tai1 = 0;
  double tai2 = 0;
  eraUtctai(utc.jour, utc.fraction, &tai1, &tai2);
  return ((tai1 - utc.jour) + (tai2 - utc.fraction)) * ERFA_DAYSEC + ERFA_TTMTAI;
}

/// How long a day is: one that ends in a leap second is longer.
double SecondesDuJour(const InstantUTC &minuit) {
  return Atomique(minuit) ? ERFA_DAYSEC + EcartAtomique({minuit.jour + 1, 0}) - EcartAtomique({minuit.jour, 0})
                          : ERFA_DAYSEC;
}

/// TT - UT outside those years, seconds.
double EcartLibre(const InstantUTC &utc) {
  const double jd = utc.jour + utc.fraction;
  if (jd < kJour1972) {
    return DeltaTMesure(2000 + (jd - ERFA_DJ00) / kJoursParAn);
  }
  const double ans = (jd - kJour2035) / kJoursParAn;
  return EcartAtomique({kJour2035 - 1, 0}) + kParabole * ans * ans;
}

} // namespace

InstantUTC UTCDe(const DateCivile &date) {
  if (date.annee < kPremiereAnnee || date.annee > kDerniereAnnee) {
    throw Refus(RaisonRefus::AnneeHorsLimites);
  }
  InstantUTC utc;
  double jour0 = 0;
  if (eraCal2jd(date.annee, date.mois, date.jour, &jour0, &utc.jour) != 0) {
    throw Refus(RaisonRefus::DateImpossible);
  }
  if (date.heure < 0 || date.heure > 23 || date.minute < 0 || date.minute > 59 || !(date.seconde >= 0)) {
    throw Refus(RaisonRefus::HeureImpossible);
  }
  utc.jour += jour0;
  if (Atomique(utc)) {
    // 0 and 1 are good, 1 for a year whose leap seconds aren't settled; 2 and 3 tell a second past the minute's end.
    if (eraDtf2d("UTC", date.annee, date.mois, date.jour, date.heure, date.minute, date.seconde, &utc.jour,
                 &utc.fraction) > 1) {
      throw Refus(RaisonRefus::HeureImpossible);
    }
    return utc;
  }
  if (date.seconde >= 60) {
    throw Refus(RaisonRefus::HeureImpossible);
  }
  utc.fraction = (date.heure * 3600 + date.minute * 60 + date.seconde) / ERFA_DAYSEC;
  return utc;
}

DateCivile CivileDe(const InstantUTC &utc) {
  constexpr int kChiffres = 6;
  constexpr double kMillionieme = 1E-6;
  DateCivile date;
  int temps[4]{};
  // Outside the years of leap seconds the name of a scale without them keeps any from being put in.
  eraD2dtf(Atomique(utc) ? "UTC" : "UT1", kChiffres, utc.jour, utc.fraction, &date.annee, &date.mois, &date.jour,
           temps);
  date.heure = temps[0];
  date.minute = temps[1];
  date.seconde = temps[2] + temps[3] * kMillionieme;
  return date;
}

InstantUTC PlusTard(const InstantUTC &utc, double secondes) {
  const double somme = utc.fraction + secondes / ERFA_DAYSEC;
  const double jours = std::floor(somme);
  return {utc.jour + jours, somme - jours};
}

double SecondesEntre(const InstantUTC &de, const InstantUTC &a) {
  return ((a.jour - de.jour) + (a.fraction - de.fraction)) * ERFA_DAYSEC;
}

std::int64_t SecondesDe(const InstantUTC &utc) {
  const DateCivile date = CivileDe(utc);
  double jour0 = 0;
  double jour = 0;
  eraCal2jd(date.annee, date.mois, date.jour, &jour0, &jour);
  const double secondes = (date.heure * 60 + date.minute) * 60 + date.seconde;
  return std::llround(jour0 - kJour1970 + jour) * kSecondesDuJour + std::llround(secondes);
}

InstantUTC UTCDeSecondes(std::int64_t secondes) {
  const std::int64_t reste = secondes % kSecondesDuJour;
  const std::int64_t dansLeJour = reste < 0 ? reste + kSecondesDuJour : reste;
  const std::int64_t minuit = secondes - dansLeJour;
  const std::int64_t jours = minuit / kSecondesDuJour; // without a rest
  InstantUTC utc{kJour1970 + static_cast<double>(jours), 0};
  utc.fraction = static_cast<double>(dansLeJour) / SecondesDuJour(utc);
  return utc;
}

InstantUT1 UT1De(const InstantUTC &utc, double dut1) {
  InstantUT1 ut1{utc.jour, utc.fraction + dut1 / ERFA_DAYSEC};
  if (Atomique(utc)) {
    eraUtcut1(utc.jour, utc.fraction, dut1, &ut1.jour, &ut1.fraction);
  }
  return ut1;
}

InstantTT TTDe(const InstantUTC &utc) {
  InstantTT tt{utc.jour, utc.fraction};
  if (Atomique(utc)) {
    eraUtctai(utc.jour, utc.fraction, &tt.jour, &tt.fraction);
    tt.fraction += ERFA_TTMTAI / ERFA_DAYSEC;
  } else {
    tt.fraction += EcartLibre(utc) / ERFA_DAYSEC;
  }
  return tt;
}

double EcartTT(const InstantTT &tt, const InstantUT1 &ut1) {
  return ((tt.jour - ut1.jour) + (tt.fraction - ut1.fraction)) * ERFA_DAYSEC;
}

double DeltaTMesure(double annee) {
  if (annee < 1860) {
    return Polynome(
        std::array{13.72, -0.332447, 0.0068612, 0.0041116, -0.00037436, 0.0000121272, -0.0000001699, 0.000000000875},
        annee - 1800);
  }
  if (annee < kPremiereMesure) {
    return Polynome(std::array{7.62, 0.5737, -0.251754, 0.01680668, -0.0004473624, 1.0 / 233174}, annee - 1860);
  }
  const double place = std::min(annee - kPremiereMesure, kMesures.size() - 1.0);
  const auto i = std::min(static_cast<std::size_t>(place), kMesures.size() - 2);
  return kMesures[i] + (place - static_cast<double>(i)) * (kMesures[i + 1] - kMesures[i]);
}

Moment MomentDe(const DateCivile &date, double dut1) {
  const InstantUTC utc = UTCDe(date);
  return {TTDe(utc), UT1De(utc, dut1)};
}

} // namespace velmaris
