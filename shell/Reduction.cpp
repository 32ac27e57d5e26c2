#include "shell/Reduction.hpp"

#include "foundations/Erreur.hpp"
#include "shell/Droites.hpp"
#include "shell/Saisie.hpp"
#include "sights/DroiteSOL.hpp"

namespace velmaris {
namespace {

/// Puts on the screen what the reduction has composed.
void MontreResultat(Bureau &bureau) {
  Donnees &d = bureau.donnees;
  const AffichageDroite &a = bureau.affichage;
  d.Affichage_Intercept.legende = a.intercept;
  d.Affichage_Azimuth.legende = a.azimut;
  d.Label14.infobulle = a.infobulle;
  for (std::size_t i = 0; i < a.details.size(); ++i) {
    d.Label70[i].legende = a.details[i];
  }
}

std::optional<Hauteurs> ReduitSoleil(Bureau &bureau, Observation &observation) {
  const ReductionSoleil r = Calcul_DroiteSOL(observation, bureau.visee, bureau.affichage, bureau.messages);
  if (!r.faite) {
    return std::nullopt;
  }
  bureau.NomAstre = bureau.donnees.Option7[0].legende;
  return Hauteurs{r.lue.Ho, r.Hc};
}

/// A body whose theory isn't there yet: the sheet must not show it with the figures of another sight.
void RefuseCorps(Bureau &bureau) {
  bureau.visee.Intercept = 0.0F;
  bureau.ports.boite({.texte = bureau.donnees.TexteAVenir.legende, .icone = Icone::Information});
}

} // namespace

void MontreTitresFeuille(Bureau &bureau) {
  bureau.donnees.LabLon.legende = bureau.feuille.LabLon;
  bureau.donnees.LabLat.legende = bureau.feuille.LabLat;
}

void PrepareVisee(Bureau &bureau, const Observation &observation) {
  bureau.visee.HeureDecimale = HeureDesChamps(observation);
  Passe([&] { LitEstime(observation, bureau.visee); });
}

std::optional<Hauteurs> ReduitVisee(Bureau &bureau, Observation &observation) {
  std::optional<Hauteurs> hauteurs;
  switch (observation.corps) {
  case Corps::Soleil:
    hauteurs = ReduitSoleil(bureau, observation);
    break;
  case Corps::Lune:
  case Corps::Planetes:
  case Corps::Etoiles:
    RefuseCorps(bureau);
    break;
  case Corps::Aucun:
  default:
    break;
  }
  if (hauteurs) {
    MontreResultat(bureau);
  }
  PoseReduction(bureau, observation);
  return hauteurs;
}

std::optional<Hauteurs> PremiereDroite(Bureau &bureau) {
  Observation observation = LitPanneau(bureau.donnees);
  NormaliseLecture(observation);
  PrepareVisee(bureau, observation);
  const std::optional<Hauteurs> hauteurs = ReduitVisee(bureau, observation);
  TraceDroites(bureau.feuille, bureau.image1, observation, bureau.visee);
  MontreTitresFeuille(bureau);
  MajHeureListes(bureau);
  return hauteurs;
}

void DroiteSuivante(Bureau &bureau) {
  Observation observation = LitPanneau(bureau.donnees);
  PrepareVisee(bureau, observation);
  ReduitVisee(bureau, observation);
  AjouDroites(bureau.feuille, bureau.image1, observation, bureau.visee);
}

} // namespace velmaris
