#pragma once

#include "shell/bureau/Bureau.hpp"

#include <string>

namespace velmaris {

/// All that a tab's pages are made of, as one text: pages that were made of another one are no longer those that the
/// window asks for.
std::string CleDesPages(const Bureau &bureau, OngletPapier onglet);

/// Of an almanac, what its figures are made of: its days and latitudes as they are typed.
std::string CleDesChiffres(const FenetrePapier &fenetre);

/// Whether a tab shows pages that are still what it asks for.
bool SontBonnes(const Bureau &bureau, OngletPapier onglet);

} // namespace velmaris
