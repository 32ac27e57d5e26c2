#pragma once

#include <chrono>
#include <cstdint>

namespace velmaris {

/// How long other programs that hold a lock are waited for, in all and however often one asks: the interface stands
/// still meanwhile.
class Patience {
public:
  static constexpr std::chrono::milliseconds kEntiere{300};

  explicit Patience(std::chrono::nanoseconds reste = kEntiere) : reste_(reste) {}

  /// Waits a moment.
  /// @return false, at once, when nothing is left
  bool Attend();

  /// What is left.
  std::chrono::nanoseconds reste() const { return reste_; }

  /// Begins anew with the whole.
  void Refait() { reste_ = kEntiere; }

private:
  std::chrono::nanoseconds reste_;
};

/// What became of a lock.
enum class Verrou : std::uint8_t {
  Pris,
  Retenu,    ///< another program holds it
  Impossible ///< nothing can be locked there
};

/// Locks an open file or folder, for as long as it stays open.
/// @param seul  nobody else may hold it; else others may that don't ask to be alone either
Verrou Verrouille(int descripteur, bool seul, Patience &patience);

} // namespace velmaris
