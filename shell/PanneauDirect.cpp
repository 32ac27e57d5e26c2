#include "shell/PanneauDirect.hpp"

#include "foundations/TexteNombre.hpp"
#include "shell/Saisie.hpp"
#include "sky/Cadrans.hpp"

namespace velmaris {

void PosSoleil(Bureau &bureau, bool sansDessin) {
  const SoleilDirect soleil = CalculeSoleilDirect(LitPanneau(bureau.donnees), bureau.horloge);
  if (sansDessin) {
    return;
  }
  bureau.soleil = soleil.point;
  bureau.donnees.Label64.legende = TextePointSolaire(bureau.soleil);
  PlaceMarqueSoleil(bureau);
  TraceCadrans(bureau, soleil.azimut, soleil.hauteur);
}

void TraceCadrans(Bureau &bureau, double azimut, double hauteur) {
  DessineCadranAzimut(bureau.picAZ, static_cast<float>(azimut));
  DessineCadranHauteur(bureau.picHE, static_cast<float>(hauteur));
  bureau.donnees.Label35.legende = Format(azimut, "###.00") + " °";
  bureau.donnees.Label36.legende = Format(hauteur, "###.00") + " °";
}

void PlaceMarqueSoleil(Bureau &bureau) {
  Controle &marque = bureau.donnees.Soleil;
  marque.place.gauche = kHorsDeVue;
  if (bureau.feuille.OrigineFeuille == kSansFeuille) {
    return;
  }
  const Point p = PlaceSurFeuille(bureau.feuille, bureau.soleil.LatSoleil, bureau.soleil.LonSoleil);
  if (p.x >= 0 && p.x <= bureau.image1.largeur && p.y >= 0 && p.y <= bureau.image1.hauteur) {
    marque.place.gauche = p.x - marque.place.largeur / 2;
    marque.place.haut = p.y - marque.place.hauteur / 2;
  }
}

} // namespace velmaris
