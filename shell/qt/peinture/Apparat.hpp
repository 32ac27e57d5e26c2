#pragma once

#include "shell/bureau/Bureau.hpp"

#include <QIcon>
#include <QProxyStyle>

namespace velmaris::qt {

/// The look of all the toolkit draws, by day, by dusk and by night.
class Apparat : public QProxyStyle {
public:
  Apparat();

  Eclairage eclairage() const { return eclairage_; }
  void PoseEclairage(Eclairage eclairage) { eclairage_ = eclairage; }
  bool contraste() const { return contraste_; }
  void PoseContraste(bool contraste) { contraste_ = contraste; }
  double grandeur() const { return grandeur_; }
  void PoseGrandeur(double grandeur) { grandeur_ = grandeur; }

  QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contenu,
                         const QWidget *widget) const override;
  int pixelMetric(PixelMetric mesure, const QStyleOption *option, const QWidget *widget) const override;

  void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
  void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                   const QWidget *widget) const override;
  void drawComplexControl(ComplexControl element, const QStyleOptionComplex *option, QPainter *painter,
                          const QWidget *widget) const override;
  QIcon standardIcon(StandardPixmap nom, const QStyleOption *option, const QWidget *widget) const override;

private:
  bool nuit() const { return eclairage_ == Eclairage::Nuit; }

  Eclairage eclairage_ = Eclairage::Jour;
  bool contraste_ = false; ///< the desktop wants a high one
  double grandeur_ = 1.0;  ///< of what lies in no window with a scale of its own
};

/// By what light windows are painted now.
Eclairage EclairageVu();

/// Whether that is the night's.
bool EstNuit();

/// Has all windows painted by that light.
void AccordeEclairage(Eclairage eclairage);

/// Has all windows painted with a high contrast, or no longer.
void AccordeContraste(bool contraste);

} // namespace velmaris::qt
