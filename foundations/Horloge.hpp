#pragma once

#include "foundations/ValeurDate.hpp"

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>

namespace velmaris {

/// The operating system's time record, in Universal Time.
struct TempsSysteme {
  std::uint16_t annee = 2000;
  std::uint16_t mois = 1;
  std::uint16_t jourSemaine = 6;
  std::uint16_t jour = 1;
  std::uint16_t heure = 0;
  std::uint16_t minute = 0;
  std::uint16_t seconde = 0;
  std::uint16_t millisecondes = 0;
};

/// A moment in UTC, to the millisecond.
using MomentMillisecondes = std::chrono::sys_time<std::chrono::milliseconds>;

/// A record's moment, and a moment's record with its day of the week.
/// @{
MomentMillisecondes MomentDe(const TempsSysteme &temps);
TempsSysteme TempsDe(MomentMillisecondes moment);
/// @}

/// The operating system's clock, in UTC.
TempsSysteme GetSystemTime();

/// The operating system's local date and time.
ValeurDate DateLocale();

/// The shared clock: its two sources, the last record read, and the four texts that it publishes.
struct Horloge {
  std::function<TempsSysteme()> source = GetSystemTime; ///< UTC; tests set their own
  std::function<ValeurDate()> locale = DateLocale;      ///< local date and time
  TempsSysteme temps;
  std::string HeureGMT; ///< "hh:mm:ss"
  std::string JourGMT;  ///< "00"
  std::string MoisGMT;  ///< "00"
  std::string AnGMT;    ///< "00", so four digits in practice
};

/// Reads UTC into the clock's record and refreshes its four texts.
void LitHorloge(Horloge &horloge);

/// A moment as a count of days since 1970, with its milliseconds.
double MomentUTC(const TempsSysteme &temps);

/// Reads UTC into the clock's record, leaving the texts.
/// @return the fraction of the day, in 32 bits; the milliseconds are ignored
float FractionJourUTC(Horloge &horloge);

} // namespace velmaris
