#pragma once

#include "shell/bureau/Bureau.hpp"

#include <vector>

namespace velmaris {

/// Works anew what the page in front shows, from the fields and the lists, and keeps these. It takes some milliseconds;
/// distances of the Moon are reduced beside the interface.
void RefaitSerie(Bureau &bureau);

/// The distances as they are reduced: index and dip are in the heights.
/// @param base  whose index, dip and ship they are of
std::vector<MesureLunaire> MesuresDe(const std::vector<DistanceListee> &distances, const BaseLectures &base);

/// The course of a body's height around its passage, for the ship where noon has found her.
/// @param midi  with a passage
std::vector<PointMidi> CourbeMidi(const BaseLectures &base, const FicheMeridienne &midi);

/// The height of a course at a time, linear between its points.
/// @param courbe   two points at least
/// @param minutes  from the passage
double HauteurSurCourbe(const std::vector<PointMidi> &courbe, double minutes);

/// Puts readings, or distances, in the order of time; of one second the later one in the list stays.
/// @param suivie  place of a row that is followed: where it stands afterwards
/// @{
void OrdonneLectures(std::vector<LectureListee> &lectures, std::size_t &suivie);
void OrdonneDistances(std::vector<DistanceListee> &distances, std::size_t &suivie);
/// @}

} // namespace velmaris
