#pragma once

#include "../TableEtoiles.hpp"
#include "complements/almanach/Almanach.hpp"
#include "complements/almanach/TablesAlmanach.hpp"
#include "complements/ciel/EtapesHauteur.hpp"

#include <vector>

/// A sight worked with the almanac's printed figures alone: every figure is rounded as it stands on the pages, every
/// sum is one of rounded figures.
namespace velmaris::essais {

/// A sight as the navigator has it.
struct ViseeMain {
  Astre astre{};
  DateCivile utc{};         ///< whole seconds
  double latitude = 0;      ///< of the estimated position, degrees, tenths of minutes
  double longitude = 0;     ///< the same, east positive
  LectureSextant sextant{}; ///< without arc errors, off the sea's horizon; its reading is in tenths of minutes
};

/// What comes out.
struct ResultatMain {
  long gha = 0;         ///< tenths of a minute
  long declinaison = 0; ///< tenths of a minute
  long Hc = 0;          ///< tenths of a minute
  long Ho = 0;          ///< tenths of a minute
  double azimut = 0;    ///< degrees
  double intercept = 0; ///< miles
};

/// Works a sight by the page of instructions.
ResultatMain ReduisALaMain(const Almanach &almanach, const ViseeMain &visee);

/// Latitude by Polaris, tenths of a minute.
long LatitudePolaireALaMain(const Almanach &almanach, const ViseeMain &visee);

/// An entry between two of a table, rounded to whole units.
long Entre(const std::vector<double> &x, const std::vector<long> &y, double valeur);
long Entre(const TableDouble &table, double x, double y);

} // namespace velmaris::essais
