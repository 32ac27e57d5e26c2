#include "complements/registre/PointsGardes.hpp"

#include "complements/registre/Rangee.hpp"
#include "complements/registre/TexteCsv.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdio>

namespace velmaris {

const std::string_view kTitresPoints =
    "utc,latitude,longitude,ellipse_a,ellipse_b,ellipse_direction,visees,theorie,forme";

namespace {

constexpr std::size_t kColonnes = 9;
constexpr std::string_view kForme = "1";
constexpr std::string_view kActuelle = "actuelle";
constexpr std::string_view kDite = "dite";
constexpr double kDixiemes = 600; ///< of a minute, in a degree
constexpr double kTour = 360;
constexpr double kMillesMax = 1E5;
constexpr int kViseesMax = 100000;

double AuDixieme(double degres) { return std::round(degres * kDixiemes) / kDixiemes; }

} // namespace

std::string LignePoint(const PointGarde &point) {
  constexpr std::size_t kPlace = 256;
  std::array<char, kPlace> texte{};
  std::snprintf(texte.data(), texte.size(), ",%.5f,%.5f,%.2f,%.2f,%.1f,%d,", AuDixieme(point.lieu.latitude),
                AuDixieme(point.lieu.longitude), point.ellipse.a, point.ellipse.b, point.ellipse.direction,
                point.visees);
  const std::string_view theorie = point.theorie == TheoriePoint::Actuelle ? kActuelle : kDite;
  return EcritInstant(SecondesDe(point.utc)).append(texte.data()).append(theorie).append(",").append(kForme);
}

std::optional<PointGarde> LitLignePoint(std::string_view ligne) {
  std::array<std::string_view, kColonnes> p;
  if (PartiesCsv(ligne, p) != kColonnes || (p[7] != kActuelle && p[7] != kDite) || p[8] != kForme) {
    return std::nullopt;
  }
  const auto instant = InstantEcrit(p[0]);
  const auto latitude = NombreEntre(p[1], -kTour / 4, kTour / 4);
  const auto longitude = NombreEntre(p[2], -kTour / 2, kTour / 2);
  const auto a = NombreEntre(p[3], 0.0, kMillesMax);
  const auto b = NombreEntre(p[4], 0.0, kMillesMax);
  const auto direction = NombreEntre(p[5], 0.0, kTour / 2);
  const auto visees = NombreEntre(p[6], 0, kViseesMax);
  if (!(instant && latitude && longitude && a && b && direction && visees)) {
    return std::nullopt;
  }
  return PointGarde{UTCDeSecondes(*instant),
                    {*latitude, *longitude},
                    {*a, *b, *direction},
                    *visees,
                    p[7] == kActuelle ? TheoriePoint::Actuelle : TheoriePoint::Dite};
}

std::vector<PointGarde> LitPoints(std::string_view octets) {
  std::vector<PointGarde> points;
  while (!octets.empty()) {
    if (const auto point = LitLignePoint(PrendLigne(octets))) {
      points.push_back(*point);
    }
  }
  // The later line of two stands first among its like, and stays.
  std::reverse(points.begin(), points.end());
  std::stable_sort(points.begin(), points.end(), [](const PointGarde &x, const PointGarde &y) {
    const double ecart = SecondesEntre(x.utc, y.utc);
    return ecart != 0 ? ecart > 0 : x.theorie < y.theorie;
  });
  const auto meme = [](const PointGarde &x, const PointGarde &y) {
    return SecondesEntre(x.utc, y.utc) == 0 && x.theorie == y.theorie;
  };
  points.erase(std::unique(points.begin(), points.end(), meme), points.end());
  return points;
}

std::vector<LieuNavire> SillageDe(const std::vector<PointGarde> &points, double jours) {
  constexpr double kJour = 86400;
  std::vector<LieuNavire> lieux;
  const PointGarde *avant = nullptr;
  for (const PointGarde &point : points) {
    const bool recent = SecondesEntre(point.utc, points.back().utc) <= jours * kJour;
    if (recent && (avant == nullptr || SecondesEntre(avant->utc, point.utc) != 0)) {
      lieux.push_back(point.lieu);
    }
    avant = &point;
  }
  return lieux;
}

} // namespace velmaris
