#include "shell/qt/widgets/Scene.hpp"

#include "shell/Reprise.hpp"
#include "shell/Sortie.hpp"
#include "shell/complements/Verification.hpp"
#include "shell/ecran/Echelle.hpp"
#include "shell/ecran/Statut.hpp"
#include "shell/exercice/EvenementsExercice.hpp"
#include "shell/papier/Papier.hpp"
#include "shell/point/Point.hpp"
#include "shell/preparation/Preparation.hpp"
#include "shell/qt/peinture/Apparat.hpp"
#include "shell/qt/peinture/Apparence.hpp"
#include "shell/qt/peinture/Grandeur.hpp"
#include "shell/qt/widgets/Rendu.hpp"
#include "shell/registre/Registre.hpp"
#include "shell/serie/Serie.hpp"
#include "shell/visee/ChampsJuges.hpp"

#include <QApplication>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace velmaris::qt {

void Scene::Joue(const std::function<void()> &evenement) {
  ++jeux_;
  try {
    evenement();
    Accorde();
  } catch (const std::exception &erreur) {
    bureau_.termine = true;
    Secours(bureau_, erreur);
    QApplication::exit(1);
  }
  --jeux_;
  SupprimeRetirees();
}

/// Does something to each renderer; one that goes meanwhile is passed over.
void Scene::PourChaqueRendu(const std::function<void(Rendu &)> &geste) {
  for (Rendu *rendu : std::vector(rendus_)) {
    if (std::count(rendus_.begin(), rendus_.end(), rendu) > 0) {
      geste(*rendu);
    }
  }
}

void Scene::Congedie(QWidget &fenetre) {
  fenetre.hide();
  retirees_.emplace_back(&fenetre);
  SupprimeRetirees();
}

/// Deletes what has been put away, from the event loop and while nothing plays. The toolkit's own deferred deletion
/// would come in any nested loop that lies less deep than the event that asked for it.
void Scene::SupprimeRetirees() {
  if (jeux_ > 0 || retirees_.empty()) {
    return;
  }
  QTimer::singleShot(0, &contexte_, [this] {
    if (jeux_ == 0) {
      for (const QPointer<QWidget> &fenetre : std::exchange(retirees_, {})) {
        delete fenetre.data();
      }
    }
  });
}

const Controle *Scene::Ecart() const {
  for (const Rendu *rendu : rendus_) {
    if (const Controle *ecart = rendu->Ecart()) {
      return ecart;
    }
  }
  return nullptr;
}

void Scene::AccordePointeur() const {
  const bool occupe = QApplication::overrideCursor() != nullptr;
  if (bureau_.pointeurOccupe && !occupe) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else if (!bureau_.pointeurOccupe && occupe) {
    QApplication::restoreOverrideCursor();
  }
}

void Scene::Accorde() {
  AccordePointeur();
  encore_ = true;
  if (accorde_) {
    return;
  }
  accorde_ = true;
  // Moving the focus, or hiding what has it, is an event in its turn.
  while (encore_) {
    encore_ = false;
    JugeChamps(bureau_);
    AccordeVerification(bureau_);
    AccordePoint(bureau_); // it may read the log
    AccordeRegistre(bureau_);
    AccordePreparation(bureau_);
    AccordeSerie(bureau_);
    AccordeExercice(bureau_);
    AccordePapier(bureau_);
    AccordeStatut(bureau_);
    if (EclairageVu() != bureau_.eclairage) {
      AccordeEclairage(bureau_.eclairage);
      AccordeIcone();
    }
    AccordeGrandeur(EchelleFenetre(bureau_));
    AccordeLangue(bureau_.FichierLangue == "\\FR.txt");
    PourChaqueRendu([](Rendu &rendu) { rendu.Accorde(); });
    if (const Controle *voulu = std::exchange(bureau_.focus, nullptr)) {
      bool donne = false;
      PourChaqueRendu([&](Rendu &rendu) { donne = rendu.DonneFocus(*voulu) || donne; });
      if (!donne && bureau_.focus == nullptr) {
        bureau_.focus = voulu; // its window isn't there yet
      }
    }
  }
  accorde_ = false;
  PourChaqueRendu([](Rendu &rendu) { rendu.AccordeFenetre(); });
  if (bureau_.termine) {
    QApplication::quit();
  } else {
    GardeSession(bureau_);
  }
}

} // namespace velmaris::qt
