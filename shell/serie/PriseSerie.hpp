#pragma once

#include "shell/bureau/Bureau.hpp"

namespace velmaris {

/// Puts the run's body, time and one reading into the sight's panel, and what the reading was taken with: limb,
/// horizon, eye, index. One gesture to undo. Why nothing can be taken is told.
void MetSerieAuPanneau(Bureau &bureau);

/// Puts noon's latitude, and its longitude where there is one, into the panel as the estimated position, whole minutes.
/// One gesture to undo.
void MetMidiAuPanneau(Bureau &bureau);

/// Adds the watch's error by the Moon to the comparisons of the log's watch; its daily rate stays that of the last one.
void GardeALaMontre(Bureau &bureau);

/// The comparison that a solution makes.
/// @param montre   mean reading of the watch, of the distances that count
/// @param releves  of the watch, in the order of time
ReleveMontre ReleveDe(const SolutionLunaire &solution, const InstantUTC &montre,
                      const std::vector<ReleveMontre> &releves);

} // namespace velmaris
