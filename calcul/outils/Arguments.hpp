#pragma once

#include "foundations/Langue.hpp"

#include <CLI/CLI.hpp>

#include <functional>
#include <optional>
#include <string>
#include <vector>

/// Arguments that more than one verb takes.
namespace velmaris {

/// An argument that must be a number, "." being the decimal point; an infinity is none.
/// @param pose  is given the number
/// @return the argument, which may be left out until it is required
CLI::Option *AjouteNombreLibre(CLI::App &verbe, const Langue &dit, const std::string &nom, const std::string &aide,
                               const std::function<void(double)> &pose);

/// A positional argument that must be there and be a number.
void AjouteNombreLu(CLI::App &verbe, const Langue &dit, const std::string &nom, double &valeur,
                    const std::string &aide);

/// Files of sights, one at least.
void AjouteFichiersLoP(CLI::App &verbe, const Langue &dit, std::vector<std::string> &fichiers);

/// An assumed error, "--ecart-type": minutes, greater than 0.
void AjouteEcartType(CLI::App &verbe, const Langue &dit, std::optional<double> &ecartType, const std::string &aide);

/// UT1 - UTC, seconds.
void AjouteDut1(CLI::App &verbe, const Langue &dit, double &dut1);

} // namespace velmaris
