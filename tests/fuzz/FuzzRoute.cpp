#include "Attend.hpp"
#include "complements/point/FichierRoute.hpp"

#include <cmath>

using namespace velmaris;

/// A route file of any bytes: legs in their limits, whose track goes somewhere.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *octets, std::size_t taille) {
  const RouteLue lue = LitRoute(Octets(octets, taille));
  for (const Jambe &jambe : lue.jambes) {
    Attend(jambe.cap >= 0 && jambe.cap <= 360 && jambe.vitesse >= 0 && jambe.vitesse <= 100, "a leg keeps its limits");
    Attend(std::isfinite(jambe.depuis.jour + jambe.depuis.fraction), "its time is a number");
    Attend(LitRoute(TexteInstant(jambe.depuis) + " 1 2").jambes.size() == 1, "its time is read back");
  }
  if (lue.jambes.empty()) {
    return 0;
  }
  const InstantUTC &debut = lue.jambes.front().depuis;
  const Arrivee fin = Deplace({lue.jambes, {45, 1}}, {40, -170}, debut, PlusTard(debut, 86400));
  Attend(std::fabs(fin.lieu.latitude) <= 90 && std::fabs(fin.lieu.longitude) <= 180, "the track ends on the Earth");
  return 0;
}
