#include "calcul/Prepare.hpp"

#include "calcul/Ciel.hpp"
#include "calcul/outils/Json.hpp"
#include "complements/point/FichierRoute.hpp"
#include "complements/prevision/JeuxAstres.hpp"
#include "complements/prevision/Journee.hpp"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <vector>

namespace velmaris {
namespace {

constexpr double kJour = 86400; ///< seconds

/// A day with all that is told of it.
struct JourPrepare {
  Etoiles etoiles;
  NavirePrevu navire;
  CielDuJour ciel;
  Journee journee;
  CielDuPlan plan;
};

/// The middle of the evening's window for stars, else of the first one, else of the day.
InstantUTC MomentParDefaut(const Journee &journee) {
  const auto &fenetres = journee.fenetres;
  const auto soir =
      std::find_if(fenetres.begin(), fenetres.end(), [](const FenetrePrise &f) { return f.genre == GenrePrise::Soir; });
  if (fenetres.empty()) {
    return PlusTard(journee.debut, kJour / 2);
  }
  const FenetrePrise &f = soir == fenetres.end() ? fenetres.front() : *soir;
  return PlusTard(f.debut, SecondesEntre(f.debut, f.fin) / 2);
}

/// A time of day, UTC, as it falls within the ship's day.
InstantUTC DansLeJour(const InstantUTC &utc, const InstantUTC &debut) {
  const double secondes = SecondesEntre(debut, utc);
  return PlusTard(utc, -kJour * std::floor(secondes / kJour));
}

NavirePrevu NavireDe(const DemandePrepare &demande, const JourCivil &jour) {
  constexpr double kLatitudePole = 90;
  if (!(std::fabs(demande.latitude) <= kLatitudePole)) {
    throw Refus(RaisonRefus::LieuImpossible);
  }
  NavirePrevu navire;
  navire.lieu = {demande.latitude, std::remainder(demande.longitude, 360)};
  navire.hauteurOeil = demande.oeil;
  const std::string heure = demande.heure.empty() ? "12:00:00" : demande.heure;
  navire.heure = DansLeJour(LitInstant(demande.date + " " + heure), DebutDuJour(jour, navire));
  if (demande.cap && demande.vitesse) {
    navire.route.jambes.push_back({navire.heure, *demande.cap, *demande.vitesse});
  }
  return navire;
}

JourPrepare Prepare(const DemandePrepare &demande) {
  JourPrepare p;
  std::vector<std::string> noms;
  ChargeEtoiles(p.etoiles, noms);
  const DateCivile date = CivileDe(LitInstant(demande.date + " 00:00:00"));
  const JourCivil jour{date.annee, date.mois, date.jour, std::nullopt};
  p.navire = NavireDe(demande, jour);
  p.ciel = *CielDeLaJournee(p.etoiles, jour, p.navire, demande.dut1);
  p.journee = *CalculeJournee(p.ciel, jour, p.navire);
  ReglagesPlan reglages;
  reglages.sextant.collimation = demande.collimation;
  const InstantUTC moment = demande.heure.empty() ? MomentParDefaut(p.journee) : p.navire.heure;
  p.plan = RegardeCiel(p.ciel, p.navire, moment, reglages);
  return p;
}

void AjouteMoment(std::string &sortie, std::string_view cle, const EvenementCiel *evenement) {
  AjouteCle(sortie, cle);
  if (evenement == nullptr) {
    sortie += "null";
  } else {
    AjouteTexte(sortie, TexteInstant(evenement->utc));
  }
}

const EvenementCiel *Premier(const Passages &passages) {
  return passages.moments.empty() ? nullptr : &passages.moments.front();
}

const EvenementCiel *Dernier(const Passages &passages) {
  return passages.moments.empty() ? nullptr : &passages.moments.back();
}

void AjouteAstreDuJour(std::string &sortie, std::string_view cle, const AstreDuMatinAuSoir &astre) {
  AjouteCle(sortie, cle);
  sortie += '{';
  AjouteMoment(sortie, "lever", Premier(astre.lever));
  AjouteMoment(sortie, "meridien", Premier(astre.meridien));
  AjouteMoment(sortie, "coucher", Dernier(astre.coucher));
  sortie += '}';
}

void AjouteCrepuscule(std::string &sortie, std::string_view cle, const Crepuscule &crepuscule) {
  AjouteCle(sortie, cle);
  sortie += '{';
  AjouteMoment(sortie, "matin", Premier(crepuscule.matin));
  AjouteMoment(sortie, "soir", Dernier(crepuscule.soir));
  sortie += '}';
}

/// A star by its name, or by its label where it has none; any other body as "ciel" names it.
std::string NomDit(const Etoiles &etoiles, const Astre &astre) {
  if (astre.genre != GenreAstre::Etoile) {
    return NomDe(astre);
  }
  const auto rang = static_cast<std::size_t>(astre.rang);
  return std::string(etoiles.EtoileNom[rang].empty() ? etoiles.EtoileBayer[rang] : etoiles.EtoileNom[rang]);
}

void AjouteAstres(std::string &sortie, const JourPrepare &p) {
  std::vector<const AstreDuPlan *> astres;
  for (const AstreDuPlan &a : p.plan.astres) {
    if (a.raisons.none()) {
      astres.push_back(&a);
    }
  }
  std::stable_sort(astres.begin(), astres.end(),
                   [](const AstreDuPlan *a, const AstreDuPlan *b) { return a->magnitude < b->magnitude; });
  AjouteCle(sortie, "astres");
  sortie += '[';
  for (const AstreDuPlan *a : astres) {
    sortie += a == astres.front() ? "{" : ",{";
    AjouteMembre(sortie, "nom", NomDit(p.etoiles, a->astre));
    AjouteMembre(sortie, "hauteur", a->apparente);
    AjouteMembre(sortie, "azimut", a->azimut);
    AjouteMembre(sortie, "magnitude", a->magnitude);
    AjouteMembre(sortie, "prereglage", *a->prereglage);
    sortie += '}';
  }
  sortie += ']';
}

/// All sets of three, four and five by what the fix would be worth.
void AjouteChoix(std::string &sortie, const JourPrepare &p) {
  std::vector<JeuAstres> jeux;
  for (const std::vector<JeuAstres> &nombre : ChoisitJeux(p.plan, {})) {
    jeux.insert(jeux.end(), nombre.begin(), nombre.end());
  }
  std::stable_sort(jeux.begin(), jeux.end(), [](const JeuAstres &a, const JeuAstres &b) { return a.trace < b.trace; });
  AjouteCle(sortie, "choix");
  sortie += '[';
  for (std::size_t i = 0; i < jeux.size(); ++i) {
    sortie += i == 0 ? "[" : ",[";
    for (const std::size_t rang : jeux[i].astres) {
      sortie += rang == jeux[i].astres.front() ? "" : ",";
      AjouteTexte(sortie, NomDit(p.etoiles, p.plan.astres[rang].astre));
    }
    sortie += ']';
  }
  sortie += ']';
}

void AjouteJour(std::string &sortie, const JourPrepare &p) {
  AjouteAstreDuJour(sortie, "soleil", p.journee.soleil);
  AjouteAstreDuJour(sortie, "lune", p.journee.lune);
  AjouteCle(sortie, "crepuscules");
  sortie += '{';
  AjouteCrepuscule(sortie, "civil", p.journee.civil);
  AjouteCrepuscule(sortie, "nautique", p.journee.nautique);
  AjouteCrepuscule(sortie, "astronomique", p.journee.astronomique);
  sortie += '}';
  AjouteMembre(sortie, "heure", TexteInstant(p.plan.utc));
  AjouteAstres(sortie, p);
  AjouteChoix(sortie, p);
}

} // namespace

bool EcritPrepare(const DemandePrepare &demande, std::string &sortie) {
  bool refuse = false;
  const bool reussi = EcritObjet(sortie, [&] {
    try {
      ExigeDut1(demande.dut1);
      AjouteJour(sortie, Prepare(demande));
    } catch (const Refus &refus) {
      refuse = true;
      AjouteErreur(sortie, NumeroRefus(refus.raison), SensRefus(refus.raison));
    }
  });
  return reussi && !refuse;
}

} // namespace velmaris
