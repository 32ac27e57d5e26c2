#include "calcul/Planetes.hpp"

#include "calcul/Json.hpp"
#include "ephemerides/ParamPlanet.hpp"
#include "ephemerides/pLANETE.hpp"
#include "foundations/Erreur.hpp"

namespace velmaris {
namespace {

/// Works a place out and appends it, or the error that it met.
template <class Calcul> bool EcritTexte(std::string &sortie, Calcul &&calcul) {
  bool reussi = false;
  sortie += '{';
  try {
    const std::string texte = calcul();
    AjouteCle(sortie, "texte");
    AjouteTexte(sortie, texte);
    reussi = true;
  } catch (const Erreur &erreur) {
    AjouteErreur(sortie, erreur.numero, SensErreur(erreur.numero));
  }
  sortie += "}\n";
  return reussi;
}

} // namespace

bool EcritHelio(const DemandePlanete &demande, std::string &sortie) {
  return EcritTexte(sortie, [&] {
    std::string texte = PositionHelio(demande.nom, demande.JD);
    if (texte.empty()) {
      throw Erreur(5);
    }
    return texte;
  });
}

bool EcritPlace(const DemandePlanete &demande, std::string &sortie) {
  return EcritTexte(sortie, [&] {
    std::string nom = demande.nom;
    return PlaceApparente(nom, demande.JD);
  });
}

} // namespace velmaris
