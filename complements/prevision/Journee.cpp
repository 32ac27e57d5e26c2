#include "complements/prevision/Journee.hpp"

#include "complements/ciel/EtapesHauteur.hpp"
#include "complements/point/Sphere.hpp"
#include "complements/prevision/Traversees.hpp"

#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

constexpr double kJour = 86400;       ///< seconds
constexpr double kMarge = 3600;       ///< seconds that the sky is prepared for on either side
constexpr double kRefraction = 34;    ///< minutes of arc on the horizon, as rises and sets are told
constexpr double kCivil = -6;         ///< degrees
constexpr double kNautique = -12;     ///< degrees
constexpr double kAstronomique = -18; ///< degrees
constexpr double kMinutes = 60;

/// What a day is worked out from.
struct Vigie {
  const CielDuJour &ciel;
  const NavirePrevu &navire;
  InstantUTC debut;
};

InstantUTC UTCDeLaVigie(const Vigie &v, double secondes) { return PlusTard(v.debut, secondes); }

PlaceTopocentrique Vue(const Vigie &v, std::size_t rang, double secondes) {
  const InstantUTC utc = UTCDeLaVigie(v, secondes);
  return VueDe(PlaceDuJour(v.ciel, rang, SitueInstant(v.ciel, utc)), StationDuNavire(v.navire, utc));
}

/// The body's hour angle from the ship, degrees in [-180, 180).
double AngleHoraire(const Vigie &v, std::size_t rang, double secondes) {
  const InstantUTC utc = UTCDeLaVigie(v, secondes);
  const double gha = PlaceDuJour(v.ciel, rang, SitueInstant(v.ciel, utc)).gha;
  return LongitudeUnTour(gha + LieuDuNavire(v.navire, utc).longitude);
}

EvenementCiel Evenement(const Vigie &v, std::size_t rang, double secondes) {
  const InstantUTC utc = UTCDeLaVigie(v, secondes);
  const PlaceTopocentrique vue = Vue(v, rang, secondes);
  return {utc, LieuDuNavire(v.navire, utc), vue.hauteur, vue.azimut};
}

/// The crossings of one height, by their direction.
struct Franchissement {
  Passages monte;
  Passages descend;
};

/// @param f  height over the wanted one, degrees, by seconds of the day
Franchissement Franchit(const Vigie &v, std::size_t rang, const std::function<double(double)> &f) {
  Franchissement franchi;
  const std::vector<Traversee> traversees = TraverseesDe(f, {0, kJour});
  for (const Traversee &t : traversees) {
    (t.monte ? franchi.monte : franchi.descend).moments.push_back(Evenement(v, rang, t.t));
  }
  const RaisonAbsence sans = f(kJour / 2) >= 0 ? RaisonAbsence::ToujoursAuDessus : RaisonAbsence::ToujoursAuDessous;
  const RaisonAbsence raison = traversees.empty() ? sans : RaisonAbsence::AutreJour;
  for (Passages *passages : {&franchi.monte, &franchi.descend}) {
    passages->absence = passages->moments.empty() ? raison : RaisonAbsence::Aucune;
  }
  return franchi;
}

Passages Meridien(const Vigie &v, std::size_t rang) {
  constexpr double kDemiTour = 90; ///< degrees: what is farther is the jump on the lower meridian
  const auto angle = [&](double s) { return AngleHoraire(v, rang, s); };
  Passages passages;
  for (const Traversee &t : TraverseesDe(angle, {.de = 0, .a = kJour, .pres = 0})) {
    if (std::fabs(angle(t.t)) < kDemiTour) {
      passages.moments.push_back(Evenement(v, rang, t.t));
    }
  }
  passages.absence = passages.moments.empty() ? RaisonAbsence::AutreJour : RaisonAbsence::Aucune;
  return passages;
}

AstreDuMatinAuSoir SuitAstre(const Vigie &v, std::size_t rang) {
  const double horizon = (kRefraction + Depression(v.navire.hauteurOeil)) / kMinutes;
  const auto bord = [&](double s) {
    const PlaceTopocentrique vue = Vue(v, rang, s);
    return vue.hauteur + vue.demiDiametre / kMinutes + horizon;
  };
  Franchissement franchi = Franchit(v, rang, bord);
  return {std::move(franchi.monte), Meridien(v, rang), std::move(franchi.descend)};
}

Crepuscule SuitCrepuscule(const Vigie &v, double hauteur) {
  Franchissement franchi = Franchit(v, 0, [&](double s) { return Vue(v, 0, s).hauteur - hauteur; });
  return {std::move(franchi.monte), std::move(franchi.descend)};
}

/// One end of a window.
struct Borne {
  double t;
  double hauteur; ///< that the Sun goes through; 0 at the day's own ends
  bool monte;
};

