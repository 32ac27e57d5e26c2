#include "complements/point/PointsGardes.hpp"

#include "complements/ciel/Refus.hpp"

#include <algorithm>
#include <array>
#include <charconv>
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
constexpr std::string_view kModeleInstant = "0000-00-00T00:00:00Z";

double AuDixieme(double degres) { return std::round(degres * kDixiemes) / kDixiemes; }

template <class Nombre> std::optional<Nombre> Lit(std::string_view texte) {
  Nombre nombre{};
  const char *const bout = texte.data() + texte.size();
  const auto [fin, code] = std::from_chars(texte.data(), bout, nombre);
  return code == std::errc() && fin == bout ? std::optional(nombre) : std::nullopt;
}

std::optional<double> LitBorne(std::string_view texte, double moindre, double plusGrand) {
  const std::optional<double> nombre = Lit<double>(texte);
  return nombre && *nombre >= moindre && *nombre <= plusGrand ? nombre : std::nullopt;
}

/// Whether a text has digits and signs where a moment has them.
bool ALaFormeDUnInstant(std::string_view texte) {
  return std::equal(texte.begin(), texte.end(), kModeleInstant.begin(), kModeleInstant.end(),
                    [](char c, char modele) { return modele == '0' ? c >= '0' && c <= '9' : c == modele; });
}

std::optional<InstantUTC> LitInstant(std::string_view texte) {
  if (!ALaFormeDUnInstant(texte)) {
    return std::nullopt;
  }
  const auto deux = [&](std::size_t debut) { return Lit<int>(texte.substr(debut, 2)).value_or(0); };
  try {
    return UTCDe({Lit<int>(texte.substr(0, 4)).value_or(0), deux(5), deux(8), deux(11), deux(14),
                  static_cast<double>(deux(17))});
  } catch (const Refus &) {
    return std::nullopt;
  }
}

/// The parts of a line, if there are as many as it takes.
std::optional<std::array<std::string_view, kColonnes>> Parties(std::string_view ligne) {
  std::array<std::string_view, kColonnes> parties;
  for (std::size_t i = 0; i < kColonnes; ++i) {
    const std::size_t fin = ligne.find(',');
    if ((fin == std::string_view::npos) != (i + 1 == kColonnes)) {
      return std::nullopt;
    }
    parties.at(i) = ligne.substr(0, fin);
    ligne.remove_prefix(std::min(parties.at(i).size() + 1, ligne.size()));
  }
  return parties;
}

} // namespace

std::string LignePoint(const PointGarde &point) {
  constexpr double kDemie = 0.5;
  constexpr std::size_t kPlace = 256;
  const DateCivile d = CivileDe(PlusTard(point.utc, kDemie));
  std::array<char, kPlace> texte{};
  std::snprintf(texte.data(), texte.size(), "%04d-%02d-%02dT%02d:%02d:%02dZ,%.5f,%.5f,%.2f,%.2f,%.1f,%d,", d.annee,
                d.mois, d.jour, d.heure, d.minute, static_cast<int>(d.seconde), AuDixieme(point.lieu.latitude),
                AuDixieme(point.lieu.longitude), point.ellipse.a, point.ellipse.b, point.ellipse.direction,
                point.visees);
  const std::string_view theorie = point.theorie == TheoriePoint::Actuelle ? kActuelle : kDite;
  return std::string(texte.data()).append(theorie).append(",").append(kForme);
}

std::optional<PointGarde> LitLignePoint(std::string_view ligne) {
  const auto parties = Parties(ligne);
  if (!parties) {
    return std::nullopt;
  }
  const auto &p = *parties;
  const auto utc = LitInstant(p[0]);
  const auto latitude = LitBorne(p[1], -kTour / 4, kTour / 4);
  const auto longitude = LitBorne(p[2], -kTour / 2, kTour / 2);
  const auto a = LitBorne(p[3], 0, kMillesMax);
  const auto b = LitBorne(p[4], 0, kMillesMax);
  const auto direction = LitBorne(p[5], 0, kTour / 2);
  const auto visees = Lit<int>(p[6]);
  const bool lue = utc && latitude && longitude && a && b && direction && visees;
  if (!lue || *visees < 0 || *visees > kViseesMax || (p[7] != kActuelle && p[7] != kDite) || p[8] != kForme) {
    return std::nullopt;
  }
  return PointGarde{*utc,
                    {*latitude, *longitude},
                    {*a, *b, *direction},
                    *visees,
                    p[7] == kActuelle ? TheoriePoint::Actuelle : TheoriePoint::Dite};
}

std::vector<PointGarde> LitPoints(std::string_view octets) {
  std::vector<PointGarde> points;
  while (!octets.empty()) {
    const std::size_t fin = std::min(octets.find('\n'), octets.size());
    std::string_view ligne = octets.substr(0, fin);
    octets.remove_prefix(std::min(fin + 1, octets.size()));
    if (ligne.ends_with('\r')) {
      ligne.remove_suffix(1);
    }
    if (const auto point = LitLignePoint(ligne)) {
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
