#pragma once

#include "complements/ciel/Instants.hpp"
#include "complements/point/Route.hpp"
#include "shell/fenetres/Controles.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace velmaris {

/// A moment from two fields: day, month and year, whatever parts them; hour, minute and, where there is one, second.
/// Years under 100 stand for 1930 to 2029.
/// @return nothing for a text that is no date or time
std::optional<InstantUTC> LitMomentTape(std::string_view date, std::string_view heure);

/// An angle in degrees, degrees and minutes, or these and seconds, with a point or a comma, whatever parts them:
/// "47 10.3", "47°10,3'", "47.172". A sign before it counts.
/// @param max  degrees that it may have, either way
/// @return degrees; nothing for another text, or minutes or seconds of 60 and more
std::optional<double> LitAngleTape(std::string_view texte, double max);

/// The same with a letter before or after it for its side: N, S; E, W, and O for west.
/// @return degrees, north and east positive
/// @{
std::optional<double> LitLatitudeTapee(std::string_view texte);
std::optional<double> LitLongitudeTapee(std::string_view texte);
/// @}

/// Marks a field that can't be used, or takes the mark off.
/// @param mots  that stand before what the field takes, which its tool tip tells
void MarqueChamp(Controle &champ, bool bon, std::string_view mots);

/// The number of a field, which is marked where it can't be used; an empty field has none.
/// @param mots  as for MarqueChamp
std::optional<double> LitChampBorne(Controle &champ, double moindre, double plusGrand, std::string_view mots);

/// The first field on the page in front that can't be used, by its text, an empty one by its caption, and why; empty
/// where all can.
std::string PremiereFaute(const ListeControles &controles);

/// Takes the marks off all fields of a window.
void OublieFautes(const ListeControles &controles);

/// Gives the keyboard to the first of some fields that is marked, its text selected so that typing replaces it.
/// @param clavier  the control that is to have the keyboard; it stays where none is marked
/// @return whether one is
bool ViseFaute(const Controle *&clavier, const ListeControles &champs);

} // namespace velmaris
