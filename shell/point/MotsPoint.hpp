#pragma once

#include "shell/bureau/Bureau.hpp"

#include <string>
#include <vector>

namespace velmaris {

/// The words of a fix, in the language of the window.

/// Half axes in miles and the direction of the greater one: "2.4 x 1.1 M, 035°".
std::string TexteEllipse(const EllipsePoint &ellipse);

/// What was found besides the place: common errors, course and speed made good.
std::string TexteTrouve(const FenetrePoint &fenetre, const SolutionPoint &solution);

/// How far a second place lies from a first one: "1.3 M, 045°".
std::string TexteDistance(const LieuNavire &de, const LieuNavire &a);

/// What is to be known of both fixes, each once, the sights that are improbable by name.
std::vector<std::string> MotsDesAvis(const Bureau &bureau);

/// The remark on a sight in the list: why it has no figure, or that it is improbable; empty for neither.
std::string RemarqueDeVisee(const Bureau &bureau, std::size_t rang);

/// The whole fix as a text, to be copied.
std::string TexteDuPoint(const Bureau &bureau);

} // namespace velmaris
