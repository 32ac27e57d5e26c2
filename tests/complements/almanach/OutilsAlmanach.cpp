#include "OutilsAlmanach.hpp"

#include "complements/almanach/Arrondis.hpp"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <stdexcept>

namespace velmaris::essais {
namespace {

constexpr long kDegre = 600; ///< tenths of a minute
constexpr long kTour = 360 * kDegre;

/// The place in a growing row: an index and the part of the way to the next.
struct Lieu {
  std::size_t i;
  double part;
};

Lieu LieuDans(const std::vector<double> &x, double valeur) {
  if (x.size() < 2) {
    return {0, 0};
  }
  const auto apres = std::upper_bound(x.begin() + 1, x.end() - 1, valeur);
  const auto i = static_cast<std::size_t>(apres - x.begin()) - 1;
  return {i, std::clamp((valeur - x[i]) / (x[i + 1] - x[i]), 0.0, 1.0)};
}

double Melange(long a, long b, double part) { return static_cast<double>(a) + part * static_cast<double>(b - a); }

const JourAlmanach &JourDe(const Almanach &almanach, const DateCivile &utc) {
  const auto jour = std::find_if(almanach.jours.begin(), almanach.jours.end(), [&](const JourAlmanach &j) {
    return j.date.annee == utc.annee && j.date.mois == utc.mois && j.date.jour == utc.jour;
  });
  if (jour == almanach.jours.end()) {
    throw std::out_of_range("no page of that day");
  }
  return *jour;
}

const PeriodeAlmanach &PeriodeDuJour(const Almanach &almanach, const JourAlmanach &jour) {
  const auto rang = static_cast<std::size_t>(&jour - almanach.jours.data());
  return *std::find_if(almanach.periodes.begin(), almanach.periodes.end(),
                       [rang](const PeriodeAlmanach &p) { return rang < p.premier + p.nombre; });
}

std::size_t RangErrant(GenreAstre genre) { return static_cast<std::size_t>(genre); }

long SigneDe(long n) { return n > 0 ? 1 : n < 0 ? -1 : 0; }

/// The correction for v or d: that of the minute, with the tenth that a large one needs far from its middle.
long CorrectionALaSeconde(const DateCivile &utc, long vd) {
  constexpr double kDixieme = 180 * 10;
  const double loin = static_cast<double>(vd) * (utc.seconde - 30);
  const long dixieme = std::fabs(loin) >= kDixieme ? (loin > 0 ? 1 : -1) : 0;
  return CorrectionVD(utc.minute, vd) + dixieme;
}

/// GHA and declination.
struct PlaceMain {
  long gha;
  long declinaison;
};

PlaceMain PlaceEtoileMain(const Almanach &almanach, const ViseeMain &v, const JourAlmanach &jour, long secondes) {
  const PeriodeAlmanach &periode = PeriodeDuJour(almanach, jour);
  const auto etoile = std::find_if(periode.etoiles.begin(), periode.etoiles.end(),
                                   [&](const EtoileAlmanach &e) { return e.rang == v.astre.rang; });
  const long belier = DixiemesUnTour(jour.heures[static_cast<std::size_t>(v.utc.heure)].belier);
  return {belier + Increment(TauxIncrement::Belier, static_cast<int>(secondes)) + DixiemesUnTour(etoile->sha),
          DixiemesDe(etoile->declinaison)};
}

/// The declination of the hour before or after, by which the sign of d is seen.
long Tendance(const JourAlmanach &jour, std::size_t heure, std::size_t rang) {
  const auto dec = [&](std::size_t h) { return DixiemesDe(jour.heures[h].astres[rang].declinaison); };
  return heure + 1 < jour.heures.size() ? dec(heure + 1) - dec(heure) : dec(heure) - dec(heure - 1);
}

PlaceMain PlaceMainDe(const Almanach &almanach, const ViseeMain &v) {
  const JourAlmanach &jour = JourDe(almanach, v.utc);
  const auto secondes = std::lround(v.utc.minute * 60 + v.utc.seconde);
  if (v.astre.genre == GenreAstre::Etoile) {
    return PlaceEtoileMain(almanach, v, jour, secondes);
  }
  const std::size_t rang = RangErrant(v.astre.genre);
  const auto heure = static_cast<std::size_t>(v.utc.heure);
  const bool lune = rang == kLuneAlmanach;
  const PlaceAlmanach &place = jour.heures[heure].astres[rang];
  const long variation = ArrondiDixieme(lune ? jour.heures[heure].vLune : jour.astres[rang].v);
  const long d = std::labs(ArrondiDixieme(lune ? jour.heures[heure].dLune : jour.astres[rang].d));
  const TauxIncrement taux = lune ? TauxIncrement::Lune : TauxIncrement::Soleil;
  const long gha = DixiemesUnTour(place.gha) + Increment(taux, static_cast<int>(secondes)) +
                   SigneDe(variation) * CorrectionALaSeconde(v.utc, std::labs(variation));
  const long dec =
      DixiemesDe(place.declinaison) + SigneDe(Tendance(jour, heure, rang)) * CorrectionALaSeconde(v.utc, d);
  return {gha, dec};
}

/// Haversines as they stand on their pages.
struct PagesHaversines {
  TableHaversines table = Haversines();
  std::vector<long> cosinus = LogarithmesCosinus();
};

const PagesHaversines &Pages() {
  static const PagesHaversines pages;
  return pages;
}

/// An entry for an angle in tenths of a minute.
long EntreAngles(const std::vector<long> &table, long angle) {
  constexpr long kPas = kPasHaversine * 10;
  const auto i = std::min(static_cast<std::size_t>(angle / kPas), table.size() - 2);
  const double part = static_cast<double>(angle - static_cast<long>(i) * kPas) / kPas;
  return std::lround(Melange(table[i], table[i + 1], part));
}

/// Where a value stands in a monotone table, steps of ten minutes.
double Cherche(const std::vector<long> &table, long valeur) {
  const bool monte = table.back() > table.front();
  const auto apres = std::partition_point(table.begin() + 1, table.end() - 1,
                                          [&](long n) { return monte ? n <= valeur : n >= valeur; });
  const auto i = static_cast<std::size_t>(apres - table.begin()) - 1;
  return static_cast<double>(i) + static_cast<double>(valeur - table[i]) / static_cast<double>(table[i + 1] - table[i]);
}

long NombreDuLogarithme(long logarithme) {
  constexpr long kRien = 5300000;
  if (logarithme > kRien) {
    return 0;
  }
  const double place = Cherche(Pages().table.logarithmes, logarithme);
  const auto i = static_cast<std::size_t>(place);
  return std::lround(Melange(Pages().table.naturels[i], Pages().table.naturels[i + 1], place - static_cast<double>(i)));
}

long LogarithmeDuNombre(long nombre) {
  const double place = Cherche(Pages().table.naturels, std::max(nombre, 2L));
  const auto i = static_cast<std::size_t>(place);
  return std::lround(
      Melange(Pages().table.logarithmes[i], Pages().table.logarithmes[i + 1], place - static_cast<double>(i)));
}

long AngleDuNombre(long nombre) { return std::lround(Cherche(Pages().table.naturels, nombre) * kPasHaversine * 10); }

long AngleDuLogarithme(long logarithme) {
  return std::lround(Cherche(Pages().table.logarithmes, std::max(logarithme, 0L)) * kPasHaversine * 10);
}

/// Altitude and azimuth by steps 4 and 5.
struct Calculee {
  long Hc;
  long Z; ///< from the elevated pole
  bool est;
};

Calculee CalculeALaMain(const PlaceMain &place, const ViseeMain &v) {
  const PagesHaversines &p = Pages();
  const long lat = DixiemesDe(v.latitude);
  const long ahl = ((place.gha + DixiemesDe(v.longitude)) % kTour + kTour) % kTour;
  const bool est = ahl > kTour / 2;
  const long t = est ? kTour - ahl : ahl;
  const long L = std::labs(lat);
  const long D = std::labs(place.declinaison);
  const bool contraires = (lat < 0) != (place.declinaison < 0);
  const long somme = EntreAngles(p.table.logarithmes, t) + EntreAngles(p.cosinus, L) + EntreAngles(p.cosinus, D);
  const long ecart = contraires ? L + D : std::labs(L - D);
  const long z = AngleDuNombre(NombreDuLogarithme(somme) + EntreAngles(p.table.naturels, ecart));
  const long Hc = 90 * kDegre - z;
  const long pole = contraires ? 90 * kDegre + D : 90 * kDegre - D;
  const long reste = EntreAngles(p.table.naturels, pole) - EntreAngles(p.table.naturels, std::labs(L - Hc));
  const long Z =
      AngleDuLogarithme(LogarithmeDuNombre(reste) - EntreAngles(p.cosinus, L) - EntreAngles(p.cosinus, std::labs(Hc)));
  return {Hc, Z, est};
}

double AzimutVrai(const Calculee &c, double latitude) {
  const double Z = static_cast<double>(c.Z) / kDegre;
  if (latitude >= 0) {
    return c.est ? Z : 360 - Z;
  }
  return c.est ? 180 - Z : 180 + Z;
}

/// Reading, index and dip.
long ApparenteALaMain(const ViseeMain &v) {
  const TableSimple depression = TableDepression();
  return DixiemesDe(v.sextant.lecture) + ArrondiDixieme(v.sextant.collimation) -
         Entre(depression.x, depression.y, v.sextant.hauteurOeil);
}

long AirALaMain(const ViseeMain &v, double apparente) {
  static const TableDouble air = TableAir();
  static const TableDouble correction = TableCorrectionAir();
  const long pourCent = Entre(air, v.sextant.temperature, v.sextant.pression);
  const auto grand = static_cast<double>(std::labs(pourCent));
  // Under two percent: the part of the first column.
  const double part = std::min(grand / correction.y.front(), 1.0);
  const auto entree = static_cast<double>(Entre(correction, apparente, std::max(grand, correction.y.front())));
  return SigneDe(pourCent) * std::lround(part * entree);
}

long CorrectionLuneMain(const ViseeMain &v, const JourAlmanach &jour, const Calculee &c, double apparente) {
  static const TableSimple premiere = TableBordLune();
  static const TableDouble inferieure = TableLuneParallaxe(false);
  static const TableDouble superieure = TableLuneParallaxe(true);
  const double hp = static_cast<double>(ArrondiDixieme(jour.heures[static_cast<std::size_t>(v.utc.heure)].hpLune)) / 10;
  const std::vector<double> latitudes = LatitudesFormeTerre();
  const double L = std::fabs(v.latitude);
  // The nearest of the small tables, and its nearest entries between.
  const auto pres = std::min_element(latitudes.begin(), latitudes.end(),
                                     [L](double a, double b) { return std::fabs(a - L) < std::fabs(b - L); });
  const long forme = Entre(TableFormeTerre(*pres), apparente, static_cast<double>(c.Z) / kDegre);
  const bool haut = v.sextant.contact == Contact::Superieur;
  return Entre(premiere.x, premiere.y, apparente) + Entre(haut ? superieure : inferieure, hp, apparente) + forme;
}

long CorrectionALaMain(const Almanach &almanach, const ViseeMain &v, const Calculee &c, double apparente) {
  static const TableSimple etoiles = TableRefraction();
  const JourAlmanach &jour = JourDe(almanach, v.utc);
  switch (v.astre.genre) {
  case GenreAstre::Soleil: {
    const long demi = ArrondiDixieme(jour.astres[kSoleilAlmanach].demiDiametre);
    const TableDouble soleil = TableSoleil({demi}, v.sextant.contact == Contact::Superieur);
    std::vector<long> colonne;
    for (const std::vector<long> &rangee : soleil.z) {
      colonne.push_back(rangee.front());
    }
    return Entre(soleil.x, colonne, apparente);
  }
  case GenreAstre::Lune:
    return CorrectionLuneMain(v, jour, c, apparente);
  case GenreAstre::Etoile:
    return -Entre(etoiles.x, etoiles.y, apparente);
  default: {
    const long hp = ArrondiDixieme(jour.astres[RangErrant(v.astre.genre)].hp);
    const long parallaxe = hp > 0 ? Entre(TableParallaxe(), apparente, static_cast<double>(hp)) : 0;
    return parallaxe - Entre(etoiles.x, etoiles.y, apparente);
  }
  }
}

} // namespace

long Entre(const std::vector<double> &x, const std::vector<long> &y, double valeur) {
  const Lieu lieu = LieuDans(x, valeur);
  return std::lround(Melange(y[lieu.i], y[std::min(lieu.i + 1, y.size() - 1)], lieu.part));
}

long Entre(const TableDouble &table, double x, double y) {
  const Lieu rangee = LieuDans(table.x, x);
  const Lieu colonne = LieuDans(table.y, y);
  const auto ligne = [&](std::size_t i) {
    const std::vector<long> &z = table.z[std::min(i, table.z.size() - 1)];
    return Melange(z[colonne.i], z[std::min(colonne.i + 1, z.size() - 1)], colonne.part);
  };
  return std::lround(ligne(rangee.i) + rangee.part * (ligne(rangee.i + 1) - ligne(rangee.i)));
}

ResultatMain ReduisALaMain(const Almanach &almanach, const ViseeMain &v) {
  const PlaceMain place = PlaceMainDe(almanach, v);
  const Calculee calculee = CalculeALaMain(place, v);
  const long apparente = ApparenteALaMain(v);
  const double degres = static_cast<double>(apparente) / kDegre;
  ResultatMain r;
  r.gha = place.gha % kTour;
  r.declinaison = place.declinaison;
  r.Hc = calculee.Hc;
  r.Ho = apparente + CorrectionALaMain(almanach, v, calculee, degres) + AirALaMain(v, degres);
  r.azimut = AzimutVrai(calculee, v.latitude);
  r.intercept = static_cast<double>(r.Ho - r.Hc) / 10;
  return r;
}

long LatitudePolaireALaMain(const Almanach &almanach, const ViseeMain &v) {
  static const TableDouble seconde = TablePolaireHauteur();
  const PlaceMain place = PlaceMainDe(almanach, v);
  const long ahl = ((place.gha + DixiemesDe(v.longitude)) % kTour + kTour) % kTour;
  const double t = static_cast<double>(std::min(ahl, kTour - ahl)) / kDegre;
  const long apparente = ApparenteALaMain(v);
  const double degres = static_cast<double>(apparente) / kDegre;
  const long Ho = apparente + CorrectionALaMain(almanach, v, {}, degres) + AirALaMain(v, degres);
  const TableDouble premiere = TablePolaire({90 * kDegre - place.declinaison});
  std::vector<long> colonne;
  for (const std::vector<long> &rangee : premiere.z) {
    colonne.push_back(rangee.front());
  }
  return Ho + Entre(premiere.x, colonne, t) + Entre(seconde, t, degres);
}

} // namespace velmaris::essais
