#include "shell/preparation/MotsPlan.hpp"

#include "foundations/TexteNombre.hpp"
#include "shell/complements/Mots.hpp"

#include <cmath>
#include <cstddef>

namespace velmaris {
namespace {

constexpr double kHeure = 3600;

template <class Enum> std::size_t Rang(Enum valeur) { return static_cast<std::size_t>(valeur); }

/// What light a height of the Sun gives: day, the three twilights, night.
std::size_t LumiereDe(double hauteur) {
  constexpr double kLever = -0.85;
  constexpr double kPas = -6;
  return hauteur > kLever ? 0 : hauteur > kPas ? 1 : hauteur > 2 * kPas ? 2 : hauteur > 3 * kPas ? 3 : 4;
}

} // namespace

std::string HeureDuBord(const Journee &journee, const InstantUTC &utc) {
  return TexteHeureMinute(PlusTard(utc, journee.fuseau * kHeure));
}

std::string MotsFuseau(const Preparation &f, const Journee &journee) {
  const std::string heures =
      journee.fuseau == 0 ? "" : (journee.fuseau > 0 ? "+" : "") + std::to_string(journee.fuseau);
  return f.TexteFuseau.legende + heures;
}

const std::string &NomEvenement(const Preparation &f, GenreEvenement genre) {
  return f.MotEvenement.at(Rang(genre)).legende;
}

std::string MotsInstant(const Preparation &f, const PlanOuvert &plan) {
  const CielDuPlan &vue = plan.vue;
  return TexteHeureMinute(vue.utc) + " UTC   " + HeureDuBord(*plan.journee, vue.utc) + "   " + f.TexteSoleil.legende +
         DixiemesSignes(vue.hauteurSoleil) + "°, " + f.MotLumiere.at(LumiereDe(vue.hauteurSoleil)).legende;
}

std::string MotsLune(const Preparation &f, const PlanOuvert &plan) {
  const auto rang = PlaceDansLeCiel(*plan.ciel, {GenreAstre::Lune, 0});
  if (!rang || !plan.vue.lune || plan.vue.astres.at(*rang).apparente < 0) {
    return "";
  }
  constexpr double kCent = 100;
  const PhaseLune &lune = *plan.vue.lune;
  return f.TexteLune.legende + Format(std::round(lune.eclairee * kCent), "0") + " % " +
         (lune.croissante ? f.TexteCroissante : f.TexteDecroissante).legende + ", " +
         Dixiemes(plan.vue.astres.at(*rang).apparente) + "°, " + TexteDirection(plan.vue.astres.at(*rang).azimut);
}

std::string MotsPrises(const Preparation &f, const Journee &journee) {
  std::string mots;
  for (const FenetrePrise &prise : journee.fenetres) {
    mots += (mots.empty() ? "" : "    ") + f.MotPrise.at(Rang(prise.genre)).legende + " " +
            HeureDuBord(journee, prise.debut) + " - " + HeureDuBord(journee, prise.fin) + " (" +
            TexteHeureMinute(prise.debut) + " - " + TexteHeureMinute(prise.fin) + " UTC)";
  }
  return mots.empty() ? f.TexteSansPrise.legende : mots;
}

std::string MotsJeu(const Bureau &bureau, const JeuAstres &jeu) {
  std::string mots;
  for (const std::size_t rang : jeu.astres) {
    const AstreDuPlan &astre = bureau.plan.vue.astres.at(rang);
    mots += (mots.empty() ? "" : ", ") + NomDAstre(bureau, astre.astre) + " " + TexteDirection(astre.azimut);
  }
  return mots;
}

std::string MotsMeilleur(const Preparation &f, const MeilleurMoment &moment) {
  return f.MotMieux.at(Rang(moment.prise)).legende + TexteHeureMinute(moment.utc) + " UTC";
}

std::string MotsRemarque(const Preparation &f, const CielDuPlan &vue, const AstreDuPlan &astre) {
  if (const auto raison = PremiereRaison(astre.raisons)) {
    if (*raison == RaisonPale::PerduCrepuscule && LumiereDe(vue.hauteurSoleil) == 0) {
      return f.TextePerduJour.legende;
    }
    return f.MotRaison.at(Rang(*raison)).legende;
  }
  return astre.contact == Contact::Centre ? "" : f.MotBord.at(Rang(astre.contact)).legende;
}

std::string MotsAmplitude(const Preparation &f, bool lever, double amplitude) {
  return f.MotCardinal.at(lever ? 1 : 3).legende + " " + Dixiemes(std::fabs(amplitude)) + "° " +
         f.MotCardinal.at(amplitude < 0 ? 2 : 0).legende;
}

std::string MotsCote(const Preparation &f, double degres) {
  return Dixiemes(std::fabs(degres)) + "° " + (degres < 0 ? f.TexteOuest : f.TexteEst).legende;
}

} // namespace velmaris
