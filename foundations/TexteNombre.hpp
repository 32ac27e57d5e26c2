#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace velmaris {

/// Number at the start of a text: leading blanks skipped, a sign, digits with "." as the only point, an exponent.
/// The first other character ends it; a text without a number reads as 0.
/// @return the number; one past the range of 64 bits reads as the largest 64-bit value with its sign
double Val(std::string_view texte);

/// Largest whole number not above x.
double Int(double x);

/// x without its fraction, towards zero.
double Fix(double x);

/// Conversion to a 16-bit integer: to nearest, ties to even.
/// @throws Erreur 6 outside -32768 to 32767
std::int16_t Entier16(double x);

/// A number under a mask of "0", "#" and ".", with literal characters before and after.
/// Rounds half away from zero on the value's decimal text of 15 significant digits. "0" demands a digit, "#" shows one
/// only if there is one; a "#" right of a "0" before the point demands its digit. A negative value that rounds to zero
/// loses its sign; a mask with a point keeps the point.
/// @return the text, with "." as the decimal point
std::string Format(double valeur, std::string_view masque);

/// A text under a mask: formatted when it is wholly a number, else given back as it was.
/// @param signeDecimal  the decimal sign read and written: "." everywhere, "," for eye height and collimation
std::string Format(std::string_view texte, std::string_view masque, char signeDecimal = '.');

/// General number text of a 64-bit value: 15 significant digits, no trailing zeros, an exponent below 1E-04 and from
/// 1E+15 up; negative zero prints as 0.
std::string TexteGeneral(double valeur);

/// General number text of a 32-bit value: as for 64 bits with 7 significant digits, the exponent from 1E+07 up.
std::string TexteGeneral(float valeur);

/// General text of a 32-bit value with a decimal comma, the form that eye height and collimation hold.
std::string TexteVirgule(float valeur);

/// Conversion of a whole text with a decimal comma, the reading of eye height and collimation.
/// @throws Erreur 13 when the text is not wholly a number (a point, an empty text), 6 when it leaves 64 bits
double LitVirgule(std::string_view texte);

/// Conversion of a whole text with "." as its point.
/// @throws Erreur 13 when the text is not wholly a number (a comma, an empty text), 6 when it leaves 64 bits
double LitNombre(std::string_view texte);

/// A typed number with a comma taken for the point.
std::string AvecPoint(std::string_view texte);

/// Number of characters of a UTF-8 text.
std::size_t NombreCaracteres(std::string_view texte);

/// The first characters of a UTF-8 text.
std::string Gauche(std::string_view texte, std::size_t nombre);

/// A file's name without its last four characters, those of a three-letter extension and its point.
/// @return empty for a name of four characters or fewer
std::string SansExtension(std::string_view nom);

/// The last characters of a UTF-8 text.
std::string Droite(std::string_view texte, std::size_t nombre);

/// A text in capitals; letters beyond a to z stay.
std::string EnCapitales(std::string_view texte);

/// A text without its leading and trailing blanks.
std::string_view SansBlancs(std::string_view texte);

} // namespace velmaris
