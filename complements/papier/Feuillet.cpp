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

void PoseVirgule(Feuillet &feuillet, char virgule) {
  const auto chiffre = [](char c) { return c >= '0' && c <= '9'; };
  for (ElementFeuillet &element : feuillet.elements) {
    if (auto *mot = std::get_if<MotFeuillet>(&element)) {
      std::string &texte = mot->texte;
      for (std::size_t i = 1; i + 1 < texte.size(); ++i) {
        texte[i] = texte[i] == '.' && chiffre(texte[i - 1]) && chiffre(texte[i + 1]) ? virgule : texte[i];
      }
    }
  }
}

} // namespace velmaris
