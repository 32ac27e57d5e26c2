#include "shell/complements/ReglagesLus.hpp"

#include "foundations/TexteNombre.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <system_error>
#include <utility>

namespace velmaris {
namespace {

constexpr double kArcMax = 180;       ///< degrees
constexpr double kCorrectionMax = 10; ///< minutes

/// A pair of a reading and its correction.
std::optional<ErreurArc> LitPaire(std::string_view paire) {
  const std::string_view nue = SansBlancs(paire);
  const std::size_t blanc = nue.find(' ');
  if (blanc == std::string_view::npos) {
    return std::nullopt;
  }
  const auto lecture = LitNombreBorne(nue.substr(0, blanc), 0, kArcMax);
  const auto correction = LitNombreBorne(nue.substr(blanc), -kCorrectionMax, kCorrectionMax);
  return lecture && correction ? std::optional(ErreurArc{*lecture, *correction}) : std::nullopt;
}

/// A number in its limits for the field of one.
bool Pose(const std::string &texte, double moindre, double plusGrand, double &reglage) {
  const auto nombre = LitNombreBorne(texte, moindre, plusGrand);
  reglage = nombre.value_or(reglage);
  return nombre || SansBlancs(texte).empty();
}

} // namespace

std::optional<double> LitNombreBorne(std::string_view texte, double moindre, double plusGrand) {
  std::string nombre = AvecPoint(SansBlancs(texte));
  if (nombre.starts_with('+')) {
    nombre.erase(0, 1);
    if (nombre.starts_with('-')) {
      return std::nullopt;
    }
  }
  double valeur = 0;
  const char *const fin = nombre.data() + nombre.size();
  const auto [reste, code] = std::from_chars(nombre.data(), fin, valeur);
  const bool bon = code == std::errc() && reste == fin && valeur >= moindre && valeur <= plusGrand;
  return bon ? std::optional(valeur) : std::nullopt;
}

std::optional<std::vector<ErreurArc>> LitErreursArc(std::string_view texte) {
  std::vector<ErreurArc> rangees;
  while (!SansBlancs(texte).empty()) {
    const std::size_t fin = std::min(texte.find(';'), texte.size());
    const auto paire = LitPaire(texte.substr(0, fin));
    if (!paire || (!rangees.empty() && paire->lecture <= rangees.back().lecture)) {
      return std::nullopt;
    }
    rangees.push_back(*paire);
    texte.remove_prefix(std::min(fin + 1, texte.size()));
  }
  return rangees;
}

ReglagesLus LitReglages(const std::array<std::string, kChampsReglages> &textes) {
  constexpr double kRivageMin = 0.01;
  constexpr double kRivageMax = 30;
  const auto &[pression, temperature, rivage, ut1, arc] = textes;
  ReglagesLus lus;
  ReglagesControle &r = lus.reglages;
  lus.bons[0] = Pose(pression, 800, 1100, r.pression);
  lus.bons[1] = Pose(temperature, -60, 60, r.temperature);
  r.distanceHorizon = LitNombreBorne(rivage, kRivageMin, kRivageMax);
  lus.bons[2] = r.distanceHorizon || SansBlancs(rivage).empty();
  lus.bons[3] = Pose(ut1, -1, 1, r.dut1);
  auto erreurs = LitErreursArc(arc);
  lus.bons[4] = erreurs.has_value();
  r.erreursArc = std::move(erreurs).value_or(std::vector<ErreurArc>());
  return lus;
}

} // namespace velmaris
