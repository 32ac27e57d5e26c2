#pragma once

#include "foundations/Surface.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

/// What a control is, and so which of its members mean something.
enum class Genre : std::uint8_t {
  Surface,    ///< a drawing surface
  Cadre,      ///< a module or the toolbar
  Groupe,     ///< a plain grouping inside a module
  Etiquette,  ///< a caption
  Champ,      ///< a text field
  Bouton,     ///< a command
  Option,     ///< one of a group of exclusive choices
  Case,       ///< a box to tick: `valeur` 0, 1, or 2 for the greyed state
  Liste,      ///< a drop-down list with its text
  ListeBoite, ///< a list that shows its lines
  Curseur,    ///< the slider
  Image,      ///< a picture, pressed like a button when a click means something
  Texte       ///< words that no control shows
};

/// Side of its place that a caption keeps to.
enum class Cote : std::uint8_t { Gauche, Centre, Droite };

/// Left, top, width and height in 1/1440 inch, within the parent.
struct Place {
  double gauche = 0.0;
  double haut = 0.0;
  double largeur = 0.0;
  double hauteur = 0.0;
  bool operator==(const Place &) const = default;
};

/// One control, as far as it can be seen.
struct Controle {
  std::string nom;
  int indice = -1; ///< place in a group of that name, -1 for a control alone
  Genre genre = Genre::Etiquette;
  std::string legende;
  std::string texte;
  std::string infobulle;
  std::string image; ///< name of its picture, empty for none
  Place place;
  bool visible = true;
  bool actif = true;
  bool aVenir = false; ///< disabled because what it does is not there yet, which its tool tip says
  bool choisi = false; ///< of an option
  bool accent = false; ///< the caption stands out
  bool cadre = false;  ///< drawn as a light well, for results
  bool opaque = false; ///< of a caption on the drawing surface: it takes the surface's background
  bool titre = false;  ///< of a module: it bears a title line; of a caption: it is one
  int groupe = 0;      ///< options of one number exclude each other; 0 for none
  int valeur = 0;      ///< of a box or the slider
  int minimum = 0;     ///< of the slider
  int maximum = 0;     ///< of the slider
  int petitPas = 1;    ///< of the slider
  int grandPas = 10;   ///< of the slider
  std::vector<std::string> liste;
  int rang = -1; ///< chosen line of a list, -1 for none
  Couleur couleur = kNoir;
  double taille = 9.0; ///< of the font, points
  bool gras = false;   ///< of the font
  Cote cote = Cote::Gauche;
  bool toutSelectionne = false; ///< asks that the whole text be selected
  bool operator==(const Controle &) const = default;
};

/// What the table of a window says of a control beyond its name, kind and place.
struct Traits {
  bool visible = true;
  bool choisi = false;
  bool aVenir = false;
  bool titre = false;
  bool cadre = false;
  int groupe = 0;
  int taille = 9;
  Cote cote = Cote::Gauche;
  Couleur couleur = kNoir;
  std::string_view image = {};
  std::string_view par = {}; ///< control whose caption names this one to a screen reader
  int parIndice = -1;        ///< its place in its group
};

} // namespace velmaris
