#pragma once

#include "shell/ciel/LabelsCiel.hpp"
#include "shell/fenetres/Ciel.hpp"
#include "shell/qt/peinture/Toile.hpp"

#include <vector>

namespace velmaris::qt {

/// The sky's chart: lines and scale as recorded, and over them the bodies, which it paints from their controls without
/// a widget for each. What is painted is what the pointer finds.
class ToileCiel : public Toile {
public:
  ToileCiel(const Ciel &ciel, QWidget *parent);

  /// A mark, a label or a picture that lies on it.
  void Ajoute(Controle &corps);

  void Accorde() override;

  /// The body at a place.
  ciel::AstreTrouve CorpsSous(QPointF pixel) const;

  /// The pointer is over a body: its label or picture, and what lies under the pointer
  std::function<void(Controle &, Controle &)> auSurvol;
  /// What is told of a body beside its name
  std::function<std::string(const Controle &)> auAide;
  std::function<void(Controle &)> auChoix; ///< the left button goes down on one
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
  std::vector<ZoneTexte> Pris() const;
  QRectF Zone(const Controle &corps) const;
  QRectF Zone(const ZoneTexte &zone) const;
  QColor Encre(Couleur couleur) const;
  void PeintMarque(QPainter &painter, const Controle &marque) const;
  void PeintImage(QPainter &painter, const Controle &astre) const;
  void PeintEtiquette(QPainter &painter, const Controle &etiquette, const QRectF &zone) const;

  const Ciel &ciel_;
  std::vector<Controle *> corps_;
  std::vector<Controle> vus_; ///< the bodies as they are painted
};

} // namespace velmaris::qt
