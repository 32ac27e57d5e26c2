#include "shell/qt/systeme/Signaux.hpp"

#include "shell/qt/widgets/Scene.hpp"

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <sys/eventfd.h>
#include <unistd.h>

namespace velmaris::qt {
namespace {

constexpr std::array<int, 3> kFins = {SIGTERM, SIGHUP, SIGINT};

std::atomic<int> reveil = -1; ///< what a handler writes to; it can reach nothing else

void Reveille(int /*signal*/) {
  const int raison = errno;
  const std::uint64_t un = 1;
  // A count that is full wakes all the same.
  [[maybe_unused]] const ssize_t n = ::write(reveil, &un, sizeof un);
  errno = raison;
}

} // namespace

Signaux::Signaux(Scene &scene) : numero_(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
  if (numero_ < 0) {
    return; // such a signal then kills at once, as it does any program
  }
  guet_ = std::make_unique<QSocketNotifier>(numero_, QSocketNotifier::Read);
  QObject::connect(guet_.get(), &QSocketNotifier::activated, guet_.get(), [this, &scene] {
    guet_->setEnabled(false);
    scene.bureau().termine = true;
    scene.Accorde();
  });
  reveil = numero_;
  struct sigaction action {};
  action.sa_handler = Reveille;
  action.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
  ::sigemptyset(&action.sa_mask);
  for (const int signal : kFins) {
    struct sigaction avant {};
    // A program started under nohup goes on without its terminal.
    if (::sigaction(signal, nullptr, &avant) == 0 && avant.sa_handler != SIG_IGN) {
      ::sigaction(signal, &action, nullptr);
    }
  }
}

Signaux::~Signaux() {
  reveil = -1;
  guet_.reset();
  if (numero_ >= 0) {
    ::close(numero_);
  }
}

} // namespace velmaris::qt
