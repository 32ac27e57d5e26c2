#pragma once

#include "shell/bureau/Bureau.hpp"
#include "shell/visee/ReduitVisee.hpp"

#include <optional>

namespace velmaris {

/// State of a stored line, held in the colour of its time and date labels alone.
/// @{
inline constexpr Couleur kHorsFeuille = 0x800000;    ///< not on the sheet
inline constexpr Couleur kPremiereDroite = 0x008000; ///< the line that the sheet was drawn around
inline constexpr Couleur kDroiteAjoutee = 0x0000FF;  ///< a line added to the sheet
/// @}

/// "Calcul": reduces the sight of the panel, enters it in the journal and draws its sheet; none of the stored lines is
/// on it.
void Command2_Click(Bureau &bureau, int indice);

/// Normalises the fields, reduces the sight of the panel and draws the sheet around its estimated position.
/// A reading of 0 leaves azimuth and intercept, and the sheet is drawn with those of the sight before; so does in a
/// redraw a sight that can't be reduced.
std::optional<Hauteurs> PremiereDroite(Bureau &bureau, Demande demande = Demande::Utilisateur);

/// Adds the sight of the panel to the sheet.
void DroiteSuivante(Bureau &bureau, Demande demande = Demande::Utilisateur);

/// Puts the captions of the sheet on the screen.
void MontreTitresFeuille(Bureau &bureau);

/// Draws the sheet again from the lines' colours and the lists of transports; with no line on it, from the sight of the
/// panel. A sight that can't be reduced, or has no star or planet, is drawn with the last azimuth and intercept,
/// without a word. The mode is left at the last one that was needed.
void RetraceDroites(Bureau &bureau);

/// The chart is drawn again where it is to be always visible.
void RetraceCarte(Bureau &bureau);

/// Gives a line's time label the colour of its state, and the mark that tells it without colour.
void MarqueHeure(Donnees &donnees, std::size_t ligne, Couleur etat);

/// Gives both labels of a line those of its state.
void MarqueDroite(Donnees &donnees, std::size_t ligne, Couleur etat);

/// No line is on a sheet and there is none: labels, print rows, sheet's origin, lists of transports, mode.
void OublieFeuille(Bureau &bureau);

/// The hours and minutes of dead reckoning take those of the sight.
void MajHeureListes(Bureau &bureau);

/// "Ecran": clears the surface and its captions; no line is on a sheet any more. The store is left alone.
void Command6_Click(Bureau &bureau, int indice);

/// The sheet is to have the grid or not, with the button for the other; nothing is drawn.
void PoseGrille(Bureau &bureau, bool tracee);

/// "Lat/Lon": draws the grid or leaves it out, on either of the two buttons on one spot.
void Grille_Click(Bureau &bureau, int indice);

/// The zoom and its caption take the slider's value; nothing is drawn.
void SuitCurseurZoom(Bureau &bureau);

/// The zoom slider: the sheet follows its value.
void HScroll1_Change(Bureau &bureau, int indice);

/// Turns the zoom by notches, each a quarter of the miles shown, through the slider.
/// @param crans  above 0 nearer, below 0 farther
void ZoomeCrans(Bureau &bureau, int crans);

} // namespace velmaris
