#pragma once

#include "complements/almanach/Almanach.hpp"
#include "complements/papier/Feuillet.hpp"

#include <array>
#include <atomic>
#include <cstddef>
#include <memory>
#include <stop_token>
#include <string>
#include <vector>

namespace velmaris {

using Feuillets = std::vector<Feuillet>;

/// The pages of one tab.
struct PagesOuvertes {
  std::shared_ptr<const Feuillets> pages; ///< none before there are any
  std::size_t rang = 0;                   ///< of the one that is looked at
  std::string pour;                       ///< what they were made of, as `CleDesPages` tells it
};

/// The weather of a day, as it was typed.
struct MeteoDuJour {
  std::string jour; ///< "21/06/2026"
  std::array<std::string, 6> champs;
};

/// Printed pages as their window shows them.
struct PapierOuvert {
  std::array<PagesOuvertes, 4> onglets;     ///< in the order of `OngletPapier`
  std::shared_ptr<const Almanach> almanach; ///< whose pages the first one's are
  std::stop_source arret;                   ///< of the work that is under way
  std::string demandee;                     ///< what the last work was asked for, as `CleDesPages` tells it
  std::string jours;                        ///< of that, what only figures depend on
  bool enCalcul = false;                    ///< the almanac is being worked out
  bool enEcriture = false;                  ///< pages are being written into a file
  /// How far the work is, in thousandths; the worker tells it.
  std::shared_ptr<std::atomic<int>> millieme = std::make_shared<std::atomic<int>>(0);
  std::vector<MeteoDuJour> meteos; ///< of days with words, the one looked at last at the end
  std::string jourMeteo;           ///< whose weather the fields hold; empty before there is a day
  bool meteoReprise = false;       ///< those of earlier starts have come
  bool aMontrer = true;            ///< something has changed that the window doesn't show yet
  std::string langue;              ///< that its words are in
};

} // namespace velmaris
