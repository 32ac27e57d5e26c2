#include "calcul/dit/Etoile.hpp"

#include "calcul/outils/Json.hpp"
#include "ephemerides/Etoiles.hpp"
#include "foundations/TexteNombre.hpp"

namespace velmaris {

bool EcritEtoile(const DemandeEtoile &demande, std::string &sortie) {
  Etoiles etoiles;
  std::vector<std::string> liste;
  ChargeEtoiles(etoiles, liste);
  return EcritTexte(sortie, [&] {
    const std::string jour = TexteGeneral(demande.jour);
    const std::string mois = TexteGeneral(demande.mois);
    const std::string an = TexteGeneral(demande.an);
    return CoordEtoile(etoiles, static_cast<std::int16_t>(demande.rang), -1, {jour, mois, an});
  });
}

} // namespace velmaris
