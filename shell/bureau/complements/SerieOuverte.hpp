#pragma once

#include "complements/lunaire/Classement.hpp"
#include "complements/lunaire/Lunaire.hpp"
#include "complements/serie/Meridienne.hpp"
#include "complements/serie/Serie.hpp"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace velmaris {

/// A reading as the window lists it: one that was marked has a time first, its angle later.
struct LectureListee {
  InstantUTC utc;
  std::optional<double> lecture; ///< degrees, as the arc shows it
  bool ecartee = false;          ///< left out by the user
};

/// A distance as the window lists it; its heights are as read.
struct DistanceListee {
  MesureLunaire mesure;              ///< without heights and index
  std::optional<double> hauteurLune; ///< degrees, as the arc shows it
  std::optional<double> hauteurAstre;
};

/// A point of a body's course, for the plot of noon.
struct PointMidi {
  double minutes = 0; ///< of time, from the passage
  double hauteur = 0; ///< degrees, without air
};

/// Readings of one body and distances of the Moon, and what came out of them, as their window shows it.
struct SerieOuverte {
  std::vector<LectureListee> lectures;   ///< by time
  std::vector<DistanceListee> distances; ///< by time
  std::size_t choisie = 0;               ///< reading that the fields are of; any number for none
  std::size_t choisieLune = 0;           ///< distance, the same
  std::vector<std::size_t> rangs;        ///< readings that have their angle, by their places in `lectures`
  FicheSerie fiche;                      ///< of these
  std::vector<PointCourse> course;
  FicheMeridienne midi; ///< of these
  std::vector<PointMidi> courbe;
  std::optional<LongitudeParHeures> egales;
  FicheLunaire lune;
  std::vector<CandidatLunaire> candidats;
  bool reprise = false; ///< the fields hold what was kept, or the panel's figures
  bool aMontrer = true; ///< something has changed that the window doesn't show yet
  std::string langue;   ///< that the window's words are in
};

} // namespace velmaris
