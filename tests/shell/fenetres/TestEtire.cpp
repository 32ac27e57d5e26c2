#include "tests/shell/bureau/OutilsBureau.hpp"

#include <algorithm>

/// Windows that their user stretches.
namespace velmaris::essais {
namespace {

std::vector<CadreFenetre *> Etirables(Bureau &bureau) {
  std::vector<CadreFenetre *> cadres = FenetresLibres(bureau);
  std::erase_if(cadres, [](const CadreFenetre *cadre) { return cadre->moindreLargeur == 0; });
  return cadres;
}

/// What can be seen beside one another: one window's controls, or those of one of its groups.
std::vector<const Controle *> Voisins(const ListeControles &controles, std::string_view parent) {
  std::vector<const Controle *> voisins;
  std::copy_if(controles.begin(), controles.end(), std::back_inserter(voisins),
               [&](const Controle *c) { return c->genre != Genre::Texte && c->visible && c->parent == parent; });
  return voisins;
}

bool SeCouvrent(const Place &a, const Place &b) {
  return a.gauche < b.gauche + b.largeur && b.gauche < a.gauche + a.largeur && a.haut < b.haut + b.hauteur &&
         b.haut < a.haut + a.hauteur;
}

/// Nothing lies beyond its parent or over a neighbour.
void RienNeSeCouvre(const ListeControles &controles, std::string_view parent, double largeur, double hauteur) {
  const std::vector<const Controle *> voisins = Voisins(controles, parent);
  for (const Controle *a : voisins) {
    EXPECT_LE(a->place.gauche + a->place.largeur, largeur) << a->nom << a->indice;
    EXPECT_LE(a->place.haut + a->place.hauteur, hauteur) << a->nom << a->indice;
    for (const Controle *b : voisins) {
      EXPECT_FALSE(a != b && SeCouvrent(a->place, b->place)) << a->nom << a->indice << " " << b->nom << b->indice;
    }
    if (a->genre == Genre::Groupe) {
      RienNeSeCouvre(controles, a->nom, a->place.largeur, a->place.hauteur);
    }
  }
}

TEST_F(Programme, AtEachSizeNothingOfAStretchedWindowLiesOverAnother) {
  const std::vector<CadreFenetre *> cadres = Etirables(bureau);
  ASSERT_GE(cadres.size(), 2U);
  for (const CadreFenetre *cadre : cadres) {
    SCOPED_TRACE(cadre->nom);
    const ListeControles controles = ControlesDe(bureau, cadre->nom);
    for (const auto &[largeur, hauteur] : {std::pair{cadre->moindreLargeur, cadre->moindreHauteur},
                                           {cadre->largeur, cadre->hauteur},
                                           {cadre->largeur + 6000, cadre->hauteur + 5000}}) {
      Etire(controles, *cadre, largeur, hauteur);
      RienNeSeCouvre(controles, "", largeur, hauteur);
    }
  }
}

TEST_F(Programme, AStretchedWindowGivesTheGrowthToItsList) {
  for (const CadreFenetre *cadre : Etirables(bureau)) {
    SCOPED_TRACE(cadre->nom);
    const ListeControles controles = ControlesDe(bureau, cadre->nom);
    const auto grandit = [](const Controle *c) { return c->etire.hauteur > 0; };
    const auto liste = std::find_if(controles.begin(), controles.end(), grandit);
    ASSERT_NE(liste, controles.end());
    const Place avant = (*liste)->place;
    Etire(controles, *cadre, cadre->largeur + 1000, cadre->hauteur + 3000);
    EXPECT_EQ((*liste)->place.hauteur, avant.hauteur + 3000);
    EXPECT_EQ((*liste)->place.largeur, avant.largeur + 1000 * (*liste)->etire.largeur);
    EXPECT_GT((*liste)->etire.largeur, 0);
    Etire(controles, *cadre, cadre->largeur, cadre->hauteur);
    for (const Controle *c : controles) {
      EXPECT_EQ(c->place, c->origine) << c->nom;
    }
  }
}

} // namespace
} // namespace velmaris::essais
