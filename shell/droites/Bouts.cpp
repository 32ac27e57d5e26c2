#include "shell/droites/Bouts.hpp"

#include "foundations/TexteNombre.hpp"

#include <algorithm>
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

} // namespace

EtatDessin EtatDe(const Surface &surface) { return {surface.effacements, surface.traces.size()}; }

void NommeBout(Bureau &bureau, const EtatDessin &avant, const std::string &astre, const std::string &heure,
               const std::string &minute) {
  Surface &surface = bureau.image1;
  const Polyligne *droite = DerniereDroite(surface, avant.effacements == surface.effacements ? avant.traces : 0);
  if (droite == nullptr) {
    return;
  }
  std::string nom = astre;
  if (!heure.empty() && !minute.empty()) {
    nom += (nom.empty() ? "" : " ") + Format(heure, "00") + ":" + Format(minute, "00");
  }
  const Police police{surface.police.famille, kTaille, false};
  Etiquette etiquette{{kNoir, police, droite->points.back(), nom, {GenreTexte::Bout}}, droite->points.front()};
  // A line drawn again in its place has one name: the language may be another since.
  const auto ici = [&](const Etiquette &autre) {
    return autre.texte.position == etiquette.texte.position && autre.autreBout == etiquette.autreBout;
  };
  const auto place = std::ranges::find_if(surface.etiquettes, ici);
  if (nom.empty()) {
    return;
  }
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
