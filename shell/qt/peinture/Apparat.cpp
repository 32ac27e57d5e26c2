#include "shell/qt/peinture/Apparat.hpp"

#include "shell/qt/peinture/Grandeur.hpp"
#include "shell/qt/peinture/Palette.hpp"

#include <QApplication>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <QToolTip>

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace velmaris::qt {
namespace {

constexpr int kPlusVif = 195;       ///< red of the brightest of what the toolkit draws by night
constexpr int kBordNuit = 78;       ///< red of the frames by night
constexpr double kColonneMenu = 32; ///< pixels beside a menu's captions, at scale 1
constexpr int kMarge = 3;           ///< pixels that the toolkit may draw beyond a control

QColor Rouge(double valeur) { return {static_cast<int>(std::lround(std::clamp(valeur, 0.0, 255.0))), 0, 0}; }

/// Leaves of what was drawn its red, and of white and grey their brightness as red.
void Rougeoie(QImage &image) {
  for (int y = 0; y < image.height(); ++y) {
    auto *ligne = reinterpret_cast<QRgb *>(image.scanLine(y)); // NOLINT(*-reinterpret-cast)
    for (QRgb &c : std::span(ligne, static_cast<std::size_t>(image.width()))) {
      const int vif = std::max({qRed(c), qGreen(c), qBlue(c)});
      c = qRgba(std::min(vif, kPlusVif * qAlpha(c) / 255), 0, 0, qAlpha(c));
    }
  }
}

/// Has something drawn apart, and puts it in its place in red.
template <class Dessin> void Dessine(const QStyleOption &option, QPainter &painter, Dessin &&dessin) {
  const QRect zone = option.rect.adjusted(-kMarge, -kMarge, kMarge, kMarge);
  if (zone.isEmpty()) {
    return;
  }
  // By what it is painted at: a window that is stretched, or put into a picture, has another density than its widgets.
  const double densite = std::sqrt(std::fabs(painter.deviceTransform().determinant()));
  const QSizeF pixels = QSizeF(zone.size()) * densite;
  QImage image(static_cast<int>(std::ceil(pixels.width())), static_cast<int>(std::ceil(pixels.height())),
               QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(densite);
  image.fill(Qt::transparent);
  QPainter apart(&image);
  apart.translate(-zone.topLeft());
  apart.setFont(painter.font());
  apart.setPen(painter.pen());
  apart.setBrush(painter.brush());
  apart.setRenderHints(painter.renderHints());
  dessin(apart);
  apart.end();
  Rougeoie(image);
  painter.drawImage(zone.topLeft(), image);
}

/// The frames that the toolkit would draw darker than a dark ground.
struct Bords {
  QColor bord;
  QColor clavier; ///< where the keyboard is
  QColor groupe;
};

Bords BordsDe(Eclairage eclairage) {
  return eclairage == Eclairage::Nuit ? Bords{Rouge(kBordNuit), Rouge(150), Rouge(46)}
                                      : Bords{{98, 107, 118}, {110, 168, 220}, {70, 78, 88}};
}

/// The frame around what has the keyboard, by night: the toolkit's own lays a veil over the words in it.
void CadreDuClavier(const QStyleOption &option, QPainter &painter) {
  if (!option.state.testFlag(QStyle::State_KeyboardFocusChange)) {
    return;
  }
  painter.save();
  painter.setBrush(Qt::NoBrush);
  painter.setPen(BordsDe(Eclairage::Nuit).clavier);
  painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
  painter.restore();
}

void Borde(QStyle::PrimitiveElement element, const QStyleOption &option, QPainter &p, const Bords &bords) {
  p.save();
  p.setBrush(Qt::NoBrush);
  p.setPen(option.state.testFlag(QStyle::State_HasFocus) ? bords.clavier : bords.bord);
  const QRect bord = option.rect.adjusted(0, 0, -1, -1);
  switch (element) {
  case QStyle::PE_FrameLineEdit:
  case QStyle::PE_Frame:
  case QStyle::PE_FrameMenu:
  case QStyle::PE_PanelTipLabel:
  case QStyle::PE_IndicatorCheckBox:
    p.drawRect(bord);
    break;
  case QStyle::PE_PanelButtonCommand:
    p.setRenderHint(QPainter::Antialiasing);
    p.drawRoundedRect(QRectF(bord).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
    break;
  case QStyle::PE_FrameGroupBox:
    p.setPen(bords.groupe);
    p.drawRect(bord);
    break;
  case QStyle::PE_IndicatorRadioButton:
    p.setRenderHint(QPainter::Antialiasing);
    p.drawEllipse(QRectF(bord).adjusted(0.5, 0.5, -0.5, -0.5));
    break;
  default:
    break;
  }
  p.restore();
}

/// A picture of the toolkit's own, in red.
QIcon IconeRougie(const QIcon &icone) {
  QIcon rouge;
  for (const int cote : {16, 24, 32, 48, 64}) {
    QImage image = icone.pixmap(cote).toImage();
    TeinteImage(Eclairage::Nuit, image);
    rouge.addPixmap(QPixmap::fromImage(image));
  }
  return rouge;
}

void PosePalette(const Apparat &apparat) {
  const QPalette palette = PaletteDe(apparat.eclairage(), apparat.contraste());
  QApplication::setPalette(palette);
  QToolTip::setPalette(palette);
}

} // namespace

Apparat::Apparat() : QProxyStyle(QStyleFactory::create("Fusion")) {}

/// The column of a menu's check marks grows with them; the toolkit reckons with its own and would cut the longest
/// entry.
QSize Apparat::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contenu,
                                const QWidget *widget) const {
  QSize taille = QProxyStyle::sizeFromContents(type, option, contenu, widget);
  if (type == CT_MenuItem) {
    taille.rwidth() += static_cast<int>(std::lround(std::max(0.0, grandeur_ - 1) * kColonneMenu));
  }
  return taille;
}

/// Marks, bars and the room beside them grow with the texts; frames stay a hair line.
int Apparat::pixelMetric(PixelMetric mesure, const QStyleOption *option, const QWidget *widget) const {
  const int pixels = QProxyStyle::pixelMetric(mesure, option, widget);
  const auto *fenetre = widget == nullptr ? nullptr : dynamic_cast<const Echelonnee *>(widget->window());
  const double grandeur = fenetre == nullptr ? grandeur_ : fenetre->echelle();
  switch (mesure) {
  case PM_IndicatorWidth:
  case PM_IndicatorHeight:
  case PM_ExclusiveIndicatorWidth:
  case PM_ExclusiveIndicatorHeight:
  case PM_RadioButtonLabelSpacing:
  case PM_CheckBoxLabelSpacing:
  case PM_ScrollBarExtent:
  case PM_ScrollBarSliderMin:
  case PM_SliderThickness:
  case PM_SliderControlThickness:
  case PM_SliderLength:
  case PM_SmallIconSize:
  case PM_ButtonIconSize:
  case PM_MessageBoxIconSize:
    return std::max(1, static_cast<int>(std::lround(pixels * grandeur)));
  default:
    return pixels;
  }
}

void Apparat::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                            const QWidget *widget) const {
  if (nuit() && element == PE_FrameFocusRect) {
    CadreDuClavier(*option, *painter);
    return;
  }
  if (nuit()) {
    Dessine(*option, *painter, [&](QPainter &p) { QProxyStyle::drawPrimitive(element, option, &p, widget); });
  } else {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
  if (eclairage_ != Eclairage::Jour) {
    Borde(element, *option, *painter, BordsDe(eclairage_));
  }
}

void Apparat::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                          const QWidget *widget) const {
  if (!nuit()) {
    QProxyStyle::drawControl(element, option, painter, widget);
    return;
  }
  Dessine(*option, *painter, [&](QPainter &p) { QProxyStyle::drawControl(element, option, &p, widget); });
  const auto *entree = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
  if (element == CE_MenuItem && entree != nullptr && entree->menuItemType == QStyleOptionMenuItem::Separator) {
    const int y = option->rect.center().y();
    painter->fillRect(QRect(option->rect.left(), y, option->rect.width(), 1), Rouge(kBordNuit));
  }
}

void Apparat::drawComplexControl(ComplexControl element, const QStyleOptionComplex *option, QPainter *painter,
                                 const QWidget *widget) const {
  if (nuit()) {
    Dessine(*option, *painter, [&](QPainter &p) { QProxyStyle::drawComplexControl(element, option, &p, widget); });
  } else {
    QProxyStyle::drawComplexControl(element, option, painter, widget);
  }
  if (eclairage_ != Eclairage::Jour && element == CC_ComboBox) {
    Borde(PE_PanelButtonCommand, *option, *painter, BordsDe(eclairage_));
  }
}

QIcon Apparat::standardIcon(StandardPixmap nom, const QStyleOption *option, const QWidget *widget) const {
  const QIcon icone = QProxyStyle::standardIcon(nom, option, widget);
  return nuit() ? IconeRougie(icone) : icone;
}

Eclairage EclairageVu() {
  const auto *apparat = dynamic_cast<const Apparat *>(QApplication::style());
  return apparat == nullptr ? Eclairage::Jour : apparat->eclairage();
}

bool EstNuit() { return EclairageVu() == Eclairage::Nuit; }

void AccordeEclairage(Eclairage eclairage) {
  auto *apparat = dynamic_cast<Apparat *>(QApplication::style());
  if (apparat != nullptr && apparat->eclairage() != eclairage) {
    apparat->PoseEclairage(eclairage);
    PosePalette(*apparat);
  }
}

void AccordeContraste(bool contraste) {
  auto *apparat = dynamic_cast<Apparat *>(QApplication::style());
  if (apparat != nullptr && apparat->contraste() != contraste) {
    apparat->PoseContraste(contraste);
    PosePalette(*apparat);
  }
}

} // namespace velmaris::qt
