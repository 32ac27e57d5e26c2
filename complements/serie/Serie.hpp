#pragma once

#include "complements/ciel/Refus.hpp"
#include "complements/serie/Lectures.hpp"
#include "complements/serie/Pistes.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace velmaris {

/// How many readings a run may have that count, and from how many on one of them can be marked.
inline constexpr std::size_t kLecturesMin = 3;
inline constexpr std::size_t kLecturesMax = 30;
inline constexpr std::size_t kLecturesEpreuve = 4;

/// What is to be known of a run; the words for it belong to the windows.
enum class AvisSerie : std::uint8_t {
  TropPeu,           ///< under three readings that count: no answer
  Trop,              ///< over thirty: no answer
  SansCiel,          ///< the sky has no answer: `refus` tells why
  SousHorizon,       ///< the body is under the horizon at the estimated position
  HauteurLoin,       ///< the readings lie over a degree off the sky of the estimated position
  PenteFausse,       ///< their slope isn't the sky's: `pistes` tell what would make it so
  LectureImprobable, ///< one reading is improbable, and which one is told
  ErreurSansNom,     ///< one is, but which one can't be told
  Dispersion,        ///< they scatter by more than their assumed error and what is told above explain: one chance in a
                     ///< hundred
};

/// The mean's doubt by the scatter of the readings themselves.
struct DouteDispersion {
  double lecture = 0;   ///< standard deviation of one reading, minutes
  double ecartType = 0; ///< of the mean, minutes
  double facteur = 0;   ///< Student's: the mean is within `facteur` deviations in 95 of 100 runs
};

/// The slope fitted freely, against the sky's.
struct PenteSerie {
  double ciel = 0;      ///< of the height, minutes of arc a minute, at the middle of the run
  double trouvee = 0;   ///< that of the readings
  double ecartType = 0; ///< of the difference, by the assumed error
  double chance = 1;    ///< that readings of this slope differ as much
};

/// What one reading makes of a run.
struct ResiduSerie {
  double residu = 0;      ///< minutes of height, read less computed and less the mean of those that count
  double statistique = 0; ///< standardised test: normal of deviation 1 without a blunder; 0 when there is none
  double minutes = 0;     ///< of time, from the middle of the run
  double hauteur = 0;     ///< degrees: the body from the estimated position, without air, at the reading's time
};

/// A run reduced. It holds no words: they belong to the windows.
struct FicheSerie {
  std::vector<AvisSerie> avis; ///< by their order above, each once
  std::optional<RaisonRefus> refus;
  bool faite = false;       ///< the rest is meaningful
  std::size_t comptees = 0; ///< readings that count
  InstantUTC milieu;        ///< mean time of those that count
  InstantUTC heure;         ///< of the one reading: what was asked for, or the middle to the nearest second
  double lecture = 0;       ///< degrees: the one reading to type, which stands for the run
  double decalage = 0;      ///< minutes: mean of read less computed height from the estimated position
  double ecartType = 0;     ///< of the one reading by the assumed error: s over the root of n, minutes
  DouteDispersion parDispersion;
  PenteSerie pente;
  double chance = 1;                     ///< that readings of their assumed error scatter as much
  std::vector<ResiduSerie> residus;      ///< in the order of the readings, those left out too
  double seuil = 0;                      ///< of the statistics, over which one is improbable; 0 without a test
  std::optional<std::size_t> improbable; ///< by its place among the readings
  std::vector<Piste> pistes;             ///< with PenteFausse or HauteurLoin, the likeliest first
};

/// Reduces a run of readings of one body to one. It changes nothing and never throws; any thread may call it.
/// @param heure  of the one reading; nothing for the middle
/// Theory: the height's true course comes from the sky at the estimated position under way; one offset is unknown,
/// their mean. Against a blunder each reading is tested by its residual and the assumed error, against a wrong body,
/// hour or position the slope.
FicheSerie ReduitSerie(const BaseLectures &base, std::span<const LectureSerie> lectures,
                       const std::optional<InstantUTC> &heure = {});

/// One of the points of the body's true course, for a drawing.
struct PointCourse {
  double minutes = 0; ///< of time, from the middle of the run
  double hauteur = 0; ///< degrees, from the estimated position, without air, with the run's offset
};

/// The true course through the readings.
/// @param nombre  of points, evenly from the first to the last reading, two at least
/// @return empty when the run wasn't reduced
std::vector<PointCourse> CourseSerie(const BaseLectures &base, std::span<const LectureSerie> lectures,
                                     const FicheSerie &fiche, std::size_t nombre);

} // namespace velmaris
