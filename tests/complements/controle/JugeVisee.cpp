#include "JugeVisee.hpp"

#include "foundations/TexteNombre.hpp"
#include "tests/ephemerides/EtoilesVraies.hpp"
#include "tests/ephemerides/JugesPlanetes.hpp"

#include <algorithm>
#include <cmath>

namespace velmaris::essais {
namespace {

/// A moment in the scales that the libraries ask for, Julian days in two parts.
struct Echelles {
  double utc[2]{}, tt[2]{}, ut1[2]{};
};

Echelles EchellesDe(const Observation &o) {
  const auto entier = [](const std::string &champ) { return static_cast<int>(Val(champ)); };
  Echelles e;
  double tai[2]{};
  eraDtf2d("UTC", entier(o.annee), entier(o.mois), entier(o.jour), entier(o.heure), entier(o.minute), Val(o.seconde),
           &e.utc[0], &e.utc[1]);
  eraUtctai(e.utc[0], e.utc[1], &tai[0], &tai[1]);
  eraTaitt(tai[0], tai[1], &e.tt[0], &e.tt[1]);
  eraUtcut1(e.utc[0], e.utc[1], 0, &e.ut1[0], &e.ut1[1]);
  return e;
}

struct Lieu {
  double latitude, longitude, oeil; ///< radians, east positive, and metres
};

Lieu LieuDe(const Observation &o) {
  const double latitude = Val(o.latitudeDegres) + Val(o.latitudeMinutes) / 60;
  const double longitude = Val(o.longitudeDegres) + Val(o.longitudeMinutes) / 60;
  return {(o.sud ? -latitude : latitude) * ERFA_DD2R, (o.est ? longitude : -longitude) * ERFA_DD2R,
          LitVirgule(o.hauteurOeil)};
}

/// What a body's place from the Earth's centre makes for a place on it.
/// @param rayon  of the body, astronomical units
VueJugee Vue(const Lieu &lieu, double gha, double dec, double distance, double rayon) {
  double station[3];
  double astre[3];
  double zenith[3];
  eraGd2gc(ERFA_WGS84, lieu.longitude, lieu.latitude, lieu.oeil, station);
  eraSxp(1 / ERFA_DAU, station, station);
  eraS2p(-gha, dec, distance, astre);
  eraPmp(astre, station, astre);
  eraS2c(lieu.longitude, lieu.latitude, zenith);
  return {90 - eraSepp(zenith, astre) * ERFA_DR2D, std::asin(rayon / eraPm(astre)) * ERFA_DR2D * 60,
          eraAnp(gha) * ERFA_DR2D, dec * ERFA_DR2D};
}

/// A true place of date as the rotating Earth has it.
/// @param date  direction on the true equator of the date, any length
VueJugee VueDeDate(const Echelles &e, const Lieu &lieu, double date[3], double distance, double rayon) {
  double ad = 0;
  double dec = 0;
  eraC2s(date, &ad, &dec);
  return Vue(lieu, eraGst06a(e.ut1[0], e.ut1[1], e.tt[0], e.tt[1]) - ad, dec, distance, rayon);
}

VueJugee Soleil(const Echelles &e, const Lieu &lieu) {
  double helio[2][3];
  double bary[2][3];
  double sens[3];
  double matrice[3][3];
  eraEpv00(e.tt[0], e.tt[1], helio, bary);
  eraSxp(-1, helio[0], sens);
  const double distance = eraPm(sens);
  eraPpsp(sens, distance * ERFA_AULT / ERFA_DAYSEC, bary[1], sens); // aberration
  eraPnm06a(e.tt[0], e.tt[1], matrice);
  eraRxp(matrice, sens, sens);
  return VueDeDate(e, lieu, sens, distance, 959.63 * ERFA_DAS2R);
}

VueJugee Lune(const Echelles &e, const Lieu &lieu) {
  double pv[2][3];
  double matrice[3][3];
  eraMoon98(e.tt[0], e.tt[1], pv);
  eraPnm06a(e.tt[0], e.tt[1], matrice);
  eraRxp(matrice, pv[0], pv[0]);
  constexpr double kRayon = 1737.4E3 / ERFA_DAU;
  return VueDeDate(e, lieu, pv[0], eraPm(pv[0]), kRayon);
}

VueJugee Planete(const Observation &o, const Echelles &e, const Lieu &lieu) {
  constexpr const char *kNoms[] = {"VENUS", "MARS", "JUPITER", "SATURN"};
  const double jd = e.tt[0] + e.tt[1];
  const LieuEquatorial place = LieuParVecteurs(HelioSeries, Orientation1980(jd), kNoms[o.planete], jd).lieu;
  const double gst = eraGst06a(e.ut1[0], e.ut1[1], e.tt[0], e.tt[1]);
  return Vue(lieu, gst - place.AD * ERFA_DD2R, place.Dec * ERFA_DD2R, place.d, 0);
}

VueJugee Etoile(const Observation &o, const Echelles &e, const Lieu &lieu) {
  static const auto vraies = LitEtoilesVraies();
  const EtoileVraie &vraie = *vraies.at(static_cast<std::size_t>(o.etoile));
  const double mas = ERFA_DAS2R / 1000;
  const double dec = vraie.dec * ERFA_DD2R;
  double azimut = 0;
  double zenith = 0;
  double angle = 0;
  double decVue = 0;
  double adVue = 0;
  double equation = 0;
  eraAtco13(vraie.ad * ERFA_DD2R, dec, vraie.muAd * mas / std::cos(dec), vraie.muDec * mas, vraie.parallaxe / 1000, 0,
            e.utc[0], e.utc[1], 0, lieu.longitude, lieu.latitude, lieu.oeil, 0, 0, 0, 0, 0, 0.5, &azimut, &zenith,
            &angle, &decVue, &adVue, &equation);
  return {90 - zenith * ERFA_DR2D, 0, eraAnp(angle - lieu.longitude) * ERFA_DR2D, decVue * ERFA_DR2D};
}

/// Refraction from the height without air, 1010 hPa and 10 degrees: Saemundsson (1986), minutes of arc.
double RefractionDe(double hauteur) { return 1.02 / std::tan((hauteur + 10.3 / (hauteur + 5.11)) * ERFA_DD2R); }

double LectureDe(const Observation &o) {
  const double fraction = Val(o.lectureFraction) / (o.fraction == Fraction::Secondes ? 60 : 100);
  return Val(o.lectureDegres) + (Val(o.lectureMinutes) + fraction) / 60;
}

} // namespace

VueJugee VueParJuges(const Observation &o) {
  const Echelles e = EchellesDe(o);
  const Lieu lieu = LieuDe(o);
  switch (o.corps) {
  case Corps::Lune:
    return Lune(e, lieu);
  case Corps::Planetes:
    return Planete(o, e, lieu);
  case Corps::Etoiles:
    return Etoile(o, e, lieu);
  default:
    return Soleil(e, lieu);
  }
}

double LectureJuste(const Observation &o) {
  const VueJugee vue = VueParJuges(o);
  const double signe = o.bord == Bord::Inferieur ? -1 : o.bord == Bord::Superieur ? 1 : 0;
  const double bord = vue.hauteur + signe * vue.demiDiametre / 60;
  const double apparente = bord + RefractionDe(bord) / 60;
  const double collimation = LitVirgule(o.collimation) / 60;
  if (o.horizon == Horizon::Artificiel) {
    return 2 * apparente - collimation;
  }
  return apparente + 1.76 * std::sqrt(LitVirgule(o.hauteurOeil)) / 60 - collimation;
}

double InterceptJuge(const Observation &o) {
  return (LectureDe(o) - LectureJuste(o)) * (o.horizon == Horizon::Artificiel ? 30 : 60);
}

} // namespace velmaris::essais
