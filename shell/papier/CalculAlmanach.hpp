#pragma once

#include "shell/bureau/Bureau.hpp"

namespace velmaris {

/// The paper that the window's list has chosen.
FormatPapier FormatVoulu(const FenetrePapier &fenetre);

/// What the fields of the almanac ask for; those that can't be used are marked.
/// @return nothing while there is one
std::optional<DemandeAlmanach> LitDemandeAlmanach(Bureau &bureau);

/// Works out the almanac of the fields and its pages beside the interface; one that is under way is stopped.
void DemandeAlmanachPapier(Bureau &bureau);

/// Stops the work that is under way; what there was before stays.
void ArreteAlmanach(Bureau &bureau);

} // namespace velmaris
