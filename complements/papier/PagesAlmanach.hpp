#pragma once

#include "complements/almanach/Almanach.hpp"
#include "complements/papier/Feuillet.hpp"
#include "complements/papier/MotsAlmanach.hpp"

#include <optional>
#include <vector>

namespace velmaris {

/// What is printed of an almanac.
struct ReglagesPages {
  FormatPapier format = FormatPapier::A4;
  bool jours = true;      ///< the pages of its days
  bool tables = true;     ///< corrections of altitude, Polaris, the intercept by hand
  bool increments = true; ///< increments and corrections, twenty pages
  DateCivile fait{};      ///< the day it is made on, for the foot
};

/// The pages: a double page for each three days (left planets, Aries and stars, right Sun, Moon, twilights), then the
/// tables that need no date.
/// @param mots  the words, all of one language
/// @return nothing when it was stopped
std::optional<std::vector<Feuillet>> PagesAlmanach(const Almanach &almanach, const MotsAlmanach &mots,
                                                   const ReglagesPages &reglages, const Avancement &avancement = {});

} // namespace velmaris
