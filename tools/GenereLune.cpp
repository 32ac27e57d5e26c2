// Makes the Moon's table of the complements from the whole theory of libnova: ELP 2000-82B, 5 ms a place.
//
//   genere-lune [PREMIER NOMBRE]    writes the table, or so many of its rows without the heading, to standard output
//
// No build runs it: what it wrote stands in complements/ciel/tables. It takes ten minutes, halves run side by side.

#include <libnova/libnova.h>

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <numbers>
#include <string_view>

namespace {

constexpr double kDebut = 2415012.5;  ///< TT, eight days before 1900
constexpr int kSegments = 9179;       ///< to eight days and a little after 2100
constexpr double kJours = 8;          ///< a segment
constexpr std::size_t kDegres = 13;   ///< coefficients a coordinate
constexpr double kMetresParKm = 1000; ///< the unit of the table is a metre
constexpr std::size_t kCoordonnees = 3;

using Coordonnees = std::array<double, kCoordonnees>;
using Coefficients = std::array<std::array<double, kDegres>, kCoordonnees>;

Coordonnees Place(double jd) {
  ln_rect_posn p{};
  ln_get_lunar_geo_posn(jd, &p, 0);
  return {p.X * kMetresParKm, p.Y * kMetresParKm, p.Z * kMetresParKm};
}

/// The polynomial through the places at the extrema of the last Chebyshev polynomial, ends included.
Coefficients Ajuste(double debut) {
  constexpr std::size_t n = kDegres - 1;
  std::array<Coordonnees, kDegres> places{};
  for (std::size_t k = 0; k <= n; ++k) {
    const double x = std::cos(std::numbers::pi * static_cast<double>(k) / static_cast<double>(n));
    places[k] = Place(debut + kJours / 2 * (1 + x));
  }
  Coefficients c{};
  for (std::size_t axe = 0; axe < kCoordonnees; ++axe) {
    for (std::size_t j = 0; j <= n; ++j) {
      double somme = 0;
      for (std::size_t k = 0; k <= n; ++k) {
        const double bord = k == 0 || k == n ? 0.5 : 1.0;
        somme +=
            bord * places[k][axe] * std::cos(std::numbers::pi * static_cast<double>(j * k) / static_cast<double>(n));
      }
      c[axe][j] = somme * (j == 0 || j == n ? 1.0 : 2.0) / static_cast<double>(n);
    }
  }
  return c;
}

void EcritEntete() {
  std::printf("# The Moon from the Earth's centre, mean ecliptic and inertial mean equinox of J2000.0, metres.\n"
              "# Fitted by tools/GenereLune to ELP 2000-82B as libnova 0.16 has it, untruncated.\n"
              "# Chapront-Touze M., Chapront J. (1983), Astron. Astrophys. 124, 50; catalogue VI/79.\n"
              "# A row holds eight days of TT: coefficients of the Chebyshev polynomials T0 to T12 on [-1, 1] for X, "
              "then Y, then Z.\n"
              "# The first line tells the first day, the length in days, the rows, and the coefficients a coordinate.\n"
              "%.1f %g %d %zu\n",
              kDebut, kJours, kSegments, kDegres);
}

bool LitEntier(std::string_view texte, int &valeur) {
  const auto [fin, code] = std::from_chars(texte.data(), texte.data() + texte.size(), valeur);
  return code == std::errc() && fin == texte.data() + texte.size() && valeur >= 0 && valeur <= kSegments;
}

} // namespace

int main(int argc, char **argv) {
  int premier = 0;
  int nombre = kSegments;
  if (argc == 1) {
    EcritEntete();
  } else if (argc != 3 || !LitEntier(argv[1], premier) || !LitEntier(argv[2], nombre) || premier + nombre > kSegments) {
    std::fputs("usage: genere-lune [PREMIER NOMBRE]\n", stderr);
    return 2;
  }
  for (int i = premier; i < premier + nombre; ++i) {
    std::string_view separe;
    for (const auto &axe : Ajuste(kDebut + kJours * i)) {
      for (const double c : axe) {
        std::printf("%.*s%ld", static_cast<int>(separe.size()), separe.data(), std::lround(c));
        separe = " ";
      }
    }
    std::printf("\n");
  }
  return std::fflush(stdout) == 0 && std::ferror(stdout) == 0 ? 0 : 1;
}
