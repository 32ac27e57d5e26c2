#include "complements/registre/Montre.hpp"

#include "complements/registre/Rangee.hpp"
#include "complements/registre/TexteCsv.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <map>

namespace velmaris {

const std::string_view kTitresMontre = "utc,erreur_s,marche_s_par_jour,fin";

namespace {

constexpr double kParJour = 86400.0;
constexpr std::string_view kFin = "."; ///< last field: a line that was cut short has none
constexpr std::size_t kChamps = 4;

/// The shortest text that is read back as the same number.
std::string Exact(double valeur) {
  std::array<char, 32> texte{};
  const char *const fin = std::to_chars(texte.data(), texte.data() + texte.size(), valeur).ptr;
  return {texte.data(), static_cast<std::size_t>(fin - texte.data())};
}

} // namespace

std::string LigneMontre(const ReleveMontre &releve) {
  return EcritInstant(releve.instant) + "," + Exact(releve.erreur) + "," + Exact(releve.marche) + "," +
         std::string(kFin);
}

std::vector<ReleveMontre> LitMontre(std::string_view octets) {
  std::map<std::int64_t, ReleveMontre> parMoment;
  std::array<std::string_view, kChamps> parties;
  while (!octets.empty()) {
    const std::string_view ligne = PrendLigne(octets);
    if (PartiesCsv(ligne, parties) != kChamps || parties[3] != kFin) {
      continue;
    }
    const auto instant = InstantEcrit(parties[0]);
    const auto erreur = NombreEntre(parties[1], -kErreurMax, kErreurMax);
    const auto marche = NombreEntre(parties[2], -kMarcheMax, kMarcheMax);
    if (instant && erreur && marche) {
      parMoment[*instant] = {*instant, *erreur, *marche};
    }
  }
  std::vector<ReleveMontre> releves;
  releves.reserve(parMoment.size());
  for (const auto &[instant, releve] : parMoment) {
    releves.push_back(releve);
  }
  return releves;
}

std::optional<double> ErreurMontre(const std::vector<ReleveMontre> &releves, std::int64_t instant) {
  const auto apres = std::upper_bound(releves.begin(), releves.end(), instant,
                                      [](std::int64_t t, const ReleveMontre &r) { return t < r.instant; });
  if (apres == releves.begin()) {
    return std::nullopt;
  }
  const ReleveMontre &r = *(apres - 1);
  return r.erreur + r.marche * static_cast<double>(instant - r.instant) / kParJour;
}

} // namespace velmaris
