#pragma once

#include "foundations/Messages.hpp"
#include "shell/fenetres/Controles.hpp"

#include <functional>
#include <span>
#include <string>
#include <string_view>

namespace velmaris {

struct Bureau;

/// Sets the text of a field or a list, and nothing more.
void PoseSeulTexte(Controle &controle, std::string texte);

/// Applies a language file's text to one window: control lines to its controls, message lines to the table.
/// Only the lines under "Form=" and the window's name are used. A control line has name, caption, text, tool tip and
/// index between backslashes; an empty field is written through, an absent one is passed over, and what a control
/// lacks is skipped. With an empty index every control of the name takes the texts.
/// @param fichier    the file's content, UTF-8 or Windows-1252
/// @param fenetre    the window's name
/// @param controles  its controls
/// @param poseTexte  sets the text of a field or a list, with what its change sets in motion
void AppliqueLangue(std::string_view fichier, std::string_view fenetre, const ListeControles &controles,
                    TexteMsg &messages, const std::function<void(Controle &, std::string)> &poseTexte = PoseSeulTexte);

/// Reads the language file `FichierLangue` into one window and the table of messages, then makes the tool tip of the
/// main window's `Label1` equal to its caption. A missing or unreadable file changes no text; the main window tells it
/// ("Fichier absent."), the others pass over it.
/// @param fenetre  the window's name
void ChargeLangue(Bureau &bureau, std::string_view fenetre);

/// The same for several windows, the file read once.
void ChargeLangues(Bureau &bureau, std::span<const std::string_view> fenetres);

/// The template of a window's texts: one line a control, in the window's own order, without a section line.
/// @return lines of name, caption, text, tool tip and index, each ended by CR LF
std::string ModeleLangue(const ListeControles &controles);

/// Writes the template of a window to "lang", its name and ".txt" in the user's data folder; an author's tool.
/// @param fenetre  the window's name
/// @throws Erreur 75 when it can't be written
void EcritLangue(Bureau &bureau, std::string_view fenetre);

} // namespace velmaris
