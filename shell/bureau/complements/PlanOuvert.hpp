#pragma once

#include "complements/lunaire/Classement.hpp"
#include "complements/prevision/Compas.hpp"
#include "complements/prevision/Identification.hpp"
#include "complements/prevision/JeuxAstres.hpp"
#include "complements/prevision/Journee.hpp"

#include <cstddef>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace velmaris {

/// What a plan is asked for.
struct DemandePlan {
  JourCivil jour;
  NavirePrevu navire;
  ReglagesPlan reglages;
  ReglagesJeux jeux;
};

/// When the best set of a time for stars can be taken.
struct MeilleurMoment {
  GenrePrise prise = GenrePrise::Soir;
  InstantUTC utc;
  double trace = 0; ///< of the best set's fix then, square miles
};

/// The plan as its window shows it.
struct PlanOuvert {
  DemandePlan demande;
  std::shared_ptr<const CielDuJour> ciel; ///< none before a first day, and while `refus` tells why
  std::shared_ptr<const Journee> journee; ///< of the same day
  std::optional<RaisonRefus> refus;
  InstantUTC instant;                    ///< that is looked at, within the day
  CielDuPlan vue;                        ///< the sky then
  MeilleursJeux jeux;                    ///< then
  std::vector<MeilleurMoment> meilleurs; ///< of the day's times for stars, in the order of time
  std::vector<CandidatLunaire> lunaires; ///< bodies for a lunar distance, then; while their page is in front
  AmplitudesDuJour amplitudes;
  std::vector<AstreProbable> inconnus; ///< what the unknown body may be
  std::vector<std::size_t> montres;    ///< bodies of the list, by their places in `vue`
  std::vector<std::size_t> compas;     ///< bodies of the compass's list, the same
  std::optional<Astre> choisi;         ///< the body that is looked at
  std::stop_source arret;              ///< of the day that is being worked out: another one that is asked for ends it
  std::stop_source arretMeilleurs;     ///< of the search for `meilleurs`
  bool enCalcul = false;               ///< a day is being worked out
  std::string dit;                     ///< what the last gesture has to say, until the next one
  bool aMontrer = true;                ///< something has changed that the window doesn't show yet
  std::string langue;                  ///< that the window's words are in
};

} // namespace velmaris
