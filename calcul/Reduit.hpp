#pragma once

#include "foundations/Messages.hpp"

#include <string>

namespace velmaris {

/// Reduces one saved sight and tells the outcome as one JSON object on a line. A fresh sight receives the file's
/// lines and is reduced as a load does it: the reading isn't normalised. A position that leaves 32 bits is an
/// error here, where a load passes over it.
/// @param fichier   the file's name, also told in the object
/// @param messages  the opening words of the detail lines
/// @param sortie    the line is appended to it
/// @return false when the object holds an error: the file can't be read or its sight can't be reduced
bool ReduitFichier(const std::string &fichier, const TexteMsg &messages, std::string &sortie);

} // namespace velmaris
