#pragma once

#include "shell/qt/Rendu.hpp"

#include <QDialog>

namespace velmaris::qt {

/// A window over the main one, shown until the core hides it. Return presses its default button, Escape and the close
/// button the one that gives up.
class Dialogue : public QDialog {
public:
  /// Makes the widgets.
  /// @param cadre  the window's record; it must outlive this
  Dialogue(Scene &scene, CadreFenetre &cadre, QWidget *parent);

  /// Shows it and waits until it is hidden.
  void Montre();

  void reject() override;

protected:
  void changeEvent(QEvent *event) override;
  void paintEvent(QPaintEvent *event) override;

private:
  Scene &scene_;
  CadreFenetre &cadre_;
  Rendu rendu_;
};

} // namespace velmaris::qt
