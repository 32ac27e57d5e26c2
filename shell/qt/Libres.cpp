#include "shell/qt/Libres.hpp"

#include "shell/qt/Dialogue.hpp"
#include "shell/qt/FenetreCiel.hpp"

#include <utility>

namespace velmaris::qt {

void Libres::Accorde() {
  Bureau &bureau = scene_.bureau();
  const std::string_view devant = std::exchange(bureau.premierPlan, {});
  QWidget *appelee = devant == kFenetreDonnees ? &principale_ : nullptr;
  for (CadreFenetre *cadre : FenetresLibres(bureau)) {
    Dialogue *fenetre = ouvertes_.value(cadre);
    if (!cadre->visible && fenetre != nullptr) {
      ouvertes_.remove(cadre);
      fenetre->hide();
      fenetre->deleteLater();
    } else if (cadre->visible && fenetre == nullptr && !bureau.termine) {
      fenetre = cadre->nom == kFenetreCiel ? new FenetreCiel(scene_, &principale_)
                                           : new Dialogue(scene_, *cadre, &principale_);
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
