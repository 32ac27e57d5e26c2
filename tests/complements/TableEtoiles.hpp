#pragma once

#include "ephemerides/Etoiles.hpp"

#include <string>
#include <vector>

namespace velmaris::essais {

/// The star table, split once.
inline const Etoiles &Table() {
  static const Etoiles etoiles = [] {
    Etoiles table;
    std::vector<std::string> noms;
    ChargeEtoiles(table, noms);
    return table;
  }();
  return etoiles;
}

} // namespace velmaris::essais
