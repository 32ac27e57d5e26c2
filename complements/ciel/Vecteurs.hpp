#pragma once

#include <array>
#include <cmath>
#include <cstddef>

namespace velmaris {

using Vecteur3 = std::array<double, 3>;
using Matrice3 = std::array<std::array<double, 3>, 3>;

/// a + k b
inline Vecteur3 Ajoute(const Vecteur3 &a, double k, const Vecteur3 &b) {
  return {a[0] + k * b[0], a[1] + k * b[1], a[2] + k * b[2]};
}

inline double Scalaire(const Vecteur3 &a, const Vecteur3 &b) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }

inline double Longueur(const Vecteur3 &a) { return std::sqrt(Scalaire(a, a)); }

/// k a
inline Vecteur3 Fois(double k, const Vecteur3 &a) { return {k * a[0], k * a[1], k * a[2]}; }

/// The direction of a vector that isn't zero.
inline Vecteur3 Unitaire(const Vecteur3 &a) { return Fois(1 / Longueur(a), a); }

/// Product of a matrix and a vector.
inline Vecteur3 Tourne(const Matrice3 &m, const Vecteur3 &v) {
  return {Scalaire(m[0], v), Scalaire(m[1], v), Scalaire(m[2], v)};
}

/// Product of the transposed matrix and a vector.
inline Vecteur3 TourneInverse(const Matrice3 &m, const Vecteur3 &v) {
  return Ajoute(Ajoute(Fois(v[0], m[0]), v[1], m[1]), v[2], m[2]);
}

/// Product of two matrices.
inline Matrice3 Produit(const Matrice3 &a, const Matrice3 &b) {
  return {TourneInverse(b, a[0]), TourneInverse(b, a[1]), TourneInverse(b, a[2])};
}

} // namespace velmaris
