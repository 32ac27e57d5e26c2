#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace velmaris {

/// How many times likelier a measure must be a blunder than any other, as twice a logarithm: twenty times.
inline constexpr double kNettement = 5.991464547107979;

/// The test of one measure at a time, against a blunder in one of them.
struct EpreuveMesures {
  std::vector<double> redondances;       ///< 0 where no other measure controls this one, to 1
  std::vector<double> statistiques;      ///< normals of deviation 1 without a blunder; 0 where there is no test
  double seuil = 0;                      ///< over which one is improbable; 0 without a test
  std::optional<std::size_t> improbable; ///< the measure that is: twenty times likelier to be it than any other
  bool sansNom = false;                  ///< one is, but which one can't be told
};

/// Tests the residuals of a weighted least squares.
/// @param ecarts        residuals over their assumed deviations
/// @param partages      how the adjusted measures share them, over the same deviations: n rows of n, the projection
/// onto
///                      what the unknowns can explain
/// @param surplus       measures more than unknowns; with none there is no test, with one no name
/// @param chanceAlarme  that measures without any blunder have one called improbable
/// Theory: W. Baarda's test of one blunder at a time, its bound for all together as `SeuilDuPlusGrand` has it.
EpreuveMesures EprouveMesures(std::span<const double> ecarts, std::span<const double> partages, int surplus,
                              double chanceAlarme);

} // namespace velmaris
