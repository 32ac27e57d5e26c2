#pragma once

#include "complements/lunaire/Classement.hpp"
#include "complements/lunaire/Lunaire.hpp"
#include "complements/serie/Meridienne.hpp"
#include "complements/serie/Serie.hpp"

#include <array>
#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace velmaris {

/// A reading as the window lists it: one that was marked has a time first, its angle later.
struct LectureListee {
  InstantUTC utc;
  std::optional<double> lecture; ///< degrees, as the arc shows it
  bool ecartee = false;          ///< left out by the user
  bool operator==(const LectureListee &) const = default;
};

/// A distance as the window lists it; its heights are as read.
struct DistanceListee {
  MesureLunaire mesure;              ///< without heights and index
  std::optional<double> hauteurLune; ///< degrees, as the arc shows it
  std::optional<double> hauteurAstre;
  bool operator==(const DistanceListee &) const = default;
};

/// A point of a body's course, for the plot of noon.
struct PointMidi {
  double minutes = 0; ///< of time, from the passage
  double hauteur = 0; ///< degrees, without air
};

/// What a gesture in the window changes and undo puts back.
struct EtatSerie {
  std::vector<LectureListee> lectures;
  std::vector<DistanceListee> distances;
  std::size_t choisie = 0;
  std::size_t choisieLune = 0;
  std::array<std::string, 8> champs; ///< texts of a reading's fields, of a distance's, of eye and index
};

/// One gesture in the window: its name to the user, and the state before and after it.
struct PasSerie {
  std::string nom;
  EtatSerie avant, apres;
  bool auPanneau = false; ///< it changed the main window's panel, whose list of gestures has it under that name
};

/// Readings of one body and distances of the Moon, and what came out of them, as their window shows it.
struct SerieOuverte {
  std::vector<LectureListee> lectures;           ///< by time
  std::vector<DistanceListee> distances;         ///< by time
  std::size_t choisie = 0;                       ///< reading that the fields are of; any number for none
  std::size_t choisieLune = 0;                   ///< distance, the same
  std::vector<LectureListee> lecturesReduites;   ///< those that the results are of
  std::vector<DistanceListee> distancesReduites; ///< the same
  std::vector<std::size_t> rangs;                ///< readings that have their angle, by their places in `lectures`
  FicheSerie fiche;                              ///< of these
  std::vector<PointCourse> course;
  FicheMeridienne midi; ///< of these
  std::vector<PointMidi> courbe;
  std::optional<LongitudeParHeures> egales;
  FicheLunaire lune;
  std::vector<CandidatLunaire> candidats;
  std::deque<PasSerie> faits, defaits; ///< gestures that can be undone, and redone, the latest last
  std::string dit;                     ///< what the last gesture has to say, until the next one
  bool reprise = false;                ///< the fields hold what was kept, or the panel's figures
  bool aMontrer = true;                ///< something has changed that the window doesn't show yet
  std::string langue;                  ///< that the window's words are in
};

} // namespace velmaris
