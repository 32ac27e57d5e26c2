#pragma once

#include <cstdint>
#include <exception>

namespace velmaris {

/// Why the sky of today has no answer.
enum class RaisonRefus : std::uint8_t {
  DateImpossible,   ///< the calendar has no such day
  HeureImpossible,  ///< hour over 23, minute over 59, second of 60 and more where no leap second was put in
  AnneeHorsLimites, ///< before 1800 or after 2199
  LuneHorsTable,    ///< the Moon before 1900 or after 2100
  EtoileSansPlace,  ///< row 67: a nova of magnitude 10, which no catalogue of bright stars holds
  RangInconnu,      ///< a row that the star table doesn't have
  LieuImpossible,   ///< a latitude over 90 degrees, or figures that are none
};

/// What is thrown when there is no answer; the reason tells why, the words for it belong to the windows.
struct Refus : std::exception {
  explicit Refus(RaisonRefus r) : raison(r) {}
  /// The reason in plain English, for logs and tests.
  const char *what() const noexcept override;
  RaisonRefus raison;
};

} // namespace velmaris
