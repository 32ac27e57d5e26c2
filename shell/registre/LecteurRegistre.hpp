#pragma once

#include "complements/registre/Annotations.hpp"
#include "complements/registre/Rangee.hpp"
#include "shell/bureau/Bureau.hpp"

#include <array>
#include <memory>
#include <optional>
#include <string>

namespace velmaris {

/// The words of one row of the log, column by column.
using MotsRangee = std::array<std::string, kColonnesRegistre>;

/// Puts a row into words: date and time as typed, body in the language of the moment, reading, intercept and azimuth
/// as told, today's intercept with the difference in parentheses (with "!" over 1.5 miles), note.
/// @param annotation  what the user has said of it
MotsRangee MotsDeRangee(const Bureau &bureau, const Rangee &rangee, const Annotation &annotation);

/// The rows that the log's window shows, read as they come into sight. It reads the log's present state.
std::shared_ptr<const LecteurLignes> LecteurDuRegistre(const Bureau &bureau);

/// A shown row's place in the log.
/// @param ligne  under the number of shown rows
std::size_t RangMontre(const RegistreOuvert &registre, std::size_t ligne);

/// What the user has said of a row; nothing said shows it without a note.
Annotation AnnotationDe(const RegistreOuvert &registre, const std::string &identite);

} // namespace velmaris
