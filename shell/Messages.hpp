#pragma once

#include "foundations/Messages.hpp"

#include <filesystem>
#include <string_view>

namespace velmaris {

/// Takes the numbered texts out of a language file's bytes: the lines "MSG\text\number" of the main window's section
/// "Form=Données". Every other line is passed over, and so is a number outside 0 to 100 or a line that lacks one.
/// @param octets    the whole file, UTF-8 if it is valid UTF-8, else Windows-1252
/// @param messages  entries that the file names are replaced, the others stay
void LitMessages(std::string_view octets, TexteMsg &messages);

/// Reads the numbered texts of a language file.
/// @param fichier   the language file
/// @param messages  as for LitMessages; left alone when the file can't be read
/// @throws Erreur 53 when there is none, 75 when it can't be read
void ChargeMessages(const std::filesystem::path &fichier, TexteMsg &messages);

} // namespace velmaris
