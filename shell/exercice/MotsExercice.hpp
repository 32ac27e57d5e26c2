#pragma once

#include "shell/bureau/Bureau.hpp"

#include <string>
#include <vector>

namespace velmaris {

/// The words of practice, in the language of the window.

/// A practice by its subject and conditions; what there is none of isn't told: "Soleil en route, 2 visées, bruit 0.3'".
std::string MotsConditions(const FenetreExercice &fenetre, const ConditionsExercice &conditions);

/// The graded practices by their numbers.
std::vector<std::string> MotsNiveaux(const FenetreExercice &fenetre);

/// What is known aboard of the practice that goes on, in the order of `Donne`.
std::vector<std::string> MotsDuBord(const Bureau &bureau, const Exercice &exercice);

/// What there is to say of a sight, in short: whether it was reduced; once the truth was asked for, how far its line
/// passes from it, and whether it is good.
std::string MotsVisee(const Bureau &bureau, std::size_t visee);

/// All that there is to say of it: what was typed otherwise than it was shown, then the single slips that would explain
/// the line, as the check words them. Empty before the truth was asked for.
std::vector<std::string> MotsDetail(const Bureau &bureau, std::size_t visee);

/// The truth, how far the user's fix is from it, how far the dead reckoning was, in the order of `Resultat`. Empty
/// lines before the truth was asked for.
std::vector<std::string> MotsVerite(const Bureau &bureau);

} // namespace velmaris
