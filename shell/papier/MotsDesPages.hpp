#pragma once

#include "complements/papier/MotsAlmanach.hpp"
#include "complements/papier/PageDuJour.hpp"
#include "complements/papier/PageFiche.hpp"
#include "shell/bureau/Bureau.hpp"

#include <string>

namespace velmaris {

/// The words of printed pages, in the language of the window; copies, which a worker may take along.
/// @{
MotsAlmanach MotsDeLAlmanach(const Bureau &bureau);
MotsFiche MotsDeLaFiche(const Bureau &bureau);
/// @param date  of the day, for the title
MotsJour MotsDuJour(const Bureau &bureau, const std::string &date);
MotsCanevas MotsDuCanevas(const Bureau &bureau);
/// @}

/// The sign before decimals on printed pages.
char VirguleDesPages(const Bureau &bureau);

/// The day on which pages are made, from the clock's date.
DateCivile JourPresent(const Bureau &bureau);

/// The foot of blank plotting sheets.
std::string PiedVierge(const Bureau &bureau);

} // namespace velmaris
