#pragma once

#include <string_view>

namespace velmaris {

/// The Greek letter that a letter of the star table stands for, as on the keys of a symbol font: "a" alpha, "q" theta,
/// "w" omega. A capital names a star by itself ("L Pup") and stays, as does whatever is no small letter.
/// @param lettre  of the table
/// @return UTF-8; a view into `lettre` where it stays
std::string_view LettreGrecque(std::string_view lettre);

} // namespace velmaris
