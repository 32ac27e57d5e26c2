#include "complements/point/Inconnues.hpp"

#include "complements/point/Departs.hpp"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace velmaris {
namespace {

/// Sights that have the sea's horizon, or the artificial one.
bool Aucune(const SystemePoint &systeme, bool artificiel) {
  return std::none_of(systeme.visees.begin(), systeme.visees.end(),
                      [&](const EquationVisee &visee) { return visee.hauteur->artificiel == artificiel; });
}

/// The system with its common errors: the sea's horizon of each watch, and the sextant where it can be parted from it,
/// or where there is no sea's horizon at all.
SystemePoint AvecCommunes(SystemePoint systeme, std::span<const int> quarts) {
  std::vector<InconnueCommune> &sens = systeme.sens;
  for (const EquationVisee &visee : systeme.visees) {
    const int quart = quarts[visee.place];
    const auto connue = std::find_if(sens.begin(), sens.end(), [&](const auto &s) { return s.quart == quart; });
    if (visee.hauteur->artificiel) {
      continue;
    }
    if (connue == sens.end()) {
      sens.push_back({GenreCommune::Horizon, quart, visee.hauteur->utc});
    } else if (SecondesEntre(visee.hauteur->utc, connue->debut) > 0) {
      connue->debut = visee.hauteur->utc;
    }
  }
  std::sort(sens.begin(), sens.end(), [](const auto &a, const auto &b) { return a.quart < b.quart; });
  if (!Aucune(systeme, true)) {
    sens.push_back({GenreCommune::Sextant, -1, systeme.visees.front().hauteur->utc});
  }
  systeme.communes = static_cast<Eigen::Index>(sens.size());
  for (EquationVisee &visee : systeme.visees) {
    const bool artificiel = visee.hauteur->artificiel;
    for (const InconnueCommune &inconnue : sens) {
      const bool sienne = inconnue.genre == GenreCommune::Sextant || inconnue.quart == quarts[visee.place];
      const double part = artificiel && inconnue.genre == GenreCommune::Sextant ? 0.5 : 1;
      visee.communes.push_back(sienne && !(artificiel && inconnue.genre == GenreCommune::Horizon) ? part : 0);
    }
  }
  return systeme;
}

bool UneDeTrop(const SystemePoint &systeme) {
  return static_cast<Eigen::Index>(systeme.visees.size()) > InconnuesLibres(systeme);
}

void AjouteCommunes(Recherche &recherche, const ReglagesPoint &reglages, std::span<const int> quarts) {
  constexpr double kMieuxQue = 4; ///< times the assumed error of a height: known to no better, it is of no use
  SystemePoint systeme = AvecCommunes(recherche.systeme, quarts);
  const bool tour = FontLeTour(recherche.equilibre.matrices.azimuts);
  if (!tour) {
    recherche.refus.push_back(AvisPoint::CommuneAzimuts);
  }
  if (!UneDeTrop(systeme)) {
    recherche.refus.push_back(AvisPoint::CommuneTropPeu);
  }
  if (!tour || !UneDeTrop(systeme)) {
    return;
  }
  auto equilibre = Equilibre(systeme, EtatDe(systeme, recherche.equilibre.etat.lieu));
  const auto connues = [&] {
    const auto variances = equilibre->cofacteurs.diagonal().segment(2, systeme.communes);
    return std::sqrt(variances.maxCoeff()) <= kMieuxQue * reglages.doutes.hauteur;
  };
  if (!equilibre || !connues()) {
    recherche.refus.push_back(AvisPoint::CommuneMalPosee);
    return;
  }
  recherche.systeme = std::move(systeme);
  recherche.equilibre = std::move(*equilibre);
}

/// Hours from the first sight to the last.
double Duree(const SystemePoint &systeme) {
  double tot = 0;
  double tard = 0;
  for (const EquationVisee &visee : systeme.visees) {
    const double secondes = SecondesEntre(systeme.visees.front().hauteur->utc, visee.hauteur->utc);
    tot = std::min(tot, secondes);
    tard = std::max(tard, secondes);
  }
  return (tard - tot) / 3600;
}

void AjouteFond(Recherche &recherche) {
  constexpr std::size_t kVisees = 6;
  constexpr double kHeures = 3;
  constexpr double kNoeuds = 2;
  SystemePoint systeme = recherche.systeme;
  systeme.fond = true;
  const bool assez = systeme.visees.size() >= kVisees && UneDeTrop(systeme);
  const bool longtemps = Duree(systeme) >= kHeures;
  if (!assez) {
    recherche.refus.push_back(AvisPoint::FondTropPeu);
  }
  if (!longtemps) {
    recherche.refus.push_back(AvisPoint::FondTropCourt);
  }
  if (!assez || !longtemps) {
    return;
  }
  auto equilibre = Equilibre(systeme, EtatDe(systeme, recherche.equilibre.etat.lieu));
  const Eigen::Index k = 2 + systeme.communes;
  if (!equilibre || std::sqrt(equilibre->cofacteurs.diagonal().segment(k, 2).sum()) > kNoeuds) {
    recherche.refus.push_back(AvisPoint::FondMalPose);
    return;
  }
  recherche.systeme = std::move(systeme);
  recherche.equilibre = std::move(*equilibre);
}

} // namespace

void AjouteInconnues(Recherche &recherche, const ReglagesPoint &reglages, std::span<const int> quarts) {
  if (reglages.erreurCommune) {
    AjouteCommunes(recherche, reglages, quarts);
  }
  if (reglages.routeFond) {
    AjouteFond(recherche);
  }
}

} // namespace velmaris
