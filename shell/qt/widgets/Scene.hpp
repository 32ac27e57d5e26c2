#pragma once

#include "shell/bureau/Bureau.hpp"

#include <QPointer>
#include <QWidget>

#include <exception>
#include <functional>
#include <vector>

namespace velmaris::qt {

class Rendu;

/// The program on the screen: its windows' renderers, and the one way an event goes into the core.
class Scene {
public:
  explicit Scene(Bureau &bureau) : bureau_(bureau) {}

  Bureau &bureau() { return bureau_; }

  /// Runs an event of the core, then Accorde; a failure that nothing caught ends the program with its report.
  void Joue(const std::function<void()> &evenement);

  /// Brings all widgets of all windows in line with their controls, and ends the program once the exit sequence has
  /// run.
  void Accorde();

  /// The pointer tells whether the program works.
  void AccordePointeur() const;

  /// Hides a window, and deletes it once no event of the core is being played: what plays may come from that window,
  /// and let the interface live meanwhile.
  void Congedie(QWidget &fenetre);

  /// A control, in any window, whose widget shows something else than it holds.
  /// @return null when all agree
  const Controle *Ecart() const;

  void Ajoute(Rendu &rendu) { rendus_.push_back(&rendu); }
  void Retire(const Rendu &rendu) { std::erase(rendus_, &rendu); }

private:
  void PourChaqueRendu(const std::function<void(Rendu &)> &geste);
  void SupprimeRetirees();

  Bureau &bureau_;
  std::vector<Rendu *> rendus_;
  std::vector<QPointer<QWidget>> retirees_; ///< windows put away, still to be deleted
  QObject contexte_;                        ///< of the deletion to come, which goes with the scene
  int jeux_ = 0;                            ///< events that are being played, one within the other
  bool accorde_ = false;
  bool encore_ = false; ///< something changed while widgets were brought in line
};

} // namespace velmaris::qt
