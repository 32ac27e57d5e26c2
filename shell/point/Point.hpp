#pragma once

#include "shell/bureau/Bureau.hpp"

#include <string>

namespace velmaris {

/// Makes the fix. While no sight is listed it takes those of the log's last watch and the stored lines, and the legs
/// that are kept, else from "Estime" the first one, where that is filled.
void PreparePoint(Bureau &bureau);

/// Opens the window of the fix, with the fix made, or brings it to the front: the menu, the toolbar and Ctrl+G.
void OuvrePoint_Click(Bureau &bureau, int indice);

/// A sight more for the fix, ticked; the one that is there already takes its place.
void AjouteVisee(Bureau &bureau, const std::string &identite, const Observation &observation,
                 const std::optional<ResultatDit> &dit);

/// Makes the fix anew from what its window holds, and shows it.
void RefaitPoint(Bureau &bureau);

/// Brings words and layer in line with language, sheet and chart.
void AccordePoint(Bureau &bureau);

/// Reads what is kept of the window's settings: at the start.
void LitReglagesPoint(Bureau &bureau);

/// "Ecran" puts the layer away, after what it does itself.
void RetirePoint(Bureau &bureau);

/// The layer on sheet and chart is to be seen, or no longer. The menu's entry.
void PU_PointTrace_Click(Bureau &bureau, int indice);

/// Kept fixes are to be seen as a track, or no longer; kept at once. The menu's entry.
void PU_Sillage_Click(Bureau &bureau, int indice);

/// The events of the window of the fix; its controls bear the names of others in the main window.
namespace point {

/// A box of a sight was pressed.
void Visees_Coche(Bureau &bureau, int indice);
/// The keyboard is at another sight: its assumed error shows.
void Visees_Click(Bureau &bureau, int indice);
/// A field was left or typed in: what it holds is used at once.
void Champ_Change(Bureau &bureau, int indice);
/// The assumed error of the sight that the keyboard is at.
void Text2_Change(Bureau &bureau, int indice);
/// A box was ticked.
void Case_Click(Bureau &bureau, int indice);
/// "Dernier quart", "Ôter la visée", "Registre...".
void Command1_Click(Bureau &bureau, int indice);
/// A leg is chosen: its figures go into the fields.
void Jambes_Click(Bureau &bureau, int indice);
/// "Ajouter", "Ôter" a leg.
void Command2_Click(Bureau &bureau, int indice);
/// Return in a field of a leg: "Ajouter".
void Text3_Valide(Bureau &bureau, int indice);
/// The layer, by its box.
void Check3_Click(Bureau &bureau, int indice);
/// The second of two solutions.
void Check4_Click(Bureau &bureau, int indice);
/// "Prendre", "Garder", "Copier", "Fermer".
void Command3_Click(Bureau &bureau, int indice);

} // namespace point
} // namespace velmaris
