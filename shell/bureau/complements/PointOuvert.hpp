#pragma once

#include "complements/point/Point.hpp"
#include "sights/Observation.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace velmaris {

/// A sight that a fix is made from, as the window of the fix lists it.
struct ViseeDuPoint {
  std::string identite;                   ///< of its row in the log, or "droite 1" to "droite 4"
  Observation observation;                ///< as typed
  std::optional<ResultatDit> dit;         ///< what its reduction left
  bool cochee = true;                     ///< counts in the fix
  std::optional<double> ecartType;        ///< assumed error, minutes of arc, where the user has set one
  std::optional<HauteurPreparee> hauteur; ///< nothing when `refus` tells why
  std::optional<RaisonRefus> refus;
};

/// The fix that is being made: what it is asked for, and what came out.
struct PointOuvert {
  std::vector<ViseeDuPoint> visees; ///< by time
  std::vector<Jambe> jambes;        ///< by time
  bool montreComptee = false;       ///< the sights' times are corrected by the watch's dated rows
  std::uint64_t versionMontre = 0;  ///< of the rows that they were corrected by
  FichePoint actuelle;              ///< by the sky of today
  FichePoint dite;                  ///< by the told lines
  std::optional<InstantUTC> heure;  ///< that both are for; nothing before any was made
  RouteNavire route;                ///< that both were made with
  bool seconde = false;             ///< of two solutions, the second one is looked at
  bool surFeuille = true;           ///< the layer is to be seen, once there is a fix
  std::vector<LieuNavire> sillage;  ///< kept fixes of the last days, by time; none while they aren't to be seen
};

} // namespace velmaris
