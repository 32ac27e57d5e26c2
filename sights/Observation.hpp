#pragma once

#include "foundations/Surface.hpp"

#include <cstdint>
#include <string>

namespace velmaris {

/// Kind of body, by the choices of the panel. Here and below, `Aucun` is what a search ends on when none is made.
enum class Corps : std::uint8_t { Soleil = 0, Lune = 1, Planetes = 2, Etoiles = 3, Aucun = 4 };
/// Limb that was brought to the horizon.
enum class Bord : std::uint8_t { Superieur = 0, Inferieur = 1, Centre = 2, Aucun = 3 };
/// The sea's horizon, or an artificial one, off which the double height is read.
enum class Horizon : std::uint8_t { Naturel = 0, Artificiel = 1, Aucun = 2 };
/// What the last field of the reading counts: seconds, or hundredths of a minute.
enum class Fraction : std::uint8_t { Secondes = 0, Centiemes = 1 };

/// Entries of the list of stars, which are the named ones, and of the list of planets.
inline constexpr int kNombreEtoiles = 156;
inline constexpr int kNombrePlanetes = 4;

/// One sight, field by field, as it was typed. A reduction reads these texts at the moment it runs and may write
/// `hauteurOeil`, `collimation`, `lectureFraction` and `couleurFraction`.
/// The control that holds a member on the screen is named beside it.
struct Observation {
  std::string jour;                       ///< TDate (0), GMT day
  std::string mois;                       ///< TDate (1), GMT month as a number
  std::string annee;                      ///< TDate (2), GMT year
  std::string heure;                      ///< Text3, GMT hour
  std::string minute;                     ///< Text4
  std::string seconde;                    ///< Text5
  std::string longitudeDegres;            ///< Text6, estimated longitude
  std::string longitudeMinutes;           ///< Text7
  std::string latitudeDegres;             ///< Text8, estimated latitude
  std::string latitudeMinutes;            ///< Text9
  std::string hauteurOeil;                ///< Text10, metres, with a decimal comma
  std::string collimation;                ///< Text11, index error in minutes, signed, with a decimal comma
  std::string lectureMinutes;             ///< Text12, whole minutes of the sextant reading
  std::string lectureDegres;              ///< Text13, degrees of the sextant reading
  std::string lectureFraction;            ///< Text25, seconds or hundredths of a minute, by `fraction`
  bool sud = false;                       ///< OptN (1): the latitude is negative
  bool est = false;                       ///< OptE (0): the longitude is negative, west being positive
  Fraction fraction = Fraction::Secondes; ///< Option4
  Bord bord = Bord::Inferieur;            ///< Option6
  Horizon horizon = Horizon::Naturel;     ///< Option5
  Corps corps = Corps::Soleil;            ///< Option7
  int planete = -1;                       ///< Combo7, list index, -1 for none
  int etoile = -1;                        ///< Combo6, list index, -1 for none
  Couleur couleurFraction = kNoir;        ///< colour of Text25: red warns of more than 60 seconds
  bool operator==(const Observation &) const = default;
};

/// What a sight leaves for the rest of the program.
struct ValeursVisee {
  float LatEstimee = 0.0F;      ///< degrees, south negative
  float LonEstimee = 0.0F;      ///< degrees, west positive
  double HeureDecimale = 0.0;   ///< GMT of the sight, hours
  float Azimut = 0.0F;          ///< degrees, of the current line
  float Intercept = 0.0F;       ///< minutes of arc, observed less computed height
  float HauteurCalculee = 0.0F; ///< degrees; the Sun's reduction leaves it alone
  bool operator==(const ValeursVisee &) const = default;
};

/// Latitude of the estimated position by the rule of the fields.
/// @return degrees, south negative
double LatitudeEstimee(const Observation &observation);

/// Longitude of the estimated position by the rule of the fields.
/// @return degrees, west positive
double LongitudeEstimee(const Observation &observation);

/// Forms `LatEstimee` and `LonEstimee` from the fields, each rounded to 32 bits.
/// @throws Erreur 6 when a field leaves 32 bits
void LitEstime(const Observation &observation, ValeursVisee &valeurs);

/// GMT of the sight from the fields hour, minute and second.
/// @return hours
double HeureDesChamps(const Observation &observation);

/// Normalises the reading before a reduction: degrees and minutes that are both 0 become "00", a fraction of one
/// character gets a "0" before it ("5" is 5 seconds or 0.05 minute, never 0.5).
void NormaliseLecture(Observation &observation);

/// The record's share of choosing a kind of body: planets and stars are shot at their centre, the Sun by its lower
/// limb; any other number leaves the limb.
/// @param corps  0 to 3; it is not stored here
void BordDuCorps(Observation &observation, int corps);

/// The record's share of choosing a horizon: the centre off an artificial one, the lower limb off the natural one.
void BordDeLHorizon(Observation &observation);

} // namespace velmaris
