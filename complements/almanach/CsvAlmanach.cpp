#include "complements/almanach/CsvAlmanach.hpp"

#include "complements/almanach/Arrondis.hpp"

#include <array>
#include <charconv>
#include <string_view>

namespace velmaris {
namespace {

constexpr std::array<std::string_view, kErrantsAlmanach> kNoms{"Soleil", "Lune", "Venus", "Mars", "Jupiter", "Saturne"};

/// A number with a point, whatever the language of the desktop.
std::string Decimal(double x, int decimales) {
  std::array<char, 32> texte{};
  char *const debut = texte.data();
  const std::to_chars_result fin = std::to_chars(debut, debut + texte.size(), x, std::chars_format::fixed, decimales);
  return {debut, fin.ptr};
}

std::string Deux(int n) { return n < 10 ? "0" + std::to_string(n) : std::to_string(n); }

std::string Jour(const DateCivile &date) {
  return std::to_string(date.annee) + '-' + Deux(date.mois) + '-' + Deux(date.jour);
}

void Rangee(std::string &csv, std::initializer_list<std::string> champs) {
  bool premier = true;
  for (const std::string &champ : champs) {
    csv += premier ? "" : ",";
    csv += champ;
    premier = false;
  }
  csv += '\n';
}

/// A time of day, "07:42"; several with a blank between.
std::string Heures(const std::vector<double> &heures) {
  std::string texte;
  for (const double h : heures) {
    const long minutes = MinutesDe(h);
    texte +=
        (texte.empty() ? "" : " ") + Deux(static_cast<int>(minutes / 60)) + ':' + Deux(static_cast<int>(minutes % 60));
  }
  return texte;
}

std::string Heures(const HeuresHorizon &h) {
  switch (h.absence) {
  case RaisonAbsence::ToujoursAuDessus:
    return "+";
  case RaisonAbsence::ToujoursAuDessous:
    return "-";
  default:
    return Heures(h.heures);
  }
}

void HeuresCsv(std::string &csv, const JourAlmanach &jour) {
  constexpr int kFin = 6; ///< decimals of degrees
  for (std::size_t h = 0; h < jour.heures.size(); ++h) {
    const HeureAlmanach &heure = jour.heures[h];
    const std::string utc = Jour(jour.date) + 'T' + Deux(static_cast<int>(h)) + ":00:00Z";
    Rangee(csv, {"heure", utc, "Belier", TexteAngle(DixiemesUnTour(heure.belier), '.', 1), "",
                 Decimal(heure.belier, kFin), "", "", "", ""});
    for (std::size_t i = 0; i < kErrantsAlmanach; ++i) {
      const PlaceAlmanach &place = heure.astres[i];
      const AstreAlmanach &astre = jour.astres[i];
      const bool lune = i == kLuneAlmanach;
      Rangee(csv, {"heure", utc, std::string(kNoms[i]), TexteAngle(DixiemesUnTour(place.gha), '.', 1),
                   TexteDeclinaison(DixiemesDe(place.declinaison), '.'), Decimal(place.gha, kFin),
                   Decimal(place.declinaison, kFin), TexteDixiemes(ArrondiDixieme(lune ? heure.hpLune : astre.hp), '.'),
                   TexteDixiemes(ArrondiDixieme(lune ? heure.vLune : astre.v), '.'),
                   TexteDixiemes(ArrondiDixieme(lune ? heure.dLune : astre.d), '.')});
    }
  }
}

void JoursCsv(std::string &csv, const JourAlmanach &jour) {
  for (std::size_t i = 0; i < kErrantsAlmanach; ++i) {
    const AstreAlmanach &a = jour.astres[i];
    const bool lune = i == kLuneAlmanach;
    Rangee(csv, {"jour", Jour(jour.date), std::string(kNoms[i]), lune ? "" : TexteDixiemes(ArrondiDixieme(a.v), '.'),
                 lune ? "" : TexteDixiemes(ArrondiDixieme(a.d), '.'), TexteDixiemes(ArrondiDixieme(a.hp), '.'),
                 Decimal(a.demiDiametre, 2), TexteDixiemes(ArrondiDixieme(a.magnitude), '.'), Heures(a.meridien)});
  }
}

void DateCsv(std::string &csv, const JourAlmanach &jour) {
  Rangee(csv, {"date", Jour(jour.date), TexteEquation(jour.equation0), TexteEquation(jour.equation12),
               TexteDixiemes(ArrondiDixieme(jour.ageLune), '.'), Decimal(jour.partLune * 100, 0),
               Heures(jour.luneInferieur), Heures(jour.belier)});
}

void PeriodesCsv(std::string &csv, const Almanach &almanach) {
  Rangee(csv, {"#etoile", "date", "ligne", "numero", "nom", "magnitude", "av", "declinaison", "av_degres",
               "declinaison_degres"});
  for (const PeriodeAlmanach &p : almanach.periodes) {
    for (const EtoileAlmanach &e : p.etoiles) {
      Rangee(csv, {"etoile", Jour(p.milieu), std::to_string(e.rang), std::to_string(e.numero), e.nom,
                   TexteDixiemes(ArrondiDixieme(e.magnitude), '.'), TexteAngle(DixiemesUnTour(e.sha), '.', 1),
                   TexteDeclinaison(DixiemesDe(e.declinaison), '.'), Decimal(e.sha, 6), Decimal(e.declinaison, 6)});
    }
  }
  Rangee(csv, {"#soleil", "date", "latitude", "nautique_matin", "civil_matin", "lever", "coucher", "civil_soir",
               "nautique_soir"});
  for (const PeriodeAlmanach &p : almanach.periodes) {
    for (std::size_t i = 0; i < p.soleil.size(); ++i) {
      const SoleilHorizon &s = p.soleil[i];
      Rangee(csv,
             {"soleil", Jour(p.milieu), Decimal(almanach.demande.latitudes[i], 2), Heures(s.nautiqueMatin),
              Heures(s.civilMatin), Heures(s.lever), Heures(s.coucher), Heures(s.civilSoir), Heures(s.nautiqueSoir)});
    }
  }
}

} // namespace

std::string EcritAlmanachCsv(const Almanach &almanach) {
  std::string csv;
  Rangee(csv, {"#heure", "utc", "astre", "gha", "declinaison", "gha_degres", "declinaison_degres", "hp", "v", "d"});
  for (const JourAlmanach &jour : almanach.jours) {
    HeuresCsv(csv, jour);
  }
  Rangee(csv, {"#jour", "date", "astre", "v", "d", "hp", "demi_diametre", "magnitude", "passage"});
  for (const JourAlmanach &jour : almanach.jours) {
    JoursCsv(csv, jour);
  }
  Rangee(csv,
         {"#date", "date", "equation_0h", "equation_12h", "age_lune", "lune_pour_cent", "lune_inferieur", "belier"});
  for (const JourAlmanach &jour : almanach.jours) {
    DateCsv(csv, jour);
  }
  PeriodesCsv(csv, almanach);
  Rangee(csv, {"#lune", "date", "latitude", "lever", "coucher"});
  for (const JourAlmanach &jour : almanach.jours) {
    for (std::size_t i = 0; i < jour.lune.size(); ++i) {
      Rangee(csv, {"lune", Jour(jour.date), Decimal(almanach.demande.latitudes[i], 2), Heures(jour.lune[i].lever),
                   Heures(jour.lune[i].coucher)});
    }
  }
  return csv;
}

} // namespace velmaris
