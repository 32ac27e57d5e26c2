#include "shell/qt/widgets/Atelier.hpp"

#include "shell/qt/widgets/Scene.hpp"

#include <QMetaObject>

#include <exception>
#include <utility>

namespace velmaris::qt {

Atelier::Atelier() { fil_.setMaxThreadCount(1); }

/// What is under way is waited for: it posts to the context, which is still there.
Atelier::~Atelier() {
  fil_.clear();
  fil_.waitForDone();
}

void Atelier::Confie(Scene &scene, std::function<std::function<void()>()> travail) {
  fil_.start([this, &scene, travail = std::move(travail)] {
    std::function<void()> suite;
    try {
      suite = travail();
    } catch (...) {
      suite = [faute = std::current_exception()] { std::rethrow_exception(faute); };
    }
    QMetaObject::invokeMethod(
        &contexte_, [&scene, suite = std::move(suite)] { scene.Joue(suite); }, Qt::QueuedConnection);
  });
}

} // namespace velmaris::qt
