#pragma once

#include "shell/fenetres/Controles.hpp"

#include <array>
#include <cstddef>
#include <span>

namespace velmaris {

/// Name of the window of runs in language files.
inline constexpr std::string_view kFenetreSerie = "Serie";

/// Its pages, by their tabs.
enum class PageSerie : std::uint8_t { Serie, Midi, Lune };
inline constexpr std::size_t kPagesSerie = 3;

/// A run of readings of one body reduced to one, noon by the same readings, the clock from the Moon. It lives beside
/// the main window.
struct FenetreSerie {
  std::array<Controle, 9> Label1;
  std::array<Controle, 4> Text1;    ///< date and time of the position, latitude, longitude
  std::array<Controle, 5> Text2;    ///< course, speed, height of eye, index correction, doubt of the position
  std::array<Controle, 1> Command1; ///< "Du panneau"
  Controle Onglets1;
  Controle PageLectures, PageSerie, PageMidi, PageLune;

  std::array<Controle, 5> Label2;
  Controle Combo1;                  ///< body of the readings
  Controle Combo2;                  ///< its limb
  Controle Check1;                  ///< artificial horizon
  std::array<Controle, 2> Text3;    ///< assumed errors: of a reading, of a distance
  Controle Lectures;                ///< the readings
  std::array<Controle, 2> Text4;    ///< time, reading
  std::array<Controle, 7> Command3; ///< "Ajouter", "Changer", "Ôter", "Tout ôter", "Du registre", "Ouvrir", "Garder"
  Controle Marque;

  Controle Dessin;                          ///< the run's plot
  std::array<Controle, 4> Label3, Resultat; ///< one reading, its doubt, by the scatter, slope
  Controle Prend;
  std::array<Controle, 7> LabSerie; ///< warnings

  Controle DessinMidi;                  ///< noon's plot
  std::array<Controle, 5> Label4, Midi; ///< passage, top, latitude, highest, longitude
  std::array<Controle, 1> Label5;
  std::array<Controle, 2> Text6; ///< times of equal altitudes
  Controle Egales;               ///< longitude by them
  std::array<Controle, 6> LabMidi;
  Controle PrendMidi;

  Controle Distances, Candidats;
  std::array<Controle, 10> Label6;
  std::array<Controle, 4> Text5;        ///< watch, distance, heights of the Moon and of the body
  Controle Combo3;                      ///< the other body
  Controle Combo4, Combo5;              ///< limbs of the distance: of the Moon, of the body
  Controle Combo6, Combo7;              ///< limbs of the heights: of the Moon, of the body
  std::array<Controle, 3> Command4;     ///< "Ajouter", "Changer", "Ôter"
  std::array<Controle, 3> Label7, Lune; ///< watch error, true time, second solution
  Controle PrendLune;                   ///< "Garder à la montre"
  std::array<Controle, 4> LabLune;
  Controle LabAvis;  ///< the field at fault
  Controle Command2; ///< "Fermer"

  /// Words that no control shows.
  std::array<Controle, kPagesSerie> MotOnglet;
  std::array<Controle, 4> MotColonne;         ///< of the readings
  std::array<Controle, 8> MotColonneDistance; ///< of the distances
  std::array<Controle, 4> MotColonneCandidat; ///< of the bodies for a distance
  std::array<Controle, 3> MotBord;            ///< in the order of `Contact`
  std::array<Controle, 3> MotBordDistance;    ///< in the order of `BordDistance`
  std::array<Controle, 9> MotAvis;            ///< in the order of `AvisSerie`
  std::array<Controle, 12> MotAvisMidi;       ///< in the order of `AvisMeridienne`
  std::array<Controle, 13> MotAvisLune;       ///< in the order of `AvisLunaire`
  std::array<Controle, 5> MotPiste;           ///< in the order of `GenrePiste`
  std::array<Controle, 7> MotRaison;          ///< in the order of `RaisonSansLunaire`
  Controle TexteHors, TexteGeste, TexteGesteMidi, TexteImprobable, TexteEcartee, TexteAttend, TextePlusHaute,
      TexteAlarme, TexteErreur, TexteStudent, TexteLectures, TexteCiel, TexteTrouvee, TextePiste, TexteHeures,
      TexteSansPiste, TexteNord, TexteSud, TexteInferieur, TexteVersPassage, TexteEnRoute, TexteSansSommet, TexteLent,
      TexteRetarde, TexteAvance, TexteGarde, TexteDejaGarde, TexteSansLune, TexteSansSerie, TexteSansMidi,
      TexteLatitudeSeule, TextePrise, TexteRien, TexteVenues, TexteLigne, TexteEcrit, TextePleine, TexteHorsListe,
      TextePeu, TexteSansEgales, TexteSeconde, TexteMalgre;

  Surface dessin, dessinMidi; ///< what `Dessin` and `DessinMidi` show

  CadreFenetre cadre{kFenetreSerie, "", 14400, 9000, false, 14400, 9000};
};

using LigneFenetreSerie = LigneDe<FenetreSerie>;

/// The table of the window's controls, in the order of the keyboard.
std::span<const LigneFenetreSerie> TableFenetreSerie();

/// Fills the record with its controls as the table has them.
void InitialiseFenetreSerie(FenetreSerie &fenetre);

/// Runs over all controls of the window in the order of its table.
template <class Fonction> void PourChaque(FenetreSerie &fenetre, Fonction &&fonction) {
  for (const LigneFenetreSerie &ligne : TableFenetreSerie()) {
    fonction(ligne, ligne.acces(fenetre));
  }
}

} // namespace velmaris
