#pragma once

#include <QHash>
#include <QWidget>

namespace velmaris {
struct CadreFenetre;
}

namespace velmaris::qt {

class Dialogue;
class Scene;

/// The windows that live beside the main one. Each is made when the core shows its frame, and goes when the core hides
/// it; its close button and Escape press what gives up in it, and the core decides.
class Libres {
public:
  /// @param principale  the main window, which they lie over
  Libres(Scene &scene, QWidget &principale) : scene_(scene), principale_(principale) {}

  /// Brings the windows in line with their frames, and to the front the one that asks for it.
  void Accorde();

private:
  Scene &scene_;
  QWidget &principale_;
  QHash<const CadreFenetre *, Dialogue *> ouvertes_; ///< the main window's children
};

} // namespace velmaris::qt
