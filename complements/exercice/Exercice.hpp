#pragma once

#include "complements/ciel/Refus.hpp"
#include "complements/controle/ViseeTypee.hpp"
#include "complements/point/Route.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace velmaris {

/// What a practice is about.
enum class SujetExercice : std::uint8_t {
  SoleilMidi,   ///< the Sun around noon
  SoleilCourse, ///< the Sun in the morning, at noon and in the afternoon, the ship running
  SoleilLune,   ///< the Sun and the Moon by day
  Crepuscule,   ///< stars and planets in the evening or the morning
};

/// How hard it is made.
struct ConditionsExercice {
  SujetExercice sujet = SujetExercice::SoleilMidi;
  int visees = 1;            ///< sights wanted; clouds may leave fewer to choose from, never fewer than wanted but for
                             ///< want of bodies
  double bruit = 0;          ///< standard deviation of a reading, minutes
  double collimationMax = 0; ///< the index error is drawn from within, minutes; 0 for a true sextant
  double vitesseMax = 0;     ///< knots; 0 for a ship that lies still
  double nuages = 0;         ///< part of the sky that is hidden, 0 to 0.9
  double erreurEstime = 10;  ///< standard deviation of the estimated position, miles north and east each
  double latitudeMax = 55;   ///< without sign, degrees
  bool operator==(const ConditionsExercice &) const = default;
};

/// The ten graded practices, from the easiest on.
inline constexpr std::size_t kNiveaux = 10;

/// One of the ten: its seed and conditions.
struct NiveauExercice {
  std::uint64_t graine = 0;
  ConditionsExercice conditions;
};

/// @param rang  0 to 9
const NiveauExercice &NiveauDe(std::size_t rang);

/// One sight that is offered: what the user may know of it.
struct ViseeExercice {
  Astre astre;
  DateCivile utc;    ///< whole seconds
  LieuNavire estime; ///< the dead-reckoning position at that time, whole tenths of minutes
  Contact contact = Contact::Centre;
  double lecture = 0; ///< degrees, as the sextant shows it, to a tenth of a minute
  double hauteur = 0; ///< degrees, about: for a list
  double azimut = 0;  ///< degrees, about
};

/// A practice, as the user sees it.
struct Exercice {
  std::uint64_t graine = 0;
  ConditionsExercice conditions;
  std::optional<RaisonRefus> refus;  ///< the sky has no answer
  RouteNavire route;                 ///< one leg: course and speed as logged
  LieuNavire estime;                 ///< at the time of the fix
  InstantUTC heurePoint;             ///< of the fix that is wanted: that of the last sight
  double hauteurOeil = 0;            ///< metres
  double collimation = 0;            ///< index correction, minutes, to be added; as measured before
  double pression = 1010;            ///< hPa
  double temperature = 10;           ///< degrees Celsius
  std::vector<ViseeExercice> visees; ///< by time
  std::vector<Astre> caches;         ///< bodies that clouds hide
};

/// Where the ship was, kept apart until it is asked for.
struct VeriteExercice {
  LieuNavire lieu;               ///< at the time of the fix
  std::vector<LieuNavire> lieux; ///< at each sight
  std::vector<double> bruits;    ///< minutes that each reading is off by
};

/// A practice with its truth.
struct ExerciceComplet {
  Exercice exercice;
  VeriteExercice verite;
};

/// Makes the practice of a seed. The same seed and conditions make the same practice on every machine. It never throws;
/// any thread may call it.
ExerciceComplet FaitExercice(std::uint64_t graine, const ConditionsExercice &conditions);

} // namespace velmaris
