#include "OutilsSerie.hpp"

#include "complements/ciel/CielDuMoment.hpp"

#include <cmath>

namespace velmaris::essais {
namespace {

PlaceGeocentrique Place(const BaseLectures &base, const InstantUTC &utc) {
  return PlaceDe(PrepareCiel({TTDe(utc), UT1De(utc, base.dut1)}), base.astre);
}

} // namespace

double HauteurVraie(const BaseLectures &base, const InstantUTC &utc) {
  const LieuNavire lieu = Navigue(base.route, {}, base.lieu, base.heureLieu, utc);
  return HauteurJugee(Place(base, utc), lieu, base.corrections.hauteurOeil);
}

LectureSerie LectureVraie(const BaseLectures &base, const InstantUTC &utc) {
  const LieuNavire lieu = Navigue(base.route, {}, base.lieu, base.heureLieu, utc);
  const Station station{lieu.latitude, lieu.longitude, base.corrections.hauteurOeil};
  const PlaceGeocentrique place = Place(base, utc);
  LectureSerie lecture;
  lecture.utc = utc;
  lecture.lecture =
      LectureDe(base.corrections, place, station, HauteurJugee(place, lieu, base.corrections.hauteurOeil));
  return lecture;
}

void Fausse(const BaseLectures &base, LectureSerie &lecture, double minutes) {
  lecture.lecture += minutes / 60 * (base.corrections.horizonArtificiel ? 2 : 1);
}

BaseLectures BaseAuHasard(std::mt19937_64 &alea, double latitudeMax) {
  BaseLectures base;
  base.lieu = {Sort(alea, -latitudeMax, latitudeMax), Sort(alea, -180, 180)};
  base.heureLieu = {2461213.5 + std::floor(Sort(alea, -13000, 2700)), Sort(alea, 0, 1)};
  base.route.jambes.push_back({base.heureLieu, Sort(alea, 0, 360), Sort(alea, 0, 18)});
  base.route.courant = {Sort(alea, 0, 360), Sort(alea, 0, 2)};
  base.corrections.collimation = Sort(alea, -3, 3);
  base.corrections.hauteurOeil = Sort(alea, 0, 20);
  base.corrections.horizonArtificiel = Sort(alea, 0, 1) < 0.1;
  base.corrections.pression = Sort(alea, 980, 1040);
  base.corrections.temperature = Sort(alea, -10, 35);
  return base;
}

void ChoisitAstre(std::mt19937_64 &alea, BaseLectures &base, double bas, double haut) {
  do {
    base.astre = AstreAuHasard(alea);
    const double hauteur = HauteurVraie(base, base.heureLieu);
    if (hauteur > bas && hauteur < haut) {
      break;
    }
  } while (true);
  const bool disque = base.astre.genre <= GenreAstre::Lune;
  base.corrections.contact = !disque                  ? Contact::Centre
                             : Sort(alea, 0, 1) < 0.5 ? Contact::Superieur
                                                      : Contact::Inferieur;
}

Livre SerieAuHasard(std::mt19937_64 &alea, int moins, int plus) {
  Livre livre;
  livre.base = BaseAuHasard(alea, 70);
  ChoisitAstre(alea, livre.base, 8, 80);
  const int nombre = std::uniform_int_distribution<int>(moins, plus)(alea);
  const double duree = nombre * Sort(alea, 15, 45);
  for (int i = 0; i < nombre; ++i) {
    const double secondes = duree * ((i + Sort(alea, 0.2, 0.8)) / nombre - 0.5);
    livre.lectures.push_back(LectureVraie(livre.base, PlusTard(livre.base.heureLieu, secondes)));
  }
  return livre;
}

} // namespace velmaris::essais
