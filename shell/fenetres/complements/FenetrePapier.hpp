#pragma once

#include "shell/fenetres/Controles.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace velmaris {

/// Name of the window of printed pages in language files.
inline constexpr std::string_view kFenetrePapier = "Papier";

/// What it makes pages of, in the order of its tabs.
enum class OngletPapier : std::uint8_t { Almanach, Fiche, Jour, Vierge };
inline constexpr std::size_t kOngletsPapier = 4;

/// Printed pages: the almanac of a passage, sights worked by hand, the day's page, a blank plotting sheet; each is seen
/// as it will be before it is printed. It lives beside the main window.
struct FenetrePapier {
  Controle Onglets1;

  Controle PageAlmanach;
  std::array<Controle, 4> Label1;
  std::array<Controle, 3> Text1;    ///< first day, last day, latitudes
  Controle Combo2;                  ///< the order of the stars
  std::array<Controle, 3> Check1;   ///< pages of the days, tables, increments
  std::array<Controle, 2> Command1; ///< "Calculer", "Arrêter"
  Controle Avance;                  ///< how far the work is
  Controle Label2;                  ///< what there is

  Controle PageFiche;
  std::array<Controle, 2> Option1; ///< the panel's sight, the log's chosen rows
  Controle Check2;                 ///< with blanks
  Controle Label3;

  Controle PageJour;
  std::array<Controle, 6> Label4;
  std::array<Controle, 6> Text2; ///< the weather, remarks
  Controle Label5;

  Controle PageVierge;
  std::array<Controle, 2> Label6;
  std::array<Controle, 2> Text3; ///< middle latitude, miles from foot to head

  Controle Label7;
  Controle Combo1;                  ///< the paper
  Controle Feuille;                 ///< the page
  std::array<Controle, 2> Page;     ///< the page before, the next one
  Controle LabPage;                 ///< which one it is
  Controle LabAvis;                 ///< what is to be said
  std::array<Controle, 4> Command2; ///< "PDF...", "Imprimer...", "CSV...", "Fermer"

  /// Words that no control shows.
  std::array<Controle, kOngletsPapier> MotOnglet;
  std::array<Controle, kOngletsPapier> MotFichier; ///< name of a tab's file
  std::array<Controle, 2> MotFormat;               ///< in the order of `FormatPapier`
  std::array<Controle, 2> MotOrdre;                ///< in the order of `OrdreEtoiles`
  std::array<Controle, 5> MotDefaut;               ///< in the order of `DefautAlmanach`
  Controle TexteHors, TexteAttend, TexteAutres, TexteCalcul, TexteArrete, TexteJours, TextePages, TextePage,
      TexteSansVisee, TexteSansChoix, TexteVisees, TexteVisee, TexteSur, TexteSansPoint, TextePoint, TexteSansPage,
      TexteEcrit, TexteRefusees, TexteEcriture, TexteEchec, TexteImpression, TexteImprimees;

  CadreFenetre cadre{kFenetrePapier, "", 14400, 9000, false, 14400, 9000};
};

using LigneFenetrePapier = LigneDe<FenetrePapier>;

/// The table of the window's controls, in the order of the keyboard.
std::span<const LigneFenetrePapier> TableFenetrePapier();

/// Fills the record with its controls as the table has them.
void InitialiseFenetrePapier(FenetrePapier &fenetre);

/// Runs over all controls of the window in the order of its table.
template <class Fonction> void PourChaque(FenetrePapier &fenetre, Fonction &&fonction) {
  for (const LigneFenetrePapier &ligne : TableFenetrePapier()) {
    fonction(ligne, ligne.acces(fenetre));
  }
}

} // namespace velmaris
