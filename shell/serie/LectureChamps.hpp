#pragma once

#include "shell/bureau/Bureau.hpp"

#include <optional>
#include <string_view>

namespace velmaris {

/// Puts the panel's figures into the window's fields: date and hour, else the present ones, estimated position, eye,
/// index, body, limb, horizon; course and speed of "Estime".
void ReprendPanneauSerie(Bureau &bureau);

/// What the fields say of body, ship and sextant; one that can't be used is marked.
/// @return nothing where date, time or place can't be used. Its arc errors are those of the check's settings: it isn't
///         to be kept
std::optional<BaseLectures> LitBase(Bureau &bureau);

/// The same for distances of the Moon.
ReglagesLunaire LitReglagesLunaire(Bureau &bureau, const BaseLectures &base);

/// A time of day as an instant: on the day that lies nearest to another instant.
/// @return nothing for a text that is no time
std::optional<InstantUTC> LitHeureProche(std::string_view texte, const InstantUTC &proche);

/// The reading in the fields; one that can't be used is marked.
std::optional<LectureListee> LitLectureTapee(Bureau &bureau, const InstantUTC &proche);

/// The distance in the fields; one that can't be used is marked.
std::optional<DistanceListee> LitDistanceTapee(Bureau &bureau, const InstantUTC &proche);

/// A reading's figures in the fields, and a distance's.
/// @{
void MontreLecture(Bureau &bureau, const LectureListee &lecture);
void MontreDistance(Bureau &bureau, const DistanceListee &distance);
/// @}

} // namespace velmaris
