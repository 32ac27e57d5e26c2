#include "complements/controle/EtapesDites.hpp"

#include "ephemerides/pLANETE.hpp"
#include "foundations/CelHor.hpp"
#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"
#include "sights/DroiteLUN.hpp"
#include "sights/DroitePLA.hpp"
#include "sights/DroiteSOL.hpp"

#include <cmath>

namespace velmaris {
namespace {

constexpr double kMinutes = 60;
constexpr double kDegresParSeconde = 360.98564736629 / 86400; ///< that the Earth turns by
constexpr double kRad = 0.017453292519943295;

double UnTour(double degres) {
  const double reste = std::fmod(degres, 360);
  return reste < 0 ? reste + 360 : reste;
}

/// Mean sidereal time at Greenwich, degrees; the told routine takes whole seconds.
double TempsSideral(const DateCivile &d) {
  const double entiere = Fix(d.seconde);
  const double siderale = TempsSideralLocal({d.annee, d.mois, d.jour, d.heure, d.minute, static_cast<int>(entiere)}, 0);
  return siderale + (d.seconde - entiere) * kDegresParSeconde;
}

void PosePlace(EtapesDites &etapes, const DateCivile &date, double ad, double dec) {
  etapes.gha = UnTour(TempsSideral(date) - ad);
  etapes.declinaison = dec;
}

/// The corrections as they act on the observed height.
template <class Reel>
void PoseCorrections(EtapesDites &etapes, const HauteurObservee<Reel> &lue, const ViseeTypee &visee) {
  const bool artificiel = visee.lecture.horizonArtificiel;
  const double part = artificiel ? kMinutes / 2 : kMinutes;
  if (!artificiel) {
    etapes.depression = lue.Depression * kMinutes;
  }
  etapes.refraction = lue.Refraction * part;
  etapes.demiDiametre = lue.DemiDiametre * part;
  etapes.parallaxe = lue.Parallaxe * part;
}

EtapesDites EtapesSoleil(Observation copie, const ViseeTypee &visee) {
  EtapesDites etapes;
  ValeursVisee valeurs;
  AffichageDroite affichage;
  valeurs.HeureDecimale = HeureDesChamps(copie);
  const LieuSoleil lieu = LieuDuSoleil(copie, valeurs.HeureDecimale);
  PoseCorrections(etapes, Calcul_DroiteSOL(copie, valeurs, affichage, {}).lue, visee);
  etapes.gha = lieu.AHG;
  etapes.declinaison = lieu.Dec;
  return etapes;
}

/// The Moon's parallax is inside its computed height: what that lies under the height from the Earth's centre.
void PoseParallaxeLune(EtapesDites &etapes, const ViseeTypee &visee, const Lune &lune) {
  const double lat = visee.station.latitude * kRad;
  const double dec = *etapes.declinaison * kRad;
  const double angle = (*etapes.gha + visee.station.longitude) * kRad;
  const double sinus = std::sin(lat) * std::sin(dec) + std::cos(lat) * std::cos(dec) * std::cos(angle);
  const double horizontal = std::hypot(std::cos(dec) * std::sin(angle),
                                       std::cos(lat) * std::sin(dec) - std::sin(lat) * std::cos(dec) * std::cos(angle));
  etapes.parallaxe = (std::atan2(sinus, horizontal) / kRad - lune.LuneHauteur) * kMinutes;
}

EtapesDites EtapesLune(Observation copie, const ViseeTypee &visee) {
  EtapesDites etapes;
  ValeursVisee valeurs;
  AffichageDroite affichage;
  Lune vue;
  const Reduction reduction = Calcul_DroiteLUN(copie, valeurs, vue, affichage, {});
  PoseCorrections(etapes, reduction.lue, visee);
  etapes.parallaxe.reset();
  if (visee.lecture.horizonArtificiel) {
    etapes.demiDiametre = 0; // the told reduction leaves the limb out
  }
  Lune lune;
  PoseMomentLune(copie, lune);
  CalculLune(lune);
  PosePlace(etapes, visee.date, lune.LuneAD * 15, lune.LuneDecl);
  if (reduction.etat == EtatReduction::Faite) {
    PoseParallaxeLune(etapes, visee, vue);
  }
  return etapes;
}

EtapesDites EtapesPlanete(const Observation &o, const ViseeTypee &visee) {
  EtapesDites etapes;
  std::string nom = EnCapitales(NomPlanete(o.planete));
  const std::string ligne = PositionPlanete(nom, {o.jour, o.mois, o.annee, o.heure, o.minute, o.seconde});
  const PlacePlanete place = LitPlacePlanete(ligne);
  PosePlace(etapes, visee.date, place.AD, place.Dec);
  // The field of the declination bears its minus on the degrees; on those of "-00" the reduction loses it.
  const std::size_t champ = ligne.find('|');
  etapes.signePerdu =
      place.Dec > 0 && ligne.substr(champ, ligne.find('|', champ + 1) - champ).find('-') != std::string::npos;
  return etapes;
}

EtapesDites EtapesEtoile(const Observation &o, const ViseeTypee &visee, const Etoiles &etoiles) {
  EtapesDites etapes;
  const PaireX place = LitPaireX(CoordEtoile(etoiles, 0, o.etoile, {o.jour, o.mois, o.annee}));
  PosePlace(etapes, visee.date, place.gauche, place.droite);
  return etapes;
}

/// Corrections of a star or a planet, without limb or parallax.
void PoseCorrectionsAstre(EtapesDites &etapes, const Observation &o, const ViseeTypee &visee) {
  Observation copie = o;
  HauteurObservee<double> lue;
  AffichageDroite affichage;
  lue.H = LitSextant<double>(copie);
  CorrigeAstre(copie, lue, affichage, {});
  PoseCorrections(etapes, lue, visee);
}

} // namespace

EtapesDites RefaitEtapes(const Observation &observation, const ViseeTypee &visee, const Etoiles &etoiles) {
  EtapesDites etapes;
  switch (observation.corps) {
  case Corps::Lune:
    Passe([&] { etapes = EtapesLune(observation, visee); });
    return etapes;
  case Corps::Planetes:
    Passe([&] { etapes = EtapesPlanete(observation, visee); });
    break;
  case Corps::Etoiles:
    Passe([&] { etapes = EtapesEtoile(observation, visee, etoiles); });
    break;
  case Corps::Soleil:
  case Corps::Aucun:
  default:
    Passe([&] { etapes = EtapesSoleil(observation, visee); });
    return etapes;
  }
  Passe([&] { PoseCorrectionsAstre(etapes, observation, visee); });
  return etapes;
}

} // namespace velmaris
