#pragma once

#include "foundations/Langue.hpp"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace velmaris::qt {

/// The answer to "--help" and "--version", which needs no window.
/// @param arguments  of the command line, without the program's name
/// @param dit        the language of the help
/// @return nothing when neither is asked
std::optional<std::string> ReponseSansFenetre(const std::vector<std::string> &arguments, const Langue &dit);

/// What a command line asks of the program once the toolkit has taken its own options out.
struct Commande {
  std::filesystem::path fichier; ///< of the sight to load, absolute; empty for none
  bool reprend = false;          ///< the session that was left is taken up without a question
  std::string inconnue;          ///< an option that nobody knows, empty for none
};

/// Reads a command line: the first argument that is no option names a file, and so does all that follows "--".
/// @param arguments  without the program's name
Commande LitCommande(const std::vector<std::string> &arguments);

/// Becomes the program anew, which takes up the session that this one has left. Returns only where that fails.
/// @param ligne  the whole command line as it came, with the program's name
void Recommence(const std::vector<std::string> &ligne);

} // namespace velmaris::qt
