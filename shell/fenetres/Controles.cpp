#include "shell/fenetres/Controles.hpp"

#include <algorithm>

namespace velmaris {

void PoseTraits(Controle &c, const Traits &traits) {
  c.image = traits.image;
  c.visible = traits.visible;
  c.choisi = traits.choisi;
  c.peint = traits.peint;
  c.titre = traits.titre;
  c.gras = traits.titre;
  c.cadre = traits.cadre;
  c.renvoi = traits.renvoi;
  c.raccourci = traits.raccourci;
  c.lectureSeule = traits.lectureSeule;
  c.role = traits.role;
  c.groupe = traits.groupe;
  c.taille = traits.taille;
  c.cote = traits.cote;
  c.couleur = traits.couleur;
  c.etire = traits.etire;
}

void Etire(const ListeControles &controles, const CadreFenetre &cadre, double largeur, double hauteur) {
  const double dx = largeur - cadre.largeur;
  const double dy = hauteur - cadre.hauteur;
  for (Controle *c : controles) {
    if (c->etire != Place{}) {
      c->place = {c->origine.gauche + c->etire.gauche * dx, c->origine.haut + c->etire.haut * dy,
                  c->origine.largeur + c->etire.largeur * dx, c->origine.hauteur + c->etire.hauteur * dy};
    }
  }
}

Controle *Cherche(const ListeControles &controles, std::string_view nom, int indice) {
  const auto trouve = std::find_if(controles.begin(), controles.end(),
                                   [&](const Controle *c) { return c->nom == nom && c->indice == indice; });
  return trouve == controles.end() ? nullptr : *trouve;
}

} // namespace velmaris
