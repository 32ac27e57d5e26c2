#pragma once

#include "../TableEtoiles.hpp"
#include "complements/controle/Controle.hpp"
#include "foundations/TexteNombre.hpp"
#include "sights/Affichage.hpp"
#include "sights/DroiteLUN.hpp"
#include "sights/DroitePLA.hpp"
#include "sights/DroiteSOL.hpp"
#include "sights/DroiteSTAR.hpp"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <vector>

/// What the tests of the check share: sights made by numbers, reduced by the told routines, and checked.
namespace velmaris::essais {

/// A sight as numbers. Longitudes are east positive, positions of whole minutes.
struct Visee {
  int annee = 2026, mois = 6, jour = 21, heure = 12, minute = 5, seconde = 30;
  double latitude = 47.5, longitude = -5.0;
  Corps corps = Corps::Soleil;
  int rang = 0; ///< in the list of stars or planets, from 0
  double oeil = 2.5, collimation = 0;
  Bord bord = Bord::Inferieur;
  Horizon horizon = Horizon::Naturel;
};

inline std::string Virgule(double x) {
  std::string texte = TexteGeneral(x);
  std::replace(texte.begin(), texte.end(), '.', ',');
  return texte;
}

/// Puts a reading into its fields, in hundredths of a minute.
inline void PoseLecture(Observation &o, double degres) {
  const auto centiemes = std::lround(degres * 6000);
  o.lectureDegres = std::to_string(centiemes / 6000);
  o.lectureMinutes = std::to_string(centiemes / 100 % 60);
  o.lectureFraction = Format(static_cast<double>(centiemes % 100), "00");
  o.fraction = Fraction::Centiemes;
}

/// The fields of a sight.
/// @param lecture  degrees
inline Observation Champs(const Visee &v, double lecture) {
  const auto entier = [](int n) { return Format(n, "00"); };
  const auto minutes = [](double x) { return std::lround(std::fabs(x) * 60); };
  Observation o;
  o.jour = entier(v.jour);
  o.mois = entier(v.mois);
  o.annee = std::to_string(v.annee);
  o.heure = entier(v.heure);
  o.minute = entier(v.minute);
  o.seconde = entier(v.seconde);
  o.latitudeDegres = std::to_string(minutes(v.latitude) / 60);
  o.latitudeMinutes = std::to_string(minutes(v.latitude) % 60);
  o.longitudeDegres = std::to_string(minutes(v.longitude) / 60);
  o.longitudeMinutes = std::to_string(minutes(v.longitude) % 60);
  o.sud = v.latitude < 0;
  o.est = v.longitude >= 0;
  o.hauteurOeil = Virgule(v.oeil);
  o.collimation = Virgule(v.collimation);
  o.bord = v.corps == Corps::Soleil || v.corps == Corps::Lune ? v.bord : Bord::Centre;
  o.horizon = v.horizon;
  o.corps = v.corps;
  o.etoile = v.corps == Corps::Etoiles ? v.rang : -1;
  o.planete = v.corps == Corps::Planetes ? v.rang : -1;
  PoseLecture(o, lecture);
  return o;
}

/// A sight that has been through its told reduction, with all that it left.
struct Dite {
  Observation observation;
  ValeursVisee valeurs;
  AffichageDroite affichage;
  ResultatDit resultat;
  bool operator==(const Dite &d) const {
    return observation == d.observation && valeurs == d.valeurs && affichage.intercept == d.affichage.intercept &&
           affichage.azimut == d.affichage.azimut && affichage.infobulle == d.affichage.infobulle &&
           affichage.details == d.affichage.details && resultat.Ho == d.resultat.Ho && resultat.Hc == d.resultat.Hc;
  }
};

/// Reduces a sight by its kind of body.
/// @throws Erreur as the reductions of stars and planets do
inline Dite Reduis(const Observation &observation) {
  Dite d;
  d.observation = observation;
  d.valeurs.HeureDecimale = HeureDesChamps(observation);
  LitEstime(observation, d.valeurs);
  Reduction r;
  switch (observation.corps) {
  case Corps::Lune: {
    Lune lune;
    r = Calcul_DroiteLUN(d.observation, d.valeurs, lune, d.affichage, {});
    break;
  }
  case Corps::Planetes:
    r = Calcul_DroitePLA(d.observation, d.valeurs, d.affichage, {});
    break;
  case Corps::Etoiles:
    r = Calcul_DroiteSTAR(d.observation, d.valeurs, Table(), d.affichage, {});
    break;
  default: {
    const ReductionSoleil soleil = Calcul_DroiteSOL(d.observation, d.valeurs, d.affichage, {});
    d.resultat = {soleil.lue.Ho, soleil.Hc, d.valeurs.Azimut, d.valeurs.Intercept};
    return d;
  }
  }
  d.resultat = {r.lue.Ho, d.valeurs.HauteurCalculee, d.valeurs.Azimut, d.valeurs.Intercept};
  return d;
}

/// Reduces a sight and checks it.
inline FicheControle Controle(const Observation &observation, const ReglagesControle &reglages = {}) {
  const Dite dite = Reduis(observation);
  return ControleVisee(dite.observation, dite.resultat, Table(), reglages);
}

/// The part of a named cause; nothing when it isn't named.
inline std::optional<double> Part(const FicheControle &fiche, Cause cause) {
  const auto trouvee = std::find_if(fiche.causes.begin(), fiche.causes.end(),
                                    [&](const PartCause &part) { return part.cause == cause; });
  return trouvee == fiche.causes.end() ? std::nullopt : std::optional(trouvee->minutes);
}

inline const LigneControle &LigneDe(const FicheControle &fiche, EtapeControle etape) {
  return fiche.lignes.at(static_cast<std::size_t>(etape));
}

} // namespace velmaris::essais
