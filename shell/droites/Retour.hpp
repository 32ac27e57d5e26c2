#pragma once

#include "shell/bureau/Bureau.hpp"

namespace velmaris {

/// "Annuler": puts back what the last gesture has changed, and nothing else; what was typed since in other fields
/// stays. The stored lines that it had changed are written as one transaction, the sheet takes its picture again, the
/// results are those of before without a reduction. Nothing is entered in the journal, and no question is asked.
void PU_Annule_Click(Bureau &bureau, int indice);

/// "Rétablir": puts back what "Annuler" has changed.
void PU_Retablit_Click(Bureau &bureau, int indice);

} // namespace velmaris
