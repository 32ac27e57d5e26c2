#include "shell/ecran/Statut.hpp"

#include "chart/Projection.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/visee/ChampsJuges.hpp"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace velmaris {
namespace {

/// What the four buttons wait for, while their module shows.
std::string AttenteDroites(const Bureau &bureau) {
  const Donnees &d = bureau.donnees;
  if (d.Frame2.visible) {
    return (d.Option2.choisi ? bureau.etat.TexteCapsDepart : bureau.etat.TexteCapsArrivee).legende;
  }
  const auto *mode = std::find_if(d.Option1.begin(), d.Option1.end(), [](const Controle &o) { return o.choisi; });
  return d.Frame10.visible && mode != d.Option1.end()
             ? bureau.etat.TexteMode.at(static_cast<std::size_t>(mode - d.Option1.begin())).legende
             : std::string();
}

/// What a tool waits for, what is to be mended in the sight, or what the four buttons wait for.
std::string Attente(const Bureau &bureau) {
  const Etat &etat = bureau.etat;
  if (bureau.ModuleDeplace != 0) {
    return etat.TexteModule.legende;
  }
  if (bureau.souris.ModeDistance != 0) {
    return (bureau.souris.DebutX != 0.0F ? etat.TexteBranche : etat.TexteDepart).legende;
  }
  const std::string alerte = MotsAlerte(bureau);
  return alerte.empty() ? AttenteDroites(bureau) : alerte;
}

/// Whether a tool tip tells what a calculation has found, and no range.
bool EstValeur(const std::string &infobulle) {
  return !infobulle.empty() && infobulle.find(" : ") == std::string::npos;
}

} // namespace

bool AUneEchelle(const Feuille &feuille) { return feuille.EchelleX > 0 && feuille.EchelleY > 0; }

void SuitPosition(Bureau &bureau, Point point) {
  if (AUneEchelle(bureau.feuille)) {
    const PlaceCarte place = PlaceSousPoint(bureau.feuille, point);
    bureau.etat.Position.legende = TexteTenue(place.latitude, place.longitude);
  }
}

void PerdPosition(Bureau &bureau) { bureau.etat.Position.legende.clear(); }

void AccordeStatut(Bureau &bureau) {
  bureau.etat.Dit.legende = bureau.etat.avis.empty() ? Attente(bureau) : bureau.etat.avis;
}

void PoseDomaines(Bureau &bureau) {
  for (Controle *c : Liste(bureau.donnees)) {
    const bool saisie = c->genre == Genre::Champ || c->genre == Genre::Liste;
    const auto rang = static_cast<std::size_t>(c->parIndice);
    if (saisie && c->par == "Nom" && rang < kChampsNommes && !EstValeur(c->infobulle)) {
      c->infobulle = bureau.donnees.Nom.at(rang).legende + " : " + bureau.etat.Domaine.at(rang).legende;
    }
  }
}

} // namespace velmaris
