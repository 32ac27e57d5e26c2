#include "Attend.hpp"
#include "chart/Polygones.hpp"
#include "chart/TraceCarte.hpp"
#include "foundations/Erreur.hpp"
#include "foundations/Fichiers.hpp"
#include "foundations/TexteNombre.hpp"

#include <algorithm>
#include <cmath>

using namespace velmaris;

namespace {

/// A polygon file read the slow way, line by line.
/// @return the number of points
std::size_t LitLentement(Polygone &polygone, std::string_view octets) {
  std::size_t n = 0;
  for (const std::string_view ligne : Lignes(octets)) {
    const std::size_t p = std::min(ligne.find(' ') + 1, ligne.size());
    polygone.PolyX.at(n) = Simple(Val(ligne.substr(0, p)));
    polygone.PolyY.at(n) = Simple(Val(ligne.substr(p)));
    ++n;
  }
  return n;
}

Feuille FeuilleEn(Origine origine, const Surface &surface) {
  Feuille feuille;
  feuille.OrigineFeuille = origine;
  feuille.CentreX = static_cast<float>(surface.largeur / 2);
  feuille.CentreY = static_cast<float>(surface.hauteur / 2);
  feuille.EchelleX = 47.0F;
  feuille.EchelleY = 70.0F;
  return feuille;
}

} // namespace

/// The fast reader and the slow one find the same points, and what is drawn of them lies near the surface.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *octets, std::size_t taille) {
  static Polygone vite;
  static Polygone lentement;
  const std::string_view texte = Octets(octets, taille);
  Vide(vite);
  Vide(lentement);
  std::size_t nVite = 0;
  std::size_t nLent = 0;
  const bool lu = Passe([&] { nVite = LitPolygone(vite, texte); });
  Attend(lu == Passe([&] { nLent = LitLentement(lentement, texte); }), "both readers fail alike");
  if (!lu) {
    return 0;
  }
  Attend(nVite == nLent && vite.PolyX == lentement.PolyX && vite.PolyY == lentement.PolyY, "one file, one outline");
  Surface surface;
  surface.largeur = 28515;
  surface.hauteur = 13937;
  for (const Origine origine : {kSansFeuille, Origine{47.5F, 5.0F}}) {
    Polygone copie = vite;
    Feuille feuille = FeuilleEn(origine, surface);
    Affiche(copie, feuille, surface, kNoir, [] {});
    for (const Trace &trace : surface.traces) {
      for (const Point &p : std::get<Polyligne>(trace).points) {
        Attend(std::fabs(p.x) < 1e5 && std::fabs(p.y) < 1e5, "nothing far outside the surface is drawn");
      }
    }
  }
  return 0;
}
