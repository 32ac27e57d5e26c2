#include "complements/point/Croisements.hpp"

#include "complements/point/Sphere.hpp"

#include <algorithm>
#include <cmath>

namespace velmaris {

std::optional<Croisement> CroiseCercles(const CercleHauteur &a, const CercleHauteur &b) {
  constexpr double kMemeCentre = 1E-12;
  const Vecteur3 u = DirectionDe(a.sous);
  const Vecteur3 v = DirectionDe(b.sous);
  const Vecteur3 normale = ProduitVectoriel(u, v);
  const double carre = Scalaire(normale, normale);
  if (!(carre > kMemeCentre)) {
    return std::nullopt;
  }
  const double c = Scalaire(u, v);
  const double sa = std::sin(a.hauteur * kRadian);
  const double sb = std::sin(b.hauteur * kRadian);
  const Vecteur3 pied = Ajoute(Fois((sa - c * sb) / carre, u), (sb - c * sa) / carre, v);
  const double reste = (1 - Scalaire(pied, pied)) / carre;
  const double k = std::sqrt(std::max(reste, 0.0));
  return Croisement{{LieuDe(Ajoute(pied, k, normale)), LieuDe(Ajoute(pied, -k, normale))}, reste >= 0};
}

CerclePret PretDe(const CercleHauteur &cercle) {
  return {DirectionDe(cercle.sous), std::sin(cercle.hauteur * kRadian), std::cos(cercle.hauteur * kRadian)};
}

double FranchiseCroisement(const CerclePret &a, const CerclePret &b) {
  const double produit = a.cosinus * b.cosinus;
  if (!(produit > 0)) {
    return 0;
  }
  const double cosinus = (Scalaire(a.sous, b.sous) - a.sinus * b.sinus) / produit;
  return std::sqrt(std::max(1 - cosinus * cosinus, 0.0));
}

CercleHauteur TourneCercle(const CercleHauteur &cercle, const LieuNavire &de, const LieuNavire &a) {
  const Vecteur3 u = DirectionDe(de);
  const Vecteur3 v = DirectionDe(a);
  const Vecteur3 x = DirectionDe(cercle.sous);
  const Vecteur3 axe = ProduitVectoriel(u, v);
  const double c = Scalaire(u, v);
  Vecteur3 tourne = Ajoute(Fois(c, x), 1, ProduitVectoriel(axe, x));
  tourne = Ajoute(tourne, Scalaire(axe, x) / std::max(1 + c, 1E-9), axe);
  return {LieuDe(tourne), cercle.hauteur};
}

} // namespace velmaris
