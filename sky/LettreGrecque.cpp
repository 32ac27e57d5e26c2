#include "sky/LettreGrecque.hpp"

#include <array>
#include <cstddef>

namespace velmaris {

std::string_view LettreGrecque(std::string_view lettre) {
  // j and v have the two letters' other shapes: the open phi and the curled pi.
  constexpr std::array<std::string_view, 26> kLettres = {"α", "β", "χ", "δ", "ε", "φ", "γ", "η", "ι",
                                                         "ϕ", "κ", "λ", "μ", "ν", "ο", "π", "θ", "ρ",
                                                         "σ", "τ", "υ", "ϖ", "ω", "ξ", "ψ", "ζ"};
  if (lettre.size() != 1 || lettre[0] < 'a' || lettre[0] > 'z') {
    return lettre;
  }
  return kLettres.at(static_cast<std::size_t>(lettre[0] - 'a'));
}

} // namespace velmaris
