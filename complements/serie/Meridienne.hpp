#pragma once

#include "complements/ciel/Refus.hpp"
#include "complements/serie/Passage.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace velmaris {

/// How many readings a noon may have that count.
inline constexpr std::size_t kLecturesMidiMax = 60;

/// What is to be known of a noon; the words for it belong to the windows.
enum class AvisMeridienne : std::uint8_t {
  SansLecture,    ///< no reading that counts: no latitude
  Trop,           ///< over sixty: no answer
  SansCiel,       ///< the sky has no answer: `refus` tells why
  SansSolution,   ///< no place agrees with the readings
  HorsMeridien,   ///< the latitude would be known to no better than ten miles: no reading near enough to the meridian
  PresDuZenith,   ///< the body passes within three degrees of the zenith: a second place may agree as well
  LongitudeSeule, ///< one reading alone tells no longitude
  LongitudeVague, ///< the longitude would be known to no better than a degree: none is told
  UnCote,         ///< all readings are on one side of the meridian: the longitude leans on their slope
  Desaccord,      ///< the readings disagree by more than their assumed errors: one chance in a hundred
  LectureImprobable, ///< one reading is improbable, and which one is told
  ErreurSansNom,     ///< one is, but which one can't be told
};

/// A latitude with its doubt.
struct LatitudeMidi {
  double latitude = 0;  ///< degrees, north positive, at the time of the passage
  double ecartType = 0; ///< minutes
};

/// A longitude with its doubt.
struct LongitudeMidi {
  double longitude = 0; ///< degrees, east positive, at the time of the passage
  double ecartType = 0; ///< minutes of arc of longitude
};

/// What one reading makes of a noon.
struct ResiduMidi {
  double residu = 0;      ///< minutes of height, read less computed at the place found
  double statistique = 0; ///< standardised test; 0 when there is none
  double minutes = 0;     ///< of time, from the passage
  double azimut = 0;      ///< of the body, degrees in [0, 360)
};

/// A noon reduced. It holds no words: they belong to the windows.
struct FicheMeridienne {
  std::vector<AvisMeridienne> avis; ///< by their order above, each once
  std::optional<RaisonRefus> refus;
  std::optional<PassageMeridien> passage; ///< as the ship stands by the estimated position; by the place found once
                                          ///< there is a longitude
  std::optional<LatitudeMidi> latitude;   ///< by the curve: all readings that count
  std::optional<LongitudeMidi> longitude; ///< by the curve
  double correlation = 0;                 ///< of the two doubts, when both are there
  /// By the highest reading alone (below the pole the lowest), as if taken at the top; it leans to the side of the
  /// errors. Nothing where it isn't at the top: none before or after it, and over two minutes off.
  std::optional<LatitudeMidi> parPlusHaute;
  std::optional<std::size_t> plusHaute;  ///< which reading that is
  double chance = 1;                     ///< that readings of their assumed error disagree as much
  int surplus = 0;                       ///< readings more than unknowns
  std::vector<ResiduMidi> residus;       ///< in the order of the readings; empty without a latitude
  double seuil = 0;                      ///< of the statistics; 0 without a test
  std::optional<std::size_t> improbable; ///< by its place among the readings
};

/// Reduces readings around a meridian passage, and others of the same body joined to them: least squares on the sky,
/// the ship's place at the passage the unknown, each reading from where she was at its time.
/// It changes nothing and never throws; any thread may call it.
/// @param douteLongitude  standard deviation of the estimated longitude, minutes of arc: what the latitude leans on
///                        where the readings tell no longitude; over 0
FicheMeridienne ReduitMeridienne(const BaseLectures &base, std::span<const LectureSerie> lectures,
                                 double douteLongitude = 20);

/// A longitude by times alone.
struct LongitudeParHeures {
  LongitudeMidi longitude; ///< at the time of the passage
  PassageMeridien passage; ///< from there
};

/// The longitude for which the body is at its top at a time.
/// @param douteHeure  standard deviation of that time, seconds: a minute is little, the curve being flat
/// @return nothing where the top says nothing, near a pole or the zenith
/// @throws Refus of time, body or place
std::optional<LongitudeParHeures> LongitudeDuSommet(const BaseLectures &base, const InstantUTC &sommet,
                                                    double douteHeure);

/// The longitude for which the body has the same height at two times; which height doesn't matter, nor how the sextant
/// is off. The doubt is that of two readings of the assumed error.
/// @return nothing where the body doesn't climb enough between them: a minute of arc of the heights would be over two
///         degrees
/// @throws Refus of time, body or place
std::optional<LongitudeParHeures> LongitudeDeHauteursEgales(const BaseLectures &base, const InstantUTC &avant,
                                                            const InstantUTC &apres);

} // namespace velmaris
