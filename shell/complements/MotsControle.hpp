#pragma once

#include "shell/bureau/Bureau.hpp"

#include <string>
#include <vector>

namespace velmaris {

/// A number with one decimal and its sign, 0 without one: "+0.2".
std::string AvecSigne(double valeur);

/// A grade's sign and word: "= accord".
std::string MotsDuGrade(const Fiche &fiche, GradeControle grade);

/// Under the results: the intercept of today, and how far the told one lies from it.
/// @param bref  where there is little room: the figures alone
std::string ChiffresDuControle(const Fiche &fiche, const FicheControle &controle, bool bref);

/// Below that: sign and word of the grade and its first cause, or why there is no figure of today. A body below the
/// horizon and an azimuth that is off by over a degree are a warning whatever the intercept; an intercept over ten
/// miles that today's sky has too asks for a slip.
/// @param bref  the cause without the grade's word, where there is one
std::string JugementDuControle(const Fiche &fiche, const FicheControle &controle, bool bref);

/// The head of the check sheet.
/// @param astre  name of the body
std::string MotsDuVerdict(const Fiche &fiche, const FicheControle &controle, const std::string &astre);

/// The named causes, each with its part in minutes.
std::vector<std::string> MotsDesCauses(const Fiche &fiche, const FicheControle &controle);

/// The slips, each with the intercept that each would leave.
std::vector<std::string> MotsDesGlissades(const Bureau &bureau, const FicheControle &controle);

/// Puts the steps into the sheet's table.
void PoseLignes(Fiche &fiche, const FicheControle &controle);

/// The sheet as a text of columns.
std::string TexteDeFiche(const Fiche &fiche);

} // namespace velmaris
