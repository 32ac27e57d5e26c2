#include "shell/ciel/MomentCiel.hpp"

#include "foundations/Angles.hpp"

#include <chrono>

namespace velmaris {

ALHeureDuCiel::ALHeureDuCiel(Bureau &bureau)
    : bureau_(bureau), change_(bureau.ciel.moment.has_value()), horloge_(bureau.horloge), lune_(bureau.lune) {
  if (change_) {
    bureau.horloge.source = [moment = *bureau.ciel.moment] { return moment; };
  }
}

ALHeureDuCiel::~ALHeureDuCiel() {
  if (change_) {
    bureau_.horloge = horloge_;
    bureau_.lune = lune_;
  }
}

void DitMoment(Bureau &bureau, double latitude, double longitude) {
  Ciel &c = bureau.ciel;
  const Horloge &h = bureau.horloge;
  c.Moment.legende = h.JourGMT + "/" + h.MoisGMT + "/" + h.AnGMT + "  " + h.HeureGMT + " GMT" +
                     (c.moment ? std::string() : ", " + c.TextePresent.legende);
  c.Lieu.legende = TexteTenue(latitude, longitude);
}

TempsSysteme Decale(const TempsSysteme &temps, long minutes) {
  using namespace std::chrono;
  const sys_days jour = year(temps.annee) / month(temps.mois) / day(temps.jour);
  const sys_seconds moment =
      jour + hours(temps.heure) + std::chrono::minutes(temps.minute + minutes) + seconds(temps.seconde);
  const sys_days midi = floor<days>(moment);
  const year_month_day date(midi);
  const hh_mm_ss heure(moment - midi);
  TempsSysteme autre = temps;
  autre.annee = static_cast<std::uint16_t>(static_cast<int>(date.year()));
  autre.mois = static_cast<std::uint16_t>(static_cast<unsigned>(date.month()));
  autre.jour = static_cast<std::uint16_t>(static_cast<unsigned>(date.day()));
  autre.jourSemaine = static_cast<std::uint16_t>(weekday(midi).c_encoding());
  autre.heure = static_cast<std::uint16_t>(heure.hours().count());
  autre.minute = static_cast<std::uint16_t>(heure.minutes().count());
  return autre;
}

} // namespace velmaris
