#pragma once

#include "shell/bureau/Bureau.hpp"

#include <cstdint>
#include <optional>

namespace velmaris {

/// A practice by what makes it.
struct DemandeExercice {
  std::uint64_t graine = 0;
  ConditionsExercice conditions;
  bool operator==(const DemandeExercice &) const = default;
};

/// The practice that was begun last, on an earlier start too.
/// @return nothing where the store knows none
std::optional<DemandeExercice> LitExerciceGarde(const Bureau &bureau);

/// Begins a practice, and keeps what makes it in the store; its sights and those of the last ones before it stay out of
/// the log.
void CommenceExercice(Bureau &bureau, const DemandeExercice &demande);

/// Takes the practice up again that was begun last, on an earlier start: with its sights that were reduced, the user's
/// fix in its fields, and what was judged.
/// @return false where the store knows none
bool RouvreExercice(Bureau &bureau);

/// Keeps what the user has made of the practice in the store, where it has changed: a program that is killed loses
/// none.
void GardeNotesExercice(Bureau &bureau);

/// Notes the sight that was reduced, where it is one of the practice's, slips and all; once the truth was asked for it
/// is judged at once. Sights of practices before are known where they are as they were shown; one of the last practice
/// of an earlier start takes that up again.
/// @return whether the sight is a practice's, and so none for the log
bool NoteViseeExercice(Bureau &bureau, const Observation &observation);

/// Judges what was noted, and the user's fix, where there is one.
void JugeExercice(Bureau &bureau, const std::optional<LieuNavire> &point);

} // namespace velmaris
