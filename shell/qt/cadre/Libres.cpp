#include "shell/qt/cadre/Libres.hpp"

#include "shell/qt/cadre/Dialogue.hpp"
#include "shell/qt/cadre/FenetreCiel.hpp"
#include "shell/qt/cadre/FenetreEtiree.hpp"
#include "shell/qt/cadre/FenetreImpression.hpp"
#include "shell/qt/cadre/FenetreRegistre.hpp"

#include <utility>

namespace velmaris::qt {
namespace {

Dialogue *Cree(Scene &scene, CadreFenetre &cadre, QWidget &principale) {
  if (cadre.nom == kFenetreCiel) {
    return new FenetreCiel(scene, &principale);
  }
  if (cadre.nom == kFenetreImpression) {
    return new FenetreImpression(scene, &principale);
  }
  if (cadre.nom == kFenetreRegistre) {
    return new FenetreRegistre(scene, &principale);
  }
  return cadre.moindreLargeur > 0 ? new FenetreEtiree(scene, cadre, &principale)
                                  : new Dialogue(scene, cadre, &principale);
}

} // namespace

void Libres::Accorde() {
  Bureau &bureau = scene_.bureau();
  const std::string_view devant = std::exchange(bureau.premierPlan, {});
  QWidget *appelee = devant == kFenetreDonnees ? &principale_ : nullptr;
  for (CadreFenetre *cadre : FenetresLibres(bureau)) {
    Dialogue *fenetre = ouvertes_.value(cadre);
    if (!cadre->visible && fenetre != nullptr) {
      ouvertes_.remove(cadre);
      fenetre->GardeSaTaille();
      scene_.Congedie(*fenetre);
    } else if (cadre->visible && fenetre == nullptr && !bureau.termine) {
      fenetre = Cree(scene_, *cadre, principale_);
      ouvertes_.insert(cadre, fenetre);
      fenetre->MontreACote();
    }
    appelee = cadre->visible && devant == cadre->nom ? fenetre : appelee;
  }
  if (appelee != nullptr && appelee->isVisible()) {
    appelee->raise();
    appelee->activateWindow();
  }
}

} // namespace velmaris::qt
