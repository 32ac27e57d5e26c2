#include "foundations/Horloge.hpp"

#include "foundations/TexteNombre.hpp"

#include <chrono>
#include <ctime>

namespace velmaris {

TempsSysteme GetSystemTime() {
  using namespace std::chrono;
  const auto maintenant = floor<milliseconds>(system_clock::now());
  const auto jour = floor<days>(maintenant);
  const year_month_day date(jour);
  const hh_mm_ss heure(maintenant - jour);
  TempsSysteme t;
  t.annee = static_cast<std::uint16_t>(static_cast<int>(date.year()));
  t.mois = static_cast<std::uint16_t>(static_cast<unsigned>(date.month()));
  t.jour = static_cast<std::uint16_t>(static_cast<unsigned>(date.day()));
  t.jourSemaine = static_cast<std::uint16_t>(weekday(jour).c_encoding());
  t.heure = static_cast<std::uint16_t>(heure.hours().count());
  t.minute = static_cast<std::uint16_t>(heure.minutes().count());
  t.seconde = static_cast<std::uint16_t>(heure.seconds().count());
  t.millisecondes = static_cast<std::uint16_t>(heure.subseconds().count());
  return t;
}

ValeurDate DateLocale() {
  const std::time_t maintenant = std::time(nullptr);
  std::tm local{};
  localtime_r(&maintenant, &local);
  return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
}

void LitHorloge(Horloge &horloge) {
  horloge.temps = horloge.source();
  const TempsSysteme &t = horloge.temps;
  horloge.HeureGMT = Format(t.heure, "00") + ":" + Format(t.minute, "00") + ":" + Format(t.seconde, "00");
  horloge.JourGMT = Format(t.jour, "00");
  horloge.MoisGMT = Format(t.mois, "00");
  horloge.AnGMT = Format(t.annee, "00");
}

double MomentUTC(const TempsSysteme &t) {
  using namespace std::chrono;
  const year_month_day date(year(t.annee), month(t.mois), day(t.jour));
  const milliseconds depuisMinuit =
      hours(t.heure) + minutes(t.minute) + seconds(t.seconde) + milliseconds(t.millisecondes);
  return static_cast<double>(sys_days(date).time_since_epoch().count()) +
         duration<double, days::period>(depuisMinuit).count();
}

float FractionJourUTC(Horloge &horloge) {
  horloge.temps = horloge.source();
  const TempsSysteme &t = horloge.temps;
  return static_cast<float>(((t.heure + t.minute / 60.0) + t.seconde / 3600.0) / 24.0);
}

} // namespace velmaris
