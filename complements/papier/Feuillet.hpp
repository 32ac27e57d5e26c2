#pragma once

#include "foundations/Aire.hpp"

#include <cstdint>
#include <functional>
#include <stop_token>
#include <string>
#include <variant>
#include <vector>

/// Pages that are printed: what stands on them, without a printer. Lengths and places are in 1/1440 inch from the upper
/// left corner of the paper, y downwards. All is black, or a grey of rules: no colour carries a meaning.
namespace velmaris {

/// Paper.
enum class FormatPapier : std::uint8_t { A4, Lettre };

/// Width and height of a paper, 1/1440 inch.
/// @param couche  lying on its side
Point TailleDuPapier(FormatPapier format, bool couche = false);

/// Which end of a text its place is.
enum class Ancrage : std::uint8_t { Gauche, Milieu, Droite };

/// How a text looks.
struct Graphie {
  double taille = 9.0; ///< points
  bool gras = false;
  bool italique = false;
  Ancrage ancrage = Ancrage::Gauche;
  double angle = 0.0; ///< degrees by which it is turned about its place, clockwise
  bool operator==(const Graphie &) const = default;
};

/// A text of one line.
struct MotFeuillet {
  Point pied; ///< on its base line, at the end that `Graphie::ancrage` names
  std::string texte;
  Graphie graphie;
};

/// How a line of a page is drawn.
struct Encre {
  double largeur = 0.5; ///< points
  double gris = 0.0;    ///< 0 black to 1 white
  double tiret = 0.0;   ///< points of a dash and of the gap behind it; 0 draws a whole line
};

/// Joined segments, or with `ferme` and `plein` a filled shape.
struct TraitFeuillet {
  std::vector<Point> points;
  Encre encre;
  bool ferme = false;
  bool plein = false; ///< filled with its grey, without a line around
};

/// A circle, or with `plein` a disc.
struct RondFeuillet {
  Point centre;
  double rayon = 0.0;
  Encre encre;
  bool plein = false;
};

using ElementFeuillet = std::variant<TraitFeuillet, RondFeuillet, MotFeuillet>;

/// One printed page: its elements in drawing order.
struct Feuillet {
  double largeur = 0.0;
  double hauteur = 0.0;
  std::string titre; ///< by which a preview and the bookmarks of a file name it
  std::vector<ElementFeuillet> elements;

  void Mot(Point pied, std::string texte, const Graphie &graphie = {});
  void Trait(Point de, Point a, const Encre &encre = {});
  void Traits(std::vector<Point> points, const Encre &encre = {});
  void Cadre(Point coin, Point oppose, const Encre &encre = {});
  /// A rectangle in a grey of its own, under what comes later.
  void Fond(Point coin, Point oppose, double gris);
  void Rond(Point centre, double rayon, const Encre &encre = {}, bool plein = false);
};

/// A page of a paper, empty.
Feuillet FeuilletVide(FormatPapier format, bool couche = false);

/// Writes decimals with another sign: a point between two figures becomes it.
void PoseVirgule(Feuillet &feuillet, char virgule);

/// What a long work asks and tells on its way: whether it is to stop, and how far it is, 0 to 1.
struct Avancement {
  std::stop_token arret;
  std::function<void(double)> dit; ///< may be empty
  bool Cesse() const { return arret.stop_requested(); }
  void Dit(double part) const {
    if (dit) {
      dit(part);
    }
  }
};

} // namespace velmaris
