#pragma once

#include "shell/qt/cadre/Dialogue.hpp"

namespace velmaris::qt {

/// A window that its user stretches: its controls take their shares of what there is more. On a small screen it opens
/// smaller, and where even its least size has no room, at a smaller scale.
class FenetreEtiree : public Dialogue {
public:
  /// Makes the widgets; the core has opened the window.
  /// @param genre  what it is to the desktop: a window of its own may be covered by the main one, a dialog stays over
  /// it
  FenetreEtiree(Scene &scene, CadreFenetre &cadre, QWidget *parent, Qt::WindowFlags genre = Qt::Dialog);

protected:
  double EchelleVoulue() const override;
  void Redimensionne() override;
  void resizeEvent(QResizeEvent *event) override;

private:
  QSize PlusPetite() const;
  void Dispose(double largeur, double hauteur);

  CadreFenetre &record_;
};

} // namespace velmaris::qt
