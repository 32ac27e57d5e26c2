#pragma once

#include "shell/fenetres/Controles.hpp"

#include <array>
#include <cstddef>
#include <span>

namespace velmaris {

/// Name of the window of the fix in language files.
inline constexpr std::string_view kFenetrePoint = "Point";

/// Lines of words that a fix has room for.
inline constexpr std::size_t kAvisMontres = 5;

/// The fix in figures: the sights that it is made from, the ship's run, what is assumed, and what comes out, by the sky
/// of today and as the lines are drawn. It lives beside the main window.
struct FenetrePoint {
  Controle LabHeure;
  std::array<Controle, 2> Text1;         ///< date and time of the fix, UTC
  Controle Check1;                       ///< the watch's error is taken off the times
  Controle Visees;                       ///< the table of sights
  Controle LabEcart, Text2;              ///< assumed error of the sight that the keyboard is at
  std::array<Controle, 3> Command1;      ///< "Dernier quart", "Ôter", "Registre..."
  Controle Frame1;                       ///< "Route"
  Controle Jambes;                       ///< the table of legs
  std::array<Controle, 4> Label3, Text3; ///< a leg: date, time, course, speed
  std::array<Controle, 2> Command2;      ///< "Ajouter", "Ôter"
  std::array<Controle, 2> Label4, Text4; ///< current: set, drift
  Controle Frame2;                       ///< "Doutes"
  std::array<Controle, 4> Label5, Text5; ///< of a height, the course, the speed, the current
  std::array<Controle, 2> Check2;        ///< common error, course and speed made good
  std::array<Controle, 3> Titre;         ///< what the rows of results are; by the sky of today; as drawn
  std::array<Controle, 4> Rangee;        ///< names of the rows of results
  std::array<Controle, 4> Actuel, Dit;   ///< position, ellipse by what is assumed, ellipse by the residuals, more
  Controle LabEntre;                     ///< how far the two lie apart
  std::array<Controle, kAvisMontres> LabAvis;
  Controle Check3;                  ///< the layer on sheet and chart
  Controle Check4;                  ///< of two solutions, the second
  std::array<Controle, 4> Command3; ///< "Prendre comme position estimée", "Garder", "Copier", "Fermer"

  /// Words that no control shows.
  std::array<Controle, 7> MotColonne;      ///< columns of the sights
  std::array<Controle, 3> MotColonneRoute; ///< columns of the legs
  std::array<Controle, 16> MotAvis;        ///< in the order of `AvisPoint`
  Controle TexteImprobable, TexteLaisse, TexteCommune, TexteSextant, TexteFond, TexteEntre, TexteSurplus, TexteHors,
      TexteSansPoint, TexteGarde, TexteGardeRefuse, TexteJambe, TexteAlarme, TexteRemplace, TexteVisees;

  CadreFenetre cadre{kFenetrePoint, "", 12600, 9450, false, 12600, 8370};
};

using LigneFenetrePoint = LigneDe<FenetrePoint>;

/// The table of the window's controls, in the order of the keyboard.
std::span<const LigneFenetrePoint> TableFenetrePoint();

/// Fills the record with its controls as the table has them.
void InitialiseFenetrePoint(FenetrePoint &fenetre);

/// Runs over all controls of the window in the order of its table.
template <class Fonction> void PourChaque(FenetrePoint &fenetre, Fonction &&fonction) {
  for (const LigneFenetrePoint &ligne : TableFenetrePoint()) {
    fonction(ligne, ligne.acces(fenetre));
  }
}

} // namespace velmaris
