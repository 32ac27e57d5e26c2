#pragma once

#include "complements/papier/Feuillet.hpp"
#include "complements/papier/FicheCalcul.hpp"

#include <array>
#include <string>
#include <vector>

namespace velmaris {

inline constexpr std::size_t kEtapesCalcul = static_cast<std::size_t>(EtapeFiche::Intercept) + 1;
inline constexpr std::size_t kPartiesFiche = 4; ///< the sight, the height, the almanac, the reduction

/// The words of a form.
struct MotsFiche {
  std::string titre;
  std::string reponses; ///< title of the answers' page
  std::array<std::string, kPartiesFiche> parties;
  std::array<std::string, kEtapesCalcul> etapes; ///< in the order of `EtapeFiche`
  std::array<std::string, kEtapesCalcul> regles; ///< how the step is done, the same
  std::array<std::string, 3> bords;              ///< in the order of `Contact`
  std::string vers;                              ///< towards the body
  std::string depuis;                            ///< away from it
  std::string controle;                          ///< before the intercept without roundings
  std::string pied;                              ///< of each page
};

/// The pages of a sight worked by hand: one that is filled in; or one with blanks for all that isn't the sight itself,
/// and the answers on a second one.
std::vector<Feuillet> PagesFiche(const FicheCalcul &fiche, bool blancs, FormatPapier format, const MotsFiche &mots);

} // namespace velmaris
