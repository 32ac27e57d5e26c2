#pragma once

#include "shell/bureau/Bureau.hpp"

#include <optional>
#include <string_view>

namespace velmaris {

/// The size that a user has given to a window beside the main one, pixels of the toolkit.
struct TailleFenetre {
  int largeur = 0;
  int hauteur = 0;
  bool operator==(const TailleFenetre &) const = default;
};

/// The kept size of a window, as large on this screen as it was on the one that it was given on.
/// @param fenetre  its name
/// @return none where its user has given it none
std::optional<TailleFenetre> TailleGardee(const Bureau &bureau, std::string_view fenetre);

/// Keeps the size of a window for its next opening.
void GardeTaille(Bureau &bureau, std::string_view fenetre, TailleFenetre taille);

} // namespace velmaris
