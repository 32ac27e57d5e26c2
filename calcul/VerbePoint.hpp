#pragma once

#include "calcul/Point.hpp"
#include "foundations/Langue.hpp"

#include <CLI/CLI.hpp>

namespace velmaris {

/// Declares the verb "point" and its arguments.
/// @param dit    the user's language; it must outlive the program's parser
/// @param point  what is typed goes there; it must outlive it too
CLI::App *DeclarePoint(CLI::App &programme, const Langue &dit, DemandePointDit &point);

} // namespace velmaris
