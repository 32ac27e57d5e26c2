#pragma once

#include "calcul/outils/Json.hpp"
#include "ephemerides/Etoiles.hpp"
#include "foundations/Fichiers.hpp"
#include "foundations/Messages.hpp"
#include "sights/Affichage.hpp"
#include "sights/Observation.hpp"

#include <string>

namespace velmaris {

/// A sight that has been through a reduction, with all that it left.
struct ViseeReduite {
  Observation observation;
  ValeursVisee valeurs;
  AffichageDroite affichage;
  bool faite = false; ///< false for a reading of 0, which reduces nothing
  double Ho = 0.0;
  double Hc = 0.0;
  bool simple = false; ///< a Sun sight: Ho is a 32-bit value and Hc a 64-bit one; the reverse for the others
};

/// The star table, split once for all files and threads.
const Etoiles &TableDesEtoiles();

/// Reads one saved sight and reduces it.
/// @param messages  the opening words of the detail lines
/// @throws Erreur or FichierTropGrand of the file; Erreur 6 for a position that leaves 32 bits, 5 when no star or
/// planet
///         is chosen, and what the reduction raises
ViseeReduite ReduitLoP(const std::string &fichier, const TexteMsg &messages);

/// Name of a sight's body: the Sun, the Moon, or the chosen planet or star.
std::string NomAstre(const Observation &observation);

/// Appends the members "ho", "hc", "azimut" and "intercept", each in its own width.
void AjouteFigures(std::string &sortie, const ViseeReduite &visee);

/// Appends one object and its end of line: the file's name, then its members.
/// @param membres  appends them; what it throws as an `Erreur` becomes the member "erreur" after them
/// @return whether there was none
template <class Membres> bool EcritFichier(std::string &sortie, const std::string &fichier, Membres &&membres) {
  bool tropGrand = false;
  const bool reussi = EcritObjet(sortie, [&] {
    AjouteMembre(sortie, "fichier", fichier);
    try {
      membres();
    } catch (const FichierTropGrand &erreur) {
      tropGrand = true;
      AjouteErreur(sortie, erreur.numero, "Fichier trop grand");
    }
  });
  return reussi && !tropGrand;
}

} // namespace velmaris
