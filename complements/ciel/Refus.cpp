#include "complements/ciel/Refus.hpp"

namespace velmaris {

const char *Refus::what() const noexcept {
  switch (raison) {
  case RaisonRefus::DateImpossible:
    return "the calendar has no such day";
  case RaisonRefus::HeureImpossible:
    return "the day has no such time";
  case RaisonRefus::AnneeHorsLimites:
    return "the year lies outside 1800 to 2199";
  case RaisonRefus::LuneHorsTable:
    return "the Moon is known from 1900 to 2100";
  case RaisonRefus::EtoileSansPlace:
    return "row 67 is a nova without a place in any catalogue of bright stars";
  case RaisonRefus::RangInconnu:
    return "the star table has rows 1 to 246";
  case RaisonRefus::LieuImpossible:
    return "there is no such place on the Earth";
  }
  return "no answer";
}

} // namespace velmaris
