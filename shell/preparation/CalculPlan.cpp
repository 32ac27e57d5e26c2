#include "shell/preparation/CalculPlan.hpp"

#include "complements/ciel/Refus.hpp"
#include "shell/bureau/Avis.hpp"
#include "shell/complements/CandidatsLune.hpp"
#include "shell/complements/Mots.hpp"
#include "shell/complements/Saisies.hpp"
#include "shell/preparation/LecturePlan.hpp"
#include "shell/preparation/MotsPlan.hpp"
#include "shell/preparation/TableauxPlan.hpp"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <utility>

namespace velmaris {
namespace {

constexpr double kMinute = 60;
constexpr int kMinutesDuJour = 1440;

/// What a day's work brings.
struct JourCalcule {
  std::shared_ptr<const CielDuJour> ciel;
  std::shared_ptr<const Journee> journee;
  AmplitudesDuJour amplitudes;
  std::optional<RaisonRefus> refus;
};

/// @return nothing when it was stopped
std::optional<JourCalcule> CalculeJour(const Etoiles &etoiles, const DemandePlan &d, double dut1,
                                       const std::stop_token &arret) {
  JourCalcule jour;
  try {
    std::optional<CielDuJour> ciel = CielDeLaJournee(etoiles, d.jour, d.navire, dut1, arret);
    std::optional<Journee> journee = ciel ? CalculeJournee(*ciel, d.jour, d.navire, arret) : std::nullopt;
    if (!journee) {
      return std::nullopt;
    }
    const LectureSextant &air = d.reglages.sextant;
    jour.amplitudes = AmplitudesSoleil(*ciel, *journee, d.navire, air.pression, air.temperature);
    jour.ciel = std::make_shared<const CielDuJour>(std::move(*ciel));
    jour.journee = std::make_shared<const Journee>(std::move(*journee));
  } catch (const Refus &refus) {
    jour.refus = refus.raison;
  }
  return jour;
}

int MinuteDe(const PlanOuvert &plan, const InstantUTC &utc) {
  const double minutes = SecondesEntre(plan.journee->debut, utc) / kMinute;
  return std::clamp(static_cast<int>(std::lround(minutes)), 0, kMinutesDuJour);
}

void Recoit(Bureau &bureau, const JourCalcule &jour) {
  PlanOuvert &p = bureau.plan;
  p.enCalcul = false;
  p.aMontrer = true;
  p.ciel = jour.ciel;
  p.journee = jour.journee;
  p.amplitudes = jour.amplitudes;
  p.refus = jour.refus;
  p.meilleurs.clear();
  if (p.journee) {
    bureau.preparation.HScroll1.valeur = MinuteDe(p, p.demande.navire.heure);
    RegardeInstant(bureau);
    DemandeMeilleurs(bureau);
  }
}

/// Whether two plans look for the best sets by the same figures.
bool EstDesMemesJeux(const DemandePlan &a, const DemandePlan &b) {
  return a.jeux.magnitudeMax == b.jeux.magnitudeMax && a.jeux.erreur == b.jeux.erreur &&
         a.reglages.sextant.collimation == b.reglages.sextant.collimation;
}

/// The smallest trace among the best sets of a moment; infinite without one.
double PlusPetiteTrace(const MeilleursJeux &jeux) {
  double trace = std::numeric_limits<double>::infinity();
  for (const std::vector<JeuAstres> &memeNombre : jeux) {
    trace = memeNombre.empty() ? trace : std::min(trace, memeNombre.front().trace);
  }
  return trace;
}

/// The bodies that a bearing is taken of: the Sun, the Moon, planets and stars to the second magnitude, over the
/// horizon.
std::vector<std::size_t> AstresDuCompas(const CielDuPlan &vue) {
  constexpr double kMagnitudeMax = 2;
  std::vector<std::size_t> rangs;
  for (std::size_t i = 0; i < vue.astres.size(); ++i) {
    if (!Tient(vue.astres[i].raisons, RaisonPale::SousHorizon) && vue.astres[i].magnitude <= kMagnitudeMax) {
      rangs.push_back(i);
    }
  }
  return rangs;
}

} // namespace

void DemandePlanDuJour(Bureau &bureau) {
  PlanOuvert &p = bureau.plan;
  std::optional<DemandePlan> demande = LitDemandePlan(bureau);
  p.aMontrer = true;
  p.dit.clear();
  if (!demande) {
    return;
  }
  const bool connu = (p.ciel || p.refus || p.enCalcul) && EstDuMemeJour(*demande, p.demande);
  const bool memesJeux = EstDesMemesJeux(*demande, p.demande);
  p.demande = std::move(*demande);
  if (connu) {
    if (!p.enCalcul && p.ciel) {
      RegardeInstant(bureau);
      if (!memesJeux) {
        DemandeMeilleurs(bureau);
      }
    }
    return;
  }
  p.arret.request_stop();
  p.arret = std::stop_source();
  p.enCalcul = true;
  const double dut1 = bureau.verification.reglages.dut1;
  DemandePlan seule = p.demande;
  seule.reglages.sextant.erreursArc = {}; // they belong to this thread
  bureau.ports.travaille(
      [arret = p.arret.get_token(), seule, dut1, &etoiles = bureau.etoiles, &bureau]() -> std::function<void()> {
        std::optional<JourCalcule> jour = CalculeJour(etoiles, seule, dut1, arret);
        return [jour = std::move(jour), arret, &bureau] {
          if (jour && !arret.stop_requested()) {
            Recoit(bureau, *jour);
          }
        };
      });
}

void RegardeInstant(Bureau &bureau) {
  PlanOuvert &p = bureau.plan;
  Preparation &f = bureau.preparation;
  if (!p.ciel) {
    return;
  }
  p.aMontrer = true;
  p.dit.clear();
  p.instant = PlusTard(p.journee->debut, f.HScroll1.valeur * kMinute);
  p.demande.reglages.sextant.erreursArc = bureau.verification.reglages.erreursArc;
  p.vue = RegardeCiel(*p.ciel, p.demande.navire, p.instant, p.demande.reglages);
  p.jeux = ChoisitJeux(p.vue, p.demande.jeux);
  p.montres = AstresMontres(p, f.Check2.valeur == 1);
  CalculeCompas(bureau);
  if (f.Onglets1.rang == static_cast<int>(PagePlan::Jeux)) {
    const LectureSextant &air = p.demande.reglages.sextant;
    p.lunaires = CandidatsLune(p.instant, p.vue.lieu, p.vue.hauteurOeil, {air.pression, air.temperature},
                               bureau.verification.reglages.dut1);
  }
  CalculeInconnu(bureau);
}

std::optional<std::vector<MeilleurMoment>> MeilleursMoments(const CielDuJour &ciel, const Journee &journee,
                                                            const DemandePlan &demande, const std::stop_token &arret) {
  constexpr double kPas = 1; // minutes
  std::vector<MeilleurMoment> meilleurs;
  for (const FenetrePrise &prise : journee.fenetres) {
    Journee seule;
    seule.fenetres = {prise};
    const std::vector<InstantUTC> moments = InstantsDePrise(seule, kPas);
    ReglagesJeux reglages = demande.jeux;
    reglages.garde = 1;
    const auto jeux = JeuxDesMoments(ciel, demande.navire, moments, demande.reglages, reglages, arret);
    if (!jeux) {
      return std::nullopt;
    }
    const auto mieux = std::min_element(jeux->begin(), jeux->end(), [](const JeuxDuMoment &a, const JeuxDuMoment &b) {
      return PlusPetiteTrace(a.jeux) < PlusPetiteTrace(b.jeux);
    });
    if (mieux != jeux->end() && std::isfinite(PlusPetiteTrace(mieux->jeux))) {
      meilleurs.push_back({prise.genre, mieux->utc, PlusPetiteTrace(mieux->jeux)});
    }
  }
  return meilleurs;
}

void DemandeMeilleurs(Bureau &bureau) {
  PlanOuvert &p = bureau.plan;
  p.arretMeilleurs.request_stop();
  p.arretMeilleurs = std::stop_source();
  DemandePlan seule = p.demande;
  seule.reglages.sextant.erreursArc = {}; // they belong to this thread, and the sets don't need them
  bureau.ports.travaille([arret = p.arretMeilleurs.get_token(), ciel = p.ciel, journee = p.journee, seule,
                          &bureau]() -> std::function<void()> {
    std::optional<std::vector<MeilleurMoment>> meilleurs;
    try {
      meilleurs = MeilleursMoments(*ciel, *journee, seule, arret);
    } catch (const Refus &) {
      meilleurs.reset();
    }
    return [meilleurs, journee, arret, &bureau] {
      if (meilleurs && !arret.stop_requested() && bureau.plan.journee == journee) {
        bureau.plan.meilleurs = *meilleurs;
        bureau.plan.aMontrer = true;
      }
    };
  });
}

void DitPlan(Bureau &bureau, const std::string &mots) {
  bureau.plan.dit = mots;
  bureau.plan.aMontrer = true;
  Avise(bureau, mots);
}

void CalculeCompas(Bureau &bureau) {
  constexpr double kTour = 360;
  PlanOuvert &p = bureau.plan;
  Preparation &f = bureau.preparation;
  if (!p.ciel) {
    return;
  }
  const std::string avant = f.Combo1.texte;
  p.compas = AstresDuCompas(p.vue);
  f.Combo1.liste.clear();
  for (const std::size_t rang : p.compas) {
    f.Combo1.liste.push_back(NomDAstre(bureau, p.vue.astres[rang].astre));
  }
  const auto ligne = std::find(f.Combo1.liste.begin(), f.Combo1.liste.end(), avant);
  f.Combo1.rang = f.Combo1.liste.empty()          ? -1
                  : ligne == f.Combo1.liste.end() ? 0
                                                  : static_cast<int>(ligne - f.Combo1.liste.begin());
  f.Combo1.texte = f.Combo1.rang < 0 ? "" : f.Combo1.liste[static_cast<std::size_t>(f.Combo1.rang)];
  const std::string &hors = f.TexteHors.legende;
  const auto compas = LitChampBorne(f.Text4[0], 0, kTour, hors);
  const auto declinaison = LitChampBorne(f.Text4[1], -kTour / 2, kTour / 2, hors);
  for (Controle &resultat : f.Resultat) {
    resultat.legende.clear();
  }
  if (f.Combo1.rang >= 0) {
    const double azimut = p.vue.astres[p.compas[static_cast<std::size_t>(f.Combo1.rang)]].azimut;
    f.Resultat[0].legende = Dixiemes(azimut) + "°";
    if (compas) {
      const EcartCompas ecart = EcartDuCompas(azimut, *compas, declinaison.value_or(0));
      f.Resultat[1].legende = MotsCote(f, ecart.total);
      f.Resultat[2].legende = declinaison ? MotsCote(f, ecart.deviation) : "";
    }
  }
  p.aMontrer = true;
}

void CalculeInconnu(Bureau &bureau) {
  PlanOuvert &p = bureau.plan;
  const AstreInconnu inconnu = LitInconnu(bureau);
  p.inconnus.clear();
  if (p.ciel) {
    p.inconnus = IdentifieAstre(p.vue, p.demande.reglages, inconnu);
  }
  p.aMontrer = true;
}

} // namespace velmaris
