#include "shell/droites/Bouts.hpp"

#include "foundations/TexteNombre.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <ranges>
#include <variant>

namespace velmaris {
namespace {

constexpr std::string_view kCle = "Bouts"; ///< of the setting
constexpr double kTaille = 8.0;            ///< of the names, points

void PoseBouts(Bureau &bureau, bool montres) {
  bureau.image1.etiquetee = montres;
  bureau.donnees.PU_Bouts.valeur = montres ? 1 : 0;
}

/// The line of position drawn last.
/// @param premier  the first trace that counts
const Polyligne *DerniereDroite(const Surface &surface, std::size_t premier) {
  for (std::size_t i = surface.traces.size(); i > premier; --i) {
    const auto *ligne = std::get_if<Polyligne>(&surface.traces[i - 1]);
    if (ligne != nullptr && ligne->genre == GenreLigne::Droite) {
      return ligne;
    }
  }
  return nullptr;
}

std::string Mots(const NomDroite &nom) {
  std::string mots = nom.astre;
  if (!nom.heure.empty() && !nom.minute.empty()) {
    mots += (mots.empty() ? "" : " ") + Format(nom.heure, "00") + ":" + Format(nom.minute, "00");
  }
  return mots;
}

} // namespace

std::optional<NomDroite> NomReduite(const Bureau &bureau, const Observation &observation, bool reduite) {
  if (!reduite) {
    return std::nullopt;
  }
  return NomDroite{bureau.NomAstre, observation.heure, observation.minute};
}

void TraceNommee(Bureau &bureau, const std::optional<NomDroite> &nom, const std::function<void()> &trace) {
  Surface &surface = bureau.image1;
  const std::uint64_t effacements = surface.effacements;
  const std::size_t traces = surface.traces.size();
  trace();
  const Polyligne *droite = DerniereDroite(surface, effacements == surface.effacements ? traces : 0);
  const std::string mots = nom ? Mots(*nom) : std::string();
  if (droite == nullptr || mots.empty()) {
    return;
  }
  const Police police{surface.police.famille, kTaille, false};
  Etiquette etiquette{{kNoir, police, droite->points.back(), mots, {GenreTexte::Bout}}, droite->points.front()};
  // A line drawn again in its place has one name: the language may be another since.
  const auto ici = [&](const Etiquette &autre) {
    return autre.texte.position == etiquette.texte.position && autre.autreBout == etiquette.autreBout;
  };
  const auto place = std::ranges::find_if(surface.etiquettes, ici);
  if (place != surface.etiquettes.end()) {
    *place = std::move(etiquette);
  } else {
    surface.etiquettes.push_back(std::move(etiquette));
  }
}

void LitBouts(Bureau &bureau) { PoseBouts(bureau, LitReglage(bureau, kCle, "1") != "0"); }

void PU_Bouts_Click(Bureau &bureau, int /*indice*/) {
  PoseBouts(bureau, !bureau.image1.etiquetee);
  EcritReglage(bureau, kCle, bureau.image1.etiquetee ? "1" : "0");
}

} // namespace velmaris
