#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmaris {

/// First line of the file of the watch.
extern const std::string_view kTitresMontre;

/// A comparison of the watch with true time.
struct ReleveMontre {
  std::int64_t instant = 0; ///< UTC, seconds since 1970
  double erreur = 0.0;      ///< seconds by which the watch was ahead; behind, negative
  double marche = 0.0;      ///< seconds that it gains a day; that it loses, negative
  bool operator==(const ReleveMontre &) const = default;
};

/// Limits of what is taken for a comparison.
inline constexpr double kErreurMax = 86400.0; ///< seconds, either way
inline constexpr double kMarcheMax = 3600.0;  ///< seconds a day, either way

/// One line of the file. Numbers are read back to the bit.
std::string LigneMontre(const ReleveMontre &releve);

/// Reads that file. Of one moment the later line wins; a broken or cut line, or one beyond the limits, is passed over.
/// @param octets  of the whole file
/// @return in the order of time
std::vector<ReleveMontre> LitMontre(std::string_view octets);

/// The watch's error at a moment: that of the last comparison before it, carried on by its rate.
/// @param releves  in the order of time
/// @param instant  seconds since 1970
/// @return seconds that the watch is ahead: true time is its reading less this; nothing before the first comparison
std::optional<double> ErreurMontre(const std::vector<ReleveMontre> &releves, std::int64_t instant);

} // namespace velmaris
