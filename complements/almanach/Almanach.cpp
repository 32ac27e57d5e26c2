#include "complements/almanach/Almanach.hpp"

#include "complements/almanach/JourDuCiel.hpp"
#include "complements/ciel/Refus.hpp"

#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

constexpr int kPremiere = 1900; ///< first and last year of the Moon's table, of which a day may lie outside it
constexpr int kDerniere = 2100;
constexpr std::size_t kJoursParPage = 3;
constexpr double kMarge = 3600; ///< seconds that a day's sky is prepared for on either side
constexpr double kHeuresPreparees = 26;

/// The Julian day at 0 h; nothing for a day that there is none.
std::optional<double> JourJulien(const DateCivile &date) {
  try {
    return UTCDe({date.annee, date.mois, date.jour}).jour;
  } catch (const Refus &) {
    return std::nullopt;
  }
}

bool DansLaTable(const DateCivile &date) { return date.annee > kPremiere && date.annee < kDerniere; }

CielDuJour CielDesHorizons(const Etoiles &etoiles, const DateCivile &date, double dut1) {
  // It is never stopped: a day takes a millisecond.
  return *PrepareCielDuJour(etoiles, PlusTard(UTCDe(date), -kMarge), kHeuresPreparees, dut1);
}

std::vector<LuneHorizon> LuneDuJour(const Etoiles &etoiles, const DateCivile &date, const DemandeAlmanach &demande) {
  if (demande.latitudes.empty()) {
    return {};
  }
  return LuneAuxHorizons(CielDesHorizons(etoiles, date, demande.dut1), demande.latitudes);
}

PeriodeAlmanach PeriodeDe(const Almanach &almanach, std::size_t premier, const Etoiles &etoiles) {
  PeriodeAlmanach periode{premier, std::min(kJoursParPage, almanach.jours.size() - premier)};
  periode.milieu = almanach.jours[premier + (periode.nombre - 1) / 2].date;
  const DemandeAlmanach &d = almanach.demande;
  periode.etoiles = EtoilesDuMoment(CielDeLHeure(periode.milieu, 12, d.dut1), etoiles, d.ordre);
  if (!d.latitudes.empty()) {
    periode.soleil = SoleilAuxHorizons(CielDesHorizons(etoiles, periode.milieu, d.dut1), d.latitudes);
  }
  return periode;
}

} // namespace

std::optional<DefautAlmanach> DefautDe(const DemandeAlmanach &demande) {
  const std::optional<double> debut = JourJulien(demande.debut);
  const std::optional<double> fin = JourJulien(demande.fin);
  if (!debut || !fin || !DansLaTable(demande.debut) || !DansLaTable(demande.fin)) {
    return DefautAlmanach::Date;
  }
  if (*fin < *debut) {
    return DefautAlmanach::Ordre;
  }
  if (*fin - *debut >= kJoursAlmanachMax) {
    return DefautAlmanach::TropLong;
  }
  if (demande.latitudes.size() > kLatitudesAlmanachMax) {
    return DefautAlmanach::TropDeLatitudes;
  }
  const bool possibles = std::all_of(demande.latitudes.begin(), demande.latitudes.end(),
                                     [](double latitude) { return std::fabs(latitude) <= 90; });
  return possibles ? std::nullopt : std::optional(DefautAlmanach::Latitude);
}

int NombreDeJours(const DemandeAlmanach &demande) {
  return static_cast<int>(std::lround(*JourJulien(demande.fin) - *JourJulien(demande.debut))) + 1;
}

std::optional<Almanach> CalculeAlmanach(const DemandeAlmanach &demande, const Etoiles &etoiles,
                                        const std::stop_token &arret, const std::function<void(double)> &dit) {
  if (const std::optional<DefautAlmanach> defaut = DefautDe(demande)) {
    const bool lieu = *defaut == DefautAlmanach::Latitude || *defaut == DefautAlmanach::TropDeLatitudes;
    throw Refus(lieu ? RaisonRefus::LieuImpossible : RaisonRefus::DateImpossible);
  }
  Almanach almanach{demande};
  const int nombre = NombreDeJours(demande);
  for (int i = 0; i < nombre; ++i) {
    if (arret.stop_requested()) {
      return std::nullopt;
    }
    const DateCivile date = JourPlusTard(demande.debut, i);
    almanach.jours.push_back(JourSansHorizons(date, demande.dut1));
    almanach.jours.back().lune = LuneDuJour(etoiles, date, demande);
    if (dit) {
      dit(static_cast<double>(i + 1) / (nombre + 1));
    }
  }
  for (std::size_t i = 0; i < almanach.suivants.size(); ++i) {
    almanach.suivants[i] = LuneDuJour(etoiles, JourPlusTard(demande.debut, nombre + static_cast<int>(i)), demande);
  }
  for (std::size_t premier = 0; premier < almanach.jours.size(); premier += kJoursParPage) {
    if (arret.stop_requested()) {
      return std::nullopt;
    }
    almanach.periodes.push_back(PeriodeDe(almanach, premier, etoiles));
  }
  if (dit) {
    dit(1);
  }
  return almanach;
}

} // namespace velmaris
