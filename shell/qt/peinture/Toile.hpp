#pragma once

#include "foundations/PlaceTextes.hpp"
#include "foundations/Surface.hpp"
#include "shell/qt/peinture/Grandeur.hpp"

#include <QImage>
#include <QLineF>
#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

class QPainter;

namespace velmaris::qt {

/// The font of a surface as the toolkit's.
/// @param facteur  units of what is painted on, per 1/1440 inch
/// @param support  what is painted on
QFont PoliceQt(const Police &police, double facteur, const QPaintDevice &support);

/// Height of a surface's line of text in 1/1440 inch. It goes into the record, so it is measured by the screen's own
/// measure and not by the window's scale.
double Interligne(const Surface &surface, const QWidget &widget);

/// A colour as the toolkit's.
QColor CouleurQt(Couleur couleur);

/// How a surface is painted.
struct Maniere {
  bool nuit = false;  ///< in red on black
  double pixel = 1.0; ///< painter's units that a line of width 1 takes
};

/// Paints lines and circles of a surface.
/// @param painter  its unit is the toolkit's pixel, or a printer's
/// @param facteur  units per 1/1440 inch
/// @param premier  first recorded trace to paint
/// @param maniere  how, beyond what is recorded
void PeintLignes(QPainter &painter, const Surface &surface, double facteur, std::size_t premier, Maniere maniere);

/// The texts of a surface that are painted, and where, by the sizes that they have with a painter.
/// @param painter, facteur  as for PeintLignes
std::vector<TextePlace> TextesPeints(const QPainter &painter, const Surface &surface, double facteur);

/// Paints texts of a surface in given places.
/// @param painter, facteur, maniere  as for PeintLignes
void PeintTextes(QPainter &painter, const Surface &surface, double facteur, const std::vector<TextePlace> &textes,
                 Maniere maniere);

/// Paints what is recorded on a surface, lines first and over them the texts that are to be seen.
/// @param painter, facteur, maniere  as for PeintLignes
/// @return the texts painted, in 1/1440 inch
std::vector<TextePlace> PeintTraces(QPainter &painter, const Surface &surface, double facteur, Maniere maniere = {});

/// Shows a recorded surface: lines are painted once into an image at the screen's resolution, then only what is
/// appended; the texts, which give way to one another, over a copy of it.
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
  /// The mouse leaves the surface.
  std::function<void()> auSortie;
  /// A button goes down, after a move to that place: the left one or else the right one.
  std::function<void(bool, double, double)> auPresse;
  /// The left button comes up.
  std::function<void(Qt::MouseButton)> auRelache;
  /// The wheel with the control key: notches, away from the user above 0.
  std::function<void(int)> auZoom;
  std::function<void()> auClic;

protected:
  /// The surface's texts as they are painted.
  const std::vector<TextePlace> &textes() const { return textes_; }
  void paintEvent(QPaintEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void mouseMoveEvent(QMouseEvent *event) override;
  void mouseReleaseEvent(QMouseEvent *event) override;
  void wheelEvent(QWheelEvent *event) override;
  void leaveEvent(QEvent *event) override;

private:
  void Mouvement(const QMouseEvent &event) const;
  bool TexteDepuis(std::size_t premier) const;

  const Surface &surface_;
  QImage lignes_; ///< lines and circles
  QImage image_;  ///< and the texts over them
  std::uint64_t effacements_ = 0;
  std::size_t traces_ = 0;
  std::vector<TextePlace> textes_;
  double facteur_ = 0.0;   ///< pixels per 1/1440 inch in the image
  std::size_t points_ = 0; ///< of the last trace painted, which may have grown since
  bool nuit_ = false;      ///< the image is painted by night
  std::optional<QLineF> elastique_;
  QPointF presseDroite_; ///< where the right button went down
  int molette_ = 0;      ///< eighths of a degree that make no whole notch yet
};

} // namespace velmaris::qt
