#include "Attend.hpp"
#include "chart/Lieux.hpp"
#include "foundations/Erreur.hpp"

#include <cmath>

using namespace velmaris;

/// Cities and objects are read or refused, and those that are drawn lie on the surface.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *octets, std::size_t taille) {
  const std::string_view texte = Octets(octets, taille);
  Feuille feuille;
  feuille.OrigineFeuille = {47.5F, 5.0F};
  feuille.CentreX = 14000.0F;
  feuille.CentreY = 7000.0F;
  feuille.EchelleX = 0.5F;
  feuille.EchelleY = 0.7F;
  feuille.Zoom = 200;
  Surface surface;
  surface.largeur = 28000;
  surface.hauteur = 14000;
  Passe([&] { TraceVilles(feuille, surface, texte); });
  Passe([&] { TraceObjets(feuille, surface, texte); });
  for (const Trace &trace : surface.traces) {
    if (const auto *nom = std::get_if<TexteTrace>(&trace)) {
      Attend(nom->position.x >= -0.1 && nom->position.x <= 28000.1 && nom->position.y >= -0.1 &&
                 nom->position.y <= 14000.1,
             "a name stands on the surface");
      Attend(nom->texte.find_first_of("\r\n") == std::string::npos, "a name is one line");
    }
  }
  return 0;
}
