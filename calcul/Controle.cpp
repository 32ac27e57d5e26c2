#include "calcul/Controle.hpp"

#include "calcul/Ciel.hpp"
#include "calcul/outils/ViseeReduite.hpp"
#include "complements/controle/Controle.hpp"

#include <cmath>
#include <limits>
#include <string_view>

namespace velmaris {
namespace {

constexpr double kInconnu = std::numeric_limits<double>::quiet_NaN(); ///< told as null

/// The word of a cause; empty for those that are the told theory's manner and have none.
std::string_view Mot(Cause cause) {
  switch (cause) {
  case Cause::Etoile:
    return "etoile";
  case Cause::Signe:
    return "signe";
  case Cause::Horizon:
    return "horizon";
  case Cause::Refraction:
    return "refraction";
  case Cause::Depression:
    return "depression";
  case Cause::Temps:
    return "temps";
  case Cause::Artificiel:
    return "artificiel";
  case Cause::Lieu:
  case Cause::Parallaxe:
  case Cause::DemiDiametre:
  case Cause::ErreurArc:
    break;
  }
  return {};
}

/// Appends the list of grades and warnings.
void AjouteAvis(std::string &sortie, const FicheControle &fiche) {
  AjouteCle(sortie, "avis");
  sortie += '[';
  const auto ajoute = [&](std::string_view mot) {
    if (sortie.back() != '[') {
      sortie += ',';
    }
    AjouteTexte(sortie, mot);
  };
  if (fiche.grade == GradeControle::Accord) {
    ajoute("accord");
  } else if (fiche.grade == GradeControle::Maniere) {
    ajoute("maniere");
  }
  double reste = fiche.ecart;
  for (const PartCause &part : fiche.causes) {
    if (!Mot(part.cause).empty()) {
      ajoute(Mot(part.cause));
      reste -= part.minutes;
    }
  }
  if (!fiche.glissades.empty()) {
    ajoute("glissade");
  }
  if (fiche.grade == GradeControle::Avertissement && std::fabs(reste) > kManiere) {
    ajoute("ecart");
  }
  sortie += ']';
}

void AjouteActuel(std::string &sortie, const FicheControle &fiche) {
  AjouteCle(sortie, "actuel");
  if (!fiche.actuel) {
    sortie += "null";
    AjouteMembre(sortie, "ecart", kInconnu);
    return;
  }
  sortie += '{';
  AjouteMembre(sortie, "ho", fiche.actuel->Ho);
  AjouteMembre(sortie, "hc", fiche.actuel->Hc);
  AjouteMembre(sortie, "azimut", fiche.actuel->azimut);
  AjouteMembre(sortie, "intercept", fiche.actuel->intercept);
  AjouteMembre(sortie, "gha", fiche.actuel->gha);
  AjouteMembre(sortie, "dec", fiche.actuel->declinaison);
  sortie += '}';
  AjouteMembre(sortie, "ecart", fiche.ecart);
}

/// Appends the members after the file's name.
/// @return why there is no figure of today
std::optional<RaisonRefus> AjouteControle(std::string &sortie, const ViseeReduite &visee, double dut1) {
  AjouteCle(sortie, "corps");
  sortie += std::to_string(static_cast<int>(visee.observation.corps));
  AjouteMembre(sortie, "nom", NomAstre(visee.observation));
  if (!visee.faite) {
    AjouteCle(sortie, "reduit");
    sortie += "false";
    return std::nullopt;
  }
  AjouteCle(sortie, "dit");
  sortie += '{';
  AjouteFigures(sortie, visee);
  sortie += '}';
  ReglagesControle reglages;
  reglages.dut1 = dut1;
  const ResultatDit dit{visee.Ho, visee.Hc, visee.valeurs.Azimut, visee.valeurs.Intercept};
  const FicheControle fiche = ControleVisee(visee.observation, dit, TableDesEtoiles(), reglages);
  AjouteActuel(sortie, fiche);
  AjouteAvis(sortie, fiche);
  if (fiche.refus) {
    AjouteErreur(sortie, NumeroRefus(*fiche.refus), SensRefus(*fiche.refus));
  }
  return fiche.refus;
}

} // namespace

bool ControleFichier(const std::string &fichier, double dut1, std::string &sortie) {
  bool refuse = false;
  const bool reussi = EcritFichier(sortie, fichier, [&] {
    ExigeDut1(dut1);
    refuse = AjouteControle(sortie, ReduitLoP(fichier, {}), dut1).has_value();
  });
  return reussi && !refuse;
}

} // namespace velmaris
