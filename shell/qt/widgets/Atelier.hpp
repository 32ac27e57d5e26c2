#pragma once

#include <QObject>
#include <QThreadPool>

#include <functional>

namespace velmaris::qt {

class Scene;

/// One worker beside the interface: it does one piece of work after the other, in the order in which they are asked
/// for, and each one's result is run as an event on the interface's thread.
class Atelier {
public:
  Atelier();
  ~Atelier();
  Atelier(const Atelier &) = delete;
  Atelier &operator=(const Atelier &) = delete;
  Atelier(Atelier &&) = delete;
  Atelier &operator=(Atelier &&) = delete;

  /// Has a piece of work done. What fails in it fails in its event.
  /// @param travail  run by the worker; what it gives is run as an event, unless the program has ended by then
  void Confie(Scene &scene, std::function<std::function<void()>()> travail);

private:
  QObject contexte_; ///< of the events to come, which go with it
  QThreadPool fil_;
};

} // namespace velmaris::qt
