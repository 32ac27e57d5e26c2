#pragma once

#include "foundations/Langue.hpp"

#include <string>

namespace velmaris {

/// What a parser's own words for a usage error say, in the user's language.
/// @param mots  of the parser, in English
std::string DitEnLangue(const std::string &mots, const Langue &langue);

} // namespace velmaris
