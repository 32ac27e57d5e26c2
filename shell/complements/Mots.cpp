#include "shell/complements/Mots.hpp"

#include "foundations/Angles.hpp"
#include "foundations/TexteNombre.hpp"

#include <cmath>
#include <cstddef>

namespace velmaris {
namespace {

constexpr double kTour = 360;

/// An instant to the second.
DateCivile ALaSeconde(const InstantUTC &utc) {
  constexpr double kDemie = 0.5;
  DateCivile date = CivileDe(PlusTard(utc, kDemie));
  date.seconde = std::floor(date.seconde);
  return date;
}

std::string LigneDeListe(const Controle &liste, int rang) {
  return rang >= 0 && static_cast<std::size_t>(rang) < liste.liste.size() ? liste.liste[static_cast<std::size_t>(rang)]
                                                                          : std::string("?");
}

std::string NomDeCorps(const Donnees &donnees, Corps corps) {
  return std::string(SansBlancs(donnees.Option7.at(static_cast<std::size_t>(corps)).legende));
}

} // namespace

std::string Dixiemes(double valeur) { return Format(valeur, "0.0"); }

std::string DixiemesSignes(double valeur) { return (valeur < 0 ? "" : "+") + Dixiemes(valeur); }

std::string TexteLieu(const LieuNavire &lieu) { return TexteTenue(lieu.latitude, -lieu.longitude); }

std::string TexteDirection(double degres) { return Format(std::fmod(std::round(degres), kTour), "000") + "°"; }

std::string TexteDate(const InstantUTC &utc) {
  const DateCivile date = ALaSeconde(utc);
  return Format(date.jour, "00") + "/" + Format(date.mois, "00") + "/" + Format(date.annee, "0000");
}

std::string TexteHeureUtc(const InstantUTC &utc) {
  const DateCivile date = ALaSeconde(utc);
  return Format(date.heure, "00") + ":" + Format(date.minute, "00") + ":" + Format(date.seconde, "00");
}

std::string TexteHeureMinute(const InstantUTC &utc) {
  constexpr double kDemie = 30;
  constexpr std::size_t kHeureMinute = 5;
  return TexteHeureUtc(PlusTard(utc, kDemie)).substr(0, kHeureMinute);
}

std::string TexteAngleSigne(double degres) {
  constexpr double kDixiemesParDegre = 600;
  constexpr double kDixiemes = 10;
  const double dixiemes = std::round(std::fabs(degres) * kDixiemesParDegre);
  const double entiers = std::floor(dixiemes / kDixiemesParDegre);
  return (degres < 0 && dixiemes > 0 ? "-" : "") + Format(entiers, "0") + "° " +
         Format((dixiemes - entiers * kDixiemesParDegre) / kDixiemes, "00.0") + "'";
}

std::string NomDAstre(const Bureau &bureau, const Astre &astre) {
  switch (astre.genre) {
  case GenreAstre::Soleil:
    return NomDeCorps(bureau.donnees, Corps::Soleil);
  case GenreAstre::Lune:
    return NomDeCorps(bureau.donnees, Corps::Lune);
  case GenreAstre::Etoile: {
    const auto rang = static_cast<std::size_t>(astre.rang);
    const std::string_view nom = bureau.etoiles.EtoileNom.at(rang);
    return std::string(nom.empty() ? bureau.etoiles.EtoileBayer.at(rang) : nom);
  }
  case GenreAstre::Belier:
    return "?";
  default:
    return LigneDeListe(bureau.donnees.Combo7, static_cast<int>(astre.genre) - static_cast<int>(GenreAstre::Venus));
  }
}

std::string NomDeVisee(const Donnees &donnees, const Observation &o) {
  switch (o.corps) {
  case Corps::Planetes:
    return LigneDeListe(donnees.Combo7, o.planete);
  case Corps::Etoiles:
    return LigneDeListe(donnees.Combo6, o.etoile);
  case Corps::Soleil:
  case Corps::Lune:
    return NomDeCorps(donnees, o.corps);
  case Corps::Aucun:
    break;
  }
  return "?";
}

} // namespace velmaris
