#pragma once

#include <string>
#include <string_view>

namespace velmaris {

/// A civil date and time, as the calendar of the platform counts them (Gregorian throughout).
struct ValeurDate {
  int annee = 2000;
  int mois = 1;
  int jour = 1;
  int heure = 0;
  int minute = 0;
  int seconde = 0;
};

/// Date from a text day "/" month "/" year, never swapped; years under 100 stand for 1930 to 2029.
/// @return the date at 0 h
/// @throws Erreur 13 for an impossible date, a fraction, an empty field or a year past 9999
ValeurDate LitDate(std::string_view texte);

/// Date and time from a text day "/" month "/" year " " hour ":" minute ":" second.
/// @throws Erreur 13 for an impossible date, an hour over 23, a minute or second over 59, a fraction or an empty field
ValeurDate LitDateHeure(std::string_view texte);

/// Day of the week of a date.
/// @return 0 for Sunday to 6 for Saturday
int JourSemaine(const ValeurDate &date);

/// A date and time as day/month/year hour:minute:second, two digits each and four for the year.
std::string TexteDateHeure(const ValeurDate &date);

/// Time of day from a text hour ":" minute.
/// @return fraction of a day, 0 to under 1
/// @throws Erreur 13 for an hour over 23, a minute over 59, or a text that isn't two numbers of one or two digits
double LitHeure(std::string_view texte);

/// A time of day or an interval under a day in the system's general form, "hh:mm:ss".
/// @param jours  fraction of a day; the whole seconds are the nearest
std::string TexteHeure(double jours);

} // namespace velmaris
