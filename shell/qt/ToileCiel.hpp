#pragma once

#include "shell/fenetres/Ciel.hpp"
#include "shell/qt/Toile.hpp"

#include <vector>

namespace velmaris::qt {

/// The sky's chart: lines and scale as recorded, and over them the bodies, which it paints from their controls without
/// a widget for each. A label that would overprint a greater one is left out until the pointer finds it.
class ToileCiel : public Toile {
public:
  ToileCiel(const Ciel &ciel, QWidget *parent);

  /// A mark, a label or a picture that lies on it.
  void Ajoute(Controle &corps);

  void Accorde() override;

  /// The label or picture of the body at a place, in the stacking order; the mark of a star or a planet stands for its
  /// label, and its disc goes before the labels of other stars.
  /// @return null for none
  Controle *CorpsSous(QPointF pixel) const;

  std::function<void(Controle &)> auSurvol; ///< the pointer is over a body
  std::function<void(Controle &)> auChoix;  ///< the left button goes down on one
  /// A key on the chart; @return whether it does something
  std::function<bool(int)> auTouche;

protected:
  bool event(QEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void mouseMoveEvent(QMouseEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void focusInEvent(QFocusEvent *event) override;
  void focusOutEvent(QFocusEvent *event) override;
  void paintEvent(QPaintEvent *event) override;

private:
  QRectF Zone(const Controle &corps) const;
  Controle *EtiquetteDe(const Controle &marque) const;
  QColor Encre(Couleur couleur) const;
  void PeintMarque(QPainter &painter, const Controle &marque) const;
  void PeintImage(QPainter &painter, const Controle &astre) const;
  void PeintEtiquette(QPainter &painter, const Controle &etiquette) const;
  std::vector<const Controle *> EtiquettesLisibles() const;

  const Ciel &ciel_;
  std::vector<Controle *> corps_;
  std::vector<Controle> vus_; ///< the bodies as they are painted
};

} // namespace velmaris::qt
