#pragma once

#include <QObject>
#include <QTimer>

#include <chrono>

namespace velmaris::qt {

/// Lets a program that nobody touches rest: the text cursor stops blinking, which would have the processor woken and
/// the window painted twice a second, and goes on with the next key or button. It is the application's, for as long as
/// it lives.
class Repos : public QObject {
public:
  /// @param apres  time without a key or a button
  explicit Repos(std::chrono::milliseconds apres = std::chrono::seconds(10));
  ~Repos() override;
  Repos(const Repos &) = delete;
  Repos &operator=(const Repos &) = delete;
  Repos(Repos &&) = delete;
  Repos &operator=(Repos &&) = delete;

protected:
  bool eventFilter(QObject *objet, QEvent *event) override;

private:
  QTimer attente_;
  int cadence_; ///< ms that a cursor takes to blink, as the desktop has it
};

} // namespace velmaris::qt
