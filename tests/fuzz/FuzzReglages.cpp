#include "Attend.hpp"
#include "shell/complements/ReglagesLus.hpp"

#include <cmath>
#include <cstdint>
#include <string>

using namespace velmaris;

/// The check's settings from any bytes, in each of its fields.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *octets, std::size_t taille) {
  const std::string texte(reinterpret_cast<const char *>(octets), taille); // NOLINT(*-reinterpret-cast)
  std::array<std::string, kChampsReglages> textes;
  textes.fill(texte);
  const ReglagesControle r = LitReglages(textes).reglages;
  Attend(r.pression >= 800 && r.pression <= 1100 && std::fabs(r.temperature) <= 60, "air is within its limits");
  Attend(std::fabs(r.dut1) <= 1 && (!r.distanceHorizon || *r.distanceHorizon > 0), "time and shore too");
  double avant = -1;
  for (const ErreurArc &rangee : r.erreursArc) {
    Attend(rangee.lecture > avant && rangee.lecture <= 180, "readings grow");
    Attend(std::fabs(rangee.correction) <= 10, "corrections are small");
    avant = rangee.lecture;
  }
  return 0;
}
