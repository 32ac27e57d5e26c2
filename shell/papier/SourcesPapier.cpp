#include "shell/papier/SourcesPapier.hpp"

#include "complements/ciel/Refus.hpp"
#include "complements/papier/PageFiche.hpp"
#include "complements/registre/RegistreLu.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/complements/Mots.hpp"
#include "shell/papier/MotsDesPages.hpp"
#include "shell/point/MotsPoint.hpp"
#include "shell/point/TracePoint.hpp"
#include "shell/visee/ChampsJuges.hpp"
#include "shell/visee/Saisie.hpp"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace velmaris {
namespace {

/// A sight and the name of its body.
struct ViseeNommee {
  Observation observation;
  std::string nom;
};

/// The log's chosen rows, in the order of its window.
std::vector<ViseeNommee> ViseesChoisies(const Bureau &bureau) {
  const RegistreOuvert &ouvert = bureau.registreOuvert;
  std::vector<ViseeNommee> visees;
  if (!ouvert.lu || !ouvert.montrees) {
    return visees;
  }
  for (const std::size_t ligne : bureau.registre.Table1.tableau.choisies) {
    if (ligne >= ouvert.montrees->size() || visees.size() == kFichesMax) {
      continue;
    }
    std::optional<Rangee> rangee = RangeeDe(*ouvert.lu, (*ouvert.montrees)[ligne]);
    if (rangee && ChoisitAstre(*rangee, bureau.etoiles)) {
      visees.push_back({rangee->observation, NomDeVisee(bureau.donnees, rangee->observation)});
    }
  }
  return visees;
}

/// The hour and minute of a sight, after its body.
std::string NomEtHeure(const std::string &nom, const InstantUTC &utc) { return nom + " " + TexteHeureMinute(utc); }

std::string Milles(double milles) { return DixiemesSignes(std::round(milles * 10) / 10 + 0.0); }

/// Where a told line passes, of a sight that is in no fix: it is laid off from its own estimated position.
std::optional<DroiteDuJour> DroiteSeule(const ViseeDuPoint &visee, const std::string &nom) {
  if (!visee.hauteur || !visee.dit) {
    return std::nullopt;
  }
  return DroiteDuJour{.nom = NomEtHeure(nom, visee.hauteur->utc),
                      .appui = visee.hauteur->estime,
                      .azimut = visee.dit->azimut,
                      .vers = visee.dit->intercept,
                      .hauteur = visee.hauteur->apparente,
                      .comptee = visee.cochee};
}

/// @param datee  the time bears its day: the page has sights of several
std::array<std::string, kColonnesJour> RangeeDuJour(const Bureau &bureau, const ViseeDuPoint &visee,
                                                    const ResiduPoint *residu, bool datee) {
  std::array<std::string, kColonnesJour> mots;
  const Observation &o = visee.observation;
  mots[0] = NomDeVisee(bureau.donnees, o);
  if (visee.hauteur) {
    constexpr std::size_t kJourMois = 5;
    const InstantUTC &utc = visee.hauteur->utc;
    mots[1] = (datee ? TexteDate(utc).substr(0, kJourMois) + " " : "") + TexteHeureUtc(utc);
  }
  FicheControle fiche;
  if (visee.dit) {
    fiche = ControleVisee(o, *visee.dit, bureau.etoiles, bureau.verification.reglages);
    mots[6] = Milles(visee.dit->intercept);
  }
  try {
    mots[2] = TexteAngleSigne(LitVisee(o, bureau.verification.reglages).lecture.lecture);
  } catch (const Refus &) {
    mots[2].clear(); // its reading is none
  }
  if (fiche.actuel) {
    mots[3] = TexteAngleSigne(fiche.actuel->Ho);
    mots[4] = TexteAngleSigne(fiche.actuel->Hc);
    mots[5] = TexteDirection(fiche.actuel->azimut);
    mots[7] = Milles(fiche.actuel->intercept);
  }
  if (residu != nullptr && residu->mesuree) {
    mots[8] = residu->utilisee ? Milles(residu->residu) : bureau.motsPapier.TexteOtee.legende;
  }
  return mots;
}

bool EstDePlusieursJours(const PointOuvert &p) {
  std::string jour;
  for (const ViseeDuPoint &visee : p.visees) {
    const std::string ici = visee.hauteur ? TexteDate(visee.hauteur->utc) : jour;
    if (!jour.empty() && ici != jour) {
      return true;
    }
    jour = ici;
  }
  return false;
}

/// How many sights the page has, and how many of them count.
std::string MotsVisees(const FenetrePapier &f, const PointOuvert &p) {
  const auto comptees =
      static_cast<std::size_t>(std::count_if(p.visees.begin(), p.visees.end(), [](const auto &v) { return v.cochee; }));
  const std::string toutes =
      std::to_string(p.visees.size()) + (p.visees.size() == 1 ? f.TexteVisee : f.TexteVisees).legende;
  return comptees == p.visees.size() ? toutes : std::to_string(comptees) + f.TexteSur.legende + toutes;
}

/// Puts the fix that is looked at, its lines and its track into a day.
void PosePoint(DonneesJour &jour, const Bureau &bureau, const SolutionPoint &solution) {
  const PointOuvert &p = bureau.point;
  const MotsPapier &m = bureau.motsPapier;
  const PointTrace trace = TraceDe(p, solution);
  jour.point = PointDuJour{trace.lieu, trace.ellipse, trace.heure};
  jour.route = trace.route;
  jour.heures = trace.heures;
  for (std::size_t i = 0; i < solution.residus.size() && i < p.visees.size(); ++i) {
    const ResiduPoint &residu = solution.residus[i];
    const ViseeDuPoint &visee = p.visees[i];
    if (residu.mesuree && visee.hauteur) {
      jour.droites.push_back({.nom = NomEtHeure(NomDeVisee(bureau.donnees, visee.observation), visee.hauteur->utc),
                              .appui = trace.lieu,
                              .azimut = residu.azimut,
                              .vers = residu.residu,
                              .hauteur = visee.hauteur->apparente,
                              .comptee = residu.utilisee});
    }
  }
  jour.lignes.push_back(m.TextePoint.legende + TexteDate(*p.heure) + " " + TexteHeureMinute(*p.heure) +
                        " UTC :  " + TexteLieu(trace.lieu));
  jour.lignes.push_back(m.TexteEllipse.legende + Dixiemes(trace.ellipse.a) + " x " + Dixiemes(trace.ellipse.b) +
                        m.TexteDirection.legende + TexteDirection(trace.ellipse.direction));
}

} // namespace

