#pragma once

#include "complements/registre/Rangee.hpp"
#include "shell/visee/ReduitVisee.hpp"

namespace velmaris {

/// One line of the journal: UTC of now, body and its name, the fields as they stand, observed and computed height in
/// degrees, intercept in miles and azimuth in degrees; version of this form, the row's identity, intercept by the sky
/// of today and how far the told one lies from it, both empty where there is none. Commas separate; a text that holds
/// one stands in quotes. Control characters are left out, and a text, not a number, that a table program would take for
/// a formula follows an apostrophe.
std::string LigneJournal(Bureau &bureau, const Hauteurs &hauteurs);

/// Appends the sight of the panel to "journal.csv" in the user's data folder, flushed to the disk. What is there is
/// never rewritten; a line that an earlier end of the program cut short is closed first. A journal of the old form goes
/// on as "journal-1.csv"; each year, and at 16 MB, a new one begins, and what there is is kept as "journal-2026.csv".
/// Tells the user once when it can't be written. While another program holds the journal its lines wait in memory,
/// which is told once too. A sight of a practice is noted there and never entered.
void Journalise(Bureau &bureau, const Hauteurs &hauteurs);

/// Appends a line that stands as it is to be, in the same way.
void JournaliseLigne(Bureau &bureau, std::string ligne);

/// Enters the lines that wait, in their order, if the journal is free.
void RetenteJournal(Bureau &bureau, Patience &patience);

} // namespace velmaris
