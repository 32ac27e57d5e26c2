#include "foundations/Horloge.hpp"

#include "foundations/TexteNombre.hpp"

#include <chrono>
#include <ctime>

namespace velmaris {

TempsSysteme GetSystemTime() {
  return TempsDe(std::chrono::floor<std::chrono::milliseconds>(std::chrono::system_clock::now()));
}

TempsSysteme TempsDe(MomentMillisecondes moment) {
  using namespace std::chrono;
  const auto jour = floor<days>(moment);
  const year_month_day date(jour);
  const hh_mm_ss heure(moment - jour);
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

MomentMillisecondes MomentDe(const TempsSysteme &t) {
  using namespace std::chrono;
  return sys_days(year(t.annee) / month(t.mois) / day(t.jour)) + hours(t.heure) + minutes(t.minute) +
         seconds(t.seconde) + milliseconds(t.millisecondes);
}

double MomentUTC(const TempsSysteme &t) {
  using namespace std::chrono;
  const MomentMillisecondes moment = MomentDe(t);
  const auto jour = floor<days>(moment);
  return static_cast<double>(jour.time_since_epoch().count()) + duration<double, days::period>(moment - jour).count();
}

float FractionJourUTC(Horloge &horloge) {
  horloge.temps = horloge.source();
  const TempsSysteme &t = horloge.temps;
  return static_cast<float>(((t.heure + t.minute / 60.0) + t.seconde / 3600.0) / 24.0);
}

} // namespace velmaris
