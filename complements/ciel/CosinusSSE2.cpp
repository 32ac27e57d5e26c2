#include "complements/ciel/Cosinus.hpp"

#if defined(__x86_64__) && defined(__GLIBC__)

#include <immintrin.h>

// The C library's cosine of two figures, which its header declares for compilers with fast-math alone.
extern "C" __attribute__((target("sse2"))) __m128d _ZGVbN2v_cos(__m128d x); // NOLINT(bugprone-reserved-identifier)

namespace velmaris {

__attribute__((target("sse2"))) double SommeDeux(const double *A, const double *B, const double *C, std::size_t n,
                                                 double t) {
  const __m128d temps = _mm_set1_pd(t);
  __m128d somme = _mm_setzero_pd();
  for (std::size_t i = 0; i < n; i += 2) {
    const __m128d argument = _mm_add_pd(_mm_load_pd(B + i), _mm_mul_pd(_mm_load_pd(C + i), temps));
    somme = _mm_add_pd(somme, _mm_mul_pd(_mm_load_pd(A + i), _ZGVbN2v_cos(argument)));
  }
  alignas(__m128d) double parts[2];
  _mm_store_pd(parts, somme);
  return parts[0] + parts[1];
}

} // namespace velmaris

#else

namespace velmaris {

double SommeDeux(const double *A, const double *B, const double *C, std::size_t n, double t) {
  return SommeUne(A, B, C, n, t);
}

} // namespace velmaris

#endif
