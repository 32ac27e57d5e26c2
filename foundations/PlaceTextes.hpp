#pragma once

#include "foundations/Surface.hpp"

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <vector>

namespace velmaris {

/// A rectangle of a surface, 1/1440 inch.
struct ZoneTexte {
  double gauche = 0.0;
  double haut = 0.0;
  double largeur = 0.0;
  double hauteur = 0.0;
  double droite() const { return gauche + largeur; }
  double bas() const { return haut + hauteur; }
  bool operator==(const ZoneTexte &) const = default;
};

/// Whether two rectangles have an area in common.
bool SeCoupent(const ZoneTexte &a, const ZoneTexte &b);

/// Room that a text takes, 1/1440 inch, as its font is measured.
struct TailleTexte {
  double largeur = 0.0;
  double hauteur = 0.0;
};

using MesureTexte = std::function<TailleTexte(const TexteTrace &)>;

/// A text that is shown.
struct TextePlace {
  std::size_t rang = 0;   ///< its place among the surface's traces; or among its names of lines, the layer's after them
  ZoneTexte zone;         ///< where it is shown
  bool etiquette = false; ///< it is a name of a line
};

/// The text that stands in a place.
const TexteTrace &TexteDe(const Surface &surface, const TextePlace &place);

/// The places that are taken on a surface, and what is still free among them. Two texts keep a little room between
/// them. Sizes are in 1/1440 inch.
class PlanTextes {
public:
  PlanTextes(double largeur, double hauteur) : largeur_(largeur), hauteur_(hauteur) {}

  void Prend(const ZoneTexte &zone);
  bool EstLibre(ZoneTexte zone) const;
  /// The place moved inside of the surface's edges.
  ZoneTexte Rentree(ZoneTexte zone) const;
  /// The first of a place's displacements that is free and whole on the surface.
  std::optional<ZoneTexte> Premiere(const ZoneTexte &zone, std::span<const Point> ecarts) const;
  /// The nearest free place on rings around one.
  /// @param cercles  rings, half the text's height apart
  std::optional<ZoneTexte> Autour(const ZoneTexte &zone, int cercles) const;
  /// The free place that is nearest to one, however far; the place itself on a surface without any.
  ZoneTexte Proche(const ZoneTexte &zone) const;

private:
  static constexpr std::size_t kEtages = 64;
  std::size_t EtageDe(double y) const;

  double largeur_;
  double hauteur_;
  std::array<std::vector<ZoneTexte>, kEtages> prises_; ///< by the strips across the surface that they touch
};

/// Which of a surface's texts are shown, and where: none overprints another. They take their places in the order of
/// `GenreTexte`, cities by their class, and as recorded within one of these.
/// - Texts that lie outside of the surface aren't shown; one that an edge would cut is moved inside.
/// - Equal texts on one spot count once.
/// - Degrees, scale, position and figures of lines are all shown: one that meets another goes to the nearest free
///   place. Only where the degrees of one axis stand closer than their figures are wide, every second, fifth, tenth of
///   them and so on has its own.
/// - Figures of minutes stand in their places or are left out.
/// - Names stand below and right of their points, as recorded, or at one of seven other places around them, an object's
///   somewhat farther off too, or are left out.
/// - Names of lines stand at one of their line's ends or are left out.
/// @param mesure    gives the room of a text
/// @param reserves  where none of them stands, since something else is written there
/// @return in the order in which they took their places
std::vector<TextePlace> PlaceTextes(const Surface &surface, const MesureTexte &mesure,
                                    std::span<const ZoneTexte> reserves = {});

} // namespace velmaris
