#include "calcul/Point.hpp"

#include "calcul/Ciel.hpp"
#include "calcul/Reduit.hpp"
#include "calcul/outils/ViseeReduite.hpp"
#include "complements/point/FichierRoute.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>

namespace velmaris {
namespace {

constexpr double kInconnu = std::numeric_limits<double>::quiet_NaN(); ///< told as null
constexpr int kArgument = 5;
constexpr int kType = 13;

std::string_view Mot(AvisPoint avis) {
  switch (avis) {
  case AvisPoint::SansVisee:
    return "sans_visee";
  case AvisPoint::UneVisee:
    return "une_visee";
  case AvisPoint::AzimutsSerres:
    return "azimuts_serres";
  case AvisPoint::SansSolution:
    return "sans_solution";
  case AvisPoint::SansFigure:
    return "sans_figure";
  case AvisPoint::AuPole:
    return "pole";
  case AvisPoint::DeuxSolutions:
    return "deux_solutions";
  case AvisPoint::Desaccord:
    return "desaccord";
  case AvisPoint::ViseeImprobable:
    return "improbable";
  case AvisPoint::ErreurSansNom:
    return "erreur_sans_nom";
  case AvisPoint::CommuneAzimuts:
    return "commune_azimuts";
  case AvisPoint::CommuneTropPeu:
    return "commune_trop_peu";
  case AvisPoint::CommuneMalPosee:
    return "commune_mal_posee";
  case AvisPoint::FondTropPeu:
  case AvisPoint::FondTropCourt:
  case AvisPoint::FondMalPose:
    break;
  }
  return "fond";
}

/// Why there is no fix, in the words of the companion's errors.
std::string_view SensSansPoint(AvisPoint avis) {
  switch (avis) {
  case AvisPoint::UneVisee:
    return "une visée seule ne fait pas de point";
  case AvisPoint::AzimutsSerres:
    return "les droites se coupent à moins de 15 degrés";
  case AvisPoint::SansSolution:
    return "aucun lieu ne s'accorde avec les hauteurs";
  default:
    return "aucune visée";
  }
}

/// One sight of the batch, ready.
/// @param sortie  a line is appended when the sight can't be in the fix
/// @return whether no line holds an error
bool Prepare(const DemandePointDit &demande, const std::string &fichier, std::vector<ViseePoint> &visees,
             std::string &sortie) {
  ViseePoint visee;
  visee.cochee = false;
  bool refuse = false;
  bool faite = true;
  std::string ligne;
  const bool reussi = EcritFichier(ligne, fichier, [&] {
    const ViseeReduite reduite = ReduitLoP(fichier, {});
    faite = reduite.faite;
    if (!faite) {
      return;
    }
    const ResultatDit dit{reduite.Ho, reduite.Hc, reduite.valeurs.Azimut, reduite.valeurs.Intercept};
    try {
      visee.hauteur = PrepareHauteur(LitVisee(reduite.observation, {}), dit, 0, demande.dut1);
      if (demande.theorie == "actuelle" && visee.hauteur.refus) {
        throw Refus(*visee.hauteur.refus);
      }
      visee.cochee = true;
    } catch (const Refus &refus) {
      refuse = true;
      AjouteErreur(ligne, NumeroRefus(refus.raison), SensRefus(refus.raison));
    }
  });
  if (!reussi || refuse) {
    sortie += ligne;
  } else if (!faite) {
    ReduitFichier(fichier, {}, sortie);
  }
  visees.push_back(visee);
  return reussi && !refuse;
}

/// @param sortie  a line is appended when the file can't be read, with the number of a line that isn't a leg
/// @return whether there is a route
bool PrepareRoute(const DemandePointDit &demande, RouteNavire &route, std::string &sortie) {
  if (demande.cap && demande.vitesse) {
    route.jambes.push_back({{}, *demande.cap, *demande.vitesse});
  }
  if (demande.route.empty()) {
    return true;
  }
  std::string ligne;
  const bool reussi = EcritFichier(ligne, demande.route, [&] {
    RouteLue lue = LitRoute(LitFichier(demande.route));
    if (lue.ligneFautive > 0) {
      AjouteCle(ligne, "ligne");
      ligne += std::to_string(lue.ligneFautive);
      throw Erreur(kType);
    }
    route.jambes = std::move(lue.jambes);
  });
  sortie += reussi ? std::string() : ligne;
  return reussi;
}

/// The time of the fix: what is asked for, or that of the last sight.
/// @throws Erreur 13, Refus
InstantUTC HeureDuPoint(const DemandePointDit &demande, const std::vector<ViseePoint> &visees) {
  if (!demande.heure.empty()) {
    return LitInstant(demande.heure);
  }
  InstantUTC derniere;
  for (const ViseePoint &visee : visees) {
    if (visee.cochee && SecondesEntre(derniere, visee.hauteur.utc) > 0) {
      derniere = visee.hauteur.utc;
    }
  }
  return derniere;
}

void AjouteEllipse(std::string &sortie, const SolutionPoint *solution) {
  AjouteCle(sortie, "ellipse");
  if (solution == nullptr) {
    sortie += "null";
    return;
  }
  sortie += '{';
  AjouteMembre(sortie, "a", solution->ellipse.a);
  AjouteMembre(sortie, "b", solution->ellipse.b);
  AjouteMembre(sortie, "direction", solution->ellipse.direction);
  sortie += '}';
}

/// The common error: null, one number, or one a watch where there are several.
void AjouteCommune(std::string &sortie, const SolutionPoint *solution) {
  AjouteCle(sortie, "erreur_commune");
  if (solution == nullptr || solution->communes.empty()) {
    sortie += "null";
  } else if (solution->communes.size() == 1) {
    AjouteNombre(sortie, solution->communes.front().valeur);
  } else {
    AjouteListe(sortie, solution->communes, [&](const ErreurCommune &c) { AjouteNombre(sortie, c.valeur); });
  }
}

void AjouteFiche(std::string &sortie, const DemandePointDit &demande, const std::vector<ViseePoint> &visees,
                 const InstantUTC &heure, const FichePoint &fiche) {
  const SolutionPoint *solution = fiche.solution ? &*fiche.solution : nullptr;
  AjouteMembre(sortie, "latitude", solution == nullptr ? kInconnu : solution->lieu.latitude);
  AjouteMembre(sortie, "longitude", solution == nullptr ? kInconnu : solution->lieu.longitude);
  AjouteCle(sortie, "heure");
  if (heure.jour > 0) {
    AjouteTexte(sortie, TexteInstant(heure));
  } else {
    sortie += "null";
  }
  AjouteEllipse(sortie, solution);
  AjouteCle(sortie, "residus");
  std::vector<double> residus(visees.size(), kInconnu);
  for (std::size_t i = 0; solution != nullptr && i < visees.size(); ++i) {
    residus[i] = visees[i].cochee && solution->residus[i].mesuree ? solution->residus[i].residu : kInconnu;
  }
  AjouteListe(sortie, residus, [&](double residu) { AjouteNombre(sortie, residu); });
  AjouteCommune(sortie, solution);
  AjouteCle(sortie, "avis");
  AjouteListe(sortie, fiche.avis, [&](AvisPoint avis) { AjouteTexte(sortie, Mot(avis)); });
  if (solution != nullptr && solution->improbable) {
    AjouteMembre(sortie, "improbable", demande.fichiers[*solution->improbable]);
  }
  if (fiche.seconde) {
    AjouteCle(sortie, "seconde");
    sortie += '{';
    AjouteMembre(sortie, "latitude", fiche.seconde->lieu.latitude);
    AjouteMembre(sortie, "longitude", fiche.seconde->lieu.longitude);
    sortie += '}';
  }
}

} // namespace

bool EcritPoint(const DemandePointDit &demande, std::string &sortie) {
  bool entiere = true;
  ReglagesPoint reglages;
  std::vector<ViseePoint> visees;
  std::string debut;
  if (!EcritObjet(debut, [&] { ExigeDut1(demande.dut1); })) {
    sortie += debut;
    return false;
  }
  debut.clear();
  if (!PrepareRoute(demande, reglages.route, debut)) {
    sortie += debut;
    return false;
  }
  for (const std::string &fichier : demande.fichiers) {
    entiere = Prepare(demande, fichier, visees, sortie) && entiere;
  }
  reglages.theorie = demande.theorie == "dite" ? TheoriePoint::Dite : TheoriePoint::Actuelle;
  reglages.erreurCommune = true;
  reglages.doutes.hauteur = demande.ecartType.value_or(reglages.doutes.hauteur);
  bool faite = false;
  const bool reussi = EcritObjet(sortie, [&] {
    try {
      reglages.heure = HeureDuPoint(demande, visees);
      const FichePoint fiche = FaitPoint(visees, reglages);
      AjouteFiche(sortie, demande, visees, reglages.heure, fiche);
      faite = fiche.solution.has_value();
      if (!faite) {
        AjouteErreur(sortie, kArgument, SensSansPoint(fiche.avis.empty() ? AvisPoint::SansVisee : fiche.avis.front()));
      }
    } catch (const Refus &refus) {
      AjouteErreur(sortie, NumeroRefus(refus.raison), SensRefus(refus.raison));
    }
  });
  return reussi && faite && entiere;
}

} // namespace velmaris
