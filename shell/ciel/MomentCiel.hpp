#pragma once

#include "shell/bureau/Bureau.hpp"

#include <functional>

namespace velmaris {

/// While it lives, the program's clock stands at the moment that the sky window shows, where that isn't the present.
/// Everything that a drawing of that moment would leave with the rest of the program is put back with it.
class ALHeureDuCiel {
public:
  explicit ALHeureDuCiel(Bureau &bureau);
  ~ALHeureDuCiel();
  ALHeureDuCiel(const ALHeureDuCiel &) = delete;
  ALHeureDuCiel &operator=(const ALHeureDuCiel &) = delete;
  ALHeureDuCiel(ALHeureDuCiel &&) = delete;
  ALHeureDuCiel &operator=(ALHeureDuCiel &&) = delete;

private:
  Bureau &bureau_;
  bool change_;
  Horloge horloge_;
  Lune lune_;
};

/// Tells when and from where the sky has just been drawn.
/// @param latitude, longitude  degrees, north and west positive
void DitMoment(Bureau &bureau, double latitude, double longitude);

/// A moment some minutes later, earlier below 0.
TempsSysteme Decale(const TempsSysteme &temps, long minutes);

} // namespace velmaris
