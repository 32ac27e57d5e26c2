#pragma once

#include <QColor>
#include <QIcon>
#include <QImage>
#include <QPalette>
#include <QProxyStyle>

namespace velmaris::qt {

/// The colours of what paints its own background.
struct Teintes {
  QColor fenetre; ///< of a window
  QColor carte;   ///< of a module
  QColor bord;    ///< around it
  QColor bande;   ///< under its title
};

/// By day or by night.
const Teintes &TeintesDe(bool nuit);

/// The toolkit's colours by day or by night.
QPalette PaletteDe(bool nuit);

/// The night shade of a background: white is black, a strong colour leaves a trace of red.
QColor FondDeNuit(const QColor &fond);

/// The night shade of ink on a background: the more it stands out by day, the brighter the red. Ink in the background's
/// own colour is as little to be seen as by day.
QColor EncreDeNuit(const QColor &encre, const QColor &fond = Qt::white);

/// A picture in its night shades.
/// @param fond  the ground that it is seen on by day
void RougitImage(QImage &image, const QColor &fond = Qt::white);

/// The look of all the toolkit draws, by day and by night.
class Apparat : public QProxyStyle {
public:
  Apparat();

  bool nuit() const { return nuit_; }
  void PoseNuit(bool nuit) { nuit_ = nuit; }
  double grandeur() const { return grandeur_; }
  void PoseGrandeur(double grandeur) { grandeur_ = grandeur; }

  int pixelMetric(PixelMetric mesure, const QStyleOption *option, const QWidget *widget) const override;

  void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
  void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                   const QWidget *widget) const override;
  void drawComplexControl(ComplexControl element, const QStyleOptionComplex *option, QPainter *painter,
                          const QWidget *widget) const override;
  QIcon standardIcon(StandardPixmap nom, const QStyleOption *option, const QWidget *widget) const override;

private:
  bool nuit_ = false;
  double grandeur_ = 1.0; ///< of what lies in no window with a scale of its own
};

/// Whether windows are painted by night now.
bool EstNuit();

/// Has all windows painted by day or by night.
void AccordeNuit(bool nuit);

} // namespace velmaris::qt
