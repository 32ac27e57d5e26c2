#pragma once

#include "complements/papier/Feuillet.hpp"
#include "shell/qt/widgets/Adaptateur.hpp"

#include <QPointF>
#include <QWidget>

#include <memory>

namespace velmaris::qt {

/// A printed page as it will be: whole, or larger around a place, drawn along by the mouse and the arrow keys.
class Papier : public QWidget {
public:
  explicit Papier(QWidget *parent);

  void Montre(std::shared_ptr<const Feuillet> feuillet);
  const std::shared_ptr<const Feuillet> &feuillet() const { return feuillet_; }
  /// Whole again, or as large as on paper and no smaller than twice the whole.
  /// @param autour  the place of the widget, in pixels, that stays where it is
  void Grossit(QPointF autour);
  bool gros() const { return gros_; }

protected:
  void paintEvent(QPaintEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void mouseMoveEvent(QMouseEvent *event) override;
  void mouseReleaseEvent(QMouseEvent *event) override;
  void wheelEvent(QWheelEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;

private:
  double FacteurEntier() const;
  double Facteur() const;
  QPointF Coin() const;
  void Glisse(QPointF pixels);

  std::shared_ptr<const Feuillet> feuillet_;
  bool gros_ = false;
  QPointF milieu_; ///< of the page, 1/1440 inch, in the middle of the widget where it is large
  QPointF prise_;  ///< where the mouse took it, pixels
  bool tire_ = false;
};

/// The adapter of a page.
std::unique_ptr<Adaptateur> CreePapier(QWidget *parent);

} // namespace velmaris::qt
