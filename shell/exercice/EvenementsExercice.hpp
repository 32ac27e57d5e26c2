#pragma once

#include "shell/bureau/Bureau.hpp"

namespace velmaris {

/// Opens the window of practice, or brings it to the front: the menu and Ctrl+E. The first time its fields are those of
/// the practice that was begun last, on an earlier start too, else the first graded one.
void OuvreExercice_Click(Bureau &bureau, int indice);

/// Brings the window in line with the practice, while it is open and something has changed.
void AccordeExercice(Bureau &bureau);

/// The events of the window of practice; its controls bear the names of others in the main window.
namespace exercice {

/// A graded practice is chosen: its seed and conditions stand in the fields, and nothing has begun yet.
void Combo1_Click(Bureau &bureau, int indice);
/// Seed, subject or a condition has changed: what can't be used is marked.
void Champ_Change(Bureau &bureau, int indice);
/// "Commencer": the practice of the fields takes the place of the one before; "Au hasard": another seed.
void Command1_Click(Bureau &bureau, int indice);
/// Another row: what is said of its sight.
void Visees_Click(Bureau &bureau, int indice);
/// "Au panneau", Return on a row, a double click: the sight in the panel, as one gesture.
void Prend_Click(Bureau &bureau, int indice);
/// The user's fix was typed in.
void Point_Change(Bureau &bureau, int indice);
/// "Corriger": the truth, and what there is to say of fix and lines. Without a fix it asks first.
void Corrige_Click(Bureau &bureau, int indice);
/// "Fermer". The practice goes on.
void Ferme_Click(Bureau &bureau, int indice);

} // namespace exercice
} // namespace velmaris
