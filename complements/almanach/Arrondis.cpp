#include "complements/almanach/Arrondis.hpp"

#include <cstdlib>

namespace velmaris {
namespace {

/// A number with leading signs.
std::string Rempli(long n, int places, char avec) {
  std::string texte = std::to_string(n);
  const auto manque = static_cast<std::size_t>(places);
  return texte.size() < manque ? std::string(manque - texte.size(), avec) + texte : texte;
}

} // namespace

std::string TexteDixiemes(long dixiemes, char virgule) {
  const long n = std::labs(dixiemes);
  return (dixiemes < 0 ? "-" : "") + std::to_string(n / 10) + virgule + std::to_string(n % 10);
}

std::string TexteAngle(long dixiemes, char virgule, int places) {
  constexpr long kDegre = 600;
  const long minutes = dixiemes % kDegre;
  return Rempli(dixiemes / kDegre, places, ' ') + ' ' + Rempli(minutes / 10, 2, '0') + virgule +
         std::to_string(minutes % 10);
}

std::string TexteDeclinaison(long dixiemes, char virgule) {
  const long n = std::labs(dixiemes);
  return (dixiemes < 0 ? "S " : "N ") + std::string(n < 6000 ? "0" : "") + TexteAngle(n, virgule, 1);
}

std::string TexteHeureMinutes(long minutes) {
  return Rempli(minutes / 60, 2, '0') + ' ' + Rempli(minutes % 60, 2, '0');
}

std::string TexteEquation(double secondes) {
  const long s = std::lround(secondes);
  const long n = std::labs(s);
  return (s < 0 ? "-" : "+") + Rempli(n / 60, 2, '0') + ':' + Rempli(n % 60, 2, '0');
}

} // namespace velmaris
