#pragma once

#include "shell/qt/cadre/FenetreEtiree.hpp"

namespace velmaris::qt {

/// The log's window: sights' files dropped on it come in.
class FenetreRegistre : public FenetreEtiree {
public:
  /// Makes the widgets; the core has opened the window.
  FenetreRegistre(Scene &scene, QWidget *parent);

protected:
  void dragEnterEvent(QDragEnterEvent *event) override;
  void dropEvent(QDropEvent *event) override;

private:
  Bureau &bureau_;
};

} // namespace velmaris::qt
