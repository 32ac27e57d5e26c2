#pragma once

#include <QFont>

class QPaintDevice;
class QWidget;

namespace velmaris::qt {

/// The unit of all places: 1440 to the inch.
inline constexpr double kTwipsParPouce = 1440.0;

/// A window that is laid out by a scale of its own.
class Echelonnee {
public:
  virtual ~Echelonnee() = default;
  Echelonnee(const Echelonnee &) = delete;
  Echelonnee &operator=(const Echelonnee &) = delete;
  Echelonnee(Echelonnee &&) = delete;
  Echelonnee &operator=(Echelonnee &&) = delete;

  /// Pixels of the toolkit per 15/1440 inch.
  double echelle() const { return echelle_; }

protected:
  explicit Echelonnee(double echelle) : echelle_(echelle) {}
  void PoseEchelle(double echelle) { echelle_ = echelle; }

private:
  double echelle_;
};

/// Pixels of the toolkit per 1/1440 inch in a widget's window; in one that has no scale, by its screen's own measure.
double PixelsParTwip(const QWidget &widget);

/// How much larger everything is in a widget's window than where a pixel counts 15 units.
double Grandeur(const QWidget &widget);

/// Pixels of the toolkit that so many at scale 1 take in a widget's window.
int Pixels(double nombre, const QWidget &widget);

/// A font brought to a size.
/// @param points         of 20/1440 inch
/// @param pixelsParTwip  by which it is painted
/// @param support        what it is painted on
QFont PoliceA(QFont police, double points, double pixelsParTwip, const QPaintDevice &support);

/// How large menus, boxes and tool tips are, as a multiple of the toolkit's own size.
void AccordeGrandeur(double grandeur);

} // namespace velmaris::qt