PagesFaites FichesVoulues(const Bureau &bureau, bool duRegistre, bool blancs, FormatPapier format) {
  const FenetrePapier &f = bureau.fenetrePapier;
  const MotsFiche mots = MotsDeLaFiche(bureau);
  std::vector<ViseeNommee> visees;
  if (duRegistre) {
    visees = ViseesChoisies(bureau);
  } else if (const std::string defaut = DefautDuPanneau(bureau); !defaut.empty()) {
    return {.pages = {}, .dit = f.TexteSansVisee.legende + defaut};
  } else {
    const Observation observation = LitPanneau(bureau.donnees);
    visees.push_back({observation, NomDeVisee(bureau.donnees, observation)});
  }
  PagesFaites faites;
  std::size_t bonnes = 0;
  std::string refusees;
  for (const ViseeNommee &visee : visees) {
    try {
      const ReglagesControle &reglages = bureau.verification.reglages;
      Feuillets pages = PagesFiche(FaitFicheCalcul(LitVisee(visee.observation, reglages), visee.nom, reglages.dut1),
                                   blancs, format, mots);
      std::move(pages.begin(), pages.end(), std::back_inserter(faites.pages));
      ++bonnes;
    } catch (const Refus &refus) {
      refusees = bureau.fiche.MotRefus.at(static_cast<std::size_t>(refus.raison)).legende;
    }
  }
  if (visees.empty()) {
    faites.dit = f.TexteSansChoix.legende;
  } else if (bonnes == 0) {
    faites.dit = f.TexteSansVisee.legende + refusees;
  } else {
    faites.dit = std::to_string(bonnes) + (bonnes == 1 ? f.TexteVisee : f.TexteVisees).legende;
    if (bonnes < visees.size()) {
      faites.dit += "  (" + std::to_string(visees.size() - bonnes) + f.TexteRefusees.legende + refusees + ")";
    }
  }
  return faites;
}

DonneesJour DonneesDuJour(const Bureau &bureau) {
  const PointOuvert &p = bureau.point;
  DonneesJour jour;
  const SolutionPoint *solution = p.heure ? SolutionRetenue(p) : nullptr;
  if (solution != nullptr) {
    PosePoint(jour, bureau, *solution);
  } else if (!p.visees.empty()) {
    jour.lignes.push_back(bureau.motsPapier.TexteSansPoint.legende);
  }
  const bool datee = EstDePlusieursJours(p);
  for (std::size_t i = 0; i < p.visees.size(); ++i) {
    const ViseeDuPoint &visee = p.visees[i];
    const bool mesuree = solution != nullptr && i < solution->residus.size();
    jour.visees.push_back(RangeeDuJour(bureau, visee, mesuree ? &solution->residus[i] : nullptr, datee));
    if (solution == nullptr) {
      if (auto droite = DroiteSeule(visee, NomDeVisee(bureau.donnees, visee.observation))) {
        jour.droites.push_back(std::move(*droite));
      }
    }
  }
  const auto &meteo = bureau.fenetrePapier.Text2;
  std::transform(meteo.begin(), meteo.end(), std::back_inserter(jour.meteo),
                 [](const Controle &champ) { return champ.texte; });
  return jour;
}

std::string DateDuJour(const Bureau &bureau) {
  const PointOuvert &p = bureau.point;
  if (p.heure && SolutionRetenue(p) != nullptr) {
    return TexteDate(*p.heure);
  }
  const auto datee = std::find_if(p.visees.rbegin(), p.visees.rend(), [](const auto &v) { return v.hauteur; });
  return datee == p.visees.rend() ? std::string() : TexteDate(datee->hauteur->utc);
}

PagesFaites JourVoulu(const Bureau &bureau, FormatPapier format) {
  const FenetrePapier &f = bureau.fenetrePapier;
  const PointOuvert &p = bureau.point;
  PagesFaites faites;
  if (p.visees.empty()) {
    faites.dit = f.TexteSansPoint.legende;
    return faites;
  }
  const DonneesJour jour = DonneesDuJour(bureau);
  faites.pages = PagesDuJour(jour, format, MotsDuJour(bureau, DateDuJour(bureau)));
  faites.dit = MotsVisees(f, p) + (jour.point ? f.TextePoint.legende + jour.point->heure : std::string());
  return faites;
}

} // namespace velmaris
