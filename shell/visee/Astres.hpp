#pragma once

#include "shell/bureau/Bureau.hpp"

namespace velmaris {

/// Reacts to the choice of a kind of body: limb, lists and picture; the Moon's lit limb, the stars that are visible.
/// @param indice  0 to 3; another number only hides what belongs to a body
void SelAstre(Bureau &bureau, int indice);

/// Upper and lower limb can be chosen, or only the centre.
void PermetBords(Donnees &donnees, bool permis);

/// Shows the short list of visible stars, made anew, or the whole list.
void Check3_Click(Bureau &bureau, int indice);

/// A star chosen in the whole list: its letters, and its place while the live panel is open.
void Combo6_Click(Bureau &bureau, int indice);

/// A star chosen among the visible ones: it is chosen in the whole list too, which the reduction reads.
void Combo8_Click(Bureau &bureau, int indice);

/// A planet chosen: its place on the live panel, open or not, unlike a star's; azimuth and computed height are those of
/// now until a sight is reduced.
void Combo7_Click(Bureau &bureau, int indice);

/// Makes the captions of the lit limb of the Moon stand out; nothing while another body is chosen. It is advice: it
/// selects nothing.
void ConseilBordLune(Bureau &bureau);

/// The bright stars above the horizon of the estimated position at the sight's moment; none when the fields make no
/// moment.
void MajListeVisibles(Bureau &bureau);

} // namespace velmaris
