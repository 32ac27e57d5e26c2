#pragma once

#include "complements/ciel/Astre.hpp"
#include "complements/ciel/EtapesHauteur.hpp"
#include "complements/point/Route.hpp"

#include <cstdint>

namespace velmaris {

/// One reading among others of the same body.
struct LectureSerie {
  InstantUTC utc;
  double lecture = 0;   ///< degrees, as `BaseLectures::corrections` take it
  bool ecartee = false; ///< left out by the user; it keeps its residual
};

/// What readings are of, whence they were taken and how they are corrected.
struct BaseLectures {
  Astre astre;
  LieuNavire lieu;            ///< of the ship at `heureLieu`, estimated
  InstantUTC heureLieu;       ///< of `lieu`; without legs and current it doesn't matter
  RouteNavire route;          ///< how she goes before and after
  LectureSextant corrections; ///< all but the reading; of readings that are corrected for index and dip already, no
                              ///< collimation and an eye at 0. Its table of arc errors must outlive the work
  double dut1 = 0;            ///< UT1 - UTC, seconds
  double ecartType =
      0.7; ///< assumed error of one reading, minutes of arc of the height; what isn't over 0 counts as 0.7
  double douteLieu = 10; ///< standard deviation of the estimated position, miles north and east each: a run's slope
                         ///< leans on it
  double chanceAlarme = 0.01; ///< of each test: that readings without a blunder raise an alarm
};

} // namespace velmaris
