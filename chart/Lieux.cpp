#include "chart/Lieux.hpp"

#include "chart/FichierLieux.hpp"
#include "chart/Projection.hpp"
#include "foundations/Erreur.hpp"
#include "foundations/Fichiers.hpp"
#include "foundations/TexteNombre.hpp"

#include <cmath>
#include <string>

namespace velmaris {
namespace {

constexpr Couleur kGrandeVille = 255;
constexpr Couleur kPetiteVille = Rvb(0, 0, 100);
constexpr Couleur kObjet = Rvb(0, 100, 0);
constexpr int kClasseCercle = 3;   ///< below it a city has its circles
constexpr int kClasseCouleur = 4;  ///< below it a city is red
constexpr int kZoomNoms = 1000;    ///< miles under which every city bears its name
constexpr double kMillesVille = 4; ///< radius of a city's outer circle, and twice that of the inner one

/// What named points are placed by. The longitude isn't wrapped.
struct Cadre {
  PlaceCarte reference;
  double demiLatitude = 0.0;  ///< degrees from the reference to the surface's edges
  double demiLongitude = 0.0; ///< degrees from the reference to the surface's edges
};

Cadre CadreDe(const Feuille &feuille, const Surface &surface) {
  Cadre cadre;
  if (feuille.OrigineFeuille.longitude <= 200.0F) {
    cadre.reference = {feuille.OrigineFeuille.latitude, feuille.OrigineFeuille.longitude};
  }
  cadre.demiLatitude = Divise(surface.hauteur, feuille.EchelleY * 60.0) / 2;
  cadre.demiLongitude = Divise(surface.largeur, feuille.EchelleX * 60.0) / 2;
  return cadre;
}

/// Runs over the lines of a file of named points that lie on the surface.
/// @param estLigne  whether a line is one
/// @param trace     draws a line's point, whose place is the drawing position
template <class EstLigne, class Trace>
void PourChaqueLieu(const Feuille &feuille, Surface &surface, std::string_view octets, EstLigne &&estLigne,
                    Trace &&trace) {
  const std::string texte = EnUtf8(octets);
  const Cadre cadre = CadreDe(feuille, surface);
  for (const std::string_view ligne : Lignes(texte)) {
    if (!estLigne(ligne)) {
      continue;
    }
    const PositionLieu position = DecoupePosition(ligne);
    const double latitude = Val(position.latitude);
    const double longitude = Val(position.longitude);
    if (std::fabs(latitude - cadre.reference.latitude) > cadre.demiLatitude ||
        std::fabs(longitude - cadre.reference.longitude) > cadre.demiLongitude) {
      continue;
    }
    surface.position = PointAutour(feuille, cadre.reference.latitude, cadre.reference.longitude, latitude, longitude);
    trace(ligne, position.blanc);
  }
}

} // namespace

void TraceVilles(const Feuille &feuille, Surface &surface, std::string_view octets) {
  PourChaqueLieu(feuille, surface, octets, EstLigneVille, [&](std::string_view ligne, std::size_t blanc) {
    const DetailsVille ville = DecoupeVille(ligne, blanc);
    const double classe = Val(ville.classe);
    const bool cerclee = classe < kClasseCercle;
    if (cerclee) {
      Cercle(surface, surface.position, feuille.EchelleY * kMillesVille, kMagenta);
      Cercle(surface, surface.position, feuille.EchelleY * kMillesVille / 2, kBleu);
    }
    surface.encre = classe < kClasseCouleur ? kGrandeVille : kPetiteVille;
    if (cerclee || feuille.Zoom < kZoomNoms) {
      Ecrit(surface, std::string(ville.nom), {GenreTexte::Ville, static_cast<int>(classe)});
    }
  });
}

void TraceObjets(const Feuille &feuille, Surface &surface, std::string_view octets) {
  PourChaqueLieu(feuille, surface, octets, EstLigneObjet, [&](std::string_view ligne, std::size_t blanc) {
    const DetailsObjet objet = DecoupeObjet(ligne, blanc);
    Cercle(surface, surface.position, Val(objet.rayon) * feuille.EchelleY, kObjet);
    surface.encre = kObjet;
    Ecrit(surface, std::string(objet.nom), {GenreTexte::Objet});
  });
  surface.encre = kNoir;
}

} // namespace velmaris
