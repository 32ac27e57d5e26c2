#include "shell/papier/MotsDesPages.hpp"

#include "shell/complements/Mots.hpp"

#include <algorithm>
#include <cstddef>

namespace velmaris {
namespace {

template <std::size_t N> std::array<std::string, N> Legendes(const std::array<Controle, N> &controles) {
  std::array<std::string, N> mots;
  std::transform(controles.begin(), controles.end(), mots.begin(), [](const Controle &c) { return c.legende; });
  return mots;
}

std::string Fait(const Bureau &bureau) { return TexteDate(UTCDe(JourPresent(bureau))); }

} // namespace

DateCivile JourPresent(const Bureau &bureau) {
  const TempsSysteme t = bureau.horloge.source();
  return {t.annee, t.mois, t.jour};
}

MotsAlmanach MotsDeLAlmanach(const Bureau &bureau) { return {Legendes(bureau.termesAlmanach.MotAlmanach)}; }

char VirguleDesPages(const Bureau &bureau) {
  const std::string &virgule =
      bureau.termesAlmanach.MotAlmanach.at(static_cast<std::size_t>(MotAlmanach::Virgule)).legende;
  return virgule.empty() ? '.' : virgule.front();
}

MotsFiche MotsDeLaFiche(const Bureau &bureau) {
  const MotsPapier &m = bureau.motsPapier;
  return {.titre = m.TexteFiche.legende,
          .reponses = m.TexteReponses.legende,
          .parties = Legendes(m.MotPartie),
          .etapes = Legendes(m.MotEtape),
          .regles = Legendes(m.MotRegle),
          .bords = Legendes(bureau.fenetreSerie.MotBord),
          .vers = m.TexteVers.legende,
          .depuis = m.TexteDepuis.legende,
          .controle = m.TexteControle.legende,
          .pied = m.TextePied.legende + Fait(bureau)};
}

MotsCanevas MotsDuCanevas(const Bureau &bureau) {
  const MotsPapier &m = bureau.motsPapier;
  return {m.TexteMilles.legende, m.TextePlane.legende, m.TexteMinute.legende};
}

MotsJour MotsDuJour(const Bureau &bureau, const std::string &date) {
  const MotsPapier &m = bureau.motsPapier;
  const auto meteo = Legendes(m.MotMeteo);
  return {.titre = m.TexteJour.legende + date,
          .colonnes = Legendes(m.MotColonne),
          .meteo = {meteo.begin(), meteo.end()},
          .suite = m.TexteSuite.legende,
          .pied = m.TextePiedJour.legende + Fait(bureau),
          .canevas = MotsDuCanevas(bureau)};
}

std::string PiedVierge(const Bureau &bureau) { return bureau.motsPapier.TextePiedVierge.legende + Fait(bureau); }

} // namespace velmaris
