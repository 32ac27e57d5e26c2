#include "sights/Affichage.hpp"

#include "foundations/TexteNombre.hpp"

#include <cmath>

namespace velmaris {

std::string DegresMinutes(double hauteur) {
  const double degres = Int(hauteur);
  return TexteGeneral(degres) + "° " + TexteGeneral(Int((hauteur - degres) * 60)) + "'";
}

std::string EnMinutes(double degres) { return Format(degres * 60, "00.00") + " '"; }

void AfficheResultat(AffichageDroite &affichage, const ValeursVisee &valeurs, double hauteur) {
  affichage.intercept = Format(valeurs.Intercept, "#0.0#");
  affichage.azimut = Format(valeurs.Azimut, "##0.0#");
  affichage.infobulle = "He =  " + DegresMinutes(hauteur);
}

std::string HauteurSignee(double hauteur) { return (hauteur < 0 ? " - " : " + ") + DegresMinutes(std::fabs(hauteur)); }

} // namespace velmaris
