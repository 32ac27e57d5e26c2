#pragma once

#include "shell/qt/peinture/Grandeur.hpp"
#include "shell/qt/widgets/Rendu.hpp"

#include <QDialog>

namespace velmaris::qt {

/// A window over the main one, shown until the core hides it. Return presses its default button, or where it has none
/// the button with the focus; Escape and the close button press the one that gives up.
class Dialogue : public QDialog, public Echelonnee {
public:
  /// Makes the widgets.
  /// @param cadre     the window's record; it must outlive this
  /// @param etirable  the user may give it another size
  Dialogue(Scene &scene, CadreFenetre &cadre, QWidget *parent, bool etirable = false);

  /// Shows it and waits until it is hidden.
  void Montre();
  /// Shows it beside the main window, which goes on working.
  void MontreACote();

  void reject() override;

protected:
  Scene &scene() const { return scene_; }
  const Rendu &rendu() const { return rendu_; }
  /// Brings the window's size in line with a new scale.
  virtual void Redimensionne();
  /// Brings in line what the window has beside its controls.
  virtual void AccordeFenetre();
  /// Whether a change of the active window is this one's coming to the front.
  virtual bool VientDevant();
  void changeEvent(QEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void paintEvent(QPaintEvent *event) override;

private:
  bool Valide();
  void Echelonne();
  QSize Taille() const;

  Scene &scene_;
  CadreFenetre &cadre_;
  Rendu rendu_;
  bool etirable_;
  bool parDefaut_; ///< Return has a button of its own
};

} // namespace velmaris::qt
