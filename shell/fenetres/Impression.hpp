#pragma once

#include "foundations/Surface.hpp"
#include "shell/fenetres/Controles.hpp"

#include <array>
#include <cstddef>
#include <span>

namespace velmaris {

/// Name of the print page.
inline constexpr std::string_view kFenetreImpression = "Impression";

/// Headings of a row, one over the other.
inline constexpr std::size_t kEntetesRangee = 5;
inline constexpr std::size_t kEtiquettesRangee = 3 * kEntetesRangee; ///< values, headings and signs

/// The print page: a picture of the drawing surface with one row a line of position under it. The rows fill as lines
/// are reduced, whether or not the page shows. Its language is French alone.
struct Impression {
  Controle Image1;                                  ///< the picture, stretched to its frame
  Controle Frame1;                                  ///< holds the button; never printed
  Controle Command1;                                ///< "Imprimer"
  std::array<Controle, 4> Frame4;                   ///< a row with its title; hidden until it is filled
  std::array<Controle, 4 * kEntetesRangee> Entete;  ///< what a value is, row by row
  std::array<Controle, 4 * kEntetesRangee> Egalite; ///< the sign between heading and value
  std::array<Controle, 4> Label32;                  ///< time
  std::array<Controle, 4> Label33;                  ///< latitude
  std::array<Controle, 4> Label34;                  ///< longitude
  std::array<Controle, 4> Label35;                  ///< azimuth
  std::array<Controle, 4> Label36;                  ///< intercept
  Controle TextePage;                               ///< names the picture to a screen reader

  CadreFenetre cadre{kFenetreImpression, "Impression", 15150, 10860};
  Surface image;        ///< the drawing surface as it was when the page last came to the front
  unsigned prises = 0;  ///< how often the picture was taken
  bool paysage = false; ///< the printer's sheet lies on its long side
};

using LigneImpression = LigneDe<Impression>;

/// The table of the page's controls, in pieces.
std::span<const std::span<const LigneImpression>> TableImpression();

/// Fills the record with its controls as the table has them.
void InitialiseImpression(Impression &page);

/// Runs over all controls of the page in the order of its table.
template <class Fonction> void PourChaque(Impression &page, Fonction &&fonction) {
  for (const std::span<const LigneImpression> morceau : TableImpression()) {
    for (const LigneImpression &ligne : morceau) {
      fonction(ligne, ligne.acces(page));
    }
  }
}

/// The headings, signs and values of a row.
/// @param rangee  0 to 3
std::array<const Controle *, kEtiquettesRangee> EtiquettesDe(const Impression &page, std::size_t rangee);

} // namespace velmaris
