#pragma once

#include "complements/papier/PageDuJour.hpp"
#include "complements/papier/PageFiche.hpp"
#include "shell/fenetres/Controles.hpp"

#include <array>
#include <span>

namespace velmaris {

/// Name of the words of printed pages in language files.
inline constexpr std::string_view kFenetreMotsPapier = "MotsPapier";

/// The words of sights worked by hand and of plotting sheets; no control shows them.
struct MotsPapier {
  std::array<Controle, kEtapesCalcul> MotEtape; ///< in the order of `EtapeFiche`
  std::array<Controle, kEtapesCalcul> MotRegle; ///< the same
  std::array<Controle, kPartiesFiche> MotPartie;
  std::array<Controle, kColonnesJour> MotColonne;
  std::array<Controle, 6> MotMeteo;
  Controle TexteFiche, TexteReponses, TexteVers, TexteDepuis, TexteControle, TexteJour, TexteSuite, TexteVierge,
      TexteMilles, TextePlane, TexteMinute, TextePied, TextePiedJour, TextePiedVierge, TexteEllipse, TexteDirection,
      TextePoint, TexteOtee, TexteSansPoint;
};

using LigneMotsPapier = LigneDe<MotsPapier>;

/// The table of the words.
std::span<const LigneMotsPapier> TableMotsPapier();

/// Fills the record with its words as the table has them.
void InitialiseMotsPapier(MotsPapier &fenetre);

/// Runs over all words in the order of their table.
template <class Fonction> void PourChaque(MotsPapier &mots, Fonction &&fonction) {
  for (const LigneMotsPapier &ligne : TableMotsPapier()) {
    fonction(ligne, ligne.acces(mots));
  }
}

} // namespace velmaris
