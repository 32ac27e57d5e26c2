#pragma once

#include <string>

namespace velmaris {

/// A row of the star table and a date, as the command line gives them.
struct DemandeEtoile {
  int rang = 0; ///< 1 to 246
  double jour = 0.0;
  double mois = 0.0;
  double an = 0.0;
};

/// Tells the star's place for the date as one JSON object on a line.
/// @param sortie  the line is appended to it
/// @return false when the object holds an error
bool EcritEtoile(const DemandeEtoile &demande, std::string &sortie);

} // namespace velmaris
