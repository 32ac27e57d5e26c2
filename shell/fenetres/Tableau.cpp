#include "shell/fenetres/Tableau.hpp"

#include <utility>

namespace velmaris {

void PoseLignes(Tableau &tableau, std::size_t lignes, std::shared_ptr<const LecteurLignes> lecteur) {
  tableau.lignes = lignes;
  tableau.lecteur = std::move(lecteur);
  ++tableau.version;
  tableau.choisies.clear();
  tableau.courante = kSansLigne;
  tableau.premiere = 0;
}

} // namespace velmaris
