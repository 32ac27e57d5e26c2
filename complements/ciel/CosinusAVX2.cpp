#include "complements/ciel/Cosinus.hpp"

#if defined(__x86_64__) && defined(__GLIBC__)

#include <immintrin.h>

// The C library's cosine of four figures, which its header declares for compilers with fast-math alone.
extern "C" __attribute__((target("avx2,fma"))) __m256d _ZGVdN4v_cos(__m256d x); // NOLINT(bugprone-reserved-identifier)

namespace velmaris {

__attribute__((target("avx2,fma"))) double SommeQuatre(const double *A, const double *B, const double *C, std::size_t n,
                                                       double t) {
  const __m256d temps = _mm256_set1_pd(t);
  __m256d somme = _mm256_setzero_pd();
  for (std::size_t i = 0; i < n; i += 4) {
    const __m256d argument = _mm256_add_pd(_mm256_load_pd(B + i), _mm256_mul_pd(_mm256_load_pd(C + i), temps));
    somme = _mm256_add_pd(somme, _mm256_mul_pd(_mm256_load_pd(A + i), _ZGVdN4v_cos(argument)));
  }
  alignas(__m256d) double parts[4];
  _mm256_store_pd(parts, somme);
  return (parts[0] + parts[1]) + (parts[2] + parts[3]);
}

} // namespace velmaris

#else

namespace velmaris {

double SommeQuatre(const double *A, const double *B, const double *C, std::size_t n, double t) {
  return SommeUne(A, B, C, n, t);
}

} // namespace velmaris

#endif
