#include "complements/ciel/Cosinus.hpp"

#include <algorithm>
#include <cmath>

namespace velmaris {

Voie VoieDuProcesseur() {
#if defined(__x86_64__) && defined(__GLIBC__)
  return __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma") ? Voie::Quatre : Voie::Deux;
#else
  return Voie::Une;
#endif
}

double SommeUne(const double *A, const double *B, const double *C, std::size_t n, double t) {
  double somme = 0;
  for (std::size_t i = 0; i < n; ++i) {
    somme += A[i] * std::cos(B[i] + C[i] * t);
  }
  return somme;
}

double SommeCosinus(const TermesCiel &termes, double t, std::size_t limite, Voie voie) {
  const std::size_t n = std::min(termes.A.size(), (limite + 3) / 4 * 4);
  const double *const A = termes.A.data();
  const double *const B = termes.B.data();
  const double *const C = termes.C.data();
  switch (voie) {
  case Voie::Quatre:
    return SommeQuatre(A, B, C, n, t);
  case Voie::Deux:
    return SommeDeux(A, B, C, n, t);
  case Voie::Une:
    break;
  }
  return SommeUne(A, B, C, n, t);
}

} // namespace velmaris
