#pragma once

#include "calcul/Prepare.hpp"
#include "foundations/Langue.hpp"

#include <CLI/CLI.hpp>

namespace velmaris {

/// Declares the verb "prepare" and its arguments.
/// @param dit      the user's language; it must outlive the program's parser
/// @param prepare  what is typed goes there; it must outlive it too
CLI::App *DeclarePrepare(CLI::App &programme, const Langue &dit, DemandePrepare &prepare);

} // namespace velmaris
