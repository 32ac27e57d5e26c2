#include "complements/point/Departs.hpp"

#include "complements/point/Croisements.hpp"
#include "complements/point/Sphere.hpp"

#include <algorithm>
#include <cmath>
#include <optional>

namespace velmaris {
namespace {

/// A sight's circle at its own time. A near body is lifted by its parallax: close enough to start from.
CercleHauteur CercleDe(const HauteurPreparee &h, TheoriePoint theorie) {
  if (theorie == TheoriePoint::Dite) {
    return {h.dite->sous, h.dite->observee};
  }
  const PlaceGeocentrique &place = h.actuelle->place;
  const double vue = h.actuelle->observee;
  return {{place.declinaison, LongitudeUnTour(-place.gha)}, vue + place.parallaxe / 60 * std::cos(vue * kRadian)};
}

/// One crossing, as it comes to lie when each circle is moved by the run that its place makes.
LieuNavire Affine(const SystemePoint &systeme, const EquationVisee &a, const EquationVisee &b, std::size_t lequel,
                  LieuNavire lieu) {
  constexpr int kTours = 6;
  const auto deplace = [&](const EquationVisee &visee) {
    const LieuNavire alors = SuitTroncons(visee.troncons, systeme.courant, lieu).lieu;
    return TourneCercle(CercleDe(*visee.hauteur, systeme.theorie), alors, lieu);
  };
  for (int tour = 0; tour < kTours; ++tour) {
    const auto croisement = CroiseCercles(deplace(a), deplace(b));
    if (!croisement) {
      return lieu;
    }
    lieu = croisement->lieux.at(lequel);
  }
  return lieu;
}

} // namespace

std::vector<PaireVisees> PairesDe(const SystemePoint &systeme) {
  constexpr std::size_t kPaires = 4;
  std::vector<CerclePret> cercles;
  cercles.reserve(systeme.visees.size());
  for (const EquationVisee &visee : systeme.visees) {
    cercles.push_back(PretDe(CercleDe(*visee.hauteur, systeme.theorie)));
  }
  std::vector<bool> prise(cercles.size(), false);
  std::vector<PaireVisees> paires;
  while (paires.size() < kPaires) {
    double meilleure = -1;
    PaireVisees paire{};
    for (std::size_t a = 0; a < cercles.size(); ++a) {
      for (std::size_t b = a + 1; b < cercles.size(); ++b) {
        const double franchise = prise[a] && prise[b] ? -1 : FranchiseCroisement(cercles[a], cercles[b]);
        if (franchise > meilleure) {
          meilleure = franchise;
          paire = {a, b};
        }
      }
    }
    if (meilleure < 0) {
      break;
    }
    prise[paire[0]] = true;
    prise[paire[1]] = true;
    paires.push_back(paire);
  }
  return paires;
}

std::vector<LieuNavire> DepartsDe(const SystemePoint &systeme, const PaireVisees &paire) {
  const EquationVisee &a = systeme.visees[paire[0]];
  const EquationVisee &b = systeme.visees[paire[1]];
  const auto croisement = CroiseCercles(CercleDe(*a.hauteur, systeme.theorie), CercleDe(*b.hauteur, systeme.theorie));
  if (!croisement) {
    return {};
  }
  std::vector<LieuNavire> departs;
  const std::size_t combien = croisement->coupe ? 2 : 1;
  departs.reserve(combien);
  for (std::size_t lequel = 0; lequel < combien; ++lequel) {
    departs.push_back(Affine(systeme, a, b, lequel, croisement->lieux.at(lequel)));
  }
  return departs;
}

bool SeCroisent(std::span<const double> azimuts) {
  const double moindre = std::sin(kCroisementMin * kRadian);
  for (std::size_t i = 0; i < azimuts.size(); ++i) {
    for (std::size_t j = i + 1; j < azimuts.size(); ++j) {
      if (std::fabs(std::sin((azimuts[i] - azimuts[j]) * kRadian)) >= moindre) {
        return true;
      }
    }
  }
  return false;
}

bool FontLeTour(std::vector<double> azimuts) {
  if (azimuts.empty()) {
    return false;
  }
  std::sort(azimuts.begin(), azimuts.end());
  double vide = azimuts.front() + 360 - azimuts.back();
  for (std::size_t i = 1; i < azimuts.size(); ++i) {
    vide = std::max(vide, azimuts[i] - azimuts[i - 1]);
  }
  return vide < 180;
}

} // namespace velmaris
