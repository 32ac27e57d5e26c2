#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

namespace velmaris {

/// First line of the file that hides and annotates rows.
extern const std::string_view kTitresMasques;

/// What the user has said of a row of the log. The row itself is never touched.
struct Annotation {
  bool masquee = false; ///< put away: shown only when hidden rows are asked for
  std::string note;
  bool operator==(const Annotation &) const = default;
};

/// By the rows' identities; a row that isn't there shows and bears no note.
using Annotations = std::unordered_map<std::string, Annotation>;

/// One line of the file: a row's whole state, which takes the place of what earlier lines say of it.
/// @param utc  when it was said, "2026-06-21T12:05:30Z"
std::string LigneAnnotation(std::string_view utc, const std::string &identite, const Annotation &annotation);

/// Reads that file. Later lines win; a broken or cut line is passed over.
/// @param octets  of the whole file
Annotations LitAnnotations(std::string_view octets);

} // namespace velmaris
