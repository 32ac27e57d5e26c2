#include "complements/papier/Feuillet.hpp"

#include <utility>

namespace velmaris {
namespace {

constexpr Point kTailleA4{11906, 16838};
constexpr Point kTailleLettre{12240, 15840};

} // namespace

Point TailleDuPapier(FormatPapier format, bool couche) {
  const Point debout = format == FormatPapier::A4 ? kTailleA4 : kTailleLettre;
  return couche ? Point{debout.y, debout.x} : debout;
}

void Feuillet::Mot(Point pied, std::string texte, const Graphie &graphie) {
  elements.emplace_back(MotFeuillet{pied, std::move(texte), graphie});
}

void Feuillet::Trait(Point de, Point a, const Encre &encre) { Traits({de, a}, encre); }

void Feuillet::Traits(std::vector<Point> points, const Encre &encre) {
  elements.emplace_back(TraitFeuillet{std::move(points), encre});
}

void Feuillet::Cadre(Point coin, Point oppose, const Encre &encre) {
  elements.emplace_back(TraitFeuillet{{coin, {oppose.x, coin.y}, oppose, {coin.x, oppose.y}}, encre, true});
}

void Feuillet::Fond(Point coin, Point oppose, double gris) {
  elements.emplace_back(
      TraitFeuillet{{coin, {oppose.x, coin.y}, oppose, {coin.x, oppose.y}}, {.gris = gris}, true, true});
}

void Feuillet::Rond(Point centre, double rayon, const Encre &encre, bool plein) {
  elements.emplace_back(RondFeuillet{centre, rayon, encre, plein});
}

Feuillet FeuilletVide(FormatPapier format, bool couche) {
  const Point taille = TailleDuPapier(format, couche);
  return {.largeur = taille.x, .hauteur = taille.y, .titre = {}, .elements = {}};
}

} // namespace velmaris
