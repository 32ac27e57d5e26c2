#include "shell/bureau/Avis.hpp"

#include <algorithm>
#include <utility>

namespace velmaris {
namespace {

constexpr int kBattements = 6; ///< of the clock, some eight seconds

} // namespace

void Avise(Bureau &bureau, std::string mots) {
  bureau.etat.avis = std::move(mots);
  bureau.etat.restant = kBattements;
}

void AviseRefus(Bureau &bureau, const Controle &champ, const std::string &tape) {
  const Donnees &d = bureau.donnees;
  if (champ.par != "Nom" || champ.fenetre != kFenetreDonnees) {
    return;
  }
  const auto rang = static_cast<std::size_t>(champ.parIndice);
  const Etat &etat = bureau.etat;
  if (rang < kChampsVisee) {
    Avise(bureau,
          d.Nom.at(rang).legende + " : " + tape + " " + etat.TexteRefus.legende + etat.Domaine.at(rang).legende);
  }
}

void VieillitAvis(Bureau &bureau) {
  Etat &etat = bureau.etat;
  etat.restant = std::max(0, etat.restant - 1);
  if (etat.restant == 0) {
    etat.avis.clear();
  }
}

} // namespace velmaris
