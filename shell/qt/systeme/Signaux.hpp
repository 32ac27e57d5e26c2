#pragma once

#include <QSocketNotifier>

#include <memory>

namespace velmaris::qt {

class Scene;

/// The signals that ask a program to end (from a session that closes, a terminal that goes, a hand): the program then
/// ends in order, without a question, and leaves the recovery file. A second signal of the kind kills.
class Signaux {
public:
  explicit Signaux(Scene &scene);

private:
  std::unique_ptr<QSocketNotifier> guet_; ///< at what a handler writes to
};

} // namespace velmaris::qt
