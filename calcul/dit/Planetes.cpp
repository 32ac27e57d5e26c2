#include "calcul/dit/Planetes.hpp"

#include "calcul/outils/Json.hpp"
#include "ephemerides/ParamPlanet.hpp"
#include "ephemerides/pLANETE.hpp"
#include "foundations/Erreur.hpp"

namespace velmaris {

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
