#pragma once

#include "foundations/Aire.hpp"

#include <cstddef>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace velmaris {

/// A colour of 24 bits, the blue byte first: 0xFF0000 is blue, 0x0000FF is red.
using Couleur = std::uint32_t;

/// The colour of three components from 0 to 255.
constexpr Couleur Rvb(unsigned rouge, unsigned vert, unsigned bleu) { return rouge | (vert << 8U) | (bleu << 16U); }

inline constexpr Couleur kNoir = 0x000000;
inline constexpr Couleur kBlanc = 0xFFFFFF;
inline constexpr Couleur kRouge = 0x0000FF;
inline constexpr Couleur kBleu = 0xFF0000;
inline constexpr Couleur kJaune = 0x00FFFF;
inline constexpr Couleur kMagenta = 0xFF00FF;
inline constexpr Couleur kGris = Rvb(128, 128, 128);
inline constexpr Couleur kLien = Rvb(31, 95, 158);

/// Style of a line.
enum class Style : std::uint8_t { Plein = 0, Tirets = 1, Points = 2, TiretPoint = 3 };

/// How a line is drawn: its width is in points of the screen.
struct Plume {
  Couleur couleur = kNoir;
  int largeur = 1;
  Style style = Style::Plein;
  bool operator==(const Plume &) const = default;
};

/// Font of a text.
struct Police {
  std::string famille = "sans-serif";
  double taille = 9.0; ///< points
  bool gras = true;
  bool operator==(const Police &) const = default;
};

/// What a line of a drawing is, for those who paint it.
enum class GenreLigne : std::uint8_t {
  Libre,     ///< nothing in particular
  Droite,    ///< a line of position
  Cote,      ///< an outline of the chart
  Grille,    ///< a line of the grid at a whole degree, or one of its darker ones
  GrilleFine ///< any other line of the grid
};

/// Joined segments in one pen.
struct Polyligne {
  Plume plume;
  std::vector<Point> points;
  GenreLigne genre = GenreLigne::Libre;
  bool operator==(const Polyligne &) const = default;
};

/// A circle in one pen, not filled.
struct CercleTrace {
  Plume plume;
  Point centre;
  double rayon = 0.0;
  bool operator==(const CercleTrace &) const = default;
};

/// What a text of a drawing is, in the order in which texts take their places on the picture.
enum class GenreTexte : std::uint8_t {
  Libre,          ///< stands where it is recorded, whatever lies there: the letters of a dial
  DegreLongitude, ///< whole degree of a meridian
  DegreLatitude,  ///< whole degree of a parallel
  Echelle,        ///< of a scale
  Position,       ///< estimated position
  Droite,         ///< intercept or azimuth of a line of position
  Minute,         ///< minutes between whole degrees
  Bout,           ///< body and time at the end of a line of position
  Objet,          ///< name of one of the user's objects
  Ville           ///< name of a city
};

/// What a text is.
struct RoleTexte {
  GenreTexte genre = GenreTexte::Libre;
  int classe = 0; ///< of a city: the smaller, the larger the city
  bool operator==(const RoleTexte &) const = default;
};

/// A text in one line.
struct TexteTrace {
  Couleur couleur = kNoir;
  Police police;
  Point position; ///< upper left corner
  std::string texte;
  RoleTexte role;
  bool operator==(const TexteTrace &) const = default;
};

/// A text at one of the two ends of a line.
struct Etiquette {
  TexteTrace texte; ///< at the one end
  Point autreBout;  ///< where it stands if it finds no room there
  bool operator==(const Etiquette &) const = default;
};

/// Anything drawn.
using Trace = std::variant<Polyligne, CercleTrace, TexteTrace>;

/// A drawing over a surface that isn't recorded with it: whoever made it makes it anew when what it shows changes.
struct Calque {
  std::vector<Trace> traces;         ///< lines and circles; texts among them aren't shown
  std::vector<Etiquette> etiquettes; ///< its words
  bool operator==(const Calque &) const = default;
};

/// A drawing surface as the list of what has been drawn on it.
struct Surface {
  double largeur = 0.0; ///< drawable width, 1/1440 inch
  double hauteur = 0.0; ///< drawable height, 1/1440 inch
  Couleur fond = kBlanc;
  Couleur encre = kNoir; ///< colour of texts, and of lines that name none
  int epaisseur = 1;     ///< draw width
  Style style = Style::Plein;
  Police police;
  double interligne = 240.0;            ///< height of a line of text in the font, 1/1440 inch
  Point position;                       ///< where the next text starts
  bool plumeLevee = false;              ///< the next segment starts a polyline of its own
  GenreLigne genre = GenreLigne::Libre; ///< of the lines that come next
  std::vector<Trace> traces;
  std::vector<Aire> aires;           ///< filled shapes, below all traces
  bool teintee = true;               ///< the filled shapes are to be seen
  std::vector<Etiquette> etiquettes; ///< names of lines, a layer of their own over all traces
  bool etiquetee = true;             ///< the names of lines are to be seen
  Calque calque;                     ///< what lies over all traces; clearing the surface leaves it
  std::uint64_t effacements = 0;     ///< how often the surface was cleared
};

/// Empties the surface; the drawing position returns to the upper left corner.
void Efface(Surface &surface);

/// A filled shape more, unless the surface has it already.
void AjouteAire(Surface &surface, Aire aire);

/// Drops the traces from a place on when they repeat, one by one, those that lie right before them: drawing a layer
/// twice in the same place changes nothing that can be seen, and costs no memory.
/// @param debut   first trace of the layer as it was drawn before
/// @param milieu  first trace of the layer as it was drawn again
/// @return whether they were dropped
bool RetireRepetition(Surface &surface, std::size_t debut, std::size_t milieu);

/// A run of traces in a surface's list.
struct Tranche {
  std::size_t debut = 0; ///< first trace
  std::size_t fin = 0;   ///< one past the last trace
};

/// Takes runs of traces off the surface, where there are any; all others stay in their order, and the picture is
/// painted anew.
void RetireTranches(Surface &surface, const std::vector<Tranche> &tranches);

/// A segment in the surface's width and style; it joins the last one when it starts at its end in the same pen.
/// Leaves the drawing position at its end.
void Ligne(Surface &surface, Point debut, Point fin, Couleur couleur);

/// A circle in the surface's width and style. Leaves the drawing position at its centre.
/// @param rayon  1/1440 inch
void Cercle(Surface &surface, Point centre, double rayon, Couleur couleur);

/// A text at the drawing position, in the surface's font and colour. Leaves the position at the start of the next line.
/// @param role  what it is; the record keeps every text in its place, the picture leaves out or moves some
void Ecrit(Surface &surface, std::string texte, RoleTexte role = {});

/// A text at a given place.
void EcritEn(Surface &surface, Point position, std::string texte, RoleTexte role = {});

} // namespace velmaris
