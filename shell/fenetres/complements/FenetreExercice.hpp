#pragma once

#include "shell/fenetres/Controles.hpp"

#include <array>
#include <cstddef>
#include <span>

namespace velmaris {

/// Name of the window of practice in language files.
inline constexpr std::string_view kFenetreExercice = "Exercice";

/// Lines of words that the correction of one sight has room for.
inline constexpr std::size_t kLignesDetail = 3;

/// Practice: a voyage of a seed, the sights that its sextant shows, the user's fix, and what there was. It lives beside
/// the main window.
struct FenetreExercice {
  std::array<Controle, 3> Label1;
  Controle Combo1;                  ///< the graded practices
  std::array<Controle, 2> Command1; ///< "Commencer", "Autre graine"
  Controle Text1;                   ///< the seed
  Controle Combo2;                  ///< the subject
  std::array<Controle, 7> Label2;
  std::array<Controle, 7> Text2; ///< sights, noise, index error, clouds, speed, doubt of the reckoning, latitude
  Controle Label3;               ///< what becomes of the log
  std::array<Controle, 6> Label4;
  std::array<Controle, 6> Donne; ///< reckoned position, course and speed, eye, index, time of the fix, hidden bodies
  Controle Visees;               ///< the table of the sights
  std::array<Controle, kLignesDetail> Detail; ///< of the row that the keyboard is at
  Controle Prend;                             ///< "Au panneau"
  std::array<Controle, 2> Label5;
  std::array<Controle, 2> Text3; ///< the user's fix
  Controle Corrige;              ///< "Corriger"
  std::array<Controle, 3> Label6;
  std::array<Controle, 3> Resultat; ///< the truth, how far the fix is from it, how far the reckoning was
  Controle LabAvis;
  Controle Ferme;

  /// Words that no control shows.
  std::array<Controle, 4> MotSujet;   ///< in the order of `SujetExercice`
  std::array<Controle, 8> MotColonne; ///< of the table
  std::array<Controle, 8> MotAvis;    ///< in the order of `AvisCorrection`
  std::array<Controle, 3> MotBord;    ///< in the order of `Contact`
  Controle TexteHors, TexteVisee, TexteVisees, TexteBruit, TexteCollimation, TexteNuages, TexteNoeuds,
      TexteHorsRegistre, TexteImpossible, TexteTypee, TexteNonTypee, TexteBonne, TexteGeste, TexteSansChoix,
      TexteSansExercice, TexteSansPoint, TexteVers, TexteAttendu, TexteEstime, TexteMilles, TexteArret;

  CadreFenetre cadre{kFenetreExercice, "", 14400, 7800, false, 14400, 7800};
};

using LigneFenetreExercice = LigneDe<FenetreExercice>;

/// The table of the window's controls, in the order of the keyboard.
std::span<const LigneFenetreExercice> TableFenetreExercice();

/// Fills the record with its controls as the table has them.
void InitialiseFenetreExercice(FenetreExercice &fenetre);

/// Runs over all controls of the window in the order of its table.
template <class Fonction> void PourChaque(FenetreExercice &fenetre, Fonction &&fonction) {
  for (const LigneFenetreExercice &ligne : TableFenetreExercice()) {
    fonction(ligne, ligne.acces(fenetre));
  }
}

} // namespace velmaris
