#include "Mesure.hpp"
#include "complements/ciel/CielDuMoment.hpp"
#include "complements/point/Point.hpp"

#include <string>
#include <vector>

/// The fix of many sights.
namespace velmaris {
namespace {

constexpr int kAppels = 20;
constexpr LieuNavire kLieu{47, -6};

constexpr double kFaute = 0.4 / 60; ///< degrees that two of three sights are off by

/// Six knots, with a change of course every 25 minutes.
RouteNavire Route() {
  RouteNavire route;
  for (int i = 0; i < 4; ++i) {
    route.jambes.push_back({UTCDe({2026, 6, 21, 21 + 25 * i / 60, 25 * i % 60, 0}), 80.0 + 20 * i, 6});
  }
  return route;
}

/// Sights of stars that stand over the horizon, a minute apart, as they are seen from a ship on her way.
std::vector<ViseePoint> Visees(std::size_t nombre, const RouteNavire &route) {
  std::vector<ViseePoint> visees;
  for (int i = 0; visees.size() < nombre; ++i) {
    const Astre astre{GenreAstre::Etoile, 1 + i * 7 % 246};
    if (astre.rang == kRangSansPlace) {
      continue;
    }
    const int minute = static_cast<int>(visees.size());
    ViseeTypee typee;
    typee.astre = astre;
    typee.date = {2026, 6, 21, 21 + minute / 60, minute % 60, 0};
    typee.lecture.lecture = 45;
    ViseePoint visee;
    visee.hauteur = PrepareHauteur(typee, {});
    const LieuNavire lieu = Deplace(route, kLieu, UTCDe({2026, 6, 21, 21, 0, 0}), visee.hauteur.utc).lieu;
    const double hauteur = HauteurDuLieu(visee.hauteur, TheoriePoint::Actuelle, lieu);
    if (hauteur > 10 && hauteur < 80) {
      visee.hauteur.actuelle->observee = hauteur + kFaute * (i % 3 - 1);
      visees.push_back(visee);
    }
  }
  return visees;
}

/// The fix when a sight is ticked or a weight changed: nothing of the sky is worked out again.
/// @param faute  minutes that the first sight is off by beside
void MesurePoint(benchmark::State &etat, double faute) {
  const auto nombre = static_cast<std::size_t>(etat.range(0));
  etat.SetLabel(std::to_string(nombre) + " sights");
  ReglagesPoint reglages;
  reglages.route = Route();
  std::vector<ViseePoint> visees = Visees(nombre, reglages.route);
  visees.front().hauteur.actuelle->observee += faute / 60;
  reglages.heure = visees.back().hauteur.utc;
  const auto point = [&] { benchmark::DoNotOptimize(FaitPoint(visees, reglages)); };
  const auto hauteurs = [&] {
    for (const ViseePoint &visee : visees) {
      benchmark::DoNotOptimize(HauteurDuLieu(visee.hauteur, TheoriePoint::Actuelle, kLieu));
    }
  };
  Compare(etat, point, hauteurs, kAppels);
}

void Point(benchmark::State &etat) { MesurePoint(etat, 0); }
BENCHMARK(Point)->Arg(3)->Arg(8)->Arg(100)->Unit(benchmark::kMicrosecond);

void PointFautif(benchmark::State &etat) { MesurePoint(etat, 60); }
BENCHMARK(PointFautif)->Arg(8)->Arg(100)->Unit(benchmark::kMicrosecond);

/// One sight made ready, against the sky of its moment alone.
void PreparePoint(benchmark::State &etat) {
  ViseeTypee typee;
  typee.astre = {GenreAstre::Etoile, 10};
  typee.date = {2026, 6, 21, 21, 0, 0};
  typee.lecture.lecture = 45;
  const auto avance = [&] { typee.date.seconde = typee.date.seconde < 50 ? typee.date.seconde + 7 : 0; };
  const auto prepare = [&] {
    avance();
    benchmark::DoNotOptimize(PrepareHauteur(typee, {}));
  };
  const auto ciel = [&] {
    avance();
    benchmark::DoNotOptimize(PrepareCiel(MomentDe(typee.date)));
  };
  Compare(etat, prepare, ciel, kAppels);
}
BENCHMARK(PreparePoint)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace velmaris
