#include "shell/qt/Scene.hpp"

#include "shell/Sortie.hpp"
#include "shell/qt/Apparence.hpp"
#include "shell/qt/Nuit.hpp"
#include "shell/qt/Rendu.hpp"

#include <QApplication>

#include <utility>

namespace velmaris::qt {

void Scene::Joue(const std::function<void()> &evenement) {
  try {
    evenement();
  } catch (const std::exception &erreur) {
    bureau_.termine = true;
    Secours(bureau_, erreur);
    QApplication::exit(1);
    return;
  }
  Accorde();
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
    AccordeNuit(bureau_.nuit);
    AccordeLangue(bureau_.FichierLangue == "\\FR.txt");
    const std::vector<Rendu *> rendus = rendus_;
    for (Rendu *rendu : rendus) {
      rendu->Accorde();
    }
    if (const Controle *voulu = std::exchange(bureau_.focus, nullptr)) {
      bool donne = false;
      for (Rendu *rendu : rendus) {
        donne = rendu->DonneFocus(*voulu) || donne;
      }
      if (!donne && bureau_.focus == nullptr) {
        bureau_.focus = voulu; // its window isn't there yet
      }
    }
  }
  accorde_ = false;
  for (const std::vector<Rendu *> rendus = rendus_; Rendu * rendu : rendus) {
    rendu->AccordeFenetre();
  }
  if (bureau_.termine) {
    QApplication::quit();
  }
}

} // namespace velmaris::qt
