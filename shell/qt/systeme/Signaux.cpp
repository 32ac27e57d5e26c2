#include "shell/qt/systeme/Signaux.hpp"

#include "shell/qt/widgets/Scene.hpp"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <sys/eventfd.h>
#include <unistd.h>

namespace velmaris::qt {
namespace {

constexpr std::array<int, 3> kFins = {SIGTERM, SIGHUP, SIGINT};

/// What a handler writes to, and the event loop waits at: made once, it stays for as long as the program runs.
/// @return below 0 where the system gives none
int Reveil() {
  static const int numero = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
  return numero;
}

void Reveille(int /*signal*/) {
  const int raison = errno;
  const std::uint64_t un = 1;
  // A count that is full wakes all the same.
  [[maybe_unused]] const ssize_t n = ::write(Reveil(), &un, sizeof un);
  errno = raison;
}

} // namespace

Signaux::Signaux(Scene &scene) {
  if (Reveil() < 0) {
    return; // such a signal then kills at once, as it does any program
  }
  std::uint64_t passes = 0; // that no loop has heard
  [[maybe_unused]] const ssize_t n = ::read(Reveil(), &passes, sizeof passes);
  guet_ = std::make_unique<QSocketNotifier>(Reveil(), QSocketNotifier::Read);
  QObject::connect(guet_.get(), &QSocketNotifier::activated, guet_.get(), [this, &scene] {
    guet_->setEnabled(false);
    scene.bureau().termine = true;
    scene.Accorde();
  });
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

} // namespace velmaris::qt
