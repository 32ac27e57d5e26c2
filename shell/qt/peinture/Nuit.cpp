#include "shell/qt/peinture/Nuit.hpp"

#include "shell/qt/peinture/Grandeur.hpp"

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

constexpr int kPlusVif = 196; ///< red of the brightest ink by night
constexpr int kBordNuit = 78; ///< red of the frames by night
constexpr double kVif = 85;   ///< red that a vivid colour has beyond that of its brightness
constexpr int kMarge = 3;     ///< pixels that the toolkit may draw beyond a control

QColor Rouge(double valeur) { return {static_cast<int>(std::lround(std::clamp(valeur, 0.0, 255.0))), 0, 0}; }

/// Brightness to the eye.
double Clarte(QRgb c) { return (0.30 * qRed(c) + 0.59 * qGreen(c) + 0.11 * qBlue(c)) / 255.0; }

/// How far a colour is from grey.
double Vivacite(QRgb c) {
  const auto [petit, grand] = std::minmax({qRed(c), qGreen(c), qBlue(c)});
  return (grand - petit) / 255.0;
}

/// Red of an ink on a light ground: black is the brightest; a vivid colour stays well over the ground.
double RougeSurClair(QRgb c) { return kPlusVif * (1 - Clarte(c)) + kVif * Vivacite(c) * Clarte(c); }

double RougeSurSombre(QRgb c) { return kPlusVif * Clarte(c) + kVif * Vivacite(c) * (1 - Clarte(c)); }

QPalette PaletteJour() {
  QPalette p(QColor(226, 231, 237), QColor(247, 248, 250));
  p.setColor(QPalette::WindowText, QColor(30, 36, 44));
  p.setColor(QPalette::ButtonText, QColor(30, 36, 44));
  p.setColor(QPalette::Base, Qt::white);
  p.setColor(QPalette::Text, Qt::black);
  p.setColor(QPalette::Highlight, QColor(31, 111, 178));
  p.setColor(QPalette::HighlightedText, Qt::white);
  p.setColor(QPalette::ToolTipBase, QColor(255, 252, 230));
  p.setColor(QPalette::ToolTipText, QColor(30, 36, 44));
  for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text}) {
    p.setColor(QPalette::Disabled, role, QColor(150, 158, 168));
  }
  return p;
}

QPalette PaletteNuit() {
  struct Role {
    QPalette::ColorRole role;
    int rouge;
  };
  constexpr std::array<Role, 20> kRoles = {{{QPalette::Window, 14},      {QPalette::WindowText, 185},
                                            {QPalette::Button, 34},      {QPalette::ButtonText, 185},
                                            {QPalette::Base, 0},         {QPalette::AlternateBase, 14},
                                            {QPalette::Text, kPlusVif},  {QPalette::BrightText, kPlusVif},
                                            {QPalette::Highlight, 60},   {QPalette::HighlightedText, kPlusVif},
                                            {QPalette::ToolTipBase, 24}, {QPalette::ToolTipText, 185},
                                            {QPalette::Link, kPlusVif},  {QPalette::LinkVisited, 150},
                                            {QPalette::Light, 60},       {QPalette::Midlight, 48},
                                            {QPalette::Mid, 40},         {QPalette::Dark, kBordNuit},
                                            {QPalette::Shadow, 0},       {QPalette::PlaceholderText, 120}}};
  QPalette p;
  for (const Role &r : kRoles) {
    p.setColor(QPalette::All, r.role, Rouge(r.rouge));
  }
  for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text}) {
    p.setColor(QPalette::Disabled, role, Rouge(96));
  }
  return p;
}

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
  const double densite = painter.device()->devicePixelRatioF();
  QImage image(zone.size() * densite, QImage::Format_ARGB32_Premultiplied);
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

/// The frames that the toolkit would draw darker than a black ground.
void Borde(QStyle::PrimitiveElement element, const QStyleOption &option, QPainter &p) {
  p.save();
  p.setBrush(Qt::NoBrush);
  p.setPen(Rouge(option.state.testFlag(QStyle::State_HasFocus) ? 150 : kBordNuit));
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
    p.setPen(Rouge(46));
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
    RougitImage(image);
    rouge.addPixmap(QPixmap::fromImage(image));
  }
  return rouge;
}

} // namespace

const Teintes &TeintesDe(bool nuit) {
  static const Teintes kJour = {{238, 240, 243}, {247, 248, 250}, {168, 178, 189}, {219, 227, 236}};
  static const Teintes kNuit = {Rouge(10), Rouge(14), Rouge(kBordNuit), Rouge(36)};
  return nuit ? kNuit : kJour;
}

QPalette PaletteDe(bool nuit) { return nuit ? PaletteNuit() : PaletteJour(); }

QColor FondDeNuit(const QColor &fond) { return Rouge(24 * Vivacite(fond.rgb()) * Vivacite(fond.rgb())); }

QColor EncreDeNuit(const QColor &encre, const QColor &fond) {
  if (encre.rgb() == fond.rgb()) {
    return FondDeNuit(fond);
  }
  QColor rouge = Rouge(Clarte(fond.rgb()) < 0.5 ? RougeSurSombre(encre.rgb()) : RougeSurClair(encre.rgb()));
  rouge.setAlpha(encre.alpha());
  return rouge;
}

void RougitImage(QImage &image, const QColor &fond) {
  const auto rouge = Clarte(fond.rgb()) < 0.5 ? RougeSurSombre : RougeSurClair;
  image.convertTo(QImage::Format_ARGB32);
  for (int y = 0; y < image.height(); ++y) {
    auto *ligne = reinterpret_cast<QRgb *>(image.scanLine(y)); // NOLINT(*-reinterpret-cast)
    for (QRgb &c : std::span(ligne, static_cast<std::size_t>(image.width()))) {
      c = qRgba(static_cast<int>(rouge(c)), 0, 0, qAlpha(c));
    }
  }
}

Apparat::Apparat() : QProxyStyle(QStyleFactory::create("Fusion")) {}

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
  if (!nuit_) {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    return;
  }
  Dessine(*option, *painter, [&](QPainter &p) { QProxyStyle::drawPrimitive(element, option, &p, widget); });
  Borde(element, *option, *painter);
}

void Apparat::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                          const QWidget *widget) const {
  if (!nuit_) {
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
  if (!nuit_) {
    QProxyStyle::drawComplexControl(element, option, painter, widget);
    return;
  }
  Dessine(*option, *painter, [&](QPainter &p) { QProxyStyle::drawComplexControl(element, option, &p, widget); });
  if (element == CC_ComboBox) {
    Borde(PE_PanelButtonCommand, *option, *painter);
  }
}

QIcon Apparat::standardIcon(StandardPixmap nom, const QStyleOption *option, const QWidget *widget) const {
  const QIcon icone = QProxyStyle::standardIcon(nom, option, widget);
  return nuit_ ? IconeRougie(icone) : icone;
}

bool EstNuit() {
  const auto *apparat = dynamic_cast<const Apparat *>(QApplication::style());
  return apparat != nullptr && apparat->nuit();
}

void AccordeNuit(bool nuit) {
  auto *apparat = dynamic_cast<Apparat *>(QApplication::style());
  if (apparat == nullptr || apparat->nuit() == nuit) {
    return;
  }
  apparat->PoseNuit(nuit);
  const QPalette palette = PaletteDe(nuit);
  QApplication::setPalette(palette);
  QToolTip::setPalette(palette);
}

} // namespace velmaris::qt
