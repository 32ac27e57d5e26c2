#include "foundations/Patience.hpp"

#include <algorithm>
#include <cerrno>
#include <sys/file.h>
#include <thread>

namespace velmaris {

bool Patience::Attend() {
  constexpr std::chrono::nanoseconds kMoment = std::chrono::milliseconds(1);
  if (reste_ <= std::chrono::nanoseconds::zero()) {
    return false;
  }
  const auto debut = std::chrono::steady_clock::now();
  std::this_thread::sleep_for(std::min(kMoment, reste_));
  reste_ -= std::chrono::steady_clock::now() - debut;
  return true;
}

Verrou Verrouille(int descripteur, bool seul, Patience &patience) {
  const int operation = static_cast<int>(static_cast<unsigned>(seul ? LOCK_EX : LOCK_SH) | unsigned{LOCK_NB});
  while (::flock(descripteur, operation) != 0) {
    if (errno == EINTR) {
      continue;
    }
    if (errno != EWOULDBLOCK) {
      return Verrou::Impossible;
    }
    if (!patience.Attend()) {
      return Verrou::Retenu;
    }
  }
  return Verrou::Pris;
}

} // namespace velmaris
