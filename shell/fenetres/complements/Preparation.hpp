#pragma once

#include "shell/fenetres/Controles.hpp"

#include <array>
#include <cstddef>
#include <span>

namespace velmaris {

/// Name of the window of the plan in language files.
inline constexpr std::string_view kFenetrePreparation = "Preparation";

/// Its pages, by their tabs.
enum class PagePlan : std::uint8_t { Ciel, Jour, Jeux, Compas, Inconnu };
inline constexpr std::size_t kPagesPlan = 5;

/// The plan: the day aboard, the sky of a moment, the best sets of bodies, the compass, a body that isn't known. It
/// lives beside the main window.
struct Preparation {
  std::array<Controle, 8> Label1;
  std::array<Controle, 4> Text1;    ///< date aboard, time UTC, latitude, longitude
  std::array<Controle, 4> Text2;    ///< course, speed, height of eye, index correction
  std::array<Controle, 2> Command1; ///< "Du panneau", "Maintenant"
  Controle Label2;                  ///< zone time
  Controle Onglets1;
  Controle PageCiel, PageJour, PageJeux, PageCompas, PageInconnu;

  Controle Carte;                        ///< the sky's chart
  Controle Astres;                       ///< its bodies
  std::array<Controle, 6> Pas;           ///< event before, -10, -1, +1, +10, event after
  Controle HScroll1;                     ///< minutes of the day
  Controle Prend;                        ///< "Au panneau"
  Controle Check1;                       ///< course up
  Controle Check2;                       ///< bodies left out too
  Controle Label3, Label4;               ///< the moment; Sun, Moon
  Controle Jour, Label5;                 ///< events of the day; times for stars
  std::array<Controle, 2> Label6, Text3; ///< magnitude, assumed error
  std::array<Controle, 2> Mieux;         ///< moments of the best sets
  Controle Jeux, Esquisse, Label7;
  Controle Label14, Lunaires; ///< bodies for a lunar distance
  std::array<Controle, 3> Label8;
  Controle Combo1;                          ///< body of the compass bearing
  std::array<Controle, 2> Text4;            ///< compass bearing, variation
  std::array<Controle, 3> Label9, Resultat; ///< azimuth, compass error, deviation
  Controle Label10, Amplitudes, Label11;
  std::array<Controle, 4> Label12, Text5; ///< unknown body: reading, azimuth, doubts
  Controle Inconnus, Label13;
  std::array<Controle, 1> LabAvis;
  std::array<Controle, 2> Command2; ///< "Emporter...", "Fermer"

  /// Words that no control shows.
  std::array<Controle, kPagesPlan> MotOnglet;
  std::array<Controle, 7> MotColonne;          ///< of the bodies
  std::array<Controle, 5> MotColonneJour;      ///< of the day
  std::array<Controle, 2> MotColonneJeux;      ///< of the sets
  std::array<Controle, 5> MotColonneAmplitude; ///< of the amplitudes
  std::array<Controle, 6> MotColonneInconnu;   ///< of the likely bodies
  std::array<Controle, 8> MotRaison;           ///< in the order of `RaisonPale`
  std::array<Controle, 12> MotEvenement;       ///< of the day, in the order of its usual course
  std::array<Controle, 5> MotAbsence;          ///< in the order of `RaisonAbsence`
  std::array<Controle, 4> MotPrise;            ///< in the order of `GenrePrise`
  std::array<Controle, 4> MotMieux;            ///< the same, of the best set's moment
  std::array<Controle, 3> MotBord;             ///< in the order of `Contact`
  std::array<Controle, 4> MotCardinal;
  std::array<Controle, 5> MotLumiere; ///< day, the three twilights, night
  Controle TexteHors, TexteSoleil, TexteLune, TexteCroissante, TexteDecroissante, TexteFuseau, TexteCalcul,
      TexteSansJour, TexteSansPrise, TexteLever, TexteCoucher, TexteEst, TexteOuest, TexteSansJeu, TexteMieux,
      TexteSansAmplitude, TexteSansInconnu, TexteDonnez, TexteSousHorizon, TexteSansChoix, TexteGeste, TexteEcrit,
      TexteNonEcrit, TexteTitrePage, TexteCap, TexteNoeuds, TexteOeil, TextePied, TextePerduJour;

  Surface dessinCarte, dessinEsquisse; ///< what `Carte` and `Esquisse` show

  CadreFenetre cadre{kFenetrePreparation, "", 14400, 9000, false, 14400, 9000};
};

using LignePreparation = LigneDe<Preparation>;

/// The table of the window's controls, in the order of the keyboard.
std::span<const LignePreparation> TablePreparation();

/// Fills the record with its controls as the table has them.
void InitialisePreparation(Preparation &fenetre);

/// Runs over all controls of the window in the order of its table.
template <class Fonction> void PourChaque(Preparation &fenetre, Fonction &&fonction) {
  for (const LignePreparation &ligne : TablePreparation()) {
    fonction(ligne, ligne.acces(fenetre));
  }
}

} // namespace velmaris
