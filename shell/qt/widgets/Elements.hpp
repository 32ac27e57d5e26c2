#pragma once

#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QToolButton>

#include <functional>

namespace velmaris::qt {

/// A module: a light panel with a title band, that can be taken with the mouse, or drawn along by its title.
class Volet : public QFrame {
public:
  Volet(bool titre, QWidget *parent);
  std::function<void()> auClic;
  std::function<void(QPoint)> auTrait; ///< its title is drawn along: the corner's new place in its parent, pixels
  std::function<void()> auLache;       ///< the button is up after that

protected:
  void paintEvent(QPaintEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void mouseMoveEvent(QMouseEvent *event) override;
  void mouseReleaseEvent(QMouseEvent *event) override;

private:
  bool titre_;
  bool presse_ = false; ///< the button went down on the title band
  bool tire_ = false;   ///< the title is drawn along
  QPoint prise_;        ///< where the button went down
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

/// A caption written upon a drawing: it covers no more of it than its letters and a thin border of the background.
class Inscription : public QLabel {
public:
  using QLabel::QLabel;

protected:
  void paintEvent(QPaintEvent *event) override;
};

/// A picture that is pressed like a button; the second press of a double click is none.
class Poussoir : public QToolButton {
public:
  explicit Poussoir(QWidget *parent);

protected:
  void mouseDoubleClickEvent(QMouseEvent *event) override;
};

/// A picture that tells when the mouse moves over it.
class Figure : public QLabel {
public:
  explicit Figure(QWidget *parent);
  std::function<void()> auSurvol;

protected:
  void mouseMoveEvent(QMouseEvent *event) override;
};

/// A field whose cursor, which the toolkit draws as the negative of the ground, is red by night. One that is to be
/// mended stands in an amber frame; by night, where all is red, in a dashed one.
class Champ : public QLineEdit {
public:
  using QLineEdit::QLineEdit;
  void PoseAlerte(bool alerte);
  bool alerte() const { return alerte_; }

protected:
  void paintEvent(QPaintEvent *event) override;

private:
  bool alerte_ = false;
};

/// A closed list that the wheel turns only while it has the keyboard: a wheel that passes over it chooses nothing. Its
/// arrow is drawn by the window's scale, where the toolkit's own has one size on every screen.
class Deroulante : public QComboBox {
public:
  explicit Deroulante(QWidget *parent);
  void PoseAlerte(bool alerte);
  bool alerte() const { return alerte_; }

protected:
  void changeEvent(QEvent *event) override;
  void paintEvent(QPaintEvent *event) override;
  void wheelEvent(QWheelEvent *event) override;

private:
  void Noircit();
  bool alerte_ = false; ///< framed as a field is
};

/// A list that chooses nothing by itself when the keyboard comes to it.
class ListeSansChoix : public QListWidget {
public:
  using QListWidget::QListWidget;

protected:
  void focusInEvent(QFocusEvent *event) override;
};

} // namespace velmaris::qt
