#include "complements/registre/ReduitCopie.hpp"

#include "ephemerides/ModulePosLune.hpp"
#include "foundations/Erreur.hpp"
#include "sights/DroiteLUN.hpp"
#include "sights/DroitePLA.hpp"
#include "sights/DroiteSOL.hpp"
#include "sights/DroiteSTAR.hpp"

namespace velmaris {
namespace {

/// Works out observed and computed altitude; azimuth and intercept go into `valeurs`.
std::optional<ResultatDit> Reduit(Observation &o, ValeursVisee &valeurs, const Etoiles &etoiles,
                                  const TexteMsg &messages) {
  AffichageDroite affichage;
  if (o.corps == Corps::Soleil) {
    const ReductionSoleil soleil = Calcul_DroiteSOL(o, valeurs, affichage, messages);
    return soleil.faite ? std::optional(ResultatDit{soleil.lue.Ho, soleil.Hc}) : std::nullopt;
  }
  Reduction r;
  if (o.corps == Corps::Lune) {
    Lune lune;
    r = Calcul_DroiteLUN(o, valeurs, lune, affichage, messages);
  } else if (o.corps == Corps::Planetes) {
    r = Calcul_DroitePLA(o, valeurs, affichage, messages);
  } else if (o.corps == Corps::Etoiles) {
    r = Calcul_DroiteSTAR(o, valeurs, etoiles, affichage, messages);
  }
  return r.etat == EtatReduction::Faite ? std::optional(ResultatDit{r.lue.Ho, valeurs.HauteurCalculee}) : std::nullopt;
}

} // namespace

std::optional<ResultatDit> ReduitCopie(Observation &observation, const Etoiles &etoiles, const TexteMsg &messages) {
  std::optional<ResultatDit> dit;
  Passe([&] {
    ValeursVisee valeurs;
    NormaliseLecture(observation);
    valeurs.HeureDecimale = HeureDesChamps(observation);
    LitEstime(observation, valeurs);
    dit = Reduit(observation, valeurs, etoiles, messages);
    if (dit) {
      dit->azimut = valeurs.Azimut;
      dit->intercept = valeurs.Intercept;
    }
  });
  return dit;
}

} // namespace velmaris
