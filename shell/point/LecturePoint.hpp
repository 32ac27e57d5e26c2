#pragma once

#include "shell/bureau/Bureau.hpp"

#include <optional>
#include <string_view>

namespace velmaris {

/// A moment from two fields: day, month and year, whatever parts them; hour, minute and, where there is one, second.
/// Years under 100 stand for 1930 to 2029.
/// @return nothing for a text that is no date or time
std::optional<InstantUTC> LitMomentTape(std::string_view date, std::string_view heure);

/// A leg from its four fields; those that can't be used are marked.
/// @return nothing unless all four can
std::optional<Jambe> LitJambeTapee(FenetrePoint &fenetre);

/// What the window's fields ask for. A field that can't be used is marked and counts as empty; without a time the fix
/// is for the last sight.
ReglagesPoint LitDemande(Bureau &bureau);

/// The assumed error of one sight as typed.
/// @return nothing for an empty field or one that can't be used, which is marked
std::optional<double> LitEcartTape(FenetrePoint &fenetre);

} // namespace velmaris
