#include "chart/Polygones.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

namespace velmaris {
namespace {

constexpr int kHorsTable = 9;
constexpr int kChiffresSurs =
    15; ///< digits whose whole number, and its quotient by a power of ten, are exact in 64 bits

constexpr std::array<double, kChiffresSurs + 1> kDix = {1E0, 1E1, 1E2,  1E3,  1E4,  1E5,  1E6,  1E7,
                                                        1E8, 1E9, 1E10, 1E11, 1E12, 1E13, 1E14, 1E15};

bool FinDeLigne(char c) { return c == '\n' || c == '\r'; }

/// The digits at the start of eight characters, taken together.
/// @param octets  characters, the first in the low byte
/// @param nombre  gets how many they are
/// @return their whole number, for up to seven of them
std::uint64_t ChiffresEnTete(std::uint64_t octets, unsigned &nombre) {
  std::uint64_t valeurs = octets ^ 0x3030303030303030U;
  const std::uint64_t autres = ((valeurs + 0x7676767676767676U) | valeurs) & 0x8080808080808080U;
  nombre = static_cast<unsigned>(std::countr_zero(autres)) / 8U; // 8 without any other character
  valeurs = nombre == 0 ? 0 : valeurs << (64U - 8U * nombre);    // zeros in front
  valeurs = valeurs * 10 + (valeurs >> 8U);
  return (((valeurs & 0x000000FF000000FFU) * 0x000F424000000064U) +
          (((valeurs >> 16U) & 0x000000FF000000FFU) * 0x0000271000000001U)) >>
         32U;
}

/// The plainest number: one digit, a point, one to seven digits, with more of the text behind. Nearly all of a polygon
/// file is made of these, so that no call stands between two of them.
/// @param p  the text; left after the number if there is one
[[gnu::always_inline]] inline bool LitFraction(const char *&p, const char *fin, float &valeur) {
  constexpr std::ptrdiff_t kLus = 10; // characters looked at
  if (std::endian::native != std::endian::little || fin - p < kLus || p[0] < '0' || p[0] > '9' || p[1] != '.') {
    return false;
  }
  std::uint64_t octets = 0;
  std::memcpy(&octets, p + 2, sizeof octets);
  unsigned decimales = 0;
  const std::uint64_t chiffres = ChiffresEnTete(octets, decimales);
  if (decimales == 0 || decimales == sizeof octets) {
    return false;
  }
  const double dix = kDix[decimales];
  valeur = static_cast<float>(((p[0] - '0') * dix + static_cast<double>(chiffres)) / dix);
  p += 2 + decimales;
  return true;
}

/// A plain number, of a few digits with at most one point and no sign: what polygon files are made of.
/// @param p  the text; left after the number
/// @return whether there is one; its value is the number nearest to the text, rounded once more into 32 bits
bool LitNombreSimple(const char *&p, const char *fin, float &valeur) {
  std::uint64_t chiffres = 0;
  const char *premier = p;
  for (; p != fin && *p >= '0' && *p <= '9'; ++p) {
    chiffres = chiffres * 10 + static_cast<std::uint64_t>(*p - '0');
  }
  auto nombre = p - premier;
  std::ptrdiff_t decimales = 0;
  if (p != fin && *p == '.') {
    const char *apres = ++p;
    for (; p != fin && *p >= '0' && *p <= '9'; ++p) {
      chiffres = chiffres * 10 + static_cast<std::uint64_t>(*p - '0');
    }
    decimales = p - apres;
  }
  nombre += decimales;
  if (nombre == 0 || nombre > kChiffresSurs) {
    return false;
  }
  valeur = static_cast<float>(static_cast<double>(chiffres) / kDix[static_cast<std::size_t>(decimales)]);
  return true;
}

/// One point.
/// @param p  the start of a line; left at the line's end when it is a plain one
/// @return whether the line holds two plain numbers and nothing else
bool LitPointSimple(const char *&p, const char *fin, float &x, float &y) {
  const char *suite = p;
  if (LitFraction(suite, fin, x) && *suite == ' ') {
    ++suite;
    if (LitFraction(suite, fin, y) && FinDeLigne(*suite)) {
      p = suite;
      return true;
    }
  }
  if (!LitNombreSimple(p, fin, x) || p == fin || *p != ' ') {
    return false;
  }
  ++p;
  return LitNombreSimple(p, fin, y) && (p == fin || FinDeLigne(*p));
}

/// Any other line.
void LitPoint(std::string_view ligne, float &x, float &y) {
  const std::size_t p = std::min(ligne.find(' ') + 1, ligne.size()); // 0 without a blank
  x = Simple(Val(ligne.substr(0, p)));
  y = Simple(Val(ligne.substr(p)));
}

} // namespace

void Vide(Polygone &polygone) {
  std::fill(polygone.PolyX.begin(), polygone.PolyX.end(), 0.0F);
  std::fill(polygone.PolyY.begin(), polygone.PolyY.end(), 0.0F);
}

std::size_t LitPolygone(Polygone &polygone, std::string_view octets) {
  const char *p = octets.data();
  const char *fin = p + octets.size();
  std::size_t n = 0;
  while (p != fin) {
    if (n == kPointsPolygone) {
      throw Erreur(kHorsTable);
    }
    const char *ligne = p;
    if (!LitPointSimple(p, fin, polygone.PolyX[n], polygone.PolyY[n])) {
      p = std::find_if(ligne, fin, FinDeLigne);
      LitPoint({ligne, static_cast<std::size_t>(p - ligne)}, polygone.PolyX[n], polygone.PolyY[n]);
    }
    ++n;
    if (p != fin) {
      p += *p == '\r' && p + 1 != fin && p[1] == '\n' ? 2 : 1;
    }
  }
  return n;
}

} // namespace velmaris
