#include "chart/Polygones.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"

#include <algorithm>
#include <array>
#include <cstdint>

namespace velmaris {
namespace {

constexpr int kHorsTable = 9;
constexpr int kChiffresSurs =
    15; ///< digits whose whole number, and its quotient by a power of ten, are exact in 64 bits

constexpr std::array<double, kChiffresSurs + 1> kDix = {1E0, 1E1, 1E2,  1E3,  1E4,  1E5,  1E6,  1E7,
                                                        1E8, 1E9, 1E10, 1E11, 1E12, 1E13, 1E14, 1E15};

bool FinDeLigne(char c) { return c == '\n' || c == '\r'; }

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
