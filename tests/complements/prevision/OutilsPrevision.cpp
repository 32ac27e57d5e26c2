#include "OutilsPrevision.hpp"

#include "../point/OutilsPoint.hpp"
#include "complements/ciel/CielDuMoment.hpp"

#include <cmath>

namespace velmaris::essais {

JourDeMer JourAuHasard(std::mt19937_64 &alea) {
  JourDeMer j;
  const auto entier = [&](int de, int a) { return std::uniform_int_distribution<int>(de, a)(alea); };
  j.jour = {entier(1990, 2034), entier(1, 12), entier(1, 28), std::nullopt};
  NavirePrevu &n = j.navire;
  n.heure = UTCDe({j.jour.annee, j.jour.mois, j.jour.jour, entier(0, 23), entier(0, 59), 0});
  n.hauteurOeil = entier(0, 20);
  if (entier(0, 3) == 0) {
    n.lieu = {Sort(alea, -89.5, 89.5), Sort(alea, -180, 180)};
    return j;
  }
  n.lieu = {Sort(alea, -71, 71), Sort(alea, -180, 180)};
  for (int i = entier(1, 4); i > 0; --i) {
    n.route.jambes.push_back({PlusTard(n.heure, Sort(alea, -20, 20) * 3600), Sort(alea, 0, 360), Sort(alea, 0, 20)});
  }
  n.route.courant = {Sort(alea, 0, 360), Sort(alea, 0, 2)};
  return j;
}

NavirePrevu Mouillage(double latitude, double longitude, int mois, int jour) {
  NavirePrevu n;
  n.heure = UTCDe({2026, mois, jour, 12});
  n.lieu = {latitude, longitude};
  return n;
}

CielDuMoment CielPropre(const InstantUTC &utc) { return PrepareCiel({TTDe(utc), UT1De(utc, 0)}); }

VueDuBord Voit(const NavirePrevu &navire, const Astre &astre, const InstantUTC &utc) {
  const PlaceGeocentrique place = PlaceDe(CielPropre(utc), astre);
  const LieuNavire lieu = Navigue(navire.route, {}, navire.lieu, navire.heure, utc);
  VueDuBord vue;
  vue.hauteur = HauteurJugee(place, lieu, navire.hauteurOeil);
  vue.bord = vue.hauteur + VueDe(place, {lieu.latitude, lieu.longitude, navire.hauteurOeil}).demiDiametre / 60;
  vue.angleHoraire = std::remainder(place.gha + lieu.longitude, 360);
  return vue;
}

std::vector<double> ZerosJuges(const std::function<double(double)> &f, const std::vector<double> &echantillons) {
  constexpr double kPas = 180;
  constexpr double kFin = 5;
  constexpr double kSaut = 90; ///< degrees: an hour angle's jump is no zero
  std::vector<double> zeros;
  const auto cherche = [&](double de, double fDe, double a, double fA) {
    if ((fDe >= 0) == (fA >= 0) || std::fabs(fA - fDe) > kSaut) {
      return;
    }
    while (a - de > 0.01) {
      const double milieu = (de + a) / 2;
      ((f(milieu) >= 0) == (fDe >= 0) ? de : a) = milieu;
    }
    zeros.push_back((de + a) / 2);
  };
  for (std::size_t i = 1; i < echantillons.size(); ++i) {
    const double de = static_cast<double>(i - 1) * kPas;
    const auto valeur = [&](std::size_t k) { return std::fabs(echantillons[std::min(k, echantillons.size() - 1)]); };
    const double bas = std::min(valeur(i - 1), valeur(i));
    // A top lies here or next door where the slope changes its sign; only one that comes near 0 matters.
    const bool sommet = bas < 0.02 && (valeur(i - 1) <= valeur(i < 2 ? 0 : i - 2) || valeur(i) <= valeur(i + 1));
    if (!sommet) {
      cherche(de, echantillons[i - 1], de + kPas, echantillons[i]);
      continue;
    }
    double avant = echantillons[i - 1];
    for (double t = de + kFin; t <= de + kPas; t += kFin) {
      const double ici = f(t);
      cherche(t - kFin, avant, t, ici);
      avant = ici;
    }
  }
  return zeros;
}

} // namespace velmaris::essais
