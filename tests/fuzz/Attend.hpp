#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace velmaris {

/// Ends the fuzz run when a rule doesn't hold, so that the input is kept.
inline void Attend(bool condition, const char *regle) {
  if (!condition) {
    std::fprintf(stderr, "rule broken: %s\n", regle);
    std::abort();
  }
}

/// The fuzzer's bytes as text.
inline std::string_view Octets(const std::uint8_t *octets, std::size_t taille) {
  return {reinterpret_cast<const char *>(octets), taille};
}

} // namespace velmaris
