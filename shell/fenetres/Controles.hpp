#pragma once

#include "foundations/Surface.hpp"
#include "shell/fenetres/Tableau.hpp"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

/// What a control is, and so which of its members mean something.
enum class Genre : std::uint8_t {
  Surface,    ///< a drawing surface
  Cadre,      ///< a module or the toolbar
  Groupe,     ///< a plain grouping, in a frame where it has a caption
  Etiquette,  ///< a caption
  Champ,      ///< a text field
  Bouton,     ///< a command
  Option,     ///< one of a group of exclusive choices
  Case,       ///< a box to tick: `valeur` 0, 1, or 2 for the greyed state
  Liste,      ///< a drop-down list with its text
  ListeBoite, ///< a list that shows its lines
  Table,      ///< a long list in columns, whose rows are read as they come into sight: `tableau`
  Onglets,    ///< tabs: the lines of `liste`, of which `rang` is in front
  Curseur,    ///< the slider
  Jauge,      ///< a bar that tells how far a work is: `valeur` of `maximum`
  Image,      ///< a picture, pressed like a button when a click means something
  Menu,       ///< a menu that opens at the pointer, or within another one
  Entree,     ///< a command in a menu: `valeur` 1 marks it
  Separateur, ///< a line between two entries of a menu
  Papier,     ///< a printed page as it will be: `feuillet`; a press shows it larger, or whole again
  Marque,     ///< a filled circle in its place: its border in `bordure`, its inside in `couleur`
  Texte       ///< words that no control shows
};

/// Side of its place that a caption keeps to.
enum class Cote : std::uint8_t { Gauche, Centre, Droite };

/// The mouse pointer over a control.
enum class Pointeur : std::uint8_t { Normal = 0, Croix = 2 };

/// What Return and Escape press in a dialog.
enum class Role : std::uint8_t { Aucun, Defaut, Annule };

/// Left, top, width and height in 1/1440 inch, within the parent.
struct Place {
  double gauche = 0.0;
  double haut = 0.0;
  double largeur = 0.0;
  double hauteur = 0.0;
  bool operator==(const Place &) const = default;
};

struct Feuillet;

/// One control, as far as it can be seen.
struct Controle {
  std::string_view fenetre; ///< name of its window
  std::string_view parent;  ///< name of the control it lies in, empty for the window itself
  std::string_view par;     ///< control whose caption names this one to a screen reader, empty for none
  int parIndice = -1;       ///< its place in its group
  std::string nom;
  int indice = -1; ///< place in a group of that name, -1 for a control alone
  Genre genre = Genre::Etiquette;
  std::string legende;
  std::string marque; ///< a sign after the caption, which tells what its colour tells
  std::string texte;
  std::string infobulle;
  std::string image;     ///< name of its picture, empty for none
  std::string etiquette; ///< what code keeps with it, and nobody sees
  Place place;
  Place origine; ///< its place as the window's table has it
  Place etire;   ///< its shares of its window's growth: left and width of the width's, top and height of the height's
  bool visible = true;
  bool actif = true;
  bool peint = false;        ///< painted by its window, without a widget of its own
  bool choisi = false;       ///< of an option
  bool accent = false;       ///< the caption stands out
  bool cadre = false;        ///< drawn as a light well, for results
  bool opaque = false;       ///< of a caption on the drawing surface: it takes the surface's background
  bool dessus = false;       ///< lies over all others when it shows
  bool renvoi = false;       ///< of a caption: a click on it does something
  bool raccourci = false;    ///< an ampersand in the caption marks its key
  bool lectureSeule = false; ///< of a field: it shows a result
  Role role = Role::Aucun;   ///< of a button of a dialog
  bool titre = false;        ///< of a module: it bears a title line; of a caption: it is one
  int groupe = 0;            ///< options of one number exclude each other; 0 for none
  int valeur = 0;            ///< of a box or the slider
  int minimum = 0;           ///< of the slider
  int maximum = 0;           ///< of the slider
  int petitPas = 1;          ///< of the slider
  int grandPas = 10;         ///< of the slider
  std::vector<std::string> liste;
  int rang = -1;                            ///< chosen line of a list, -1 for none
  std::vector<bool> loin;                   ///< of a list of stars: the lines that bear a warning sign; empty for none
  Tableau tableau;                          ///< of a table
  std::shared_ptr<const Feuillet> feuillet; ///< of a printed page, null for none
  Couleur couleur = kNoir;
  Couleur bordure = kNoir; ///< of a mark
  Couleur fond = kBlanc;   ///< behind the words of an opaque caption that has a background of its own
  double taille = 9.0;     ///< of the font, points
  bool gras = false;       ///< of the font
  Cote cote = Cote::Gauche;
  Pointeur pointeur = Pointeur::Normal;
  Point pointe;                 ///< of a surface: where it was pressed last, 1/1440 inch
  bool toutSelectionne = false; ///< asks that the whole text be selected
  std::string alerte; ///< why a field or a list is to be mended, or a result not to be taken; empty while all is well
  bool operator==(const Controle &) const = default;
};

