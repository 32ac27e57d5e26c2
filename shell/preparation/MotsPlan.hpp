#pragma once

#include "shell/bureau/Bureau.hpp"
#include "shell/preparation/EvenementsPlan.hpp"

#include <string>

namespace velmaris {

/// The words of the plan, in the language of the window.

/// A time aboard: "20:34".
std::string HeureDuBord(const Journee &journee, const InstantUTC &utc);

/// "Heure du bord UTC-1".
std::string MotsFuseau(const Preparation &f, const Journee &journee);

/// An event of the day by its name.
const std::string &NomEvenement(const Preparation &f, GenreEvenement genre);

/// The moment that is looked at: time, time aboard, the Sun's height, what light there is.
std::string MotsInstant(const Preparation &f, const PlanOuvert &plan);

/// The Moon's face and place; empty while she is below the horizon.
std::string MotsLune(const Preparation &f, const PlanOuvert &plan);

/// When stars can be shot on that day.
std::string MotsPrises(const Preparation &f, const Journee &journee);

/// The bodies of a set, in their order.
std::string MotsJeu(const Bureau &bureau, const JeuAstres &jeu);

/// When a time for stars has its best set: "Le mieux le soir : 21:47 UTC".
std::string MotsMeilleur(const Preparation &f, const MeilleurMoment &moment);

/// Why a body isn't proposed, and which limb is shot; empty for neither.
/// @param vue  the sky that it stands in
std::string MotsRemarque(const Preparation &f, const CielDuPlan &vue, const AstreDuPlan &astre);

/// An amplitude: "E 23.4° N".
std::string MotsAmplitude(const Preparation &f, bool lever, double amplitude);

/// A correction with the side that it lies to: "3.2° E".
std::string MotsCote(const Preparation &f, double degres);

} // namespace velmaris
