#pragma once

#include "chart/Polygones.hpp"
#include "foundations/Erreur.hpp"
#include "shell/bureau/Bureau.hpp"

#include <cstddef>
#include <future>
#include <optional>
#include <string_view>
#include <vector>

namespace velmaris {

/// A polygon file as it was read, or why it wasn't.
struct PolygoneLu {
  TerresLues fichier; ///< its size and time before it was read: one that changes meanwhile is another; no outlines
  Polygone polygone;
  std::size_t points = 0;
  bool ouvert = false;         ///< the file was there; a failure came after that
  std::optional<Erreur> refus; ///< what could not be done
};

/// Polygon files that are being read, in the order in which they were asked for.
using LecturesCarte = std::vector<std::future<PolygoneLu>>;

/// Has polygon files read and turned into points, each on a thread of its own but the first, which waits for the one
/// that asks for it. Nothing of the desktop is touched.
/// @param dossiers  where they may lie
/// @param noms      without folders
LecturesCarte LancePolygones(const Dossiers &dossiers, const std::vector<std::string_view> &noms);

} // namespace velmaris
