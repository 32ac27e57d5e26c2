#include "shell/ecran/Statut.hpp"

#include "chart/Projection.hpp"
#include "foundations/TexteNombre.hpp"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace velmaris {
namespace {

constexpr long kDixiemesParDegre = 600;

/// An angle in tenths of a minute as text.
/// @param masque  of the whole degrees
std::string TexteAngle(double degres, std::string_view masque, char positif, char negatif) {
  const long dixiemes = std::lround(std::fabs(degres) * static_cast<double>(kDixiemesParDegre));
  const long entiers = dixiemes / kDixiemesParDegre;
  const double minutes = static_cast<double>(dixiemes % kDixiemesParDegre) / 10;
  return Format(static_cast<double>(entiers), masque) + "° " + Format(minutes, "00.0") + "' " +
         (degres < 0 && dixiemes != 0 ? negatif : positif);
}

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

std::string Attente(const Bureau &bureau) {
  const Etat &etat = bureau.etat;
  if (bureau.ModuleDeplace != 0) {
    return etat.TexteModule.legende;
  }
  if (bureau.souris.ModeDistance != 0) {
    return (bureau.souris.DebutX != 0.0F ? etat.TexteBranche : etat.TexteDepart).legende;
  }
  return AttenteDroites(bureau);
}

} // namespace

std::string TexteTenue(double latitude, double longitude) {
  if (!(std::fabs(latitude) <= 90.0) || !std::isfinite(longitude)) {
    return "";
  }
  return TexteAngle(latitude, "00", 'N', 'S') + "  " + TexteAngle(std::remainder(longitude, 360.0), "000", 'W', 'E');
}

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
    if (c->genre == Genre::Champ && c->par == "Nom" && static_cast<std::size_t>(c->parIndice) < kChampsVisee) {
      const auto rang = static_cast<std::size_t>(c->parIndice);
      c->infobulle = bureau.donnees.Nom.at(rang).legende + " : " + bureau.etat.Domaine.at(rang).legende;
    }
  }
}

} // namespace velmaris
