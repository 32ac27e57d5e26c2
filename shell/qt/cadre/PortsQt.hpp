#pragma once

#include "shell/bureau/Bureau.hpp"
#include "shell/qt/widgets/Atelier.hpp"

#include <vector>

class QWidget;

namespace velmaris::qt {

class Scene;

/// Answers what the core asks of the outside with the toolkit's boxes, dialogs and trash, and the system's names of
/// days and months. With a system that names no language the program's own is taken.
/// Boxes that only tell something wait until the window is there, so that the program starts at once.
class Boites {
public:
  /// @param bureau  its ports are set; it must outlive this
  explicit Boites(Bureau &bureau);
  /// The main window is there: boxes and dialogs lie over it, and the boxes that have waited are shown.
  void Ouvre(Scene &scene, QWidget &fenetre);

private:
  bool Montre(const Boite &boite);

  Bureau &bureau_;
  QWidget *fenetre_ = nullptr;
  std::vector<Boite> attente_;
  Atelier atelier_; ///< what works beside the interface
};

} // namespace velmaris::qt
