#pragma once

#include <functional>
#include <vector>

namespace velmaris {

/// A place where a function goes through 0.
struct Traversee {
  double t = 0;
  bool monte = false; ///< from below
};

/// How a function is looked through.
struct Balayage {
  double de = 0;
  double a = 0;            ///< what is found lies in [de, a)
  double pas = 600;        ///< between two samples; the function is asked for one step outside on either side
  double pres = 0.5;       ///< highest and lowest points nearer to 0 than that are looked at closely
  double precision = 0.02; ///< of what is found
};

/// Where a smooth function goes through 0, also where it does so twice between two samples: its highest and lowest
/// points are sought by golden sections first.
/// @return in their order
std::vector<Traversee> TraverseesDe(const std::function<double(double)> &f, const Balayage &balayage);

} // namespace velmaris
