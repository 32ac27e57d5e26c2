#include "shell/visee/ReduitVisee.hpp"

#include "foundations/Erreur.hpp"
#include "shell/bureau/Explication.hpp"
#include "shell/visee/Remede.hpp"
#include "shell/visee/Saisie.hpp"
#include "sights/DroiteLUN.hpp"
#include "sights/DroitePLA.hpp"
#include "sights/DroiteSOL.hpp"
#include "sights/DroiteSTAR.hpp"

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

/// @param nom  of the body, kept when its sight was reduced
std::optional<Hauteurs> Rapporte(Bureau &bureau, const Reduction &r, Demande demande, const std::string &nom) {
  if (r.etat == EtatReduction::SansAstre && demande == Demande::Utilisateur) {
    bureau.ports.boite({.texte = bureau.donnees.TexteSansAstre.legende});
  }
  if (r.etat != EtatReduction::Faite) {
    return std::nullopt;
  }
  bureau.NomAstre = nom;
  return Hauteurs{r.lue.Ho, bureau.visee.HauteurCalculee};
}

/// Reduces a sight by its kind of body, into the shared records.
std::optional<Hauteurs> Reduit(Bureau &bureau, Observation &observation, Demande demande) {
  std::optional<Hauteurs> hauteurs;
  const Donnees &d = bureau.donnees;
  ValeursVisee &valeurs = bureau.visee;
  switch (observation.corps) {
  case Corps::Soleil:
    hauteurs = ReduitSoleil(bureau, observation);
    break;
  case Corps::Lune:
    hauteurs = Rapporte(bureau, Calcul_DroiteLUN(observation, valeurs, bureau.lune, bureau.affichage, bureau.messages),
                        demande, d.Option7[1].legende);
    break;
  case Corps::Planetes:
    hauteurs = Rapporte(bureau, Calcul_DroitePLA(observation, valeurs, bureau.affichage, bureau.messages), demande,
                        d.Combo7.texte);
    break;
  case Corps::Etoiles:
    hauteurs =
        Rapporte(bureau, Calcul_DroiteSTAR(observation, valeurs, bureau.etoiles, bureau.affichage, bureau.messages),
                 demande, d.Combo6.texte);
    break;
  case Corps::Aucun:
  default:
    break;
  }
  return hauteurs;
}

} // namespace

void PrepareVisee(Bureau &bureau, const Observation &observation) {
  bureau.visee.HeureDecimale = HeureDesChamps(observation);
  Passe([&] { LitEstime(observation, bureau.visee); });
}

std::optional<Hauteurs> ReduitVisee(Bureau &bureau, Observation &observation, Demande demande) {
  std::optional<Hauteurs> hauteurs;
  try {
    hauteurs = Reduit(bureau, observation, demande);
  } catch (const Erreur &erreur) {
    // What was written before the failure stands on the screen.
    MontreResultat(bureau);
    PoseReduction(bureau, observation);
    bureau.verification.visee.reset();
    if (demande == Demande::Retrace) {
      return std::nullopt;
    }
    throw ErreurExpliquee(erreur.numero, MotsRemede(bureau.donnees, observation, erreur.numero));
  }
  if (hauteurs) {
    MontreResultat(bureau);
  }
  PoseReduction(bureau, observation);
  if (hauteurs) {
    bureau.viseeReduite = LitPanneau(bureau.donnees);
    bureau.verification.visee =
        ViseeDite{observation, {hauteurs->Ho, hauteurs->Hc, bureau.visee.Azimut, bureau.visee.Intercept}};
  }
  return hauteurs;
}

EtatResultat PriseResultat(const Bureau &bureau) {
  return {bureau.visee, bureau.affichage, bureau.NomAstre, bureau.viseeReduite, bureau.verification.visee};
}

void RemetResultat(Bureau &bureau, const EtatResultat &resultat) {
  bureau.visee = resultat.visee;
  bureau.affichage = resultat.affichage;
  bureau.NomAstre = resultat.astre;
  bureau.viseeReduite = resultat.reduite;
  bureau.verification.visee = resultat.dite;
  MontreResultat(bureau);
}

} // namespace velmaris
