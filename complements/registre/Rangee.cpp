#include "complements/registre/Rangee.hpp"

#include "complements/registre/TexteCsv.hpp"
#include "foundations/Fichiers.hpp"
#include "foundations/TexteNombre.hpp"
#include "sights/DroitePLA.hpp"

#include <chrono>
#include <cmath>
#include <cstdio>
#include <random>

namespace velmaris {

namespace {

constexpr std::string_view kTitres =
    "utc,corps,astre,jour,mois,annee,heure,minute,seconde,latitude_degres,latitude_minutes,hemisphere,"
    "longitude_degres,longitude_minutes,cote,lecture_degres,lecture_minutes,lecture_fraction,fraction,collimation,"
    "hauteur_oeil,bord,horizon,ho,hc,intercept,azimut,forme,identite,intercept_actuel,ecart";

} // namespace

const std::string_view kTitresJournal = kTitres;
const std::string_view kAnciensTitres = kTitres.substr(0, kTitres.find(",forme"));

namespace {

constexpr const char *kForme = "2"; ///< of the journal: what has no such column is of the first

/// The columns, in their order.
enum Colonnes : std::size_t {
  kUtc,
  kCorps,
  kAstre,
  kJour,
  kMois,
  kAnnee,
  kHeure,
  kMinute,
  kSeconde,
  kLatDegres,
  kLatMinutes,
  kHemisphere,
  kLonDegres,
  kLonMinutes,
  kCote,
  kLecDegres,
  kLecMinutes,
  kLecFraction,
  kFraction,
  kCollimation,
  kOeil,
  kBord,
  kHorizon,
  kHo,
  kHc,
  kIntercept,
  kAzimut,
  kFormeEcrite,
  kIdentite,
  kActuel,
  kEcart
};

constexpr std::array<const char *, 4> kBords = {"superieur", "inferieur", "centre", ""};
constexpr std::int64_t kParMinute = 60;
constexpr std::int64_t kParHeure = 3600;
constexpr std::int64_t kParJour = 86400;

/// A figure that is finite.
template <class Nombre> std::optional<Nombre> LitFigure(std::string_view texte) {
  const std::optional<Nombre> nombre = NombreEcrit<Nombre>(texte);
  return nombre && std::isfinite(*nombre) ? nombre : std::nullopt;
}

/// A field of a date as a whole number; the journal has it as it was typed.
std::optional<int> LitChamp(std::string_view partie) { return NombreEcrit<int>(SansBlancs(partie)); }

/// Thousandths of a mile.
std::string Milliemes(double milles) { return TexteGeneral(std::round(milles * 1000) / 1000); }

/// Seconds since 1970 of a date and time; a minute or a second may be 60, as the panel's fields take it.
std::optional<std::int64_t> Instant(std::optional<int> annee, std::optional<int> mois, std::optional<int> jour,
                                    std::optional<int> heure, std::optional<int> minute, std::optional<int> seconde) {
  if (!annee || !mois || !jour || !heure || !minute || !seconde || *annee < 1 || *annee > 9999 || *mois < 1 ||
      *jour < 1) {
    return std::nullopt;
  }
  const std::chrono::year_month_day date{std::chrono::year(*annee), std::chrono::month(static_cast<unsigned>(*mois)),
                                         std::chrono::day(static_cast<unsigned>(*jour))};
  if (!date.ok() || *heure < 0 || *heure > 23 || *minute < 0 || *minute > 60 || *seconde < 0 || *seconde > 60) {
    return std::nullopt;
  }
  return std::chrono::sys_days(date).time_since_epoch().count() * kParJour + *heure * kParHeure + *minute * kParMinute +
         *seconde;
}

/// Pours the parts of a line into a sight.
void LitObservation(const PartiesRangee &parties, Observation &o) {
  const auto texte = [&](std::size_t colonne) { return TextePartie(parties.at(colonne)); };
  o.jour = texte(kJour);
  o.mois = texte(kMois);
  o.annee = texte(kAnnee);
  o.heure = texte(kHeure);
  o.minute = texte(kMinute);
  o.seconde = texte(kSeconde);
  o.latitudeDegres = texte(kLatDegres);
  o.latitudeMinutes = texte(kLatMinutes);
  o.sud = parties[kHemisphere] == "S";
  o.longitudeDegres = texte(kLonDegres);
  o.longitudeMinutes = texte(kLonMinutes);
  o.est = parties[kCote] == "E";
  o.lectureDegres = texte(kLecDegres);
  o.lectureMinutes = texte(kLecMinutes);
  o.lectureFraction = texte(kLecFraction);
  o.fraction = parties[kFraction] == "centiemes" ? Fraction::Centiemes : Fraction::Secondes;
  o.collimation = texte(kCollimation);
  o.hauteurOeil = texte(kOeil);
  o.horizon = parties[kHorizon] == "artificiel" ? Horizon::Artificiel : Horizon::Naturel;
  for (std::size_t i = 0; i < kBords.size(); ++i) {
    if (parties[kBord] == kBords.at(i)) {
      o.bord = static_cast<Bord>(i);
    }
  }
}

/// The list's place of a planet's name, -1 for another text.
int RangPlanete(const std::string &nom) {
  for (int i = 0; i < kNombrePlanetes; ++i) {
    if (NomPlanete(i) == nom) {
      return i;
    }
  }
  return -1;
}

const char *NomCorps(Corps corps) {
  constexpr std::array<const char *, 5> kNoms = {"Soleil", "Lune", "Planètes", "Etoiles", ""};
  return kNoms.at(static_cast<std::size_t>(corps));
}

} // namespace

std::string EcritRangee(const Rangee &r) {
  const Observation &o = r.observation;
  const std::array<std::string, kColonnesJournal> champs = {r.utc,
                                                            NomCorps(o.corps),
                                                            r.astre,
                                                            o.jour,
                                                            o.mois,
                                                            o.annee,
                                                            o.heure,
                                                            o.minute,
                                                            o.seconde,
                                                            o.latitudeDegres,
                                                            o.latitudeMinutes,
                                                            o.sud ? "S" : "N",
                                                            o.longitudeDegres,
                                                            o.longitudeMinutes,
                                                            o.est ? "E" : "W",
                                                            o.lectureDegres,
                                                            o.lectureMinutes,
                                                            o.lectureFraction,
                                                            o.fraction == Fraction::Secondes ? "secondes" : "centiemes",
                                                            o.collimation,
                                                            o.hauteurOeil,
                                                            kBords.at(static_cast<std::size_t>(o.bord)),
                                                            o.horizon == Horizon::Naturel ? "naturel" : "artificiel",
                                                            TexteGeneral(r.Ho),
                                                            TexteGeneral(r.Hc),
                                                            TexteGeneral(r.intercept),
                                                            TexteGeneral(r.azimut),
                                                            kForme,
                                                            r.identite,
                                                            r.actuel ? Milliemes(*r.actuel) : "",
                                                            r.ecart ? Milliemes(*r.ecart) : ""};
  std::string ligne = ChampCsv(champs.front());
  for (std::size_t i = 1; i < champs.size(); ++i) {
    ligne += "," + ChampCsv(champs.at(i));
  }
  return ligne;
}

std::optional<Corps> CorpsEcrit(std::string_view partie) {
  if (partie == "Soleil") {
    return Corps::Soleil;
  }
  if (partie == "Lune") {
    return Corps::Lune;
  }
  if (partie == "Etoiles") {
    return Corps::Etoiles;
  }
  return partie.starts_with("Plan") && partie.ends_with("tes") ? std::optional(Corps::Planetes) : std::nullopt;
}

std::optional<Rangee> LitRangee(std::string_view ligne) {
  PartiesRangee parties;
  const std::size_t nombre = PartiesCsv(ligne, parties);
  const bool neuve = nombre >= kColonnesJournal;
  const std::optional<Corps> corps = CorpsEcrit(parties[kCorps]);
  const auto Ho = LitFigure<double>(parties[kHo]);
  const auto Hc = LitFigure<double>(parties[kHc]);
  const auto intercept = LitFigure<float>(parties[kIntercept]);
  const auto azimut = LitFigure<float>(parties[kAzimut]);
  if ((!neuve && nombre != kAnciennesColonnes) || !corps || !Ho || !Hc || !intercept || !azimut) {
    return std::nullopt;
  }
  Rangee r;
  r.utc = TextePartie(parties[kUtc]);
  r.astre = TextePartie(parties[kAstre]);
  LitObservation(parties, r.observation);
  r.observation.corps = *corps;
  r.observation.planete = *corps == Corps::Planetes ? RangPlanete(r.astre) : -1;
  r.Ho = *Ho;
  r.Hc = *Hc;
  r.intercept = *intercept;
  r.azimut = *azimut;
  r.identite = neuve ? TextePartie(parties[kIdentite]) : IdentiteAncienne(ligne);
  if (neuve) {
    r.actuel = LitFigure<double>(parties[kActuel]);
    r.ecart = LitFigure<double>(parties[kEcart]);
  }
  return r;
}

bool ChoisitAstre(Rangee &rangee, const Etoiles &etoiles) {
  Observation &o = rangee.observation;
  for (int i = 0; i < kNombreEtoiles && o.corps == Corps::Etoiles && o.etoile < 0; ++i) {
    if (etoiles.EtoileNom.at(static_cast<std::size_t>(i) + 1) == rangee.astre) {
      o.etoile = i;
    }
  }
  return (o.corps != Corps::Etoiles || o.etoile >= 0) && (o.corps != Corps::Planetes || o.planete >= 0);
}

std::string IdentiteNeuve() {
  std::random_device hasard;
  std::array<char, 17> texte{};
  std::snprintf(texte.data(), texte.size(), "%08x%08x", static_cast<unsigned>(hasard()),
                static_cast<unsigned>(hasard()));
  return texte.data();
}

std::optional<std::int64_t> InstantRangee(const PartiesRangee &p) {
  const auto visee = Instant(LitChamp(p[kAnnee]), LitChamp(p[kMois]), LitChamp(p[kJour]), LitChamp(p[kHeure]),
                             LitChamp(p[kMinute]), LitChamp(p[kSeconde]));
  return visee ? visee : InstantEcrit(p[kUtc]);
}

std::optional<std::int64_t> InstantEcrit(std::string_view t) {
  constexpr std::string_view kModele = "0000-00-00T00:00:00Z";
  if (t.size() != kModele.size()) {
    return std::nullopt;
  }
  for (std::size_t i = 0; i < t.size(); ++i) {
    const bool chiffre = t[i] >= '0' && t[i] <= '9';
    if (kModele[i] == '0' ? !chiffre : t[i] != kModele[i]) {
      return std::nullopt;
    }
  }
  const auto nombre = [&](std::size_t debut, std::size_t longueur) {
    return NombreEcrit<int>(t.substr(debut, longueur));
  };
  return Instant(nombre(0, 4), nombre(5, 2), nombre(8, 2), nombre(11, 2), nombre(14, 2), nombre(17, 2));
}

std::string EcritInstant(std::int64_t instant) {
  const std::chrono::sys_seconds moment{std::chrono::seconds(instant)};
  const auto minuit = std::chrono::floor<std::chrono::days>(moment);
  const std::chrono::year_month_day date{minuit};
  const std::chrono::hh_mm_ss heure{moment - minuit};
  std::array<char, 64> texte{};
  std::snprintf(texte.data(), texte.size(), "%04d-%02u-%02uT%02d:%02d:%02dZ", static_cast<int>(date.year()),
                static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                static_cast<int>(heure.hours().count()), static_cast<int>(heure.minutes().count()),
                static_cast<int>(heure.seconds().count()));
  return texte.data();
}

std::string IdentiteAncienne(std::string_view ligne) {
  constexpr std::uint64_t kBase = 0xCBF29CE484222325U;
  constexpr std::uint64_t kPremier = 0x100000001B3U;
  std::uint64_t somme = kBase;
  for (const char c : ligne) {
    somme = (somme ^ static_cast<unsigned char>(c)) * kPremier;
  }
  std::array<char, 17> texte{};
  std::snprintf(texte.data(), texte.size(), "%08x%08x", static_cast<unsigned>(somme >> 32U),
                static_cast<unsigned>(somme & 0xFFFFFFFFU));
  return texte.data();
}

} // namespace velmaris
