#pragma once

#include "foundations/PlaceTextes.hpp"
#include "foundations/Surface.hpp"
#include "shell/bureau/Bureau.hpp"
#include "shell/qt/peinture/Grandeur.hpp"
#include "shell/qt/peinture/Traces.hpp"

#include <QImage>
#include <QLineF>
#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

namespace velmaris::qt {

/// Shows a recorded surface: lines are painted once into an image at the screen's resolution, then only what is
/// appended; the texts, which give way to one another, over a copy of it. A bare surface takes no image.
class Toile : public QWidget {
public:
  Toile(const Surface &surface, QWidget *parent);

  /// Brings the image in line with the record.
  virtual void Accorde();

  /// Texts leave room for what is written upon the surface by others, with or without words at the moment.
  /// @param inscription  a widget on this one, which lives as long
  void Reserve(const QWidget &inscription);

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
  std::vector<ZoneTexte> Reserves(double facteur) const;
  void PeintToutes(double facteur, Maniere maniere);
  bool EstNue() const;
  void AccordeNue(bool change);
  void Recopie();
  void PeintDessus(double facteur, Maniere maniere);

  const Surface &surface_;
  QImage lignes_; ///< filled shapes, lines and circles
  QImage image_;  ///< and the layer and the texts over them; the same one where there are none
  std::uint64_t effacements_ = 0;
  std::size_t traces_ = 0;
  std::vector<TextePlace> textes_;
  std::vector<const QWidget *> inscriptions_; ///< that texts leave room for
  MesuresTextes mesures_;
  double facteur_ = 0.0;                  ///< pixels per 1/1440 inch in the image
  std::size_t points_ = 0;                ///< of the last trace painted, which may have grown since
  std::vector<Aire> aires_;               ///< filled shapes in the image
  std::vector<Etiquette> etiquettes_;     ///< names of lines in it, none where they aren't to be seen
  Calque calque_;                         ///< over the lines in it
  Eclairage eclairage_ = Eclairage::Jour; ///< by which the image is painted
  std::optional<QLineF> elastique_;
  QPointF presseDroite_; ///< where the right button went down
  int molette_ = 0;      ///< eighths of a degree that make no whole notch yet
};

} // namespace velmaris::qt
