#pragma once

#include "shell/bureau/Bureau.hpp"

namespace velmaris {

/// The check of the sight whose results are shown; it is worked out when it is asked for first, and kept while sight
/// and settings stay the same. Nothing told is touched.
/// @return null while no sight is reduced, and after a reduction that failed
const FicheControle *ControleDuResultat(Bureau &bureau);

/// Brings the line under the results and the check sheet, where it is open, in line with the sight, once the results
/// have been judged.
void AccordeVerification(Bureau &bureau);

/// Opens the check sheet, or brings it to the front. The click on the line under the results, the menu, and Ctrl+I.
void OuvreFiche_Click(Bureau &bureau, int indice);

/// The check's settings, from the store: at the start.
void LitReglagesVerification(Bureau &bureau);

/// The events of the check sheet; its controls bear the names of others in the main window.
namespace fiche {

/// A field of the settings was typed in: what it holds is used at once, and kept; what can't be used is marked, and the
/// setting is as if the field were empty.
void Text1_Change(Bureau &bureau, int indice);
/// "Copier": the sheet as a text.
void Command1_Click(Bureau &bureau, int indice);
/// "Fermer".
void Command2_Click(Bureau &bureau, int indice);

} // namespace fiche
} // namespace velmaris