/// @param sansNuit  the Sun doesn't come to the end of nautical twilight that day
GenrePrise GenreDe(const Borne &de, const Borne &a, bool sansNuit) {
  const bool duSoir = de.hauteur == kCivil;
  const bool auMatin = a.hauteur == kCivil;
  const bool bord = de.hauteur == 0 || a.hauteur == 0;
  if ((duSoir && auMatin) || (bord && sansNuit)) {
    return GenrePrise::NuitBlanche;
  }
  if (de.hauteur == kNautique && a.hauteur == kNautique) {
    return GenrePrise::JourNoir;
  }
  return duSoir || (a.hauteur == kNautique && !a.monte) ? GenrePrise::Soir : GenrePrise::Matin;
}

std::vector<FenetrePrise> Fenetres(const Vigie &v, const Journee &journee) {
  std::vector<Borne> bornes{{0, 0, false}, {kJour, 0, false}};
  const auto ajoute = [&](const Passages &passages, double hauteur, bool monte) {
    for (const EvenementCiel &e : passages.moments) {
      bornes.push_back({SecondesEntre(v.debut, e.utc), hauteur, monte});
    }
  };
  ajoute(journee.civil.matin, kCivil, true);
  ajoute(journee.civil.soir, kCivil, false);
  ajoute(journee.nautique.matin, kNautique, true);
  ajoute(journee.nautique.soir, kNautique, false);
  std::sort(bornes.begin(), bornes.end(), [](const Borne &a, const Borne &b) { return a.t < b.t; });
  const bool sansNuit = journee.nautique.matin.moments.empty() && journee.nautique.soir.moments.empty();
  std::vector<FenetrePrise> fenetres;
  for (std::size_t i = 1; i < bornes.size(); ++i) {
    const Borne &de = bornes[i - 1];
    const Borne &a = bornes[i];
    const double milieu = Vue(v, 0, (de.t + a.t) / 2).hauteur;
    if (milieu < kCivil && milieu > kNautique) {
      fenetres.push_back({UTCDeLaVigie(v, de.t), UTCDeLaVigie(v, a.t), GenreDe(de, a, sansNuit)});
    }
  }
  return fenetres;
}

AstreDuMatinAuSoir SansLune() {
  const Passages rien{{}, RaisonAbsence::LuneHorsTable};
  return {rien, rien, rien};
}

} // namespace

InstantUTC DebutDuJour(const JourCivil &jour, const NavirePrevu &navire) {
  constexpr double kHeure = 3600;
  const int fuseau = jour.fuseau.value_or(FuseauDe(navire.lieu.longitude));
  return PlusTard(UTCDe({jour.annee, jour.mois, jour.jour}), -fuseau * kHeure);
}

std::optional<CielDuJour> CielDeLaJournee(const Etoiles &etoiles, const JourCivil &jour, const NavirePrevu &navire,
                                          double dut1, const std::stop_token &arret) {
  constexpr double kHeures = 26;
  return PrepareCielDuJour(etoiles, PlusTard(DebutDuJour(jour, navire), -kMarge), kHeures, dut1, arret);
}

std::optional<Journee> CalculeJournee(const CielDuJour &ciel, const JourCivil &jour, const NavirePrevu &navire,
                                      const std::stop_token &arret) {
  Journee journee;
  journee.debut = DebutDuJour(jour, navire);
  journee.fin = PlusTard(journee.debut, kJour);
  journee.fuseau = jour.fuseau.value_or(FuseauDe(navire.lieu.longitude));
  const Vigie v{ciel, navire, journee.debut};
  journee.soleil = SuitAstre(v, 0);
  if (arret.stop_requested()) {
    return std::nullopt;
  }
  const std::optional<std::size_t> lune = PlaceDansLeCiel(ciel, {GenreAstre::Lune, 0});
  journee.lune = lune ? SuitAstre(v, *lune) : SansLune();
  if (arret.stop_requested()) {
    return std::nullopt;
  }
  journee.civil = SuitCrepuscule(v, kCivil);
  journee.nautique = SuitCrepuscule(v, kNautique);
  journee.astronomique = SuitCrepuscule(v, kAstronomique);
  journee.fenetres = Fenetres(v, journee);
  return journee;
}

std::vector<InstantUTC> InstantsDePrise(const Journee &journee, double pas) {
  constexpr double kSecondes = 60;
  std::vector<InstantUTC> instants;
  for (const FenetrePrise &fenetre : journee.fenetres) {
    const double duree = SecondesEntre(fenetre.debut, fenetre.fin);
    const int marches = std::max(1, static_cast<int>(std::ceil(duree / (pas * kSecondes))));
    for (int i = 0; i <= marches; ++i) {
      instants.push_back(PlusTard(fenetre.debut, duree * i / marches));
    }
  }
  return instants;
}

} // namespace velmaris
