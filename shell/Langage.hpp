#pragma once

#include "foundations/Messages.hpp"
#include "shell/Donnees.hpp"

#include <string>
#include <string_view>

namespace velmaris {

struct Bureau;

/// Applies a language file's text to one window: control lines to its controls, message lines to the table.
/// Only the lines under "Form=" and the window's name are used. A control line has name, caption, text, tool tip and
/// index between backslashes; an empty field is written through, an absent one is passed over, and what a control
/// lacks is skipped. With an empty index every control of the name takes the texts.
/// @param texte    the file, UTF-8 or Windows-1252
/// @param fenetre  the window's name
void AppliqueLangue(std::string_view texte, std::string_view fenetre, Donnees &donnees, TexteMsg &messages);

/// Reads the language file `FichierLangue` into the main window and the table of messages, then makes the tool tip of
/// `Label1` equal to its caption. A missing or unreadable file shows "Fichier absent." and changes no text.
void ChargeLangue(Bureau &bureau);

/// The template of the main window's texts: one line a control, in the window's own order, without a section line.
/// @return lines of name, caption, text, tool tip and index, each ended by CR LF
std::string ModeleLangue(Donnees &donnees);

/// Writes the template of the main window to "langDonnées.txt" in the user's data folder; an author's tool.
/// @throws Erreur 75 when it can't be written
void EcritLangue(Bureau &bureau);

} // namespace velmaris
