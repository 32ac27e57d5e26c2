#pragma once

#include "shell/qt/cadre/Dialogue.hpp"

#include <QTimer>

namespace velmaris::qt {

class ToileCiel;

/// The sky's window: its chart, its own clock, and a size that the user chooses.
class FenetreCiel : public Dialogue {
public:
  /// Makes the widgets; the core has opened the window.
  FenetreCiel(Scene &scene, QWidget *parent);

protected:
  void AccordeFenetre() override;
  double EchelleVoulue() const override;
  void Redimensionne() override;
  void keyPressEvent(QKeyEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;

private:
  void Branche();
  bool Touche(int touche);

  Bureau &bureau_;
  ToileCiel &toile_;
  QTimer horloge_;
};

} // namespace velmaris::qt
