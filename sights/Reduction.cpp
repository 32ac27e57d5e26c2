#include "sights/Reduction.hpp"

#include "foundations/Angles.hpp"
#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"

namespace velmaris {

ValeurDate DateDeVisee(const Observation &o) {
  const auto nombre = [](const std::string &texte) {
    if (texte.empty()) {
      throw Erreur(13);
    }
    return TexteGeneral(Val(texte));
  };
  return LitDateHeure(nombre(o.jour) + "/" + nombre(o.mois) + "/" + nombre(o.annee) + "   " + nombre(o.heure) + ":" +
                      o.minute + ":" + o.seconde);
}

void CorrigeAstre(const Observation &o, HauteurObservee<double> &h, AffichageDroite &affichage,
                  const TexteMsg &messages) {
  h.Depression = DepressionHorizon<double>(LitVirgule(o.hauteurOeil));
  affichage.details[0] = messages[14] + EnMinutes(h.Depression);
  h.Refraction = RefractionLue<double>(h.H);
  affichage.details[1] = messages[15] + EnMinutes(h.Refraction);
  const double collimation = LitVirgule(o.collimation) / 60;
  h.Ho = Range<double>(o.horizon == Horizon::Naturel ? h.H - h.Depression - h.Refraction + collimation
                                                     : (h.H - h.Refraction + collimation) / 2);
}

void PrendHorizon(std::string_view texte, ValeursVisee &valeurs) {
  const std::size_t p = texte.find('X');
  valeurs.Azimut = Simple(Val(texte.substr(0, p)));
  valeurs.HauteurCalculee = Simple(Val(texte.substr(p + 1)));
}

void ConclutAstre(ValeursVisee &valeurs, const HauteurObservee<double> &h, double AD, double Dec,
                  AffichageDroite &affichage, const TexteMsg &messages) {
  affichage.details[3] = messages[17] + DegresMinutes(h.Ho);
  affichage.details[4] = messages[19] + HauteurSignee(valeurs.HauteurCalculee);
  affichage.details[5] = messages[34];
  affichage.details[6] = messages[33] + HeuresEnTexte(AD);
  affichage.details[7] = messages[18] + DegresEnTexte(Dec / kRadCourt);
  valeurs.Intercept = Simple((h.Ho - valeurs.HauteurCalculee) * 60);
  AfficheResultat(affichage, valeurs, valeurs.HauteurCalculee);
}

} // namespace velmaris
