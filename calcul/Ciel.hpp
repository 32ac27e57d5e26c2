#pragma once

#include "complements/ciel/Astre.hpp"
#include "complements/ciel/Refus.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace velmaris {

/// A body, a moment and perhaps a place, as the command line gives them.
struct DemandeCiel {
  std::string corps;               ///< as typed
  std::string date;                ///< day "/" month "/" year
  std::string heure;               ///< hour ":" minute ":" second, UTC; the second may have a fraction
  double dut1 = 0.0;               ///< UT1 - UTC, seconds
  std::optional<double> latitude;  ///< degrees, north positive; without it no place is asked for
  std::optional<double> longitude; ///< degrees, east positive
};

/// The body of a name, in any case: Soleil, Lune, Venus, Mars, Jupiter, Saturne, Aries, or a row of the star table.
/// @return nothing for any other name
std::optional<Astre> AstreNomme(std::string_view nom);

/// How a body is told: by the same names, a star by its row.
std::string NomDe(const Astre &astre);

/// The words for a refusal, in French as those of run-time errors are.
std::string_view SensRefus(RaisonRefus raison);

/// The number of the run-time error that a refusal is told as: 13 for a date or a time that is none, else 5.
int NumeroRefus(RaisonRefus raison);

/// Makes sure that a difference of UT1 and UTC is one.
/// @param dut1  seconds
/// @throws Erreur 5 for more than a minute
void ExigeDut1(double dut1);

/// Tells today's sky for one body as one JSON object on a line: from the Earth's centre, then from the place.
/// @param sortie  the line is appended to it
/// @return false when the object holds an error
bool EcritCiel(const DemandeCiel &demande, std::string &sortie);

} // namespace velmaris
