#include "sights/DroiteSOL.hpp"

#include "sights/TheorieSolaire.hpp"

namespace velmaris {
namespace {

constexpr double kParallaxeSoleil = 0.147;      ///< minutes of arc on the horizon
constexpr double kDemiDiametreSoleil = 0.26666; ///< degrees, whatever the date

/// Date and time of the sight as the theory takes them.
struct TempsSolaire {
  double T0 = 0.0;
  double T = 0.0;
};

TempsSolaire LitTemps(const Observation &observation, double heure) {
  const double D = Val(observation.jour);
  double M = Val(observation.mois);
  std::int16_t Y = 0;
  Passe([&] { Y = Entier16(Val(observation.annee)); });
  const auto JJ = JourDuSoleil<float>(D, M, Y);
  TempsSolaire t;
  t.T0 = (JJ - 2415020.0) / 36525.0;
  t.T = t.T0 + heure / 24.0 / 36525.0;
  return t;
}

/// Eye height and collimation, read and written back in their 32-bit general text.
/// Reading and writing are two statements: after a failed reading the field holds "0".
float LitConstante(std::string &champ) {
  float valeur = 0.0F;
  Passe([&] { valeur = Simple(LitVirgule(champ)); });
  champ = TexteVirgule(valeur);
  return valeur;
}

void Corrige(Observation &observation, HauteurObservee<float> &h, AffichageDroite &affichage,
             const TexteMsg &messages) {
  const float oeil = LitConstante(observation.hauteurOeil);
  const float collimation = LitConstante(observation.collimation);
  Passe([&] { h.Depression = DepressionHorizon<float>(oeil); });
  affichage.details[0] = messages[14] + EnMinutes(h.Depression);
  Passe([&] { h.Refraction = RefractionLue<float>(h.H); });
  affichage.details[1] = messages[15] + EnMinutes(h.Refraction);
  Passe([&] { h.Parallaxe = Simple(kParallaxeSoleil * std::cos(h.H * kRadCourt) / 60); });
  affichage.details[2] = messages[16] + EnMinutes(h.Parallaxe);
  if (observation.bord == Bord::Superieur) {
    h.DemiDiametre = Simple(-kDemiDiametreSoleil);
  } else if (observation.bord == Bord::Inferieur) {
    h.DemiDiametre = Simple(kDemiDiametreSoleil);
  }
  const double H = h.H;
  if (observation.horizon == Horizon::Naturel) {
    Passe([&] { h.Ho = Simple(H - h.Depression - h.Refraction + h.Parallaxe + collimation / 60.0 + h.DemiDiametre); });
  } else {
    Passe([&] { h.Ho = Simple((H - h.Refraction + h.Parallaxe + collimation / 60.0 + h.DemiDiametre) / 2); });
  }
  affichage.details[3] = messages[17] + DegresMinutes(h.Ho);
}

} // namespace

ReductionSoleil Calcul_DroiteSOL(Observation &observation, ValeursVisee &valeurs, AffichageDroite &affichage,
                                 const TexteMsg &messages) {
  ReductionSoleil r;
  const TempsSolaire temps = LitTemps(observation, valeurs.HeureDecimale);
  r.lue.H = LitSextant<float>(observation);
  if (r.lue.H == 0.0F) {
    return r;
  }
  r.faite = true;
  Corrige(observation, r.lue, affichage, messages);

  const double ST = TempsSideralSolaire(temps.T0, valeurs.HeureDecimale);
  const auto place = CalculePlaceSoleil<float>(temps.T);
  affichage.details[7] = messages[18] + DegresEnTexte(place.Dec);
  const auto angles = CalculeAnglesHoraires<float>(ST, place.AD, valeurs.LonEstimee);
  affichage.details[5] = messages[28] + TexteGeneral(angles.AHL) + "° ";
  affichage.details[6] = messages[29] + TexteGeneral(angles.AHG) + "° ";
  CalculeHauteurAzimut<float>(place.Dec, angles.AHL, valeurs.LatEstimee, r.Hc, valeurs.Azimut);
  Passe([&] { valeurs.Intercept = Simple((r.lue.Ho - r.Hc) * 60); });
  affichage.details[4] = messages[19] + HauteurSignee(r.Hc);
  AfficheResultat(affichage, valeurs, r.Hc);
  return r;
}

LieuSoleil LieuDuSoleil(const Observation &observation, double heure) {
  const TempsSolaire temps = LitTemps(observation, heure);
  const auto place = CalculePlaceSoleil<float>(temps.T);
  return {CalculeAnglesHoraires<float>(TempsSideralSolaire(temps.T0, heure), place.AD, 0).AHG, place.Dec};
}

double HauteurSoleil(const Observation &observation, double heure, float latitude, float longitude) {
  const TempsSolaire temps = LitTemps(observation, heure);
  const auto place = CalculePlaceSoleil<float>(temps.T);
  const auto angles = CalculeAnglesHoraires<float>(TempsSideralSolaire(temps.T0, heure), place.AD, longitude);
  double Hc = 0.0;
  float azimut = 0.0F;
  CalculeHauteurAzimut<float>(place.Dec, angles.AHL, latitude, Hc, azimut);
  return Hc;
}

} // namespace velmaris
