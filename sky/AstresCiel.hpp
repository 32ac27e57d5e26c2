#pragma once

namespace velmaris {

/// The angles worked out last on the sky's chart, whatever body they were of.
struct AnglesCiel {
  float AngleAz = 0.0F;   ///< azimuth, degrees
  float AngleHaut = 0.0F; ///< height, degrees
  float AngleAD = 0.0F;   ///< right ascension, degrees; of the Moon hours
  float AngleDec = 0.0F;  ///< declination + 90, degrees
};

} // namespace velmaris
