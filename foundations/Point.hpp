#pragma once

namespace velmaris {

/// A point of a surface, in 1/1440 inch, y growing downward.
struct Point {
  double x = 0.0;
  double y = 0.0;
  bool operator==(const Point &) const = default;
};

} // namespace velmaris
