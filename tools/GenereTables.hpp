#pragma once

#include <array>
#include <cstddef>

/// What the published tables are known by, to tell them from a file that was cut, changed or taken for another variant.
namespace tables {

/// The series of one planet.
struct PlaneteAttendue {
  const char *fichier;
  const char *nom;                                   ///< in the names of the generated tables
  std::array<std::array<std::size_t, 6>, 3> comptes; ///< terms of L, B and R by power of the time
  std::array<double, 3> plusPetites;                 ///< smallest amplitudes of L0, B0 and R0
};

inline constexpr PlaneteAttendue kPlanetes[] = {
    {"vsop87d_venus.txt",
     "Venus",
     {{{367, 215, 70, 9, 5, 5}, {210, 133, 59, 15, 5, 4}, {330, 180, 63, 7, 3, 2}}},
     {3.7e-10, 4e-10, 2.6e-10}},
    {"vsop87d_earth.txt",
     "Terre",
     {{{559, 341, 142, 22, 11, 5}, {184, 99, 49, 11, 5, 0}, {526, 292, 139, 27, 10, 3}}},
     {3.9e-10, 3.9e-10, 3.6e-10}},
    {"vsop87d_mars.txt",
     "Mars",
     {{{1217, 686, 310, 129, 36, 15}, {441, 287, 130, 41, 11, 5}, {1118, 596, 313, 111, 28, 9}}},
     {3.6e-10, 3.6e-10, 5.4e-10}},
    {"vsop87d_jupiter.txt",
     "Jupiter",
     {{{760, 369, 191, 109, 45, 10}, {249, 141, 81, 42, 12, 5}, {745, 381, 190, 98, 46, 9}}},
     {7.6e-10, 7.4e-10, 3.7e-9}},
    {"vsop87d_saturn.txt",
     "Saturne",
     {{{1152, 642, 321, 148, 68, 27}, {500, 260, 111, 58, 26, 11}, {1205, 639, 342, 157, 64, 28}}},
     {7.2e-10, 7.2e-10, 6.84e-9}},
};

inline constexpr const char *kFichierNutation = "nutation_iau1980.txt";
inline constexpr std::size_t kTermesPsi = 63;
inline constexpr std::size_t kTermesEps = 38;
inline constexpr double kPlusPetitPsi = 3; ///< 0.0001 second of arc

/// One of the Moon's series.
struct LuneAttendue {
  const char *fichier;
  const char *nom; ///< of the generated table
  std::size_t termes;
  std::size_t sansPlanetes; ///< the terms of the Moon, Sun and node, which come first
  double plusPetite;
};

inline constexpr LuneAttendue kLune[] = {
    {"moon_longitude.txt", "kLuneLongitude", 405, 375, 0.00096},
    {"moon_latitude.txt", "kLuneLatitude", 200, 188, 0.01009},
    {"moon_distance.txt", "kLuneDistance", 105, 105, 0.10326},
};

/// A row of which the first fields are known from the printed theory.
struct RangeeConnue {
  const char *fichier;
  const char *section;
  std::size_t rang; ///< from 1
  const char *texte;
};

inline constexpr RangeeConnue kRangees[] = {
    {"vsop87d_earth.txt", "L0", 1, "1.75347045673 0 0"},
    {"vsop87d_earth.txt", "L0", 2, "0.03341656456 4.66925680417 6283.0758499914"},
    {"vsop87d_earth.txt", "L0", 3, "0.00034894275 4.62610241759 12566.1516999828"},
    {"vsop87d_earth.txt", "L0", 4, "3.417571e-05 2.82886579606 3.523118349"},
    // The mean motion from the equinox of the date; another variant has 6283.0758.
    {"vsop87d_earth.txt", "L1", 1, "6283.31966747491 0 0"},
    {"vsop87d_earth.txt", "L5", 1, "8.78e-09 3.14159265359 0"},
    {"vsop87d_earth.txt", "R0", 1, "1.00013988799 0 0"},
    {"vsop87d_mars.txt", "L1", 1, "3340.85627474342 0 0"},
    {"vsop87d_jupiter.txt", "L0", 1, "0.59954691495 0 0"},
    {"vsop87d_saturn.txt", "R0", 1, "9.55758135801 0 0"},
    {"vsop87d_venus.txt", "L1", 1, "10213.529430529 0 0"},
    {"nutation_iau1980.txt", "", 1, "0 0 0 0 1 -171996 -174.2 92025 8.9"},
    {"nutation_iau1980.txt", "", 2, "-2 0 0 2 2 -13187 -1.6 5736 -3.1"},
    {"nutation_iau1980.txt", "", 3, "0 0 0 2 2 -2274 -0.2 977 -0.5"},
    {"nutation_iau1980.txt", "", 4, "0 0 0 0 2 2062 0.2 -895 0.5"},
    {"nutation_iau1980.txt", "", 5, "0 1 0 0 0 1426 -3.4 54 -0.1"},
    {"nutation_iau1980.txt", "", 6, "0 0 1 0 0 712 0.1 -7 0"},
    {"moon_longitude.txt", "", 1, "22639.55 0 0 1 0"},
    {"moon_longitude.txt", "", 2, "4586.43061 2 0 -1 0"},
    {"moon_longitude.txt", "", 12, "36.12364 0 0 3 0"},
    {"moon_longitude.txt", "", 375, "-0.00098 7 0 -3 0"},
    {"moon_longitude.txt", "", 376, "14.2488 0 0 -1 0 18 -16 0 0 0 26.54261"},
    {"moon_longitude.txt", "", 377, "1.1431 2 0 -1 0 0 2 0 -2 0 180.11977"},
    {"moon_longitude.txt", "", 378, "0.9011 0 0 0 0 0 4 -8 3 0 285.98707"},
    {"moon_longitude.txt", "", 379, "0.8216 0 0 0 0 1 -1 0 0 0 180.00988"},
    {"moon_longitude.txt", "", 405, "0.01234 2 0 1 -1 0 0 0 0 1 0.00102"},
    {"moon_latitude.txt", "", 1, "18461.4 0 0 0 1"},
    {"moon_latitude.txt", "", 6, "-1.01941 0 0 1 3"},
    {"moon_latitude.txt", "", 189, "8.045 0 0 0 0 0 0 0 0 1 180"},
    {"moon_latitude.txt", "", 190, "0.416 0 0 1 0 0 0 0 0 1 180"},
    {"moon_latitude.txt", "", 191, "0.456 0 0 -1 0 0 0 0 0 1 0"},
    {"moon_latitude.txt", "", 192, "0.326 0 0 0 -2 0 0 0 0 1 0"},
    {"moon_distance.txt", "", 1, "-3.14837 0 0 0 2"},
    {"moon_distance.txt", "", 3, "-20905.32206 0 0 1 0"},
    {"moon_distance.txt", "", 105, "-0.28663 6 0 -1 0"},
};

} // namespace tables
