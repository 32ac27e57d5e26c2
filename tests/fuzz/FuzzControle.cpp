#include "Attend.hpp"
#include "complements/controle/Controle.hpp"
#include "foundations/Erreur.hpp"
#include "lines/FichierLoP.hpp"
#include "tests/complements/TableEtoiles.hpp"

#include <cmath>
#include <vector>

using namespace velmaris;

namespace {

bool EstNombre(const ResultatActuel &r) {
  return std::isfinite(r.Ho) && std::isfinite(r.Hc) && std::isfinite(r.azimut) && std::isfinite(r.intercept) &&
         std::isfinite(r.gha) && std::isfinite(r.declinaison);
}

void AttendGlissades(const FicheControle &fiche, const ReglagesControle &reglages) {
  for (const Glissade &glissade : fiche.glissades) {
    Attend(std::fabs(glissade.intercept) < kResteGlissade, "a slip leaves little");
    const FicheControle bonne = ControleVisee(glissade.corrigee, {}, essais::Table(), reglages);
    Attend(bonne.actuel && bonne.glissades.empty(), "a sight without its slip is a good one");
  }
}

} // namespace

/// A sight of any bytes, by four settings of air and horizon.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *octets, std::size_t taille) {
  TableLoP table;
  Observation observation;
  if (!Passe([&] { LitLignesLoP(Octets(octets, taille), table); })) {
    return 0;
  }
  AppliqueLoP(table, observation);
  ReglagesControle reglages;
  if (taille % 2 == 1) {
    reglages.pression = 950;
    reglages.temperature = -30;
    reglages.erreursArc = {{0, 0.2}, {60, -0.4}, {120, 0.3}};
  }
  if (taille % 4 > 1) {
    reglages.distanceHorizon = 0.4;
    reglages.dut1 = -0.7;
  }
  const Observation avant = observation;
  const FicheControle fiche = ControleVisee(observation, {10, 20, 30, 40}, essais::Table(), reglages);
  Attend(observation == avant, "a check leaves the sight alone");
  Attend(fiche.actuel.has_value() != fiche.refus.has_value(), "a figure of today or the reason why there is none");
  Attend(!fiche.actuel || EstNombre(*fiche.actuel), "today's figures are numbers");
  Attend(std::isfinite(fiche.ecart) && std::isfinite(fiche.inexplique), "so is the difference");
  for (const PartCause &part : fiche.causes) {
    Attend(std::isfinite(part.minutes), "so is every part");
  }
  for (const LigneControle &ligne : fiche.lignes) {
    Attend(std::isfinite(ligne.dit.value_or(0)) && std::isfinite(ligne.actuel.value_or(0)), "so is every step");
  }
  AttendGlissades(fiche, reglages);
  return 0;
}
