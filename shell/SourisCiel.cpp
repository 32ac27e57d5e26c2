#include "shell/EcranCiel.hpp"

namespace velmaris::ciel {

void Picture1_MouseMove(Bureau & /*bureau*/, double /*x*/, double /*y*/) {}
void Laet_MouseMove(Bureau & /*bureau*/, int /*indice*/) {}
void LaP_MouseMove(Bureau & /*bureau*/, int /*indice*/) {}
void SOL_MouseMove(Bureau & /*bureau*/) {}
void Lune_MouseMove(Bureau & /*bureau*/) {}
void List1_Click(Bureau & /*bureau*/, int /*indice*/) {}
void SOL_Click(Bureau & /*bureau*/, int /*indice*/) {}
void Lune_Click(Bureau & /*bureau*/, int /*indice*/) {}
void LaP_Click(Bureau & /*bureau*/, int /*indice*/) {}
void Laet_Click(Bureau & /*bureau*/, int /*indice*/) {}
void DeplaceAstre(Bureau & /*bureau*/, Direction /*direction*/) {}
void PrendAstre(Bureau & /*bureau*/) {}

} // namespace velmaris::ciel
