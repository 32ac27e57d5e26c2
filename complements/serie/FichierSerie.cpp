#include "complements/serie/FichierSerie.hpp"

#include "complements/point/FichierRoute.hpp"
#include "complements/point/LignesTexte.hpp"
#include "foundations/Fichiers.hpp"

#include <algorithm>
#include <cmath>
#include <string>

namespace velmaris {
namespace {

constexpr int kType = 13;
constexpr double kMinutes = 60;
constexpr std::size_t kHeure = 8; ///< characters of HH:MM:SS

/// An instant whose second may have a fraction.
/// @throws Erreur 13, Refus
InstantUTC LitHeure(std::string_view date, std::string_view heure) {
  const std::string_view fraction = heure.substr(std::min(heure.find_first_of(".,"), heure.size()));
  const std::string_view entiere = heure.substr(0, heure.size() - fraction.size());
  const InstantUTC utc = LitInstant(std::string(date) + " " + std::string(entiere));
  if (fraction.empty()) {
    return utc;
  }
  if (entiere.size() != kHeure || fraction.find_first_not_of("0123456789", 1) != std::string_view::npos) {
    throw Erreur(kType);
  }
  return PlusTard(utc, NombreLu("0" + std::string(fraction), 1));
}

/// @throws Erreur 13, Refus
LectureSerie LitLecture(std::string_view ligne) {
  constexpr double kDegresMax = 120;
  const std::string_view date = MotSuivant(ligne);
  LectureSerie lecture;
  lecture.utc = LitHeure(date, MotSuivant(ligne));
  const double degres = NombreLu(MotSuivant(ligne), kDegresMax);
  const double minutes = NombreLu(MotSuivant(ligne), kMinutes);
  if (degres != std::floor(degres) || minutes >= kMinutes || !MotSuivant(ligne).empty()) {
    throw Erreur(kType);
  }
  lecture.lecture = degres + minutes / kMinutes;
  return lecture;
}

} // namespace

SerieLue LitSerie(std::string_view octets) {
  SerieLue serie;
  const std::string texte = EnUtf8(octets);
  serie.ligneFautive = LitLignes(texte, [&](std::string_view ligne) { serie.lectures.push_back(LitLecture(ligne)); });
  return serie;
}

} // namespace velmaris
