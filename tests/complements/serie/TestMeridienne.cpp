#include "OutilsSerie.hpp"
#include "complements/serie/Meridienne.hpp"

#include <gmock/gmock.h>

#include <cmath>
#include <iostream>

/// Noons of ships under way: latitude and longitude by the curve, by the top, by equal heights.
namespace velmaris {
namespace {

using essais::AttendPart;
using essais::Livre;
using essais::Normale;
using essais::Raconte;
using essais::Sort;
using essais::Tirages;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;

bool Dit(const FicheMeridienne &fiche, AvisMeridienne avis) {
  return std::find(fiche.avis.begin(), fiche.avis.end(), avis) != fiche.avis.end();
}

/// A noon without errors: readings around the passage, some far from it.
struct Noon {
  Livre livre; ///< its base has the true position
  InstantUTC passage;
};

Noon MidiAuHasard(std::mt19937_64 &alea, double haut) {
  Noon m;
  BaseLectures &base = m.livre.base;
  while (true) {
    base = essais::BaseAuHasard(alea, 70);
    base.astre = Sort(alea, 0, 1) < 0.5 ? Astre{} : essais::AstreAuHasard(alea);
    base.corrections.contact = base.astre.genre <= GenreAstre::Lune ? Contact::Inferieur : Contact::Centre;
    const bool inferieur = Sort(alea, 0, 1) < 0.2;
    const PassageMeridien p = PassagePresDe(base, base.heureLieu, inferieur);
    if (p.hauteur > 8 && p.hauteur < haut) {
      m.passage = p.heure;
      break;
    }
  }
  const double duree = Sort(alea, 1200, 3600);
  const int nombre = std::uniform_int_distribution<int>(5, 14)(alea);
  for (int i = 0; i < nombre; ++i) {
    const double secondes = duree * ((i + 0.5) / nombre - 0.5) + Sort(alea, -30, 30);
    m.livre.lectures.push_back(essais::LectureVraie(base, PlusTard(m.passage, secondes)));
  }
  if (Sort(alea, 0, 1) < 0.3) {
    m.livre.lectures.push_back(essais::LectureVraie(base, PlusTard(m.passage, 5400)));
  }
  return m;
}

/// The base with its position off, as the ship's book has it.
BaseLectures Estimee(std::mt19937_64 &alea, BaseLectures base, double milles) {
  base.lieu.latitude += Sort(alea, -milles, milles) / 60;
  base.lieu.longitude += Sort(alea, -milles, milles) / 60 / std::cos(base.lieu.latitude * kRadian);
  return base;
}

/// Where the ship was.
LieuNavire Vrai(const BaseLectures &base, const InstantUTC &utc) {
  return essais::Navigue(base.route, {}, base.lieu, base.heureLieu, utc);
}

TEST(NoonsAtRandom, WithoutErrorsLatitudeAndLongitudeAreWhereTheShipWas) {
  std::mt19937_64 alea(2040);
  const int nombre = Tirages(150, 5000);
  int longitudes = 0;
  double pireLatitude = 0;
  double pireLongitude = 0;
  for (int i = 0; i < nombre; ++i) {
    const Noon m = MidiAuHasard(alea, 86);
    const FicheMeridienne fiche = ReduitMeridienne(Estimee(alea, m.livre.base, 30), m.livre.lectures);
    ASSERT_TRUE(fiche.latitude) << i;
    const LieuNavire vrai = Vrai(m.livre.base, fiche.passage->heure);
    if (fiche.longitude) {
      ++longitudes;
      const double latitude = std::fabs(fiche.latitude->latitude - vrai.latitude) * 60;
      const double longitude = std::fabs(std::remainder(fiche.longitude->longitude - vrai.longitude, 360)) * 60;
      EXPECT_LT(latitude, 0.05) << i;
      EXPECT_LT(longitude, 0.5) << i;
      EXPECT_NEAR(SecondesEntre(m.passage, fiche.passage->heure), 0, 2) << i;
      pireLatitude = std::max(pireLatitude, latitude);
      pireLongitude = std::max(pireLongitude, longitude);
    } else {
      EXPECT_TRUE(Dit(fiche, AvisMeridienne::LongitudeVague)) << i;
    }
  }
  EXPECT_GT(longitudes, nombre * 8 / 10);
  if (Raconte()) {
    std::cout << nombre << " noons, " << longitudes << " with a longitude: the worst " << pireLatitude
              << "' of latitude, " << pireLongitude << "' of longitude off\n";
  }
}

TEST(NoonsAtRandom, WithErrorsBothDoubtsHoldIn95Of100) {
  std::mt19937_64 alea(2041);
  const int nombre = Tirages(800, 5000);
  int longitudes = 0;
  int latitudesDedans = 0;
  int longitudesDedans = 0;
  int testes = 0;
  int alarmes = 0;
  double doute = 0;
  for (int i = 0; i < nombre; ++i) {
    Noon m = MidiAuHasard(alea, 80);
    for (LectureSerie &l : m.livre.lectures) {
      essais::Fausse(m.livre.base, l, Normale(alea, m.livre.base.ecartType));
    }
    BaseLectures base = m.livre.base;
    base.lieu.longitude += Normale(alea, 20) / 60;
    const FicheMeridienne fiche = ReduitMeridienne(base, m.livre.lectures);
    ASSERT_TRUE(fiche.latitude) << i;
    // Without a longitude the passage is that of the estimated one: the latitude is told for then.
    const LieuNavire vrai = Vrai(m.livre.base, fiche.passage->heure);
    latitudesDedans +=
        std::fabs(fiche.latitude->latitude - vrai.latitude) * 60 < 1.959964 * fiche.latitude->ecartType ? 1 : 0;
    testes += fiche.seuil > 0 ? 1 : 0;
    alarmes += fiche.improbable || Dit(fiche, AvisMeridienne::ErreurSansNom) ? 1 : 0;
    if (fiche.longitude) {
      ++longitudes;
      doute += fiche.longitude->ecartType;
      const double ecart = std::fabs(std::remainder(fiche.longitude->longitude - vrai.longitude, 360)) * 60;
      longitudesDedans += ecart < 1.959964 * fiche.longitude->ecartType ? 1 : 0;
    }
  }
  const double latitude = Raconte() ? 0 : 0.01;
  AttendPart(latitudesDedans, nombre, 0.95, latitude);
  AttendPart(longitudesDedans, longitudes, 0.95, latitude);
  AttendPart(alarmes, testes, 0.01, 0.003);
  if (Raconte()) {
    std::cout << nombre << " noons with errors: within the doubt " << 100.0 * latitudesDedans / nombre
              << " % of latitudes, " << 100.0 * longitudesDedans / longitudes << " % of " << longitudes
              << " longitudes, whose doubt is " << doute / longitudes << "' in the mean; alarms "
              << 100.0 * alarmes / testes << " %\n";
  }
}

TEST(Noon, TheHighestReadingTellsTheLatitude) {
  std::mt19937_64 alea(2042);
  int dites = 0;
  for (int i = 0; i < 60; ++i) {
    Noon m = MidiAuHasard(alea, 80);
    const PassageMeridien p = PassagePresDe(m.livre.base, m.passage);
    m.livre.lectures.push_back(essais::LectureVraie(m.livre.base, p.sommet));
    BaseLectures base = m.livre.base;
    base.lieu.latitude += 0.4;
    const FicheMeridienne fiche = ReduitMeridienne(base, m.livre.lectures);
    if (fiche.parPlusHaute) {
      ++dites;
      EXPECT_EQ(fiche.plusHaute, m.livre.lectures.size() - 1);
      EXPECT_NEAR(fiche.parPlusHaute->latitude, Vrai(m.livre.base, fiche.passage->heure).latitude, 0.1 / 60) << i;
    }
  }
  EXPECT_GT(dites, 45);
}

TEST(Noon, OneReadingTellsALatitudeWithTheEstimatedLongitudesDoubt) {
  std::mt19937_64 alea(2043);
  BaseLectures base;
  base.lieu = {40, -30};
  base.heureLieu = UTCDe({2026, 3, 20, 14, 0, 0});
  base.corrections.contact = Contact::Inferieur;
  const PassageMeridien p = PassagePresDe(base, base.heureLieu);
  const std::vector<LectureSerie> au{essais::LectureVraie(base, p.heure)};
  const std::vector<LectureSerie> loin{essais::LectureVraie(base, PlusTard(p.heure, 1800))};
  const FicheMeridienne sur = ReduitMeridienne(base, au);
  EXPECT_THAT(sur.avis, ElementsAre(AvisMeridienne::LongitudeSeule));
  EXPECT_NEAR(sur.latitude->latitude, 40, 1E-4);
  EXPECT_NEAR(sur.latitude->ecartType, 0.7, 1E-3) << "on the meridian the longitude is of no account";
  const FicheMeridienne hors = ReduitMeridienne(base, loin);
  ASSERT_TRUE(hors.latitude);
  EXPECT_NEAR(hors.latitude->latitude, 40, 1E-4);
  EXPECT_GT(hors.latitude->ecartType, 3) << "half an hour off it counts";
}

TEST(Noon, ReadingsFarFromTheMeridianTellNoLatitude) {
  BaseLectures base;
  base.lieu = {40, -30};
  base.heureLieu = UTCDe({2026, 3, 20, 14, 0, 0});
  const std::vector<LectureSerie> matin{essais::LectureVraie(base, PlusTard(base.heureLieu, -5 * 3600))};
  const FicheMeridienne fiche = ReduitMeridienne(base, matin);
  EXPECT_THAT(fiche.avis, ElementsAre(AvisMeridienne::HorsMeridien));
  EXPECT_FALSE(fiche.latitude);
  EXPECT_THAT(ReduitMeridienne(base, {}).avis, ElementsAre(AvisMeridienne::SansLecture));
}

TEST(Noon, ReadingsOfAFewMinutesTellNoLongitude) {
  BaseLectures base;
  base.lieu = {40, -30};
  base.heureLieu = UTCDe({2026, 3, 20, 14, 0, 0});
  const PassageMeridien p = PassagePresDe(base, base.heureLieu);
  std::vector<LectureSerie> courtes;
  std::vector<LectureSerie> avant;
  for (int i = 0; i < 6; ++i) {
    courtes.push_back(essais::LectureVraie(base, PlusTard(p.heure, 20 * i - 50)));
    avant.push_back(essais::LectureVraie(base, PlusTard(p.heure, 300 * i - 3600)));
  }
  const FicheMeridienne fiche = ReduitMeridienne(base, courtes);
  EXPECT_FALSE(fiche.longitude);
  EXPECT_THAT(fiche.avis, Contains(AvisMeridienne::LongitudeVague));
  EXPECT_NEAR(fiche.latitude->latitude, 40, 1E-4);
  EXPECT_THAT(ReduitMeridienne(base, avant).avis, Contains(AvisMeridienne::UnCote));
}

TEST(Noon, ABlunderOfTenMinutesIsNamed) {
  std::mt19937_64 alea(2044);
  int juges = 0;
  int nommes = 0;
  for (int i = 0; i < 100; ++i) {
    Noon m = MidiAuHasard(alea, 80);
    const std::size_t fautive = alea() % m.livre.lectures.size();
    essais::Fausse(m.livre.base, m.livre.lectures[fautive], 10);
    const FicheMeridienne fiche = ReduitMeridienne(m.livre.base, m.livre.lectures);
    if (m.livre.lectures.size() >= 7 && fiche.longitude) {
      ++juges;
      nommes += fiche.improbable == fautive ? 1 : 0;
    }
  }
  EXPECT_GE(nommes, 0.9 * juges) << juges;
}

TEST(Noon, TheTimeOfTheTopTellsTheLongitude) {
  std::mt19937_64 alea(2045);
  for (int i = 0; i < 40; ++i) {
    const Noon m = MidiAuHasard(alea, 80);
    const PassageMeridien p = PassagePresDe(m.livre.base, m.passage, false);
    if (p.sansSommet || std::fabs(p.correction) > 1200) {
      continue;
    }
    const auto l = LongitudeDuSommet(Estimee(alea, m.livre.base, 40), p.sommet, 60);
    ASSERT_TRUE(l) << i;
    const double vraie = Vrai(m.livre.base, l->passage.heure).longitude;
    // Forty miles of latitude change the correction by some seconds.
    EXPECT_NEAR(std::remainder(l->longitude.longitude - vraie, 360) * 60, 0, 0.02 * std::fabs(p.correction) + 0.2) << i;
    EXPECT_NEAR(l->longitude.ecartType, 15, 0.1) << "a minute of time";
  }
}

TEST(Noon, EqualHeightsTellTheLongitudeWhateverTheSextantIsOff) {
  std::mt19937_64 alea(2046);
  int dites = 0;
  for (int i = 0; i < 60; ++i) {
    const Noon m = MidiAuHasard(alea, 70);
    const BaseLectures &base = m.livre.base;
    const PassageMeridien p = PassagePresDe(base, m.passage, false);
    if (p.sansSommet || std::fabs(p.correction) > 1200 || p.hauteur < 10) {
      continue;
    }
    const InstantUTC avant = PlusTard(p.sommet, -2400);
    const double hauteur = essais::HauteurVraie(base, avant);
    double tot = 0;
    double tard = 6000;
    for (int k = 0; k < 50; ++k) {
      const double milieu = (tot + tard) / 2;
      (essais::HauteurVraie(base, PlusTard(p.sommet, milieu)) > hauteur ? tot : tard) = milieu;
    }
    BaseLectures estimee = base;
    estimee.lieu.longitude += 0.5;
    const auto l = LongitudeDeHauteursEgales(estimee, avant, PlusTard(p.sommet, tot));
    if (l) {
      ++dites;
      EXPECT_NEAR(std::remainder(l->longitude.longitude - Vrai(base, l->passage.heure).longitude, 360) * 60, 0, 0.5)
          << i;
    }
  }
  EXPECT_GT(dites, 20);
}

} // namespace
} // namespace velmaris
