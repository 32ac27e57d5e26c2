#include "shell/point/MotsPoint.hpp"

#include "shell/complements/Mots.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace velmaris {
namespace {

constexpr double kMinutes = 60;
constexpr double kTour = 360;
constexpr double kRadian = std::numbers::pi / 180;

template <class Enum> std::size_t Rang(Enum valeur) { return static_cast<std::size_t>(valeur); }

/// A sight by its body and time: "Vega 05:31".
std::string Courte(const Bureau &bureau, const ViseeDuPoint &visee) {
  const std::string heure = visee.hauteur ? " " + TexteHeureUtc(visee.hauteur->utc).substr(0, 5) : std::string();
  return NomDeVisee(bureau.donnees, visee.observation) + heure;
}

const SolutionPoint *Solution(const FichePoint &fiche) { return fiche.solution ? &*fiche.solution : nullptr; }

bool EstImprobable(const FichePoint &fiche, std::size_t rang) {
  const SolutionPoint *solution = Solution(fiche);
  return solution != nullptr && solution->improbable == rang;
}

/// Whether a fix tells which sight is improbable; what the other one can't tell is then no news.
bool EstNommee(const FichePoint &fiche) {
  return std::find(fiche.avis.begin(), fiche.avis.end(), AvisPoint::ViseeImprobable) != fiche.avis.end();
}

void AjouteUneFois(std::vector<std::string> &mots, std::string texte) {
  if (std::find(mots.begin(), mots.end(), texte) == mots.end()) {
    mots.push_back(std::move(texte));
  }
}

void AjouteAvis(const Bureau &bureau, const FichePoint &fiche, std::vector<std::string> &mots) {
  const FenetrePoint &f = bureau.fenetrePoint;
  for (const AvisPoint avis : fiche.avis) {
    std::string texte = f.MotAvis.at(Rang(avis)).legende;
    const SolutionPoint *solution = Solution(fiche);
    if (avis == AvisPoint::ViseeImprobable && solution != nullptr && solution->improbable) {
      texte += " : " + Courte(bureau, bureau.point.visees.at(*solution->improbable)) + f.TexteAlarme.legende;
    }
    AjouteUneFois(mots, std::move(texte));
  }
}

void AjouteFiche(const Bureau &bureau, const std::string &titre, const FichePoint &fiche, std::string &texte) {
  const FenetrePoint &f = bureau.fenetrePoint;
  texte += titre + "\n";
  const SolutionPoint *solution = Solution(fiche);
  if (solution == nullptr) {
    texte += "  " + f.TexteSansPoint.legende + "\n";
    return;
  }
  texte +=
      "  " + TexteLieu(solution->lieu) + "\n  " + f.Rangee[1].legende + " : " + TexteEllipse(solution->ellipse) + "\n";
  if (solution->parResidus) {
    texte += "  " + f.Rangee[2].legende + " : " + TexteEllipse(*solution->parResidus) + "\n";
  }
  if (const std::string trouve = TexteTrouve(f, *solution); !trouve.empty()) {
    texte += "  " + trouve + "\n";
  }
  for (std::size_t i = 0; i < solution->residus.size(); ++i) {
    const ResiduPoint &residu = solution->residus[i];
    if (residu.mesuree) {
      texte += "  " + Courte(bureau, bureau.point.visees.at(i)) + "  " + DixiemesSignes(residu.residu) + " '" +
               (residu.utilisee ? "" : "  " + f.TexteLaisse.legende) + "\n";
    }
  }
}

} // namespace

std::string TexteEllipse(const EllipsePoint &ellipse) {
  return Dixiemes(ellipse.a) + " x " + Dixiemes(ellipse.b) + " M, " + TexteDirection(ellipse.direction);
}

std::string TexteTrouve(const FenetrePoint &f, const SolutionPoint &solution) {
  std::string texte;
  const auto ajoute = [&](const std::string &partie) { texte += (texte.empty() ? "" : " ; ") + partie; };
  for (const ErreurCommune &commune : solution.communes) {
    const Controle &mot = commune.genre == GenreCommune::Sextant ? f.TexteSextant : f.TexteCommune;
    ajoute(mot.legende + DixiemesSignes(commune.valeur) + " ' ± " + Dixiemes(commune.ecartType));
  }
  if (solution.fond) {
    ajoute(f.TexteFond.legende + TexteDirection(solution.fond->cap) + ", " + Dixiemes(solution.fond->vitesse) + " " +
           f.MotColonneRoute[2].legende);
  }
  return texte;
}

std::string TexteDistance(const LieuNavire &de, const LieuNavire &a) {
  const double nord = (a.latitude - de.latitude) * kMinutes;
  const double tour = std::remainder(a.longitude - de.longitude, kTour);
  const double est = tour * kMinutes * std::cos((a.latitude + de.latitude) / 2 * kRadian);
  const double cap = std::atan2(est, nord) / kRadian;
  return Dixiemes(std::hypot(nord, est)) + " M, " + TexteDirection(cap < 0 ? cap + kTour : cap);
}

std::vector<std::string> MotsDesAvis(const Bureau &bureau) {
  std::vector<std::string> mots;
  AjouteAvis(bureau, bureau.point.actuelle, mots);
  AjouteAvis(bureau, bureau.point.dite, mots);
  if (EstNommee(bureau.point.actuelle) || EstNommee(bureau.point.dite)) {
    std::erase(mots, bureau.fenetrePoint.MotAvis.at(Rang(AvisPoint::ErreurSansNom)).legende);
  }
  return mots;
}

std::string RemarqueDeVisee(const Bureau &bureau, std::size_t rang) {
  const ViseeDuPoint &visee = bureau.point.visees.at(rang);
  if (visee.refus) {
    return bureau.fiche.MotRefus.at(Rang(*visee.refus)).legende;
  }
  const bool improbable = EstImprobable(bureau.point.actuelle, rang) || EstImprobable(bureau.point.dite, rang);
  return improbable ? bureau.fenetrePoint.TexteImprobable.legende : std::string();
}

std::string TexteDuPoint(const Bureau &bureau) {
  const PointOuvert &p = bureau.point;
  const FenetrePoint &f = bureau.fenetrePoint;
  if (!p.heure) {
    return f.TexteSansPoint.legende + "\n";
  }
  std::string texte = f.LabHeure.legende + " " + TexteDate(*p.heure) + " " + TexteHeureUtc(*p.heure) + "\n";
  AjouteFiche(bureau, f.Titre[1].legende, p.actuelle, texte);
  AjouteFiche(bureau, f.Titre[2].legende, p.dite, texte);
  for (const std::string &avis : MotsDesAvis(bureau)) {
    texte += avis + "\n";
  }
  return texte;
}

} // namespace velmaris
