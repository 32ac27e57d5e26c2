#include "OutilsLunaire.hpp"

#include "complements/ciel/CielDuMoment.hpp"
#include "complements/ciel/EtapesHauteur.hpp"

#include <erfa.h>
#include <erfam.h>

#include <cmath>

namespace velmaris::essais {
namespace {

constexpr double kTourParSeconde = 7.292115E-5;

/// A body from a place: its direction and, of a near one, the radius of its disk there, radians.
struct VuDuLieu {
  double direction[3]{}; ///< Greenwich's frame
  double rayon = 0;
};

VuDuLieu VuDe(const PlaceGeocentrique &place, const LieuNavire &lieu, double oeil) {
  double station[3];
  VuDuLieu vu;
  eraGd2gc(ERFA_WGS84, lieu.longitude * ERFA_DD2R, lieu.latitude * ERFA_DD2R, oeil, station);
  double vitesse[3] = {-station[1] * kTourParSeconde / ERFA_CMPS, station[0] * kTourParSeconde / ERFA_CMPS, 0};
  double astre[3];
  if (place.parallaxe > 0) {
    eraSxp(1 / ERFA_DAU, station, station);
    eraS2p(-place.gha * ERFA_DD2R, place.declinaison * ERFA_DD2R, place.distance, astre);
    eraPmp(astre, station, astre);
    double longueur = 0;
    eraPn(astre, &longueur, astre);
    vu.rayon = std::asin(std::sin(place.demiDiametre / 60 * ERFA_DD2R) * place.distance / longueur);
  } else {
    eraS2c(-place.gha * ERFA_DD2R, place.declinaison * ERFA_DD2R, astre);
  }
  eraAb(astre, vitesse, 1, std::sqrt(1 - eraPdp(vitesse, vitesse)), vu.direction);
  return vu;
}

/// The height in air of a height without it, by bisection.
double EnAir(double sansAir, const AirMesure &air) {
  double bas = sansAir;
  double haut = sansAir + 1;
  for (int i = 0; i < 46; ++i) {
    const double milieu = (bas + haut) / 2;
    (milieu - Refraction(milieu, air.pression, air.temperature) / 60 < sansAir ? bas : haut) = milieu;
  }
  return bas;
}

/// A direction lifted towards the zenith by the air.
void Leve(const double zenith[3], const double direction[3], const AirMesure &air, double levee[3]) {
  double z[3];
  double d[3];
  eraCp(const_cast<double *>(zenith), z);
  eraCp(const_cast<double *>(direction), d);
  const double hauteur = 90 - eraSepp(z, d) * ERFA_DR2D;
  const double monte = (EnAir(hauteur, air) - hauteur) * ERFA_DD2R;
  double axe[3];
  eraPxp(d, z, axe);
  double longueur = 0;
  eraPn(axe, &longueur, axe);
  double rotation[3];
  eraSxp(monte, axe, rotation);
  double matrice[3][3];
  eraRv2m(rotation, matrice);
  // The frame turns by the vector, so the direction turns the other way.
  eraTrxp(matrice, d, levee);
}

/// A point of a limb, at an angle around it.
void PointDuBord(const VuDuLieu &vu, const double vers[3], double angle, double point[3]) {
  double c[3];
  double v[3];
  eraCp(const_cast<double *>(vu.direction), c);
  eraCp(const_cast<double *>(vers), v);
  double axe[3];
  double longueur = 0;
  eraPxp(c, v, axe);
  eraPn(axe, &longueur, axe);
  double plan[3];
  eraPxp(axe, c, plan);
  for (int i = 0; i < 3; ++i) {
    point[i] = std::cos(vu.rayon) * c[i] + std::sin(vu.rayon) * (std::cos(angle) * plan[i] + std::sin(angle) * axe[i]);
  }
}

/// Which angle around a limb gives the least or the greatest of something: a coarse round, then golden sections.
template <class Mesure> double Extreme(double signe, Mesure &&mesure) {
  constexpr int kTour = 48;
  const double pas = 2 * ERFA_DPI / kTour;
  double meilleur = 0;
  for (int i = 1; i < kTour; ++i) {
    meilleur = signe * mesure(i * pas) < signe * mesure(meilleur) ? i * pas : meilleur;
  }
  const double or_ = (std::sqrt(5.0) - 1) / 2;
  double a = meilleur - pas;
  double b = meilleur + pas;
  for (int i = 0; i < 40; ++i) {
    const double c = b - or_ * (b - a);
    const double d = a + or_ * (b - a);
    (signe * mesure(c) < signe * mesure(d) ? b : a) = signe * mesure(c) < signe * mesure(d) ? d : c;
  }
  return (a + b) / 2;
}

double Signe(BordDistance bord) { return bord == BordDistance::Lointain ? -1 : 1; }

PlaceGeocentrique Place(const InstantUTC &utc, const Astre &astre) {
  return PlaceDe(PrepareCiel({TTDe(utc), UT1De(utc, 0)}), astre);
}

constexpr Astre kLune{GenreAstre::Lune, 0};

} // namespace

double DistanceJugee(const PlaceGeocentrique &lune, BordDistance bordLune, const PlaceGeocentrique &astre,
                     BordDistance bordAstre, const LieuNavire &lieu, double oeil, const AirMesure &air) {
  const VuDuLieu vueLune = VuDe(lune, lieu, oeil);
  const VuDuLieu vuAstre = VuDe(astre, lieu, oeil);
  double zenith[3];
  eraS2c(lieu.longitude * ERFA_DD2R, lieu.latitude * ERFA_DD2R, zenith);
  const auto point = [&](const VuDuLieu &vu, const VuDuLieu &autre, BordDistance bord, double angle, double leve[3]) {
    double sansAir[3];
    eraCp(const_cast<double *>(vu.direction), sansAir);
    if (bord != BordDistance::Centre) {
      PointDuBord(vu, autre.direction, angle, sansAir);
    }
    Leve(zenith, sansAir, air, leve);
  };
  double angleLune = 0;
  double angleAstre = 0;
  const auto distance = [&](double parLune, double parAstre) {
    double a[3];
    double b[3];
    point(vueLune, vuAstre, bordLune, parLune, a);
    point(vuAstre, vueLune, bordAstre, parAstre, b);
    return eraSepp(a, b) * ERFA_DR2D;
  };
  for (int tour = 0; tour < 2; ++tour) {
    if (bordLune != BordDistance::Centre) {
      angleLune = Extreme(Signe(bordLune), [&](double angle) { return distance(angle, angleAstre); });
    }
    if (bordAstre != BordDistance::Centre) {
      angleAstre = Extreme(Signe(bordAstre), [&](double angle) { return distance(angleLune, angle); });
    }
  }
  return distance(angleLune, angleAstre);
}

double HauteurDuBord(const PlaceGeocentrique &place, Contact contact, const LieuNavire &lieu, double oeil,
                     const AirMesure &air) {
  const double signe = contact == Contact::Inferieur ? -1 : contact == Contact::Superieur ? 1 : 0;
  return EnAir(HauteurJugee(place, lieu, oeil) + signe * VuDe(place, lieu, oeil).rayon * ERFA_DR2D, air);
}

double CadenceJugee(const Nuit &nuit, const Astre &astre) {
  const auto distance = [&](double secondes) {
    const InstantUTC utc = PlusTard(nuit.utc, secondes);
    return DistanceJugee(Place(utc, kLune), BordDistance::Centre, Place(utc, astre), BordDistance::Centre, nuit.lieu,
                         nuit.oeil, nuit.air);
  };
  return (distance(300) - distance(-300)) * 60 * 6;
}

Nuit NuitAuHasard(std::mt19937_64 &alea, double cadenceMin) {
  while (true) {
    Nuit nuit;
    nuit.utc = {2461213.5 + std::floor(Sort(alea, -13000, 2700)), Sort(alea, 0, 1)};
    nuit.lieu = {Sort(alea, -65, 65), Sort(alea, -180, 180)};
    nuit.oeil = Sort(alea, 0, 20);
    nuit.air = {Sort(alea, 980, 1040), Sort(alea, -10, 35)};
    const auto haut = [&](const Astre &astre) {
      const double hauteur = HauteurJugee(Place(nuit.utc, astre), nuit.lieu, nuit.oeil);
      return hauteur > 10 && hauteur < 85;
    };
    if (!haut(kLune)) {
      continue;
    }
    for (int i = 0; i < 12; ++i) {
      const Astre astre = AstreAuHasard(alea);
      if (astre == kLune || !haut(astre)) {
        continue;
      }
      const PlaceGeocentrique lune = Place(nuit.utc, kLune);
      const PlaceGeocentrique place = Place(nuit.utc, astre);
      const double distance = EcartLieux({lune.declinaison, -lune.gha}, {place.declinaison, -place.gha});
      if (distance > 10 && distance < 115 && std::fabs(CadenceJugee(nuit, astre)) > cadenceMin) {
        nuit.astres.push_back(astre);
      }
    }
    if (!nuit.astres.empty()) {
      return nuit;
    }
  }
}

MesureLunaire MesureVraie(const Nuit &nuit, const Astre &astre, double apres, double retard, bool hauteurs,
                          BordDistance bord) {
  const InstantUTC utc = PlusTard(nuit.utc, apres);
  const PlaceGeocentrique lune = Place(utc, kLune);
  const PlaceGeocentrique place = Place(utc, astre);
  MesureLunaire m;
  m.montre = PlusTard(utc, -retard);
  m.astre = astre;
  m.bordLune = bord;
  m.bordAstre = astre.genre == GenreAstre::Soleil ? BordDistance::Proche : BordDistance::Centre;
  m.collimation = -1.5;
  m.lecture = DistanceJugee(lune, m.bordLune, place, m.bordAstre, nuit.lieu, nuit.oeil, nuit.air) + 1.5 / 60;
  if (hauteurs) {
    m.contactLune = Contact::Superieur;
    m.contactAstre = astre.genre == GenreAstre::Soleil ? Contact::Inferieur : Contact::Centre;
    m.hauteurLune = HauteurDuBord(lune, m.contactLune, nuit.lieu, nuit.oeil, nuit.air);
    m.hauteurAstre = HauteurDuBord(place, m.contactAstre, nuit.lieu, nuit.oeil, nuit.air);
  }
  return m;
}

ReglagesLunaire ReglagesDe(const Nuit &nuit) {
  ReglagesLunaire r;
  r.lieu = nuit.lieu;
  r.heureLieu = nuit.utc;
  r.hauteurOeil = nuit.oeil;
  r.air = nuit.air;
  return r;
}

} // namespace velmaris::essais
