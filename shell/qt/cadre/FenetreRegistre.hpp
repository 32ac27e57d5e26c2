#pragma once

#include "shell/qt/cadre/Dialogue.hpp"

namespace velmaris::qt {

/// The log's window: made larger it shows more rows, and sights' files dropped on it come in.
class FenetreRegistre : public Dialogue {
public:
  /// Makes the widgets; the core has opened the window.
  FenetreRegistre(Scene &scene, QWidget *parent);

protected:
  double EchelleVoulue() const override;
  void Redimensionne() override;
  void resizeEvent(QResizeEvent *event) override;
  void dragEnterEvent(QDragEnterEvent *event) override;
  void dropEvent(QDropEvent *event) override;

private:
  Bureau &bureau_;
  /// A new size is being laid out: one that comes meanwhile waits. Until the window is made no event may be played:
  /// the window isn't known yet, and would be made again.
  bool enTaille_ = true;
};

} // namespace velmaris::qt
