#pragma once

#include "complements/registre/Annotations.hpp"
#include "complements/registre/FiltreRegistre.hpp"
#include "complements/registre/Montre.hpp"
#include "complements/registre/RegistreLu.hpp"
#include "foundations/Patience.hpp"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace velmaris {

/// Lines that are to be appended to a file of the user's data folder, and wait while another program holds it.
struct LignesEnAttente {
  std::vector<std::string> lignes; ///< in their order
  Patience patience;               ///< with that program
  bool refusDit = false;           ///< that the file can't be written has been told
};

/// The log, as its window shows it and the fix takes sights from it.
struct RegistreOuvert {
  std::shared_ptr<const RegistreLu> lu;                     ///< none before a first reading
  std::shared_ptr<const Annotations> annotations;           ///< never none once there is a reading
  std::vector<ReleveMontre> montre;                         ///< the watch, in the order of time
  std::uint64_t versionMontre = 0;                          ///< another one as soon as `montre` is
  std::shared_ptr<const std::vector<std::size_t>> montrees; ///< rows that the filters let through
  std::vector<std::string> auPoint;                         ///< identities of the sights that the fix is to be made of
  std::string noteDe;                                       ///< identity of the row whose note is in its field
  /// Number of the last reading that was asked for: an earlier one that is under way sees that it isn't wanted.
  std::shared_ptr<std::atomic<std::uint64_t>> demande = std::make_shared<std::atomic<std::uint64_t>>(0);
  std::uint64_t rendue = 0; ///< number of the last one that has come
  LignesEnAttente masques;  ///< of "masques.csv"
  LignesEnAttente releves;  ///< of "montre.csv"
};

} // namespace velmaris
