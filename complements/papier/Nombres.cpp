#include "complements/papier/Nombres.hpp"

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

} // namespace

std::string Dixiemes(double valeur) { return Format(valeur, "0.0"); }

std::string DixiemesSignes(double valeur) {
  std::string nu = Dixiemes(std::fabs(valeur));
  return nu == "0.0" ? nu : (valeur < 0 ? "-" : "+") + nu;
}

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

std::string TexteLatitude(double degres) { return TexteAngleSigne(std::fabs(degres)) + (degres < 0 ? " S" : " N"); }

std::string TexteLongitude(double degres) { return TexteAngleSigne(std::fabs(degres)) + (degres < 0 ? " W" : " E"); }

} // namespace velmaris
