#pragma once

#include "complements/ciel/Refus.hpp"
#include "foundations/Erreur.hpp"

#include <cstddef>
#include <string_view>

/// Text files of words, a line each.
namespace velmaris {

/// Cuts the first word off a line, blanks before it too; empty when there is none.
std::string_view MotSuivant(std::string_view &ligne);

/// A number, with a decimal point or comma.
/// @throws Erreur 13 for what is no number from 0 to a limit
double NombreLu(std::string_view mot, double limite);

/// Whether a line holds nothing to be read: blanks alone, or "#" first.
bool LigneMuette(std::string_view ligne);

/// Reads the lines of a text in their order, those that hold nothing left out.
/// @param lit  takes a line; what it throws as an `Erreur` or a `Refus` ends the reading
/// @return the line at fault, from 1; 0 when all were read
template <class Lit> std::size_t LitLignes(std::string_view texte, Lit &&lit) {
  for (std::size_t numero = 1; !texte.empty(); ++numero) {
    const std::string_view ligne = texte.substr(0, texte.find('\n'));
    texte.remove_prefix(ligne.size() < texte.size() ? ligne.size() + 1 : texte.size());
    if (LigneMuette(ligne)) {
      continue;
    }
    try {
      lit(ligne);
    } catch (const Erreur &) {
      return numero;
    } catch (const Refus &) {
      return numero;
    }
  }
  return 0;
}

} // namespace velmaris
