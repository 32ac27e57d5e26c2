#pragma once

#include "sights/Observation.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace velmaris {

/// Fields of a sight that are typed, in the order in which the window names them: day, month, year, hour, minute,
/// second; degrees and minutes of latitude, longitude and reading; fraction; collimation, eye height.
inline constexpr std::size_t kChampsVisee = 15;

/// Their texts, in that order.
inline constexpr std::array<std::string Observation::*, kChampsVisee> kTextesVisee = {&Observation::jour,
                                                                                      &Observation::mois,
                                                                                      &Observation::annee,
                                                                                      &Observation::heure,
                                                                                      &Observation::minute,
                                                                                      &Observation::seconde,
                                                                                      &Observation::latitudeDegres,
                                                                                      &Observation::latitudeMinutes,
                                                                                      &Observation::longitudeDegres,
                                                                                      &Observation::longitudeMinutes,
                                                                                      &Observation::lectureDegres,
                                                                                      &Observation::lectureMinutes,
                                                                                      &Observation::lectureFraction,
                                                                                      &Observation::collimation,
                                                                                      &Observation::hauteurOeil};

/// What a field takes, both ends included.
struct Bornes {
  double minimum = 0.0;
  double maximum = 0.0;
};

/// The limits of a field, on the number at the start of its text.
/// @param champ    0 to 14, in the order of the window's names
/// @param horizon  off an artificial one the reading is a double angle
Bornes BornesDuChamp(std::size_t champ, Horizon horizon);

/// How a field stands before the sight is reduced.
enum class Verdict : std::uint8_t {
  Bon,
  Vide,           ///< empty, and the chosen body needs it
  HorsBornes,     ///< outside its limits: it is emptied when it is left; or no number as a whole, which is kept
  DateImpossible, ///< day, month and year are each there and make no date
  PasUnNombre,    ///< eye height or index correction, in a star's or a planet's sight
  SousLaMer,      ///< a negative eye height
  HorsDuJour,     ///< an hour over 23, in a star's or a planet's sight
  HorsDeLHeure    ///< a minute or second over 59, in a star's or a planet's sight
};

/// Whether the sight is begun: degrees or minutes of its reading aren't 0. Until then no field is missed.
bool EstCommencee(const Observation &observation);

/// How each field stands. Every body needs date, time, position and reading, since an empty field is read as 0 without
/// a word; a star or a planet needs eye height and index correction too, which the Sun and the Moon do without.
std::array<Verdict, kChampsVisee> JugeVisee(const Observation &observation);

/// Whether a star's or a planet's sight that is begun has none chosen.
bool SansAstreChoisi(const Observation &observation);

/// Whether two sights have the same figures and choices, however their figures are written: what a reduction has shown
/// for one is good for the other.
bool MemeVisee(const Observation &a, const Observation &b);

} // namespace velmaris
