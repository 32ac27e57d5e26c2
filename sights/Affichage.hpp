#pragma once

#include "foundations/Messages.hpp"
#include "sights/Observation.hpp"

#include <array>
#include <string>

namespace velmaris {

/// What a reduction shows; the texts keep the last sight's until the next reduction writes them.
struct AffichageDroite {
  std::string intercept;              ///< Affichage_Intercept, minutes of arc as "#0.0#"
  std::string azimut;                 ///< Affichage_Azimuth, degrees as "##0.0#"
  std::string infobulle;              ///< tool tip of Label14: the computed height
  std::array<std::string, 8> details; ///< Label70 (0) to (7)
  bool operator==(const AffichageDroite &) const = default;
};

/// A height as whole degrees, "° ", whole minutes, "'": floor of both, unpadded, never rounded up.
/// @param hauteur  degrees; -0.5 gives -1° 30'
std::string DegresMinutes(double hauteur);

/// A small angle in minutes as "00.00 '".
/// @param degres  degrees
std::string EnMinutes(double degres);

/// Writes intercept, azimuth and the tool tip of the computed height.
/// @param hauteur  computed height, degrees, signed
void AfficheResultat(AffichageDroite &affichage, const ValeursVisee &valeurs, double hauteur);

/// The words of a computed height on a detail line: its sign, then its absolute value.
/// @param hauteur  degrees
std::string HauteurSignee(double hauteur);

} // namespace velmaris
