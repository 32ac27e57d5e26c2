#include "complements/prevision/JeuxAstres.hpp"

#include "complements/point/HauteurPreparee.hpp"
#include "complements/point/Sphere.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

namespace velmaris {
namespace {

constexpr double kSansFin = std::numeric_limits<double>::infinity();
constexpr std::size_t kAvecCommune = 4; ///< from here on the common error is an unknown

/// Sums over a set: of the weights, of the directions by them, of the directions of twice the angle by them. Two
/// unknowns have the covariance's trace 4 W / (W^2 - |Z|^2); the common error takes |G|^2 / W off W and G^2 / W, as a
/// product of complex numbers, off Z.
struct Sommes {
  double W = 0;
  double Gx = 0, Gy = 0;
  double Zx = 0, Zy = 0;
};

Sommes Avec(const Sommes &a, const Sommes &b) {
  return {a.W + b.W, a.Gx + b.Gx, a.Gy + b.Gy, a.Zx + b.Zx, a.Zy + b.Zy};
}

Sommes SommesDe(const PoidsAstre &astre) {
  const double w = 1 / (astre.ecart * astre.ecart);
  const double a = astre.azimut * kRadian;
  return {w, w * std::cos(a), w * std::sin(a), w * std::cos(2 * a), w * std::sin(2 * a)};
}

/// The trace of an inverse whose matrix has the trace t and differs from a round one by z.
double TraceInverse(double t, double z2) {
  constexpr double kPresque = 1E-12; ///< of t squared: all in one direction but for rounding
  const double quatreDet = t * t - z2;
  return t > 0 && quatreDet > kPresque * t * t ? 4 * t / quatreDet : kSansFin;
}

double TraceDe(const Sommes &s, bool commune) {
  if (!commune) {
    return TraceInverse(s.W, s.Zx * s.Zx + s.Zy * s.Zy);
  }
  const double t = s.W - (s.Gx * s.Gx + s.Gy * s.Gy) / s.W;
  const double x = s.Zx - (s.Gx * s.Gx - s.Gy * s.Gy) / s.W;
  const double y = s.Zy - 2 * s.Gx * s.Gy / s.W;
  return TraceInverse(t, x * x + y * y);
}

/// Whether no set can come under a limit that holds a part and further weight of at most `reste`. Both bounds fall with
/// the weight that is added, which can shorten G and Z by no more than itself: the trace of the inverse of a matrix of
/// trace t is 4 / t at least, and a common error never makes a fix better.
bool EstSansEspoir(const Sommes &s, double reste, bool commune, double limite) {
  constexpr double kArrondi = 1 + 1E-12; // of the limit: equal sets aren't told apart by their last bits
  const double W = s.W + reste;
  const double rond = 4 / (limite * kArrondi); ///< the least trace of a matrix that comes under the limit
  if (!(W > rond)) {
    return true;
  }
  const auto depasse = [&](double x, double y, double borne2) {
    const double borne = std::sqrt(borne2) + reste;
    return x * x + y * y > borne * borne;
  };
  return depasse(s.Zx, s.Zy, W * (W - rond)) || (commune && depasse(s.Gx, s.Gy, W * (W - rond)));
}

/// One search for the sets of one count.
struct Recherche {
  std::span<const Sommes> astres;
  double poidsMax = 0;
  std::size_t nombre = 0;
  std::size_t garde = 0;
  std::array<std::size_t, 5> choisis{};
  double plafond = kSansFin;          ///< as many sets as are kept are known to be under it
  std::vector<JeuAstres> meilleurs{}; ///< the best first
};

double Limite(const Recherche &r) { return r.meilleurs.size() < r.garde ? r.plafond : r.meilleurs.back().trace; }

void Retient(Recherche &r, double trace) {
  const auto la = std::upper_bound(r.meilleurs.begin(), r.meilleurs.end(), trace,
                                   [](double t, const JeuAstres &jeu) { return t < jeu.trace; });
  const std::span<const std::size_t> choisis(r.choisis.data(), r.nombre);
  r.meilleurs.insert(la, {{choisis.begin(), choisis.end()}, trace});
  if (r.meilleurs.size() > r.garde) {
    r.meilleurs.pop_back();
  }
}

/// Looks at all sets that begin with `faits` chosen bodies, whose sums are known.
void Descend(Recherche &r, std::size_t faits, std::size_t premier, const Sommes &sommes) {
  const std::size_t manquent = r.nombre - faits;
  const bool commune = r.nombre >= kAvecCommune;
  for (std::size_t i = premier; i + manquent <= r.astres.size(); ++i) {
    const Sommes ici = Avec(sommes, r.astres[i]);
    r.choisis[faits] = i;
    if (manquent == 1) {
      const double trace = TraceDe(ici, commune);
      if (trace < Limite(r)) {
        Retient(r, trace);
      }
      continue;
    }
    const double reste = static_cast<double>(manquent - 1) * r.poidsMax;
    if (!EstSansEspoir(ici, reste, commune, Limite(r))) {
      Descend(r, faits + 1, i + 1, ici);
    }
  }
}

std::vector<std::size_t> Candidats(const CielDuPlan &ciel, const ReglagesJeux &reglages) {
  std::vector<std::size_t> rangs;
  for (std::size_t i = 0; i < ciel.astres.size(); ++i) {
    if (ciel.astres[i].raisons.none() && ciel.astres[i].magnitude <= reglages.magnitudeMax) {
      rangs.push_back(i);
    }
  }
  std::stable_sort(rangs.begin(), rangs.end(),
                   [&](std::size_t a, std::size_t b) { return ciel.astres[a].magnitude < ciel.astres[b].magnitude; });
  rangs.resize(std::min(rangs.size(), reglages.plusBrillants));
  return rangs;
}

/// The order in which the bodies of a set are taken.
void Ordonne(std::vector<std::size_t> &astres, const CielDuPlan &ciel) {
  const auto eclat = [&](std::size_t rang) {
    const AstreDuPlan &a = ciel.astres[rang];
    return a.magnitude + std::cos((a.azimut - ciel.azimutSoleil) * kRadian);
  };
  std::sort(astres.begin(), astres.end(),
            [&](std::size_t a, std::size_t b) { return ciel.soleilMonte ? eclat(a) > eclat(b) : eclat(a) < eclat(b); });
}

/// What the sets of a moment before are worth now, the worst of them: the search goes on from there.
/// @return infinite where they aren't as many as are kept, or one of their bodies isn't looked at any more
double PlafondDe(const std::vector<JeuAstres> &avant, std::span<const std::size_t> rangs,
                 std::span<const Sommes> astres, std::size_t garde) {
  constexpr double kArrondi = 1 + 1E-9;
  double plafond = 0;
  for (const JeuAstres &jeu : avant) {
    Sommes sommes;
    for (const std::size_t rang : jeu.astres) {
      const auto la = std::find(rangs.begin(), rangs.end(), rang);
      if (la == rangs.end()) {
        return kSansFin;
      }
      sommes = Avec(sommes, astres[static_cast<std::size_t>(la - rangs.begin())]);
    }
    plafond = std::max(plafond, TraceDe(sommes, jeu.astres.size() >= kAvecCommune));
  }
  return avant.size() < garde ? kSansFin : plafond * kArrondi;
}

/// @param avant  the sets of a moment shortly before, by the same settings
MeilleursJeux Choisit(const CielDuPlan &ciel, const ReglagesJeux &reglages, const MeilleursJeux &avant) {
  const std::vector<std::size_t> rangs = Candidats(ciel, reglages);
  std::vector<Sommes> astres;
  double poidsMax = 0;
  for (const std::size_t rang : rangs) {
    const AstreDuPlan &a = ciel.astres[rang];
    astres.push_back(SommesDe({a.azimut, ErreurSupposee(reglages.erreur, a.apparente)}));
    poidsMax = std::max(poidsMax, astres.back().W);
  }
  MeilleursJeux jeux;
  for (std::size_t n = 0; n < kNombresDuJeu.size() && reglages.garde > 0; ++n) {
    Recherche r{astres, poidsMax, kNombresDuJeu[n], reglages.garde};
    r.plafond = PlafondDe(avant[n], rangs, astres, reglages.garde);
    Descend(r, 0, 0, {});
    for (JeuAstres &jeu : r.meilleurs) {
      std::transform(jeu.astres.begin(), jeu.astres.end(), jeu.astres.begin(), [&](std::size_t i) { return rangs[i]; });
      Ordonne(jeu.astres, ciel);
    }
    jeux[n] = std::move(r.meilleurs);
  }
  return jeux;
}

} // namespace

double TraceDuJeu(std::span<const PoidsAstre> astres) {
  Sommes sommes;
  for (const PoidsAstre &astre : astres) {
    sommes = Avec(sommes, SommesDe(astre));
  }
  return TraceDe(sommes, astres.size() >= kAvecCommune);
}

MeilleursJeux ChoisitJeux(const CielDuPlan &ciel, const ReglagesJeux &reglages) { return Choisit(ciel, reglages, {}); }

std::optional<std::vector<JeuxDuMoment>> JeuxDesMoments(const CielDuJour &ciel, const NavirePrevu &navire,
                                                        std::span<const InstantUTC> moments, const ReglagesPlan &plan,
                                                        const ReglagesJeux &reglages, const std::stop_token &arret) {
  std::vector<JeuxDuMoment> jeux;
  jeux.reserve(moments.size());
  for (const InstantUTC &utc : moments) {
    if (arret.stop_requested()) {
      return std::nullopt;
    }
    const MeilleursJeux avant = jeux.empty() ? MeilleursJeux{} : jeux.back().jeux;
    jeux.push_back({utc, Choisit(RegardeCiel(ciel, navire, utc, plan, Prereglages::Sans), reglages, avant)});
  }
  return jeux;
}

} // namespace velmaris
