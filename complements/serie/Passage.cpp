#include "complements/serie/Passage.hpp"

#include "complements/point/Sphere.hpp"
#include "complements/serie/LecturesPretes.hpp"

#include <cmath>

namespace velmaris {
namespace {

constexpr double kSecondesParDegre = 240; ///< that the Earth turns by
constexpr double kDemiTour = 180;
constexpr double kPasCourbe = 20; ///< seconds: a body near the zenith keeps its arch so long
constexpr double kLoin = 10800;   ///< seconds

/// A height of the ship under way.
double HauteurA(const BaseLectures &base, const InstantUTC &utc) {
  return VueDe(PlaceA(base.astre, utc, base.dut1), StationDe(base, LieuDeLaBase(base, utc))).hauteur;
}

/// Hour angle from the ship's meridian less that of the passage, degrees in [-180, 180).
double AngleDuPassage(const BaseLectures &base, const InstantUTC &utc, bool inferieur) {
  const double gha = PlaceA(base.astre, utc, base.dut1).gha;
  return LongitudeUnTour(gha + LieuDeLaBase(base, utc).longitude - (inferieur ? kDemiTour : 0));
}

/// The time when the angle is nothing, by its own rate.
InstantUTC HeurePassage(const BaseLectures &base, InstantUTC utc, bool inferieur) {
  constexpr int kTours = 12;
  constexpr double kAssezPres = 1E-5; ///< seconds
  double taux = 1 / kSecondesParDegre;
  double angle = AngleDuPassage(base, utc, inferieur);
  for (int tour = 0; tour < kTours; ++tour) {
    const double pas = -angle / taux;
    utc = PlusTard(utc, pas);
    if (std::fabs(pas) < kAssezPres) {
      break;
    }
    const double suivant = AngleDuPassage(base, utc, inferieur);
    const double trouve = LongitudeUnTour(suivant - angle) / pas;
    // The Moon and a fast ship change the rate by less than a half.
    taux = trouve > taux / 2 && trouve < taux * 2 ? trouve : taux;
    angle = suivant;
  }
  return utc;
}

/// The top of the curve near the passage, by parabolas.
void ChercheSommet(const BaseLectures &base, PassageMeridien &passage) {
  constexpr int kTours = 12;
  constexpr double kAssezPres = 1E-4; ///< seconds
  const double signe = passage.inferieur ? -1 : 1;
  double apres = 0; ///< seconds from the passage
  double milieu = passage.hauteur;
  for (int tour = 0; tour < kTours; ++tour) {
    milieu = HauteurA(base, PlusTard(passage.heure, apres));
    const double gauche = HauteurA(base, PlusTard(passage.heure, apres - kPasCourbe));
    const double droite = HauteurA(base, PlusTard(passage.heure, apres + kPasCourbe));
    const double courbure = signe * (gauche - 2 * milieu + droite);
    const double pas = courbure < 0 ? -kPasCourbe / 2 * signe * (droite - gauche) / courbure : kLoin;
    apres += pas;
    if (!(std::fabs(apres) < kLoin)) {
      passage.sansSommet = true;
      break;
    }
    if (std::fabs(pas) < kAssezPres) {
      break;
    }
  }
  passage.sommet = passage.sansSommet ? passage.heure : PlusTard(passage.heure, apres);
  passage.hauteurSommet = passage.sansSommet ? passage.hauteur : HauteurA(base, passage.sommet);
  passage.correction = passage.sansSommet ? 0 : -apres;
}

} // namespace

PassageMeridien PassagePresDe(const BaseLectures &base, const InstantUTC &heure, std::optional<bool> inferieur) {
  constexpr double kQuartDeTour = 90;
  ExigeLieu(base);
  PassageMeridien passage;
  passage.inferieur = inferieur ? *inferieur : std::fabs(AngleDuPassage(base, heure, false)) > kQuartDeTour;
  passage.heure = HeurePassage(base, heure, passage.inferieur);
  passage.lieu = LieuDeLaBase(base, passage.heure);
  const PlaceTopocentrique vue = VueDe(PlaceA(base.astre, passage.heure, base.dut1), StationDe(base, passage.lieu));
  passage.hauteur = vue.hauteur;
  passage.versNord = std::cos(vue.azimut * kRadian) > 0;
  ChercheSommet(base, passage);
  return passage;
}

} // namespace velmaris