/// A window besides the main one, as far as it can be seen.
struct CadreFenetre {
  std::string_view nom; ///< in language files and among the windows
  std::string titre;
  double largeur = 0.0; ///< 1/1440 inch
  double hauteur = 0.0; ///< 1/1440 inch
  bool visible = false;
  double moindreLargeur = 0.0; ///< that its user can make it, 1/1440 inch; 0 for a window that isn't stretched
  double moindreHauteur = 0.0; ///< the same
};

/// What the table of a window says of a control beyond its name, kind and place.
struct Traits {
  bool visible = true;
  bool choisi = false;
  bool peint = false;
  bool titre = false;
  bool cadre = false;
  bool renvoi = false;
  bool raccourci = false;
  bool lectureSeule = false;
  Role role = Role::Aucun;
  int groupe = 0;
  int taille = 9;
  Cote cote = Cote::Gauche;
  Couleur couleur = kNoir;
  std::string_view image = {};
  std::string_view par = {}; ///< control whose caption names this one to a screen reader
  int parIndice = -1;        ///< its place in its group
  Place etire = {};          ///< its shares of its window's growth
};

/// Gives a control what its table says of it beyond name, kind and place.
void PoseTraits(Controle &controle, const Traits &traits);

/// One control in the table of a window's record: its name, how to find it, and how it starts.
template <class Fenetre> struct LigneDe {
  std::string_view nom;
  int indice = -1; ///< -1 for a control alone
  Controle &(*acces)(Fenetre &) = nullptr;
  Genre genre = Genre::Etiquette;
  std::string_view parent; ///< empty for the window itself
  Place place;
  std::string_view legende = {};
  std::string_view infobulle = {};
  Traits traits = {};
};

/// A control as its line of the table has it.
/// @param fenetre  name of its window
template <class Fenetre> Controle ControleNeuf(const LigneDe<Fenetre> &ligne, std::string_view fenetre) {
  Controle c;
  c.fenetre = fenetre;
  c.parent = ligne.parent;
  c.par = ligne.traits.par;
  c.parIndice = ligne.traits.parIndice;
  c.nom = ligne.nom;
  c.indice = ligne.indice;
  c.genre = ligne.genre;
  c.place = ligne.place;
  c.origine = ligne.place;
  c.legende = ligne.legende;
  c.infobulle = ligne.infobulle;
  PoseTraits(c, ligne.traits);
  return c;
}

/// The controls of one window, in the order of its table, which is that of the keyboard.
using ListeControles = std::vector<Controle *>;

/// All controls of a window's record, in the order of its table.
template <class Fenetre> ListeControles Liste(Fenetre &fenetre) {
  ListeControles liste;
  PourChaque(fenetre, [&](const LigneDe<Fenetre> &, Controle &c) { liste.push_back(&c); });
  return liste;
}

/// Lays a window out for another size: each control takes its shares of what there is more, or less.
/// @param cadre             the window's record, with the size that its table is for
/// @param largeur, hauteur  of its inside, 1/1440 inch
void Etire(const ListeControles &controles, const CadreFenetre &cadre, double largeur, double hauteur);

/// A control of a list by its name and index.
/// @return null when there is none of that name
Controle *Cherche(const ListeControles &controles, std::string_view nom, int indice = -1);

} // namespace velmaris
