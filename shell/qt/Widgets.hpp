#pragma once

#include "shell/Bureau.hpp"

#include <QColor>
#include <QFrame>
#include <QLabel>
#include <QWidget>

#include <functional>

namespace velmaris::qt {

/// A module: a light card with a title band, that can be taken with the mouse.
class Carte : public QFrame {
public:
  Carte(bool titre, QWidget *parent);
  std::function<void()> auClic;

protected:
  void paintEvent(QPaintEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;

private:
  bool titre_;
};

/// A caption that does something: a click, Return or the space bar.
class Renvoi : public QLabel {
public:
  explicit Renvoi(QWidget *parent);
  std::function<void()> auClic;

protected:
  void mousePressEvent(QMouseEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void paintEvent(QPaintEvent *event) override;
};

/// A picture that tells when the mouse moves over it.
class Figure : public QLabel {
public:
  explicit Figure(QWidget *parent);
  std::function<void()> auSurvol;

protected:
  void mouseMoveEvent(QMouseEvent *event) override;
};

/// Makes the widget that shows a control; it bears the control's name and index as its object name.
/// @return null for words that no control shows, and for menus and their entries
QWidget *CreeWidget(Bureau &bureau, const Controle &controle, QWidget *parent);

/// Brings a widget in line with its control.
/// @param vu  the control as the widget showed it last
void AccordeWidget(QWidget &widget, const Controle &controle, const Controle &vu, bool tout);

/// Brings the colours and the picture of a widget in line with the day or the night.
void AccordeTeintes(QWidget &widget, const Controle &controle);

/// A caption broken into lines so that it fits a width; a single line when it does, or when there is no room for two.
QString CoupeLegende(const QString &texte, const QWidget &widget, double largeur, double hauteur);

/// The place of a control in the toolkit's pixels.
QRect PlaceQt(const Place &place, const QWidget &widget);

/// Room that an option or a box keeps for its mark, in the toolkit's pixels.
int LargeurMarque(const QWidget &widget);

} // namespace velmaris::qt
