#include "complements/registre/Annotations.hpp"

#include "complements/registre/Rangee.hpp"
#include "complements/registre/TexteCsv.hpp"

#include <array>

namespace velmaris {

const std::string_view kTitresMasques = "utc,identite,etat,note,fin";

namespace {

constexpr const char *kMasquee = "masquee";
constexpr const char *kMontree = "montree";
constexpr const char *kFin = "."; ///< last field: a line that was cut short has none
constexpr std::size_t kChamps = 5;

} // namespace

std::string LigneAnnotation(std::string_view utc, const std::string &identite, const Annotation &annotation) {
  return std::string(utc) + "," + ChampCsv(identite) + "," + (annotation.masquee ? kMasquee : kMontree) + "," +
         ChampCsv(annotation.note) + "," + kFin;
}

Annotations LitAnnotations(std::string_view octets) {
  Annotations annotations;
  std::array<std::string_view, kChamps> parties;
  while (!octets.empty()) {
    const std::string_view ligne = PrendLigne(octets);
    if (PartiesCsv(ligne, parties) != kChamps || parties[4] != kFin || !InstantEcrit(parties[0]) ||
        parties[1].empty() || (parties[2] != kMasquee && parties[2] != kMontree)) {
      continue;
    }
    if (const std::string identite = TextePartie(parties[1]); !ChampCsv(identite).empty()) {
      annotations[identite] = {parties[2] == kMasquee, TextePartie(parties[3])};
    }
  }
  return annotations;
}

} // namespace velmaris
