#include "foundations/ValeurDate.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"

#include <charconv>
#include <chrono>
#include <cmath>

namespace velmaris {
namespace {

constexpr int kPivotSiecle = 30; ///< two-digit years from here on belong to the 1900s
constexpr int kAnneeMax = 9999;

constexpr std::size_t kChiffresHeure = 2; ///< at most, in a field of a time of day

/// A field of a date: digits only, blanks around them allowed.
int LitChamp(std::string_view texte) {
  texte = SansBlancs(texte);
  int valeur = 0;
  const auto [fin, code] = std::from_chars(texte.data(), texte.data() + texte.size(), valeur);
  if (texte.empty() || code != std::errc() || fin != texte.data() + texte.size() || valeur < 0) {
    throw Erreur(13);
  }
  return valeur;
}

/// A field of a time of day: one or two digits, not above `maximum`.
int LitChampHeure(std::string_view texte, int maximum) {
  const int valeur = LitChamp(texte);
  if (texte.size() > kChiffresHeure || valeur > maximum) {
    throw Erreur(13);
  }
  return valeur;
}

std::chrono::year_month_day JourCivil(const ValeurDate &date) {
  return {std::chrono::year(date.annee), std::chrono::month(static_cast<unsigned>(date.mois)),
          std::chrono::day(static_cast<unsigned>(date.jour))};
}

} // namespace

ValeurDate LitDate(std::string_view texte) {
  const std::size_t p1 = texte.find('/');
  const std::size_t p2 = p1 == std::string_view::npos ? p1 : texte.find('/', p1 + 1);
  if (p2 == std::string_view::npos) {
    throw Erreur(13);
  }
  ValeurDate date;
  date.jour = LitChamp(texte.substr(0, p1));
  date.mois = LitChamp(texte.substr(p1 + 1, p2 - p1 - 1));
  date.annee = LitChamp(texte.substr(p2 + 1));
  if (date.annee < 100) {
    date.annee += date.annee < kPivotSiecle ? 2000 : 1900;
  }
  if (date.annee > kAnneeMax || date.mois > 12 || date.jour > 31 || !JourCivil(date).ok()) {
    throw Erreur(13);
  }
  return date;
}

int JourSemaine(const ValeurDate &date) {
  return static_cast<int>(std::chrono::weekday(std::chrono::sys_days(JourCivil(date))).c_encoding());
}

ValeurDate LitDateHeure(std::string_view texte) {
  texte = SansBlancs(texte);
  const std::size_t blanc = texte.rfind(' ');
  const std::size_t p1 = texte.find(':', blanc == std::string_view::npos ? texte.size() : blanc);
  const std::size_t p2 = p1 == std::string_view::npos ? p1 : texte.find(':', p1 + 1);
  if (p2 == std::string_view::npos) {
    throw Erreur(13);
  }
  ValeurDate date = LitDate(texte.substr(0, blanc));
  date.heure = LitChampHeure(texte.substr(blanc + 1, p1 - blanc - 1), 23);
  date.minute = LitChampHeure(texte.substr(p1 + 1, p2 - p1 - 1), 59);
  date.seconde = LitChampHeure(texte.substr(p2 + 1), 59);
  return date;
}

double LitHeure(std::string_view texte) {
  const std::size_t separateur = texte.find(':');
  if (separateur == std::string_view::npos) {
    throw Erreur(13);
  }
  const int heure = LitChampHeure(texte.substr(0, separateur), 23);
  const int minute = LitChampHeure(texte.substr(separateur + 1), 59);
  return (heure * 60 + minute) / 1440.0;
}

std::string TexteHeure(double jours) {
  const long secondes = std::lround(jours * 86400);
  const long minutes = secondes / 60;
  const long heures = minutes / 60;
  return Format(static_cast<double>(heures), "00") + ":" + Format(static_cast<double>(minutes % 60), "00") + ":" +
         Format(static_cast<double>(secondes % 60), "00");
}

std::string TexteDateHeure(const ValeurDate &date) {
  return Format(date.jour, "00") + "/" + Format(date.mois, "00") + "/" + Format(date.annee, "0000") + " " +
         Format(date.heure, "00") + ":" + Format(date.minute, "00") + ":" + Format(date.seconde, "00");
}

} // namespace velmaris
