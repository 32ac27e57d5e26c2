#pragma once

#include "shell/bureau/Bureau.hpp"

#include <filesystem>
#include <vector>

namespace velmaris {

/// Opens the log, or brings it to the front. The menu, and Ctrl+L.
void OuvreRegistre_Click(Bureau &bureau, int indice);

/// Brings the log's window in line with what it shows, while it is open: title, counts, headers, note, buttons.
void AccordeRegistre(Bureau &bureau);

/// Rows that the next gesture is about: those that are chosen, or else the current one.
/// @return their places in the log, newest first
std::vector<std::size_t> RangsVises(const Bureau &bureau);

/// Their identities.
std::vector<std::string> IdentitesVisees(const Bureau &bureau);

/// Sights that a fix is made of at most: it answers at once, and no watch has more.
inline constexpr std::size_t kViseesDuPoint = 200;

/// Has the fix made of more sights, up to `kViseesDuPoint`; one that is there already stays.
void RetientAuPoint(Bureau &bureau, const std::vector<std::string> &identites);

/// The events of the log's window; its controls bear the names of others in the main window.
namespace registre {

/// A filter was typed in.
void Text1_Change(Bureau &bureau, int indice);
/// "Masquées".
void Check1_Click(Bureau &bureau, int indice);
/// Other rows are chosen: the note is that of the current one.
void Table1_Click(Bureau &bureau, int indice);
/// The current row's box: the fix is to be made of that sight, or no longer.
void Table1_Coche(Bureau &bureau, int indice);
/// The note's field is left, or Return was pressed in it: the note is kept.
void Text2_Quitte(Bureau &bureau, int indice);
/// "Reprendre", Return on a row, a double click: the current row's sight in the panel, reduced, as "Ouvre" does with a
/// file; one gesture to undo.
void Command1_Click(Bureau &bureau, int indice);
/// "Droite 1" to "Droite 4": the same, then "Enregistrer" and that line's button.
void Command2_Click(Bureau &bureau, int indice);
/// "Masquer" (0) and "Montrer" (1), on one spot.
void Command3_Click(Bureau &bureau, int indice);
/// "Au point".
void Command6_Click(Bureau &bureau, int indice);
/// "Fermer".
void Command7_Click(Bureau &bureau, int indice);
/// "Ajouter": a comparison of the watch from its three fields; without a date, one of now.
void Command8_Click(Bureau &bureau, int indice);
/// A field of the comparison was typed in: what was wrong with it is so no longer.
void Text3_Change(Bureau &bureau, int indice);

} // namespace registre
} // namespace velmaris
