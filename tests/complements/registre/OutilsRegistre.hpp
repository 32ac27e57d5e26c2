#pragma once

#include "complements/registre/RegistreLu.hpp"

#include "tests/OutilsTests.hpp"

#include <cstdio>
#include <string>

namespace velmaris::essais {

/// A line of a journal as a spreadsheet shows it, written by hand: the Sun on that day and at that time.
/// @param suite  columns after the azimuth, with their first comma
inline std::string LigneMain(const std::string &date, const std::string &heure,
                             const std::string &suite = ",2,00000000000000aa,4.168,-0.032") {
  return "2026-06-21T12:05:40Z,Soleil,Soleil," + date + "," + heure +
         ",47,30,N,5,10,W,65,34,38,secondes,\"-1,0\",\"2,5\",inferieur,naturel,65.7687,65.6998,4.136212,190.6131" +
         suite;
}

/// A journal of the newer form.
inline std::string JournalDe(const std::string &lignes) { return std::string(kTitresJournal) + "\n" + lignes; }

/// A newer row's columns after the azimuth, with that identity.
inline std::string Suite(const std::string &identite) { return ",2," + identite + ",4.168,-0.032"; }

/// A journal of that many rows, one a minute from 1970 on; each identity is its number.
inline std::string LongJournal(int lignes) {
  std::string texte(kTitresJournal);
  texte += "\n";
  for (int i = 0; i < lignes; ++i) {
    const int jour = i / 1440;
    char date[32];
    char heure[16];
    char identite[24];
    std::snprintf(date, sizeof date, "%d,%d,%d", jour % 28 + 1, jour / 28 % 12 + 1, 1970 + jour / 336);
    std::snprintf(heure, sizeof heure, "%d,%d,0", i / 60 % 24, i % 60);
    std::snprintf(identite, sizeof identite, "%016x", static_cast<unsigned>(i));
    texte += LigneMain(date, heure, Suite(identite)) + "\n";
  }
  return texte;
}

} // namespace velmaris::essais
