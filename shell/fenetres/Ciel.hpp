#pragma once

#include "foundations/Horloge.hpp"
#include "foundations/Surface.hpp"
#include "shell/fenetres/Controles.hpp"
#include "sky/AstresCiel.hpp"

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

/// Name of the sky window.
inline constexpr std::string_view kFenetreCiel = "Ciel";

/// Stars on its chart, numbered from 1 as in the star table.
inline constexpr std::size_t kEtoilesCiel = 246;

/// How often the chart is drawn anew by itself, milliseconds.
inline constexpr int kPeriodeCiel = 10000;

/// The sky window, which lives beside the main one.
struct Ciel {
  Controle List1, Picture1, HScroll1, Frame8, Bayer1, Bayer2, Label2, PicAZ, PicHE, Label35, Label36;
  Controle Frame1; ///< "Carte"
  std::array<Controle, 2> Option1;
  Controle Check2, Command1, Command4;
  Controle Moment, Lieu;        ///< when and from where the sky is shown
  Controle Recule, Pas, Avance; ///< a step of time back, its length, a step forth
  Controle Label1;              ///< carries the last equatorial place, two numbers joined by "X"
  Controle SOL, Lune;
  std::array<Controle, 4> Shapla, LaP;         ///< planets: marks and labels
  std::array<Controle, kEtoilesCiel + 1> Shet; ///< marks of the stars; number 0 stands for nothing
  std::array<Controle, kEtoilesCiel + 1> Laet; ///< labels of the stars; number 0 stands for nothing
  /// Words that no control shows.
  Controle TexteSoleil, TexteLune, TexteEtoiles, TexteRotation, TexteCarte, TexteHorsListe;
  Controle TextePas, TexteRecule, TexteAvance, TextePresent;
  std::array<Controle, 4> TexteDuree; ///< of a step

  CadreFenetre cadre{kFenetreCiel, "", 0, 0};
  std::optional<TempsSysteme> moment;     ///< that is shown, none for the present
  bool minuterie = false;                 ///< `Timer1` runs: every `kPeriodeCiel` the chart is drawn anew
  std::string marqueLangue;               ///< "Lang" once a language file has spoken to this window
  Surface picture1;                       ///< the chart
  Surface picAZ;                          ///< the azimuth dial
  Surface picHE;                          ///< the height dial
  AnglesCiel angles;                      ///< left by the last drawing, kept while the window is closed
  std::vector<std::size_t> pile;          ///< numbers of the star labels, from the back to the front
  std::size_t etoileDevant = 0;           ///< number of the star label that lies over all bodies, 0 for none
  const Controle *astreCourant = nullptr; ///< label or picture that the keyboard stands on
};

using LigneCiel = LigneDe<Ciel>;

/// The table of the sky window's controls, in the order of the keyboard. It comes in pieces: the controls written out,
/// then the marks of the stars, then their labels.
std::span<const std::span<const LigneCiel>> TableCiel();

/// Fills the record with its controls as the table has them: no body has a place yet.
void InitialiseCiel(Ciel &fenetre);

/// Runs over all controls of the sky window in the order of its table.
template <class Fonction> void PourChaque(Ciel &fenetre, Fonction &&fonction) {
  for (const auto &morceau : TableCiel()) {
    for (const LigneCiel &ligne : morceau) {
      fonction(ligne, ligne.acces(fenetre));
    }
  }
}

} // namespace velmaris
