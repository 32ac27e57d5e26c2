#include "Attend.hpp"
#include "complements/registre/PointsGardes.hpp"

#include <cmath>
#include <string>

using namespace velmaris;

/// A file of kept fixes of any bytes: fixes in their limits and in the order of time, each read back from its own line.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *octets, std::size_t taille) {
  const std::vector<PointGarde> points = LitPoints(Octets(octets, taille));
  for (std::size_t i = 0; i < points.size(); ++i) {
    const PointGarde &point = points[i];
    Attend(std::fabs(point.lieu.latitude) <= 90 && std::fabs(point.lieu.longitude) <= 180, "a fix lies on the Earth");
    Attend(i == 0 || SecondesEntre(points[i - 1].utc, point.utc) >= 0, "fixes stand by time");
    Attend(LitLignePoint(LignePoint(point)).has_value(), "a fix is read back");
  }
  Attend(SillageDe(points, 7).size() <= points.size(), "a moment has one place");
  return 0;
}
