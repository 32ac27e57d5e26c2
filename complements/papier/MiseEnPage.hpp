#pragma once

#include "complements/papier/Feuillet.hpp"
#include "complements/papier/MotsAlmanach.hpp"

#include <string>
#include <vector>

/// How the pages of an almanac are set: tables of figures in columns, all of one size.
namespace velmaris {

inline constexpr double kTwipsParPoint = 20;

/// Part of a page that figures stand in, 1/1440 inch.
struct ZonePage {
  double gauche = 0;
  double haut = 0;
  double droite = 0;
  double bas = 0;
  double Largeur() const { return droite - gauche; }
  double Hauteur() const { return bas - haut; }
};

/// An empty page with its heading: a title at the left, another at the right, a rule below.
Feuillet PageTitree(FormatPapier format, const std::string &gauche, const std::string &droite = {});

/// What heading and foot leave of a page.
ZonePage ZoneDe(const Feuillet &page);

/// Writes the foot: two lines, the page's number at the right.
void PosePied(Feuillet &page, const std::string &ligne1, const std::string &ligne2, const std::string &numero);

/// Width of so many figures of the type family.
/// @param taille  points
/// @return 1/1440 inch
double LargeurChiffres(double taille, double nombre);

/// The size at which so many figures stand in a width, and lines of a height don't touch.
/// @return points
double TailleQuiTient(double largeur, double chiffres, double interligne);

/// One column: at which place its texts end, begin or have their middle.
struct Tabulation {
  double x = 0;
  Ancrage ancrage = Ancrage::Droite;
};

/// Writes a row; empty texts leave no mark.
/// @param y  of its base line
void PoseRangee(Feuillet &page, double y, const std::vector<Tabulation> &colonnes,
                const std::vector<std::string> &textes, Graphie graphie);

/// Columns side by side whose texts end at their right sides.
/// @param chiffres  width of each, in figures
std::vector<Tabulation> ColonnesDroites(double gauche, double taille, const std::vector<double> &chiffres);

/// A table whose rows and columns have names, as it stands from its upper left corner.
struct TableauPose {
  std::string titre;
  std::vector<std::string> colonnes; ///< names of the columns
  std::vector<std::string> rangees;  ///< names of the rows
  std::vector<std::vector<std::string>> cellules;
  double chiffresNom = 5; ///< width of the rows' names
  double chiffres = 5;    ///< width of a column
  std::size_t groupe = 5; ///< rows between two gaps
};

/// Draws a table.
/// @return y under it
double PoseTableau(Feuillet &page, double gauche, double haut, double taille, double interligne,
                   const TableauPose &tableau);

/// A table of figures as texts, tenths of a unit.
std::vector<std::vector<std::string>> TextesDixiemes(const std::vector<std::vector<long>> &z, char virgule);

/// A number without decimals where it is whole, else with one.
std::string TexteCourt(double x, char virgule);

/// An altitude: "5 10".
std::string TexteDegresMinutes(double degres);

/// A date: "21 June 2026".
std::string TexteDateAlmanach(int jour, int mois, int annee, const MotsAlmanach &mots);

/// The sign before decimals.
char VirguleDe(const MotsAlmanach &mots);

} // namespace velmaris
