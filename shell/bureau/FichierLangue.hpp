#pragma once

#include "foundations/Messages.hpp"

#include <filesystem>
#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>

namespace velmaris {

/// Runs over the lines of a language file that belong to one window, split at their backslashes. A line under no
/// section or under another window's is passed over; the section line itself comes first.
/// @param octets   the whole file, UTF-8 if it is valid UTF-8, else Windows-1252
/// @param fenetre  the window's name, compared exactly
/// @param ligne    gets the fields, which live as long as the call
void PourChaqueLigneDe(std::string_view octets, std::string_view fenetre,
                       const std::function<void(std::span<const std::string_view>)> &ligne);

/// The lines of a language file by the windows that they belong to.
using Sections = std::map<std::string, std::string, std::less<>>;

/// Parts a language file into its windows' lines, each with its section line; lines under no section are left out.
/// @param octets  as for PourChaqueLigneDe
Sections SectionsDe(std::string_view octets);

/// Takes a message line, "MSG\text\number", into the table; a number outside 0 to 100 has no effect.
/// @return false for a line that is no message
bool LitMessage(std::span<const std::string_view> champs, TexteMsg &messages);

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
