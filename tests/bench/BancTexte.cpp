#include "Mesure.hpp"
#include "foundations/TexteNombre.hpp"

#include <array>
#include <charconv>
#include <cstdio>

namespace velmaris {
namespace {

/// Figures like those of a sight: angles, minutes, small corrections.
const volatile double kFigures[] = {48.3333333333333, 0.0174532925199433, 359.999987, -12.5, 2461212.5, 0.267};

/// The next figure, in turn, read afresh so that no compiler knows it.
double Figure(std::size_t &rang) { return kFigures[rang++ % std::size(kFigures)]; }

/// General text of a 64-bit figure, against the library's conversion to the same digits.
void TexteGeneral64(benchmark::State &etat) {
  std::size_t rang = 0;
  const auto borne = [&] {
    std::array<char, 40> tampon{};
    benchmark::DoNotOptimize(
        std::to_chars(tampon.data(), tampon.data() + tampon.size(), Figure(rang), std::chars_format::general, 15));
    benchmark::DoNotOptimize(tampon);
  };
  Compare(
      etat, [&] { benchmark::DoNotOptimize(TexteGeneral(Figure(rang))); }, borne);
}
BENCHMARK(TexteGeneral64);

/// General text of a 32-bit figure, against the library's conversion to the same digits.
void TexteGeneral32(benchmark::State &etat) {
  std::size_t rang = 0;
  const auto borne = [&] {
    std::array<char, 40> tampon{};
    benchmark::DoNotOptimize(std::to_chars(tampon.data(), tampon.data() + tampon.size(),
                                           static_cast<float>(Figure(rang)), std::chars_format::general, 7));
    benchmark::DoNotOptimize(tampon);
  };
  Compare(
      etat, [&] { benchmark::DoNotOptimize(TexteGeneral(static_cast<float>(Figure(rang)))); }, borne);
}
BENCHMARK(TexteGeneral32);

/// A figure under a mask, against the C library's two decimals.
void FormatMasque(benchmark::State &etat) {
  std::size_t rang = 0;
  const auto borne = [&] {
    std::array<char, 40> tampon{};
    benchmark::DoNotOptimize(std::snprintf(tampon.data(), tampon.size(), "%05.2f", Figure(rang)));
    benchmark::DoNotOptimize(tampon);
  };
  Compare(
      etat, [&] { benchmark::DoNotOptimize(Format(Figure(rang), "00.00")); }, borne);
}
BENCHMARK(FormatMasque);

/// The number at the start of a text, against the library's conversion.
void LectureVal(benchmark::State &etat) {
  std::array<std::string, 3> textes = {"48.3333333333333", " 07'", "-12.5E-3"};
  std::size_t rang = 0;
  const auto borne = [&] {
    const std::string &texte = textes[rang++ % textes.size()];
    double valeur = 0.0;
    benchmark::DoNotOptimize(std::from_chars(texte.data(), texte.data() + texte.size(), valeur));
    benchmark::DoNotOptimize(valeur);
  };
  Compare(
      etat, [&] { benchmark::DoNotOptimize(Val(textes[rang++ % textes.size()])); }, borne);
}
BENCHMARK(LectureVal);

} // namespace
} // namespace velmaris
