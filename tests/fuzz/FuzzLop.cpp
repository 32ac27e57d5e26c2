#include "Attend.hpp"
#include "foundations/Erreur.hpp"
#include "lines/FichierLoP.hpp"
#include "sights/DroiteLUN.hpp"
#include "sights/DroitePLA.hpp"
#include "sights/DroiteSOL.hpp"
#include "sights/DroiteSTAR.hpp"
#include "tests/complements/TableEtoiles.hpp"

#include <cmath>
#include <vector>

using namespace velmaris;

namespace {

/// A sight written and read again is the same sight.
void AttendRelecture(const Observation &observation) {
  const std::string texte = EcritLoP(observation);
  if (texte.starts_with("\xEF\xBB\xBF")) {
    return; // a byte order mark at the start of a file is no part of its first line
  }
  TableLoP table;
  LitLignesLoP(texte, table);
  Observation relue;
  AppliqueLoP(table, relue);
  Attend(EcritLoP(relue) == texte, "a sight written and read again is the same");
  Attend(relue.corps == observation.corps && relue.bord == observation.bord && relue.horizon == observation.horizon,
         "choices survive the file");
}

void AttendReduction(Observation observation) {
  ValeursVisee valeurs;
  valeurs.HeureDecimale = HeureDesChamps(observation);
  Passe([&] { LitEstime(observation, valeurs); });
  AffichageDroite affichage;
  const TexteMsg messages;
  const ReductionSoleil r = Calcul_DroiteSOL(observation, valeurs, affichage, messages);
  Attend(std::isfinite(r.Hc) && std::isfinite(valeurs.Azimut) && std::isfinite(valeurs.Intercept),
         "a reduction leaves figures");
  Attend(r.faite || affichage.azimut.empty(), "a reading of zero shows nothing");
}

/// The Moon passes over every failure; a star or a planet ends on a numbered one.
void AttendAutresCorps(Observation observation) {
  ValeursVisee valeurs;
  Passe([&] { LitEstime(observation, valeurs); });
  AffichageDroite affichage;
  const TexteMsg messages;
  Lune lune;
  Calcul_DroiteLUN(observation, valeurs, lune, affichage, messages);
  Passe([&] { Calcul_DroiteSTAR(observation, valeurs, essais::Table(), affichage, messages); });
  Passe([&] { Calcul_DroitePLA(observation, valeurs, affichage, messages); });
  Attend(std::isfinite(valeurs.Azimut) && std::isfinite(valeurs.Intercept) && std::isfinite(valeurs.HauteurCalculee),
         "every body leaves figures");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *octets, std::size_t taille) {
  TableLoP table;
  Observation observation;
  try {
    LitLignesLoP(Octets(octets, taille), table);
  } catch (const Erreur &erreur) {
    Attend(erreur.numero == 9, "only a 32nd line stops the reading");
    return 0;
  }
  AppliqueLoP(table, observation);
  AttendRelecture(observation);
  AttendReduction(observation);
  AttendAutresCorps(observation);
  NomProposeLoP(observation);
  return 0;
}
