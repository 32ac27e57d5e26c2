#pragma once

#include "foundations/Surface.hpp"

#include <QImage>
#include <QWidget>

#include <functional>
#include <vector>

class QPainter;

namespace velmaris::qt {

/// Pixels of the toolkit per 1/1440 inch on a widget's screen.
double PixelsParTwip(const QWidget &widget);

/// The font of a surface as the toolkit's.
QFont PoliceQt(const Police &police);

/// A colour as the toolkit's.
QColor CouleurQt(Couleur couleur);

/// Paints part of what is recorded on a surface, lines first and texts over them. A coloured figure that would
/// overprint the figure before it is left out: so the figures of a fine grid stay readable.
/// @param painter    scaled to the toolkit's pixels
/// @param facteur    pixels per 1/1440 inch
/// @param premier    first recorded trace to paint
/// @param figures    places of the coloured figures on the image, of this call and those before
void PeintTraces(QPainter &painter, const Surface &surface, double facteur, std::size_t premier,
                 std::vector<QRectF> &figures);

/// Shows a recorded surface: it is painted once into an image at the screen's resolution, then only what is appended.
class Toile : public QWidget {
public:
  Toile(const Surface &surface, QWidget *parent);

  /// Brings the image in line with the record.
  void Accorde();

  /// Mouse over the surface: left button down, and the place in 1/1440 inch.
  std::function<void(bool, double, double)> auMouvement;
  std::function<void()> auRelache;
  std::function<void()> auClic;

protected:
  void paintEvent(QPaintEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void mouseMoveEvent(QMouseEvent *event) override;
  void mouseReleaseEvent(QMouseEvent *event) override;

private:
  const Surface &surface_;
  QImage image_;
  std::uint64_t effacements_ = 0;
  std::size_t traces_ = 0;
  std::vector<QRectF> figures_;
  std::size_t points_ = 0; ///< of the last trace painted, which may have grown since
};

} // namespace velmaris::qt
