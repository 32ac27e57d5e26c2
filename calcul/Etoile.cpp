#include "calcul/Etoile.hpp"

#include "calcul/Json.hpp"
#include "ephemerides/Etoiles.hpp"
#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"

namespace velmaris {

bool EcritEtoile(const DemandeEtoile &demande, std::string &sortie) {
  Etoiles etoiles;
  std::vector<std::string> liste;
  ChargeEtoiles(etoiles, liste);
  bool reussi = false;
  sortie += '{';
  try {
    const std::string jour = TexteGeneral(demande.jour);
    const std::string mois = TexteGeneral(demande.mois);
    const std::string an = TexteGeneral(demande.an);
    const std::string texte = CoordEtoile(etoiles, static_cast<std::int16_t>(demande.rang), -1, {jour, mois, an});
    AjouteCle(sortie, "texte");
    AjouteTexte(sortie, texte);
    reussi = true;
  } catch (const Erreur &erreur) {
    AjouteErreur(sortie, erreur.numero, SensErreur(erreur.numero));
  }
  sortie += "}\n";
  return reussi;
}

} // namespace velmaris
