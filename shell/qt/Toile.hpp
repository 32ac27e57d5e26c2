#pragma once

#include "foundations/Surface.hpp"

#include <QImage>
#include <QLineF>
#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

class QPainter;

namespace velmaris::qt {

/// The unit of all places: 1440 to the inch.
inline constexpr double kTwipsParPouce = 1440.0;

/// Pixels of the toolkit per 1/1440 inch on a widget's screen.
double PixelsParTwip(const QWidget &widget);

/// The font of a surface as the toolkit's.
QFont PoliceQt(const Police &police);

/// A colour as the toolkit's.
QColor CouleurQt(Couleur couleur);

/// How a surface is painted.
struct Maniere {
  bool nuit = false;          ///< in red on black
  bool textesEntiers = false; ///< a text that the lower edge would cut is moved up
  double pixel = 1.0;         ///< painter's units that a line of width 1 takes
};

/// Paints part of what is recorded on a surface, lines first and texts over them. A coloured text that would
/// overprint one before it, or one that insists, is left out: so the figures of a fine grid and the names of cities
/// stay readable.
/// @param painter    its unit is the toolkit's pixel, or a printer's
/// @param facteur    units per 1/1440 inch
/// @param premier    first recorded trace to paint
/// @param maniere    how, beyond what is recorded
/// @param figures    places of the coloured figures on the image, of this call and those before
void PeintTraces(QPainter &painter, const Surface &surface, double facteur, std::size_t premier,
                 std::vector<QRectF> &figures, Maniere maniere = {});

/// Shows a recorded surface: it is painted once into an image at the screen's resolution, then only what is appended.
class Toile : public QWidget {
public:
  Toile(const Surface &surface, QWidget *parent);

  /// Brings the image in line with the record.
  virtual void Accorde();

  /// A line that is seen over the image without being part of it, in 1/1440 inch.
  void MontreElastique(const std::optional<QLineF> &ligne);
  /// The place on the surface in the toolkit's pixels.
  QPoint PixelDe(Point point) const;

  /// Mouse over the surface: left button down, and the place in 1/1440 inch. While the right button is down, a
  /// tremble of the hand is no move.
  std::function<void(bool, double, double)> auMouvement;
  /// A button goes down, after a move to that place: the left one or else the right one.
  std::function<void(bool, double, double)> auPresse;
  /// The left button comes up.
  std::function<void()> auRelache;
  /// The wheel with the control key: notches, away from the user above 0.
  std::function<void(int)> auZoom;
  std::function<void()> auClic;

protected:
  void paintEvent(QPaintEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void mouseMoveEvent(QMouseEvent *event) override;
  void mouseReleaseEvent(QMouseEvent *event) override;
  void wheelEvent(QWheelEvent *event) override;

  bool textesEntiers_ = false; ///< a text that the lower edge would cut is moved up

private:
  void Mouvement(const QMouseEvent &event) const;

  const Surface &surface_;
  QImage image_;
  std::uint64_t effacements_ = 0;
  std::size_t traces_ = 0;
  std::vector<QRectF> figures_;
  std::size_t points_ = 0; ///< of the last trace painted, which may have grown since
  bool nuit_ = false;      ///< the image is painted by night
  std::optional<QLineF> elastique_;
  QPointF presseDroite_; ///< where the right button went down
  int molette_ = 0;      ///< eighths of a degree that make no whole notch yet
};

} // namespace velmaris::qt
