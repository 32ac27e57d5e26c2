#include "OutilsPoint.hpp"

#include "complements/ciel/CielDuMoment.hpp"
#include "complements/ciel/EtapesHauteur.hpp"

#include <erfa.h>
#include <erfam.h>

#include <cmath>

namespace velmaris::essais {

double Sort(std::mt19937_64 &alea, double de, double a) { return std::uniform_real_distribution<double>(de, a)(alea); }

double Normale(std::mt19937_64 &alea, double ecart) {
  return ecart > 0 ? std::normal_distribution<double>(0, ecart)(alea) : 0;
}

Astre AstreAuHasard(std::mt19937_64 &alea) {
  constexpr GenreAstre kProches[] = {GenreAstre::Soleil, GenreAstre::Lune,    GenreAstre::Venus,
                                     GenreAstre::Mars,   GenreAstre::Jupiter, GenreAstre::Saturne};
  const int lequel = std::uniform_int_distribution<int>(0, 17)(alea);
  if (lequel < 6) {
    return {kProches[lequel], 0};
  }
  int rang = std::uniform_int_distribution<int>(1, 246)(alea);
  rang += rang == kRangSansPlace ? 1 : 0;
  return {GenreAstre::Etoile, rang};
}

double LectureDe(LectureSextant lecture, const PlaceGeocentrique &place, const Station &station, double hauteur) {
  const double facteur = lecture.horizonArtificiel ? 2 : 1;
  double bas = (hauteur - 2) * facteur;
  double haut = (hauteur + 2) * facteur;
  for (int i = 0; i < 44; ++i) {
    lecture.lecture = (bas + haut) / 2;
    (CorrigeLecture(lecture, place, station).topocentrique < hauteur ? bas : haut) = lecture.lecture;
  }
  return (bas + haut) / 2;
}

namespace {

RouteNavire RouteAuHasard(std::mt19937_64 &alea, double heures) {
  RouteNavire route;
  const int jambes = std::uniform_int_distribution<int>(0, 4)(alea);
  for (int i = 0; i < jambes; ++i) {
    route.jambes.push_back({Heure(Sort(alea, -1, heures + 1)), Sort(alea, 0, 360), Sort(alea, 0, 15)});
  }
  route.courant = {Sort(alea, 0, 360), Sort(alea, 0, 2)};
  return route;
}

/// A body that stands between 8 and 80 degrees, in a wanted direction if there is one.
struct Cible {
  ViseeTypee visee;
  PlaceGeocentrique place;
  double hauteur = 0;
};

Cible CibleAuHasard(std::mt19937_64 &alea, const InstantUTC &utc, const LieuNavire &lieu,
                    const std::optional<double> &azimut) {
  Cible c;
  c.visee.date = CivileDe(utc);
  LectureSextant &lecture = c.visee.lecture;
  lecture.collimation = Sort(alea, -3, 3);
  lecture.hauteurOeil = Sort(alea, 0, 20);
  lecture.horizonArtificiel = std::uniform_int_distribution<int>(0, 4)(alea) == 0;
  const CielDuMoment ciel = PrepareCiel(MomentDe(c.visee.date));
  constexpr int kEssais = 4000;
  for (int i = 0; i < kEssais; ++i) {
    c.visee.astre = AstreAuHasard(alea);
    c.place = PlaceDe(ciel, c.visee.astre);
    const PlaceTopocentrique vue = VueDe(c.place, {lieu.latitude, lieu.longitude, lecture.hauteurOeil});
    const bool la = !azimut || std::cos((vue.azimut - *azimut) * kRadian) > std::cos(20 * kRadian);
    if (vue.hauteur > 8 && vue.hauteur < 80 && la) {
      break;
    }
  }
  c.hauteur = HauteurJugee(c.place, lieu, lecture.hauteurOeil);
  const bool disque = c.place.parallaxe > 0 && c.visee.astre.genre <= GenreAstre::Lune;
  lecture.contact = disque && Sort(alea, 0, 1) < 0.5 ? Contact::Superieur
                    : disque                         ? Contact::Inferieur
                                                     : Contact::Centre;
  return c;
}

} // namespace

LieuNavire Navigue(const RouteNavire &route, const Verite &verite, LieuNavire lieu, const InstantUTC &de,
                   const InstantUTC &a) {
  constexpr double kPas = 0.02; ///< hours
  const double duree = SecondesEntre(de, a) / 3600;
  std::vector<double> bornes{0, duree};
  std::vector<Jambe> jambes = route.jambes;
  std::sort(jambes.begin(), jambes.end(),
            [](const Jambe &x, const Jambe &y) { return SecondesEntre(x.depuis, y.depuis) > 0; });
  for (const Jambe &jambe : jambes) {
    const double t = SecondesEntre(de, jambe.depuis) / 3600;
    if (t > std::min(0.0, duree) && t < std::max(0.0, duree)) {
      bornes.push_back(t);
    }
  }
  std::sort(bornes.begin(), bornes.end());
  if (duree < 0) {
    std::reverse(bornes.begin(), bornes.end());
  }
  for (std::size_t i = 1; i < bornes.size(); ++i) {
    const InstantUTC milieu = PlusTard(de, (bornes[i - 1] + bornes[i]) * 1800);
    Jambe jambe = jambes.empty() ? Jambe{} : jambes.front();
    for (const Jambe &j : jambes) {
      jambe = SecondesEntre(j.depuis, milieu) >= 0 ? j : jambe;
    }
    const double cap = (jambe.cap + verite.cap) * kRadian;
    const double vitesse = jambe.vitesse * (1 + verite.vitesse);
    const double vers = route.courant.direction * kRadian;
    const double nord = vitesse * std::cos(cap) + route.courant.vitesse * std::cos(vers) + verite.nord;
    const double est = vitesse * std::sin(cap) + route.courant.vitesse * std::sin(vers) + verite.est;
    const double heures = bornes[i] - bornes[i - 1];
    const int pas = std::max(1, static_cast<int>(std::ceil(std::fabs(heures) / kPas)));
    const double h = heures / pas;
    for (int k = 0; k < pas; ++k) {
      // Simpson's rule on the rate of the longitude.
      const auto taux = [&](double t) { return est / 60 / std::cos((lieu.latitude + nord / 60 * t) * kRadian); };
      lieu.longitude += h / 6 * (taux(0) + 4 * taux(h / 2) + taux(h));
      lieu.latitude += nord / 60 * h;
    }
  }
  lieu.longitude = std::remainder(lieu.longitude, 360);
  return lieu;
}

double HauteurJugee(const PlaceGeocentrique &place, const LieuNavire &lieu, double oeil) {
  constexpr double kTourParSeconde = 7.292115E-5;
  double station[3];
  double astre[3];
  double zenith[3];
  eraGd2gc(ERFA_WGS84, lieu.longitude * ERFA_DD2R, lieu.latitude * ERFA_DD2R, oeil, station);
  eraS2c(lieu.longitude * ERFA_DD2R, lieu.latitude * ERFA_DD2R, zenith);
  double vitesse[3] = {-station[1] * kTourParSeconde / ERFA_CMPS, station[0] * kTourParSeconde / ERFA_CMPS, 0};
  if (place.parallaxe > 0) {
    eraSxp(1 / ERFA_DAU, station, station);
    eraS2p(-place.gha * ERFA_DD2R, place.declinaison * ERFA_DD2R, place.distance, astre);
    eraPmp(astre, station, astre);
    double longueur = 0;
    eraPn(astre, &longueur, astre);
  } else {
    eraS2c(-place.gha * ERFA_DD2R, place.declinaison * ERFA_DD2R, astre);
  }
  double vu[3];
  eraAb(astre, vitesse, 1, std::sqrt(1 - eraPdp(vitesse, vitesse)), vu);
  return 90 - eraSepp(zenith, vu) * ERFA_DR2D;
}

Voyage VoyageAuHasard(std::mt19937_64 &alea, const Genre &genre, const Bruit &bruit) {
  Voyage v;
  ReglagesPoint &r = v.reglages;
  r.route = RouteAuHasard(alea, genre.heures);
  r.heure = Heure(Sort(alea, 0, genre.heures));
  // Years from 1990 to 2034, so that the Moon, the planets and the stars stand anywhere.
  const double jours = std::floor(Sort(alea, -13000, 2700));
  const auto deplace = [&](InstantUTC &utc) { utc.jour += jours; };
  deplace(r.heure);
  std::for_each(r.route.jambes.begin(), r.route.jambes.end(), [&](Jambe &j) { deplace(j.depuis); });
  const double latitude = Sort(alea, genre.latitudeDe, genre.latitudeA) * (Sort(alea, 0, 1) < 0.5 ? -1 : 1);
  const bool ligneDeDate = Sort(alea, 0, 1) < 0.2;
  v.vrai = {latitude, LongitudeUnTour(ligneDeDate ? Sort(alea, 179, 181) : Sort(alea, -180, 180))};
  Verite verite;
  if (bruit.route) {
    verite = {Normale(alea, r.doutes.cap), Normale(alea, r.doutes.vitesse / 100), Normale(alea, r.doutes.courant),
              Normale(alea, r.doutes.courant)};
  }
  const int nombre = std::uniform_int_distribution<int>(genre.moins, genre.plus)(alea);
  for (int i = 0; i < nombre; ++i) {
    InstantUTC utc = Heure(Sort(alea, 0, genre.heures));
    deplace(utc);
    utc = UTCDe(CivileDe(utc));
    const LieuNavire lieu = Navigue(r.route, verite, v.vrai, r.heure, utc);
    const auto azimut = genre.autour ? std::optional(360.0 * i / nombre + Sort(alea, -10, 10)) : std::nullopt;
    Cible c = CibleAuHasard(alea, utc, lieu, azimut);
    c.visee.station = {std::clamp(lieu.latitude + Sort(alea, -0.5, 0.5), -90.0, 90.0),
                       lieu.longitude + Sort(alea, -0.5, 0.5), c.visee.lecture.hauteurOeil};
    c.visee.lecture.lecture =
        LectureDe(c.visee.lecture, c.place, {lieu.latitude, lieu.longitude, c.visee.lecture.hauteurOeil}, c.hauteur);
    if (bruit.hauteurs || bruit.commune != 0) {
      const double apparente = PrepareHauteur(c.visee, {}).apparente;
      const double faute =
          bruit.commune + (bruit.hauteurs ? Normale(alea, ErreurSupposee(r.doutes.hauteur, apparente)) : 0);
      c.visee.lecture.lecture += faute / 60 * (c.visee.lecture.horizonArtificiel ? 2 : 1);
    }
    ViseePoint visee;
    visee.hauteur = PrepareHauteur(c.visee, {});
    visee.identite = i;
    v.visees.push_back(visee);
  }
  return v;
}

double DansEllipse(const EllipsePoint &ellipse, const LieuNavire &point, const LieuNavire &vrai) {
  const double nord = (vrai.latitude - point.latitude) * 60;
  const double est = std::remainder(vrai.longitude - point.longitude, 360) * 60 * std::cos(vrai.latitude * kRadian);
  const double d = ellipse.direction * kRadian;
  const double grand = (nord * std::cos(d) + est * std::sin(d)) / ellipse.a;
  const double petit = (est * std::cos(d) - nord * std::sin(d)) / ellipse.b;
  return std::hypot(grand, petit);
}

} // namespace velmaris::essais
