#pragma once

#include <array>
#include <exception>
#include <string_view>

namespace velmaris {

/// Numbers of the run-time errors: 5 invalid argument, 6 overflow, 9 subscript, 11 division by zero, 13 type mismatch,
/// 52 bad file name, 53 file not found, 75 path or file access.
inline constexpr std::array kErreursNommees{5, 6, 9, 11, 13, 52, 53, 75};

/// A run-time error of the number contract, known by its number.
struct Erreur : std::exception {
  explicit Erreur(int n) : numero(n) {}
  /// The French meaning of the number, as plain text.
  const char *what() const noexcept override;
  int numero;
};

/// The meaning of a run-time error, in French.
/// @param numero  the number of an Erreur; an unknown one gives a general text
/// @return a text that lives as long as the program
std::string_view SensErreur(int numero);

/// Quotient that fails where IEEE would give an infinity or a NaN.
/// @return numerateur / denominateur
/// @throws Erreur 11 when the denominator is zero, 6 when the quotient leaves 64 bits
double Divise(double numerateur, double denominateur);

/// Square root.
/// @throws Erreur 5 when x is negative or not a number
double Racine(double x);

/// Natural logarithm.
/// @throws Erreur 5 when x is zero, negative or not a number
double Log(double x);

/// Stores a 64-bit value in a 32-bit one: one rounding to nearest.
/// @throws Erreur 6 when the value leaves 32 bits
float Simple(double x);

/// Runs one statement and passes over its failure: what it assigns to keeps its value.
/// @param instruction  a callable that holds exactly one statement
/// @return true when the statement ran, false when it was passed over
template <class Instruction> bool Passe(Instruction &&instruction) {
  try {
    instruction();
    return true;
  } catch (const Erreur &) {
    return false;
  }
}

} // namespace velmaris
