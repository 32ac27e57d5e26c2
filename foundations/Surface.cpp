#include "foundations/Surface.hpp"

#include <algorithm>
#include <utility>

namespace velmaris {

void Efface(Surface &surface) {
  surface.traces.clear();
  surface.aires.clear();
  surface.etiquettes.clear();
  surface.position = {};
  ++surface.effacements;
}

void AjouteAire(Surface &surface, Aire aire) {
  if (std::find(surface.aires.begin(), surface.aires.end(), aire) != surface.aires.end()) {
    return;
  }
  const auto place = std::find_if(surface.aires.begin(), surface.aires.end(),
                                  [&](const Aire &autre) { return autre.teinte > aire.teinte; });
  surface.aires.insert(place, std::move(aire));
}

bool RetireRepetition(Surface &surface, std::size_t debut, std::size_t milieu) {
  const auto place = [&](std::size_t rang) { return surface.traces.begin() + static_cast<std::ptrdiff_t>(rang); };
  const bool repete = debut < milieu && std::equal(place(debut), place(milieu), place(milieu), surface.traces.end());
  if (repete) {
    surface.traces.resize(milieu);
  }
  return repete;
}

void RetireTranches(Surface &surface, const std::vector<Tranche> &tranches) {
  const auto retiree = [&](std::size_t rang) {
    return std::any_of(tranches.begin(), tranches.end(),
                       [&](const Tranche &t) { return rang >= t.debut && rang < t.fin; });
  };
  std::vector<Trace> restent;
  for (std::size_t i = 0; i < surface.traces.size(); ++i) {
    if (!retiree(i)) {
      restent.push_back(std::move(surface.traces[i]));
    }
  }
  if (restent.size() != surface.traces.size()) {
    ++surface.effacements;
  }
  surface.traces = std::move(restent);
  surface.plumeLevee = true;
}

void Ligne(Surface &surface, Point debut, Point fin, Couleur couleur) {
  const Plume plume{couleur, surface.epaisseur, surface.style};
  surface.position = fin;
  if (!std::exchange(surface.plumeLevee, false) && !surface.traces.empty()) {
    auto *derniere = std::get_if<Polyligne>(&surface.traces.back());
    if (derniere != nullptr && derniere->plume == plume && derniere->genre == surface.genre &&
        derniere->points.back() == debut) {
      derniere->points.push_back(fin);
      return;
    }
  }
  surface.traces.emplace_back(Polyligne{plume, {debut, fin}, surface.genre});
}

void Cercle(Surface &surface, Point centre, double rayon, Couleur couleur) {
  surface.traces.emplace_back(CercleTrace{{couleur, surface.epaisseur, surface.style}, centre, rayon});
  surface.position = centre;
}

void Ecrit(Surface &surface, std::string texte, RoleTexte role) {
  surface.traces.emplace_back(TexteTrace{surface.encre, surface.police, surface.position, std::move(texte), role});
  surface.position = {0.0, surface.position.y + surface.interligne};
}

void EcritEn(Surface &surface, Point position, std::string texte, RoleTexte role) {
  surface.position = position;
  Ecrit(surface, std::move(texte), role);
}

} // namespace velmaris
