#include "complements/lunaire/Classement.hpp"

#include "complements/ciel/CielDuMoment.hpp"
#include "complements/ciel/Refus.hpp"
#include "complements/point/Sphere.hpp"

#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

constexpr double kBasse = 10;      ///< degrees: under it the air bends both bodies too uncertainly
constexpr double kProche = 10;     ///< degrees
constexpr double kLointaine = 120; ///< degrees
constexpr double kLente = 15;      ///< minutes of arc an hour
constexpr double kNouvelle = 15;   ///< degrees from the Sun
constexpr double kPas = 600;       ///< seconds, that the rate is taken over to either side

/// Three skies around a moment.
struct Ciels {
  CielDuMoment avant;
  CielDuMoment milieu;
  CielDuMoment apres;
};

CielDuMoment CielA(const InstantUTC &utc, double dut1) { return PrepareCiel({TTDe(utc), UT1De(utc, dut1)}); }

LieuNavire SousAstre(const PlaceGeocentrique &place) { return {place.declinaison, -place.gha}; }

bool EstPourLunaire(const Astre &astre) { return astre.genre != GenreAstre::Lune && astre.genre != GenreAstre::Belier; }

std::optional<RaisonSansLunaire> RaisonDe(const CandidatLunaire &c, double elongation) {
  if (elongation < kNouvelle) {
    return RaisonSansLunaire::LuneNeuve;
  }
  if (c.vue.hauteurLune < kBasse) {
    return RaisonSansLunaire::LuneBasse;
  }
  if (c.vue.hauteurAstre < kBasse) {
    return RaisonSansLunaire::AstreBas;
  }
  if (c.vue.distance < kProche) {
    return RaisonSansLunaire::TropPres;
  }
  if (c.vue.distance > kLointaine) {
    return RaisonSansLunaire::TropLoin;
  }
  return std::fabs(c.cadence) < kLente ? std::optional(RaisonSansLunaire::TropLent) : std::nullopt;
}

CandidatLunaire Candidat(const Ciels &ciels, const Astre &astre, const Station &station, const AirMesure &air) {
  constexpr double kMinutes = 60;
  constexpr double kHeure = 3600;
  constexpr Astre kLune{GenreAstre::Lune, 0};
  CandidatLunaire c;
  c.astre = astre;
  if (!EstPourLunaire(astre)) {
    c.raison = RaisonSansLunaire::SansPlace;
    return c;
  }
  const PlaceGeocentrique soleil = PlaceDe(ciels.milieu, {GenreAstre::Soleil, 0});
  const PlaceGeocentrique lune = PlaceDe(ciels.milieu, kLune);
  const PlaceGeocentrique place = PlaceDe(ciels.milieu, astre);
  c.bordLune = BordEclaire(lune, soleil, place);
  c.bordAstre = astre.genre == GenreAstre::Soleil ? BordDistance::Proche : BordDistance::Centre;
  const auto distance = [&](const CielDuMoment &ciel) {
    return VoitDistance(PlaceDe(ciel, kLune), c.bordLune, PlaceDe(ciel, astre), c.bordAstre, station, air).distance;
  };
  c.vue = VoitDistance(lune, c.bordLune, place, c.bordAstre, station, air);
  c.cadence = (distance(ciels.apres) - distance(ciels.avant)) * kMinutes * kHeure / (2 * kPas);
  c.secondes = c.cadence == 0 ? 0 : kHeure / std::fabs(c.cadence);
  c.raison = RaisonDe(c, EcartLieux(SousAstre(lune), SousAstre(soleil)));
  return c;
}

} // namespace

BordDistance BordEclaire(const PlaceGeocentrique &lune, const PlaceGeocentrique &soleil,
                         const PlaceGeocentrique &astre) {
  const Vecteur3 m = DirectionDe(SousAstre(lune));
  const Vecteur3 s = DirectionDe(SousAstre(soleil));
  const Vecteur3 a = DirectionDe(SousAstre(astre));
  // Both directions from the Moon, across the line of sight to her.
  const double cote = Scalaire(s, a) - Scalaire(s, m) * Scalaire(a, m);
  return cote >= 0 ? BordDistance::Proche : BordDistance::Lointain;
}

std::vector<CandidatLunaire> ClasseLunaires(const InstantUTC &utc, const LieuNavire &lieu, double hauteurOeil,
                                            std::span<const Astre> candidats, const AirMesure &air, double dut1) {
  const Ciels ciels{CielA(PlusTard(utc, -kPas), dut1), CielA(utc, dut1), CielA(PlusTard(utc, kPas), dut1)};
  const Station station{lieu.latitude, lieu.longitude, hauteurOeil};
  std::vector<CandidatLunaire> classes;
  for (const Astre &astre : candidats) {
    try {
      classes.push_back(Candidat(ciels, astre, station, air));
    } catch (const Refus &refus) {
      if (refus.raison != RaisonRefus::RangInconnu && refus.raison != RaisonRefus::EtoileSansPlace) {
        throw;
      }
      CandidatLunaire c;
      c.astre = astre;
      c.raison = RaisonSansLunaire::SansPlace;
      classes.push_back(c);
    }
  }
  std::stable_sort(classes.begin(), classes.end(), [](const CandidatLunaire &a, const CandidatLunaire &b) {
    return a.raison.has_value() != b.raison.has_value() ? !a.raison : std::fabs(a.cadence) > std::fabs(b.cadence);
  });
  return classes;
}

} // namespace velmaris
