#include "complements/point/Point.hpp"

#include "complements/point/Departs.hpp"
#include "complements/point/Inconnues.hpp"
#include "complements/point/Jugement.hpp"
#include "complements/point/Lois.hpp"
#include "complements/point/Sphere.hpp"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <set>
#include <utility>

namespace velmaris {
namespace {

constexpr double kSecondeAdmise = 0.001; ///< chance under which a second place doesn't agree with the heights
constexpr double kDesaccord = 0.01;

/// A doubt that is a number and none below zero.
double Doute(double valeur) { return valeur > 0 && std::isfinite(valeur) ? valeur : 0; }

bool AFigure(const HauteurPreparee &h, TheoriePoint theorie) {
  return theorie == TheoriePoint::Actuelle ? h.actuelle.has_value() : h.dite.has_value();
}

SystemePoint SystemeDe(std::span<const ViseePoint> visees, const ReglagesPoint &reglages, std::set<AvisPoint> &avis) {
  SystemePoint systeme;
  systeme.theorie = reglages.theorie;
  systeme.courant = reglages.route.courant;
  const DoutesPoint &d = reglages.doutes;
  systeme.doute = {Doute(d.cap), Doute(d.vitesse) / 100, Doute(d.courant), Doute(d.courant)};
  for (std::size_t i = 0; i < visees.size(); ++i) {
    if (!visees[i].cochee) {
      continue;
    }
    const HauteurPreparee &h = visees[i].hauteur;
    if (!AFigure(h, reglages.theorie)) {
      avis.insert(AvisPoint::SansFigure);
      continue;
    }
    systeme.visees.push_back(
        {&h, i, EcartTypeDe(visees[i], d), TronconsEntre(reglages.route, reglages.heure, h.utc), {}});
  }
  return systeme;
}

/// Walks from one start.
/// @param tours  steps after which it is given up
/// @return nothing where no place comes of it; `avis` tells why
std::optional<Recherche> Cherche(const SystemePoint &systeme, const LieuNavire &depart, const ReglagesPoint &reglages,
                                 std::span<const int> quarts, int tours, std::set<AvisPoint> &avis) {
  constexpr double kSansReste = 0.01; ///< two circles that don't cross leave more
  const EtatPoint debut = EtatDe(systeme, depart);
  auto equilibre = Equilibre(systeme, debut, tours);
  const bool croise = SeCroisent(equilibre ? equilibre->matrices.azimuts : EquationsDe(systeme, debut).azimuts);
  const bool deux = systeme.visees.size() == 2;
  if (!equilibre || (deux && equilibre->matrices.khi2 > kSansReste)) {
    avis.insert(croise ? AvisPoint::SansSolution : AvisPoint::AzimutsSerres);
    return std::nullopt;
  }
  Recherche recherche{systeme, std::move(*equilibre), !croise, {}};
  if (recherche.serree) {
    return recherche;
  }
  AjouteInconnues(recherche, reglages, quarts);
  return recherche;
}

/// How far a place lies from where the sights were typed, degrees in all.
double LoinDesEstimes(const Recherche &r) {
  double somme = 0;
  for (std::size_t i = 0; i < r.systeme.visees.size(); ++i) {
    somme += EcartLieux(r.equilibre.matrices.lieux[i], r.systeme.visees[i].hauteur->estime);
  }
  return somme;
}

/// Whether the first place is to be told before the second: the likelier, or of two that are alike the nearer one.
bool Avant(const Recherche &a, const Recherche &b) {
  const double ecart = a.equilibre.matrices.khi2 - b.equilibre.matrices.khi2;
  return std::fabs(ecart) < kNettement ? LoinDesEstimes(a) < LoinDesEstimes(b) : ecart < 0;
}

bool MemeLieu(const Recherche &a, const Recherche &b) {
  constexpr double kMeme = 0.1; ///< degrees
  return EcartLieux(a.equilibre.etat.lieu, b.equilibre.etat.lieu) < kMeme;
}

void PoseAvis(const Recherche &recherche, const SolutionPoint &solution, std::set<AvisPoint> &avis) {
  avis.insert(recherche.refus.begin(), recherche.refus.end());
  if (recherche.equilibre.matrices.auPole) {
    avis.insert(AvisPoint::AuPole);
  }
  if (solution.chance < kDesaccord) {
    avis.insert(AvisPoint::Desaccord);
  }
  if (solution.improbable) {
    avis.insert(AvisPoint::ViseeImprobable);
  }
  if (solution.sansNom) {
    avis.insert(AvisPoint::ErreurSansNom);
  }
}

bool SAccorde(const Recherche &r) {
  const auto libertes = static_cast<Eigen::Index>(r.systeme.visees.size()) - InconnuesLibres(r.systeme);
  return ChanceKhi2(r.equilibre.matrices.khi2, static_cast<int>(libertes)) >= kDesaccord;
}

/// The starts of a pair, the one that leaves less first.
std::vector<LieuNavire> DepartsOrdonnes(const SystemePoint &systeme, const PaireVisees &paire) {
  std::vector<LieuNavire> departs = DepartsDe(systeme, paire);
  const auto reste = [&](const LieuNavire &lieu) { return EquationsDe(systeme, EtatDe(systeme, lieu)).khi2; };
  if (departs.size() == 2 && reste(departs[1]) < reste(departs[0])) {
    std::swap(departs[0], departs[1]);
  }
  return departs;
}

/// How long a walk may be: once a place is found, another that agrees as well is as near its start.
int ToursPour(bool accord, bool trouvee) {
  constexpr int kToursDouble = 8;
  constexpr int kToursAutre = 20;
  return accord ? kToursDouble : trouvee ? kToursAutre : kTours;
}

/// The places that a search comes to from the crossings of a pair; those of further pairs as long as none agrees and a
/// pair comes to a new one.
std::vector<Recherche> ChercheLieux(const SystemePoint &systeme, const ReglagesPoint &reglages,
                                    std::span<const int> quarts, std::set<AvisPoint> &raisons) {
  std::vector<Recherche> trouvees;
  bool accord = false;
  for (const PaireVisees &paire : PairesDe(systeme)) {
    const std::size_t avant = trouvees.size();
    for (const LieuNavire &depart : DepartsOrdonnes(systeme, paire)) {
      auto recherche = Cherche(systeme, depart, reglages, quarts, ToursPour(accord, !trouvees.empty()), raisons);
      const auto meme = [&](const Recherche &r) { return MemeLieu(r, *recherche); };
      if (recherche && std::none_of(trouvees.begin(), trouvees.end(), meme)) {
        accord = accord || SAccorde(*recherche);
        trouvees.push_back(std::move(*recherche));
      }
    }
    if (accord || (avant > 0 && trouvees.size() == avant)) {
      break;
    }
  }
  return trouvees;
}

/// All that can be said of two sights or more.
void Resous(const SystemePoint &systeme, std::span<const ViseePoint> visees, const ReglagesPoint &reglages,
            FichePoint &fiche, std::set<AvisPoint> &avis) {
  std::set<AvisPoint> raisons;
  std::vector<Recherche> trouvees = ChercheLieux(systeme, reglages, QuartsDeVisees(visees), raisons);
  if (trouvees.empty()) {
    avis.insert(raisons == std::set{AvisPoint::SansSolution} ? AvisPoint::SansSolution : AvisPoint::AzimutsSerres);
    return;
  }
  std::sort(trouvees.begin(), trouvees.end(), Avant);
  if (trouvees.front().serree) {
    avis.insert(AvisPoint::AzimutsSerres); // another place, where they cross well, is the less likely one
    return;
  }
  fiche.solution = JugeEquilibre(trouvees.front().systeme, trouvees.front().equilibre, visees, reglages);
  PoseAvis(trouvees.front(), *fiche.solution, avis);
  if (trouvees.size() > 1 && !trouvees[1].serree) {
    SolutionPoint seconde = JugeEquilibre(trouvees[1].systeme, trouvees[1].equilibre, visees, reglages);
    if (seconde.chance > kSecondeAdmise) {
      fiche.seconde = std::move(seconde);
      avis.insert(AvisPoint::DeuxSolutions);
    }
  }
}

} // namespace

double EcartTypeDe(const ViseePoint &visee, const DoutesPoint &doutes) {
  const double base = Doute(doutes.hauteur) > 0 ? doutes.hauteur : DoutesPoint{}.hauteur;
  const double sien = Doute(visee.ecartType.value_or(0));
  return sien > 0 ? sien : ErreurSupposee(base, visee.hauteur.apparente);
}

FichePoint FaitPoint(std::span<const ViseePoint> visees, const ReglagesPoint &reglages) {
  FichePoint fiche;
  std::set<AvisPoint> avis;
  const SystemePoint systeme = SystemeDe(visees, reglages, avis);
  if (systeme.visees.size() < 2) {
    avis.insert(systeme.visees.empty() ? AvisPoint::SansVisee : AvisPoint::UneVisee);
  } else {
    Resous(systeme, visees, reglages, fiche, avis);
  }
  fiche.avis.assign(avis.begin(), avis.end());
  return fiche;
}

std::vector<int> QuartsDeVisees(std::span<const ViseePoint> visees) {
  constexpr double kEntreQuarts = 5400; ///< seconds
  std::vector<std::size_t> ordre(visees.size());
  std::iota(ordre.begin(), ordre.end(), std::size_t{0});
  const auto entre = [&](std::size_t a, std::size_t b) {
    return SecondesEntre(visees[a].hauteur.utc, visees[b].hauteur.utc);
  };
  std::stable_sort(ordre.begin(), ordre.end(), [&](std::size_t a, std::size_t b) { return entre(a, b) > 0; });
  std::vector<int> quarts(visees.size(), 0);
  for (std::size_t i = 1; i < ordre.size(); ++i) {
    quarts[ordre[i]] = quarts[ordre[i - 1]] + (entre(ordre[i - 1], ordre[i]) > kEntreQuarts ? 1 : 0);
  }
  return quarts;
}

} // namespace velmaris
