#pragma once

#include "complements/ciel/TablesCiel.hpp"

#include <cstdint>

/// Sums of cosines, the work of every place. They are worked out two or four at a time where the processor can, by the
/// C library's vector functions; the three ways agree within the rounding of their last digits.
namespace velmaris {

/// How many cosines are worked out at once.
enum class Voie : std::uint8_t { Une, Deux, Quatre };

/// The widest way that this processor has.
Voie VoieDuProcesseur();

/// The sum of A cos(B + C t) over the first terms of a column.
/// @param t       thousands of Julian years
/// @param limite  how many terms, rounded up to a multiple of four
/// @param voie    one that the processor has
double SommeCosinus(const TermesCiel &termes, double t, std::size_t limite, Voie voie);

/// The ways by themselves; n is a multiple of four, the columns begin on 32-byte boundaries.
double SommeUne(const double *A, const double *B, const double *C, std::size_t n, double t);
double SommeDeux(const double *A, const double *B, const double *C, std::size_t n, double t);
double SommeQuatre(const double *A, const double *B, const double *C, std::size_t n, double t);

} // namespace velmaris
