#include "shell/visee/Annulation.hpp"

#include "shell/bureau/Valeurs.hpp"
#include "shell/visee/EtatPanneau.hpp"
#include "shell/visee/ReduitVisee.hpp"

#include <algorithm>
#include <utility>

namespace velmaris {
namespace {

/// Modules, the slider and what follows another control are no gesture's to put back.
bool EstRevocable(const Donnees &d, const Controle &c) {
  return c.genre != Genre::Cadre && c.genre != Genre::Curseur && !EstSuiveur(d, c);
}

std::vector<CleValeur> PriseDroite(const Bureau &bureau, int ligne) {
  std::vector<CleValeur> cles;
  for (std::string &cle : ToutesClesDroite(ligne)) {
    std::string valeur = LitReglage(bureau, cle);
    cles.push_back({std::move(cle), std::move(valeur)});
  }
  return cles;
}

RangeeImprimee PriseRangee(const Impression &page, std::size_t r) {
  return {page.Frame4.at(r).visible,
          {page.Frame4[r].legende, page.Label32[r].legende, page.Label33[r].legende, page.Label34[r].legende,
           page.Label35[r].legende, page.Label36[r].legende}};
}

/// What is drawn, without the chart, which is drawn again from its files.
std::vector<Trace> TracesSansCarte(const Bureau &bureau) {
  const std::vector<Trace> &traces = bureau.image1.traces;
  std::vector<Trace> reste;
  std::size_t debut = 0;
  for (const Tranche &t : DessinsCarte(bureau)) {
    reste.insert(reste.end(), traces.begin() + static_cast<std::ptrdiff_t>(debut),
                 traces.begin() + static_cast<std::ptrdiff_t>(t.debut));
    debut = t.fin;
  }
  reste.insert(reste.end(), traces.begin() + static_cast<std::ptrdiff_t>(debut), traces.end());
  return reste;
}

EtatTrace PriseTrace(const Bureau &bureau) {
  EtatTrace trace;
  trace.feuille = bureau.feuille;
  for (std::size_t i = 0; i < trace.droites.size(); ++i) {
    trace.droites.at(i) = bureau.donnees.LHeure.at(i).couleur;
    trace.rangees.at(i) = PriseRangee(bureau.impression, i);
  }
  trace.traces = TracesSansCarte(bureau);
  trace.etiquettes = bureau.image1.etiquettes;
  trace.carte = !DessinsCarte(bureau).empty();
  return trace;
}

} // namespace

EtatRevocable PriseEtat(Bureau &bureau) {
  EtatRevocable etat;
  Donnees &d = bureau.donnees;
  PourChaque(d, [&](const LigneDonnees &, const Controle &c) {
    if (std::optional<std::string> valeur = EstRevocable(d, c) ? ValeurTenue(c) : std::nullopt) {
      etat.controles.push_back({c.nom, c.indice, std::move(*valeur)});
    }
  });
  etat.resultat = PriseResultat(bureau);
  etat.trace = PriseTrace(bureau);
  etat.transports = bureau.transports;
  etat.estimee = {d.LabLatEst.legende, d.LabLonEst.legende};
  if (bureau.valeurs) {
    bureau.valeurs->EnsembleLu([&] {
      for (int ligne = 0; ligne < kNombreDroites; ++ligne) {
        etat.enregistrees.at(static_cast<std::size_t>(ligne)) = PriseDroite(bureau, ligne);
      }
    });
  }
  return etat;
}

void RetientPas(Annulations &annulations, PasRevocable pas) {
  if (pas.avant == pas.apres) {
    return;
  }
  annulations.defaits.clear();
  annulations.faits.push_back(std::move(pas));
  if (annulations.faits.size() > kPasGardes) {
    annulations.faits.pop_front();
  }
}

void RetientGeste(Bureau &bureau, const std::string &nom, const std::function<void()> &geste) {
  EtatRevocable avant = PriseEtat(bureau);
  try {
    geste();
  } catch (...) {
    RetientPas(bureau.annulations, {nom, std::move(avant), PriseEtat(bureau)});
    throw;
  }
  RetientPas(bureau.annulations, {nom, std::move(avant), PriseEtat(bureau)});
}

} // namespace velmaris
