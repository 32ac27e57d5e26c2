#include "sights/DroiteLUN.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"

namespace velmaris {
namespace {

/// Height of eye and collimation, dip and refraction; collimation goes back into its field as 32 bits.
/// @return collimation, minutes of arc
float Corrige(Observation &observation, HauteurObservee<double> &h, AffichageDroite &affichage,
              const TexteMsg &messages) {
  float collimation = 0.0F;
  Passe([&] { collimation = Simple(LitVirgule(observation.collimation)); });
  observation.collimation = TexteVirgule(collimation);
  Passe([&] { h.Depression = DepressionHorizon<double>(LitVirgule(observation.hauteurOeil)); });
  affichage.details[0] = messages[14] + EnMinutes(h.Depression);
  Passe([&] { h.Refraction = RefractionLue<double>(h.H); });
  affichage.details[1] = messages[15] + EnMinutes(h.Refraction);
  return collimation;
}

/// The limb, by the day's own semi-diameter, and the observed height; the limb is left out off an artificial horizon.
void AjouteBord(const Observation &observation, HauteurObservee<double> &h, float collimation, const Lune &lune) {
  float DemiDiametre = 0.0F;
  if (observation.bord == Bord::Superieur) {
    Passe([&] { DemiDiametre = Simple(-lune.LuneDemiDiametre / 60.0); });
  } else if (observation.bord == Bord::Inferieur) {
    Passe([&] { DemiDiametre = Simple(lune.LuneDemiDiametre / 60.0); });
  }
  h.DemiDiametre = DemiDiametre;
  Passe([&] {
    h.Ho = Range<double>(observation.horizon == Horizon::Naturel
                             ? h.H - h.Depression - h.Refraction + h.Parallaxe + collimation / 60.0 + DemiDiametre
                             : (h.H - h.Refraction + h.Parallaxe + collimation / 60.0) / 2);
  });
}

void Montre(const HauteurObservee<double> &h, const ValeursVisee &valeurs, const Lune &lune, AffichageDroite &affichage,
            const TexteMsg &messages) {
  const double diametre = 2 * lune.LuneDemiDiametre;
  affichage.details[7] = messages[31] + Format(diametre, "00.00") + " '";
  affichage.details[2] = messages[17] + DegresMinutes(h.Ho);
  affichage.details[3] = messages[19] + HauteurSignee(valeurs.HauteurCalculee);
  affichage.details[4] = messages[32];
  affichage.details[5] = lune.LuneTexteDecl;
  affichage.details[6] = lune.LuneTexteAD;
}

} // namespace

void PoseMomentLune(const Observation &o, Lune &lune) {
  lune.LuneHeure = Val(o.heure);
  lune.LuneMinute = Val(o.minute);
  Passe([&] { lune.LuneSeconde = Simple(Val(o.seconde)); });
  lune.LuneJour = Val(o.jour);
  lune.LuneMois = Val(o.mois);
  lune.LuneAn = Val(o.annee);
}

Reduction Calcul_DroiteLUN(Observation &observation, ValeursVisee &valeurs, Lune &lune, AffichageDroite &affichage,
                           const TexteMsg &messages) {
  Reduction r;
  float latitude = 0.0F;
  float longitude = 0.0F;
  Passe([&] { latitude = Simple(LatitudeEstimee(observation)); });
  Passe([&] { longitude = Simple(LongitudeEstimee(observation)); });
  r.lue.H = LitSextant<double>(observation);
  if (r.lue.H == 0) {
    return r;
  }
  r.etat = EtatReduction::Faite;
  PoseMomentLune(observation, lune);
  Passe([&] { CalculLune(lune); });
  Passe([&] { TopoLune(lune, lune.LuneAD, lune.LuneDecl, latitude, -longitude, messages[33]); });
  valeurs.HauteurCalculee = lune.LuneHauteur;
  valeurs.Azimut = lune.LuneAzimut;
  const float collimation = Corrige(observation, r.lue, affichage, messages);
  AjouteBord(observation, r.lue, collimation, lune);
  Passe([&] { valeurs.Intercept = Simple((r.lue.Ho - valeurs.HauteurCalculee) * 60); });
  Montre(r.lue, valeurs, lune, affichage, messages);
  AfficheResultat(affichage, valeurs, valeurs.HauteurCalculee);
  return r;
}

} // namespace velmaris
