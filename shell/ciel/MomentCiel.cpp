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
  return TempsDe(MomentDe(temps) + std::chrono::minutes(minutes));
}

} // namespace velmaris
