#pragma once

#include "shell/bureau/Bureau.hpp"

#include <optional>
#include <string_view>

namespace velmaris {

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
