#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace velmaris {

/// The words of an almanac's pages. Months and days of the week stand in their order; what a row of a text runs over
/// stands in several words, in their order too. `Virgule` is the sign before decimals. Beside each the English word.
enum class MotAlmanach : std::uint16_t {
  Virgule,            ///< .
  Titre,              ///< Almanac
  Au,                 ///< to
  Janvier,            ///< January
  Fevrier,            ///< February
  MoisMars,           ///< March
  Avril,              ///< April
  Mai,                ///< May
  Juin,               ///< June
  Juillet,            ///< July
  Aout,               ///< August
  Septembre,          ///< September
  Octobre,            ///< October
  Novembre,           ///< November
  Decembre,           ///< December
  Lundi,              ///< Monday
  Mardi,              ///< Tuesday
  Mercredi,           ///< Wednesday
  Jeudi,              ///< Thursday
  Vendredi,           ///< Friday
  Samedi,             ///< Saturday
  Dimanche,           ///< Sunday
  Heure,              ///< UT
  Gha,                ///< GHA
  Declinaison,        ///< Dec
  Sha,                ///< SHA
  Hp,                 ///< HP
  V,                  ///< v
  D,                  ///< d
  DemiDiametre,       ///< SD
  Magnitude,          ///< Mag.
  Passage,            ///< Mer. pass.
  Superieur,          ///< upper
  Inferieur,          ///< lower
  Jour,               ///< Day
  Belier,             ///< Aries
  Soleil,             ///< Sun
  Lune,               ///< Moon
  Venus,              ///< Venus
  Mars,               ///< Mars
  Jupiter,            ///< Jupiter
  Saturne,            ///< Saturn
  Planete,            ///< Planet
  Etoiles,            ///< Stars
  Etoile,             ///< Star
  PageGauche,         ///< Aries, planets, stars
  PageDroite,         ///< Sun, Moon, twilight
  EtoilesLe,          ///< Stars, 12h on
  Crepuscules,        ///< Sun and twilight, local mean time,
  LeverCoucherLune,   ///< Moon at longitude 0; difference from the next day, minutes
  Latitude,           ///< Lat.
  Nautique,           ///< Naut.
  Civil,              ///< Civil
  Lever,              ///< Rise
  Coucher,            ///< Set
  EquationTemps,      ///< Equation of time
  Age,                ///< Age
  Eclairee,           ///< Lit
  ToujoursDessus,     ///< + +
  ToujoursDessous,    ///< - -
  TouteLaNuit,        ///< / /
  PasCeJour,          ///< . .
  LegendeSignes1,     ///< + + above the horizon all day   - - below it all day   / / twilight all night
  LegendeSignes2,     ///< . . not on that day. Equation: true less mean Sun, + when it passes before 12h.
  LegendeSignes3,     ///< d bears no sign: the next hour's declination tells whether it is added.
  LegendeSignes4,     ///< v is added to the GHA, and taken off where it bears a - sign.
  PiedTheorie,        ///< Theory: VSOP87D, ELP 2000-82B, IAU 2006. Sky of 1995 to 2030 within 0.5" (Sun, stars), 1" ...
  PiedFait,           ///< Made
  PiedUt1,            ///< UT1 - UTC:
  Secondes,           ///< s
  Page,               ///< page
  TitreCorrections,   ///< Altitude corrections: Sun, stars, planets
  HauteurApparente,   ///< Altitude
  EtoilesPlanetes,    ///< Stars
  SoleilDemiDiametre, ///< Sun, by semidiameter
  BordInferieur,      ///< lower limb
  BordSuperieur,      ///< upper limb
  NoteCorrections,    ///< Apparent altitude = reading + index correction - dip. Each correction is added with its sign.
  NoteAir,           ///< Altitudes in degrees and minutes. For 1010 hPa and 10 °C; another air has a table of its own.
  TitreDepression,   ///< Dip, parallax of planets, air
  Depression,        ///< Dip
  Metres,            ///< m
  Pieds,             ///< feet
  NoteDepression,    ///< to be taken off
  ParallaxePlanetes, ///< Parallax of a planet by altitude and HP; to be added
  AirPourCent,       ///< Air: percent, by temperature (°C) and pressure (hPa)
  AirCorrection,     ///< Correction by apparent altitude and percent
  NoteAirNegatif,    ///< To be added with its sign; for a negative percent with the other sign.
  TitreLune,         ///< Altitude corrections: Moon
  LunePremiere,      ///< First part, by apparent altitude; to be added
  LuneSeconde,       ///< Second part, lower limb, by HP and apparent altitude; to be added
  LuneSecondeSup,    ///< Second part, upper limb; to be added with its sign
  FormeTerre,      ///< The Earth's shape, by latitude, altitude and azimuth from the elevated pole; to be added to ...
  NoteLune,        ///< Observed altitude = apparent altitude + first + second part + the Earth's shape.
  TitrePolaire,    ///< Latitude by Polaris
  PolairePremiere, ///< First part, by local hour angle of Polaris and distance from the pole (90° - Dec); to be added
  PolaireSeconde,  ///< Second part, by LHA and altitude; to be added
  PolaireAzimut,   ///< Azimuth from north (°), by LHA and latitude
  NotePolaire1,    ///< LHA = GHA of Aries + SHA of Polaris - west longitude (or + east longitude). Over 180° take ...
  NotePolaire2,    ///< Latitude = observed altitude + first part + second part.
  NotePolaire3,    ///< Polaris stands west of north for an LHA of 0 to 180°, east of it beyond.
  TitreHaversines, ///< Haversines: logarithm and number
  TitreCosinus,    ///< Logarithms of cosines
  NoteHaversines,  ///< Logarithms: -1,000,000 log; they are added. Numbers in millionths.
  NoteCosinus,     ///< The logarithm of a sine is that of the cosine of 90° less the angle.
  Logarithme,      ///< log
  Nombre,          ///< number
  TitreIncrements, ///< Increments and corrections
  SoleilPlanetes,  ///< Sun
  Correction,      ///< corr
  VouD,            ///< v d
  NoteIncrements,  ///< Sun and planets: 15° an hour; Aries: 15°02.46'; Moon: 14°19.0'. v and d corrections: in ...
  NoteIncrements2, ///< v or d times the seconds from 30: from 180 on, the correction is 0.1' more after 30 s, ...
  TitreEmploi,     ///< How to work a sight with these pages
  Emploi01, ///< THE TIME. In universal time (UT: UTC with UT1 - UTC, which the foot of each page tells). Keep ...
  Emploi02, ///< the minutes and the seconds.
  Emploi03, ///< 1. GREENWICH HOUR ANGLE (GHA)
  Emploi04, ///< Sun, planet: GHA of the hour + increment (Sun) of the minutes and seconds + correction for v.
  Emploi05, ///< Moon: GHA of the hour + increment (Moon) + correction for the v of the hour.
  Emploi06, ///< Star: GHA of Aries + increment (Aries) + sidereal hour angle (SHA) of the star. Polaris has ...
  Emploi07, ///< A negative v: its correction is taken off. Over 360°, take 360° off.
  Emploi08, ///< 2. DECLINATION (Dec)
  Emploi09, ///< Dec of the hour, corrected for d towards that of the next hour. A star's: as it stands.
  Emploi10, ///< v and d over 6: the note at the foot of the increments gives the last tenth.
  Emploi11, ///< 3. LOCAL HOUR ANGLE (LHA)
  Emploi12, ///< LHA = GHA + east longitude, or GHA - west longitude. Over 180°: t = 360° - LHA, the body stands east.
  Emploi13, ///< Otherwise t = LHA, the body stands west.
  Emploi14, ///< 4. COMPUTED ALTITUDE (Hc), the cosine-haversine formula
  Emploi15, ///< Add log hav t + log cos latitude + log cos Dec. Look that sum up among the log hav;
  Emploi16, ///< the number beside it, plus the number hav (latitude - Dec), is the number hav z. (Contrary ...
  Emploi17, ///< Find z, the zenith distance, among the numbers: Hc = 90° - z. Between two lines take the ...
  Emploi18, ///< A sum over 5,300,000 is worth 5 of the numbers at most: leave it out.
  Emploi19, ///< 5. AZIMUTH (Z)
  Emploi20, ///< p = 90° - Dec (contrary names: 90° + Dec). Number hav p less number hav (latitude - Hc); find ...
  Emploi21, ///< take the log hav beside it, take log cos latitude and log cos Hc off: it is log hav Z, counted ...
  Emploi22, ///< to the east or west as in 3. North latitude: east Zn = Z, west Zn = 360° - Z.
  Emploi23, ///< South latitude: east Zn = 180° - Z, west Zn = 180° + Z.
  Emploi24, ///< 6. OBSERVED ALTITUDE (Ho)
  Emploi25, ///< Reading + index correction - dip = apparent altitude. With it:
  Emploi26, ///< Sun: the column of its semidiameter of the day and of its limb; the parallax is in it.
  Emploi27, ///< Star: its column. Planet: the same, plus its parallax where its HP isn't 0.
  Emploi28, ///< Moon: first part, second part (HP of the hour), the Earth's shape.
  Emploi29, ///< An air that isn't of 1010 hPa and 10 °C: the percent, then its correction.
  Emploi30, ///< 7. INTERCEPT
  Emploi31, ///< Ho - Hc in minutes, which are miles: towards the body if Ho is the greater, away from it otherwise.
  Emploi32, ///< The line of position is square to the azimuth, at the end of the intercept laid off from the ...
  Emploi33, ///< TO GO FASTER: a latitude of whole degrees, and a longitude that makes the LHA whole.
  Emploi34, ///< HOW GOOD. Each figure is rounded to 0.1'; a whole sight is within 0.3', but for one in a thousand.
  Emploi35, ///< RISES, SETS, TWILIGHT. Local mean time, at sea level. UT = local time + 4 minutes for each degree
  Emploi36, ///< of west longitude (- for east). Moon: first add difference x west longitude / 360 (take off for east,
  Emploi37, ///< by the difference of the day before). Twilight: the Sun's centre 6° (civil) or 12° (nautical) ...
  Emploi38, ///< Rise, set: the Sun's centre 50' under the horizon; the Moon's upper limb, with 34' of ...
  Emploi39, ///< PASSAGES. At the meridian of Greenwich, UT; elsewhere the same figure is a local mean time, nearly.
};
inline constexpr std::size_t kMotsAlmanach = static_cast<std::size_t>(MotAlmanach::Emploi39) + 1;

/// All words of one language.
struct MotsAlmanach {
  std::array<std::string, kMotsAlmanach> textes{};
  const std::string &operator[](MotAlmanach mot) const { return textes[static_cast<std::size_t>(mot)]; }
};

} // namespace velmaris
