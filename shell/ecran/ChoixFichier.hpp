#pragma once

#include "shell/bureau/Bureau.hpp"

#include <cstdint>

namespace velmaris {

/// What the dialog says when a typed folder can't be shown: nothing, it stays as it is, or a box tells.
enum class DitRefus : std::uint8_t { Rien, DansUneBoite };

/// Asks the user for a file in the program's own dialog, which opens in the last folder used, in this run or an
/// earlier one.
/// @param titre  of the window
/// @param nom    that its name field holds at first
/// @param motif  of the files that it lists
/// @param refus  what it says of a folder that can't be shown
/// @return the chosen file's path; empty when the user gave up
std::filesystem::path ChoisitFichier(Bureau &bureau, const std::string &titre, const std::string &nom,
                                     const std::string &motif, DitRefus refus = DitRefus::Rien);

/// Coming to the front: the lists show what has been written since.
void FSelect_Activate(Bureau &bureau);

/// A click on a file: its name goes into the name field.
void File1_Click(Bureau &bureau, int indice);
/// Twice: it is accepted.
void File1_DblClick(Bureau &bureau, int indice);
/// The list of files takes the focus: as a click on the file that is chosen in it.
void File1_Entre(Bureau &bureau, int indice);
/// A folder pressed twice is entered.
void Dir1_DblClick(Bureau &bureau, int indice);
/// Return on a folder: it is entered, and the name field takes the focus, with the name that is to be saved or, where
/// none was proposed, the pattern.
void Dir1_Valide(Bureau &bureau, int indice);
/// Another volume: its folders and files.
void Drive1_Click(Bureau &bureau, int indice);
/// Typing a name makes "Ok" usable again after a deletion.
void FName_Change(Bureau &bureau, int indice);

/// "Ok": enters a chosen folder, follows a typed path or pattern, or accepts the name. What can't be done leaves the
/// dialog as it is, without a word but where it was asked to tell.
void OK_Click(Bureau &bureau, int indice);

/// "Annuler": empties the name and hides the dialog.
void Quitter_Click(Bureau &bureau, int indice);

/// "Supprimer": puts the chosen file into the trash at once, without a question.
void Supprime_Click(Bureau &bureau, int indice);

/// Whether a file's name matches a pattern, without regard to the case of its letters: "*" stands for any characters,
/// "?" for one, ";" parts several patterns, and "*.*" is every file.
bool CorrespondMotif(std::string_view nom, std::string_view motif);

} // namespace velmaris
