#pragma once

#include "complements/almanach/Almanach.hpp"
#include "complements/papier/MiseEnPage.hpp"

#include <vector>

/// The parts of an almanac, without their feet.
namespace velmaris {

/// Which almanac, in which words, on which paper.
struct CadreAlmanach {
  const Almanach &almanach;
  const MotsAlmanach &mots;
  FormatPapier format;
};

/// What the almanac holds and how a sight is worked with it.
Feuillet PageEmploi(const CadreAlmanach &cadre);

/// Left page of some days: Aries, planets, stars.
Feuillet PagePlanetes(const CadreAlmanach &cadre, const PeriodeAlmanach &periode);

/// Right page: Sun, Moon, twilights, rises and sets.
Feuillet PageSoleilLune(const CadreAlmanach &cadre, const PeriodeAlmanach &periode);

/// Corrections of altitude, dip and air; the Moon's; of Sun and Polaris those columns that the almanac's days need.
std::vector<Feuillet> PagesCorrections(const CadreAlmanach &cadre);
std::vector<Feuillet> PagesLune(const CadreAlmanach &cadre);
std::vector<Feuillet> PagesPolaire(const CadreAlmanach &cadre);

/// Haversines and logarithms of cosines.
std::vector<Feuillet> PagesTriangle(const CadreAlmanach &cadre);

/// Increments and corrections for v and d: three minutes a page.
std::vector<Feuillet> PagesIncrements(const CadreAlmanach &cadre);

/// Semidiameters of the Sun, tenths of a minute, that stand on the pages of its days, from the least to the greatest.
std::vector<long> DemiDiametresSoleil(const Almanach &almanach);

/// Distances of Polaris from the pole, tenths of a minute, the same.
std::vector<long> DistancesPolaire(const Almanach &almanach);

} // namespace velmaris
