#include "shell/ecran/Nuit.hpp"

namespace velmaris {
namespace {

constexpr std::string_view kCle = "Nuit";

void PoseNuit(Bureau &bureau, bool nuit) {
  bureau.nuit = nuit;
  bureau.donnees.PU_Nuit.valeur = nuit ? 1 : 0;
}

} // namespace

void LitNuit(Bureau &bureau) { PoseNuit(bureau, LitReglage(bureau, kCle, "0") == "1"); }

void PU_Nuit_Click(Bureau &bureau, int /*indice*/) {
  PoseNuit(bureau, !bureau.nuit);
  EcritReglage(bureau, kCle, bureau.nuit ? "1" : "0");
}

} // namespace velmaris
