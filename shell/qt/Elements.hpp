#pragma once

#include <QFrame>
#include <QLabel>

#include <functional>

namespace velmaris::qt {

/// A module: a light panel with a title band, that can be taken with the mouse.
class Volet : public QFrame {
public:
  Volet(bool titre, QWidget *parent);
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

} // namespace velmaris::qt
